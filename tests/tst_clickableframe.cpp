// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "clickableframe.h"

#include "support/pressable.h"
#include "support/test.h"

#include <QLabel>
#include <QVBoxLayout>

class TestClickableFrame : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void passesItsWindowFlagsOn();
    void reportsThePressAndNotTheRelease();
    void reportsEveryButton();
    void reportsBothTapsOfADoubleTap();
    void reportsNothingWhileItIsDisabled();
    void reportsThePressBeforeTheBaseHandlesIt();
    void isAButtonToThoseWhoCannotSee();
};

void TestClickableFrame::passesItsWindowFlagsOn()
{
    QWidget parent;
    const ClickableFrame widget(&parent, Qt::Popup | Qt::FramelessWindowHint);

    QCOMPARE(widget.windowFlags(),
             QWidget(&parent, Qt::Popup | Qt::FramelessWindowHint).windowFlags());
    QCOMPARE(widget.windowType(), Qt::Popup);
}

void TestClickableFrame::reportsThePressAndNotTheRelease()
{
    Pressable::reportsThePressAndNotTheRelease<ClickableFrame>();
}

void TestClickableFrame::reportsEveryButton()
{
    Pressable::reportsEveryButton<ClickableFrame>();
}

void TestClickableFrame::reportsBothTapsOfADoubleTap()
{
    Pressable::reportsBothTapsOfADoubleTap<ClickableFrame>();
}

void TestClickableFrame::reportsNothingWhileItIsDisabled()
{
    Pressable::reportsNothingWhileItIsDisabled<ClickableFrame>();
}

void TestClickableFrame::reportsThePressBeforeTheBaseHandlesIt()
{
    Pressable::reportsThePressBeforeTheBaseHandlesIt<ClickableFrame>();
}

void TestClickableFrame::isAButtonToThoseWhoCannotSee()
{
    ClickableFrame frame;
    auto* layout = new QVBoxLayout(&frame);
    layout->addWidget(new QLabel(QStringLiteral("Colour")));
    layout->addWidget(new QLabel(QStringLiteral("of the pen")));
    Pressable::isAButtonToThoseWhoCannotSee(frame, QStringLiteral("Colour of the pen"));
}

UW_TEST_MAIN(TestClickableFrame)

#include "tst_clickableframe.moc"
