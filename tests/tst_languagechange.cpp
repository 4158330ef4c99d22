// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// What happens to widgets that are alive when the language changes: their own texts follow, those
// of the application stay.

#include "clickablecombobox.h"
#include "clickablelabel.h"
#include "containertitlebar.h"
#include "databasesavewidget.h"
#include "databaseselectordialog.h"
#include "dragscrolltableview.h"
#include "lockwidget.h"
#include "multiitemselectiondialog.h"
#include "multiitemselectionwidget.h"
#include "navigationbar.h"
#include "oxcollapsiblewidgetcontainer.h"
#include "oxfiledialog.h"
#include "oxhelpwindow.h"
#include "oxinfowidget.h"
#include "oxinputdialog.h"
#include "oxmessagebox.h"
#include "oxtitlebar.h"
#include "oxtranslation.h"
#include "support/modaldialog.h"
#include "support/test.h"
#include "support/visibletexts.h"
#include "symbolslineedit.h"
#include "symbolsmenu.h"
#include "toolboxcontainer.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>

#include <functional>
#include <memory>

using Make = std::function<std::unique_ptr<QWidget>()>;
Q_DECLARE_METATYPE(Make)

namespace {

void speak(const char* language)
{
    QVERIFY(OxTranslation::install(QLocale(QLatin1String(language))));
    settleLanguageChange();
}

std::unique_ptr<QWidget> createFileDialog(OxFileDialog::DialogState state)
{
    OxFileDialog::OxFileDialogArgs args;
    args.fileMode =
        state == OxFileDialog::SelectFolder ? QFileDialog::Directory : QFileDialog::ExistingFile;
    return std::make_unique<OxFileDialog>(nullptr, args, state);
}

std::unique_ptr<QWidget> createNavigationBar(int records)
{
    auto bar = std::make_unique<NavigationBar>();
    bar->setRecordNumberSlot(records - 1);
    return bar;
}

std::unique_ptr<QWidget> createInfoWidget(const QString& later)
{
    auto panel = std::make_unique<OxInfoWidget>(QStringLiteral("1.0"));
    if (!later.isEmpty()) {
        panel->setVersionNumber(later);
    }
    return panel;
}

std::unique_ptr<QWidget> createToolBoxContainer()
{
    auto container = std::make_unique<ToolBoxContainer>();
    container->initialize(QSize(200, 200), QPoint());
    return container;
}

std::unique_ptr<QWidget> createInputDialog()
{
    auto dialog = std::make_unique<OxInputDialog>(nullptr, Qt::WindowFlags(),
                                                  QStringLiteral("Size"), QStringLiteral("Width"));
    dialog->setTextLayout(QStringLiteral("12"));
    return dialog;
}

template <typename Widget> Make plain()
{
    return [] {
        return std::make_unique<Widget>();
    };
}

template <typename Widget> Widget* only(QWidget& parent)
{
    const auto found = parent.findChildren<Widget*>();
    return found.size() == 1 ? found.constFirst() : nullptr;
}

QAbstractButton* buttonWith(const QWidget& parent, const QString& text)
{
    const auto buttons = parent.findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        if (button->text() == text) {
            return button;
        }
    }
    return nullptr;
}

} // namespace

class TestLanguageChange : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void theTextsOfAWidgetFollowTheLanguage_data();
    void theTextsOfAWidgetFollowTheLanguage();
    void aToolBoxContainerWithoutToolBoxTakesItCalmly();
    void aPlainFileDialogTakesItCalmly();

    void aTitleOfTheApplicationStays();
    void aSectionsTitleStays();
    void aPlaceholderOfTheApplicationStays();
    void aCaptionOfTheApplicationStays();
    void aMessageBoxKeepsTheTextsOfTheApplication();
    void aButtonThatIsAddedLaterKeepsItsText();
    void aSearchFieldKeepsTheNameOfTheApplication();
    void favouritesKeepTheirNames();
    void theFavouritesButtonKeepsItsMeaning();

    void theChosenCategoryOfAMenuStaysWithoutASignal();
    void theCategoryThatIsTypedStays();
    void allCategoriesStillMeansAll();

    void aDialogThatRunsFollowsTheLanguage();
    void theChosenOptionAndTheFontsFollow();
    void theFirstVersionAndALaterOneAreTwoTexts();
    void aChangeOfTheLayoutDirectionTurnsTheLinesOfTheAboutPanel();
};

void TestLanguageChange::cleanup()
{
    speak("en");
    Test::cleanup();
}

