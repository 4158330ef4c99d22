// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <functional>

/*!
 * Runs `run`, which is expected to show a modal dialog and block in exec(), and performs `script`
 * on that dialog as soon as it is shown. Returns what `run` returns.
 *
 * The script usually ends the dialog, or makes it end. One that is still open after ten seconds is
 * hidden and the test fails, be it modal or not, and so is every dialog that `run` shows after that;
 * so does a `run` that shows no dialog of that class. A script whose check fails has its dialog
 * hidden at once.
 */
template <typename Dialog = QDialog, typename Run>
auto whileModal(Run run, std::function<void(Dialog*)> script) -> decltype(run())
{
    bool done = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (done || dialog == nullptr || !dialog->isVisible()) {
            return;
        }
        done = true;
        const QPointer<Dialog> shown = dialog;
        script(dialog);
        if (QTest::currentTestFailed() && shown != nullptr) {
            shown->hide(); // a check in the script has failed and left the rest of it undone
        }
    });
    QTimer tooLate;
    QObject::connect(&tooLate, &QTimer::timeout, &tooLate, [&] {
        // Not the active modal widget alone: one that blocks in exec() need not have become that.
        const QWidgetList windows = QApplication::topLevelWidgets();
        bool isHidden = false;
        for (QWidget* window : windows) {
            if (window->isVisible() && (window->isModal() || qobject_cast<Dialog*>(window))) {
                window->hide(); // ends exec() whatever the dialog thinks of it
                isHidden = true;
            }
        }
        if (isHidden || !done) {
            QTest::qFail("the dialog was not ended", __FILE__, __LINE__);
        }
        tooLate.start(100); // what is shown next by what has not ended
    });
    poll.start(0);
    tooLate.start(10000);
    if constexpr (std::is_void_v<decltype(run())>) {
        run();
        if (!done) {
            QTest::qFail("no dialog of the expected class was shown", __FILE__, __LINE__);
        }
    } else {
        auto result = run();
        if (!done) {
            QTest::qFail("no dialog of the expected class was shown", __FILE__, __LINE__);
        }
        return result;
    }
}
