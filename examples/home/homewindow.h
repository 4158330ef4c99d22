// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCopChannel>

#include <QWidget>

class QListWidget;

/*!
 * What a home program does for the others: opens the manuals that their help windows ask for, and
 * shows what has arrived, the newest first.
 */
class HomeWindow : public QWidget
{
    Q_OBJECT

public:
    explicit HomeWindow(QWidget* parent = nullptr);

    /// The channel that help windows send to. Also the name under which the program runs once.
    static QString channelName();

Q_SIGNALS:
    /// A message has arrived, and this is what the window shows of it.
    void messageShown(const QString& line);

private:
    void onReceived(const QString& message, const QByteArray& bytes);

    QCopChannel m_channel;
    QListWidget* m_messages = nullptr;
};
