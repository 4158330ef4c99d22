// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "buttonpresseventhandler.h"

#include "support/finger.h"
#include "support/test.h"

#include <QGraphicsBlurEffect>
#include <QGraphicsColorizeEffect>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

#include <memory>

namespace {

const char orange[] = "orange";

constexpr QSize ButtonSize(100, 40);
constexpr QPointF Inside(50, 20);
constexpr QPointF Outside(50, 60);

bool isTinted(const QPushButton& button)
{
    return qobject_cast<QGraphicsColorizeEffect*>(button.graphicsEffect()) != nullptr
        && button.property(orange).toBool();
}

/// Neither the effect nor the property, whose value is a plain false.
bool isCleared(const QPushButton& button)
{
    return button.graphicsEffect() == nullptr && button.property(orange) == QVariant(false);
}

bool wasNeverTouched(const QPushButton& button)
{
    return button.graphicsEffect() == nullptr && !button.property(orange).isValid();
}

QMouseEvent mouseEvent(QEvent::Type type, const QPointF& at,
                       Qt::MouseButton button = Qt::LeftButton)
{
    return { type, at, at, button, button, Qt::NoModifier };
}

/// A shown window with one watched button, and room to slide off it.
class ButtonWindow
{
public:
    ButtonWindow()
    {
        m_window.resize(300, 200);
        button.setGeometry(QRect(QPoint(50, 50), ButtonSize));
        button.installEventFilter(&handler);
        m_window.show();
        if (!QTest::qWaitForWindowExposed(&m_window)) {
            QTest::qFail("the window was not exposed", __FILE__, __LINE__);
        }
    }

private:
    QWidget m_window;

public:
    QPushButton button { &m_window };
    ButtonPressEventHandler handler;
};

} // namespace

class TestButtonPressEventHandler : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void hasNoMetaObjectOfItsOwn();
    void canHaveAParent();

    void setColorizeEffectTintsTheButton();
    void setColorizeEffectReplacesTheEffectThatWasThere();
    void theEffectDiesWithTheButton();
    void removeColorizeEffectDeletesTheEffect();
    void aTintedButtonLooksOrange();

    void followsTheTable_data();
    void followsTheTable();
    void theEdgesOfTheButtonBelongToIt_data();
    void theEdgesOfTheButtonBelongToIt();
    void everyEventGoesOnToTheButton_data();
    void everyEventGoesOnToTheButton();
    void nothingHappensWithoutAWatchedObject();
    void nothingHappensToWhatIsNoPushButton();

    void aMoveInsideKeepsTheEffect();
    void aMoveInsideBelievesTheProperty();
    void aMoveOutsideKeepsTheEffectOfAnUntintedButton();
    void aPressReplacesTheEffectOfATintedButton();
    void aReleaseDeletesAnyEffect();

    void theTintFollowsTheFingerOffTheButtonAndBack();
    void aReleaseAnywhereClearsTheTint();
    void aPressOnADisabledButtonTintsNothing();
    void aReleaseOnAButtonThatWasDisabledMeanwhileClearsTheTint();
    void theSecondPressOfADoubleTapTintsNothing();
    void aTapStillClicks();
    void oneHandlerServesManyButtons();
};

void TestButtonPressEventHandler::hasNoMetaObjectOfItsOwn()
{
    QCOMPARE(ButtonPressEventHandler().metaObject(), &QObject::staticMetaObject);
}

void TestButtonPressEventHandler::canHaveAParent()
{
    QObject parent;
    const auto* handler = new ButtonPressEventHandler(&parent);

    QCOMPARE(handler->parent(), &parent);
}

void TestButtonPressEventHandler::setColorizeEffectTintsTheButton()
{
    QPushButton button;

    ButtonPressEventHandler().setColorizeEffect(&button);

    const auto* effect = qobject_cast<QGraphicsColorizeEffect*>(button.graphicsEffect());
    QVERIFY(effect != nullptr);
    QCOMPARE(effect->color(), QColor(255, 88, 0, 255));
    QCOMPARE(button.property(orange), QVariant(true));
}

void TestButtonPressEventHandler::setColorizeEffectReplacesTheEffectThatWasThere()
{
    QPushButton button;
    const QPointer<QGraphicsEffect> before = new QGraphicsBlurEffect;
    button.setGraphicsEffect(before);

    ButtonPressEventHandler().setColorizeEffect(&button);

    QVERIFY(before.isNull());
    QVERIFY(isTinted(button));
}

void TestButtonPressEventHandler::theEffectDiesWithTheButton()
{
    auto button = std::make_unique<QPushButton>();
    ButtonPressEventHandler().setColorizeEffect(button.get());
    const QPointer<QGraphicsEffect> effect = button->graphicsEffect();

    button.reset();

    QVERIFY(effect.isNull());
}

