// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "qcopchannel.h"

#include "support/secondprocess.h"
#include "support/test.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QSignalSpy>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <future>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

const QString Name = QStringLiteral("a channel");

/// What arrived on a channel of this process.
class Recorder : public QObject
{
public:
    explicit Recorder(const QString& name = Name)
        : channel(name)
    {
        connect(&channel, &QCopChannel::received, this,
                [this](const QString& msg, const QByteArray& data) {
                    texts += msg;
                    bytes += data;
                });
    }

    QCopChannel channel;
    QStringList texts;
    QByteArrayList bytes;
};

/// Sets a variable of the environment, or removes it, until the end of the scope.
class Environment
{
public:
    Environment(const char* name, const std::optional<QString>& value)
        : m_name(name)
        , m_before(qgetenv(name))
    {
        if (value) {
            qputenv(name, value->toUtf8());
        } else {
            qunsetenv(name);
        }
    }
    ~Environment()
    {
        if (m_before.isNull()) {
            qunsetenv(m_name);
        } else {
            qputenv(m_name, m_before);
        }
    }

    Q_DISABLE_COPY_MOVE(Environment)

private:
    const char* m_name;
    QByteArray m_before;
};

/// A process that listens, and closes its channels in the end unless it was killed.
class ElsewhereListener : public SecondProcess
{
public:
    explicit ElsewhereListener(const QStringList& names)
        : SecondProcess(QStringLiteral("channel_peer"),
                        QStringList(QStringLiteral("listen")) + names)
    { }
    ~ElsewhereListener()
    {
        if (isRunning()) {
            sendSignal(SIGCONT);
            writeLine("quit");
            waitForEnd();
        }
    }

    Q_DISABLE_COPY_MOVE(ElsewhereListener)

    /// How many messages it has collected.
    int count()
    {
        writeLine("count");
        return nextLine().toInt();
    }
};

std::unique_ptr<ElsewhereListener> listenElsewhere(const QStringList& names = { Name })
{
    auto process = std::make_unique<ElsewhereListener>(names);
    return process->waitForLine("ready") ? std::move(process) : nullptr;
}

SecondProcess sendElsewhere(int count, int size, const QString& name = Name)
{
    return SecondProcess(
        QStringLiteral("channel_peer"),
        { QStringLiteral("send"), name, QString::number(count), QString::number(size) });
}

/// What a listening process prints for a message.
QByteArray got(const QString& msg, const QByteArray& data = "")
{
    const QByteArray text(reinterpret_cast<const char*>(msg.constData()), msg.size() * 2);
    return "got " + (msg.isNull() ? QByteArray("null") : text.toHex()) + ' '
        + (data.isNull() ? QByteArray("null") : data.toHex());
}

QStringList numbers(int count)
{
    QStringList list;
    for (int i = 0; i < count; ++i) {
        list += QString::number(i);
    }
    return list;
}

QString runtimeFolder()
{
    return qEnvironmentVariable("XDG_RUNTIME_DIR");
}

QDir channelFolder()
{
    return QDir(runtimeFolder() + QStringLiteral("/qcop"));
}

QStringList channelFiles(const QString& pattern = QStringLiteral("*"))
{
    return channelFolder().entryList({ pattern }, QDir::System | QDir::Files | QDir::Hidden);
}

int openDescriptors()
{
    return int(
        QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::System | QDir::AllEntries).size());
}

/// A client that speaks to the only listener there is without the class that is tested.
class RawClient
{
public:
    RawClient()
        : m_socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        const QByteArray folder = channelFolder().path().toUtf8();
        const int directory = ::open(folder.constData(), O_PATH | O_CLOEXEC);
        const QByteArray path = "/proc/self/fd/" + QByteArray::number(directory) + '/'
            + channelFiles(QStringLiteral("*.sock")).value(0).toUtf8();
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, path.constData(), sizeof(address.sun_path));
        m_connected =
            ::connect(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
        ::close(directory);
    }
    ~RawClient() { ::close(m_socket); }

    Q_DISABLE_COPY_MOVE(RawClient)

    bool isConnected() const { return m_connected; }

    bool write(const QByteArray& bytes) const
    {
        return ::send(m_socket, bytes.constData(), size_t(bytes.size()), MSG_NOSIGNAL)
            == bytes.size();
    }

    /// Waits until the listener has closed the connection.
    bool waitForEnd() const
    {
        const timeval limit = { 20, 0 };
        ::setsockopt(m_socket, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof(limit));
        char byte = 0;
        const ssize_t size = ::recv(m_socket, &byte, 1, 0);
        return size == 0 || (size < 0 && errno == ECONNRESET);
    }

private:
    int m_socket;
    bool m_connected = false;
};

/// A listener that was not written with the class that is tested, as docs/channel-protocol.md says.
class RawListener
{
public:
    explicit RawListener(int number)
        : m_folder(::open(channelFolder().path().toUtf8().constData(), O_PATH | O_CLOEXEC))
        , m_name(
              QCryptographicHash::hash(Name.toUtf8(), QCryptographicHash::Sha256).toHex().left(32)
              + ".test-" + QByteArray::number(number))
    {
        const QByteArray unfinished = '.' + m_name + ".0";
        m_lock = ::openat(m_folder, unfinished.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        ::flock(m_lock, LOCK_EX | LOCK_NB);
        rename(unfinished, m_name + ".lock");
        m_socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
        const QByteArray path =
            "/proc/self/fd/" + QByteArray::number(m_folder) + '/' + m_name + ".new";
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, path.constData(), sizeof(address.sun_path));
        if (::bind(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0
            && ::listen(m_socket, 10) == 0) {
            rename(m_name + ".new", m_name + ".sock");
        }
    }
    ~RawListener()
    {
        for (const char* suffix : { ".sock", ".lock" }) {
            const QByteArray name = m_name + suffix;
            ::unlinkat(m_folder, name.constData(), 0);
        }
        for (const int fd : { m_connection, m_socket, m_lock, m_folder }) {
            ::close(fd);
        }
    }

    Q_DISABLE_COPY_MOVE(RawListener)

    /// What has arrived since the last call, on one connection.
    QByteArray read()
    {
        if (m_connection < 0) {
            m_connection = ::accept4(m_socket, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
        }
        QByteArray bytes(4096, 0);
        const ssize_t size = ::recv(m_connection, bytes.data(), size_t(bytes.size()), 0);
        return bytes.left(std::max<ssize_t>(size, 0));
    }

private:
    void rename(const QByteArray& from, const QByteArray& to) const
    {
        ::renameat(m_folder, from.constData(), m_folder, to.constData());
    }

    int m_folder;
    QByteArray m_name;
    int m_lock = -1;
    int m_socket = -1;
    int m_connection = -1;
};

QByteArray payload(const QString& msg, const QByteArray& data)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    stream << msg << data;
    return bytes;
}

QByteArray frame(const QByteArray& payloadBytes, qint8 version = 1,
                 std::optional<quint32> announced = {})
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << version << announced.value_or(quint32(payloadBytes.size()));
    return bytes + payloadBytes;
}

