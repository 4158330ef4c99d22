// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symbolpreview.h"

#include "widgets_symbols/svggate.h"

#include <QPainter>
#include <QSvgRenderer>

namespace Gallery {

namespace {

constexpr int Height = 180; // pixels: what the page has
constexpr int Margin = 10; // pixels around the symbol

const QColor SheetEdge(0xc6, 0xc6, 0xc6);

} // namespace

SymbolPreview::SymbolPreview(QWidget* parent)
    : QWidget(parent)
    , m_renderer(new QSvgRenderer(this))
{
    setObjectName(QStringLiteral("SymbolPreview"));
    setFixedHeight(Height);
}

void SymbolPreview::setSymbol(const QByteArray& svg)
{
    // The symbols of the person's own come from anywhere.
    m_renderer->load(SvgGate::pass(svg).document);
    m_renderer->setAspectRatioMode(Qt::KeepAspectRatio);
    update();
}

void SymbolPreview::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), SheetEdge);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), Qt::white);
    painter.setRenderHint(QPainter::Antialiasing);
    m_renderer->render(&painter, QRectF(rect()).adjusted(Margin, Margin, -Margin, -Margin));
}

} // namespace Gallery

#include "moc_symbolpreview.cpp"