void TestButtonPressEventHandler::removeColorizeEffectDeletesTheEffect()
{
    QPushButton button;
    ButtonPressEventHandler handler;
    handler.setColorizeEffect(&button);
    const QPointer<QGraphicsEffect> effect = button.graphicsEffect();

    handler.removeColorizeEffect(&button);

    QVERIFY(effect.isNull());
    QVERIFY(isCleared(button));
}

void TestButtonPressEventHandler::aTintedButtonLooksOrange()
{
    ButtonWindow window;
    window.button.setStyleSheet(QStringLiteral("background: #808080; border: none;"));
    const auto colour = [&] {
        return window.button.grab().toImage().pixelColor(20, 20);
    };
    QCOMPARE(colour().saturation(), 0);

    window.handler.setColorizeEffect(&window.button);

    QVERIFY(colour().red() > colour().green());
    QVERIFY(colour().green() > colour().blue());
    QVERIFY(colour().saturation() > 100);
}

namespace {

enum class Tint { Untouched, On, Off };

} // namespace

Q_DECLARE_METATYPE(Tint)

void TestButtonPressEventHandler::followsTheTable_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("down");
    QTest::addColumn<bool>("tinted");
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<QPointF>("at");
    QTest::addColumn<Tint>("after");

    const auto press = QEvent::MouseButtonPress;
    const auto again = QEvent::MouseButtonDblClick;
    const auto move = QEvent::MouseMove;
    const auto release = QEvent::MouseButtonRelease;
    const auto row = [](const char* name, bool enabled, bool down, bool tinted, QEvent::Type type,
                        const QPointF& at, Tint after) {
        QTest::newRow(name) << enabled << down << tinted << type << at << after;
    };
    //                                     enabled down   tinted
    row("press", /*                     */ true, false, false, press, Inside, Tint::On);
    row("press, tinted", /*             */ true, false, true, press, Inside, Tint::On);
    row("press, disabled", /*           */ false, false, false, press, Inside, Tint::Untouched);
    row("press, disabled, tinted", /*   */ false, false, true, press, Inside, Tint::On);
    row("second press", /*              */ true, false, false, again, Inside, Tint::Untouched);

    row("move inside", /*               */ true, true, false, move, Inside, Tint::On);
    row("move inside, tinted", /*       */ true, true, true, move, Inside, Tint::On);
    row("move inside, up", /*           */ true, false, false, move, Inside, Tint::Untouched);
    row("move inside, up, tinted", /*   */ true, false, true, move, Inside, Tint::On);
    row("move inside, disabled", /*     */ false, true, false, move, Inside, Tint::Untouched);

    row("move outside", /*              */ true, true, false, move, Outside, Tint::Untouched);
    row("move outside, tinted", /*      */ true, true, true, move, Outside, Tint::Off);
    row("move outside, up, tinted", /*  */ true, false, true, move, Outside, Tint::On);
    row("move outside, disabled, tinted", false, true, true, move, Outside, Tint::On);

    row("release", /*                   */ true, true, true, release, Inside, Tint::Off);
    row("release outside", /*           */ true, true, true, release, Outside, Tint::Off);
    row("release, untinted", /*         */ true, true, false, release, Inside, Tint::Off);
    row("release, up", /*               */ true, false, true, release, Inside, Tint::Off);
    row("release, disabled", /*         */ false, false, true, release, Inside, Tint::Off);
    row("release, disabled, untinted", false, false, false, release, Inside, Tint::Off);
}

void TestButtonPressEventHandler::followsTheTable()
{
    QFETCH(const bool, enabled);
    QFETCH(const bool, down);
    QFETCH(const bool, tinted);
    QFETCH(const QEvent::Type, type);
    QFETCH(const QPointF, at);
    QFETCH(const Tint, after);
    QPushButton button;
    button.resize(ButtonSize);
    button.setEnabled(enabled);
    button.setDown(down);
    ButtonPressEventHandler handler;
    if (tinted) {
        handler.setColorizeEffect(&button);
    }

    QMouseEvent event = mouseEvent(type, at);
    QCOMPARE(handler.eventFilter(&button, &event), false);

    QCOMPARE(isTinted(button), after == Tint::On);
    QCOMPARE(isCleared(button), after == Tint::Off);
    QCOMPARE(wasNeverTouched(button), after == Tint::Untouched);
}

