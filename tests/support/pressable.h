// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/fieldform.h"
#include "support/finger.h"

#include <QAccessible>
#include <QEvent>
#include <QObject>
#include <QSignalSpy>
#include <QTest>

/// What the frame and the label that can be pressed promise alike.
namespace Pressable {

/// Keeps the mouse press that a widget is about to get, to be looked at while it is delivered.
class PressInDelivery : public QObject
{
public:
    explicit PressInDelivery(QObject* watched) { watched->installEventFilter(this); }

    int count = 0;
    bool isAccepted() const { return m_event->isAccepted(); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonPress) {
            ++count;
            m_event = event;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QEvent* m_event = nullptr;
};

/// With `text` to be read on the widget.
template <typename Widget> void isAButtonToThoseWhoCannotSee(Widget& widget, const QString& text)
{
    QSignalSpy clicked(&widget, &Widget::clicked);
    auto* accessible = QAccessible::queryAccessibleInterface(&widget);
    const QString press = QAccessibleActionInterface::pressAction();

    QCOMPARE(accessible->role(), QAccessible::Button);
    QCOMPARE(accessible->text(QAccessible::Name), text);
    QVERIFY(accessible->actionInterface()->actionNames().contains(press));
    accessible->actionInterface()->doAction(press);
    QCOMPARE(clicked.count(), 1);

    widget.setAccessibleName(QStringLiteral("Given"));
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Given"));
    widget.setEnabled(false);
    QVERIFY(!accessible->actionInterface()->actionNames().contains(press));
    accessible->actionInterface()->doAction(press);
    QCOMPARE(clicked.count(), 1);
}

template <typename Widget> void reportsThePressAndNotTheRelease()
{
    auto* widget = new Widget;
    const FieldForm form(widget);
    QSignalSpy clicked(widget, &Widget::clicked);
    Finger finger;

    finger.press(widget);
    QCOMPARE(clicked.count(), 1);
    finger.release();
    QCOMPARE(clicked.count(), 1);
}

template <typename Widget> void reportsEveryButton()
{
    Widget widget;
    QSignalSpy clicked(&widget, &Widget::clicked);

    for (const Qt::MouseButton button :
         { Qt::LeftButton, Qt::RightButton, Qt::MiddleButton, Qt::BackButton }) {
        QTest::mousePress(&widget, button);
    }

    QCOMPARE(clicked.count(), 4);
}

template <typename Widget> void reportsBothTapsOfADoubleTap()
{
    auto* widget = new Widget;
    const FieldForm form(widget);
    QSignalSpy clicked(widget, &Widget::clicked);

    Finger().doubleTap(widget);

    QCOMPARE(clicked.count(), 2);
}

template <typename Widget> void reportsNothingWhileItIsDisabled()
{
    auto* widget = new Widget;
    const FieldForm form(widget);
    widget->setEnabled(false);
    QSignalSpy clicked(widget, &Widget::clicked);

    Finger().tap(widget);

    QCOMPARE(clicked.count(), 0);
}

/// The base refuses the press, which is how it comes to the parent.
template <typename Widget> void reportsThePressBeforeTheBaseHandlesIt()
{
    auto* widget = new Widget;
    FieldForm form(widget);
    const PressInDelivery press(widget);
    const PressInDelivery pressOfTheParent(form.window());
    bool refused = true;
    QObject::connect(widget, &Widget::clicked, widget, [&] {
        refused = !press.isAccepted();
        QCOMPARE(pressOfTheParent.count, 0);
    });

    Finger().tap(widget);

    QCOMPARE(press.count, 1);
    QCOMPARE(refused, false);
    QCOMPARE(pressOfTheParent.count, 1);
}

} // namespace Pressable
