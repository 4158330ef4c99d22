// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QDialog>

class MultiItemSelectionWidget;
class QPushButton;
class QStandardItem;

/*!
 * \brief A MultiItemSelectionWidget with OK and Cancel, and with an Import button if wanted.
 *
 * Use it to ask for several of many items where a panel has no room for the two lists. Fill and
 * read it through its selection widget:
 *
 * \code
 * MultiItemSelectionDialog dialog;
 * dialog.getSelectionWidget()->setAvailableItems(layers);
 * dialog.getSelectionWidget()->setSelectedItems(printedIds);
 * if (dialog.exec() == QDialog::Accepted) {
 *     print(dialog.getSelectionWidget()->getSelectedItemIds());
 * }
 * \endcode
 *
 * Make it without a parent: its window flags are exactly Qt::FramelessWindowHint, which turns a
 * dialog with a parent into a part of that one, modal to nobody. Closing it neither deletes it nor
 * quits the application. Enter presses OK and Escape cancels; what was moved by then stays moved,
 * so after a cancelled dialog set the items anew before showing it again.
 */
class UTILITYWIDGETS_EXPORT MultiItemSelectionDialog : public QDialog
{
    Q_OBJECT

public:
    /// `flags` are part of the call for the sake of compatibility only: they are replaced.
    explicit MultiItemSelectionDialog(QWidget* parent = nullptr, Qt::WindowFlags flags = {});

    // The virtual functions stand in one fixed order, so that the layout of the virtual table
    // stays what subclasses were compiled with.

    /*!
     * Shows or hides the Import button; hidden at first. The dialog does nothing when it is
     * tapped: whoever shows it finds it among the dialog's direct children and connects to it.
     */
    virtual void showAddButton(bool show);
    /// The two lists; owned by the dialog, never null.
    virtual MultiItemSelectionWidget* getSelectionWidget();

public Q_SLOTS:
    /// Appends `item` to the left list, as MultiItemSelectionWidget::addAvailableItem() does: for
    /// what an import brings.
    virtual void addAvailableItem(QStandardItem* item);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void createLayout();

    MultiItemSelectionWidget* m_selectionWidget = nullptr;
    QPushButton* m_importButton = nullptr;
    QPushButton* m_okButton = nullptr;
    QPushButton* m_cancelButton = nullptr;
};
