// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxtransparentcontainer.h"

#include "ioxtransparentwidget.h"
#include "oxtransparentoverlay.h"

#include "support/test.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>

#include <functional>

namespace {

/// The only overlay that exists, or null.
OxTransparentOverlay* overlay()
{
    OxTransparentOverlay* found = nullptr;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (auto* candidate = qobject_cast<OxTransparentOverlay*>(widget)) {
            [found] {
                QVERIFY2(found == nullptr, "more than one overlay");
            }();
            found = candidate;
        }
    }
    return found;
}

class Panel : public QWidget, public IOxTransparentWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    int closes = 0;
    std::function<void()> whenClosed = [] {
    };

Q_SIGNALS:
    void closeSignal();

protected:
    void closeEvent(QCloseEvent* event) override
    {
        ++closes;
        event->accept();
        whenClosed(); // last: may delete the panel
    }
};

/// Implements the interface without being a widget.
class NoWidget : public IOxTransparentWidget
{ };

/// Counts how often it is closed.
class Container : public OxTransparentContainer
{
public:
    using OxTransparentContainer::OxTransparentContainer;
    int closes = 0;

protected:
    void closeEvent(QCloseEvent* event) override
    {
        ++closes;
        OxTransparentContainer::closeEvent(event);
    }
};

} // namespace

class TestOxTransparentContainer : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterItsClass();
    void takesParentAndFlags();
    void hasALayoutWithoutMargins();
    void dimsTheScreenBelowTheTopStrip();

    void centresTheWindowAndShowsIt();
    void nullAndWhatIsNoWidgetAreIgnored();
    void aPanelAndItsChildrenGetAnOpaqueBackground();
    void theSameWindowTwiceClosesEverythingOnce();
    void aReplacedWindowStaysAliveVisibleAndConnected();
    void aWindowThatDiedCanBeReplaced();

    void closeSignalRemovesTheOverlayAndClosesBoth();
    void theOverlayIsGoneBeforeTheWindowIsClosed();
    void closingWithoutAWindowClosesTheContainer();
    void closingTwiceIsHarmless();
    void aWindowThatDeletesItselfMayCloseTheContainer();
    void aWindowMayDeleteTheContainerWhenItIsClosed();
    void whatDeletesItselfOnCloseIsDeleted();

    void aContainerThatDiesDeletesItsOverlay();
    void aContainerDeletedByItsParentDeletesItsOverlay();
};

void TestOxTransparentContainer::isNamedAfterItsClass()
{
    QCOMPARE(OxTransparentContainer().objectName(), QStringLiteral("OxTransparentContainer"));
}

void TestOxTransparentContainer::takesParentAndFlags()
{
    QWidget parent;
    const OxTransparentContainer child(&parent);
    const OxTransparentContainer window(&parent, Qt::Tool);

    QCOMPARE(child.parentWidget(), &parent);
    QVERIFY(!child.isWindow());
    QCOMPARE(window.windowType(), Qt::Tool);
    QVERIFY(window.testAttribute(Qt::WA_NoSystemBackground));
}

void TestOxTransparentContainer::hasALayoutWithoutMargins()
{
    const OxTransparentContainer container;

    QVERIFY(qobject_cast<QGridLayout*>(container.layout()) != nullptr);
    QCOMPARE(container.layout()->contentsMargins(), QMargins());
}

void TestOxTransparentContainer::dimsTheScreenBelowTheTopStrip()
{
    const OxTransparentContainer container;

    QVERIFY(overlay() != nullptr);
    QVERIFY(overlay()->isVisible());
    QVERIFY(overlay()->isWindow());
    QCOMPARE(overlay()->geometry(), QRect(0, 60, 1024, 540));
    QVERIFY(qAbs(overlay()->windowOpacity() - 0.3) < 1.0 / 255);
    QCOMPARE(overlay()->grab().toImage().pixelColor(0, 0), QColor(Qt::black));
    QVERIFY(!container.isVisible());
}

void TestOxTransparentContainer::centresTheWindowAndShowsIt()
{
    OxTransparentContainer container;
    container.resize(400, 300);
    container.show();
    auto* panel = new Panel;
    panel->setFixedSize(200, 100);

    container.setCenterWindow(panel);

    QCOMPARE(panel->parentWidget(), &container);
    QVERIFY(panel->isVisible());
    QTRY_COMPARE(panel->geometry(), QRect(100, 100, 200, 100));
    auto* grid = qobject_cast<QGridLayout*>(container.layout());
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), panel);
    QCOMPARE(grid->itemAtPosition(0, 0)->alignment(), Qt::Alignment(Qt::AlignCenter));
}

void TestOxTransparentContainer::nullAndWhatIsNoWidgetAreIgnored()
{
    OxTransparentContainer container;
    auto* panel = new Panel;
    container.setCenterWindow(panel);
    NoWidget noWidget;

    container.setCenterWindow(nullptr);
    container.setCenterWindow(&noWidget);

    QCOMPARE(container.layout()->count(), 1);
    QCOMPARE(container.layout()->itemAt(0)->widget(), panel);
}

void TestOxTransparentContainer::aPanelAndItsChildrenGetAnOpaqueBackground()
{
    OxTransparentContainer container;
    auto* panel = new Panel;
    auto* label = new QLabel(QStringLiteral("Width"), panel);
    auto* lineEdit = new QLineEdit(panel);
    auto* grandchild = new QWidget(label);
    new QTimer(panel); // no widget: nothing to make opaque
    QVERIFY(!panel->autoFillBackground());
    QVERIFY(!label->autoFillBackground());

    container.setCenterWindow(panel);

    QVERIFY(panel->autoFillBackground());
    QVERIFY(label->autoFillBackground());
    QVERIFY(lineEdit->autoFillBackground());
    QVERIFY(!grandchild->autoFillBackground());
}

