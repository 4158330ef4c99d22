// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "touch/draggesture.h"

#include "support/test.h"

#include <QApplication>
#include <QFocusEvent>
#include <QListView>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>

#include <limits>
#include <memory>

using Touch::DragGesture;

class TestDragGesture : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void startsIdleAtTheOrigin();
    void isADragBeyondTenPixelsInADirectionThatCounts_data();
    void isADragBeyondTenPixelsInADirectionThatCounts();
    void staysADragWhenTheFingerReturns();
    void measuresFromThePressAndNotFromTheLastMove();
    void answersEachMoveWithThePositionBefore();
    void ignoresASecondPress();
    void startsAfreshAfterItsEnd();
    void scrollsTheBarAgainstTheFingerAndWithinItsRange_data();
    void scrollsTheBarAgainstTheFingerAndWithinItsRange();
    void theContentFollowsTheFingerAlsoFromRightToLeft();
    void stopsScrollingWhenItsListenerDeletesTheArea();
    void pausesScrollingOnlyWhileAPressMovesTheFocus();
    void seesTheFocusInsideAnIndexWidget();
    void losesTheFingerOfAWidgetThatCanNoLongerBeReached();
};

void TestDragGesture::startsIdleAtTheOrigin()
{
    DragGesture gesture;
    QVERIFY(!gesture.isInProgress());
    QVERIFY(!gesture.isBeyondTapRange(QPoint(10, 10), Qt::Vertical | Qt::Horizontal));
    QVERIFY(!gesture.end());
}

void TestDragGesture::isADragBeyondTenPixelsInADirectionThatCounts_data()
{
    QTest::addColumn<QPoint>("offset");
    QTest::addColumn<Qt::Orientations>("counted");
    QTest::addColumn<bool>("drag");

    const Qt::Orientations vertical = Qt::Vertical;
    const Qt::Orientations horizontal = Qt::Horizontal;
    const Qt::Orientations both = Qt::Vertical | Qt::Horizontal;
    QTest::newRow("nowhere") << QPoint(0, 0) << both << false;
    QTest::newRow("10 down") << QPoint(0, 10) << vertical << false;
    QTest::newRow("11 down") << QPoint(0, 11) << vertical << true;
    QTest::newRow("10 up") << QPoint(0, -10) << vertical << false;
    QTest::newRow("11 up") << QPoint(0, -11) << vertical << true;
    QTest::newRow("11 right, not counted") << QPoint(11, 0) << vertical << false;
    QTest::newRow("1000 right, not counted") << QPoint(1000, 0) << vertical << false;
    QTest::newRow("11 down, not counted") << QPoint(0, 11) << horizontal << false;
    QTest::newRow("10 right") << QPoint(10, 0) << both << false;
    QTest::newRow("11 right") << QPoint(11, 0) << both << true;
    QTest::newRow("11 left") << QPoint(-11, 0) << both << true;
    QTest::newRow("10 right and 10 down") << QPoint(10, 10) << both << false;
    QTest::newRow("10 right and 11 up") << QPoint(10, -11) << both << true;
}

void TestDragGesture::isADragBeyondTenPixelsInADirectionThatCounts()
{
    QFETCH(QPoint, offset);
    QFETCH(Qt::Orientations, counted);
    QFETCH(bool, drag);

    DragGesture gesture;
    gesture.begin(QPoint(300, 200));
    QCOMPARE(gesture.isBeyondTapRange(QPoint(300, 200) + offset, counted), drag);
    gesture.moveTo(QPoint(300, 200) + offset, counted);
    QCOMPARE(gesture.end(), drag);
}

void TestDragGesture::staysADragWhenTheFingerReturns()
{
    DragGesture gesture;
    gesture.begin(QPoint(5, 5));
    gesture.moveTo(QPoint(5, 16), Qt::Vertical);
    gesture.moveTo(QPoint(5, 5), Qt::Vertical);
    QVERIFY(!gesture.isBeyondTapRange(QPoint(5, 5), Qt::Vertical));
    QVERIFY(gesture.end());
}

