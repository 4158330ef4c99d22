// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "containertitlebar.h"
#include "dragscrollbutton.h"
#include "expandingtabbar.h"
#include "linelabel.h"
#include "oxtitlebar.h"

#include "look/icons.h"
#include "look/imagetable.h"
#include "support/test.h"

#include <QApplication>
#include <QCheckBox>
#include <QIcon>
#include <QIconEngine>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtMath>

/// Pictures on screens that show a logical pixel with one, one and a half or two of their own: the
/// program runs once for each.
class TestFineScreen : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aPictureHasThePixelsOfTheScreen();
    void everyImageHasThePixelsOfTheScreen_data();
    void everyImageHasThePixelsOfTheScreen();
    void aSheetShowsTheImageWithThePixelsOfTheScreen();
    void anImageIsFaintWhereItIsDisabled();
    void anImageOfAListKeepsItsColoursWhereItIsSelected();
    void othersImagesAreLeftToTheToolkit();
    void anIconOfAnOddSizeHasThePixelsOfTheScreen();
    void theIconOfATitleBarHasThePixelsOfTheScreen();
    void theCloseButtonHasThePixelsOfTheScreen();

    void anIconIsShownInItsPlainSize();
    void anIconWithoutATwinIsShownInItsSize();
    void anIconLargerThanItsRoomIsShownSmaller();
    void anIconThatIsDrawnInAnySizeFillsItsRoom();
    void noIconHasNoSize();

    void aFittedButtonShowsItsIconInThePlainSize();
    void aSwatchHasThePixelsOfTheScreen();
    void theFrameOfASwatchIsOnePixelWide();
    void theCheckerboardOfASwatchHasThePixelsOfTheScreen();
    void aTabShowsAnIconInItsPlainSize();

    void rulesAreEquallyThickEverywhere();
};

namespace {

const QSize InformationSize(29, 28);

QString informationImage()
{
    return QStringLiteral(LOOK_IMAGE_INFORMATION);
}

qreal ratio()
{
    return qGuiApp->devicePixelRatio();
}

/// An icon engine as that of drawings: it has no size of its own.
class SizelessEngine : public QIconEngine
{
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/,
               QIcon::State /*state*/) override
    {
        painter->fillRect(rect, Qt::red);
    }
    QIconEngine* clone() const override { return new SizelessEngine; }
};

QImage painted(QWidget* widget)
{
    return widget->grab().toImage();
}

/// The pixels of `image` that have the colour, in pixels of the screen.
QRect areaOf(const QImage& image, const QColor& color)
{
    QRect area;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color) {
                area |= QRect(x, y, 1, 1);
            }
        }
    }
    return area;
}

/// A plain picture and its twin, both of one colour.
QIcon magentaIcon(int extent)
{
    QPixmap picture(extent, extent);
    picture.fill(Qt::magenta);
    QIcon icon(picture);
    QPixmap twin(2 * extent, 2 * extent);
    twin.fill(Qt::magenta);
    twin.setDevicePixelRatio(2);
    icon.addPixmap(twin);
    return icon;
}

/// Edges of half a pixel are rounded to either side.
#define COMPARE_SIZE(actual, expected)                                                             \
    do {                                                                                           \
        QVERIFY2(qAbs((actual).width() - (expected)*ratio()) <= 1,                                 \
                 qPrintable(QString::number((actual).width())));                                   \
        QVERIFY2(qAbs((actual).height() - (expected)*ratio()) <= 1,                                \
                 qPrintable(QString::number((actual).height())));                                  \
    } while (false)

} // namespace

void TestFineScreen::aPictureHasThePixelsOfTheScreen()
{
    const QPixmap picture = Look::picture(informationImage(), ratio());
    QCOMPARE(picture.size(), InformationSize * ratio());
    QCOMPARE(picture.devicePixelRatio(), ratio());
    QCOMPARE(Look::picture(informationImage(), 1).size(), InformationSize);
}

void TestFineScreen::everyImageHasThePixelsOfTheScreen_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");
    for (const Look::Image& image : Look::images) {
        QTest::newRow(image.macro)
            << QString::fromLatin1(image.path) << QSize(image.width, image.height);
    }
}

/// As buttons and style sheets ask for it.
void TestFineScreen::everyImageHasThePixelsOfTheScreen()
{
    QFETCH(const QString, path);
    QFETCH(const QSize, size);
    const QIcon icon(path);
    const QPixmap picture = icon.pixmap(size, ratio());
    QCOMPARE(picture.size(), size * ratio());
    QCOMPARE(picture.devicePixelRatio(), ratio());
    QCOMPARE(icon.actualSize(size), size);
}

