// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QApplication>
#include <QPointer>
#include <QString>

#include <memory>

class QCopChannel;

/*!
 * \brief The application object of a program that runs at most once.
 *
 * Make it in place of QApplication. The first instance listens on a channel of its own and brings
 * its main window to the front whenever anything arrives there. A later one has told the first
 * by the time its constructor returns, and has nothing left to do but end:
 *
 * \code
 * int main(int argc, char* argv[])
 * {
 *     OxSingleInstanceApplication application(argc, argv, QStringLiteral("Editor"));
 *     if (!application.isOnlyInstance()) {
 *         return 0;
 *     }
 *     MainWindow window;
 *     application.setMainWidget(&window);
 *     return application.exec();
 * }
 * \endcode
 *
 * "Once" means once per user; see QCopChannel. Two processes that start in the same instant can
 * both become first instances.
 *
 * Other programs bring the window forward with any message on the channel. One that means more,
 * such as a file to open, is received by a QCopChannel that the application makes on the same
 * name; the window comes forward as well.
 */
class UTILITYWIDGETS_EXPORT OxSingleInstanceApplication : public QApplication
{
    Q_OBJECT

public:
    /// `argc` and `argv` must stay valid as long as the object lives. `channelName` is the same in
    /// every start of the program and in no other program. If an instance is found, the message
    /// "raise" is sent to it.
    OxSingleInstanceApplication(int& argc, char** argv, const QString& channelName);
    /// Frees the name: the next start is a first instance again.
    ~OxSingleInstanceApplication() override;

    /// True in the first instance, false in a later one; never changes.
    bool isOnlyInstance() const;

    /// Shows `widget` maximised and remembers it as the window to bring forward. Call it once,
    /// after the main window has been built. The widget is not owned; it may be deleted at any
    /// time, messages are ignored from then on as they are before this call.
    void setMainWidget(QWidget* widget);

public Q_SLOTS:
    /// Raises the main widget and makes its window the active one. Called for each message on the
    /// channel.
    void subsequentInstanceConnected();

private:
    bool m_onlyInstance = false;
    std::unique_ptr<QCopChannel> m_channel; // null in a later instance
    QPointer<QWidget> m_mainWidget;
    QString m_channelName;
};
