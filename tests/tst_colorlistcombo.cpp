// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "colorlistcombo.h"

#include "colorlistcombodelegate.h"

#include "support/finger.h"
#include "support/test.h"

#include <QAbstractItemView>
#include <QSignalSpy>

namespace {

const QString BaseStyle = QStringLiteral(
    "QComboBox { border: 1px solid #c6c6c6; }\nQComboBox::drop-down { border: 0px; }\n"
    "QComboBox::down-arrow { image: url(:/module_icons/ModuleIcons/combobox-down-arrow.png); }\n"
    "QComboBox::down-arrow::disabled { image: "
    "url(:/module_icons/ModuleIcons/combobox-down-arrow-disabled.png); }\n"
    "QComboBox QAbstractItemView::item { min-height: 35px; }\n ");

using Color = QPair<QString, QString>;

const QList<QString> Names { QStringLiteral("Warning"), QStringLiteral("Notice") };
const QList<QString> Backgrounds { QStringLiteral("#ff0000"), QStringLiteral("white") };
const QList<QString> Texts { QStringLiteral("white"), QStringLiteral("#0000ff") };

/// Counts who listens to activated().
class CountingCombo : public ColorListCombo
{
public:
    using ColorListCombo::ColorListCombo;
    int activatedReceivers() const { return receivers(SIGNAL(activated(int))); }
};

QColor pixelInTheClosedBox(ColorListCombo* combo)
{
    combo->resize(200, 40);
    return combo->grab().toImage().pixelColor(130, 20);
}

} // namespace

class TestColorListCombo : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterItsClass();
    void startsWithTheExactBaseSheet();
    void hasADelegateThatSurvivesAChangeOfTheSheet();
    void everyEntryCarriesItsColors();
    void theLongConstructorInitializes();
    void keepsTheBaseStyleUntilAnEntryIsChosen();
    void setColorIndexShowsTheColorsWithoutActivating();
    void activatingShowsTheColors();
    void theSlotShowsTheColorsOfItsEntry();
    void colorReturnsThePairOfTheCurrentEntry();
    void colorOfAnEmptyComboBoxIsEmpty();
    void initializingTwiceReplacesTheEntries();
    void initializingTwiceLeavesOneConnection();
    void initializingAgainReturnsToTheBaseStyle();
    void shorterColorListsLeaveEntriesWithoutColors();
    void noEntryLeavesTheOrdinaryColors();

    void theClosedBoxIsPaintedInTheChosenColors();
    void thePopupPaintsEveryEntryInItsColors();
    void theUserChoosesFromThePopup();
    void aTextThatIsNoColorStaysOutOfTheSheet_data();
    void aTextThatIsNoColorStaysOutOfTheSheet();
};

void TestColorListCombo::isNamedAfterItsClass()
{
    QCOMPARE(ColorListCombo().objectName(), QStringLiteral("ColorListCombo"));
}

void TestColorListCombo::startsWithTheExactBaseSheet()
{
    QCOMPARE(ColorListCombo().styleSheet(), BaseStyle);
}

void TestColorListCombo::hasADelegateThatSurvivesAChangeOfTheSheet()
{
    ColorListCombo combo(Names, Backgrounds, Texts);
    combo.show();
    combo.setColorIndex(1);
    combo.setStyleSheet(QStringLiteral("QComboBox { color: red; }"));
    combo.grab();

    QVERIFY(qobject_cast<ColorListComboDelegate*>(combo.itemDelegate()) != nullptr);
    QCOMPARE(combo.view()->itemDelegate(), combo.itemDelegate());
}

void TestColorListCombo::everyEntryCarriesItsColors()
{
    ColorListCombo combo;
    combo.initializeComboBox(Names, Backgrounds, Texts);

    QCOMPARE(combo.count(), 2);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(combo.itemText(i), Names.at(i));
        QCOMPARE(combo.itemData(i, Qt::UserRole + 1), QVariant(Backgrounds.at(i)));
        QCOMPARE(combo.itemData(i, Qt::UserRole + 2), QVariant(Texts.at(i)));
        QCOMPARE(combo.itemData(i, Qt::BackgroundRole), QVariant(QColor(Backgrounds.at(i))));
        QCOMPARE(combo.itemData(i, Qt::ForegroundRole), QVariant(QColor(Texts.at(i))));
    }
}

