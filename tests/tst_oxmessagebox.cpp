// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxmessagebox.h"

#include "oxtitlebar.h"
#include "sharedconstants.h"
#include "support/everythingtranslated.h"
#include "support/finger.h"
#include "support/modaldialog.h"
#include "support/test.h"

#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <memory>

using Texts = QMap<QMessageBox::StandardButton, QString>;

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace {

const QColor Grey(0xf2, 0xf2, 0xf2);
const QColor Charcoal(0x2b, 0x2b, 0x2b);
const QColor Orange(0xfd, 0x78, 0x00);

QString title()
{
    return QStringLiteral("DELETE");
}

QString text()
{
    return QStringLiteral("Delete the selected layer?");
}

QString wordsWiderThanTheScreen()
{
    return QStringLiteral("several short words ").repeated(30).trimmed();
}

QString oneWordWiderThanTheScreen()
{
    return QStringLiteral("0123456789").repeated(30);
}

std::unique_ptr<OxMessageBox> createBox(QMessageBox::StandardButtons buttons,
                                        const Texts& texts = {}, const QString& boxText = text())
{
    return std::make_unique<OxMessageBox>(QMessageBox::Question, title(), boxText, buttons, nullptr,
                                          Qt::FramelessWindowHint, texts);
}

OxTitleBar* titleBar(const OxMessageBox* box)
{
    return box->findChild<OxTitleBar*>(QString(), Qt::FindDirectChildrenOnly);
}

/// The area in which a text scrolls; null if it does not.
QScrollArea* scrollArea(const OxMessageBox* box)
{
    return box->findChild<QScrollArea*>();
}

QLabel* textLabel(const OxMessageBox* box)
{
    const QScrollArea* area = scrollArea(box);
    return area != nullptr ? qobject_cast<QLabel*>(area->widget())
                           : box->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
}

QString linesOf(int count)
{
    return QStringList(count, QStringLiteral("One of many lines")).join(QLatin1Char('\n'));
}

QString linesAsWideAsTheScreen(int count)
{
    QString line;
    const QFontMetrics metrics((QLabel().font()));
    while (metrics.horizontalAdvance(line + QLatin1String(" word")) < ScreenWidth - 2 * 12) {
        line += QLatin1String(" word");
    }
    return QStringList(count, line).join(QLatin1Char('\n'));
}

QDialogButtonBox* buttonBox(const OxMessageBox* box)
{
    return box->findChild<QDialogButtonBox*>(QString(), Qt::FindDirectChildrenOnly);
}

QPushButton* button(const OxMessageBox* box, QMessageBox::StandardButton which)
{
    return buttonBox(box)->button(OxMessageBox::convertStandardButton(which));
}

QPushButton* closeButton(const OxMessageBox* box)
{
    return titleBar(box)->findChild<QPushButton*>();
}

QLabel* iconLabel(const OxMessageBox* box)
{
    return qobject_cast<QLabel*>(titleBar(box)->layout()->itemAt(0)->widget());
}

QLabel* titleLabel(const OxMessageBox* box)
{
    return qobject_cast<QLabel*>(titleBar(box)->layout()->itemAt(1)->widget());
}

QImage titleIcon(const OxMessageBox* box)
{
    return iconLabel(box)->pixmap(Qt::ReturnByValue).toImage();
}

/// A key as the keyboard sends it: to the window, which passes it to what has the focus.
void pressKey(OxMessageBox* box, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QVERIFY(QTest::qWaitForWindowActive(box));
    QTest::keyClick(box->windowHandle(), key, modifiers);
}

bool hasDefaultButton(const OxMessageBox* box)
{
    const auto buttons = box->findChildren<QPushButton*>();
    return std::any_of(buttons.begin(), buttons.end(),
                       [](const QPushButton* each) { return each->isDefault(); });
}

/// Runs `box` and returns its result.
int run(OxMessageBox* box, const std::function<void(OxMessageBox*)>& script)
{
    return whileModal<OxMessageBox>([box] { return box->exec(); }, script);
}

std::function<void(OxMessageBox*)> tapping(QMessageBox::StandardButton which)
{
    return [which](OxMessageBox* box) {
        Finger().tap(button(box, which));
    };
}

bool isNear(const QColor& colour, const QColor& expected)
{
    constexpr int Tolerance = 10; // of 255, for the first and the last step of a gradient
    return std::abs(colour.red() - expected.red()) <= Tolerance
        && std::abs(colour.green() - expected.green()) <= Tolerance
        && std::abs(colour.blue() - expected.blue()) <= Tolerance;
}

/// One of the four static functions that differ in their icon only.
using Helper = QMessageBox::StandardButton (*)(QWidget*, const QString&, const QString&,
                                               QMessageBox::StandardButtons,
                                               QMessageBox::StandardButton);

void addHelperRows()
{
    QTest::addColumn<Helper>("helper");
    QTest::newRow("information") << Helper(&OxMessageBox::information);
    QTest::newRow("warning") << Helper(&OxMessageBox::warning);
    QTest::newRow("critical") << Helper(&OxMessageBox::critical);
    QTest::newRow("question") << Helper(&OxMessageBox::question);
}

} // namespace

Q_DECLARE_METATYPE(Helper)

class TestOxMessageBox : public Test
{
    Q_OBJECT

private Q_SLOTS:
    // Construction
    void isNamedMessageBoxWidget();
    void isAHouseDialog();
    void productNameIsNotTranslated();
    void sheetOfTheBoxIsExactWithItsTrailingBlank();
    void plainBoxIsEmptyAndHasNoButtons();
    void plainBoxIsAFixedSizeDialog();
    void flagsAreTakenAsGivenAndStayAWindow();
    void defaultIconPathIsExact();
    void everyIconShowsTheSameErrorIcon_data();
    void everyIconShowsTheSameErrorIcon();
    void titleAndTextAreShown();
    void namesFromOutsideAreShownToTheLetter_data();
    void namesFromOutsideAreShownToTheLetter();
    void textHasAMarginOfTwelvePixels();
    void buttonRowHasMarginsOfTwelvePixels();
    void everyStandardButtonHasTheSizeAndTheSheet_data();
    void everyStandardButtonHasTheSizeAndTheSheet();
    void layoutHoldsTitleBarTextAndButtonsInThisOrder();
    void buttonsStandInTheOrderOfThePlatform();
    void slotsAreKnownByName();

    // Conversions
    void buttonRolesKeepTheirNumbers_data();
    void buttonRolesKeepTheirNumbers();
    void standardButtonsKeepTheirNumbers_data();
    void standardButtonsKeepTheirNumbers();

    // Texts of the buttons
    void customTextsReplaceOnlyTheButtonsTheyName();
    void customTextForAButtonThatIsNotShownHasNoEffect();
    void withoutCustomTextsButtonsKeepTheTranslatedTexts();

    // Results
    void tapOnAStandardButtonReturnsItsValue_data();
    void tapOnAStandardButtonReturnsItsValue();
    void ownButtonsReturnZeroAndAreToldApartByClickedButton();
    void addedStandardButtonReturnsItsValue();
    void escapeAndCloseButtonReturnTheSameAndLeaveNoClickedButton_data();
    void escapeAndCloseButtonReturnTheSameAndLeaveNoClickedButton();
    void secondRunForgetsTheClickedButton_data();
    void secondRunForgetsTheClickedButton();
    void clickedButtonIsNullOnceItIsDeleted();
    void endsWithFinishedOnly();
    void disabledButtonDoesNotEndTheBox();
    void closingNeitherDeletesTheBoxNorEndsTheApplication();

