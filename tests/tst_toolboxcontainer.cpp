// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "toolboxcontainer.h"

#include "support/finger.h"
#include "support/test.h"
#include "toolbox.h"

#include <QGridLayout>
#include <QImage>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>

namespace {

constexpr QSize BoxSize(200, 300);

/// A container of 200 x 300 that is shown; `content` is the height of what is in it.
std::unique_ptr<ToolBoxContainer> createShown(int content)
{
    auto container = std::make_unique<ToolBoxContainer>();
    container->initialize(BoxSize, QPoint());
    auto* panel = new QWidget;
    panel->setFixedHeight(content);
    container->addPropertiesWidget(panel);
    container->resize(BoxSize);
    container->show();
    return container;
}

QScrollBar* barOf(const ToolBoxContainer& container)
{
    return container.getToolBox()->verticalScrollBar();
}

QPushButton* above(const ToolBoxContainer& container)
{
    const auto buttons =
        container.findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly);
    return buttons.value(0);
}

QPushButton* below(const ToolBoxContainer& container)
{
    const auto buttons =
        container.findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly);
    return buttons.value(1);
}

} // namespace

class TestToolBoxContainer : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedWithTheSuffixWidget();
    void isHarmlessBeforeItIsInitialized();
    void isBuiltOnceOnly();
    void aColumnWidthBuildsItOnce();
    void aPanelOfAFormBuildsItAsWideAsItself();
    void aPanelOfAFormWithoutALayoutIsNotLost();
    void theSpacingIsKeptForTheToolBoxToCome();
    void buttonsAreVisibleForTheirPropertiesInAHiddenContainer();
    void theToolBoxHasNoBarsNoFrameAndASingleStepOf35();
    void theButtonsRepeatAreAsWideAsTheBoxAnd35High();
    void theButtonsAreNamedForAccessibility();
    void allThreeShareOneCellOfAGridWithoutMarginsAndSpacing();
    void theStyleSheetsAreExact();
    void theButtonsLieOverTheToolBoxesEnds();
    void theColumnsFrameIsDrawnInTheDarkerOrange();

    void forwardsToTheToolBox();
    void contentThatFitsHidesBothButtons();
    void atTheTopTheAboveButtonIsHidden();
    void oneStepDownShowsTheAboveButton();
    void theButtonsAppearByTable_data();
    void theButtonsAppearByTable();
    void theAboveButtonJumpsToTheTopWithin70Pixels_data();
    void theAboveButtonJumpsToTheTopWithin70Pixels();
    void theBelowButtonJumpsToTheEndWithin70Pixels_data();
    void theBelowButtonJumpsToTheEndWithin70Pixels();
    void scrollingAfterAJumpShowsTheButtonAgain();
    void aRangeShorterThanTheJumpLeavesTheOtherButtonAsItWas();
    void aHeldButtonScrollsRepeatedly();
    void growingContentShowsTheBelowButton();
    void contentThatGrowsByItselfShowsTheBelowButton();
    void panelsAddedJustBeforeAResizeShowTheBelowButton();
    void resizingAndMovingDecideAnew();
    void aButtonCanBeShownAndHiddenByHand();
    void aWidgetIsBroughtIntoViewWith50PixelsAround();

    void determiningRunsPendingEvents();
    void determiningDoesNotEnterItself();
    void survivesAHandlerThatDeletesItWhileDetermining();
    void noHandlerRunsInsideResizing();
};

void TestToolBoxContainer::isNamedWithTheSuffixWidget()
{
    ToolBoxContainer container;
    QCOMPARE(container.objectName(), QStringLiteral("ToolBoxContainerWidget"));
    container.initialize(BoxSize, QPoint());
    QCOMPARE(container.objectName(), QStringLiteral("ToolBoxContainerWidget"));
    QCOMPARE(container.getToolBox()->widget()->objectName(), QStringLiteral("ToolBoxWidget"));
}

