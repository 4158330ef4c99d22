// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "suffixintvalidator.h"

#include "stripsuffix.h"

#include <QWidget>

SuffixIntValidator::SuffixIntValidator(QWidget* parent)
    : QIntValidator(parent)
{
    setObjectName(QStringLiteral("SuffixIntValidator"));
}

SuffixIntValidator::SuffixIntValidator(int bottom, int top, QWidget* parent)
    : QIntValidator(bottom, top, parent)
{
    setObjectName(QStringLiteral("SuffixIntValidator"));
}

QString SuffixIntValidator::suffix() const
{
    return m_suffix;
}

void SuffixIntValidator::setSuffix(const QString& suffix)
{
    m_suffix = suffix;
}

QValidator::State SuffixIntValidator::validate(QString& input, int& pos) const
{
    stripSuffix(input, m_suffix);
    // An empty number would be Intermediate, and its line edit would refuse to be left empty.
    if (input.isEmpty()) {
        return Acceptable;
    }
    const State state = QIntValidator::validate(input, pos);
    fixup(input);
    return state;
}

void SuffixIntValidator::fixup(QString& input) const
{
    QIntValidator::fixup(input);
    input += m_suffix;
}

#include "moc_suffixintvalidator.cpp"
