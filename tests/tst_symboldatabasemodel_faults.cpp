// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// What becomes of a symbol database when processes die, compete or run out of space.

#include "support/symboldatabase.h"
#include "support/syncstandin.h"
#include "support/test.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

class TestSymbolFaults : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void anUpdateThatIsKilledLeavesTheOldOrTheNewState();
    void twoProcessesWriteIntoOneFile();
    void aFullDiskIsReportedAndLosesNothing();

private:
    SyncStandIn m_sync;
};

namespace {

QString helper()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/symbol_store");
}

QStringList linesOf(QProcess& process)
{
    return QString::fromUtf8(process.readAllStandardOutput())
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QFile::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

const QString CountOfSymbols = QStringLiteral("SELECT count(*) FROM Image");
const QString IntegrityCheck = QStringLiteral("PRAGMA integrity_check");

} // namespace

void TestSymbolFaults::anUpdateThatIsKilledLeavesTheOldOrTheNewState()
{
    constexpr int Symbols = 60;
    const QTemporaryDir folder;
    for (int i = 0; i < Symbols; ++i) {
        // Large enough for the transaction to spill into the file before it is committed.
        writeFile(folder.filePath(QStringLiteral("Signs/%1.svg").arg(i)),
                  filledSvg("red") + "<!--" + QByteArray(60'000, 'x') + "-->");
    }
    const SymbolDatabase database(SymbolDatabase::Schema);
    const QByteArray former = database.read();
    const QStringList arguments { QStringLiteral("update"), database.path(), folder.path() };

    QElapsedTimer timer;
    timer.start();
    QProcess whole;
    whole.start(helper(), arguments);
    QVERIFY(whole.waitForFinished());
    const qint64 duration = timer.nsecsElapsed() / 1000;
    QCOMPARE(linesOf(whole).constLast(), QStringLiteral("1"));
    QCOMPARE(database.sql(CountOfSymbols), QStringList(QString::number(Symbols)));

    // From the start of the program until after its end, in even steps.
    int killed = 0;
    for (int i = 0; i < 50; ++i) {
        QFile::remove(database.path() + QStringLiteral("-journal"));
        database.overwrite(former);
        QProcess process;
        process.start(helper(), arguments + QStringList(QString::number(duration * i / 50)));
        QVERIFY(process.waitForFinished());
        killed += process.exitStatus() == QProcess::CrashExit ? 1 : 0;

        QCOMPARE(database.sql(IntegrityCheck), QStringList(QStringLiteral("ok")));
        const QString count = database.sql(CountOfSymbols).constFirst();
        const QString categories =
            database.sql(QStringLiteral("SELECT count(*) FROM Category")).constFirst();
        QVERIFY2((count == QString::number(0) && categories == QString::number(0))
                     || (count == QString::number(Symbols) && categories == QString::number(1)),
                 qPrintable(count));
    }
    QVERIFY(killed > 10);
}

void TestSymbolFaults::twoProcessesWriteIntoOneFile()
{
    SymbolDatabase database(SymbolDatabase::Symbols);
    QProcess first;
    QProcess second;
    for (QProcess* process : { &first, &second }) {
        process->start(helper(), { QStringLiteral("add"), database.path(), QStringLiteral("20") });
    }
    QVERIFY(first.waitForStarted() && second.waitForStarted());
    while (first.state() != QProcess::NotRunning || second.state() != QProcess::NotRunning) {
        const QStringList names = database.model.categories();
        QVERIFY(names.count() == 3 || !database.takeErrors().isEmpty());
        QCoreApplication::processEvents();
    }

    // One that finds the other in the middle of a change may be refused, and is told so.
    int added = 0;
    for (QProcess* process : { &first, &second }) {
        const QStringList lines = linesOf(*process);
        const int count = lines.constLast().toInt();
        QVERIFY(count > 0);
        QVERIFY2(count == 20 || lines.count() > 1, qPrintable(lines.join(QLatin1Char('\n'))));
        added += count;
    }
    QCOMPARE(database.sql(CountOfSymbols), QStringList(QString::number(3 + added)));
    QCOMPARE(database.sql(IntegrityCheck), QStringList(QStringLiteral("ok")));
}

void TestSymbolFaults::aFullDiskIsReportedAndLosesNothing()
{
    const SymbolDatabase database(SymbolDatabase::Symbols);
    const QTemporaryDir disk;
    const QTemporaryDir results;
    // A disk of 300 kB, of which the database is copied before the disk is gone.
    QProcess process;
    process.start(QStringLiteral("bwrap"),
                  { QStringLiteral("--die-with-parent"), QStringLiteral("--dev-bind"),
                    QStringLiteral("/"), QStringLiteral("/"), QStringLiteral("--size"),
                    QStringLiteral("300000"), QStringLiteral("--tmpfs"), disk.path(),
                    QStringLiteral("--"), QStringLiteral("sh"), QStringLiteral("-c"),
                    QStringLiteral("cp \"$1\" \"$2/symbols.db\" && \"$3\" add \"$2/symbols.db\" 30 "
                                   "&& cp \"$2\"/* \"$4\""),
                    QStringLiteral("sh"), database.path(), disk.path(), helper(), results.path() });
    QVERIFY(process.waitForFinished());
    const QStringList lines = linesOf(process);
    QVERIFY2(process.exitCode() == 0, process.readAllStandardError().constData());

    const int added = lines.constLast().toInt();
    QVERIFY(added > 3 && added < 15);
    QVERIFY(lines.count() > 1);
    for (const QString& line : lines.mid(0, lines.count() - 1)) {
        QVERIFY2(line.contains(QLatin1String("[database or disk is full Unable to ")),
                 qPrintable(line));
    }
    database.overwrite([&] {
        QFile file(results.filePath(QStringLiteral("symbols.db")));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }());
    QCOMPARE(database.sql(CountOfSymbols), QStringList(QString::number(3 + added)));
    QCOMPARE(database.sql(IntegrityCheck), QStringList(QStringLiteral("ok")));
}

UW_TEST_MAIN(TestSymbolFaults)

#include "tst_symboldatabasemodel_faults.moc"
