// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// Whole collections of drawings by many hands, where they are installed; a few own ones everywhere.

#include "symbolinspection.h"

#include "support/symboldatabase.h"
#include "support/test.h"

#include <QDirIterator>
#include <QHash>
#include <QImage>
#include <QLoggingCategory>
#include <QSet>
#include <QStandardItem>

class TestSymbolDrawings : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyDrawingIsAccountedForAndHasAThumbnail_data();
    void everyDrawingIsAccountedForAndHasAThumbnail();
    void ownDrawingsAreDrawnWithoutFault();
};

namespace {

struct Collection
{
    const char* name;
    const char* folder;
    int drawings; ///< at least; any fewer, and it was not found
};

const Collection Collections[] {
    { "openclipart", "/usr/share/openclipart/svg", 7000 },
    { "breeze", "/usr/share/icons/breeze", 5000 },
    { "papirus", "/usr/share/icons/Papirus/64x64", 5000 },
};

/// What drawings are made of.
const QHash<QString, QByteArray>& ownDrawings()
{
    static const QHash<QString, QByteArray> drawings = [] {
        QHash<QString, QByteArray> documents {
            { QStringLiteral("shapes.svg"),
              "<rect width='20' height='20'/><circle cx='25' cy='25' r='9' fill='red'/>"
              "<ellipse cx='9' cy='9' rx='3' ry='5'/><line x2='50' y2='50' stroke='blue'/>"
              "<polygon points='1,1 9,1 5,9'/><polyline points='0 0 25 25' stroke='#123'/>" },
            { QStringLiteral("path.svg"),
              "<path d='M5 25C5 5 45 5 45 25s-40 20-40 0zM20 20h10v10H20zm1 1l2-2a3 3 0 0 1 4 4q1 1 2 "
              "2t3 3' fill-rule='evenodd' stroke='rgb(0,9,255)' stroke-width='2'/>" },
            { QStringLiteral("gradients.svg"),
              "<linearGradient id='a'><stop stop-color='red'/><stop offset='1' stop-color='blue'/>"
              "</linearGradient><radialGradient id='b' xlink:href='#a' cx='.5' cy='.5' r='.5'/>"
              "<rect width='50' height='25' fill='url(#a)'/>"
              "<rect y='25' width='50' height='25' fill='url(#b)'/>" },
            { QStringLiteral("groups.svg"),
              "<g transform='translate(5,5) rotate(45 20 20) scale(1.1)' opacity='.8' "
              "style='fill:#fd7800;stroke:none'><rect width='40' height='40'/></g>" },
            { QStringLiteral("repetition.svg"),
              "<defs><circle id='c' r='9'/></defs><use xlink:href='#c' x='25' y='25'/>"
              "<use xlink:href='#c' transform='scale(.5)'/>" },
            { QStringLiteral("text.svg"),
              "<text x='2' y='40' font-size='40' font-family='sans-serif'>W<tspan fill='red'>M</tspan>"
              "</text>" },
            { QStringLiteral("style sheet.svg"),
              "<style>.a { fill: green } rect { stroke: black }</style>"
              "<rect class='a' x='10' y='10' width='30' height='30'/>" },
            { QStringLiteral("dashes.svg"),
              "<path d='M0 25H50' stroke='black' stroke-width='9' stroke-dasharray='4 2 1'/>" },
        };
        for (QByteArray& document : documents) {
            document = "<svg xmlns='http://www.w3.org/2000/svg' "
                       "xmlns:xlink='http://www.w3.org/1999/xlink' viewBox='0 0 50 50'>"
                + document + "</svg>";
        }
        return documents;
    }();
    return drawings;
}

void writeOwnDrawings(const QString& folder)
{
    QDir().mkpath(folder);
    for (auto drawing = ownDrawings().begin(); drawing != ownDrawings().end(); ++drawing) {
        QFile file(folder + QLatin1Char('/') + drawing.key());
        if (!file.open(QFile::WriteOnly) || file.write(drawing.value()) != drawing.value().size()) {
            qFatal("cannot write %s", qPrintable(file.fileName()));
        }
    }
}

/// Links all drawings below `source` into category folders, one for each of its folders; returns
/// the category and name of each.
QSet<QString> arrange(const QString& source, const QString& target)
{
    QSet<QString> drawings;
    const QDir root(source);
    int seen = 0;
    QDirIterator files(source, { QStringLiteral("*.svg") }, QDir::Files | QDir::NoSymLinks,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QFileInfo file(files.next());
        // Sanitizers take their time: some of the drawings, always the same.
        if (seen++ % EVERY_NTH_DRAWING != 0) {
            continue;
        }
        const QString category =
            root.relativeFilePath(file.path()).replace(QLatin1Char('/'), QLatin1Char('_'));
        QDir().mkpath(target + QLatin1Char('/') + category);
        const QString drawing = category + QLatin1Char('/') + file.fileName();
        if (!QFile::link(file.filePath(), target + QLatin1Char('/') + drawing)) {
            qFatal("cannot link %s", qPrintable(drawing));
        }
        drawings.insert(drawing);
    }
    return drawings;
}

} // namespace

