// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "navigationbar.h"

#include "applicationfont.h"
#include "clickablecombobox.h"
#include "oxlineedit.h"
#include "sharedconstants.h"
#include "support/finger.h"
#include "support/test.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QStringListModel>
#include <QTranslator>
#include <QVBoxLayout>

#include <limits>
#include <memory>
#include <vector>

namespace {

/// The parts of a bar, by what tells them apart.
struct Parts
{
    explicit Parts(const NavigationBar& bar)
        : label(labelOf(bar))
        , record(fieldOf(bar, QStringLiteral("Record")))
        , search(fieldOf(bar, QStringLiteral("Search for")))
        , combo(bar.findChild<ClickableComboBox*>(QStringLiteral("searchByCombo")))
        , searchButton(button(bar, "navigationSearchButton"))
        , previous(button(bar, "previousButton"))
        , next(button(bar, "nextButton"))
        , zoomIn(button(bar, "zoomInButton"))
        , zoomOut(button(bar, "zoomOutButton"))
        , zoomFit(button(bar, "zoomFitButton"))
        , close(button(bar, "closeButton"))
        , previousStack(qobject_cast<QStackedWidget*>(previous->parentWidget()))
        , nextStack(qobject_cast<QStackedWidget*>(next->parentWidget()))
    { }

    static QPushButton* button(const NavigationBar& bar, const char* name)
    {
        return bar.findChild<QPushButton*>(QLatin1String(name));
    }
    static OxLineEdit* fieldOf(const NavigationBar& bar, const QString& accessibleName)
    {
        const auto fields = bar.findChildren<OxLineEdit*>();
        for (OxLineEdit* field : fields) {
            if (field->accessibleName() == accessibleName) {
                return field;
            }
        }
        return nullptr;
    }
    static QLabel* labelOf(const NavigationBar& bar)
    {
        const auto labels = bar.findChildren<QLabel*>();
        for (QLabel* one : labels) {
            if (one->text().contains(QStringLiteral("record"))) {
                return one;
            }
        }
        return nullptr;
    }

    QLabel* label;
    OxLineEdit* record;
    OxLineEdit* search;
    ClickableComboBox* combo;
    QPushButton* searchButton;
    QPushButton* previous;
    QPushButton* next;
    QPushButton* zoomIn;
    QPushButton* zoomOut;
    QPushButton* zoomFit;
    QPushButton* close;
    QStackedWidget* previousStack;
    QStackedWidget* nextStack;
};

/// Counts every signal of a bar.
class Signals
{
public:
    explicit Signals(NavigationBar* bar)
    {
        const QMetaObject* meta = bar->metaObject();
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            if (method.methodType() == QMetaMethod::Signal) {
                m_names.append(QString::fromLatin1(method.name()));
                m_spies.push_back(std::make_unique<QSignalSpy>(bar, method));
            }
        }
    }

    /// "closeSignal(), zoomSignal(true)", in the order of declaration, and forgets them.
    QString take()
    {
        QStringList all;
        for (size_t i = 0; i < m_spies.size(); ++i) {
            const QList<QVariantList> emissions = *m_spies[i];
            for (const QVariantList& arguments : emissions) {
                QStringList texts;
                for (const QVariant& argument : arguments) {
                    texts << argument.toString();
                }
                all << QStringLiteral("%1(%2)").arg(m_names.at(int(i)),
                                                    texts.join(QStringLiteral(", ")));
            }
            m_spies[i]->clear();
        }
        return all.join(QStringLiteral(", "));
    }

    qsizetype count() const { return m_names.count(); }

private:
    QStringList m_names;
    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
};

/// A bar on an active window of the screen's width.
class ShownBar
{
public:
    ShownBar()
        : m_bar(new NavigationBar)
    {
        auto* layout = new QVBoxLayout(&m_window);
        layout->addWidget(m_bar);
        layout->addStretch();
        m_window.resize(ScreenSize);
        m_window.show();
        m_window.activateWindow();
        if (!QTest::qWaitForWindowActive(&m_window)) {
            QTest::qFail("the window did not become active", __FILE__, __LINE__);
        }
    }

    NavigationBar* operator->() { return m_bar; }
    NavigationBar& operator*() { return *m_bar; }
    QWidget* window() { return &m_window; }

private:
    QWidget m_window;
    NavigationBar* m_bar;
};

void type(QWidget* field, const char* text)
{
    field->setFocus();
    QTest::keyClicks(field->window()->windowHandle() == nullptr ? field
                                                                : QApplication::focusWidget(),
                     QLatin1String(text));
}

/// Translates every text of the bar into its comment, with the number where the text has one.
class CommentTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int /*n*/) const override
    {
        if (qstrcmp(context, "NavigationBar") != 0) {
            return {};
        }
        const QString comment = QString::fromUtf8(disambiguation);
        return QByteArray(sourceText).contains("%1") ? comment + QStringLiteral(" %1") : comment;
    }
};

QString zoomSheet(const char* normal, const char* pressed, const char* disabled)
{
    return QStringLiteral(
               "QPushButton { border-image: url(:/Navigation/NavigationIcons/%1); }\n"
               "QPushButton::pressed { border-image: url(:/Navigation/NavigationIcons/%2); }\n"
               "QPushButton::disabled { border-image: "
               "url(:/NavBarDisabled/navbar-disabled/%3); }\n")
        .arg(QLatin1String(normal), QLatin1String(pressed), QLatin1String(disabled));
}

QImage imageOf(const QIcon& icon, const QSize& size)
{
    return icon.pixmap(size).toImage();
}

void verifyTight(const QLayout* layout, const QMargins& margins = QMargins())
{
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), margins);
}

void verifySpacing(QLayout* layout, int index, int width)
{
    const QSpacerItem* spacer = layout->itemAt(index)->spacerItem();
    QVERIFY(spacer != nullptr);
    QCOMPARE(spacer->sizeHint().width(), width);
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
}

} // namespace

