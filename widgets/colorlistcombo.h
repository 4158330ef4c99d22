// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QComboBox>
#include <QPair>

/*!
 * \brief A combo box of named pairs of colours, each entry drawn in its own.
 *
 * The chosen entry's colours also show in the closed box. For swatches without names, see
 * ColorMenu.
 *
 * \code
 * auto* combo = new ColorListCombo({tr("Warning"), tr("Notice")},
 *                                  {QStringLiteral("#fd7800"), QStringLiteral("white")},
 *                                  {QStringLiteral("white"), QStringLiteral("black")}, this);
 * combo->setColorIndex(0);
 * const auto [background, text] = combo->color();
 * \endcode
 *
 * Colours are texts that both QColor and a style sheet understand ("#fd7800", "red"). An entry
 * whose text is no colour is drawn in the combo box's ordinary one instead; color() still returns
 * the text as it was given.
 */
class UTILITYWIDGETS_EXPORT ColorListCombo : public QComboBox
{
    Q_OBJECT
    // Not for a form, whose entries have no colours.
    Q_PROPERTY(int colorIndex READ currentIndex WRITE setColorIndex DESIGNABLE false STORED false)

public:
    /// What every entry carries beside its name, both as QString. Qt::BackgroundRole and
    /// Qt::ForegroundRole hold the same as QColor.
    enum Role {
        BackgroundColorRole = Qt::UserRole + 1,
        TextColorRole = Qt::UserRole + 2,
    };

    explicit ColorListCombo(QWidget* parent = nullptr);
    ColorListCombo(const QList<QString>& names, const QList<QString>& backgroundColors,
                   const QList<QString>& textColors, QWidget* parent = nullptr);

    /*!
     * Replaces all entries. The three lists run in step and are to be of the same length: a name
     * for which a list has no colour gets none, colours without a name are ignored.
     *
     * The first entry becomes current, but the closed box stays in its ordinary colours until the
     * user chooses an entry or setColorIndex() is called.
     */
    void initializeComboBox(const QList<QString>& names, const QList<QString>& backgroundColors,
                            const QList<QString>& textColors);

    /// Background and text colour of the current entry, as they were given; both empty when there
    /// is none.
    QPair<QString, QString> color() const;

    /// Makes an entry current and shows its colours in the closed box, as if the user had chosen
    /// it; activated() is not emitted. -1 leaves no entry current.
    void setColorIndex(int index);

public Q_SLOTS:
    /// Shows the colours of the entry at `index` in the closed box, whether it is current or not.
    void comboBoxActivatedSlot(int index);
};
