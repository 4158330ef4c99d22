// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxslider.h"

#include "support/finger.h"
#include "support/paintcounter.h"
#include "support/test.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QStyleOptionSlider>

#include <limits>
#include <memory>

namespace {

constexpr int Minimum = std::numeric_limits<int>::min();
constexpr int Maximum = std::numeric_limits<int>::max();

/// A style whose slider has a handle of `extent` pixels along the groove and 16 across, and paints
/// nothing: what is left in a picture are the slider's own ticks.
class BareStyle : public QProxyStyle
{
public:
    explicit BareStyle(int extent)
        : QProxyStyle(QStringLiteral("Fusion"))
        , m_extent(extent)
    { }

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                         SubControl subControl, const QWidget* widget) const override
    {
        const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
        if (control != CC_Slider || subControl != SC_SliderHandle || slider == nullptr) {
            return QProxyStyle::subControlRect(control, option, subControl, widget);
        }
        const bool horizontal = slider->orientation == Qt::Horizontal;
        const int span = (horizontal ? slider->rect.width() : slider->rect.height()) - m_extent;
        const int position = sliderPositionFromValue(
            slider->minimum, slider->maximum, slider->sliderPosition, span, slider->upsideDown);
        return horizontal ? QRect(position, 4, m_extent, 16) : QRect(4, position, 16, m_extent);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* /*painter*/, const QWidget* /*widget*/) const override
    {
        QCOMPARE(control, CC_Slider);
        m_drawn = option->subControls;
        m_active = option->activeSubControls;
        m_sunken = (option->state & State_Sunken) != 0;
    }

    SubControls drawn() const { return m_drawn; }
    SubControls active() const { return m_active; }
    bool isSunken() const { return m_sunken; }

private:
    int m_extent;
    mutable SubControls m_drawn;
    mutable SubControls m_active;
    mutable bool m_sunken = false;
};

std::unique_ptr<QStyle> createStyle(const QString& name)
{
    if (name.startsWith(QStringLiteral("bare "))) {
        return std::make_unique<BareStyle>(name.mid(5).toInt());
    }
    return std::unique_ptr<QStyle>(QStyleFactory::create(name));
}

QRect handleRect(const QSlider& slider)
{
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.orientation = slider.orientation();
    option.minimum = slider.minimum();
    option.maximum = slider.maximum();
    option.sliderPosition = slider.sliderPosition();
    option.sliderValue = slider.value();
    option.tickPosition = slider.tickPosition();
    option.tickInterval = slider.tickInterval();
    option.upsideDown = slider.orientation() == Qt::Horizontal ? slider.invertedAppearance()
                                                               : !slider.invertedAppearance();
    return slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle,
                                          &slider);
}

/// The value of a tap, in whole numbers throughout: everything is counted in half pixels.
int expectedValue(qint64 along, qint64 length, qint64 extent, qint64 minimum, qint64 maximum,
                  bool inverted)
{
    const qint64 half = extent + 1;
    const qint64 end = 2 * length - half;
    const qint64 position = qBound(half, 2 * along, end);
    const qint64 divisor = end - half;
    const qint64 offset = (2 * (maximum - minimum) * (position - half) + divisor) / (2 * divisor);
    const qint64 value = minimum + offset;
    return int(qBound(minimum, inverted ? maximum - value : value, maximum));
}

