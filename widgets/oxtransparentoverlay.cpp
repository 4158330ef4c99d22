// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxtransparentoverlay.h"

#include "sharedconstants.h"

#include <QGridLayout>
#include <QLabel>
#include <QPixmap>

OxTransparentOverlay::OxTransparentOverlay(QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
{
    setObjectName(QStringLiteral("OxTransparentOverlay"));
    setAttribute(Qt::WA_NoSystemBackground);
    setWindowFlags(Qt::FramelessWindowHint);
    setWindowOpacity(0.3);

    QPixmap black(ScreenSize);
    black.fill(Qt::black);
    auto* label = new QLabel(this);
    label->setPixmap(black);
    label->setFixedSize(black.size());

    auto* layout = new QGridLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label, 0, 0);
    setLayout(layout);
}

#include "moc_oxtransparentoverlay.cpp"