void expectRefusal(const QString& line)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(line));
}

} // namespace

class TestQCopChannel : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    // In one process.
    void knowsItsName();
    void sendsEmptyDataWhenNoneIsGiven();
    void deliversThroughTheEventLoopOnly();
    void reachesEveryObjectOnTheChannelAndNoOther();
    void tellsWhetherAnybodyGotTheMessage();
    void hasNothingToFlush();
    void anOverrideOfReceiveComesBeforeTheSignal();
    void aSlotMayDeleteTheObject();
    void aNestedEventLoopNeitherLosesNorReordersMessages();
    void objectsMayLiveInAnyThread();
    void anyThreadMaySend();
    void anObjectMayDieWhileOthersSendToIt();
    void anObjectMayMoveToAnotherThread();

    // Between processes.
    void textAndDataArriveExactly_data();
    void textAndDataArriveExactly();
    void everyListenerInEveryProcessGetsTheMessage();
    void aMessageOfAProcessThatExitsAtOnceArrives();
    void tenThousandMessagesArriveCompleteAndInOrder();
    void tenThousandMessagesLeaveCompleteAndInOrder();
    void eachOfSeveralSendersKeepsItsOrder();
    void aLargeMessageArrivesAndALargerOneIsRefused();
    void messagesToABusyListenerArriveLater();
    void probesOfABusyListenerUseNothingUp();
    void aNestedEventLoopKeepsTheOrderOfAnotherProcess();
    void aSlotMayDeleteTheObjectWithMessagesOfAnotherProcessWaiting();
    void aForkedProcessSendsOnConnectionsOfItsOwn();

    // Names.
    void anyTextIsAName_data();
    void anyTextIsAName();

    // Registration and files.
    void isRegisteredAsLongAsAListenerLives();
    void aClosedListenerLeavesNoFiles();
    void aKilledListenerIsNotRegistered();
    void aKilledListenerIsForgottenByTheNextSend_data();
    void aKilledListenerIsForgottenByTheNextSend();
    void aKilledListenerDoesNotKeepTheOthersFromAMessage();
    void unfinishedFilesOfTheDeadAreRemoved();
    void aListenerThatHasJustBeenMadeIsFound();
    void keepsNoFileDescriptors();

    // A listener that does not read.
    void aStoppedListenerCostsOneSecondAtMost_data();
    void aStoppedListenerCostsOneSecondAtMost();
    void aStoppedListenerDoesNotKeepAMessageFromTheOthers();
    void aStoppedAndKilledListenerIsForgotten();

    // Clients that misbehave.
    void aBadFrameClosesItsConnectionAndNothingElse_data();
    void aBadFrameClosesItsConnectionAndNothingElse();
    void anUnfinishedFrameKeepsNobodyWaiting_data();
    void anUnfinishedFrameKeepsNobodyWaiting();
    void whatIsAnnouncedTakesNoMemory();
    void aFrameMayComeInPieces();
    void moreConnectionsThanAllowedLoseNothing();
    void anotherUserIsRefused();

    // The folder.
    void theFolderIsForItsOwnerAlone();
    void withoutARuntimeFolderAPrivateOneInTheTemporaryFolderServes_data();
    void withoutARuntimeFolderAPrivateOneInTheTemporaryFolderServes();
    void aFolderThatIsNotOursAloneIsRefused_data();
    void aFolderThatIsNotOursAloneIsRefused();
    void aFolderThatWasReplacedIsNoticed();
};

void TestQCopChannel::cleanup()
{
    Test::cleanup();
    QCOMPARE(channelFiles(), QStringList());
}

void TestQCopChannel::knowsItsName()
{
    const QCopChannel channel(QStringLiteral("Taskbar/Mounts"));
    QCOMPARE(channel.channel(), QStringLiteral("Taskbar/Mounts"));
}

void TestQCopChannel::sendsEmptyDataWhenNoneIsGiven()
{
    Recorder recorder;
    QVERIFY(QCopChannel::send(Name, QStringLiteral("raise")));
    QTRY_COMPARE(recorder.texts, QStringList(QStringLiteral("raise")));
    QCOMPARE(recorder.bytes, QByteArrayList { QByteArray() });
}

void TestQCopChannel::deliversThroughTheEventLoopOnly()
{
    Recorder recorder;
    QVERIFY(QCopChannel::send(Name, QStringLiteral("one"), "1"));
    QCOMPARE(recorder.texts.size(), 0);
    QTRY_COMPARE(recorder.texts.size(), 1);
    QCOMPARE(recorder.bytes, QByteArrayList { "1" });
}

void TestQCopChannel::reachesEveryObjectOnTheChannelAndNoOther()
{
    Recorder first;
    Recorder second;
    Recorder other(QStringLiteral("another channel"));
    for (const QString& number : numbers(3)) {
        QVERIFY(QCopChannel::send(Name, number));
    }
    QTRY_COMPARE(first.texts, numbers(3));
    QTRY_COMPARE(second.texts, numbers(3));
    QCOMPARE(other.texts, QStringList());
}

void TestQCopChannel::tellsWhetherAnybodyGotTheMessage()
{
    QVERIFY(!QCopChannel::send(Name, QStringLiteral("nobody is there")));
    {
        const Recorder recorder;
        QVERIFY(QCopChannel::send(Name, QStringLiteral("somebody is")));
    }
    QVERIFY(!QCopChannel::send(Name, QStringLiteral("nobody is there any more")));
}

void TestQCopChannel::hasNothingToFlush()
{
    QVERIFY(QCopChannel::flush());
}

void TestQCopChannel::anOverrideOfReceiveComesBeforeTheSignal()
{
    class Filter : public QCopChannel
    {
    public:
        using QCopChannel::QCopChannel;
        void receive(const QString& msg, const QByteArray& data) override
        {
            seen += msg;
            if (msg != QStringLiteral("secret")) {
                QCopChannel::receive(msg, data);
            }
        }
        QStringList seen;
    };
    Filter filter(Name);
    QSignalSpy received(&filter, &QCopChannel::received);
    QCopChannel::send(Name, QStringLiteral("secret"));
    QCopChannel::send(Name, QStringLiteral("public"), "data");

    QTRY_COMPARE(filter.seen, (QStringList { QStringLiteral("secret"), QStringLiteral("public") }));
    QCOMPARE(received.count(), 1);
    QCOMPARE(received.at(0), (QVariantList { QStringLiteral("public"), QByteArray("data") }));
}

