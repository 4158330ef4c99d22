// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "suffixdoublevalidator.h"

#include "stripsuffix.h"

#include <QWidget>

SuffixDoubleValidator::SuffixDoubleValidator(QWidget* parent)
    : QDoubleValidator(parent)
{
    setObjectName(QStringLiteral("SuffixDoubleValidator"));
    setNotation(StandardNotation);
}

SuffixDoubleValidator::SuffixDoubleValidator(double bottom, double top, int decimals,
                                             QWidget* parent)
    : QDoubleValidator(bottom, top, decimals, parent)
{
    setObjectName(QStringLiteral("SuffixDoubleValidator"));
    setNotation(StandardNotation);
}

QString SuffixDoubleValidator::suffix() const
{
    return m_suffix;
}

void SuffixDoubleValidator::setSuffix(const QString& suffix)
{
    m_suffix = suffix;
}

QValidator::State SuffixDoubleValidator::validate(QString& input, int& pos) const
{
    stripSuffix(input, m_suffix);
    // An empty number would be Intermediate, and its line edit would refuse to be left empty.
    if (input.isEmpty()) {
        return Acceptable;
    }
    const State state = QDoubleValidator::validate(input, pos);
    fixup(input);
    return state;
}

void SuffixDoubleValidator::fixup(QString& input) const
{
    // QDoubleValidator's own would write the number anew, in some locales with an exponent
    // ("1.23E+04"), while it is being typed.
    QValidator::fixup(input); // NOLINT(bugprone-parent-virtual-call)
    input += m_suffix;
}

#include "moc_suffixdoublevalidator.cpp"
