// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

//! [launcher]
#include <QCopChannel>

/// Receives what the help windows of all programs ask the home program for.
class ManualLauncher : public QObject
{
    Q_OBJECT

public:
    explicit ManualLauncher(QObject* parent = nullptr);

Q_SIGNALS:
    /// The person has tapped the manual at `path` in a help window.
    void manualRequested(const QString& path);

private:
    void receive(const QString& message, const QByteArray& data);

    QCopChannel m_channel;
};
//! [launcher]

class OxHelpWindow;

/// The help of an editor.
void fillHelp(OxHelpWindow* help);
