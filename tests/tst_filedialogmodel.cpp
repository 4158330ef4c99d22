// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "filedialogmodel.h"

#include "oxfileiconprovider.h"
#include "support/test.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QFile>
#include <QItemSelectionModel>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <algorithm>

#include <sys/stat.h>

namespace {

/// A folder, empty at first, and the model that shows it.
class ShownFolder
{
public:
    explicit ShownFolder(const QStringList& names = {})
    {
        for (const QString& name : names) {
            create(name);
        }
    }

    /// An empty file, or a folder if the name ends in a slash.
    void create(const QString& name) const
    {
        const bool isFolder = name.endsWith(QLatin1Char('/'));
        QVERIFY(isFolder ? QDir().mkpath(path(name)) : QFile(path(name)).open(QFile::WriteOnly));
    }

    QString path(const QString& name = {}) const
    {
        return QDir::cleanPath(m_folder.filePath(name));
    }

    /// The names of all rows once the model has read the folder; folders end in a slash.
    QStringList read()
    {
        QSignalSpy spy(&model, &FileDialogModel::folderRead);
        model.setFolder(path());
        return spy.wait(20000) ? names() : QStringList(QStringLiteral("not read"));
    }

    QStringList names() const
    {
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex index = model.index(row);
            names.append(index.data().toString()
                         + (model.isFolder(index) ? QStringLiteral("/") : QString()));
        }
        return names;
    }

    QModelIndex indexOf(const QString& name) const
    {
        return model.match(model.index(0), Qt::DisplayRole, name, 1, Qt::MatchExactly).value(0);
    }

private:
    QTemporaryDir m_folder;

public:
    FileDialogModel model { OxFileIconProvider() };
};

QStringList list(const char* names)
{
    return QString::fromUtf8(names).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

} // namespace

class TestFileDialogModel : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void listsNothingBeforeItHasAFolder();
    void listsFoldersFirstInTheOrderPeopleCount_data();
    void listsFoldersFirstInTheOrderPeopleCount();
    void anEntryThatIsReadTwiceIsListedOnce();
    void listsOddNames();
    void leavesOutWhatIsHiddenOrNoFile();
    void leavesOutFilesThatMatchNoPattern_data();
    void leavesOutFilesThatMatchNoPattern();
    void listsFoldersOnly();
    void showsFoldersAndFilesWithTheirIcons();
    void namesThePathsOfItsRows();
    void aLinkToAFolderIsAFolder();
    void anotherFolderEmptiesTheListAtOnce();
    void theSameFolderAgainKeepsTheRows();
    void aMissingFolderIsEmpty();
    void ofSeveralRequestsTheLastOneCounts();
    void followsChangesOfTheFolder();
    void changesKeepTheSelection();
    void manyChangesAtOnceAreFollowedToo();
    void aFolderThatVanishesIsEmpty();
    void aFolderThatComesBackIsReadWhenItIsSetAgain();
    void changesOfAFormerFolderAreNoConcern();
    void diesWhileItReads();
};

void TestFileDialogModel::listsNothingBeforeItHasAFolder()
{
    FileDialogModel model { OxFileIconProvider() };
    const QAbstractItemModelTester tester(&model);
    model.setNamePatterns({ QStringLiteral("*.txt") });

    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.folder(), QString());
    QCOMPARE(model.filePath({}), QString());
    QVERIFY(!model.isFolder({}));
}

void TestFileDialogModel::listsFoldersFirstInTheOrderPeopleCount_data()
{
    QTest::addColumn<QStringList>("names");

    QTest::newRow("empty") << QStringList();
    QTest::newRow("one") << list("a.txt");
    QTest::newRow("folders first") << list("b/|c/|a.txt|d.txt");
    QTest::newRow("numbers by value") << list("Label 1|Label 2|Label 10|Label 100");
    QTest::newRow("letters of both sizes") << list("a|B|c|D");
    QTest::newRow("umlauts beside their letter") << list("a|ä|b|Ü|z");
    QTest::newRow("names that compare equal") << list("A|a|b");
    QTest::newRow("with an extension") << list("a.txt/|b.png/|a|b.txt");
}

