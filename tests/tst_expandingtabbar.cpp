// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "expandingtabbar.h"

#include "support/test.h"

#include <QStyleOptionTab>

#include <memory>

namespace {

const QString CheckeredImage = QStringLiteral(":/Background/Background/transparentBackground.png");

std::unique_ptr<ExpandingTabBar> createBar(int width, const QStringList& texts, int current = 0)
{
    auto bar = std::make_unique<ExpandingTabBar>(nullptr);
    bar->resize(width, 40);
    for (const QString& text : texts) {
        bar->addTab(text);
    }
    bar->setCurrentIndex(current);
    bar->show();
    return bar;
}

QStringList tabs(int count)
{
    return QStringList(count, QStringLiteral("Tab"));
}

QImage swatchOf(const ExpandingTabBar& bar, int index)
{
    return bar.tabIcon(index).pixmap(bar.iconSize()).toImage();
}

/// The smallest rectangle of `image` outside of which every pixel equals that of `background`.
QRect differenceOf(const QImage& image, const QImage& background)
{
    QRect difference;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != background.pixel(x, y)) {
                difference |= QRect(x, y, 1, 1);
            }
        }
    }
    return difference;
}

/// Where the swatch of the first tab is painted.
QRect paintedSwatch(ExpandingTabBar* bar)
{
    const QImage image = bar->grab().toImage();
    QRect swatch;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = bar->tabRect(0).left(); x <= bar->tabRect(0).right(); ++x) {
            if (image.pixelColor(x, y) == QColor(Qt::magenta)) {
                swatch |= QRect(x, y, 1, 1);
            }
        }
    }
    return swatch.adjusted(-1, -1, 1, 1); // and its frame
}

} // namespace

class TestExpandingTabBar : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void hasNeitherNameNorSheet();
    void threeTabsIn301PixelsGiveTheCurrentOne101();
    void hintsShareTheWidth_data();
    void hintsShareTheWidth();
    void theTabsAreLaidOutAsHinted_data();
    void theTabsAreLaidOutAsHinted();
    void theExtraPixelFollowsTheCurrentTab();
    void theTabsFollowTheWidthOfTheBar();
    void withoutTabsTheHintIsTheFullWidth();
    void theHintHasTheHeightOfTheBaseClass();

    void aSwatchIsFilledAndFramedInBlack();
    void aSwatchHasTheIconSizeOfTheBar();
    void aSwatchTakesNamedColors();
    void transparentShowsTheCheckerboardInABlackFrame();
    void anEmptyColorRemovesTheSwatch();
    void aTextThatIsNoColorRemovesTheSwatch_data();
    void aTextThatIsNoColorRemovesTheSwatch();
    void anIndexOutOfRangeIsIgnored();

    void aSwatchWithoutTextIsCentredLessFivePixels_data();
    void aSwatchWithoutTextIsCentredLessFivePixels();
    void iconAndTextAreCentredWithAGapOfFivePixels();
    void theSwatchStandsRightOfATextFromRightToLeft();
    void aTextWithoutIconIsCentredInTheTab();
    void aTextThatFillsTheTabLeavesNoRoomForTheSwatch();
    void hiddenTabsAreNotPainted();
    void theTextOfADisabledBarIsFaint();
};

void TestExpandingTabBar::hasNeitherNameNorSheet()
{
    QWidget parent;
    const ExpandingTabBar bar(&parent);

    QCOMPARE(bar.parentWidget(), &parent);
    QCOMPARE(bar.objectName(), QString());
    QCOMPARE(bar.styleSheet(), QString());
}

void TestExpandingTabBar::threeTabsIn301PixelsGiveTheCurrentOne101()
{
    const auto bar = createBar(301, tabs(3), 1);

    QCOMPARE(bar->tabSizeHint(0).width(), 100);
    QCOMPARE(bar->tabSizeHint(1).width(), 101);
    QCOMPARE(bar->tabSizeHint(2).width(), 100);
}