    // Default button
    void enterPressesTheDefaultButton_data();
    void enterPressesTheDefaultButton();
    void defaultButtonMayBeOneOfOnesOwn();
    void defaultButtonThatIsNotShownIsIgnored_data();
    void defaultButtonThatIsNotShownIsIgnored();
    void nullDefaultButtonChangesNothing();
    void enterDoesNothingWithoutADefaultButton_data();
    void enterDoesNothingWithoutADefaultButton();
    void enterDoesNothingWithoutADefaultButtonEvenAfterTab();
    void withADefaultButtonEnterPressesTheFocusedButton();
    void buttonAddedAfterTheDefaultButtonIsPressedByEnterWhenFocused();

    // Static functions
    void helperShowsItsArguments_data();
    void helperShowsItsArguments();
    void helperReturnsTheTappedButton_data();
    void helperReturnsTheTappedButton();
    void helperOffersOkAndNoDefaultUnlessToldOtherwise_data();
    void helperOffersOkAndNoDefaultUnlessToldOtherwise();
    void helperReturnsZeroForEscapeAndTheCloseButton_data();
    void helperReturnsZeroForEscapeAndTheCloseButton();
    void helperIgnoresADefaultButtonThatIsNotShown_data();
    void helperIgnoresADefaultButtonThatIsNotShown();
    void helperBoxDiesWithTheCall_data();
    void helperBoxDiesWithTheCall();
    void helperBoxBlocksItsParent();
    void questionReturnsYesOrNoAndEnterReturnsNo();
    void customQuestionShowsItsTexts();
    void customQuestionTakesItsDefaultButton();
    void messageTakesIconParentAndFlags();
    void warningAndInformationShowTheSameIcon();

    // Added buttons
    void addedButtonsLookLikeTheOthers();
    void nothingIsAddedForWhatNamesNoButton();

    // Pictures
    void boxIsGreyInAnOrangeFrame();
    void titleBarSpansTheBox();
    void buttonsAreGradientsInATwoPixelFrame();
    void buttonsHaveRoundedCorners();
    void pressedButtonKeepsItsColours();

    // Long texts
    void shortTextIsNotWrapped();
    void textWiderThanTheScreenIsWrapped_data();
    void textWiderThanTheScreenIsWrapped();
    void wrappedTextIsShownToItsLastLine_data();
    void wrappedTextIsShownToItsLastLine();
    void textThatFitsTheScreenDoesNotScroll();
    void textHigherThanTheScreenScrolls_data();
    void textHigherThanTheScreenScrolls();
    void scrollingTextFollowsTheFinger_data();
    void scrollingTextFollowsTheFinger();
    void scrollingTextFollowsTheKeys();
    void wordsThatFitAreNotTakenApart();
    void boxWithSeveralLinesKeepsThem();
};

// --- construction -------------------------------------------------------------------------------

void TestOxMessageBox::isNamedMessageBoxWidget()
{
    QCOMPARE(createBox(QMessageBox::Ok)->objectName(), QStringLiteral("MessageBoxWidget"));
    QCOMPARE(OxMessageBox().objectName(), QStringLiteral("MessageBoxWidget"));
}

void TestOxMessageBox::isAHouseDialog()
{
    auto box = createBox(QMessageBox::Ok);
    QVERIFY(!box->testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!box->testAttribute(Qt::WA_QuitOnClose));
    QCOMPARE(box->windowTitle(), QStringLiteral("Sigilant PRO"));
    const QImage icon = box->windowIcon().pixmap(32).toImage();
    QVERIFY(!icon.isNull());
    QCOMPARE(icon, QIcon(QStringLiteral(":/Icon/ApplicationIcons/popup.ico")).pixmap(32).toImage());
}

void TestOxMessageBox::productNameIsNotTranslated()
{
    const EverythingTranslated translated;
    auto box = createBox(QMessageBox::Ok);
    QCOMPARE(box->windowTitle(), QStringLiteral("Sigilant PRO"));
    QCOMPARE(titleLabel(box.get())->text(), title());
    QCOMPARE(textLabel(box.get())->text(), text());
}

void TestOxMessageBox::sheetOfTheBoxIsExactWithItsTrailingBlank()
{
    QCOMPARE(createBox(QMessageBox::Ok)->styleSheet(),
             QStringLiteral("QWidget#MessageBoxWidget { background-color: #f2f2f2; border: 1px "
                            "solid #fd7800; } "));
}

void TestOxMessageBox::plainBoxIsEmptyAndHasNoButtons()
{
    QWidget parent;
    const OxMessageBox box(&parent);
    QCOMPARE(box.parentWidget(), &parent);
    QCOMPARE(titleLabel(&box)->text(), QString());
    QCOMPARE(textLabel(&box)->text(), QString());
    QVERIFY(buttonBox(&box)->buttons().isEmpty());
    QCOMPARE(box.clickedButton(), nullptr);
}

void TestOxMessageBox::plainBoxIsAFixedSizeDialog()
{
    const OxMessageBox box(nullptr);
    const Qt::WindowFlags expected = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint;
    QCOMPARE(expected.toInt(), 259);
    QCOMPARE(box.windowFlags() & expected, expected);
    // The three-argument form has the same flags.
    const OxMessageBox full(QMessageBox::NoIcon, title(), text());
    QCOMPARE(full.windowFlags(), box.windowFlags());
    QCOMPARE(full.clickedButton(), nullptr);
}

void TestOxMessageBox::flagsAreTakenAsGivenAndStayAWindow()
{
    QWidget parent;
    const OxMessageBox box(QMessageBox::Warning, title(), text(), QMessageBox::Ok, &parent,
                           Qt::FramelessWindowHint);
    QVERIFY(box.isWindow());
    QCOMPARE(box.windowFlags(), Qt::Dialog | Qt::FramelessWindowHint);
}

void TestOxMessageBox::defaultIconPathIsExact()
{
    QCOMPARE(OxMessageBox::defaultIconFilePath(),
             QStringLiteral(":/Navigation/NavigationIcons/error-icon.png"));
}

void TestOxMessageBox::everyIconShowsTheSameErrorIcon_data()
{
    QTest::addColumn<QMessageBox::Icon>("icon");

    QTest::newRow("none") << QMessageBox::NoIcon;
    QTest::newRow("information") << QMessageBox::Information;
    QTest::newRow("warning") << QMessageBox::Warning;
    QTest::newRow("critical") << QMessageBox::Critical;
    QTest::newRow("question") << QMessageBox::Question;
}

void TestOxMessageBox::everyIconShowsTheSameErrorIcon()
{
    QFETCH(QMessageBox::Icon, icon);
    const OxMessageBox box(icon, title(), text(), QMessageBox::Ok);
    QVERIFY(!titleIcon(&box).isNull());
    QCOMPARE(titleIcon(&box), QPixmap(OxMessageBox::defaultIconFilePath()).toImage());
}

