// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPixmapCache>
#include <QStandardItem>

class QStandardItemModel;

/*!
 * One result of a search: name, id and thumbnail of a symbol.
 *
 * To everybody outside it is a QStandardItem with the name under Qt::ToolTipRole, the id under
 * Qt::UserRole + 1 and the thumbnail as PNG bytes under Qt::UserRole + 2, as icon under
 * Qt::DecorationRole, or both. They are kept as members, because a plain item's list of roles costs
 * half of the time of a search in a large library. As soon as one of them is set, the item becomes
 * such a plain one.
 *
 * The icon is made when it is asked for, and again when nobody has asked for a while: a large
 * library's icons together would take seconds to decode and ten times the memory of their bytes.
 * Ask for it on the GUI thread only.
 */
class SymbolItem : public QStandardItem
{
public:
    enum Picture { Bytes, Icon, BytesAndIcon };

    SymbolItem(const QString& name, int id, QByteArray thumbnail, Picture picture = Bytes);

    /// Becomes what a person picks from: not editable, and with an icon. What else it shows stays.
    /// For an item that is in no model yet.
    void becomePickable();

    QVariant data(int role = Qt::UserRole + 1) const override;
    void setData(const QVariant& value, int role = Qt::UserRole + 1) override;
    QStandardItem* clone() const override;
    void read(QDataStream& in) override;
    void write(QDataStream& out) const override;

private:
    SymbolItem(const SymbolItem& other) = default;

    QIcon makeIcon() const;
    void becomePlain();

    /// As UTF-8: most names then need half of the memory, and few of a large library are asked for.
    QByteArray m_name;
    QByteArray m_thumbnail;
    mutable QPixmapCache::Key m_pixmap;
    int m_id;
    int m_flags = -1; // the defaults
    Picture m_picture;
    bool m_isPlain = false;
};

/// Appends results of a search to `model`, which then owns them, all at once: as rows that cannot be
/// edited and, where they have none yet, with an icon made of the thumbnail.
void appendSymbols(QStandardItemModel& model, const QList<QStandardItem*>& items);
