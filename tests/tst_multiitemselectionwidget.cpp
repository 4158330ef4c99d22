// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "multiitemselectionwidget.h"

#include "dragscrolllistview.h"
#include "oxmessagebox.h"
#include "support/everythingtranslated.h"
#include "support/finger.h"
#include "support/modaldialog.h"
#include "support/test.h"

#include <QAbstractItemModelTester>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <cstdlib>
#include <memory>

namespace {

using Ids = QList<int>;

constexpr int IdRole = Qt::UserRole + 1;

QString nameOf(int id)
{
    return QStringLiteral("Layer %1").arg(id, 5, 10, QLatin1Char('0'));
}

QStandardItem* item(int id)
{
    auto* made = new QStandardItem(nameOf(id));
    made->setData(id, IdRole);
    return made;
}

QList<QStandardItem*> items(const Ids& ids)
{
    QList<QStandardItem*> made;
    for (const int id : ids) {
        made.append(item(id));
    }
    return made;
}

Ids idsOf(const QAbstractItemModel* model)
{
    Ids ids;
    for (int row = 0; row < model->rowCount(); ++row) {
        ids.append(model->index(row, 0).data(IdRole).toInt());
    }
    return ids;
}

QStandardItemModel* modelOf(const QListView* view)
{
    return qobject_cast<QStandardItemModel*>(view->model());
}

QPushButton* button(const QWidget& widget, const char* text)
{
    const auto buttons = widget.findChildren<QPushButton*>();
    for (QPushButton* candidate : buttons) {
        if (candidate->text() == QString::fromUtf8(text)) {
            return candidate;
        }
    }
    return nullptr;
}

/// Whether the tip of the arrow on `button` is at its right: the ink in its middle row lies right of
/// the rest.
bool pointsRight(QPushButton* button)
{
    const QImage image = button->grab().toImage();
    const QRect inside = image.rect().adjusted(6, 6, -6, -6); // without frame and focus
    QList<QPoint> ink;
    QRect place;
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            if (image.pixelColor(x, y).lightness() < 100) {
                ink.append(QPoint(x, y));
                place |= QRect(x, y, 1, 1);
            }
        }
    }
    qsizetype sum = 0;
    qsizetype middleSum = 0;
    qsizetype middleCount = 0;
    for (const QPoint& point : ink) {
        sum += point.x();
        if (std::abs(point.y() - place.center().y()) <= 1) {
            middleSum += point.x();
            ++middleCount;
        }
    }
    return middleSum * ink.size() > sum * middleCount;
}

/// Marks the rows in this order, which is the one in which the selection model reports them.
void mark(QListView* view, const QList<int>& rows)
{
    view->selectionModel()->clear();
    for (const int row : rows) {
        view->selectionModel()->setCurrentIndex(view->model()->index(row, 0),
                                                QItemSelectionModel::Select);
    }
}

QList<int> markedRows(const QListView* view)
{
    QList<int> rows;
    const auto indexes = view->selectionModel()->selectedIndexes();
    for (const QModelIndex& index : indexes) {
        rows.append(index.row());
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

/// A widget with these ids on the left, in this order, and those on the right.
std::unique_ptr<MultiItemSelectionWidget> createWidget(const Ids& available,
                                                       const Ids& selected = {})
{
    auto widget = std::make_unique<MultiItemSelectionWidget>();
    widget->setManualOrdering(true);
    widget->setAvailableItems(items(selected));
    widget->setSelectedItems(selected);
    const auto left = items(available);
    for (QStandardItem* one : left) {
        widget->addAvailableItem(one);
    }
    widget->setManualOrdering(false);
    return widget;
}

Ids availableIds(const MultiItemSelectionWidget& widget)
{
    return idsOf(widget.getAvailableListView()->model());
}

Ids selectedIds(const MultiItemSelectionWidget& widget)
{
    return idsOf(widget.getSelectedListView()->model());
}

/// Opens the protected functions.
class Opened : public MultiItemSelectionWidget
{
public:
    using MultiItemSelectionWidget::addItemsToModel;
    using MultiItemSelectionWidget::moveItem;
    using MultiItemSelectionWidget::moveItemsFromModelToModel;
    using MultiItemSelectionWidget::MultiItemSelectionWidget;
    using MultiItemSelectionWidget::setItemsForModel;
};

/// Writes down which virtual function is called with what, and lets it run.
class Recorder : public Opened
{
public:
    QStringList calls;

    void setAvailableItems(QList<QStandardItem*> list) override
    {
        calls << QStringLiteral("setAvailableItems %1").arg(list.size());
        Opened::setAvailableItems(list);
    }
    void setSelectedItems(QList<int> ids) override
    {
        calls << QStringLiteral("setSelectedItems %1").arg(ids.size());
        Opened::setSelectedItems(ids);
    }
    QList<int> getSelectedItemIds() override
    {
        calls << QStringLiteral("getSelectedItemIds");
        return Opened::getSelectedItemIds();
    }
    void addAvailableItem(QStandardItem* one) override
    {
        calls << QStringLiteral("addAvailableItem");
        Opened::addAvailableItem(one);
    }

protected:
    void addItemsToModel(QList<QStandardItem*> list, QStandardItemModel* model) override
    {
        calls << QStringLiteral("addItemsToModel %1 %2").arg(list.size()).arg(nameOf(model));
        Opened::addItemsToModel(list, model);
    }
    void setItemsForModel(QList<QStandardItem*> list, QStandardItemModel* model) override
    {
        calls << QStringLiteral("setItemsForModel %1 %2").arg(list.size()).arg(nameOf(model));
        Opened::setItemsForModel(list, model);
    }
    void moveItemsFromModelToModel(QList<QModelIndex> indexes, QStandardItemModel* from,
                                   QStandardItemModel* to) override
    {
        calls << QStringLiteral("moveItemsFromModelToModel %1 %2 %3")
                     .arg(indexes.size())
                     .arg(nameOf(from), nameOf(to));
        Opened::moveItemsFromModelToModel(indexes, from, to);
    }
    void moveItem(int row, bool up) override
    {
        calls << QStringLiteral("moveItem %1 %2")
                     .arg(row)
                     .arg(up ? QStringLiteral("up") : QStringLiteral("down"));
        Opened::moveItem(row, up);
    }

private:
    QString nameOf(const QStandardItemModel* model) const
    {
        return model == getAvailableListView()->model() ? QStringLiteral("available")
            : model == getSelectedListView()->model()   ? QStringLiteral("selected")
                                                        : QStringLiteral("?");
    }
};

/// Only writes down which of the slots is called.
class SlotRecorder : public MultiItemSelectionWidget
{
public:
    QStringList calls;

private:
    void onAddButtonClicked() override { calls << QStringLiteral("add"); }
    void onAddAllButtonClicked() override { calls << QStringLiteral("add all"); }
    void onRemoveButtonClicked() override { calls << QStringLiteral("remove"); }
    void onRemoveAllButtonClicked() override { calls << QStringLiteral("remove all"); }
    void onUpButtonClicked() override { calls << QStringLiteral("up"); }
    void onDownButtonClicked() override { calls << QStringLiteral("down"); }
};

/// Writes down the add and remove steps that the buttons for all items end in.
class StepRecorder : public MultiItemSelectionWidget
{
public:
    QStringList calls;

private:
    void onAddButtonClicked() override { record("add", getAvailableListView()); }
    void onRemoveButtonClicked() override { record("remove", getSelectedListView()); }

    void record(const char* step, const QListView* view)
    {
        calls << QStringLiteral("%1 %2").arg(QLatin1String(step)).arg(markedRows(view).size());
    }
};

/// Takes and appends rows one at a time, as the simplest code would.
class OneByOne : public MultiItemSelectionWidget
{
protected:
    void addItemsToModel(QList<QStandardItem*> list, QStandardItemModel* model) override
    {
        for (QStandardItem* one : list) {
            model->appendRow(one);
        }
    }
    void moveItemsFromModelToModel(QList<QModelIndex> indexes, QStandardItemModel* from,
                                   QStandardItemModel* to) override
    {
        QList<QStandardItem*> taken;
        const QList<QPersistentModelIndex> persistent(indexes.cbegin(), indexes.cend());
        for (const QPersistentModelIndex& index : persistent) {
            taken += from->takeRow(index.row());
        }
        addItemsToModel(taken, to);
    }
};

/// What the log is told while it lives.
class Log
{
public:
    struct Line
    {
        QtMsgType type;
        QByteArray category;
        QByteArray file;
        int line;
        QByteArray function;
        QString text;
    };

    Log()
    {
        s_lines.clear();
        m_before = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext& context, const QString& text) {
                s_lines.append(
                    { type, context.category, context.file, context.line, context.function, text });
            });
    }
    ~Log() { qInstallMessageHandler(m_before); }
    Q_DISABLE_COPY_MOVE(Log)

    QList<Line> lines() const { return s_lines; }

private:
    static inline QList<Line> s_lines;
    QtMessageHandler m_before;
};

