// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "dragscrollbutton.h"
#include "dragscrolllistview.h"

#include "support/finger.h"
#include "support/modaldialog.h"
#include "support/test.h"

#include <QApplication>
#include <QButtonGroup>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <memory>

namespace {

/// A parent that writes down which mouse events reach it.
class Witness : public QWidget
{
public:
    Witness() { setGeometry(0, 0, 400, 300); }

    QList<QEvent::Type> seen;

protected:
    void mousePressEvent(QMouseEvent* event) override { seen.append(event->type()); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { seen.append(event->type()); }
    void mouseMoveEvent(QMouseEvent* event) override { seen.append(event->type()); }
    void mouseReleaseEvent(QMouseEvent* event) override { seen.append(event->type()); }
};

/// A button on a witness, shown.
struct Subject
{
    Subject()
    {
        button = new DragScrollButton(QStringLiteral("Arrows"), &parent);
        button->setGeometry(100, 100, 200, 100);
        parent.show();
    }

    Witness parent;
    DragScrollButton* button;
};

/// Rows of buttons, as index widgets of a list.
struct ListOfButtons
{
    ListOfButtons()
        : model(100, 1)
    {
        list.setModel(&model);
        list.setGeometry(0, 0, 300, 300);
        for (int row = 0; row < model.rowCount(); ++row) {
            model.setData(model.index(row, 0), QSize(250, 50), Qt::SizeHintRole);
            list.setIndexWidget(model.index(row, 0), new DragScrollButton(QString::number(row)));
        }
        list.show();
    }

    DragScrollButton* button(int row) const
    {
        return dynamic_cast<DragScrollButton*>(list.indexWidget(model.index(row, 0)));
    }

    QStandardItemModel model;
    DragScrollListView list;
};

/// Every signal that a press, a release or a click emits.
struct Spies
{
    explicit Spies(QAbstractButton* button)
        : pressed(button, &QAbstractButton::pressed)
        , released(button, &QAbstractButton::released)
        , clicked(button, &QAbstractButton::clicked)
        , toggled(button, &QAbstractButton::toggled)
    { }

