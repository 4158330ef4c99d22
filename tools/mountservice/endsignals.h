// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSocketNotifier>

/// Turns SIGTERM and SIGINT into a Qt signal for as long as it lives. To be made before any other
/// thread, which would get them otherwise.
class EndSignals : public QObject
{
    Q_OBJECT

public:
    EndSignals();
    ~EndSignals() override;

Q_SIGNALS:
    void received();

private:
    void onReadable();

    int m_descriptor;
    QSocketNotifier m_notifier;
};