/// What the slider paints, on white.
QImage picture(OxSlider& slider)
{
    QImage image(slider.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    slider.render(&image, {}, {}, {});
    return image;
}

QImage blank(const OxSlider& slider)
{
    QImage image(slider.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

struct Number
{
    QPoint point;
    QString text;
};

/// A picture with the given lines and numbers and nothing else.
QImage drawing(const OxSlider& slider, const QList<QLine>& lines, const QList<Number>& numbers = {})
{
    QImage image = blank(slider);
    QPainter painter(&image);
    painter.setFont(slider.font());
    painter.setPen(QPen(QColor(QStringLiteral("#a5a294")), 6));
    painter.drawLines(lines);
    for (const Number& number : numbers) {
        painter.drawText(number.point, number.text);
    }
    return image;
}

/// Vertical lines at the given columns, from row `from` to row `to`.
QList<QLine> ticks(const QList<int>& columns, int from, int to)
{
    QList<QLine> lines;
    for (const int x : columns) {
        lines.append(QLine(x, from, x, to));
    }
    return lines;
}

/// 220 x 80, 0 to 100 in steps of 25: with a handle of 20 the ticks stand at 9, 59, 109, 159, 209.
struct TickedSlider
{
    explicit TickedSlider(QSlider::TickPosition position = QSlider::TicksBelow, int extent = 20)
        : style(extent)
        , slider(Qt::Horizontal)
    {
        slider.setStyle(&style);
        slider.resize(220, 80);
        slider.setRange(0, 100);
        slider.setTickInterval(25);
        slider.setTickPosition(position);
    }

    BareStyle style;
    OxSlider slider;
};

} // namespace

class TestOxSlider : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterItsClass();
    void takesParentAndOrientation();
    void valuesOfTheModesAreFixed();
    void handleValueStartsAtZero();
    void tapSetsTheValueAtThatPoint_data();
    void tapSetsTheValueAtThatPoint();
    void tapMovesTheHandleThereAlsoFromRightToLeft();
    void everyTapFollowsTheFormula_data();
    void everyTapFollowsTheFormula();
    void tapLeftOfTheUsableStartSetsTheMinimum();
    void tapBeyondTheUsableEndSetsTheMaximum();
    void invertedTapSubtractsFromTheMaximum_data();
    void invertedTapSubtractsFromTheMaximum();
    void tapNeitherPagesNorDrags();
    void tapOnTheHandleStartsANormalDrag();
    void otherButtonsAreLeftToTheBase_data();
    void otherButtonsAreLeftToTheBase();
    void everyReleaseIsReportedOnceTheBaseHasHandledIt();
    void ticksStandWhereTheirValuesAre_data();
    void ticksStandWhereTheirValuesAre();
    void ticksHaveTheirRowsAndTheirColour();
    void ticksDependOnTheHandlesWidth();
    void ticksOfAVerticalSliderUseItsWidth();
    void pageStepServesAsInterval();
    void withoutAnyStepThereAreNoTicks();
    void withoutTickPositionThereAreNoTicks();
    void disabledSliderShowsNoTicks();
    void allTextNumbersEveryTick_data();
    void allTextNumbersEveryTick();
    void numbersOfTicksAboveAreNotSeen();
    void handleTextNumbersTheTickUnderTheHandle_data();
    void handleTextNumbersTheTickUnderTheHandle();
    void handleValueChangesOnlyWhenTheHandleStandsOnATick();
    void handleValueIsTheLastTickWithAllText();
    void noTextLeavesTheHandleValue();
    void settingTheModeCausesNoRepaint();
    void styleDrawsGrooveAndHandleOnly_data();
    void styleDrawsGrooveAndHandleOnly();
    void handleLiesOverTheTicks();
    void handleLooksPressedDuringADrag();
    void emptyRangeHasOneTickAndOneValue();
    void sliderShorterThanItsHandleTakesTheMinimum();
    void widestRangeTapsAndPaints();
    void moreTicksThanPixelsPaintAtOnce();
};

void TestOxSlider::isNamedAfterItsClass()
{
    QCOMPARE(OxSlider().objectName(), QStringLiteral("OxSlider"));
    QCOMPARE(OxSlider(Qt::Horizontal).objectName(), QStringLiteral("OxSlider"));
}

void TestOxSlider::takesParentAndOrientation()
{
    QWidget parent;
    const auto* plain = new OxSlider(&parent);
    QCOMPARE(plain->parentWidget(), &parent);
    QCOMPARE(plain->orientation(), Qt::Vertical);
    const auto* horizontal = new OxSlider(Qt::Horizontal, &parent);
    QCOMPARE(horizontal->parentWidget(), &parent);
    QCOMPARE(horizontal->orientation(), Qt::Horizontal);
}

void TestOxSlider::valuesOfTheModesAreFixed()
{
    QCOMPARE(int(OxSlider::NoText), 0);
    QCOMPARE(int(OxSlider::HandleText), 1);
    QCOMPARE(int(OxSlider::AllText), 2);
}

void TestOxSlider::handleValueStartsAtZero()
{
    OxSlider slider;
    slider.setRange(5, 10);
    QCOMPARE(slider.sliderHandleValue(), 0);
}

void TestOxSlider::tapSetsTheValueAtThatPoint_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("handle");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("at"); // x, or y of a vertical slider
    QTest::addColumn<int>("value");

    const auto row = [](const char* name, Qt::Orientation orientation, int handle, int length,
                        int minimum, int maximum, int at, int value) {
        QTest::newRow(name) << orientation << handle << length << minimum << maximum << at << value;
    };
    // Handle 20: the usable groove runs from 10.5 to 209.5. Handle 11 in 112: from 6 to 106.
    row("middle", Qt::Horizontal, 20, 220, 0, 100, 110, 50);
    row("rounded down to the start", Qt::Horizontal, 20, 220, 0, 100, 11, 0);
    row("rounded up from the start", Qt::Horizontal, 20, 220, 0, 100, 12, 1);
    row("half a step away from zero", Qt::Horizontal, 20, 220, 0, 199, 11, 1);
    row("half a step below the end", Qt::Horizontal, 20, 220, 0, 199, 209, 199);
    row("odd handle, first usable pixel", Qt::Horizontal, 11, 112, 0, 100, 6, 0);
    row("odd handle, a pixel further", Qt::Horizontal, 11, 112, 0, 100, 7, 1);
    row("odd handle, last usable pixel", Qt::Horizontal, 11, 112, 0, 100, 106, 100);
    row("negative minimum", Qt::Horizontal, 20, 220, -50, 50, 110, 0);
    row("positive minimum", Qt::Horizontal, 20, 220, 10, 30, 60, 15);
    row("vertical, middle", Qt::Vertical, 20, 220, 0, 100, 110, 50);
    row("vertical, low", Qt::Vertical, 20, 220, 0, 100, 208, 1);
    row("vertical, bottom is the minimum", Qt::Vertical, 20, 220, 0, 100, 219, 0);
    row("vertical, top is the maximum", Qt::Vertical, 20, 220, 0, 100, 0, 100);
}

