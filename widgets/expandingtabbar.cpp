// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "expandingtabbar.h"

#include "look/icons.h"
#include "look/images.h"

#include <QPainter>
#include <QStyleOptionTab>

namespace {

constexpr int IconGap = 5; // pixels between icon and text

/// Of `size` pixels on a plain screen; null when there is nothing to show.
QPixmap createSwatch(const QString& color, const QSize& size, qreal devicePixelRatio)
{
    QPixmap swatch(size * devicePixelRatio);
    if (color == QLatin1String("transparent")) {
        swatch = Look::picture(QStringLiteral(LOOK_IMAGE_TRANSPARENCY), devicePixelRatio)
                     .scaled(swatch.size());
    } else if (const QColor fill(color); fill.isValid()) {
        swatch.fill(fill);
    } else {
        return {};
    }
    swatch.setDevicePixelRatio(devicePixelRatio);
    QPainter painter(&swatch);
    const QRect edge(QPoint(), size);
    const QRegion frame = QRegion(edge) - edge.adjusted(1, 1, -1, -1);
    for (const QRect& side : frame) {
        painter.fillRect(side, Qt::black);
    }
    return swatch;
}

} // namespace

ExpandingTabBar::ExpandingTabBar(QWidget* parent)
    : QTabBar(parent)
{
    // The size hints already fill the bar. Left to itself QTabBar would hand the last pixels to
    // tabs that are not current.
    setExpanding(false);
}

QSize ExpandingTabBar::tabSizeHint(int index) const
{
    int tabWidth = width();
    if (count() > 0) {
        const bool takesPixel = index == currentIndex() && width() % count() != 0;
        tabWidth = width() / count() + (takesPixel ? 1 : 0);
    }
    return { tabWidth, QTabBar::tabSizeHint(index).height() };
}

void ExpandingTabBar::setTabColorRect(int index, const QString& color)
{
    QIcon icon(createSwatch(color, iconSize(), 1));
    if (devicePixelRatioF() > 1) {
        icon.addPixmap(createSwatch(color, iconSize(), devicePixelRatioF()));
    }
    setTabIcon(index, icon);
}

void ExpandingTabBar::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    for (int index = 0; index < count(); ++index) {
        paintTab(&painter, index);
    }
}

//  |<------------------ tab ------------------>|
//  |      [icon]       |5|<--- text width ---->|    where the icon is centred
//  |<-icon->|5|            text                |    where the text is centred
//
// The other way round where a screen is read from right to left.
void ExpandingTabBar::paintTab(QPainter* painter, int index)
{
    QStyleOptionTab option;
    initStyleOption(&option, index);
    const QString text = option.text;
    const QIcon icon = option.icon;
    const QRect tab = tabRect(index);

    option.text.clear();
    option.icon = QIcon();
    style()->drawControl(QStyle::CE_TabBarTab, &option, painter, this);

    QRect textRect = tab;
    if (!icon.isNull()) {
        const int textWidth = fontMetrics().horizontalAdvance(text);
        const QRect room = QStyle::visualRect(option.direction, tab,
                                              tab.adjusted(0, 0, -(textWidth + IconGap), 0));
        const QRect iconRect =
            QStyle::alignedRect(option.direction, Qt::AlignCenter,
                                Look::shownSize(icon, room.size(), devicePixelRatioF()), room);
        icon.paint(painter, iconRect, Qt::AlignCenter, QIcon::Normal, QIcon::Off);
        textRect.setLeft(tab.left() + iconSize().width() + IconGap);
    }
    painter->drawText(QStyle::visualRect(layoutDirection(), tab, textRect), Qt::AlignCenter, text);
}

#include "moc_expandingtabbar.cpp"