void TestOxMessageBox::titleAndTextAreShown()
{
    auto box = createBox(QMessageBox::Ok);
    QCOMPARE(titleLabel(box.get())->text(), title());
    QCOMPARE(textLabel(box.get())->text(), text());
}

void TestOxMessageBox::namesFromOutsideAreShownToTheLetter_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("ampersand") << QStringLiteral("Salt & pepper");
    QTest::newRow("entity") << QStringLiteral("Salt &amp; pepper");
    QTest::newRow("markup") << QStringLiteral("<b>Salt</b>");
    QTest::newRow("quotes") << QStringLiteral("\"Salt\" and 'pepper'");
}

/// As the class's comment tells to write them.
void TestOxMessageBox::namesFromOutsideAreShownToTheLetter()
{
    QFETCH(QString, name);
    auto box = createBox(QMessageBox::Ok, {}, Qt::convertFromPlainText(name, Qt::WhiteSpaceNormal));
    box->show();
    auto plain = createBox(QMessageBox::Ok, {}, name);
    textLabel(plain.get())->setTextFormat(Qt::PlainText);
    plain->show();
    QCOMPARE(textLabel(box.get())->size(), textLabel(plain.get())->size());
    QCOMPARE(textLabel(box.get())->grab().toImage(), textLabel(plain.get())->grab().toImage());
}

void TestOxMessageBox::textHasAMarginOfTwelvePixels()
{
    QCOMPARE(textLabel(createBox(QMessageBox::Ok).get())->margin(), 12);
}

void TestOxMessageBox::buttonRowHasMarginsOfTwelvePixels()
{
    QCOMPARE(buttonBox(createBox(QMessageBox::Ok).get())->contentsMargins(),
             QMargins(12, 12, 12, 12));
}

void TestOxMessageBox::everyStandardButtonHasTheSizeAndTheSheet_data()
{
    standardButtonsKeepTheirNumbers_data();
}

void TestOxMessageBox::everyStandardButtonHasTheSizeAndTheSheet()
{
    QFETCH(QMessageBox::StandardButton, which);
    auto box = createBox(which | QMessageBox::Ok);
    for (const QMessageBox::StandardButton each : { which, QMessageBox::Ok }) {
        const QPushButton* shown = button(box.get(), each);
        QCOMPARE(shown->minimumSize(), QSize(80, 30));
        QCOMPARE(
            shown->styleSheet(),
            QStringLiteral("QPushButton { border: 2px solid #fd7800; color: white; font: bold; \n"
                           "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 "
                           "#5a5959, stop: 1 #060606);\n"
                           "border-radius: 6px; outline: 0;\n"
                           "}"));
    }
}

void TestOxMessageBox::layoutHoldsTitleBarTextAndButtonsInThisOrder()
{
    auto box = createBox(QMessageBox::Ok);
    const auto* layout = qobject_cast<QVBoxLayout*>(box->layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->count(), 3);
    QCOMPARE(layout->itemAt(0)->widget(), titleBar(box.get()));
    QCOMPARE(layout->itemAt(1)->widget(), textLabel(box.get()));
    QCOMPARE(layout->itemAt(2)->widget(), buttonBox(box.get()));
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::AlignTop);
    QCOMPARE(layout->itemAt(1)->alignment(), Qt::AlignLeft);
    QCOMPARE(layout->itemAt(2)->alignment(), Qt::AlignRight | Qt::AlignBottom);
    for (int index = 0; index < layout->count(); ++index) {
        QCOMPARE(layout->stretch(index), 0);
    }
}

void TestOxMessageBox::buttonsStandInTheOrderOfThePlatform()
{
    const auto buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel
        | QMessageBox::Help | QMessageBox::Apply;
    const auto inARow = [](const QDialogButtonBox* row) {
        QStringList texts;
        const QLayout* layout = row->layout();
        for (int index = 0; index < layout->count(); ++index) {
            if (auto* each = qobject_cast<QPushButton*>(layout->itemAt(index)->widget())) {
                texts << each->text();
            }
        }
        return texts;
    };
    const QDialogButtonBox plain(OxMessageBox::convertStandardButtons(buttons));
    const auto box = createBox(buttons);
    QCOMPARE(inARow(buttonBox(box.get())).count(), 5);
    QCOMPARE(inARow(buttonBox(box.get())), inARow(&plain));
}

void TestOxMessageBox::slotsAreKnownByName()
{
    const QMetaObject& meta = OxMessageBox::staticMetaObject;
    QVERIFY(meta.indexOfSlot("onButtonClicked(QAbstractButton*)") >= 0);
    QVERIFY(meta.indexOfSlot("closeWithDefaultButton()") >= 0);
}

// --- conversions --------------------------------------------------------------------------------

void TestOxMessageBox::buttonRolesKeepTheirNumbers_data()
{
    QTest::addColumn<QMessageBox::ButtonRole>("role");
    QTest::addColumn<QDialogButtonBox::ButtonRole>("expected");

    QTest::newRow("invalid") << QMessageBox::InvalidRole << QDialogButtonBox::InvalidRole;
    QTest::newRow("accept") << QMessageBox::AcceptRole << QDialogButtonBox::AcceptRole;
    QTest::newRow("reject") << QMessageBox::RejectRole << QDialogButtonBox::RejectRole;
    QTest::newRow("destructive") << QMessageBox::DestructiveRole
                                 << QDialogButtonBox::DestructiveRole;
    QTest::newRow("action") << QMessageBox::ActionRole << QDialogButtonBox::ActionRole;
    QTest::newRow("help") << QMessageBox::HelpRole << QDialogButtonBox::HelpRole;
    QTest::newRow("yes") << QMessageBox::YesRole << QDialogButtonBox::YesRole;
    QTest::newRow("no") << QMessageBox::NoRole << QDialogButtonBox::NoRole;
    QTest::newRow("reset") << QMessageBox::ResetRole << QDialogButtonBox::ResetRole;
    QTest::newRow("apply") << QMessageBox::ApplyRole << QDialogButtonBox::ApplyRole;
}

void TestOxMessageBox::buttonRolesKeepTheirNumbers()
{
    QFETCH(QMessageBox::ButtonRole, role);
    QTEST(OxMessageBox::convertButtonRole(role), "expected");
    QCOMPARE(int(OxMessageBox::convertButtonRole(role)), int(role));
}

void TestOxMessageBox::standardButtonsKeepTheirNumbers_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("which");

    const QMetaEnum buttons = QMetaEnum::fromType<QDialogButtonBox::StandardButtons>();
    for (int index = 0; index < buttons.keyCount(); ++index) {
        const int value = buttons.value(index);
        if (value != QDialogButtonBox::NoButton) {
            QTest::newRow(buttons.key(index)) << QMessageBox::StandardButton(value);
        }
    }
}

void TestOxMessageBox::standardButtonsKeepTheirNumbers()
{
    QFETCH(QMessageBox::StandardButton, which);
    QCOMPARE(int(OxMessageBox::convertStandardButton(which)), int(which));
    const QMessageBox::StandardButtons two = which | QMessageBox::Cancel;
    QCOMPARE(OxMessageBox::convertStandardButtons(two).toInt(), two.toInt());
}

// --- texts of the buttons -----------------------------------------------------------------------

