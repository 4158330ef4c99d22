// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxtitlebar.h"

#include "support/finger.h"
#include "support/test.h"

#include <QDialog>
#include <QDir>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

#include <memory>

namespace {

const QColor Charcoal(0x2b, 0x2b, 0x2b);
const QColor Orange(0xfd, 0x78, 0x00);

constexpr int ToTheIcon = 7; // pixels

QString iconPath()
{
    return QStringLiteral(":/Navigation/NavigationIcons/exit.png");
}

std::unique_ptr<OxTitleBar> createBar(const QString& icon = {})
{
    return std::make_unique<OxTitleBar>(nullptr, icon, QStringLiteral("Measure"));
}

QLayoutItem* item(const QWidget& bar, int index)
{
    return bar.layout()->itemAt(index);
}

QLabel* iconLabel(const QWidget& bar)
{
    return qobject_cast<QLabel*>(item(bar, 0)->widget());
}

QLabel* titleLabel(const QWidget& bar)
{
    return qobject_cast<QLabel*>(item(bar, 1)->widget());
}

QPushButton* closeButton(const QWidget& bar)
{
    return qobject_cast<QPushButton*>(item(bar, 3)->widget());
}

QImage fileImage(const QString& path)
{
    return QImage(path).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

class TestOxTitleBar : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedTitleBarWidget();
    void isNoWindowInsideItsParent();
    void canBeMadeWithAParentAlone();
    void barStyleIsExactAndEndsInANewline();
    void barStyleIsTheSameOnEveryCall();
    void carriesBarStyle();
    void isFortyPixelsHighHoweverItIsResized();
    void iconTakesTwentyNineByTwentyEightPixels();
    void iconIsLoadedFromThePath();
    void iconIsReplaced();
    void unreadableIconLeavesAnEmptyPlace_data();
    void unreadableIconLeavesAnEmptyPlace();
    void titleIsShownAndReplaced();
    void titleIsBoldWhiteAndTwentyPixelsHigh();
    void closeButtonIsFlatAndThirtyFourByThirtyOne();
    void closeIconIsDrawnAtTheSizeOfTheButton();
    void closeButtonIsNeitherDefaultNorInTheFocusChain();
    void closeButtonHasAnAccessibleName();
    void layoutHasSideMarginsOfSevenPixels();
    void layoutHoldsIconTitleSpacingAndCloseButtonInThisOrder();
    void titleStartsRightAfterTheEmptyIcon_data();
    void titleStartsRightAfterTheEmptyIcon();
    void closeButtonStandsAtTheRightEdge();
    void ownsItsChildren();
    void tapOnTheCloseButtonIsReportedOnceAndClosesNothing();
    void slidingOffTheCloseButtonReportsNothing();
    void paintsCharcoalInAnOrangeFrame();
};

void TestOxTitleBar::isNamedTitleBarWidget()
{
    QCOMPARE(createBar()->objectName(), QStringLiteral("TitleBarWidget"));
}

void TestOxTitleBar::isNoWindowInsideItsParent()
{
    QWidget parent;
    const OxTitleBar bar(&parent, QString(), QString());
    QCOMPARE(bar.parentWidget(), &parent);
    QVERIFY(!bar.isWindow());
    QCOMPARE(bar.windowType(), Qt::Widget);
}

void TestOxTitleBar::canBeMadeWithAParentAlone()
{
    QWidget parent;
    const OxTitleBar bar(&parent);
    QCOMPARE(titleLabel(bar)->text(), QString());
    QVERIFY(iconLabel(bar)->pixmap(Qt::ReturnByValue).isNull());
}

void TestOxTitleBar::barStyleIsExactAndEndsInANewline()
{
    QCOMPARE(OxTitleBar::barStyle(),
             QStringLiteral("OxTitleBar { background-color: #2b2b2b; border: 1px solid #fd7800; }\n"
                            "QLabel { font-size: 20px; color: white; font-weight: bold; }\n"));
}

void TestOxTitleBar::barStyleIsTheSameOnEveryCall()
{
    const QString before = OxTitleBar::barStyle();
    auto bar = createBar();
    bar->setStyleSheet(QStringLiteral("OxTitleBar { border: none; }"));
    QCOMPARE(OxTitleBar::barStyle(), before);
}

void TestOxTitleBar::carriesBarStyle()
{
    QCOMPARE(createBar()->styleSheet(), OxTitleBar::barStyle());
}

void TestOxTitleBar::isFortyPixelsHighHoweverItIsResized()
{
    auto bar = createBar();
    bar->resize(500, 100);
    QCOMPARE(bar->height(), 40);
    QCOMPARE(bar->minimumHeight(), 40);
    QCOMPARE(bar->maximumHeight(), 40);
}

void TestOxTitleBar::iconTakesTwentyNineByTwentyEightPixels()
{
    auto bar = createBar(iconPath());
    QCOMPARE(iconLabel(*bar)->minimumSize(), QSize(29, 28));
    QCOMPARE(iconLabel(*bar)->maximumSize(), QSize(29, 28));
    QCOMPARE(iconLabel(*bar)->alignment(), Qt::AlignCenter);
}

void TestOxTitleBar::iconIsLoadedFromThePath()
{
    auto bar = createBar(iconPath());
    QCOMPARE(iconLabel(*bar)->pixmap(Qt::ReturnByValue).toImage(), QPixmap(iconPath()).toImage());
    QVERIFY(!iconLabel(*bar)->pixmap(Qt::ReturnByValue).isNull());
}

void TestOxTitleBar::iconIsReplaced()
{
    auto bar = createBar();
    bar->setIconPath(iconPath());
    QCOMPARE(iconLabel(*bar)->pixmap(Qt::ReturnByValue).toImage(), QPixmap(iconPath()).toImage());
    bar->setIconPath(QStringLiteral(":/no/such.png"));
    QVERIFY(iconLabel(*bar)->pixmap(Qt::ReturnByValue).isNull());
}

void TestOxTitleBar::unreadableIconLeavesAnEmptyPlace_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("empty path") << QString();
    QTest::newRow("missing resource") << QStringLiteral(":/no/such.png");
    QTest::newRow("missing file") << QStringLiteral("/no/such/file.png");
    QTest::newRow("a folder") << QDir::tempPath();
}

