// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "dragscrollbutton.h"
#include "dragscrolllistview.h"
#include "dragscrolllistwidget.h"
#include "dragscrolltableview.h"
#include "dragscrolltreeview.h"

#include "support/finger.h"
#include "support/modaldialog.h"
#include "support/test.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QMouseEvent>
#include <QPointer>
#include <QPointingDevice>
#include <QProxyStyle>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QWindow>

#include <functional>
#include <memory>

namespace {

constexpr int Rows = 100;
constexpr int Columns = 6;

/// What the four classes have in common, though they share no base that would say so.
struct Subject
{
    std::unique_ptr<QWidget> window;
    QAbstractItemView* view = nullptr;
    std::function<void(bool)> setHorizontalMovementEnabled;
    std::function<void(int, int, QScrollBar*)> setSliderPosition;
    const char* focusLost = nullptr;

    QScrollBar* vertical() const { return view->verticalScrollBar(); }
    QScrollBar* horizontal() const { return view->horizontalScrollBar(); }
    /// Where a finger has room in every direction.
    QPoint middle() const { return view->viewport()->rect().center(); }
};

template <typename View> QStandardItemModel* createModel(View* view)
{
    auto* model = new QStandardItemModel(Rows, Columns, view);
    for (int row = 0; row < Rows; ++row) {
        for (int column = 0; column < Columns; ++column) {
            auto* item = new QStandardItem(QStringLiteral("%1 of the rows, ").arg(row).repeated(8));
            item->setCheckable(true);
            model->setItem(row, column, item);
        }
    }
    return model;
}

void fill(DragScrollListWidget* list)
{
    for (int row = 0; row < Rows; ++row) {
        auto* item =
            new QListWidgetItem(QStringLiteral("%1 of the rows, ").arg(row).repeated(8), list);
        item->setCheckState(Qt::Unchecked);
    }
}

template <typename View> void fill(View* view)
{
    view->setModel(createModel(view));
}

template <typename View> Subject createSubject()
{
    Subject subject;
    subject.window = std::make_unique<QWidget>();
    subject.window->setGeometry(0, 0, 420, 420);
    auto* view = new View(subject.window.get());
    view->setGeometry(60, 60, 300, 300);
    fill(view);
    subject.view = view;
    subject.setHorizontalMovementEnabled = [view](bool on) {
        view->setHorizontalMovementEnabled(on);
    };
    subject.setSliderPosition = [view](int previous, int current, QScrollBar* bar) {
        view->setSliderPosition(previous, current, bar);
    };
    subject.focusLost = SIGNAL(focusLost());
    return subject;
}

using MakeSubject = Subject (*)();
using MakeFinger = std::unique_ptr<Finger> (*)();

std::unique_ptr<Finger> mouse()
{
    return std::make_unique<Finger>();
}

std::unique_ptr<Finger> touch()
{
    return std::make_unique<TouchFinger>();
}

const struct
{
    const char* name;
    MakeSubject make;
} Views[] = {
    { "list view", createSubject<DragScrollListView> },
    { "list widget", createSubject<DragScrollListWidget> },
    { "table view", createSubject<DragScrollTableView> },
    { "tree view", createSubject<DragScrollTreeView> },
};

void addViewRows()
{
    QTest::addColumn<MakeSubject>("make");
    for (const auto& view : Views) {
        QTest::newRow(view.name) << view.make;
    }
}

void addFingerRows()
{
    QTest::addColumn<MakeSubject>("make");
    QTest::addColumn<MakeFinger>("makeFinger");
    for (const auto& view : Views) {
        QTest::addRow("%s, mouse", view.name) << view.make << &mouse;
        QTest::addRow("%s, touch", view.name) << view.make << &touch;
    }
}

/// The style in which one tap activates an item, or folds a branch when its mark is released.
class HintStyle : public QProxyStyle
{
public:
    HintStyle(StyleHint hint, int answer)
        : m_hint(hint)
        , m_answer(answer)
    { }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override
    {
        return hint == m_hint ? m_answer : QProxyStyle::styleHint(hint, option, widget, returned);
    }

private:
    StyleHint m_hint;
    int m_answer;
};

void sendMouse(QWidget* widget, QEvent::Type type, const QPoint& at, Qt::MouseButton button)
{
    QMouseEvent event(type, at, widget->mapToGlobal(at), button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

} // namespace

Q_DECLARE_METATYPE(MakeSubject)
Q_DECLARE_METATYPE(MakeFinger)

// Shows a subject of the current row with a finger on it.
#define SHOW_SUBJECT                                                                               \
    QFETCH(MakeSubject, make);                                                                     \
    const Subject subject = make();                                                                \
    QAbstractItemView* const view = subject.view;                                                  \
    subject.window->show();                                                                        \
    QVERIFY(QTest::qWaitForWindowExposed(subject.window.get()));                                   \
    QVERIFY(subject.vertical()->maximum() > 1000);                                                 \
    QVERIFY(subject.horizontal()->maximum() > 100)

#define SHOW_SUBJECT_AND_FINGER                                                                    \
    SHOW_SUBJECT;                                                                                  \
    QFETCH(MakeFinger, makeFinger);                                                                \
    const std::unique_ptr<Finger> finger = makeFinger()

class TestDragScrollViews : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void haveTheirObjectNamesAndScrollByPixels_data();
    void haveTheirObjectNamesAndScrollByPixels();
    void theCornerOfATableHasAName();
    void setSliderPositionMovesAnyBarWithinItsRange_data() { addViewRows(); }
    void setSliderPositionMovesAnyBarWithinItsRange();

    void tapSelectsAndClicksOnce_data() { addFingerRows(); }
    void tapSelectsAndClicksOnce();
    void contentFollowsTheFingerFromTheFirstPixel_data() { addFingerRows(); }
    void contentFollowsTheFingerFromTheFirstPixel();
    void dragOfTenPixelsClicksAndOfElevenDoesNot_data();
    void dragOfTenPixelsClicksAndOfElevenDoesNot();
    void horizontalDragIsATapUnlessEnabled_data() { addFingerRows(); }
    void horizontalDragIsATapUnlessEnabled();
    void enabledHorizontalDragScrollsAndSwallowsTheClick_data() { addFingerRows(); }
    void enabledHorizontalDragScrollsAndSwallowsTheClick();
    void horizontalMovementEnabledMidwayStartsFromTheFinger_data() { addViewRows(); }
    void horizontalMovementEnabledMidwayStartsFromTheFinger();
    void dragBeyondTheTopStaysThereAndScrollsBackAtOnce_data() { addFingerRows(); }
    void dragBeyondTheTopStaysThereAndScrollsBackAtOnce();
    void dragBeyondTheBottomStaysThere_data() { addFingerRows(); }
    void dragBeyondTheBottomStaysThere();
    void fingerThatReturnsToItsStartHasDragged_data() { addFingerRows(); }
    void fingerThatReturnsToItsStartHasDragged();
    void dragKeepsTheSelectionOfItsPress_data() { addFingerRows(); }
    void dragKeepsTheSelectionOfItsPress();
    void dragKeepsAllThatWasSelected_data() { addFingerRows(); }
    void dragKeepsAllThatWasSelected();
    void movingSelectsNoRange_data() { addFingerRows(); }
    void movingSelectsNoRange();
    void releaseOutsideTheViewEndsTheDrag_data() { addFingerRows(); }
    void releaseOutsideTheViewEndsTheDrag();
    void dragActivatesNothing_data() { addFingerRows(); }
    void dragActivatesNothing();
    void dragTogglesNoCheckBox_data() { addFingerRows(); }
    void dragTogglesNoCheckBox();
    void dragLeavesSignalsAsBlockedAsTheyWere_data() { addViewRows(); }
    void dragLeavesSignalsAsBlockedAsTheyWere();
    void mayBeDeletedByASlotOfItsScrollBars_data() { addViewRows(); }
    void mayBeDeletedByASlotOfItsScrollBars();
    void mayBeDeletedDuringTheReleaseOfADrag_data();
    void mayBeDeletedDuringTheReleaseOfADrag();
    void secondPressKeepsThePressPoint_data() { addViewRows(); }
    void secondPressKeepsThePressPoint();
    void doubleClickStartsAGesture_data() { addViewRows(); }
    void doubleClickStartsAGesture();
    void moveWithoutAPressDoesNothing_data() { addViewRows(); }
    void moveWithoutAPressDoesNothing();
    void secondFingerDoesNotDisturbTheFirst_data() { addViewRows(); }
    void secondFingerDoesNotDisturbTheFirst();
    void losesItsGestureWhenHidden_data() { addViewRows(); }
    void losesItsGestureWhenHidden();
    void losesItsGestureWhenDisabled_data() { addViewRows(); }
    void losesItsGestureWhenDisabled();
    void losesItsGestureToAModalDialog_data() { addViewRows(); }
    void losesItsGestureToAModalDialog();
    void focusLostFollowsTheBaseClass_data() { addViewRows(); }
    void focusLostFollowsTheBaseClass();

    void itemThatIsPartlyHiddenStaysUnderASlowFinger_data() { addViewRows(); }
    void itemThatIsPartlyHiddenStaysUnderASlowFinger();
    void buttonDeepInAnIndexWidgetIsTappedAndDragged_data() { addFingerRows(); }
    void buttonDeepInAnIndexWidgetIsTappedAndDragged();
    void indexWidgetThatIsPartlyHiddenStaysUnderTheFinger_data() { addFingerRows(); }
    void indexWidgetThatIsPartlyHiddenStaysUnderTheFinger();
    void comboBoxPopupStartsEachGestureAfresh();
    void listWidgetEmitsNoneOfItsOwnSignalsAfterADrag();
    void treeFoldsNothingByTheMouse();
    void treeDragFoldsNothingInAStyleThatFoldsOnRelease();
};

void TestDragScrollViews::haveTheirObjectNamesAndScrollByPixels_data()
{
    QTest::addColumn<MakeSubject>("make");
    QTest::addColumn<QString>("name");
    const QString shared = QStringLiteral("DragScrollListView");
    QTest::newRow("list view") << Views[0].make << shared;
    QTest::newRow("list widget") << Views[1].make << shared;
    QTest::newRow("table view") << Views[2].make << shared;
    QTest::newRow("tree view") << Views[3].make << QStringLiteral("DragScrollTreeView");
}

void TestDragScrollViews::haveTheirObjectNamesAndScrollByPixels()
{
    QFETCH(MakeSubject, make);
    QFETCH(QString, name);
    const Subject subject = make();
    QCOMPARE(subject.view->objectName(), name);
    QCOMPARE(subject.view->verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
    QCOMPARE(subject.view->horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
}

void TestDragScrollViews::theCornerOfATableHasAName()
{
    const DragScrollTableView table;
    QCOMPARE(table.findChild<QAbstractButton*>()->accessibleName(), QStringLiteral("Select all"));
}

void TestDragScrollViews::setSliderPositionMovesAnyBarWithinItsRange()
{
    QFETCH(MakeSubject, make);
    const Subject subject = make();
    QScrollBar bar;
    bar.setRange(-10, 90);

    subject.setSliderPosition(30, 20, &bar);
    QCOMPARE(bar.sliderPosition(), 10);
    subject.setSliderPosition(20, 35, &bar);
    QCOMPARE(bar.sliderPosition(), -5);
    subject.setSliderPosition(0, 1000, &bar);
    QCOMPARE(bar.sliderPosition(), -10);
    subject.setSliderPosition(1000, 0, &bar);
    QCOMPARE(bar.sliderPosition(), 90);
}

void TestDragScrollViews::tapSelectsAndClicksOnce()
{
    SHOW_SUBJECT_AND_FINGER;
    QSignalSpy clicked(view, &QAbstractItemView::clicked);

    finger->press(view->viewport(), subject.middle());
    const QModelIndex under = view->indexAt(subject.middle());
    QVERIFY(under.isValid());
    QVERIFY(view->selectionModel()->isSelected(under));
    QCOMPARE(clicked.count(), 0);
    finger->release();

    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.first().first().toModelIndex(), under);
}

void TestDragScrollViews::contentFollowsTheFingerFromTheFirstPixel()
{
    SHOW_SUBJECT_AND_FINGER;
    subject.vertical()->setValue(500);
    subject.horizontal()->setValue(50);

    finger->press(view->viewport(), subject.middle());
    const QRect item = view->visualRect(view->indexAt(subject.middle()));
    for (const int step : { -1, -1, 1, 2, -30, 40, 1 }) {
        const int before = subject.vertical()->sliderPosition();
        finger->moveBy(QPoint(3, step));
        QCOMPARE(subject.vertical()->sliderPosition(), before - step);
    }
    finger->release();

    QCOMPARE(view->visualRect(view->currentIndex()), item.translated(0, 12));
    QCOMPARE(subject.horizontal()->value(), 50);
}

void TestDragScrollViews::dragOfTenPixelsClicksAndOfElevenDoesNot_data()
{
    QTest::addColumn<MakeSubject>("make");
    QTest::addColumn<MakeFinger>("makeFinger");
    QTest::addColumn<int>("distance");
    QTest::addColumn<int>("clicks");
    for (const auto& view : Views) {
        for (const auto& [name, finger] :
             { std::pair("mouse", &mouse), std::pair("touch", &touch) }) {
            for (const auto& [distance, clicks] :
                 { std::pair(10, 1), std::pair(-10, 1), std::pair(11, 0), std::pair(-11, 0) }) {
                QTest::addRow("%s, %s, %d pixels", view.name, name, distance)
                    << view.make << finger << distance << clicks;
            }
        }
    }
}

void TestDragScrollViews::dragOfTenPixelsClicksAndOfElevenDoesNot()
{
    SHOW_SUBJECT_AND_FINGER;
    QFETCH(int, distance);
    QFETCH(int, clicks);
    subject.vertical()->setValue(500);
    QSignalSpy clicked(view, &QAbstractItemView::clicked);

    finger->press(view->viewport(), subject.middle());
    finger->moveBy(QPoint(0, distance));
    finger->release();

    QCOMPARE(subject.vertical()->value(), 500 - distance);
    QCOMPARE(clicked.count(), clicks);

    // And what comes after is a gesture of its own.
    finger->tap(view->viewport(), subject.middle() + QPoint(0, 60));
    QCOMPARE(clicked.count(), clicks + 1);
    QCOMPARE(subject.vertical()->value(), 500 - distance);
}

void TestDragScrollViews::horizontalDragIsATapUnlessEnabled()
{
    SHOW_SUBJECT_AND_FINGER;
    subject.vertical()->setValue(500);
    subject.horizontal()->setValue(50);
    // A table's columns end under a finger that moves sideways: it must still be over its cell.
    if (auto* table = qobject_cast<QTableView*>(view)) {
        table->setColumnWidth(0, 2000);
    }
    if (auto* tree = qobject_cast<QTreeView*>(view)) {
        tree->setColumnWidth(0, 2000);
    }
    QSignalSpy clicked(view, &QAbstractItemView::clicked);

    finger->press(view->viewport(), subject.middle());
    finger->moveBy(QPoint(-11, 0));
    finger->moveBy(QPoint(-100, 0));
    finger->release();

    QCOMPARE(clicked.count(), 1);
    QCOMPARE(subject.vertical()->value(), 500);
    QCOMPARE(subject.horizontal()->value(), 50);
}

void TestDragScrollViews::enabledHorizontalDragScrollsAndSwallowsTheClick()
{
    SHOW_SUBJECT_AND_FINGER;
    subject.horizontal()->setValue(50);
    subject.setHorizontalMovementEnabled(true);
    QCOMPARE(subject.horizontal()->value(), 50);
    QSignalSpy clicked(view, &QAbstractItemView::clicked);

    finger->press(view->viewport(), subject.middle());
    finger->moveBy(QPoint(-10, 0));
    finger->release();
    QCOMPARE(subject.horizontal()->value(), 60);
    QCOMPARE(clicked.count(), 1);

    finger->press(view->viewport(), subject.middle() + QPoint(0, 60));
    finger->moveBy(QPoint(11, 0));
    finger->release();
    QCOMPARE(subject.horizontal()->value(), 49);
    QCOMPARE(clicked.count(), 1);
}

void TestDragScrollViews::horizontalMovementEnabledMidwayStartsFromTheFinger()
{
    SHOW_SUBJECT;
    Finger finger;
    subject.horizontal()->setValue(50);

    finger.press(view->viewport(), subject.middle());
    finger.moveBy(QPoint(-30, 0));
    subject.setHorizontalMovementEnabled(true);
    finger.moveBy(QPoint(-5, 0));
    finger.release();

    QCOMPARE(subject.horizontal()->value(), 55);
}

void TestDragScrollViews::dragBeyondTheTopStaysThereAndScrollsBackAtOnce()
{
    SHOW_SUBJECT_AND_FINGER;
    subject.vertical()->setValue(20);

    finger->press(view->viewport(), subject.middle());
    finger->moveBy(QPoint(0, 100));
    QCOMPARE(subject.vertical()->sliderPosition(), subject.vertical()->minimum());
    finger->moveBy(QPoint(0, 50));
    QCOMPARE(subject.vertical()->sliderPosition(), subject.vertical()->minimum());
    finger->moveBy(QPoint(0, -1));
    QCOMPARE(subject.vertical()->sliderPosition(), subject.vertical()->minimum() + 1);
    finger->release();
}

void TestDragScrollViews::dragBeyondTheBottomStaysThere()
{
    SHOW_SUBJECT_AND_FINGER;
    subject.vertical()->setValue(subject.vertical()->maximum() - 5);

    finger->press(view->viewport(), subject.middle());
    finger->moveBy(QPoint(0, -100));
    QCOMPARE(subject.vertical()->sliderPosition(), subject.vertical()->maximum());
    finger->moveBy(QPoint(0, 1));
    QCOMPARE(subject.vertical()->sliderPosition(), subject.vertical()->maximum() - 1);
    finger->release();
}

void TestDragScrollViews::fingerThatReturnsToItsStartHasDragged()
{
    SHOW_SUBJECT_AND_FINGER;
    subject.vertical()->setValue(500);
    QSignalSpy clicked(view, &QAbstractItemView::clicked);

    finger->press(view->viewport(), subject.middle());
    finger->moveBy(QPoint(0, -60));
    finger->moveBy(QPoint(0, 60));
    finger->release();

    QCOMPARE(subject.vertical()->value(), 500);
    QCOMPARE(clicked.count(), 0);
}

void TestDragScrollViews::dragKeepsTheSelectionOfItsPress()
{
    SHOW_SUBJECT_AND_FINGER;
    finger->press(view->viewport(), subject.middle());
    const QModelIndex pressed = view->indexAt(subject.middle());
    finger->moveBy(QPoint(0, -100));
    finger->release();

    QVERIFY(view->selectionModel()->isSelected(pressed));
    QCOMPARE(view->currentIndex(), pressed);
}

void TestDragScrollViews::dragKeepsAllThatWasSelected()
{
    SHOW_SUBJECT_AND_FINGER;
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    const QModelIndex pressed = view->indexAt(subject.middle());
    const QItemSelection selection(pressed.siblingAtRow(pressed.row() - 1),
                                   pressed.siblingAtRow(pressed.row() + 1));
    view->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    QSignalSpy changed(view->selectionModel(), &QItemSelectionModel::selectionChanged);

    finger->press(view->viewport(), subject.middle());
    finger->moveBy(QPoint(0, -30));
    finger->release();
    QCOMPARE(changed.count(), 0);
    QCOMPARE(view->selectionModel()->selection().indexes().count(), 3);

    finger->tap(view->viewport(), subject.middle() - QPoint(0, 30));
    QVERIFY(view->selectionModel()->isSelected(pressed));
    QVERIFY(!view->selectionModel()->isSelected(pressed.siblingAtRow(pressed.row() - 1)));
}

void TestDragScrollViews::movingSelectsNoRange()
{
    SHOW_SUBJECT_AND_FINGER;
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->setSelectionBehavior(QAbstractItemView::SelectItems);
    view->setDragEnabled(true);
    // At the end of the list the finger passes over other items.
    finger->press(view->viewport(), subject.middle());
    const QModelIndex pressed = view->indexAt(subject.middle());
    for (int step = 0; step < 10; ++step) {
        finger->moveBy(QPoint(0, 10));
    }
    finger->release();

    QCOMPARE(view->selectionModel()->selectedIndexes(), QModelIndexList { pressed });
}

void TestDragScrollViews::releaseOutsideTheViewEndsTheDrag()
{
    SHOW_SUBJECT_AND_FINGER;
    subject.vertical()->setValue(500);
    QSignalSpy clicked(view, &QAbstractItemView::clicked);

    finger->press(view->viewport(), subject.middle());
    finger->moveTo(subject.window->mapToGlobal(QPoint(10, 10)));
    const int scrolled = subject.vertical()->value();
    QVERIFY(scrolled > 600);
    finger->release();
    QCOMPARE(clicked.count(), 0);

    finger->press(view->viewport(), subject.middle());
    finger->moveBy(QPoint(0, -1));
    QCOMPARE(subject.vertical()->value(), scrolled + 1);
    finger->release();
    QCOMPARE(clicked.count(), 1);
}

void TestDragScrollViews::dragActivatesNothing()
{
    HintStyle style(QStyle::SH_ItemView_ActivateItemOnSingleClick, 1);
    SHOW_SUBJECT_AND_FINGER;
    view->setStyle(&style);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    QSignalSpy activated(view, &QAbstractItemView::activated);

    finger->tap(view->viewport(), subject.middle());
    QCOMPARE(activated.count(), 1);
    finger->press(view->viewport(), subject.middle() + QPoint(0, 60));
    finger->moveBy(QPoint(0, -11));
    finger->release();
    QCOMPARE(activated.count(), 1);
}

void TestDragScrollViews::dragTogglesNoCheckBox()
{
    SHOW_SUBJECT_AND_FINGER;
    const auto checkBoxNear = [&](const QPoint& at) {
        const QRect item = view->visualRect(view->indexAt(at));
        return QPoint(item.left() + 10, item.center().y());
    };
    const auto stateAt = [&](const QPoint& at) {
        return view->indexAt(at).data(Qt::CheckStateRole).value<Qt::CheckState>();
    };

    // A tap does toggle: this is where the box is.
    const QPoint tapped = checkBoxNear(QPoint(10, 100));
    finger->tap(view->viewport(), tapped);
    QCOMPARE(stateAt(tapped), Qt::Checked);

    const QPoint dragged = checkBoxNear(QPoint(10, 200));
    const QModelIndex underTheFinger = view->indexAt(dragged);
    finger->press(view->viewport(), dragged);
    finger->moveBy(QPoint(0, -50));
    finger->release();
    QCOMPARE(view->indexAt(dragged - QPoint(0, 50)), underTheFinger);
    QCOMPARE(stateAt(dragged - QPoint(0, 50)), Qt::Unchecked);
}

void TestDragScrollViews::dragLeavesSignalsAsBlockedAsTheyWere()
{
    SHOW_SUBJECT;
    for (const bool blocked : { false, true }) {
        view->blockSignals(blocked);
        Finger finger;
        finger.press(view->viewport(), subject.middle());
        finger.moveBy(QPoint(0, -20));
        QCOMPARE(view->signalsBlocked(), blocked);
        finger.release();
        QCOMPARE(view->signalsBlocked(), blocked);
    }
}

void TestDragScrollViews::mayBeDeletedByASlotOfItsScrollBars()
{
    for (const Qt::Orientation scrolled : { Qt::Vertical, Qt::Horizontal }) {
        SHOW_SUBJECT;
        subject.setHorizontalMovementEnabled(true);
        const QPointer<QAbstractItemView> alive(view);
        QScrollBar* bar = scrolled == Qt::Vertical ? subject.vertical() : subject.horizontal();
        connect(bar, &QScrollBar::valueChanged, subject.window.get(), [view] { delete view; });
        Finger finger;
        finger.press(view->viewport(), subject.middle());
        finger.moveBy(QPoint(-20, -20));
        QVERIFY(!alive);
        finger.release();
    }
}

namespace {

/// What deletes its view when it is offered the release of a finger.
class FatalDelegate : public QStyledItemDelegate
{
public:
    explicit FatalDelegate(QAbstractItemView* view)
        : m_view(view)
    { }

    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override
    {
        if (event->type() == QEvent::MouseButtonRelease) {
            delete m_view;
            return false;
        }
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    }

private:
    const QPointer<QAbstractItemView> m_view;
};

/// A view with an editor open, which offers its delegate every release.
template <typename View> class EditingView : public View
{
public:
    using View::View;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        this->setState(QAbstractItemView::EditingState);
        View::mouseReleaseEvent(event);
    }
};

} // namespace

void TestDragScrollViews::mayBeDeletedDuringTheReleaseOfADrag_data()
{
    QTest::addColumn<MakeSubject>("make");
    // The lists have more to do after their delegates, in the toolkit's own code.
    QTest::newRow("table view") << MakeSubject(createSubject<EditingView<DragScrollTableView>>);
    QTest::newRow("tree view") << MakeSubject(createSubject<EditingView<DragScrollTreeView>>);
}

void TestDragScrollViews::mayBeDeletedDuringTheReleaseOfADrag()
{
    SHOW_SUBJECT;
    const QPointer<QAbstractItemView> alive(view);
    FatalDelegate delegate(view);
    view->setItemDelegate(&delegate);
    Finger finger;
    finger.press(view->viewport(), subject.middle());
    finger.moveBy(QPoint(0, -20));
    QVERIFY(alive);
    finger.release();
    QVERIFY(!alive);
}

void TestDragScrollViews::secondPressKeepsThePressPoint()
{
    SHOW_SUBJECT;
    subject.vertical()->setValue(500);
    QSignalSpy clicked(view, &QAbstractItemView::clicked);
    QWidget* viewport = view->viewport();
    const QPoint start = subject.middle();

    sendMouse(viewport, QEvent::MouseButtonPress, start, Qt::LeftButton);
    sendMouse(viewport, QEvent::MouseMove, start - QPoint(0, 8), Qt::NoButton);
    sendMouse(viewport, QEvent::MouseButtonPress, start - QPoint(0, 8), Qt::LeftButton);
    sendMouse(viewport, QEvent::MouseMove, start - QPoint(0, 11), Qt::NoButton);
    sendMouse(viewport, QEvent::MouseButtonRelease, start - QPoint(0, 11), Qt::LeftButton);

    QCOMPARE(subject.vertical()->value(), 511);
    QCOMPARE(clicked.count(), 0); // 11 pixels from the first press, 3 from the second
}

void TestDragScrollViews::doubleClickStartsAGesture()
{
    SHOW_SUBJECT;
    subject.vertical()->setValue(500);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    QWidget* viewport = view->viewport();
    Finger finger;
    finger.tap(viewport, subject.middle());
    QSignalSpy clicked(view, &QAbstractItemView::clicked);
    QSignalSpy doubleClicked(view, &QAbstractItemView::doubleClicked);

    sendMouse(viewport, QEvent::MouseButtonDblClick, subject.middle(), Qt::LeftButton);
    QCOMPARE(doubleClicked.count(), 1);
    sendMouse(viewport, QEvent::MouseMove, subject.middle() - QPoint(0, 20), Qt::NoButton);
    QCOMPARE(subject.vertical()->value(), 520);
    sendMouse(viewport, QEvent::MouseButtonRelease, subject.middle() - QPoint(0, 20),
              Qt::LeftButton);
    QCOMPARE(clicked.count(), 0);

    sendMouse(viewport, QEvent::MouseMove, subject.middle(), Qt::NoButton);
    QCOMPARE(subject.vertical()->value(), 520);
}

void TestDragScrollViews::moveWithoutAPressDoesNothing()
{
    SHOW_SUBJECT;
    view->setMouseTracking(true);
    view->viewport()->setMouseTracking(true);
    subject.vertical()->setValue(500);
    QSignalSpy entered(view, &QAbstractItemView::entered);

    QTest::mouseMove(subject.window->windowHandle(), QPoint(100, 100));
    QTest::mouseMove(subject.window->windowHandle(), QPoint(100, 200));

    QCOMPARE(subject.vertical()->value(), 500);
    QCOMPARE(entered.count(), 0);
}

void TestDragScrollViews::secondFingerDoesNotDisturbTheFirst()
{
    SHOW_SUBJECT;
    subject.vertical()->setValue(500);
    QSignalSpy clicked(view, &QAbstractItemView::clicked);
    QWindow* window = subject.window->windowHandle();
    static QPointingDevice* touchScreen = QTest::createTouchDevice();
    const QPoint first = view->viewport()->mapTo(subject.window.get(), subject.middle());
    const QPoint second(80, 80);
    const QPoint up(0, -20);

    auto fingers = QTest::touchEvent(window, touchScreen, false);
    fingers.press(1, first, window).commit();
    fingers.move(1, first + up, window).commit();
    fingers.stationary(1).press(2, second, window).commit();
    fingers.stationary(1).move(2, second - 5 * up, window).commit();
    fingers.stationary(1).release(2, second - 5 * up, window).commit();
    fingers.move(1, first + 2 * up, window).commit();
    fingers.release(1, first + 2 * up, window).commit();

    QCOMPARE(subject.vertical()->value(), 540);
    QCOMPARE(clicked.count(), 0);
}

void TestDragScrollViews::losesItsGestureWhenHidden()
{
    SHOW_SUBJECT;
    Finger finger;
    finger.press(view->viewport(), subject.middle());
    finger.moveBy(QPoint(0, -50));
    view->hide();
    finger.release();
    view->show();

    QSignalSpy clicked(view, &QAbstractItemView::clicked);
    const int before = subject.vertical()->value();
    finger.press(view->viewport(), subject.middle());
    finger.moveBy(QPoint(0, -3));
    finger.release();
    QCOMPARE(subject.vertical()->value(), before + 3);
    QCOMPARE(clicked.count(), 1);
}

void TestDragScrollViews::losesItsGestureWhenDisabled()
{
    SHOW_SUBJECT;
    Finger finger;
    finger.press(view->viewport(), subject.middle());
    finger.moveBy(QPoint(0, -50));
    view->setEnabled(false);
    finger.release();
    view->setEnabled(true);

    QSignalSpy clicked(view, &QAbstractItemView::clicked);
    const int before = subject.vertical()->value();
    finger.press(view->viewport(), subject.middle());
    finger.moveBy(QPoint(0, -3));
    finger.release();
    QCOMPARE(subject.vertical()->value(), before + 3);
    QCOMPARE(clicked.count(), 1);
}

void TestDragScrollViews::losesItsGestureToAModalDialog()
{
    SHOW_SUBJECT;
    QDialog warning(subject.window.get());
    Finger finger;
    const auto connection = connect(view->selectionModel(), &QItemSelectionModel::selectionChanged,
                                    &warning, [&] { warning.exec(); });
    whileModal<QDialog>([&] { finger.press(view->viewport(), subject.middle()); },
                        [](QDialog* dialog) {
                            Finger onTheDialog;
                            onTheDialog.tap(dialog);
                            dialog->accept();
                        });
    disconnect(connection);

    QSignalSpy clicked(view, &QAbstractItemView::clicked);
    const int before = subject.vertical()->value();
    finger.press(view->viewport(), subject.middle() + QPoint(0, 60));
    finger.moveBy(QPoint(0, -3));
    finger.release();
    QCOMPARE(subject.vertical()->value(), before + 3);
    QCOMPARE(clicked.count(), 1);
}

void TestDragScrollViews::focusLostFollowsTheBaseClass()
{
    SHOW_SUBJECT;
    auto* other = new QWidget(subject.window.get());
    other->setFocusPolicy(Qt::StrongFocus);
    other->setGeometry(0, 0, 20, 20);
    other->show();
    subject.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(subject.window.get()));
    QSignalSpy focusLost(view, subject.focusLost);

