// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "filedialogrules.h"

#include "support/test.h"

#include <QDir>
#include <QRegularExpression>

namespace Rules = FileDialogRules;

namespace {

const QString Top = QStringLiteral("/Home");
const QString ProcessFolder = QStringLiteral("/run/here");

/// What the dialog removes from names.
const QRegularExpression SlashesAndDots(QStringLiteral("(\\.\\.(\\\\|\\/))|(^\\.)"));

/// What an acceptance came to, as one text: "stays open" or the path.
QString outcome(const std::optional<QString>& path)
{
    return path ? *path : QStringLiteral("stays open");
}

/// Paths that exist, as a rule asks for them.
Rules::Exists in(const QStringList& paths)
{
    return [paths](const QString& path) {
        return paths.contains(path);
    };
}

/// Columns and a row of what a dialog ends with: by the name in its box and the file that was tapped.
void addEndColumns()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("tapped");
    QTest::addColumn<QString>("end");
}

void addEnd(const char* row, const char* name, const char* tapped, const char* end)
{
    QTest::newRow(row) << QString::fromLatin1(name) << QString::fromLatin1(tapped)
                       << QString::fromLatin1(end);
}

} // namespace

class TestFileDialogRules : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theFoldersNameIsItsLastComponent_data();
    void theFoldersNameIsItsLastComponent();
    void theParentIsCutAtTheLastSlash_data();
    void theParentIsCutAtTheLastSlash();
    void theStartFolderOfAPath_data();
    void theStartFolderOfAPath();
    void goingUpEndsByTheOrderOfTheTexts_data();
    void goingUpEndsByTheOrderOfTheTexts();
    void patternsAreReadFromEntries_data();
    void patternsAreReadFromEntries();
    void namesAreCleaned_data();
    void namesAreCleaned();
    void noCleanNameLeadsOutOfTheFolder();
    void openingEndsWith_data();
    void openingEndsWith();
    void savingEndsWith_data();
    void savingEndsWith();
    void selectingAFolderEndsWith_data();
    void selectingAFolderEndsWith();
    void aRowIsStoredOneIndexLower();
};

void TestFileDialogRules::theFoldersNameIsItsLastComponent_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");

    QTest::newRow("home of the device") << Top << QStringLiteral("Home");
    QTest::newRow("deep") << QStringLiteral("/media/USB STICK") << QStringLiteral("USB STICK");
    QTest::newRow("trailing slash")
        << QStringLiteral("/Home/Desktop/") << QStringLiteral("Desktop");
    QTest::newRow("root") << QStringLiteral("/") << QStringLiteral("/");
    QTest::newRow("relative") << QStringLiteral("designs") << QStringLiteral("designs");
    QTest::newRow("nothing") << QString() << QString();
}

void TestFileDialogRules::theFoldersNameIsItsLastComponent()
{
    QFETCH(QString, path);
    QTEST(Rules::folderName(path), "name");
}

void TestFileDialogRules::theParentIsCutAtTheLastSlash_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("parent");

    QTest::newRow("deep") << QStringLiteral("/a/b/c") << QStringLiteral("/a/b");
    QTest::newRow("in the root") << QStringLiteral("/tmp") << QStringLiteral("/");
    QTest::newRow("root") << QStringLiteral("/") << QStringLiteral("/");
    QTest::newRow("trailing slash") << QStringLiteral("/a/b/") << QStringLiteral("/a/b");
}

void TestFileDialogRules::theParentIsCutAtTheLastSlash()
{
    QFETCH(QString, path);
    QTEST(Rules::parentFolder(path), "parent");
}

void TestFileDialogRules::theStartFolderOfAPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("folder");

    QTest::newRow("nothing: the top folder") << QString() << Top;
    QTest::newRow("a folder") << QStringLiteral("/Home/designs") << QStringLiteral("/Home/designs");
    QTest::newRow("a file in a folder")
        << QStringLiteral("/Home/designs/a.txt") << QStringLiteral("/Home/designs");
    QTest::newRow("a folder with a dot is cut too")
        << QStringLiteral("/Home/v1.2") << QStringLiteral("/Home");
    QTest::newRow("a dot further up cuts the last component")
        << QStringLiteral("/Home/v1.2/designs") << QStringLiteral("/Home/v1.2");
    QTest::newRow("a file in the root") << QStringLiteral("/a.txt") << QStringLiteral("/");
    QTest::newRow("a bare file name") << QStringLiteral("a.txt") << ProcessFolder;
    QTest::newRow("a trailing slash stays")
        << QStringLiteral("/Home/a/") << QStringLiteral("/Home/a/");
}