    QSignalSpy pressed;
    QSignalSpy released;
    QSignalSpy clicked;
    QSignalSpy toggled;
};

void sendMouse(QWidget* widget, QEvent::Type type, const QPoint& at)
{
    QMouseEvent event(type, at, widget->mapToGlobal(at), Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void addFingerRows()
{
    QTest::addColumn<bool>("byTouch");
    QTest::newRow("mouse") << false;
    QTest::newRow("touch") << true;
}

std::unique_ptr<Finger> fingerOfRow()
{
    QFETCH(bool, byTouch);
    return byTouch ? std::make_unique<TouchFinger>() : std::make_unique<Finger>();
}

} // namespace

class TestDragScrollButton : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isMadeFromIconAndTextFromTextOrFromNothing();
    void hasNoMetaObjectOfItsOwn();

    void tapWithoutMovementClicksOnce_data() { addFingerRows(); }
    void tapWithoutMovementClicksOnce();
    void dragOfElevenPixelsSwallowsTheClickInEitherDirection_data();
    void dragOfElevenPixelsSwallowsTheClickInEitherDirection();
    void parentSeesTheWholeGesture_data() { addFingerRows(); }
    void parentSeesTheWholeGesture();
    void verticalDragInAListScrollsItAndDoesNotClick_data() { addFingerRows(); }
    void verticalDragInAListScrollsItAndDoesNotClick();
    void dragInAScrollAreaInAListScrollsTheList_data() { addFingerRows(); }
    void dragInAScrollAreaInAListScrollsTheList();
    void tapNearAnEdgeClicksWhenTheListScrollsTheButtonBack_data() { addFingerRows(); }
    void tapNearAnEdgeClicksWhenTheListScrollsTheButtonBack();
    void fingerThatReturnsToItsStartHasDragged_data() { addFingerRows(); }
    void fingerThatReturnsToItsStartHasDragged();
    void releaseOutsideTheButtonClicksNothing_data() { addFingerRows(); }
    void releaseOutsideTheButtonClicksNothing();

    void dragOverACheckableButtonKeepsItsCheckState();
    void dragOverAButtonOfAGroupIsNotHeardByTheGroup();
    void staysDownDuringADragAndComesUpSilently();
    void leavesSignalsAsBlockedAsTheyWere();
    void secondPressKeepsThePressPoint();
    void doubleClickIsTwoPressesAndOneDoubleClickOfTheParent();
    void doubleTapClicksTwice();

    void autoRepeatStopsAtTheFirstMovementAndReturnsAfterTheRelease_data();
    void autoRepeatStopsAtTheFirstMovementAndReturnsAfterTheRelease();
    void autoRepeatClicksUntilTheFingerMoves();
    void moveWithoutAPressStopsAutoRepeat();
    void strayReleaseKeepsAutoRepeat();

    void mayBeDeletedByItsOwnSlot_data();
    void mayBeDeletedByItsOwnSlot();
    void deletedInItsClickStillEndsTheGestureOfTheList();
    void losesItsGestureWhenHiddenOrDisabled();
    void losesItsGestureToAModalDialog();

    void fitButtonTextMakesOnePictureOfIconAndText();
    void fitButtonTextPutsTheIconAtTheLeftMarginAndTheTextRightOfIt();
    void fitButtonTextIsMirroredForLanguagesFromRightToLeft();
    void fitButtonTextShrinksALongTextUntilItFits_data();
    void fitButtonTextShrinksALongTextUntilItFits();
    void fitButtonTextStopsAtPointSizeOne();
    void fitButtonTextLeavesAButtonWithoutRoomAlone();
};

void TestDragScrollButton::isMadeFromIconAndTextFromTextOrFromNothing()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    QWidget parent;
    const auto* full = new DragScrollButton(QIcon(pixmap), QStringLiteral("Arrows"), &parent);
    const auto* text = new DragScrollButton(QStringLiteral("Arrows"), &parent);
    const auto* empty = new DragScrollButton(&parent);

