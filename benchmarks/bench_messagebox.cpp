// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// One message box made, shown, painted and closed, beside the toolkit's own with a comparable
// sheet. Target: no slower.

#include "measure.h"
#include "oxmessagebox.h"
#include "sharedconstants.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>

namespace {

const QString title = QStringLiteral("DELETE");
const QString text = QStringLiteral("Delete the selected layer?");
constexpr auto Buttons = QMessageBox::Yes | QMessageBox::No;

template <typename Box> void showAndClose(Box* box)
{
    box->setDefaultButton(QMessageBox::No);
    box->setModal(true);
    box->show();
    QCoreApplication::processEvents();
    box->close();
    QCoreApplication::processEvents();
}

/// Microseconds that `run` takes.
template <typename Run> double timed(Run run)
{
    QElapsedTimer timer;
    timer.start();
    run();
    return double(timer.nsecsElapsed()) / 1000;
}

void runOurs(QWidget* parent)
{
    OxMessageBox box(QMessageBox::Question, title, text, Buttons, parent, Qt::FramelessWindowHint);
    showAndClose(&box);
}

/// The same colours, borders and sizes on the toolkit's box, in one sheet, and an icon of the size
/// of our title bar's in the place that it has for one.
void runToolkit(QWidget* parent)
{
    QMessageBox box(QMessageBox::NoIcon, title, text, Buttons, parent,
                    Qt::Dialog | Qt::FramelessWindowHint);
    box.setIconPixmap(QPixmap(OxMessageBox::defaultIconFilePath()));
    box.setStyleSheet(QStringLiteral(
        "QMessageBox { background-color: #f2f2f2; border: 1px solid #fd7800; }\n"
        "QPushButton { border: 2px solid #fd7800; color: white; font: bold; \n"
        "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #5a5959, "
        "stop: 1 #060606);\n"
        "border-radius: 6px; outline: 0;\nmin-width: 80px; min-height: 30px; }"));
    showAndClose(&box);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QWidget window;
    window.resize(ScreenSize);
    window.show();
    QCoreApplication::processEvents();

    Measure::printHead("Message boxes, us (target: ratio of at most 1.00)");
    Measure::compare(
        "Make, show, paint and close one; peer: QMessageBox", 1000,
        [&] { return timed([&] { runOurs(&window); }); },
        [&] { return timed([&] { runToolkit(&window); }); });
    return 0;
}