void TestExpandingTabBar::hintsShareTheWidth_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("current");
    QTest::addColumn<QList<int>>("widths");

    QTest::newRow("divides evenly") << 300 << 3 << 0 << QList<int> { 100, 100, 100 };
    QTest::newRow("one pixel over") << 301 << 3 << 2 << QList<int> { 100, 100, 101 };
    QTest::newRow("two pixels over") << 302 << 3 << 0 << QList<int> { 101, 100, 100 };
    QTest::newRow("three pixels over") << 303 << 4 << 1 << QList<int> { 75, 76, 75, 75 };
    QTest::newRow("one tab") << 301 << 1 << 0 << QList<int> { 301 };
}

void TestExpandingTabBar::hintsShareTheWidth()
{
    QFETCH(const int, width);
    QFETCH(const int, count);
    QFETCH(const int, current);
    QFETCH(const QList<int>, widths);
    const auto bar = createBar(width, tabs(count), current);

    for (int i = 0; i < count; ++i) {
        QCOMPARE(bar->tabSizeHint(i).width(), widths.at(i));
    }
}

void TestExpandingTabBar::theTabsAreLaidOutAsHinted_data()
{
    hintsShareTheWidth_data();
}

void TestExpandingTabBar::theTabsAreLaidOutAsHinted()
{
    QFETCH(const int, width);
    QFETCH(const int, count);
    QFETCH(const int, current);
    QFETCH(const QList<int>, widths);
    const auto bar = createBar(width, tabs(count), current);

    int left = 0;
    for (int i = 0; i < count; ++i) {
        QCOMPARE(bar->tabRect(i).left(), left);
        QCOMPARE(bar->tabRect(i).width(), widths.at(i));
        left += widths.at(i);
    }
}

void TestExpandingTabBar::theExtraPixelFollowsTheCurrentTab()
{
    const auto bar = createBar(301, tabs(3), 0);
    QCOMPARE(bar->tabRect(0).width(), 101);

    bar->setCurrentIndex(2);

    QCOMPARE(bar->tabRect(0).width(), 100);
    QCOMPARE(bar->tabRect(2).width(), 101);
}

void TestExpandingTabBar::theTabsFollowTheWidthOfTheBar()
{
    const auto bar = createBar(300, tabs(3));

    bar->resize(600, 40);
    QTRY_COMPARE(bar->tabRect(2), QRect(400, 0, 200, bar->tabRect(2).height()));

    bar->removeTab(0);
    QTRY_COMPARE(bar->tabRect(1).width(), 300);
}

void TestExpandingTabBar::withoutTabsTheHintIsTheFullWidth()
{
    const auto bar = createBar(301, {});

    QCOMPARE(bar->tabSizeHint(0).width(), 301);
    QCOMPARE(bar->tabSizeHint(-1).width(), 301);
}

void TestExpandingTabBar::theHintHasTheHeightOfTheBaseClass()
{
    /// Gives access to the base class's hint.
    class PlainBar : public QTabBar
    {
    public:
        using QTabBar::tabSizeHint;
    };
    const auto bar = createBar(301, tabs(1));
    PlainBar plain;
    plain.addTab(tabs(1).constFirst());
    QCOMPARE(bar->tabSizeHint(0).height(), plain.tabSizeHint(0).height());

    const QSize large(60, 60);
    plain.setIconSize(large);
    bar->setIconSize(large);
    plain.setTabIcon(0, QIcon(QPixmap(large)));
    bar->setTabColorRect(0, QStringLiteral("red"));
    QCOMPARE(bar->tabSizeHint(0).height(), plain.tabSizeHint(0).height());
}

void TestExpandingTabBar::aSwatchIsFilledAndFramedInBlack()
{
    const auto bar = createBar(300, tabs(2));
    bar->setTabColorRect(1, QStringLiteral("#fd7800"));
    const QImage swatch = swatchOf(*bar, 1);

    QVERIFY(bar->tabIcon(0).isNull());
    for (int y = 0; y < swatch.height(); ++y) {
        for (int x = 0; x < swatch.width(); ++x) {
            const bool isFrame =
                x == 0 || y == 0 || x == swatch.width() - 1 || y == swatch.height() - 1;
            QCOMPARE(swatch.pixelColor(x, y),
                     isFrame ? QColor(Qt::black) : QColor(QStringLiteral("#fd7800")));
        }
    }
}

