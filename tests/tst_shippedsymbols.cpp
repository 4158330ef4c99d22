// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symboldatabasemodel.h"

#include "support/test.h"
#include "widgets_symbols/svggate.h"

#include <QDirIterator>
#include <QImage>
#include <QMap>
#include <QPainter>
#include <QSet>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace {

constexpr int GridSize = 64;
constexpr int ThumbnailSize = 50; // pixels
constexpr int SymbolsPerCategory = 10;

/// The line width of each category, which is also the list of categories.
const QMap<QString, QString>& lineWidths()
{
    static const QMap<QString, QString> widths {
        { QStringLiteral("Arrows"), QStringLiteral("6") },
        { QStringLiteral("Electrical"), QStringLiteral("3") },
        { QStringLiteral("Laboratory"), QStringLiteral("3") },
        { QStringLiteral("Safety"), QStringLiteral("4") },
        { QStringLiteral("Transport"), QStringLiteral("3") },
        { QStringLiteral("Weather"), QStringLiteral("4") },
    };
    return widths;
}

QString symbolsFolder()
{
    return QStringLiteral(SYMBOLS_FOLDER);
}

QStringList symbolPaths()
{
    QStringList paths;
    QDirIterator files(symbolsFolder(), { QStringLiteral("*.svg") }, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        paths.append(files.next());
    }
    paths.sort();
    return paths;
}

void addSymbols()
{
    QTest::addColumn<QString>("path");
    const QStringList paths = symbolPaths();
    for (const QString& path : paths) {
        QTest::newRow(qPrintable(QFileInfo(path).fileName())) << path;
    }
}

QString categoryOf(const QString& path)
{
    return QFileInfo(path).dir().dirName();
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// The drawing in `size` pixels a side, with `margin` units of the grid more on every side.
QImage rendered(const QString& path, int size, int margin)
{
    QSvgRenderer renderer(path);
    const int side = GridSize + 2 * margin;
    renderer.setViewBox(QRect(-margin, -margin, side, side));
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

/// How many pixels inside, or outside, `rect` have been drawn.
int drawnPixels(const QImage& image, const QRect& rect, bool inside)
{
    int drawn = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            drawn += rect.contains(x, y) == inside && qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
        }
    }
    return drawn;
}

/// What Qt draws of an element; null for one that does not belong into these drawings.
const QSet<QString>* attributesOf(const QString& element)
{
    static const QSet<QString> shape {
        QStringLiteral("fill"),
        QStringLiteral("stroke"),
    };
    static const QMap<QString, QSet<QString>> elements {
        { QStringLiteral("svg"), { QStringLiteral("viewBox") } },
        { QStringLiteral("g"),
          QSet<QString> { QStringLiteral("transform"), QStringLiteral("stroke-width"),
                          QStringLiteral("stroke-linecap"), QStringLiteral("stroke-linejoin") }
              + shape },
        { QStringLiteral("path"), QSet<QString> { QStringLiteral("d") } + shape },
        { QStringLiteral("circle"),
          QSet<QString> { QStringLiteral("cx"), QStringLiteral("cy"), QStringLiteral("r") }
              + shape },
        { QStringLiteral("rect"),
          QSet<QString> { QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("width"),
                          QStringLiteral("height"), QStringLiteral("rx") }
              + shape },
    };
    const auto found = elements.constFind(element);
    return found == elements.constEnd() ? nullptr : &found.value();
}

/// What `document` holds beyond that, one line each.
QStringList strangersOf(const QByteArray& document)
{
    QStringList strangers;
    QXmlStreamReader reader(document);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        const QSet<QString>* known = attributesOf(reader.name().toString());
        if (known == nullptr) {
            strangers.append(reader.name().toString());
            continue;
        }
        const QXmlStreamAttributes attributes = reader.attributes();
        for (const QXmlStreamAttribute& attribute : attributes) {
            if (!known->contains(attribute.qualifiedName().toString())) {
                strangers.append(reader.name() + QLatin1Char(' ') + attribute.qualifiedName());
            }
        }
    }
    if (reader.hasError()) {
        strangers.append(reader.errorString());
    }
    return strangers;
}

/// The values of an attribute throughout a document, each once.
QSet<QString> valuesOf(const QByteArray& document, const QString& attribute)
{
    QSet<QString> values;
    QXmlStreamReader reader(document);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement
            && reader.attributes().hasAttribute(attribute)) {
            values.insert(reader.attributes().value(attribute).toString());
        }
    }
    return values;
}

} // namespace

/// The drawings of gallery/symbols.
class TestShippedSymbols : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void thereAreTenInEachOfSixCategories();
    void noNameIsThereTwice();
    void eachIsReadableInAThumbnail_data() { addSymbols(); }
    void eachIsReadableInAThumbnail();
    void noneLooksLikeAnother();
    void eachStaysInsideItsGrid_data() { addSymbols(); }
    void eachStaysInsideItsGrid();
    void eachHoldsOnlyWhatQtDraws_data() { addSymbols(); }
    void eachHoldsOnlyWhatQtDraws();
    void whatQtDoesNotDrawIsFound_data();
    void whatQtDoesNotDrawIsFound();
    void eachHasTheLineWidthOfItsCategory_data() { addSymbols(); }
    void eachHasTheLineWidthOfItsCategory();
    void aLibraryTakesThemAll();
};

