// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "ignoreentereventhandler.h"

#include "support/keypresses.h"
#include "support/test.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace {

/// A shown dialog with a field and a default button.
class FieldDialog : public QDialog
{
public:
    FieldDialog()
    {
        button->setDefault(true);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(field);
        layout->addWidget(button);
        show();
    }

    QLineEdit* field = new QLineEdit;
    QPushButton* button = new QPushButton;
};

} // namespace

class TestIgnoreEnterEventHandler : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void hasAMetaObjectWithoutSignalsOrSlots();
    void canBeMadeWithAParentAloneAndWithNone();
    void swallowsThePressOfReturnAndEnterOnly_data();
    void swallowsThePressOfReturnAndEnterOnly();
    void keepsReturnAndEnterFromTheWidgetAndItsDialog();
    void letsOtherKeysReachTheWidgetAndItsDialog();
};

void TestIgnoreEnterEventHandler::hasAMetaObjectWithoutSignalsOrSlots()
{
    const QMetaObject& meta = IgnoreEnterEventHandler::staticMetaObject;

    QCOMPARE(meta.className(), "IgnoreEnterEventHandler");
    QCOMPARE(IgnoreEnterEventHandler().metaObject(), &meta);
    QCOMPARE(meta.methodCount(), QObject::staticMetaObject.methodCount());
}

void TestIgnoreEnterEventHandler::canBeMadeWithAParentAloneAndWithNone()
{
    QObject parent;
    const auto* handler = new IgnoreEnterEventHandler(&parent);

    QCOMPARE(handler->parent(), &parent);
    QCOMPARE(IgnoreEnterEventHandler().parent(), nullptr);
}

void TestIgnoreEnterEventHandler::swallowsThePressOfReturnAndEnterOnly_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("swallowed");

    QTest::newRow("Return") << QEvent::KeyPress << Qt::Key_Return << true;
    QTest::newRow("Enter") << QEvent::KeyPress << Qt::Key_Enter << true;
    QTest::newRow("release of Return") << QEvent::KeyRelease << Qt::Key_Return << false;
    QTest::newRow("release of Enter") << QEvent::KeyRelease << Qt::Key_Enter << false;
    QTest::newRow("shortcut query of Return")
        << QEvent::ShortcutOverride << Qt::Key_Return << false;
    QTest::newRow("Escape") << QEvent::KeyPress << Qt::Key_Escape << false;
    QTest::newRow("letter") << QEvent::KeyPress << Qt::Key_A << false;
    QTest::newRow("blank") << QEvent::KeyPress << Qt::Key_Space << false;
    QTest::newRow("Select") << QEvent::KeyPress << Qt::Key_Select << false;
}

void TestIgnoreEnterEventHandler::swallowsThePressOfReturnAndEnterOnly()
{
    QFETCH(const QEvent::Type, type);
    QFETCH(const Qt::Key, key);
    QFETCH(const bool, swallowed);
    IgnoreEnterEventHandler handler;
    QLineEdit field;

    for (const Qt::KeyboardModifier modifier :
         { Qt::NoModifier, Qt::KeypadModifier, Qt::ControlModifier, Qt::ShiftModifier }) {
        QKeyEvent event(type, key, modifier);
        QCOMPARE(handler.eventFilter(&field, &event), swallowed);
        QCOMPARE(handler.eventFilter(nullptr, &event), swallowed);
    }
    QEvent other(QEvent::Enter);
    QCOMPARE(handler.eventFilter(&field, &other), false);
}

void TestIgnoreEnterEventHandler::keepsReturnAndEnterFromTheWidgetAndItsDialog()
{
    FieldDialog dialog;
    QSignalSpy returned(dialog.field, &QLineEdit::returnPressed);
    QSignalSpy clicked(dialog.button, &QPushButton::clicked);
    QTest::keyClick(dialog.field, Qt::Key_Return);
    QCOMPARE(returned.count(), 1);
    QCOMPARE(clicked.count(), 1);

    const KeyPresses pressesOfTheDialog(&dialog);
    IgnoreEnterEventHandler handler;
    dialog.field->installEventFilter(&handler);
    QTest::keyClick(dialog.field, Qt::Key_Return);
    QTest::keyClick(dialog.field, Qt::Key_Enter, Qt::KeypadModifier);

    QCOMPARE(returned.count(), 1);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(pressesOfTheDialog.count(), 0);
}

void TestIgnoreEnterEventHandler::letsOtherKeysReachTheWidgetAndItsDialog()
{
    FieldDialog dialog;
    dialog.field->installEventFilter(new IgnoreEnterEventHandler(dialog.field));
    QSignalSpy rejected(&dialog, &QDialog::rejected);

    QTest::keyClick(dialog.field, Qt::Key_A);
    QCOMPARE(dialog.field->text(), QStringLiteral("a"));
    QTest::keyClick(dialog.field, Qt::Key_Escape);
    QCOMPARE(rejected.count(), 1);
}

UW_TEST_MAIN(TestIgnoreEnterEventHandler)

#include "tst_ignoreentereventhandler.moc"
