// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "clickablecombobox.h"
#include "oxlineedit.h"

#include "support/finger.h"
#include "support/test.h"

#include <QAbstractItemView>
#include <QMetaMethod>
#include <QPointer>
#include <QSignalSpy>
#include <QStyleOptionComboBox>
#include <QStyledItemDelegate>

#include <memory>

namespace {

/// Counts what the outside, and Qt itself, ask of the list.
class CountingBox : public ClickableComboBox
{
public:
    using ClickableComboBox::ClickableComboBox;

    int shows = 0;
    int hides = 0;

    void showPopup() override
    {
        ++shows;
        ClickableComboBox::showPopup();
    }
    void hidePopup() override
    {
        ++hides;
        ClickableComboBox::hidePopup();
    }
};

QStringList threeItems()
{
    return { QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three") };
}

/// A window with `box` at its top and room below its list.
class BoxWindow
{
public:
    /// Takes ownership of `box`.
    explicit BoxWindow(QComboBox* box)
        : m_box(box)
    {
        m_window.resize(400, 400);
        m_box->setParent(&m_window);
        m_box->setGeometry(20, 20, 200, 35);
        m_window.show();
        // Without a window manager nothing but the program itself makes a window active.
        m_window.activateWindow();
        if (!QTest::qWaitForWindowActive(&m_window)) {
            QTest::qFail("the window did not become active", __FILE__, __LINE__);
        }
    }

    bool isListOpen() const { return m_box->view()->isVisible(); }

    QPoint arrow() const
    {
        QStyleOptionComboBox option;
        option.initFrom(m_box);
        option.editable = true;
        option.subControls = QStyle::SC_All;
        return m_box->style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, m_box)
            .center();
    }

    void tapText() { Finger().tap(m_box->lineEdit()); }
    void tapArrow() { Finger().tap(m_box, arrow()); }
    void tapOutside() { Finger().tap(&m_window, QPoint(390, 390)); }
    void tapItem(int row)
    {
        QAbstractItemView* view = m_box->view();
        Finger().tap(view->viewport(), view->visualRect(view->model()->index(row, 0)).center());
    }

private:
    QWidget m_window;
    QComboBox* m_box;
};

} // namespace

class TestClickableComboBox : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isEditableButNeverCompletesOrInserts();
    void paintsItsRowsWithAPlainStyledDelegate();
    void itsDelegateSurvivesAChangeOfTheStyleSheet();
    void itsDelegateDiesWithIt();
    void aReplacedDelegateDiesWithItToo();
    void handlesThePressOnTheTextInAPrivateSlot();
    void typingAndReturnAddNoItem();

    void aTapOnTheTextOpensTheListAndItStaysOpen();
    void aTapOutsideClosesTheListThatATapOnTheTextOpened();
    void anItemCanBePickedAfterATapOnTheText();
    void escapeClosesTheListThatATapOnTheTextOpened();
    void theArrowWorksAsInAPlainEditableBox();
    void anItemCanBePickedAfterATapOnTheArrow();
    void theArrowWorksAsEverAfterATapOnTheText();
    void everyMouseButtonOnTheTextOpensTheList();
    void aDisabledBoxStaysClosed();
    void aTapOnTheTextAsksTheOverriddenFunction();

    void ignoresTheFirstHideRequestAfterATapOnly_data();
    void ignoresTheFirstHideRequestAfterATapOnly();
    void remembersATapThatHadNothingToOpen();
};

void TestClickableComboBox::isEditableButNeverCompletesOrInserts()
{
    const ClickableComboBox box;

    QVERIFY(box.isEditable());
    QCOMPARE(box.insertPolicy(), QComboBox::NoInsert);
    QCOMPARE(box.completer(), nullptr);
    QCOMPARE(box.lineEdit()->completer(), nullptr);
    QVERIFY(qobject_cast<OxLineEdit*>(box.lineEdit()) != nullptr);
    QCOMPARE(box.lineEdit()->parent(), &box);
    QCOMPARE(box.findChildren<QLineEdit*>().count(), 1);
}

void TestClickableComboBox::paintsItsRowsWithAPlainStyledDelegate()
{
    const ClickableComboBox box;

    QCOMPARE(box.itemDelegate()->metaObject(), &QStyledItemDelegate::staticMetaObject);
}

