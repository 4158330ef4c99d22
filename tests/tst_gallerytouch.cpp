// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "gallery/pageview.h"

#include "clickableframe.h"
#include "clickablelabel.h"
#include "containertitlebar.h"
#include "support/finger.h"
#include "support/gallerywalk.h"
#include "support/test.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <optional>

/// The gallery by touch points alone.
class TestGalleryTouch : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void tapsReachEveryPage();
    void aFingerOperatesEveryControl_data() { GalleryWalk::addPages(); }
    void aFingerOperatesEveryControl();
    void aControlUnderAnotherIsFound();
    void aControlOutsideOfItsWindowIsFound();
};

namespace {

constexpr int MostDrags = 80; // for one control: more than any list is long
constexpr int DragDistance = 60; // pixels of one drag
/// What a finger needs of a control to find it, in pixels, if the control itself has it.
constexpr int LeastReach = 16;

/// Notes which widgets are pressed while it lives.
class Presses : public QObject
{
public:
    Presses() { qApp->installEventFilter(this); }

    bool include(const QWidget* control) const
    {
        for (const QPointer<QWidget>& widget : m_pressed) {
            if (widget != nullptr && (widget == control || control->isAncestorOf(widget))) {
                return true;
            }
        }
        return false;
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType()) {
            m_pressed.append(static_cast<QWidget*>(watched));
        }
        return false;
    }

private:
    QList<QPointer<QWidget>> m_pressed;
};

/// Where a finger finds `control` without scrolling, in its coordinates.
std::optional<QPoint> reachOf(QWidget* control)
{
    // A control of several widgets shows little of itself.
    QRegion visible = control->visibleRegion();
    const QWidgetList parts = control->findChildren<QWidget*>();
    for (const QWidget* part : parts) {
        if (part->window() == control->window()) {
            visible += part->visibleRegion().translated(part->mapTo(control, QPoint()));
        }
    }
    const QRect area = visible.boundingRect();
    if (area.width() < qMin(LeastReach, control->width())
        || area.height() < qMin(LeastReach, control->height())) {
        return {};
    }
    QWidget* found = control->window()->childAt(control->mapTo(control->window(), area.center()));
    if (found != control && !control->isAncestorOf(found)) {
        return {};
    }
    return area.center();
}

/// One drag over `area` towards `control`; false if nothing moved.
bool drag(TouchFinger& finger, QAbstractScrollArea* area, const QWidget* control)
{
    QWidget* viewport = area->viewport();
    const QPoint before = control->mapTo(viewport, QPoint());
    const QPoint target = control->mapTo(viewport, control->rect().center());
    const auto step = [](int from, int to) {
        return qBound(-DragDistance, from - to, DragDistance);
    };
    finger.press(viewport);
    // First a little, as a finger begins.
    finger.moveBy({ 0, step(viewport->height() / 2, target.y()) / 2 });
    finger.moveBy({ 0, step(viewport->height() / 2, target.y()) / 2 });
    finger.release();
    return control->mapTo(viewport, QPoint()) != before;
}

/// Scrolls with the finger until it finds `control`.
std::optional<QPoint> bringIntoReach(TouchFinger& finger, QWidget* control)
{
    for (QWidget* outer = control->parentWidget(); outer != nullptr;
         outer = outer->parentWidget()) {
        auto* area = qobject_cast<QAbstractScrollArea*>(outer);
        for (int i = 0; area != nullptr && i < MostDrags && !reachOf(control); ++i) {
            if (!drag(finger, area, control)) {
                break;
            }
        }
    }
    return reachOf(control);
}

/// The signal that says that a tap was one; empty for controls that answer in other ways.
QByteArray signalOf(const QWidget* control)
{
    if (qobject_cast<const QAbstractButton*>(control) != nullptr) {
        return SIGNAL(clicked(bool));
    }
    if (qobject_cast<const ClickableLabel*>(control) != nullptr
        || qobject_cast<const ClickableFrame*>(control) != nullptr) {
        return SIGNAL(clicked());
    }
    return {};
}

/// What is wrong with a tap on `control`; empty if nothing is.
QString complaintAbout(QWidget* control)
{
    const QString description = GalleryWalk::describe(control);
    TouchFinger finger;
    const std::optional<QPoint> reach = bringIntoReach(finger, control);
    if (!reach) {
        return QStringLiteral("not reached: ") + description;
    }
    const Presses presses;
    const QPointer<QWidget> alive = control;
    const QByteArray answer = signalOf(control);
    const std::unique_ptr<QSignalSpy> answers(
        answer.isEmpty() ? nullptr : std::make_unique<QSignalSpy>(control, answer.constData()));
    finger.tap(control, *reach);
    if (alive != nullptr && !presses.include(control)) {
        return QStringLiteral("not pressed: ") + description;
    }
    if (answers != nullptr && answers->count() != 1) {
        return QStringLiteral("no answer: ") + description;
    }
    return {};
}

