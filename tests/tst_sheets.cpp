// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/palette.h"
#include "look/sheets.h"

#include "support/test.h"

#include <QColor>

namespace {

const QString ComboBox = QStringLiteral(
    "QComboBox { border: 1px solid #c6c6c6; }\nQComboBox::drop-down { border: 0px; }\n"
    "QComboBox::down-arrow { image: url(:/module_icons/ModuleIcons/combobox-down-arrow.png); }\n"
    "QComboBox::down-arrow::disabled { image: "
    "url(:/module_icons/ModuleIcons/combobox-down-arrow-disabled.png); }\n"
    "QComboBox QAbstractItemView::item { min-height: 35px; }\n ");

const QString ScrollBars = QStringLiteral(
    "QScrollBar { border: 1px solid #fd7800; background-color: #f2f2f2; }\n"
    "QScrollBar:vertical { width: %1px; margin: 35px 0px 35px 0px; }\n"
    "QScrollBar:horizontal { height: %1px; margin: 0px 35px 0px 35px; }\n"
    "QScrollBar::handle { background-color: #464646; }\n"
    "QScrollBar::handle:vertical { min-height: 35px; }\n"
    "QScrollBar::handle:horizontal { min-width: 35px; }\n"
    "QScrollBar::add-page, QScrollBar::sub-page { background: none; }\n"
    "QScrollBar::add-line, QScrollBar::sub-line { border: 1px solid #fd7800; "
    "background-color: #f2f2f2; subcontrol-origin: margin; }\n"
    "QScrollBar::sub-line:vertical { height: 33px; subcontrol-position: top; }\n"
    "QScrollBar::add-line:vertical { height: 33px; subcontrol-position: bottom; }\n"
    "QScrollBar::sub-line:horizontal { width: 33px; subcontrol-position: left; }\n"
    "QScrollBar::add-line:horizontal { width: 33px; subcontrol-position: right; }\n"
    "QScrollBar::up-arrow { image: url(:/module_icons/ModuleIcons/edit-arrow-up.png); }\n"
    "QScrollBar::down-arrow { image: url(:/module_icons/ModuleIcons/edit-arrow-down.png); }\n"
    "QScrollBar::left-arrow { image: url(:/module_icons/ModuleIcons/edit-arrow-left.png); }\n"
    "QScrollBar::right-arrow { image: url(:/module_icons/ModuleIcons/edit-arrow-right.png); }\n");

} // namespace

// The full literal texts, on purpose: the only second copy of each sheet.
class TestSheets : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void paletteIsExact_data();
    void paletteIsExact();
    void framedPanelEndsInABlank();
    void messageButtonHasABorderOfTwoPixelsAndNoPressedColour();
    void gradientButtonTurnsOrangeAndEndsInALineBreak();
    void dialogListEndsInTheScrollBars();
    void comboBoxEndsInALineBreakAndABlank();
    void whiteComboBoxBringsHeightAndScrollBars();
    void scrollBarsAreOfTheGivenExtent();
};