void TestClickableComboBox::itsDelegateSurvivesAChangeOfTheStyleSheet()
{
    auto* box = new ClickableComboBox;
    box->addItems(threeItems());
    const BoxWindow window(box);
    const QPointer<QAbstractItemDelegate> delegate = box->itemDelegate();

    for (const QString& sheet :
         { QStringLiteral("QComboBox { combobox-popup: 1; }"),
           QStringLiteral("QComboBox { combobox-popup: 0; } QComboBox::item { color: red; }"),
           QString() }) {
        box->setStyleSheet(sheet);
        box->showPopup();
        QVERIFY(window.isListOpen());
        box->view()->grab();
        box->hidePopup();
        QTRY_VERIFY(!window.isListOpen());

        QVERIFY(!delegate.isNull());
        QCOMPARE(box->itemDelegate(), delegate.data());
    }
}

void TestClickableComboBox::itsDelegateDiesWithIt()
{
    auto box = std::make_unique<ClickableComboBox>();
    const QPointer<QAbstractItemDelegate> delegate = box->itemDelegate();

    box.reset();

    QVERIFY(delegate.isNull());
}

void TestClickableComboBox::aReplacedDelegateDiesWithItToo()
{
    auto box = std::make_unique<ClickableComboBox>();
    const QPointer<QAbstractItemDelegate> delegate = box->itemDelegate();
    box->setItemDelegate(new QStyledItemDelegate(box.get()));

    box.reset();

    QVERIFY(delegate.isNull());
}

void TestClickableComboBox::handlesThePressOnTheTextInAPrivateSlot()
{
    const QMetaObject& meta = ClickableComboBox::staticMetaObject;
    const QMetaMethod slot = meta.method(meta.indexOfSlot("lineEditMousePressEvent()"));

    QVERIFY(slot.isValid());
    QCOMPARE(slot.access(), QMetaMethod::Private);
}

void TestClickableComboBox::typingAndReturnAddNoItem()
{
    auto* box = new ClickableComboBox;
    box->addItems(threeItems());
    const BoxWindow window(box);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);

    QTest::keyClicks(box, QStringLiteral("four"));
    QTest::keyClick(box, Qt::Key_Return);

    QCOMPARE(box->count(), 3);
    QCOMPARE(box->currentText(), QStringLiteral("four"));
    QCOMPARE(box->currentIndex(), 0);
}

void TestClickableComboBox::aTapOnTheTextOpensTheListAndItStaysOpen()
{
    auto* box = new CountingBox;
    box->addItems(threeItems());
    const BoxWindow window(box);
    Finger finger;

    finger.press(box->lineEdit());
    QVERIFY(window.isListOpen());
    QVERIFY(QTest::qWaitForWindowExposed(box->view()->window()));
    finger.release();
    QCoreApplication::processEvents();

    QCOMPARE(box->hides, 1); // what the lifted finger asked for
    QVERIFY(window.isListOpen());
    box->hidePopup();
    QTRY_VERIFY(!window.isListOpen());
}

void TestClickableComboBox::aTapOutsideClosesTheListThatATapOnTheTextOpened()
{
    auto* box = new ClickableComboBox;
    box->addItems(threeItems());
    BoxWindow window(box);
    window.tapText();
    QVERIFY(window.isListOpen());

    window.tapOutside();

    QTRY_VERIFY(!window.isListOpen());
    QCOMPARE(box->currentIndex(), 0);
}

void TestClickableComboBox::anItemCanBePickedAfterATapOnTheText()
{
    auto* box = new ClickableComboBox;
    box->addItems(threeItems());
    BoxWindow window(box);
    window.tapText();
    QVERIFY(window.isListOpen());
    QVERIFY(QTest::qWaitForWindowExposed(box->view()->window()));
    QSignalSpy activated(box, &QComboBox::textActivated);

    window.tapItem(2);

    QTRY_COMPARE(activated.count(), 1);
    QCOMPARE(box->currentText(), QStringLiteral("three"));
    QTRY_VERIFY(!window.isListOpen());
}

void TestClickableComboBox::escapeClosesTheListThatATapOnTheTextOpened()
{
    auto* box = new ClickableComboBox;
    box->addItems(threeItems());
    BoxWindow window(box);
    window.tapText();
    QVERIFY(window.isListOpen());

    QTest::keyClick(box->view(), Qt::Key_Escape);

    QTRY_VERIFY(!window.isListOpen());
}

void TestClickableComboBox::theArrowWorksAsInAPlainEditableBox()
{
    auto* plain = new OxComboBox;
    plain->setEditable(true);
    for (QComboBox* box :
         { static_cast<QComboBox*>(plain), static_cast<QComboBox*>(new ClickableComboBox) }) {
        box->addItems(threeItems());
        BoxWindow window(box);
        for (int round = 0; round < 3; ++round) {
            Finger finger;
            finger.press(box, window.arrow());
            QVERIFY(window.isListOpen());
            QVERIFY(QTest::qWaitForWindowExposed(box->view()->window()));
            finger.release();
            QCoreApplication::processEvents();
            QVERIFY(window.isListOpen());
            window.tapOutside();
            QTRY_VERIFY(!window.isListOpen());
        }
    }
}