    QVERIFY(!full->icon().isNull());
    QVERIFY(text->icon().isNull());
    QVERIFY(empty->icon().isNull());
    QCOMPARE(full->text(), QStringLiteral("Arrows"));
    QCOMPARE(text->text(), QStringLiteral("Arrows"));
    QCOMPARE(empty->text(), QString());
    for (const DragScrollButton* button : { full, text, empty }) {
        QCOMPARE(button->objectName(), QStringLiteral("DragScrollButton"));
        QCOMPARE(button->parentWidget(), &parent);
        QVERIFY(!button->autoRepeat());
    }
}

void TestDragScrollButton::hasNoMetaObjectOfItsOwn()
{
    const DragScrollButton button;
    QCOMPARE(button.metaObject(), &QPushButton::staticMetaObject);
}

void TestDragScrollButton::tapWithoutMovementClicksOnce()
{
    Subject subject;
    QVERIFY(QTest::qWaitForWindowExposed(&subject.parent));
    const Spies spies(subject.button);
    const auto finger = fingerOfRow();

    finger->press(subject.button);
    QVERIFY(subject.button->isDown());
    finger->release();

    QVERIFY(!subject.button->isDown());
    QCOMPARE(spies.pressed.count(), 1);
    QCOMPARE(spies.released.count(), 1);
    QCOMPARE(spies.clicked.count(), 1);
}

void TestDragScrollButton::dragOfElevenPixelsSwallowsTheClickInEitherDirection_data()
{
    QTest::addColumn<bool>("byTouch");
    QTest::addColumn<QPoint>("offset");
    QTest::addColumn<int>("clicks");
    for (const bool byTouch : { false, true }) {
        const char* by = byTouch ? "touch" : "mouse";
        for (const auto& [distance, clicks] : { std::pair(10, 1), std::pair(11, 0) }) {
            QTest::addRow("%s, %d down", by, distance) << byTouch << QPoint(0, distance) << clicks;
            QTest::addRow("%s, %d up", by, distance) << byTouch << QPoint(0, -distance) << clicks;
            QTest::addRow("%s, %d right", by, distance) << byTouch << QPoint(distance, 0) << clicks;
            QTest::addRow("%s, %d left", by, distance) << byTouch << QPoint(-distance, 0) << clicks;
        }
    }
}

void TestDragScrollButton::dragOfElevenPixelsSwallowsTheClickInEitherDirection()
{
    QFETCH(QPoint, offset);
    QFETCH(int, clicks);
    Subject subject;
    QVERIFY(QTest::qWaitForWindowExposed(&subject.parent));
    const Spies spies(subject.button);
    const auto finger = fingerOfRow();

    finger->press(subject.button);
    finger->moveBy(offset);
    finger->release();

    QCOMPARE(spies.pressed.count(), 1);
    QCOMPARE(spies.released.count(), clicks);
    QCOMPARE(spies.clicked.count(), clicks);

    // And what comes after is a gesture of its own.
    finger->tap(subject.button, QPoint(20, 20));
    QCOMPARE(spies.clicked.count(), clicks + 1);
}

void TestDragScrollButton::parentSeesTheWholeGesture()
{
    Subject subject;
    QVERIFY(QTest::qWaitForWindowExposed(&subject.parent));
    const auto finger = fingerOfRow();

    finger->press(subject.button);
    finger->moveBy(QPoint(0, 3));
    finger->moveBy(QPoint(0, 30));
    finger->moveBy(QPoint(0, -30));
    finger->release();

    QCOMPARE(subject.parent.seen,
             (QList<QEvent::Type> { QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseMove,
                                    QEvent::MouseMove, QEvent::MouseButtonRelease }));
}

void TestDragScrollButton::verticalDragInAListScrollsItAndDoesNotClick()
{
    ListOfButtons buttons;
    QVERIFY(QTest::qWaitForWindowExposed(&buttons.list));
    const Spies spies(buttons.button(2));
    QSignalSpy listClicked(&buttons.list, &QListView::clicked);
    const auto finger = fingerOfRow();

    finger->press(buttons.button(2));
    finger->moveBy(QPoint(0, -4));
    QCOMPARE(buttons.list.verticalScrollBar()->value(), 4);
    finger->moveBy(QPoint(0, -66));
    finger->release();
    QCOMPARE(buttons.list.verticalScrollBar()->value(), 70);
    QCOMPARE(spies.clicked.count(), 0);
    QCOMPARE(spies.released.count(), 0);
    QCOMPARE(listClicked.count(), 0);

    finger->tap(buttons.button(2), QPoint(30, 30));
    QCOMPARE(spies.clicked.count(), 1);
    QCOMPARE(listClicked.count(), 1);
    QCOMPARE(buttons.list.verticalScrollBar()->value(), 70);
}

void TestDragScrollButton::dragInAScrollAreaInAListScrollsTheList()
{
    QStandardItemModel model(100, 1);
    DragScrollListView list;
    list.setModel(&model);
    list.setGeometry(0, 0, 300, 300);
    model.setData(model.index(0, 0), QSize(280, 200), Qt::SizeHintRole);
    auto* area = new QScrollArea;
    auto* content = new QWidget;
    auto* button = new DragScrollButton(QStringLiteral("Arrows"));
    (new QVBoxLayout(content))->addWidget(button);
    area->setWidget(content);
    area->setWidgetResizable(true);
    list.setIndexWidget(model.index(0, 0), area);
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    const Spies spies(button);
    const auto finger = fingerOfRow();

    finger->press(button);
    finger->moveBy(QPoint(0, -50));
    finger->release();
    QCOMPARE(list.verticalScrollBar()->value(), 50);
    QCOMPARE(spies.clicked.count(), 0);

    finger->tap(button);
    QCOMPARE(spies.clicked.count(), 1);
    QCOMPARE(list.verticalScrollBar()->value(), 50);
}

void TestDragScrollButton::tapNearAnEdgeClicksWhenTheListScrollsTheButtonBack()
{
    ListOfButtons buttons;
    QVERIFY(QTest::qWaitForWindowExposed(&buttons.list));
    const Spies spies(buttons.button(2));
    const auto finger = fingerOfRow();

    finger->press(buttons.button(2), QPoint(100, 2));
    finger->moveBy(QPoint(0, -6)); // 4 pixels above the button, which then follows
    finger->release();
    QCOMPARE(buttons.list.verticalScrollBar()->value(), 6);
    QCOMPARE(spies.clicked.count(), 1);
}

void TestDragScrollButton::fingerThatReturnsToItsStartHasDragged()
{
    ListOfButtons buttons;
    QVERIFY(QTest::qWaitForWindowExposed(&buttons.list));
    const Spies spies(buttons.button(2));
    const auto finger = fingerOfRow();

    finger->press(buttons.button(2));
    finger->moveBy(QPoint(0, -40));
    finger->moveBy(QPoint(0, 40));
    finger->release();

    QCOMPARE(buttons.list.verticalScrollBar()->value(), 0);
    QCOMPARE(spies.clicked.count(), 0);
    QVERIFY(!buttons.button(2)->isDown());
}

void TestDragScrollButton::releaseOutsideTheButtonClicksNothing()
{
    Subject subject;
    subject.button->setGeometry(100, 100, 12, 12); // smaller than the tap range
    QVERIFY(QTest::qWaitForWindowExposed(&subject.parent));
    const Spies spies(subject.button);
    const auto finger = fingerOfRow();

    finger->press(subject.button);
    finger->moveBy(QPoint(9, 0));
    QVERIFY(!subject.button->isDown());
    finger->release();
    QCOMPARE(spies.clicked.count(), 0);

    finger->press(subject.button);
    finger->moveBy(QPoint(0, 150));
    finger->release();
    QCOMPARE(spies.clicked.count(), 0);
    QVERIFY(!subject.button->isDown());
    finger->tap(subject.button);
    QCOMPARE(spies.clicked.count(), 1);
}

void TestDragScrollButton::dragOverACheckableButtonKeepsItsCheckState()
{
    Subject subject;
    QVERIFY(QTest::qWaitForWindowExposed(&subject.parent));
    subject.button->setCheckable(true);
    const Spies spies(subject.button);
    Finger finger;

    for (const bool checked : { false, true }) {
        subject.button->setChecked(checked);
        const auto toggledBefore = spies.toggled.count();
        finger.press(subject.button);
        finger.moveBy(QPoint(0, 30));
        finger.moveBy(QPoint(0, -30));
        finger.release();
        QCOMPARE(subject.button->isChecked(), checked);
        QCOMPARE(spies.toggled.count(), toggledBefore);
    }
    finger.tap(subject.button);
    QVERIFY(!subject.button->isChecked());
}

void TestDragScrollButton::dragOverAButtonOfAGroupIsNotHeardByTheGroup()
{
    Subject subject;
    QVERIFY(QTest::qWaitForWindowExposed(&subject.parent));
    QButtonGroup group;
    group.addButton(subject.button);
    QSignalSpy clicked(&group, &QButtonGroup::buttonClicked);
    QSignalSpy released(&group, &QButtonGroup::buttonReleased);
    Finger finger;

    finger.press(subject.button);
    finger.moveBy(QPoint(0, 20));
    finger.release();
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(released.count(), 0);
    finger.tap(subject.button);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(released.count(), 1);
}

void TestDragScrollButton::staysDownDuringADragAndComesUpSilently()
{
    Subject subject;
    QVERIFY(QTest::qWaitForWindowExposed(&subject.parent));
    const Spies spies(subject.button);
    Finger finger;

    finger.press(subject.button);
    finger.moveBy(QPoint(0, 90));
    QVERIFY(subject.button->isDown());
    finger.release();
    QVERIFY(!subject.button->isDown());
    QCOMPARE(spies.released.count(), 0);
}

void TestDragScrollButton::leavesSignalsAsBlockedAsTheyWere()
{
    Subject subject;
    QVERIFY(QTest::qWaitForWindowExposed(&subject.parent));
    for (const bool blocked : { false, true }) {
        subject.button->blockSignals(blocked);
        Finger finger;
        finger.press(subject.button);
        finger.moveBy(QPoint(0, 20));
        finger.release();
        QCOMPARE(subject.button->signalsBlocked(), blocked);
    }
}

void TestDragScrollButton::secondPressKeepsThePressPoint()
{
    Subject subject;
    QVERIFY(QTest::qWaitForWindowExposed(&subject.parent));
    const Spies spies(subject.button);

    sendMouse(subject.button, QEvent::MouseButtonPress, QPoint(100, 50));
    sendMouse(subject.button, QEvent::MouseButtonPress, QPoint(100, 58));
    sendMouse(subject.button, QEvent::MouseMove, QPoint(100, 61));
    sendMouse(subject.button, QEvent::MouseButtonRelease, QPoint(100, 61));
    QCOMPARE(spies.clicked.count(), 0); // 11 pixels from the first press, 3 from the second
}

void TestDragScrollButton::doubleClickIsTwoPressesAndOneDoubleClickOfTheParent()
{
    Subject subject;
    QVERIFY(QTest::qWaitForWindowExposed(&subject.parent));
    const Spies spies(subject.button);

    sendMouse(subject.button, QEvent::MouseButtonDblClick, QPoint(100, 50));
    QCOMPARE(spies.pressed.count(), 2);
    QVERIFY(subject.button->isDown());
    QCOMPARE(subject.parent.seen, QList<QEvent::Type> { QEvent::MouseButtonDblClick });

    // It has begun a gesture like a press: a drag swallows the click.
    sendMouse(subject.button, QEvent::MouseMove, QPoint(100, 61));
    sendMouse(subject.button, QEvent::MouseButtonRelease, QPoint(100, 61));
    QCOMPARE(spies.clicked.count(), 0);
}

void TestDragScrollButton::doubleTapClicksTwice()
{
    Subject subject;
    QVERIFY(QTest::qWaitForWindowExposed(&subject.parent));
    const Spies spies(subject.button);
    QTest::mouseDClick(subject.parent.windowHandle(), Qt::LeftButton, {}, QPoint(150, 150));
    QCOMPARE(spies.clicked.count(), 2);
    QCOMPARE(spies.pressed.count(), 3); // the first tap's, and the double click's two
}

void TestDragScrollButton::autoRepeatStopsAtTheFirstMovementAndReturnsAfterTheRelease_data()
{
    QTest::addColumn<bool>("autoRepeat");
    QTest::addColumn<int>("distance");
    QTest::newRow("repeating, one pixel") << true << 1;
    QTest::newRow("repeating, a leap beyond the tap range") << true << 40;
    QTest::newRow("not repeating, one pixel") << false << 1;
    QTest::newRow("not repeating, a leap beyond the tap range") << false << 40;
}

void TestDragScrollButton::autoRepeatStopsAtTheFirstMovementAndReturnsAfterTheRelease()
{
    QFETCH(bool, autoRepeat);
    QFETCH(int, distance);
    Subject subject;
    QVERIFY(QTest::qWaitForWindowExposed(&subject.parent));
    subject.button->setAutoRepeat(autoRepeat);
    Finger finger;

    finger.press(subject.button);
    QCOMPARE(subject.button->autoRepeat(), autoRepeat);
    finger.moveBy(QPoint(0, distance));
    QVERIFY(!subject.button->autoRepeat());
    finger.release();
    QCOMPARE(subject.button->autoRepeat(), autoRepeat);
}

void TestDragScrollButton::autoRepeatClicksUntilTheFingerMoves()
{
    ListOfButtons buttons;
    QVERIFY(QTest::qWaitForWindowExposed(&buttons.list));
    DragScrollButton* button = buttons.button(2);
    button->setAutoRepeat(true);
    button->setAutoRepeatDelay(0);
    button->setAutoRepeatInterval(0);
    const Spies spies(button);
    Finger finger;

    finger.press(button);
    QTRY_VERIFY(spies.clicked.count() >= 3);
    finger.moveBy(QPoint(0, -30));
    const auto clicks = spies.clicked.count();
    // Other timers run on, that of the button no more.
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, &timer, [&] { ++ticks; });
    timer.start(0);
    QTRY_VERIFY(ticks > 20);
    finger.release();