void TestSheets::paletteIsExact_data()
{
    QTest::addColumn<QString>("colour");
    QTest::addColumn<QString>("expected");

    const auto add = [](const char* role, const char* colour, const char* expected) {
        QTest::newRow(role) << QString::fromLatin1(colour) << QString::fromLatin1(expected);
    };
    add("accent orange", LOOK_ACCENT_ORANGE, "#fd7800");
    add("hover orange", LOOK_HOVER_ORANGE, "#fda800");
    add("selection blue", LOOK_SELECTION_BLUE, "#0068d9");
    add("panel grey", LOOK_PANEL_GREY, "#f2f2f2");
    add("panel grey in upper case", LOOK_PANEL_GREY_UPPER_CASE, "#F2F2F2");
    add("title charcoal", LOOK_TITLE_CHARCOAL, "#2b2b2b");
    add("top of a button", LOOK_BUTTON_TOP, "#5a5959");
    add("top of a button in upper case", LOOK_BUTTON_TOP_UPPER_CASE, "#5A5959");
    add("bottom of a button", LOOK_BUTTON_BOTTOM, "#060606");
    add("border of a disabled button", LOOK_DISABLED_BORDER, "#d3d3d3");
    add("text of a disabled button", LOOK_DISABLED_TEXT, "#848484");
    add("top of a disabled button", LOOK_DISABLED_TOP, "#d3d3d3");
    add("bottom of a disabled button", LOOK_DISABLED_BOTTOM, "#a8a8a8");
    add("border of a combo box", LOOK_COMBO_BORDER, "#c6c6c6");
    add("separator", LOOK_SEPARATOR, "#c6c6c6");
    add("combo box on the navigation bar", LOOK_COMBO_GREY, "#e8e8e8");
    add("scroll bar handle", LOOK_SCROLL_HANDLE, "#464646");
    add("button under a finger", LOOK_TOUCH_TINT, "#ff5800");
    add("ticks of a slider", LOOK_SLIDER_TICK, "#a5a294");
    add("tool box, not quite the accent", LOOK_TOOL_ORANGE, "#f37800");
}

void TestSheets::paletteIsExact()
{
    QFETCH(QString, colour);
    QTEST(colour, "expected");
    QVERIFY(QColor(colour).isValid());
}

void TestSheets::framedPanelEndsInABlank()
{
    QCOMPARE(Look::framedPanel(QStringLiteral("QWidget#MessageBoxWidget")),
             QStringLiteral("QWidget#MessageBoxWidget { background-color: #f2f2f2; border: 1px "
                            "solid #fd7800; } "));
    QCOMPARE(
        Look::framedPanel(QStringLiteral("#OxInfoWidget")),
        QStringLiteral("#OxInfoWidget { background-color: #f2f2f2; border: 1px solid #fd7800; } "));
}

void TestSheets::messageButtonHasABorderOfTwoPixelsAndNoPressedColour()
{
    QCOMPARE(Look::messageButton(),
             QStringLiteral("QPushButton { border: 2px solid #fd7800; color: white; font: bold; \n"
                            "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: "
                            "0 #5a5959, stop: 1 #060606);\n"
                            "border-radius: 6px; outline: 0;\n"
                            "}"));
}

void TestSheets::gradientButtonTurnsOrangeAndEndsInALineBreak()
{
    QCOMPARE(Look::gradientButton(),
             QStringLiteral("QPushButton { border: 1px solid #fd7800; color: white; font: bold; \n"
                            "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: "
                            "0 #5a5959, stop: 1 #060606);\n"
                            "border-radius: 6px; outline: 0;\n"
                            "min-height: 35px; }\n"
                            "QPushButton:pressed { background-color: #fd7800; color: white; }\n"));
}

void TestSheets::comboBoxEndsInALineBreakAndABlank()
{
    QCOMPARE(Look::comboBox(), ComboBox);
}

void TestSheets::whiteComboBoxBringsHeightAndScrollBars()
{
    QCOMPARE(Look::whiteComboBox(),
             ComboBox + QStringLiteral("QComboBox { min-height: 35px; background-color: white; }\n")
                 + ScrollBars.arg(35));
}

void TestSheets::scrollBarsAreOfTheGivenExtent()
{
    QCOMPARE(Look::scrollBars(), ScrollBars.arg(35));
    QCOMPARE(Look::scrollBars(23), ScrollBars.arg(23));
}

void TestSheets::dialogListEndsInTheScrollBars()
{
    QCOMPARE(Look::dialogList(),
             QStringLiteral("QListWidget { border: 1px solid #c6c6c6; background-color: white; "
                            "outline: 0; }\n"
                            "QListWidget:focus { border: 1px solid #fd7800; }\n"
                            "QListWidget::item { background-color: white; padding: 4px 8px; }\n"
                            "QListWidget::item:selected { background-color: #fd7800; color: white; "
                            "}\n")
                 + Look::scrollBars());
}

UW_TEST_MAIN(TestSheets)

#include "tst_sheets.moc"
