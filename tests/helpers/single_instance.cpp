// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// An application that runs once: single_instance CHANNEL
//
// Prints "later" and ends if another instance runs; otherwise "first", and then takes commands.

#include "oxsingleinstanceapplication.h"

#include <QLoggingCategory>
#include <QSocketNotifier>
#include <QWidget>

#include <cstdio>
#include <memory>

#include <unistd.h>

namespace {

constexpr int Release = 42; // an exit code that nothing else has

void print(const char* line)
{
    std::printf("%s\n", line);
    std::fflush(stdout);
}

QByteArray readLine()
{
    QByteArray line;
    char next = 0;
    while (::read(STDIN_FILENO, &next, 1) == 1 && next != '\n') {
        line += next;
    }
    return line;
}

class MainWindow : public QWidget
{
public:
    int raised() const { return m_raised; }

protected:
    bool event(QEvent* event) override
    {
        m_raised += event->type() == QEvent::ZOrderChange ? 1 : 0;
        return QWidget::event(event);
    }

private:
    int m_raised = 0;
};

class Commands : public QObject
{
public:
    explicit Commands(OxSingleInstanceApplication* application)
        : m_application(application)
    {
        connect(&m_input, &QSocketNotifier::activated, this, &Commands::run);
    }

private:
    void run()
    {
        const QByteArray command = readLine();
        if (command == "show") {
            m_window = std::make_unique<MainWindow>();
            m_application->setMainWidget(m_window.get());
        } else if (command == "cover") { // with another window, which then is the active one
            m_cover = std::make_unique<QWidget>();
            m_cover->show();
            m_cover->activateWindow();
        } else if (command == "state") {
            std::printf("%d %s\n", m_window->raised(),
                        m_window->isActiveWindow() ? "active" : "inactive");
            std::fflush(stdout);
            return;
        } else { // "release", then waits; or "end"
            QCoreApplication::exit(command == "release" ? Release : 0);
        }
        print("done");
    }

    OxSingleInstanceApplication* m_application;
    QSocketNotifier m_input { STDIN_FILENO, QSocketNotifier::Read };
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<QWidget> m_cover;
};

int runApplication(int argc, char* argv[])
{
    OxSingleInstanceApplication application(argc, argv, QString::fromUtf8(argv[1]));
    if (!application.isOnlyInstance()) {
        print("later");
        return 0;
    }
    const Commands commands(&application);
    print("first");
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2) {
        return 2;
    }
    // The offscreen platform complains of each window that is raised.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    int result = runApplication(argc, argv);
    if (result == Release) {
        print("released"); // the application object is gone, the process is not
        readLine();
        result = 0;
    }
    return result;
}
