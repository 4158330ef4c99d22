// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "filemenuwidget.h"

#include "support/fieldform.h"
#include "support/finger.h"
#include "support/paintcounter.h"
#include "support/test.h"

#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

class TestFileMenuWidget : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isANamedFrame();
    void theSheetNamesThePanel();
    void theLayoutHasNeitherMarginsNorSpacing();
    void itemsAreAddedBelowEachOtherInTheMiddle();
    void ownsItsItems();
    void reportsTheLossOnceEachTimeItLosesTheFocus_data();
    void reportsTheLossOnceEachTimeItLosesTheFocus();
    void reportsTheLossAfterTheBaseHasHandledIt();
    void saysNothingWhenAnItemLosesTheFocus();
    void saysNothingWhenItGetsTheFocus();
    void aTapOnAnItemLeavesThePanelAlone();
    void theKeyboardReachesAnItemWhichIsKnownWhenTheLossIsReported();
    void isGreyInAnOrangeFrame();
    void theFrameFollowsTheObjectName();
    void aSheetOfTheApplicationStaysWhenTheObjectNameChanges();
};

void TestFileMenuWidget::isANamedFrame()
{
    QWidget parent;
    const FileMenuWidget menu(&parent);
    QCOMPARE(menu.objectName(), QStringLiteral("FileMenuWidget"));
    QCOMPARE(menu.parentWidget(), &parent);
    QCOMPARE(menu.windowFlags(), QFrame(&parent).windowFlags());
    QCOMPARE(QByteArray(FileMenuWidget::staticMetaObject.superClass()->className()), "QFrame");
}

void TestFileMenuWidget::theSheetNamesThePanel()
{
    const FileMenuWidget menu;
    QCOMPARE(menu.styleSheet(),
             QStringLiteral("#FileMenuWidget { background-color: #f2f2f2; border: 1px solid "
                            "#fd7800; } "));
}

void TestFileMenuWidget::theLayoutHasNeitherMarginsNorSpacing()
{
    const FileMenuWidget menu;
    const auto* layout = qobject_cast<QVBoxLayout*>(menu.layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->count(), 0);
}

void TestFileMenuWidget::itemsAreAddedBelowEachOtherInTheMiddle()
{
    FileMenuWidget menu;
    auto* open = new QPushButton(QStringLiteral("Open"));
    auto* save = new QPushButton(QStringLiteral("Save"));
    menu.addMenuItem(open);
    menu.addMenuItem(save);

    const auto* layout = qobject_cast<QVBoxLayout*>(menu.layout());
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), open);
    QCOMPARE(layout->itemAt(1)->widget(), save);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(layout->stretch(i), 1);
        QCOMPARE(layout->itemAt(i)->alignment(), Qt::AlignCenter);
    }
}

void TestFileMenuWidget::ownsItsItems()
{
    FileMenuWidget menu;
    auto* item = new QPushButton;
    menu.addMenuItem(item);
    QCOMPARE(item->parentWidget(), &menu);
}

void TestFileMenuWidget::reportsTheLossOnceEachTimeItLosesTheFocus_data()
{
    QTest::addColumn<Qt::FocusReason>("reason");

    QTest::newRow("by a tap") << Qt::MouseFocusReason;
    QTest::newRow("by the keyboard") << Qt::TabFocusReason;
    QTest::newRow("by a popup") << Qt::PopupFocusReason;
    QTest::newRow("by the window") << Qt::ActiveWindowFocusReason;
    QTest::newRow("by the program") << Qt::OtherFocusReason;
}

void TestFileMenuWidget::reportsTheLossOnceEachTimeItLosesTheFocus()
{
    QFETCH(Qt::FocusReason, reason);
    auto* menu = new FileMenuWidget;
    FieldForm form(menu);
    QSignalSpy lost(menu, &FileMenuWidget::focusLost);
    for (int times = 1; times <= 3; ++times) {
        form.enter();
        QVERIFY(menu->hasFocus());
        form.leave(reason);
        QCOMPARE(lost.count(), times);
    }
}