void TestOxTitleBar::unreadableIconLeavesAnEmptyPlace()
{
    QFETCH(QString, path);
    auto bar = createBar(path);
    bar->adjustSize();
    bar->layout()->activate();
    QVERIFY(iconLabel(*bar)->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(iconLabel(*bar)->size(), QSize(29, 28));
}

void TestOxTitleBar::titleIsShownAndReplaced()
{
    auto bar = createBar();
    QCOMPARE(titleLabel(*bar)->text(), QStringLiteral("Measure"));
    bar->setTitle(QStringLiteral("Rotate"));
    QCOMPARE(titleLabel(*bar)->text(), QStringLiteral("Rotate"));
}

void TestOxTitleBar::titleIsBoldWhiteAndTwentyPixelsHigh()
{
    auto bar = createBar();
    QLabel* title = titleLabel(*bar);
    title->ensurePolished();
    QCOMPARE(title->font().pixelSize(), 20);
    QVERIFY(title->font().bold());
    QCOMPARE(title->palette().color(QPalette::WindowText), QColor(Qt::white));
}

void TestOxTitleBar::closeButtonIsFlatAndThirtyFourByThirtyOne()
{
    auto bar = createBar();
    const QPushButton* button = closeButton(*bar);
    QVERIFY(button->isFlat());
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->iconSize(), QSize(34, 31));
    QCOMPARE(button->minimumSize(), QSize(34, 31));
    QCOMPARE(button->maximumSize(), QSize(34, 31));
}

void TestOxTitleBar::closeIconIsDrawnAtTheSizeOfTheButton()
{
    auto bar = createBar();
    bar->show();
    QImage expected(34, 31, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Charcoal);
    {
        QPainter painter(&expected);
        painter.drawImage(0, 0, fileImage(iconPath()));
    }
    const QImage drawn = bar->grab(closeButton(*bar)->geometry()).toImage();
    QCOMPARE(closeButton(*bar)->size(), QSize(34, 31));
    QCOMPARE(drawn.convertToFormat(expected.format()), expected);
}

void TestOxTitleBar::closeButtonIsNeitherDefaultNorInTheFocusChain()
{
    // Inside a dialog, where a push button would otherwise be auto-default.
    QDialog dialog;
    const OxTitleBar bar(&dialog);
    QVERIFY(!closeButton(bar)->isDefault());
    QVERIFY(!closeButton(bar)->autoDefault());
    QCOMPARE(closeButton(bar)->focusPolicy(), Qt::NoFocus);
}

void TestOxTitleBar::closeButtonHasAnAccessibleName()
{
    QCOMPARE(closeButton(*createBar())->accessibleName(), QStringLiteral("Close"));
}

void TestOxTitleBar::layoutHasSideMarginsOfSevenPixels()
{
    auto bar = createBar();
    QVERIFY(qobject_cast<QHBoxLayout*>(bar->layout()) != nullptr);
    QCOMPARE(bar->layout()->contentsMargins(), QMargins(ToTheIcon, 0, 7, 0));
}

