// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxtextedit.h"

#include "support/fieldform.h"
#include "support/test.h"

#include <QApplication>
#include <QScopeGuard>

class TestOxTextEdit : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void canBeMadeWithItsTextAsHtml();
    void reportsTheLossAfterTheBaseHasHandledIt();
};

void TestOxTextEdit::canBeMadeWithItsTextAsHtml()
{
    QWidget parent;
    const auto* field = new OxTextEdit(QStringLiteral("<b>bold</b>"), &parent);

    QCOMPARE(field->toPlainText(), QStringLiteral("bold"));
    QCOMPARE(field->parentWidget(), &parent);
    QCOMPARE(field->objectName(), QStringLiteral("OxTextEdit"));
    QCOMPARE(OxTextEdit(QStringLiteral("text")).objectName(), QStringLiteral("OxTextEdit"));
}

void TestOxTextEdit::reportsTheLossAfterTheBaseHasHandledIt()
{
    // The base takes its text cursor away, which shows in a picture while the cursor doesn't blink.
    const int flashTime = QApplication::cursorFlashTime();
    QApplication::setCursorFlashTime(0);
    const auto restore = qScopeGuard([&] { QApplication::setCursorFlashTime(flashTime); });
    auto* field = new OxTextEdit;
    FieldForm form(field);
    const auto picture = [&] {
        return field->viewport()->grab().toImage();
    };
    const QImage withoutCursor = picture();
    form.enter();
    QVERIFY(picture() != withoutCursor);
    QImage atLoss;
    connect(field, &OxTextEdit::focusLostSignal, this, [&] { atLoss = picture(); });

    form.leave();

    QCOMPARE(atLoss, withoutCursor);
}

UW_TEST_MAIN(TestOxTextEdit)

#include "tst_oxtextedit.moc"
