// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxcollapsiblewidgetcontainer.h"

#include "applicationfont.h"
#include "dragscrollbutton.h"
#include "linelabel.h"
#include "support/finger.h"
#include "support/test.h"

#include <QGridLayout>
#include <QLabel>
#include <QSignalSpy>

namespace {

QString title()
{
    return QStringLiteral("Protection");
}

DragScrollButton* buttonOf(const OxCollapsibleWidgetContainer& section)
{
    return static_cast<DragScrollButton*>(section.findChild<QPushButton*>());
}

QRect cellOf(const OxCollapsibleWidgetContainer& section, QWidget* widget)
{
    const auto* grid = qobject_cast<QGridLayout*>(section.layout());
    const int index = grid->indexOf(widget);
    if (index < 0) {
        return {};
    }
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(index, &row, &column, &rows, &columns);
    return { column, row, columns, rows };
}

} // namespace

class TestOxCollapsibleWidgetContainer : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterItsClass();
    void theTitleIsALineLabelInTheBoldWidgetFont();
    void theButtonIsCheckableUncheckedAnd35Square();
    void theButtonsSheetIsExact();
    void theButtonShowsAnotherPictureInEachState();
    void theGridIsExact();
    void theContentIsVisibleUntilTheFirstToggle();
    void theButtonShowsAndHidesTheContent_data();
    void theButtonShowsAndHidesTheContent();
    void togglingTwiceReturnsReplacedContentToItsFirstVisibility();
    void aTapTogglesAndADragDoesNot();
    void expandingItIsLikeATapOnTheButton();
    void withoutContentThereIsOnlyTheButtonRow();
    void contentGivenLaterIsHidden();
    void contentGivenWhileTheButtonIsCheckedStaysVisible();
    void replacedContentLeavesTheLayoutAndLives();
    void contentMayDieWhileContained();
    void canBeMadeWithAParentAlone();
    void theTitleCanBeChanged();
    void theButtonHasAnAccessibleName();
};

void TestOxCollapsibleWidgetContainer::isNamedAfterItsClass()
{
    QCOMPARE(OxCollapsibleWidgetContainer().objectName(),
             QStringLiteral("OxCollapsibleWidgetContainer"));
}

void TestOxCollapsibleWidgetContainer::theTitleIsALineLabelInTheBoldWidgetFont()
{
    const OxCollapsibleWidgetContainer section(nullptr, title());
    const auto* label = section.findChild<LineLabel*>();
    QCOMPARE(label->text(), title());
    QCOMPARE(label->font(), ApplicationFont::getWidgetFont(true));
}

void TestOxCollapsibleWidgetContainer::theButtonIsCheckableUncheckedAnd35Square()
{
    const OxCollapsibleWidgetContainer section(nullptr, title());
    QCOMPARE(buttonOf(section)->objectName(), QStringLiteral("DragScrollButton"));
    QVERIFY(buttonOf(section)->isCheckable());
    QVERIFY(!buttonOf(section)->isChecked());
    QVERIFY(buttonOf(section)->text().isEmpty());
    QCOMPARE(buttonOf(section)->minimumSize(), QSize(35, 35));
    QCOMPARE(buttonOf(section)->maximumSize(), QSize(35, 35));
}

void TestOxCollapsibleWidgetContainer::theButtonsSheetIsExact()
{
    const OxCollapsibleWidgetContainer section(nullptr, title());
    QCOMPARE(
        buttonOf(section)->styleSheet(),
        QStringLiteral(
            "QPushButton { border-image: url(:/module_icons/ModuleIcons/collapse.png); } "
            "QPushButton::pressed { border-image: "
            "url(:/module_icons/ModuleIcons/collapse_orange.png); } "
            "QPushButton::checked { border-image: url(:/module_icons/ModuleIcons/expand.png); } "
            "QPushButton::checked::pressed { border-image: "
            "url(:/module_icons/ModuleIcons/expand_orange.png); }"));
}

void TestOxCollapsibleWidgetContainer::theButtonShowsAnotherPictureInEachState()
{
    const OxCollapsibleWidgetContainer section(nullptr, title());
    QList<QImage> pictures;
    for (const bool checked : { false, true }) {
        for (const bool down : { false, true }) {
            buttonOf(section)->setChecked(checked);
            buttonOf(section)->setDown(down);
            const QImage picture = buttonOf(section)->grab().toImage();
            QVERIFY(!pictures.contains(picture));
            pictures.append(picture);
        }
    }
}