void TestClickableComboBox::anItemCanBePickedAfterATapOnTheArrow()
{
    auto* box = new ClickableComboBox;
    box->addItems(threeItems());
    BoxWindow window(box);
    QSignalSpy activated(box, &QComboBox::textActivated);
    window.tapArrow();
    QVERIFY(window.isListOpen());
    QVERIFY(QTest::qWaitForWindowExposed(box->view()->window()));

    window.tapItem(1);

    QTRY_COMPARE(activated.count(), 1);
    QCOMPARE(box->currentText(), QStringLiteral("two"));
    QTRY_VERIFY(!window.isListOpen());
}

void TestClickableComboBox::theArrowWorksAsEverAfterATapOnTheText()
{
    auto* box = new ClickableComboBox;
    box->addItems(threeItems());
    BoxWindow window(box);
    window.tapText();
    window.tapOutside();
    QTRY_VERIFY(!window.isListOpen());

    window.tapArrow();
    QVERIFY(window.isListOpen());
    window.tapOutside();
    QTRY_VERIFY(!window.isListOpen());
}

void TestClickableComboBox::everyMouseButtonOnTheTextOpensTheList()
{
    for (const Qt::MouseButton button : { Qt::LeftButton, Qt::RightButton, Qt::MiddleButton }) {
        auto* box = new ClickableComboBox;
        box->addItems(threeItems());
        const BoxWindow window(box);

        QTest::mousePress(box->lineEdit(), button);

        QVERIFY(window.isListOpen());
    }
}

void TestClickableComboBox::aDisabledBoxStaysClosed()
{
    auto* box = new ClickableComboBox;
    box->addItems(threeItems());
    box->setEnabled(false);
    BoxWindow window(box);

    window.tapText();
    QVERIFY(!window.isListOpen());
    window.tapArrow();
    QVERIFY(!window.isListOpen());
}

void TestClickableComboBox::aTapOnTheTextAsksTheOverriddenFunction()
{
    auto* box = new CountingBox;
    box->addItems(threeItems());
    BoxWindow window(box);

    window.tapText();

    QCOMPARE(box->shows, 1);
}

void TestClickableComboBox::ignoresTheFirstHideRequestAfterATapOnly_data()
{
    QTest::addColumn<QString>("steps"); // T: press on the text, S: showPopup(), H: hidePopup()
    QTest::addColumn<bool>("open");

    QTest::newRow("hide alone") << QStringLiteral("H") << false;
    QTest::newRow("show, hide") << QStringLiteral("SH") << false;
    QTest::newRow("tap") << QStringLiteral("T") << true;
    QTest::newRow("tap, hide") << QStringLiteral("TH") << true;
    QTest::newRow("tap, hide, hide") << QStringLiteral("THH") << false;
    QTest::newRow("two taps, hide") << QStringLiteral("TTH") << true;
    QTest::newRow("two taps, hide, hide") << QStringLiteral("TTHH") << false;
    QTest::newRow("tap, hide, tap, hide") << QStringLiteral("THTH") << true;
    QTest::newRow("tap, show, hide") << QStringLiteral("TSH") << true;
    QTest::newRow("closed after a tap, show, hide") << QStringLiteral("THHSH") << false;
    QTest::newRow("closed after a tap, tap, hide") << QStringLiteral("THHTH") << true;
}

void TestClickableComboBox::ignoresTheFirstHideRequestAfterATapOnly()
{
    QFETCH(const QString, steps);
    QFETCH(const bool, open);
    auto* box = new ClickableComboBox;
    box->addItems(threeItems());
    const BoxWindow window(box);

    for (const QChar step : steps) {
        if (step == QLatin1Char('T')) {
            QTest::mousePress(box->lineEdit(), Qt::LeftButton);
        } else if (step == QLatin1Char('S')) {
            box->showPopup();
        } else {
            box->hidePopup();
        }
    }

    QCOMPARE(window.isListOpen(), open);
}

void TestClickableComboBox::remembersATapThatHadNothingToOpen()
{
    auto* box = new ClickableComboBox;
    BoxWindow window(box);
    window.tapText();
    QVERIFY(!window.isListOpen());
    box->addItems(threeItems());

    window.tapArrow();
    box->hidePopup();
    QVERIFY(window.isListOpen());
    box->hidePopup();
    QTRY_VERIFY(!window.isListOpen());
}

UW_TEST_MAIN(TestClickableComboBox)

#include "tst_clickablecombobox.moc"