    QCOMPARE(spies.clicked.count(), clicks);
    QCOMPARE(buttons.list.verticalScrollBar()->value(), 30);
    QTRY_VERIFY(ticks > 40);
    QCOMPARE(spies.clicked.count(), clicks);
}

void TestDragScrollButton::moveWithoutAPressStopsAutoRepeat()
{
    Subject subject;
    QVERIFY(QTest::qWaitForWindowExposed(&subject.parent));
    subject.button->setMouseTracking(true);
    subject.button->setAutoRepeat(true);
    QTest::mouseMove(subject.parent.windowHandle(), QPoint(150, 150));
    QTest::mouseMove(subject.parent.windowHandle(), QPoint(160, 150));
    QVERIFY(!subject.button->autoRepeat());
}

void TestDragScrollButton::strayReleaseKeepsAutoRepeat()
{
    Subject subject;
    QVERIFY(QTest::qWaitForWindowExposed(&subject.parent));
    subject.button->setAutoRepeat(true);
    sendMouse(subject.button, QEvent::MouseButtonRelease, QPoint(100, 50));
    QVERIFY(subject.button->autoRepeat());
}

void TestDragScrollButton::mayBeDeletedByItsOwnSlot_data()
{
    using Signal = void (QAbstractButton::*)();
    QTest::addColumn<bool>("byDoubleClick");
    QTest::addColumn<Signal>("signal");
    const auto clicked = static_cast<Signal>(nullptr);
    QTest::newRow("pressed") << false << &QAbstractButton::pressed;
    QTest::newRow("pressed by a double click") << true << &QAbstractButton::pressed;
    QTest::newRow("released") << false << &QAbstractButton::released;
    QTest::newRow("clicked") << false << clicked;
}