class TestNavigationBar : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAndStyled();
    void labelIsExact();
    void recordFieldIsExact();
    void searchFieldIsExact();
    void comboIsExact();
    void completerKnowsNoCase();
    void buttonIsExact_data();
    void buttonIsExact();
    void imagesAreTheirs();
    void zoomAndCloseSheetsAreExact();
    void placeholdersKeepThePlaceOfTheArrows();
    void everyControlHasAnAccessibleName();
    void isBarEnabledTellsOfTheBarsOwnSwitchAlone();
    void textsCarryTheirComments();
    void startsWithOneRecordAndNoArrows();
    void theLargestIndexIsCountedFromOne();
    void barsLayoutIsExact();
    void searchContainersLayoutIsExact();
    void recordNavigationsLayoutIsExact();
    void theSearchButtonLiesOverTheFieldsEnd();
    void isMirroredForLanguagesFromRightToLeft_data();
    void isMirroredForLanguagesFromRightToLeft();
    void everythingFitsTheScreen();
    void arrowsStandOutFromTheirButtons();
    void theTabKeyWalksFromLeftToRight();

    void everySignalIsReportedOnce_data();
    void everySignalIsReportedOnce();
    void returnInTheRecordFieldReportsTwice();
    void anEditedRecordFieldReportsOnceWhenItIsLeft();
    void recordFieldRefusesMoreThan9999();
    void aHeldZoomButtonRepeats_data();
    void aHeldZoomButtonRepeats();
    void aHeldArrowDoesNotRepeat();
    void aDialogsEnterPressesNoneOfItsButtons();

    void arrowsByRecordAndCount_data();
    void arrowsByRecordAndCount();
    void arrowsAreDefinedBeforeTheCountIsKnown();
    void recordCountIsShown_data();
    void recordCountIsShown();
    void currentRecordIsShownFromOne();
    void slotsOfTheRecordEmitNothing();

    void termsReplaceTheFormerOnesAndReportTheFirst();
    void noTermsEmptyTheCombo();
    void typingInTheComboReportsNoTerm();
    void aTapOnATermReportsIt();
    void searchCarriesTermAndText();
    void completionsAreOffered();
    void placeholderAndTextOfTheSearch();

    void aDisabledBarDisablesWhatItSays();
    void arrowsOfADisabledBarEmitNothing();
    void enablingTwiceReportsOnce();
    void zoomAndCloseWorkOnADisabledBar();
    void addonIsShown();
    void replacementHidesSearchAndNavigation();
    void nullLayoutsAreIgnored();
    void zoomButtonsAreHidden();
    void theValidatorDiesWithTheBar();
};

void TestNavigationBar::isNamedAndStyled()
{
    QWidget parent;
    const auto* bar = new NavigationBar(&parent);
    QCOMPARE(bar->parentWidget(), &parent);
    QCOMPARE(bar->objectName(), QStringLiteral("NavigationBar"));
    QCOMPARE(bar->styleSheet(), QStringLiteral("QFrame { background-color: #2b2b2b; }"));
}

void TestNavigationBar::labelIsExact()
{
    const NavigationBar bar;
    const QLabel* label = Parts(bar).label;
    QCOMPARE(label->text(), QStringLiteral("1 record(s)"));
    QCOMPARE(label->styleSheet(), QStringLiteral("color: white"));
    QCOMPARE(label->alignment(), Qt::AlignCenter);
    QCOMPARE(label->minimumWidth(), 120);
    QCOMPARE(label->maximumWidth(), 120);
    QFont font = ApplicationFont::getWidgetFont(true);
    font.setPixelSize(11);
    QCOMPARE(label->font(), font);
}

void TestNavigationBar::recordFieldIsExact()
{
    const NavigationBar bar;
    const OxLineEdit* field = Parts(bar).record;
    QCOMPARE(field->text(), QString());
    QCOMPARE(field->maximumWidth(), 80);
    QCOMPARE(field->minimumHeight(), 25);
    QCOMPARE(field->maximumHeight(), 25);
    QCOMPARE(field->alignment(), Qt::AlignCenter);
    QCOMPARE(field->font(), ApplicationFont::getWidgetFontSmall(false));
    const auto* validator = qobject_cast<const QIntValidator*>(field->validator());
    QVERIFY(validator != nullptr);
    QCOMPARE(validator->bottom(), 0);
    QCOMPARE(validator->top(), 9999);
    QCOMPARE(validator->parent(), nullptr);
}

void TestNavigationBar::searchFieldIsExact()
{
    const NavigationBar bar;
    const OxLineEdit* field = Parts(bar).search;
    QCOMPARE(field->minimumHeight(), 35);
    QCOMPARE(field->maximumHeight(), 35);
    QCOMPARE(field->minimumWidth(), 220);
    QCOMPARE(field->placeholderText(), QStringLiteral("Enter Search Parameters"));
    QCOMPARE(field->styleSheet(),
             QStringLiteral("QLineEdit { border-top-right-radius: 6px; "
                            "border-bottom-right-radius: 6px; }"));
}

void TestNavigationBar::comboIsExact()
{
    const NavigationBar bar;
    const ClickableComboBox* combo = Parts(bar).combo;
    QVERIFY(combo != nullptr);
    QCOMPARE(combo->minimumHeight(), 35);
    QCOMPARE(combo->maximumHeight(), 35);
    QCOMPARE(combo->minimumWidth(), 130);
    QCOMPARE(combo->styleSheet(),
             QStringLiteral("QComboBox { border: 1px solid #c6c6c6; border-top-left-radius: 6px; "
                            "border-bottom-left-radius: 6px; background-color: #e8e8e8; } "
                            "QComboBox::drop-down { border:0px; } QComboBox::down-arrow { image: "
                            "url(:/module_icons/ModuleIcons/combobox-down-arrow.png); } "
                            "QComboBox QAbstractItemView::item { min-height: 35px; } "
                            "QFrame { background-color: #e8e8e8; }"));
}

void TestNavigationBar::completerKnowsNoCase()
{
    const NavigationBar bar;
    const QCompleter* completer = Parts(bar).search->completer();
    QVERIFY(completer != nullptr);
    QCOMPARE(completer->parent(), &bar);
    QCOMPARE(completer->caseSensitivity(), Qt::CaseInsensitive);
    const auto* model = qobject_cast<const QStringListModel*>(completer->model());
    QVERIFY(model != nullptr);
    QCOMPARE(static_cast<const QObject*>(model)->parent(), &bar);
}

