// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxinfowidget.h"

#include "applicationfont.h"
#include "containertitlebar.h"
#include "support/everythingtranslated.h"
#include "support/finger.h"
#include "support/longtranslation.h"
#include "support/modaldialog.h"
#include "support/test.h"
#include "support/translationrecorder.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

namespace {

QString version()
{
    return QStringLiteral("1.2.3");
}

ContainerTitleBar* titleBarOf(const OxInfoWidget& panel)
{
    return panel.findChild<ContainerTitleBar*>();
}

QGridLayout* gridOf(const OxInfoWidget& panel)
{
    return qobject_cast<QGridLayout*>(panel.layout()->itemAt(1)->layout());
}

template <typename Widget> Widget* inRow(const OxInfoWidget& panel, int row)
{
    QLayoutItem* item = gridOf(panel)->itemAtPosition(row, 0);
    return item != nullptr ? qobject_cast<Widget*>(item->widget()) : nullptr;
}

QPushButton* closeButtonOf(const OxInfoWidget& panel)
{
    return inRow<QPushButton>(panel, 7);
}

} // namespace

class TestOxInfoWidget : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedOxInfoWidget();
    void isAModalFramelessWindow();
    void insideAParentItIsNoWindow();
    void closingNeitherDeletesItNorQuits();
    void hasTheHousesIconAndTitle();
    void theSheetNamesThePanel();
    void theTitleIsAbout();
    void theHeadingNamesTheProductInLargeBoldLetters();
    void theProductsNameIsNotTranslated();
    void theSeparatorIsALightGreyLineInEveryColourGroup();
    void theVersionStandsInRowTwo();
    void anotherVersionReplacesTheFirst();
    void aVersionIsPlainText();
    void theContactHasFourShortLinesWithNumberAndAddress();
    void theNoticeIsOneLineAndNotTranslated();
    void theTextsHaveTheirComments();
    void theCloseButtonIsExact();
    void theLayoutsAreExact();
    void theRowsAreAligned_data();
    void theRowsAreAligned();
    void isAlways360Times300_data();
    void isAlways360Times300();
    void everyTextFits_data();
    void everyTextFits();
    void bothCloseButtonsHideIt_data();
    void bothCloseButtonsHideIt();
    void itsSignalIsNeverEmitted();
    void returnPressesClose();
    void isMirroredForLanguagesFromRightToLeft();
};

void TestOxInfoWidget::isNamedOxInfoWidget()
{
    QCOMPARE(OxInfoWidget(version()).objectName(), QStringLiteral("OxInfoWidget"));
}

void TestOxInfoWidget::isAModalFramelessWindow()
{
    const OxInfoWidget panel(version());
    QVERIFY(panel.isModal());
    QCOMPARE(panel.windowFlags(), Qt::FramelessWindowHint | Qt::Window);
}

void TestOxInfoWidget::insideAParentItIsNoWindow()
{
    QWidget parent;
    const OxInfoWidget panel(version(), &parent);
    QCOMPARE(panel.parentWidget(), &parent);
    QCOMPARE(panel.windowFlags(), Qt::FramelessWindowHint);
    QVERIFY(!panel.isWindow());
}

void TestOxInfoWidget::closingNeitherDeletesItNorQuits()
{
    const OxInfoWidget panel(version());
    QVERIFY(!panel.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!panel.testAttribute(Qt::WA_QuitOnClose));
}

void TestOxInfoWidget::hasTheHousesIconAndTitle()
{
    const EverythingTranslated translated;
    const OxInfoWidget panel(version());
    QCOMPARE(panel.windowTitle(), QStringLiteral("Sigilant PRO"));
    QVERIFY(!panel.windowIcon().pixmap(32).isNull());
    QCOMPARE(panel.windowIcon().pixmap(32).toImage(),
             QIcon(QStringLiteral(":/Icon/ApplicationIcons/popup.ico")).pixmap(32).toImage());
}

void TestOxInfoWidget::theSheetNamesThePanel()
{
    QCOMPARE(
        OxInfoWidget(version()).styleSheet(),
        QStringLiteral("#OxInfoWidget { background-color: #f2f2f2; border: 1px solid #fd7800; } "));
}

void TestOxInfoWidget::theTitleIsAbout()
{
    const OxInfoWidget panel(version());
    QCOMPARE(titleBarOf(panel)->findChild<QLabel*>()->text(), QStringLiteral("ABOUT"));
}

void TestOxInfoWidget::theHeadingNamesTheProductInLargeBoldLetters()
{
    const OxInfoWidget panel(version());
    QCOMPARE(inRow<QLabel>(panel, 0)->text(), QStringLiteral("About Sigilant PRO"));
    QCOMPARE(inRow<QLabel>(panel, 0)->font(), ApplicationFont::getWidgetFontLarge(true));
}

void TestOxInfoWidget::theProductsNameIsNotTranslated()
{
    const EverythingTranslated translated;
    const OxInfoWidget panel(version());
    QCOMPARE(inRow<QLabel>(panel, 0)->text(),
             EverythingTranslated::text() + QStringLiteral("Sigilant PRO"));
}

