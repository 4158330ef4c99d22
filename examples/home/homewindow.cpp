// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "homewindow.h"

#include <ContainerTitleBar>
#include <DragScrollListWidget>

#include <QDataStream>
#include <QDesktopServices>
#include <QFileInfo>
#include <QLabel>
#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr int KeptMessages = 100; // the program runs for as long as the device does

/// Opens the manual and says what became of it. Any program of this user can write to the channel:
/// only a PDF file is opened.
QString launch(const QByteArray& bytes)
{
    QString path;
    QDataStream stream(bytes);
    stream >> path;
    if (stream.status() != QDataStream::Ok || path.isEmpty()) {
        return QStringLiteral("not a path");
    }
    const QFileInfo file(path);
    if (!file.isFile()) {
        return QStringLiteral("%1: there is no such file").arg(path);
    }
    if (file.suffix().compare(QLatin1String("pdf"), Qt::CaseInsensitive) != 0) {
        return QStringLiteral("%1: not a manual").arg(path);
    }
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path))
        ? QStringLiteral("%1: opened").arg(path)
        : QStringLiteral("%1: no program here opens it").arg(path);
}

} // namespace

HomeWindow::HomeWindow(QWidget* parent)
    : QWidget(parent)
    , m_channel(channelName())
{
    setObjectName(QStringLiteral("HomeWindow"));
    setWindowTitle(QStringLiteral("Home"));
    setWindowFlag(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral(
        "#HomeWindow { background-color: #f2f2f2; border: 1px solid #fd7800; }\n"
        "QListWidget { background-color: white; border: 1px solid #c6c6c6; outline: 0; }\n"
        "QListWidget::item { min-height: 40px; }\n"
        "QListWidget::item:selected { background-color: #fd7800; color: white; }"));

    auto* titleBar = new ContainerTitleBar(this, QStringLiteral("HOME"));
    auto* hint = new QLabel(QStringLiteral("Tap a manual in the help of an application: it is "
                                           "opened here. What has arrived:"),
                            this);
    hint->setWordWrap(true);
    m_messages = new DragScrollListWidget(this);
    m_messages->setAccessibleName(QStringLiteral("What has arrived"));
    m_messages->setWordWrap(true);

    auto* content = new QVBoxLayout;
    content->setContentsMargins(14, 10, 14, 12);
    content->addWidget(hint);
    content->addWidget(m_messages);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(titleBar);
    layout->addLayout(content);

    connect(titleBar, &ContainerTitleBar::closeButtonClicked, this, &QWidget::close);
    connect(&m_channel, &QCopChannel::received, this, &HomeWindow::onReceived);
}

QString HomeWindow::channelName()
{
    return QStringLiteral("OxHomeInstance");
}

void HomeWindow::onReceived(const QString& message, const QByteArray& bytes)
{
    QString line = message;
    if (message == QLatin1String("launch")) {
        line += QStringLiteral(" ") + launch(bytes);
    }
    m_messages->insertItem(0, line);
    delete m_messages->item(KeptMessages); // the oldest, or null
    Q_EMIT messageShown(line);
}

#include "moc_homewindow.cpp"
