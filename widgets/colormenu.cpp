// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "colormenu.h"

#include "look/images.h"
#include "look/sheetcolor.h"

#include <QGridLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int CellExtent = 50; // pixels; room for a marked swatch and for a finger

/// Name of the property in which a button keeps its colour as it was given.
constexpr char ColorProperty[] = "color";

QString menuStyle()
{
    return QStringLiteral(
        "QPushButton { min-width: 25px; min-height: 25px; max-width: 25px; max-height: 25px;"
        " border: 1px solid black; }\n"
        "QPushButton#ColorButton { min-width: 35px; min-height: 35px; max-width: 35px;"
        " max-height: 35px; }\n"
        "QPushButton#ColorButton::pressed { background-origin: content; background-clip: content;"
        " padding: 4px; } ");
}

bool isTransparent(const QString& color)
{
    return color == QLatin1String("transparent");
}

QString colorOf(const QPushButton* button)
{
    return button->property(ColorProperty).toString();
}

QString unselectedStyle(const QString& color)
{
    if (isTransparent(color)) {
        return QStringLiteral("background-image: url(" LOOK_IMAGE_TRANSPARENCY "); ");
    }
    return QStringLiteral("background-color: ") + Look::sheetColor(color);
}

/// The swatch keeps its size and gets a gap around it, at whose edge the border then stands.
QString selectedStyle(const QString& color)
{
    const QString gap =
        QStringLiteral("background-origin: content; background-clip: content; padding: 2px; ");
    if (isTransparent(color)) {
        return unselectedStyle(color) + gap;
    }
    return unselectedStyle(color) + QStringLiteral("; ") + gap;
}

QPushButton* createColorButton(const QString& color)
{
    auto* button = new QPushButton;
    button->setObjectName(QStringLiteral("ColorButton"));
    button->setProperty(ColorProperty, color);
    button->setAccessibleName(color);
    button->setStyleSheet(unselectedStyle(color));
    return button;
}

} // namespace

ColorMenu::ColorMenu(QWidget* parent)
    : QWidget(parent)
    , m_paletteWidget(new QWidget(this))
{
    setObjectName(QStringLiteral("ColorMenu"));
    setStyleSheet(menuStyle());

    auto* layout = new QVBoxLayout;
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_paletteWidget, 2, Qt::AlignCenter);
    setLayout(layout);
}

void ColorMenu::setColorPallete(const QStringList& colors, const QString& selectedColor)
{
    const bool showTransparent = m_transparentButton != nullptr && m_transparentButton->isVisible();
    m_transparentButton = nullptr;
    m_colorButtons.clear();
    // At once, not later: a widget that still has a layout refuses the new one.
    qDeleteAll(QObjectList(m_paletteWidget->children()));

    auto* grid = new QGridLayout;
    int row = 0;
    int column = 0;
    for (const QString& color : colors) {
        QPushButton* button = createColorButton(color);
        connect(button, &QPushButton::clicked, this, &ColorMenu::onColorButtonPressed);
        // Centred, so that the swatch stays where it is when the button grows with the mark.
        grid->addWidget(button, row, column, Qt::AlignCenter);
        m_colorButtons.append(button);
        if (isTransparent(color)) {
            m_transparentButton = button;
        }
        if (++column == m_maxColumnCount) {
            column = 0;
            ++row;
        }
    }
    for (int i = 0; i < grid->rowCount(); ++i) {
        grid->setRowMinimumHeight(i, CellExtent);
    }
    for (int i = 0; i < grid->columnCount(); ++i) {
        grid->setColumnMinimumWidth(i, CellExtent);
    }
    m_paletteWidget->setLayout(grid);

    updateSelectedColor(selectedColor.isEmpty() ? m_selectedColor : selectedColor);
    setTransparentColorVisible(showTransparent);
}

QStringList ColorMenu::colors() const
{
    QStringList colors;
    for (const QPushButton* button : m_colorButtons) {
        colors.append(colorOf(button));
    }
    return colors;
}

void ColorMenu::setColors(const QStringList& colors)
{
    setColorPallete(colors, QString());
}

QString ColorMenu::selectedColor() const
{
    return m_selectedColor;
}

int ColorMenu::maxColumnCount() const
{
    return m_maxColumnCount;
}

void ColorMenu::setMaxColumnCount(int count)
{
    m_maxColumnCount = count;
}

void ColorMenu::setTransparentColorVisible(bool visible)
{
    if (m_transparentButton != nullptr) {
        m_transparentButton->setVisible(visible);
    }
}

bool ColorMenu::isTransparentColorVisible() const
{
    return m_transparentButton != nullptr && !m_transparentButton->isHidden();
}

void ColorMenu::updateSelectedColor(QPushButton* button)
{
    if (button != nullptr) {
        updateUnselectedColor(m_selectedColor);
        select(button);
    }
}

void ColorMenu::updateSelectedColor(const QString& color)
{
    if (color.isEmpty()) {
        updateUnselectedColor(m_selectedColor);
        return;
    }
    const QList<QPushButton*> buttons = buttonsOf(color);
    if (buttons.isEmpty()) {
        return;
    }
    // Once for all of them: for each one, the mark of the next would take that of the one before.
    updateUnselectedColor(m_selectedColor);
    for (QPushButton* button : buttons) {
        select(button);
    }
}

void ColorMenu::updateUnselectedColor(QPushButton* button)
{
    if (button != nullptr) {
        button->setStyleSheet(unselectedStyle(colorOf(button)));
    }
}

void ColorMenu::updateUnselectedColor(const QString& color)
{
    const QList<QPushButton*> buttons = buttonsOf(color);
    for (QPushButton* button : buttons) {
        updateUnselectedColor(button);
    }
}

void ColorMenu::onColorButtonPressed()
{
    if (auto* button = qobject_cast<QPushButton*>(sender())) {
        const QString color = colorOf(button);
        updateSelectedColor(button);
        // Last of all: whoever listens may replace the palette, and with it the button.
        Q_EMIT colorSignal(color);
    }
}

QList<QPushButton*> ColorMenu::buttonsOf(const QString& color) const
{
    QList<QPushButton*> buttons;
    for (QPushButton* button : m_colorButtons) {
        if (colorOf(button) == color) {
            buttons.append(button);
        }
    }
    return buttons;
}

void ColorMenu::select(QPushButton* button)
{
    m_selectedColor = colorOf(button);
    button->setStyleSheet(selectedStyle(m_selectedColor));
}

#include "moc_colormenu.cpp"