void TestOxMessageBox::customTextsReplaceOnlyTheButtonsTheyName()
{
    auto box = createBox(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                         { { QMessageBox::Yes, QStringLiteral("Overwrite") },
                           { QMessageBox::No, QStringLiteral("Keep") } });
    const QDialogButtonBox plain(QDialogButtonBox::Cancel);
    QCOMPARE(button(box.get(), QMessageBox::Yes)->text(), QStringLiteral("Overwrite"));
    QCOMPARE(button(box.get(), QMessageBox::No)->text(), QStringLiteral("Keep"));
    QCOMPARE(button(box.get(), QMessageBox::Cancel)->text(),
             plain.button(QDialogButtonBox::Cancel)->text());
}

void TestOxMessageBox::customTextForAButtonThatIsNotShownHasNoEffect()
{
    auto box = createBox(QMessageBox::Ok,
                         { { QMessageBox::Yes, QStringLiteral("Overwrite") },
                           { QMessageBox::NoButton, QStringLiteral("Nothing") } });
    QCOMPARE(buttonBox(box.get())->buttons().count(), 1);
    QCOMPARE(button(box.get(), QMessageBox::Ok)->text(),
             QDialogButtonBox(QDialogButtonBox::Ok).button(QDialogButtonBox::Ok)->text());
}

void TestOxMessageBox::withoutCustomTextsButtonsKeepTheTranslatedTexts()
{
    const EverythingTranslated translated;
    auto box = createBox(QMessageBox::Yes | QMessageBox::No,
                         { { QMessageBox::No, QStringLiteral("Keep") } });
    QCOMPARE(button(box.get(), QMessageBox::Yes)->text(), EverythingTranslated::text());
    QCOMPARE(button(box.get(), QMessageBox::No)->text(), QStringLiteral("Keep"));
}

// --- results ------------------------------------------------------------------------------------

void TestOxMessageBox::tapOnAStandardButtonReturnsItsValue_data()
{
    standardButtonsKeepTheirNumbers_data();
}

void TestOxMessageBox::tapOnAStandardButtonReturnsItsValue()
{
    QFETCH(QMessageBox::StandardButton, which);
    auto box = createBox(which | QMessageBox::Ok | QMessageBox::Cancel);
    QCOMPARE(run(box.get(), tapping(which)), int(which));
    QCOMPARE(box->clickedButton(), button(box.get(), which));
}

void TestOxMessageBox::ownButtonsReturnZeroAndAreToldApartByClickedButton()
{
    QWidget parent;
    OxMessageBox box(&parent);
    QPushButton* replace = box.addButton(QStringLiteral("Replace"), QMessageBox::AcceptRole);
    QPushButton* keep = box.addButton(QStringLiteral("Keep both"), QMessageBox::RejectRole);
    QPushButton* both = box.addButton(QStringLiteral("Ask"), QMessageBox::ActionRole);
    QCOMPARE(replace->text(), QStringLiteral("Replace"));
    QCOMPARE(buttonBox(&box)->buttonRole(keep), QDialogButtonBox::RejectRole);

    for (QPushButton* each : { replace, keep, both }) {
        QCOMPARE(run(&box, [each](OxMessageBox*) { Finger().tap(each); }), 0);
        QCOMPARE(box.clickedButton(), each);
    }
}

void TestOxMessageBox::addedStandardButtonReturnsItsValue()
{
    OxMessageBox box;
    QPushButton* save = box.addButton(QMessageBox::Save);
    QCOMPARE(button(&box, QMessageBox::Save), save);
    QCOMPARE(run(&box, tapping(QMessageBox::Save)), int(QMessageBox::Save));
    QCOMPARE(box.clickedButton(), save);
}

void TestOxMessageBox::escapeAndCloseButtonReturnTheSameAndLeaveNoClickedButton_data()
{
    QTest::addColumn<std::function<void(OxMessageBox*)>>("end");

    using Script = std::function<void(OxMessageBox*)>;
    QTest::newRow("Escape") << Script([](OxMessageBox* box) { pressKey(box, Qt::Key_Escape); });
    QTest::newRow("Shift and Escape")
        << Script([](OxMessageBox* box) { pressKey(box, Qt::Key_Escape, Qt::ShiftModifier); });
    QTest::newRow("close button") << Script(
        [](OxMessageBox* box) { Finger().tap(closeButton(box)); });
    QTest::newRow("slot") << Script([](OxMessageBox* box) { box->closeWithDefaultButton(); });
    QTest::newRow("close()") << Script([](OxMessageBox* box) { box->close(); });
    QTest::newRow("reject()") << Script([](OxMessageBox* box) { box->reject(); });
}

void TestOxMessageBox::escapeAndCloseButtonReturnTheSameAndLeaveNoClickedButton()
{
    QFETCH(std::function<void(OxMessageBox*)>, end);
    auto box = createBox(QMessageBox::Yes | QMessageBox::Cancel);
    box->setDefaultButton(QMessageBox::Yes);
    QCOMPARE(run(box.get(), end), 0);
    QCOMPARE(box->result(), 0);
    QCOMPARE(box->clickedButton(), nullptr);
    QVERIFY(!box->isVisible());
}

void TestOxMessageBox::secondRunForgetsTheClickedButton_data()
{
    escapeAndCloseButtonReturnTheSameAndLeaveNoClickedButton_data();
}

void TestOxMessageBox::secondRunForgetsTheClickedButton()
{
    QFETCH(std::function<void(OxMessageBox*)>, end);
    auto box = createBox(QMessageBox::Ok);
    QCOMPARE(run(box.get(), tapping(QMessageBox::Ok)), int(QMessageBox::Ok));
    QCOMPARE(run(box.get(), end), 0);
    QCOMPARE(box->clickedButton(), nullptr);
}

void TestOxMessageBox::clickedButtonIsNullOnceItIsDeleted()
{
    OxMessageBox box;
    QPointer<QPushButton> own = box.addButton(QStringLiteral("Own"), QMessageBox::AcceptRole);
    run(&box, [&](OxMessageBox*) { Finger().tap(own); });
    QCOMPARE(box.clickedButton(), own.data());

    delete own.data();

    QCOMPARE(box.clickedButton(), nullptr);
}

void TestOxMessageBox::endsWithFinishedOnly()
{
    auto box = createBox(QMessageBox::Ok | QMessageBox::Cancel);
    QSignalSpy finished(box.get(), &QDialog::finished);
    QSignalSpy accepted(box.get(), &QDialog::accepted);
    QSignalSpy rejected(box.get(), &QDialog::rejected);

    run(box.get(), tapping(QMessageBox::Ok));
    run(box.get(), tapping(QMessageBox::Cancel));

    QCOMPARE(finished.count(), 2);
    QCOMPARE(finished.at(0).at(0).toInt(), 0x400);
    QCOMPARE(finished.at(1).at(0).toInt(), 0x400000);
    QCOMPARE(accepted.count(), 0);
    QCOMPARE(rejected.count(), 0);
}

void TestOxMessageBox::disabledButtonDoesNotEndTheBox()
{
    auto box = createBox(QMessageBox::Yes | QMessageBox::No);
    button(box.get(), QMessageBox::Yes)->setEnabled(false);
    const int result = run(box.get(), [](OxMessageBox* shown) {
        Finger().tap(button(shown, QMessageBox::Yes));
        QVERIFY(shown->isVisible());
        Finger().tap(button(shown, QMessageBox::No));
    });
    QCOMPARE(result, int(QMessageBox::No));
}

