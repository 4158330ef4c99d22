// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "widgets_symbols/symbolitem.h"

#include "support/test.h"

#include <QDataStream>
#include <QIcon>
#include <QSignalSpy>

class TestSymbolItem : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void showsItsValuesUnderTheirRoles();
    void anItemWithAnIconHasNoThumbnail();
    void otherRolesAreThoseOfAPlainItem();
    void settingOneValueKeepsTheOthersAndIsReported();
    void aCloneHasTheSameValues();
    void survivesAStream();
};

namespace {

constexpr int IdRole = Qt::UserRole + 1;
constexpr int ThumbnailRole = Qt::UserRole + 2;

bool isCat(const QStandardItem& item)
{
    return item.data(Qt::ToolTipRole) == QStringLiteral("cat") && item.data(IdRole) == 7
        && item.data(ThumbnailRole) == QByteArray("png");
}

} // namespace

void TestSymbolItem::showsItsValuesUnderTheirRoles()
{
    const SymbolItem item(QStringLiteral("cat"), 7, QByteArray("png"));
    QVERIFY(isCat(item));
    QCOMPARE(item.toolTip(), QStringLiteral("cat"));
    QCOMPARE(item.data(), QVariant(7));
    QCOMPARE(item.text(), QString());
    QVERIFY(!item.data(Qt::DecorationRole).isValid());
}

void TestSymbolItem::anItemWithAnIconHasNoThumbnail()
{
    SymbolItem item(QStringLiteral("cat"), 7, QIcon());
    QVERIFY(item.data(Qt::DecorationRole).isValid());
    QVERIFY(!item.data(ThumbnailRole).isValid());
    item.setToolTip(QStringLiteral("dog"));
    QVERIFY(!item.data(ThumbnailRole).isValid());
}

void TestSymbolItem::otherRolesAreThoseOfAPlainItem()
{
    SymbolItem item(QStringLiteral("cat"), 7, QByteArray("png"));
    item.setText(QStringLiteral("text"));
    item.setData(3, Qt::UserRole + 3);
    QCOMPARE(item.text(), QStringLiteral("text"));
    QCOMPARE(item.data(Qt::UserRole + 3), QVariant(3));
    QVERIFY(isCat(item));
}

void TestSymbolItem::settingOneValueKeepsTheOthersAndIsReported()
{
    QStandardItemModel model;
    auto* item = new SymbolItem(QStringLiteral("cat"), 7, QByteArray("png"));
    model.appendRow(item);
    QSignalSpy changed(&model, &QStandardItemModel::itemChanged);
    QVERIFY(model.setData(model.index(0, 0), 8, IdRole));
    QVERIFY(changed.count() > 0);
    QCOMPARE(item->data(IdRole), QVariant(8));
    QCOMPARE(item->toolTip(), QStringLiteral("cat"));
    QCOMPARE(item->data(ThumbnailRole), QVariant(QByteArray("png")));
    item->setData(QVariant(), ThumbnailRole);
    QVERIFY(!item->data(ThumbnailRole).isValid());
}

void TestSymbolItem::aCloneHasTheSameValues()
{
    SymbolItem item(QStringLiteral("cat"), 7, QByteArray("png"));
    item.setText(QStringLiteral("text"));
    const std::unique_ptr<QStandardItem> clone(item.clone());
    QVERIFY(isCat(*clone));
    QCOMPARE(clone->text(), QStringLiteral("text"));
}

void TestSymbolItem::survivesAStream()
{
    QByteArray bytes;
    {
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out << SymbolItem(QStringLiteral("cat"), 7, QByteArray("png"));
    }
    QDataStream in(bytes);
    QStandardItem plain;
    in >> plain;
    QVERIFY(isCat(plain));

    QDataStream again(bytes);
    SymbolItem item(QStringLiteral("dog"), 8, QByteArray());
    again >> item;
    QVERIFY(isCat(item));
}

UW_TEST_MAIN(TestSymbolItem)

#include "tst_symbolitem.moc"
