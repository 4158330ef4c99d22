// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxplaintextedit.h"

#include "support/fieldform.h"
#include "support/keypresses.h"
#include "support/test.h"

#include <QMetaMethod>
#include <QSignalSpy>

#include <memory>
#include <vector>

class TestOxPlainTextEdit : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void canBeMadeWithItsTextAsItStands();
    void hasNoMetaObjectOfItsOwn();
    void postsTheControlKeyButEmitsNothingWhenLeft();
};

void TestOxPlainTextEdit::canBeMadeWithItsTextAsItStands()
{
    QWidget parent;
    const auto* field = new OxPlainTextEdit(QStringLiteral("<b>a</b>"), &parent);

    QCOMPARE(field->toPlainText(), QStringLiteral("<b>a</b>"));
    QCOMPARE(field->parentWidget(), &parent);
    QCOMPARE(field->objectName(), QStringLiteral("OxPlainTextEdit"));
    QCOMPARE(OxPlainTextEdit(QStringLiteral("a")).objectName(), QStringLiteral("OxPlainTextEdit"));
}

void TestOxPlainTextEdit::hasNoMetaObjectOfItsOwn()
{
    QCOMPARE(OxPlainTextEdit().metaObject(), &QPlainTextEdit::staticMetaObject);
}

void TestOxPlainTextEdit::postsTheControlKeyButEmitsNothingWhenLeft()
{
    auto* field = new OxPlainTextEdit;
    FieldForm form(field);
    const KeyPresses presses(field);
    form.enter();
    QCoreApplication::processEvents();
    QCOMPARE(presses.count(), 1);
    QCOMPARE(presses.list().constFirst().key, int(Qt::Key_Control));

    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (int i = 0; i < field->metaObject()->methodCount(); ++i) {
        const QMetaMethod method = field->metaObject()->method(i);
        if (method.methodType() == QMetaMethod::Signal) {
            spies.push_back(std::make_unique<QSignalSpy>(field, method));
        }
    }
    form.leave();

    QVERIFY(!field->hasFocus());
    QVERIFY(spies.size() > 10);
    for (const auto& spy : spies) {
        if (spy->signal() == "updateRequest(QRect,int)") {
            continue; // its text cursor has to go
        }
        QVERIFY2(spy->isEmpty(), spy->signal().constData());
    }
}

UW_TEST_MAIN(TestOxPlainTextEdit)

#include "tst_oxplaintextedit.moc"
