// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// The file dialog and what it is told of removable media: by the service that tells of real mounts,
// and by programs that mean no good.

#include "oxfiledialog.h"

#include "qcopchannel.h"
#include "support/filedialoguser.h"
#include "support/modaldialog.h"
#include "support/privatemounts.h"
#include "support/test.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <algorithm>
#include <csignal>
#include <functional>

namespace {

using Script = std::function<void(const FileDialogUser&)>;

constexpr qsizetype Megabyte = 1024 * 1024L;

/// Performs `script` on a running dialog, and then cancels it.
void open(const Script& script)
{
    const FileDialogHome home;
    const QString path =
        whileModal<OxFileDialog>([] { return OxFileDialog::getOpenFileName(nullptr); },
                                 [&script](OxFileDialog* dialog) {
                                     script(FileDialogUser(dialog));
                                     dialog->reject();
                                 });
    QCOMPARE(path, QString());
}

/// A folder "media", empty at first, and the service that tells of what is mounted below it.
class Media
{
public:
    Media()
        : mounts(QStringLiteral(MOUNTSERVICE), { m_folder.path() })
    { }

    QString path(const QString& label) const { return m_folder.filePath(label); }

private:
    QTemporaryDir m_folder;

public:
    PrivateMounts mounts;
};

bool isServed()
{
    return QCopChannel::isRegistered(QStringLiteral("OxWindowManager"));
}

void sendMounts(const char* message, const QByteArray& data)
{
    QVERIFY(QCopChannel::send(QStringLiteral("OxWindowManager/Mounts"),
                              QString::fromLatin1(message), data));
}

/// The longest time in milliseconds that the event loop was held up.
class Heartbeat : public QObject
{
public:
    Heartbeat()
    {
        m_timer.start();
        startTimer(0);
    }
    qint64 longest() const { return m_longest; }

protected:
    void timerEvent(QTimerEvent* /*event*/) override
    {
        m_longest = std::max(m_longest, m_timer.restart());
    }

private:
    QElapsedTimer m_timer;
    qint64 m_longest = 0;
};

} // namespace

class TestOxFileDialogMounts : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void mediaComeAndGoInARunningDialog_data();
    void mediaComeAndGoInARunningDialog();
    void mediaMountedBeforeAreListed();
    void mediaAreListedOnceTheServiceStarts();
    void mediaGoWithTheDialog();
    void hostileMessagesDoNoHarm_data();
    void hostileMessagesDoNoHarm();
    void aFloodOfMediaEndsAtABound();
};

void TestOxFileDialogMounts::mediaComeAndGoInARunningDialog_data()
{
    QTest::addColumn<QString>("label");

    QTest::newRow("plain") << QStringLiteral("STICK");
    QTest::newRow("blank") << QStringLiteral("My Stick");
    QTest::newRow("umlaut and emoji") << QStringLiteral("Kühler 🚀");
}

void TestOxFileDialogMounts::mediaComeAndGoInARunningDialog()
{
    QFETCH(QString, label);
    Media media;
    QCOMPARE(media.mounts.start(), QByteArray());
    QTRY_VERIFY(isServed());

    open([&](const FileDialogUser& user) {
        const QStringList before = user.favoriteNames();
        QCOMPARE(media.mounts.mount(media.path(label)), QByteArray());
        QTRY_COMPARE(user.favoriteNames(), before + QStringList(label));
        user.tapFavorite(label);
        QCOMPARE(user.locationBox->currentText(), media.path(label));

        QCOMPARE(media.mounts.unmount(media.path(label)), QByteArray());
        QTRY_COMPARE(user.favoriteNames(), before);
        QCOMPARE(user.locationBox->currentText(), media.path(label));
    });
}

void TestOxFileDialogMounts::mediaMountedBeforeAreListed()
{
    Media media;
    QCOMPARE(media.mounts.start(), QByteArray());
    QTRY_VERIFY(isServed());
    QCOMPARE(media.mounts.mount(media.path(QStringLiteral("b"))), QByteArray());
    QCOMPARE(media.mounts.mount(media.path(QStringLiteral("a"))), QByteArray());

    open([](const FileDialogUser& user) {
        QTRY_COMPARE(user.favoriteNames().mid(2),
                     QStringList({ QStringLiteral("b"), QStringLiteral("a") }));
    });
}

void TestOxFileDialogMounts::mediaAreListedOnceTheServiceStarts()
{
    Media media;
    QCOMPARE(media.mounts.start(), QByteArray());
    QTRY_VERIFY(isServed());
    QCOMPARE(media.mounts.end(SIGTERM), 0);
    QCOMPARE(media.mounts.mount(media.path(QStringLiteral("STICK"))), QByteArray());

    open([&](const FileDialogUser& user) {
        QCOMPARE(media.mounts.restart(), QByteArray());
        QTRY_COMPARE(user.favoriteRow(QStringLiteral("STICK")), 2);
    });
}

