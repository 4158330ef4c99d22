// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "colormenu.h"

#include "support/finger.h"
#include "support/test.h"

#include <QGridLayout>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

namespace {

const QString Red = QStringLiteral("#ff0000");
const QString Green = QStringLiteral("#00ff00");
const QString Blue = QStringLiteral("blue");
const QString Transparent = QStringLiteral("transparent");
const QString CheckeredImage = QStringLiteral(":/Background/Background/transparentBackground.png");

QWidget* paletteOf(const ColorMenu& menu)
{
    return menu.findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
}

QGridLayout* gridOf(const ColorMenu& menu)
{
    return qobject_cast<QGridLayout*>(paletteOf(menu)->layout());
}

/// All buttons in the order of the palette.
QList<QPushButton*> buttonsOf(const ColorMenu& menu)
{
    QList<QPushButton*> buttons;
    for (int i = 0; i < gridOf(menu)->count(); ++i) {
        buttons.append(qobject_cast<QPushButton*>(gridOf(menu)->itemAt(i)->widget()));
    }
    return buttons;
}

/// One letter per button: "x" for a marked one, "." for the rest.
QString marksOf(const ColorMenu& menu)
{
    QString marks;
    const QList<QPushButton*> buttons = buttonsOf(menu);
    for (const QPushButton* button : buttons) {
        const bool isMarked = button->styleSheet().contains(QLatin1String("padding: 2px"));
        marks += isMarked ? QLatin1Char('x') : QLatin1Char('.');
    }
    return marks;
}

/// A button as it stands in its menu: alone it would be grabbed on a background of its own colour.
QImage imageOf(const QPushButton* button)
{
    QWidget* menu = button->window();
    return menu->grab(QRect(button->mapTo(menu, QPoint()), button->size())).toImage();
}

void showAndWait(QWidget* widget)
{
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget));
}

} // namespace

class TestColorMenu : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterItsClass();
    void hasItsExactSheet();
    void paletteIsCentredWithoutMargins();
    void stylesEveryButtonWithItsExactText_data();
    void stylesEveryButtonWithItsExactText();
    void buttonsCarryTheirColorAsGiven();
    void nineColorsMakeRowsOfFourFourAndOne();
    void eightColorsMakeTwoRows();
    void aMaximumThatIsNotPositiveNeverWraps_data();
    void aMaximumThatIsNotPositiveNeverWraps();
    void aNewMaximumTakesEffectAtTheNextPalette();
    void formerButtonsAreDeletedAtOnce();
    void anEmptyPaletteHasNoButtons();

    void marksTheSelectedColorOfTheCall();
    void anEmptySelectedColorKeepsTheFormerOneMarked();
    void aColorThatDoesNotOccurChangesNothing();
    void anEmptyColorTakesTheMarkButIsRemembered();
    void duplicatesAreAllMarked();
    void aSelectedButtonIsTheOnlyMarkedOne();
    void unselectingAButtonOrAColorOnlyTakesMarks();
    void nullButtonsAreIgnored();

    void aTapMarksThenReportsTheColor();
    void pressingTheSelectedButtonAgainReportsAgain();
    void settersEmitNothing();
    void thePaletteMayBeReplacedFromTheSignal();

    void theTransparentButtonIsHiddenAtFirst();
    void theTransparentButtonCanBeShownAndHidden();
    void showingTransparentBeforeTheFirstPaletteHasNoEffect();
    void aNewPaletteShowsTransparentIfItCouldBeSeenBefore();
    void onlyTheLastOfTwoTransparentButtonsIsRemembered();

    void anUnmarkedSwatchFillsItsFrame();
    void aMarkedSwatchStandsInAGapOfTwoPixels();
    void aSwatchStaysInItsPlaceWhenItIsMarked();
    void aPressedSwatchShrinksByFourPixels();
    void theTransparentSwatchShowsTheCheckeredImage();
    void aTextThatIsNoColorStaysOutOfTheSheet_data();
    void aTextThatIsNoColorStaysOutOfTheSheet();
};