void TestDragScrollButton::mayBeDeletedByItsOwnSlot()
{
    using Signal = void (QAbstractButton::*)();
    QFETCH(bool, byDoubleClick);
    QFETCH(Signal, signal);
    Subject subject;
    QVERIFY(QTest::qWaitForWindowExposed(&subject.parent));
    const QPointer<DragScrollButton> button(subject.button);
    if (signal != nullptr) {
        connect(button, signal, &subject.parent, [&] { delete subject.button; });
    } else {
        connect(button, &QAbstractButton::clicked, &subject.parent, [&] { delete subject.button; });
    }

    if (byDoubleClick) {
        sendMouse(button, QEvent::MouseButtonDblClick, QPoint(100, 50));
    } else {
        Finger finger;
        finger.press(button);
        finger.release();
    }
    QVERIFY(button.isNull());
}

void TestDragScrollButton::deletedInItsClickStillEndsTheGestureOfTheList()
{
    ListOfButtons buttons;
    QVERIFY(QTest::qWaitForWindowExposed(&buttons.list));
    DragScrollButton* button = buttons.button(2);
    connect(button, &QAbstractButton::clicked, &buttons.list, [=] { delete button; });
    QSignalSpy listClicked(&buttons.list, &QListView::clicked);
    Finger finger;

    finger.tap(button);
    QVERIFY(buttons.button(2) == nullptr);
    QCOMPARE(listClicked.count(), 1);

    // A list that still waited for the release would jump from there to the new press.
    finger.press(buttons.button(4));
    finger.moveBy(QPoint(0, -3));
    QCOMPARE(buttons.list.verticalScrollBar()->value(), 3);
    finger.release();
}