void TestNavigationBar::buttonIsExact_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("autoRepeat");
    QTest::addColumn<bool>("flat");
    const auto row = [](const char* name, const QSize& size, bool autoRepeat, bool flat) {
        QTest::newRow(name) << QString::fromLatin1(name) << size << autoRepeat << flat;
    };
    row("navigationSearchButton", { 35, 35 }, false, false);
    row("zoomInButton", { 50, 57 }, true, false);
    row("zoomOutButton", { 50, 57 }, true, false);
    row("zoomFitButton", { 50, 57 }, false, false);
    row("previousButton", { 37, 57 }, false, false);
    row("nextButton", { 37, 57 }, false, false);
    row("closeButton", { 66, 57 }, false, true);
}

void TestNavigationBar::buttonIsExact()
{
    QFETCH(const QString, name);
    QFETCH(const QSize, size);
    const NavigationBar bar;
    const auto* button = bar.findChild<QPushButton*>(name);
    QVERIFY(button != nullptr);
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->minimumSize(), size);
    QCOMPARE(button->maximumSize(), size);
    QCOMPARE(button->iconSize(), size);
    QTEST(button->autoRepeat(), "autoRepeat");
    QTEST(button->isFlat(), "flat");
}

void TestNavigationBar::imagesAreTheirs()
{
    const NavigationBar bar;
    const Parts parts(bar);
    const std::pair<const QPushButton*, const char*> icons[] {
        { parts.searchButton, ":/Navigation/NavigationIcons/search-icon.png" },
        { parts.previous, ":/Navigation/NavigationIcons/left-nav-arrow.png" },
        { parts.next, ":/Navigation/NavigationIcons/right-nav-arrow.png" },
    };
    for (const auto& [button, path] : icons) {
        const QImage expected = imageOf(QIcon(QLatin1String(path)), button->iconSize());
        QVERIFY(!expected.isNull());
        QCOMPARE(imageOf(button->icon(), button->iconSize()), expected);
    }
}

void TestNavigationBar::zoomAndCloseSheetsAreExact()
{
    const NavigationBar bar;
    const Parts parts(bar);
    QCOMPARE(parts.zoomIn->styleSheet(),
             zoomSheet("zoom-in.png", "zoom-in-pressed.png", "zoom-in_disabled.png"));
    QCOMPARE(parts.zoomOut->styleSheet(),
             zoomSheet("zoom-out.png", "zoom-out-pressed.png", "zoom-out_disabled.png"));
    QCOMPARE(parts.zoomFit->styleSheet(),
             zoomSheet("zoom_fit.png", "zoom_fit_pressed.png", "zoom-fit_disabled.png"));
    QCOMPARE(parts.close->styleSheet(),
             QStringLiteral("border-image: url(:/Navigation/NavigationIcons/close.png)"));
    QCOMPARE(parts.searchButton->styleSheet(),
             QStringLiteral("QPushButton { background-color: #fd7800; border-top-right-radius: "
                            "6px; border-bottom-right-radius: 6px; }"));
}

void TestNavigationBar::placeholdersKeepThePlaceOfTheArrows()
{
    const NavigationBar bar;
    const Parts parts(bar);
    for (const QStackedWidget* stack : { parts.previousStack, parts.nextStack }) {
        QCOMPARE(stack->count(), 2);
        const auto* placeholder = qobject_cast<QPushButton*>(stack->widget(0));
        QVERIFY(placeholder != nullptr);
        QCOMPARE(placeholder->text(), QString());
        QVERIFY(placeholder->icon().isNull());
        QVERIFY(placeholder->isFlat());
        QVERIFY(!placeholder->isEnabled());
        QCOMPARE(placeholder->minimumSize(), QSize(37, 57));
        QCOMPARE(placeholder->maximumSize(), QSize(37, 57));
        QCOMPARE(placeholder->iconSize(), QSize(37, 57));
    }
    QCOMPARE(parts.previousStack->widget(1), parts.previous);
    QCOMPARE(parts.nextStack->widget(1), parts.next);
}

void TestNavigationBar::everyControlHasAnAccessibleName()
{
    const NavigationBar bar;
    const auto buttons = bar.findChildren<QPushButton*>();
    QCOMPARE(buttons.count(), 9);
    for (const QPushButton* button : buttons) {
        QVERIFY2(!button->accessibleName().isEmpty(), qPrintable(button->objectName()));
    }
    QVERIFY(Parts(bar).record != nullptr);
    QVERIFY(Parts(bar).search != nullptr);
    QCOMPARE(Parts(bar).combo->accessibleName(), QStringLiteral("Search by"));
}

void TestNavigationBar::textsCarryTheirComments()
{
    CommentTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    NavigationBar bar;
    const QLabel* label = Parts::labelOf(bar);
    QStringList texts { label->text() };
    for (const int maxIndex : { 0, 4 }) {
        bar.setRecordNumberSlot(maxIndex);
        texts << label->text();
    }
    QStringList placeholders;
    const auto fields = bar.findChildren<OxLineEdit*>();
    for (const OxLineEdit* field : fields) {
        placeholders << field->placeholderText();
    }
    QCoreApplication::removeTranslator(&translator);
    const QString comment = QStringLiteral("Label showing number of available database records.");
    QCOMPARE(
        texts,
        (QStringList { comment, comment + QStringLiteral(" 1"), comment + QStringLiteral(" 5") }));
    QVERIFY(placeholders.contains(
        QStringLiteral("Placeholder text for search a database using a set of parameters.")));
}

void TestNavigationBar::theLargestIndexIsCountedFromOne()
{
    constexpr int Largest = std::numeric_limits<int>::max();
    NavigationBar bar;
    bar.setRecordNumberSlot(Largest);
    bar.setCurrentRecordSlot(Largest);
    QCOMPARE(Parts::labelOf(bar)->text(), QStringLiteral("2147483648 records"));
    QCOMPARE(bar.lastRecord(), Largest);
    QCOMPARE(bar.currentRecord(), Largest);
}