void TestExpandingTabBar::aSwatchHasTheIconSizeOfTheBar()
{
    const auto bar = createBar(300, tabs(1));
    bar->setIconSize({ 30, 20 });
    bar->setTabColorRect(0, QStringLiteral("red"));

    QCOMPARE(bar->tabIcon(0).availableSizes(), QList<QSize>({ { 30, 20 } }));
}

void TestExpandingTabBar::aSwatchTakesNamedColors()
{
    const auto bar = createBar(300, tabs(1));
    bar->setTabColorRect(0, QStringLiteral("darkblue"));

    QCOMPARE(swatchOf(*bar, 0).pixelColor(5, 5), QColor(0, 0, 0x8b));
}

void TestExpandingTabBar::transparentShowsTheCheckerboardInABlackFrame()
{
    const auto bar = createBar(300, tabs(1));
    bar->setIconSize({ 30, 20 });
    bar->setTabColorRect(0, QStringLiteral("transparent"));
    const QImage swatch = swatchOf(*bar, 0).convertToFormat(QImage::Format_RGB32);
    const QImage checkerboard = QPixmap(CheckeredImage)
                                    .scaled(30, 20, Qt::IgnoreAspectRatio, Qt::FastTransformation)
                                    .toImage()
                                    .convertToFormat(QImage::Format_RGB32);

    QCOMPARE(swatch.size(), QSize(30, 20));
    QCOMPARE(swatch.copy(1, 1, 28, 18), checkerboard.copy(1, 1, 28, 18));
    for (const QPoint& corner : { QPoint(0, 0), QPoint(29, 0), QPoint(0, 19), QPoint(29, 19) }) {
        QCOMPARE(swatch.pixelColor(corner), QColor(Qt::black));
    }
    QCOMPARE(swatch.pixelColor(15, 0), QColor(Qt::black));
    QCOMPARE(swatch.pixelColor(0, 10), QColor(Qt::black));
}

void TestExpandingTabBar::anEmptyColorRemovesTheSwatch()
{
    const auto bar = createBar(300, tabs(1));
    bar->setTabColorRect(0, QStringLiteral("red"));
    QVERIFY(!bar->tabIcon(0).isNull());

    bar->setTabColorRect(0, QString());

    QVERIFY(bar->tabIcon(0).isNull());
}

void TestExpandingTabBar::aTextThatIsNoColorRemovesTheSwatch_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("rules of a style sheet") << QStringLiteral("red; } * { background: blue");
    QTest::newRow("unknown name") << QStringLiteral("nosuchcolor");
    QTest::newRow("other letters") << QStringLiteral("\u7ea2\u8272");
}

void TestExpandingTabBar::aTextThatIsNoColorRemovesTheSwatch()
{
    QFETCH(const QString, text);
    const auto bar = createBar(300, tabs(1));
    bar->setTabColorRect(0, QStringLiteral("red"));

    bar->setTabColorRect(0, text);

    QVERIFY(bar->tabIcon(0).isNull());
}

void TestExpandingTabBar::anIndexOutOfRangeIsIgnored()
{
    const auto bar = createBar(300, tabs(1));
    bar->setTabColorRect(1, QStringLiteral("red"));
    bar->setTabColorRect(-1, QStringLiteral("red"));

    QVERIFY(bar->tabIcon(0).isNull());
}

void TestExpandingTabBar::aSwatchWithoutTextIsCentredLessFivePixels_data()
{
    QTest::addColumn<int>("width");

    // Of two neighbouring widths, one shows a gap that is a pixel off.
    QTest::newRow("even tab") << 300;
    QTest::newRow("odd tab") << 302;
}

void TestExpandingTabBar::aSwatchWithoutTextIsCentredLessFivePixels()
{
    QFETCH(const int, width);
    const auto bar = createBar(width, { QString(), QString() }, 1);
    bar->setTabColorRect(0, QStringLiteral("magenta"));
    const QRect room = bar->tabRect(0).adjusted(0, 0, -5, 0);

    QCOMPARE(bar->tabRect(0).width(), width / 2);
    QCOMPARE(paintedSwatch(bar.get()),
             QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, bar->iconSize(), room));
}