    view->setFocus();
    QTRY_VERIFY(view->hasFocus());
    QCOMPARE(focusLost.count(), 0);
    Finger().tap(other);
    QVERIFY(!view->hasFocus());
    QCOMPARE(focusLost.count(), 1);
}

void TestDragScrollViews::itemThatIsPartlyHiddenStaysUnderASlowFinger()
{
    SHOW_SUBJECT;
    subject.vertical()->setValue(500);
    const int top = view->visualRect(view->indexAt(QPoint(5, 5))).top();
    subject.vertical()->setValue(500 + view->visualRect(view->indexAt(QPoint(5, 5))).height() + top
                                 - 3); // three pixels of the first item are left
    const int before = subject.vertical()->value();
    QSignalSpy clicked(view, &QAbstractItemView::clicked);
    Finger finger;
    finger.press(view->viewport(), QPoint(5, 1));
    // What the view would do of itself is due before this timer, which is started later.
    QTimer later;
    later.setSingleShot(true);
    QSignalSpy held(&later, &QTimer::timeout);
    later.start(QApplication::doubleClickInterval() + 150);
    QVERIFY(held.wait());
    QCOMPARE(subject.vertical()->value(), before);
    finger.release();
    QCOMPARE(clicked.count(), 1);
}

void TestDragScrollViews::buttonDeepInAnIndexWidgetIsTappedAndDragged()
{
    SHOW_SUBJECT_AND_FINGER;
    subject.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(subject.window.get()));
    const QModelIndex index = view->model()->index(2, 0);
    view->model()->setData(index, QSize(250, 60), Qt::SizeHintRole);
    auto* area = new QScrollArea; // takes the focus, which its button needs for a click
    auto* button = new DragScrollButton(QStringLiteral("Up"));
    area->setWidget(button);
    view->setIndexWidget(index, area);
    view->doItemsLayout();
    button->setGeometry(area->rect());
    QSignalSpy clicked(button, &QPushButton::clicked);

    finger->tap(button, QPoint(20, 5));
    QCOMPARE(clicked.count(), 1);
    QVERIFY(button->hasFocus());
    finger->press(button, QPoint(20, 5));
    finger->moveBy(QPoint(0, -20));
    finger->release();
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(subject.vertical()->value(), 20);
}

