// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "lockwidget.h"

#include "applicationfont.h"
#include "linelabel.h"
#include "support/test.h"

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPainter>
#include <QPixmap>
#include <QSignalSpy>
#include <QStyleOptionButton>
#include <QTranslator>

#include <memory>

namespace {

/// The boxes of a lock widget, in their order.
struct Boxes
{
    explicit Boxes(const LockWidget& widget)
    {
        const auto boxes = widget.findChildren<QCheckBox*>();
        for (QCheckBox* box : boxes) {
            if (box->styleSheet().contains(QStringLiteral("object-lock"))) {
                lock = box;
            } else if (box->styleSheet().contains(QStringLiteral("readonly-lock"))) {
                readOnly = box;
            } else if (box->styleSheet().contains(QStringLiteral("user-background"))) {
                userBackground = box;
            }
        }
    }

    /// "+" for checked, "-" for unchecked, in brackets when disabled; in the boxes' order.
    QString states() const
    {
        const auto state = [](const QCheckBox* box) {
            const QString mark = box->isChecked() ? QStringLiteral("+") : QStringLiteral("-");
            return box->isEnabled() ? mark : QString(QLatin1Char('(') + mark + QLatin1Char(')'));
        };
        return state(lock) + QLatin1Char(' ') + state(readOnly) + QLatin1Char(' ')
            + state(userBackground);
    }

    QCheckBox* lock = nullptr;
    QCheckBox* readOnly = nullptr;
    QCheckBox* userBackground = nullptr;
};

QString sheet(const QString& image)
{
    return QStringLiteral(
               "QCheckBox::indicator:checked   { image: url(:/Lock/Lock/NAME-pressed.png); } "
               "QCheckBox::indicator:unchecked { image: url(:/Lock/Lock/NAME.png); } "
               "QCheckBox::indicator:disabled  { image: url(:/Lock/Lock/NAME-disabled.png); }")
        .replace(QStringLiteral("NAME"), image);
}

/// Translates every text of LockWidget into its comment.
class CommentTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* /*sourceText*/, const char* disambiguation,
                      int /*n*/) const override
    {
        return qstrcmp(context, "LockWidget") == 0 ? QString::fromUtf8(disambiguation) : QString();
    }
};

void verifySpacer(QLayoutItem* item)
{
    QVERIFY(item != nullptr && item->spacerItem() != nullptr);
    QCOMPARE(item->sizeHint(), QSize(5, 5));
    QCOMPARE(item->spacerItem()->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(item->spacerItem()->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
}

void verifyGrid(const LockWidget& widget)
{
    auto* grid = qobject_cast<QGridLayout*>(widget.layout());
    QVERIFY(grid != nullptr);
    const Boxes boxes(widget);
    QCOMPARE(grid->count(), 5);

    auto* header = widget.findChild<LineLabel*>();
    QVERIFY(header != nullptr);
    const auto place = [grid](int index) {
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(index, &row, &column, &rows, &columns);
        return QList<int> { row, column, rows, columns };
    };
    QCOMPARE(place(grid->indexOf(header)), (QList<int> { 0, 0, 1, 2 }));
    QCOMPARE(place(grid->indexOf(boxes.lock)), (QList<int> { 1, 0, 1, 1 }));
    QCOMPARE(place(grid->indexOf(boxes.readOnly)), (QList<int> { 1, 1, 1, 1 }));
    verifySpacer(grid->itemAtPosition(2, 0));
    QCOMPARE(grid->itemAtPosition(2, 1), nullptr);
    QCOMPARE(place(grid->indexOf(boxes.userBackground)), (QList<int> { 3, 0, 1, 2 }));
}

} // namespace

class TestLockWidget : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterItsClass();
    void boxHasItsTextToolTipAndSheet_data();
    void boxHasItsTextToolTipAndSheet();
    void textsCarryTheirComments();
    void rowHoldsASpacerAndTheThreeBoxes();
    void gridHoldsHeaderBoxesAndSpacer();
    void madeWithAParentAloneItIsAGrid();
    void headerIsBoldAndNamesTheOptions();
    void startsUncheckedAndEnabled();
    void clickReportsItsOwnBoxAndChangesNoOther_data();
    void clickReportsItsOwnBoxAndChangesNoOther();
    void lockStateChangesTheLockBoxOnly_data();
    void lockStateChangesTheLockBoxOnly();
    void readOnlyStateDecidesTheLockBox_data();
    void readOnlyStateDecidesTheLockBox();
    void userBackgroundStateDecidesBothOtherBoxes_data();
    void userBackgroundStateDecidesBothOtherBoxes();
    void userBackgroundDisablesBothAndGivesBackWhatReadOnlyAllows();
    void readOnlyLeavesTheLockBoxCheckedButDisabled();
    void settersEmitNoSignal();
    void boxShowsTheImageOfItsState_data();
    void boxShowsTheImageOfItsState();
};

