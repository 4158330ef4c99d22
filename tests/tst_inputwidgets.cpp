// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "clickablecombobox.h"
#include "clickableframe.h"
#include "clickablelabel.h"
#include "oxcombobox.h"
#include "oxdoublespinbox.h"
#include "oxframe.h"
#include "oxlineedit.h"
#include "oxplaintextedit.h"
#include "oxspinbox.h"
#include "oxtextedit.h"

#include "support/fieldform.h"
#include "support/keypresses.h"
#include "support/test.h"

#include <QApplication>
#include <QMetaMethod>
#include <QSignalSpy>

#include <memory>

namespace {

/// One of the input and clickable widgets, and what it promises beside what its base does.
struct Kind
{
    QWidget* (*make)(QWidget* parent);
    QWidget* (*makeWithoutParent)();
    QWidget* (*makeBase)();
    QString objectName;
    QByteArrayList ownSignals;
    QByteArray focusLostSignal;
    /// Control presses that reach it when it gains the focus.
    int nudges;
};

template <typename Field, typename Base>
Kind kind(const char* objectName, const QByteArrayList& ownSignals,
          const QByteArray& focusLostSignal, int nudges)
{
    return { [](QWidget* parent) -> QWidget* { return new Field(parent); },
             []() -> QWidget* { return new Field; },
             []() -> QWidget* { return new Base; },
             QString::fromLatin1(objectName),
             ownSignals,
             focusLostSignal,
             nudges };
}

QByteArrayList signalsAddedTo(const QMetaObject* base, const QMetaObject* derived)
{
    QByteArrayList signatures;
    for (int i = base->methodCount(); i < derived->methodCount(); ++i) {
        if (derived->method(i).methodType() == QMetaMethod::Signal) {
            signatures.append(derived->method(i).methodSignature());
        }
    }
    return signatures;
}

QMetaMethod signalOf(const QObject& object, const QByteArray& signature)
{
    return object.metaObject()->method(object.metaObject()->indexOfSignal(signature.constData()));
}

} // namespace

Q_DECLARE_METATYPE(Kind)

/// What the input and clickable widgets have in common. Each has a test program of its own for the
/// rest.
class TestInputWidgets : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterItsClassUnlessItIsAFrame_data() { allKinds(); }
    void isNamedAfterItsClassUnlessItIsAFrame();
    void canBeMadeWithAParentAloneAndWithNone_data() { allKinds(); }
    void canBeMadeWithAParentAloneAndWithNone();
    void addsItsOwnSignalsAndNoOthers_data() { allKinds(); }
    void addsItsOwnSignalsAndNoOthers();
    void setsNoSheetFontOrSize_data() { allKinds(); }
    void setsNoSheetFontOrSize();
    void nudgesTheInputSystemOnceTheFocusHasSettled_data() { allKinds(); }
    void nudgesTheInputSystemOnceTheFocusHasSettled();
    void nudgesAgainEachTimeItGainsTheFocus_data() { allKinds(); }
    void nudgesAgainEachTimeItGainsTheFocus();
    void reportsTheLossOfTheFocusWhateverTheReason_data() { kindsThatReportTheLoss(); }
    void reportsTheLossOfTheFocusWhateverTheReason();
    void reportsTheLossOfTheFocusToAnotherWindow_data() { kindsThatReportTheLoss(); }
    void reportsTheLossOfTheFocusToAnotherWindow();
    void reportsTheLossOfTheFocusWhenItIsDisabled_data() { kindsThatReportTheLoss(); }
    void reportsTheLossOfTheFocusWhenItIsDisabled();

private:
    static void kindsThatReportTheLoss();
    static void allKinds();
};

void TestInputWidgets::kindsThatReportTheLoss()
{
    const QByteArray focusLost("focusLost()");
    const QByteArray focusLostSignal("focusLostSignal()");
    const QByteArray returnPressed("returnPressed()");

    QTest::addColumn<Kind>("kind");
    QTest::newRow("OxLineEdit") << kind<OxLineEdit, QLineEdit>(
        "OxLineEdit", { "mousePressedSignal()", focusLost }, focusLost, 1);
    QTest::newRow("OxSpinBox") << kind<OxSpinBox, QSpinBox>(
        "OxSpinBox", { focusLost, returnPressed }, focusLost, 1);
    QTest::newRow("OxDoubleSpinBox") << kind<OxDoubleSpinBox, QDoubleSpinBox>(
        "OxDoubleSpinBox", { focusLost, returnPressed }, focusLost, 1);
    QTest::newRow("OxComboBox") << kind<OxComboBox, QComboBox>("OxComboBox", { focusLostSignal },
                                                               focusLostSignal, 1);
    QTest::newRow("OxTextEdit") << kind<OxTextEdit, QTextEdit>("OxTextEdit", { focusLostSignal },
                                                               focusLostSignal, 1);
    QTest::newRow("OxFrame") << kind<OxFrame, QFrame>("", { focusLost }, focusLost, 0);
    // Two nudges: the field inside it has one of its own and passes on the key that it can't use.
    QTest::newRow("ClickableComboBox")
        << kind<ClickableComboBox, OxComboBox>("ClickableComboBox", {}, focusLostSignal, 2);
}