void TestToolBoxContainer::isHarmlessBeforeItIsInitialized()
{
    ToolBoxContainer container;
    QWidget panel;
    container.addPropertiesWidget(&panel);
    container.insertSpacerItem();
    container.clearLayout(nullptr);
    container.setLayoutSpacing(1);
    container.setAboveButtonVisible(true);
    container.setBelowButtonVisible(true);
    container.ensureVisibleWidget(&panel);
    container.setToolBoxVerticalScrollValue(7);
    container.onAboveButtonClicked();
    container.onBelowButtonClicked();
    container.onSliderValueChanged(3);
    container.show();
    container.resize(50, 50);
    container.move(1, 1);
    container.determineButtonVisibility();
    QCOMPARE(container.getToolBox(), nullptr);
    QCOMPARE(container.getToolBoxVerticalScrollValue(), 0);
    QVERIFY(container.children().isEmpty());
}

void TestToolBoxContainer::isBuiltOnceOnly()
{
    ToolBoxContainer container;
    container.initialize(BoxSize, QPoint());
    const ToolBox* box = container.getToolBox();
    container.initialize(QSize(10, 10), QPoint());
    QCOMPARE(container.getToolBox(), box);
    QCOMPARE(box->maximumWidth(), BoxSize.width());
}

void TestToolBoxContainer::aColumnWidthBuildsItOnce()
{
    ToolBoxContainer container;
    container.setColumnWidth(0);
    container.setColumnWidth(-5);
    QVERIFY(container.getToolBox() == nullptr);
    container.setColumnWidth(180);
    QCOMPARE(container.columnWidth(), 180);
    QCOMPARE(container.getToolBox()->width(), 180);
    container.setColumnWidth(400);
    QCOMPARE(container.columnWidth(), 180);
}

void TestToolBoxContainer::aPanelOfAFormBuildsItAsWideAsItself()
{
    ToolBoxContainer container;
    container.addPanel(nullptr);
    QVERIFY(container.getToolBox() == nullptr);
    auto* panel = new QPushButton(QStringLiteral("A panel"));
    container.addPanel(panel);
    QCOMPARE(container.columnWidth(), panel->sizeHint().width());
    auto* wider = new QPushButton(QStringLiteral("A panel that is wider than the first one"));
    container.addPanel(wider);
    QCOMPARE(container.columnWidth(), panel->sizeHint().width());
    const QLayout* column = container.getToolBox()->widget()->layout();
    QCOMPARE(column->indexOf(panel), 0);
    QCOMPARE(column->indexOf(wider), 1);
}

void TestToolBoxContainer::aPanelOfAFormWithoutALayoutIsNotLost()
{
    ToolBoxContainer withMinimum;
    auto* fixed = new QWidget;
    fixed->setMinimumWidth(150);
    withMinimum.addPanel(fixed);
    QCOMPARE(withMinimum.columnWidth(), 150);

    ToolBoxContainer container;
    container.resize(210, 300);
    auto* panel = new QWidget;
    container.addPanel(panel);
    QCOMPARE(container.columnWidth(), 210);
    QCOMPARE(container.getToolBox()->widget()->layout()->indexOf(panel), 0);
}

void TestToolBoxContainer::theSpacingIsKeptForTheToolBoxToCome()
{
    ToolBoxContainer container;
    QCOMPARE(container.layoutSpacing(), 5);
    container.setLayoutSpacing(12);
    QCOMPARE(container.layoutSpacing(), 12);
    container.initialize(BoxSize, QPoint());
    QCOMPARE(container.layoutSpacing(), 12);
    QCOMPARE(container.getToolBox()->layoutSpacing(), 12);
    container.getToolBox()->setLayoutSpacing(3);
    QCOMPARE(container.layoutSpacing(), 3);
}