void TestQCopChannel::aSlotMayDeleteTheObject()
{
    auto* channel = new QCopChannel(Name);
    int count = 0;
    connect(channel, &QCopChannel::received, this, [&] {
        ++count;
        delete channel;
    });
    Recorder other;
    for (const QString& number : numbers(3)) {
        QCopChannel::send(Name, number);
    }
    QTRY_COMPARE(other.texts, numbers(3));
    QCOMPARE(count, 1);
}

void TestQCopChannel::aNestedEventLoopNeitherLosesNorReordersMessages()
{
    QCopChannel channel(Name);
    QStringList texts;
    QEventLoop nested;
    connect(&channel, &QCopChannel::received, this, [&](const QString& msg) {
        texts += msg;
        if (msg == QStringLiteral("0")) {
            nested.exec();
        } else if (msg == QStringLiteral("5")) {
            nested.quit();
        }
    });
    for (const QString& number : numbers(10)) {
        QCopChannel::send(Name, number);
    }
    QTRY_COMPARE(texts, numbers(10));
}

// Threads that have an event loop are made without QThread here: how it hands things over is hidden
// from ThreadSanitizer.

void TestQCopChannel::objectsMayLiveInAnyThread()
{
    QStringList texts;
    bool deliveredInItsThread = true;
    std::promise<void> listening;
    std::thread thread([&] {
        QEventLoop loop;
        const QCopChannel channel(Name);
        connect(&channel, &QCopChannel::received, &channel, [&](const QString& msg) {
            texts += msg;
            deliveredInItsThread =
                deliveredInItsThread && QThread::currentThread() == channel.thread();
            if (texts.size() == 11) {
                loop.quit();
            }
        });
        listening.set_value();
        loop.exec();
    });
    listening.get_future().wait();
    for (const QString& number : numbers(10)) {
        QVERIFY(QCopChannel::send(Name, number));
    }
    SecondProcess sender = sendElsewhere(1, 1);
    thread.join();
    texts.removeOne(QStringLiteral("0")); // one of the two
    QVERIFY(texts.removeOne(QStringLiteral("0")));
    QCOMPARE(texts, numbers(10).mid(1));
    QVERIFY(deliveredInItsThread);
}

void TestQCopChannel::anyThreadMaySend()
{
    constexpr int Threads = 4;
    constexpr int Count = 500;
    const auto elsewhere = listenElsewhere();
    QVERIFY(elsewhere);
    elsewhere->writeLine("collect");
    QVERIFY(elsewhere->waitForLine("collecting"));
    Recorder recorder;
    std::vector<std::thread> threads;
    threads.reserve(Threads);
    for (int i = 0; i < Threads; ++i) {
        threads.emplace_back([i] {
            for (const QString& number : numbers(Count)) {
                QCopChannel::send(Name, number, QByteArray::number(i));
                QCopChannel::isRegistered(Name);
            }
        });
    }
    QTRY_COMPARE_WITH_TIMEOUT(int(recorder.texts.size()), Threads * Count, 60000);
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (int i = 0; i < Threads; ++i) {
        QStringList ofThread;
        for (int j = 0; j < recorder.texts.size(); ++j) {
            if (recorder.bytes.at(j) == QByteArray::number(i)) {
                ofThread += recorder.texts.at(j);
            }
        }
        QCOMPARE(ofThread, numbers(Count));
    }
    QTRY_COMPARE_WITH_TIMEOUT(elsewhere->count(), Threads * Count, 60000);
}

void TestQCopChannel::anObjectMayDieWhileOthersSendToIt()
{
    std::atomic<bool> stop = false;
    std::thread sender([&] {
        while (!stop) {
            QCopChannel::send(Name, QStringLiteral("to whom it may concern"));
        }
    });
    int received = 0;
    for (int i = 0; i < 50 || received == 0; ++i) {
        const Recorder recorder;
        QCoreApplication::processEvents();
        received += int(recorder.texts.size());
    }
    stop = true;
    sender.join();
}

void TestQCopChannel::anObjectMayMoveToAnotherThread()
{
    auto* channel = new QCopChannel(Name);
    QStringList texts;
    std::promise<QEventLoop*> running;
    std::promise<void> moved;
    std::thread thread([&] {
        QEventLoop loop;
        running.set_value(&loop);
        moved.get_future().wait();
        loop.exec();
        delete channel;
    });
    QEventLoop* loop = running.get_future().get();
    connect(
        channel, &QCopChannel::received, channel,
        [&](const QString& msg) {
            texts += msg;
            if (texts.size() == 3) {
                loop->quit();
            }
        },
        Qt::DirectConnection);
    QVERIFY(QCopChannel::send(Name, QStringLiteral("here")));
    channel->moveToThread(loop->thread());
    moved.set_value();
    SecondProcess sender = sendElsewhere(2, 1); // comes in through the socket
    thread.join();
    QCOMPARE(texts, QStringList(QStringLiteral("here")) + numbers(2));
}

void TestQCopChannel::textAndDataArriveExactly_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("data");

    QTest::newRow("null and null") << QString() << QByteArray();
    QTest::newRow("empty and empty") << QStringLiteral("") << QByteArray("");
    QTest::newRow("text alone") << QStringLiteral("raise") << QByteArray();
    QTest::newRow("data alone") << QString() << QByteArray("data");
    QTest::newRow("letters beyond ASCII")
        << QString::fromUtf8("Größe 線 \xF0\x9F\x96\xA8") << QByteArray("\xC3\xA4");
    QTest::newRow("half a surrogate pair") << QString(QChar(0xD83D)) << QByteArray("x");
    QTest::newRow("zeroes") << QString(3, QChar(0)) << QByteArray("\0\1\0", 3);
    QTest::newRow("line breaks") << QStringLiteral("a\nb\r\n") << QByteArray("\n\n");
}

void TestQCopChannel::textAndDataArriveExactly()
{
    QFETCH(const QString, text);
    QFETCH(const QByteArray, data);
    Recorder here;
    const auto elsewhere = listenElsewhere();
    QVERIFY(elsewhere);

    QVERIFY(QCopChannel::send(Name, text, data));
    QCOMPARE(elsewhere->nextLine(), got(text, data));
    QTRY_COMPARE(here.texts, QStringList { text });
    QCOMPARE(here.texts.at(0).isNull(), text.isNull());
    QCOMPARE(here.bytes, QByteArrayList { data });
    QCOMPARE(here.bytes.at(0).isNull(), data.isNull());
}

