// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "stage.h"

#include "applicationfont.h"
#include "page.h"
#include "signallog.h"

#include <QAbstractItemView>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace Gallery {

namespace {

// Columns are counted on a grid that divides evenly into one to six of them.
constexpr int GridColumns = 60;
constexpr int ColumnGap = 12; // pixels

QLabel* createCaption(const QString& text)
{
    auto* caption = new QLabel(text);
    caption->setFont(ApplicationFont::getWidgetFontSmall(false));
    caption->setObjectName(QStringLiteral("GalleryCaption"));
    return caption;
}

} // namespace

Stage::Stage(QGridLayout* grid, SignalLog* log)
    : m_grid(grid)
    , m_log(log)
{
    for (int column = 0; column < GridColumns; ++column) {
        m_grid->setColumnStretch(column, 1);
        m_grid->setColumnMinimumWidth(column, 1);
    }
}

void Stage::setColumns(int columns)
{
    if (m_column > 0) {
        ++m_row;
        m_column = 0;
    }
    m_columns = columns;
}

void Stage::add(const QString& caption, QWidget* widget)
{
    place(caption, widget, 1);
}

void Stage::addWide(const QString& caption, QWidget* widget)
{
    setColumns(m_columns);
    place(caption, widget, m_columns);
}

void Stage::addStates(const std::function<QWidget*(const QString&)>& make, const QString& text)
{
    add(QStringLiteral("Enabled"), make(text));
    QWidget* disabled = make(text);
    disabled->setEnabled(false);
    add(QStringLiteral("Disabled"), disabled);
    QWidget* longOne = make(longText());
    // It gets the place that a short text has, as on the device.
    longOne->setSizePolicy(QSizePolicy::Ignored, longOne->sizePolicy().verticalPolicy());
    add(QStringLiteral("Long text"), longOne);
}

void Stage::addAction(const QString& text, const std::function<void()>& action)
{
    auto* button = new QPushButton(text);
    button->setObjectName(QStringLiteral("GalleryButton"));
    QObject::connect(button, &QPushButton::clicked, button, action);
    place({}, button, 1);
}

void Stage::watch(const QString& name, QObject* object)
{
    m_log->watch(name, object);
}

void Stage::log(const QString& line)
{
    m_log->addLine(line, true);
}

void Stage::place(const QString& caption, QWidget* widget, int span)
{
    auto* cell = new QVBoxLayout;
    // Every cell gives up the same width to the gaps, so that all instances are equally wide.
    cell->setContentsMargins(ColumnGap * m_column / m_columns, 0,
                             ColumnGap * (m_columns - m_column - span) / m_columns, 0);
    cell->setSpacing(2);
    QLabel* label = createCaption(caption);
    // For those who cannot see that the two belong together. Lists take no name from a buddy.
    label->setBuddy(widget);
    if (qobject_cast<QAbstractItemView*>(widget) != nullptr && widget->accessibleName().isEmpty()) {
        widget->setAccessibleName(caption);
    }
    cell->addWidget(label);
    cell->addWidget(widget);
    cell->addStretch();
    const int width = GridColumns / m_columns;
    m_grid->addLayout(cell, m_row, m_column * width, 1, span * width);
    m_column += span;
    if (m_column >= m_columns) {
        m_column = 0;
        ++m_row;
    }
    if (!caption.isEmpty()) {
        m_log->watch(caption, widget);
    }
}

} // namespace Gallery
