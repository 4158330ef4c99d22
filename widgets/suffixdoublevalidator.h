// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QDoubleValidator>

class QWidget;

/*!
 * \brief Lets a person edit a decimal number in a line edit while its unit stays in the text.
 *
 * Use it for a field that shows, say, "12.50 mm". A spin box with QDoubleSpinBox::setSuffix() is
 * the simpler choice where its arrows are wanted; SuffixIntValidator is the one for whole numbers.
 *
 * \code
 * auto* validator = new SuffixDoubleValidator(0.0, 100.0, 2, field);
 * validator->setSuffix(tr(" mm", "Unit behind a length."));
 * field->setValidator(validator);
 * \endcode
 *
 * Numbers are read and written in the validator's locale (QValidator::setLocale()), never with an
 * exponent. Every character of the suffix is taken out of the text before the number is judged,
 * wherever it stands. A suffix therefore must not contain what belongs to a number: digits, signs,
 * and the separators of that locale (beware of "in."). An empty field is acceptable and stays
 * empty, so that it can be cleared: who reads it checks for that.
 */
class UTILITYWIDGETS_EXPORT SuffixDoubleValidator : public QDoubleValidator
{
    Q_OBJECT
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)

public:
    /// Accepts every finite number, with any number of decimals.
    explicit SuffixDoubleValidator(QWidget* parent = nullptr);
    /// Accepts at most `decimals` digits behind the decimal separator.
    SuffixDoubleValidator(double bottom, double top, int decimals, QWidget* parent = nullptr);

    /// The text to keep behind the number, exactly as given: begin it with a blank if one is to
    /// stand between number and unit. Text that is already in a field follows at its next edit.
    void setSuffix(const QString& suffix);
    QString suffix() const;

    /// Judges `input` without the suffix and puts the suffix behind it again, whatever the verdict;
    /// only a text with nothing but the suffix becomes empty, which is acceptable. `pos` is not
    /// corrected for the characters removed and added.
    State validate(QString& input, int& pos) const override;

    /// Appends the suffix. The number stays as it was typed.
    void fixup(QString& input) const override;

private:
    QString m_suffix;
};