void TestColorListCombo::theLongConstructorInitializes()
{
    QWidget parent;
    const ColorListCombo combo(Names, Backgrounds, Texts, &parent);

    QCOMPARE(combo.parentWidget(), &parent);
    QCOMPARE(combo.objectName(), QStringLiteral("ColorListCombo"));
    QCOMPARE(combo.count(), 2);
    QCOMPARE(combo.color(), Color(QStringLiteral("#ff0000"), QStringLiteral("white")));
}

void TestColorListCombo::keepsTheBaseStyleUntilAnEntryIsChosen()
{
    ColorListCombo combo;
    combo.initializeComboBox(Names, Backgrounds, Texts);
    QCOMPARE(combo.styleSheet(), BaseStyle);

    combo.setCurrentIndex(1); // neither the user nor setColorIndex()
    QCOMPARE(combo.styleSheet(), BaseStyle);

    combo.setColorIndex(1);
    QVERIFY(combo.styleSheet() != BaseStyle);
}

void TestColorListCombo::setColorIndexShowsTheColorsWithoutActivating()
{
    ColorListCombo combo(Names, Backgrounds, Texts);
    QSignalSpy activated(&combo, &QComboBox::activated);

    combo.setColorIndex(1);

    QCOMPARE(combo.currentIndex(), 1);
    QCOMPARE(activated.count(), 0);
    QCOMPARE(combo.styleSheet(),
             BaseStyle
                 + QStringLiteral(" QComboBox {  color: #0000ff;  background-color: white; }"));
}

void TestColorListCombo::activatingShowsTheColors()
{
    ColorListCombo combo(Names, Backgrounds, Texts);

    Q_EMIT combo.activated(0);

    QCOMPARE(combo.styleSheet(),
             BaseStyle
                 + QStringLiteral(" QComboBox {  color: white;  background-color: #ff0000; }"));
}

void TestColorListCombo::theSlotShowsTheColorsOfItsEntry()
{
    ColorListCombo combo(Names, Backgrounds, Texts);

    QVERIFY(QMetaObject::invokeMethod(&combo, "comboBoxActivatedSlot", Q_ARG(int, 1)));

    QCOMPARE(combo.currentIndex(), 0);
    QVERIFY(combo.styleSheet().endsWith(
        QStringLiteral("\n  QComboBox {  color: #0000ff;  background-color: white; }")));
}

void TestColorListCombo::colorReturnsThePairOfTheCurrentEntry()
{
    ColorListCombo combo(Names, Backgrounds, Texts);
    combo.setColorIndex(1);
    QCOMPARE(combo.color(), Color(QStringLiteral("white"), QStringLiteral("#0000ff")));

    combo.setCurrentIndex(0);
    QCOMPARE(combo.color(), Color(QStringLiteral("#ff0000"), QStringLiteral("white")));
}

void TestColorListCombo::colorOfAnEmptyComboBoxIsEmpty()
{
    QCOMPARE(ColorListCombo().color(), Color());
}

void TestColorListCombo::initializingTwiceReplacesTheEntries()
{
    ColorListCombo combo(Names, Backgrounds, Texts);
    combo.setColorIndex(1);

    combo.initializeComboBox({ QStringLiteral("Only") }, { QStringLiteral("black") },
                             { QStringLiteral("white") });

    QCOMPARE(combo.count(), 1);
    QCOMPARE(combo.color(), Color(QStringLiteral("black"), QStringLiteral("white")));
}

void TestColorListCombo::initializingTwiceLeavesOneConnection()
{
    CountingCombo combo;
    QCOMPARE(combo.activatedReceivers(), 0);

    combo.initializeComboBox(Names, Backgrounds, Texts);
    QCOMPARE(combo.activatedReceivers(), 1);

    combo.initializeComboBox(Names, Backgrounds, Texts);
    QCOMPARE(combo.activatedReceivers(), 1);
}

void TestColorListCombo::initializingAgainReturnsToTheBaseStyle()
{
    ColorListCombo combo(Names, Backgrounds, Texts);
    combo.setColorIndex(1);

    combo.initializeComboBox(Names, Backgrounds, Texts);

    QCOMPARE(combo.styleSheet(), BaseStyle);
}

void TestColorListCombo::shorterColorListsLeaveEntriesWithoutColors()
{
    ColorListCombo combo(Names, { QStringLiteral("red") }, {});

    QCOMPARE(combo.count(), 2);
    QCOMPARE(combo.color(), Color(QStringLiteral("red"), QString()));
    QVERIFY(!combo.itemData(1, Qt::BackgroundRole).isValid());
    QVERIFY(!combo.itemData(1, Qt::ForegroundRole).isValid());
    combo.setColorIndex(1);
    QCOMPARE(combo.color(), Color());
}

