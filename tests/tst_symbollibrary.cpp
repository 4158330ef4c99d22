// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// The program symbollibrary, from outside.

#include "support/program.h"
#include "support/symboldatabase.h"
#include "support/test.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>

#include <algorithm>
#include <cstdlib>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

class TestSymbolLibrary : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tellsHowItIsUsed_data();
    void tellsHowItIsUsed();
    void tellsItsVersion();
    void theManualHasTheSameCommandsAndOptions();
    void wrongUsageIsExplained_data();
    void wrongUsageIsExplained();
    void whatIsNoLibraryIsRefused_data();
    void whatIsNoLibraryIsRefused();
    void outputThatCannotBeWrittenIsAFailure_data();
    void outputThatCannotBeWrittenIsAFailure();

    void updateMakesALibraryOfAFolder();
    void updateAddsWhatIsNew();
    void updateReportsWhatWillNotLookAsDrawn();
    void updateIsSilentOnDemand();
    void updateShowsProgressOnATerminalOnly();
    void aDrawingThatCannotBeAddedIsNamedAndNothingChanges();
    void aFailedUpdateLeavesNoNewLibraryBehind();
    void aLibraryThatCannotBeMadeIsNotLeftBehind();
    void updateRefusesWhatIsNoFolder_data();
    void updateRefusesWhatIsNoFolder();
    void updateNeedsAWritableLibrary();
    void aCategoryThatCannotBeAddedIsAFailure();
    void aLibraryThatIsInUseIsAFailure();

    void listPrintsSymbolsByCategoryAndName();
    void listPrintsOneCategoryOnDemand();
    void anEmptyLibraryHasNothingToList();
    void namesAreOneLineEach();

    void searchFindsNamesAndTags_data();
    void searchFindsNamesAndTags();
    void searchThatFindsNothingFails();

    void exportWritesWhatUpdateReads();
    void exportWritesThumbnailsOnDemand();
    void exportOverwritesOnDemandOnly();
    void exportStaysInItsFolder();
    void exportKeepsSymbolsOfOneNameApart();
    void exportReportsWhatItCannotWrite();

    void checkFindsNothingWrongWithASoundLibrary();
    void checkReportsBlankThumbnails();
    void checkFindsDamage_data();
    void checkFindsDamage();
    void checkFindsABrokenPage();

    void removeTakesSymbolsById();
    void removeTakesSymbolsByName();
    void removeTakesAllOrNone();
    void removeNeedsAWritableLibrary();

private:
    ProgramResult run(const QStringList& arguments) const;
    /// Runs it on m_library.
    ProgramResult run(const char* command, const QStringList& arguments) const;
    QString path(const char* name) const { return m_folder->filePath(QLatin1String(name)); }
    void draw(const QString& name, const QByteArray& content = filledSvg("red")) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SymbolDatabase> m_library;
};

namespace {

const QString AllSymbols = QStringLiteral("SELECT Category.Name, Image.Name FROM Image, Category "
                                          "WHERE CategoryId = Category.Id ORDER BY 1, 2");
const QString UsageHint = QStringLiteral("symbollibrary: see symbollibrary --help\n");

QStringList lines(const QString& text)
{
    return text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// The words that match an expression, sorted, each once.
QStringList allMatches(const QString& text, const char* expression)
{
    QStringList found;
    auto matches =
        QRegularExpression(QLatin1String(expression), QRegularExpression::MultilineOption)
            .globalMatch(text);
    while (matches.hasNext()) {
        found.append(matches.next().captured(1));
    }
    found.sort();
    found.removeDuplicates();
    return found;
}

/// Runs it where nothing below `folder` can be written, not even by root.
ProgramResult runReadOnly(const QString& folder, const QStringList& arguments)
{
    const QStringList sandbox { QStringLiteral("--dev-bind"),
                                QStringLiteral("/"),
                                QStringLiteral("/"),
                                QStringLiteral("--ro-bind"),
                                folder,
                                folder,
                                QStringLiteral("--"),
                                QStringLiteral(SYMBOLLIBRARY) };
    return runProgram(QStringLiteral("bwrap"), sandbox + arguments);
}

} // namespace

void TestSymbolLibrary::init()
{
    Test::init();
    m_folder = std::make_unique<QTemporaryDir>();
    m_library = std::make_unique<SymbolDatabase>(SymbolDatabase::Symbols);
}

void TestSymbolLibrary::cleanup()
{
    m_library.reset();
    m_folder.reset();
    Test::cleanup();
}

ProgramResult TestSymbolLibrary::run(const QStringList& arguments) const
{
    return runProgram(QStringLiteral(SYMBOLLIBRARY), arguments);
}

ProgramResult TestSymbolLibrary::run(const char* command, const QStringList& arguments) const
{
    return run(QStringList { QLatin1String(command), m_library->path() } + arguments);
}

void TestSymbolLibrary::draw(const QString& name, const QByteArray& content) const
{
    const QString path = m_folder->filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QFile::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

// --- The command line -----------------------------------------------------------------------------

void TestSymbolLibrary::tellsHowItIsUsed_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("long") << QStringList { QStringLiteral("--help") };
    QTest::newRow("short") << QStringList { QStringLiteral("-h") };
    QTest::newRow("of a command") << QStringList { QStringLiteral("update"),
                                                   QStringLiteral("--help") };
}

void TestSymbolLibrary::tellsHowItIsUsed()
{
    QFETCH(QStringList, arguments);
    const ProgramResult result = run(arguments);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.errors, QString());
    QVERIFY(result.output.startsWith(QLatin1String("Usage: symbollibrary COMMAND")));
    for (const QString& line : lines(result.output)) {
        QVERIFY2(line.size() <= 100, qPrintable(line));
    }
}