void TestNavigationBar::startsWithOneRecordAndNoArrows()
{
    const NavigationBar bar;
    const Parts parts(bar);
    QCOMPARE(parts.label->text(), QStringLiteral("1 record(s)"));
    QCOMPARE(parts.record->text(), QString());
    QCOMPARE(parts.previousStack->currentIndex(), 0);
    QCOMPARE(parts.nextStack->currentIndex(), 0);
    QCOMPARE(bar.searchTerm(), QString());
    QCOMPARE(bar.searchString(), QString());
}

void TestNavigationBar::barsLayoutIsExact()
{
    const NavigationBar bar;
    const Parts parts(bar);
    auto* row = qobject_cast<QHBoxLayout*>(bar.layout());
    QVERIFY(row != nullptr);
    verifyTight(row);
    QCOMPARE(row->count(), 8);
    QCOMPARE(row->itemAt(0)->alignment(), Qt::AlignLeft);
    QVERIFY(row->itemAt(0)->widget()->isHidden());
    QCOMPARE(row->itemAt(0)->widget()->layout(), nullptr);
    verifySpacing(row, 1, 15);
    QCOMPARE(row->itemAt(2)->alignment(), Qt::AlignVCenter);
    QVERIFY(row->itemAt(2)->widget()->isHidden());
    QCOMPARE(row->itemAt(2)->widget()->layout(), nullptr);
    QCOMPARE(row->itemAt(3)->alignment(), Qt::AlignVCenter);
    QVERIFY(!row->itemAt(3)->widget()->isHidden());
    QVERIFY(row->itemAt(3)->widget()->isAncestorOf(parts.search));
    verifySpacing(row, 4, 35);
    QCOMPARE(row->itemAt(5)->alignment(), Qt::AlignRight);
    verifySpacing(row, 6, 45);
    QCOMPARE(row->itemAt(7)->alignment(), Qt::AlignRight);
    QCOMPARE(row->itemAt(7)->widget(), parts.close);

    auto* zoom = qobject_cast<QHBoxLayout*>(row->itemAt(5)->widget()->layout());
    QVERIFY(zoom != nullptr);
    verifyTight(zoom);
    QCOMPARE(zoom->count(), 3);
    QCOMPARE(zoom->itemAt(0)->widget(), parts.zoomOut);
    QCOMPARE(zoom->itemAt(1)->widget(), parts.zoomIn);
    QCOMPARE(zoom->itemAt(2)->widget(), parts.zoomFit);
}

void TestNavigationBar::searchContainersLayoutIsExact()
{
    const NavigationBar bar;
    const Parts parts(bar);
    auto* row = qobject_cast<QHBoxLayout*>(parts.search->parentWidget()->layout());
    QVERIFY(row != nullptr);
    verifyTight(row);
    QCOMPARE(row->count(), 3);
    verifySpacing(row, 1, 35);
    QVERIFY(row->itemAt(2)->widget()->isAncestorOf(parts.record));

    auto* grid = qobject_cast<QGridLayout*>(row->itemAt(0)->layout());
    QVERIFY(grid != nullptr);
    verifyTight(grid);
    QCOMPARE(grid->count(), 3);
    const auto verifyPlace = [grid](QWidget* widget, int column, Qt::Alignment alignment) {
        int atRow = -1;
        int atColumn = -1;
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(grid->indexOf(widget), &atRow, &atColumn, &rows, &columns);
        QCOMPARE((QList<int> { atRow, atColumn, rows, columns }), (QList<int> { 0, column, 1, 1 }));
        QCOMPARE(grid->itemAt(grid->indexOf(widget))->alignment(), alignment);
    };
    verifyPlace(parts.combo, 0, Qt::AlignRight);
    verifyPlace(parts.search, 1, Qt::AlignVCenter);
    verifyPlace(parts.searchButton, 1, Qt::AlignRight);
}

void TestNavigationBar::recordNavigationsLayoutIsExact()
{
    const NavigationBar bar;
    const Parts parts(bar);
    const QWidget* widget = parts.previousStack->parentWidget();
    QCOMPARE(widget->maximumWidth(), 160);
    auto* grid = qobject_cast<QGridLayout*>(widget->layout());
    QVERIFY(grid != nullptr);
    verifyTight(grid);
    QCOMPARE(grid->sizeConstraint(), QLayout::SetMinimumSize);
    QCOMPARE(grid->count(), 3);
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), parts.previousStack);
    QCOMPARE(grid->itemAtPosition(0, 0)->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(grid->itemAtPosition(0, 2)->widget(), parts.nextStack);
    QCOMPARE(grid->itemAtPosition(0, 2)->alignment(), Qt::AlignLeft | Qt::AlignVCenter);

    auto* record = qobject_cast<QGridLayout*>(grid->itemAtPosition(0, 1)->layout());
    QVERIFY(record != nullptr);
    verifyTight(record, QMargins(0, 6, 0, 3));
    QCOMPARE(record->count(), 2);
    QCOMPARE(record->itemAtPosition(0, 0)->widget(), parts.record);
    QCOMPARE(record->itemAtPosition(0, 0)->alignment(), Qt::AlignCenter);
    QCOMPARE(record->itemAtPosition(1, 0)->widget(), parts.label);
    QCOMPARE(record->itemAtPosition(1, 0)->alignment(), Qt::AlignCenter);
}

void TestNavigationBar::theSearchButtonLiesOverTheFieldsEnd()
{
    ShownBar bar;
    const Parts parts(*bar);
    QWidget* shared = parts.search->parentWidget();
    QCOMPARE(parts.searchButton->parentWidget(), shared);
    QCOMPARE(parts.searchButton->geometry().right(), parts.search->geometry().right());
    QVERIFY(parts.search->geometry().contains(parts.searchButton->geometry()));
    QCOMPARE(shared->childAt(parts.searchButton->geometry().center()), parts.searchButton);
    // What is typed ends before the button.
    parts.search->setText(QString(200, QLatin1Char('m')));
    parts.search->setCursorPosition(200);
    parts.search->grab(); // painting is what scrolls the text
    const QRect cursor = parts.search->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    QVERIFY(cursor.center().x() + parts.search->x() <= parts.searchButton->x());
}

void TestNavigationBar::isMirroredForLanguagesFromRightToLeft_data()
{
    QTest::addColumn<bool>("fromTheStart");

    QTest::newRow("from the start") << true;
    QTest::newRow("while it is shown") << false;
}