void TestOxSlider::tapSetsTheValueAtThatPoint()
{
    QFETCH(const Qt::Orientation, orientation);
    QFETCH(const int, handle);
    QFETCH(const int, length);
    QFETCH(const int, minimum);
    QFETCH(const int, maximum);
    QFETCH(const int, at);

    BareStyle style(handle);
    OxSlider slider(orientation);
    slider.setStyle(&style);
    slider.setRange(minimum, maximum);
    const bool horizontal = orientation == Qt::Horizontal;
    slider.resize(horizontal ? QSize(length, 60) : QSize(60, length));
    // Beside the handle, wherever that is.
    QTest::mousePress(&slider, Qt::LeftButton, {}, horizontal ? QPoint(at, 50) : QPoint(50, at));
    QTEST(slider.value(), "value");
}

void TestOxSlider::everyTapFollowsTheFormula_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<bool>("inverted");
    for (const char* style : { "Fusion", "Windows", "bare 20", "bare 11", "bare 1" }) {
        for (const auto orientation : { Qt::Horizontal, Qt::Vertical }) {
            for (const bool inverted : { false, true }) {
                QTest::addRow("%s, %s%s", style,
                              orientation == Qt::Horizontal ? "horizontal" : "vertical",
                              inverted ? ", inverted" : "")
                    << QString::fromLatin1(style) << orientation << inverted;
            }
        }
    }
}

void TestOxSlider::everyTapFollowsTheFormula()
{
    QFETCH(const QString, style);
    QFETCH(const Qt::Orientation, orientation);
    QFETCH(const bool, inverted);
    const std::unique_ptr<QStyle> owner = createStyle(style);
    QVERIFY(owner != nullptr);
    const bool horizontal = orientation == Qt::Horizontal;

    OxSlider slider(orientation);
    slider.setStyle(owner.get());
    slider.setInvertedAppearance(inverted);
    int taps = 0;
    for (const int length : { 41, 100, 220 }) {
        slider.resize(horizontal ? QSize(length, 60) : QSize(60, length));
        for (const auto& [minimum, maximum] :
             { std::pair(0, 100), std::pair(0, 7), std::pair(-50, 50), std::pair(10, 30),
               std::pair(0, 100000), std::pair(5, 5) }) {
            slider.setRange(minimum, maximum);
            const QSize handle = handleRect(slider).size();
            const int extent = horizontal ? handle.width() : handle.height();
            for (int at = 0; at < length; ++at) {
                const QPoint position = horizontal ? QPoint(at, 1) : QPoint(1, at);
                // The handle must not be in the way, wherever the last tap has put it.
                slider.setValue(minimum);
                if (handleRect(slider).contains(position)) {
                    slider.setValue(maximum);
                }
                if (handleRect(slider).contains(position)) {
                    continue;
                }
                QTest::mousePress(&slider, Qt::LeftButton, {}, position);
                const int expected = expectedValue(horizontal ? at : length - at, length, extent,
                                                   minimum, maximum, inverted);
                QCOMPARE(slider.value(), expected);
                ++taps;
            }
        }
    }
    // All, but for what of the empty range's groove its handle can't leave.
    const int pixels = 6 * (41 + 100 + 220);
    QVERIFY2(taps > pixels - 3 * 20, qPrintable(QString::number(taps)));
}

void TestOxSlider::tapMovesTheHandleThereAlsoFromRightToLeft()
{
    QWidget window;
    window.setLayoutDirection(Qt::RightToLeft);
    auto* slider = new OxSlider(Qt::Horizontal, &window);
    slider->setGeometry(0, 0, 300, 40);
    const QPoint tap(60, 20);
    QTest::mousePress(slider, Qt::LeftButton, {}, tap);
    QVERIFY(slider->value() < 25);
    QVERIFY(handleRect(*slider).contains(tap.x(), handleRect(*slider).center().y()));
}