void TestExpandingTabBar::iconAndTextAreCentredWithAGapOfFivePixels()
{
    const auto bar = createBar(300, { QStringLiteral("HHH"), QStringLiteral("Pen") }, 1);
    bar->setTabColorRect(0, QStringLiteral("magenta"));
    const QRect tab = bar->tabRect(0);
    const int textWidth = bar->fontMetrics().horizontalAdvance(QStringLiteral("HHH"));

    QCOMPARE(paintedSwatch(bar.get()),
             QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, bar->iconSize(),
                                 tab.adjusted(0, 0, -(textWidth + 5), 0)));

    // The text stands in the middle of what is right of an icon at the left edge.
    const QImage image = bar->grab().toImage();
    QRect text;
    for (int x = paintedSwatch(bar.get()).right() + 1; x < tab.right() - 3; ++x) {
        if (image.pixelColor(x, tab.center().y()).lightness() < 100) {
            text |= QRect(x, 0, 1, 1);
        }
    }
    const int left = tab.left() + bar->iconSize().width() + 5;
    QVERIFY(!text.isEmpty());
    QVERIFY(qAbs(text.center().x() - (left + tab.right()) / 2) <= 2);
}

void TestExpandingTabBar::theSwatchStandsRightOfATextFromRightToLeft()
{
    const auto bar = createBar(300, { QStringLiteral("HHH"), QStringLiteral("Pen") }, 1);
    bar->setTabColorRect(0, QStringLiteral("magenta"));
    const QRect tab = bar->tabRect(0);
    const QRect swatch = paintedSwatch(bar.get());
    bar->setLayoutDirection(Qt::RightToLeft);
    const QRect mirroredTab = bar->tabRect(0);
    QCOMPARE(paintedSwatch(bar.get()).right(), mirroredTab.right() - (swatch.left() - tab.left()));
}

void TestExpandingTabBar::aTextWithoutIconIsCentredInTheTab()
{
    const auto bar = createBar(300, { QStringLiteral("HOH"), QStringLiteral("Pen") }, 1);
    const QRect tab = bar->tabRect(0);
    const QImage withText = bar->grab().toImage();
    bar->setTabText(0, QString());
    const QImage withoutText = bar->grab().toImage();

    const QRect text = differenceOf(withText, withoutText);

    QVERIFY(!text.isEmpty());
    QVERIFY(qAbs(text.center().x() - tab.center().x()) <= 2);
    QVERIFY(qAbs(text.center().y() - tab.center().y()) <= 2);
}

void TestExpandingTabBar::aTextThatFillsTheTabLeavesNoRoomForTheSwatch()
{
    const auto bar = createBar(100, { QString(40, QLatin1Char('M')), QStringLiteral("Pen") }, 1);
    bar->setTabColorRect(0, QStringLiteral("magenta"));

    QCOMPARE(bar->tabRect(0).width(), 50);
    QCOMPARE(paintedSwatch(bar.get()), QRect().adjusted(-1, -1, 1, 1)); // not a pixel
}

void TestExpandingTabBar::hiddenTabsAreNotPainted()
{
    const auto bar = createBar(300, { QStringLiteral("Pen"), QStringLiteral("Fill") });
    bar->setTabVisible(1, false);
    const QImage hidden = bar->grab().toImage();
    bar->setTabText(1, QStringLiteral("Something quite different"));
    bar->setTabColorRect(1, QStringLiteral("magenta"));

    QCOMPARE(bar->grab().toImage(), hidden);
}

void TestExpandingTabBar::theTextOfADisabledBarIsFaint()
{
    const auto bar = createBar(300, { QStringLiteral("HHH") });
    const auto darkest = [&] {
        const QImage image = bar->grab().toImage();
        int value = 255;
        for (int x = 130; x < 170; ++x) {
            value = qMin(value, image.pixelColor(x, bar->tabRect(0).center().y()).lightness());
        }
        return value;
    };
    const int enabled = darkest();

    bar->setEnabled(false);

    QVERIFY(darkest() > enabled + 60);
}

UW_TEST_MAIN(TestExpandingTabBar)

#include "tst_expandingtabbar.moc"
