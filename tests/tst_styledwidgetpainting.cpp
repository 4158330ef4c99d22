// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/styledwidgetpainting.h"

#include "support/test.h"

#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QWidget>

namespace {

const QColor Background(0x2b, 0x2b, 0x2b);
const QColor Border(0xfd, 0x78, 0x00);

/// A plain widget that paints its style sheet or, for comparison, does not.
class Panel : public QWidget
{
    Q_OBJECT

public:
    explicit Panel(bool painting)
        : m_painting(painting)
    {
        resize(40, 20);
        setStyleSheet(
            QStringLiteral("Panel { background-color: #2b2b2b; border: 1px solid #fd7800; }"));
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        if (m_painting) {
            Look::paintStyledWidget(this);
        }
    }

private:
    bool m_painting;
};

/// What `widget` paints over white.
QImage painted(QWidget* widget)
{
    QImage image(widget->size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    widget->render(&image, {}, {}, QWidget::RenderFlags());
    return image;
}

} // namespace

class TestStyledWidgetPainting : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void plainWidgetPaintsNothingOfItsSheet();
    void paintsTheBackground();
    void paintsABorderOfOnePixelOnEverySide();
    void paintsNothingWithoutASheet();
    void followsAChangeOfTheSheet();
    void childrenPaintThemselves();
};

void TestStyledWidgetPainting::plainWidgetPaintsNothingOfItsSheet()
{
    Panel panel(false);
    const QImage image = painted(&panel);
    QCOMPARE(image.pixelColor(20, 10), QColor(Qt::white));
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
}

void TestStyledWidgetPainting::paintsTheBackground()
{
    Panel panel(true);
    const QImage image = painted(&panel);
    QCOMPARE(image.pixelColor(1, 1), Background);
    QCOMPARE(image.pixelColor(20, 10), Background);
    QCOMPARE(image.pixelColor(38, 18), Background);
}

void TestStyledWidgetPainting::paintsABorderOfOnePixelOnEverySide()
{
    Panel panel(true);
    const QImage image = painted(&panel);
    for (int x = 0; x < image.width(); ++x) {
        QCOMPARE(image.pixelColor(x, 0), Border);
        QCOMPARE(image.pixelColor(x, image.height() - 1), Border);
    }
    for (int y = 0; y < image.height(); ++y) {
        QCOMPARE(image.pixelColor(0, y), Border);
        QCOMPARE(image.pixelColor(image.width() - 1, y), Border);
    }
}

void TestStyledWidgetPainting::paintsNothingWithoutASheet()
{
    Panel panel(true);
    panel.setStyleSheet(QString());
    const QImage image = painted(&panel);
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
    QCOMPARE(image.pixelColor(20, 10), QColor(Qt::white));
}

void TestStyledWidgetPainting::followsAChangeOfTheSheet()
{
    Panel panel(true);
    panel.setStyleSheet(QStringLiteral("Panel { background-color: #f2f2f2; }"));
    const QImage image = painted(&panel);
    QCOMPARE(image.pixelColor(0, 0), QColor(0xf2, 0xf2, 0xf2));
    QCOMPARE(image.pixelColor(20, 10), QColor(0xf2, 0xf2, 0xf2));
}

void TestStyledWidgetPainting::childrenPaintThemselves()
{
    Panel panel(true);
    auto* child = new QLabel(&panel);
    child->setGeometry(10, 5, 10, 10);
    child->setStyleSheet(QStringLiteral("background-color: #00ff00;"));

    QImage image(panel.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    panel.render(&image, {}, {}, QWidget::DrawChildren);

    QCOMPARE(image.pixelColor(15, 10), QColor(0, 0xff, 0));
    QCOMPARE(painted(&panel).pixelColor(15, 10), Background);
}

UW_TEST_MAIN(TestStyledWidgetPainting)

#include "tst_styledwidgetpainting.moc"
