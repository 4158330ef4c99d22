// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/fieldform.h"

#include <QDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

/// What the spin box and the double spin box promise alike.
namespace NumberField {

/// Replaces the text of `box` as a person does. The value follows only when it is interpreted.
template <typename Box> void type(Box& box, const QString& text)
{
    box.setKeyboardTracking(false);
    box.selectAll();
    QTest::keyClicks(&box, text);
}

template <typename Box> void reportsReturnAndEnterOnce()
{
    Box box;
    QSignalSpy returned(&box, &Box::returnPressed);

    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(returned.count(), 1);
    QTest::keyClick(&box, Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(returned.count(), 2);
}

template <typename Box> void reportsNoOtherKey()
{
    Box box;
    QSignalSpy returned(&box, &Box::returnPressed);

    for (const Qt::Key key : { Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Up, Qt::Key_1, Qt::Key_A,
                               Qt::Key_Control, Qt::Key_Space, Qt::Key_Select }) {
        QTest::keyClick(&box, key);
    }

    QCOMPARE(returned.count(), 0);
}

template <typename Box> void reportsReturnOnceTheValueIsCommitted()
{
    Box box;
    type(box, QStringLiteral("42"));
    QCOMPARE(int(box.value()), 0);
    int value = -1;
    QObject::connect(&box, &Box::returnPressed, &box, [&] { value = int(box.value()); });

    QTest::keyClick(&box, Qt::Key_Return);

    QCOMPARE(value, 42);
}

template <typename Box> void reportsTheLossOnceTheValueIsCommitted()
{
    auto* box = new Box;
    FieldForm form(box);
    form.enter();
    type(*box, QStringLiteral("42"));
    QCOMPARE(int(box->value()), 0);
    int value = -1;
    QObject::connect(box, &Box::focusLost, box, [&] { value = int(box->value()); });

    form.leave();

    QCOMPARE(value, 42);
}

template <typename Box> void letsReturnTriggerTheDefaultButton()
{
    QDialog dialog;
    auto* box = new Box;
    auto* button = new QPushButton;
    button->setDefault(true);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(box);
    layout->addWidget(button);
    dialog.show();
    QSignalSpy clicked(button, &QPushButton::clicked);

    QTest::keyClick(box, Qt::Key_Return);

    QCOMPARE(clicked.count(), 1);
}

} // namespace NumberField