void TestDragScrollViews::indexWidgetThatIsPartlyHiddenStaysUnderTheFinger()
{
    SHOW_SUBJECT_AND_FINGER;
    subject.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(subject.window.get()));
    const QModelIndex index = view->model()->index(4, 0);
    auto* button = new DragScrollButton(QStringLiteral("Up"));
    view->setIndexWidget(index, button);
    subject.vertical()->setValue(subject.vertical()->value()
                                 + view->visualRect(index).center().y());
    const int scrolled = subject.vertical()->value();
    QSignalSpy clicked(button, &QPushButton::clicked);

    finger->press(button, QPoint(20, button->height() - 3));
    QCOMPARE(subject.vertical()->value(), scrolled);
    QVERIFY(button->hasFocus());
    finger->release();
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(subject.vertical()->value(), scrolled);
    QVERIFY(view->hasAutoScroll());
}

void TestDragScrollViews::comboBoxPopupStartsEachGestureAfresh()
{
    // The popup of a combo box closes on the release, which its view then never gets.
    QWidget window;
    window.setGeometry(0, 0, 400, 400);
    auto* box = new QComboBox(&window);
    box->setMaxVisibleItems(5);
    for (int item = 0; item < 200; ++item) {
        box->addItem(QString::number(item));
    }
    auto* list = new DragScrollListView(box);
    box->setView(list);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    const auto openAndPress = [&](const QPoint& at) {
        box->showPopup();
        if (!QTest::qWaitForWindowExposed(list->window())) {
            qFatal("the popup did not open");
        }
        list->verticalScrollBar()->setValue(100); // first, as arrows then come up and move the list
        sendMouse(list->viewport(), QEvent::MouseButtonPress, at, Qt::LeftButton);
    };
    openAndPress(QPoint(20, 10));
    box->hidePopup();
    QTRY_VERIFY(!list->isVisible());

    openAndPress(QPoint(20, 60));
    sendMouse(list->viewport(), QEvent::MouseMove, QPoint(20, 57), Qt::NoButton);
    QCOMPARE(list->verticalScrollBar()->value(), 103);
    box->hidePopup();
    QTRY_VERIFY(!list->isVisible());
}