void TestInputWidgets::allKinds()
{
    kindsThatReportTheLoss();
    QTest::newRow("OxPlainTextEdit")
        << kind<OxPlainTextEdit, QPlainTextEdit>("OxPlainTextEdit", {}, {}, 1);
    QTest::newRow("ClickableFrame") << kind<ClickableFrame, QFrame>("", { "clicked()" }, {}, 0);
    QTest::newRow("ClickableLabel")
        << kind<ClickableLabel, QLabel>("ClickableLabel", { "clicked()" }, {}, 0);
}

void TestInputWidgets::isNamedAfterItsClassUnlessItIsAFrame()
{
    QFETCH(const Kind, kind);
    const std::unique_ptr<QWidget> field(kind.make(nullptr));

    QCOMPARE(field->objectName(), kind.objectName);
}

void TestInputWidgets::canBeMadeWithAParentAloneAndWithNone()
{
    QFETCH(const Kind, kind);
    QWidget parent;
    const QWidget* child = kind.make(&parent);
    const std::unique_ptr<QWidget> alone(kind.makeWithoutParent());

    QCOMPARE(child->parentWidget(), &parent);
    QVERIFY(!child->isWindow());
    QCOMPARE(alone->parentWidget(), nullptr);
    QCOMPARE(alone->objectName(), kind.objectName);
}

void TestInputWidgets::addsItsOwnSignalsAndNoOthers()
{
    QFETCH(const Kind, kind);
    const std::unique_ptr<QWidget> field(kind.make(nullptr));
    const std::unique_ptr<QWidget> base(kind.makeBase());

    QCOMPARE(signalsAddedTo(base->metaObject(), field->metaObject()), kind.ownSignals);
}

void TestInputWidgets::setsNoSheetFontOrSize()
{
    QFETCH(const Kind, kind);
    const std::unique_ptr<QWidget> field(kind.make(nullptr));
    const std::unique_ptr<QWidget> base(kind.makeBase());

    QCOMPARE(field->styleSheet(), QString());
    QCOMPARE(field->testAttribute(Qt::WA_SetFont), false);
    QCOMPARE(field->testAttribute(Qt::WA_SetPalette), base->testAttribute(Qt::WA_SetPalette));
    QCOMPARE(field->testAttribute(Qt::WA_SetStyle), false);
    QCOMPARE(field->minimumSize(), base->minimumSize());
    QCOMPARE(field->maximumSize(), base->maximumSize());
    QCOMPARE(field->sizePolicy(), base->sizePolicy());
    QCOMPARE(field->focusPolicy(), base->focusPolicy());
}

void TestInputWidgets::nudgesTheInputSystemOnceTheFocusHasSettled()
{
    QFETCH(const Kind, kind);
    QWidget* field = kind.make(nullptr);
    FieldForm form(field);
    const KeyPresses presses(field);

    form.enter();
    QVERIFY(field->hasFocus());
    QCOMPARE(presses.count(), 0); // posted, not sent

    QCoreApplication::processEvents();
    QCOMPARE(presses.count(), kind.nudges);
    for (const KeyPresses::Press& press : presses.list()) {
        QCOMPARE(press.key, int(Qt::Key_Control));
        QCOMPARE(press.modifiers, Qt::KeyboardModifiers(Qt::NoModifier));
        QCOMPARE(press.text, QString());
        QCOMPARE(press.autoRepeat, false);
        QCOMPARE(press.count, 1);
        QCOMPARE(press.spontaneous, false);
    }
}

void TestInputWidgets::nudgesAgainEachTimeItGainsTheFocus()
{
    QFETCH(const Kind, kind);
    QWidget* field = kind.make(nullptr);
    FieldForm form(field);
    const KeyPresses presses(field);

    for (int i = 1; i <= 3; ++i) {
        form.enter();
        QCoreApplication::processEvents();
        form.leave();
        QCoreApplication::processEvents();
        QCOMPARE(presses.count(), i * kind.nudges);
    }
}

void TestInputWidgets::reportsTheLossOfTheFocusWhateverTheReason()
{
    QFETCH(const Kind, kind);
    QWidget* field = kind.make(nullptr);
    FieldForm form(field);
    QSignalSpy lost(field, signalOf(*field, kind.focusLostSignal));

    for (const Qt::FocusReason reason :
         { Qt::MouseFocusReason, Qt::TabFocusReason, Qt::BacktabFocusReason,
           Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::ShortcutFocusReason,
           Qt::MenuBarFocusReason, Qt::OtherFocusReason }) {
        form.enter(reason);
        QCOMPARE(lost.count(), 0);
        form.leave(reason);
        QCOMPARE(lost.count(), 1);
        lost.clear();
    }
}

void TestInputWidgets::reportsTheLossOfTheFocusToAnotherWindow()
{
    QFETCH(const Kind, kind);
    QWidget* field = kind.make(nullptr);
    FieldForm form(field);
    form.enter();
    QSignalSpy lost(field, signalOf(*field, kind.focusLostSignal));

    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));

    QCOMPARE(lost.count(), 1);
}

void TestInputWidgets::reportsTheLossOfTheFocusWhenItIsDisabled()
{
    QFETCH(const Kind, kind);
    QWidget* field = kind.make(nullptr);
    FieldForm form(field);
    form.enter();
    QSignalSpy lost(field, signalOf(*field, kind.focusLostSignal));

    field->setEnabled(false);

    QCOMPARE(lost.count(), 1);
}

UW_TEST_MAIN(TestInputWidgets)

#include "tst_inputwidgets.moc"
