// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "containertitlebar.h"

#include "oxtitlebar.h"
#include "support/finger.h"
#include "support/test.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <memory>

namespace {

const QColor Charcoal(0x2b, 0x2b, 0x2b);
const QColor Orange(0xfd, 0x78, 0x00);

std::unique_ptr<ContainerTitleBar> createBar()
{
    return std::make_unique<ContainerTitleBar>(nullptr, QStringLiteral("Layers"));
}

QLayoutItem* item(const QWidget& bar, int index)
{
    return bar.layout()->itemAt(index);
}

QLabel* titleLabel(const QWidget& bar)
{
    return qobject_cast<QLabel*>(item(bar, 0)->widget());
}

QPushButton* closeButton(const QWidget& bar)
{
    return qobject_cast<QPushButton*>(item(bar, 2)->widget());
}

} // namespace

class TestContainerTitleBar : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterItsClass();
    void isNoWindowInsideItsParent();
    void canBeMadeWithAParentAlone();
    void sheetIsExact();
    void isFortySixPixelsHighHoweverItIsResized();
    void titleIsShownAndReplaced();
    void namesFromOutsideAreShownToTheLetter_data();
    void namesFromOutsideAreShownToTheLetter();
    void titleIsBoldWhiteAndFourteenPointsHigh();
    void closeButtonIsFlatAndThirtyFourByThirtyOne();
    void closeIconIsDrawnAtTheSizeOfTheButton();
    void closeButtonIsNeitherDefaultNorInTheFocusChain();
    void closeButtonHasAnAccessibleName();
    void layoutHasSideMarginsOfTenPixels();
    void layoutHoldsTitleSpacerAndCloseButtonInThisOrder();
    void spacerGrowsAndShrinksBetweenTitleAndCloseButton_data();
    void spacerGrowsAndShrinksBetweenTitleAndCloseButton();
    void theTitleIsCutOnlyWhenTheSpacerHasNoRoomLeft_data();
    void theTitleIsCutOnlyWhenTheSpacerHasNoRoomLeft();
    void aLongTitleMakesNoDialogWider();
    void rulesForADialogsButtonsLeaveTheCloseButtonAlone_data();
    void rulesForADialogsButtonsLeaveTheCloseButtonAlone();
    void ownsItsChildren();
    void tapOnTheCloseButtonIsReportedOnceAndClosesNothing();
    void hiddenCloseButtonKeepsItsPlaceInTheLayout();
    void barWithHiddenCloseButtonStaysFortySixPixelsHighAndReportsNothing();
    void paintsCharcoalInAnOrangeFrame();
    void differsFromTheSmallBarOnPurpose_data();
    void differsFromTheSmallBarOnPurpose();
};

void TestContainerTitleBar::isNamedAfterItsClass()
{
    QCOMPARE(createBar()->objectName(), QStringLiteral("ContainerTitleBar"));
}

void TestContainerTitleBar::isNoWindowInsideItsParent()
{
    QWidget parent;
    const ContainerTitleBar bar(&parent, QString());
    QCOMPARE(bar.parentWidget(), &parent);
    QVERIFY(!bar.isWindow());
}

void TestContainerTitleBar::canBeMadeWithAParentAlone()
{
    QWidget parent;
    const ContainerTitleBar bar(&parent);
    QCOMPARE(titleLabel(bar)->text(), QString());
}

void TestContainerTitleBar::sheetIsExact()
{
    QCOMPARE(createBar()->styleSheet(),
             QStringLiteral(
                 "ContainerTitleBar { background-color: #2b2b2b; border: 1px solid #fd7800; }\n"
                 "QLabel { font-size: 14pt; color: white; font-weight: bold; }"));
}

void TestContainerTitleBar::isFortySixPixelsHighHoweverItIsResized()
{
    auto bar = createBar();
    bar->resize(500, 100);
    QCOMPARE(bar->height(), 46);
    QCOMPARE(bar->minimumHeight(), 46);
    QCOMPARE(bar->maximumHeight(), 46);
}

void TestContainerTitleBar::titleIsShownAndReplaced()
{
    auto bar = createBar();
    QCOMPARE(titleLabel(*bar)->text(), QStringLiteral("Layers"));
    bar->setTitle(QStringLiteral("Pages"));
    QCOMPARE(titleLabel(*bar)->text(), QStringLiteral("Pages"));
}

