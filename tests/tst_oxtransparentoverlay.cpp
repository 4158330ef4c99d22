// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxtransparentoverlay.h"

#include "support/test.h"

#include <QGridLayout>
#include <QLabel>

class TestOxTransparentOverlay : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterItsClass();
    void isAFramelessWindowWhateverFlagsAreGiven();
    void isBlackAtThirtyPercent();
    void hasTheSizeOfTheScreenAndIsBlackAllOver();
    void paintsNoBackgroundOfItsOwn();
    void withAParentItIsNoWindow();
};

void TestOxTransparentOverlay::isNamedAfterItsClass()
{
    QCOMPARE(OxTransparentOverlay().objectName(), QStringLiteral("OxTransparentOverlay"));
}

void TestOxTransparentOverlay::isAFramelessWindowWhateverFlagsAreGiven()
{
    const OxTransparentOverlay overlay(nullptr, Qt::Tool | Qt::WindowStaysOnTopHint);

    QVERIFY(overlay.isWindow());
    QCOMPARE(overlay.windowType(), Qt::Window);
    QVERIFY(overlay.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(!overlay.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

void TestOxTransparentOverlay::isBlackAtThirtyPercent()
{
    const OxTransparentOverlay overlay;

    // Kept in steps of 1/255.
    QVERIFY(qAbs(overlay.windowOpacity() - 0.3) < 1.0 / 255);
}

void TestOxTransparentOverlay::hasTheSizeOfTheScreenAndIsBlackAllOver()
{
    OxTransparentOverlay overlay;
    overlay.show();
    const auto* label = overlay.findChild<QLabel*>();
    const QImage image = overlay.grab().toImage();

    QCOMPARE(overlay.size(), QSize(1024, 540));
    QCOMPARE(label->geometry(), QRect(0, 0, 1024, 540));
    QCOMPARE(label->minimumSize(), label->maximumSize());
    QCOMPARE(label->pixmap().size(), QSize(1024, 540));
    QImage black(1024, 540, image.format());
    black.fill(Qt::black);
    QCOMPARE(image, black);
}

void TestOxTransparentOverlay::paintsNoBackgroundOfItsOwn()
{
    const OxTransparentOverlay overlay;
    const auto* layout = qobject_cast<QGridLayout*>(overlay.layout());

    QVERIFY(overlay.testAttribute(Qt::WA_NoSystemBackground));
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->itemAtPosition(0, 0)->alignment(), Qt::Alignment());
}

void TestOxTransparentOverlay::withAParentItIsNoWindow()
{
    QWidget parent;
    const auto* overlay = new OxTransparentOverlay(&parent);

    QVERIFY(!overlay->isWindow());
    QCOMPARE(overlay->parentWidget(), &parent);
}

UW_TEST_MAIN(TestOxTransparentOverlay)

#include "tst_oxtransparentoverlay.moc"