void TestDragGesture::measuresFromThePressAndNotFromTheLastMove()
{
    DragGesture gesture;
    gesture.begin(QPoint(0, 100));
    gesture.moveTo(QPoint(0, 108), Qt::Vertical);
    gesture.moveTo(QPoint(0, 92), Qt::Vertical); // 16 at once, but 8 from the press
    QVERIFY(!gesture.end());
}

void TestDragGesture::answersEachMoveWithThePositionBefore()
{
    DragGesture gesture;
    gesture.begin(QPoint(1, 2));
    QCOMPARE(gesture.moveTo(QPoint(3, 4), Qt::Vertical), QPoint(1, 2));
    QCOMPARE(gesture.moveTo(QPoint(5, 6), Qt::Vertical), QPoint(3, 4));
}

void TestDragGesture::ignoresASecondPress()
{
    DragGesture gesture;
    gesture.begin(QPoint(0, 0));
    gesture.begin(QPoint(0, 50));
    QVERIFY(gesture.isInProgress());
    QCOMPARE(gesture.moveTo(QPoint(0, 50), Qt::Vertical), QPoint(0, 0));
    QVERIFY(gesture.end());
}

void TestDragGesture::startsAfreshAfterItsEnd()
{
    DragGesture gesture;
    gesture.begin(QPoint(0, 0));
    gesture.moveTo(QPoint(0, 50), Qt::Vertical);
    QVERIFY(gesture.end());
    QVERIFY(!gesture.isInProgress());
    QVERIFY(!gesture.end());

    gesture.begin(QPoint(0, 50));
    QCOMPARE(gesture.moveTo(QPoint(0, 55), Qt::Vertical), QPoint(0, 50));
    QVERIFY(!gesture.end());
}

void TestDragGesture::scrollsTheBarAgainstTheFingerAndWithinItsRange_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("previous");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("expected");

    constexpr int Least = std::numeric_limits<int>::min();
    constexpr int Most = std::numeric_limits<int>::max();
    QTest::newRow("up") << 0 << 100 << 50 << 30 << 20 << 60;
    QTest::newRow("down") << 0 << 100 << 50 << 20 << 30 << 40;
    QTest::newRow("not at all") << 0 << 100 << 50 << 20 << 20 << 50;
    QTest::newRow("to the end") << 0 << 100 << 50 << 50 << 0 << 100;
    QTest::newRow("beyond the end") << 0 << 100 << 50 << 51 << 0 << 100;
    QTest::newRow("beyond the start") << 0 << 100 << 50 << 0 << 51 << 0;
    QTest::newRow("beyond a start below zero") << -20 << 100 << 50 << 0 << 500 << -20;
    QTest::newRow("empty range") << 7 << 7 << 7 << 0 << 500 << 7;
    QTest::newRow("further than a number reaches") << 0 << Most << 5 << Most << Least << Most;
    QTest::newRow("and back") << 0 << Most << 5 << Least << Most << 0;
}

void TestDragGesture::scrollsTheBarAgainstTheFingerAndWithinItsRange()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, position);
    QFETCH(int, previous);
    QFETCH(int, current);
    QFETCH(int, expected);

    QScrollBar bar;
    bar.setRange(minimum, maximum);
    bar.setValue(position);
    Touch::dragScrollBar(previous, current, &bar);
    QCOMPARE(bar.sliderPosition(), expected);
    QCOMPARE(bar.value(), expected);
}

void TestDragGesture::losesTheFingerOfAWidgetThatCanNoLongerBeReached()
{
    QWidget widget;
    QVERIFY(Touch::losesFinger(widget, QEvent(QEvent::Hide)));
    QVERIFY(Touch::losesFinger(widget, QEvent(QEvent::WindowBlocked)));
    QVERIFY(!Touch::losesFinger(widget, QEvent(QEvent::WindowUnblocked)));
    QVERIFY(!Touch::losesFinger(widget, QEvent(QEvent::MouseMove)));
    QVERIFY(!Touch::losesFinger(widget, QEvent(QEvent::EnabledChange)));
    widget.setEnabled(false);
    QVERIFY(Touch::losesFinger(widget, QEvent(QEvent::EnabledChange)));
}

