// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxframe.h"

#include "support/fieldform.h"
#include "support/paintcounter.h"
#include "support/test.h"

#include <QAccessible>
#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>

class TestOxFrame : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void passesItsWindowFlagsOn();
    void saysNothingWhenAWidgetInsideItIsLeft();
    void isRepaintedByItsBaseWhenItIsLeft();
    void isAGroupToThoseWhoCannotSee();
};

void TestOxFrame::passesItsWindowFlagsOn()
{
    QWidget parent;
    const OxFrame frame(&parent, Qt::Popup | Qt::FramelessWindowHint);

    QCOMPARE(frame.windowFlags(),
             QFrame(&parent, Qt::Popup | Qt::FramelessWindowHint).windowFlags());
    QCOMPARE(frame.windowType(), Qt::Popup);
}

void TestOxFrame::saysNothingWhenAWidgetInsideItIsLeft()
{
    auto* frame = new OxFrame;
    auto* inside = new QLineEdit;
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(inside);
    FieldForm form(frame);
    inside->setFocus();
    QVERIFY(inside->hasFocus());
    QSignalSpy lost(frame, &OxFrame::focusLost);

    form.leave();

    QVERIFY(!inside->hasFocus());
    QCOMPARE(lost.count(), 0);
}

void TestOxFrame::isRepaintedByItsBaseWhenItIsLeft()
{
    auto* frame = new OxFrame;
    frame->setFocusPolicy(Qt::StrongFocus);
    frame->setMinimumSize(20, 20);
    FieldForm form(frame);
    const PaintCounter paints(frame);
    QVERIFY(QTest::qWaitForWindowExposed(form.window()));
    form.enter();
    QCoreApplication::processEvents();
    const int before = paints.count();

    form.leave();

    QTRY_VERIFY(paints.count() > before);
}

void TestOxFrame::isAGroupToThoseWhoCannotSee()
{
    OxFrame frame;
    QCOMPARE(QAccessible::queryAccessibleInterface(&frame)->role(), QAccessible::Grouping);
}

UW_TEST_MAIN(TestOxFrame)

#include "tst_oxframe.moc"