void TestColorListCombo::noEntryLeavesTheOrdinaryColors()
{
    ColorListCombo combo(Names, Backgrounds, Texts);
    const QColor ordinary = pixelInTheClosedBox(&combo);
    combo.setColorIndex(0);
    QVERIFY(pixelInTheClosedBox(&combo) != ordinary);

    combo.setColorIndex(-1);

    QCOMPARE(combo.currentIndex(), -1);
    QCOMPARE(combo.color(), Color());
    QCOMPARE(pixelInTheClosedBox(&combo), ordinary);
}

void TestColorListCombo::theClosedBoxIsPaintedInTheChosenColors()
{
    ColorListCombo combo(Names, Backgrounds, Texts);
    combo.setColorIndex(0);
    QCOMPARE(pixelInTheClosedBox(&combo), QColor(Qt::red));
    QCOMPARE(combo.grab().toImage().pixelColor(0, 20), QColor(QStringLiteral("#c6c6c6")));
    QCOMPARE(combo.palette().color(QPalette::Text), QColor(Qt::white));

    combo.setColorIndex(1);
    QCOMPARE(pixelInTheClosedBox(&combo), QColor(Qt::white));
    QCOMPARE(combo.palette().color(QPalette::Text), QColor(Qt::blue));
}

void TestColorListCombo::thePopupPaintsEveryEntryInItsColors()
{
    ColorListCombo combo(Names, Backgrounds, Texts);
    combo.resize(200, 40);
    combo.show();
    combo.setColorIndex(0);
    combo.showPopup();
    QAbstractItemView* view = combo.view();
    QTRY_VERIFY(view->isVisible());

    for (int i = 0; i < 2; ++i) {
        const QRect rect = view->visualRect(combo.model()->index(i, 0));
        QVERIFY2(rect.height() >= 35, "too low for a finger");
        // Selected, yet in its own colours. Not current: the style tints what has the focus.
        view->setCurrentIndex(combo.model()->index(1 - i, 0));
        view->selectionModel()->select(combo.model()->index(i, 0), QItemSelectionModel::Select);
        const QImage image = view->viewport()->grab(rect).toImage();
        QCOMPARE(image.pixelColor(image.width() - 5, image.height() / 2),
                 QColor(Backgrounds.at(i)));
    }
    combo.hidePopup();
}

void TestColorListCombo::theUserChoosesFromThePopup()
{
    ColorListCombo combo(Names, Backgrounds, Texts);
    combo.resize(200, 40);
    combo.show();
    QSignalSpy activated(&combo, &QComboBox::activated);
    combo.showPopup();
    QTRY_VERIFY(combo.view()->isVisible());

    combo.view()->setCurrentIndex(combo.model()->index(1, 0));
    QTest::keyClick(combo.view(), Qt::Key_Return);

    QTRY_COMPARE(activated, QList<QVariantList>({ { 1 } }));
    QCOMPARE(combo.color(), Color(QStringLiteral("white"), QStringLiteral("#0000ff")));
    QCOMPARE(pixelInTheClosedBox(&combo), QColor(Qt::white));
}

void TestColorListCombo::aTextThatIsNoColorStaysOutOfTheSheet_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("further rules") << QStringLiteral("red; } * { background: blue");
    QTest::newRow("nothing") << QString();
    QTest::newRow("other letters") << QStringLiteral("\u7ea2\u8272");
    QTest::newRow("unknown name") << QStringLiteral("nosuchcolor");
}

void TestColorListCombo::aTextThatIsNoColorStaysOutOfTheSheet()
{
    QFETCH(const QString, text);
    ColorListCombo combo(Names, { text, QStringLiteral("lime") }, { text, QStringLiteral("red") });
    const QColor ordinary = pixelInTheClosedBox(&combo);

    combo.setColorIndex(0);

    QCOMPARE(combo.styleSheet(),
             BaseStyle + QStringLiteral(" QComboBox {  color: none;  background-color: none; }"));
    QCOMPARE(combo.color(), Color(text, text));
    QVERIFY(!combo.itemData(0, Qt::BackgroundRole).isValid());
    QCOMPARE(pixelInTheClosedBox(&combo), ordinary);
    QCOMPARE(combo.grab().toImage().pixelColor(0, 20), QColor(QStringLiteral("#c6c6c6")));
}

UW_TEST_MAIN(TestColorListCombo)

#include "tst_colorlistcombo.moc"
