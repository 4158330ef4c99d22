// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symbolitem.h"

#include <QIcon>
#include <QPixmap>
#include <QStandardItemModel>

namespace {

constexpr int IdRole = Qt::UserRole + 1;
constexpr int ThumbnailRole = Qt::UserRole + 2;
/// Where QStandardItem keeps its flags.
constexpr int FlagsRole = Qt::UserRole - 1;

/// As UTF-8, and a copy of that, because toUtf8() reserves three bytes for each character.
QByteArray compact(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    return utf8.isNull() ? utf8 : QByteArray(utf8.constData(), utf8.size());
}

} // namespace

SymbolItem::SymbolItem(const QString& name, int id, QByteArray thumbnail, Picture picture)
    : m_name(compact(name))
    , m_thumbnail(std::move(thumbnail))
    , m_id(id)
    , m_picture(picture)
{ }

void SymbolItem::becomePickable()
{
    if (m_isPlain) {
        QPixmap pixmap;
        pixmap.loadFromData(data(ThumbnailRole).toByteArray());
        QStandardItem::setData(QIcon(pixmap), Qt::DecorationRole);
        setEditable(false);
        return;
    }
    if (m_picture == Bytes) {
        m_picture = BytesAndIcon;
    }
    m_flags = int(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled
                  | Qt::ItemIsDropEnabled);
}

QVariant SymbolItem::data(int role) const
{
    if (!m_isPlain) {
        switch (role) {
        case Qt::ToolTipRole:
            return QString::fromUtf8(m_name);
        case Qt::DecorationRole:
            return m_picture == Bytes ? QStandardItem::data(role) : makeIcon();
        case IdRole:
            return m_id;
        case ThumbnailRole:
            return m_picture == Icon ? QVariant() : m_thumbnail;
        case FlagsRole:
            return m_flags == -1 ? QVariant() : m_flags;
        default:
            break;
        }
    }
    return QStandardItem::data(role);
}

void SymbolItem::setData(const QVariant& value, int role)
{
    if (role == FlagsRole && !m_isPlain) {
        m_flags = value.toInt();
        emitDataChanged();
        return;
    }
    if (role == Qt::ToolTipRole || role == Qt::DecorationRole || role == IdRole
        || role == ThumbnailRole) {
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

/// The cache forgets what has not been asked for longest, so that a library that was scrolled
/// through from end to end is not in memory as pixels.
QIcon SymbolItem::makeIcon() const
{
    QPixmap pixmap;
    if (!QPixmapCache::find(m_pixmap, &pixmap) && pixmap.loadFromData(m_thumbnail)) {
        m_pixmap = QPixmapCache::insert(pixmap);
    }
    return QIcon(pixmap);
}

void SymbolItem::becomePlain()
{
    if (m_isPlain) {
        return;
    }
    m_isPlain = true;
    QStandardItem::setData(QString::fromUtf8(m_name), Qt::ToolTipRole);
    QStandardItem::setData(m_id, IdRole);
    if (m_picture != Icon) {
        QStandardItem::setData(m_thumbnail, ThumbnailRole);
    }
    if (m_picture != Bytes) {
        QStandardItem::setData(makeIcon(), Qt::DecorationRole);
    }
    if (m_flags != -1) {
        QStandardItem::setData(m_flags, FlagsRole);
    }
}

void appendSymbols(QStandardItemModel& model, const QList<QStandardItem*>& items)
{
    for (QStandardItem* item : items) {
        if (auto* symbol = dynamic_cast<SymbolItem*>(item)) {
            symbol->becomePickable();
        }
    }
    if (!items.isEmpty()) {
        model.invisibleRootItem()->appendRows(items);
    }
}
