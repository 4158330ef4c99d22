// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "clickablelabel.h"

#include "support/pressable.h"
#include "support/test.h"

class TestClickableLabel : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void passesItsWindowFlagsOn();
    void canBeMadeWithItsText();
    void letsTheBaseHandleThePressAfterwards();
    void reportsThePressAndNotTheRelease();
    void reportsEveryButton();
    void reportsBothTapsOfADoubleTap();
    void reportsNothingWhileItIsDisabled();
    void reportsThePressBeforeTheBaseHandlesIt();
    void isAButtonToThoseWhoCannotSee();
};

void TestClickableLabel::passesItsWindowFlagsOn()
{
    QWidget parent;
    const ClickableLabel widget(&parent, Qt::Popup | Qt::FramelessWindowHint);

    QCOMPARE(widget.windowFlags(),
             QWidget(&parent, Qt::Popup | Qt::FramelessWindowHint).windowFlags());
    QCOMPARE(widget.windowType(), Qt::Popup);
}

void TestClickableLabel::canBeMadeWithItsText()
{
    QWidget parent;
    const auto* label = new ClickableLabel(QStringLiteral("text"), &parent);
    const ClickableLabel popup(QStringLiteral("text"), nullptr, Qt::Popup);

    QCOMPARE(label->text(), QStringLiteral("text"));
    QCOMPARE(label->parentWidget(), &parent);
    QCOMPARE(label->objectName(), QStringLiteral("ClickableLabel"));
    QCOMPARE(popup.windowType(), Qt::Popup);
    QCOMPARE(ClickableLabel(QStringLiteral("text")).text(), QStringLiteral("text"));
}

void TestClickableLabel::letsTheBaseHandleThePressAfterwards()
{
    ClickableLabel label(QStringLiteral("some text"));
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    label.setSelection(0, 4);
    bool selectedAtClick = false;
    connect(&label, &ClickableLabel::clicked, this,
            [&] { selectedAtClick = label.hasSelectedText(); });

    QTest::mousePress(&label, Qt::LeftButton, {}, label.rect().bottomRight());

    QVERIFY(selectedAtClick);
    QVERIFY(!label.hasSelectedText());
}

void TestClickableLabel::reportsThePressAndNotTheRelease()
{
    Pressable::reportsThePressAndNotTheRelease<ClickableLabel>();
}

void TestClickableLabel::reportsEveryButton()
{
    Pressable::reportsEveryButton<ClickableLabel>();
}

void TestClickableLabel::reportsBothTapsOfADoubleTap()
{
    Pressable::reportsBothTapsOfADoubleTap<ClickableLabel>();
}

void TestClickableLabel::reportsNothingWhileItIsDisabled()
{
    Pressable::reportsNothingWhileItIsDisabled<ClickableLabel>();
}

void TestClickableLabel::reportsThePressBeforeTheBaseHandlesIt()
{
    Pressable::reportsThePressBeforeTheBaseHandlesIt<ClickableLabel>();
}

void TestClickableLabel::isAButtonToThoseWhoCannotSee()
{
    ClickableLabel label(QStringLiteral("Open <b>it</b>"));
    Pressable::isAButtonToThoseWhoCannotSee(label, QStringLiteral("Open it"));
}

UW_TEST_MAIN(TestClickableLabel)

#include "tst_clickablelabel.moc"
