// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/sheetcolor.h"

#include "support/test.h"

#include <QWidget>

class TestSheetColor : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void keepsAColorLetterForLetter_data();
    void keepsAColorLetterForLetter();
    void replacesWhatIsNoColor_data();
    void replacesWhatIsNoColor();
    void theReplacementIsUnderstoodAndSetsNoColor();
};

void TestSheetColor::keepsAColorLetterForLetter_data()
{
    QTest::addColumn<QString>("color");

    QTest::newRow("hexadecimal") << QStringLiteral("#fd7800");
    QTest::newRow("hexadecimal, upper case") << QStringLiteral("#FD7800");
    QTest::newRow("short hexadecimal") << QStringLiteral("#f80");
    QTest::newRow("hexadecimal with alpha") << QStringLiteral("#80fd7800");
    QTest::newRow("name") << QStringLiteral("red");
    QTest::newRow("name, mixed case") << QStringLiteral("DarkSlateGray");
    QTest::newRow("transparent") << QStringLiteral("transparent");
    QTest::newRow("rgb") << QStringLiteral("rgb(1,2,255)");
    QTest::newRow("rgb in percent") << QStringLiteral("rgb( 10%, 20% , 100% )");
    QTest::newRow("rgba") << QStringLiteral("rgba(255, 0, 0, 50%)");
    QTest::newRow("hsv") << QStringLiteral("hsv(359, 255, 255)");
    QTest::newRow("hsva") << QStringLiteral("hsva(120, 100%, 100%, 255)");
    QTest::newRow("hsl") << QStringLiteral("hsl(120, 100%, 50%)");
    QTest::newRow("hsla") << QStringLiteral("hsla(120, 100%, 50%, 1)");
    QTest::newRow("palette") << QStringLiteral("palette(highlight)");
}

void TestSheetColor::keepsAColorLetterForLetter()
{
    QFETCH(const QString, color);

    QCOMPARE(Look::sheetColor(color), color);
    QWidget widget;
    widget.setStyleSheet(QStringLiteral("background-color: ") + Look::sheetColor(color));
    widget.grab(); // fails on a warning of the style sheet parser
}

void TestSheetColor::replacesWhatIsNoColor_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << QString();
    QTest::newRow("blank") << QStringLiteral(" ");
    QTest::newRow("unknown name") << QStringLiteral("nosuchcolor");
    QTest::newRow("two words") << QStringLiteral("light blue");
    QTest::newRow("blanks around a name") << QStringLiteral(" red ");
    QTest::newRow("line break after a name") << QStringLiteral("red\n");
    QTest::newRow("further rules") << QStringLiteral("red; } * { background: blue");
    QTest::newRow("further declaration") << QStringLiteral("red; padding: 9px");
    QTest::newRow("open brace") << QStringLiteral("{");
    QTest::newRow("comment") << QStringLiteral("/*");
    QTest::newRow("quotation mark") << QStringLiteral("\"red\"");
    QTest::newRow("other letters") << QStringLiteral("\u7ea2\u8272");
    QTest::newRow("name followed by other letters") << QStringLiteral("red\u7ea2");
    QTest::newRow("full-width digits") << QStringLiteral("#\uff11\uff12\uff13");
    QTest::newRow("emoji") << QString::fromUtf8("\xf0\x9f\x8e\xa8");
    QTest::newRow("null character") << QString(QStringLiteral("red") + QChar(0));
    QTest::newRow("wrong number of digits") << QStringLiteral("#12");
    QTest::newRow("hash alone") << QStringLiteral("#");
    QTest::newRow("no hexadecimal digits") << QStringLiteral("#ggg");
    QTest::newRow("image") << QStringLiteral("url(:/Navigation/NavigationIcons/exit.png)");
    QTest::newRow("rgb with alpha") << QStringLiteral("rgb(1, 2, 3, 4)");
    QTest::newRow("rgba without alpha") << QStringLiteral("rgba(1, 2, 3)");
    QTest::newRow("rgb beyond 255") << QStringLiteral("rgb(1, 2, 256)");
    QTest::newRow("beyond 100 percent") << QStringLiteral("rgb(101%, 2%, 3%)");
    QTest::newRow("hue beyond 359") << QStringLiteral("hsv(360, 2, 3)");
    QTest::newRow("negative") << QStringLiteral("rgb(-1, 2, 3)");
    QTest::newRow("unclosed function") << QStringLiteral("rgb(1, 2, 3");
    QTest::newRow("function in upper case") << QStringLiteral("RGB(1, 2, 3)");
    QTest::newRow("function without numbers") << QStringLiteral("rgb()");
    QTest::newRow("unknown function") << QStringLiteral("paint(1, 2, 3)");
}

void TestSheetColor::replacesWhatIsNoColor()
{
    QFETCH(const QString, text);

    QCOMPARE(Look::sheetColor(text), QStringLiteral("none"));
}

void TestSheetColor::theReplacementIsUnderstoodAndSetsNoColor()
{
    QWidget widget;
    widget.setStyleSheet(QStringLiteral("background-color: %1; color: %1; border: 3px solid red")
                             .arg(Look::sheetColor({})));
    widget.resize(20, 20);
    const QImage image = widget.grab().toImage();

    QCOMPARE(image.pixelColor(10, 10), QWidget().palette().color(QPalette::Window));
    QCOMPARE(image.pixelColor(1, 10), QColor(Qt::red));
}

UW_TEST_MAIN(TestSheetColor)

#include "tst_sheetcolor.moc"
