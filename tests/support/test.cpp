// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/test.h"

#include <QApplication>
#include <QDir>
#include <QRegularExpression>
#include <QWidget>

void Test::init()
{
    // The offscreen platform says the first of sizes, raising and grabs whenever a window is shown;
    // the X11 one now and then the second when popups follow each other fast and there is no window
    // manager.
    QTest::failOnWarning(
        QRegularExpression(QStringLiteral("^(?!This plugin does not support |internal error:  void "
                                          "QXcbWindow::setNetWmStateOnUnmappedWindow)")));
}

void Test::cleanup()
{
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
        return;
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QWidgetList leftOver = QApplication::topLevelWidgets();
    for (QWidget* widget : leftOver) {
        qInfo() << "left over:" << widget;
    }
    QVERIFY2(leftOver.isEmpty(), "a top-level widget outlived the test that made it");
}

ThrowAwayHome::ThrowAwayHome()
{
    const auto useFolder = [this](const char* variable, const QString& name) {
        const QString path = m_folder.filePath(name);
        QDir().mkpath(path);
        // The runtime folder must belong to its owner alone.
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv(variable, path.toUtf8());
    };
    useFolder("HOME", QStringLiteral("home"));
    useFolder("XDG_CONFIG_HOME", QStringLiteral("config"));
    useFolder("XDG_DATA_HOME", QStringLiteral("data"));
    useFolder("XDG_CACHE_HOME", QStringLiteral("cache"));
    useFolder("XDG_RUNTIME_DIR", QStringLiteral("run"));
}

#include "moc_test.cpp"