void TestOxInfoWidget::theSeparatorIsALightGreyLineInEveryColourGroup()
{
    const OxInfoWidget panel(version());
    const auto* line = inRow<QFrame>(panel, 1);
    QCOMPARE(line->frameShape(), QFrame::HLine);
    QCOMPARE(line->lineWidth(), 1);
    for (const auto group : { QPalette::Active, QPalette::Inactive, QPalette::Disabled }) {
        QCOMPARE(line->palette().color(group, QPalette::WindowText), QColor(198, 198, 198, 255));
    }
}

void TestOxInfoWidget::theVersionStandsInRowTwo()
{
    const OxInfoWidget panel(version());
    QCOMPARE(inRow<QLabel>(panel, 2)->text(), QStringLiteral("Version: 1.2.3"));
}

void TestOxInfoWidget::anotherVersionReplacesTheFirst()
{
    OxInfoWidget panel(version());
    panel.setVersionNumber(QStringLiteral("2.0"));
    QCOMPARE(inRow<QLabel>(panel, 2)->text(), QStringLiteral("Version: 2.0"));
}

void TestOxInfoWidget::aVersionIsPlainText()
{
    const OxInfoWidget panel(QStringLiteral("<b>1</b>"));
    QCOMPARE(inRow<QLabel>(panel, 2)->textFormat(), Qt::PlainText);
}

void TestOxInfoWidget::theContactHasFourShortLinesWithNumberAndAddress()
{
    const OxInfoWidget panel(version());
    const QString contact = inRow<QLabel>(panel, 3)->text();
    QCOMPARE(contact.split(QLatin1Char('\n')).count(), 4);
    QVERIFY(contact.contains(QStringLiteral("555-0142")));
    QVERIFY(contact.contains(QStringLiteral("support@example.com")));

    const EverythingTranslated translated;
    const OxInfoWidget other(version());
    QCOMPARE(inRow<QLabel>(other, 3)->text(), EverythingTranslated::text());
}

void TestOxInfoWidget::theNoticeIsOneLineAndNotTranslated()
{
    const EverythingTranslated translated;
    const OxInfoWidget panel(version());
    QCOMPARE(inRow<QLabel>(panel, 6)->text(),
             QString::fromUtf8("Copyright \xC2\xA9 2026 Sigilant PRO"));
}

void TestOxInfoWidget::theCloseButtonIsExact()
{
    const OxInfoWidget panel(version());
    const auto* button = closeButtonOf(panel);
    QCOMPARE(button->text(), QStringLiteral("Close"));
    QCOMPARE(button->styleSheet(),
             QStringLiteral("QPushButton { border: 1px solid #fd7800; color: white; font: bold; "
                            "\nbackground-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
                            "stop: 0 #5a5959, stop: 1 #060606);\nborder-radius: 6px; outline: 0;\n"
                            "min-height: 35px; }\nQPushButton:pressed { background-color: "
                            "#fd7800; color: white; }\n"));
    QCOMPARE(button->maximumSize(), QSize(180, 35));
    QCOMPARE(button->minimumSize(), QSize(180, 35));
}

void TestOxInfoWidget::theLayoutsAreExact()
{
    const OxInfoWidget panel(version());
    const auto* outer = qobject_cast<QVBoxLayout*>(panel.layout());
    QVERIFY(outer != nullptr);
    QCOMPARE(outer->contentsMargins(), QMargins());
    QCOMPARE(outer->spacing(), 10);
    QCOMPARE(outer->count(), 2);
    QCOMPARE(outer->itemAt(0)->widget(), titleBarOf(panel));
    QCOMPARE(outer->itemAt(0)->alignment(), Qt::Alignment());
    QCOMPARE(outer->stretch(0), 0);
    QCOMPARE(outer->stretch(1), 0);

    const QGridLayout* grid = gridOf(panel);
    QVERIFY(grid != nullptr);
    QCOMPARE(grid->contentsMargins(), QMargins(8, 8, 8, 8));
    QCOMPARE(grid->columnCount(), 1);
    QCOMPARE(grid->rowCount(), 8);
    QCOMPARE(grid->count(), 6);
    QCOMPARE(grid->itemAtPosition(4, 0), nullptr);
    QCOMPARE(grid->itemAtPosition(5, 0), nullptr);
}

void TestOxInfoWidget::theRowsAreAligned_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<Qt::Alignment>("alignment");

    QTest::newRow("heading") << 0 << Qt::Alignment(Qt::AlignLeft);
    QTest::newRow("separator") << 1 << Qt::Alignment();
    QTest::newRow("version") << 2 << Qt::Alignment(Qt::AlignLeft);
    QTest::newRow("contact") << 3 << Qt::Alignment(Qt::AlignLeft);
    QTest::newRow("notice") << 6 << Qt::Alignment(Qt::AlignLeft);
    QTest::newRow("close button") << 7 << Qt::Alignment(Qt::AlignRight);
}