void TestNavigationBar::isMirroredForLanguagesFromRightToLeft()
{
    QFETCH(const bool, fromTheStart);
    QWidget window;
    const auto turnRound = [&window] {
        window.setLayoutDirection(Qt::RightToLeft);
    };
    if (fromTheStart) {
        turnRound();
    }
    NavigationBar bar(&window);
    bar.resize(ScreenWidth, bar.sizeHint().height());
    bar.setRecordNumberSlot(4);
    bar.setCurrentRecordSlot(2);
    window.show();
    if (!fromTheStart) {
        turnRound();
    }
    bar.layout()->activate();
    const Parts parts(bar);
    const auto picture = [](const QPushButton* arrow) {
        return imageOf(arrow->icon(), arrow->iconSize());
    };
    const QImage left = imageOf(QIcon(QStringLiteral(":/Navigation/NavigationIcons/"
                                                     "left-nav-arrow.png")),
                                parts.previous->iconSize());
    const QImage right = imageOf(QIcon(QStringLiteral(":/Navigation/NavigationIcons/"
                                                      "right-nav-arrow.png")),
                                 parts.previous->iconSize());

    // Each arrow still points away from the number between them.
    QTRY_VERIFY(parts.previousStack->x() > parts.nextStack->x());
    QCOMPARE(picture(parts.previous), right);
    QCOMPARE(picture(parts.next), left);
    // Round at the outer ends of the row.
    QVERIFY(parts.searchButton->styleSheet().contains(QLatin1String("border-top-left-radius")));
    QVERIFY(parts.search->styleSheet().contains(QLatin1String("border-bottom-left-radius")));
    QVERIFY(!parts.search->styleSheet().contains(QLatin1String("-right-")));
    // What is typed ends before the button here, too.
    QCOMPARE(parts.searchButton->x(), parts.search->x());
    parts.search->setText(QString(200, QChar(0x0645)));
    parts.search->setCursorPosition(200);
    parts.search->grab(); // painting is what scrolls the text
    const QRect cursor = parts.search->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    QVERIFY(cursor.center().x() + parts.search->x() >= parts.searchButton->geometry().right());

    window.setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(picture(parts.previous), left);
    QCOMPARE(picture(parts.next), right);
    QVERIFY(parts.searchButton->styleSheet().contains(QLatin1String("border-top-right-radius")));
}

void TestNavigationBar::everythingFitsTheScreen()
{
    ShownBar bar;
    bar->setRecordNumberSlot(4);
    bar->setCurrentRecordSlot(2);
    QCoreApplication::processEvents();
    const Parts parts(*bar);
    QVERIFY(bar->minimumSizeHint().width() <= ScreenWidth);
    QWidget* all[] { parts.combo,  parts.search,  parts.searchButton, parts.previous,
                     parts.record, parts.label,   parts.next,         parts.zoomOut,
                     parts.zoomIn, parts.zoomFit, parts.close };
    int end = 0;
    for (QWidget* part : all) {
        QVERIFY(part->isVisible());
        QCOMPARE(part->visibleRegion().boundingRect(), part->rect());
        const int left = part->mapTo(bar.window(), QPoint()).x();
        // One right of the other, but for the button over the field and the label under it.
        QVERIFY(part == parts.searchButton || part == parts.label || left >= end);
        end = left + part->width();
    }
}

void TestNavigationBar::arrowsStandOutFromTheirButtons()
{
    ShownBar bar;
    bar->setRecordNumberSlot(4);
    bar->setCurrentRecordSlot(2);
    QCoreApplication::processEvents();
    const Parts parts(*bar);
    for (QPushButton* arrow : { parts.previous, parts.next }) {
        const QImage shown = arrow->grab().toImage();
        const int background = shown.pixelColor(6, 6).lightness();
        int brightest = 0;
        for (int y = 6; y < shown.height() - 6; ++y) {
            for (int x = 6; x < shown.width() - 6; ++x) {
                brightest = qMax(brightest, shown.pixelColor(x, y).lightness());
            }
        }
        QVERIFY2(background < 96 && brightest > 224,
                 qPrintable(QStringLiteral("%1, %2").arg(background).arg(brightest)));
    }
}

void TestNavigationBar::theTabKeyWalksFromLeftToRight()
{
    ShownBar bar;
    bar->setRecordNumberSlot(4);
    bar->setCurrentRecordSlot(2);
    QCoreApplication::processEvents();
    const Parts parts(*bar);
    QWidget* order[] { parts.search,  parts.searchButton, parts.previous, parts.record, parts.next,
                       parts.zoomOut, parts.zoomIn,       parts.zoomFit,  parts.close };
    QVERIFY(parts.combo->hasFocus());
    for (QWidget* expected : order) {
        QTest::keyClick(bar.window()->windowHandle(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), expected);
    }
}

void TestNavigationBar::everySignalIsReportedOnce_data()
{
    using Act = std::function<void(const Parts&)>;
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("reported");
    const auto tap = [](QPushButton* Parts::*button) {
        return Act([button](const Parts& parts) { Finger().tap(parts.*button); });
    };
    QTest::newRow("next") << tap(&Parts::next) << QStringLiteral("nextLabelSignal()");
    QTest::newRow("previous") << tap(&Parts::previous) << QStringLiteral("previousLabelSignal()");
    QTest::newRow("close") << tap(&Parts::close) << QStringLiteral("closeSignal()");
    QTest::newRow("zoom in") << tap(&Parts::zoomIn) << QStringLiteral("zoomSignal(true)");
    QTest::newRow("zoom out") << tap(&Parts::zoomOut) << QStringLiteral("zoomSignal(false)");
    QTest::newRow("zoom to fit") << tap(&Parts::zoomFit) << QStringLiteral("zoomFitSignal()");
    QTest::newRow("search button")
        << tap(&Parts::searchButton) << QStringLiteral("searchStringSignal(Name, ada)");
    QTest::newRow("Return in the search field") << Act([](const Parts& parts) {
        parts.search->setFocus();
        QTest::keyClick(parts.search, Qt::Key_Return);
    }) << QStringLiteral("searchStringSignal(Name, ada)");
    QTest::newRow("another term") << Act([](const Parts& parts) {
        parts.combo->setCurrentIndex(1);
    }) << QStringLiteral("searchTermSignal(City)");
    QTest::newRow("the same term")
        << Act([](const Parts& parts) { parts.combo->setCurrentIndex(0); }) << QString();
}

