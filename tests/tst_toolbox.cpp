// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "toolbox.h"

#include "support/finger.h"
#include "support/modaldialog.h"
#include "support/test.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWindow>

namespace {

constexpr QSize BoxSize(200, 300);

/// A panel of a fixed height.
QWidget* createPanel(int height)
{
    auto* panel = new QWidget;
    panel->setFixedHeight(height);
    return panel;
}

QVBoxLayout* columnOf(const ToolBox& box)
{
    return qobject_cast<QVBoxLayout*>(box.widget()->layout());
}

} // namespace

class TestToolBox : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterItsClass();
    void hasNoColumnBeforeItIsInitialized();
    void isAsWideAsItsSizeAndOfAnyHeight();
    void theColumnIsAVerticalBoxWithSpacingFiveAndNoMargins();
    void theColumnIsAsWideAsTheSize();
    void initializingAgainStartsAnewWithAnEmptyColumn();
    void panelsAreAppendedAtTheTopOfTheirShareWithStretchOne();
    void aNullPanelIsIgnored();
    void aSpacerOf10By500ExpandsBothWays();
    void panelsAndSpacersKeepTheirOrder();
    void theSpacingCanBeChanged();

    void clearingDeletesWidgetsSpacersAndNestedLayouts();
    void clearingNullDoesNothing();
    void panelsCanBeAddedAfterTheColumnWasCleared();
    void aPanelThatClearsTheColumnByItsButtonSurvivesTheTap();

    void aDragScrollsFromTheFirstPixel();
    void aDragFollowsTheFingerBothWaysAndStopsAtTheEnds();
    void aMoveWithoutAPressScrollsNothing();
    void aSecondPressDoesNotMoveTheDragsOrigin();
    void aDragThatStartsOnAPanelScrolls();
    void aDragEndsWhenTheBoxIsDisabled();
    void aDragEndsWhenADialogComesUp();
};

void TestToolBox::isNamedAfterItsClass()
{
    QCOMPARE(ToolBox().objectName(), QStringLiteral("ToolBox"));
}

void TestToolBox::hasNoColumnBeforeItIsInitialized()
{
    ToolBox box;
    const std::unique_ptr<QWidget> panel(createPanel(10));
    box.addPropertiesWidget(panel.get());
    box.insertSpacerItem();
    box.setLayoutSpacing(3);
    QCOMPARE(box.widget(), nullptr);
    QCOMPARE(panel->parentWidget(), nullptr);
}

void TestToolBox::isAsWideAsItsSizeAndOfAnyHeight()
{
    ToolBox box;
    box.initialize(BoxSize, QPoint(3, 4));
    QCOMPARE(box.minimumWidth(), BoxSize.width());
    QCOMPARE(box.maximumWidth(), BoxSize.width());
    QCOMPARE(box.minimumHeight(), 0);
    QCOMPARE(box.maximumHeight(), QWIDGETSIZE_MAX);
}

void TestToolBox::theColumnIsAVerticalBoxWithSpacingFiveAndNoMargins()
{
    ToolBox box;
    box.initialize(BoxSize, QPoint());
    QVERIFY(columnOf(box) != nullptr);
    QCOMPARE(columnOf(box)->spacing(), 5);
    QCOMPARE(columnOf(box)->contentsMargins(), QMargins());
    QCOMPARE(columnOf(box)->count(), 0);
}

void TestToolBox::theColumnIsAsWideAsTheSize()
{
    ToolBox box;
    box.initialize(BoxSize, QPoint());
    QCOMPARE(box.widget()->minimumWidth(), BoxSize.width());
    QCOMPARE(box.widget()->maximumWidth(), BoxSize.width());
}

void TestToolBox::initializingAgainStartsAnewWithAnEmptyColumn()
{
    ToolBox box;
    box.initialize(BoxSize, QPoint());
    const QPointer<QWidget> panel = createPanel(10);
    box.addPropertiesWidget(panel);
    box.initialize(QSize(100, 100), QPoint());
    QVERIFY(panel.isNull());
    QCOMPARE(columnOf(box)->count(), 0);
    QCOMPARE(box.maximumWidth(), 100);
    box.addPropertiesWidget(createPanel(10));
    QCOMPARE(columnOf(box)->count(), 1);
}