void TestDragScrollButton::losesItsGestureWhenHiddenOrDisabled()
{
    Subject subject;
    QVERIFY(QTest::qWaitForWindowExposed(&subject.parent));
    subject.button->setAutoRepeat(true);
    const Spies spies(subject.button);
    const auto loseAndReturn = {
        std::pair<void (*)(QWidget*), void (*)(QWidget*)>([](QWidget* button) { button->hide(); },
                                                          [](QWidget* button) { button->show(); }),
        std::pair<void (*)(QWidget*), void (*)(QWidget*)>(
            [](QWidget* button) { button->setEnabled(false); },
            [](QWidget* button) { button->setEnabled(true); }),
    };
    int taps = 0;
    for (const auto& [lose, giveBack] : loseAndReturn) {
        Finger finger;
        finger.press(subject.button);
        finger.moveBy(QPoint(0, 2));
        lose(subject.button);
        QVERIFY(!subject.button->isDown());
        QVERIFY(subject.button->autoRepeat());
        finger.release();
        giveBack(subject.button);

        finger.press(subject.button, QPoint(20, 20)); // far from the press that was lost
        finger.moveBy(QPoint(0, 2));
        finger.release();
        QCOMPARE(spies.clicked.count(), ++taps);
    }
}

void TestDragScrollButton::losesItsGestureToAModalDialog()
{
    Subject subject;
    QVERIFY(QTest::qWaitForWindowExposed(&subject.parent));
    QDialog dialog(&subject.parent);
    Finger finger;
    const auto connection =
        connect(subject.button, &QAbstractButton::pressed, &dialog, [&] { dialog.exec(); });
    whileModal<QDialog>([&] { finger.press(subject.button); },
                        [](QDialog* shown) {
                            Finger onTheDialog;
                            onTheDialog.tap(shown);
                            shown->accept();
                        });
    disconnect(connection);
    QVERIFY(!subject.button->isDown());

    const Spies spies(subject.button);
    finger.press(subject.button, QPoint(20, 20));
    finger.moveBy(QPoint(0, 2));
    finger.release();
    QCOMPARE(spies.clicked.count(), 1);
}

