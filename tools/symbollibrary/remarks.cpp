// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "remarks.h"

#include "symbolinspection.h"

QString remarksOn(const QByteArray& thumbnail, const QByteArray& document)
{
    const SymbolInspection inspection(document);
    QStringList reasons;
    if (inspection.isRefused()) {
        reasons.append(inspection.refusal());
    }
    if (!inspection.leftOut().isEmpty()) {
        reasons.append(QStringLiteral("left out: ")
                       + inspection.leftOut().join(QLatin1String(", ")));
    }
    if (!inspection.ignored().isEmpty()) {
        reasons.append(QStringLiteral("not drawn: ")
                       + inspection.ignored().join(QLatin1String(", ")));
    }
    if (SymbolInspection::isBlank(thumbnail)) {
        if (reasons.isEmpty()) {
            reasons.append(QStringLiteral("all that it draws is white or beyond its edges"));
        }
        reasons.prepend(QStringLiteral("blank"));
    }
    return reasons.join(QLatin1String("; "));
}
