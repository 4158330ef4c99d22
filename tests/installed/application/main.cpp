// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include <OxTitleBar>
#include <QApplication>

#include "oxlineedit.h"

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QWidget window;
    OxTitleBar bar(&window, QString(), "A cast that only our own build forbids");
    OxLineEdit edit("text", &window);
    QObject::connect(&edit, &OxLineEdit::focusLost, &application, &QApplication::quit);
    window.show();
    return edit.text() == "text" && bar.height() == 40 ? 0 : 1;
}