void TestOxCollapsibleWidgetContainer::theGridIsExact()
{
    auto* content = new QLabel(QStringLiteral("Content"));
    const OxCollapsibleWidgetContainer section(content, title());
    const auto* grid = qobject_cast<QGridLayout*>(section.layout());
    QVERIFY(grid != nullptr);
    QCOMPARE(grid->spacing(), 2);
    QCOMPARE(grid->contentsMargins(), QMargins(11, 0, 11, 0));
    QCOMPARE(cellOf(section, buttonOf(section)), QRect(0, 0, 1, 1));
    QCOMPARE(cellOf(section, section.findChild<LineLabel*>()), QRect(1, 0, 1, 1));
    QCOMPARE(cellOf(section, content), QRect(0, 1, 2, 1));
    QCOMPARE(grid->itemAt(grid->indexOf(content))->alignment(), Qt::AlignCenter);
    QCOMPARE(section.getContainedWidget(), content);
}

void TestOxCollapsibleWidgetContainer::theContentIsVisibleUntilTheFirstToggle()
{
    auto* content = new QLabel(QStringLiteral("Content"));
    OxCollapsibleWidgetContainer section(content, title());
    section.show();
    QVERIFY(content->isVisible());
    QVERIFY(!buttonOf(section)->isChecked());
}

void TestOxCollapsibleWidgetContainer::theButtonShowsAndHidesTheContent_data()
{
    QTest::addColumn<int>("toggles");
    QTest::addColumn<bool>("visible");
    QTest::newRow("once: checked") << 1 << true;
    QTest::newRow("twice: unchecked") << 2 << false;
    QTest::newRow("three times") << 3 << true;
    QTest::newRow("four times") << 4 << false;
}

void TestOxCollapsibleWidgetContainer::theButtonShowsAndHidesTheContent()
{
    QFETCH(int, toggles);
    QFETCH(bool, visible);
    auto* content = new QLabel(QStringLiteral("Content"));
    OxCollapsibleWidgetContainer section(content, title());
    section.show();
    QSignalSpy pressed(&section, &OxCollapsibleWidgetContainer::collapseButtonPressed);
    for (int i = 0; i < toggles; ++i) {
        buttonOf(section)->toggle();
    }
    QCOMPARE(content->isVisible(), visible);
    QCOMPARE(pressed.count(), toggles);
    QCOMPARE(pressed.constFirst().constFirst().value<QWidget*>(), content);
}

void TestOxCollapsibleWidgetContainer::togglingTwiceReturnsReplacedContentToItsFirstVisibility()
{
    OxCollapsibleWidgetContainer section(nullptr, title());
    auto* content = new QLabel(QStringLiteral("Content"));
    section.setContainedWidget(content);
    section.show();
    QSignalSpy pressed(&section, &OxCollapsibleWidgetContainer::collapseButtonPressed);
    QVERIFY(!content->isVisible());
    buttonOf(section)->toggle();
    QVERIFY(content->isVisible());
    buttonOf(section)->toggle();
    QVERIFY(!content->isVisible());
    QCOMPARE(pressed.count(), 2);
}

void TestOxCollapsibleWidgetContainer::aTapTogglesAndADragDoesNot()
{
    OxCollapsibleWidgetContainer section(new QLabel(QStringLiteral("Content")), title());
    section.show();
    QVERIFY(QTest::qWaitForWindowExposed(&section));
    QSignalSpy pressed(&section, &OxCollapsibleWidgetContainer::collapseButtonPressed);
    Finger finger;
    finger.press(buttonOf(section));
    finger.moveBy(QPoint(0, 14));
    finger.moveBy(QPoint(0, -14));
    finger.release();
    QVERIFY(!buttonOf(section)->isChecked());
    QCOMPARE(pressed.count(), 0);
    finger.tap(buttonOf(section));
    QVERIFY(buttonOf(section)->isChecked());
    QCOMPARE(pressed.count(), 1);
}

