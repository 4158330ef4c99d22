// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "launch.h"

#include <OxHelpWindow>

#include <QCoreApplication>

//! [launchersource]
#include <QDataStream>
#include <QFileInfo>

ManualLauncher::ManualLauncher(QObject* parent)
    : QObject(parent)
    , m_channel(QStringLiteral("OxHomeInstance"))
{
    connect(&m_channel, &QCopChannel::received, this, &ManualLauncher::receive);
}

void ManualLauncher::receive(const QString& message, const QByteArray& data)
{
    if (message != QLatin1String("launch")) {
        return; // such as "raise", which a second start of the home program sends
    }
    QString path;
    QDataStream stream(data);
    stream >> path;
    // Any program of this user can write to the channel: open nothing but what is expected.
    const QFileInfo file(path);
    const bool isManual =
        file.isFile() && file.suffix().compare(QLatin1String("pdf"), Qt::CaseInsensitive) == 0;
    if (stream.status() == QDataStream::Ok && isManual) {
        Q_EMIT manualRequested(path);
    }
}
//! [launchersource]

void fillHelp(OxHelpWindow* help)
{
    //! [help]
    help->insertHelpFAQs({
        { QIcon(QStringLiteral(":/editor/save.png")),
          QCoreApplication::translate("Editor", "How do I save a design?", "Help question.") },
    });
    help->populatePDF(QStringLiteral("Editor")); // the folders of /Home/Manuals/Editor
    //! [help]
}