void TestToolBoxContainer::buttonsAreVisibleForTheirPropertiesInAHiddenContainer()
{
    ToolBoxContainer container;
    QVERIFY(!container.isAboveButtonVisible());
    QVERIFY(!container.isBelowButtonVisible());
    container.initialize(BoxSize, QPoint());
    container.setAboveButtonVisible(true);
    container.setBelowButtonVisible(false);
    QVERIFY(container.isAboveButtonVisible());
    QVERIFY(!container.isBelowButtonVisible());
}

void TestToolBoxContainer::theToolBoxHasNoBarsNoFrameAndASingleStepOf35()
{
    ToolBoxContainer container;
    container.initialize(BoxSize, QPoint());
    const ToolBox* box = container.getToolBox();
    QCOMPARE(box->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(box->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QVERIFY(box->widgetResizable());
    QCOMPARE(box->frameShape(), QFrame::NoFrame);
    QCOMPARE(box->verticalScrollBar()->singleStep(), 35);
    QVERIFY(box->verticalScrollBar()->hasTracking());
    QCOMPARE(box->maximumWidth(), 200);
}

void TestToolBoxContainer::theButtonsRepeatAreAsWideAsTheBoxAnd35High()
{
    ToolBoxContainer container;
    container.initialize(BoxSize, QPoint());
    for (const QPushButton* button : { above(container), below(container) }) {
        QVERIFY(button->autoRepeat());
        QCOMPARE(button->minimumSize(), QSize(200, 35));
        QCOMPARE(button->maximumSize(), QSize(200, 35));
        QVERIFY(!button->icon().pixmap(16).isNull());
    }
    const auto picture = [](const char* path) {
        return QIcon(QString::fromLatin1(path)).pixmap(16).toImage();
    };
    QCOMPARE(above(container)->icon().pixmap(16).toImage(),
             picture(":/module_icons/ModuleIcons/edit-arrow-up.png"));
    QCOMPARE(below(container)->icon().pixmap(16).toImage(),
             picture(":/module_icons/ModuleIcons/edit-arrow-down.png"));
}

void TestToolBoxContainer::theButtonsAreNamedForAccessibility()
{
    ToolBoxContainer container;
    container.initialize(BoxSize, QPoint());
    QCOMPARE(above(container)->accessibleName(), QStringLiteral("Scroll up"));
    QCOMPARE(below(container)->accessibleName(), QStringLiteral("Scroll down"));
}

void TestToolBoxContainer::allThreeShareOneCellOfAGridWithoutMarginsAndSpacing()
{
    ToolBoxContainer container;
    container.initialize(BoxSize, QPoint());
    const auto* grid = qobject_cast<QGridLayout*>(container.layout());
    QVERIFY(grid != nullptr);
    QCOMPARE(grid->contentsMargins(), QMargins());
    QCOMPARE(grid->spacing(), 0);
    QCOMPARE(grid->count(), 3);
    const Qt::Alignment alignments[] {
        Qt::AlignHCenter,
        Qt::AlignHCenter | Qt::AlignTop,
        Qt::AlignHCenter | Qt::AlignBottom,
    };
    for (int i = 0; i < 3; ++i) {
        int row = -1;
        int column = -1;
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(i, &row, &column, &rows, &columns);
        QCOMPARE(QRect(column, row, columns, rows), QRect(0, 0, 1, 1));
        QCOMPARE(grid->itemAt(i)->alignment(), alignments[i]);
    }
}

void TestToolBoxContainer::theStyleSheetsAreExact()
{
    ToolBoxContainer container;
    container.initialize(BoxSize, QPoint());
    QCOMPARE(container.styleSheet(),
             QStringLiteral("QWidget#ToolBoxWidget { background-color: #f2f2f2;\n"
                            "border-top: 1px solid #f37800;\n"
                            "border-left: 1px solid #f37800;\n"
                            "border-bottom: 1px solid #f37800;\n"
                            "border-right: none; }\n"));
    const QString button = QStringLiteral("background-color: #f37800;\nborder: none;\n");
    QCOMPARE(above(container)->styleSheet(), button);
    QCOMPARE(below(container)->styleSheet(), button);
}

void TestToolBoxContainer::theButtonsLieOverTheToolBoxesEnds()
{
    const auto container = createShown(1000);
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    container->setToolBoxVerticalScrollValue(300);
    QCOMPARE(container->getToolBox()->geometry(), QRect(0, 0, 200, 300));
    QCOMPARE(above(*container)->geometry(), QRect(0, 0, 200, 35));
    QCOMPARE(below(*container)->geometry(), QRect(0, 265, 200, 35));
    QCOMPARE(container->childAt(100, 10), above(*container));
    QCOMPARE(container->childAt(100, 290), below(*container));
}

void TestToolBoxContainer::theColumnsFrameIsDrawnInTheDarkerOrange()
{
    const auto container = createShown(100);
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    const QImage picture = container->grab().toImage();
    const QColor orange(0xf3, 0x78, 0x00);
    const QColor grey(0xf2, 0xf2, 0xf2);
    QCOMPARE(picture.pixelColor(0, 150), orange);
    QCOMPARE(picture.pixelColor(100, 0), orange);
    QCOMPARE(picture.pixelColor(100, 299), orange);
    QCOMPARE(picture.pixelColor(199, 150), grey);
    QCOMPARE(picture.pixelColor(100, 150), grey);
}

void TestToolBoxContainer::forwardsToTheToolBox()
{
    ToolBoxContainer container;
    container.initialize(BoxSize, QPoint());
    QLayout* column = container.getToolBox()->widget()->layout();
    auto* panel = new QWidget;
    container.addPropertiesWidget(panel);
    container.insertSpacerItem();
    container.setLayoutSpacing(9);
    QCOMPARE(column->indexOf(panel), 0);
    QCOMPARE(column->count(), 2);
    QCOMPARE(column->spacing(), 9);
    container.clearLayout(column);
    QCOMPARE(column->count(), 0);
}

void TestToolBoxContainer::contentThatFitsHidesBothButtons()
{
    const auto container = createShown(100);
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    QCOMPARE(barOf(*container)->maximum(), 0);
    QVERIFY(!above(*container)->isVisible());
    QVERIFY(!below(*container)->isVisible());
}

void TestToolBoxContainer::atTheTopTheAboveButtonIsHidden()
{
    const auto container = createShown(1000);
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    QCOMPARE(barOf(*container)->maximum(), 700);
    QVERIFY(!above(*container)->isVisible());
    QVERIFY(below(*container)->isVisible());
}

void TestToolBoxContainer::oneStepDownShowsTheAboveButton()
{
    const auto container = createShown(1000);
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    Finger().tap(below(*container));
    QCOMPARE(container->getToolBoxVerticalScrollValue(), 35);
    QVERIFY(above(*container)->isVisible());
}

void TestToolBoxContainer::theButtonsAppearByTable_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("aboveVisible");
    QTest::addColumn<bool>("belowVisible");

    // The range is 0 to 700.
    QTest::newRow("top") << 0 << false << true;
    QTest::newRow("34 down") << 34 << false << true;
    QTest::newRow("35 down") << 35 << true << true;
    QTest::newRow("middle") << 350 << true << true;
    QTest::newRow("35 before the end") << 665 << true << true;
    QTest::newRow("34 before the end") << 666 << true << false;
    QTest::newRow("end") << 700 << true << false;
}

void TestToolBoxContainer::theButtonsAppearByTable()
{
    QFETCH(int, value);
    QFETCH(bool, aboveVisible);
    QFETCH(bool, belowVisible);
    const auto container = createShown(1000);
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    container->setToolBoxVerticalScrollValue(value);
    QCOMPARE(container->getToolBoxVerticalScrollValue(), value);
    QCOMPARE(above(*container)->isVisible(), aboveVisible);
    QCOMPARE(below(*container)->isVisible(), belowVisible);
}

void TestToolBoxContainer::theAboveButtonJumpsToTheTopWithin70Pixels_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<bool>("visible");

    QTest::newRow("71 pixels: one step") << 71 << 36 << true;
    QTest::newRow("70 pixels: jump") << 70 << 0 << false;
    QTest::newRow("36 pixels: jump") << 36 << 0 << false;
}

