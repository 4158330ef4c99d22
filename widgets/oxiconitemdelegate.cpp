// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxiconitemdelegate.h"

OxIconItemDelegate::OxIconItemDelegate(QObject* parent)
    : QItemDelegate(parent)
{ }

QSize OxIconItemDelegate::fixedIconSize() const
{
    return m_fixedIconSize;
}

void OxIconItemDelegate::setFixedIconSize(QSize size)
{
    if (m_fixedIconSize == size) {
        return;
    }
    m_fixedIconSize = size;
    Q_EMIT sizeHintChanged({});
}

QSize OxIconItemDelegate::sizeHint(const QStyleOptionViewItem& /*option*/,
                                   const QModelIndex& /*index*/) const
{
    return m_fixedIconSize;
}

#include "moc_oxiconitemdelegate.cpp"
