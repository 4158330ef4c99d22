// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/sheets.h"

#include "look/images.h"
#include "look/palette.h"

QString Look::framedPanel(const QString& selector)
{
    return selector
        + QStringLiteral(" { background-color: " LOOK_PANEL_GREY
                         "; border: 1px solid " LOOK_ACCENT_ORANGE "; } ");
}

QString Look::messageButton()
{
    return QStringLiteral(
        "QPushButton { border: 2px solid " LOOK_ACCENT_ORANGE "; color: white; font: bold; \n"
        "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 " LOOK_BUTTON_TOP
        ", stop: 1 " LOOK_BUTTON_BOTTOM ");\n"
        "border-radius: 6px; outline: 0;\n"
        "}");
}

QString Look::gradientButton()
{
    return QStringLiteral(
        "QPushButton { border: 1px solid " LOOK_ACCENT_ORANGE "; color: white; font: bold; \n"
        "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 " LOOK_BUTTON_TOP
        ", stop: 1 " LOOK_BUTTON_BOTTOM ");\n"
        "border-radius: 6px; outline: 0;\n"
        "min-height: 35px; }\n"
        "QPushButton:pressed { background-color: " LOOK_ACCENT_ORANGE "; color: white; }\n");
}

QString Look::comboBox()
{
    return QStringLiteral(
        "QComboBox { border: 1px solid " LOOK_COMBO_BORDER "; }\n"
        "QComboBox::drop-down { border: 0px; }\n"
        "QComboBox::down-arrow { image: url(" LOOK_IMAGE_COMBO_ARROW "); }\n"
        "QComboBox::down-arrow::disabled { image: url(" LOOK_IMAGE_COMBO_ARROW_DISABLED "); }\n"
        "QComboBox QAbstractItemView::item { min-height: 35px; }\n ");
}

QString Look::whiteComboBox()
{
    return comboBox() + QStringLiteral("QComboBox { min-height: 35px; background-color: white; }\n")
        + scrollBars();
}

QString Look::scrollBars(int extent)
{
    // The margin keeps the handle's groove clear of the arrow buttons. What lies beside the handle
    // is drawn with a dot pattern unless it is told to be nothing.
    return QStringLiteral(
               "QScrollBar { border: 1px solid " LOOK_ACCENT_ORANGE
               "; background-color: " LOOK_PANEL_GREY "; }\n"
               "QScrollBar:vertical { width: %1px; margin: 35px 0px 35px 0px; }\n"
               "QScrollBar:horizontal { height: %1px; margin: 0px 35px 0px 35px; }\n"
               "QScrollBar::handle { background-color: " LOOK_SCROLL_HANDLE "; }\n"
               "QScrollBar::handle:vertical { min-height: 35px; }\n"
               "QScrollBar::handle:horizontal { min-width: 35px; }\n"
               "QScrollBar::add-page, QScrollBar::sub-page { background: none; }\n"
               "QScrollBar::add-line, QScrollBar::sub-line { border: 1px solid " LOOK_ACCENT_ORANGE
               "; background-color: " LOOK_PANEL_GREY "; subcontrol-origin: margin; }\n"
               "QScrollBar::sub-line:vertical { height: 33px; subcontrol-position: top; }\n"
               "QScrollBar::add-line:vertical { height: 33px; subcontrol-position: bottom; }\n"
               "QScrollBar::sub-line:horizontal { width: 33px; subcontrol-position: left; }\n"
               "QScrollBar::add-line:horizontal { width: 33px; subcontrol-position: right; }\n"
               "QScrollBar::up-arrow { image: url(" LOOK_IMAGE_ARROW_UP "); }\n"
               "QScrollBar::down-arrow { image: url(" LOOK_IMAGE_ARROW_DOWN "); }\n"
               "QScrollBar::left-arrow { image: url(" LOOK_IMAGE_ARROW_LEFT "); }\n"
               "QScrollBar::right-arrow { image: url(" LOOK_IMAGE_ARROW_RIGHT "); }\n")
        .arg(extent);
}

QString Look::dialogList()
{
    return QStringLiteral("QListWidget { border: 1px solid " LOOK_SEPARATOR
                          "; background-color: white; outline: 0; }\n"
                          "QListWidget:focus { border: 1px solid " LOOK_ACCENT_ORANGE "; }\n"
                          // Only items with a background are drawn by the sheet: with its padding
                          // and without the style's own focus frame.
                          "QListWidget::item { background-color: white; padding: 4px 8px; }\n"
                          "QListWidget::item:selected { background-color: " LOOK_ACCENT_ORANGE
                          "; color: white; }\n")
        + scrollBars();
}
