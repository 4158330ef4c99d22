// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// Items moved between the two lists of the selection widget, beside the least that any such widget
// has to do: the same texts and ids moved between two vectors, each shown by a list view, the
// list that grows sorted, and one model reset for each list. Target: at most four times that at
// 10,000 and 50,000 items.

#include "dragscrolllistview.h"
#include "measure.h"
#include "multiitemselectionwidget.h"

#include <QAbstractListModel>
#include <QApplication>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QListView>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSet>
#include <QStandardItemModel>

#include <algorithm>
#include <iterator>
#include <memory>
#include <vector>

namespace {

constexpr int IdRole = Qt::UserRole + 1;

struct Entry
{
    QString text;
    int id;
};

/// Names in an order that is not the sorted one.
std::vector<Entry> entries(int count)
{
    std::vector<Entry> made;
    made.reserve(size_t(count));
    for (int id = 0; id < count; ++id) {
        made.push_back({ QStringLiteral("Layer %1").arg(id, 6, 10, QLatin1Char('0')), id });
    }
    QRandomGenerator random(1);
    std::shuffle(made.begin(), made.end(), random);
    return made;
}

class VectorModel : public QAbstractListModel
{
public:
    std::vector<Entry> entries;

    int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : int(entries.size());
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        const Entry& entry = entries[size_t(index.row())];
        return role == Qt::DisplayRole ? QVariant(entry.text)
            : role == IdRole           ? QVariant(entry.id)
                                       : QVariant();
    }
    void beginReset() { beginResetModel(); }
    void endReset() { endResetModel(); }
};

/// Two vectors, each with a list view.
class Peer
{
public:
    Peer(std::vector<Entry> all, bool shown)
    {
        m_left.entries = std::move(all);
        m_leftView.setModel(&m_left);
        m_rightView.setModel(&m_right);
        auto* layout = new QHBoxLayout(&m_window);
        layout->addWidget(&m_leftView);
        layout->addWidget(&m_rightView);
        m_window.resize(900, 500);
        m_window.setVisible(shown);
    }

    template <typename Chosen> void move(VectorModel& from, VectorModel& to, Chosen chosen)
    {
        from.beginReset();
        to.beginReset();
        std::vector<Entry> stay;
        for (size_t row = 0; row < from.entries.size(); ++row) {
            (chosen(row, from.entries[row]) ? to.entries : stay)
                .push_back(std::move(from.entries[row]));
        }
        from.entries = std::move(stay);
        sort(to);
        from.endReset();
        to.endReset();
    }
    template <typename Chosen> void moveRight(Chosen chosen) { move(m_left, m_right, chosen); }
    void moveAllLeft()
    {
        move(m_right, m_left, [](size_t, const Entry&) { return true; });
    }
    void select(const QList<int>& ids)
    {
        const QSet<int> wanted(ids.cbegin(), ids.cend());
        moveAllLeft();
        moveRight([&](size_t, const Entry& entry) { return wanted.contains(entry.id); });
        sort(m_left);
    }

private:
    static void sort(VectorModel& model)
    {
        std::stable_sort(model.entries.begin(), model.entries.end(),
                         [](const Entry& a, const Entry& b) { return a.text < b.text; });
    }

    QWidget m_window;
    VectorModel m_left;
    VectorModel m_right;
    QListView m_leftView { &m_window };
    QListView m_rightView { &m_window };
};

class Ours
{
public:
    Ours(const std::vector<Entry>& all, bool shown)
    {
        QList<QStandardItem*> items;
        for (const Entry& entry : all) {
            auto* item = new QStandardItem(entry.text);
            item->setData(entry.id, IdRole);
            items.append(item);
        }
        m_widget.setAvailableItems(items);
        m_widget.resize(900, 500);
        m_widget.setVisible(shown);
    }

    void click(const char* text)
    {
        const auto buttons = m_widget.findChildren<QPushButton*>();
        for (QPushButton* button : buttons) {
            if (button->text() == QString::fromUtf8(text)) {
                button->click();
            }
        }
    }
    template <typename Chosen> void mark(Chosen chosen)
    {
        QListView* view = m_widget.getAvailableListView();
        QItemSelection selection;
        for (int row = 0; row < view->model()->rowCount(); ++row) {
            if (chosen(size_t(row))) {
                const QModelIndex index = view->model()->index(row, 0);
                selection.append(QItemSelectionRange(index));
            }
        }
        view->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    }
    MultiItemSelectionWidget& widget() { return m_widget; }

private:
    MultiItemSelectionWidget m_widget;
};

