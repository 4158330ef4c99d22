// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document.h"

#include <QWidget>

#include <memory>

class Canvas;
class SidePanel;

namespace Ui {
class EditorWindow;
}

/// The window: joins the document, what shows it and what a person does with it. Its form connects
/// buttons and menu to the slots.
class EditorWindow : public QWidget
{
    Q_OBJECT

public:
    explicit EditorWindow(QWidget* parent = nullptr);
    ~EditorWindow() override;

    const Document& document() const { return m_document; }

public Q_SLOTS:
    void openFile(const QString& path);

protected:
    void closeEvent(QCloseEvent* event) override;

private Q_SLOTS:
    void showOrHideMenu();
    void newDocument();
    void openDocument();
    bool save();
    bool saveAs();
    void print();
    void openDatabase();
    void showHelp();
    void showAbout();
    void addText();
    void addSymbol();
    void selectSeveral();
    void removeSelected();

private:
    void showDocument();
    void add(Object::Kind kind, const QString& text = {}, const QByteArray& svg = {});
    /// Whether the document may be replaced: it is saved, or need not be.
    bool mayLeave();
    bool saveTo(const QString& path);
    /// The path of a file that is to be written; empty if the person does not want to.
    QString askForFile(const QString& caption, const QString& filter);
    /// Tells what has gone wrong. True if nothing has.
    bool check(const QString& error);

    Document m_document;
    std::unique_ptr<Ui::EditorWindow> m_ui;
    Canvas* m_canvas;
    SidePanel* m_panel;
};
