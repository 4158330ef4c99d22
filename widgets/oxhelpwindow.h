// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QDialog>
#include <QIcon>
#include <QList>
#include <QPair>
#include <QString>

#include <memory>

class QListWidgetItem;
class Ui_OxHelpWindow;

/*!
 * \brief The help of an application: frequently asked questions on the left, PDF manuals on the
 * right.
 *
 * The application supplies the questions; the manuals are those of a folder below the "Manuals"
 * of the person's home folder. The window shows no manual itself: a tapped one is handed to the
 * home application, as the message "launch" on the channel "OxHomeInstance", whose data is the
 * manual's path, a QString written by QDataStream. Without a home application the tap is lost.
 *
 * \code
 * m_help = std::make_unique<OxHelpWindow>(); // no parent, see below
 * m_help->insertHelpFAQs({ { QIcon(":/help/save.png"), tr("How do I save?", "Help question.") } });
 * m_help->populatePDF(QStringLiteral("Editor"));
 * connect(helpAction, &QAction::triggered, m_help.get(), &QWidget::show);
 * \endcode
 *
 * Make it without a parent. Its only window flag is the one for no frame: inside a parent it is no
 * window but a part of that parent.
 *
 * Close and the title bar's close button hide the window, Escape rejects it; it can be shown again
 * in either case, with what its lists hold.
 */
class UTILITYWIDGETS_EXPORT OxHelpWindow : public QDialog
{
    Q_OBJECT

    /// The folder whose manuals were listed last; empty before. Setting it lists those of another
    /// one behind them.
    Q_PROPERTY(QString manualsFolderName READ manualsFolderName WRITE populatePDF)

public:
    /// A window with two empty lists.
    explicit OxHelpWindow(QWidget* parent = nullptr);
    ~OxHelpWindow() override;

    /// The folder that populatePDF() listed last; empty if it found none yet.
    QString manualsFolderName() const;

public Q_SLOTS:
    /// Adds one tile per pair of picture and question behind those that are there. A picture is
    /// shown in up to 64 x 64 pixels; a question that is too long for one line is wrapped.
    void insertHelpFAQs(const QList<QPair<QIcon, QString>>& faqs);
    /*!
     * Adds the manuals below "/Home/Manuals/" + `manualsFolderName` behind those that are there:
     * each subfolder, by name, and below it its PDF files. Called twice, it lists them twice. A
     * folder that does not exist adds nothing.
     *
     * A manual is known by its name up to the first dot: "Setup.v2.pdf" is shown as "Setup", and
     * "Setup.pdf" is what a tap asks for. A subfolder named "sidebar" is not shown, and hides those
     * behind it.
     */
    void populatePDF(const QString& manualsFolderName);
    /// Removes all questions.
    void clearFAQs();
    /// Asks the home application to open the manual that `item` stands for. Does nothing for the
    /// name of a folder or a null pointer. Called for each tap on an item, and for Return.
    void callPDFLaunchSlot(QListWidgetItem* item);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void retranslate();
    void addManuals(const QString& folder, const QStringList& files);

    std::unique_ptr<Ui_OxHelpWindow> m_ui;
    QString m_manualsFolderName;
};
