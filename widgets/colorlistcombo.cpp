// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "colorlistcombo.h"

#include "colorlistcombodelegate.h"
#include "look/sheetcolor.h"
#include "look/sheets.h"

#include <QColor>

namespace {

/// The colour of that name for a view. Nothing for a text that is no colour: views paint an invalid
/// colour black.
QVariant itemColor(const QString& name)
{
    const QColor color(name);
    return color.isValid() ? QVariant(color) : QVariant();
}

} // namespace

ColorListCombo::ColorListCombo(QWidget* parent)
    : QComboBox(parent)
{
    setObjectName(QStringLiteral("ColorListCombo"));
    // A combo box does not delete its last delegate, so this one belongs to it as a child.
    setItemDelegate(new ColorListComboDelegate(this));
    setStyleSheet(Look::comboBox());
}

ColorListCombo::ColorListCombo(const QList<QString>& names, const QList<QString>& backgroundColors,
                               const QList<QString>& textColors, QWidget* parent)
    : ColorListCombo(parent)
{
    initializeComboBox(names, backgroundColors, textColors);
}

void ColorListCombo::initializeComboBox(const QList<QString>& names,
                                        const QList<QString>& backgroundColors,
                                        const QList<QString>& textColors)
{
    clear();
    // The entry whose colours the closed box may still show is gone.
    setStyleSheet(Look::comboBox());
    for (int i = 0; i < int(names.size()); ++i) {
        addItem(names.at(i));
        setItemData(i, backgroundColors.value(i), BackgroundColorRole);
        setItemData(i, textColors.value(i), TextColorRole);
        setItemData(i, itemColor(backgroundColors.value(i)), Qt::BackgroundRole);
        setItemData(i, itemColor(textColors.value(i)), Qt::ForegroundRole);
    }
    connect(this, &QComboBox::activated, this, &ColorListCombo::comboBoxActivatedSlot,
            Qt::UniqueConnection);
}

QPair<QString, QString> ColorListCombo::color() const
{
    return { currentData(BackgroundColorRole).toString(), currentData(TextColorRole).toString() };
}

void ColorListCombo::setColorIndex(int index)
{
    setCurrentIndex(index);
    comboBoxActivatedSlot(index);
}

void ColorListCombo::comboBoxActivatedSlot(int index)
{
    const QString background = Look::sheetColor(itemData(index, BackgroundColorRole).toString());
    const QString text = Look::sheetColor(itemData(index, TextColorRole).toString());
    setStyleSheet(Look::comboBox()
                  + QStringLiteral(" QComboBox {  color: %1;  background-color: %2; }")
                        .arg(text, background));
}

#include "moc_colorlistcombo.cpp"