void TestOxSlider::tapLeftOfTheUsableStartSetsTheMinimum()
{
    TickedSlider ticked;
    ticked.slider.setRange(-7, 100);
    for (const int x : { 0, 5, 10 }) {
        ticked.slider.setValue(60);
        QTest::mousePress(&ticked.slider, Qt::LeftButton, {}, QPoint(x, 10));
        QCOMPARE(ticked.slider.value(), -7);
    }
}

void TestOxSlider::tapBeyondTheUsableEndSetsTheMaximum()
{
    TickedSlider ticked;
    for (const int x : { 210, 215, 219 }) {
        ticked.slider.setValue(40);
        QTest::mousePress(&ticked.slider, Qt::LeftButton, {}, QPoint(x, 10));
        QCOMPARE(ticked.slider.value(), 100);
    }
}

void TestOxSlider::invertedTapSubtractsFromTheMaximum_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("value");
    QTest::newRow("minimum 0 gives the mirror value") << 0 << 100 << 12 << 99;
    QTest::newRow("minimum 0, start") << 0 << 100 << 0 << 100;
    QTest::newRow("minimum 0, end") << 0 << 100 << 219 << 0;
    // The mirror value of 15 would be 25.
    QTest::newRow("minimum 10") << 10 << 30 << 60 << 15;
    QTest::newRow("minimum 10, start") << 10 << 30 << 0 << 20;
    QTest::newRow("minimum 10, below the range") << 10 << 30 << 219 << 10;
    QTest::newRow("minimum -50") << -50 << 50 << 200 << 5;
    QTest::newRow("minimum -50, above the range") << -50 << 50 << 12 << 50;
}

void TestOxSlider::invertedTapSubtractsFromTheMaximum()
{
    QFETCH(const int, minimum);
    QFETCH(const int, maximum);
    QFETCH(const int, x);
    TickedSlider ticked;
    ticked.slider.setInvertedAppearance(true);
    ticked.slider.setRange(minimum, maximum);
    QTest::mousePress(&ticked.slider, Qt::LeftButton, {}, QPoint(x, 50));
    QTEST(ticked.slider.value(), "value");
}

void TestOxSlider::tapNeitherPagesNorDrags()
{
    TickedSlider ticked;
    OxSlider& slider = ticked.slider;
    QSignalSpy pressed(&slider, &OxSlider::sliderPressed);
    QSignalSpy action(&slider, &OxSlider::actionTriggered);
    QSignalSpy changed(&slider, &OxSlider::valueChanged);

    QMouseEvent press(QEvent::MouseButtonPress, QPointF(150, 10), QPointF(150, 10), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    press.ignore();
    QCoreApplication::sendEvent(&slider, &press);
    QVERIFY(press.isAccepted());
    QVERIFY(!slider.isSliderDown());
    QTest::mouseMove(&slider, QPoint(30, 10));

    QCOMPARE(slider.value(), 70);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(pressed.count(), 0);
    QCOMPARE(action.count(), 0);
}

void TestOxSlider::tapOnTheHandleStartsANormalDrag()
{
    TickedSlider ticked;
    OxSlider& slider = ticked.slider;
    slider.setValue(50);
    slider.show();
    QVERIFY(QTest::qWaitForWindowExposed(&slider));
    QSignalSpy pressed(&slider, &OxSlider::sliderPressed);
    QSignalSpy moved(&slider, &OxSlider::sliderMoved);

    // Not on the handle's centre: a tap on the groove there would change the value.
    const QPoint grip = handleRect(slider).topLeft() + QPoint(2, 2);
    Finger finger;
    finger.press(&slider, grip);
    QVERIFY(slider.isSliderDown());
    QCOMPARE(slider.value(), 50);
    QCOMPARE(pressed.count(), 1);

    finger.moveBy(QPoint(40, 0));
    QCOMPARE(slider.value(), 70);
    QCOMPARE(moved.count(), 1);
    finger.release();
    QVERIFY(!slider.isSliderDown());
    QCOMPARE(slider.value(), 70);
}

void TestOxSlider::otherButtonsAreLeftToTheBase_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void TestOxSlider::otherButtonsAreLeftToTheBase()
{
    QFETCH(const Qt::MouseButton, button);
    BareStyle style(20);
    OxSlider slider(Qt::Horizontal);
    QSlider base(Qt::Horizontal);
    for (QSlider* each : { static_cast<QSlider*>(&slider), &base }) {
        each->setStyle(&style);
        each->resize(220, 60);
        each->setRange(0, 100);
        QTest::mousePress(each, button, {}, QPoint(12, 10));
        QTest::mouseRelease(each, button, {}, QPoint(12, 10));
        QTest::mousePress(each, button, {}, QPoint(150, 50));
    }
    QCOMPARE(slider.value(), base.value());
    QCOMPARE(slider.isSliderDown(), base.isSliderDown());
}

void TestOxSlider::everyReleaseIsReportedOnceTheBaseHasHandledIt()
{
    TickedSlider ticked;
    OxSlider& slider = ticked.slider;
    slider.setValue(50);
    QStringList order;
    connect(&slider, &OxSlider::sliderReleased, this,
            [&order] { order.append(QStringLiteral("base")); });
    connect(&slider, &OxSlider::mouseWasReleasedSignal, this,
            [&order] { order.append(QStringLiteral("reported")); });

    const QPoint onHandle = handleRect(slider).center();
    QTest::mouseClick(&slider, Qt::LeftButton, {}, onHandle);
    QCOMPARE(order, (QStringList { QStringLiteral("base"), QStringLiteral("reported") }));

    QSignalSpy released(&slider, &OxSlider::mouseWasReleasedSignal);
    QTest::mouseClick(&slider, Qt::LeftButton, {}, QPoint(5, 50));
    QTest::mouseClick(&slider, Qt::RightButton, {}, QPoint(5, 50));
    QTest::mouseClick(&slider, Qt::MiddleButton, {}, QPoint(5, 50));
    QCOMPARE(released.count(), 3);
}

void TestOxSlider::ticksStandWhereTheirValuesAre_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("interval");
    QTest::addColumn<QList<int>>("columns");
    QTest::newRow("from 0") << 220 << 0 << 100 << 25 << QList<int> { 9, 59, 109, 159, 209 };
    QTest::newRow("from another minimum")
        << 220 << -50 << 50 << 25 << QList<int> { 9, 59, 109, 159, 209 };
    QTest::newRow("interval that does not divide the range")
        << 220 << 0 << 100 << 40 << QList<int> { 9, 89, 169 };
    QTest::newRow("interval beyond the range") << 220 << 0 << 100 << 101 << QList<int> { 9 };
    QTest::newRow("rounded") << 221 << 0 << 3 << 1 << QList<int> { 9, 76, 143, 210 };
    QTest::newRow("half a pixel, away from zero")
        << 221 << 0 << 2 << 1 << QList<int> { 9, 110, 210 };
}