void TestNavigationBar::everySignalIsReportedOnce()
{
    QFETCH(const std::function<void(const Parts&)>, act);
    ShownBar bar;
    bar->setSearchByTerms({ QStringLiteral("Name"), QStringLiteral("City") });
    bar->setRecordNumberSlot(4);
    bar->setCurrentRecordSlot(2);
    Parts(*bar).search->setText(QStringLiteral("ada"));
    QCoreApplication::processEvents();
    Signals reported(&*bar);
    QCOMPARE(reported.count(), 8);
    act(Parts(*bar));
    QTEST(reported.take(), "reported");
}

void TestNavigationBar::returnInTheRecordFieldReportsTwice()
{
    ShownBar bar;
    const Parts parts(*bar);
    Signals reported(&*bar);
    type(parts.record, "42");
    QCOMPARE(reported.take(), QString());
    QTest::keyClick(parts.record, Qt::Key_Return);
    QCOMPARE(reported.take(), QStringLiteral("navigateEditSignal(42), navigateEditSignal(42)"));
}

void TestNavigationBar::anEditedRecordFieldReportsOnceWhenItIsLeft()
{
    ShownBar bar;
    const Parts parts(*bar);
    Signals reported(&*bar);
    type(parts.record, "0");
    parts.search->setFocus();
    QCOMPARE(reported.take(), QStringLiteral("navigateEditSignal(0)"));
    // Nothing was edited the second time.
    parts.record->setFocus();
    parts.search->setFocus();
    QCOMPARE(reported.take(), QString());
}

void TestNavigationBar::recordFieldRefusesMoreThan9999()
{
    ShownBar bar;
    const Parts parts(*bar);
    type(parts.record, "12345");
    QCOMPARE(parts.record->text(), QStringLiteral("1234"));
    parts.record->clear();
    type(parts.record, "9999");
    QCOMPARE(parts.record->text(), QStringLiteral("9999"));
    parts.record->clear();
    type(parts.record, "-a1");
    QCOMPARE(parts.record->text(), QStringLiteral("1"));
}

void TestNavigationBar::aHeldZoomButtonRepeats_data()
{
    QTest::addColumn<QPushButton * Parts::*>("button");
    QTest::addColumn<bool>("zoomIn");
    QTest::newRow("in") << &Parts::zoomIn << true;
    QTest::newRow("out") << &Parts::zoomOut << false;
}

void TestNavigationBar::aHeldZoomButtonRepeats()
{
    QFETCH(QPushButton * Parts::*, button);
    QFETCH(const bool, zoomIn);
    ShownBar bar;
    QSignalSpy zoomed(&*bar, &NavigationBar::zoomSignal);
    Finger finger;
    finger.press(Parts(*bar).*button);
    QTRY_VERIFY(zoomed.count() >= 3);
    finger.release();
    for (const QVariantList& arguments : std::as_const(zoomed)) {
        QCOMPARE(arguments, QVariantList { zoomIn });
    }
}

void TestNavigationBar::aHeldArrowDoesNotRepeat()
{
    ShownBar bar;
    bar->setRecordNumberSlot(4);
    QCoreApplication::processEvents();
    QSignalSpy next(&*bar, &NavigationBar::nextLabelSignal);
    QSignalSpy zoomed(&*bar, &NavigationBar::zoomSignal);
    Finger finger;
    finger.press(Parts(*bar).next);
    // Another button repeats meanwhile: that is how long to wait.
    Parts(*bar).zoomIn->setDown(true);
    Parts(*bar).zoomIn->setAutoRepeat(true);
    QTRY_VERIFY(zoomed.count() >= 3);
    Parts(*bar).zoomIn->setDown(false);
    QCOMPARE(next.count(), 0);
    finger.release();
    QCOMPARE(next.count(), 1);
}

void TestNavigationBar::aDialogsEnterPressesNoneOfItsButtons()
{
    QDialog dialog;
    auto* layout = new QVBoxLayout(&dialog);
    auto* bar = new NavigationBar;
    layout->addWidget(bar);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const Parts parts(*bar);
    Signals reported(bar);
    parts.search->setFocus();
    QTest::keyClick(parts.search, Qt::Key_Return);
    QCOMPARE(reported.take(), QStringLiteral("searchStringSignal(, )"));
}

void TestNavigationBar::arrowsByRecordAndCount_data()
{
    QTest::addColumn<int>("record");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("previous");
    QTest::addColumn<bool>("next");
    QTest::newRow("none") << 0 << 0 << false << false;
    QTest::newRow("first of none") << 1 << 0 << false << false;
    QTest::newRow("only one") << 1 << 1 << false << false;
    QTest::newRow("beyond the only one") << 2 << 1 << false << false;
    QTest::newRow("first of two") << 1 << 2 << false << true;
    QTest::newRow("second of two") << 2 << 2 << true << false;
    QTest::newRow("first of five") << 1 << 5 << false << true;
    QTest::newRow("third of five") << 3 << 5 << true << true;
    QTest::newRow("last of five") << 5 << 5 << true << false;
    QTest::newRow("before the first") << 0 << 5 << true << true;
    QTest::newRow("beyond the last") << 6 << 5 << true << true;
}

void TestNavigationBar::arrowsByRecordAndCount()
{
    QFETCH(const int, record);
    QFETCH(const int, count);
    for (const bool countFirst : { true, false }) {
        NavigationBar bar;
        if (countFirst) {
            bar.setRecordNumberSlot(count - 1);
        }
        bar.setCurrentRecordSlot(record - 1);
        bar.setRecordNumberSlot(count - 1);
        const Parts parts(bar);
        QTEST(parts.previousStack->currentIndex() == 1, "previous");
        QTEST(parts.nextStack->currentIndex() == 1, "next");
    }
}

