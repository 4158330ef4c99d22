// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "qcopchannel.h"
#include "support/privatemounts.h"
#include "support/test.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

namespace {

struct Message
{
    QString name;
    QVariant content; // a list for "mounts", otherwise a path

    bool operator==(const Message& other) const
    {
        return name == other.name && content == other.content;
    }
};

Message mounts(const QStringList& paths)
{
    return { QStringLiteral("mounts"), paths };
}

Message added(const QString& path)
{
    return { QStringLiteral("add"), path };
}

Message removed(const QString& path)
{
    return { QStringLiteral("remove"), path };
}

/// For the messages of failed comparisons.
char* toString(const Message& message)
{
    return QTest::toString(message.name + QStringLiteral(": ")
                           + message.content.toStringList().join(QLatin1Char(',')));
}

template <typename Content> QVariant contentOf(const QByteArray& data)
{
    Content content;
    QDataStream stream(data);
    stream >> content;
    return stream.status() == QDataStream::Ok && stream.atEnd() ? QVariant(content) : QVariant();
}

/// What the service sends.
class Listener : public QObject
{
public:
    Listener()
    {
        connect(&m_channel, &QCopChannel::received, this,
                [this](const QString& name, const QByteArray& data) {
                    m_messages.append({ name,
                                        name == QLatin1String("mounts")
                                            ? contentOf<QStringList>(data)
                                            : contentOf<QString>(data) });
                });
    }

    /// The next message, or an empty one if none comes.
    Message next()
    {
        return QTest::qWaitFor([this] { return !m_messages.isEmpty(); }, 20000)
            ? m_messages.takeFirst()
            : Message();
    }

private:
    QCopChannel m_channel { QStringLiteral("OxWindowManager/Mounts") };
    QList<Message> m_messages;
};

bool isServed()
{
    return QCopChannel::isRegistered(QStringLiteral("OxWindowManager"));
}

void askForMounts()
{
    QCopChannel::send(QStringLiteral("OxWindowManager"), QStringLiteral("mounts"), {});
    QCopChannel::flush();
}

struct Result
{
    int exitCode;
    QString output;
    QString errors;
};

Result run(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(MOUNTSERVICE), arguments);
    if (!process.waitForFinished()) {
        return { -1, {}, process.errorString() };
    }
    return { process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
             QString::fromLocal8Bit(process.readAllStandardOutput()),
             QString::fromLocal8Bit(process.readAllStandardError()) };
}

/// The service, watching a folder "media" of its own, and what it sends.
class Service
{
public:
    explicit Service(const QStringList& folders = { QStringLiteral("media") })
        : m_mounts(QStringLiteral(MOUNTSERVICE), paths(folders))
    {
        QDir(m_folder.path()).mkdir(QStringLiteral("media"));
    }

    /// Waits until it has told that nothing is mounted; returns what went wrong.
    QByteArray start()
    {
        QByteArray failure = m_mounts.start();
        if (!failure.isEmpty()) {
            return failure;
        }
        return listener.next() == ::mounts({}) ? QByteArray() : QByteArray("it says nothing");
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }
    PrivateMounts* mounts() { return &m_mounts; }

    Listener listener;

private:
    QStringList paths(QStringList folders) const
    {
        for (QString& folder : folders) {
            folder = path(folder);
        }
        return folders;
    }

    QTemporaryDir m_folder;
    PrivateMounts m_mounts;
};

} // namespace

class TestMountService : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void explainsItself();
    void refusesWrongCommandLines_data();
    void refusesWrongCommandLines();
    void endsCleanlyWhenAskedTo_data();
    void endsCleanlyWhenAskedTo();
    void tellsOfMediaThatComeAndGo_data();
    void tellsOfMediaThatComeAndGo();
    void answersWithWhatIsMounted();
    void otherMessagesGetNoAnswer();
    void saysNothingOfOtherPlaces();
    void tellsOfASecondMountOfOnePlaceOnce();
    void watchesSeveralFolders();
    void watchesAFolderThatIsMadeLater();
    void watchesAFolderBehindALink();
    void anotherServiceTellsWhatIsMountedWhenItStarts();
};

