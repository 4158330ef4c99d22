// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "filemenuwidget.h"

#include "look/sheets.h"

#include <QVBoxLayout>

namespace {

QString frame(const QString& objectName)
{
    return Look::framedPanel(QLatin1Char('#') + objectName);
}

} // namespace

FileMenuWidget::FileMenuWidget(QWidget* parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("FileMenuWidget"));
    m_layout = new QVBoxLayout;
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    setLayout(m_layout);
    setStyleSheet(frame(objectName()));

    // A form gives the panel a name of its own, and must not take the frame away with that. A sheet
    // of the application's stays as it is.
    connect(this, &QObject::objectNameChanged, this,
            [this, framed = objectName()](const QString& name) mutable {
                if (!name.isEmpty() && styleSheet() == frame(framed)) {
                    framed = name;
                    setStyleSheet(frame(framed));
                }
            });
}

void FileMenuWidget::addMenuItem(QWidget* item)
{
    m_layout->addWidget(item, 1, Qt::AlignCenter);
}

void FileMenuWidget::focusOutEvent(QFocusEvent* event)
{
    QFrame::focusOutEvent(event);
    Q_EMIT focusLost();
}

#include "moc_filemenuwidget.cpp"