void TestFileMenuWidget::reportsTheLossAfterTheBaseHasHandledIt()
{
    auto* menu = new FileMenuWidget;
    menu->setFocusPolicy(Qt::StrongFocus);
    menu->setMinimumSize(20, 20);
    FieldForm form(menu);
    QVERIFY(QTest::qWaitForWindowExposed(form.window()));
    const PaintCounter paints(menu);
    form.enter();
    QTRY_VERIFY(paints.count() > 0);
    const int before = paints.count();
    int repaints = 0;
    connect(menu, &FileMenuWidget::focusLost, menu, [&] {
        // What the base does is to ask for a repaint: by now it must have done so.
        QTRY_VERIFY(paints.count() > before);
        repaints = paints.count() - before;
    });

    form.leave();

    QVERIFY(repaints > 0);
}

void TestFileMenuWidget::saysNothingWhenAnItemLosesTheFocus()
{
    auto* menu = new FileMenuWidget;
    auto* item = new QPushButton;
    menu->addMenuItem(item);
    FieldForm form(menu);
    item->setFocus();
    QVERIFY(item->hasFocus());
    QSignalSpy lost(menu, &FileMenuWidget::focusLost);

    form.leave();

    QVERIFY(!item->hasFocus());
    QCOMPARE(lost.count(), 0);
}

void TestFileMenuWidget::saysNothingWhenItGetsTheFocus()
{
    auto* menu = new FileMenuWidget;
    FieldForm form(menu);
    QSignalSpy lost(menu, &FileMenuWidget::focusLost);
    form.enter();
    QVERIFY(menu->hasFocus());
    QCOMPARE(lost.count(), 0);
}

void TestFileMenuWidget::aTapOnAnItemLeavesThePanelAlone()
{
    auto* menu = new FileMenuWidget;
    auto* item = new QPushButton(QStringLiteral("Open"));
    item->setFocusPolicy(Qt::TabFocus);
    menu->addMenuItem(item);
    FieldForm form(menu);
    form.enter();
    QSignalSpy lost(menu, &FileMenuWidget::focusLost);
    QSignalSpy clicked(item, &QPushButton::clicked);

    Finger().tap(item);

    QCOMPARE(clicked.count(), 1);
    QCOMPARE(lost.count(), 0);
    QVERIFY(menu->hasFocus());
}

void TestFileMenuWidget::theKeyboardReachesAnItemWhichIsKnownWhenTheLossIsReported()
{
    auto* menu = new FileMenuWidget;
    auto* item = new QPushButton(QStringLiteral("Open"));
    item->setFocusPolicy(Qt::TabFocus);
    menu->addMenuItem(item);
    FieldForm form(menu);
    form.enter();
    const QWidget* focus = nullptr;
    connect(menu, &FileMenuWidget::focusLost, menu,
            [&focus] { focus = QApplication::focusWidget(); });

    QTest::keyClick(form.window()->windowHandle(), Qt::Key_Tab);

    QCOMPARE(focus, item);
    QVERIFY(item->hasFocus());
}

void TestFileMenuWidget::isGreyInAnOrangeFrame()
{
    FileMenuWidget menu;
    menu.resize(100, 80);
    const QImage picture = menu.grab().toImage();
    QCOMPARE(picture.pixelColor(0, 40), QColor(0xfd, 0x78, 0x00));
    QCOMPARE(picture.pixelColor(99, 40), QColor(0xfd, 0x78, 0x00));
    QCOMPARE(picture.pixelColor(50, 0), QColor(0xfd, 0x78, 0x00));
    QCOMPARE(picture.pixelColor(50, 79), QColor(0xfd, 0x78, 0x00));
    QCOMPARE(picture.pixelColor(50, 40), QColor(0xf2, 0xf2, 0xf2));
}

void TestFileMenuWidget::theFrameFollowsTheObjectName()
{
    FileMenuWidget menu;
    menu.setObjectName(QStringLiteral("pages"));
    menu.setObjectName(QStringLiteral("layers"));
    QCOMPARE(menu.styleSheet(),
             QStringLiteral("#layers { background-color: #f2f2f2; border: 1px solid #fd7800; } "));
    // No selector could name it.
    menu.setObjectName(QString());
    QVERIFY(menu.styleSheet().startsWith(QStringLiteral("#layers {")));
}

void TestFileMenuWidget::aSheetOfTheApplicationStaysWhenTheObjectNameChanges()
{
    FileMenuWidget menu;
    menu.setStyleSheet(QStringLiteral("QFrame { background-color: white; }"));
    menu.setObjectName(QStringLiteral("pages"));
    QCOMPARE(menu.styleSheet(), QStringLiteral("QFrame { background-color: white; }"));
}

UW_TEST_MAIN(TestFileMenuWidget)

#include "tst_filemenuwidget.moc"