void TestToolBoxContainer::theAboveButtonJumpsToTheTopWithin70Pixels()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(bool, visible);
    const auto container = createShown(1000);
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    container->setToolBoxVerticalScrollValue(from);
    Finger().tap(above(*container));
    QCOMPARE(container->getToolBoxVerticalScrollValue(), to);
    QCOMPARE(above(*container)->isVisible(), visible);
}

void TestToolBoxContainer::theBelowButtonJumpsToTheEndWithin70Pixels_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<bool>("visible");

    QTest::newRow("71 pixels: one step") << 629 << 664 << true;
    QTest::newRow("70 pixels: jump") << 630 << 700 << false;
    QTest::newRow("36 pixels: jump") << 664 << 700 << false;
}

void TestToolBoxContainer::theBelowButtonJumpsToTheEndWithin70Pixels()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(bool, visible);
    const auto container = createShown(1000);
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    container->setToolBoxVerticalScrollValue(from);
    Finger().tap(below(*container));
    QCOMPARE(container->getToolBoxVerticalScrollValue(), to);
    QCOMPARE(below(*container)->isVisible(), visible);
}

void TestToolBoxContainer::scrollingAfterAJumpShowsTheButtonAgain()
{
    const auto container = createShown(1000);
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    container->setToolBoxVerticalScrollValue(60);
    container->onAboveButtonClicked();
    container->setToolBoxVerticalScrollValue(60);
    QVERIFY(above(*container)->isVisible());
}