/// What a person sees of a list, and what an application may hold of it.
QString state(const QListView* view)
{
    QStringList texts;
    for (const int id : idsOf(view->model())) {
        texts << QString::number(id);
    }
    QStringList marked;
    for (const int row : markedRows(view)) {
        marked << QString::number(row);
    }
    return QStringLiteral("items %1; marked %2; current %3")
        .arg(texts.join(QLatin1Char(' ')), marked.join(QLatin1Char(' ')))
        .arg(view->currentIndex().row());
}

QString state(const MultiItemSelectionWidget& widget)
{
    return state(widget.getAvailableListView()) + QStringLiteral(" | ")
        + state(widget.getSelectedListView());
}

Ids numbers(int count)
{
    Ids ids;
    for (int id = 0; id < count; ++id) {
        ids.append(id);
    }
    return ids;
}

/// The button's slot, run while the limit's message is answered with Ok.
void clickAndAnswer(QPushButton* clicked, const std::function<void(OxMessageBox*)>& look)
{
    whileModal<OxMessageBox>(
        [clicked] { clicked->click(); },
        [&look](OxMessageBox* box) {
            look(box);
            Finger().tap(box->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok));
        });
}

} // namespace

class TestMultiItemSelectionWidget : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAndStyled();
    void labelsHaveTheirTextsAndNeverACount();
    void buttonsHaveTheirTextsAndSizes_data();
    void buttonsHaveTheirTextsAndSizes();
    void buttonsTellTheirPurposeToAScreenReader();
    void viewsAreSetUp_data();
    void viewsAreSetUp();
    void modelsBelongToTheWidget();
    void layoutIsExact();
    void textsAreTranslatedButArrowsAreNot();
    void arrowsPointTheOtherWayFromRightToLeft();
    void startsWithoutLimitAndSorted();
    void rowComparesOrderByRow();

    void availableItemsAreSortedAndDropTheSelected();
    void availableItemsKeepTheirOrderWhileOrderedManually();
    void anEmptyListKeepsTheAvailableItemsAndDropsTheSelected();
    void anAddedItemIsAppendedUnsorted();
    void manualOrderingShowsUpAndDownAndChangesNoOrder();
    void itemsAddedInAnyOrderAreSorted();
    void manuallyOrderedItemsAreAppendedInTheOrderReported();
    void removingSortsTheAvailableListAlone();
    void removingWithNothingMarkedReportsTheUnchangedIds();
    void addingWithNothingMarkedReportsTheUnchangedIds();
    void addAndRemoveReportTheIdsOnce();
    void addAllAndRemoveAllMoveEverything();
    void settersEmitNothing();
    void aRowWithoutItemHasNoId();
    void anItemWithoutAnIdCountsAsZero();
    void aFingerMovesAnItemThereAndBack();

    void limitRefusesTheWholeSelection();
    void limitIsTakenUpExactly();
    void limitRefusesAddAllWithoutAPartialFill();
    void noLimitBelowOne_data();
    void noLimitBelowOne();
    void limitsMessageIsExact();
    void setSelectedItemsIgnoresTheLimit();

    void selectedItemsAreTakenByIdInAvailableOrder();
    void selectedItemsAreSortedUnlessManual();
    void selectedItemsReplaceTheFormerOnes();
    void duplicateIdsMatchOnceAndAreLogged();
    void itemsThatShareAnIdAreAllSelected();
    void unknownIdsAreLoggedAndTheRestSelected();
    void nothingIsLoggedWhenAllAreFound();

    void upMovesTheMarkedBlock();
    void downMovesTheMarkedBlock();
    void upAtTheTopMovesNothing();
    void downAtTheBottomMovesNothing();
    void upAndDownWithNothingMarkedMoveNothing();
    void upAndDownNeitherReportNorSort();
    void marksFollowTheirItemsInOneStep();
    void theMovedItemStaysInSight();
    void moveItemStopsAtTheEndsAndAtEmptyRows();
    void rowsOfAnotherModelInTheViewDoNotMove();

    void stepsGoThroughTheVirtualFunctions_data();
    void stepsGoThroughTheVirtualFunctions();
    void buttonsReachTheVirtualSlots_data();
    void buttonsReachTheVirtualSlots();
    void buttonsForAllMarkAllAndEndInTheSingleSteps();

    void nullModelsAndEmptyListsDoNothing();
    void indexesOfAnythingElseAreLeftOut();
    void rowsOfAForeignModelMove();
    void rowsOfSeveralColumnsMoveAsTheyAreTaken();
    void itemsWithChildrenKeepThem();
    void rowsMoveWhileTheModelsSignalsAreBlocked();
    void listenersFindTheItemsWhenTheirRemovalIsAnnounced();
    void indexesOfTheRowsThatStayAreKept();
    void itemsThatSortThemselvesKeepTheirOrder();
    void movingInOneStepEqualsOneByOne_data();
    void movingInOneStepEqualsOneByOne();
    void theScrollPositionStaysWhenTheCurrentItemDoes();
};

void TestMultiItemSelectionWidget::isNamedAndStyled()
{
    QWidget parent;
    const auto* widget = new MultiItemSelectionWidget(&parent);
    QCOMPARE(widget->parentWidget(), &parent);
    QCOMPARE(widget->objectName(), QStringLiteral("MultiItemSelectionWidget"));
    QCOMPARE(widget->styleSheet(),
             QStringLiteral("QPushButton { font-size: 20px; font-weight: bold; "
                            "text-align: center center; } \n"));
}

void TestMultiItemSelectionWidget::labelsHaveTheirTextsAndNeverACount()
{
    const auto widget = createWidget({ 1, 2, 3 }, { 4 });
    const auto labels = widget->findChildren<QLabel*>();
    QCOMPARE(labels.count(), 2);
    QCOMPARE(labels.at(0)->text(), QStringLiteral("Available:"));
    QCOMPARE(labels.at(1)->text(), QStringLiteral("Selected:"));
    button(*widget, ">>")->click();
    QCOMPARE(labels.at(0)->text(), QStringLiteral("Available:"));
    QCOMPARE(labels.at(1)->text(), QStringLiteral("Selected:"));
}

void TestMultiItemSelectionWidget::buttonsHaveTheirTextsAndSizes_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("hidden");
    QTest::newRow("add") << QByteArray(">") << false;
    QTest::newRow("remove") << QByteArray("<") << false;
    QTest::newRow("add all") << QByteArray(">>") << false;
    QTest::newRow("remove all") << QByteArray("<<") << false;
    QTest::newRow("up") << QByteArray("\xe2\x96\xb2") << true;
    QTest::newRow("down") << QByteArray("\xe2\x96\xbc") << true;
}

