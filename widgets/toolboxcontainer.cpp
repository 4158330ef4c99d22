// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "toolboxcontainer.h"

#include "look/images.h"
#include "look/palette.h"
#include "toolbox.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QPointer>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int SingleStep = 35; // pixels
/// Less than a step is not worth an arrow.
constexpr int ArrowThreshold = SingleStep - 1;
/// The last two steps are taken in one.
constexpr int JumpDistance = 2 * SingleStep;
/// How often layouts ask for another round until the scroll range is final.
constexpr int LayoutRounds = 3;

QString containerSheet()
{
    return QStringLiteral("QWidget#ToolBoxWidget { background-color: " LOOK_PANEL_GREY ";\n"
                          "border-top: 1px solid " LOOK_TOOL_ORANGE ";\n"
                          "border-left: 1px solid " LOOK_TOOL_ORANGE ";\n"
                          "border-bottom: 1px solid " LOOK_TOOL_ORANGE ";\n"
                          "border-right: none; }\n");
}

QPushButton* createArrowButton(int width, const QString& image)
{
    auto* button = new QPushButton;
    button->setAutoRepeat(true);
    button->setStyleSheet(
        QStringLiteral("background-color: " LOOK_TOOL_ORANGE ";\nborder: none;\n"));
    button->setFixedSize(width, SingleStep);
    button->setIcon(QIcon(image));
    return button;
}

} // namespace

ToolBoxContainer::ToolBoxContainer(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("ToolBoxContainerWidget"));
}

void ToolBoxContainer::initialize(QSize size, QPoint position)
{
    if (m_toolBox != nullptr) {
        return;
    }
    createToolBox(size, position);
    m_aboveButton = createArrowButton(size.width(), QStringLiteral(LOOK_IMAGE_ARROW_UP));
    m_belowButton = createArrowButton(size.width(), QStringLiteral(LOOK_IMAGE_ARROW_DOWN));
    retranslate();
    createLayout();
    setStyleSheet(containerSheet());

    connect(m_aboveButton, &QPushButton::clicked, this, &ToolBoxContainer::onAboveButtonClicked);
    connect(m_belowButton, &QPushButton::clicked, this, &ToolBoxContainer::onBelowButtonClicked);
    followScrollBar(true);
    // Panels that have been added are shown, and may unfold, only after the event at hand.
    connect(m_toolBox->verticalScrollBar(), &QScrollBar::rangeChanged, this,
            &ToolBoxContainer::updateButtons);
}

int ToolBoxContainer::columnWidth() const
{
    return m_toolBox != nullptr ? m_toolBox->minimumWidth() : 0; // fixed, whatever the layout did
}

void ToolBoxContainer::setColumnWidth(int width)
{
    if (width > 0) {
        initialize(QSize(std::min(width, QWIDGETSIZE_MAX), height()), QPoint());
    }
}

void ToolBoxContainer::addPropertiesWidget(QWidget* panel)
{
    if (m_toolBox != nullptr) {
        m_toolBox->addPropertiesWidget(panel);
    }
}

void ToolBoxContainer::insertSpacerItem()
{
    if (m_toolBox != nullptr) {
        m_toolBox->insertSpacerItem();
    }
}

void ToolBoxContainer::clearLayout(QLayout* layout)
{
    if (m_toolBox != nullptr) {
        m_toolBox->clearLayout(layout);
    }
}

void ToolBoxContainer::setLayoutSpacing(int spacing)
{
    if (m_toolBox != nullptr) {
        m_toolBox->setLayoutSpacing(spacing);
    } else {
        m_spacingToCome = spacing;
    }
}

int ToolBoxContainer::layoutSpacing() const
{
    return m_toolBox != nullptr ? m_toolBox->layoutSpacing() : m_spacingToCome;
}

void ToolBoxContainer::setAboveButtonVisible(bool visible)
{
    if (m_aboveButton != nullptr) {
        m_aboveButton->setVisible(visible);
    }
}

void ToolBoxContainer::setBelowButtonVisible(bool visible)
{
    if (m_belowButton != nullptr) {
        m_belowButton->setVisible(visible);
    }
}

bool ToolBoxContainer::isAboveButtonVisible() const
{
    return m_aboveButton != nullptr && !m_aboveButton->isHidden();
}

bool ToolBoxContainer::isBelowButtonVisible() const
{
    return m_belowButton != nullptr && !m_belowButton->isHidden();
}

ToolBox* ToolBoxContainer::getToolBox() const
{
    return m_toolBox;
}

void ToolBoxContainer::determineButtonVisibility()
{
    if (m_settling) {
        return; // called by one of the events that are being processed
    }
    const QPointer<ToolBoxContainer> alive(this);
    m_settling = true;
    for (int round = 0; round < LayoutRounds && alive; ++round) {
        QCoreApplication::processEvents();
    }
    if (alive) {
        m_settling = false;
        updateButtons();
    }
}

void ToolBoxContainer::ensureVisibleWidget(QWidget* widget)
{
    if (m_toolBox != nullptr && widget != nullptr) {
        m_toolBox->ensureWidgetVisible(widget, 50, 50);
    }
}

