// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxsingleinstanceapplication.h"

#include "qcopchannel.h"
#include "support/secondprocess.h"
#include "support/test.h"

#include <QSignalSpy>
#include <QWidget>

#include <memory>

namespace {

const QString OwnName = QStringLiteral("the test itself");
const QString HomeName = QStringLiteral("OxHomeInstance");

class Application : public OxSingleInstanceApplication
{
public:
    Application(int& argc, char** argv)
        : OxSingleInstanceApplication(argc, argv, OwnName)
    { }
};

OxSingleInstanceApplication* application()
{
    return qobject_cast<OxSingleInstanceApplication*>(QCoreApplication::instance());
}

/// A window that counts how often it was raised.
class Window : public QWidget
{
public:
    int raised = 0;

protected:
    bool event(QEvent* event) override
    {
        raised += event->type() == QEvent::ZOrderChange ? 1 : 0;
        return QWidget::event(event);
    }
};

/// The offscreen platform says so each time a window is raised; fails if none was.
void expectRaise()
{
    QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
}

/// Sends a message to ourselves and waits until it has been handled.
void sendToOurselves(const QString& msg, const QByteArray& data = {})
{
    QCopChannel last(OwnName); // is told after the application
    QSignalSpy received(&last, &QCopChannel::received);
    QVERIFY(QCopChannel::send(OwnName, msg, data));
    QTRY_COMPARE(received.count(), 1);
    QCoreApplication::processEvents();
}

/// A start of the application, and what it says of itself.
class Start
{
public:
    explicit Start(const QString& channel)
        : process(QStringLiteral("single_instance"), { channel })
        , said(process.nextLine())
    { }
    ~Start()
    {
        if (process.isRunning()) {
            process.writeLine("end");
            process.waitForEnd();
        }
    }

    Q_DISABLE_COPY_MOVE(Start)

    bool command(const QByteArray& command)
    {
        process.writeLine(command);
        return process.nextLine() == "done";
    }
    QByteArray state()
    {
        process.writeLine("state");
        return process.nextLine();
    }

    SecondProcess process;
    QByteArray said;
};

} // namespace

class TestOxSingleInstanceApplication : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterItsClass();
    void hasASlotForASecondStart();
    void isTheOnlyInstanceOfItsName();
    void ignoresMessagesBeforeThereIsAMainWidget();
    void showsTheMainWidgetMaximised_data();
    void showsTheMainWidgetMaximised();
    void raisesTheMainWidgetOncePerMessage_data();
    void raisesTheMainWidgetOncePerMessage();
    void raisesAndActivatesWhenTheSlotIsCalled();
    void ignoresMessagesAfterTheMainWidgetHasDied();
    void takesNoMainWidgetForAnAnswer();

    void aSecondStartBringsTheFirstForwardAndEnds();
    void aSecondStartSendsOneRaiseWithoutData();
    void everySecondStartRaisesOnce();
    void aSecondStartReachesAFirstThatHasNoWindowYet();
    void aSecondStartDoesNotListen();
    void twoNamesRunSideBySide();
    void theNameIsFreeWhenTheApplicationHasEnded();
    void theNameIsFreeWhenTheObjectHasDiedAndTheProcessLives();
    void theNameIsFreeWhenTheProcessWasKilled();
};

void TestOxSingleInstanceApplication::isNamedAfterItsClass()
{
    QCOMPARE(application()->objectName(), QStringLiteral("OxSingleInstanceApplication"));
}

void TestOxSingleInstanceApplication::hasASlotForASecondStart()
{
    const QMetaObject& meta = OxSingleInstanceApplication::staticMetaObject;
    const int index = meta.indexOfSlot("subsequentInstanceConnected()");
    QVERIFY(index >= 0);
    QCOMPARE(meta.method(index).access(), QMetaMethod::Public);
    QCOMPARE(meta.superClass(), &QApplication::staticMetaObject);
}

void TestOxSingleInstanceApplication::isTheOnlyInstanceOfItsName()
{
    QVERIFY(application()->isOnlyInstance());
    QVERIFY(QCopChannel::isRegistered(OwnName));
}