void TestFineScreen::aSheetShowsTheImageWithThePixelsOfTheScreen()
{
    QCheckBox box;
    box.setStyleSheet(QStringLiteral("QCheckBox { background: #f2f2f2; spacing: 0px; }"
                                     "QCheckBox::indicator { width: 16px; height: 16px; }"
                                     "QCheckBox::indicator:unchecked { image: url(%1); }")
                          .arg(QStringLiteral(LOOK_IMAGE_ARROW_DOWN)));
    box.setFixedSize(16, 16); // whole pixels at each scale
    const QImage shown = painted(&box).convertToFormat(QImage::Format_RGB32);

    QImage expected(shown.size(), QImage::Format_RGB32);
    expected.setDevicePixelRatio(ratio());
    expected.fill(QColor(0xf2, 0xf2, 0xf2));
    QPainter(&expected).drawPixmap(0, 0,
                                   Look::picture(QStringLiteral(LOOK_IMAGE_ARROW_DOWN), ratio()));
    QCOMPARE(shown, expected);
}

void TestFineScreen::anImageIsFaintWhereItIsDisabled()
{
    const QIcon icon(informationImage());
    const QPixmap disabled = icon.pixmap(InformationSize, ratio(), QIcon::Disabled);
    QCOMPARE(disabled.size(), InformationSize * ratio());
    QVERIFY(disabled.toImage() != icon.pixmap(InformationSize, ratio()).toImage());
}

void TestFineScreen::anImageOfAListKeepsItsColoursWhereItIsSelected()
{
    const QIcon icon = Look::listIcon(informationImage());
    const QPixmap selected = icon.pixmap(InformationSize, ratio(), QIcon::Selected);
    QCOMPARE(selected.toImage(), icon.pixmap(InformationSize, ratio()).toImage());
}

void TestFineScreen::othersImagesAreLeftToTheToolkit()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("picture.png"));
    QPixmap picture(29, 28);
    picture.fill(Qt::red);
    QVERIFY(picture.save(path));
    QCOMPARE(QIcon(path).pixmap(InformationSize, ratio()).size(), QSize(29, 28));
}

void TestFineScreen::anIconOfAnOddSizeHasThePixelsOfTheScreen()
{
    const QPixmap picture = Look::icon(informationImage()).pixmap(InformationSize, ratio());
    QCOMPARE(picture.size(), InformationSize * ratio());
    QCOMPARE(picture.devicePixelRatio(), ratio());
}

void TestFineScreen::theIconOfATitleBarHasThePixelsOfTheScreen()
{
    const OxTitleBar bar(nullptr, informationImage(), QString());
    const QPixmap picture = bar.findChild<QLabel*>()->pixmap();
    QCOMPARE(picture.size(), InformationSize * ratio());
    QCOMPARE(picture.devicePixelRatio(), ratio());
}

void TestFineScreen::theCloseButtonHasThePixelsOfTheScreen()
{
    const OxTitleBar small;
    const ContainerTitleBar large;
    for (const QWidget* bar :
         { static_cast<const QWidget*>(&small), static_cast<const QWidget*>(&large) }) {
        const auto* button = bar->findChild<QPushButton*>();
        const QPixmap picture = button->icon().pixmap(button->iconSize(), ratio());
        QCOMPARE(picture.size(), button->iconSize() * ratio());
        QCOMPARE(picture.devicePixelRatio(), ratio());
    }
}

void TestFineScreen::anIconIsShownInItsPlainSize()
{
    for (const QIcon& icon : { Look::icon(informationImage()), QIcon(informationImage()) }) {
        QCOMPARE(Look::shownSize(icon, { 200, 100 }, ratio()), InformationSize);
        QCOMPARE(Look::shownSize(icon, InformationSize, ratio()), InformationSize);
    }
}

void TestFineScreen::anIconWithoutATwinIsShownInItsSize()
{
    const QIcon icon(QPixmap(29, 28));
    QCOMPARE(Look::shownSize(icon, { 200, 100 }, ratio()), QSize(29, 28));
}

void TestFineScreen::anIconLargerThanItsRoomIsShownSmaller()
{
    const QIcon icon(QPixmap(60, 40));
    QCOMPARE(Look::shownSize(icon, { 30, 30 }, ratio()), QSize(30, 20));
    QCOMPARE(Look::shownSize(icon, { 200, 10 }, ratio()), QSize(15, 10));
}

void TestFineScreen::anIconThatIsDrawnInAnySizeFillsItsRoom()
{
    const QIcon icon(new SizelessEngine);
    QCOMPARE(Look::shownSize(icon, { 70, 30 }, ratio()), QSize(70, 30));
}