void TestOxSlider::ticksStandWhereTheirValuesAre()
{
    QFETCH(const int, width);
    QFETCH(const int, minimum);
    QFETCH(const int, maximum);
    QFETCH(const int, interval);
    QFETCH(const QList<int>, columns);
    TickedSlider ticked;
    ticked.slider.resize(width, 80);
    ticked.slider.setRange(minimum, maximum);
    ticked.slider.setTickInterval(interval);
    QCOMPARE(picture(ticked.slider), drawing(ticked.slider, ticks(columns, 61, 54)));
}

void TestOxSlider::ticksHaveTheirRowsAndTheirColour()
{
    const QList<int> columns { 9, 59, 109, 159, 209 };
    {
        TickedSlider below(QSlider::TicksBelow);
        QCOMPARE(picture(below.slider), drawing(below.slider, ticks(columns, 61, 54)));
        // Six pixels wide, and three longer at each end for the square cap of the pen.
        const QImage image = picture(below.slider);
        const QRgb tick = QColor(QStringLiteral("#a5a294")).rgb();
        for (const QPoint inside : { QPoint(106, 58), QPoint(111, 58), QPoint(109, 51) }) {
            QCOMPARE(image.pixel(inside), tick);
        }
        for (const QPoint outside : { QPoint(105, 58), QPoint(112, 58), QPoint(109, 50) }) {
            QCOMPARE(image.pixelColor(outside), QColor(Qt::white));
        }
    }
    TickedSlider above(QSlider::TicksAbove);
    QCOMPARE(picture(above.slider), drawing(above.slider, ticks(columns, 17, 25)));
    TickedSlider both(QSlider::TicksBothSides);
    QCOMPARE(picture(both.slider),
             drawing(both.slider, ticks(columns, 61, 54) + ticks(columns, 17, 25)));
}

void TestOxSlider::ticksDependOnTheHandlesWidth()
{
    // Half of 11 is 5.5: columns 5.5 - 1 and 5.5 + 209 - 1, rounded away from zero.
    TickedSlider odd(QSlider::TicksBelow, 11);
    odd.slider.setTickInterval(100);
    QCOMPARE(picture(odd.slider), drawing(odd.slider, ticks({ 5, 214 }, 61, 54)));
    TickedSlider wide(QSlider::TicksBelow, 60);
    wide.slider.setTickInterval(100);
    QCOMPARE(picture(wide.slider), drawing(wide.slider, ticks({ 29, 189 }, 61, 54)));
}