void TestButtonPressEventHandler::theEdgesOfTheButtonBelongToIt_data()
{
    QTest::addColumn<QPointF>("at");
    QTest::addColumn<bool>("inside");

    QTest::newRow("top left") << QPointF(0, 0) << true;
    QTest::newRow("top right") << QPointF(99, 0) << true;
    QTest::newRow("bottom left") << QPointF(0, 39) << true;
    QTest::newRow("bottom right") << QPointF(99, 39) << true;
    QTest::newRow("left of it") << QPointF(-1, 20) << false;
    QTest::newRow("above it") << QPointF(50, -1) << false;
    QTest::newRow("right of it") << QPointF(100, 20) << false;
    QTest::newRow("below it") << QPointF(50, 40) << false;
    QTest::newRow("beyond the bottom right") << QPointF(100, 40) << false;
    // A fraction of a pixel is rounded, as the button itself does.
    QTest::newRow("less than half a pixel left of it") << QPointF(-0.4, 20) << true;
    QTest::newRow("less than half a pixel before its right end") << QPointF(99.6, 20) << false;
}

void TestButtonPressEventHandler::theEdgesOfTheButtonBelongToIt()
{
    QFETCH(const QPointF, at);
    QFETCH(const bool, inside);
    QPushButton button;
    button.move(500, 300);
    button.resize(ButtonSize);
    button.setDown(true);
    ButtonPressEventHandler handler;
    QMouseEvent move = mouseEvent(QEvent::MouseMove, at);

    handler.eventFilter(&button, &move);
    QCOMPARE(isTinted(button), inside);

    handler.setColorizeEffect(&button);
    handler.eventFilter(&button, &move);
    QCOMPARE(isTinted(button), inside);
}

void TestButtonPressEventHandler::everyEventGoesOnToTheButton_data()
{
    QTest::addColumn<QEvent::Type>("type");

    QTest::newRow("press") << QEvent::MouseButtonPress;
    QTest::newRow("second press") << QEvent::MouseButtonDblClick;
    QTest::newRow("move") << QEvent::MouseMove;
    QTest::newRow("release") << QEvent::MouseButtonRelease;
}

void TestButtonPressEventHandler::everyEventGoesOnToTheButton()
{
    QFETCH(const QEvent::Type, type);
    ButtonPressEventHandler handler;
    for (const bool enabled : { true, false }) {
        QPushButton button;
        button.setEnabled(enabled);
        for (const QPointF& at : { Inside, Outside }) {
            QMouseEvent event = mouseEvent(type, at);
            QCOMPARE(handler.eventFilter(&button, &event), false);
            QVERIFY(event.isAccepted());
        }
    }
    QEvent other(QEvent::Enter);
    QPushButton button;
    QCOMPARE(handler.eventFilter(&button, &other), false);
    QVERIFY(wasNeverTouched(button));
}

void TestButtonPressEventHandler::nothingHappensWithoutAWatchedObject()
{
    ButtonPressEventHandler handler;
    for (const QEvent::Type type :
         { QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease }) {
        QMouseEvent event = mouseEvent(type, Inside);
        QCOMPARE(handler.eventFilter(nullptr, &event), false);
    }
}

void TestButtonPressEventHandler::nothingHappensToWhatIsNoPushButton()
{
    ButtonPressEventHandler handler;
    QToolButton toolButton;
    toolButton.setDown(true);
    QObject object;
    for (QObject* watched : { static_cast<QObject*>(&toolButton), &object }) {
        for (const QEvent::Type type :
             { QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease }) {
            QMouseEvent event = mouseEvent(type, Inside);
            QCOMPARE(handler.eventFilter(watched, &event), false);
        }
        QVERIFY(!watched->property(orange).isValid());
    }
    QCOMPARE(toolButton.graphicsEffect(), nullptr);
}

void TestButtonPressEventHandler::aMoveInsideKeepsTheEffect()
{
    QPushButton button;
    button.resize(ButtonSize);
    button.setDown(true);
    ButtonPressEventHandler handler;
    handler.setColorizeEffect(&button);
    const QPointer<QGraphicsEffect> effect = button.graphicsEffect();

    QMouseEvent move = mouseEvent(QEvent::MouseMove, Inside);
    handler.eventFilter(&button, &move);

    QVERIFY(!effect.isNull());
    QCOMPARE(button.graphicsEffect(), effect.data());
}

void TestButtonPressEventHandler::aMoveInsideBelievesTheProperty()
{
    QPushButton button;
    button.resize(ButtonSize);
    button.setDown(true);
    button.setProperty(orange, true);

    QMouseEvent move = mouseEvent(QEvent::MouseMove, Inside);
    ButtonPressEventHandler().eventFilter(&button, &move);

    QCOMPARE(button.graphicsEffect(), nullptr);
}

void TestButtonPressEventHandler::aMoveOutsideKeepsTheEffectOfAnUntintedButton()
{
    QPushButton button;
    button.resize(ButtonSize);
    button.setDown(true);
    auto* own = new QGraphicsBlurEffect;
    button.setGraphicsEffect(own);

    QMouseEvent move = mouseEvent(QEvent::MouseMove, Outside);
    ButtonPressEventHandler().eventFilter(&button, &move);

    QCOMPARE(button.graphicsEffect(), own);
}

