// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symbolinspection.h"

#include "support/symboldatabase.h"
#include "support/test.h"

#include <QBuffer>
#include <QImage>
#include <QLoggingCategory>

class TestSymbolInspection : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aPlainDrawingHasNothingToTell();
    void whatIsNoDrawingIsRefusedWithTheReason_data();
    void whatIsNoDrawingIsRefusedWithTheReason();
    void whatIsDangerousIsLeftOut();
    void whatIsNotDrawnIsNamed_data();
    void whatIsNotDrawnIsNamed();
    void whatIsDefinedButNotUsedIsNotNamed_data();
    void whatIsDefinedButNotUsedIsNotNamed();
    void eachFeatureIsNamedOnce();
    void aFeatureThatWasLeftOutIsNotNamedAsWell();
    void whiteThumbnailsAreBlank_data();
    void whiteThumbnailsAreBlank();
};

namespace {

QByteArray svg(const QByteArray& content)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' "
           "xmlns:xlink='http://www.w3.org/1999/xlink' width='50' height='50'>"
        + content + "</svg>";
}

QByteArray png(const QColor& colour, const QColor& corner)
{
    QImage image(50, 50, QImage::Format_RGB32);
    image.fill(colour);
    image.setPixelColor(49, 49, corner);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QBuffer::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

/// The renderer's own opinion: whether a red drawing is red in its middle.
bool isRed(const QByteArray& document)
{
    const QImage image =
        QImage::fromData(SymbolDatabaseModel().getThumbnailDataFromRawData(document));
    return image.pixel(25, 25) == qRgb(255, 0, 0);
}

const QByteArray Box = "<rect width='50' height='50' fill='red'/>";

} // namespace

void TestSymbolInspection::aPlainDrawingHasNothingToTell()
{
    const SymbolInspection inspection(filledSvg("red"));
    QVERIFY(!inspection.isRefused());
    QCOMPARE(inspection.refusal(), QString());
    QCOMPARE(inspection.leftOut(), QStringList());
    QCOMPARE(inspection.ignored(), QStringList());
}

void TestSymbolInspection::whatIsNoDrawingIsRefusedWithTheReason_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("reason");
    QTest::newRow("another document")
        << QByteArray("<html/>") << QStringLiteral("not an SVG document");
    QTest::newRow("not XML") << QByteArray("hello") << QStringLiteral("not well-formed (line 1");
    QTest::newRow("nothing") << QByteArray() << QStringLiteral("not well-formed");
    QTest::newRow("broken archive")
        << QByteArray("\x1f\x8b garbage") << QStringLiteral("cannot be decompressed");
}

void TestSymbolInspection::whatIsNoDrawingIsRefusedWithTheReason()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, reason);
    const SymbolInspection inspection(document);
    QVERIFY(inspection.isRefused());
    QVERIFY2(inspection.refusal().startsWith(reason), qPrintable(inspection.refusal()));
    QCOMPARE(inspection.ignored(), QStringList());
}

void TestSymbolInspection::whatIsDangerousIsLeftOut()
{
    const SymbolInspection inspection(
        svg("<image xlink:href='/etc/passwd' width='9' height='9'/><rect width='1e12'/>"));
    QVERIFY(!inspection.isRefused());
    QCOMPARE(inspection.leftOut(),
             (QStringList { QStringLiteral("references to files"),
                            QStringLiteral("elements of absurd size") }));
}

void TestSymbolInspection::whatIsNotDrawnIsNamed_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("feature");
    const QByteArray clip = "<clipPath id='a'><rect width='1' height='1'/></clipPath>";
    const auto add = [](const char* name, const QByteArray& content, const char* feature) {
        QTest::newRow(name) << content << QString::fromLatin1(feature);
    };
    add("clip path", clip + Box + "<g clip-path='url(#a)'><rect width='50' height='50'/></g>",
        "clip paths");
    add("in a style",
        clip + Box + "<rect width='50' height='50' style='x:y; clip-path: url( \"#a\" )'/>",
        "clip paths");
    add("with blanks", clip + Box + "<rect width='50' height='50' clip-path='url( #a )'/>",
        "clip paths");
    add("in a style sheet",
        "<style>.c { clip-path:url(#a) }</style>" + clip + Box
            + "<rect width='50' height='50' class='c'/>",
        "clip paths");
    add("before what it names", Box + "<rect width='50' height='50' clip-path='url(#a)'/>" + clip,
        "clip paths");
    add("mask",
        "<mask id='a'><rect width='50' height='50' fill='black'/></mask>" + Box
            + "<rect width='50' height='50' mask='url(#a)'/>",
        "masks");
    add("filter",
        "<filter id='a'><feFlood flood-color='red'/></filter>"
        "<rect width='50' height='50' filter='url(#a)'/>",
        "filters");
    add("pattern",
        "<defs><pattern id='a' width='50' height='50' patternUnits='userSpaceOnUse'>" + Box
            + "</pattern></defs><rect width='50' height='50' fill='url(#a)'/>",
        "patterns");
    add("marker",
        "<defs><marker id='a' markerWidth='50' markerHeight='50' markerUnits='userSpaceOnUse'>"
            + Box + "</marker></defs><path d='M0 0L50 0' marker-start='url(#a)'/>",
        "markers");
    add("symbol",
        "<defs><symbol id='a'>" + Box
            + "</symbol></defs><use xlink:href='#a' width='50' height='50'/>",
        "symbol elements");
    add("blend mode",
        Box + "<rect width='50' height='50' fill='white' style='mix-blend-mode: multiply'/>",
        "blend modes");
}

