// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "sharedconstants.h"
#include "utilitywidgets_export.h"

#include <QItemDelegate>

/*!
 * \brief Makes every item of a view the same size, large enough for a finger.
 *
 * For lists of icons and names, such as files, of which some have long names: the row stays as
 * high as every other, and the view elides the name. Give the view the same icon size.
 *
 * \code
 * list->setItemDelegate(new OxIconItemDelegate(list)); // the view takes no ownership
 * list->setIconSize(IconButtonSize);
 * list->setUniformItemSizes(true);
 * \endcode
 *
 * Items are painted as QItemDelegate does: what a view's style sheet says of items has no
 * effect. Where items differ in size, use QStyledItemDelegate and Qt::SizeHintRole.
 */
class UTILITYWIDGETS_EXPORT OxIconItemDelegate : public QItemDelegate
{
    Q_OBJECT
    Q_PROPERTY(QSize fixedIconSize READ fixedIconSize WRITE setFixedIconSize)

public:
    /// Items are IconButtonSize large.
    explicit OxIconItemDelegate(QObject* parent = nullptr);

    QSize fixedIconSize() const;
    /// Makes every item `size` large, in pixels. Views that use the delegate lay their items out
    /// anew.
    void setFixedIconSize(QSize size);

    /// The fixed size, whatever the item holds. Lists without wrapping show items as wide as
    /// themselves.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    QSize m_fixedIconSize = IconButtonSize;
};