void TestMountService::explainsItself()
{
    const Result help = run({ QStringLiteral("--help") });
    QCOMPARE(help.exitCode, 0);
    QVERIFY2(help.output.contains(QStringLiteral("[options] folder...")), qPrintable(help.output));

    const Result version = run({ QStringLiteral("--version") });
    QCOMPARE(version.exitCode, 0);
    QCOMPARE(version.output, QStringLiteral("mountservice " VERSION "\n"));
}

void TestMountService::refusesWrongCommandLines_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("errors");

    QTest::newRow("no folder") << QStringList()
                               << QStringLiteral("mountservice: no folder given; see --help\n");
    QTest::newRow("unknown option")
        << QStringList { QStringLiteral("--all"), QStringLiteral("/media") }
        << QStringLiteral("mountservice: Unknown option 'all'.\n");
}

void TestMountService::refusesWrongCommandLines()
{
    QFETCH(QStringList, arguments);

    const Result result = run(arguments);

    QCOMPARE(result.exitCode, 2);
    QTEST(result.errors, "errors");
    QCOMPARE(result.output, QString());
}

void TestMountService::endsCleanlyWhenAskedTo_data()
{
    QTest::addColumn<int>("signal");

    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
}

void TestMountService::endsCleanlyWhenAskedTo()
{
    QFETCH(int, signal);
    Service service;
    QCOMPARE(service.start(), QByteArray());
    QVERIFY(isServed());

    QCOMPARE(service.mounts()->end(signal), 0);

    QVERIFY(!isServed());
}

void TestMountService::tellsOfMediaThatComeAndGo_data()
{
    QTest::addColumn<QString>("label");

    QTest::newRow("plain") << QStringLiteral("usb");
    QTest::newRow("blank") << QStringLiteral("My Stick");
    QTest::newRow("umlaut and emoji") << QStringLiteral("Kühler 🚀");
    QTest::newRow("tab and backslash") << QStringLiteral("a\tb\\c");
    QTest::newRow("number sign") << QStringLiteral("#1");
}

void TestMountService::tellsOfMediaThatComeAndGo()
{
    QFETCH(QString, label);
    Service service;
    QCOMPARE(service.start(), QByteArray());
    const QString path = service.path(QStringLiteral("media/") + label);

    QCOMPARE(service.mounts()->mount(path), QByteArray());
    QCOMPARE(service.listener.next(), added(path));

    QCOMPARE(service.mounts()->unmount(path), QByteArray());
    QCOMPARE(service.listener.next(), removed(path));
}

void TestMountService::answersWithWhatIsMounted()
{
    Service service;
    QCOMPARE(service.start(), QByteArray());
    askForMounts();
    QCOMPARE(service.listener.next(), mounts({}));

    const QString first = service.path(QStringLiteral("media/b"));
    const QString second = service.path(QStringLiteral("media/a"));
    QCOMPARE(service.mounts()->mount(first), QByteArray());
    QCOMPARE(service.mounts()->mount(second), QByteArray());
    QCOMPARE(service.listener.next(), added(first));
    QCOMPARE(service.listener.next(), added(second));
    askForMounts();
    QCOMPARE(service.listener.next(), mounts({ first, second }));

    QCOMPARE(service.mounts()->unmount(first), QByteArray());
    QCOMPARE(service.listener.next(), removed(first));
    askForMounts();
    QCOMPARE(service.listener.next(), mounts({ second }));
}