void TestFileDialogModel::listsFoldersFirstInTheOrderPeopleCount()
{
    QFETCH(QStringList, names);
    QStringList backwards = names;
    std::reverse(backwards.begin(), backwards.end());
    ShownFolder folder(backwards);
    const QAbstractItemModelTester tester(&folder.model);

    QStringList listed = folder.read();

    if (names.contains(QStringLiteral("A"))) { // whichever is first
        listed.sort();
    }
    QCOMPARE(listed, names);
}

void TestFileDialogModel::anEntryThatIsReadTwiceIsListedOnce()
{
    const auto file = [](const char* name) {
        return FileDialogEntry { QString::fromLatin1(name), false };
    };
    FileDialogEntries entries {
        file("b"), file("a"), file("B"), file("b"), { QStringLiteral("b"), true }, file("a")
    };

    FileDialogReader::sort(entries);

    QStringList names;
    for (const FileDialogEntry& entry : entries) {
        names.append(entry.name + (entry.isFolder ? QStringLiteral("/") : QString()));
    }
    QCOMPARE(names, list("b/|a|B|b"));
}

void TestFileDialogModel::listsOddNames()
{
    const QStringList names { QStringLiteral("-rf"),
                              QStringLiteral("a b"),
                              QStringLiteral("two\nlines"),
                              QStringLiteral("Kühler"),
                              QStringLiteral("rocket 🚀.txt"),
                              QStringLiteral("a\\b"),
                              QStringLiteral(" "),
                              QString(255, u'x') };
    ShownFolder folder(names);

    QStringList listed = folder.read();

    listed.sort();
    QStringList expected = names;
    expected.sort();
    QCOMPARE(listed, expected);
}

void TestFileDialogModel::leavesOutWhatIsHiddenOrNoFile()
{
    ShownFolder folder({ QStringLiteral(".hidden"), QStringLiteral(".cache/") });
    QVERIFY(QFile::link(QStringLiteral("nowhere"), folder.path(QStringLiteral("dangling"))));
    QCOMPARE(::mkfifo(QFile::encodeName(folder.path(QStringLiteral("fifo"))).constData(), 0600), 0);

    QCOMPARE(folder.read(), QStringList());
}

void TestFileDialogModel::leavesOutFilesThatMatchNoPattern_data()
{
    QTest::addColumn<QStringList>("patterns");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("none") << list("") << list("sub.d/|a.TXT|b.txt|c.png|d.");
    QTest::newRow("one") << list("*.txt") << list("sub.d/|a.TXT|b.txt");
    QTest::newRow("two") << list("*.txt|*.png") << list("sub.d/|a.TXT|b.txt|c.png");
    QTest::newRow("nothing after the dot") << list("*.") << list("sub.d/|d.");
}

void TestFileDialogModel::leavesOutFilesThatMatchNoPattern()
{
    QFETCH(QStringList, patterns);
    ShownFolder folder(list("sub.d/|a.TXT|b.txt|c.png|d."));
    QCOMPARE(folder.read().size(), 5);
    QSignalSpy spy(&folder.model, &FileDialogModel::folderRead);

    folder.model.setNamePatterns(patterns);

    QVERIFY(patterns.isEmpty() || spy.wait(20000));
    QTEST(folder.names(), "names");
}

void TestFileDialogModel::listsFoldersOnly()
{
    ShownFolder folder(list("a/|b.txt/|c.txt|.d/"));
    folder.model.setNamePatterns({ QStringLiteral("*.png") });

    folder.model.setFoldersOnly();

    QCOMPARE(folder.read(), list("a/|b.txt/"));
}

void TestFileDialogModel::showsFoldersAndFilesWithTheirIcons()
{
    ShownFolder folder(list("a.txt/|b"));
    QCOMPARE(folder.read(), list("a.txt/|b"));
    const OxFileIconProvider icons;
    const auto image = [](const QIcon& icon) {
        return icon.pixmap(35, 35).toImage();
    };
    const auto imageOfRow = [&](int row) {
        return image(folder.model.index(row).data(Qt::DecorationRole).value<QIcon>());
    };

    QCOMPARE(imageOfRow(0), image(icons.icon(QFileInfo(QStringLiteral("/")))));
    QCOMPARE(imageOfRow(1), image(icons.icon(QFileInfo(QStringLiteral("/dev/null")))));
    QVERIFY(!folder.model.index(0).data(Qt::ToolTipRole).isValid());
}