/// Milliseconds that `run` takes, everything included that is needed to see the result.
template <typename Run> double timed(Run run)
{
    QElapsedTimer timer;
    timer.start();
    run();
    QCoreApplication::processEvents();
    return double(timer.nsecsElapsed()) / 1e6;
}

template <typename Chosen> void measureMove(const char* name, int count, bool shown, Chosen chosen)
{
    const int rounds = count > 1000 ? 5 : 41;
    const std::vector<Entry> all = entries(count);
    Ours ours(all, shown);
    Peer peer(all, shown);
    QCoreApplication::processEvents();
    const QByteArray title = QByteArray::number(count) + ' ' + name;
    Measure::compare(
        QByteArray(title + ", to the right").constData(), rounds,
        [&] {
            ours.mark(chosen);
            QCoreApplication::processEvents();
            const double time = timed([&] { ours.click(">"); });
            ours.click("<<");
            QCoreApplication::processEvents();
            return time;
        },
        [&] {
            const double time = timed(
                [&] { peer.moveRight([&](size_t row, const Entry&) { return chosen(row); }); });
            peer.moveAllLeft();
            QCoreApplication::processEvents();
            return time;
        });
    Measure::compare(
        QByteArray(title + ", back").constData(), rounds,
        [&] {
            ours.mark(chosen);
            ours.click(">");
            QCoreApplication::processEvents();
            return timed([&] { ours.click("<<"); });
        },
        [&] {
            peer.moveRight([&](size_t row, const Entry&) { return chosen(row); });
            QCoreApplication::processEvents();
            return timed([&] { peer.moveAllLeft(); });
        });
}

void measureSelection(int count, bool shown)
{
    const int rounds = count > 1000 ? 5 : 41;
    const std::vector<Entry> all = entries(count);
    Ours ours(all, shown);
    Peer peer(all, shown);
    QList<int> ids;
    for (const Entry& entry : all) {
        ids.append(entry.id);
    }
    QCoreApplication::processEvents();
    const QByteArray title = QByteArray::number(count) + " ids to setSelectedItems()";
    Measure::compare(
        title.constData(), rounds,
        [&] {
            const double time = timed([&] { ours.widget().setSelectedItems(ids); });
            ours.widget().setSelectedItems({});
            QCoreApplication::processEvents();
            return time;
        },
        [&] {
            const double time = timed([&] { peer.select(ids); });
            peer.select({});
            QCoreApplication::processEvents();
            return time;
        });
}

/// Every tenth of the selected rows one up and down again, beside one row after the other in a model
/// that has neither view nor marks.
void measureOrdering(int count)
{
    std::vector<Entry> all = entries(count);
    Ours ours(all, true);
    ours.widget().setManualOrdering(true);
    ours.click(">>");
    QStandardItemModel plain(count, 1);
    QListView* view = ours.widget().getSelectedListView();
    const auto isMoving = [](int row) {
        return row % 10 == 5;
    };
    const QByteArray title = QByteArray::number(count) + " items, every tenth, up and down";
    Measure::compare(
        title.constData(), 5,
        [&] {
            QItemSelection selection;
            for (int row = 0; row < count; ++row) {
                if (isMoving(row)) {
                    selection.append(QItemSelectionRange(view->model()->index(row, 0)));
                }
            }
            view->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
            view->setCurrentIndex(view->model()->index(5, 0));
            QCoreApplication::processEvents();
            return timed([&] {
                ours.click("▲");
                ours.click("▼");
            });
        },
        [&] {
            return timed([&] {
                for (const int step : { -1, 1 }) {
                    for (int row = 0; row < count; ++row) {
                        if (isMoving(row)) {
                            const int from = step < 0 ? row : row - 1;
                            plain.insertRow(from + step, plain.takeRow(from));
                        }
                    }
                }
            });
        });
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    Measure::printHead(
        "The order of the selected items, ms (peer: the same moves in a model alone)");
    measureOrdering(1000);
    measureOrdering(10000);
    for (const bool shown : { true, false }) {
        Measure::printHead(shown
                               ? "Two lists, ms, shown (target: at most 4.00 from 10,000 items on)"
                               : "Two lists, ms, hidden: without the views' own layout");
        for (const int count : { 100, 1000, 10000, 50000 }) {
            const auto half = size_t(count / 2);
            measureMove("items, all", count, shown, [](size_t) { return true; });
            measureMove("items, every second", count, shown,
                        [](size_t row) { return row % 2 == 0; });
            measureMove("items, first half", count, shown,
                        [half](size_t row) { return row < half; });
            measureSelection(count, shown);
        }
    }
    return 0;
}