void TestShippedSymbols::thereAreTenInEachOfSixCategories()
{
    QMap<QString, int> counts;
    const QStringList paths = symbolPaths();
    for (const QString& path : paths) {
        ++counts[categoryOf(path)];
    }
    QCOMPARE(counts.keys(), lineWidths().keys());
    for (const int count : std::as_const(counts)) {
        QCOMPARE(count, SymbolsPerCategory);
    }
}

void TestShippedSymbols::noNameIsThereTwice()
{
    QSet<QString> names;
    const QStringList paths = symbolPaths();
    for (const QString& path : paths) {
        const QString name = QFileInfo(path).fileName();
        QVERIFY2(!names.contains(name), qPrintable(name));
        names.insert(name);
    }
}

void TestShippedSymbols::eachIsReadableInAThumbnail()
{
    QFETCH(const QString, path);

    const QImage image = rendered(path, ThumbnailSize, 0);
    // A hair line across it is about two in a hundred.
    const int drawn = drawnPixels(image, image.rect(), true);
    QVERIFY2(drawn >= image.width() * image.height() / 20, qPrintable(QString::number(drawn)));
}

void TestShippedSymbols::noneLooksLikeAnother()
{
    QMap<QByteArray, QString> seen;
    const QStringList paths = symbolPaths();
    for (const QString& path : paths) {
        const QImage image = rendered(path, ThumbnailSize, 0);
        const QByteArray pixels(reinterpret_cast<const char*>(image.constBits()),
                                image.sizeInBytes());
        QVERIFY2(!seen.contains(pixels), qPrintable(path + QLatin1Char(' ') + seen.value(pixels)));
        seen.insert(pixels, path);
    }
}

void TestShippedSymbols::eachStaysInsideItsGrid()
{
    QFETCH(const QString, path);

    QSvgRenderer renderer(path);
    QVERIFY(renderer.isValid());
    QCOMPARE(renderer.viewBox(), QRect(0, 0, GridSize, GridSize));

    constexpr int Margin = 16;
    const QImage image = rendered(path, GridSize + 2 * Margin, Margin);
    QCOMPARE(drawnPixels(image, QRect(Margin, Margin, GridSize, GridSize), false), 0);
}

void TestShippedSymbols::eachHoldsOnlyWhatQtDraws()
{
    QFETCH(const QString, path);

    const QByteArray document = contentOf(path);
    QVERIFY(document.startsWith("<svg "));
    QCOMPARE(strangersOf(document), QStringList());

    const SvgGate gate = SvgGate::pass(document);
    QCOMPARE(gate.refusal, QString());
    QCOMPARE(gate.removed, QStringList());
    QCOMPARE(gate.document, document);
}

void TestShippedSymbols::whatQtDoesNotDrawIsFound_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QStringList>("strangers");

    const auto row = [](const char* name, const char* document, const char* stranger) {
        QTest::newRow(name) << QByteArray(document)
                            << QStringList { QString::fromLatin1(stranger) };
    };
    row("text", "<svg viewBox='0 0 1 1'><text>a</text></svg>", "text");
    row("script", "<svg viewBox='0 0 1 1'><script/></svg>", "script");
    row("filter", "<svg viewBox='0 0 1 1'><g><filter/></g></svg>", "filter");
    row("mask on a path", "<svg viewBox='0 0 1 1'><path mask='url(#a)' d=''/></svg>", "path mask");
    row("style", "<svg><circle r='1' style='fill: red'/></svg>", "circle style");
    row("not closed", "<svg viewBox='0 0 1 1'>", "Premature end of document.");
}

void TestShippedSymbols::whatQtDoesNotDrawIsFound()
{
    QFETCH(const QByteArray, document);
    QFETCH(const QStringList, strangers);
    QCOMPARE(strangersOf(document), strangers);
}

void TestShippedSymbols::eachHasTheLineWidthOfItsCategory()
{
    QFETCH(const QString, path);

    const QByteArray document = contentOf(path);
    const auto values = [&document](const char* attribute) {
        return valuesOf(document, QString::fromLatin1(attribute));
    };
    QCOMPARE(values("stroke-width"), QSet<QString> { lineWidths().value(categoryOf(path)) });
    QCOMPARE(values("stroke-linecap"), QSet<QString> { QStringLiteral("round") });
    QCOMPARE(values("stroke-linejoin"), QSet<QString> { QStringLiteral("round") });
}

void TestShippedSymbols::aLibraryTakesThemAll()
{
    const QTemporaryDir folder;
    SymbolDatabaseModel library;
    library.setDatabasePath(folder.filePath(QStringLiteral("symbols.db")));
    QVERIFY(library.createSchema());
    QVERIFY(library.updateDatabase(symbolsFolder()));
    library.close();

    QStringList categories = library.categories();
    categories.sort();
    QCOMPARE(categories, lineWidths().keys());
    const QStringList paths = symbolPaths();
    for (const QString& path : paths) {
        QCOMPARE(library.getDataFromSymbolName(QFileInfo(path).fileName()), contentOf(path));
    }
}

UW_TEST_MAIN(TestShippedSymbols)

#include "tst_shippedsymbols.moc"
