// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "gallery/pageview.h"

#include "clickableframe.h"
#include "clickablelabel.h"
#include "containertitlebar.h"
#include "oxtitlebar.h"
#include "support/gallerywalk.h"
#include "support/test.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QTabBar>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

/// The gallery without a finger: everything by Tab, arrows, Space, Enter and Escape.
class TestGalleryKeyboard : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void arrowsReachEveryPage();
    void tabReachesEveryControlAndComesRound_data() { GalleryWalk::addPages(); }
    void tabReachesEveryControlAndComesRound();
    void shiftTabReachesEveryControlAndComesRound_data() { GalleryWalk::addPages(); }
    void shiftTabReachesEveryControlAndComesRound();
    void keysOperateEveryControl_data() { GalleryWalk::addPages(); }
    void keysOperateEveryControl();
    void aFieldThatKeepsTheTabKeyIsFound();
    void aControlOutOfTheTabOrderIsFound();
};

namespace {

constexpr int MostStops = 500; // of a round with the Tab key: more than any page has

/// A control that no key reaches on purpose.
struct Exception
{
    bool (*isOne)(const QWidget* control);
    const char* reason;
};

const Exception Exceptions[] {
    { [](const QWidget* control) {
         return qobject_cast<const OxTitleBar*>(control->parentWidget()) != nullptr
             || qobject_cast<const ContainerTitleBar*>(control->parentWidget()) != nullptr;
     },
      "the close button of a title bar: Escape does the same, and a Tab stop in front of the first "
      "field would take the focus that a dialog's field should have" },
    { [](const QWidget* control) {
         return qobject_cast<const ClickableLabel*>(control) != nullptr
             || qobject_cast<const ClickableFrame*>(control) != nullptr;
     },
      "reports presses of a finger and nothing else: a button is what answers keys as well" },
    { [](const QWidget* control) { return control->inherits("QTableCornerButton"); },
      "Qt's own button that selects a whole table: Ctrl+A does the same" },
};

bool isException(const QWidget* control)
{
    for (const Exception& exception : Exceptions) {
        if (exception.isOne(control)) {
            return true;
        }
    }
    return false;
}

struct Round
{
    QWidgetList reached;
    /// The widget that the key does not leave; null if the focus came back to where it was.
    QWidget* trap = nullptr;
};

void addStop(QWidgetList& reached, QWidget* focus)
{
    QWidget* control = GalleryWalk::controlOf(focus);
    if (control != nullptr && !reached.contains(control)) {
        reached.append(control);
    }
}

void pressKey(const QWidget* window, Qt::Key key)
{
    QTest::keyClick(window->windowHandle(), key);
}

/// In an exclusive group, Tab stops once and the arrows reach the others.
void addGroupOf(const QWidget* window, QWidgetList& reached)
{
    const auto* button = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
    if (button == nullptr
        || !(button->autoExclusive()
             || (button->group() != nullptr && button->group()->exclusive()))) {
        return;
    }
    const QWidget* start = button;
    for (int stop = 0; stop < MostStops; ++stop) {
        pressKey(window, Qt::Key_Down);
        addStop(reached, QApplication::focusWidget());
        if (QApplication::focusWidget() == start) {
            return;
        }
    }
}

/// Presses `key`, Tab or Backtab, until the focus is where it was.
Round goRound(const QWidget* window, Qt::Key key)
{
    Round round;
    if (QApplication::focusWidget() == nullptr) {
        pressKey(window, key);
    }
    const QPointer<QWidget> first = QApplication::focusWidget();
    for (int stop = 0; stop < MostStops && first != nullptr; ++stop) {
        QWidget* before = QApplication::focusWidget();
        addStop(round.reached, before);
        addGroupOf(window, round.reached);
        pressKey(window, key);
        QWidget* after = QApplication::focusWidget();
        if (after == first) {
            return round;
        }
        if (after == before) {
            round.trap = before;
            return round;
        }
    }
    round.trap = QApplication::focusWidget();
    return round;
}

/// Lists hand the focus on to the widgets in their rows.
bool isReached(const QWidget* control, const QWidgetList& reached)
{
    return reached.contains(control)
        || (qobject_cast<const QAbstractItemView*>(control) != nullptr
            && std::any_of(reached.cbegin(), reached.cend(), [control](const QWidget* other) {
                   return control->isAncestorOf(other);
               }));
}

/// What is wrong with the way round `window`, one line each.
QStringList complaintsAbout(const QWidget* window, Qt::Key key)
{
    QStringList complaints;
    Round round = goRound(window, key);
    if (round.trap == nullptr) {
        // Scrolling shows and hides controls: a second time for those that the first has shown.
        const Round second = goRound(window, key);
        round.reached += second.reached;
        round.trap = second.trap;
    }
    if (round.trap != nullptr) {
        complaints.append(QStringLiteral("not left: ") + GalleryWalk::describe(round.trap));
    }
    const QWidgetList controls = GalleryWalk::controlsIn(window);
    for (const QWidget* control : controls) {
        if (!isReached(control, round.reached) && !isException(control)) {
            complaints.append(QStringLiteral("not reached: ") + GalleryWalk::describe(control));
        }
    }
    return complaints;
}

/// Goes round a window that has opened and leaves it by Escape.
GalleryWalk::Visitor::Script leavingScript(QStringList* complaints)
{
    return [complaints](QWidget* window) {
        if (!window->windowFlags().testFlag(Qt::Popup)) {
            *complaints += complaintsAbout(window, Qt::Key_Tab);
        }
        pressKey(window, Qt::Key_Escape);
    };
}

bool answersKeys(QComboBox* box)
{
    if (box->count() == 0) {
        return true;
    }
    // The visitor closes the list.
    QTest::keyClick(box, Qt::Key_Down, Qt::AltModifier);
    return QTest::qWaitFor([box] { return !box->view()->isVisible(); });
}

bool answersKeys(QAbstractButton* button)
{
    QSignalSpy clicked(button, &QAbstractButton::clicked);
    QTest::keyClick(button->window()->windowHandle(), Qt::Key_Space);
    return clicked.count() == 1;
}

bool answersKeys(QAbstractSlider* slider)
{
    const int value = slider->value();
    const bool forwards = value < slider->maximum();
    QTest::keyClick(slider->window()->windowHandle(), forwards ? Qt::Key_Up : Qt::Key_Down);
    return slider->value() != value || slider->minimum() == slider->maximum();
}

bool answersKeys(QTabBar* bar)
{
    const int current = bar->currentIndex();
    QTest::keyClick(bar->window()->windowHandle(), current == 0 ? Qt::Key_Right : Qt::Key_Left);
    return bar->currentIndex() != current || bar->count() < 2;
}

bool answersKeys(QAbstractItemView* view)
{
    if (view->model() == nullptr || view->model()->rowCount(view->rootIndex()) == 0) {
        return true;
    }
    QTest::keyClick(view->window()->windowHandle(), Qt::Key_End);
    const QModelIndex last = view->currentIndex();
    QTest::keyClick(view->window()->windowHandle(), Qt::Key_Up);
    return view->currentIndex().isValid()
        && (view->currentIndex() != last || view->model()->rowCount(view->rootIndex()) == 1);
}

template <typename Class> bool answersKeysAs(QWidget* control)
{
    auto* object = qobject_cast<Class*>(control);
    return object == nullptr || answersKeys(object);
}

/// Those of another kind are done with when they have the focus.
bool answersKeys(QWidget* control)
{
    return answersKeysAs<QComboBox>(control) && answersKeysAs<QAbstractButton>(control)
        && answersKeysAs<QAbstractSlider>(control) && answersKeysAs<QTabBar>(control)
        && answersKeysAs<QAbstractItemView>(control);
}

} // namespace

