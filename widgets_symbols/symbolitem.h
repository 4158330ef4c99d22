// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStandardItem>

/*!
 * One result of a search: name, id and thumbnail of a symbol.
 *
 * To everybody outside it is a QStandardItem with the name under Qt::ToolTipRole, the id under
 * Qt::UserRole + 1 and, unless it has an icon, the thumbnail's PNG bytes under Qt::UserRole + 2.
 * They are kept as members, because a plain item's list of roles costs half of the time of a search
 * in a large library. As soon as one of them is set, the item becomes such a plain one.
 */
class SymbolItem : public QStandardItem
{
public:
    SymbolItem(QString name, int id, QByteArray thumbnail);
    SymbolItem(QString name, int id, const QIcon& icon);

    QVariant data(int role = Qt::UserRole + 1) const override;
    void setData(const QVariant& value, int role = Qt::UserRole + 1) override;
    QStandardItem* clone() const override;
    void read(QDataStream& in) override;
    void write(QDataStream& out) const override;

private:
    SymbolItem(const SymbolItem& other) = default;

    void becomePlain();

    QString m_name;
    QByteArray m_thumbnail;
    int m_id;
    bool m_hasIcon = false;
    bool m_isPlain = false;
};