void TestToolBoxContainer::aRangeShorterThanTheJumpLeavesTheOtherButtonAsItWas()
{
    const auto container = createShown(350); // a range of 50
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    QVERIFY(below(*container)->isVisible());
    QVERIFY(!above(*container)->isVisible());
    Finger().tap(below(*container));
    QCOMPARE(container->getToolBoxVerticalScrollValue(), 50);
    QVERIFY(!below(*container)->isVisible());
    QVERIFY(!above(*container)->isVisible());

    container->setToolBoxVerticalScrollValue(40);
    QVERIFY(above(*container)->isVisible());
    QVERIFY(!below(*container)->isVisible());
    Finger().tap(above(*container));
    QCOMPARE(container->getToolBoxVerticalScrollValue(), 0);
    QVERIFY(!above(*container)->isVisible());
    QVERIFY(!below(*container)->isVisible());
}

void TestToolBoxContainer::aHeldButtonScrollsRepeatedly()
{
    const auto container = createShown(1000);
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    Finger finger;
    finger.press(below(*container));
    QTRY_VERIFY(container->getToolBoxVerticalScrollValue() >= 4 * 35);
    finger.release();
    QCOMPARE(container->getToolBoxVerticalScrollValue() % 35, 0);
}

void TestToolBoxContainer::growingContentShowsTheBelowButton()
{
    const auto container = createShown(100);
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    auto* panel = new QWidget;
    panel->setFixedHeight(1000);
    container->addPropertiesWidget(panel);
    container->determineButtonVisibility();
    QVERIFY(barOf(*container)->maximum() > 0);
    QVERIFY(below(*container)->isVisible());
}

void TestToolBoxContainer::contentThatGrowsByItselfShowsTheBelowButton()
{
    const auto container = createShown(100);
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    auto* panel = new QWidget;
    panel->setFixedHeight(10);
    container->addPropertiesWidget(panel);
    container->determineButtonVisibility();
    QVERIFY(!below(*container)->isVisible());
    panel->setFixedHeight(1000); // a panel that unfolds
    QTRY_VERIFY(below(*container)->isVisible());
    panel->setFixedHeight(10);
    QTRY_VERIFY(!below(*container)->isVisible());
}

