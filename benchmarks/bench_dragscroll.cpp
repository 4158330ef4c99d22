// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// What one move of a finger costs over a list that fills the screen, repaint included: the
// drag-scroll list view beside a stock QListView that QScroller drags and beside a bare setValue()
// on the scroll bar of one, over a short and a long list, and with the item rules of the house's
// sheets on top. All in one run, in turns.

#include "dragscrolllistview.h"
#include "look/palette.h"
#include "measure.h"

#include <QAbstractListModel>
#include <QAnimationDriver>
#include <QApplication>
#include <QScrollBar>
#include <QScroller>
#include <QTest>
#include <QWindow>

#include <cstdio>
#include <ctime>
#include <memory>
#include <vector>

namespace {

constexpr QSize ScreenSize(1024, 540);
constexpr int Moves = 300;
constexpr int Step = 4; // pixels a move
constexpr int Rounds = 41;

/// Microseconds that this thread has been computing: what other processes take does not count.
double processorTime()
{
    timespec now {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e6 + double(now.tv_nsec) / 1e3;
}

class Rows : public QAbstractListModel
{
public:
    explicit Rows(int count)
        : m_count(count)
    { }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : m_count;
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        return role == Qt::DisplayRole ? QVariant(QStringLiteral("Layer %1").arg(index.row()))
                                       : QVariant();
    }

private:
    int m_count;
};

/// Counts the repaints of a viewport: a move that paints nothing would be no measurement.
class PaintCounter : public QObject
{
public:
    int count = 0;