void TestColorMenu::isNamedAfterItsClass()
{
    QCOMPARE(ColorMenu().objectName(), QStringLiteral("ColorMenu"));
}

void TestColorMenu::hasItsExactSheet()
{
    QCOMPARE(ColorMenu().styleSheet(),
             QStringLiteral(
                 "QPushButton { min-width: 25px; min-height: 25px; max-width: 25px; max-height: "
                 "25px; border: 1px solid black; }\nQPushButton#ColorButton { min-width: 35px; "
                 "min-height: 35px; max-width: 35px; max-height: 35px; }\n"
                 "QPushButton#ColorButton::pressed { background-origin: content; background-clip: "
                 "content; padding: 4px; } "));
}

void TestColorMenu::paletteIsCentredWithoutMargins()
{
    const ColorMenu menu;
    const auto* layout = qobject_cast<QVBoxLayout*>(menu.layout());

    QVERIFY(layout != nullptr);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget(), paletteOf(menu));
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(layout->stretch(0), 2);
}

void TestColorMenu::stylesEveryButtonWithItsExactText_data()
{
    QTest::addColumn<QString>("color");
    QTest::addColumn<QString>("unselected");
    QTest::addColumn<QString>("selected");

    QTest::newRow("transparent")
        << Transparent
        << QStringLiteral("background-image: "
                          "url(:/Background/Background/transparentBackground.png); ")
        << QStringLiteral("background-image: "
                          "url(:/Background/Background/transparentBackground.png); "
                          "background-origin: content; background-clip: content; padding: 2px; ");
    QTest::newRow("hexadecimal") << Red << QStringLiteral("background-color: #ff0000")
                                 << QStringLiteral(
                                        "background-color: #ff0000; background-origin: content; "
                                        "background-clip: content; padding: 2px; ");
    QTest::newRow("name") << Blue << QStringLiteral("background-color: blue")
                          << QStringLiteral("background-color: blue; background-origin: content; "
                                            "background-clip: content; padding: 2px; ");
    QTest::newRow("transparent in another case")
        << QStringLiteral("Transparent") << QStringLiteral("background-color: Transparent")
        << QStringLiteral("background-color: Transparent; background-origin: content; "
                          "background-clip: content; padding: 2px; ");
}

void TestColorMenu::stylesEveryButtonWithItsExactText()
{
    QFETCH(const QString, color);
    QFETCH(const QString, unselected);
    QFETCH(const QString, selected);
    ColorMenu menu;
    menu.setColorPallete({ color }, {});
    const QPushButton* button = buttonsOf(menu).constFirst();

    QCOMPARE(button->styleSheet(), unselected);
    menu.updateSelectedColor(color);
    QCOMPARE(button->styleSheet(), selected);
    menu.updateUnselectedColor(color);
    QCOMPARE(button->styleSheet(), unselected);
}

void TestColorMenu::buttonsCarryTheirColorAsGiven()
{
    const QStringList colors { Red, Transparent, QStringLiteral("No Colour"), QString() };
    ColorMenu menu;
    menu.setColorPallete(colors, {});

    for (int i = 0; i < 4; ++i) {
        const QPushButton* button = buttonsOf(menu).at(i);
        QCOMPARE(button->objectName(), QStringLiteral("ColorButton"));
        QCOMPARE(button->property("color"), QVariant(colors.at(i)));
        QCOMPARE(button->accessibleName(), colors.at(i));
    }
}

void TestColorMenu::nineColorsMakeRowsOfFourFourAndOne()
{
    ColorMenu menu;
    menu.setColorPallete(QStringList(9, Red), {});
    showAndWait(&menu);
    const QGridLayout* grid = gridOf(menu);

    QCOMPARE(grid->rowCount(), 3);
    QCOMPARE(grid->columnCount(), 4);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 4; ++column) {
            QCOMPARE(grid->itemAtPosition(row, column) != nullptr, row < 2 || column == 0);
            QVERIFY(grid->cellRect(row, column).width() >= 50);
            QVERIFY(grid->cellRect(row, column).height() >= 50);
        }
    }
}