void TestLockWidget::isNamedAfterItsClass()
{
    QCOMPARE(LockWidget(true, nullptr).objectName(), QStringLiteral("LockWidget"));
    QCOMPARE(LockWidget(false, nullptr).objectName(), QStringLiteral("LockWidget"));
    QCOMPARE(LockWidget().objectName(), QStringLiteral("LockWidget"));
}

void TestLockWidget::boxHasItsTextToolTipAndSheet_data()
{
    QTest::addColumn<QCheckBox * Boxes::*>("box");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("image");
    QTest::newRow("lock") << &Boxes::lock << QStringLiteral("Lock")
                          << QStringLiteral("All object properties except for data editing are "
                                            "prevented from being changed.")
                          << QStringLiteral("object-lock");
    QTest::newRow("read-only") << &Boxes::readOnly << QStringLiteral("Read\nOnly")
                               << QStringLiteral(
                                      "All object properties are prevented from being changed.")
                               << QStringLiteral("readonly-lock");
    QTest::newRow("user background")
        << &Boxes::userBackground << QStringLiteral("Set As User\nBackground")
        << QStringLiteral("The object is placed in a separate layer, that can be hidden (option in "
                          "defaults menu) \nand optionally printed (option in print widget).")
        << QStringLiteral("user-background");
}

void TestLockWidget::boxHasItsTextToolTipAndSheet()
{
    QFETCH(QCheckBox * Boxes::*, box);
    QFETCH(const QString, image);
    for (const bool horizontal : { true, false }) {
        const LockWidget widget(horizontal, nullptr);
        const QCheckBox* subject = Boxes(widget).*box;
        QVERIFY(subject != nullptr);
        QTEST(subject->text(), "text");
        QTEST(subject->toolTip(), "toolTip");
        QCOMPARE(subject->styleSheet(), sheet(image));
    }
}

void TestLockWidget::textsCarryTheirComments()
{
    CommentTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const LockWidget widget(false, nullptr);
    QCoreApplication::removeTranslator(&translator);

    const Boxes boxes(widget);
    QCOMPARE(boxes.lock->text(), QStringLiteral("Lock button text."));
    QCOMPARE(boxes.lock->toolTip(), QStringLiteral("Lock button tool tip text."));
    QCOMPARE(boxes.readOnly->text(), QStringLiteral("Read-only button text."));
    QCOMPARE(boxes.readOnly->toolTip(), QStringLiteral("Read-only button tool tip text."));
    QCOMPARE(boxes.userBackground->text(), QStringLiteral("User template button text."));
    QCOMPARE(boxes.userBackground->toolTip(),
             QStringLiteral("User template button tool tip text."));
    QCOMPARE(widget.findChild<LineLabel*>()->text(),
             QStringLiteral("Section header for object lock options."));
}

void TestLockWidget::rowHoldsASpacerAndTheThreeBoxes()
{
    QWidget parent;
    const auto* widget = new LockWidget(true, &parent);
    QCOMPARE(widget->parentWidget(), &parent);
    auto* row = qobject_cast<QHBoxLayout*>(widget->layout());
    QVERIFY(row != nullptr);
    const Boxes boxes(*widget);
    QCOMPARE(row->count(), 4);
    verifySpacer(row->itemAt(0));
    QCOMPARE(row->itemAt(1)->widget(), boxes.lock);
    QCOMPARE(row->itemAt(2)->widget(), boxes.readOnly);
    QCOMPARE(row->itemAt(3)->widget(), boxes.userBackground);
    QCOMPARE(widget->findChild<LineLabel*>(), nullptr);
}

void TestLockWidget::gridHoldsHeaderBoxesAndSpacer()
{
    QWidget parent;
    const auto* widget = new LockWidget(false, &parent);
    QCOMPARE(widget->parentWidget(), &parent);
    verifyGrid(*widget);
}

void TestLockWidget::madeWithAParentAloneItIsAGrid()
{
    QWidget parent;
    const auto* widget = new LockWidget(&parent);
    QCOMPARE(widget->parentWidget(), &parent);
    verifyGrid(*widget);
}

void TestLockWidget::headerIsBoldAndNamesTheOptions()
{
    const LockWidget widget(false, nullptr);
    const auto* header = widget.findChild<LineLabel*>();
    QCOMPARE(header->text(), QStringLiteral("Lock Options"));
    QCOMPARE(header->font(), ApplicationFont::getWidgetFont(true));
}

void TestLockWidget::startsUncheckedAndEnabled()
{
    const LockWidget widget(true, nullptr);
    QCOMPARE(Boxes(widget).states(), QStringLiteral("- - -"));
}