void TestSymbolLibrary::tellsItsVersion()
{
    const ProgramResult result = run({ QStringLiteral("--version") });
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QStringLiteral("symbollibrary " VERSION "\n"));
}

void TestSymbolLibrary::theManualHasTheSameCommandsAndOptions()
{
    const QString help = run({ QStringLiteral("--help") }).output;
    QString manual = QString::fromUtf8(contentOf(QStringLiteral(MANUAL)));
    manual.replace(QLatin1String("\\-"), QLatin1String("-"));
    manual.remove(QLatin1Char('"'));
    manual.replace(QLatin1String("  "), QLatin1String(" "));

    const QStringList commands = allMatches(help, "^  ([a-z]+ [A-Z. ]+)$");
    QCOMPARE(commands.count(), 6);
    QCOMPARE(allMatches(manual, "^\\.BI ([a-z]+ [A-Z. ]+)$"), commands);

    const QStringList options = allMatches(help, "(--[a-z]+|-[a-z]\\b)");
    QVERIFY(options.count() > 10);
    QCOMPARE(allMatches(manual, "(--[a-z]+|(?<![\\w-])-[a-z]\\b)")
                 .filter(QRegularExpression(QStringLiteral("^(?!-f1)")))
                 .filter(QRegularExpression(QStringLiteral("^(?!-r$)"))),
             options);
}

void TestSymbolLibrary::wrongUsageIsExplained_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("explanation");
    const auto add = [](const char* words, const char* explanation) {
        QTest::newRow(words) << QString::fromLatin1(words).split(QLatin1Char(' '),
                                                                 Qt::SkipEmptyParts)
                             << QString::fromLatin1(explanation);
    };
    add("", "no command given");
    add("--quiet", "no command given");
    add("frobnicate a", "there is no command \"frobnicate\"");
    add("list", "usage: symbollibrary list DB");
    add("list a b", "usage: symbollibrary list DB");
    add("update a", "usage: symbollibrary update DB FOLDER");
    add("update a b c", "usage: symbollibrary update DB FOLDER");
    add("search a", "usage: symbollibrary search DB TEXT");
    add("export a", "usage: symbollibrary export DB FOLDER");
    add("check", "usage: symbollibrary check DB");
    add("remove a", "usage: symbollibrary remove DB ID...");
    add("list a --colour", "there is no option \"colour\"");
    add("list a -x", "there is no option \"x\"");
    add("list a --force", "\"list\" takes no option --force");
    add("update a b --category c", "\"update\" takes no option --category");
    add("list a --category", "Missing value after '--category'.");
}

void TestSymbolLibrary::wrongUsageIsExplained()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, explanation);
    const ProgramResult result = run(arguments);
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.output, QString());
    QCOMPARE(
        result.errors,
        QString(QStringLiteral("symbollibrary: ") + explanation + QLatin1Char('\n') + UsageHint));
}

void TestSymbolLibrary::whatIsNoLibraryIsRefused_data()
{
    QTest::addColumn<QString>("database");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("complaint");
    const QString name = QStringLiteral("a b.db");
    QTest::newRow("nothing") << QStringLiteral("none.db") << QByteArray()
                             << QStringLiteral("no such file");
    QTest::newRow("a folder") << QStringLiteral(".") << QByteArray()
                              << QStringLiteral("not a file");
    QTest::newRow("not a database")
        << name << QByteArray("hello ").repeated(200) << QStringLiteral("file is not a database");
    QTest::newRow("an empty file") << name << QByteArray("")
                                   << QStringLiteral("not a symbol library: there is no table "
                                                     "\"Image\"");
}