void TestColorMenu::eightColorsMakeTwoRows()
{
    ColorMenu menu;
    menu.setColorPallete(QStringList(8, Red), {});

    QCOMPARE(gridOf(menu)->rowCount(), 2);
    QCOMPARE(gridOf(menu)->columnCount(), 4);
}

void TestColorMenu::aMaximumThatIsNotPositiveNeverWraps_data()
{
    QTest::addColumn<int>("maximum");

    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -1;
}

void TestColorMenu::aMaximumThatIsNotPositiveNeverWraps()
{
    QFETCH(const int, maximum);
    ColorMenu menu;
    menu.setMaxColumnCount(maximum);
    menu.setColorPallete(QStringList(9, Red), {});

    QCOMPARE(gridOf(menu)->rowCount(), 1);
    QCOMPARE(gridOf(menu)->columnCount(), 9);
}

void TestColorMenu::aNewMaximumTakesEffectAtTheNextPalette()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Green, Blue }, {});
    menu.setMaxColumnCount(2);
    QCOMPARE(gridOf(menu)->columnCount(), 3);

    menu.setColorPallete({ Red, Green, Blue }, {});

    QCOMPARE(gridOf(menu)->columnCount(), 2);
    QCOMPARE(gridOf(menu)->rowCount(), 2);
}

void TestColorMenu::formerButtonsAreDeletedAtOnce()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Green }, {});
    const QPointer<QPushButton> former = buttonsOf(menu).constFirst();
    const QPointer<QLayout> formerGrid = gridOf(menu);

    menu.setColorPallete({ Blue }, {});

    QVERIFY(former.isNull());
    QVERIFY(formerGrid.isNull());
    QCOMPARE(menu.findChildren<QPushButton*>().count(), 1);
}

void TestColorMenu::anEmptyPaletteHasNoButtons()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Transparent }, Red);
    menu.setColorPallete({}, {});

    QVERIFY(menu.findChildren<QPushButton*>().isEmpty());
    menu.setTransparentColorVisible(true);
    menu.updateSelectedColor(Red);
}

void TestColorMenu::marksTheSelectedColorOfTheCall()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Green, Transparent }, Green);
    QCOMPARE(marksOf(menu), QStringLiteral(".x."));

    menu.setColorPallete({ Red, Green, Transparent }, Transparent);
    QCOMPARE(marksOf(menu), QStringLiteral("..x"));
}

void TestColorMenu::anEmptySelectedColorKeepsTheFormerOneMarked()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Green }, Green);

    menu.setColorPallete({ Green, Blue }, {});
    QCOMPARE(marksOf(menu), QStringLiteral("x."));

    menu.setColorPallete({ Red, Blue }, {});
    QCOMPARE(marksOf(menu), QStringLiteral(".."));

    menu.setColorPallete({ Red, Green }, {});
    QCOMPARE(marksOf(menu), QStringLiteral(".x"));
}

void TestColorMenu::aColorThatDoesNotOccurChangesNothing()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Green }, Green);

    menu.updateSelectedColor(Blue);

    QCOMPARE(marksOf(menu), QStringLiteral(".x"));
}

void TestColorMenu::anEmptyColorTakesTheMarkButIsRemembered()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Green }, Green);

    menu.updateSelectedColor(QString());
    QCOMPARE(marksOf(menu), QStringLiteral(".."));

    menu.setColorPallete({ Red, Green }, {});
    QCOMPARE(marksOf(menu), QStringLiteral(".x"));
}

void TestColorMenu::duplicatesAreAllMarked()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Green, Red }, Red);
    QCOMPARE(marksOf(menu), QStringLiteral("x.x"));

    menu.updateSelectedColor(Green);
    QCOMPARE(marksOf(menu), QStringLiteral(".x."));
}

