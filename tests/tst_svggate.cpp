// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "widgets_symbols/svggate.h"

#include "support/test.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <zlib.h>

class TestSvgGate : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aHarmlessDrawingPassesUnchanged_data();
    void aHarmlessDrawingPassesUnchanged();
    void aCompressedDrawingIsInflated();
    void whatIsTakenAway_data();
    void whatIsTakenAway();
    void whatIsTakenAwayLeavesTheRestToBeDrawn_data();
    void whatIsTakenAwayLeavesTheRestToBeDrawn();
    void theRestKeepsItsTextAndNames();
    void whatIsRefusedWhole_data();
    void whatIsRefusedWhole();
    void aStyleSheetReadsNoFile();
    void hugeCoordinatesAndDashesAreDrawnInNoTime();
};

namespace {

/// A little more than the gate lets through, in bytes.
constexpr qsizetype TooLarge = qsizetype(33) * 1024 * 1024;

const QByteArray Open = "<svg xmlns='http://www.w3.org/2000/svg' "
                        "xmlns:xlink='http://www.w3.org/1999/xlink' width='50' height='50'>";
const QByteArray Half = "<rect width='50' height='25' fill='red'/>";

QByteArray svg(const QByteArray& content)
{
    return Open + Half + content + "</svg>";
}

QByteArray nested(int levels, const QByteArray& content)
{
    return QByteArray("<g>").repeated(levels) + content + QByteArray("</g>").repeated(levels);
}

QByteArray gzip(const QByteArray& data)
{
    z_stream stream = {};
    deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, MAX_WBITS + 16, 8, Z_DEFAULT_STRATEGY);
    QByteArray packed(qsizetype(deflateBound(&stream, uLong(data.size()))), Qt::Uninitialized);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data.constData()));
    stream.avail_in = uInt(data.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = uInt(packed.size());
    deflate(&stream, Z_FINISH);
    packed.resize(qsizetype(stream.total_out));
    deflateEnd(&stream);
    return packed;
}

QByteArray imageOf(const QByteArray& format, const QByteArray& mimeType, int side = 4)
{
    QImage image(side, side, QImage::Format_Mono);
    image.fill(0);
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QBuffer::WriteOnly);
    image.save(&buffer, format.constData());
    return "<image width='50' height='50' xlink:href='data:" + mimeType + ";base64,"
        + data.toBase64() + "'/>";
}

/// Each level repeats the one before ten times.
QByteArray repetitions(int levels)
{
    QByteArray content = "<defs><rect id='l0' width='1' height='1'/>";
    for (int level = 1; level <= levels; ++level) {
        const QByteArray use = "<use xlink:href='#l" + QByteArray::number(level - 1) + "'/>";
        content += "<g id='l" + QByteArray::number(level) + "'>" + use.repeated(10) + "</g>";
    }
    return content + "</defs><use xlink:href='#l" + QByteArray::number(levels) + "'/>";
}

/// A chain of elements, each repeating the next.
QByteArray chain(int links)
{
    QByteArray content;
    for (int link = 0; link < links; ++link) {
        content += "<g id='c" + QByteArray::number(link) + "'><use xlink:href='#c"
            + QByteArray::number(link + 1) + "'/></g>";
    }
    return content + "<g id='c" + QByteArray::number(links) + "'/>";
}

QImage draw(const QByteArray& document)
{
    QImage image(50, 50, QImage::Format_RGB32);
    image.fill(Qt::white);
    QSvgRenderer renderer(document);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(0, 0, 50, 50));
    return image;
}

} // namespace

void TestSvgGate::aHarmlessDrawingPassesUnchanged_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("shapes") << svg("<circle r='3'/><!-- x --><path d='M1e3-2.5.5L1 1'/>");
    QTest::newRow("style sheet") << svg("<style>.a{fill:#123456789;font-size:12px}</style>");
    QTest::newRow("long names and colours")
        << svg("<g style='fill:url(#gradient123456789);stroke:#00000000;stroke-width:.5'/>");
    QTest::newRow("names of other letters")
        << svg("<style>.ä123456789{fill:red}</style><g style='fill:url(ä123456789)'/>");
    QTest::newRow("undeclared prefix") << svg("<maker:note maker:day='1'/>");
    QTest::newRow("seven digits") << svg("<rect x='9999999.99999999' y='00010000000'/>");
    QTest::newRow("small and large factors")
        << svg("<g transform='matrix(1e-9,0,0,1e6,0,0)'><path d='M0 0L9999999 1'/></g>");
    QTest::newRow("repetition") << svg("<g id='a'/><use xlink:href='#a'/><use href='#b'/>");
    QTest::newRow("a PNG") << svg(imageOf("PNG", "image/png"));
    QTest::newRow("a JPEG") << svg(imageOf("JPG", "image/jpeg"));
    QTest::newRow("nesting") << svg(nested(150, "<rect/>"));
    QTest::newRow("entity") << QByteArray("<!DOCTYPE svg [<!ENTITY e 'red'>]>")
            + svg("<rect fill='&e;'/>");
    QTest::newRow("link") << svg("<a xlink:href='http://example.org'><rect/></a>");
    QTest::newRow("encoding") << QByteArray("<?xml version='1.0' encoding='UTF-8'?>") + svg("ä");
}

