// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// A person in front of the program of the first guide, loaded into it: types a name, taps the button,
// reads the answer aloud, and closes everything.

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <cstdio>

namespace {

void tapCloseButton(const QWidget* window, const char* titleBar)
{
    const auto buttons = window->findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        if (button->parentWidget()->inherits(titleBar)) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
}

void readAndClose()
{
    const QWidget* box = QApplication::activeModalWidget();
    if (box == nullptr) {
        QTimer::singleShot(20, &readAndClose); // not yet
        return;
    }
    const auto labels = box->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        std::puts(qPrintable(label->text()));
    }
    tapCloseButton(box, "OxTitleBar");
}

void use(QWidget* window)
{
    QTest::keyClicks(window->findChild<QLineEdit*>(), QStringLiteral("<Ada>"));
    const auto buttons = window->findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        if (button->text() == QLatin1String("Greet")) {
            // The tap returns when the box has been answered.
            QTimer::singleShot(0, &readAndClose);
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }
    tapCloseButton(window, "ContainerTitleBar");
}

void waitForWindow()
{
    auto* poll = new QTimer(QCoreApplication::instance());
    QObject::connect(poll, &QTimer::timeout, poll, [poll] {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget* window : windows) {
            if (window->isVisible()) {
                poll->stop();
                use(window);
                return;
            }
        }
    });
    poll->start(20);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(waitForWindow)