void TestColorMenu::aSelectedButtonIsTheOnlyMarkedOne()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Green, Red }, Red);

    menu.updateSelectedColor(buttonsOf(menu).at(2));

    QCOMPARE(marksOf(menu), QStringLiteral("..x"));
}

void TestColorMenu::unselectingAButtonOrAColorOnlyTakesMarks()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Green, Red }, Red);
    menu.updateUnselectedColor(buttonsOf(menu).at(0));
    QCOMPARE(marksOf(menu), QStringLiteral("..x"));
    menu.updateUnselectedColor(Red);
    QCOMPARE(marksOf(menu), QStringLiteral("..."));

    menu.setColorPallete({ Red, Green }, {});

    QCOMPARE(marksOf(menu), QStringLiteral("x."));
}

void TestColorMenu::nullButtonsAreIgnored()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Green }, Green);

    menu.updateSelectedColor(static_cast<QPushButton*>(nullptr));
    menu.updateUnselectedColor(static_cast<QPushButton*>(nullptr));

    QCOMPARE(marksOf(menu), QStringLiteral(".x"));
}

void TestColorMenu::aTapMarksThenReportsTheColor()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Green }, Red);
    showAndWait(&menu);
    QString marks;
    connect(&menu, &ColorMenu::colorSignal, this, [&] { marks = marksOf(menu); });
    QSignalSpy chosen(&menu, &ColorMenu::colorSignal);

    Finger().tap(buttonsOf(menu).at(1));

    QCOMPARE(chosen.count(), 1);
    QCOMPARE(chosen.at(0).at(0), QVariant(Green));
    QCOMPARE(marks, QStringLiteral(".x"));
}

void TestColorMenu::pressingTheSelectedButtonAgainReportsAgain()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Green }, Red);
    showAndWait(&menu);
    QSignalSpy chosen(&menu, &ColorMenu::colorSignal);

    Finger().tap(buttonsOf(menu).at(1));
    Finger().tap(buttonsOf(menu).at(1));

    QCOMPARE(chosen.count(), 2);
    QCOMPARE(chosen.at(0), QVariantList { Green });
    QCOMPARE(chosen.at(1), QVariantList { Green });
    QCOMPARE(marksOf(menu), QStringLiteral(".x"));
}

void TestColorMenu::settersEmitNothing()
{
    ColorMenu menu;
    QSignalSpy chosen(&menu, &ColorMenu::colorSignal);

    menu.setColorPallete({ Red, Green }, Red);
    menu.updateSelectedColor(Green);
    menu.updateSelectedColor(buttonsOf(menu).at(0));
    menu.updateUnselectedColor(Red);

    QCOMPARE(chosen.count(), 0);
}

void TestColorMenu::thePaletteMayBeReplacedFromTheSignal()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Green }, Red);
    showAndWait(&menu);
    connect(&menu, &ColorMenu::colorSignal, this, [&](const QString& color) {
        menu.setColorPallete({ Blue, color }, {});
    });

    Finger().tap(buttonsOf(menu).at(1));

    QCOMPARE(buttonsOf(menu).at(1)->property("color"), QVariant(Green));
    QCOMPARE(marksOf(menu), QStringLiteral(".x"));
}

void TestColorMenu::theTransparentButtonIsHiddenAtFirst()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Transparent }, {});
    showAndWait(&menu);

    QVERIFY(buttonsOf(menu).at(0)->isVisible());
    QVERIFY(!buttonsOf(menu).at(1)->isVisible());
}

void TestColorMenu::theTransparentButtonCanBeShownAndHidden()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Transparent }, {});
    showAndWait(&menu);

    menu.setTransparentColorVisible(true);
    QVERIFY(buttonsOf(menu).at(1)->isVisible());

    menu.setTransparentColorVisible(false);
    QVERIFY(!buttonsOf(menu).at(1)->isVisible());
    QVERIFY(buttonsOf(menu).at(0)->isVisible());
}