namespace {

QIcon redIcon(int extent)
{
    QPixmap pixmap(extent, extent);
    pixmap.fill(Qt::red);
    return pixmap;
}

QImage pictureOf(const QPushButton& button)
{
    return button.icon().pixmap(button.iconSize()).toImage();
}

/// What the picture holds that is not the red icon: the text.
QRect inkOf(const QImage& picture)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor colour = picture.pixelColor(x, y);
            if (colour.alpha() > 0 && colour.red() < 128) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

} // namespace

void TestDragScrollButton::fitButtonTextMakesOnePictureOfIconAndText()
{
    QPushButton button(redIcon(20), QStringLiteral("Arrows"));
    button.resize(208, 48);
    const QFont font = button.font();

    DragScrollButton::fitButtonText(&button, 5, 3);

    QCOMPARE(button.text(), QString());
    QCOMPARE(button.accessibleName(), QStringLiteral("Arrows"));
    QCOMPARE(button.iconSize(), QSize(200, 40));
    QCOMPARE(button.icon().availableSizes(), QList<QSize> { QSize(200, 40) });
    QCOMPARE(button.font(), font);
}

void TestDragScrollButton::fitButtonTextPutsTheIconAtTheLeftMarginAndTheTextRightOfIt()
{
    for (const auto& [spacing, leftMargin] :
         { std::pair(5, 3), std::pair(0, 0), std::pair(30, 11) }) {
        QPushButton button(redIcon(21), QStringLiteral("HHH"));
        button.resize(208, 48);
        DragScrollButton::fitButtonText(&button, spacing, leftMargin);
        const QImage picture = pictureOf(button);

        // 21 pixels high in 40: (40 - 21) / 2 = 9 rows above.
        const QRect icon(leftMargin, 9, 21, 21);
        for (int y = 0; y < 40; ++y) {
            for (int x = 0; x < leftMargin + 21; ++x) {
                QCOMPARE(picture.pixelColor(x, y).alpha(), icon.contains(x, y) ? 255 : 0);
            }
        }
        const QRect ink = inkOf(picture);
        const int textLeft = 21 + spacing + leftMargin;
        QVERIFY(ink.left() >= textLeft && ink.left() <= textLeft + 3);
        QVERIFY(qAbs(ink.center().y() - 20) <= 3);
    }
}