void TestDragScrollViews::listWidgetEmitsNoneOfItsOwnSignalsAfterADrag()
{
    const Subject subject = createSubject<DragScrollListWidget>();
    auto* list = qobject_cast<QListWidget*>(subject.view);
    subject.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(subject.window.get()));
    QSignalSpy itemClicked(list, &QListWidget::itemClicked);
    QSignalSpy itemChanged(list, &QListWidget::itemChanged);
    QSignalSpy itemPressed(list, &QListWidget::itemPressed);

    Finger finger;
    finger.tap(list->viewport(), QPoint(100, 50));
    QCOMPARE(itemClicked.count(), 1);
    for (const QPoint& onTextOrCheckBox : { QPoint(100, 150), QPoint(10, 250) }) {
        finger.press(list->viewport(), onTextOrCheckBox);
        finger.moveBy(QPoint(0, -30));
        finger.release();
    }

    QCOMPARE(itemPressed.count(), 2); // the press on a check box is none of the item
    QCOMPARE(itemClicked.count(), 1);
    QCOMPARE(itemChanged.count(), 0);
}

namespace {

/// A tree of branches, the first one under the finger of the two tests below.
std::unique_ptr<DragScrollTreeView> createTree()
{
    auto tree = std::make_unique<DragScrollTreeView>();
    auto* model = new QStandardItemModel(tree.get());
    for (int row = 0; row < 50; ++row) {
        auto* branch = new QStandardItem(QString::number(row));
        branch->appendRow(new QStandardItem(QStringLiteral("leaf")));
        model->appendRow(branch);
    }
    tree->setModel(model);
    tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tree->setGeometry(0, 0, 300, 300);
    return tree;
}

QPoint branchMark(const QTreeView& tree, const QModelIndex& index)
{
    const QRect item = tree.visualRect(index);
    return QPoint(item.left() - tree.indentation() / 2, item.center().y());
}

} // namespace

