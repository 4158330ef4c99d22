// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QList>
#include <QStringList>
#include <QWidget>

class QPushButton;

/*!
 * \brief A grid of colour swatches, one of them marked as the chosen one.
 *
 * Use it as the content of a drop-down panel. For a list of named pairs of colours, see
 * ColorListCombo. The menu has no colours of its own:
 *
 * \code
 * auto* menu = new ColorMenu(this);
 * menu->setColorPallete({QStringLiteral("#ff0000"), QStringLiteral("#00ff00")},
 *                       QStringLiteral("#ff0000"));
 * connect(menu, &ColorMenu::colorSignal, this, &Editor::setPenColor);
 * \endcode
 *
 * Colours are texts that a style sheet understands ("#fd7800", "red", "rgb(1, 2, 3)"). The word
 * "transparent" stands for no colour and is drawn as a chequered swatch. A text that is no colour
 * gets an empty swatch that can be tapped like every other.
 */
class UTILITYWIDGETS_EXPORT ColorMenu : public QWidget
{
    Q_OBJECT
    // In the order in which they take effect: a form sets them in this one.
    Q_PROPERTY(int maxColumnCount READ maxColumnCount WRITE setMaxColumnCount)
    Q_PROPERTY(QStringList colors READ colors WRITE setColors)
    Q_PROPERTY(QString selectedColor READ selectedColor WRITE updateSelectedColor)
    Q_PROPERTY(bool transparentColorVisible READ isTransparentColorVisible WRITE
                   setTransparentColorVisible)

public:
    explicit ColorMenu(QWidget* parent = nullptr);

    /*!
     * Replaces all swatches by one per entry of `colors`, row by row, and marks `selectedColor`.
     *
     * With an empty `selectedColor` the colour chosen before stays marked if it occurs in `colors`.
     * The swatch of "transparent" is hidden unless the one it replaces could be seen on the screen.
     * All former buttons are deleted at once. No signal is emitted.
     */
    void setColorPallete(const QStringList& colors, const QString& selectedColor);

    /// What the swatches stand for, in their order.
    QStringList colors() const;
    /// setColorPallete() that leaves the colour chosen before marked.
    void setColors(const QStringList& colors);

    /// The colour chosen last, by the person or by a setter, whether it is marked or not; empty
    /// before the first one.
    QString selectedColor() const;

    /// How many swatches stand in a row, from the next setColorPallete() on; 4 until set. With 0 or
    /// less all of them stand in one row.
    int maxColumnCount() const;
    void setMaxColumnCount(int count);

    /// Shows or hides the swatch of "transparent", the last one if there are several. Does nothing
    /// while the palette has none, so it is to be called after setColorPallete().
    void setTransparentColorVisible(bool visible);
    /// Whether that swatch is there and shown, in a menu that may itself be hidden.
    bool isTransparentColorVisible() const;

    /// Marks `button`, one of this menu's, as the only chosen one. No signal is emitted; null is
    /// ignored.
    void updateSelectedColor(QPushButton* button);

    /// Marks every swatch of `color`; one that does not occur changes nothing. An empty text takes
    /// the mark away, yet the menu remembers the colour for the next palette. No signal is emitted.
    void updateSelectedColor(const QString& color);

    /// Takes the mark from `button`; null is ignored. Which colour is chosen does not change.
    void updateUnselectedColor(QPushButton* button);

    /// Takes the mark from every swatch of `color`. Which colour is chosen does not change.
    void updateUnselectedColor(const QString& color);

Q_SIGNALS:
    /// A swatch was tapped, the marked one included. `color` is the text given for it.
    void colorSignal(const QString& color);

private Q_SLOTS:
    void onColorButtonPressed();

private:
    QList<QPushButton*> buttonsOf(const QString& color) const;
    void select(QPushButton* button);

    QWidget* m_paletteWidget;
    QList<QPushButton*> m_colorButtons; // all of the current palette, in its order
    QPushButton* m_transparentButton = nullptr;
    QString m_selectedColor;
    int m_maxColumnCount = 4;
};