void TestOxTransparentContainer::theSameWindowTwiceClosesEverythingOnce()
{
    Container container;
    auto* panel = new Panel;
    container.setCenterWindow(panel);
    container.setCenterWindow(panel);
    container.show();
    QCOMPARE(container.layout()->count(), 1);

    Q_EMIT panel->closeSignal();

    QCOMPARE(panel->closes, 1);
    QCOMPARE(container.closes, 1);
}

void TestOxTransparentContainer::aReplacedWindowStaysAliveVisibleAndConnected()
{
    Container container;
    auto* first = new Panel;
    auto* second = new Panel;
    container.setCenterWindow(first);
    container.show();

    container.setCenterWindow(second);

    QCOMPARE(container.layout()->count(), 1);
    QCOMPARE(container.layout()->itemAt(0)->widget(), second);
    QCOMPARE(first->parentWidget(), &container);
    QVERIFY(first->isVisible());

    Q_EMIT first->closeSignal();
    QCOMPARE(first->closes, 0);
    QCOMPARE(second->closes, 1);
    QCOMPARE(container.closes, 1);
}

void TestOxTransparentContainer::aWindowThatDiedCanBeReplaced()
{
    OxTransparentContainer container;
    auto first = std::make_unique<Panel>();
    container.setCenterWindow(first.get());
    first.reset();
    auto* second = new Panel;

    container.setCenterWindow(second);

    QCOMPARE(container.layout()->itemAt(0)->widget(), second);
}

void TestOxTransparentContainer::closeSignalRemovesTheOverlayAndClosesBoth()
{
    OxTransparentContainer container;
    auto* panel = new Panel;
    container.setCenterWindow(panel);
    container.show();

    Q_EMIT panel->closeSignal();

    QVERIFY(overlay() == nullptr);
    QCOMPARE(panel->closes, 1);
    QVERIFY(panel->isHidden());
    QVERIFY(!container.isVisible());
}

void TestOxTransparentContainer::theOverlayIsGoneBeforeTheWindowIsClosed()
{
    Container container;
    auto* panel = new Panel;
    container.setCenterWindow(panel);
    container.show();
    bool overlayExisted = true;
    bool containerWasOpen = false;
    panel->whenClosed = [&] {
        overlayExisted = overlay() != nullptr;
        containerWasOpen = container.closes == 0 && container.isVisible();
    };

    container.onClosePressed();

    QCOMPARE(panel->closes, 1);
    QVERIFY(!overlayExisted);
    QVERIFY(containerWasOpen);
}

void TestOxTransparentContainer::closingWithoutAWindowClosesTheContainer()
{
    Container container;
    container.show();

    container.onClosePressed();

    QVERIFY(overlay() == nullptr);
    QCOMPARE(container.closes, 1);
}

void TestOxTransparentContainer::closingTwiceIsHarmless()
{
    OxTransparentContainer container;
    auto* panel = new Panel;
    container.setCenterWindow(panel);
    container.show();

    Q_EMIT panel->closeSignal();
    Q_EMIT panel->closeSignal();

    QVERIFY(overlay() == nullptr);
    QVERIFY(!container.isVisible());
}

void TestOxTransparentContainer::aWindowThatDeletesItselfMayCloseTheContainer()
{
    Container container;
    const QPointer<Panel> panel = new Panel;
    panel->whenClosed = [panel] {
        delete panel.data();
    };
    container.setCenterWindow(panel);
    container.show();

    Q_EMIT panel->closeSignal();

    QVERIFY(panel.isNull());
    QCOMPARE(container.closes, 1);
    container.onClosePressed();
    QVERIFY(!container.isVisible());
}

void TestOxTransparentContainer::aWindowMayDeleteTheContainerWhenItIsClosed()
{
    const QPointer<OxTransparentContainer> container = new OxTransparentContainer;
    const QPointer<Panel> panel = new Panel;
    panel->whenClosed = [container] {
        delete container.data();
    };
    container->setCenterWindow(panel);
    container->show();

    container->onClosePressed();

    QVERIFY(container.isNull());
    QVERIFY(panel.isNull());
    QVERIFY(overlay() == nullptr);
}

void TestOxTransparentContainer::whatDeletesItselfOnCloseIsDeleted()
{
    const QPointer<OxTransparentContainer> container = new OxTransparentContainer;
    container->setAttribute(Qt::WA_DeleteOnClose);
    const QPointer<Panel> panel = new Panel;
    panel->setAttribute(Qt::WA_DeleteOnClose);
    container->setCenterWindow(panel);
    container->show();

    Q_EMIT panel->closeSignal();

    QTRY_VERIFY(panel.isNull());
    QTRY_VERIFY(container.isNull());
}

void TestOxTransparentContainer::aContainerThatDiesDeletesItsOverlay()
{
    auto container = std::make_unique<OxTransparentContainer>();
    const QPointer<OxTransparentOverlay> dimmed = overlay();
    QVERIFY(!dimmed.isNull());

    container.reset();

    QVERIFY(dimmed.isNull());
}

void TestOxTransparentContainer::aContainerDeletedByItsParentDeletesItsOverlay()
{
    auto parent = std::make_unique<QWidget>();
    auto* container = new OxTransparentContainer(parent.get());
    container->setCenterWindow(new Panel);
    QVERIFY(overlay() != nullptr);

    parent.reset();

    QVERIFY(overlay() == nullptr);
}

UW_TEST_MAIN(TestOxTransparentContainer)

#include "tst_oxtransparentcontainer.moc"