void TestFineScreen::noIconHasNoSize()
{
    QCOMPARE(Look::shownSize(QIcon(), { 70, 30 }, ratio()), QSize(0, 0));
}

void TestFineScreen::aFittedButtonShowsItsIconInThePlainSize()
{
    QPushButton button(magentaIcon(20), QStringLiteral("Arrows"));
    button.resize(208, 48);
    DragScrollButton::fitButtonText(&button, 5, 3);

    const QPixmap picture = button.icon().pixmap(button.iconSize(), ratio());
    QCOMPARE(picture.devicePixelRatio(), ratio());
    const QRect icon = areaOf(picture.toImage(), Qt::magenta);
    COMPARE_SIZE(icon, 20);
    QVERIFY(qAbs(icon.left() - 3 * ratio()) <= 1);
    QVERIFY(qAbs(icon.top() - 10 * ratio()) <= 1);
}

void TestFineScreen::aSwatchHasThePixelsOfTheScreen()
{
    ExpandingTabBar bar(nullptr);
    bar.setIconSize({ 30, 20 });
    bar.addTab(QStringLiteral("Pen"));
    bar.setTabColorRect(0, QStringLiteral("red"));

    const QPixmap swatch = bar.tabIcon(0).pixmap(bar.iconSize(), ratio());
    QCOMPARE(swatch.size(), QSize(30, 20) * ratio());
    QCOMPARE(swatch.devicePixelRatio(), ratio());
}

void TestFineScreen::theFrameOfASwatchIsOnePixelWide()
{
    ExpandingTabBar bar(nullptr);
    bar.setIconSize({ 30, 20 });
    bar.addTab(QStringLiteral("Pen"));
    bar.setTabColorRect(0, QStringLiteral("red"));

    const QImage swatch = bar.tabIcon(0).pixmap(bar.iconSize(), ratio()).toImage();
    const QRect filling = areaOf(swatch, Qt::red);
    const QRect whole = swatch.rect();
    for (const int side : { filling.left(), filling.top(), whole.right() - filling.right(),
                            whole.bottom() - filling.bottom() }) {
        QVERIFY2(side >= qFloor(ratio()) && side <= qCeil(ratio()),
                 qPrintable(QString::number(side)));
    }
    QCOMPARE(areaOf(swatch, Qt::black), whole);
}

void TestFineScreen::theCheckerboardOfASwatchHasThePixelsOfTheScreen()
{
    ExpandingTabBar bar(nullptr);
    bar.setIconSize({ 35, 35 });
    bar.addTab(QStringLiteral("Fill"));
    bar.setTabColorRect(0, QStringLiteral("transparent"));

    const QImage swatch = bar.tabIcon(0).pixmap(bar.iconSize(), ratio()).toImage();
    const QImage fine = Look::picture(QStringLiteral(LOOK_IMAGE_TRANSPARENCY), ratio()).toImage();
    const QRect inside = swatch.rect().adjusted(2, 2, -2, -2);
    QCOMPARE(swatch.copy(inside).convertToFormat(QImage::Format_RGB32),
             fine.copy(inside).convertToFormat(QImage::Format_RGB32));
}

void TestFineScreen::aTabShowsAnIconInItsPlainSize()
{
    ExpandingTabBar bar(nullptr);
    bar.setIconSize({ 28, 28 });
    bar.resize(300, 40);
    bar.addTab(magentaIcon(16), QStringLiteral("Pen"));
    bar.addTab(QStringLiteral("Fill"));
    bar.show();
    COMPARE_SIZE(areaOf(painted(&bar), Qt::magenta), 16);

    bar.setTabColorRect(0, QStringLiteral("magenta"));
    COMPARE_SIZE(areaOf(painted(&bar), Qt::magenta), 26); // inside of its frame
}

void TestFineScreen::rulesAreEquallyThickEverywhere()
{
    QWidget panel;
    panel.resize(200, 200);
    for (int row = 0; row < 8; ++row) {
        auto* label = new LineLabel(&panel);
        label->setLineColor(Qt::magenta);
        label->setGeometry(0, row * 21, 200, 20);
    }
    panel.show();

    const QImage image = painted(&panel);
    QList<int> thickness;
    bool inRule = false;
    for (int y = 0; y < image.height(); ++y) {
        const bool isRule = image.pixelColor(1, y) == QColor(Qt::magenta);
        if (isRule && !inRule) {
            thickness.append(0);
        }
        if (isRule) {
            ++thickness.last();
        }
        inRule = isRule;
    }
    QCOMPARE(thickness, QList<int>(8, qFloor(ratio())));
}

UW_TEST_MAIN(TestFineScreen)

#include "tst_finescreen.moc"