void TestSymbolLibrary::whatIsNoLibraryIsRefused()
{
    QFETCH(QString, database);
    QFETCH(QByteArray, content);
    QFETCH(QString, complaint);
    if (!content.isNull()) {
        draw(database, content);
    }
    const QString file = m_folder->filePath(database);
    QDir().mkpath(path("drawings"));
    const QList<QStringList> commands {
        { QStringLiteral("list"), file },
        { QStringLiteral("search"), file, QStringLiteral("x") },
        { QStringLiteral("export"), file, path("out") },
        { QStringLiteral("check"), file },
        { QStringLiteral("remove"), file, QStringLiteral("1") },
        { QStringLiteral("update"), file, path("drawings") },
    };
    for (const QStringList& command : commands) {
        if (command.constFirst() == QLatin1String("update") && content.isNull()
            && database != QLatin1String(".")) {
            continue; // makes it
        }
        const ProgramResult result = run(command);
        QCOMPARE(result.exitCode, 1);
        QCOMPARE(result.output, QString());
        QCOMPARE(result.errors, QStringLiteral("symbollibrary: %1: %2\n").arg(file, complaint));
        QVERIFY(!QFile::exists(path("none.db")) && !QFile::exists(path("out")));
        QCOMPARE(content.isNull() ? QByteArray() : contentOf(file), content);
    }
}

void TestSymbolLibrary::outputThatCannotBeWrittenIsAFailure_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("help") << QStringList { QStringLiteral("--help") };
    QTest::newRow("list") << QStringList { QStringLiteral("list"), QStringLiteral("DB") };
    QTest::newRow("update") << QStringList { QStringLiteral("update"), QStringLiteral("DB"),
                                             QStringLiteral("FOLDER") };
}

void TestSymbolLibrary::outputThatCannotBeWrittenIsAFailure()
{
    QFETCH(QStringList, arguments);
    draw(QStringLiteral("Signs/a.svg"));
    arguments.replaceInStrings(QStringLiteral("DB"), m_library->path());
    arguments.replaceInStrings(QStringLiteral("FOLDER"), m_folder->path());
    const ProgramResult result =
        runProgram(QStringLiteral(SYMBOLLIBRARY), arguments, QStringLiteral("/dev/full"));
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.errors,
             QStringLiteral("symbollibrary: cannot write the output: No space left on device\n"));
}

// --- update ---------------------------------------------------------------------------------------

void TestSymbolLibrary::updateMakesALibraryOfAFolder()
{
    draw(QStringLiteral("drawings/Signs/stop.svg"));
    draw(QStringLiteral("drawings/Signs/notes.txt"));
    draw(QStringLiteral("drawings/loose.svg"));
    QDir().mkpath(path("drawings/Empty"));
    const ProgramResult result =
        run({ QStringLiteral("update"), path("new.db"), path("drawings") });
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.exitCode, 0);
    QStringList output = lines(result.output);
    std::sort(output.begin(), output.begin() + 2);
    QCOMPARE(output,
             (QStringList {
                 QStringLiteral("added category: Empty"),
                 QStringLiteral("added category: Signs"),
                 QStringLiteral("added: Signs/stop.svg"),
                 QStringLiteral("2 categories added, 1 symbols added, 0 existing; 0 of the added "
                                "may not look as drawn"),
             }));
    m_library->model.setDatabasePath(path("new.db"));
    QVERIFY(m_library->model.isValidSchema());
    QCOMPARE(m_library->model.getDataFromSymbolName(QStringLiteral("stop.svg")), filledSvg("red"));
}

void TestSymbolLibrary::updateAddsWhatIsNew()
{
    draw(QStringLiteral("Signs/up"));
    draw(QStringLiteral("Signs/old.svg"));
    QCOMPARE(run("update", { m_folder->path() }).exitCode, 0);
    draw(QStringLiteral("Signs/new.svg"));
    draw(QStringLiteral("Others/old.svg"));
    const ProgramResult result = run("update", { QStringLiteral("-v"), m_folder->path() });
    QCOMPARE(result.exitCode, 0);
    QStringList output = lines(result.output);
    std::sort(output.begin(), output.end());
    QCOMPARE(output,
             (QStringList {
                 QStringLiteral("1 categories added, 1 symbols added, 2 existing; 0 of the added "
                                "may not look as drawn"),
                 QStringLiteral("added category: Others"),
                 QStringLiteral("added: Signs/new.svg"),
                 QStringLiteral("existing: Others/old.svg"),
                 QStringLiteral("existing: Signs/old.svg"),
             }));
    QCOMPARE(m_library->sql(AllSymbols).count(), 3 + 2);
}

