// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "widgets_symbols/detachedsync.h"

#include "support/syncstandin.h"
#include "support/test.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <memory>
#include <thread>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

class TestDetachedSync : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void startsSyncWithoutArguments();
    void everyCallStartsOne();
    void mayBeCalledByManyThreads();
    void hasASessionOfItsOwn();
    void hasNoneOfOurStreams();
    void leavesNoZombiesBehind();
    void aProcessThatAnotherHasWaitedForIsForgotten();
    void isSilentWhereThereIsNoSync_data();
    void isSilentWhereThereIsNoSync();
};

namespace {

/// Stands in PATH in place of everything else.
class OtherPath
{
public:
    explicit OtherPath(const QByteArray& path) { qputenv("PATH", path); }
    ~OtherPath() { qputenv("PATH", m_former); }
    Q_DISABLE_COPY_MOVE(OtherPath)

private:
    const QByteArray m_former = qgetenv("PATH");
};

/// Stands first in PATH in place of the system's "sync", and writes down what it finds out about
/// itself: a line for each run.
class CuriousSync
{
public:
    explicit CuriousSync(const QByteArray& question)
    {
        QFile script(m_folder.filePath(QStringLiteral("sync")));
        if (!script.open(QFile::WriteOnly)) {
            qFatal("cannot write the stand-in for sync");
        }
        script.write("#!/bin/sh\necho $(" + question + ") >>\"${0%/*}/answers\"\n");
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        script.close();
        m_path =
            std::make_unique<OtherPath>(QFile::encodeName(m_folder.path()) + ':' + qgetenv("PATH"));
    }

    QList<QByteArray> answers() const
    {
        QFile file(m_folder.filePath(QStringLiteral("answers")));
        return file.open(QFile::ReadOnly) ? file.readAll().trimmed().split('\n')
                                          : QList<QByteArray>();
    }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<OtherPath> m_path;
};

/// Of a process: 'Z' for a zombie, 0 if there is none.
char stateOf(const QByteArray& process)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(QString::fromLatin1(process)));
    const QByteArray stat = file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    return stat.isEmpty() ? '\0' : stat.at(stat.lastIndexOf(')') + 2);
}

} // namespace

void TestDetachedSync::startsSyncWithoutArguments()
{
    SyncStandIn sync;
    startDetachedSync();
    QCOMPARE(sync.takeStarts(), 1);
}

void TestDetachedSync::everyCallStartsOne()
{
    SyncStandIn sync;
    for (int i = 0; i < 10; ++i) {
        startDetachedSync();
    }
    QCOMPARE(sync.takeStarts(), 10);
}

void TestDetachedSync::mayBeCalledByManyThreads()
{
    SyncStandIn sync;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([] {
            for (int start = 0; start < 10; ++start) {
                startDetachedSync();
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    QCOMPARE(sync.takeStarts(), 40);
}

void TestDetachedSync::hasASessionOfItsOwn()
{
    const CuriousSync sync("echo $$; cut -d' ' -f6 /proc/$$/stat");
    startDetachedSync();
    QTRY_COMPARE(sync.answers().count(), 1);
    const QList<QByteArray> ids = sync.answers().constFirst().split(' ');
    QCOMPARE(ids.count(), 2);
    QCOMPARE(ids.at(1), ids.at(0));
}

void TestDetachedSync::hasNoneOfOurStreams()
{
    const CuriousSync sync("readlink /proc/$$/fd/0 /proc/$$/fd/1 /proc/$$/fd/2");
    QTemporaryFile file;
    QVERIFY(file.open());
    const int formerInput = dup(STDIN_FILENO);
    dup2(file.handle(), STDIN_FILENO); // tests are often run without an input
    startDetachedSync();
    dup2(formerInput, STDIN_FILENO);
    ::close(formerInput);
    QTRY_COMPARE(sync.answers(), QList<QByteArray>({ "/dev/null /dev/null /dev/null" }));
}

void TestDetachedSync::leavesNoZombiesBehind()
{
    const CuriousSync sync("echo $$");
    for (int start = 1; start <= 3; ++start) {
        startDetachedSync();
        QTRY_COMPARE(sync.answers().count(), start);
        QTRY_COMPARE(stateOf(sync.answers().constLast()), 'Z');
    }
    const QList<QByteArray> processes = sync.answers();
    QCOMPARE(stateOf(processes.at(0)), '\0');
    QCOMPARE(stateOf(processes.at(1)), '\0');
}

void TestDetachedSync::aProcessThatAnotherHasWaitedForIsForgotten()
{
    const CuriousSync sync("echo $$");
    startDetachedSync();
    while (wait(nullptr) > 0) { }
    startDetachedSync();
    QTRY_COMPARE(sync.answers().count(), 2);
}

void TestDetachedSync::isSilentWhereThereIsNoSync_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::newRow("none in PATH") << false;
    QTest::newRow("one that is no program") << true;
}

void TestDetachedSync::isSilentWhereThereIsNoSync()
{
    QFETCH(bool, isThere);
    while (wait(nullptr) > 0) { }
    const QTemporaryDir folder;
    if (isThere) {
        QFile file(folder.filePath(QStringLiteral("sync")));
        QVERIFY(file.open(QFile::WriteOnly));
    }
    const OtherPath path(QFile::encodeName(folder.path()));
    startDetachedSync();
    startDetachedSync();
    QCOMPARE(wait(nullptr), -1); // nothing was started
}

UW_TEST_MAIN(TestDetachedSync)

#include "tst_detachedsync.moc"