void TestOxSlider::ticksOfAVerticalSliderUseItsWidth()
{
    TickedSlider ticked;
    ticked.slider.setOrientation(Qt::Vertical);
    ticked.slider.resize(60, 220);
    ticked.slider.setTickInterval(50);
    // The handle is 16 wide: 8 + 0, 22 and 44, minus 1.
    QCOMPARE(picture(ticked.slider), drawing(ticked.slider, ticks({ 7, 29, 51 }, 201, 194)));
}

void TestOxSlider::pageStepServesAsInterval()
{
    TickedSlider ticked;
    ticked.slider.setTickInterval(0);
    ticked.slider.setPageStep(50);
    QCOMPARE(picture(ticked.slider), drawing(ticked.slider, ticks({ 9, 109, 209 }, 61, 54)));
}

void TestOxSlider::withoutAnyStepThereAreNoTicks()
{
    TickedSlider ticked;
    ticked.slider.setShowText(OxSlider::AllText);
    ticked.slider.setTickInterval(0);
    ticked.slider.setPageStep(0);
    QCOMPARE(picture(ticked.slider), blank(ticked.slider));
}

void TestOxSlider::withoutTickPositionThereAreNoTicks()
{
    TickedSlider ticked(QSlider::NoTicks);
    ticked.slider.setShowText(OxSlider::AllText);
    QCOMPARE(picture(ticked.slider), blank(ticked.slider));
    QCOMPARE(ticked.slider.sliderHandleValue(), 0);
}

void TestOxSlider::disabledSliderShowsNoTicks()
{
    TickedSlider ticked(QSlider::TicksBothSides);
    ticked.slider.setShowText(OxSlider::AllText);
    QVERIFY(picture(ticked.slider) != blank(ticked.slider));
    ticked.slider.setEnabled(false);
    QCOMPARE(picture(ticked.slider), blank(ticked.slider));
}

void TestOxSlider::allTextNumbersEveryTick_data()
{
    QTest::addColumn<QSlider::TickPosition>("position");
    QTest::newRow("below") << QSlider::TicksBelow;
    QTest::newRow("both sides") << QSlider::TicksBothSides;
}

void TestOxSlider::allTextNumbersEveryTick()
{
    QFETCH(const QSlider::TickPosition, position);
    TickedSlider ticked(position);
    ticked.slider.setRange(-50, 50);
    ticked.slider.setTickInterval(50);
    QList<QLine> lines = ticks({ 9, 109, 209 }, 61, 54);
    if (position == QSlider::TicksBothSides) {
        lines += ticks({ 9, 109, 209 }, 17, 25);
    }
    const QImage without = picture(ticked.slider);
    ticked.slider.setShowText(OxSlider::AllText);
    const QImage with = picture(ticked.slider);
    QVERIFY(with != without);
    // Four pixels left of the tick, and eight at the maximum.
    QCOMPARE(with,
             drawing(ticked.slider, lines,
                     { { QPoint(5, 79), QStringLiteral("-50") },
                       { QPoint(105, 79), QStringLiteral("0") },
                       { QPoint(201, 79), QStringLiteral("50") } }));
}

void TestOxSlider::numbersOfTicksAboveAreNotSeen()
{
    TickedSlider ticked(QSlider::TicksAbove);
    const QImage without = picture(ticked.slider);
    ticked.slider.setShowText(OxSlider::AllText);
    QCOMPARE(picture(ticked.slider), without);
    // They count as drawn all the same.
    QCOMPARE(ticked.slider.sliderHandleValue(), 100);
}

void TestOxSlider::handleTextNumbersTheTickUnderTheHandle_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("interval");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QPoint>("point");
    // The handle's left edge is at twice the value; its centre counts over the whole width, so it
    // reads (2 * value + 10) * 100 / 220, which is the value itself in the middle only.
    QTest::newRow("middle") << 0 << 100 << 25 << 50 << QStringLiteral("50") << QPoint(105, 79);
    QTest::newRow("rounded up to a tick")
        << 0 << 100 << 25 << 22 << QStringLiteral("25") << QPoint(55, 79);
    QTest::newRow("rounded down to a tick")
        << 0 << 100 << 25 << 23 << QStringLiteral("25") << QPoint(55, 79);
    QTest::newRow("between ticks") << 0 << 100 << 25 << 20 << QString() << QPoint();
    QTest::newRow("at the tick's own value") << 0 << 100 << 25 << 25 << QString() << QPoint();
    QTest::newRow("at the minimum, a tick near it")
        << 0 << 100 << 5 << 0 << QStringLiteral("5") << QPoint(15, 79);
    QTest::newRow("at the maximum") << 0 << 100 << 25 << 100 << QString() << QPoint();
    QTest::newRow("coarse range, at the maximum")
        << 0 << 10 << 5 << 10 << QStringLiteral("10") << QPoint(201, 79);
    QTest::newRow("from another minimum")
        << 10 << 110 << 25 << 60 << QStringLiteral("60") << QPoint(105, 79);
}