void TestToolBoxContainer::panelsAddedJustBeforeAResizeShowTheBelowButton()
{
    const auto container = createShown(100);
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    auto* panel = new QWidget;
    panel->setFixedHeight(1000);
    container->addPropertiesWidget(panel);
    container->resize(container->size() + QSize(0, 10));
    QTRY_VERIFY(below(*container)->isVisible());
}

void TestToolBoxContainer::resizingAndMovingDecideAnew()
{
    const auto container = createShown(500);
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    container->setBelowButtonVisible(false);
    container->move(container->pos() + QPoint(5, 5));
    QTRY_VERIFY(below(*container)->isVisible());
    container->setBelowButtonVisible(false);
    container->resize(200, 310);
    QTRY_VERIFY(below(*container)->isVisible());
    container->resize(200, 600);
    QTRY_VERIFY(!below(*container)->isVisible());
}

void TestToolBoxContainer::aButtonCanBeShownAndHiddenByHand()
{
    const auto container = createShown(100);
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    container->setAboveButtonVisible(true);
    container->setBelowButtonVisible(true);
    QVERIFY(above(*container)->isVisible());
    QVERIFY(below(*container)->isVisible());
    container->setAboveButtonVisible(false);
    container->setBelowButtonVisible(false);
    QVERIFY(!above(*container)->isVisible());
    QVERIFY(!below(*container)->isVisible());
}

void TestToolBoxContainer::aWidgetIsBroughtIntoViewWith50PixelsAround()
{
    const auto container = createShown(600);
    auto* target = new QWidget;
    target->setFixedHeight(40);
    container->addPropertiesWidget(target);
    auto* rest = new QWidget;
    rest->setFixedHeight(600);
    container->addPropertiesWidget(rest);
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    container->determineButtonVisibility();

    container->ensureVisibleWidget(target);

    const int bottom = target->geometry().bottom() + 1;
    QCOMPARE(container->getToolBoxVerticalScrollValue(), bottom + 50 - 300);
    container->ensureVisibleWidget(nullptr);
    QCOMPARE(container->getToolBoxVerticalScrollValue(), bottom + 50 - 300);
}

void TestToolBoxContainer::determiningRunsPendingEvents()
{
    const auto container = createShown(100);
    bool ran = false;
    QTimer::singleShot(0, this, [&ran] { ran = true; });
    container->determineButtonVisibility();
    QVERIFY(ran);
}

void TestToolBoxContainer::determiningDoesNotEnterItself()
{
    const auto container = createShown(1000);
    int depth = 0;
    int deepest = 0;
    QTimer again;
    connect(&again, &QTimer::timeout, this, [&] {
        deepest = qMax(deepest, ++depth);
        container->determineButtonVisibility();
        --depth;
    });
    again.start(0);
    container->determineButtonVisibility();
    QCOMPARE(deepest, 1);
    QVERIFY(below(*container)->isVisible());
}

void TestToolBoxContainer::survivesAHandlerThatDeletesItWhileDetermining()
{
    auto container = createShown(1000);
    QTimer::singleShot(0, this, [&container] { container.reset(); });
    container->determineButtonVisibility();
    QVERIFY(container == nullptr);
}

void TestToolBoxContainer::noHandlerRunsInsideResizing()
{
    // Qt goes on using a widget when its resizing, moving or showing has been handled, so nobody
    // may get the chance to delete it there.
    auto container = createShown(1000);
    QVERIFY(QTest::qWaitForWindowExposed(container.get()));
    QTimer::singleShot(0, this, [&container] { container.reset(); });
    container->resize(250, 280);
    container->move(container->pos() + QPoint(9, 9));
    container->hide();
    container->show();
    container->setToolBoxVerticalScrollValue(100);
    QVERIFY(container != nullptr);
    QTRY_VERIFY(container == nullptr);
}

UW_TEST_MAIN(TestToolBoxContainer)

#include "tst_toolboxcontainer.moc"