void TestMultiItemSelectionWidget::buttonsHaveTheirTextsAndSizes()
{
    QFETCH(const QByteArray, text);
    const MultiItemSelectionWidget widget;
    QCOMPARE(widget.findChildren<QPushButton*>().count(), 6);
    const QPushButton* subject = button(widget, text.constData());
    QVERIFY(subject != nullptr);
    QCOMPARE(subject->minimumSize(), QSize(45, 45));
    QCOMPARE(subject->maximumSize(), QSize(45, 45));
    QTEST(subject->isHidden(), "hidden");
}

void TestMultiItemSelectionWidget::buttonsTellTheirPurposeToAScreenReader()
{
    const MultiItemSelectionWidget widget;
    QStringList names;
    const auto buttons = widget.findChildren<QPushButton*>();
    for (const QPushButton* one : buttons) {
        names << one->accessibleName();
    }
    names.sort();
    QCOMPARE(names,
             (QStringList { QStringLiteral("Add"), QStringLiteral("Add all"),
                            QStringLiteral("Down"), QStringLiteral("Remove"),
                            QStringLiteral("Remove all"), QStringLiteral("Up") }));
    QCOMPARE(widget.getAvailableListView()->accessibleName(), QStringLiteral("Available"));
    QCOMPARE(widget.getSelectedListView()->accessibleName(), QStringLiteral("Selected"));
}

void TestMultiItemSelectionWidget::viewsAreSetUp_data()
{
    QTest::addColumn<bool>("available");
    QTest::newRow("available") << true;
    QTest::newRow("selected") << false;
}

void TestMultiItemSelectionWidget::viewsAreSetUp()
{
    QFETCH(const bool, available);
    const MultiItemSelectionWidget widget;
    const DragScrollListView* view =
        available ? widget.getAvailableListView() : widget.getSelectedListView();
    QCOMPARE(view->selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(view->editTriggers(), QAbstractItemView::NoEditTriggers);
    QCOMPARE(view->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(view->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
}

void TestMultiItemSelectionWidget::modelsBelongToTheWidget()
{
    const MultiItemSelectionWidget widget;
    const auto models = widget.findChildren<QStandardItemModel*>();
    QCOMPARE(models.count(), 2);
    QCOMPARE(models.at(0), widget.getAvailableListView()->model());
    QCOMPARE(models.at(1), widget.getSelectedListView()->model());
    QCOMPARE(models.at(0)->parent(), &widget);
    QCOMPARE(models.at(1)->parent(), &widget);
}

void TestMultiItemSelectionWidget::layoutIsExact()
{
    const MultiItemSelectionWidget widget;
    const auto* grid = qobject_cast<QGridLayout*>(widget.layout());
    QVERIFY(grid != nullptr);
    QCOMPARE(grid->count(), 5);
    const auto labels = widget.findChildren<QLabel*>();
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), labels.at(0));
    QCOMPARE(grid->itemAtPosition(0, 1), nullptr);
    QCOMPARE(grid->itemAtPosition(0, 2)->widget(), labels.at(1));
    QCOMPARE(grid->itemAtPosition(1, 0)->widget(), widget.getAvailableListView());
    QCOMPARE(grid->itemAtPosition(1, 1)->alignment(), Qt::AlignVCenter);
    QCOMPARE(grid->itemAtPosition(1, 2)->widget(), widget.getSelectedListView());

    const auto* column = qobject_cast<QVBoxLayout*>(grid->itemAtPosition(1, 1)->layout());
    QVERIFY(column != nullptr);
    QCOMPARE(column->sizeConstraint(), QLayout::SetFixedSize);
    QStringList texts;
    for (int i = 0; i < column->count(); ++i) {
        QCOMPARE(column->itemAt(i)->alignment(), Qt::AlignCenter);
        texts << qobject_cast<QPushButton*>(column->itemAt(i)->widget())->text();
    }
    QCOMPARE(texts,
             (QStringList { QStringLiteral(">"), QStringLiteral("<"), QStringLiteral(">>"),
                            QStringLiteral("<<"), QStringLiteral("▲"), QStringLiteral("▼") }));
}

void TestMultiItemSelectionWidget::arrowsPointTheOtherWayFromRightToLeft()
{
    MultiItemSelectionWidget widget;
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    for (const char* text : { ">", ">>" }) {
        QVERIFY(pointsRight(button(widget, text)));
    }
    for (const char* text : { "<", "<<" }) {
        QVERIFY(!pointsRight(button(widget, text)));
    }
    const auto restore =
        qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); });
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    widget.layout()->activate();
    QVERIFY(widget.getAvailableListView()->x() > widget.getSelectedListView()->x());
    for (const char* text : { ">", ">>" }) {
        QVERIFY(!pointsRight(button(widget, text)));
    }
    for (const char* text : { "<", "<<" }) {
        QVERIFY(pointsRight(button(widget, text)));
    }
}

void TestMultiItemSelectionWidget::textsAreTranslatedButArrowsAreNot()
{
    const EverythingTranslated translated;
    const MultiItemSelectionWidget widget;
    const auto labels = widget.findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        QCOMPARE(label->text(), EverythingTranslated::text());
    }
    const auto buttons = widget.findChildren<QPushButton*>();
    for (const QPushButton* one : buttons) {
        QVERIFY(one->text() != EverythingTranslated::text());
        QCOMPARE(one->accessibleName(), EverythingTranslated::text());
    }
}

void TestMultiItemSelectionWidget::startsWithoutLimitAndSorted()
{
    MultiItemSelectionWidget widget;
    QCOMPARE(widget.getSelectionLimit(), 0);
    widget.setAvailableItems(items({ 2, 1 }));
    QCOMPARE(availableIds(widget), (Ids { 1, 2 }));
}

void TestMultiItemSelectionWidget::rowComparesOrderByRow()
{
    const QStandardItemModel model(2, 1);
    const QModelIndex first = model.index(0, 0);
    const QModelIndex second = model.index(1, 0);
    QVERIFY(ascendingQModelIndexRowCompare(first, second));
    QVERIFY(!ascendingQModelIndexRowCompare(second, first));
    QVERIFY(!ascendingQModelIndexRowCompare(first, first));
    QVERIFY(descendingQModelIndexRowCompare(second, first));
    QVERIFY(!descendingQModelIndexRowCompare(first, second));
    QVERIFY(!descendingQModelIndexRowCompare(first, first));
}

void TestMultiItemSelectionWidget::availableItemsAreSortedAndDropTheSelected()
{
    const auto widget = createWidget({ 1 }, { 2 });
    widget->setAvailableItems(items({ 5, 3, 4 }));
    QCOMPARE(availableIds(*widget), (Ids { 3, 4, 5 }));
    QCOMPARE(selectedIds(*widget), Ids());
}

void TestMultiItemSelectionWidget::availableItemsKeepTheirOrderWhileOrderedManually()
{
    MultiItemSelectionWidget widget;
    widget.setManualOrdering(true);
    widget.setAvailableItems(items({ 5, 3, 4 }));
    QCOMPARE(availableIds(widget), (Ids { 5, 3, 4 }));
}

void TestMultiItemSelectionWidget::anEmptyListKeepsTheAvailableItemsAndDropsTheSelected()
{
    const auto widget = createWidget({ 1, 3 }, { 2 });
    widget->setAvailableItems({});
    QCOMPARE(availableIds(*widget), (Ids { 1, 3 }));
    QCOMPARE(selectedIds(*widget), Ids());
}

void TestMultiItemSelectionWidget::anAddedItemIsAppendedUnsorted()
{
    const auto widget = createWidget({ 3, 4 });
    widget->addAvailableItem(item(1));
    QCOMPARE(availableIds(*widget), (Ids { 3, 4, 1 }));
}

