// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "dragscrollbutton.h"
#include "dragscrolllistview.h"

#include "support/finger.h"
#include "support/test.h"

#include <QRandomGenerator>
#include <QScrollBar>
#include <QStandardItemModel>

#include <memory>
#include <vector>

namespace {

constexpr int Gestures = 1000;
constexpr quint32 Seed = 20240521;
constexpr int Rows = 60;
constexpr QSize RowSize(250, 50);
/// How far a tap may stray, in pixels; and so how far from an item's edge it must begin.
constexpr int TapRange = 10;

/// What a finger does: a press, moves relative to it, a release.
struct Gesture
{
    QPoint press; // in the viewport
    QList<QPoint> moves;
    bool isDrag = false;
};

class RandomGestures
{
public:
    /// Taps stray sideways no further than `sideways` pixels.
    RandomGestures(const QListView& list, int sideways)
        : m_list(list)
        , m_sideways(sideways)
        , m_random(Seed)
    { }

    Gesture next()
    {
        Gesture gesture;
        gesture.press = pointOnAnItem();
        gesture.isDrag = m_random.bounded(2) == 0;
        const int count = m_random.bounded(gesture.isDrag ? 1 : 0, 8);
        for (int move = 0; move < count; ++move) {
            gesture.moves.append(gesture.isDrag ? QPoint(between(-200, 200), between(-300, 300))
                                                : QPoint(between(-m_sideways, m_sideways),
                                                         between(-TapRange, TapRange)));
        }
        if (gesture.isDrag) {
            // At least one move leaves the tap range; one in four drags ends where it began.
            gesture.moves[m_random.bounded(count)].setY((m_random.bounded(2) == 0 ? 1 : -1)
                                                        * between(TapRange + 1, 300));
            if (m_random.bounded(4) == 0) {
                gesture.moves.append(QPoint(0, 0));
            }
        }
        return gesture;
    }

private:
    int between(int least, int most) { return m_random.bounded(least, most + 1); }

    /// A tap from here stays on its item wherever it strays, and on what is seen of it.
    QPoint pointOnAnItem()
    {
        const QRect viewport = m_list.viewport()->rect();
        for (;;) {
            const QPoint point(between(0, viewport.width()), between(0, viewport.height()));
            const QRect item = m_list.visualRect(m_list.indexAt(point)) & viewport;
            const QRect inner = item.adjusted(m_sideways, TapRange, -m_sideways, -TapRange);
            if (inner.isValid() && inner.contains(point)) {
                return point;
            }
        }
    }

    const QListView& m_list;
    int m_sideways;
    QRandomGenerator m_random;
};

/// A list of `Rows` rows, in a window with room for a finger to leave the list.
struct List
{
    List()
        : model(Rows, 1)
    {
        for (int row = 0; row < Rows; ++row) {
            model.setData(model.index(row, 0), RowSize, Qt::SizeHintRole);
            model.setData(model.index(row, 0), QString::number(row));
        }
        view.setModel(&model);
        view.setEditTriggers(QAbstractItemView::NoEditTriggers);
        view.setGeometry(250, 350, 280, 330);
        window.resize(780, 1030);
    }

    bool show()
    {
        window.show();
        return QTest::qWaitForWindowExposed(&window);
    }

    QWidget window;
    QStandardItemModel model;
    DragScrollListView view { &window };
};

void perform(const Gesture& gesture, QWidget* viewport, Finger& finger)
{
    finger.press(viewport, gesture.press);
    const QPoint start = finger.position();
    for (const QPoint& move : gesture.moves) {
        finger.moveTo(start + move);
    }
    finger.release();
}

std::unique_ptr<Finger> fingerOfRow()
{
    QFETCH(bool, byTouch);
    return byTouch ? std::make_unique<TouchFinger>() : std::make_unique<Finger>();
}

void addFingerRows()
{
    QTest::addColumn<bool>("byTouch");
    QTest::newRow("mouse") << false;
    QTest::newRow("touch") << true;
}

} // namespace

class TestDragScrollGestures : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void listViewClicksOncePerTapAndNeverForADrag_data() { addFingerRows(); }
    void listViewClicksOncePerTapAndNeverForADrag();
    void listOfButtonsClicksOncePerTapAndNeverForADrag_data() { addFingerRows(); }
    void listOfButtonsClicksOncePerTapAndNeverForADrag();
};

void TestDragScrollGestures::initTestCase()
{
    qInfo() << Gestures << "gestures each, seed" << Seed;
}

void TestDragScrollGestures::listViewClicksOncePerTapAndNeverForADrag()
{
    List list;
    QVERIFY(list.show());
    std::vector<int> clickedRows;
    connect(&list.view, &QListView::clicked, this,
            [&](const QModelIndex& index) { clickedRows.push_back(index.row()); });
    const auto finger = fingerOfRow();

    RandomGestures random(list.view, 100);
    int drags = 0;
    for (int number = 0; number < Gestures; ++number) {
        const Gesture gesture = random.next();
        const int row = list.view.indexAt(gesture.press).row();
        clickedRows.clear();
        perform(gesture, list.view.viewport(), *finger);
        const std::vector<int> expected =
            gesture.isDrag ? std::vector<int>() : std::vector<int> { row };
        QVERIFY2(clickedRows == expected, qPrintable(QStringLiteral("gesture %1").arg(number)));
        QCOMPARE(list.view.currentIndex().row(), row);
        drags += gesture.isDrag ? 1 : 0;
    }
    QVERIFY(drags > Gestures / 3 && drags < Gestures * 2 / 3);
}

void TestDragScrollGestures::listOfButtonsClicksOncePerTapAndNeverForADrag()
{
    List list;
    std::vector<int> clickedRows;
    int listClicks = 0;
    for (int row = 0; row < Rows; ++row) {
        auto* button = new DragScrollButton(QString::number(row));
        button->setCheckable(row % 2 == 0);
        connect(button, &QPushButton::clicked, this, [&, row] { clickedRows.push_back(row); });
        list.view.setIndexWidget(list.model.index(row, 0), button);
    }
    connect(&list.view, &QListView::clicked, this, [&] { ++listClicks; });
    QVERIFY(list.show());
    const auto finger = fingerOfRow();

    RandomGestures random(list.view, TapRange);
    for (int number = 0; number < Gestures; ++number) {
        const Gesture gesture = random.next();
        const QModelIndex index = list.view.indexAt(gesture.press);
        const auto* button = qobject_cast<QPushButton*>(list.view.indexWidget(index));
        const bool checked = button->isChecked();
        clickedRows.clear();
        listClicks = 0;
        perform(gesture, list.view.viewport(), *finger);
        const QByteArray which = QByteArrayLiteral("gesture ") + QByteArray::number(number);
        const std::vector<int> expected =
            gesture.isDrag ? std::vector<int>() : std::vector<int> { index.row() };
        QVERIFY2(clickedRows == expected, which.constData());
        QVERIFY2(listClicks == int(expected.size()), which.constData());
        QVERIFY2(button->isChecked() == (checked != (button->isCheckable() && !gesture.isDrag)),
                 which.constData());
        QVERIFY2(!button->isDown(), which.constData());
    }
}

UW_TEST_MAIN(TestDragScrollGestures)

#include "tst_dragscrollgestures.moc"