void TestQCopChannel::everyListenerInEveryProcessGetsTheMessage()
{
    Recorder here;
    Recorder alsoHere;
    const auto twoThere = listenElsewhere({ Name, Name });
    const auto oneThere = listenElsewhere();
    QVERIFY(twoThere && oneThere);

    QVERIFY(QCopChannel::send(Name, QStringLiteral("from here"), "data"));
    QCOMPARE(twoThere->nextLine(), got(QStringLiteral("from here"), "data"));
    QCOMPARE(twoThere->nextLine(), got(QStringLiteral("from here"), "data"));
    QCOMPARE(oneThere->nextLine(), got(QStringLiteral("from here"), "data"));
    QTRY_COMPARE(here.texts, QStringList { QStringLiteral("from here") });
    QTRY_COMPARE(alsoHere.texts, QStringList { QStringLiteral("from here") });

    SecondProcess sender = sendElsewhere(1, 1);
    QCOMPARE(sender.waitForEnd(), 0);
    QCOMPARE(twoThere->nextLine(), got(QStringLiteral("0"), QByteArray(1, 0)));
    QCOMPARE(twoThere->nextLine(), got(QStringLiteral("0"), QByteArray(1, 0)));
    QCOMPARE(oneThere->nextLine(), got(QStringLiteral("0"), QByteArray(1, 0)));
    QTRY_COMPARE(here.texts.size(), 2);
    QTRY_COMPARE(alsoHere.texts.size(), 2);
}

void TestQCopChannel::aMessageOfAProcessThatExitsAtOnceArrives()
{
    Recorder recorder;
    SecondProcess sender = sendElsewhere(1, 100);
    QCOMPARE(sender.waitForEnd(), 0); // our event loop has not run yet
    QCOMPARE(recorder.texts.size(), 0);
    QTRY_COMPARE(recorder.texts, numbers(1));
    QCOMPARE(recorder.bytes, QByteArrayList { QByteArray(100, 0) });
}

void TestQCopChannel::tenThousandMessagesArriveCompleteAndInOrder()
{
    Recorder recorder;
    SecondProcess sender = sendElsewhere(10000, 100);
    QTRY_COMPARE_WITH_TIMEOUT(recorder.texts.size(), 10000, 60000);
    QCOMPARE(recorder.texts, numbers(10000));
    for (int i = 0; i < 10000; ++i) {
        QCOMPARE(recorder.bytes.at(i), QByteArray(100, char(i)));
    }
    QCOMPARE(sender.waitForEnd(), 0);
}

void TestQCopChannel::tenThousandMessagesLeaveCompleteAndInOrder()
{
    const auto elsewhere = listenElsewhere();
    QVERIFY(elsewhere);
    elsewhere->writeLine("collect");
    QVERIFY(elsewhere->waitForLine("collecting"));
    for (int i = 0; i < 10000; ++i) {
        QVERIFY(QCopChannel::send(Name, QString::number(i), QByteArray(100, char(i))));
    }
    QTRY_COMPARE_WITH_TIMEOUT(elsewhere->count(), 10000, 60000);
    elsewhere->writeLine("print");
    for (int i = 0; i < 10000; ++i) {
        QCOMPARE(elsewhere->nextLine(), got(QString::number(i), QByteArray(100, char(i))));
    }
}

void TestQCopChannel::eachOfSeveralSendersKeepsItsOrder()
{
    Recorder recorder;
    SecondProcess first = sendElsewhere(2000, 1);
    SecondProcess second = sendElsewhere(2000, 2);
    SecondProcess third = sendElsewhere(2000, 3);
    QTRY_COMPARE_WITH_TIMEOUT(recorder.texts.size(), 6000, 60000);
    for (int size = 1; size <= 3; ++size) {
        QStringList ofSender;
        for (int i = 0; i < recorder.texts.size(); ++i) {
            if (recorder.bytes.at(i).size() == size) {
                ofSender += recorder.texts.at(i);
            }
        }
        QCOMPARE(ofSender, numbers(2000));
    }
}

void TestQCopChannel::aLargeMessageArrivesAndALargerOneIsRefused()
{
    constexpr int Largest = 16 * 1024 * 1024 - 2 * 4 - 2 * 1; // two lengths, one letter
    Recorder recorder;
    SecondProcess sender = sendElsewhere(1, Largest);
    QTRY_COMPARE_WITH_TIMEOUT(recorder.texts.size(), 1, 60000);
    QCOMPARE(recorder.bytes.at(0).size(), Largest);
    QCOMPARE(sender.waitForEnd(), 0);

    expectRefusal(QStringLiteral("^A message of more than 16777216 bytes is not sent"));
    QVERIFY(!QCopChannel::send(Name, QStringLiteral("0"), QByteArray(Largest + 1, 0)));
    QVERIFY(QCopChannel::send(Name, QStringLiteral("last")));
    QTRY_COMPARE(recorder.texts.value(1), QStringLiteral("last"));
}

void TestQCopChannel::messagesToABusyListenerArriveLater()
{
    const auto elsewhere = listenElsewhere();
    QVERIFY(elsewhere);
    elsewhere->writeLine("busy");
    QVERIFY(elsewhere->waitForLine("busy"));
    for (const QString& number : numbers(20)) {
        SecondProcess sender = sendElsewhere(1, number.toInt());
        QCOMPARE(sender.waitForEnd(), 0);
    }
    elsewhere->writeLine("go on");
    for (int i = 0; i < 20; ++i) {
        // In order even though each came from a process of its own, one after the other.
        QCOMPARE(elsewhere->nextLine(), got(QStringLiteral("0"), QByteArray(i, 0)));
    }
}

void TestQCopChannel::probesOfABusyListenerUseNothingUp()
{
    const auto elsewhere = listenElsewhere();
    QVERIFY(elsewhere);
    elsewhere->writeLine("busy");
    QVERIFY(elsewhere->waitForLine("busy"));
    for (int i = 0; i < 1000; ++i) {
        QVERIFY(QCopChannel::isRegistered(Name));
    }
    QVERIFY(QCopChannel::send(Name, QStringLiteral("still heard")));
    elsewhere->writeLine("go on");
    QCOMPARE(elsewhere->nextLine(), got(QStringLiteral("still heard"), {}));
}

void TestQCopChannel::aNestedEventLoopKeepsTheOrderOfAnotherProcess()
{
    QCopChannel channel(Name);
    QStringList texts;
    QEventLoop nested;
    connect(&channel, &QCopChannel::received, this, [&](const QString& msg) {
        texts += msg;
        if (msg == QStringLiteral("3")) {
            nested.exec();
        } else if (msg == QStringLiteral("900")) {
            nested.quit();
        }
    });
    SecondProcess sender = sendElsewhere(1000, 100);
    QTRY_COMPARE_WITH_TIMEOUT(texts.size(), 1000, 60000);
    QCOMPARE(texts, numbers(1000));
}

void TestQCopChannel::aSlotMayDeleteTheObjectWithMessagesOfAnotherProcessWaiting()
{
    auto* channel = new QCopChannel(Name);
    int count = 0;
    connect(channel, &QCopChannel::received, this, [&] {
        ++count;
        delete channel;
    });
    SecondProcess sender = sendElsewhere(100, 100);
    QCOMPARE(sender.waitForEnd(), 0);
    QTRY_COMPARE(count, 1);
    QCoreApplication::processEvents();
    QCOMPARE(count, 1);
}