void TestSymbolLibrary::updateReportsWhatWillNotLookAsDrawn()
{
    const QByteArray open = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>";
    draw(QStringLiteral("Signs/fine.svg"));
    draw(QStringLiteral("Signs/html.svg"), "<html/>");
    draw(QStringLiteral("Signs/white.svg"), open + "</svg>");
    draw(QStringLiteral("Signs/file.svg"),
         open + "<rect width='9' height='9'/><image href='/a.png' width='9' height='9'/></svg>");
    draw(QStringLiteral("Signs/text.svg"),
         open + "<rect width='9' height='9'/><text><textPath>a</textPath></text></svg>");
    draw(QStringLiteral("Signs/all.svg"),
         open + "<image href='/a.png'/><flowRoot/><foreignObject/></svg>");
    const ProgramResult result = run("update", { m_folder->path() });
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.errors, QString());
    const QString summary = lines(result.output).constLast();
    QVERIFY2(summary.endsWith(QLatin1String("; 5 of the added may not look as drawn")),
             qPrintable(summary));
    QStringList doubtful = lines(result.output).filter(QStringLiteral("doubtful"));
    std::sort(doubtful.begin(), doubtful.end());
    QCOMPARE(doubtful,
             (QStringList {
                 QStringLiteral("doubtful: Signs/all.svg: blank; left out: references to files; "
                                "not drawn: flowed texts, foreign objects"),
                 QStringLiteral("doubtful: Signs/file.svg: left out: references to files"),
                 QStringLiteral("doubtful: Signs/html.svg: blank; not an SVG document"),
                 QStringLiteral("doubtful: Signs/text.svg: not drawn: texts along paths"),
                 QStringLiteral("doubtful: Signs/white.svg: blank; all that it draws is white "
                                "or beyond its edges"),
             }));
    // What was there before is not reported again.
    QVERIFY(!run("update", { m_folder->path() }).output.contains(QLatin1String("doubtful")));
}

void TestSymbolLibrary::updateIsSilentOnDemand()
{
    draw(QStringLiteral("Signs/a.svg"), "<html/>");
    const ProgramResult result = run("update", { QStringLiteral("--quiet"), m_folder->path() });
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output + result.errors, QString());
    QCOMPARE(m_library->sql(AllSymbols).count(), 4);
}

void TestSymbolLibrary::updateShowsProgressOnATerminalOnly()
{
    for (int i = 0; i < 20; ++i) {
        draw(QStringLiteral("Signs/%1.svg").arg(i));
    }
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
    QVERIFY(::grantpt(terminal) == 0 && ::unlockpt(terminal) == 0);
    const QString name = QString::fromLocal8Bit(::ptsname(terminal));
    // Keeps the terminal's content until it is read.
    const int other = ::open(::ptsname(terminal), O_RDWR | O_NOCTTY);
    const QStringList arguments { QStringLiteral("update"), m_library->path(), m_folder->path() };
    const ProgramResult result =
        runProgram(QStringLiteral(SYMBOLLIBRARY), arguments, QString(), name);
    QCOMPARE(result.exitCode, 0);
    // It comes in pieces.
    QByteArray shown;
    pollfd readable { terminal, POLLIN, 0 };
    while (!shown.contains("Inspecting") || !shown.endsWith("\r\x1b[K")) {
        QVERIFY2(::poll(&readable, 1, 30000) == 1, shown.constData());
        QByteArray piece(4096, '\0');
        piece.resize(::read(terminal, piece.data(), size_t(piece.size())));
        shown += piece;
    }
    ::close(other);
    ::close(terminal);
    QVERIFY2(shown.startsWith("\rAdding 1 of 20\x1b[K"), shown.constData());
    QVERIFY2(shown.contains("\rInspecting 1 of 20\x1b[K"), shown.constData());
    QVERIFY(shown.endsWith("\r\x1b[K"));
    QVERIFY(!result.output.contains(QLatin1Char('\x1b')));
    QCOMPARE(lines(result.output).count(), 20 + 1);
}

void TestSymbolLibrary::aDrawingThatCannotBeAddedIsNamedAndNothingChanges()
{
    draw(QStringLiteral("New/fine.svg"));
    draw(QStringLiteral("New/empty.svg"), QByteArray());
    QFile::link(path("nowhere"), path("New/dangling.svg"));
    QFile::link(path("New"), path("New/folder.svg"));
    const QByteArray before = m_library->read();
    const ProgramResult result = run("update", { m_folder->path() });
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors,
             QStringLiteral("symbollibrary: %1: is empty\n"
                            "symbollibrary: %2: nothing was changed\n")
                 .arg(path("New/empty.svg"), m_library->path()));
    QCOMPARE(m_library->sql(AllSymbols).count(), 3);
    QCOMPARE(m_library->model.categories().count(), 3);
    QCOMPARE(m_library->read(), before);
}

void TestSymbolLibrary::aFailedUpdateLeavesNoNewLibraryBehind()
{
    draw(QStringLiteral("drawings/New/empty.svg"), QByteArray());
    const ProgramResult result =
        run({ QStringLiteral("update"), path("new.db"), path("drawings") });
    QCOMPARE(result.exitCode, 1);
    QVERIFY(!QFile::exists(path("new.db")));
}