void TestButtonPressEventHandler::aPressReplacesTheEffectOfATintedButton()
{
    QPushButton button;
    ButtonPressEventHandler handler;
    handler.setColorizeEffect(&button);
    const QPointer<QGraphicsEffect> first = button.graphicsEffect();

    QMouseEvent press = mouseEvent(QEvent::MouseButtonPress, Inside, Qt::RightButton);
    handler.eventFilter(&button, &press);

    QVERIFY(first.isNull());
    QVERIFY(isTinted(button));
}

void TestButtonPressEventHandler::aReleaseDeletesAnyEffect()
{
    QPushButton button;
    button.setEnabled(false);
    const QPointer<QGraphicsEffect> own = new QGraphicsBlurEffect;
    button.setGraphicsEffect(own);

    QMouseEvent release = mouseEvent(QEvent::MouseButtonRelease, Outside);
    ButtonPressEventHandler().eventFilter(&button, &release);

    QVERIFY(own.isNull());
    QVERIFY(isCleared(button));
}

void TestButtonPressEventHandler::theTintFollowsTheFingerOffTheButtonAndBack()
{
    ButtonWindow window;
    QPushButton& button = window.button;
    Finger finger;

    finger.press(&button);
    QVERIFY(isTinted(button));
    finger.moveBy({ 3, 0 });
    QVERIFY(isTinted(button));

    finger.moveBy({ 0, 60 });
    QVERIFY(isCleared(button));
    finger.moveBy({ 0, 10 });
    QVERIFY(isCleared(button));

    // The first move inside finds the button still up, because the button sees it afterwards.
    finger.moveBy({ 0, -70 });
    QVERIFY(isCleared(button));
    QVERIFY(button.isDown());
    finger.moveBy({ 1, 0 });
    QVERIFY(isTinted(button));

    finger.release();
    QVERIFY(isCleared(button));
}

void TestButtonPressEventHandler::aReleaseAnywhereClearsTheTint()
{
    ButtonWindow window;
    QSignalSpy clicked(&window.button, &QPushButton::clicked);
    Finger finger;

    finger.press(&window.button);
    finger.release();
    QVERIFY(isCleared(window.button));
    QCOMPARE(clicked.count(), 1);

    finger.press(&window.button);
    window.handler.setColorizeEffect(&window.button);
    finger.moveBy({ 0, 60 });
    finger.release();
    QVERIFY(isCleared(window.button));
    QCOMPARE(clicked.count(), 1);
}

void TestButtonPressEventHandler::aPressOnADisabledButtonTintsNothing()
{
    ButtonWindow window;
    window.button.setEnabled(false);
    Finger finger;

    finger.press(&window.button);
    QVERIFY(wasNeverTouched(window.button));
    finger.moveBy({ 1, 0 });
    QVERIFY(wasNeverTouched(window.button));
}

void TestButtonPressEventHandler::aReleaseOnAButtonThatWasDisabledMeanwhileClearsTheTint()
{
    ButtonWindow window;
    Finger finger;
    finger.press(&window.button);
    QVERIFY(isTinted(window.button));
    window.button.setEnabled(false);

    finger.release();

    QVERIFY(isCleared(window.button));
}

void TestButtonPressEventHandler::theSecondPressOfADoubleTapTintsNothing()
{
    ButtonWindow window;
    QList<bool> tintedAtPress;
    connect(&window.button, &QPushButton::pressed, this,
            [&] { tintedAtPress.append(isTinted(window.button)); });

    Finger().doubleTap(&window.button);

    QCOMPARE(tintedAtPress, QList<bool>({ true, false }));
}

void TestButtonPressEventHandler::aTapStillClicks()
{
    ButtonWindow window;
    QSignalSpy clicked(&window.button, &QPushButton::clicked);

    Finger().tap(&window.button);

    QCOMPARE(clicked.count(), 1);
}

void TestButtonPressEventHandler::oneHandlerServesManyButtons()
{
    ButtonWindow window;
    QPushButton second(window.button.parentWidget());
    second.setGeometry(QRect(QPoint(160, 50), ButtonSize));
    second.installEventFilter(&window.handler);
    second.show();
    Finger finger;

    finger.press(&window.button);
    QVERIFY(isTinted(window.button));
    QVERIFY(wasNeverTouched(second));
    finger.release();
    finger.press(&second);
    QVERIFY(isCleared(window.button));
    QVERIFY(isTinted(second));
    finger.release();
}

UW_TEST_MAIN(TestButtonPressEventHandler)

#include "tst_buttonpresseventhandler.moc"