void TestQCopChannel::aForkedProcessSendsOnConnectionsOfItsOwn()
{
    Recorder recorder;
    SecondProcess sender(QStringLiteral("channel_peer"), { QStringLiteral("fork"), Name });
    QCOMPARE(sender.waitForEnd(), 0);
    QTRY_COMPARE(recorder.texts.size(), 3);
    recorder.texts.sort();
    QCOMPARE(recorder.texts, numbers(3));
}

void TestQCopChannel::anyTextIsAName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("otherName");

    const auto row = [](const char* title, const QString& name, const QString& otherName) {
        QTest::newRow(title) << name << otherName;
    };
    const QString longName(300, QLatin1Char('n'));
    row("300 characters", longName, longName.left(299) + QLatin1Char('m'));
    row("with slashes", QStringLiteral("../Taskbar/Mounts/"), QStringLiteral("../Taskbar/Mounts"));
    row("beyond ASCII", QString::fromUtf8("Größe 線"), QString::fromUtf8("Grösse 線"));
    row("upper and lower case", QStringLiteral("Taskbar"), QStringLiteral("taskbar"));
    row("a blank more", QStringLiteral("a "), QStringLiteral("a"));
    row("dots", QStringLiteral(".."), QStringLiteral("."));
}

void TestQCopChannel::anyTextIsAName()
{
    QFETCH(const QString, name);
    QFETCH(const QString, otherName);
    const auto elsewhere = listenElsewhere({ name });
    QVERIFY(elsewhere);
    QVERIFY(QCopChannel::isRegistered(name));
    QVERIFY(!QCopChannel::isRegistered(otherName));

    Recorder recorder(name);
    QVERIFY(!QCopChannel::send(otherName, QStringLiteral("to another")));
    QVERIFY(QCopChannel::send(name, QStringLiteral("to this")));
    QCOMPARE(elsewhere->nextLine(), got(QStringLiteral("to this"), {}));
    QTRY_COMPARE(recorder.texts, QStringList { QStringLiteral("to this") });

    SecondProcess sender = sendElsewhere(1, 1, name);
    QCOMPARE(sender.waitForEnd(), 0);
    QTRY_COMPARE(recorder.texts.size(), 2);
}

void TestQCopChannel::isRegisteredAsLongAsAListenerLives()
{
    QVERIFY(!QCopChannel::isRegistered(Name));
    {
        const QCopChannel first(Name);
        QVERIFY(QCopChannel::isRegistered(Name));
        {
            const QCopChannel second(Name);
        }
        QVERIFY(QCopChannel::isRegistered(Name));
        QVERIFY(!QCopChannel::isRegistered(QStringLiteral("another")));
    }
    QVERIFY(!QCopChannel::isRegistered(Name));

    const auto elsewhere = listenElsewhere();
    QVERIFY(elsewhere);
    QVERIFY(QCopChannel::isRegistered(Name));
    elsewhere->writeLine("close");
    QVERIFY(elsewhere->waitForLine("closed"));
    QVERIFY(!QCopChannel::isRegistered(Name));
}

void TestQCopChannel::aClosedListenerLeavesNoFiles()
{
    const auto elsewhere = listenElsewhere();
    QVERIFY(elsewhere);
    QCOMPARE(channelFiles().size(), 2);
    QVERIFY(QCopChannel::send(Name, QStringLiteral("heard")));
    QCOMPARE(elsewhere->nextLine(), got(QStringLiteral("heard"), {}));
    elsewhere->writeLine("close");
    QVERIFY(elsewhere->waitForLine("closed"));
    QCOMPARE(channelFiles(), QStringList());
    QVERIFY(!QCopChannel::send(Name, QStringLiteral("not heard")));
}

void TestQCopChannel::aKilledListenerIsNotRegistered()
{
    const auto elsewhere = listenElsewhere();
    QVERIFY(elsewhere);
    elsewhere->kill();
    QCOMPARE(channelFiles().size(), 2); // nobody has cleaned up yet
    QVERIFY(!QCopChannel::isRegistered(Name));
    QCOMPARE(channelFiles(), QStringList());
}

void TestQCopChannel::aKilledListenerIsForgottenByTheNextSend_data()
{
    QTest::addColumn<bool>("connected");
    QTest::newRow("never sent to") << false;
    QTest::newRow("sent to before") << true;
}

void TestQCopChannel::aKilledListenerIsForgottenByTheNextSend()
{
    QFETCH(const bool, connected);
    const auto elsewhere = listenElsewhere();
    QVERIFY(elsewhere);
    if (connected) {
        QVERIFY(QCopChannel::send(Name, QStringLiteral("before")));
        QCOMPARE(elsewhere->nextLine(), got(QStringLiteral("before"), {}));
    }
    elsewhere->kill();
    QCOMPARE(channelFiles(QStringLiteral("*.sock")).size(), 1);

    QElapsedTimer timer;
    timer.start();
    QVERIFY(!QCopChannel::send(Name, QStringLiteral("nobody is there")));
    QVERIFY2(timer.elapsed() < 900, "a dead listener is not waited for");
    QCOMPARE(channelFiles(), QStringList());

    const auto next = listenElsewhere();
    QVERIFY(next);
    QVERIFY(QCopChannel::send(Name, QStringLiteral("somebody is")));
    QCOMPARE(next->nextLine(), got(QStringLiteral("somebody is"), {}));
}

void TestQCopChannel::aKilledListenerDoesNotKeepTheOthersFromAMessage()
{
    const auto first = listenElsewhere();
    const auto second = listenElsewhere();
    const auto third = listenElsewhere();
    QVERIFY(first && second && third);
    QVERIFY(QCopChannel::send(Name, QStringLiteral("before")));
    second->kill();
    QVERIFY(QCopChannel::send(Name, QStringLiteral("after")));
    for (ElsewhereListener* listener : { first.get(), third.get() }) {
        QCOMPARE(listener->nextLine(), got(QStringLiteral("before"), {}));
        QCOMPARE(listener->nextLine(), got(QStringLiteral("after"), {}));
    }
    QCOMPARE(channelFiles(QStringLiteral("*.sock")).size(), 2);
}

void TestQCopChannel::unfinishedFilesOfTheDeadAreRemoved()
{
    QString base;
    {
        const QCopChannel channel(Name);
        base = channelFiles(QStringLiteral("*.sock")).value(0).chopped(5);
    }
    const auto touch = [](const QString& fileName) {
        QFile file(channelFolder().filePath(fileName));
        QVERIFY(file.open(QIODevice::WriteOnly));
    };
    touch(base + QStringLiteral(".lock")); // ended before it had a socket
    touch(base + QStringLiteral(".new"));
    touch(QLatin1Char('.') + base + QStringLiteral(".0")); // ended before it had the lock
    touch(base + QStringLiteral("1.sock")); // its lock was removed by hand
    QVERIFY(!QCopChannel::isRegistered(Name));
    QCOMPARE(channelFiles(), QStringList());
}