void TestColorMenu::showingTransparentBeforeTheFirstPaletteHasNoEffect()
{
    ColorMenu menu;
    menu.resize(200, 100);
    showAndWait(&menu);
    menu.setTransparentColorVisible(true);
    menu.setColorPallete({ Red, Transparent }, {});

    QTRY_VERIFY(buttonsOf(menu).at(0)->isVisible());
    QVERIFY(!buttonsOf(menu).at(1)->isVisible());
}

void TestColorMenu::aNewPaletteShowsTransparentIfItCouldBeSeenBefore()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Transparent }, {});
    showAndWait(&menu);
    menu.setTransparentColorVisible(true);

    menu.setColorPallete({ Transparent, Blue }, {});
    QVERIFY(buttonsOf(menu).at(0)->isVisible());

    menu.hide(); // now nothing of it can be seen
    menu.setColorPallete({ Red, Transparent }, {});
    menu.show();
    QVERIFY(!buttonsOf(menu).at(1)->isVisible());
}

void TestColorMenu::onlyTheLastOfTwoTransparentButtonsIsRemembered()
{
    ColorMenu menu;
    menu.setColorPallete({ Transparent, Red, Transparent }, {});
    showAndWait(&menu);

    QVERIFY(buttonsOf(menu).at(0)->isVisible());
    QVERIFY(!buttonsOf(menu).at(2)->isVisible());

    menu.setTransparentColorVisible(true);
    QVERIFY(buttonsOf(menu).at(2)->isVisible());

    menu.setTransparentColorVisible(false);
    QVERIFY(buttonsOf(menu).at(0)->isVisible());
    QVERIFY(!buttonsOf(menu).at(2)->isVisible());
}

void TestColorMenu::anUnmarkedSwatchFillsItsFrame()
{
    ColorMenu menu;
    menu.setColorPallete({ Red }, {});
    showAndWait(&menu);
    QPushButton* button = buttonsOf(menu).constFirst();
    const QImage image = imageOf(button);

    QCOMPARE(button->size(), QSize(37, 37)); // 35 and the border
    for (const int edge : { 0, 36 }) {
        QCOMPARE(image.pixelColor(edge, 18), QColor(Qt::black));
        QCOMPARE(image.pixelColor(18, edge), QColor(Qt::black));
    }
    for (const int inside : { 1, 18, 35 }) {
        QCOMPARE(image.pixelColor(inside, 18), QColor(Qt::red));
        QCOMPARE(image.pixelColor(18, inside), QColor(Qt::red));
    }
}

void TestColorMenu::aMarkedSwatchStandsInAGapOfTwoPixels()
{
    ColorMenu menu;
    menu.setColorPallete({ Red }, Red);
    showAndWait(&menu);
    QPushButton* button = buttonsOf(menu).constFirst();
    const QImage image = imageOf(button);
    const QColor background = menu.palette().color(QPalette::Window);

    QCOMPARE(button->size(), QSize(41, 41)); // 35, the gap and the border
    for (const int edge : { 0, 40 }) {
        QCOMPARE(image.pixelColor(edge, 20), QColor(Qt::black));
    }
    for (const int gap : { 1, 2, 38, 39 }) {
        QCOMPARE(image.pixelColor(gap, 20), background);
        QCOMPARE(image.pixelColor(20, gap), background);
    }
    for (const int inside : { 3, 20, 37 }) {
        QCOMPARE(image.pixelColor(inside, 20), QColor(Qt::red));
        QCOMPARE(image.pixelColor(20, inside), QColor(Qt::red));
    }
}