void TestMultiItemSelectionWidget::manualOrderingShowsUpAndDownAndChangesNoOrder()
{
    const auto widget = createWidget({ 3, 1, 2 }, { 6, 5 });
    widget->setManualOrdering(true);
    QVERIFY(!button(*widget, "▲")->isHidden());
    QVERIFY(!button(*widget, "▼")->isHidden());
    widget->setManualOrdering(false);
    QVERIFY(button(*widget, "▲")->isHidden());
    QVERIFY(button(*widget, "▼")->isHidden());
    QCOMPARE(availableIds(*widget), (Ids { 3, 1, 2 }));
    QCOMPARE(selectedIds(*widget), (Ids { 6, 5 }));
}

void TestMultiItemSelectionWidget::itemsAddedInAnyOrderAreSorted()
{
    const auto widget = createWidget({ 1, 4, 7 }, { 5, 3 });
    mark(widget->getAvailableListView(), { 2, 0 });
    button(*widget, ">")->click();
    QCOMPARE(selectedIds(*widget), (Ids { 1, 3, 5, 7 }));
    QCOMPARE(availableIds(*widget), Ids { 4 });
}

void TestMultiItemSelectionWidget::manuallyOrderedItemsAreAppendedInTheOrderReported()
{
    const auto widget = createWidget(numbers(8), { 20, 10 });
    widget->setManualOrdering(true);
    mark(widget->getAvailableListView(), { 6, 1, 4 });
    Ids reported;
    const auto indexes = widget->getAvailableListView()->selectionModel()->selectedIndexes();
    for (const QModelIndex& index : indexes) {
        reported.append(index.data(IdRole).toInt());
    }
    QCOMPARE(reported, (Ids { 6, 1, 4 }));
    button(*widget, ">")->click();
    QCOMPARE(selectedIds(*widget), (Ids { 20, 10, 6, 1, 4 }));
    QCOMPARE(availableIds(*widget), (Ids { 0, 2, 3, 5, 7 }));
}

void TestMultiItemSelectionWidget::removingSortsTheAvailableListAlone()
{
    const auto widget = createWidget({ 9, 4 }, { 8, 2, 6 });
    mark(widget->getSelectedListView(), { 1 });
    button(*widget, "<")->click();
    QCOMPARE(availableIds(*widget), (Ids { 2, 4, 9 }));
    QCOMPARE(selectedIds(*widget), (Ids { 8, 6 }));
}

void TestMultiItemSelectionWidget::removingWithNothingMarkedReportsTheUnchangedIds()
{
    const auto widget = createWidget({ 1 }, { 8, 2 });
    QSignalSpy changed(widget.get(), &MultiItemSelectionWidget::selectedItemsChanged);
    button(*widget, "<")->click();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).value<Ids>(), (Ids { 8, 2 }));
}

void TestMultiItemSelectionWidget::addingWithNothingMarkedReportsTheUnchangedIds()
{
    const auto widget = createWidget({ 1 }, { 2, 8 });
    QSignalSpy changed(widget.get(), &MultiItemSelectionWidget::selectedItemsChanged);
    button(*widget, ">")->click();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).value<Ids>(), (Ids { 2, 8 }));
}

void TestMultiItemSelectionWidget::addAndRemoveReportTheIdsOnce()
{
    const auto widget = createWidget({ 1, 2, 3 });
    QSignalSpy changed(widget.get(), &MultiItemSelectionWidget::selectedItemsChanged);
    mark(widget->getAvailableListView(), { 2, 0 });
    button(*widget, ">")->click();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).value<Ids>(), (Ids { 1, 3 }));
    QCOMPARE(widget->getSelectedItemIds(), (Ids { 1, 3 }));
    mark(widget->getSelectedListView(), { 0 });
    button(*widget, "<")->click();
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(1).at(0).value<Ids>(), Ids { 3 });
}

void TestMultiItemSelectionWidget::addAllAndRemoveAllMoveEverything()
{
    const auto widget = createWidget({ 1, 2, 3 }, { 5 });
    QSignalSpy changed(widget.get(), &MultiItemSelectionWidget::selectedItemsChanged);
    button(*widget, ">>")->click();
    QCOMPARE(selectedIds(*widget), (Ids { 1, 2, 3, 5 }));
    QCOMPARE(availableIds(*widget), Ids());
    button(*widget, "<<")->click();
    QCOMPARE(selectedIds(*widget), Ids());
    QCOMPARE(availableIds(*widget), (Ids { 1, 2, 3, 5 }));
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(0).at(0).value<Ids>(), (Ids { 1, 2, 3, 5 }));
    QCOMPARE(changed.at(1).at(0).value<Ids>(), Ids());
}

void TestMultiItemSelectionWidget::settersEmitNothing()
{
    MultiItemSelectionWidget widget;
    QSignalSpy changed(&widget, &MultiItemSelectionWidget::selectedItemsChanged);
    widget.setAvailableItems(items({ 1, 2, 3 }));
    widget.setSelectedItems({ 1, 3 });
    widget.addAvailableItem(item(4));
    widget.setSelectionLimit(2);
    widget.setManualOrdering(true);
    widget.setSelectedItems({});
    QCOMPARE(changed.count(), 0);
}

void TestMultiItemSelectionWidget::aRowWithoutItemHasNoId()
{
    const auto widget = createWidget({}, { 4, 7 });
    modelOf(widget->getSelectedListView())->insertRow(1);
    QCOMPARE(widget->getSelectedItemIds(), (Ids { 4, 7 }));
    // Such a row moves like the others.
    button(*widget, "<<")->click();
    QCOMPARE(widget->getAvailableListView()->model()->rowCount(), 3);
}

void TestMultiItemSelectionWidget::anItemWithoutAnIdCountsAsZero()
{
    MultiItemSelectionWidget widget;
    widget.setAvailableItems({ new QStandardItem(QStringLiteral("Layer")) });
    widget.setSelectedItems({ 0 });
    QCOMPARE(widget.getSelectedItemIds(), Ids { 0 });
}

void TestMultiItemSelectionWidget::aFingerMovesAnItemThereAndBack()
{
    const auto widget = createWidget({ 1, 2, 3 });
    widget->resize(600, 400);
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    QListView* left = widget->getAvailableListView();
    QListView* right = widget->getSelectedListView();

    Finger().tap(left->viewport(), left->visualRect(left->model()->index(1, 0)).center());
    Finger().tap(button(*widget, ">"));
    QCOMPARE(selectedIds(*widget), Ids { 2 });
    Finger().tap(right->viewport(), right->visualRect(right->model()->index(0, 0)).center());
    Finger().tap(button(*widget, "<"));
    QCOMPARE(availableIds(*widget), (Ids { 1, 2, 3 }));
}

void TestMultiItemSelectionWidget::limitRefusesTheWholeSelection()
{
    const auto widget = createWidget({ 1, 2, 3 }, { 4, 5 });
    widget->setSelectionLimit(3);
    QCOMPARE(widget->getSelectionLimit(), 3);
    QSignalSpy changed(widget.get(), &MultiItemSelectionWidget::selectedItemsChanged);
    mark(widget->getAvailableListView(), { 0, 2 });
    clickAndAnswer(button(*widget, ">"), [](OxMessageBox* box) {
        const auto labels = box->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(labels.constLast()->text(), QStringLiteral("Selection Limit: 3."));
    });
    QCOMPARE(availableIds(*widget), (Ids { 1, 2, 3 }));
    QCOMPARE(selectedIds(*widget), (Ids { 4, 5 }));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(markedRows(widget->getAvailableListView()), (QList<int> { 0, 2 }));
}

