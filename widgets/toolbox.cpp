// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "toolbox.h"

#include "touch/draggesture.h"

#include <QMouseEvent>
#include <QVBoxLayout>

ToolBox::ToolBox(QWidget* parent)
    : QScrollArea(parent)
    , m_gesture(std::make_unique<Touch::DragGesture>())
{
    setObjectName(QStringLiteral("ToolBox"));
}

ToolBox::~ToolBox() = default;

void ToolBox::initialize(QSize size, QPoint position)
{
    m_insertionIndex = 0;
    m_gesture->end();
    m_origin = QPoint(position.x() + size.width(), position.y());
    setFixedWidth(size.width());

    m_columnLayout = new QVBoxLayout;
    m_columnLayout->setSpacing(5);
    m_columnLayout->setContentsMargins(0, 0, 0, 0);

    m_columnWidget = new QWidget;
    m_columnWidget->setFixedWidth(size.width());
    m_columnWidget->move(m_origin);
    m_columnWidget->setLayout(m_columnLayout);
    setWidget(m_columnWidget);
}

void ToolBox::addPropertiesWidget(QWidget* panel)
{
    if (m_columnLayout != nullptr && panel != nullptr) {
        m_columnLayout->insertWidget(nextIndex(), panel, 1, Qt::AlignTop);
    }
}

void ToolBox::insertSpacerItem()
{
    if (m_columnLayout != nullptr) {
        m_columnLayout->insertSpacerItem(
            nextIndex(), new QSpacerItem(10, 500, QSizePolicy::Expanding, QSizePolicy::Expanding));
    }
}

void ToolBox::clearLayout(QLayout* layout)
{
    if (layout == nullptr) {
        return;
    }
    // An item that is a nested layout goes with the unique_ptr as well: it is the layout.
    while (const std::unique_ptr<QLayoutItem> item { layout->takeAt(0) }) {
        clearLayout(item->layout());
        const std::unique_ptr<QWidget> widget(item->widget());
    }
}

int ToolBox::layoutSpacing() const
{
    return m_columnLayout != nullptr ? m_columnLayout->spacing() : 0;
}

void ToolBox::setLayoutSpacing(int spacing)
{
    if (m_columnLayout != nullptr) {
        m_columnLayout->setSpacing(spacing);
    }
}

bool ToolBox::event(QEvent* event)
{
    if (Touch::losesFinger(*this, *event)) {
        m_gesture->end();
    }
    return QScrollArea::event(event);
}

void ToolBox::mousePressEvent(QMouseEvent* event)
{
    m_gesture->begin(event->globalPosition().toPoint());
    QScrollArea::mousePressEvent(event);
}

void ToolBox::mouseMoveEvent(QMouseEvent* event)
{
    Touch::dragScrollArea(*m_gesture, *event, Qt::Vertical, *this);
    QScrollArea::mouseMoveEvent(event);
}

void ToolBox::mouseReleaseEvent(QMouseEvent* event)
{
    m_gesture->end();
    QScrollArea::mouseReleaseEvent(event);
}

/// Where the next panel goes. Clearing the column leaves the index behind, and a layout must not be
/// given one beyond its end.
int ToolBox::nextIndex()
{
    m_insertionIndex = qMin(m_insertionIndex, m_columnLayout->count());
    return m_insertionIndex++;
}

#include "moc_toolbox.cpp"
