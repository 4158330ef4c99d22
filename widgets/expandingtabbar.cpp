// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "expandingtabbar.h"

#include "look/images.h"

#include <QPainter>
#include <QStyleOptionTab>

namespace {

constexpr int IconGap = 5; // pixels between icon and text

/// Null when there is nothing to show.
QPixmap createSwatch(const QString& color, const QSize& size)
{
    QPixmap swatch(size);
    if (color == QLatin1String("transparent")) {
        swatch = QPixmap(QStringLiteral(LOOK_IMAGE_TRANSPARENCY)).scaled(size);
    } else if (const QColor fill(color); fill.isValid()) {
        swatch.fill(fill);
    } else {
        return {};
    }
    QPainter painter(&swatch);
    painter.setPen(QPen(Qt::black, 0));
    painter.drawRect(0, 0, swatch.width() - 1, swatch.height() - 1);
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
    setTabIcon(index, QIcon(createSwatch(color, iconSize())));
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
        const QRect iconRect = tab.adjusted(0, 0, -(textWidth + IconGap), 0);
        icon.paint(painter, QStyle::visualRect(layoutDirection(), tab, iconRect), Qt::AlignCenter,
                   QIcon::Normal, QIcon::Off);
        textRect.setLeft(tab.left() + iconSize().width() + IconGap);
    }
    painter->drawText(QStyle::visualRect(layoutDirection(), tab, textRect), Qt::AlignCenter, text);
}

#include "moc_expandingtabbar.cpp"
