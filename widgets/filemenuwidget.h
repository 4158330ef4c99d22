// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QFrame>

class QVBoxLayout;

/*!
 * \brief A framed panel of menu items, one below the other, that tells when it loses the focus.
 *
 * Use it for a menu of large buttons that drops down over the page. The panel neither shows nor
 * hides itself: give it the focus when you show it, and hide it when it reports the loss.
 *
 * \code
 * auto* menu = new FileMenuWidget(this);
 * auto* open = new QPushButton(tr("Open", "Item of the file menu."));
 * open->setFocusPolicy(Qt::TabFocus);
 * menu->addMenuItem(open);
 * connect(menu, &FileMenuWidget::focusLost, menu, [menu] {
 *     if (!menu->isAncestorOf(QApplication::focusWidget())) {
 *         menu->hide();
 *     }
 * });
 *
 * menu->show();
 * menu->setFocus();
 * \endcode
 *
 * A tap on an item that accepts the focus takes it away from the panel, which would be hidden
 * before the tap is over. With Qt::TabFocus only the keyboard moves the focus to an item.
 */
class UTILITYWIDGETS_EXPORT FileMenuWidget : public QFrame
{
    Q_OBJECT

public:
    /// An empty panel. Its frame follows its object name, as long as its style sheet is its own.
    explicit FileMenuWidget(QWidget* parent = nullptr);

    /// Adds `item`, usually a button, below the others. All items share the height equally and
    /// stand in its middle at the width they ask for. The panel owns `item` from now on.
    Q_INVOKABLE void addMenuItem(QWidget* item);

Q_SIGNALS:
    /// The panel itself has lost the keyboard focus, for whatever reason, to one of its items too:
    /// QApplication::focusWidget() tells who has it now. Not emitted when an item loses it, nor
    /// when a panel without the focus is hidden.
    void focusLost();

protected:
    void focusOutEvent(QFocusEvent* event) override;

private:
    QVBoxLayout* m_layout = nullptr;
};
