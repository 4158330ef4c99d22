// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "examples/home/homewindow.h"

#include "oxhelpwindow.h"
#include "qcopchannel.h"
#include "support/finger.h"
#include "support/secondprocess.h"
#include "support/test.h"

#include <QDataStream>
#include <QDesktopServices>
#include <QDir>
#include <QListWidget>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUrl>

namespace {

QString manual()
{
    return QStringLiteral("/Home/Manuals/Editor/Layers/Lock.pdf");
}

void makeFile(const QString& path, const QByteArray& content = {})
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    file.write(content);
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

QByteArray serialised(const QString& path)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << path;
    return bytes;
}

void tapTheManual(OxHelpWindow* help)
{
    help->populatePDF(QStringLiteral("Editor"));
    help->show();
    QVERIFY(QTest::qWaitForWindowExposed(help));
    auto* list = help->findChild<QListWidget*>(QStringLiteral("PDFHelpListWidget"));
    QCOMPARE(list->count(), 2);
    Finger().tap(list->viewport(), list->visualItemRect(list->item(1)).center());
}

/// Stands for the desktop's viewer within this program.
class Viewer : public QObject
{
    Q_OBJECT

public:
    Viewer() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~Viewer() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
    Q_DISABLE_COPY_MOVE(Viewer)

    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl& url) { opened.append(url); }
};

/// Stands first in PATH in place of the desktop's own opener, and writes what it is given into a
/// file.
class OpenerStandIn
{
public:
    OpenerStandIn()
        : m_formerPath(qgetenv("PATH"))
    {
        makeFile(m_folder.filePath(QStringLiteral("xdg-open")),
                 "#!/bin/sh\nprintf %s \"$1\" >\"" + QFile::encodeName(result()) + ".new\"\nmv \""
                     + QFile::encodeName(result()) + ".new\" \"" + QFile::encodeName(result())
                     + "\"\n");
        qputenv("PATH", QFile::encodeName(m_folder.path()) + ':' + m_formerPath);
    }
    ~OpenerStandIn() { qputenv("PATH", m_formerPath); }
    Q_DISABLE_COPY_MOVE(OpenerStandIn)

    /// What it was given; null as long as it has not run.
    QByteArray given() const
    {
        QFile file(result());
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QString result() const { return m_folder.filePath(QStringLiteral("given")); }

    QTemporaryDir m_folder;
    QByteArray m_formerPath;
};

} // namespace

class TestHome : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aManualIsOpenedWithTheDesktopsViewer();
    void whatIsNoManualIsNotOpened_data();
    void whatIsNoManualIsNotOpened();
    void otherMessagesAreShown();
    void theNewestMessageIsTheFirst();
    void theOldestMessagesAreForgotten();
    void theProgramGetsTheManualOfAHelpWindow();
    void aSecondStartEndsAndIsShownInTheFirst();
};

void TestHome::init()
{
    Test::init();
    makeFile(manual(), "%PDF-1.4\n");
}

void TestHome::cleanup()
{
    QVERIFY(QDir(QStringLiteral("/Home/Manuals")).removeRecursively());
    Test::cleanup();
}

void TestHome::aManualIsOpenedWithTheDesktopsViewer()
{
    const Viewer viewer;
    HomeWindow home;
    QSignalSpy shown(&home, &HomeWindow::messageShown);
    OxHelpWindow help;

    tapTheManual(&help);

    QTRY_COMPARE(shown.count(), 1);
    QCOMPARE(viewer.opened, QList<QUrl> { QUrl::fromLocalFile(manual()) });
    const QString line = QStringLiteral("launch %1: opened").arg(manual());
    QCOMPARE(shown.at(0).at(0).toString(), line);
    QCOMPARE(home.findChild<QListWidget*>()->item(0)->text(), line);
}