void TestLockWidget::clickReportsItsOwnBoxAndChangesNoOther_data()
{
    QTest::addColumn<QCheckBox * Boxes::*>("box");
    QTest::addColumn<int>("reported"); // among lock, read-only and user background
    QTest::addColumn<QString>("states");
    QTest::newRow("lock") << &Boxes::lock << 0 << QStringLiteral("+ - -");
    QTest::newRow("read-only") << &Boxes::readOnly << 1 << QStringLiteral("- + -");
    QTest::newRow("user background") << &Boxes::userBackground << 2 << QStringLiteral("- - +");
}

void TestLockWidget::clickReportsItsOwnBoxAndChangesNoOther()
{
    QFETCH(QCheckBox * Boxes::*, box);
    QFETCH(const int, reported);
    LockWidget widget(true, nullptr);
    const Boxes boxes(widget);
    QSignalSpy lock(&widget, &LockWidget::lockSignal);
    QSignalSpy readOnly(&widget, &LockWidget::readOnlySignal);
    QSignalSpy userBackground(&widget, &LockWidget::userBackgroundSignal);
    const QList<QSignalSpy*> spies { &lock, &readOnly, &userBackground };

    QTest::mouseClick(boxes.*box, Qt::LeftButton, {}, QPoint(5, (boxes.*box)->height() / 2));
    QTEST(boxes.states(), "states");
    QTest::mouseClick(boxes.*box, Qt::LeftButton, {}, QPoint(5, (boxes.*box)->height() / 2));
    QCOMPARE(boxes.states(), QStringLiteral("- - -"));

    for (int index = 0; index < spies.size(); ++index) {
        QCOMPARE(spies.at(index)->count(), index == reported ? 2 : 0);
    }
    QCOMPARE(spies.at(reported)->at(0), QVariantList { true });
    QCOMPARE(spies.at(reported)->at(1), QVariantList { false });
}

void TestLockWidget::lockStateChangesTheLockBoxOnly_data()
{
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<bool>("userBackground");
    QTest::addColumn<QString>("checked");
    QTest::addColumn<QString>("unchecked");
    QTest::newRow("nothing set") << false << false << QStringLiteral("+ - -")
                                 << QStringLiteral("- - -");
    QTest::newRow("read-only") << true << false << QStringLiteral("(+) + -")
                               << QStringLiteral("(-) + -");
    QTest::newRow("user background")
        << false << true << QStringLiteral("(+) (-) +") << QStringLiteral("(-) (-) +");
    QTest::newRow("both") << true << true << QStringLiteral("(+) (+) +")
                          << QStringLiteral("(-) (+) +");
}

void TestLockWidget::lockStateChangesTheLockBoxOnly()
{
    QFETCH(const bool, readOnly);
    QFETCH(const bool, userBackground);
    LockWidget widget(true, nullptr);
    const Boxes boxes(widget);
    widget.setReadOnlyState(readOnly);
    widget.setUserBackgroundState(userBackground);
    widget.setLockState(true);
    QTEST(boxes.states(), "checked");
    widget.setLockState(false);
    QTEST(boxes.states(), "unchecked");
}

void TestLockWidget::readOnlyStateDecidesTheLockBox_data()
{
    QTest::addColumn<bool>("lock");
    QTest::addColumn<bool>("userBackground");
    QTest::addColumn<QString>("checked");
    QTest::addColumn<QString>("unchecked");
    QTest::newRow("nothing set") << false << false << QStringLiteral("(-) + -")
                                 << QStringLiteral("- - -");
    QTest::newRow("locked") << true << false << QStringLiteral("(+) + -")
                            << QStringLiteral("+ - -");
    // Read-only decides about the lock box without a look at the user background.
    QTest::newRow("user background")
        << false << true << QStringLiteral("(-) (+) +") << QStringLiteral("- (-) +");
    QTest::newRow("both") << true << true << QStringLiteral("(+) (+) +")
                          << QStringLiteral("+ (-) +");
}

void TestLockWidget::readOnlyStateDecidesTheLockBox()
{
    QFETCH(const bool, lock);
    QFETCH(const bool, userBackground);
    LockWidget widget(true, nullptr);
    const Boxes boxes(widget);
    widget.setLockState(lock);
    widget.setUserBackgroundState(userBackground);
    widget.setReadOnlyState(true);
    QTEST(boxes.states(), "checked");
    widget.setReadOnlyState(false);
    QTEST(boxes.states(), "unchecked");
}

void TestLockWidget::userBackgroundStateDecidesBothOtherBoxes_data()
{
    QTest::addColumn<bool>("lock");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<QString>("checked");
    QTest::addColumn<QString>("unchecked");
    QTest::newRow("nothing set") << false << false << QStringLiteral("(-) (-) +")
                                 << QStringLiteral("- - -");
    QTest::newRow("locked") << true << false << QStringLiteral("(+) (-) +")
                            << QStringLiteral("+ - -");
    QTest::newRow("read-only") << false << true << QStringLiteral("(-) (+) +")
                               << QStringLiteral("(-) + -");
    QTest::newRow("both") << true << true << QStringLiteral("(+) (+) +")
                          << QStringLiteral("(+) + -");
}