void TestFileDialogModel::namesThePathsOfItsRows()
{
    ShownFolder folder(list("a/|b.txt"));
    folder.read();

    QCOMPARE(folder.model.folder(), folder.path());
    QCOMPARE(folder.model.filePath(folder.model.index(0)), folder.path(QStringLiteral("a")));
    QCOMPARE(folder.model.filePath(folder.model.index(1)), folder.path(QStringLiteral("b.txt")));

    folder.model.setFolder(QStringLiteral("/"));
    QTRY_VERIFY(folder.indexOf(QStringLiteral("etc")).isValid());
    QCOMPARE(folder.model.filePath(folder.indexOf(QStringLiteral("etc"))), QStringLiteral("/etc"));
}

void TestFileDialogModel::aLinkToAFolderIsAFolder()
{
    ShownFolder folder;
    const QTemporaryDir elsewhere;
    QVERIFY(QFile::link(elsewhere.path(), folder.path(QStringLiteral("link"))));

    QCOMPARE(folder.read(), list("link/"));
    QCOMPARE(folder.model.filePath(folder.model.index(0)), folder.path(QStringLiteral("link")));
}

void TestFileDialogModel::anotherFolderEmptiesTheListAtOnce()
{
    ShownFolder folder(list("a/|b.txt"));
    folder.create(QStringLiteral("a/inside.txt"));
    QCOMPARE(folder.read(), list("a/|b.txt"));

    folder.model.setFolder(folder.path(QStringLiteral("a")));

    QCOMPARE(folder.names(), QStringList());
    QTRY_COMPARE(folder.names(), list("inside.txt"));
}

void TestFileDialogModel::theSameFolderAgainKeepsTheRows()
{
    ShownFolder folder(list("a/|b.txt"));
    QCOMPARE(folder.read(), list("a/|b.txt"));
    const QPersistentModelIndex row(folder.model.index(1));

    folder.model.setFolder(folder.path() + QLatin1Char('/'));

    QCOMPARE(folder.names(), list("a/|b.txt"));
    QCOMPARE(folder.read(), list("a/|b.txt"));
    QVERIFY(row.isValid());
}

void TestFileDialogModel::aMissingFolderIsEmpty()
{
    ShownFolder folder(list("a/|b.txt"));
    folder.read();
    QSignalSpy spy(&folder.model, &FileDialogModel::folderRead);

    folder.model.setFolder(folder.path(QStringLiteral("missing")));

    QVERIFY(spy.wait(20000));
    QCOMPARE(folder.names(), QStringList());
    QCOMPARE(folder.model.folder(), folder.path(QStringLiteral("missing")));
}

void TestFileDialogModel::ofSeveralRequestsTheLastOneCounts()
{
    ShownFolder folder(list("a/|b.txt|c.png"));
    QSignalSpy spy(&folder.model, &FileDialogModel::folderRead);

    folder.model.setFolder(QStringLiteral("/"));
    folder.model.setFolder(folder.path(QStringLiteral("a")));
    folder.model.setFolder(folder.path());
    folder.model.setNamePatterns({ QStringLiteral("*.txt") });

    QVERIFY(spy.wait(20000));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(folder.names(), list("a/|b.txt"));
}

void TestFileDialogModel::followsChangesOfTheFolder()
{
    ShownFolder folder(list("b.txt|d.txt"));
    const QAbstractItemModelTester tester(&folder.model);
    QCOMPARE(folder.read(), list("b.txt|d.txt"));

    folder.create(QStringLiteral("c.txt"));
    QTRY_COMPARE(folder.names(), list("b.txt|c.txt|d.txt"));
    folder.create(QStringLiteral("a/"));
    folder.create(QStringLiteral("a.txt"));
    QTRY_COMPARE(folder.names(), list("a/|a.txt|b.txt|c.txt|d.txt"));
    QVERIFY(QFile::remove(folder.path(QStringLiteral("b.txt"))));
    QVERIFY(QFile::remove(folder.path(QStringLiteral("c.txt"))));
    QTRY_COMPARE(folder.names(), list("a/|a.txt|d.txt"));
    QVERIFY(QFile::rename(folder.path(QStringLiteral("d.txt")), folder.path(QStringLiteral("A0"))));
    QTRY_COMPARE(folder.names(), list("a/|a.txt|A0"));
    QVERIFY(QDir(folder.path()).rmdir(QStringLiteral("a")));
    folder.create(QStringLiteral("a"));
    QTRY_COMPARE(folder.names(), list("a|a.txt|A0"));
}