void TestColorMenu::aSwatchStaysInItsPlaceWhenItIsMarked()
{
    ColorMenu menu;
    menu.setColorPallete({ Red, Green, Blue }, {});
    showAndWait(&menu);
    QList<QRect> frames;
    for (const QPushButton* button : buttonsOf(menu)) {
        frames.append(button->geometry());
    }

    menu.updateSelectedColor(Green);

    QTRY_COMPARE(buttonsOf(menu).at(1)->geometry(), frames.at(1).adjusted(-2, -2, 2, 2));
    QCOMPARE(buttonsOf(menu).at(0)->geometry(), frames.at(0));
    QCOMPARE(buttonsOf(menu).at(2)->geometry(), frames.at(2));
}

void TestColorMenu::aPressedSwatchShrinksByFourPixels()
{
    ColorMenu menu;
    menu.setColorPallete({ Red }, {});
    showAndWait(&menu);
    QPushButton* button = buttonsOf(menu).constFirst();
    Finger finger;
    finger.press(button);
    const QImage image = imageOf(button);
    finger.release();
    const QColor background = menu.palette().color(QPalette::Window);

    QCOMPARE(image.pixelColor(0, 18), QColor(Qt::black));
    for (const int gap : { 1, 4, 32, 35 }) {
        QCOMPARE(image.pixelColor(gap, 18), background);
        QCOMPARE(image.pixelColor(18, gap), background);
    }
    for (const int inside : { 5, 18, 31 }) {
        QCOMPARE(image.pixelColor(inside, 18), QColor(Qt::red));
    }
}

void TestColorMenu::theTransparentSwatchShowsTheCheckeredImage()
{
    ColorMenu menu;
    menu.setColorPallete({ Transparent }, Transparent);
    menu.setTransparentColorVisible(true);
    showAndWait(&menu);
    const QImage checkered = QImage(CheckeredImage).convertToFormat(QImage::Format_RGB32);
    QPushButton* button = buttonsOf(menu).constFirst();

    const QImage marked = imageOf(button).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(marked.copy(3, 3, 35, 35), checkered.copy(0, 0, 35, 35));

    menu.updateUnselectedColor(button);
    QTRY_COMPARE(button->size(), QSize(37, 37));
    const QImage unmarked = imageOf(button).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(unmarked.copy(1, 1, 35, 35), checkered.copy(0, 0, 35, 35));
}

void TestColorMenu::aTextThatIsNoColorStaysOutOfTheSheet_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("further rules") << QStringLiteral("red; } * { background: blue");
    QTest::newRow("further declarations") << QStringLiteral("red; min-width: 200px");
    QTest::newRow("nothing") << QString();
    QTest::newRow("other letters") << QStringLiteral("\u7ea2\u8272");
    QTest::newRow("unknown name") << QStringLiteral("nosuchcolor");
    QTest::newRow("wrong number of digits") << QStringLiteral("#12");
}

void TestColorMenu::aTextThatIsNoColorStaysOutOfTheSheet()
{
    QFETCH(const QString, text);
    ColorMenu menu;
    menu.setColorPallete({ text, Red }, {});
    showAndWait(&menu);
    QSignalSpy chosen(&menu, &ColorMenu::colorSignal);
    QPushButton* button = buttonsOf(menu).at(0);

    QCOMPARE(button->styleSheet(), QStringLiteral("background-color: none"));
    QCOMPARE(imageOf(button).pixelColor(18, 18), menu.palette().color(QPalette::Window));
    QCOMPARE(imageOf(buttonsOf(menu).at(1)).pixelColor(18, 18), QColor(Qt::red));

    Finger().tap(button);
    QCOMPARE(chosen, QList<QVariantList>({ { text } }));
    QCOMPARE(button->styleSheet(),
             QStringLiteral("background-color: none; background-origin: content; "
                            "background-clip: content; padding: 2px; "));
    QTRY_COMPARE(button->size(), QSize(41, 41));
    QCOMPARE(imageOf(button).pixelColor(0, 20), QColor(Qt::black));
}

UW_TEST_MAIN(TestColorMenu)

#include "tst_colormenu.moc"