void TestGalleryKeyboard::arrowsReachEveryPage()
{
    GalleryWalk::ShownGallery gallery;
    auto* list = gallery.findChild<QListWidget*>(QStringLiteral("GalleryList"));
    list->setFocus();
    pressKey(&gallery, Qt::Key_Home);
    for (int row = 0; row < list->count(); ++row) {
        const QListWidgetItem* item = list->item(row);
        if (!item->flags().testFlag(Qt::ItemIsSelectable)) {
            continue; // the heading of a family
        }
        QCOMPARE(list->currentItem()->text(), item->text());
        QCOMPARE(gallery.findChild<Gallery::PageView*>()->findChild<QLabel*>()->text(),
                 item->text());
        pressKey(&gallery, Qt::Key_Down);
    }
}

void TestGalleryKeyboard::tabReachesEveryControlAndComesRound()
{
    QFETCH(const QString, page);
    const GalleryWalk::ShownGallery gallery(page);
    VERIFY_NONE(complaintsAbout(&gallery, Qt::Key_Tab));
}

void TestGalleryKeyboard::shiftTabReachesEveryControlAndComesRound()
{
    QFETCH(const QString, page);
    const GalleryWalk::ShownGallery gallery(page);
    VERIFY_NONE(complaintsAbout(&gallery, Qt::Key_Backtab));
}

void TestGalleryKeyboard::keysOperateEveryControl()
{
    QFETCH(const QString, page);
    GalleryWalk::ShownGallery gallery(page);
    QStringList complaints;
    const GalleryWalk::Visitor visitor(&gallery, leavingScript(&complaints));

    const QWidgetList controls = GalleryWalk::controlsIn(&gallery);
    QList<QPointer<QWidget>> alive(controls.cbegin(), controls.cend());
    for (const QPointer<QWidget>& control : std::as_const(alive)) {
        // What was operated before may have changed the page.
        if (control == nullptr || !control->isVisible() || !control->isEnabled()
            || isException(control)) {
            continue;
        }
        gallery.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&gallery));
        control->setFocus(Qt::TabFocusReason);
        const QString description = GalleryWalk::describe(control);
        if (!answersKeys(control.data())) {
            complaints.append(QStringLiteral("no answer: ") + description);
        }
        VERIFY_NONE(visitor.leftOpen());
        VERIFY_NONE(complaints);
    }
}

void TestGalleryKeyboard::aFieldThatKeepsTheTabKeyIsFound()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new QLineEdit);
    layout->addWidget(new QPlainTextEdit);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QStringList complaints = complaintsAbout(&window, Qt::Key_Tab);
    QCOMPARE(complaints.count(), 1);
    QVERIFY(complaints.constFirst().startsWith(QStringLiteral("not left: QPlainTextEdit")));
}

void TestGalleryKeyboard::aControlOutOfTheTabOrderIsFound()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new QLineEdit);
    auto* field = new QLineEdit;
    field->setFocusPolicy(Qt::ClickFocus);
    layout->addWidget(field);
    layout->addWidget(new QLineEdit);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    for (const Qt::Key key : { Qt::Key_Tab, Qt::Key_Backtab }) {
        const QStringList complaints = complaintsAbout(&window, key);
        QCOMPARE(complaints.join(QLatin1Char('\n')),
                 QStringLiteral("not reached: ") + GalleryWalk::describe(field));
    }
}

UW_TEST_MAIN(TestGalleryKeyboard)

#include "tst_gallerykeyboard.moc"