void TestFileDialogModel::changesKeepTheSelection()
{
    ShownFolder folder(list("b.txt|d.txt"));
    QCOMPARE(folder.read(), list("b.txt|d.txt"));
    QItemSelectionModel selection(&folder.model);
    selection.setCurrentIndex(folder.indexOf(QStringLiteral("d.txt")),
                              QItemSelectionModel::ClearAndSelect);

    folder.create(QStringLiteral("a.txt"));
    QTRY_COMPARE(folder.names(), list("a.txt|b.txt|d.txt"));

    QCOMPARE(selection.selectedIndexes(), { folder.indexOf(QStringLiteral("d.txt")) });
    QCOMPARE(selection.currentIndex().row(), 2);
}

void TestFileDialogModel::manyChangesAtOnceAreFollowedToo()
{
    constexpr int Count = 3000;
    ShownFolder folder;
    const QAbstractItemModelTester tester(&folder.model);
    const auto name = [](int number) {
        return QStringLiteral("Label %1").arg(number);
    };
    QStringList even;
    QStringList all;
    for (int number = 0; number < Count; ++number) {
        all.append(name(number));
        if (number % 2 == 0) {
            even.append(name(number));
            folder.create(name(number));
        }
    }
    QCOMPARE(folder.read(), even);

    for (int number = 1; number < Count; number += 2) {
        folder.create(name(number));
    }
    QTRY_COMPARE_WITH_TIMEOUT(folder.names(), all, 20000);

    for (int number = 1; number < Count; number += 2) {
        QVERIFY(QFile::remove(folder.path(name(number))));
    }
    QTRY_COMPARE_WITH_TIMEOUT(folder.names(), even, 20000);
}

void TestFileDialogModel::aFolderThatVanishesIsEmpty()
{
    ShownFolder folder(list("a/|a/b.txt"));
    folder.model.setFolder(folder.path(QStringLiteral("a")));
    QTRY_COMPARE(folder.names(), list("b.txt"));

    QVERIFY(QDir(folder.path(QStringLiteral("a"))).removeRecursively());

    QTRY_COMPARE(folder.names(), QStringList());
}

void TestFileDialogModel::aFolderThatComesBackIsReadWhenItIsSetAgain()
{
    ShownFolder folder;
    const QString path = folder.path(QStringLiteral("a"));
    folder.model.setFolder(path);
    folder.create(QStringLiteral("a/"));
    folder.create(QStringLiteral("a/b.txt"));

    folder.model.setFolder(path);
    QTRY_COMPARE(folder.names(), list("b.txt"));

    folder.create(QStringLiteral("a/c.txt"));
    QTRY_COMPARE(folder.names(), list("b.txt|c.txt"));
}

void TestFileDialogModel::changesOfAFormerFolderAreNoConcern()
{
    ShownFolder folder(list("a/|b/"));
    folder.model.setFolder(folder.path(QStringLiteral("a")));
    folder.model.setFolder(folder.path(QStringLiteral("b")));

    folder.create(QStringLiteral("a/x.txt"));
    folder.create(QStringLiteral("b/y.txt"));

    QTRY_COMPARE(folder.names(), list("y.txt"));
}

void TestFileDialogModel::diesWhileItReads()
{
    const ShownFolder folder(list("a.txt|b.txt"));
    for (int i = 0; i < 20; ++i) {
        FileDialogModel model { OxFileIconProvider() };
        model.setFolder(folder.path());
        if (i % 2 == 0) {
            model.setFolder(QStringLiteral("/usr/bin"));
        }
    }
    QCOMPARE(folder.model.rowCount(), 0);
}

UW_TEST_MAIN(TestFileDialogModel)

#include "tst_filedialogmodel.moc"