void TestLanguageChange::theTextsOfAWidgetFollowTheLanguage_data()
{
    QTest::addColumn<Make>("make");

    QTest::newRow("ContainerTitleBar") << plain<ContainerTitleBar>();
    QTest::newRow("DatabaseSaveWidget") << plain<DatabaseSaveWidget>();
    QTest::newRow("DatabaseSelectorDialog") << Make(
        [] { return std::make_unique<DatabaseSelectorDialog>(QStringLiteral("Customers")); });
    QTest::newRow("DragScrollTableView") << plain<DragScrollTableView>();
    QTest::newRow("LockWidget, grid") << plain<LockWidget>();
    QTest::newRow("LockWidget, row")
        << Make([] { return std::make_unique<LockWidget>(true, nullptr); });
    QTest::newRow("MultiItemSelectionDialog") << plain<MultiItemSelectionDialog>();
    QTest::newRow("MultiItemSelectionWidget") << plain<MultiItemSelectionWidget>();
    QTest::newRow("NavigationBar") << plain<NavigationBar>();
    for (const int records : { 0, 1, 2, 25 }) {
        QTest::addRow("NavigationBar, %d records", records)
            << Make([records] { return createNavigationBar(records); });
    }
    QTest::newRow("OxCollapsibleWidgetContainer") << plain<OxCollapsibleWidgetContainer>();
    QTest::newRow("OxFileDialog, open")
        << Make([] { return createFileDialog(OxFileDialog::OpenFile); });
    QTest::newRow("OxFileDialog, save")
        << Make([] { return createFileDialog(OxFileDialog::SaveFile); });
    QTest::newRow("OxFileDialog, folder")
        << Make([] { return createFileDialog(OxFileDialog::SelectFolder); });
    QTest::newRow("OxHelpWindow") << plain<OxHelpWindow>();
    QTest::newRow("OxInfoWidget") << Make([] { return createInfoWidget({}); });
    QTest::newRow("OxInfoWidget, later version")
        << Make([] { return createInfoWidget(QStringLiteral("2.0")); });
    QTest::newRow("OxInputDialog") << Make(createInputDialog);
    QTest::newRow("OxMessageBox") << Make([] {
        return std::make_unique<OxMessageBox>(QMessageBox::Question, QStringLiteral("DELETE"),
                                              QStringLiteral("Delete?"),
                                              QMessageBox::Yes | QMessageBox::Cancel);
    });
    QTest::newRow("OxTitleBar") << plain<OxTitleBar>();
    QTest::newRow("SymbolsLineEdit") << plain<SymbolsLineEdit>();
    QTest::newRow("SymbolsMenu") << plain<SymbolsMenu>();
    QTest::newRow("ToolBoxContainer") << Make(createToolBoxContainer);
}

void TestLanguageChange::theTextsOfAWidgetFollowTheLanguage()
{
    QFETCH(Make, make);
    const auto widget = make();
    const QStringList english = visibleTexts(*widget);
    QStringList previous = english;
    for (const char* language : { "de", "fr", "es", "ja", "ar" }) {
        speak(language);
        const QStringList texts = visibleTexts(*widget);
        QVERIFY2(texts != previous, language);
        QCOMPARE(texts, visibleTexts(*make()));
        previous = texts;
    }
    speak("en");
    QCOMPARE(visibleTexts(*widget), english);
}

void TestLanguageChange::aToolBoxContainerWithoutToolBoxTakesItCalmly()
{
    const ToolBoxContainer container;
    speak("de");
    QCOMPARE(container.getToolBox(), nullptr);
}

void TestLanguageChange::aPlainFileDialogTakesItCalmly()
{
    const OxFileDialog dialog(nullptr);
    speak("de");
    QCOMPARE(dialog.windowTitle(), QStringLiteral("File Dialog"));
}

void TestLanguageChange::aTitleOfTheApplicationStays()
{
    ContainerTitleBar bar(nullptr, QStringLiteral("Layers"));
    OxTitleBar small(nullptr, QString(), QStringLiteral("Close"));
    speak("de");
    QCOMPARE(only<QLabel>(bar)->text(), QStringLiteral("Layers"));
    QVERIFY(visibleTexts(small).join(QLatin1Char('\n')).contains(QStringLiteral("text: Close")));
}

void TestLanguageChange::aSectionsTitleStays()
{
    OxCollapsibleWidgetContainer section(nullptr, QStringLiteral("Placement"));
    speak("de");
    QCOMPARE(only<QLabel>(section)->text(), QStringLiteral("Placement"));
}

