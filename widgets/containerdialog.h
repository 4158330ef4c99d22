// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QDialog>

class ContainerTitleBar;
class QLayout;

/*!
 * \brief A framed dialog with a title bar around any layout of yours.
 *
 * Use it for a dialog that no class of this library offers; for a question with one answer use
 * OxMessageBox, for one value OxInputDialog.
 *
 * \code
 * ContainerDialog dialog;
 * dialog.setHeaderLabelText(tr("GRID", "Title of the dialog for the grid."));
 * auto* form = new QFormLayout;
 * form->addRow(tr("Spacing", "Label of a field."), spacing);
 * connect(doneButton, &QPushButton::clicked, &dialog, &QDialog::accept);
 * form->addRow(doneButton);
 * dialog.setContainedWidget(form);
 * if (dialog.exec() == QDialog::Accepted) {
 *     m_page->setGridSpacing(spacing->value());
 * }
 * \endcode
 *
 * The title bar's close button hides the dialog and gives it no result: exec() returns 0, while
 * neither finished() nor rejected() is emitted. Escape rejects, as in any QDialog. Hidden, the
 * dialog can be shown again. It has no parent, so whoever makes it deletes it.
 */
class UTILITYWIDGETS_EXPORT ContainerDialog : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(QString headerLabelText READ headerLabelText WRITE setHeaderLabelText)

public:
    /// A dialog that shows nothing but its title bar until setContainedWidget() is called.
    ContainerDialog();

    /// Lays out the area below the title bar with `layout`, which the area then owns, and its
    /// widgets with it. Call it once: Qt refuses a second layout with a warning, and that one stays
    /// the caller's.
    void setContainedWidget(QLayout* layout);
    QString headerLabelText() const;
    /// Replaces the title. See ContainerTitleBar::setTitle().
    void setHeaderLabelText(const QString& text);

private:
    ContainerTitleBar* m_titleBar = nullptr;
    // By value and adopted by the layout: as a member it dies before the base class deletes the
    // children it has left.
    QWidget m_containedArea;
};