void TestSymbolLibrary::aLibraryThatCannotBeMadeIsNotLeftBehind()
{
    draw(QStringLiteral("drawings/New/a.svg"));
    const QStringList update { QStringLiteral("update"), path("new.db"), path("drawings") };
    // As on a full disk: no file may grow beyond 4 kB.
    const QStringList limited { QStringLiteral("-c"),
                                QStringLiteral("trap '' XFSZ; ulimit -f 8; exec \"$@\""),
                                QStringLiteral("sh"), QStringLiteral(SYMBOLLIBRARY) };
    const ProgramResult result = runProgram(QStringLiteral("sh"), limited + update);
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains(QLatin1String("Failed to commit transaction")),
             qPrintable(result.errors));
    QVERIFY(!QFile::exists(path("new.db")));
    QCOMPARE(run(update).exitCode, 0);
}

void TestSymbolLibrary::updateRefusesWhatIsNoFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("complaint");
    QTest::newRow("missing") << QStringLiteral("no where") << QStringLiteral("no such folder");
    QTest::newRow("a file") << QStringLiteral("a.svg") << QStringLiteral("not a folder");
    QTest::newRow("line break") << QStringLiteral("a\nb") << QStringLiteral("no such folder");
}

void TestSymbolLibrary::updateRefusesWhatIsNoFolder()
{
    QFETCH(QString, folder);
    QFETCH(QString, complaint);
    draw(QStringLiteral("a.svg"));
    const ProgramResult result =
        run({ QStringLiteral("update"), path("new.db"), m_folder->filePath(folder) });
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.errors,
             QStringLiteral("symbollibrary: %1: %2\n")
                 .arg(m_folder->filePath(folder).replace(QLatin1Char('\n'), QLatin1String("\\n")),
                      complaint));
    QVERIFY(!QFile::exists(path("new.db")));
}

void TestSymbolLibrary::updateNeedsAWritableLibrary()
{
    draw(QStringLiteral("New/a.svg"));
    const ProgramResult result =
        runReadOnly(QFileInfo(m_library->path()).path(),
                    { QStringLiteral("update"), m_library->path(), m_folder->path() });
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.contains(QLatin1String("attempt to write a readonly database")),
             qPrintable(result.errors));
    QVERIFY(result.errors.endsWith(
        QStringLiteral("symbollibrary: %1: nothing was changed\n").arg(m_library->path())));
    QCOMPARE(m_library->sql(AllSymbols).count(), 3);

    const QString unmade = QFileInfo(m_library->path()).path() + QStringLiteral("/new.db");
    const ProgramResult none = runReadOnly(QFileInfo(unmade).path(),
                                           { QStringLiteral("update"), unmade, m_folder->path() });
    QCOMPARE(none.exitCode, 1);
    QVERIFY2(none.errors.startsWith(
                 QStringLiteral("symbollibrary: %1: Failed to open database").arg(unmade)),
             qPrintable(none.errors));
}

void TestSymbolLibrary::aCategoryThatCannotBeAddedIsAFailure()
{
    m_library->sql(QStringLiteral("CREATE TRIGGER no_bad BEFORE INSERT ON Category WHEN NEW.Name = "
                                  "'bad' BEGIN SELECT RAISE(ABORT, 'bad is refused'); END"));
    QDir().mkpath(path("bad"));
    draw(QStringLiteral("New/a.svg"));
    const ProgramResult result = run("update", { m_folder->path() });
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains(QLatin1String("bad is refused")), qPrintable(result.errors));
    QCOMPARE(lines(result.output),
             (QStringList {
                 QStringLiteral("added category: New"),
                 QStringLiteral("added: New/a.svg"),
                 QStringLiteral("1 categories added, 1 symbols added, 0 existing; 0 of the added "
                                "may not look as drawn"),
             }));
}

void TestSymbolLibrary::aLibraryThatIsInUseIsAFailure()
{
    SymbolDatabaseModel& other = m_library->model;
    QVERIFY(other.open(false) && other.startTransaction());
    QVERIFY(other.addTagWhileOpen(QStringLiteral("in use")));
    draw(QStringLiteral("New/a.svg"));
    const ProgramResult result = run("update", { m_folder->path() });
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains(QLatin1String("database is locked")),
             qPrintable(result.errors));
    QVERIFY(other.endTransaction());
    other.close();
    QCOMPARE(run("update", { m_folder->path() }).exitCode, 0);
}

// --- list and search ------------------------------------------------------------------------------

void TestSymbolLibrary::listPrintsSymbolsByCategoryAndName()
{
    const ProgramResult result = run("list", {});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.output, QStringLiteral("3\tAnimals\tcat\n2\tSigns\tdanger\n1\tSigns\tup\n"));
}