void TestContainerTitleBar::namesFromOutsideAreShownToTheLetter_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("ampersand") << QStringLiteral("Salt & pepper");
    QTest::newRow("markup") << QStringLiteral("<b>Salt</b>");
}

/// As the comment of setTitle() tells to write them, which is that of the small bar as well.
void TestContainerTitleBar::namesFromOutsideAreShownToTheLetter()
{
    QFETCH(QString, name);
    ContainerTitleBar bar;
    bar.setTitle(Qt::convertFromPlainText(name, Qt::WhiteSpaceNormal));
    bar.resize(500, bar.height());
    ContainerTitleBar plain(nullptr, name);
    titleLabel(plain)->setTextFormat(Qt::PlainText);
    plain.resize(bar.size());
    QCOMPARE(bar.grab().toImage(), plain.grab().toImage());
}

void TestContainerTitleBar::titleIsBoldWhiteAndFourteenPointsHigh()
{
    auto bar = createBar();
    QLabel* title = titleLabel(*bar);
    title->ensurePolished();
    QCOMPARE(title->font().pointSize(), 14);
    QVERIFY(title->font().bold());
    QCOMPARE(title->palette().color(QPalette::WindowText), QColor(Qt::white));
}

void TestContainerTitleBar::closeButtonIsFlatAndThirtyFourByThirtyOne()
{
    auto bar = createBar();
    const QPushButton* button = closeButton(*bar);
    QVERIFY(button->isFlat());
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->iconSize(), QSize(34, 31));
    QCOMPARE(button->minimumSize(), QSize(34, 31));
    QCOMPARE(button->maximumSize(), QSize(34, 31));
}

void TestContainerTitleBar::closeIconIsDrawnAtTheSizeOfTheButton()
{
    auto bar = createBar();
    bar->show();
    QImage expected(34, 31, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Charcoal);
    {
        QPainter painter(&expected);
        painter.drawImage(0, 0, QImage(QStringLiteral(":/Navigation/NavigationIcons/exit.png")));
    }
    const QImage drawn = bar->grab(closeButton(*bar)->geometry()).toImage();
    QCOMPARE(closeButton(*bar)->size(), QSize(34, 31));
    QCOMPARE(drawn.convertToFormat(expected.format()), expected);
}

void TestContainerTitleBar::closeButtonIsNeitherDefaultNorInTheFocusChain()
{
    // Inside a dialog, where a push button would otherwise be auto-default.
    QDialog dialog;
    const ContainerTitleBar bar(&dialog);
    QVERIFY(!closeButton(bar)->isDefault());
    QVERIFY(!closeButton(bar)->autoDefault());
    QCOMPARE(closeButton(bar)->focusPolicy(), Qt::NoFocus);
}

void TestContainerTitleBar::closeButtonHasAnAccessibleName()
{
    QCOMPARE(closeButton(*createBar())->accessibleName(), QStringLiteral("Close"));
}

void TestContainerTitleBar::layoutHasSideMarginsOfTenPixels()
{
    auto bar = createBar();
    QVERIFY(qobject_cast<QHBoxLayout*>(bar->layout()) != nullptr);
    QCOMPARE(bar->layout()->contentsMargins(), QMargins(10, 0, 10, 0));
}