void TestDragScrollViews::treeFoldsNothingByTheMouse()
{
    const auto tree = createTree();
    tree->show();
    QVERIFY(QTest::qWaitForWindowExposed(tree.get()));
    const QModelIndex branch = tree->model()->index(3, 0);
    QSignalSpy doubleClicked(tree.get(), &QAbstractItemView::doubleClicked);

    Finger().tap(tree->viewport(), branchMark(*tree, branch));
    QVERIFY(!tree->isExpanded(branch));
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(branch).center());
    QCOMPARE(doubleClicked.count(), 1);
    QVERIFY(!tree->isExpanded(branch));
}

void TestDragScrollViews::treeDragFoldsNothingInAStyleThatFoldsOnRelease()
{
    HintStyle style(QStyle::SH_ListViewExpand_SelectMouseType, QEvent::MouseButtonRelease);
    const auto tree = createTree();
    tree->setStyle(&style);
    tree->show();
    QVERIFY(QTest::qWaitForWindowExposed(tree.get()));
    const QModelIndex tapped = tree->model()->index(2, 0);
    const QModelIndex dragged = tree->model()->index(5, 0);
    Finger finger;

    finger.tap(tree->viewport(), branchMark(*tree, tapped));
    QVERIFY(tree->isExpanded(tapped));
    finger.press(tree->viewport(), branchMark(*tree, dragged));
    finger.moveBy(QPoint(0, -30));
    finger.release();
    QVERIFY(!tree->isExpanded(dragged));
    QVERIFY(tree->itemsExpandable());
}

UW_TEST_MAIN(TestDragScrollViews)

#include "tst_dragscrollviews.moc"