void TestToolBox::panelsAreAppendedAtTheTopOfTheirShareWithStretchOne()
{
    ToolBox box;
    box.initialize(BoxSize, QPoint());
    QWidget* panel = createPanel(10);
    box.addPropertiesWidget(panel);
    QCOMPARE(columnOf(box)->itemAt(0)->widget(), panel);
    QCOMPARE(columnOf(box)->itemAt(0)->alignment(), Qt::AlignTop);
    QCOMPARE(columnOf(box)->stretch(0), 1);
    QCOMPARE(panel->parentWidget(), box.widget());
}

void TestToolBox::aNullPanelIsIgnored()
{
    ToolBox box;
    box.initialize(BoxSize, QPoint());
    box.addPropertiesWidget(nullptr);
    QCOMPARE(columnOf(box)->count(), 0);
}

void TestToolBox::aSpacerOf10By500ExpandsBothWays()
{
    ToolBox box;
    box.initialize(BoxSize, QPoint());
    box.insertSpacerItem();
    const QSpacerItem* spacer = columnOf(box)->itemAt(0)->spacerItem();
    QVERIFY(spacer != nullptr);
    QCOMPARE(spacer->sizeHint(), QSize(10, 500));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
}

void TestToolBox::panelsAndSpacersKeepTheirOrder()
{
    ToolBox box;
    box.initialize(BoxSize, QPoint());
    QWidget* first = createPanel(10);
    QWidget* last = createPanel(10);
    box.addPropertiesWidget(first);
    box.insertSpacerItem();
    box.addPropertiesWidget(last);
    QCOMPARE(columnOf(box)->indexOf(first), 0);
    QVERIFY(columnOf(box)->itemAt(1)->spacerItem() != nullptr);
    QCOMPARE(columnOf(box)->indexOf(last), 2);
}

void TestToolBox::theSpacingCanBeChanged()
{
    ToolBox box;
    box.initialize(BoxSize, QPoint());
    box.setLayoutSpacing(17);
    QCOMPARE(columnOf(box)->spacing(), 17);
}

void TestToolBox::clearingDeletesWidgetsSpacersAndNestedLayouts()
{
    ToolBox box;
    box.initialize(BoxSize, QPoint());
    const QPointer<QWidget> panel = createPanel(10);
    box.addPropertiesWidget(panel);
    box.insertSpacerItem();
    const QPointer<QLayout> nested = new QHBoxLayout;
    const QPointer<QLayout> nestedDeeper = new QHBoxLayout;
    const QPointer<QWidget> label = new QLabel;
    columnOf(box)->addLayout(qobject_cast<QHBoxLayout*>(nested));
    qobject_cast<QHBoxLayout*>(nested)->addLayout(qobject_cast<QHBoxLayout*>(nestedDeeper));
    nestedDeeper->addWidget(label);

    box.clearLayout(columnOf(box));

    QCOMPARE(columnOf(box)->count(), 0);
    QVERIFY(panel.isNull());
    QVERIFY(nested.isNull());
    QVERIFY(nestedDeeper.isNull());
    QVERIFY(label.isNull());
}

void TestToolBox::clearingNullDoesNothing()
{
    ToolBox box;
    box.initialize(BoxSize, QPoint());
    box.addPropertiesWidget(createPanel(10));
    box.clearLayout(nullptr);
    QCOMPARE(columnOf(box)->count(), 1);
}

void TestToolBox::panelsCanBeAddedAfterTheColumnWasCleared()
{
    ToolBox box;
    box.initialize(BoxSize, QPoint());
    for (int i = 0; i < 3; ++i) {
        box.addPropertiesWidget(createPanel(10));
    }
    box.clearLayout(columnOf(box));
    QWidget* first = createPanel(10);
    QWidget* second = createPanel(10);
    box.addPropertiesWidget(first);
    box.addPropertiesWidget(second);
    QCOMPARE(columnOf(box)->indexOf(first), 0);
    QCOMPARE(columnOf(box)->indexOf(second), 1);
}