void TestDragScrollButton::fitButtonTextIsMirroredForLanguagesFromRightToLeft()
{
    QPushButton button(redIcon(21), QStringLiteral("HHH"));
    button.setLayoutDirection(Qt::RightToLeft);
    button.resize(208, 48);
    DragScrollButton::fitButtonText(&button, 5, 3);
    const QImage picture = pictureOf(button);
    const QRect icon(200 - 3 - 21, 9, 21, 21);
    QCOMPARE(picture.pixelColor(icon.topLeft()), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(icon.bottomRight()), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(199, 20).alpha(), 0);
    const int textRight = icon.left() - 5;
    int ink = -1;
    for (int x = 0; x < icon.left(); ++x) {
        for (int y = 0; y < picture.height(); ++y) {
            ink = picture.pixelColor(x, y).alpha() > 0 ? x : ink;
        }
    }
    QVERIFY(ink < textRight && ink >= textRight - 4);
}

void TestDragScrollButton::fitButtonTextShrinksALongTextUntilItFits_data()
{
    QTest::addColumn<QFont>("font");
    QFont points(QStringLiteral("DejaVu Sans"));
    points.setPointSize(18);
    QFont pixels(points);
    pixels.setPixelSize(24); // what a sheet's "font-size: 24px" sets
    QTest::newRow("font in points") << points;
    QTest::newRow("font in pixels") << pixels;
}

void TestDragScrollButton::fitButtonTextShrinksALongTextUntilItFits()
{
    QFETCH(QFont, font);
    QPushButton button(QStringLiteral("Mechanical parts"));
    button.setFont(font);
    button.resize(98, 48);
    QVERIFY(QFontMetrics(font).horizontalAdvance(button.text()) > 90);

    // The largest size that fits, found another way.
    QFont fitting(font);
    int points = 18;
    do {
        fitting.setPointSize(points--);
    } while (QFontMetrics(fitting).horizontalAdvance(button.text()) > 90);

    DragScrollButton::fitButtonText(&button, 0, 0);
    QVERIFY(fitting.pointSize() > 1);
    QCOMPARE(button.font(), font);

    QImage expected(90, 40, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::transparent);
    QPainter painter(&expected);
    painter.setPen(button.palette().color(QPalette::ButtonText));
    painter.setFont(fitting);
    painter.drawText(expected.rect(), Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("Mechanical parts"));
    painter.end();
    QCOMPARE(pictureOf(button).convertToFormat(expected.format()), expected);
}

void TestDragScrollButton::fitButtonTextStopsAtPointSizeOne()
{
    QPushButton button(QStringLiteral("W").repeated(500));
    button.resize(28, 28);
    DragScrollButton::fitButtonText(&button, 0, 0);

    const QRect ink = inkOf(pictureOf(button));
    QVERIFY(!ink.isEmpty());
    QVERIFY2(ink.height() <= 3, "larger than one point");
    QCOMPARE(button.iconSize(), QSize(20, 20));
}

void TestDragScrollButton::fitButtonTextLeavesAButtonWithoutRoomAlone()
{
    for (const QSize& size : { QSize(8, 48), QSize(48, 8), QSize(0, 0) }) {
        QPushButton button(QStringLiteral("Arrows"));
        button.resize(size);
        const QSize iconSize = button.iconSize();
        DragScrollButton::fitButtonText(&button, 5, 3);
        QCOMPARE(button.text(), QStringLiteral("Arrows"));
        QVERIFY(button.icon().isNull());
        QCOMPARE(button.iconSize(), iconSize);
    }
}

UW_TEST_MAIN(TestDragScrollButton)

#include "tst_dragscrollbutton.moc"
