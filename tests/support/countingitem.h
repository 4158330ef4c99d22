// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStandardItem>

/// Counts how often it is asked for its icon.
class CountingItem : public QStandardItem
{
public:
    static inline int count = 0;

    QVariant data(int role) const override
    {
        count += role == Qt::DecorationRole ? 1 : 0;
        return QStandardItem::data(role);
    }
};
