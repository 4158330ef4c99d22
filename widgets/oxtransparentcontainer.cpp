// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxtransparentcontainer.h"

#include "ioxtransparentwidget.h"
#include "oxtransparentoverlay.h"

#include <QGridLayout>

namespace {

constexpr int BrightStripHeight = 60; // pixels at the top of the screen that are not dimmed

/// So that the dimmed screen does not shine through.
void makeOpaque(QWidget* panel)
{
    panel->setAutoFillBackground(true);
    const QList<QWidget*> children =
        panel->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children) {
        child->setAutoFillBackground(true);
    }
}

} // namespace

OxTransparentContainer::OxTransparentContainer(QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , m_layout(new QGridLayout)
    , m_overlay(std::make_unique<OxTransparentOverlay>())
{
    setObjectName(QStringLiteral("OxTransparentContainer"));
    setAttribute(Qt::WA_NoSystemBackground);

    m_overlay->move(0, BrightStripHeight);
    m_overlay->setVisible(true);

    m_layout->setContentsMargins(0, 0, 0, 0);
    setLayout(m_layout);
}

OxTransparentContainer::~OxTransparentContainer() = default;

void OxTransparentContainer::setCenterWindow(IOxTransparentWidget* window)
{
    auto* panel = dynamic_cast<QWidget*>(window);
    if (panel == nullptr) {
        return;
    }
    if (m_centerWindow != nullptr) {
        m_layout->removeWidget(m_centerWindow);
    }
    m_centerWindow = panel;
    // By name: the signal belongs to the panel's own class, the interface has no meta-object.
    connect(panel, SIGNAL(closeSignal()), this, SLOT(onClosePressed()), Qt::UniqueConnection);
    m_layout->addWidget(panel, 0, 0, Qt::AlignCenter);
    makeOpaque(panel);
    panel->setVisible(true);
}

void OxTransparentContainer::onClosePressed()
{
    m_overlay.reset(); // before anybody learns of the closing: the screen is bright again by then
    // What the panel does when it is closed may delete it, and this container too.
    const QPointer<OxTransparentContainer> self(this);
    if (m_centerWindow != nullptr) {
        m_centerWindow->close();
    }
    if (self != nullptr) {
        close();
    }
}

#include "moc_oxtransparentcontainer.cpp"