void TestSymbolLibrary::listPrintsOneCategoryOnDemand()
{
    const QString category = QStringLiteral("--category");
    QCOMPARE(run("list", { category, QStringLiteral("Signs") }).output,
             QStringLiteral("2\tSigns\tdanger\n1\tSigns\tup\n"));
    QCOMPARE(run("list", { category, QStringLiteral("Empty") }).output, QString());
    for (const QString& name : { QStringLiteral("signs"), QString() }) {
        const ProgramResult unknown = run("list", { category, name });
        QCOMPARE(unknown.exitCode, 1);
        QCOMPARE(
            unknown.errors,
            QStringLiteral("symbollibrary: %1: no category \"%2\"\n").arg(m_library->path(), name));
    }
}

void TestSymbolLibrary::anEmptyLibraryHasNothingToList()
{
    m_library = std::make_unique<SymbolDatabase>(SymbolDatabase::Schema);
    const ProgramResult result = run("list", {});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output + result.errors, QString());
}

void TestSymbolLibrary::namesAreOneLineEach()
{
    draw(QStringLiteral(" New\nYork /a\tb \\ \x1b[1m ü.svg"));
    QCOMPARE(run("update", { m_folder->path() }).exitCode, 0);
    const QString printed = QStringLiteral(" New\\nYork \ta\\tb \\\\ \\x1b[1m ü.svg");
    QCOMPARE(run("list", { QStringLiteral("-c"), QStringLiteral(" New\nYork ") }).output,
             QString(QStringLiteral("4\t") + printed + QLatin1Char('\n')));
}

void TestSymbolLibrary::searchFindsNamesAndTags_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("names");
    const auto add = [](const char* name, const QStringList& arguments, const char* names) {
        QTest::newRow(name) << arguments << QString::fromLatin1(names);
    };
    const QString category = QStringLiteral("-c");
    add("a name", { QStringLiteral("ANGE") }, "danger");
    add("a tag", { QStringLiteral("large") }, "up");
    add("both", { QStringLiteral("ar") }, "cat danger up");
    add("in a category", { QStringLiteral("ar"), category, QStringLiteral("Signs") }, "danger up");
    add("everything", { QString() }, "cat danger up");
    add("no wildcard", { QStringLiteral("%") }, "");
    add("a dash", { QStringLiteral("--"), QStringLiteral("-") }, "");
}

void TestSymbolLibrary::searchFindsNamesAndTags()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, names);
    const ProgramResult result = run("search", arguments);
    QCOMPARE(result.errors, QString());
    QStringList found;
    for (const QString& line : lines(result.output)) {
        found.append(line.section(QLatin1Char('\t'), 2));
    }
    QCOMPARE(found.join(QLatin1Char(' ')), names);
}

void TestSymbolLibrary::searchThatFindsNothingFails()
{
    const ProgramResult result = run("search", { QStringLiteral("nothing like it") });
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.output + result.errors, QString());
    QCOMPARE(run("search", { QStringLiteral("cat") }).exitCode, 0);
}

// --- export ---------------------------------------------------------------------------------------

void TestSymbolLibrary::exportWritesWhatUpdateReads()
{
    draw(QStringLiteral("Others/a b.svg"), filledSvg("blue", 10, 10));
    QCOMPARE(run("update", { m_folder->path() }).exitCode, 0);
    const ProgramResult result = run("export", { path("out") });
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QStringLiteral("4 of 4 symbols written\n"));
    QCOMPARE(contentOf(path("out/Others/a b.svg")), filledSvg("blue", 10, 10));
    QCOMPARE(contentOf(path("out/Animals/cat.svg")), filledSvg("green"));

    QCOMPARE(run({ QStringLiteral("update"), path("copy.db"), path("out") }).exitCode, 0);
    QCOMPARE(lines(run({ QStringLiteral("list"), path("copy.db") }).output).count(), 4);

    QCOMPARE(run("export", { path("one"), QStringLiteral("-c"), QStringLiteral("Animals") }).output,
             QStringLiteral("1 of 1 symbols written\n"));
    QCOMPARE(QDir(path("one")).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
             QStringList(QStringLiteral("Animals")));
    QCOMPARE(
        run("export", { path("none"), QStringLiteral("-c"), QStringLiteral("Moons") }).exitCode, 1);
}

void TestSymbolLibrary::exportWritesThumbnailsOnDemand()
{
    const ProgramResult result =
        run("export", { path("out"), QStringLiteral("--thumbnails"), QStringLiteral("--quiet") });
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QString());
    QCOMPARE(contentOf(path("out/Animals/cat.png")), m_library->model.getIconFromSymbolId(3));
}