void TestLanguageChange::aPlaceholderOfTheApplicationStays()
{
    NavigationBar bar;
    bar.setSearchPlaceholder(QStringLiteral("Customer"));
    speak("de");
    QVERIFY(visibleTexts(bar).contains(QStringLiteral("OxLineEdit: placeholder: Customer")));
    bar.setSearchPlaceholder({}); // none is a choice, too
    speak("fr");
    QVERIFY(!visibleTexts(bar).join(QLatin1Char('\n')).contains(QStringLiteral("placeholder")));
}

void TestLanguageChange::aCaptionOfTheApplicationStays()
{
    OxFileDialog::OxFileDialogArgs args;
    args.caption = QStringLiteral("Export");
    args.fileMode = QFileDialog::ExistingFile;
    OxFileDialog dialog(nullptr, args, OxFileDialog::SaveFile);
    speak("de");
    QCOMPARE(only<ContainerTitleBar>(dialog)->findChild<QLabel*>()->text(),
             QStringLiteral("Export"));
    QVERIFY(buttonWith(dialog, QStringLiteral("Speichern")) != nullptr);
}

void TestLanguageChange::aMessageBoxKeepsTheTextsOfTheApplication()
{
    OxMessageBox box(QMessageBox::Question, QStringLiteral("SAVE"), QStringLiteral("Overwrite?"),
                     QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, nullptr,
                     Qt::WindowFlags(), { { QMessageBox::Yes, QStringLiteral("Overwrite") } });
    box.addButton(QStringLiteral("Cancel all"), QMessageBox::RejectRole);
    for (const char* language : { "de", "fr", "en", "de" }) {
        speak(language);
        QVERIFY(buttonWith(box, QStringLiteral("Overwrite")) != nullptr);
        QVERIFY(buttonWith(box, QStringLiteral("Cancel all")) != nullptr);
        QVERIFY(buttonWith(box, QStringLiteral("&Yes")) == nullptr);
    }
    QVERIFY(buttonWith(box, QStringLiteral("&Nein")) != nullptr);
    QVERIFY(buttonWith(box, QStringLiteral("Abbrechen")) != nullptr);
    QVERIFY(visibleTexts(box).contains(QStringLiteral("QLabel: text: Overwrite?")));
}

void TestLanguageChange::aButtonThatIsAddedLaterKeepsItsText()
{
    OxMessageBox box;
    box.addButton(QMessageBox::Ok)->setText(QStringLiteral("Go on"));
    box.addButton(QMessageBox::Cancel);
    speak("de");
    QVERIFY(buttonWith(box, QStringLiteral("Go on")) != nullptr);
    QVERIFY(buttonWith(box, QStringLiteral("Abbrechen")) != nullptr);
}

void TestLanguageChange::aSearchFieldKeepsTheNameOfTheApplication()
{
    SymbolsLineEdit field;
    field.setAccessibleName(QStringLiteral("Arrows"));
    speak("de");
    QCOMPARE(field.accessibleName(), QStringLiteral("Arrows"));
}

void TestLanguageChange::favouritesKeepTheirNames()
{
    const auto dialog = createFileDialog(OxFileDialog::OpenFile);
    const auto* favorites = only<QListWidget>(*dialog);
    QVERIFY(favorites != nullptr);
    const QString first = favorites->item(0)->text();
    QCOMPARE(first, QStringLiteral("Desktop"));
    speak("de");
    QCOMPARE(favorites->item(0)->text(), first);
}

void TestLanguageChange::theFavouritesButtonKeepsItsMeaning()
{
    const auto dialog = createFileDialog(OxFileDialog::OpenFile);
    QAbstractButton* button = buttonWith(*dialog, QStringLiteral("Add To Favorites"));
    QVERIFY(button != nullptr);
    auto* favorites = only<QListWidget>(*dialog);
    auto* folder = new QListWidgetItem(QStringLiteral("Labels"), favorites);
    folder->setData(Qt::UserRole, QDir::tempPath());
    favorites->setCurrentItem(folder);
    QCOMPARE(button->text(), QStringLiteral("Remove Favorite"));
    speak("de");
    QCOMPARE(button->text(), QStringLiteral("Favorit entfernen"));
}