void TestOxSlider::handleTextNumbersTheTickUnderTheHandle()
{
    QFETCH(const int, minimum);
    QFETCH(const int, maximum);
    QFETCH(const int, interval);
    QFETCH(const int, value);
    QFETCH(const QString, number);
    QFETCH(const QPoint, point);
    TickedSlider ticked;
    ticked.slider.setRange(minimum, maximum);
    ticked.slider.setTickInterval(interval);
    ticked.slider.setValue(value);
    ticked.slider.setShowText(OxSlider::HandleText);

    QList<int> columns;
    for (int at = 0; at <= maximum - minimum; at += interval) {
        columns.append(9 + 200 * at / (maximum - minimum));
    }
    const QList<Number> numbers =
        number.isEmpty() ? QList<Number>() : QList<Number> { { point, number } };
    QCOMPARE(picture(ticked.slider), drawing(ticked.slider, ticks(columns, 61, 54), numbers));
    QCOMPARE(ticked.slider.sliderHandleValue(), number.toInt());
}

void TestOxSlider::handleValueChangesOnlyWhenTheHandleStandsOnATick()
{
    TickedSlider ticked;
    ticked.slider.setShowText(OxSlider::HandleText);
    const auto handleValueAt = [&ticked](int value) {
        ticked.slider.setValue(value);
        picture(ticked.slider);
        return ticked.slider.sliderHandleValue();
    };
    QCOMPARE(handleValueAt(30), 0);
    QCOMPARE(handleValueAt(50), 50);
    QCOMPARE(handleValueAt(60), 50);
    QCOMPARE(handleValueAt(70), 50);
    QCOMPARE(handleValueAt(78), 75);
    QCOMPARE(handleValueAt(90), 75);
}

void TestOxSlider::handleValueIsTheLastTickWithAllText()
{
    TickedSlider ticked;
    ticked.slider.setTickInterval(40);
    ticked.slider.setShowText(OxSlider::AllText);
    QCOMPARE(ticked.slider.sliderHandleValue(), 0);
    picture(ticked.slider);
    QCOMPARE(ticked.slider.sliderHandleValue(), 80);
}

void TestOxSlider::noTextLeavesTheHandleValue()
{
    TickedSlider ticked;
    ticked.slider.setValue(50);
    picture(ticked.slider);
    QCOMPARE(ticked.slider.sliderHandleValue(), 0);
}

void TestOxSlider::settingTheModeCausesNoRepaint()
{
    TickedSlider ticked;
    ticked.slider.show();
    QVERIFY(QTest::qWaitForWindowExposed(&ticked.slider));
    QCoreApplication::processEvents();
    const PaintCounter paints(&ticked.slider);
    ticked.slider.setShowText(OxSlider::AllText);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCOMPARE(paints.count(), 0);
    // The mode is there at the next repaint, whatever causes it.
    ticked.slider.update();
    QTRY_VERIFY(paints.count() > 0);
    QCOMPARE(ticked.slider.sliderHandleValue(), 100);
}

void TestOxSlider::styleDrawsGrooveAndHandleOnly_data()
{
    QTest::addColumn<QSlider::TickPosition>("position");
    QTest::newRow("no ticks") << QSlider::NoTicks;
    QTest::newRow("below") << QSlider::TicksBelow;
    QTest::newRow("above") << QSlider::TicksAbove;
    QTest::newRow("both sides") << QSlider::TicksBothSides;
}

void TestOxSlider::styleDrawsGrooveAndHandleOnly()
{
    QFETCH(const QSlider::TickPosition, position);
    TickedSlider ticked(position);
    for (const bool enabled : { true, false }) {
        ticked.slider.setEnabled(enabled);
        picture(ticked.slider);
        QCOMPARE(ticked.style.drawn(), QStyle::SC_SliderGroove | QStyle::SC_SliderHandle);
        QCOMPARE(ticked.style.active(), QStyle::SubControls(QStyle::SC_None));
    }
}