void TestOxSingleInstanceApplication::ignoresMessagesBeforeThereIsAMainWidget()
{
    sendToOurselves(QStringLiteral("raise"));
    application()->subsequentInstanceConnected();
}

void TestOxSingleInstanceApplication::showsTheMainWidgetMaximised_data()
{
    QTest::addColumn<bool>("hidden");
    QTest::newRow("never shown") << false;
    QTest::newRow("hidden on purpose") << true;
}

void TestOxSingleInstanceApplication::showsTheMainWidgetMaximised()
{
    QFETCH(const bool, hidden);
    QWidget window;
    window.setVisible(!hidden);
    window.setHidden(hidden);
    application()->setMainWidget(&window);
    QVERIFY(window.isVisible());
    QVERIFY(window.isMaximized());
}

void TestOxSingleInstanceApplication::raisesTheMainWidgetOncePerMessage_data()
{
    QTest::addColumn<QString>("msg");
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("raise") << QStringLiteral("raise") << QByteArray();
    QTest::newRow("launch") << QStringLiteral("launch") << QByteArray("/Home/Manuals/a.pdf");
    QTest::newRow("nothing") << QString() << QByteArray();
}

void TestOxSingleInstanceApplication::raisesTheMainWidgetOncePerMessage()
{
    QFETCH(const QString, msg);
    QFETCH(const QByteArray, data);
    Window window;
    application()->setMainWidget(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QWidget cover;
    cover.show();
    cover.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &cover);
    const int before = window.raised;

    expectRaise();
    sendToOurselves(msg, data);
    QTRY_COMPARE(QApplication::activeWindow(), &window);
    QCOMPARE(window.raised, before + 1);
    expectRaise();
    sendToOurselves(msg, data);
    QCOMPARE(window.raised, before + 2);
}

void TestOxSingleInstanceApplication::raisesAndActivatesWhenTheSlotIsCalled()
{
    Window window;
    application()->setMainWidget(&window);
    QWidget cover;
    cover.show();
    cover.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &cover);
    const int before = window.raised;
    expectRaise();
    application()->subsequentInstanceConnected();
    QCOMPARE(window.raised, before + 1);
    QTRY_COMPARE(QApplication::activeWindow(), &window);
}

void TestOxSingleInstanceApplication::ignoresMessagesAfterTheMainWidgetHasDied()
{
    {
        QWidget window;
        application()->setMainWidget(&window);
    }
    sendToOurselves(QStringLiteral("raise"));
    application()->subsequentInstanceConnected();
}

void TestOxSingleInstanceApplication::takesNoMainWidgetForAnAnswer()
{
    Window window;
    application()->setMainWidget(&window);
    application()->setMainWidget(nullptr);
    const int before = window.raised;
    sendToOurselves(QStringLiteral("raise"));
    QCOMPARE(window.raised, before);
}

void TestOxSingleInstanceApplication::aSecondStartBringsTheFirstForwardAndEnds()
{
    Start first(HomeName);
    QCOMPARE(first.said, QByteArray("first"));
    QVERIFY(first.command("show"));
    QTRY_COMPARE(first.state().split(' ').last(), QByteArray("active"));
    QVERIFY(first.command("cover"));
    QTRY_COMPARE(first.state().split(' ').last(), QByteArray("inactive"));
    const int before = first.state().split(' ').first().toInt();

    Start second(HomeName);
    QCOMPARE(second.said, QByteArray("later"));
    QCOMPARE(second.process.waitForEnd(), 0);
    QTRY_COMPARE(first.state(), QByteArray::number(before + 1) + " active");
}

void TestOxSingleInstanceApplication::aSecondStartSendsOneRaiseWithoutData()
{
    Start first(HomeName);
    QCOMPARE(first.said, QByteArray("first"));
    QCopChannel ear(HomeName);
    QSignalSpy received(&ear, &QCopChannel::received);
    Start second(HomeName);
    QCOMPARE(second.said, QByteArray("later"));
    QCOMPARE(second.process.waitForEnd(), 0);
    QTRY_COMPARE(received.count(), 1);
    QCOMPARE(received.at(0), (QVariantList { QStringLiteral("raise"), QByteArray() }));

    // Nothing else was sent before this.
    QCopChannel::send(HomeName, QStringLiteral("end of the test"));
    QTRY_COMPARE(received.count(), 2);
    QCOMPARE(received.at(1).at(0).toString(), QStringLiteral("end of the test"));
}