void TestFileDialogRules::theStartFolderOfAPath()
{
    QFETCH(QString, path);
    QTEST(Rules::startFolder(path, Top, ProcessFolder), "folder");
    QCOMPARE(Rules::startFolder(QString(), QStringLiteral("/home/first.last"), ProcessFolder),
             QStringLiteral("/home"));
}

void TestFileDialogRules::goingUpEndsByTheOrderOfTheTexts_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<bool>("ends");

    QTest::newRow("the top folder") << Top << true;
    QTest::newRow("below it") << QStringLiteral("/Home/a") << false;
    QTest::newRow("above it") << QStringLiteral("/") << true;
    QTest::newRow("elsewhere, before it") << QStringLiteral("/Archive/a/b") << true;
    QTest::newRow("elsewhere, after it") << QStringLiteral("/media/usb") << false;
    QTest::newRow("capitals come first") << QStringLiteral("/HOME/a") << true;
    QTest::newRow("small letters come last") << QStringLiteral("/home") << false;
}

void TestFileDialogRules::goingUpEndsByTheOrderOfTheTexts()
{
    QFETCH(QString, folder);
    QTEST(Rules::endsGoingUp(folder, Top), "ends");
}

void TestFileDialogRules::patternsAreReadFromEntries_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("patterns");

    const auto add = [](const char* name, const char* text, const QStringList& patterns) {
        QTest::newRow(name) << QString::fromLatin1(text) << patterns;
    };
    add("two patterns", "Labels (*.lbl *.txt)",
        { QStringLiteral("*.lbl"), QStringLiteral("*.txt") });
    add("capitals are cut off", "Pictures (*.PNG)", { QStringLiteral("*.") });
    add("digits are cut off", "Music (*.mp3)", { QStringLiteral("*.mp") });
    add("two entries", "Labels (*.lbl);;Texts (*.txt)",
        { QStringLiteral("*.lbl"), QStringLiteral("*.txt") });
    add("bare pattern", "*.txt", { QStringLiteral("*.txt") });
    add("two extensions", "*.tar.gz", { QStringLiteral("*.tar") });
    add("all files", "All files (*)", {});
    add("nothing", "", {});
    add("the same twice", "*.a *.a", { QStringLiteral("*.a"), QStringLiteral("*.a") });
}

void TestFileDialogRules::patternsAreReadFromEntries()
{
    QFETCH(QString, text);
    QTEST(Rules::namePatterns(text), "patterns");
}

void TestFileDialogRules::namesAreCleaned_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");

    const auto add = [](const char* row, const char* text, const char* name) {
        QTest::newRow(row) << QString::fromUtf8(text) << QString::fromUtf8(name);
    };
    add("ordinary", "report.txt", "report.txt");
    add("one folder up", "../x", "x");
    add("two folders up", "../../x", "x");
    add("backslashes", "..\\x", "x");
    add("up in the middle", "a/../x", "a/x");
    add("leading dot", ".profile", "profile");
    add("two leading dots: one is taken", "..profile", ".profile");
    add("dots in the middle", "a..b", "a..b");
    add("dots at the end", "a..", "a..");
    add("a subfolder", "a/b.txt", "a/b.txt");
    add("absolute", "/etc/passwd", "/etc/passwd");
    add("what removing puts together", "a/....//x", "a/x");
    add("two dots", "..", ".");
    add("three dots", "...", "");
    add("up after a slash", "/..", "/");
    add("leading dash", "-x", "-x");
    add("blanks", " a b ", " a b ");
    add("umlaut and emoji", "Äpfel 🍏.txt", "Äpfel 🍏.txt");
    add("nothing", "", "");
}

void TestFileDialogRules::namesAreCleaned()
{
    QFETCH(QString, text);
    QTEST(Rules::cleanName(text, SlashesAndDots), "name");
}

/// Every text of up to eight of these characters, put behind a folder, stays in it.
void TestFileDialogRules::noCleanNameLeadsOutOfTheFolder()
{
    const QString characters = QStringLiteral("./a\\");
    for (int length = 1; length <= 8; ++length) {
        const int count = 1 << (2 * length);
        for (int code = 0; code < count; ++code) {
            QString text;
            for (int i = 0; i < length; ++i) {
                text.append(characters.at((code >> (2 * i)) & 3));
            }
            const QString path = QDir::cleanPath(QStringLiteral("/top/shown/")
                                                 + Rules::cleanName(text, SlashesAndDots));
            QVERIFY2(path == QLatin1String("/top/shown")
                         || path.startsWith(QLatin1String("/top/shown/")),
                     qPrintable(text));
        }
    }
}