void TestSymbolInspection::whatIsNotDrawnIsNamed()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, feature);
    // The renderer says something about some of them, depending on its release.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.svg*=false"));
    // Each drawing is red where the feature is drawn: later releases of Qt draw some of them.
    const QByteArray document = svg(content);
    QCOMPARE(SymbolInspection(document).ignored(),
             isRed(document) ? QStringList() : QStringList(feature));
    QLoggingCategory::setFilterRules(QString());
}

void TestSymbolInspection::whatIsDefinedButNotUsedIsNotNamed_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("clip path") << QByteArray(
        "<clipPath id='a'><rect/></clipPath><rect clip-path='none'/>");
    QTest::newRow("symbol") << QByteArray("<symbol id='a'><rect/></symbol>");
    QTest::newRow("gradient") << QByteArray(
        "<linearGradient id='a'/><filter id='b'/><rect fill='url(#a)'/>");
    QTest::newRow("missing") << QByteArray("<rect mask='url(#a)' filter='url(#b)'/>");
    QTest::newRow("ordinary blending")
        << QByteArray("<rect style='mix-blend-mode:normal;isolation:auto'/>");
    QTest::newRow("for another program")
        << QByteArray("<switch><foreignObject requiredExtensions='x'/><g/></switch>");
    QTest::newRow("repeated element") << QByteArray("<g id='a'/><use xlink:href='#a'/>");
}

void TestSymbolInspection::whatIsDefinedButNotUsedIsNotNamed()
{
    QFETCH(QByteArray, content);
    QCOMPARE(SymbolInspection(svg(content)).ignored(), QStringList());
}

void TestSymbolInspection::eachFeatureIsNamedOnce()
{
    const QByteArray content = "<text><textPath>a</textPath><textPath>b</textPath></text>"
                               "<flowRoot/><foreignObject/><foreignObject/>";
    QCOMPARE(SymbolInspection(svg(content)).ignored(),
             (QStringList { QStringLiteral("texts along paths"), QStringLiteral("flowed texts"),
                            QStringLiteral("foreign objects") }));
}

void TestSymbolInspection::aFeatureThatWasLeftOutIsNotNamedAsWell()
{
    const SymbolInspection inspection(svg("<text x='1e12'><textPath>a</textPath></text>"));
    QCOMPARE(inspection.leftOut(), QStringList(QStringLiteral("elements of absurd size")));
    QCOMPARE(inspection.ignored(), QStringList());
}

void TestSymbolInspection::whiteThumbnailsAreBlank_data()
{
    QTest::addColumn<QByteArray>("thumbnail");
    QTest::addColumn<bool>("isBlank");
    QTest::newRow("white") << png(Qt::white, Qt::white) << true;
    QTest::newRow("of a drawing of nothing")
        << SymbolDatabaseModel().getThumbnailDataFromRawData(svg("")) << true;
    QTest::newRow("of no drawing")
        << SymbolDatabaseModel().getThumbnailDataFromRawData("hello") << true;
    QTest::newRow("one pixel is not white") << png(Qt::white, QColor(254, 255, 255)) << false;
    QTest::newRow("red") << png(Qt::red, Qt::red) << false;
    QTest::newRow("no picture") << QByteArray("png") << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void TestSymbolInspection::whiteThumbnailsAreBlank()
{
    QFETCH(QByteArray, thumbnail);
    QFETCH(bool, isBlank);
    QCOMPARE(SymbolInspection::isBlank(thumbnail), isBlank);
}

UW_TEST_MAIN(TestSymbolInspection)

#include "tst_symbolinspection.moc"
