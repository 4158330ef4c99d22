// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxpushbuttonstyleproxy.h"

OxPushButtonStyleProxy::OxPushButtonStyleProxy(QStyle* style)
    : QProxyStyle(style)
{
    setObjectName(QStringLiteral("OxPushButtonStyleProxy"));
}

void OxPushButtonStyleProxy::drawItemText(QPainter* painter, const QRect& rect, int flags,
                                          const QPalette& palette, bool enabled,
                                          const QString& text, QPalette::ColorRole textRole) const
{
    QProxyStyle::drawItemText(painter, rect, flags | Qt::TextWordWrap, palette, enabled, text,
                              textRole);
}