void TestHome::whatIsNoManualIsNotOpened_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("line");

    QTest::newRow("nothing") << QByteArray() << QStringLiteral("launch not a path");
    QTest::newRow("cut off") << serialised(manual()).chopped(1)
                             << QStringLiteral("launch not a path");
    QTest::newRow("an empty path")
        << serialised(QString(QLatin1String(""))) << QStringLiteral("launch not a path");
    QTest::newRow("a file that is not there")
        << serialised(QStringLiteral("/Home/Manuals/Setup.pdf"))
        << QStringLiteral("launch /Home/Manuals/Setup.pdf: there is no such file");
    QTest::newRow("a folder") << serialised(QStringLiteral("/Home/Manuals"))
                              << QStringLiteral("launch /Home/Manuals: there is no such file");
    QTest::newRow("another kind of file") << serialised(QStringLiteral("/etc/passwd"))
                                          << QStringLiteral("launch /etc/passwd: not a manual");
}

void TestHome::whatIsNoManualIsNotOpened()
{
    QFETCH(QByteArray, bytes);
    const Viewer viewer;
    HomeWindow home;
    QSignalSpy shown(&home, &HomeWindow::messageShown);

    QCopChannel::send(HomeWindow::channelName(), QStringLiteral("launch"), bytes);

    QTRY_COMPARE(shown.count(), 1);
    QTEST(shown.at(0).at(0).toString(), "line");
    QCOMPARE(viewer.opened, QList<QUrl>());
}

void TestHome::otherMessagesAreShown()
{
    HomeWindow home;
    QSignalSpy shown(&home, &HomeWindow::messageShown);
    QCopChannel::send(HomeWindow::channelName(), QStringLiteral("raise"), QByteArray());
    QTRY_COMPARE(shown.count(), 1);
    QCOMPARE(home.findChild<QListWidget*>()->item(0)->text(), QStringLiteral("raise"));
}

void TestHome::theNewestMessageIsTheFirst()
{
    HomeWindow home;
    QSignalSpy shown(&home, &HomeWindow::messageShown);
    QCopChannel::send(HomeWindow::channelName(), QStringLiteral("1"));
    QCopChannel::send(HomeWindow::channelName(), QStringLiteral("2"));
    QTRY_COMPARE(shown.count(), 2);
    QCOMPARE(home.findChild<QListWidget*>()->item(0)->text(), QStringLiteral("2"));
}

void TestHome::theOldestMessagesAreForgotten()
{
    HomeWindow home;
    QSignalSpy shown(&home, &HomeWindow::messageShown);
    for (int i = 1; i <= 130; ++i) {
        QCopChannel::send(HomeWindow::channelName(), QString::number(i));
    }
    QTRY_COMPARE(shown.count(), 130);
    const auto* list = home.findChild<QListWidget*>();
    QCOMPARE(list->count(), 100);
    QCOMPARE(list->item(0)->text(), QStringLiteral("130"));
    QCOMPARE(list->item(99)->text(), QStringLiteral("31"));
}

void TestHome::theProgramGetsTheManualOfAHelpWindow()
{
    const OpenerStandIn opener;
    SecondProcess home(QStringLiteral(UTILITYWIDGETS_HOME));
    QVERIFY(home.waitForLine("listening on OxHomeInstance"));
    OxHelpWindow help;

    tapTheManual(&help);

    // The offscreen platform has no desktop that could open anything.
    const QByteArray path = manual().toUtf8();
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        QCOMPARE(home.nextLine(), QByteArray("launch " + path + ": opened"));
        QTRY_COMPARE_WITH_TIMEOUT(opener.given(), QByteArray("file://" + path), 20000);
    } else {
        QCOMPARE(home.nextLine(), QByteArray("launch " + path + ": no program here opens it"));
        QCOMPARE(opener.given(), QByteArray());
    }
}

void TestHome::aSecondStartEndsAndIsShownInTheFirst()
{
    SecondProcess home(QStringLiteral(UTILITYWIDGETS_HOME));
    QVERIFY(home.waitForLine("listening on OxHomeInstance"));
    SecondProcess second(QStringLiteral(UTILITYWIDGETS_HOME));
    QCOMPARE(second.waitForEnd(), 0);
    QCOMPARE(home.nextLine(), QByteArray("raise"));
}

UW_TEST_MAIN(TestHome)

#include "tst_home.moc"