void TestMultiItemSelectionWidget::limitIsTakenUpExactly()
{
    const auto widget = createWidget({ 1, 2, 3 }, { 4, 5 });
    widget->setSelectionLimit(3);
    mark(widget->getAvailableListView(), { 1 });
    button(*widget, ">")->click();
    QCOMPARE(selectedIds(*widget), (Ids { 2, 4, 5 }));
    // Nothing marked exceeds nothing.
    button(*widget, ">")->click();
    QCOMPARE(selectedIds(*widget), (Ids { 2, 4, 5 }));
}

void TestMultiItemSelectionWidget::limitRefusesAddAllWithoutAPartialFill()
{
    const auto widget = createWidget({ 1, 2, 3 });
    widget->setSelectionLimit(2);
    int messages = 0;
    clickAndAnswer(button(*widget, ">>"), [&](OxMessageBox*) { ++messages; });
    QCOMPARE(messages, 1);
    QCOMPARE(availableIds(*widget), (Ids { 1, 2, 3 }));
    QCOMPARE(selectedIds(*widget), Ids());
    QCOMPARE(markedRows(widget->getAvailableListView()), (QList<int> { 0, 1, 2 }));
}

void TestMultiItemSelectionWidget::noLimitBelowOne_data()
{
    QTest::addColumn<int>("limit");
    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -3;
}

void TestMultiItemSelectionWidget::noLimitBelowOne()
{
    QFETCH(const int, limit);
    const auto widget = createWidget({ 1, 2, 3 });
    widget->setSelectionLimit(limit);
    QCOMPARE(widget->getSelectionLimit(), limit);
    button(*widget, ">>")->click();
    QCOMPARE(selectedIds(*widget), (Ids { 1, 2, 3 }));
}

void TestMultiItemSelectionWidget::limitsMessageIsExact()
{
    const auto widget = createWidget({ 1, 2 });
    widget->setSelectionLimit(1);
    clickAndAnswer(button(*widget, ">>"), [](OxMessageBox* box) {
        QCOMPARE(box->parentWidget(), nullptr);
        const auto labels = box->findChildren<QLabel*>();
        QStringList texts;
        for (const QLabel* label : labels) {
            texts << label->text();
        }
        QVERIFY(texts.contains(QStringLiteral("ERROR")));
        QVERIFY(texts.contains(QStringLiteral("Selection Limit: 1.")));
        const auto* buttons = box->findChild<QDialogButtonBox*>();
        QCOMPARE(buttons->standardButtons(), QDialogButtonBox::Ok);
        QVERIFY(!buttons->button(QDialogButtonBox::Ok)->isDefault());
    });
}

void TestMultiItemSelectionWidget::setSelectedItemsIgnoresTheLimit()
{
    const auto widget = createWidget({ 1, 2, 3 });
    widget->setSelectionLimit(1);
    widget->setSelectedItems({ 1, 2, 3 });
    QCOMPARE(selectedIds(*widget), (Ids { 1, 2, 3 }));
}

void TestMultiItemSelectionWidget::selectedItemsAreTakenByIdInAvailableOrder()
{
    const auto widget = createWidget({ 7, 3, 5, 1 });
    widget->setManualOrdering(true);
    widget->setSelectedItems({ 1, 7, 5 });
    QCOMPARE(selectedIds(*widget), (Ids { 7, 5, 1 }));
    QCOMPARE(availableIds(*widget), Ids { 3 });
}

void TestMultiItemSelectionWidget::selectedItemsAreSortedUnlessManual()
{
    const auto widget = createWidget({ 7, 3, 5, 1, 2 });
    widget->setSelectedItems({ 1, 7, 5 });
    QCOMPARE(selectedIds(*widget), (Ids { 1, 5, 7 }));
    QCOMPARE(availableIds(*widget), (Ids { 2, 3 }));
}

void TestMultiItemSelectionWidget::selectedItemsReplaceTheFormerOnes()
{
    const auto widget = createWidget({ 3, 1 }, { 5, 4 });
    widget->setManualOrdering(true);
    widget->setSelectedItems({ 5, 3 });
    // The former ones went back to the end of the list before any was looked for.
    QCOMPARE(selectedIds(*widget), (Ids { 3, 5 }));
    QCOMPARE(availableIds(*widget), (Ids { 1, 4 }));
    widget->setSelectedItems({});
    QCOMPARE(selectedIds(*widget), Ids());
    QCOMPARE(availableIds(*widget), (Ids { 1, 4, 3, 5 }));
}

void TestMultiItemSelectionWidget::duplicateIdsMatchOnceAndAreLogged()
{
    const auto widget = createWidget({ 1, 2 });
    QTest::ignoreMessage(QtWarningMsg, "Indexes Found: 1 Ids to Select: 2");
    widget->setSelectedItems({ 2, 2 });
    QCOMPARE(selectedIds(*widget), Ids { 2 });
}

void TestMultiItemSelectionWidget::itemsThatShareAnIdAreAllSelected()
{
    const auto widget = createWidget({ 1, 2, 2 });
    QTest::ignoreMessage(QtWarningMsg, "Indexes Found: 2 Ids to Select: 1");
    widget->setSelectedItems({ 2 });
    QCOMPARE(selectedIds(*widget), (Ids { 2, 2 }));
}

void TestMultiItemSelectionWidget::unknownIdsAreLoggedAndTheRestSelected()
{
    const auto widget = createWidget({ 1, 2, 3 });
    const Log log;
    widget->setSelectedItems({ 3, 99, 1, 98 });
    QCOMPARE(selectedIds(*widget), (Ids { 1, 3 }));
    QCOMPARE(log.lines().count(), 1);
    const Log::Line line = log.lines().constFirst();
    QCOMPARE(line.type, QtWarningMsg);
    QCOMPARE(line.category, QByteArray("UtilityWidgets"));
    QCOMPARE(line.file, QByteArray("multiitemselectionwidget"));
    QCOMPARE(line.line, 241);
    QCOMPARE(line.function,
             QByteArray("virtual void MultiItemSelectionWidget::setSelectedItems(QList<int>)"));
    QCOMPARE(line.text, QStringLiteral("Indexes Found: 2 Ids to Select: 4"));
}

void TestMultiItemSelectionWidget::nothingIsLoggedWhenAllAreFound()
{
    const auto widget = createWidget({ 1, 2, 3 });
    const Log log;
    widget->setSelectedItems({ 3, 1 });
    widget->setSelectedItems({});
    QCOMPARE(log.lines().count(), 0);
}

void TestMultiItemSelectionWidget::upMovesTheMarkedBlock()
{
    const auto widget = createWidget({}, { 0, 1, 2, 3, 4, 5 });
    widget->setManualOrdering(true);
    mark(widget->getSelectedListView(), { 5, 2, 1 });
    button(*widget, "▲")->click();
    QCOMPARE(selectedIds(*widget), (Ids { 1, 2, 0, 3, 5, 4 }));
    QCOMPARE(markedRows(widget->getSelectedListView()), (QList<int> { 0, 1, 4 }));
    // At the top now: the one further down does not move either.
    button(*widget, "▲")->click();
    QCOMPARE(selectedIds(*widget), (Ids { 1, 2, 0, 3, 5, 4 }));
}

void TestMultiItemSelectionWidget::downMovesTheMarkedBlock()
{
    const auto widget = createWidget({}, { 0, 1, 2, 3, 4, 5 });
    widget->setManualOrdering(true);
    mark(widget->getSelectedListView(), { 0, 3, 4 });
    button(*widget, "▼")->click();
    QCOMPARE(selectedIds(*widget), (Ids { 1, 0, 2, 5, 3, 4 }));
    QCOMPARE(markedRows(widget->getSelectedListView()), (QList<int> { 1, 4, 5 }));
    button(*widget, "▼")->click();
    QCOMPARE(selectedIds(*widget), (Ids { 1, 0, 2, 5, 3, 4 }));
}