void TestSvgGate::aHarmlessDrawingPassesUnchanged()
{
    QFETCH(QByteArray, document);
    const SvgGate gate = SvgGate::pass(document);
    QCOMPARE(gate.refusal, QString());
    QCOMPARE(gate.removed, QStringList());
    QCOMPARE(gate.document, document);
}

void TestSvgGate::aCompressedDrawingIsInflated()
{
    const QByteArray document = svg(QByteArray("<rect/>").repeated(50000));
    const SvgGate gate = SvgGate::pass(gzip(document));
    QCOMPARE(gate.refusal, QString());
    QCOMPARE(gate.document, document);
}

void TestSvgGate::whatIsTakenAway_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("what");
    const QString files = QStringLiteral("references to files");
    const QString bitmaps =
        QStringLiteral("embedded images other than bitmaps up to 4096 x 4096 pixels");
    const QString repeat = QStringLiteral("elements that repeat themselves");
    const QString deep = QStringLiteral("nesting deeper than 200 levels");
    const QString absurd = QStringLiteral("elements of absurd size");
    const auto add = [](const char* name, const QByteArray& content, const QString& what) {
        QTest::newRow(name) << svg(content) << what;
    };
    add("an image file", "<image width='9' height='9' xlink:href='/a.png'/>", files);
    add("an image file without prefix", "<image width='9' height='9' href='file:///a.png'/>",
        files);
    add("an image of too many pixels", imageOf("PNG", "image/png", 5000), bitmaps);
    add("an SVG in an image",
        "<image width='9' height='9' xlink:href='data:image/svg+xml;base64," + svg("").toBase64()
            + "'/>",
        bitmaps);
    add("an SVG that calls itself PNG",
        "<image width='9' height='9' xlink:href='data:image/png;base64," + svg("").toBase64()
            + "'/>",
        bitmaps);
    add("an element of another file", "<use xlink:href='other.svg#a'/>", files);
    add("a font file", "<font-face-uri xlink:href='a.ttf'/>", files);
    QTest::newRow("a style sheet file")
        << QByteArray("<?xml-stylesheet type='text/css' href='/dev/zero'?>") + svg("") << files;

    add("a circle of one", "<g id='a'><use xlink:href='#a'/></g>", repeat);
    add("a circle of two",
        "<g id='a'><use xlink:href='#b'/></g><g id='b'><use xlink:href='#a'/></g>", repeat);
    add("a circle entered from before",
        "<use xlink:href='#u'/><g id='t'><g><use id='u' xlink:href='#t'/></g></g>", repeat);
    add("a use of itself", "<use id='a' xlink:href='#a'/>", repeat);

    add("nesting", nested(300, "<rect/>"), deep);
    add("100,000 levels", nested(100000, "<rect/>"), deep);
    add("a chain of repetitions", chain(300), deep);
    add("a chain of 50,000 repetitions", chain(50000),
        deep + QStringLiteral(", repetitions beyond 500000 elements"));
    add("repetitions of repetitions", repetitions(9),
        QStringLiteral("repetitions beyond 500000 elements"));

    add("a wide rectangle", "<rect width='1e9' height='1e9'/>", absurd);
    add("a large exponent in capitals", "<rect width='1E9'/>", absurd);
    add("far coordinates", "<path d='M0,0L100000000-5'/>", absurd);
    add("a large font", "<text style='font-size:99999999px'>a</text>", absurd);
    add("a large factor", "<g transform='scale(1e30)'><rect/></g>", absurd);
    add("a large font in a style sheet", "<style>text{font-size:1e9px}</style>",
        QStringLiteral("style sheets with absurd sizes"));
    add("too many elements", QByteArray("<g/>").repeated(200001),
        QStringLiteral("elements beyond the first 200000"));
    add("too many rules",
        "<style>" + QByteArray(".a{}").repeated(2000) + "</style>"
            + QByteArray("<g/>").repeated(20000),
        QStringLiteral("style sheets of too many rules"));
    add("a long text", "<text>" + QByteArray("abc ").repeated(3000) + "</text>",
        QStringLiteral("texts longer than 10000 characters"));
}

void TestSvgGate::whatIsTakenAway()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, what);
    const SvgGate gate = SvgGate::pass(document);
    QCOMPARE(gate.refusal, QString());
    QCOMPARE(gate.removed.join(QStringLiteral(", ")), what);

    // The rest passes as it is, once it has passed.
    const SvgGate again = SvgGate::pass(gate.document);
    QCOMPARE(again.refusal, QString());
    QCOMPARE(again.removed, QStringList());
    QCOMPARE(again.document, gate.document);
}