void TestLockWidget::userBackgroundStateDecidesBothOtherBoxes()
{
    QFETCH(const bool, lock);
    QFETCH(const bool, readOnly);
    LockWidget widget(true, nullptr);
    const Boxes boxes(widget);
    widget.setLockState(lock);
    widget.setReadOnlyState(readOnly);
    widget.setUserBackgroundState(true);
    QTEST(boxes.states(), "checked");
    widget.setUserBackgroundState(false);
    QTEST(boxes.states(), "unchecked");
}

void TestLockWidget::userBackgroundDisablesBothAndGivesBackWhatReadOnlyAllows()
{
    LockWidget widget(true, nullptr);
    const Boxes boxes(widget);
    widget.setUserBackgroundState(true);
    QVERIFY(!boxes.lock->isEnabled());
    QVERIFY(!boxes.readOnly->isEnabled());
    widget.setUserBackgroundState(false);
    QVERIFY(boxes.lock->isEnabled());
    QVERIFY(boxes.readOnly->isEnabled());

    widget.setReadOnlyState(true);
    widget.setUserBackgroundState(true);
    widget.setUserBackgroundState(false);
    QVERIFY(!boxes.lock->isEnabled());
    QVERIFY(boxes.readOnly->isEnabled());
}

void TestLockWidget::readOnlyLeavesTheLockBoxCheckedButDisabled()
{
    LockWidget widget(true, nullptr);
    const Boxes boxes(widget);
    widget.setLockState(true);
    widget.setReadOnlyState(true);
    QVERIFY(boxes.lock->isChecked());
    QVERIFY(!boxes.lock->isEnabled());
}

void TestLockWidget::settersEmitNoSignal()
{
    LockWidget widget(true, nullptr);
    QSignalSpy lock(&widget, &LockWidget::lockSignal);
    QSignalSpy readOnly(&widget, &LockWidget::readOnlySignal);
    QSignalSpy userBackground(&widget, &LockWidget::userBackgroundSignal);
    for (const bool checked : { true, false }) {
        widget.setLockState(checked);
        widget.setReadOnlyState(checked);
        widget.setUserBackgroundState(checked);
    }
    QCOMPARE(lock.count() + readOnly.count() + userBackground.count(), 0);
}

void TestLockWidget::boxShowsTheImageOfItsState_data()
{
    QTest::addColumn<QCheckBox * Boxes::*>("box");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("image");

    const std::pair<QCheckBox * Boxes::*, const char*> boxes[] {
        { &Boxes::lock, "object-lock" },
        { &Boxes::readOnly, "readonly-lock" },
        { &Boxes::userBackground, "user-background" },
    };
    for (const auto& [box, name] : boxes) {
        const auto row = [box = box, name = name](const char* state, bool checked, bool enabled,
                                                  const char* ending) {
            QTest::addRow("%s, %s", name, state)
                << box << checked << enabled
                << QStringLiteral(":/Lock/Lock/%1%2.png")
                       .arg(QLatin1String(name), QLatin1String(ending));
        };
        row("unchecked", false, true, "");
        row("checked", true, true, "-pressed");
        row("disabled", false, false, "-disabled");
        row("checked and disabled", true, false, "-disabled");
    }
}

void TestLockWidget::boxShowsTheImageOfItsState()
{
    QFETCH(QCheckBox * Boxes::*, box);
    QFETCH(const bool, checked);
    QFETCH(const bool, enabled);
    QFETCH(const QString, image);
    const QPixmap expected(image);
    QVERIFY2(!expected.isNull(), qPrintable(image));

    const LockWidget widget(true, nullptr);
    QCheckBox* subject = Boxes(widget).*box;
    subject->setChecked(checked);
    subject->setEnabled(enabled);
    subject->resize(subject->sizeHint());

    QStyleOptionButton option;
    option.initFrom(subject);
    option.state |= checked ? QStyle::State_On : QStyle::State_Off;
    const QRect indicator =
        subject->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, subject);
    QCOMPARE(indicator.size(), expected.size());
    QPixmap shown(subject->size());
    shown.fill(Qt::white);
    subject->render(&shown, {}, {}, {});
    QPixmap onWhite(expected.size());
    onWhite.fill(Qt::white);
    QPainter(&onWhite).drawPixmap(0, 0, expected);
    QCOMPARE(shown.copy(indicator).toImage(), onWhite.toImage());
}

UW_TEST_MAIN(TestLockWidget)

#include "tst_lockwidget.moc"