void TestOxMessageBox::closingNeitherDeletesTheBoxNorEndsTheApplication()
{
    QSignalSpy lastWindowClosed(qApp, &QGuiApplication::lastWindowClosed);
    const QPointer<OxMessageBox> box = createBox(QMessageBox::Ok).release();
    const std::unique_ptr<OxMessageBox> owner(box);
    box->show();
    box->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(box != nullptr);
    QVERIFY(!box->isVisible());
    QCOMPARE(lastWindowClosed.count(), 0);
}

// --- default button -----------------------------------------------------------------------------

void TestOxMessageBox::enterPressesTheDefaultButton_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QMessageBox::StandardButton>("which");

    QTest::newRow("Return, No") << Qt::Key_Return << QMessageBox::No;
    QTest::newRow("Enter, No") << Qt::Key_Enter << QMessageBox::No;
    QTest::newRow("Return, Yes") << Qt::Key_Return << QMessageBox::Yes;
    QTest::newRow("Return, Cancel") << Qt::Key_Return << QMessageBox::Cancel;
}

void TestOxMessageBox::enterPressesTheDefaultButton()
{
    QFETCH(Qt::Key, key);
    QFETCH(QMessageBox::StandardButton, which);
    auto box = createBox(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    box->setDefaultButton(which);
    QCOMPARE(run(box.get(), [key](OxMessageBox* shown) { pressKey(shown, key); }), int(which));
    QCOMPARE(box->clickedButton(), button(box.get(), which));
}

void TestOxMessageBox::defaultButtonMayBeOneOfOnesOwn()
{
    auto box = createBox(QMessageBox::Yes | QMessageBox::Cancel);
    QPushButton* own = box->addButton(QStringLiteral("Own"), QMessageBox::ActionRole);
    box->setDefaultButton(own);
    QVERIFY(own->isDefault());
    run(box.get(), [](OxMessageBox* shown) { pressKey(shown, Qt::Key_Return); });
    QCOMPARE(box->clickedButton(), own);
}

void TestOxMessageBox::defaultButtonThatIsNotShownIsIgnored_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("missing");

    QTest::newRow("another button") << QMessageBox::Ok;
    QTest::newRow("no button") << QMessageBox::NoButton;
}

void TestOxMessageBox::defaultButtonThatIsNotShownIsIgnored()
{
    QFETCH(QMessageBox::StandardButton, missing);
    auto box = createBox(QMessageBox::Yes | QMessageBox::No);
    box->setDefaultButton(missing);
    QVERIFY(!hasDefaultButton(box.get()));

    box->setDefaultButton(QMessageBox::No);
    box->setDefaultButton(missing);
    QVERIFY(button(box.get(), QMessageBox::No)->isDefault());
}

void TestOxMessageBox::nullDefaultButtonChangesNothing()
{
    auto box = createBox(QMessageBox::Yes | QMessageBox::No);
    box->setDefaultButton(nullptr);
    QVERIFY(!hasDefaultButton(box.get()));

    box->setDefaultButton(QMessageBox::No);
    box->setDefaultButton(nullptr);
    QVERIFY(button(box.get(), QMessageBox::No)->isDefault());
}

void TestOxMessageBox::enterDoesNothingWithoutADefaultButton_data()
{
    QTest::addColumn<QMessageBox::StandardButtons>("buttons");
    QTest::addColumn<Qt::Key>("key");

    using Buttons = QMessageBox::StandardButtons;
    QTest::newRow("Ok") << Buttons(QMessageBox::Ok) << Qt::Key_Return;
    QTest::newRow("Ok, Enter") << Buttons(QMessageBox::Ok) << Qt::Key_Enter;
    QTest::newRow("Yes and No") << Buttons(QMessageBox::Yes | QMessageBox::No) << Qt::Key_Return;
    QTest::newRow("Save, Discard and Cancel")
        << Buttons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel)
        << Qt::Key_Return;
    QTest::newRow("Cancel") << Buttons(QMessageBox::Cancel) << Qt::Key_Return;
    QTest::newRow("no buttons") << Buttons(QMessageBox::NoButton) << Qt::Key_Return;
}

void TestOxMessageBox::enterDoesNothingWithoutADefaultButton()
{
    QFETCH(QMessageBox::StandardButtons, buttons);
    QFETCH(Qt::Key, key);
    auto box = createBox(buttons);
    QSignalSpy finished(box.get(), &QDialog::finished);
    const int result = run(box.get(), [&](OxMessageBox* shown) {
        pressKey(shown, key);
        QCOMPARE(finished.count(), 0);
        QVERIFY(!hasDefaultButton(shown));
        pressKey(shown, Qt::Key_Escape);
    });
    QCOMPARE(result, 0);
    QCOMPARE(box->clickedButton(), nullptr);
}

void TestOxMessageBox::enterDoesNothingWithoutADefaultButtonEvenAfterTab()
{
    auto box = createBox(QMessageBox::Yes | QMessageBox::No);
    QSignalSpy finished(box.get(), &QDialog::finished);
    run(box.get(), [&](OxMessageBox* shown) {
        pressKey(shown, Qt::Key_Tab);
        pressKey(shown, Qt::Key_Return);
        QCOMPARE(finished.count(), 0);
        pressKey(shown, Qt::Key_Escape);
    });
}

void TestOxMessageBox::withADefaultButtonEnterPressesTheFocusedButton()
{
    auto box = createBox(QMessageBox::Yes | QMessageBox::No);
    box->setDefaultButton(QMessageBox::No);
    const int result = run(box.get(), [](OxMessageBox* shown) {
        QVERIFY(QTest::qWaitForWindowActive(shown));
        QVERIFY(button(shown, QMessageBox::No)->hasFocus());
        pressKey(shown, Qt::Key_Tab);
        QVERIFY(button(shown, QMessageBox::Yes)->hasFocus());
        pressKey(shown, Qt::Key_Return);
    });
    QCOMPARE(result, int(QMessageBox::Yes));
}

void TestOxMessageBox::buttonAddedAfterTheDefaultButtonIsPressedByEnterWhenFocused()
{
    auto box = createBox(QMessageBox::Yes);
    box->setDefaultButton(QMessageBox::Yes);
    QPushButton* own = box->addButton(QStringLiteral("Own"), QMessageBox::ActionRole);
    run(box.get(), [own](OxMessageBox* shown) {
        pressKey(shown, Qt::Key_Tab);
        QVERIFY(own->hasFocus());
        pressKey(shown, Qt::Key_Return);
    });
    QCOMPARE(box->clickedButton(), own);
}

// --- static functions ---------------------------------------------------------------------------

void TestOxMessageBox::helperShowsItsArguments_data()
{
    addHelperRows();
}