void TestSvgGate::whatIsTakenAwayLeavesTheRestToBeDrawn_data()
{
    whatIsTakenAway_data();
    QTest::newRow("an absurd drawing size")
        << QByteArray("<svg width='1e9' height='1e9' viewBox='0 0 50 50'>") + Half + "</svg>"
        << QStringLiteral("an absurd size of the whole drawing");
}

void TestSvgGate::whatIsTakenAwayLeavesTheRestToBeDrawn()
{
    QFETCH(QByteArray, document);
    if (document.contains("'#u'")) {
        // What it repeats has been taken away.
        QTest::ignoreMessage(QtWarningMsg, "link #u is undefined!");
    }
    const QImage image = draw(SvgGate::pass(document).document);
    QCOMPARE(image.pixelColor(40, 10), QColor(Qt::red));
    QCOMPARE(image.pixelColor(40, 40), QColor(Qt::white));
}

void TestSvgGate::theRestKeepsItsTextAndNames()
{
    const QByteArray document = Open
        + "<title>A &amp; B</title><a:b xmlns:a='urn:a' a:c='&lt;\"'/><image xlink:href='f'/>"
          "<use xlink:href='#x'/></svg>";
    const SvgGate gate = SvgGate::pass(document);
    QVERIFY(gate.document.contains("<title>A &amp; B</title>"));
    QVERIFY(gate.document.contains("<a:b xmlns:a=\"urn:a\" a:c=\"&lt;&quot;\""));
    QVERIFY(gate.document.contains("<use xlink:href=\"#x\""));
    QVERIFY(!gate.document.contains("image"));
}

void TestSvgGate::whatIsRefusedWhole_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("refusal");
    const QString large = QStringLiteral("too large");
    const QString notPacked = QStringLiteral("cannot be decompressed");
    const QByteArray packed = gzip(svg(""));
    QTest::newRow("nothing") << QByteArray() << QStringLiteral("not well-formed");
    QTest::newRow("text") << QByteArray("text") << QStringLiteral("not well-formed");
    QTest::newRow("cut off") << svg("").chopped(2) << QStringLiteral("not well-formed");
    QTest::newRow("no SVG") << QByteArray("<html/>") << QStringLiteral("not an SVG document");
    QTest::newRow("entities of entities")
        << QByteArray("<!DOCTYPE svg [<!ENTITY a 'aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa'>"
                      "<!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'>"
                      "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'>"
                      "<!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'>]><svg><text>&d;</text></svg>")
        << QStringLiteral("not well-formed");
    QTest::newRow("too large") << svg(QByteArray(TooLarge, ' ')) << large;
    QTest::newRow("too large when inflated") << gzip(svg(QByteArray(TooLarge, ' '))) << large;
    QTest::newRow("compressed data cut off") << packed.chopped(5) << notPacked;
    QTest::newRow("a header of compressed data") << QByteArray("\x1f\x8b") << notPacked;
}

void TestSvgGate::whatIsRefusedWhole()
{
    QFETCH(QByteArray, data);
    QFETCH(QString, refusal);
    const SvgGate gate = SvgGate::pass(data);
    QVERIFY2(gate.refusal.startsWith(refusal), qPrintable(gate.refusal));
    QVERIFY(gate.document.isNull());
}

void TestSvgGate::aStyleSheetReadsNoFile()
{
    const QTemporaryDir folder;
    QFile sheet(folder.filePath(QStringLiteral("blue.css")));
    QVERIFY(sheet.open(QFile::WriteOnly));
    sheet.write("rect { fill: blue }");
    sheet.close();
    const QByteArray path = QFile::encodeName(sheet.fileName());
    const QByteArray reading =
        R"(<?xml-stylesheet type="text/css" href=")" + path + R"("?>)" + Open;
    for (const QByteArray& reference :
         { reading, QByteArray(Open + "<style type='text/css'>@import url(" + path + ");</style>"),
           QByteArray(Open + "<style type='text/css'>@import '" + path + "';</style>") }) {
        const QByteArray document = reference + "<rect width='50' height='50'/></svg>";
        QCOMPARE(draw(SvgGate::pass(document).document).pixelColor(9, 9), QColor(Qt::black));
    }
    // The renderer does read one when it is let.
    QCOMPARE(draw(reading + "<rect width='50' height='50'/></svg>").pixelColor(9, 9),
             QColor(Qt::blue));
}

void TestSvgGate::hugeCoordinatesAndDashesAreDrawnInNoTime()
{
    // Just below what is taken away.
    const SvgGate gate = SvgGate::pass(
        svg("<path d='M0 50H9999999' stroke='black' stroke-dasharray='.001'/>"
            "<circle r='9999999' stroke='black' stroke-width='30000' stroke-dasharray='.001' "
            "fill='none'/>"));
    QCOMPARE(gate.removed, QStringList());
    QElapsedTimer timer;
    timer.start();
    draw(gate.document);
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
}

UW_TEST_MAIN(TestSvgGate)

#include "tst_svggate.moc"