void TestNavigationBar::arrowsAreDefinedBeforeTheCountIsKnown()
{
    NavigationBar bar;
    bar.setCurrentRecordSlot(2);
    const Parts parts(bar);
    QCOMPARE(parts.previousStack->currentIndex(), 0);
    QCOMPARE(parts.nextStack->currentIndex(), 0);
}

void TestNavigationBar::recordCountIsShown_data()
{
    QTest::addColumn<int>("maxIndex");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << -1 << QStringLiteral("0 record");
    QTest::newRow("one") << 0 << QStringLiteral("1 record");
    QTest::newRow("two") << 1 << QStringLiteral("2 records");
    QTest::newRow("many") << 12344 << QStringLiteral("12345 records");
}

void TestNavigationBar::recordCountIsShown()
{
    QFETCH(const int, maxIndex);
    NavigationBar bar;
    bar.setRecordNumberSlot(maxIndex);
    QTEST(Parts(bar).label->text(), "text");
}

void TestNavigationBar::currentRecordIsShownFromOne()
{
    NavigationBar bar;
    bar.setCurrentRecordSlot(0);
    QCOMPARE(Parts(bar).record->text(), QStringLiteral("1"));
    bar.setCurrentRecordSlot(1233);
    QCOMPARE(Parts(bar).record->text(), QStringLiteral("1234"));
    // What can't be typed can still be shown.
    bar.setCurrentRecordSlot(9999);
    QCOMPARE(Parts(bar).record->text(), QStringLiteral("10000"));
}

void TestNavigationBar::slotsOfTheRecordEmitNothing()
{
    ShownBar bar;
    Signals reported(&*bar);
    bar->setRecordNumberSlot(7);
    bar->setCurrentRecordSlot(3);
    bar->setSearchCompletions({ QStringLiteral("ada") });
    bar->setSearchPlaceholder(QStringLiteral("Search"));
    bar->clearSearchString();
    bar->setBarEnabled(false);
    bar->setBarEnabled(true);
    bar->hideZoomButtons();
    QCOMPARE(reported.take(), QString());
}

void TestNavigationBar::termsReplaceTheFormerOnesAndReportTheFirst()
{
    NavigationBar bar;
    Signals reported(&bar);
    bar.setSearchByTerms({ QStringLiteral("Name"), QStringLiteral("City") });
    QCOMPARE(reported.take(), QStringLiteral("searchTermSignal(Name)"));
    QCOMPARE(bar.searchTerm(), QStringLiteral("Name"));
    QCOMPARE(Parts(bar).combo->count(), 2);
    QCOMPARE(Parts(bar).combo->itemText(1), QStringLiteral("City"));

    bar.setSearchByTerms({ QStringLiteral("Number") });
    QCOMPARE(reported.take(), QStringLiteral("searchTermSignal(), searchTermSignal(Number)"));
    QCOMPARE(bar.searchTerm(), QStringLiteral("Number"));
    QCOMPARE(Parts(bar).combo->count(), 1);
}

void TestNavigationBar::noTermsEmptyTheCombo()
{
    NavigationBar bar;
    bar.setSearchByTerms({ QStringLiteral("Name") });
    Signals reported(&bar);
    bar.setSearchByTerms({});
    QCOMPARE(reported.take(), QStringLiteral("searchTermSignal()"));
    QCOMPARE(bar.searchTerm(), QString());
    QCOMPARE(Parts(bar).combo->count(), 0);
}

void TestNavigationBar::typingInTheComboReportsNoTerm()
{
    ShownBar bar;
    bar->setSearchByTerms({ QStringLiteral("Name"), QStringLiteral("City") });
    Signals reported(&*bar);
    QLineEdit* field = Parts(*bar).combo->lineEdit();
    field->clear();
    type(field, "Ci");
    QCOMPARE(reported.take(), QString());
    QCOMPARE(bar->searchTerm(), QStringLiteral("Ci"));
}

void TestNavigationBar::aTapOnATermReportsIt()
{
    ShownBar bar;
    bar->setSearchByTerms({ QStringLiteral("Name"), QStringLiteral("City") });
    ClickableComboBox* combo = Parts(*bar).combo;
    Signals reported(&*bar);
    Finger().tap(combo->lineEdit());
    QAbstractItemView* view = combo->view();
    QTRY_VERIFY(view->isVisible());
    const QModelIndex city = combo->model()->index(1, 0);
    QTRY_VERIFY(view->visualRect(city).height() >= 35);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(city).center());
    QTRY_COMPARE(bar->searchTerm(), QStringLiteral("City"));
    QCOMPARE(reported.take(), QStringLiteral("searchTermSignal(City)"));
    combo->hidePopup();
    combo->hidePopup();
}

void TestNavigationBar::searchCarriesTermAndText()
{
    ShownBar bar;
    Signals reported(&*bar);
    const Parts parts(*bar);
    Finger().tap(parts.searchButton);
    QCOMPARE(reported.take(), QStringLiteral("searchStringSignal(, )"));
    bar->setSearchByTerms({ QStringLiteral("Name") });
    reported.take();
    type(parts.search, "a b");
    Finger().tap(parts.searchButton);
    QCOMPARE(reported.take(), QStringLiteral("searchStringSignal(Name, a b)"));
}

void TestNavigationBar::completionsAreOffered()
{
    ShownBar bar;
    bar->setSearchCompletions({ QStringLiteral("Ada"), QStringLiteral("Bert") });
    bar->setSearchCompletions(
        { QStringLiteral("Adam"), QStringLiteral("Berta"), QStringLiteral("ADELE") });
    const Parts parts(*bar);
    type(parts.search, "ad");
    QCompleter* completer = parts.search->completer();
    QTRY_VERIFY(completer->popup()->isVisible());
    QStringList offered;
    for (int row = 0; row < completer->completionCount(); ++row) {
        completer->setCurrentRow(row);
        offered << completer->currentCompletion();
    }
    QCOMPARE(offered, (QStringList { QStringLiteral("Adam"), QStringLiteral("ADELE") }));
    completer->popup()->hide();
}