void TestOxCollapsibleWidgetContainer::expandingItIsLikeATapOnTheButton()
{
    auto* content = new QLabel(QStringLiteral("Content"));
    OxCollapsibleWidgetContainer section(content, title());
    section.show();
    QSignalSpy pressed(&section, &OxCollapsibleWidgetContainer::collapseButtonPressed);
    section.setExpanded(false); // the button is unchecked already, and the content stays visible
    QVERIFY(content->isVisible());
    QCOMPARE(pressed.count(), 0);
    section.setExpanded(true);
    QVERIFY(buttonOf(section)->isChecked());
    QVERIFY(content->isVisible());
    section.setExpanded(false);
    QVERIFY(!content->isVisible());
    QCOMPARE(pressed.count(), 2);
    buttonOf(section)->toggle();
    QVERIFY(section.isExpanded());
}

void TestOxCollapsibleWidgetContainer::withoutContentThereIsOnlyTheButtonRow()
{
    OxCollapsibleWidgetContainer section(nullptr, title());
    QCOMPARE(section.layout()->count(), 2);
    QCOMPARE(section.getContainedWidget(), nullptr);
    QSignalSpy pressed(&section, &OxCollapsibleWidgetContainer::collapseButtonPressed);
    buttonOf(section)->toggle();
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(pressed.constFirst().constFirst().value<QWidget*>(), nullptr);
}

void TestOxCollapsibleWidgetContainer::contentGivenLaterIsHidden()
{
    OxCollapsibleWidgetContainer section(nullptr, title());
    auto* content = new QLabel(QStringLiteral("Content"));
    section.setContainedWidget(content);
    section.show();
    QVERIFY(content->isHidden());
    QCOMPARE(cellOf(section, content), QRect(0, 1, 2, 1));
    QCOMPARE(section.layout()->itemAt(section.layout()->indexOf(content))->alignment(),
             Qt::AlignCenter);
    QCOMPARE(section.getContainedWidget(), content);
}

void TestOxCollapsibleWidgetContainer::contentGivenWhileTheButtonIsCheckedStaysVisible()
{
    OxCollapsibleWidgetContainer section(nullptr, title());
    section.show();
    buttonOf(section)->toggle();
    auto* content = new QLabel(QStringLiteral("Content"));
    section.setContainedWidget(content);
    QTRY_VERIFY(content->isVisible());
}

void TestOxCollapsibleWidgetContainer::replacedContentLeavesTheLayoutAndLives()
{
    const QPointer<QWidget> first = new QLabel(QStringLiteral("First"));
    OxCollapsibleWidgetContainer section(first, title());
    section.setContainedWidget(nullptr);
    QVERIFY(!first.isNull());
    QCOMPARE(section.layout()->indexOf(first), -1);
    QCOMPARE(first->parentWidget(), &section);
    QCOMPARE(section.getContainedWidget(), nullptr);
    QCOMPARE(section.layout()->count(), 2);
}

void TestOxCollapsibleWidgetContainer::contentMayDieWhileContained()
{
    auto content = std::make_unique<QLabel>(QStringLiteral("Content"));
    OxCollapsibleWidgetContainer section(content.get(), title());
    section.show();
    content.reset();
    QCOMPARE(section.getContainedWidget(), nullptr);
    QSignalSpy pressed(&section, &OxCollapsibleWidgetContainer::collapseButtonPressed);
    buttonOf(section)->toggle();
    QCOMPARE(pressed.count(), 1);
    section.setContainedWidget(new QLabel);
    QCOMPARE(section.layout()->count(), 3);
}

void TestOxCollapsibleWidgetContainer::canBeMadeWithAParentAlone()
{
    QWidget parent;
    auto* section = new OxCollapsibleWidgetContainer(&parent);
    QCOMPARE(section->parentWidget(), &parent);
    QCOMPARE(section->getContainedWidget(), nullptr);
}

void TestOxCollapsibleWidgetContainer::theTitleCanBeChanged()
{
    OxCollapsibleWidgetContainer section(nullptr, title());
    section.setTitleString(QStringLiteral("Size"));
    QCOMPARE(section.findChild<LineLabel*>()->text(), QStringLiteral("Size"));
}

void TestOxCollapsibleWidgetContainer::theButtonHasAnAccessibleName()
{
    QCOMPARE(buttonOf(OxCollapsibleWidgetContainer())->accessibleName(),
             QStringLiteral("Show or hide"));
}

UW_TEST_MAIN(TestOxCollapsibleWidgetContainer)

#include "tst_oxcollapsiblewidgetcontainer.moc"