void TestQCopChannel::aListenerThatHasJustBeenMadeIsFound()
{
    {
        const QCopChannel makesTheFolder(Name);
    }
    const QByteArray one = frame(payload(QStringLiteral("1"), "data"));
    const QByteArray two = frame(payload(QStringLiteral("2"), {}));
    // Many times, because it happens within one tick of the clock that the folder's times show.
    for (int i = 0; i < 100; ++i) {
        RawListener first(2 * i);
        QVERIFY(QCopChannel::send(Name, QStringLiteral("1"), "data"));
        RawListener second(2 * i + 1);
        QVERIFY(QCopChannel::isRegistered(Name));
        QVERIFY(QCopChannel::send(Name, QStringLiteral("2")));
        QCOMPARE(first.read(), one + two);
        QCOMPARE(second.read(), two);
    }
    QVERIFY(!QCopChannel::send(Name, QStringLiteral("nobody is left")));
}

void TestQCopChannel::keepsNoFileDescriptors()
{
    const auto use = [] {
        Recorder recorder;
        const auto elsewhere = listenElsewhere();
        QVERIFY(elsewhere);
        QVERIFY(QCopChannel::isRegistered(QStringLiteral("another")));
        QVERIFY(QCopChannel::send(Name, QStringLiteral("0")));
        SecondProcess sender = sendElsewhere(1, 1);
        QTRY_COMPARE(recorder.texts.size(), 2);
        elsewhere->kill();
        QVERIFY(QCopChannel::send(Name, QStringLiteral("1"))); // to ourselves
    };
    const QCopChannel other(QStringLiteral("another"));
    use();
    const int before = openDescriptors();
    use();
    QCOMPARE(openDescriptors(), before);
}

void TestQCopChannel::aStoppedListenerCostsOneSecondAtMost_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("small messages") << 100;
    QTest::newRow("messages of several pages") << 10'000;
    QTest::newRow("messages larger than the queue") << 1'000'000;
}