void TestOxFileDialogMounts::mediaGoWithTheDialog()
{
    Media media;
    QCOMPARE(media.mounts.start(), QByteArray());
    QTRY_VERIFY(isServed());
    QCOMPARE(media.mounts.mount(media.path(QStringLiteral("STICK"))), QByteArray());
    open([](const FileDialogUser& user) {
        QTRY_COMPARE(user.favoriteRow(QStringLiteral("STICK")), 2);
    });
    QCOMPARE(media.mounts.unmount(media.path(QStringLiteral("STICK"))), QByteArray());
    QCOMPARE(media.mounts.mount(media.path(QStringLiteral("CARD"))), QByteArray());

    open([](const FileDialogUser& user) {
        QTRY_COMPARE(user.favoriteNames().mid(2), QStringList(QStringLiteral("CARD")));
    });
}

void TestOxFileDialogMounts::hostileMessagesDoNoHarm_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QByteArray>("data");
    const QByteArray path = FileDialogUser::bytes(QStringLiteral("/media/hostile"));
    const QByteArray paths = FileDialogUser::bytes(
        QStringList({ QStringLiteral("/media/hostile"), QStringLiteral("/media/also") }));
    const QByteArray longPath =
        FileDialogUser::bytes(QString(QLatin1Char('/') + QString(Megabyte, u'x')));

    for (const char* message : { "mounts", "add", "remove" }) {
        const auto row = [message](const char* name, const QByteArray& data) {
            QTest::addRow("%s: %s", message, name) << QByteArray(message) << data;
        };
        row("nothing", {});
        row("a path cut off", path.chopped(3));
        row("a list cut off", paths.chopped(3));
        row("only a size", path.left(4));
        row("more than there is", QByteArray::fromHex("7ffffffe0041"));
        row("a number", FileDialogUser::bytes(qint64(-1)));
        row("sizes all through", QByteArray(Megabyte, '\xff'));
        row("zeros all through", QByteArray(Megabyte, '\0'));
        row("a path of 1 MB", longPath);
        row("a list of a path of 1 MB", QByteArray::fromHex("00000001") + longPath);
    }
    QTest::newRow("unknown") << QByteArray("format") << path;
    QTest::newRow("mounts: a text") << QByteArray("mounts") << path;
    QTest::newRow("add: a list") << QByteArray("add") << paths;
    QTest::newRow("remove: a list") << QByteArray("remove") << paths;
    QTest::newRow("remove: a name of a favourite's")
        << QByteArray("remove") << FileDialogUser::bytes(QStringLiteral("/Desktop"));
    QTest::newRow("remove: the home folder")
        << QByteArray("remove") << FileDialogUser::bytes(QDir::homePath());
}

void TestOxFileDialogMounts::hostileMessagesDoNoHarm()
{
    QFETCH(QByteArray, message);
    QFETCH(QByteArray, data);
    open([&](const FileDialogUser& user) {
        const QStringList before = user.favoriteNames();
        const Heartbeat heartbeat;

        sendMounts(message.constData(), data);
        sendMounts("add", FileDialogUser::bytes(QStringLiteral("/media/STICK")));

        QTRY_COMPARE(user.favoriteNames(), before + QStringList(QStringLiteral("STICK")));
        QVERIFY2(heartbeat.longest() < 1000, qPrintable(QString::number(heartbeat.longest())));
    });
}

void TestOxFileDialogMounts::aFloodOfMediaEndsAtABound()
{
    constexpr int Count = 100000;
    QStringList paths;
    for (int number = 0; number < Count; ++number) {
        paths.append(QStringLiteral("/media/flood/%1").arg(number));
    }
    open([&](const FileDialogUser& user) {
        const int before = user.favorites->count();
        const Heartbeat heartbeat;

        sendMounts("mounts", FileDialogUser::bytes(paths));
        for (int number = 0; number < 1000; ++number) {
            sendMounts("add", FileDialogUser::bytes(QStringLiteral("/media/more/%1").arg(number)));
        }
        sendMounts("remove", FileDialogUser::bytes(paths.constFirst()));

        QTRY_VERIFY(user.favoriteRow(QStringLiteral("1")) >= 0);
        QTRY_VERIFY(user.favoriteRow(QStringLiteral("0")) < 0);
        QVERIFY2(user.favorites->count() <= before + 1000,
                 qPrintable(QString::number(user.favorites->count())));
        QVERIFY2(heartbeat.longest() < 5000, qPrintable(QString::number(heartbeat.longest())));
    });
}

UW_TEST_MAIN_WITH(FileDialogApplication, TestOxFileDialogMounts)

#include "tst_oxfiledialog_mounts.moc"
