// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symbolitem.h"

namespace {

constexpr int IdRole = Qt::UserRole + 1;
constexpr int ThumbnailRole = Qt::UserRole + 2;

} // namespace

SymbolItem::SymbolItem(QString name, int id, QByteArray thumbnail)
    : m_name(std::move(name))
    , m_thumbnail(std::move(thumbnail))
    , m_id(id)
{ }

SymbolItem::SymbolItem(QString name, int id, const QIcon& icon)
    : m_name(std::move(name))
    , m_id(id)
    , m_hasIcon(true)
{
    QStandardItem::setData(icon, Qt::DecorationRole);
}

QVariant SymbolItem::data(int role) const
{
    if (!m_isPlain) {
        switch (role) {
        case Qt::ToolTipRole:
            return m_name;
        case IdRole:
            return m_id;
        case ThumbnailRole:
            return m_hasIcon ? QVariant() : m_thumbnail;
        default:
            break;
        }
    }
    return QStandardItem::data(role);
}

void SymbolItem::setData(const QVariant& value, int role)
{
    if (role == Qt::ToolTipRole || role == IdRole || role == ThumbnailRole) {
        becomePlain();
    }
    QStandardItem::setData(value, role);
}

QStandardItem* SymbolItem::clone() const
{
    return new SymbolItem(*this);
}

void SymbolItem::read(QDataStream& in)
{
    m_isPlain = true;
    QStandardItem::read(in);
}

void SymbolItem::write(QDataStream& out) const
{
    SymbolItem plain(*this);
    plain.becomePlain();
    plain.QStandardItem::write(out);
}

void SymbolItem::becomePlain()
{
    if (m_isPlain) {
        return;
    }
    m_isPlain = true;
    QStandardItem::setData(m_name, Qt::ToolTipRole);
    QStandardItem::setData(m_id, IdRole);
    if (!m_hasIcon) {
        QStandardItem::setData(m_thumbnail, ThumbnailRole);
    }
}