void TestOxMessageBox::helperShowsItsArguments()
{
    QFETCH(Helper, helper);
    QWidget parent;
    const auto buttons = QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel;
    whileModal<OxMessageBox>(
        [&] { return helper(&parent, title(), text(), buttons, QMessageBox::Cancel); },
        [&](OxMessageBox* box) {
            QCOMPARE(box->parentWidget(), &parent);
            QCOMPARE(box->windowFlags(), Qt::Dialog | Qt::FramelessWindowHint);
            QCOMPARE(titleLabel(box)->text(), title());
            QCOMPARE(textLabel(box)->text(), text());
            QCOMPARE(buttonBox(box)->standardButtons(),
                     OxMessageBox::convertStandardButtons(buttons));
            QVERIFY(button(box, QMessageBox::Cancel)->isDefault());
            QCOMPARE(titleIcon(box), QPixmap(OxMessageBox::defaultIconFilePath()).toImage());
            QCOMPARE(box->clickedButton(), nullptr);
            box->close();
        });
}

void TestOxMessageBox::helperReturnsTheTappedButton_data()
{
    addHelperRows();
}

void TestOxMessageBox::helperReturnsTheTappedButton()
{
    QFETCH(Helper, helper);
    QWidget parent;
    const auto buttons = QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel;
    for (const auto which : { QMessageBox::Save, QMessageBox::Discard, QMessageBox::Cancel }) {
        const auto result = whileModal<OxMessageBox>(
            [&] { return helper(&parent, title(), text(), buttons, QMessageBox::NoButton); },
            tapping(which));
        QCOMPARE(result, which);
    }
}

void TestOxMessageBox::helperOffersOkAndNoDefaultUnlessToldOtherwise_data()
{
    using Call = std::function<QMessageBox::StandardButton()>;
    QTest::addColumn<Call>("call");

    QTest::newRow("information") << Call(
        [] { return OxMessageBox::information(nullptr, title(), text()); });
    QTest::newRow("warning") << Call(
        [] { return OxMessageBox::warning(nullptr, title(), text()); });
    QTest::newRow("critical") << Call(
        [] { return OxMessageBox::critical(nullptr, title(), text()); });
    QTest::newRow("question") << Call(
        [] { return OxMessageBox::question(nullptr, title(), text()); });
    QTest::newRow("message") << Call(
        [] { return OxMessageBox::message(QMessageBox::Warning, title(), text()); });
}

void TestOxMessageBox::helperOffersOkAndNoDefaultUnlessToldOtherwise()
{
    QFETCH(std::function<QMessageBox::StandardButton()>, call);
    const auto result = whileModal<OxMessageBox>(call, [](OxMessageBox* box) {
        QCOMPARE(buttonBox(box)->standardButtons(),
                 QDialogButtonBox::StandardButtons(QDialogButtonBox::Ok));
        QVERIFY(!hasDefaultButton(box));
        QCOMPARE(box->windowFlags(), Qt::Dialog | Qt::FramelessWindowHint);
        Finger().tap(button(box, QMessageBox::Ok));
    });
    QCOMPARE(result, QMessageBox::Ok);
}

void TestOxMessageBox::helperReturnsZeroForEscapeAndTheCloseButton_data()
{
    addHelperRows();
}

void TestOxMessageBox::helperReturnsZeroForEscapeAndTheCloseButton()
{
    QFETCH(Helper, helper);
    const auto call = [helper] {
        return helper(nullptr, title(), text(), QMessageBox::Ok | QMessageBox::Cancel,
                      QMessageBox::Ok);
    };
    const auto escaped =
        whileModal<OxMessageBox>(call, [](OxMessageBox* box) { pressKey(box, Qt::Key_Escape); });
    const auto closed =
        whileModal<OxMessageBox>(call, [](OxMessageBox* box) { Finger().tap(closeButton(box)); });
    QCOMPARE(escaped, QMessageBox::NoButton);
    QCOMPARE(closed, QMessageBox::NoButton);
}

void TestOxMessageBox::helperIgnoresADefaultButtonThatIsNotShown_data()
{
    addHelperRows();
}

void TestOxMessageBox::helperIgnoresADefaultButtonThatIsNotShown()
{
    QFETCH(Helper, helper);
    const auto result = whileModal<OxMessageBox>(
        [helper] {
            return helper(nullptr, title(), text(), QMessageBox::Yes | QMessageBox::No,
                          QMessageBox::Ok);
        },
        [](OxMessageBox* box) {
            QVERIFY(!hasDefaultButton(box));
            pressKey(box, Qt::Key_Return);
            QVERIFY(box->isVisible());
            Finger().tap(button(box, QMessageBox::No));
        });
    QCOMPARE(result, QMessageBox::No);
}

void TestOxMessageBox::helperBoxDiesWithTheCall_data()
{
    addHelperRows();
}

void TestOxMessageBox::helperBoxDiesWithTheCall()
{
    QFETCH(Helper, helper);
    QWidget parent;
    QPointer<OxMessageBox> shown;
    whileModal<OxMessageBox>(
        [&] { return helper(&parent, title(), text(), QMessageBox::Ok, QMessageBox::NoButton); },
        [&](OxMessageBox* box) {
            shown = box;
            Finger().tap(button(box, QMessageBox::Ok));
            QVERIFY(shown != nullptr);
        });
    QVERIFY(shown == nullptr);
    QVERIFY(parent.findChildren<OxMessageBox*>().isEmpty());
}

void TestOxMessageBox::helperBoxBlocksItsParent()
{
    QWidget window;
    auto* behind = new QPushButton(&window);
    window.resize(ScreenSize);
    window.show();
    QSignalSpy clicked(behind, &QPushButton::clicked);
    whileModal<OxMessageBox>([&] { return OxMessageBox::warning(&window, title(), text()); },
                             [&](OxMessageBox* box) {
                                 QVERIFY(box->isModal());
                                 Finger().tap(behind);
                                 QCOMPARE(clicked.count(), 0);
                                 box->close();
                             });
    Finger().tap(behind);
    QCOMPARE(clicked.count(), 1);
}

void TestOxMessageBox::questionReturnsYesOrNoAndEnterReturnsNo()
{
    QWidget parent;
    const auto ask = [&] {
        return OxMessageBox::question(&parent, title(), text(), QMessageBox::Yes | QMessageBox::No,
                                      QMessageBox::No);
    };
    QCOMPARE(int(whileModal<OxMessageBox>(ask, tapping(QMessageBox::Yes))), 0x4000);
    QCOMPARE(int(whileModal<OxMessageBox>(ask, tapping(QMessageBox::No))), 0x10000);
    QCOMPARE(int(whileModal<OxMessageBox>(
                 ask, [](OxMessageBox* box) { pressKey(box, Qt::Key_Return); })),
             0x10000);
}