void TestSymbolDrawings::initTestCase()
{
    // What the renderer thinks of other people's drawings is not the point.
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
}

void TestSymbolDrawings::everyDrawingIsAccountedForAndHasAThumbnail_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<int>("atLeast");
    QTest::newRow("own") << QString() << int(ownDrawings().size());
    for (const Collection& collection : Collections) {
        const QString folder = QString::fromLatin1(collection.folder);
        if (QFile::exists(folder)) {
            QTest::newRow(collection.name) << folder << collection.drawings / EVERY_NTH_DRAWING;
        }
    }
}

void TestSymbolDrawings::everyDrawingIsAccountedForAndHasAThumbnail()
{
    QFETCH(QString, source);
    QFETCH(int, atLeast);
    const QTemporaryDir folder;
    QSet<QString> drawings;
    if (source.isEmpty()) {
        writeOwnDrawings(folder.filePath(QStringLiteral("own")));
        for (const QString& name : ownDrawings().keys()) {
            drawings.insert(QStringLiteral("own/") + name);
        }
    } else {
        drawings = arrange(source, folder.path());
    }
    QVERIFY2(drawings.size() >= atLeast, qPrintable(QString::number(drawings.size())));

    using Step = SymbolDatabaseModel::UpdateStep;
    SymbolDatabase library(SymbolDatabase::Schema);
    QSet<QString> added;
    QSet<QString> names;
    QSet<QString> known;
    library.model.setUpdateObserver([&](const Step& step) {
        const QString drawing = step.category + QLatin1Char('/') + step.name;
        QVERIFY2(step.outcome != Step::Failed, qPrintable(drawing));
        (step.outcome == Step::Added ? added : known).insert(drawing);
        names.insert(step.name);
    });
    QVERIFY(library.model.updateDatabase(folder.path()));
    library.model.close();
    QCOMPARE(library.takeErrors(), QStringList());
    QCOMPARE(added + known, drawings);
    QVERIFY(!added.intersects(known));
    // Known is only what has the name of another.
    QCOMPARE(added.size(), names.size());

    QSet<QString> stored;
    for (const QString& row :
         library.sql(QStringLiteral("SELECT Category.Name || '/' || Image.Name FROM Image, "
                                    "Category WHERE CategoryId = Category.Id"))) {
        stored.insert(row);
    }
    QCOMPARE(stored, added);
    const QList<QStandardItem*> items = library.model.getItemsBySearch({}, {}, false);
    QCOMPARE(items.size(), added.size());
    for (const QStandardItem* item : items) {
        const QImage thumbnail = QImage::fromData(item->data(Qt::UserRole + 2).toByteArray());
        QVERIFY2(thumbnail.size() == QSize(50, 50), qPrintable(item->toolTip()));
    }
    qDeleteAll(items);
}

void TestSymbolDrawings::ownDrawingsAreDrawnWithoutFault()
{
    for (const QByteArray& document : ownDrawings()) {
        const SymbolInspection inspection(document);
        QVERIFY2(!inspection.isRefused(), document.constData());
        QCOMPARE(inspection.leftOut() + inspection.ignored(), QStringList());
        QVERIFY2(
            !SymbolInspection::isBlank(SymbolDatabaseModel().getThumbnailDataFromRawData(document)),
            document.constData());
    }
}

UW_TEST_MAIN(TestSymbolDrawings)

#include "tst_symboldrawings.moc"
