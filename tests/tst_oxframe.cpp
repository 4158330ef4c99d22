// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxframe.h"

#include "support/fieldform.h"
#include "support/test.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace {

class PaintedFrame : public OxFrame
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        OxFrame::paintEvent(event);
    }
};

} // namespace

class TestOxFrame : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void passesItsWindowFlagsOn();
    void saysNothingWhenAWidgetInsideItIsLeft();
    void isRepaintedByItsBaseWhenItIsLeft();
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
    auto* frame = new PaintedFrame;
    frame->setFocusPolicy(Qt::StrongFocus);
    frame->setMinimumSize(20, 20);
    FieldForm form(frame);
    QVERIFY(QTest::qWaitForWindowExposed(form.window()));
    form.enter();
    QCoreApplication::processEvents();
    const int before = frame->paints;

    form.leave();

    QTRY_VERIFY(frame->paints > before);
}

UW_TEST_MAIN(TestOxFrame)

#include "tst_oxframe.moc"