void TestQCopChannel::aStoppedListenerCostsOneSecondAtMost()
{
    QFETCH(const int, size);
    const auto elsewhere = listenElsewhere();
    QVERIFY(elsewhere);
    QVERIFY(QCopChannel::send(Name, QStringLiteral("before")));
    QCOMPARE(elsewhere->nextLine(), got(QStringLiteral("before"), {}));
    elsewhere->sendSignal(SIGSTOP);

    QElapsedTimer timer;
    timer.start();
    int accepted = 0;
    while (QCopChannel::send(Name, QString::number(accepted), QByteArray(size, 'x'))) {
        ++accepted;
    }
    // One second of waiting; the rest is for filling the queue on a slow machine.
    QVERIFY2(timer.elapsed() < 10'000, qPrintable(QString::number(timer.elapsed())));
    timer.restart();
    for (int i = 0; i < 100; ++i) {
        QVERIFY(!QCopChannel::send(Name, QStringLiteral("lost"), QByteArray(size, 'x')));
    }
    // Not a second each.
    QVERIFY2(timer.elapsed() < 20'000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(QCopChannel::isRegistered(Name));

    elsewhere->sendSignal(SIGCONT);
    for (int i = 0; i < accepted; ++i) {
        QCOMPARE(elsewhere->nextLine(), got(QString::number(i), QByteArray(size, 'x')));
    }
    // What was in the queue in part is completed by the next message, or else was never there.
    QTRY_VERIFY(QCopChannel::send(Name, QStringLiteral("after")));
    QByteArray line = elsewhere->nextLine();
    if (size == 1'000'000) {
        QCOMPARE(line, got(QString::number(accepted), QByteArray(size, 'x')));
        line = elsewhere->nextLine();
    }
    QCOMPARE(line, got(QStringLiteral("after"), {}));
}

void TestQCopChannel::aStoppedListenerDoesNotKeepAMessageFromTheOthers()
{
    const auto stopped = listenElsewhere();
    const auto running = listenElsewhere();
    Recorder here;
    QVERIFY(stopped && running);
    stopped->sendSignal(SIGSTOP);
    const QByteArray large(1'000'000, 'x'); // fits into no queue
    QVERIFY(!QCopChannel::send(Name, QStringLiteral("large"), large));
    QVERIFY(!QCopChannel::send(Name, QStringLiteral("small")));
    QCOMPARE(running->nextLine(), got(QStringLiteral("large"), large));
    QCOMPARE(running->nextLine(), got(QStringLiteral("small"), {}));
    QTRY_COMPARE(here.texts, (QStringList { QStringLiteral("large"), QStringLiteral("small") }));
}

void TestQCopChannel::aStoppedAndKilledListenerIsForgotten()
{
    const auto elsewhere = listenElsewhere();
    QVERIFY(elsewhere);
    elsewhere->sendSignal(SIGSTOP);
    QVERIFY(!QCopChannel::send(Name, QStringLiteral("large"), QByteArray(1'000'000, 'x')));
    QCOMPARE(channelFiles(QStringLiteral("*.sock")).size(), 1);
    elsewhere->kill();
    QVERIFY(!QCopChannel::send(Name, QStringLiteral("small")));
    QCOMPARE(channelFiles(), QStringList());
}

void TestQCopChannel::aBadFrameClosesItsConnectionAndNothingElse_data()
{
    QTest::addColumn<QByteArray>("bytes");

    const QByteArray good = payload(QStringLiteral("bad"), "data");
    QTest::newRow("garbage") << QByteArray("GET / HTTP/1.1\r\n\r\n");
    QTest::newRow("version 0") << frame(good, 0);
    QTest::newRow("version 2") << frame(good, 2);
    QTest::newRow("1 GiB announced") << frame(good, 1, 1u << 30);
    QTest::newRow("all ones announced") << frame(good, 1, 0xffffffff);
    QTest::newRow("a byte above the limit") << frame(good, 1, 16 * 1024 * 1024 + 1);
    QTest::newRow("nothing in it") << frame({});
    QTest::newRow("a byte too many") << frame(good + 'x');
    QTest::newRow("a byte too few") << frame(good.chopped(1));
    QTest::newRow("a text longer than the frame")
        << frame(QByteArray("\x7f\xff\xff\xf0", 4) + QByteArray(100, 'x'));
    QTest::newRow("a text of half characters") << frame(QByteArray("\0\0\0\3xxx\0\0\0\0", 11));
    QTest::newRow("good, then bad") << frame(payload(QStringLiteral("good"), {})) + "bad";
}

void TestQCopChannel::aBadFrameClosesItsConnectionAndNothingElse()
{
    QFETCH(const QByteArray, bytes);
    Recorder recorder;
    RawClient silent;
    RawClient bad;
    RawClient good;
    QVERIFY(silent.isConnected() && bad.isConnected() && good.isConnected());
    QVERIFY(good.write(frame(payload(QStringLiteral("before"), {}))));
    QTRY_COMPARE(recorder.texts, QStringList { QStringLiteral("before") });

    expectRefusal(QStringLiteral("^A channel has closed a connection that sent no valid message"));
    QVERIFY(bad.write(bytes));
    bool ended = false;
    std::thread waiting([&] { ended = bad.waitForEnd(); });
    QVERIFY(good.write(frame(payload(QStringLiteral("after"), {}))));
    QTRY_COMPARE(recorder.texts.value(recorder.texts.size() - 1), QStringLiteral("after"));
    waiting.join();
    QVERIFY(ended);
    QVERIFY(!recorder.texts.contains(QStringLiteral("bad")));
    QVERIFY(silent.write(frame(payload(QStringLiteral("at last"), {}))));
    QTRY_COMPARE(recorder.texts.value(recorder.texts.size() - 1), QStringLiteral("at last"));
}

void TestQCopChannel::anUnfinishedFrameKeepsNobodyWaiting_data()
{
    QTest::addColumn<QByteArray>("bytes");

    const QByteArray whole = frame(payload(QStringLiteral("half"), "data"));
    QTest::newRow("silent") << QByteArray();
    QTest::newRow("version only") << whole.left(1);
    QTest::newRow("half the length") << whole.left(3);
    QTest::newRow("header only") << whole.left(5);
    QTest::newRow("half the payload") << whole.left(12);
    QTest::newRow("all but a byte") << whole.chopped(1);
}

void TestQCopChannel::anUnfinishedFrameKeepsNobodyWaiting()
{
    QFETCH(const QByteArray, bytes);
    Recorder recorder;
    {
        RawClient unfinished;
        QVERIFY(unfinished.isConnected() && unfinished.write(bytes));
        SecondProcess sender = sendElsewhere(3, 1);
        QTRY_COMPARE(recorder.texts, numbers(3));
    }
    // It has gone without finishing it.
    QVERIFY(QCopChannel::send(Name, QStringLiteral("3")));
    QTRY_COMPARE(recorder.texts, numbers(4));
}

void TestQCopChannel::whatIsAnnouncedTakesNoMemory()
{
    // The listener complains of each client, and rightly so.
    const Environment quiet("QT_LOGGING_RULES", QStringLiteral("UtilityWidgets.warning=false"));
    const auto elsewhere = listenElsewhere();
    QVERIFY(elsewhere);
    QVERIFY(QCopChannel::send(Name, QStringLiteral("before")));
    QVERIFY(elsewhere->waitForLine(got(QStringLiteral("before"), {})));
    elsewhere->writeLine("rss");
    const int before = elsewhere->nextLine().toInt();
    QVERIFY(before > 1000);

    std::vector<std::unique_ptr<RawClient>> clients;
    for (int i = 0; i < 100; ++i) {
        clients.push_back(std::make_unique<RawClient>());
        clients.back()->write(frame("begun", 1, 16 * 1024 * 1024)); // the most that is believed
        clients.push_back(std::make_unique<RawClient>());
        clients.back()->write(frame("begun", 1, 1u << 30));
        QVERIFY(clients.back()->waitForEnd());
    }
    QVERIFY(QCopChannel::send(Name, QStringLiteral("after")));
    QVERIFY(elsewhere->waitForLine(got(QStringLiteral("after"), {})));
    elsewhere->writeLine("rss");
    const int after = elsewhere->nextLine().toInt();
    QVERIFY2(after > 1000 && after - before < 4000,
             qPrintable(QStringLiteral("%1 kB, then %2 kB").arg(before).arg(after)));
}

void TestQCopChannel::aFrameMayComeInPieces()
{
    Recorder recorder;
    RawClient client;
    const QByteArray bytes = frame(payload(QStringLiteral("0"), "data"))
        + frame(payload(QStringLiteral("1"), {})) + frame(payload(QStringLiteral("2"), "x"));
    for (const char byte : bytes) {
        QVERIFY(client.write(QByteArray(1, byte)));
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE(recorder.texts, numbers(3));
    QCOMPARE(recorder.bytes, (QByteArrayList { "data", QByteArray(), "x" }));
}

void TestQCopChannel::moreConnectionsThanAllowedLoseNothing()
{
    const auto elsewhere = listenElsewhere();
    QVERIFY(elsewhere);
    elsewhere->writeLine("busy");
    QVERIFY(elsewhere->waitForLine("busy"));
    QVERIFY(QCopChannel::send(Name, QStringLiteral("0"))); // the oldest of all connections
    std::vector<std::unique_ptr<RawClient>> silent;
    for (int i = 0; i < 600; ++i) {
        silent.push_back(std::make_unique<RawClient>());
        QVERIFY(silent.back()->isConnected());
    }
    elsewhere->writeLine("go on");
    QVERIFY(silent.front()->waitForEnd()); // so ours is closed as well
    for (int i = 1; i < 10; ++i) {
        QVERIFY(QCopChannel::send(Name, QString::number(i)));
    }
    for (int i = 0; i < 10; ++i) {
        QCOMPARE(elsewhere->nextLine(), got(QString::number(i), {}));
    }
}

void TestQCopChannel::anotherUserIsRefused()
{
    Recorder recorder;
    const QString folder = channelFolder().path();
    if (::geteuid() != 0) {
        qInfo("Only root can act as another user: here the folder's mode alone keeps them out.");
        QCOMPARE(QFileInfo(folder).permissions() & QFile::Permissions(0x77), QFile::Permissions());
        return;
    }
    // Opens every door before the last one.
    const QString socket = channelFiles(QStringLiteral("*.sock")).value(0);
    const QStringList doors { runtimeFolder() + QStringLiteral("/.."), runtimeFolder(), folder,
                              folder + QLatin1Char('/') + socket };
    for (const QString& path : doors) {
        QCOMPARE(::chmod(path.toUtf8().constData(), 0777), 0);
    }
    SecondProcess intruder(QStringLiteral("channel_peer"),
                           { QStringLiteral("intrude"), folder, socket });
    QVERIFY(intruder.waitForLine("sent"));
    expectRefusal(QStringLiteral("^A channel has refused a process of another user"));
    QTRY_VERIFY(intruder.hasLine());
    QCOMPARE(intruder.nextLine(), QByteArray("closed"));
    QCOMPARE(recorder.texts, QStringList());
    QCOMPARE(::chmod(folder.toUtf8().constData(), 0700), 0);
}

void TestQCopChannel::theFolderIsForItsOwnerAlone()
{
    QTemporaryDir runtime;
    const Environment environment("XDG_RUNTIME_DIR", runtime.path());
    const mode_t mask = ::umask(0);
    const QCopChannel channel(Name);
    ::umask(mask);
    struct stat folder = {};
    QCOMPARE(::stat(channelFolder().path().toUtf8().constData(), &folder), 0);
    QCOMPARE(folder.st_mode & 07777u, 0700u);
    QCOMPARE(folder.st_uid, ::geteuid());
}

void TestQCopChannel::withoutARuntimeFolderAPrivateOneInTheTemporaryFolderServes_data()
{
    QTest::addColumn<std::optional<QString>>("runtime");
    using Optional = std::optional<QString>;
    QTest::newRow("not set") << Optional();
    QTest::newRow("empty") << Optional(QStringLiteral(""));
    QTest::newRow("relative") << Optional(QStringLiteral("run"));
    QTest::newRow("not there") << Optional(QStringLiteral("/run/user/nobody"));
}

void TestQCopChannel::withoutARuntimeFolderAPrivateOneInTheTemporaryFolderServes()
{
    QFETCH(const std::optional<QString>, runtime);
    QTemporaryDir temporary;
    const Environment environment("XDG_RUNTIME_DIR", runtime);
    const Environment temporaryFolder("TMPDIR", temporary.path());
    Recorder recorder;
    SecondProcess sender = sendElsewhere(1, 1);
    QCOMPARE(sender.waitForEnd(), 0);
    QTRY_COMPARE(recorder.texts, numbers(1));
    struct stat folder = {};
    const QString path = temporary.filePath(QStringLiteral("qcop-%1").arg(::geteuid()));
    QCOMPARE(::stat(path.toUtf8().constData(), &folder), 0);
    QCOMPARE(folder.st_mode & 07777u, 0700u);
}

void TestQCopChannel::aFolderThatIsNotOursAloneIsRefused_data()
{
    QTest::addColumn<QString>("runtime"); // in the temporary folder of the test
    QTest::addColumn<QString>("complaint");

    const QString folder = QStringLiteral("^The folder of the channels .* is refused: ");
    const QString runtime = QStringLiteral("^The runtime folder .* is refused: ");
    QTest::newRow("a symbolic link") << QStringLiteral("link") << folder;
    QTest::newRow("a link to nowhere") << QStringLiteral("broken") << folder;
    QTest::newRow("a file") << QStringLiteral("file") << folder;
    QTest::newRow("open to the group") << QStringLiteral("group") << folder;
    QTest::newRow("open to others") << QStringLiteral("others") << folder;
    QTest::newRow("in a runtime folder that is a link") << QStringLiteral("runlink") << runtime;
    QTest::newRow("in a runtime folder that is a link, with slash")
        << QStringLiteral("runlink/") << runtime;
    if (::geteuid() == 0) {
        QTest::newRow("somebody else's") << QStringLiteral("foreign") << folder;
        QTest::newRow("in somebody else's runtime folder")
            << QStringLiteral("runforeign") << runtime;
    } else {
        qInfo("Only root can give a folder away: root's own folder stands for somebody else's.");
        QTest::newRow("in somebody else's runtime folder") << QStringLiteral("/usr") << runtime;
    }
}

void TestQCopChannel::aFolderThatIsNotOursAloneIsRefused()
{
    QFETCH(const QString, runtime);
    QFETCH(const QString, complaint);
    QTemporaryDir temporary;
    const QDir root(temporary.path());
    const auto path = [&](const char* name) {
        return root.filePath(QString::fromLatin1(name)).toUtf8();
    };
    for (const char* name :
         { "link", "broken", "file", "group", "others", "foreign", "elsewhere" }) {
        QVERIFY(::mkdir(path(name).constData(), 0700) == 0);
    }
    QCOMPARE(::symlink(path("elsewhere").constData(), path("link/qcop").constData()), 0);
    QCOMPARE(::symlink("nowhere", path("broken/qcop").constData()), 0);
    QCOMPARE(::symlink(path("elsewhere").constData(), path("runlink").constData()), 0);
    QVERIFY(QFile(root.filePath(QStringLiteral("file/qcop"))).open(QIODevice::WriteOnly));
    for (const auto& [name, mode] :
         { std::pair("group/qcop", 0710), std::pair("others/qcop", 0701),
           std::pair("foreign/qcop", 0700), std::pair("runforeign", 0700) }) {
        QCOMPARE(::mkdir(path(name).constData(), 0700), 0);
        QCOMPARE(::chmod(path(name).constData(), mode_t(mode)), 0);
    }
    if (::geteuid() == 0) {
        QCOMPARE(::chown(path("foreign/qcop").constData(), 12345, 12345), 0);
        QCOMPARE(::chown(path("runforeign").constData(), 12345, 12345), 0);
    }

    const Environment environment("XDG_RUNTIME_DIR",
                                  runtime.startsWith(QLatin1Char('/'))
                                      ? runtime
                                      : temporary.path() + QLatin1Char('/') + runtime);
    expectRefusal(complaint);
    QVERIFY(!QCopChannel::isRegistered(Name));
    expectRefusal(complaint);
    QVERIFY(!QCopChannel::send(Name, QStringLiteral("to nobody")));
    expectRefusal(complaint);
    Recorder recorder;
    expectRefusal(complaint);
    QVERIFY(QCopChannel::send(Name, QStringLiteral("to ourselves")));
    QTRY_COMPARE(recorder.texts, QStringList { QStringLiteral("to ourselves") });

    // Nothing was made where others have a hand in.
    QVERIFY(QDir(root.filePath(QStringLiteral("elsewhere"))).isEmpty());
    QVERIFY(!QFileInfo::exists(root.filePath(QStringLiteral("runforeign/qcop"))));
    QVERIFY(QDir(root.filePath(QStringLiteral("foreign/qcop"))).isEmpty());
}

void TestQCopChannel::aFolderThatWasReplacedIsNoticed()
{
    QTemporaryDir runtime;
    const Environment environment("XDG_RUNTIME_DIR", runtime.path());
    const auto before = listenElsewhere();
    QVERIFY(before);
    QVERIFY(QCopChannel::send(Name, QStringLiteral("before")));
    QVERIFY(before->waitForLine(got(QStringLiteral("before"), {})));

    QVERIFY(QDir(runtime.path()).rename(QStringLiteral("qcop"), QStringLiteral("away")));
    const auto after = listenElsewhere();
    QVERIFY(after);
    QVERIFY(QCopChannel::send(Name, QStringLiteral("after")));
    QVERIFY(after->waitForLine(got(QStringLiteral("after"), {})));
}

UW_TEST_MAIN_WITH(QCoreApplication, TestQCopChannel)

#include "tst_qcopchannel.moc"
