// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxsingleinstanceapplication.h"

#include "qcopchannel.h"

#include <QWidget>

// NOLINTBEGIN(modernize-pass-by-value): the signature is part of the interface
OxSingleInstanceApplication::OxSingleInstanceApplication(int& argc, char** argv,
                                                         const QString& channelName)
    : QApplication(argc, argv)
    , m_channelName(channelName)
// NOLINTEND(modernize-pass-by-value)
{
    setObjectName(QStringLiteral("OxSingleInstanceApplication"));

    if (QCopChannel::isRegistered(m_channelName)) {
        QCopChannel::send(m_channelName, QStringLiteral("raise"), QByteArray());
        return;
    }
    // No parent: it must be gone before the application object that its events come through is.
    m_channel = std::make_unique<QCopChannel>(m_channelName);
    m_onlyInstance = true;
    connect(m_channel.get(), &QCopChannel::received, this,
            &OxSingleInstanceApplication::subsequentInstanceConnected);
}

OxSingleInstanceApplication::~OxSingleInstanceApplication() = default;

bool OxSingleInstanceApplication::isOnlyInstance() const
{
    return m_onlyInstance;
}

void OxSingleInstanceApplication::setMainWidget(QWidget* widget)
{
    m_mainWidget = widget;
    if (widget != nullptr) {
        widget->showMaximized();
    }
}

void OxSingleInstanceApplication::subsequentInstanceConnected()
{
    if (m_mainWidget.isNull()) {
        return;
    }
    m_mainWidget->raise();
    m_mainWidget->activateWindow();
}

#include "moc_oxsingleinstanceapplication.cpp"
