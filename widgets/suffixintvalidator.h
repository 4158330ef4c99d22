// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QIntValidator>

class QWidget;

/*!
 * \brief Lets a person edit a whole number in a line edit while its unit stays in the text.
 *
 * Use it for a field that shows, say, "12 mm". A spin box with QSpinBox::setSuffix() is the simpler
 * choice where its arrows are wanted; SuffixDoubleValidator is the one for decimals.
 *
 * \code
 * auto* validator = new SuffixIntValidator(0, 100, field);
 * validator->setSuffix(tr(" mm", "Unit behind a length."));
 * field->setValidator(validator);
 * \endcode
 *
 * Every character of the suffix is taken out of the text before the number is judged, wherever it
 * stands. A suffix therefore must not contain what belongs to a number: digits, signs, and the
 * separators of the validator's locale. An empty field is acceptable and stays empty, so that it
 * can be cleared: who reads it checks for that.
 */
class UTILITYWIDGETS_EXPORT SuffixIntValidator : public QIntValidator
{
    Q_OBJECT
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)

public:
    /// Accepts every `int`.
    explicit SuffixIntValidator(QWidget* parent = nullptr);
    SuffixIntValidator(int bottom, int top, QWidget* parent = nullptr);

    /// The text to keep behind the number, exactly as given: begin it with a blank if one is to
    /// stand between number and unit. Text that is already in a field follows at its next edit.
    void setSuffix(const QString& suffix);
    QString suffix() const;

    /// Judges `input` without the suffix and puts the suffix behind it again, whatever the verdict;
    /// only a text with nothing but the suffix becomes empty, which is acceptable. `pos` is not
    /// corrected for the characters removed and added.
    State validate(QString& input, int& pos) const override;

    /// Writes a whole number as the locale writes it, then appends the suffix.
    void fixup(QString& input) const override;

private:
    QString m_suffix;
};