void TestSymbolLibrary::exportOverwritesOnDemandOnly()
{
    draw(QStringLiteral("Animals/cat.svg"), "mine");
    const ProgramResult refused = run("export", { m_folder->path() });
    QCOMPARE(refused.exitCode, 1);
    QCOMPARE(refused.output, QStringLiteral("2 of 3 symbols written\n"));
    QCOMPARE(
        refused.errors,
        QStringLiteral("symbollibrary: %1: exists; see --force\n").arg(path("Animals/cat.svg")));
    QCOMPARE(contentOf(path("Animals/cat.svg")), QByteArray("mine"));
    QCOMPARE(run("export", { m_folder->path(), QStringLiteral("-f") }).exitCode, 0);
    QCOMPARE(contentOf(path("Animals/cat.svg")), filledSvg("green"));
}

void TestSymbolLibrary::exportStaysInItsFolder()
{
    m_library->sql(QStringLiteral("UPDATE Category SET Name = '..' WHERE Id = 1"));
    m_library->sql(QStringLiteral("UPDATE Category SET Name = '/tmp/x' WHERE Id = 2"));
    m_library->sql(QStringLiteral("UPDATE Image SET Name = '../../up' WHERE Id = 1"));
    m_library->sql(QStringLiteral("UPDATE Image SET Name = '.svg' WHERE Id = 2"));
    const ProgramResult result = run("export", { path("out") });
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.exitCode, 0);
    QVERIFY(QFile::exists(path("out/_../.._.._up.svg")));
    QVERIFY(QFile::exists(path("out/_../_.svg")));
    QVERIFY(QFile::exists(path("out/_tmp_x/cat.svg")));
}

void TestSymbolLibrary::exportKeepsSymbolsOfOneNameApart()
{
    m_library->sql(QStringLiteral("UPDATE Image SET Name = 'up.svg' WHERE Id = 2"));
    QCOMPARE(run("export", { path("out") }).exitCode, 0);
    QCOMPARE(QDir(path("out/Signs")).entryList(QDir::Files),
             (QStringList { QStringLiteral("up (2).svg"), QStringLiteral("up.svg") }));

    m_library->sql(QStringLiteral("UPDATE Image SET CategoryId = (SELECT CategoryId FROM Image "
                                  "WHERE Id = 1), Name = CASE Id WHEN 1 THEN 'up' WHEN 2 THEN "
                                  "'up.svg' ELSE 'up (2)' END"));
    QCOMPARE(run("export", { path("all"), QStringLiteral("--force") }).exitCode, 0);
    QCOMPARE(QDir(path("all/Signs")).entryList(QDir::Files),
             (QStringList { QStringLiteral("up (2) (2).svg"), QStringLiteral("up (2).svg"),
                            QStringLiteral("up.svg") }));
}

void TestSymbolLibrary::exportReportsWhatItCannotWrite()
{
    draw(QStringLiteral("out"), "a file in the way");
    const ProgramResult result = run("export", { path("out") });
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.output, QStringLiteral("0 of 3 symbols written\n"));
    QCOMPARE(lines(result.errors).constFirst(),
             QStringLiteral("symbollibrary: %1: cannot make the folder")
                 .arg(path("out/Animals/cat.svg")));
}

// --- check ----------------------------------------------------------------------------------------

void TestSymbolLibrary::checkFindsNothingWrongWithASoundLibrary()
{
    const ProgramResult result = run("check", {});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output + result.errors, QString());
}

void TestSymbolLibrary::checkReportsBlankThumbnails()
{
    draw(QStringLiteral("New/html\n.svg"), "<html/>");
    draw(QStringLiteral("New/white.svg"), filledSvg("white"));
    QCOMPARE(run("update", { m_folder->path() }).exitCode, 0);
    m_library->sql(QStringLiteral("UPDATE Image SET Id = 9 WHERE Name LIKE 'html%'"));
    m_library->sql(QStringLiteral("UPDATE Image SET Id = 8 WHERE Name = 'white.svg'"));
    const ProgramResult result = run("check", {});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.output,
             QStringLiteral("symbol 8 (white.svg): blank; all that it draws is white or "
                            "beyond its edges\n"
                            "symbol 9 (html\\n.svg): blank; not an SVG document\n"));
    QCOMPARE(run("check", { QStringLiteral("-q") }).output, QString());
}

void TestSymbolLibrary::checkFindsDamage_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("complaint");
    QTest::newRow("no picture") << QStringLiteral(
        "UPDATE Image SET Thumbnail = x'706e67' WHERE Id = 2")
                                << QStringLiteral("symbol 2 (danger): the thumbnail is no picture");
    QTest::newRow("wrong size")
        << QStringLiteral("UPDATE Image SET Thumbnail = x'%1' WHERE Id = 2")
               .arg(QString::fromLatin1(QByteArray("P1 3 2 0 0 0 0 0 0\n").toHex()))
        << QStringLiteral("symbol 2 (danger): the thumbnail has 3 x 2 pixels");
    QTest::newRow("missing category")
        << QStringLiteral("DELETE FROM Category WHERE Name = 'Animals'")
        << QStringLiteral("row 3 of table \"Image\" refers to a missing row of \"Category\"");
    QTest::newRow("missing table") << QStringLiteral("DROP TABLE Image_Tag")
                                   << QStringLiteral("not a symbol library: there is no table "
                                                     "\"Image_Tag\"");
}