void TestOxTitleBar::layoutHoldsIconTitleSpacingAndCloseButtonInThisOrder()
{
    auto bar = createBar();
    const auto* layout = qobject_cast<QHBoxLayout*>(bar->layout());
    QCOMPARE(layout->count(), 4);
    QVERIFY(iconLabel(*bar) != nullptr);
    QVERIFY(titleLabel(*bar) != nullptr);
    QVERIFY(closeButton(*bar) != nullptr);
    QCOMPARE(item(*bar, 0)->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(item(*bar, 1)->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(item(*bar, 3)->alignment(), Qt::AlignRight | Qt::AlignVCenter);

    const QSpacerItem* spacing = item(*bar, 2)->spacerItem();
    QVERIFY(spacing != nullptr);
    QCOMPARE(spacing->sizeHint().width(), 185);
    QCOMPARE(spacing->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    for (int index = 0; index < layout->count(); ++index) {
        QCOMPARE(layout->stretch(index), 0);
    }
}

void TestOxTitleBar::titleStartsRightAfterTheEmptyIcon_data()
{
    QTest::addColumn<int>("extraWidth");

    QTest::newRow("as narrow as it gets") << 0;
    QTest::newRow("a little wider") << 40;
    QTest::newRow("much wider") << 600;
}

void TestOxTitleBar::titleStartsRightAfterTheEmptyIcon()
{
    QFETCH(int, extraWidth);
    auto bar = createBar();
    bar->show();
    bar->resize(bar->sizeHint().width() + extraWidth, 40);

    QCOMPARE(iconLabel(*bar)->geometry(), QRect(ToTheIcon, 6, 29, 28));
    QCOMPARE(titleLabel(*bar)->x(), ToTheIcon + 29 + bar->layout()->spacing());
}

void TestOxTitleBar::closeButtonStandsAtTheRightEdge()
{
    auto bar = createBar();
    bar->show();
    bar->resize(700, 40);
    QCOMPARE(closeButton(*bar)->x(), 700 - 7 - 34);
}

void TestOxTitleBar::ownsItsChildren()
{
    auto bar = createBar();
    const QPointer<QLabel> icon = iconLabel(*bar);
    const QPointer<QLabel> title = titleLabel(*bar);
    const QPointer<QPushButton> button = closeButton(*bar);
    QCOMPARE(icon->parentWidget(), bar.get());
    QCOMPARE(title->parentWidget(), bar.get());
    QCOMPARE(button->parentWidget(), bar.get());

    bar.reset();

    QVERIFY(icon == nullptr && title == nullptr && button == nullptr);
}

void TestOxTitleBar::tapOnTheCloseButtonIsReportedOnceAndClosesNothing()
{
    QWidget window;
    OxTitleBar bar(&window, QString(), QStringLiteral("Measure"));
    window.resize(bar.sizeHint());
    window.show();
    bar.resize(window.width(), bar.height());
    QSignalSpy closed(&bar, &OxTitleBar::closeButtonClicked);

    Finger().tap(closeButton(bar));
    QCOMPARE(closed.count(), 1);
    Finger().tap(closeButton(bar));
    QCOMPARE(closed.count(), 2);

    QVERIFY(bar.isVisible());
    QVERIFY(window.isVisible());
}

void TestOxTitleBar::slidingOffTheCloseButtonReportsNothing()
{
    QWidget window;
    OxTitleBar bar(&window, QString(), QStringLiteral("Measure"));
    window.resize(bar.sizeHint());
    window.show();
    bar.resize(window.width(), bar.height());
    QSignalSpy closed(&bar, &OxTitleBar::closeButtonClicked);

    Finger finger;
    finger.press(closeButton(bar));
    finger.moveBy(QPoint(-100, 0));
    finger.release();

    QCOMPARE(closed.count(), 0);
}

void TestOxTitleBar::paintsCharcoalInAnOrangeFrame()
{
    auto bar = createBar();
    bar->resize(400, 40);
    const QImage image = bar->grab().toImage();
    QCOMPARE(image.pixelColor(0, 0), Orange);
    QCOMPARE(image.pixelColor(200, 0), Orange);
    QCOMPARE(image.pixelColor(399, 20), Orange);
    QCOMPARE(image.pixelColor(200, 39), Orange);
    QCOMPARE(image.pixelColor(1, 1), Charcoal);
    QCOMPARE(image.pixelColor(250, 20), Charcoal);
    QCOMPARE(image.pixelColor(398, 38), Charcoal);
}

UW_TEST_MAIN(TestOxTitleBar)

#include "tst_oxtitlebar.moc"