void TestLanguageChange::theChosenCategoryOfAMenuStaysWithoutASignal()
{
    SymbolsMenu menu({ QStringLiteral("Recent") });
    auto* categories = only<ClickableComboBox>(menu);
    const int all = categories->count() - 1;
    for (const int chosen : { 0, all }) {
        categories->setCurrentIndex(chosen);
        const QSignalSpy index(categories, &QComboBox::currentIndexChanged);
        const QSignalSpy text(categories, &QComboBox::currentTextChanged);
        const QSignalSpy edit(categories, &QComboBox::editTextChanged);
        speak("de");
        QCOMPARE(categories->itemText(all), QStringLiteral("Alle Kategorien"));
        QCOMPARE(categories->currentIndex(), chosen);
        QCOMPARE(categories->currentText(), categories->itemText(chosen));
        QCOMPARE(index.count() + text.count() + edit.count(), 0);
        speak("en");
    }
}

void TestLanguageChange::theCategoryThatIsTypedStays()
{
    SymbolsMenu menu({ QStringLiteral("Recent") });
    auto* categories = only<ClickableComboBox>(menu);
    categories->setCurrentIndex(categories->count() - 1);
    categories->setEditText(QStringLiteral("Arr"));
    categories->lineEdit()->setCursorPosition(2);
    speak("de");
    QCOMPARE(categories->currentText(), QStringLiteral("Arr"));
    QCOMPARE(categories->lineEdit()->cursorPosition(), 2);
    // Whichever entry was chosen before.
    categories->setCurrentIndex(0);
    categories->setEditText(QStringLiteral("Box"));
    speak("fr");
    QCOMPARE(categories->currentText(), QStringLiteral("Box"));
    QCOMPARE(categories->lineEdit()->cursorPosition(), 3);
}

void TestLanguageChange::allCategoriesStillMeansAll()
{
    // The menu's text and the one that the store knows are two: a translation that tells them apart
    // would find nothing.
    for (const char* language : { "de", "fr", "es", "ja", "ar" }) {
        speak(language);
        QCOMPARE(QCoreApplication::translate("SymbolsMenu", "All Categories",
                                             "Categories header for showing all symbols."),
                 QCoreApplication::translate("SymbolDatabaseModel", "All Categories",
                                             "All database categories."));
    }
}

void TestLanguageChange::aDialogThatRunsFollowsTheLanguage()
{
    const int response = whileModal<QDialog>(&DatabaseSaveWidget::execWidget, [](QDialog* dialog) {
        QVERIFY(OxTranslation::install(QLocale(QLocale::German)));
        QTRY_VERIFY(buttonWith(*dialog, QStringLiteral("Abbrechen")) != nullptr);
        buttonWith(*dialog, QStringLiteral("Abbrechen"))->click();
    });
    QCOMPARE(response, 0);
}

void TestLanguageChange::theChosenOptionAndTheFontsFollow()
{
    DatabaseSaveWidget dialog;
    dialog.checkSaveAsRadio();
    dialog.accept();
    speak("de");
    QCOMPARE(dialog.getResponse(), 2);
    // A text that is too long for its line is smaller: each as in a dialog that is made now.
    const DatabaseSaveWidget fresh;
    const auto labels = dialog.findChildren<ClickableLabel*>();
    const auto freshLabels = fresh.findChildren<ClickableLabel*>();
    QCOMPARE(labels.size(), 4);
    QCOMPARE(labels.size(), freshLabels.size());
    for (int i = 0; i < labels.size(); ++i) {
        QCOMPARE(labels.at(i)->font().pointSizeF(), freshLabels.at(i)->font().pointSizeF());
    }
}

void TestLanguageChange::theFirstVersionAndALaterOneAreTwoTexts()
{
    OxInfoWidget panel(QStringLiteral("1.0"));
    speak("fr");
    QVERIFY(visibleTexts(panel).contains(QStringLiteral("QLabel: text: Version\u00a0: 1.0")));
    panel.setVersionNumber(QStringLiteral("2.0"));
    speak("es");
    QVERIFY(visibleTexts(panel).contains(QStringLiteral("QLabel: text: Versión: 2.0")));
}

void TestLanguageChange::aChangeOfTheLayoutDirectionTurnsTheLinesOfTheAboutPanel()
{
    const OxInfoWidget panel(QStringLiteral("1.0"));
    const auto labels = panel.findChildren<QLabel*>();
    const auto right = [&] {
        int count = 0;
        for (const QLabel* label : labels) {
            count += label->alignment().testFlag(Qt::AlignRight) ? 1 : 0;
        }
        return count;
    };
    QCOMPARE(right(), 0);
    speak("ar");
    QCOMPARE(right(), 4); // the line in Latin letters, too
    speak("de");
    QCOMPARE(right(), 0);
}

UW_TEST_MAIN(TestLanguageChange)

#include "tst_languagechange.moc"