void TestSymbolLibrary::checkFindsDamage()
{
    QFETCH(QString, statement);
    QFETCH(QString, complaint);
    m_library->sql(statement);
    for (const QStringList& options : { QStringList(), QStringList(QStringLiteral("--quiet")) }) {
        const ProgramResult result = run("check", options);
        QCOMPARE(result.exitCode, 1);
        QCOMPARE(result.output, QString());
        QCOMPARE(result.errors,
                 QStringLiteral("symbollibrary: %1: %2\n").arg(m_library->path(), complaint));
    }
}

void TestSymbolLibrary::checkFindsABrokenPage()
{
    // Every page after the tables' descriptions, one after the other.
    const QByteArray sound = m_library->read();
    constexpr int PageSize = 4096;
    QVERIFY(sound.size() / PageSize > 4);
    for (qsizetype at = PageSize; at < sound.size(); at += PageSize) {
        QByteArray broken = sound;
        std::fill_n(broken.begin() + at, PageSize, '\x7f');
        m_library->overwrite(broken);
        const ProgramResult result = run("check", {});
        QCOMPARE(result.exitCode, 1);
        QVERIFY(!result.errors.isEmpty());
        for (const QString& line : lines(result.errors)) {
            QVERIFY2(line.startsWith(QLatin1String("symbollibrary: ")), qPrintable(line));
        }
        QVERIFY(run("list", {}).exitCode >= 0);
        QVERIFY(run("export", { path("out"), QStringLiteral("-f") }).exitCode >= 0);
    }
}

// --- remove ---------------------------------------------------------------------------------------

void TestSymbolLibrary::removeTakesSymbolsById()
{
    const ProgramResult result =
        run("remove", { QStringLiteral("3"), QStringLiteral("1"), QStringLiteral("3") });
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output + result.errors, QString());
    QCOMPARE(m_library->sql(AllSymbols), QStringList(QStringLiteral("Signs|danger")));
    QCOMPARE(m_library->model.categories().count(), 3);
    QCOMPARE(m_library->sql(QStringLiteral("SELECT ImageId FROM Image_Tag")),
             QStringList(QStringLiteral("2")));
}

void TestSymbolLibrary::removeTakesSymbolsByName()
{
    m_library->sql(QStringLiteral("UPDATE Image SET Name = '-x y' WHERE Id <> 2"));
    QCOMPARE(
        run("remove", { QStringLiteral("--names"), QStringLiteral("--"), QStringLiteral("-x y") })
            .exitCode,
        0);
    QCOMPARE(m_library->sql(AllSymbols), QStringList(QStringLiteral("Signs|danger")));
}

void TestSymbolLibrary::removeTakesAllOrNone()
{
    const ProgramResult unknown =
        run("remove", { QStringLiteral("1"), QStringLiteral("01"), QStringLiteral("x\ny") });
    QCOMPARE(unknown.exitCode, 1);
    QCOMPARE(unknown.errors,
             QStringLiteral("symbollibrary: %1: no symbol \"01\"\n"
                            "symbollibrary: %1: no symbol \"x\\ny\"\n")
                 .arg(m_library->path()));
    QCOMPARE(m_library->sql(AllSymbols).count(), 3);

    m_library->sql(QStringLiteral("CREATE TRIGGER kept BEFORE DELETE ON Image WHEN OLD.Id = 2 "
                                  "BEGIN SELECT RAISE(ABORT, 'this one stays'); END"));
    const ProgramResult refused =
        run("remove", { QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3") });
    QCOMPARE(refused.exitCode, 1);
    QVERIFY2(refused.errors.contains(QLatin1String("this one stays")), qPrintable(refused.errors));
    QCOMPARE(m_library->sql(AllSymbols).count(), 3);
}

void TestSymbolLibrary::removeNeedsAWritableLibrary()
{
    const ProgramResult result =
        runReadOnly(QFileInfo(m_library->path()).path(),
                    { QStringLiteral("remove"), m_library->path(), QStringLiteral("1") });
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains(QLatin1String("attempt to write a readonly database")),
             qPrintable(result.errors));
    QCOMPARE(m_library->sql(AllSymbols).count(), 3);
}

UW_TEST_MAIN(TestSymbolLibrary)

#include "tst_symbollibrary.moc"