    bool eventFilter(QObject* /*object*/, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

/// Lets a frame pass when told to. QScroller gathers the moves of a frame and scrolls when it is
/// over; here each move has a frame of its own, without the wait.
class Frames : public QAnimationDriver
{
public:
    void advance() override
    {
        m_elapsed += 16;
        advanceAnimation();
    }

    qint64 elapsed() const override { return m_elapsed; }

private:
    qint64 m_elapsed = 0;
};

enum class Drive { Finger, FingerAndFrames, Bar };

/// A shown list and what one round of moves does to it.
class Contender
{
public:
    Contender(const char* name, std::unique_ptr<QListView> list, Drive drive, int rows,
              Frames* frames)
        : m_name(name)
        , m_frames(frames)
        , m_model(rows)
        , m_list(std::move(list))
        , m_drive(drive)
    {
        m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        m_list->setUniformItemSizes(true);
        m_list->setModel(&m_model);
        m_list->setWindowFlags(Qt::FramelessWindowHint);
        m_list->resize(ScreenSize);
        m_list->show();
        m_list->viewport()->installEventFilter(&m_paints);
    }

    const char* name() const { return m_name; }

    QListView* list() const { return m_list.get(); }

    /// Microseconds a move, or -1 if a move did not scroll or paint what it must.
    double round()
    {
        m_list->raise();
        QScrollBar* bar = m_list->verticalScrollBar();
        bar->setValue(1000);
        m_at = QPoint(500, 270);
        if (m_drive != Drive::Bar) {
            send(QEvent::MouseButtonPress);
            for (int lead = 0; lead < 25; ++lead) { // past what QScroller takes for a tap
                move(-Step);
                flush();
            }
        }
        flush();
        const int before = bar->value();
        m_paints.count = 0;
        const double start = processorTime();
        for (int number = 0; number < Moves; ++number) {
            // Up and down in turns of 50, for the finger to stay on the screen.
            const int offset = (number / 50) % 2 == 0 ? -Step : Step;
            if (m_drive != Drive::Bar) {
                move(offset);
            } else {
                bar->setValue(bar->value() - offset);
            }
            flush();
        }
        const double taken = processorTime() - start;
        const bool scrolled = bar->value() == before && m_paints.count == Moves;
        if (m_drive != Drive::Bar) {
            send(QEvent::MouseButtonRelease);
            QScroller::scroller(m_list->viewport())->stop();
            flush();
        }
        return scrolled ? taken / Moves : -1;
    }

private:
    void move(int offset)
    {
        m_at.ry() += offset;
        send(QEvent::MouseMove);
        if (m_drive == Drive::FingerAndFrames) {
            m_frames->advance();
        }
    }

    /// As the platform's events come: what finds the window and the widget is part of the cost.
    void send(QEvent::Type type)
    {
        qt_handleMouseEvent(m_list->windowHandle(), m_at, m_list->mapToGlobal(m_at),
                            type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                            type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, type,
                            Qt::NoModifier, m_time += 8);
    }

    static void flush() { QCoreApplication::sendPostedEvents(); }

    const char* m_name;
    Frames* m_frames;
    Rows m_model;
    PaintCounter m_paints;
    std::unique_ptr<QListView> m_list;
    Drive m_drive;
    QPoint m_at;
    int m_time = 0; // milliseconds
};

using Contenders = std::vector<std::unique_ptr<Contender>>;

std::unique_ptr<QListView> scrollerList()
{
    auto list = std::make_unique<QListView>();
    QScroller::grabGesture(list->viewport(), QScroller::LeftMouseButtonGesture);
    return list;
}

std::unique_ptr<QListView> dragList()
{
    return std::make_unique<DragScrollListView>();
}

std::unique_ptr<QListView> barList()
{
    return std::make_unique<QListView>();
}

Contenders createContenders(Frames* frames)
{
    constexpr int Short = 10000;
    constexpr int Long = 100000;
    const auto make = [frames](const char* name, auto list, Drive drive, int rows) {
        return std::make_unique<Contender>(name, list(), drive, rows, frames);
    };
    Contenders all;
    all.push_back(make("DragScrollListView, 10,000 rows", dragList, Drive::Finger, Short));
    all.push_back(make("bare setValue(), 10,000 rows", barList, Drive::Bar, Short));
    all.push_back(
        make("QListView and QScroller, 10,000 rows", scrollerList, Drive::FingerAndFrames, Short));
    all.push_back(make("DragScrollListView, 100,000 rows", dragList, Drive::Finger, Long));
    all.push_back(make("bare setValue(), 100,000 rows", barList, Drive::Bar, Long));
    all.push_back(
        make("QListView and QScroller, 100,000 rows", scrollerList, Drive::FingerAndFrames, Long));
    all.push_back(make("DragScrollListView, item sheet", dragList, Drive::Finger, Short));
    all.back()->list()->setStyleSheet(QStringLiteral(
        "QListView::item { height: 35px; } "
        "QListView::item:selected { background-color: " LOOK_ACCENT_ORANGE "; color: white; } "
        "QListView::item:hover:!selected { background-color: " LOOK_HOVER_ORANGE "; }"));
    return all;
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    Frames frames;
    frames.install();
    Contenders contenders = createContenders(&frames);
    std::vector<std::vector<double>> times(contenders.size());
    for (int round = -1; round < Rounds; ++round) { // the first warms up
        for (std::size_t number = 0; number < contenders.size(); ++number) {
            QCoreApplication::processEvents();
            const double time = contenders[number]->round();
            if (time < 0) {
                std::fprintf(stderr, "%s: a move did not scroll or paint\n",
                             contenders[number]->name());
                return 1;
            }
            if (round >= 0) {
                times[number].push_back(time);
            }
        }
    }

    std::printf("%d moves of %d pixels at %d x %d, repaint included, %d rounds in turns\n", Moves,
                Step, ScreenSize.width(), ScreenSize.height(), Rounds);
    for (std::size_t number = 0; number < contenders.size(); ++number) {
        std::printf("%-42s %8.1f us of processor time a move\n", contenders[number]->name(),
                    Measure::median(times[number]));
    }
    // The ratio of each round by itself: what slows down a whole round cancels out.
    const auto printRatio = [&](const char* name, std::size_t ours, std::size_t peer,
                                const char* target) {
        std::vector<double> ratios;
        for (std::size_t round = 0; round < times[ours].size(); ++round) {
            ratios.push_back(times[ours][round] / times[peer][round]);
        }
        std::printf("%-42s %8.2f   %s\n", name, Measure::median(ratios), target);
    };
    printRatio("to the bare scroll bar, 10,000 rows", 0, 1, "target: at most 1.10");
    printRatio("to the bare scroll bar, 100,000 rows", 3, 4, "target: at most 1.10");
    printRatio("to QScroller, 10,000 rows", 0, 2, "target: at most 1.00");
    printRatio("to QScroller, 100,000 rows", 3, 5, "target: at most 1.00");
    printRatio("100,000 to 10,000 rows", 3, 0, "target: 1.00, it does not grow");
    printRatio("with the item sheet to without", 6, 0, "for the record");
    return 0;
}
