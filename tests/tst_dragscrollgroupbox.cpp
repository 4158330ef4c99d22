// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "dragscrollbutton.h"
#include "dragscrollgroupbox.h"
#include "dragscrolllistview.h"

#include "support/finger.h"
#include "support/test.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <memory>

class TestDragScrollGroupBox : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void hasItsObjectNameAndTitle();
    void ignoresEveryMouseEvent_data();
    void ignoresEveryMouseEvent();
    void isToggledByTheKeyboardButNotByAFinger();
    void dragThatStartsOnItScrollsTheViewBelow_data();
    void dragThatStartsOnItScrollsTheViewBelow();
    void buttonInsideItScrollsTheViewBelow();
};

void TestDragScrollGroupBox::hasItsObjectNameAndTitle()
{
    const DragScrollGroupBox plain;
    QCOMPARE(plain.objectName(), QStringLiteral("NoClickGroupBox"));
    QCOMPARE(plain.title(), QString());
    const DragScrollGroupBox titled(QStringLiteral("Arrows"));
    QCOMPARE(titled.objectName(), QStringLiteral("NoClickGroupBox"));
    QCOMPARE(titled.title(), QStringLiteral("Arrows"));
}

void TestDragScrollGroupBox::ignoresEveryMouseEvent_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::newRow("press") << QEvent::MouseButtonPress;
    QTest::newRow("release") << QEvent::MouseButtonRelease;
    QTest::newRow("move") << QEvent::MouseMove;
    QTest::newRow("double click") << QEvent::MouseButtonDblClick;
}

void TestDragScrollGroupBox::ignoresEveryMouseEvent()
{
    QFETCH(QEvent::Type, type);
    DragScrollGroupBox box(QStringLiteral("Arrows"));
    box.setCheckable(true); // the base class accepts the presses of such a box
    QMouseEvent event(type, QPointF(15, 5), box.mapToGlobal(QPointF(15, 5)), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    event.accept();
    QApplication::sendEvent(&box, &event);
    QVERIFY(!event.isAccepted());
}

void TestDragScrollGroupBox::isToggledByTheKeyboardButNotByAFinger()
{
    DragScrollGroupBox box(QStringLiteral("Arrows"));
    box.setCheckable(true);
    box.resize(200, 100);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QSignalSpy clicked(&box, &QGroupBox::clicked);

    for (int x = 0; x < 100; x += 4) { // over indicator and title
        Finger().tap(&box, QPoint(x, 8));
    }
    QVERIFY(box.isChecked());
    QCOMPARE(clicked.count(), 0);

    QTest::keyClick(&box, Qt::Key_Space);
    QVERIFY(!box.isChecked());
    QCOMPARE(clicked.count(), 1);
}

namespace {

/// A list whose first row is a group box with a button in it.
struct ListOfBoxes
{
    ListOfBoxes()
        : model(100, 1)
    {
        list.setModel(&model);
        list.setGeometry(0, 0, 300, 300);
        model.setData(model.index(0, 0), QSize(280, 200), Qt::SizeHintRole);
        box = new DragScrollGroupBox(QStringLiteral("Arrows"));
        button = new DragScrollButton(QStringLiteral("Up"));
        (new QVBoxLayout(box))->addWidget(button);
        list.setIndexWidget(model.index(0, 0), box);
        list.show();
    }

    QStandardItemModel model;
    DragScrollListView list;
    DragScrollGroupBox* box;
    DragScrollButton* button;
};

} // namespace

void TestDragScrollGroupBox::dragThatStartsOnItScrollsTheViewBelow_data()
{
    QTest::addColumn<bool>("byTouch");
    QTest::newRow("mouse") << false;
    QTest::newRow("touch") << true;
}

void TestDragScrollGroupBox::dragThatStartsOnItScrollsTheViewBelow()
{
    QFETCH(bool, byTouch);
    ListOfBoxes boxes;
    QVERIFY(QTest::qWaitForWindowExposed(&boxes.list));
    const auto finger = byTouch ? std::make_unique<TouchFinger>() : std::make_unique<Finger>();
    QSignalSpy clicked(&boxes.list, &QListView::clicked);

    finger->press(boxes.box, QPoint(60, 8));
    finger->moveBy(QPoint(0, -5));
    QCOMPARE(boxes.list.verticalScrollBar()->value(), 5);
    finger->moveBy(QPoint(0, -35));
    finger->release();

    QCOMPARE(boxes.list.verticalScrollBar()->value(), 40);
    QCOMPARE(clicked.count(), 0);
    finger->tap(boxes.box, QPoint(60, 8 + 50));
    QCOMPARE(clicked.count(), 1);
}

void TestDragScrollGroupBox::buttonInsideItScrollsTheViewBelow()
{
    ListOfBoxes boxes;
    QVERIFY(QTest::qWaitForWindowExposed(&boxes.list));
    QSignalSpy clicked(boxes.button, &QPushButton::clicked);
    Finger finger;

    finger.press(boxes.button);
    finger.moveBy(QPoint(0, -40));
    finger.release();
    QCOMPARE(boxes.list.verticalScrollBar()->value(), 40);
    QCOMPARE(clicked.count(), 0);
    finger.tap(boxes.button);
    QCOMPARE(clicked.count(), 1);
}

UW_TEST_MAIN(TestDragScrollGroupBox)

#include "tst_dragscrollgroupbox.moc"