void TestOxInfoWidget::theRowsAreAligned()
{
    QFETCH(int, row);
    QFETCH(Qt::Alignment, alignment);
    const OxInfoWidget panel(version());
    QCOMPARE(gridOf(panel)->itemAtPosition(row, 0)->alignment(), alignment);
}

void TestOxInfoWidget::isAlways360Times300_data()
{
    QTest::addColumn<bool>("longTexts");
    QTest::addColumn<QString>("version");

    QTest::newRow("as it is") << false << version();
    QTest::newRow("translations half as long again") << true << version();
    QTest::newRow("a long version") << true << version().repeated(50);
}

void TestOxInfoWidget::isAlways360Times300()
{
    QFETCH(bool, longTexts);
    QFETCH(QString, version);
    const auto translation = longTexts ? std::make_unique<LongTranslation>() : nullptr;
    OxInfoWidget panel(version);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    QCOMPARE(panel.size(), QSize(360, 300));
    panel.resize(500, 500);
    QCOMPARE(panel.size(), QSize(360, 300));
}

void TestOxInfoWidget::everyTextFits_data()
{
    QTest::addColumn<bool>("longTexts");

    QTest::newRow("as it is") << false;
    QTest::newRow("translations half as long again") << true;
}

void TestOxInfoWidget::everyTextFits()
{
    QFETCH(bool, longTexts);
    const auto translation = longTexts ? std::make_unique<LongTranslation>() : nullptr;
    OxInfoWidget panel(version());
    panel.setFont(ApplicationFont::getWidgetFont());
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    QCOMPARE(textsThatDoNotFit(panel), QString());
    for (int row = 0; row < 7; ++row) {
        const auto* upper = inRow<QWidget>(panel, row);
        for (int below = row + 1; upper != nullptr && below <= 7; ++below) {
            const auto* lower = inRow<QWidget>(panel, below);
            QVERIFY(lower == nullptr || upper->geometry().bottom() < lower->geometry().top());
        }
    }
}

void TestOxInfoWidget::bothCloseButtonsHideIt_data()
{
    QTest::addColumn<bool>("inTheTitleBar");

    QTest::newRow("Close") << false;
    QTest::newRow("close button of the title bar") << true;
}

void TestOxInfoWidget::bothCloseButtonsHideIt()
{
    QFETCH(bool, inTheTitleBar);
    OxInfoWidget panel(version());
    QSignalSpy finished(&panel, &QDialog::finished);

    const int result = whileModal<OxInfoWidget>(
        [&panel] { return panel.exec(); },
        [inTheTitleBar](OxInfoWidget* shown) {
            Finger().tap(inTheTitleBar ? titleBarOf(*shown)->findChild<QPushButton*>()
                                       : closeButtonOf(*shown));
        });

    QCOMPARE(result, 0);
    QVERIFY(!panel.isVisible());
    QCOMPARE(finished.count(), 0);
    panel.show();
    QVERIFY(panel.isVisible());
}

void TestOxInfoWidget::itsSignalIsNeverEmitted()
{
    OxInfoWidget panel(version());
    QSignalSpy lost(&panel, &OxInfoWidget::focusLost);
    QVERIFY(lost.isValid());
    panel.show();
    panel.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&panel));
    panel.setFocus();
    closeButtonOf(panel)->setFocus();
    Finger().tap(closeButtonOf(panel));
    QCOMPARE(lost.count(), 0);
}

void TestOxInfoWidget::returnPressesClose()
{
    OxInfoWidget panel(version());
    whileModal<OxInfoWidget>(
        [&panel] { panel.exec(); },
        [](OxInfoWidget* shown) { QTest::keyClick(shown->windowHandle(), Qt::Key_Return); });
    QVERIFY(!panel.isVisible());
}

void TestOxInfoWidget::isMirroredForLanguagesFromRightToLeft()
{
    OxInfoWidget panel(version());
    panel.setLayoutDirection(Qt::RightToLeft);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    QCOMPARE(closeButtonOf(panel)->geometry().left(), 8);
    QCOMPARE(inRow<QLabel>(panel, 2)->geometry().right(), 360 - 8 - 1);
}

void TestOxInfoWidget::theTextsHaveTheirComments()
{
    const TranslationRecorder recorder("OxInfoWidget");
    OxInfoWidget panel(version());
    QStringList texts = recorder.texts();
    texts.replaceInStrings(inRow<QLabel>(panel, 3)->text(), QStringLiteral("(contact)"));
    texts.sort();
    QCOMPARE(texts.join(QLatin1Char('\n')),
             QStringLiteral(
                 "(contact) / Contact information for users that need help with the application. "
                 "The backslash n characters are newlines and should be ignored.\n"
                 "ABOUT / Section header for displaying information about the application.\n"
                 "About  / Label for displaying information about the application.\n"
                 "Close / Button text to close the About window.\n"
                 "Version:  / Label that displays the application version"));

    panel.setVersionNumber(QStringLiteral("2.0"));
    QVERIFY(recorder.texts().contains(QStringLiteral("Version:  / ")));
}

UW_TEST_MAIN(TestOxInfoWidget)

#include "tst_oxinfowidget.moc"