void TestOxSlider::handleLiesOverTheTicks()
{
    // So low that the ticks reach the handle of a real style.
    OxSlider slider(Qt::Horizontal);
    slider.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    slider.style()->setParent(&slider);
    slider.resize(220, 40);
    slider.setRange(0, 2);
    slider.setValue(1);
    slider.setTickInterval(1);
    const QPoint center = handleRect(slider).center();
    const QRgb without = picture(slider).pixel(center);
    slider.setTickPosition(QSlider::TicksBelow);
    const QImage image = picture(slider);
    const QRect handle = handleRect(slider);
    QVERIFY(QRect(106, 11, 6, 14).contains(handle.center()));
    QCOMPARE(image.pixel(handle.center()), without);
    QVERIFY(image.pixel(handle.center()) != QColor(QStringLiteral("#a5a294")).rgb());
}

void TestOxSlider::handleLooksPressedDuringADrag()
{
    TickedSlider ticked;
    picture(ticked.slider);
    QVERIFY(!ticked.style.isSunken());
    QTest::mousePress(&ticked.slider, Qt::LeftButton, {}, handleRect(ticked.slider).center());
    picture(ticked.slider);
    QVERIFY(ticked.style.isSunken());
    QCOMPARE(ticked.style.active(), QStyle::SubControls(QStyle::SC_SliderHandle));
}

void TestOxSlider::emptyRangeHasOneTickAndOneValue()
{
    for (const bool inverted : { false, true }) {
        TickedSlider ticked;
        ticked.slider.setInvertedAppearance(inverted);
        ticked.slider.setRange(7, 7);
        ticked.slider.setShowText(OxSlider::HandleText);
        QTest::mousePress(&ticked.slider, Qt::LeftButton, {}, QPoint(150, 50));
        QCOMPARE(ticked.slider.value(), 7);
        QCOMPARE(picture(ticked.slider),
                 drawing(ticked.slider, ticks({ 9 }, 61, 54),
                         { { QPoint(1, 79), QStringLiteral("7") } }));
    }
}

void TestOxSlider::sliderShorterThanItsHandleTakesTheMinimum()
{
    for (const int width : { 1, 12, 20, 21 }) { // 21 leaves a usable groove of no length at all
        TickedSlider ticked;
        ticked.slider.resize(width, 80);
        ticked.slider.setValue(60);
        QTest::mousePress(&ticked.slider, Qt::LeftButton, {}, QPoint(width - 1, 50));
        QCOMPARE(ticked.slider.value(), 0);
        ticked.slider.setInvertedAppearance(true);
        QTest::mousePress(&ticked.slider, Qt::LeftButton, {}, QPoint(width - 1, 50));
        QCOMPARE(ticked.slider.value(), 100);
        QVERIFY(picture(ticked.slider) != blank(ticked.slider));
    }
}

void TestOxSlider::widestRangeTapsAndPaints()
{
    TickedSlider ticked;
    OxSlider& slider = ticked.slider;
    slider.setRange(Minimum, Maximum);
    slider.setTickInterval(1 << 30);
    slider.setShowText(OxSlider::AllText);
    QTest::mousePress(&slider, Qt::LeftButton, {}, QPoint(110, 50));
    QCOMPARE(slider.value(), 0);
    QTest::mousePress(&slider, Qt::LeftButton, {}, QPoint(219, 50));
    QCOMPARE(slider.value(), Maximum);
    QTest::mousePress(&slider, Qt::LeftButton, {}, QPoint(0, 50));
    QCOMPARE(slider.value(), Minimum);
    slider.setInvertedAppearance(true);
    QTest::mousePress(&slider, Qt::LeftButton, {}, QPoint(0, 50));
    QCOMPARE(slider.value(), Maximum);

    slider.setShowText(OxSlider::NoText);
    QCOMPARE(picture(slider), drawing(slider, ticks({ 9, 59, 109, 159 }, 61, 54)));
}

void TestOxSlider::moreTicksThanPixelsPaintAtOnce()
{
    QList<int> columns;
    for (int x = 9; x <= 209; ++x) {
        columns.append(x);
    }
    TickedSlider ticked;
    OxSlider& slider = ticked.slider;
    slider.setTickInterval(1);
    for (const int maximum : { 300, 1100, Maximum }) {
        slider.setRange(0, maximum);
        QCOMPARE(picture(slider), drawing(slider, ticks(columns, 61, 54)));
    }

    // The tick under the handle is among those that are painted, and so is the last one.
    slider.setRange(0, 1100);
    slider.setShowText(OxSlider::HandleText);
    for (const int value : { 331, 332, 333, 334, 335, 336 }) {
        slider.setValue(value);
        const int centre = handleRect(slider).left() + 10;
        picture(slider);
        QCOMPARE(slider.sliderHandleValue(), 5 * centre);
    }
    slider.setRange(Minimum, Maximum);
    slider.setShowText(OxSlider::AllText);
    picture(slider);
    QCOMPARE(slider.sliderHandleValue(), Maximum);
}

UW_TEST_MAIN(TestOxSlider)

#include "tst_oxslider.moc"