void TestOxMessageBox::customQuestionShowsItsTexts()
{
    QWidget parent;
    const Texts texts { { QMessageBox::Yes, QStringLiteral("Overwrite") },
                        { QMessageBox::No, QStringLiteral("Keep") } };
    const auto result = whileModal<OxMessageBox>(
        [&] {
            return OxMessageBox::customQuestion(
                &parent, title(), text(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                QMessageBox::NoButton, texts);
        },
        [&](OxMessageBox* box) {
            QCOMPARE(box->parentWidget(), &parent);
            QCOMPARE(box->windowFlags(), Qt::Dialog | Qt::FramelessWindowHint);
            QCOMPARE(button(box, QMessageBox::Yes)->text(), QStringLiteral("Overwrite"));
            QCOMPARE(button(box, QMessageBox::No)->text(), QStringLiteral("Keep"));
            QCOMPARE(button(box, QMessageBox::Cancel)->text(), QStringLiteral("Cancel"));
            QVERIFY(!hasDefaultButton(box));
            Finger().tap(button(box, QMessageBox::Yes));
        });
    QCOMPARE(result, QMessageBox::Yes);
}

void TestOxMessageBox::customQuestionTakesItsDefaultButton()
{
    const auto result = whileModal<OxMessageBox>(
        [] {
            return OxMessageBox::customQuestion(
                nullptr, title(), text(), QMessageBox::Yes | QMessageBox::No, QMessageBox::No, {});
        },
        [](OxMessageBox* box) { pressKey(box, Qt::Key_Return); });
    QCOMPARE(result, QMessageBox::No);
}

void TestOxMessageBox::messageTakesIconParentAndFlags()
{
    QWidget parent;
    const Qt::WindowFlags flags = Qt::Window | Qt::FramelessWindowHint;
    const auto result = whileModal<OxMessageBox>(
        [&] {
            return OxMessageBox::message(QMessageBox::Critical, title(), text(), QMessageBox::Retry,
                                         QMessageBox::Retry, &parent, flags);
        },
        [&](OxMessageBox* box) {
            QCOMPARE(box->parentWidget(), &parent);
            QCOMPARE(box->windowFlags(), flags);
            QVERIFY(!titleIcon(box).isNull());
            pressKey(box, Qt::Key_Return);
        });
    QCOMPARE(result, QMessageBox::Retry);
}

void TestOxMessageBox::warningAndInformationShowTheSameIcon()
{
    QImage icons[2];
    whileModal<OxMessageBox>([] { return OxMessageBox::warning(nullptr, title(), text()); },
                             [&](OxMessageBox* box) {
                                 icons[0] = titleIcon(box);
                                 box->close();
                             });
    whileModal<OxMessageBox>([] { return OxMessageBox::information(nullptr, title(), text()); },
                             [&](OxMessageBox* box) {
                                 icons[1] = titleIcon(box);
                                 box->close();
                             });
    QVERIFY(!icons[0].isNull());
    QCOMPARE(icons[0], icons[1]);
}

// --- added buttons ------------------------------------------------------------------------------

void TestOxMessageBox::addedButtonsLookLikeTheOthers()
{
    auto box = createBox(QMessageBox::Ok);
    const QPushButton* given = button(box.get(), QMessageBox::Ok);
    const QPushButton* own = box->addButton(QStringLiteral("Own"), QMessageBox::ActionRole);
    const QPushButton* standard = box->addButton(QMessageBox::Cancel);
    for (const QPushButton* added : { own, standard }) {
        QCOMPARE(added->styleSheet(), given->styleSheet());
        QCOMPARE(added->minimumSize(), given->minimumSize());
    }
}

void TestOxMessageBox::nothingIsAddedForWhatNamesNoButton()
{
    OxMessageBox box;
    QTest::ignoreMessage(QtWarningMsg,
                         "QDialogButtonBox::addButton: Invalid ButtonRole, button not added");
    QCOMPARE(box.addButton(QStringLiteral("Own"), QMessageBox::InvalidRole), nullptr);
    QCOMPARE(box.addButton(QMessageBox::NoButton), nullptr);
    QVERIFY(buttonBox(&box)->buttons().isEmpty());
}

// --- pictures -----------------------------------------------------------------------------------

void TestOxMessageBox::boxIsGreyInAnOrangeFrame()
{
    auto box = createBox(QMessageBox::Ok);
    box->show();
    const QImage image = box->grab().toImage();
    const int right = image.width() - 1;
    const int bottom = image.height() - 1;
    for (int y = titleBar(box.get())->height(); y < image.height(); ++y) {
        QCOMPARE(image.pixelColor(0, y), Orange);
        QCOMPARE(image.pixelColor(right, y), Orange);
    }
    for (int x = 0; x < image.width(); ++x) {
        QCOMPARE(image.pixelColor(x, bottom), Orange);
    }
    QCOMPARE(image.pixelColor(1, bottom - 1), Grey);
    QCOMPARE(image.pixelColor(right - 1, bottom - 1), Grey);
    QCOMPARE(image.pixelColor(5, titleBar(box.get())->height() + 2), Grey);
}

void TestOxMessageBox::titleBarSpansTheBox()
{
    auto box = createBox(QMessageBox::Ok);
    box->show();
    QCOMPARE(titleBar(box.get())->geometry(), QRect(0, 0, box->width(), 40));
    const QImage image = box->grab().toImage();
    QCOMPARE(image.pixelColor(box->width() / 2, 0), Orange);
    QCOMPARE(image.pixelColor(1, 1), Charcoal);
    QCOMPARE(image.pixelColor(box->width() - 2, 38), Charcoal);
    QCOMPARE(image.pixelColor(box->width() / 2, 39), Orange);
}

void TestOxMessageBox::buttonsAreGradientsInATwoPixelFrame()
{
    auto box = createBox(QMessageBox::Ok);
    box->show();
    const QImage image = button(box.get(), QMessageBox::Ok)->grab().toImage();
    QCOMPARE(image.size(), QSize(80, 30));
    for (const int edge : { 0, 1 }) {
        QCOMPARE(image.pixelColor(40, edge), Orange);
        QCOMPARE(image.pixelColor(40, 29 - edge), Orange);
        QCOMPARE(image.pixelColor(edge, 15), Orange);
        QCOMPARE(image.pixelColor(79 - edge, 15), Orange);
    }
    QVERIFY(isNear(image.pixelColor(10, 2), QColor(0x5a, 0x59, 0x59)));
    QVERIFY(isNear(image.pixelColor(10, 27), QColor(0x06, 0x06, 0x06)));
}

void TestOxMessageBox::buttonsHaveRoundedCorners()
{
    auto box = createBox(QMessageBox::Ok);
    box->show();
    const QPushButton* ok = button(box.get(), QMessageBox::Ok);
    const QRect place(ok->mapTo(box.get(), QPoint(0, 0)), ok->size());
    const QImage image = box->grab(place).toImage();
    QCOMPARE(image.pixelColor(0, 0), Grey);
    QCOMPARE(image.pixelColor(image.width() - 1, image.height() - 1), Grey);
    QCOMPARE(image.pixelColor(7, 0), Orange);
}

void TestOxMessageBox::pressedButtonKeepsItsColours()
{
    auto box = createBox(QMessageBox::Ok);
    box->show();
    QPushButton* ok = button(box.get(), QMessageBox::Ok);
    const QColor up = ok->grab().toImage().pixelColor(10, 15);
    ok->setDown(true);
    QCOMPARE(ok->grab().toImage().pixelColor(10, 15), up);
}

// --- long texts ---------------------------------------------------------------------------------

void TestOxMessageBox::shortTextIsNotWrapped()
{
    QString widest;
    const QFontMetrics metrics((QLabel().font()));
    while (metrics.horizontalAdvance(widest + QLatin1String(" word")) < ScreenWidth - 2 * 12) {
        widest += QLatin1String(" word");
    }
    auto box = createBox(QMessageBox::Ok, {}, widest);
    box->show();
    QVERIFY(!textLabel(box.get())->wordWrap());
    QCOMPARE(textLabel(box.get())->text(), widest);
    QVERIFY(textLabel(box.get())->width() >= metrics.horizontalAdvance(widest) + 2 * 12);
    QVERIFY(box->width() <= ScreenWidth);
}

void TestOxMessageBox::textWiderThanTheScreenIsWrapped_data()
{
    QTest::addColumn<QString>("longText");

    QTest::newRow("many words") << wordsWiderThanTheScreen();
    QTest::newRow("one word") << oneWordWiderThanTheScreen();
    QTest::newRow("one word among others")
        << QStringLiteral("Cannot open %1 because it is damaged").arg(oneWordWiderThanTheScreen());
    QTest::newRow("a path") << QStringLiteral("/media/some folder/pictures").repeated(20);
    QTest::newRow("letters beyond the basic plane")
        << QString::fromUtf8("\xf0\x9f\x98\x80").repeated(200);
    QTest::newRow("rich") << QStringLiteral("<b>Delete</b> ") + wordsWiderThanTheScreen();
    QTest::newRow("one long line among short ones")
        << QStringLiteral("short\n%1\nshort").arg(wordsWiderThanTheScreen());
}

void TestOxMessageBox::textWiderThanTheScreenIsWrapped()
{
    QFETCH(QString, longText);
    auto box = createBox(QMessageBox::Yes | QMessageBox::No, {}, longText);
    box->show();
    QVERIFY(textLabel(box.get())->wordWrap());
    QVERIFY(box->width() <= ScreenWidth);
    QVERIFY(box->height() <= ScreenHeight);
    QVERIFY(box->rect().contains(textLabel(box.get())->geometry()));
    QString shown = textLabel(box.get())->text();
    QCOMPARE(shown.remove(QChar(0x200b)), longText);
}

void TestOxMessageBox::wrappedTextIsShownToItsLastLine_data()
{
    textWiderThanTheScreenIsWrapped_data();
}

void TestOxMessageBox::wrappedTextIsShownToItsLastLine()
{
    QFETCH(QString, longText);
    // A title that makes the box wider than the text is what the text's height must survive.
    for (const QString& boxTitle : { title(), QStringLiteral("WIDE TITLE ").repeated(5) }) {
        OxMessageBox box(QMessageBox::Warning, boxTitle, longText, QMessageBox::Ok);
        box.show();
        const QLabel* label = textLabel(&box);
        QCOMPARE(label->height(), label->heightForWidth(label->width()));
        QVERIFY(label->height() > 2 * label->fontMetrics().height());
        QVERIFY(label->minimumSizeHint().width() <= label->width());
    }
}

/// The highest text with which a box fits the screen is not taken for one that does not.
void TestOxMessageBox::textThatFitsTheScreenDoesNotScroll()
{
    int lines = 1;
    for (;; ++lines) {
        auto next = createBox(QMessageBox::Ok, {}, linesOf(lines + 1));
        if (scrollArea(next.get()) != nullptr) {
            break;
        }
        QVERIFY(lines < 100);
    }
    auto box = createBox(QMessageBox::Ok, {}, linesOf(lines));
    box->show();
    const QLabel* label = textLabel(box.get());
    QCOMPARE(label->parentWidget(), box.get());
    QCOMPARE(box->layout()->itemAt(1)->widget(), label);
    QVERIFY(box->height() <= ScreenHeight);
    QVERIFY(box->height() + label->fontMetrics().height() > ScreenHeight);
}

void TestOxMessageBox::textHigherThanTheScreenScrolls_data()
{
    QTest::addColumn<QString>("highText");
    QTest::newRow("short lines") << linesOf(60);
    QTest::newRow("lines as wide as the screen") << linesAsWideAsTheScreen(60);
    QTest::newRow("lines wider than the screen")
        << QStringList(20, wordsWiderThanTheScreen()).join(QLatin1Char('\n'));
    QTest::newRow("rich") << QStringLiteral("<b>line</b><br>").repeated(60);
}

void TestOxMessageBox::textHigherThanTheScreenScrolls()
{
    QFETCH(const QString, highText);
    auto box = createBox(QMessageBox::Yes | QMessageBox::No, {}, highText);
    box->show();

    QVERIFY(box->width() <= ScreenWidth);
    QCOMPARE(box->height(), ScreenHeight);
    const auto buttons = box->findChildren<QPushButton*>();
    for (const QPushButton* button : buttons) {
        QVERIFY(box->rect().contains(QRect(button->mapTo(box.get(), QPoint()), button->size())));
    }
    const QLabel* label = textLabel(box.get());
    const QScrollArea* area = scrollArea(box.get());
    QVERIFY(area != nullptr);
    QCOMPARE(area->widget(), label);
    QVERIFY(label->height() >= label->heightForWidth(label->width()));
    QCOMPARE(area->verticalScrollBar()->maximum(), label->height() - area->viewport()->height());
    QVERIFY(area->viewport()->width() >= label->width());
    QCOMPARE(area->width(), box->width());
    QVERIFY(area->verticalScrollBar()->isVisible());
    QCOMPARE(area->verticalScrollBar()->width(), 35);
    // The grey of the panel, between the lines.
    QCOMPARE(box->grab().toImage().pixelColor(area->mapTo(box.get(), QPoint(2, 2))),
             QColor(0xf2, 0xf2, 0xf2));
}

void TestOxMessageBox::scrollingTextFollowsTheFinger_data()
{
    QTest::addColumn<QString>("highText");
    QTest::newRow("plain") << linesOf(60);
    QTest::newRow("rich") << QStringLiteral("<a href='x'>line</a><br>").repeated(60);
}

void TestOxMessageBox::scrollingTextFollowsTheFinger()
{
    QFETCH(const QString, highText);
    auto box = createBox(QMessageBox::Ok, {}, highText);
    box->show();
    const QScrollArea* area = scrollArea(box.get());
    Finger finger;
    finger.press(area->viewport());
    finger.moveBy({ 0, -70 });
    QCOMPARE(area->verticalScrollBar()->value(), 70);
    finger.moveBy({ 0, 30 });
    finger.release();
    QCOMPARE(area->verticalScrollBar()->value(), 40);
    QVERIFY(box->isVisible());
}

void TestOxMessageBox::scrollingTextFollowsTheKeys()
{
    auto box = createBox(QMessageBox::Ok, {}, linesOf(60));
    box->show();
    QScrollArea* area = scrollArea(box.get());
    area->setFocus(Qt::TabFocusReason);
    QTest::keyClick(area, Qt::Key_PageDown);
    QVERIFY(area->verticalScrollBar()->value() > 0);
    QVERIFY(box->isVisible());
}

void TestOxMessageBox::wordsThatFitAreNotTakenApart()
{
    auto box = createBox(QMessageBox::Ok, {}, wordsWiderThanTheScreen());
    QCOMPARE(textLabel(box.get())->text(), wordsWiderThanTheScreen());
}

void TestOxMessageBox::boxWithSeveralLinesKeepsThem()
{
    const QString lines = QStringLiteral("A file with this name exists already.\nReplace it?");
    auto box = createBox(QMessageBox::Ok, {}, lines);
    box->show();
    const QLabel* label = textLabel(box.get());
    QVERIFY(!label->wordWrap());
    QVERIFY(label->height() >= 2 * label->fontMetrics().height() + 2 * 12);
}

UW_TEST_MAIN(TestOxMessageBox)

#include "tst_oxmessagebox.moc"
