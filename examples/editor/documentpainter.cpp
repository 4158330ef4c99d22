// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "documentpainter.h"

#include "documentfile.h"

#include <ApplicationFont>

#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>

namespace {

constexpr double MillimetresPerInch = 25.4;
/// Fonts have whole sizes: text is drawn this much larger and scaled down.
constexpr double TextScale = 100;

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

} // namespace

void DocumentPainter::paint(QPainter* painter, const Content& content, const QSqlRecord& record)
{
    for (const bool isBackground : { true, false }) {
        for (const Layer& layer : content.layers) {
            for (const Object& object : layer.objects) {
                if (object.isBackground == isBackground && layer.isVisible) {
                    paint(painter, object, record);
                }
            }
        }
    }
}

QString DocumentPainter::print(const QString& path, const Content& content,
                               const QList<QSqlRecord>& records)
{
    QSaveFile file(path);
    bool isWritten = file.open(QFile::WriteOnly);
    if (isWritten) {
        QPdfWriter writer(&file);
        writer.setPageLayout(
            { QPageSize(content.page(), QPageSize::Millimeter, QString(), QPageSize::ExactMatch),
              QPageLayout::Portrait, QMarginsF() });
        QPainter painter(&writer);
        const double scale = writer.resolution() / MillimetresPerInch;
        painter.scale(scale, scale);
        DocumentPainter pages;
        for (qsizetype i = 0; i < records.count() && isWritten; ++i) {
            isWritten = i == 0 || writer.newPage();
            pages.paint(&painter, content, records.at(i));
        }
        isWritten = painter.end() && isWritten;
    }
    if (!isWritten || !DocumentFile::commit(&file)) {
        return tr("%1 cannot be printed:\n%2", "Error message: a file and the system's reason.")
            .arg(QFileInfo(path).fileName(), file.errorString());
    }
    return {};
}

QString DocumentPainter::filledIn(QString text, const QSqlRecord& record)
{
    for (int i = 0; i < record.count(); ++i) {
        text.replace(QLatin1Char('{') + record.fieldName(i) + QLatin1Char('}'),
                     record.value(i).toString());
    }
    return text;
}

void DocumentPainter::paint(QPainter* painter, const Object& object, const QSqlRecord& record)
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
        if (!m_drawings.contains(object.svg)) {
            auto* drawing = new QSvgRenderer(object.svg); // which the cache owns
            drawing->setAspectRatioMode(Qt::KeepAspectRatio);
            m_drawings.insert(object.svg, drawing);
        }
        m_drawings.object(object.svg)->render(painter, object.rect());
        break;
    }
}