void TestOxSingleInstanceApplication::everySecondStartRaisesOnce()
{
    Start first(HomeName);
    QVERIFY(first.command("show"));
    const int before = first.state().split(' ').first().toInt();
    for (int i = 1; i <= 3; ++i) {
        Start later(HomeName);
        QCOMPARE(later.said, QByteArray("later"));
        QCOMPARE(later.process.waitForEnd(), 0);
        QTRY_COMPARE(first.state().split(' ').first().toInt(), before + i);
    }
}

void TestOxSingleInstanceApplication::aSecondStartReachesAFirstThatHasNoWindowYet()
{
    Start first(HomeName);
    QCOMPARE(first.said, QByteArray("first"));
    Start second(HomeName);
    QCOMPARE(second.said, QByteArray("later"));
    QCOMPARE(second.process.waitForEnd(), 0);
    QVERIFY(first.command("show")); // it has ignored the message and lives
    QVERIFY(first.state().endsWith("active"));
}

void TestOxSingleInstanceApplication::aSecondStartDoesNotListen()
{
    QCopChannel ear(HomeName); // stands for the first instance
    QSignalSpy received(&ear, &QCopChannel::received);
    Start later(HomeName);
    QCOMPARE(later.said, QByteArray("later"));
    QTRY_COMPARE(received.count(), 1);
    Start another(HomeName);
    QCOMPARE(another.said, QByteArray("later"));
    QCOMPARE(another.process.waitForEnd(), 0);
    QTRY_COMPARE(received.count(), 2);
}

void TestOxSingleInstanceApplication::twoNamesRunSideBySide()
{
    Start home(HomeName);
    Start editor(QStringLiteral("Editor"));
    QCOMPARE(home.said, QByteArray("first"));
    QCOMPARE(editor.said, QByteArray("first"));
    QVERIFY(home.command("show"));
    QVERIFY(editor.command("show"));
    const QByteArray homeState = home.state();
    const int editorBefore = editor.state().split(' ').first().toInt();

    Start second(QStringLiteral("Editor"));
    QCOMPARE(second.said, QByteArray("later"));
    QTRY_COMPARE(editor.state().split(' ').first().toInt(), editorBefore + 1);
    QCOMPARE(home.state().split(' ').first(), homeState.split(' ').first());
}

void TestOxSingleInstanceApplication::theNameIsFreeWhenTheApplicationHasEnded()
{
    {
        Start first(HomeName);
        QCOMPARE(first.said, QByteArray("first"));
    }
    Start next(HomeName);
    QCOMPARE(next.said, QByteArray("first"));
}

void TestOxSingleInstanceApplication::theNameIsFreeWhenTheObjectHasDiedAndTheProcessLives()
{
    Start first(HomeName);
    QCOMPARE(first.said, QByteArray("first"));
    first.process.writeLine("release");
    QVERIFY(first.process.waitForLine("released"));
    QVERIFY(first.process.isRunning());
    Start next(HomeName);
    QCOMPARE(next.said, QByteArray("first"));
    first.process.writeLine("end");
    QCOMPARE(first.process.waitForEnd(), 0);
}

void TestOxSingleInstanceApplication::theNameIsFreeWhenTheProcessWasKilled()
{
    Start first(HomeName);
    QCOMPARE(first.said, QByteArray("first"));
    first.process.kill();
    Start next(HomeName);
    QCOMPARE(next.said, QByteArray("first"));
    Start second(HomeName);
    QCOMPARE(second.said, QByteArray("later"));
}

UW_TEST_MAIN_WITH(Application, TestOxSingleInstanceApplication)

#include "tst_oxsingleinstanceapplication.moc"