void ToolBoxContainer::setToolBoxVerticalScrollValue(int value)
{
    if (m_toolBox != nullptr) {
        m_toolBox->verticalScrollBar()->setValue(value);
    }
}

int ToolBoxContainer::getToolBoxVerticalScrollValue() const
{
    return m_toolBox != nullptr ? m_toolBox->verticalScrollBar()->value() : 0;
}

void ToolBoxContainer::addPanel(QWidget* panel)
{
    if (panel != nullptr) {
        const int wanted = std::max(panel->sizeHint().width(), panel->minimumWidth());
        setColumnWidth(wanted > 0 ? wanted : width());
        addPropertiesWidget(panel);
    }
}

void ToolBoxContainer::onAboveButtonClicked()
{
    if (m_toolBox == nullptr) {
        return;
    }
    QScrollBar* bar = m_toolBox->verticalScrollBar();
    if (bar->value() > bar->minimum() + JumpDistance) {
        bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
        return;
    }
    // The jump's own change of value must not show the button again.
    followScrollBar(false);
    m_aboveButton->hide();
    bar->triggerAction(QAbstractSlider::SliderToMinimum);
    followScrollBar(true);
}

void ToolBoxContainer::onBelowButtonClicked()
{
    if (m_toolBox == nullptr) {
        return;
    }
    QScrollBar* bar = m_toolBox->verticalScrollBar();
    if (bar->value() < bar->maximum() - JumpDistance) {
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        return;
    }
    followScrollBar(false);
    m_belowButton->hide();
    bar->triggerAction(QAbstractSlider::SliderToMaximum);
    followScrollBar(true);
}

void ToolBoxContainer::onSliderValueChanged(int /*value*/)
{
    settleLayouts();
    updateButtons();
}

void ToolBoxContainer::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void ToolBoxContainer::resizeEvent(QResizeEvent* event)
{
    settleLayouts();
    updateButtons();
    QWidget::resizeEvent(event);
}

void ToolBoxContainer::showEvent(QShowEvent* event)
{
    settleLayouts();
    updateButtons();
    QWidget::showEvent(event);
}

void ToolBoxContainer::moveEvent(QMoveEvent* event)
{
    settleLayouts();
    updateButtons();
    QWidget::moveEvent(event);
}

void ToolBoxContainer::retranslate()
{
    if (m_toolBox == nullptr) {
        return; // not initialised yet
    }
    m_aboveButton->setAccessibleName(
        tr("Scroll up", "Accessible name of the arrow above a column of panels."));
    m_belowButton->setAccessibleName(
        tr("Scroll down", "Accessible name of the arrow below a column of panels."));
}

void ToolBoxContainer::createToolBox(QSize size, QPoint position)
{
    m_toolBox = new ToolBox;
    m_toolBox->initialize(size, position);
    m_toolBox->setLayoutSpacing(m_spacingToCome);
    m_toolBox->widget()->setObjectName(QStringLiteral("ToolBoxWidget"));
    m_toolBox->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_toolBox->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_toolBox->setWidgetResizable(true);
    m_toolBox->setFrameShape(QFrame::NoFrame);
    m_toolBox->verticalScrollBar()->setSingleStep(SingleStep);
    m_toolBox->verticalScrollBar()->setTracking(true);
}

void ToolBoxContainer::createLayout()
{
    // All in one cell: the buttons lie over the ends of the tool box.
    auto* layout = new QGridLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_toolBox, 0, 0, Qt::AlignHCenter);
    layout->addWidget(m_aboveButton, 0, 0, Qt::AlignHCenter | Qt::AlignTop);
    layout->addWidget(m_belowButton, 0, 0, Qt::AlignHCenter | Qt::AlignBottom);
    setLayout(layout);
}

/// What determineButtonVisibility() does to bring the scroll range up to date, for callers inside
/// Qt's own resizing, showing, moving and scrolling. All pending events would include slots that
/// delete this container, and Qt goes on using the widget when its handler returns: only layouts
/// have their turn here.
void ToolBoxContainer::settleLayouts()
{
    if (m_settling) {
        return;
    }
    const QScopedValueRollback<bool> settling(m_settling, true);
    for (int round = 0; round < LayoutRounds; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    }
}

void ToolBoxContainer::updateButtons()
{
    if (m_toolBox == nullptr) {
        return;
    }
    const QScrollBar* bar = m_toolBox->verticalScrollBar();
    const bool scrolls = bar->maximum() != 0;
    m_aboveButton->setVisible(scrolls && bar->value() > bar->minimum() + ArrowThreshold);
    m_belowButton->setVisible(scrolls && bar->value() < bar->maximum() - ArrowThreshold);
}

void ToolBoxContainer::followScrollBar(bool follow)
{
    const QScrollBar* bar = m_toolBox->verticalScrollBar();
    if (follow) {
        connect(bar, &QScrollBar::valueChanged, this, &ToolBoxContainer::onSliderValueChanged);
    } else {
        disconnect(bar, &QScrollBar::valueChanged, this, &ToolBoxContainer::onSliderValueChanged);
    }
}

#include "moc_toolboxcontainer.cpp"