bool canBeTapped(const QPointer<QWidget>& control)
{
    return control != nullptr && control->isVisible() && control->isEnabled();
}

/// The button that closes a dialog or panel.
QWidget* closeButtonOf(const QWidget* window)
{
    const auto buttons = window->findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        if (button->isVisible() && button->accessibleName() == QStringLiteral("Close")) {
            return button;
        }
    }
    return nullptr;
}

/// Looks for the controls of a window that has opened and leaves it by a tap.
GalleryWalk::Visitor::Script leavingScript(QStringList* complaints)
{
    return [complaints](QWidget* window) {
        TouchFinger finger;
        const QWidgetList controls = GalleryWalk::controlsIn(window);
        for (QWidget* control : controls) {
            if (!bringIntoReach(finger, control)) {
                complaints->append(QStringLiteral("not reached: ")
                                   + GalleryWalk::describe(control));
            }
        }
        QWidget* closeButton = closeButtonOf(window);
        finger.tap(closeButton != nullptr ? closeButton : window);
    };
}

} // namespace

void TestGalleryTouch::tapsReachEveryPage()
{
    GalleryWalk::ShownGallery gallery;
    auto* list = gallery.findChild<QListWidget*>(QStringLiteral("GalleryList"));
    for (int row = 0; row < list->count(); ++row) {
        const QListWidgetItem* item = list->item(row);
        if (!item->flags().testFlag(Qt::ItemIsSelectable)) {
            continue; // the heading of a family
        }
        TouchFinger finger;
        const auto isInView = [list, item] {
            const QRect shown = list->visualItemRect(item);
            return shown.top() >= 0 && shown.bottom() < list->viewport()->height();
        };
        for (int i = 0; i < MostDrags && !isInView(); ++i) {
            finger.press(list->viewport());
            finger.moveBy({ 0, -DragDistance / 2 });
            finger.moveBy({ 0, -DragDistance / 2 });
            finger.release();
        }
        finger.tap(list->viewport(), list->visualItemRect(item).center());
        QCOMPARE(gallery.findChild<Gallery::PageView*>()->findChild<QLabel*>()->text(),
                 item->text());
    }
}

void TestGalleryTouch::aFingerOperatesEveryControl()
{
    QFETCH(const QString, page);
    GalleryWalk::ShownGallery gallery(page);
    QWidget* closeButton = closeButtonOf(gallery.findChild<ContainerTitleBar*>());
    QVERIFY(closeButton != nullptr); // it ends the gallery
    QStringList complaints;
    const GalleryWalk::Visitor visitor(&gallery, leavingScript(&complaints));

    const QWidgetList controls = GalleryWalk::controlsIn(&gallery);
    const QList<QPointer<QWidget>> alive(controls.cbegin(), controls.cend());
    for (const QPointer<QWidget>& control : alive) {
        // What was operated before may have changed the page.
        if (!canBeTapped(control) || control == closeButton) {
            continue;
        }
        const auto* button = qobject_cast<QAbstractButton*>(control);
        const bool isToggled = button != nullptr && button->isCheckable()
            && !button->autoExclusive() && button->group() == nullptr;
        QString complaint = complaintAbout(control);
        if (complaint.isEmpty() && isToggled && canBeTapped(control)) {
            complaint = complaintAbout(control); // back, for those that it has disabled
        }
        if (!complaint.isEmpty()) {
            complaints.append(complaint);
        }
        QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
        VERIFY_NONE(visitor.leftOpen());
    }
    VERIFY_NONE(complaints);
}

void TestGalleryTouch::aControlUnderAnotherIsFound()
{
    QWidget window;
    window.resize(200, 100);
    auto* button = new QPushButton(QStringLiteral("Below"), &window);
    button->setGeometry(20, 20, 100, 40);
    auto* cover = new QLabel(&window);
    cover->setGeometry(0, 0, 200, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(complaintAbout(button).startsWith(QStringLiteral("not reached")));
    cover->hide();
    QCOMPARE(complaintAbout(button), QString());
}

void TestGalleryTouch::aControlOutsideOfItsWindowIsFound()
{
    QWidget window;
    window.resize(200, 100);
    auto* button = new QPushButton(QStringLiteral("Far"), &window);
    button->setGeometry(20, 95, 100, 40);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(complaintAbout(button).startsWith(QStringLiteral("not reached")));
}

UW_TEST_MAIN(TestGalleryTouch)

#include "tst_gallerytouch.moc"