void TestFileDialogRules::openingEndsWith_data()
{
    addEndColumns();
    addEnd("a typed name", "a.txt", "", "/f/a.txt");
    addEnd("a typed name before a tapped file", "a.txt", "/f/b.txt", "/f/a.txt");
    addEnd("a name that is not there, after a tap", "gone", "/f/b.txt", "/f/b.txt");
    addEnd("a name that is not there", "gone", "", "stays open");
    addEnd("a name that is not there, the tapped file neither", "gone", "/f/gone", "stays open");
    addEnd("no name, after a tap: the shown folder", "", "/f/b.txt", "/f/");
    addEnd("no name", "", "", "stays open");
}

void TestFileDialogRules::openingEndsWith()
{
    QFETCH(QString, name);
    QFETCH(QString, tapped);
    const auto exists = in({ QStringLiteral("/f/a.txt"), QStringLiteral("/f/b.txt") });
    QTEST(outcome(Rules::pathToOpen(QStringLiteral("/f"), name, tapped, exists)), "end");
}

void TestFileDialogRules::savingEndsWith_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("tapped");
    QTest::addColumn<QStringList>("patterns");
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("end");

    const QStringList texts { QStringLiteral("*.txt") };
    const QStringList both { QStringLiteral("*.lbl"), QStringLiteral("*.txt") };
    const auto add = [](const char* row, const char* name, const char* tapped,
                        const QStringList& patterns, int format, const char* end) {
        QTest::newRow(row) << QString::fromLatin1(name) << QString::fromLatin1(tapped) << patterns
                           << format << QString::fromLatin1(end);
    };
    add("gets the extension", "report", "", texts, 0, "/f/report.txt");
    add("keeps the extension", "report.txt", "", texts, 0, "/f/report.txt");
    add("contains the extension", "a.txt.bak", "", texts, 0, "/f/a.txt.bak");
    add("the extension in capitals is another", "a.TXT", "", texts, 0, "/f/a.TXT.txt");
    add("keeps another format's extension", "a.txt", "", both, 0, "/f/a.txt");
    add("the second format's extension", "a", "", both, 1, "/f/a.txt");
    add("a format without a pattern", "a", "", texts, 3, "/f/a");
    add("no format", "a", "", texts, -1, "/f/a");
    add("no patterns", "a", "", {}, 0, "/f/a");
    add("a pattern without letters adds its dot", "a", "", { QStringLiteral("*.") }, 0, "/f/a.");
    add("a name in the process's folder: what was tapped", "here", "/f/b.txt", texts, 0,
        "/f/b.txt");
    add("a name in the process's folder, nothing tapped", "here", "", texts, 0, "");
    add("no name, after a tap", "", "/f/b.txt", texts, 0, "/f/b.txt");
    add("no name", "", "", texts, 0, "stays open");
    add("no name, the tapped file is gone", "", "/f/gone", texts, 0, "stays open");
}

void TestFileDialogRules::savingEndsWith()
{
    QFETCH(QString, name);
    QFETCH(QString, tapped);
    QFETCH(QStringList, patterns);
    QFETCH(int, format);
    const auto exists = in({ QStringLiteral("here"), QStringLiteral("/f/b.txt") });
    QTEST(outcome(Rules::pathToSave(QStringLiteral("/f"), name, tapped, patterns, format, exists)),
          "end");
}

void TestFileDialogRules::selectingAFolderEndsWith_data()
{
    addEndColumns();
    addEnd("a named folder", "sub", "", "/f/sub");
    addEnd("a named folder before a tapped one", "sub", "/f/other", "/f/sub");
    addEnd("a name that is not there", "gone", "/f/other", "/f/other");
    addEnd("a name that is not there, nothing tapped", "gone", "", "");
    addEnd("no name: the shown folder", "", "/f/other", "/f/");
}

void TestFileDialogRules::selectingAFolderEndsWith()
{
    QFETCH(QString, name);
    QFETCH(QString, tapped);
    const auto exists = in({ QStringLiteral("/f/sub"), QStringLiteral("/f/") });
    QTEST(Rules::folderToSelect(QStringLiteral("/f"), name, tapped, exists), "end");
}

void TestFileDialogRules::aRowIsStoredOneIndexLower()
{
    QCOMPARE(Rules::storedIndex(1), 0);
    // A new favourite, below the two fixed ones: the new number of rows less two.
    QCOMPARE(Rules::storedIndex(3 - 1), 3 - 2);
}

UW_TEST_MAIN(TestFileDialogRules)

#include "tst_filedialogrules.moc"
