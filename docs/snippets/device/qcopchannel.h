// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

//! [channels]
#include <QByteArray>
#include <QObject>
#include <QString>

class QCopChannel : public QObject
{
    Q_OBJECT

public:
    explicit QCopChannel(const QString& channel, QObject* parent = nullptr);
    ~QCopChannel() override;

    static bool isRegistered(const QString& channel);
    static bool send(const QString& channel, const QString& msg);
    static bool send(const QString& channel, const QString& msg, const QByteArray& data);
    static bool flush();

    QString channel() const;
    virtual void receive(const QString& msg, const QByteArray& data);

Q_SIGNALS:
    void received(const QString& msg, const QByteArray& data);
    //! [channels]

private:
    const QString m_channel;
};
