// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "document.h"

#include <ApplicationFont>

#include <QPainter>
#include <QSvgRenderer>
#include <QVariant>

namespace {

constexpr double MillimetresPerInch = 25.4;
/// Fonts have whole sizes: text is drawn this much larger and scaled down.
constexpr double TextScale = 100;

/// A text with the record's fields in the place of their {names}.
QString filledIn(QString text, const QSqlRecord& record)
{
    for (int i = 0; i < record.count(); ++i) {
        text.replace(QLatin1Char('{') + record.fieldName(i) + QLatin1Char('}'),
                     record.value(i).toString());
    }
    return text;
}

void paintText(QPainter* painter, const Object& object, const QString& text)
{
    QFont font = ApplicationFont::getWidgetFont();
    font.setPixelSize(qRound(object.fontSize * MillimetresPerInch / 72 * TextScale));
    painter->save();
    painter->setFont(font);
    painter->scale(1 / TextScale, 1 / TextScale);
    const QRectF rect(object.rect().topLeft() * TextScale, object.rect().size() * TextScale);
    painter->drawText(rect, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextDontClip,
                      text);
    painter->restore();
}

void paintSymbol(QPainter* painter, const Object& object)
{
    QSvgRenderer drawing(object.svg);
    drawing.setAspectRatioMode(Qt::KeepAspectRatio);
    drawing.render(painter, object.rect());
}

void paintObject(QPainter* painter, const Object& object, const QSqlRecord& record)
{
    const QPen pen(QColor(object.lineColor), object.lineWidth, Qt::SolidLine, Qt::RoundCap,
                   Qt::MiterJoin);
    painter->setPen(object.lineWidth > 0 ? pen : QPen(Qt::NoPen)); // 0 means a hairline to Qt
    painter->setBrush(QColor(object.fillColor));
    switch (object.kind) {
    case Object::Text:
        painter->fillRect(object.rect(), painter->brush());
        painter->setPen(pen);
        paintText(painter, object, filledIn(object.text, record));
        break;
    case Object::Rectangle:
        painter->drawRect(object.rect());
        break;
    case Object::Ellipse:
        painter->drawEllipse(object.rect());
        break;
    case Object::Line:
        painter->drawLine(object.rect().topLeft(), object.rect().bottomRight());
        break;
    case Object::Symbol:
        paintSymbol(painter, object);
        break;
    }
}

} // namespace

void Content::paint(QPainter* painter, const QSqlRecord& record) const
{
    for (const bool isBackground : { true, false }) {
        for (const Layer& layer : layers) {
            for (const Object& object : layer.objects) {
                if (object.isBackground == isBackground && layer.isVisible) {
                    paintObject(painter, object, record);
                }
            }
        }
    }
}
