// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "colorlistcombodelegate.h"

ColorListComboDelegate::ColorListComboDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{ }

void ColorListComboDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const
{
    QStyleOptionViewItem unselected(option);
    unselected.state &= ~QStyle::State_Selected;
    QStyledItemDelegate::paint(painter, unselected, index);
}

#include "moc_colorlistcombodelegate.cpp"
