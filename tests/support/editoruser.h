// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "canvas.h"
#include "editorwindow.h"
#include "support/modaldialog.h"

#include <QAbstractItemView>

class OxFileDialog;
class QAbstractButton;

/*!
 * The person in front of the editor: everything is done by touch points, except that texts are typed
 * on the device's keyboard.
 *
 * What cannot be done fails the test with a message that names it.
 */
class EditorUser
{
public:
    EditorUser();

    EditorWindow window;
    Canvas* const canvas;

    QList<Object> objects() const { return window.document().content().objects(); }
    QList<Object> selected() const { return window.document().selectedObjects(); }

    /// The widget of that object name; the test has failed if it is null.
    QWidget* find(const QString& name) const;
    void tap(const QString& name) const;
    /// The button of that text, or of that accessible name, in `parent`.
    static void tapButton(const QWidget* parent, const QString& text);
    static void tapItem(QAbstractItemView* view, int row);
    void tapTab(const QString& bar, int tab) const;
    /// Types into the field of that object name in the place of what it holds.
    void enter(const QString& field, const QString& text) const;

    void tapObject(const Object& object) const;
    void drag(const QPoint& from, const QPoint& offset) const;

    /// Folds the sections above the colours, for these to be on the screen.
    void foldSections() const;
    void tapColor(const QString& color) const;
    void tapLock(const QString& text) const;

    /// Taps an entry of the File menu, which is expected to open a dialog, and runs `script` in it.
    template <typename Dialog>
    void command(const QString& text, const std::function<void(Dialog*)>& script)
    {
        whileModal<Dialog>(
            [&] {
                tap(QStringLiteral("file"));
                tapButton(&window, text);
                QCoreApplication::processEvents();
            },
            script);
    }
    /// An entry of the menu without a dialog.
    void command(const QString& text);

    /// Inserts a text by its dialog.
    void insertText(const QString& text) const;
    void insertShape(const QString& button) const { tap(button); }

    /// In the file dialog: types a name and accepts.
    static void chooseName(OxFileDialog* dialog, const QString& name);
    /// In the file dialog: taps a file and accepts.
    static void chooseFile(OxFileDialog* dialog, const QString& name);
};
