// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QStyledItemDelegate>

/*!
 * \brief Draws every item in its own colours, the selected one too.
 *
 * For views whose items carry Qt::BackgroundRole and Qt::ForegroundRole that the selection colour
 * would cover. ColorListCombo sets one for its popup; for other views:
 *
 * \code
 * view->setItemDelegate(new ColorListComboDelegate(view));
 * \endcode
 */
class UTILITYWIDGETS_EXPORT ColorListComboDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ColorListComboDelegate(QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};
