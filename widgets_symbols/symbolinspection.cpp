// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symbolinspection.h"

#include "svgfeatures.h"
#include "svggate.h"

#include <QImage>

SymbolInspection::SymbolInspection(const QByteArray& document)
{
    const SvgGate gate = SvgGate::pass(document);
    m_refusal = gate.refusal;
    m_leftOut = gate.removed;
    if (m_refusal.isEmpty()) {
        m_ignored = ignoredSvgFeatures(gate.document);
    }
}

bool SymbolInspection::isBlank(const QByteArray& thumbnail)
{
    const QImage image = QImage::fromData(thumbnail).convertToFormat(QImage::Format_RGB32);
    if (image.isNull()) {
        return false;
    }
    QImage white(image.size(), image.format());
    white.fill(Qt::white);
    return image == white;
}

bool SymbolInspection::isRefused() const
{
    return !m_refusal.isEmpty();
}

QString SymbolInspection::refusal() const
{
    return m_refusal;
}

QStringList SymbolInspection::leftOut() const
{
    return m_leftOut;
}

QStringList SymbolInspection::ignored() const
{
    return m_ignored;
}
