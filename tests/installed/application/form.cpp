// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "ui_form.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QWidget window;
    Ui::Form ui;
    ui.setupUi(&window);
    return ui.titleBar->title() == "Out of a form" && ui.field->text() == "inside"
            && ui.section->getContainedWidget() == ui.field
        ? 0
        : 1;
}