void TestContainerTitleBar::layoutHoldsTitleSpacerAndCloseButtonInThisOrder()
{
    auto bar = createBar();
    const auto* layout = qobject_cast<QHBoxLayout*>(bar->layout());
    QCOMPARE(layout->count(), 3);
    QVERIFY(titleLabel(*bar) != nullptr);
    QVERIFY(closeButton(*bar) != nullptr);
    QCOMPARE(item(*bar, 0)->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(item(*bar, 2)->alignment(), Qt::AlignRight | Qt::AlignVCenter);

    const QSpacerItem* spacer = item(*bar, 1)->spacerItem();
    QVERIFY(spacer != nullptr);
    QCOMPARE(spacer->sizeHint(), QSize(185, 30));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    for (int index = 0; index < layout->count(); ++index) {
        QCOMPARE(layout->stretch(index), 0);
    }
}

void TestContainerTitleBar::spacerGrowsAndShrinksBetweenTitleAndCloseButton_data()
{
    QTest::addColumn<int>("width");

    QTest::newRow("narrower than its hint") << 180;
    QTest::newRow("wider than its hint") << 600;
    QTest::newRow("the whole screen") << 1024;
}

void TestContainerTitleBar::spacerGrowsAndShrinksBetweenTitleAndCloseButton()
{
    QFETCH(int, width);
    auto bar = createBar();
    bar->show();
    bar->resize(width, 46);
    QCOMPARE(bar->width(), width);
    QCOMPARE(titleLabel(*bar)->x(), 10);
    QCOMPARE(closeButton(*bar)->x(), width - 10 - 34);
}

void TestContainerTitleBar::theTitleIsCutOnlyWhenTheSpacerHasNoRoomLeft_data()
{
    QTest::addColumn<int>("spare");

    QTest::newRow("room for all") << 185;
    QTest::newRow("half of the spacer") << 90;
    QTest::newRow("no spacer") << 0;
    QTest::newRow("a part of the title") << -40;
}

void TestContainerTitleBar::theTitleIsCutOnlyWhenTheSpacerHasNoRoomLeft()
{
    QFETCH(int, spare);
    QWidget window;
    ContainerTitleBar bar(&window, QStringLiteral("DATABASE SELECTOR"));
    window.show();
    const int whole = titleLabel(bar)->sizeHint().width();
    const int beside = 2 * 10 + 34 + bar.layout()->spacing();

    bar.resize(beside + whole + spare, 46);

    QCOMPARE(titleLabel(bar)->width(), whole + qMin(spare, 0));
    QCOMPARE(closeButton(bar)->geometry().right(), bar.width() - 10 - 1);
}

void TestContainerTitleBar::aLongTitleMakesNoDialogWider()
{
    QWidget dialog;
    auto* bar = new ContainerTitleBar(&dialog,
                                      QStringLiteral("A title as translators make it").repeated(9));
    auto* layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(bar);
    dialog.resize(200, 100);
    dialog.show();
    QCOMPARE(dialog.width(), 200);
    QCOMPARE(closeButton(*bar)->geometry().right(), 200 - 10 - 1);
}

void TestContainerTitleBar::rulesForADialogsButtonsLeaveTheCloseButtonAlone_data()
{
    QTest::addColumn<QString>("rules");

    QTest::newRow("frame and minimum")
        << QStringLiteral("min-width: 80px; min-height: 35px; border: 3px solid red; "
                          "background-color: red;");
    QTest::newRow("size") << QStringLiteral("width: 55px; height: 40px;");
    QTest::newRow("maximum") << QStringLiteral("max-width: 20px; max-height: 20px;");
    QTest::newRow("box") << QStringLiteral("margin: 3px; padding: 5px 12px;");
}

void TestContainerTitleBar::rulesForADialogsButtonsLeaveTheCloseButtonAlone()
{
    QFETCH(const QString, rules);
    QWidget dialog;
    dialog.setStyleSheet(QStringLiteral("QPushButton { %1 }").arg(rules));
    ContainerTitleBar bar(&dialog, QStringLiteral("Layers"));
    bar.resize(400, 46);
    dialog.show();

    QCOMPARE(closeButton(bar)->geometry(), QRect(400 - 10 - 34, 7, 34, 31));
    QCOMPARE(bar.grab().toImage(), [] {
        QWidget plain;
        ContainerTitleBar other(&plain, QStringLiteral("Layers"));
        other.resize(400, 46);
        plain.show();
        return other.grab().toImage();
    }());
}

void TestContainerTitleBar::ownsItsChildren()
{
    auto bar = createBar();
    const QPointer<QLabel> title = titleLabel(*bar);
    const QPointer<QPushButton> button = closeButton(*bar);
    QCOMPARE(title->parentWidget(), bar.get());
    QCOMPARE(button->parentWidget(), bar.get());

    bar.reset();

    QVERIFY(title == nullptr && button == nullptr);
}

void TestContainerTitleBar::tapOnTheCloseButtonIsReportedOnceAndClosesNothing()
{
    QWidget window;
    ContainerTitleBar bar(&window, QStringLiteral("Layers"));
    window.resize(bar.sizeHint());
    window.show();
    bar.resize(window.width(), bar.height());
    QSignalSpy closed(&bar, &ContainerTitleBar::closeButtonClicked);

    Finger().tap(closeButton(bar));
    QCOMPARE(closed.count(), 1);
    Finger().tap(closeButton(bar));
    QCOMPARE(closed.count(), 2);

    QVERIFY(bar.isVisible());
    QVERIFY(window.isVisible());
}

void TestContainerTitleBar::hiddenCloseButtonKeepsItsPlaceInTheLayout()
{
    auto bar = createBar();
    bar->hideCloseButton();
    bar->show();
    QCOMPARE(bar->layout()->count(), 3);
    QVERIFY(closeButton(*bar) != nullptr);
    QVERIFY(!closeButton(*bar)->isVisible());
}

void TestContainerTitleBar::barWithHiddenCloseButtonStaysFortySixPixelsHighAndReportsNothing()
{
    auto bar = createBar();
    bar->resize(400, 46);
    bar->show();
    const QPoint where = closeButton(*bar)->geometry().center();
    QSignalSpy closed(bar.get(), &ContainerTitleBar::closeButtonClicked);

    bar->hideCloseButton();
    bar->setTitle(QStringLiteral("A longer title than before"));
    Finger().tap(bar.get(), where);

    QCOMPARE(bar->height(), 46);
    QVERIFY(!closeButton(*bar)->isVisible());
    QCOMPARE(closed.count(), 0);
}

void TestContainerTitleBar::paintsCharcoalInAnOrangeFrame()
{
    auto bar = createBar();
    bar->resize(400, 46);
    const QImage image = bar->grab().toImage();
    QCOMPARE(image.pixelColor(0, 0), Orange);
    QCOMPARE(image.pixelColor(200, 0), Orange);
    QCOMPARE(image.pixelColor(399, 20), Orange);
    QCOMPARE(image.pixelColor(200, 45), Orange);
    QCOMPARE(image.pixelColor(1, 1), Charcoal);
    QCOMPARE(image.pixelColor(250, 20), Charcoal);
    QCOMPARE(image.pixelColor(398, 44), Charcoal);
}

void TestContainerTitleBar::differsFromTheSmallBarOnPurpose_data()
{
    QTest::addColumn<QVariant>("container");
    QTest::addColumn<QVariant>("small");
    QTest::addColumn<QVariant>("expectedContainer");
    QTest::addColumn<QVariant>("expectedSmall");

    const auto container = createBar();
    const OxTitleBar small(nullptr, QString(), QStringLiteral("Layers"));
    const auto leftMargin = [](const QWidget& bar) {
        return bar.layout()->contentsMargins().left();
    };
    const auto labels = [](const QWidget& bar) {
        return bar.findChildren<QLabel*>().count();
    };
    const auto canGrow = [](QLayoutItem* spacer) {
        return bool(spacer->spacerItem()->sizePolicy().horizontalPolicy() & QSizePolicy::GrowFlag);
    };

    QTest::newRow("height") << QVariant(container->height()) << QVariant(small.height())
                            << QVariant(46) << QVariant(40);
    QTest::newRow("side margins") << QVariant(leftMargin(*container)) << QVariant(leftMargin(small))
                                  << QVariant(10) << QVariant(7);
    QTest::newRow("labels, the icon included")
        << QVariant(labels(*container)) << QVariant(labels(small)) << QVariant(1) << QVariant(2);
    QTest::newRow("spacer can grow")
        << QVariant(canGrow(item(*container, 1))) << QVariant(canGrow(item(small, 2)))
        << QVariant(true) << QVariant(false);
    QTest::newRow("end of the sheet")
        << QVariant(container->styleSheet().right(2)) << QVariant(small.styleSheet().right(2))
        << QVariant(QStringLiteral(" }")) << QVariant(QStringLiteral("}\n"));
}

void TestContainerTitleBar::differsFromTheSmallBarOnPurpose()
{
    QFETCH(QVariant, container);
    QFETCH(QVariant, small);
    QTEST(container, "expectedContainer");
    QTEST(small, "expectedSmall");
}

UW_TEST_MAIN(TestContainerTitleBar)

#include "tst_containertitlebar.moc"