void TestMultiItemSelectionWidget::upAtTheTopMovesNothing()
{
    const auto widget = createWidget({}, { 0, 1, 2, 3 });
    mark(widget->getSelectedListView(), { 3, 0 });
    button(*widget, "▲")->click();
    QCOMPARE(selectedIds(*widget), (Ids { 0, 1, 2, 3 }));
    QCOMPARE(markedRows(widget->getSelectedListView()), (QList<int> { 0, 3 }));
    QCOMPARE(widget->getSelectedListView()->currentIndex().row(), 0);
}

void TestMultiItemSelectionWidget::downAtTheBottomMovesNothing()
{
    const auto widget = createWidget({}, { 0, 1, 2, 3 });
    mark(widget->getSelectedListView(), { 0, 3 });
    button(*widget, "▼")->click();
    QCOMPARE(selectedIds(*widget), (Ids { 0, 1, 2, 3 }));
    QCOMPARE(markedRows(widget->getSelectedListView()), (QList<int> { 0, 3 }));
}

void TestMultiItemSelectionWidget::upAndDownWithNothingMarkedMoveNothing()
{
    const auto widget = createWidget({}, { 2, 1 });
    button(*widget, "▲")->click();
    button(*widget, "▼")->click();
    QCOMPARE(selectedIds(*widget), (Ids { 2, 1 }));
}

void TestMultiItemSelectionWidget::marksFollowTheirItemsInOneStep()
{
    const auto widget = createWidget({}, numbers(40));
    const QListView* view = widget->getSelectedListView();
    const QList<int> rows { 3, 4, 5, 9, 20, 21, 38 };
    mark(widget->getSelectedListView(), rows);
    QSignalSpy marks(view->selectionModel(), &QItemSelectionModel::selectionChanged);
    QSignalSpy current(view->selectionModel(), &QItemSelectionModel::currentChanged);
    for (const bool up : { true, false }) {
        marks.clear();
        current.clear();
        button(*widget, up ? "▲" : "▼")->click();
        QCOMPARE(marks.count(), 2); // none, and those that have moved
        QVERIFY(current.count() <= 1);
        QCOMPARE(markedRows(widget->getSelectedListView()).count(), rows.count());
        QVERIFY(!view->currentIndex().isValid());
    }
    QCOMPARE(selectedIds(*widget), numbers(40));
    QCOMPARE(markedRows(widget->getSelectedListView()), rows);
}

void TestMultiItemSelectionWidget::upAndDownNeitherReportNorSort()
{
    // Sorted by itself, so that any sorting would undo the move.
    const auto widget = createWidget({}, { 1, 2, 3 });
    QSignalSpy changed(widget.get(), &MultiItemSelectionWidget::selectedItemsChanged);
    mark(widget->getSelectedListView(), { 2 });
    button(*widget, "▲")->click();
    QCOMPARE(selectedIds(*widget), (Ids { 1, 3, 2 }));
    mark(widget->getSelectedListView(), { 0 });
    button(*widget, "▼")->click();
    QCOMPARE(selectedIds(*widget), (Ids { 3, 1, 2 }));
    QCOMPARE(changed.count(), 0);
}

void TestMultiItemSelectionWidget::theMovedItemStaysInSight()
{
    const auto widget = createWidget({}, numbers(60));
    widget->resize(400, 200);
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    QListView* view = widget->getSelectedListView();
    const auto isVisible = [view] {
        const QModelIndex index = view->selectionModel()->selectedIndexes().constFirst();
        return view->viewport()->rect().contains(view->visualRect(index));
    };

    mark(view, { 50 });
    for (int i = 0; i < 40; ++i) {
        button(*widget, "▲")->click();
        QVERIFY2(isVisible(), qPrintable(QString::number(i)));
    }
    for (int i = 0; i < 40; ++i) {
        button(*widget, "▼")->click();
        QVERIFY2(isVisible(), qPrintable(QString::number(i)));
    }
}

void TestMultiItemSelectionWidget::moveItemStopsAtTheEndsAndAtEmptyRows()
{
    Opened widget;
    widget.setAvailableItems(items({ 1, 2, 3 }));
    widget.setSelectedItems({ 1, 2, 3 });
    widget.moveItem(0, true);
    widget.moveItem(2, false);
    widget.moveItem(-1, true);
    widget.moveItem(-1, false);
    widget.moveItem(3, true);
    widget.moveItem(7, false);
    QCOMPARE(selectedIds(widget), (Ids { 1, 2, 3 }));
    widget.moveItem(0, false);
    QCOMPARE(selectedIds(widget), (Ids { 2, 1, 3 }));
    widget.moveItem(2, true);
    QCOMPARE(selectedIds(widget), (Ids { 2, 3, 1 }));

    QStandardItemModel* model = modelOf(widget.getSelectedListView());
    model->insertRow(1);
    widget.moveItem(0, false);
    widget.moveItem(2, true);
    widget.moveItem(1, true);
    QCOMPARE(model->item(0)->data(IdRole).toInt(), 2);
    QCOMPARE(model->item(1), nullptr);
    // Neither is such a row moved by its neighbours' move.
    mark(widget.getSelectedListView(), { 1 });
    button(widget, "▲")->click();
    QCOMPARE(model->item(1), nullptr);
}

void TestMultiItemSelectionWidget::rowsOfAnotherModelInTheViewDoNotMove()
{
    MultiItemSelectionWidget widget;
    widget.setManualOrdering(true);
    widget.setAvailableItems(items({ 1, 2, 3 }));
    widget.setSelectedItems({ 1, 2, 3 });
    const QStandardItemModel* own = modelOf(widget.getSelectedListView());
    QStandardItemModel other(2000, 1);
    widget.getSelectedListView()->setModel(&other);
    for (const char* text : { "▲", "▼" }) {
        mark(widget.getSelectedListView(), { 3, 4, 1500 });
        button(widget, text)->click();
        QCOMPARE(own->rowCount(), 3);
        QCOMPARE(own->item(0)->data(IdRole).toInt(), 1);
        QCOMPARE(own->item(2)->data(IdRole).toInt(), 3);
    }
    widget.getSelectedListView()->setModel(nullptr);
}