void TestMountService::otherMessagesGetNoAnswer()
{
    Service service;
    QCOMPARE(service.start(), QByteArray());

    for (const char* name : { "Mounts", "add", "", "mounts " }) {
        QCopChannel::send(QStringLiteral("OxWindowManager"), QString::fromLatin1(name));
    }
    const QString path = service.path(QStringLiteral("media/usb"));
    QCOMPARE(service.mounts()->mount(path), QByteArray());

    QCOMPARE(service.listener.next(), added(path));
}

void TestMountService::saysNothingOfOtherPlaces()
{
    Service service;
    QCOMPARE(service.start(), QByteArray());
    const QString path = service.path(QStringLiteral("media/usb"));

    QCOMPARE(service.mounts()->mount(service.path(QStringLiteral("mediaserver"))), QByteArray());
    QCOMPARE(service.mounts()->mount(service.path(QStringLiteral("media"))), QByteArray());
    QCOMPARE(service.mounts()->mount(path), QByteArray());

    QCOMPARE(service.listener.next(), added(path));
}

void TestMountService::tellsOfASecondMountOfOnePlaceOnce()
{
    Service service;
    QCOMPARE(service.start(), QByteArray());
    const QString path = service.path(QStringLiteral("media/usb"));
    const QString other = service.path(QStringLiteral("media/other"));

    QCOMPARE(service.mounts()->mount(path), QByteArray());
    QCOMPARE(service.mounts()->mount(path), QByteArray());
    QCOMPARE(service.mounts()->unmount(path), QByteArray());
    QCOMPARE(service.mounts()->mount(other), QByteArray());
    QCOMPARE(service.listener.next(), added(path));
    QCOMPARE(service.listener.next(), added(other));

    QCOMPARE(service.mounts()->unmount(path), QByteArray());
    QCOMPARE(service.listener.next(), removed(path));
}

void TestMountService::watchesSeveralFolders()
{
    Service service({ QStringLiteral("media"), QStringLiteral("mnt") });
    QVERIFY(QDir().mkdir(service.path(QStringLiteral("mnt"))));
    QCOMPARE(service.start(), QByteArray());
    const QString first = service.path(QStringLiteral("media/usb"));
    const QString second = service.path(QStringLiteral("mnt/usb"));

    QCOMPARE(service.mounts()->mount(first), QByteArray());
    QCOMPARE(service.listener.next(), added(first));
    QCOMPARE(service.mounts()->mount(second), QByteArray());
    QCOMPARE(service.listener.next(), added(second));
}

void TestMountService::watchesAFolderThatIsMadeLater()
{
    Service service({ QStringLiteral("later") });
    QCOMPARE(service.start(), QByteArray());
    QVERIFY(QDir().mkdir(service.path(QStringLiteral("later"))));
    const QString path = service.path(QStringLiteral("later/usb"));

    QCOMPARE(service.mounts()->mount(path), QByteArray());

    QCOMPARE(service.listener.next(), added(path));
}

void TestMountService::watchesAFolderBehindALink()
{
    Service service({ QStringLiteral("link") });
    QVERIFY(QFile::link(QStringLiteral("media"), service.path(QStringLiteral("link"))));
    QCOMPARE(service.start(), QByteArray());

    QCOMPARE(service.mounts()->mount(service.path(QStringLiteral("link/usb"))), QByteArray());

    QCOMPARE(service.listener.next(), added(service.path(QStringLiteral("media/usb"))));
}

// Dialogs that were open while there was no service learn what they missed.
void TestMountService::anotherServiceTellsWhatIsMountedWhenItStarts()
{
    Service service;
    QCOMPARE(service.start(), QByteArray());
    QCOMPARE(service.mounts()->end(SIGTERM), 0);
    const QString path = service.path(QStringLiteral("media/usb"));
    QCOMPARE(service.mounts()->mount(path), QByteArray());

    QCOMPARE(service.mounts()->restart(), QByteArray());

    QCOMPARE(service.listener.next(), mounts({ path }));
}

UW_TEST_MAIN_WITH(QCoreApplication, TestMountService)

#include "tst_mountservice.moc"