void TestDragGesture::theContentFollowsTheFingerAlsoFromRightToLeft()
{
    QScrollArea area;
    area.setLayoutDirection(Qt::RightToLeft);
    auto* content = new QWidget;
    content->setFixedSize(1000, 1000);
    area.setWidget(content);
    area.resize(300, 300);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    area.horizontalScrollBar()->setValue(100);
    area.verticalScrollBar()->setValue(100);
    const QPoint before = content->pos();

    Touch::dragScrollBar(50, 80, area.horizontalScrollBar()); // 30 to the right
    Touch::dragScrollBar(50, 40, area.verticalScrollBar()); // 10 up
    QCOMPARE(content->pos(), before + QPoint(30, -10));
    Touch::dragScrollBar(0, 5000, area.horizontalScrollBar());
    QCOMPARE(content->x(), 0);
    Touch::dragScrollBar(5000, 0, area.horizontalScrollBar());
    QCOMPARE(content->geometry().right(), area.viewport()->rect().right());
}

void TestDragGesture::stopsScrollingWhenItsListenerDeletesTheArea()
{
    auto* area = new QScrollArea;
    area->resize(100, 100);
    area->verticalScrollBar()->setRange(0, 50);
    area->horizontalScrollBar()->setRange(0, 50);
    const QPointer<QScrollArea> alive(area);
    connect(area->verticalScrollBar(), &QScrollBar::valueChanged, this, [area] { delete area; });

    DragGesture gesture;
    gesture.begin(QPoint(50, 50));
    const QMouseEvent move(QEvent::MouseMove, QPointF(), QPointF(40, 40), Qt::NoButton,
                           Qt::LeftButton, Qt::NoModifier);
    Touch::dragScrollArea(gesture, move, Qt::Vertical | Qt::Horizontal, *area);
    QVERIFY(alive.isNull());
}

void TestDragGesture::pausesScrollingOnlyWhileAPressMovesTheFocus()
{
    const auto scrollsDuring = [](QListView& view, const QEvent& event) {
        const Touch::ScrollPause pause(&view, event);
        return view.hasAutoScroll();
    };
    QListView view;
    QVERIFY(!scrollsDuring(view, QFocusEvent(QEvent::FocusIn, Qt::MouseFocusReason)));
    QVERIFY(view.hasAutoScroll());
    QVERIFY(!scrollsDuring(view, QFocusEvent(QEvent::FocusOut, Qt::MouseFocusReason)));
    QVERIFY(scrollsDuring(view, QFocusEvent(QEvent::FocusIn, Qt::TabFocusReason)));
    QVERIFY(scrollsDuring(view, QEvent(QEvent::Show)));

    view.setAutoScroll(false);
    QVERIFY(!scrollsDuring(view, QFocusEvent(QEvent::FocusIn, Qt::MouseFocusReason)));
    QVERIFY(!view.hasAutoScroll());

    auto doomed = std::make_unique<QListView>();
    const Touch::ScrollPause pause(doomed.get(),
                                   QFocusEvent(QEvent::FocusOut, Qt::MouseFocusReason));
    doomed.reset(); // as a slot that hears of the lost focus may
}

void TestDragGesture::seesTheFocusInsideAnIndexWidget()
{
    QWidget widget;
    auto* child = new QWidget(&widget);
    child->setFocusPolicy(Qt::StrongFocus);
    widget.setFocusPolicy(Qt::StrongFocus);
    widget.show();
    widget.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&widget));

    widget.setFocus();
    QVERIFY(Touch::holdsFocus(&widget));
    QVERIFY(!Touch::holdsFocus(child));
    child->setFocus();
    QVERIFY(Touch::holdsFocus(&widget));
    QVERIFY(!Touch::holdsFocus(nullptr));
    widget.setFocusPolicy(Qt::NoFocus);
    QVERIFY(!Touch::holdsFocus(&widget));
}

UW_TEST_MAIN(TestDragGesture)

#include "tst_draggesture.moc"
