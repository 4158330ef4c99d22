// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symbolslineedit.h"

#include "support/finger.h"
#include "support/test.h"

#include <QPainter>
#include <QSignalSpy>
#include <QToolButton>

class TestSymbolsLineEdit : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theMagnifierHasItsIconCursorAndName();
    void theMagnifierEndsOnePixelInsideTheRightBorder_data();
    void theMagnifierEndsOnePixelInsideTheRightBorder();
    void theMagnifierStandsAtTheLeftForLanguagesFromRightToLeft();
    void theOtherMarginsAreKept();
    void theTextNeverRunsUnderTheMagnifier_data();
    void theTextNeverRunsUnderTheMagnifier();
    void tappingTheMagnifierIsPressingReturn();
    void pressingReturnIsReportedOnce();
    void startsWithoutAParent();
};

namespace {

QToolButton* magnifier(const SymbolsLineEdit& field)
{
    return field.findChild<QToolButton*>();
}

/// What `field` looks like with `text` and without a blinking cursor.
QImage picture(SymbolsLineEdit& field, const QString& text)
{
    field.setText(text);
    field.setCursorPosition(0);
    return field.grab().toImage();
}

} // namespace

void TestSymbolsLineEdit::theMagnifierHasItsIconCursorAndName()
{
    const SymbolsLineEdit field;
    QCOMPARE(field.findChildren<QToolButton*>().count(), 1);
    const QToolButton* button = magnifier(field);
    QCOMPARE(button->iconSize(), QSize(16, 16));
    QCOMPARE(button->icon().pixmap(16, 16).toImage(),
             QIcon(QStringLiteral(":/InsertIcons/Icons/search.png")).pixmap(16, 16).toImage());
    QVERIFY(!button->icon().pixmap(16, 16).isNull());
    QCOMPARE(button->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(button->accessibleName(), QStringLiteral("Search"));
    QCOMPARE(field.accessibleName(), QStringLiteral("Search symbols"));
    QCOMPARE(button->text(), QString());
}

void TestSymbolsLineEdit::theMagnifierEndsOnePixelInsideTheRightBorder_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("usual") << QSize(160, 28);
    QTest::newRow("finger-sized") << QSize(300, 35);
    QTest::newRow("odd heights differ") << QSize(200, 41);
    QTest::newRow("lower than the magnifier") << QSize(200, 12);
    QTest::newRow("narrower than the magnifier") << QSize(10, 28);
}

void TestSymbolsLineEdit::theMagnifierEndsOnePixelInsideTheRightBorder()
{
    QFETCH(QSize, size);
    SymbolsLineEdit field;
    field.resize(size);
    field.show();
    QVERIFY(QTest::qWaitForWindowExposed(&field));
    const QRect place = magnifier(field)->geometry();
    const QSize hint = magnifier(field)->sizeHint();
    QCOMPARE(place.size(), hint);
    QCOMPARE(place.left(), field.width() - 1 - hint.width());
    QCOMPARE(place.right(), field.width() - 2);
    QCOMPARE(place.top(), (field.height() - hint.height()) / 2);
    QCOMPARE(field.textMargins().right(), hint.width() + 4);
}

void TestSymbolsLineEdit::theMagnifierStandsAtTheLeftForLanguagesFromRightToLeft()
{
    SymbolsLineEdit field;
    field.resize(300, 35);
    field.show();
    QVERIFY(QTest::qWaitForWindowExposed(&field));
    const int width = magnifier(field)->sizeHint().width();
    field.setTextMargins(7, 1, field.textMargins().right(), 2);
    for (int turn = 0; turn < 2; ++turn) {
        field.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(magnifier(field)->geometry().left(), 1);
        QCOMPARE(field.textMargins(), QMargins(width + 4, 1, 7, 2));
        field.resize(310 + turn, 35);
        QCOMPARE(magnifier(field)->geometry().left(), 1);
        QCOMPARE(field.textMargins(), QMargins(width + 4, 1, 7, 2));
        field.setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(magnifier(field)->geometry().right(), field.width() - 2);
        QCOMPARE(field.textMargins(), QMargins(7, 1, width + 4, 2));
    }
}

void TestSymbolsLineEdit::theOtherMarginsAreKept()
{
    SymbolsLineEdit field;
    field.setTextMargins(3, 1, 50, 2);
    field.resize(200, 30);
    field.show();
    const int right = magnifier(field)->sizeHint().width() + 4;
    QCOMPARE(field.textMargins(), QMargins(3, 1, right, 2));
}

void TestSymbolsLineEdit::theTextNeverRunsUnderTheMagnifier_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("no room for anything") << 16;
    QTest::newRow("room for the magnifier alone") << 34;
    QTest::newRow("room for a letter") << 50;
    QTest::newRow("narrow") << 90;
    QTest::newRow("in the menu") << 160;
    QTest::newRow("wide") << 600;
}

void TestSymbolsLineEdit::theTextNeverRunsUnderTheMagnifier()
{
    QFETCH(int, width);
    SymbolsLineEdit field;
    field.setAttribute(Qt::WA_DontShowOnScreen);
    field.setMinimumWidth(1);
    field.resize(width, 30);
    field.show();
    QCOMPARE(field.width(), width);
    const QRect place = magnifier(field)->geometry().intersected(field.rect());
    const QImage empty = picture(field, QString());
    const QImage full = picture(field, QString(400, QLatin1Char('W')));
    QCOMPARE(full.copy(place), empty.copy(place));
    if (width >= 90) {
        QVERIFY(full != empty); // the text is seen elsewhere
    }
}

void TestSymbolsLineEdit::tappingTheMagnifierIsPressingReturn()
{
    SymbolsLineEdit field;
    field.resize(200, 35);
    field.show();
    QVERIFY(QTest::qWaitForWindowExposed(&field));
    QSignalSpy returned(&field, &QLineEdit::returnPressed);
    Finger().tap(magnifier(field));
    QCOMPARE(returned.count(), 1);
    TouchFinger().tap(magnifier(field));
    QCOMPARE(returned.count(), 2);
}

void TestSymbolsLineEdit::pressingReturnIsReportedOnce()
{
    SymbolsLineEdit field;
    QSignalSpy returned(&field, &QLineEdit::returnPressed);
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(returned.count(), 1);
}

void TestSymbolsLineEdit::startsWithoutAParent()
{
    QWidget parent;
    const SymbolsLineEdit inside(&parent);
    QCOMPARE(inside.parentWidget(), &parent);
    const SymbolsLineEdit alone;
    QVERIFY(alone.parentWidget() == nullptr);
    QCOMPARE(alone.text(), QString());
}

UW_TEST_MAIN(TestSymbolsLineEdit)

#include "tst_symbolslineedit.moc"
