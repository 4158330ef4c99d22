// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "widgets_symbols/symbolitem.h"

#include "support/test.h"

#include <QBuffer>
#include <QDataStream>
#include <QIcon>
#include <QPixmapCache>
#include <QSignalSpy>
#include <QStandardItemModel>

#include <memory>
#include <vector>

class TestSymbolItem : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void showsItsValuesUnderTheirRoles();
    void everyNameIsKeptAsItIs_data();
    void everyNameIsKeptAsItIs();
    void anItemShownAsIconHasNoBytes();
    void aPickableItemHasAnIconAndStaysAsItIsOtherwise();
    void anIconThatTheCacheHasForgottenIsMadeAgain();
    void theCacheBoundsTheMemoryOfIcons();
    void aThumbnailThatDoesNotDecodeIsANullIcon();
    void anIconThatIsSetReplacesTheThumbnails();
    void flagsAreThoseOfAPlainItem();
    void symbolsAreAppendedAtOnceWithTheirIcons();
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

QByteArray png(const QColor& colour)
{
    QImage image(50, 50, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

/// Of the icon, in the size of a thumbnail.
QColor colourOf(const QStandardItem& item)
{
    return item.icon().pixmap(50, 50).toImage().pixelColor(25, 25);
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

void TestSymbolItem::everyNameIsKeptAsItIs_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("other letters") << QStringLiteral("Größe Ωμέγα 大");
    QTest::newRow("beyond the first plane") << QStringLiteral("\U0001F431.svg");
    QTest::newRow("with a null character") << QString(QChar()) + QLatin1Char('a');
}

void TestSymbolItem::everyNameIsKeptAsItIs()
{
    QFETCH(QString, name);
    SymbolItem item(name, 7, QByteArray());
    QCOMPARE(item.toolTip(), name);
    QCOMPARE(item.toolTip().isNull(), name.isNull());
    item.setData(8, IdRole); // which makes it a plain one
    QCOMPARE(item.toolTip(), name);
}

void TestSymbolItem::anItemShownAsIconHasNoBytes()
{
    SymbolItem item(QStringLiteral("cat"), 7, png(Qt::red), SymbolItem::Icon);
    QCOMPARE(colourOf(item), QColor(Qt::red));
    QVERIFY(!item.data(ThumbnailRole).isValid());
    item.setToolTip(QStringLiteral("dog"));
    QCOMPARE(colourOf(item), QColor(Qt::red));
    QVERIFY(!item.data(ThumbnailRole).isValid());
    QCOMPARE(item.data(IdRole), QVariant(7));
}

void TestSymbolItem::aPickableItemHasAnIconAndStaysAsItIsOtherwise()
{
    SymbolItem item(QStringLiteral("cat"), 7, png(Qt::red));
    QVERIFY(!item.data(Qt::DecorationRole).isValid());
    item.becomePickable();
    QCOMPARE(colourOf(item), QColor(Qt::red));
    QCOMPARE(item.data(ThumbnailRole), QVariant(png(Qt::red)));
    QCOMPARE(item.toolTip(), QStringLiteral("cat"));
    QStandardItem likewise;
    likewise.setEditable(false);
    QCOMPARE(item.flags(), likewise.flags());

    SymbolItem plain(QStringLiteral("cat"), 7, QByteArray());
    plain.setData(png(Qt::blue), ThumbnailRole);
    plain.becomePickable();
    QCOMPARE(colourOf(plain), QColor(Qt::blue));
    QCOMPARE(plain.flags(), likewise.flags());

    SymbolItem icon(QStringLiteral("cat"), 7, png(Qt::red), SymbolItem::Icon);
    icon.becomePickable();
    QCOMPARE(colourOf(icon), QColor(Qt::red));
    QVERIFY(!icon.data(ThumbnailRole).isValid());
}

void TestSymbolItem::anIconThatTheCacheHasForgottenIsMadeAgain()
{
    const SymbolItem item(QStringLiteral("cat"), 7, png(Qt::red), SymbolItem::Icon);
    QCOMPARE(colourOf(item), QColor(Qt::red));
    const qint64 first = item.icon().pixmap(50, 50).cacheKey();
    QCOMPARE(item.icon().pixmap(50, 50).cacheKey(), first);
    QPixmapCache::clear();
    QCOMPARE(colourOf(item), QColor(Qt::red));
    QVERIFY(item.icon().pixmap(50, 50).cacheKey() != first);
}

void TestSymbolItem::theCacheBoundsTheMemoryOfIcons()
{
    const int limit = QPixmapCache::cacheLimit();
    QPixmapCache::setCacheLimit(100); // kB: ten thumbnails of 10 kB
    std::vector<std::unique_ptr<SymbolItem>> items;
    for (int id = 0; id < 50; ++id) {
        items.push_back(std::make_unique<SymbolItem>(QStringLiteral("cat"), id,
                                                     png(QColor(id, 0, 0)), SymbolItem::Icon));
        QCOMPARE(colourOf(*items.back()), QColor(id, 0, 0));
    }
    for (int id = 0; id < 50; ++id) {
        QCOMPARE(colourOf(*items[std::size_t(id)]), QColor(id, 0, 0));
    }
    QPixmapCache::setCacheLimit(limit);
}

void TestSymbolItem::aThumbnailThatDoesNotDecodeIsANullIcon()
{
    const SymbolItem item(QStringLiteral("cat"), 7, QByteArray("no picture"), SymbolItem::Icon);
    QVERIFY(item.data(Qt::DecorationRole).isValid());
    QVERIFY(item.icon().isNull());
}

void TestSymbolItem::anIconThatIsSetReplacesTheThumbnails()
{
    SymbolItem item(QStringLiteral("cat"), 7, png(Qt::red), SymbolItem::Icon);
    QPixmap blue(50, 50);
    blue.fill(Qt::blue);
    item.setIcon(blue);
    QCOMPARE(colourOf(item), QColor(Qt::blue));
    QCOMPARE(item.toolTip(), QStringLiteral("cat"));
}

void TestSymbolItem::flagsAreThoseOfAPlainItem()
{
    SymbolItem item(QStringLiteral("cat"), 7, png(Qt::red), SymbolItem::Icon);
    QCOMPARE(item.flags(), QStandardItem().flags());
    item.setEditable(false);
    QVERIFY(!item.isEditable());
    QVERIFY(item.isSelectable());
    item.setToolTip(QStringLiteral("dog"));
    QVERIFY(!item.isEditable());
    item.setEditable(true);
    QCOMPARE(item.flags(), QStandardItem().flags());
}

void TestSymbolItem::symbolsAreAppendedAtOnceWithTheirIcons()
{
    QStandardItemModel model;
    QSignalSpy inserted(&model, &QStandardItemModel::rowsInserted);
    appendSymbols(model, {});
    QCOMPARE(model.rowCount(), 0);
    appendSymbols(model,
                  { new SymbolItem(QStringLiteral("cat"), 7, png(Qt::red)),
                    new SymbolItem(QStringLiteral("dog"), 8, png(Qt::blue), SymbolItem::Icon) });
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.columnCount(), 1);
    QCOMPARE(colourOf(*model.item(0)), QColor(Qt::red));
    QCOMPARE(colourOf(*model.item(1)), QColor(Qt::blue));
    QCOMPARE(model.item(0)->data(ThumbnailRole), QVariant(png(Qt::red)));
    QVERIFY(!model.item(1)->data(ThumbnailRole).isValid());
    QVERIFY(!model.item(0)->isEditable() && !model.item(1)->isEditable());
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

    QByteArray withIcon;
    {
        QDataStream out(&withIcon, QIODevice::WriteOnly);
        out << SymbolItem(QStringLiteral("cat"), 7, png(Qt::red), SymbolItem::Icon);
    }
    QDataStream last(withIcon);
    last >> plain;
    QCOMPARE(colourOf(plain), QColor(Qt::red));
    QVERIFY(!plain.data(ThumbnailRole).isValid());
}

UW_TEST_MAIN(TestSymbolItem)

#include "tst_symbolitem.moc"