namespace {

using Step = std::function<void(Recorder&)>;

void addStepsOfTheCaller()
{
    QTest::newRow("setAvailableItems")
        << Step([](Recorder& w) {
               w.setAvailableItems(items({ 1, 2 }));
           })
        << QStringList { QStringLiteral("setAvailableItems 2"),
                         QStringLiteral("setItemsForModel 2 available"),
                         QStringLiteral("addItemsToModel 2 available") };
    QTest::newRow("setAvailableItems, empty")
        << Step([](Recorder& w) { w.setAvailableItems({}); })
        << QStringList { QStringLiteral("setAvailableItems 0"),
                         QStringLiteral("setItemsForModel 0 available") };
    QTest::newRow("addAvailableItem")
        << Step([](Recorder& w) { w.addAvailableItem(item(1)); })
        << QStringList { QStringLiteral("addAvailableItem"),
                         QStringLiteral("addItemsToModel 1 available") };
    QTest::newRow("setSelectedItems")
        << Step([](Recorder& w) {
               w.setSelectedItems({ 1, 4 });
           })
        << QStringList { QStringLiteral("setSelectedItems 2"),
                         QStringLiteral("moveItemsFromModelToModel 2 selected available"),
                         QStringLiteral("addItemsToModel 2 available"),
                         QStringLiteral("moveItemsFromModelToModel 2 available selected"),
                         QStringLiteral("addItemsToModel 2 selected") };
}

void addStepsBetweenTheLists()
{
    QTest::newRow("add") << Step([](Recorder& w) {
        mark(w.getAvailableListView(), { 0 });
        button(w, ">")->click();
    })
                         << QStringList { QStringLiteral(
                                              "moveItemsFromModelToModel 1 available selected"),
                                          QStringLiteral("addItemsToModel 1 selected"),
                                          QStringLiteral("getSelectedItemIds") };
    QTest::newRow("add all") << Step([](Recorder& w) { button(w, ">>")->click(); })
                             << QStringList { QStringLiteral(
                                                  "moveItemsFromModelToModel 3 available selected"),
                                              QStringLiteral("addItemsToModel 3 selected"),
                                              QStringLiteral("getSelectedItemIds") };
    QTest::newRow("remove") << Step([](Recorder& w) {
        mark(w.getSelectedListView(), { 1 });
        button(w, "<")->click();
    })
                            << QStringList { QStringLiteral(
                                                 "moveItemsFromModelToModel 1 selected available"),
                                             QStringLiteral("addItemsToModel 1 available"),
                                             QStringLiteral("getSelectedItemIds") };
    QTest::newRow("remove all")
        << Step([](Recorder& w) { button(w, "<<")->click(); })
        << QStringList { QStringLiteral("moveItemsFromModelToModel 2 selected available"),
                         QStringLiteral("addItemsToModel 2 available"),
                         QStringLiteral("getSelectedItemIds") };
    QTest::newRow("remove, nothing marked")
        << Step([](Recorder& w) { button(w, "<")->click(); })
        << QStringList { QStringLiteral("moveItemsFromModelToModel 0 selected available"),
                         QStringLiteral("getSelectedItemIds") };
}

void addStepsWithinTheSelection()
{
    QTest::newRow("up") << Step([](Recorder& w) {
        w.setSelectedItems({ 1, 2, 3, 4 });
        mark(w.getSelectedListView(), { 3, 1, 2 });
        w.calls.clear();
        button(w, "▲")->click();
    })
                        << QStringList { QStringLiteral("moveItem 1 up"),
                                         QStringLiteral("moveItem 2 up"),
                                         QStringLiteral("moveItem 3 up") };
    QTest::newRow("down") << Step([](Recorder& w) {
        w.setSelectedItems({ 1, 2, 3, 4 });
        mark(w.getSelectedListView(), { 0, 2 });
        w.calls.clear();
        button(w, "▼")->click();
    }) << QStringList { QStringLiteral("moveItem 2 down"), QStringLiteral("moveItem 0 down") };
    QTest::newRow("down at the bottom") << Step([](Recorder& w) {
        mark(w.getSelectedListView(), { 0, 1 });
        button(w, "▼")->click();
    }) << QStringList();
}

} // namespace

void TestMultiItemSelectionWidget::stepsGoThroughTheVirtualFunctions_data()
{
    QTest::addColumn<Step>("step");
    QTest::addColumn<QStringList>("calls");
    addStepsOfTheCaller();
    addStepsBetweenTheLists();
    addStepsWithinTheSelection();
}

void TestMultiItemSelectionWidget::stepsGoThroughTheVirtualFunctions()
{
    QFETCH(const Step, step);
    Recorder widget;
    widget.setAvailableItems(items({ 1, 2, 3, 4, 5 }));
    widget.setSelectedItems({ 4, 5 });
    widget.calls.clear();
    step(widget);
    QTEST(widget.calls, "calls");
}

void TestMultiItemSelectionWidget::buttonsReachTheVirtualSlots_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("call");
    QTest::newRow("add") << QByteArray(">") << QStringLiteral("add");
    QTest::newRow("add all") << QByteArray(">>") << QStringLiteral("add all");
    QTest::newRow("remove") << QByteArray("<") << QStringLiteral("remove");
    QTest::newRow("remove all") << QByteArray("<<") << QStringLiteral("remove all");
    QTest::newRow("up") << QByteArray("\xe2\x96\xb2") << QStringLiteral("up");
    QTest::newRow("down") << QByteArray("\xe2\x96\xbc") << QStringLiteral("down");
}

void TestMultiItemSelectionWidget::buttonsReachTheVirtualSlots()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, call);
    SlotRecorder widget;
    button(widget, text.constData())->click();
    QCOMPARE(widget.calls, QStringList { call });
}

void TestMultiItemSelectionWidget::buttonsForAllMarkAllAndEndInTheSingleSteps()
{
    StepRecorder widget;
    widget.setAvailableItems(items({ 1, 2, 3, 4, 5 }));
    widget.setSelectedItems({ 4, 5 });
    button(widget, ">>")->click();
    button(widget, "<<")->click();
    QCOMPARE(widget.calls, (QStringList { QStringLiteral("add 3"), QStringLiteral("remove 2") }));
}

void TestMultiItemSelectionWidget::nullModelsAndEmptyListsDoNothing()
{
    Opened widget;
    widget.setAvailableItems(items({ 1, 2 }));
    QStandardItemModel* available = modelOf(widget.getAvailableListView());
    QStandardItemModel* selected = modelOf(widget.getSelectedListView());
    const QList<QModelIndex> indexes { available->index(0, 0) };
    const std::unique_ptr<QStandardItem> unused(item(3));

    widget.addItemsToModel({ unused.get() }, nullptr);
    widget.addItemsToModel({}, available);
    widget.setItemsForModel({ unused.get() }, nullptr);
    widget.setItemsForModel({}, available);
    widget.moveItemsFromModelToModel(indexes, nullptr, selected);
    widget.moveItemsFromModelToModel(indexes, available, nullptr);
    widget.moveItemsFromModelToModel({}, available, selected);

    QCOMPARE(unused->model(), nullptr);
    QCOMPARE(availableIds(widget), (Ids { 1, 2 }));
    QCOMPARE(selectedIds(widget), Ids());
}

void TestMultiItemSelectionWidget::indexesOfAnythingElseAreLeftOut()
{
    Opened widget;
    widget.setAvailableItems(items({ 1, 2, 3 }));
    QStandardItemModel* available = modelOf(widget.getAvailableListView());
    QStandardItemModel* selected = modelOf(widget.getSelectedListView());
    available->item(0)->appendRow(item(9));
    const QStandardItemModel other(3, 1);
    const QModelIndex second = available->index(1, 0);

    widget.moveItemsFromModelToModel(
        { QModelIndex(), other.index(0, 0), available->index(0, 0, available->index(0, 0)) },
        available, selected);
    QCOMPARE(availableIds(widget), (Ids { 1, 2, 3 }));
    widget.moveItemsFromModelToModel({ second, second }, available, selected);
    QCOMPARE(availableIds(widget), (Ids { 1, 3 }));
    QCOMPARE(selectedIds(widget), Ids { 2 });
}

void TestMultiItemSelectionWidget::rowsOfAForeignModelMove()
{
    Opened widget;
    QStandardItemModel foreign;
    widget.addItemsToModel(items(numbers(9)), &foreign);
    QCOMPARE(idsOf(&foreign), numbers(9));
    QList<QModelIndex> indexes;
    for (const int row : { 7, 1, 2, 8, 0, 4 }) {
        indexes.append(foreign.index(row, 0));
    }
    widget.moveItemsFromModelToModel(indexes, &foreign, modelOf(widget.getSelectedListView()));
    QCOMPARE(idsOf(&foreign), (Ids { 3, 5, 6 }));
    QCOMPARE(selectedIds(widget), (Ids { 7, 1, 2, 8, 0, 4 }));
}

void TestMultiItemSelectionWidget::rowsOfSeveralColumnsMoveAsTheyAreTaken()
{
    Opened widget;
    QStandardItemModel* available = modelOf(widget.getAvailableListView());
    for (int id = 0; id < 4; ++id) {
        available->appendRow(items({ id, 10 + id }));
    }
    widget.moveItemsFromModelToModel({ available->index(3, 0), available->index(1, 1) }, available,
                                     modelOf(widget.getSelectedListView()));
    QCOMPARE(availableIds(widget), (Ids { 0, 2 }));
    QCOMPARE(selectedIds(widget), (Ids { 3, 13, 1, 11 }));
}

