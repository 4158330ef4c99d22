// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/titlelabel.h"

#include <QPainter>
#include <QStyle>

namespace {

/// Room for a first word's beginning and the ellipsis, in average characters.
constexpr int MinimumCharacters = 6;

} // namespace

QSize Look::TitleLabel::minimumSizeHint() const
{
    const QSize whole = QLabel::minimumSizeHint();
    return { qMin(whole.width(), MinimumCharacters * fontMetrics().averageCharWidth()),
             whole.height() };
}

void Look::TitleLabel::paintEvent(QPaintEvent* event)
{
    const QRect room = contentsRect();
    if (Qt::mightBeRichText(text()) || fontMetrics().horizontalAdvance(text()) <= room.width()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    style()->drawItemText(
        &painter, room, int(Qt::AlignVCenter | Qt::AlignLeft), palette(), isEnabled(),
        fontMetrics().elidedText(text(), Qt::ElideRight, room.width()), foregroundRole());
}