void TestToolBox::aPanelThatClearsTheColumnByItsButtonSurvivesTheTap()
{
    ToolBox box;
    box.initialize(BoxSize, QPoint());
    box.setWidgetResizable(true);
    const QPointer<QPushButton> button = new QPushButton(QStringLiteral("Remove"));
    box.addPropertiesWidget(button);
    connect(button, &QPushButton::clicked, &box, [&box] { box.clearLayout(columnOf(box)); });
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    Finger().tap(button);
    QVERIFY(button.isNull());
}

namespace {

/// A tool box of 200 x 300 that is shown and has 1,000 pixels of content.
class LongToolBox : public ToolBox
{
public:
    LongToolBox()
    {
        initialize(BoxSize, QPoint());
        setWidgetResizable(true);
        addPropertiesWidget(createPanel(1000));
        resize(BoxSize);
        show();
    }

    int position() const { return verticalScrollBar()->sliderPosition(); }
};

} // namespace

void TestToolBox::aDragScrollsFromTheFirstPixel()
{
    LongToolBox box;
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    Finger finger;
    finger.press(box.viewport());
    finger.moveBy(QPoint(0, -1));
    QCOMPARE(box.position(), 1);
    finger.moveBy(QPoint(0, -20));
    QCOMPARE(box.position(), 21);
    finger.release();
    QCOMPARE(box.position(), 21);
}

void TestToolBox::aDragFollowsTheFingerBothWaysAndStopsAtTheEnds()
{
    LongToolBox box;
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    Finger finger;
    finger.press(box.viewport());
    finger.moveBy(QPoint(0, -50));
    finger.moveBy(QPoint(0, 30));
    QCOMPARE(box.position(), 20);
    finger.moveBy(QPoint(0, 100));
    QCOMPARE(box.position(), 0);
    finger.moveBy(QPoint(0, -10));
    QCOMPARE(box.position(), 10);
    finger.release();
}

void TestToolBox::aMoveWithoutAPressScrollsNothing()
{
    LongToolBox box;
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    Finger finger;
    finger.press(box.viewport());
    finger.release();
    finger.moveBy(QPoint(0, -40));
    QCOMPARE(box.position(), 0);
}

void TestToolBox::aSecondPressDoesNotMoveTheDragsOrigin()
{
    LongToolBox box;
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QWindow* window = box.windowHandle();
    QTest::mousePress(window, Qt::LeftButton, {}, QPoint(50, 200));
    QTest::mousePress(window, Qt::RightButton, {}, QPoint(50, 100));
    QTest::mouseMove(window, QPoint(50, 190));
    QCOMPARE(box.position(), 10);
    QTest::mouseRelease(window, Qt::RightButton, {}, QPoint(50, 190));
    QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(50, 190));
}

void TestToolBox::aDragThatStartsOnAPanelScrolls()
{
    LongToolBox box;
    auto* label = new QLabel(QStringLiteral("A panel"));
    label->setFixedHeight(100);
    box.addPropertiesWidget(label);
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.verticalScrollBar()->setValue(box.verticalScrollBar()->maximum());
    QTRY_VERIFY(box.position() > 700);
    const int before = box.position();
    Finger finger;
    finger.press(label);
    finger.moveBy(QPoint(0, 25));
    QCOMPARE(box.position(), before - 25);
    finger.release();
}

// A finger that the box never sees lifted must not make its next drag jump.

void TestToolBox::aDragEndsWhenTheBoxIsDisabled()
{
    LongToolBox box;
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    Finger finger;
    finger.press(box.viewport());
    finger.moveBy(QPoint(0, -50));
    box.setEnabled(false);
    finger.release();
    box.setEnabled(true);

    finger.press(box.viewport());
    finger.moveBy(QPoint(0, -3));
    finger.release();
    QCOMPARE(box.position(), 53);
}

void TestToolBox::aDragEndsWhenADialogComesUp()
{
    LongToolBox box;
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    Finger finger;
    finger.press(box.viewport());
    finger.moveBy(QPoint(0, -50));
    QDialog warning(&box);
    whileModal<QDialog>([&] { warning.exec(); },
                        [](QDialog* dialog) {
                            Finger onTheDialog;
                            onTheDialog.tap(dialog);
                            dialog->accept();
                        });

    finger.press(box.viewport());
    finger.moveBy(QPoint(0, -3));
    finger.release();
    QCOMPARE(box.position(), 53);
}

UW_TEST_MAIN(TestToolBox)

#include "tst_toolbox.moc"