void TestMultiItemSelectionWidget::itemsWithChildrenKeepThem()
{
    const auto widget = createWidget({ 0, 1, 2, 3, 4 });
    QStandardItemModel* available = modelOf(widget->getAvailableListView());
    QStandardItem* family = available->item(1);
    family->appendRow(item(9));
    mark(widget->getAvailableListView(), { 1, 3 });
    button(*widget, ">")->click();

    QStandardItemModel* selected = modelOf(widget->getSelectedListView());
    QCOMPARE(selectedIds(*widget), (Ids { 1, 3 }));
    QCOMPARE(selected->item(0), family);
    QCOMPARE(family->model(), selected);
    QCOMPARE(family->child(0)->model(), selected);
    QCOMPARE(family->child(0)->index().parent(), selected->index(0, 0));
}

void TestMultiItemSelectionWidget::rowsMoveWhileTheModelsSignalsAreBlocked()
{
    Opened widget;
    widget.setAvailableItems(items({ 1, 2, 3 }));
    QStandardItemModel* available = modelOf(widget.getAvailableListView());
    QStandardItem* second = available->item(1);
    const QSignalBlocker blocker(available);
    widget.moveItemsFromModelToModel({ available->index(1, 0) }, available,
                                     modelOf(widget.getSelectedListView()));
    QCOMPARE(modelOf(widget.getSelectedListView())->item(0), second);
    QCOMPARE(second->data(IdRole).toInt(), 2);
    QCOMPARE(availableIds(widget), (Ids { 1, 3 }));
}

void TestMultiItemSelectionWidget::listenersFindTheItemsWhenTheirRemovalIsAnnounced()
{
    const auto widget = createWidget(numbers(10));
    QStandardItemModel* available = modelOf(widget->getAvailableListView());
    Ids announced;
    connect(available, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [&](const QModelIndex& /*parent*/, int first, int last) {
                for (int row = first; row <= last; ++row) {
                    announced.append(available->item(row)->data(IdRole).toInt());
                }
            });
    int gone = 0;
    connect(available, &QAbstractItemModel::rowsRemoved, this, [&] { ++gone; });
    mark(widget->getAvailableListView(), { 8, 1, 3 });
    button(*widget, ">")->click();
    QCOMPARE(announced, (Ids { 1, 3, 8 }));
    QCOMPARE(gone, 1);
}

void TestMultiItemSelectionWidget::indexesOfTheRowsThatStayAreKept()
{
    const auto widget = createWidget(numbers(20));
    QStandardItemModel* available = modelOf(widget->getAvailableListView());
    QList<QPersistentModelIndex> indexes;
    for (int row = 0; row < 20; ++row) {
        indexes.append(available->index(row, 0));
    }
    const QSet<int> moved { 0, 3, 4, 9, 15, 19 };
    mark(widget->getAvailableListView(), { 9, 0, 19, 3, 15, 4 });
    button(*widget, ">")->click();
    for (int id = 0; id < 20; ++id) {
        QCOMPARE(indexes.at(id).isValid(), !moved.contains(id));
        if (indexes.at(id).isValid()) {
            QCOMPARE(indexes.at(id).data(IdRole).toInt(), id);
        }
    }
}

void TestMultiItemSelectionWidget::itemsThatSortThemselvesKeepTheirOrder()
{
    /// Sorts by its id, the highest first.
    class Ranked : public QStandardItem
    {
    public:
        using QStandardItem::QStandardItem;
        bool operator<(const QStandardItem& other) const override
        {
            return data(IdRole).toInt() > other.data(IdRole).toInt();
        }
    };
    MultiItemSelectionWidget widget;
    for (int id = 0; id < 6; ++id) {
        auto* one = new Ranked(nameOf(id));
        one->setData(id, IdRole);
        widget.addAvailableItem(one);
    }
    mark(widget.getAvailableListView(), { 1, 4 });
    button(widget, ">")->click();
    QCOMPARE(availableIds(widget), (Ids { 0, 2, 3, 5 }));
    QCOMPARE(selectedIds(widget), (Ids { 4, 1 }));
}

void TestMultiItemSelectionWidget::movingInOneStepEqualsOneByOne_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<int>("count");
    for (quint32 seed = 0; seed < 60; ++seed) {
        const int count = 1 + int(seed * 7 % 40);
        QTest::addRow("seed %u, %d items", seed, count) << seed << count;
    }
}

void TestMultiItemSelectionWidget::movingInOneStepEqualsOneByOne()
{
    QFETCH(const quint32, seed);
    QFETCH(const int, count);
    QRandomGenerator random(seed);
    MultiItemSelectionWidget fast;
    OneByOne plain;
    const QList<MultiItemSelectionWidget*> both { &fast, &plain };
    const QAbstractItemModelTester left(fast.getAvailableListView()->model(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QAbstractItemModelTester right(fast.getSelectedListView()->model(),
                                         QAbstractItemModelTester::FailureReportingMode::QtTest);
    Ids ids = numbers(count);
    std::shuffle(ids.begin(), ids.end(), random);
    for (MultiItemSelectionWidget* widget : both) {
        widget->setAvailableItems(items(ids));
    }

    for (int step = 0; step < 25; ++step) {
        const auto operation = random.bounded(8);
        std::shuffle(ids.begin(), ids.end(), random);
        const Ids some = ids.mid(0, random.bounded(count + 1));
        const bool leftList = random.bounded(2) == 0;
        const bool keepCurrent = random.bounded(2) == 0;
        for (MultiItemSelectionWidget* widget : both) {
            QListView* view = leftList ? static_cast<QListView*>(widget->getAvailableListView())
                                       : widget->getSelectedListView();
            QList<int> rows;
            for (const int row : some) {
                if (row < view->model()->rowCount()) {
                    rows.append(row);
                }
            }
            if (operation == 0) {
                widget->setSelectedItems(some);
            } else if (operation == 1) {
                widget->setManualOrdering(leftList);
            } else if (operation == 2) {
                button(*widget, leftList ? ">>" : "<<")->click();
            } else if (operation == 3) {
                mark(view, rows);
                button(*widget, keepCurrent ? "▲" : "▼")->click();
            } else {
                mark(view, rows);
                if (keepCurrent && view->model()->rowCount() > 0) {
                    view->selectionModel()->setCurrentIndex(
                        view->model()->index(int(seed + quint32(step)) % view->model()->rowCount(),
                                             0),
                        QItemSelectionModel::NoUpdate);
                }
                button(*widget, leftList ? ">" : "<")->click();
            }
        }
        QCOMPARE(state(fast), state(plain));
        QCOMPARE(fast.getSelectedItemIds(), plain.getSelectedItemIds());
    }
}

void TestMultiItemSelectionWidget::theScrollPositionStaysWhenTheCurrentItemDoes()
{
    const auto widget = createWidget(numbers(200));
    widget->resize(400, 200);
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    QListView* view = widget->getAvailableListView();
    mark(view, { 150, 120, 181, 160, 130 });
    view->selectionModel()->setCurrentIndex(view->model()->index(50, 0),
                                            QItemSelectionModel::NoUpdate);
    const int position = view->verticalScrollBar()->value();
    QVERIFY(position > 0);
    button(*widget, ">")->click();
    QCoreApplication::processEvents();
    QCOMPARE(view->model()->rowCount(), 195);
    QCOMPARE(view->verticalScrollBar()->value(), position);
    QCOMPARE(view->currentIndex().row(), 50);
}

UW_TEST_MAIN(TestMultiItemSelectionWidget)

#include "tst_multiitemselectionwidget.moc"