void TestNavigationBar::placeholderAndTextOfTheSearch()
{
    NavigationBar bar;
    bar.setSearchPlaceholder(QStringLiteral("Search the archive"));
    const Parts parts(bar);
    QCOMPARE(parts.search->placeholderText(), QStringLiteral("Search the archive"));
    parts.search->setText(QStringLiteral("ada"));
    QCOMPARE(bar.searchString(), QStringLiteral("ada"));
    bar.clearSearchString();
    QCOMPARE(bar.searchString(), QString());
    QCOMPARE(parts.search->placeholderText(), QStringLiteral("Search the archive"));
}

void TestNavigationBar::aDisabledBarDisablesWhatItSays()
{
    NavigationBar bar;
    const Parts parts(bar);
    for (const bool enabled : { false, true }) {
        bar.setBarEnabled(enabled);
        for (const QWidget* follows : std::initializer_list<const QWidget*> {
                 parts.record, parts.search, parts.combo, parts.searchButton }) {
            QCOMPARE(follows->isEnabled(), enabled);
        }
        for (const QWidget* untouched : { parts.previous, parts.next, parts.zoomIn, parts.zoomOut,
                                          parts.zoomFit, parts.close }) {
            QVERIFY(untouched->isEnabled());
        }
    }
}

void TestNavigationBar::arrowsOfADisabledBarEmitNothing()
{
    ShownBar bar;
    bar->setRecordNumberSlot(4);
    bar->setCurrentRecordSlot(2);
    bar->setBarEnabled(false);
    QCoreApplication::processEvents();
    const Parts parts(*bar);
    QSignalSpy clicked(parts.next, &QPushButton::clicked);
    Signals reported(&*bar);
    Finger().tap(parts.next);
    Finger().tap(parts.previous);
    QCOMPARE(reported.take(), QString());
    QCOMPARE(clicked.count(), 1);
    bar->setBarEnabled(true);
    Finger().tap(parts.next);
    Finger().tap(parts.previous);
    QCOMPARE(reported.take(), QStringLiteral("nextLabelSignal(), previousLabelSignal()"));
}

void TestNavigationBar::enablingTwiceReportsOnce()
{
    ShownBar bar;
    bar->setRecordNumberSlot(4);
    bar->setCurrentRecordSlot(2);
    bar->setBarEnabled(true);
    bar->setBarEnabled(true);
    QCoreApplication::processEvents();
    Signals reported(&*bar);
    Finger().tap(Parts(*bar).next);
    Finger().tap(Parts(*bar).previous);
    QCOMPARE(reported.take(), QStringLiteral("nextLabelSignal(), previousLabelSignal()"));
    // One disconnection undoes it, however often it was enabled.
    bar->setBarEnabled(false);
    Finger().tap(Parts(*bar).next);
    QCOMPARE(reported.take(), QString());
}

void TestNavigationBar::zoomAndCloseWorkOnADisabledBar()
{
    ShownBar bar;
    bar->setBarEnabled(false);
    const Parts parts(*bar);
    Signals reported(&*bar);
    Finger().tap(parts.zoomIn);
    Finger().tap(parts.zoomFit);
    Finger().tap(parts.close);
    QCOMPARE(reported.take(), QStringLiteral("closeSignal(), zoomSignal(true), zoomFitSignal()"));
}

void TestNavigationBar::addonIsShown()
{
    ShownBar bar;
    auto* addon = new QHBoxLayout;
    auto* button = new QPushButton(QStringLiteral("Print"));
    addon->addWidget(button);
    bar->installAddon(addon);
    QCoreApplication::processEvents();
    QVERIFY(button->isVisible());
    QCOMPARE(bar->layout()->itemAt(0)->widget()->layout(), addon);
    QVERIFY(button->mapTo(&*bar, QPoint()).x() < Parts(*bar).combo->mapTo(&*bar, QPoint()).x());
    QVERIFY(Parts(*bar).search->isVisible());
}

void TestNavigationBar::replacementHidesSearchAndNavigation()
{
    ShownBar bar;
    auto* replacement = new QHBoxLayout;
    auto* label = new QLabel(QStringLiteral("Page 1"));
    replacement->addWidget(label);
    bar->installNavigationReplacement(replacement);
    QCoreApplication::processEvents();
    const Parts parts(*bar);
    QVERIFY(label->isVisible());
    QCOMPARE(bar->layout()->itemAt(2)->widget()->layout(), replacement);
    QVERIFY(!parts.search->isVisible());
    QVERIFY(!parts.combo->isVisible());
    QVERIFY(!parts.record->isVisible());
    QVERIFY(parts.zoomIn->isVisible());
    QVERIFY(parts.close->isVisible());
    // No slot brings them back.
    bar->setBarEnabled(true);
    bar->setCurrentRecordSlot(1);
    QVERIFY(!parts.search->isVisible());
}

void TestNavigationBar::nullLayoutsAreIgnored()
{
    ShownBar bar;
    bar->installAddon(nullptr);
    bar->installNavigationReplacement(nullptr);
    QVERIFY(bar->layout()->itemAt(0)->widget()->isHidden());
    QVERIFY(bar->layout()->itemAt(2)->widget()->isHidden());
    QVERIFY(Parts(*bar).search->isVisible());
}

void TestNavigationBar::zoomButtonsAreHidden()
{
    ShownBar bar;
    bar->hideZoomButtons();
    const Parts parts(*bar);
    QVERIFY(!parts.zoomIn->isVisible());
    QVERIFY(!parts.zoomOut->isVisible());
    QVERIFY(!parts.zoomFit->isVisible());
    QVERIFY(parts.close->isVisible());
}

void TestNavigationBar::theValidatorDiesWithTheBar()
{
    auto bar = std::make_unique<NavigationBar>();
    const QPointer<const QValidator> validator = Parts(*bar).record->validator();
    QVERIFY(validator != nullptr);
    bar.reset();
    QVERIFY(validator == nullptr);
}

void TestNavigationBar::isBarEnabledTellsOfTheBarsOwnSwitchAlone()
{
    NavigationBar bar;
    bar.setEnabled(false);
    QVERIFY(bar.isBarEnabled());
    bar.setBarEnabled(false);
    bar.setEnabled(true);
    QVERIFY(!bar.isBarEnabled());
}

UW_TEST_MAIN(TestNavigationBar)

#include "tst_navigationbar.moc"
