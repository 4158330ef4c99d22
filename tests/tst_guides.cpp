// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// The code of the guides does what they say.

#include "docs/snippets/form.h"
#include "docs/snippets/formpage.h"
#include "docs/snippets/launch.h"
#include "docs/snippets/look.h"
#include "docs/snippets/mounts.h"
#include "docs/snippets/platform.h"
#include "docs/snippets/symbols.h"
#include "docs/snippets/touch.h"
#include "docs/snippets/translating.h"

#include "applicationfont.h"
#include "containertitlebar.h"
#include "dragscrolllistwidget.h"
#include "look/sheets.h"
#include "oxhelpwindow.h"
#include "oxlineedit.h"
#include "oxmessagebox.h"
#include "oxspinbox.h"
#include "oxtranslation.h"
#include "oxtransparentcontainer.h"
#include "sharedconstants.h"
#include "support/everythingtranslated.h"
#include "support/filedialoguser.h"
#include "support/finger.h"
#include "support/modaldialog.h"
#include "support/test.h"
#include "symboldatabasemodel.h"
#include "symboldatabasewidget.h"
#include "symbolsmenu.h"

#include <QDataStream>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QLoggingCategory>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSet>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStyle>

class TestGuides : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theFieldSaysWhenItIsLeft();

    void theTableOfColoursIsThePalette();
    void theButtonsSheetIsTheHouses();
    void theStyleIsTheApplications();
    void aHeadingIsLargeAndBold();
    void theDialogChangesTheSpacingWhenItIsDone();
    void theDialogChangesNothingWhenItIsClosed();
    void theQuestionDeletesAfterYesAlone_data();
    void theQuestionDeletesAfterYesAlone();
    void thePanelEndsTheDimmingWhenItIsClosed();

    void aTapOnTheListShowsTheLayer();
    void aDragScrollsTheListAndTapsNothing();
    void whatWasTypedIsStoredWhenTheFieldIsLeft();
    void enterStaysWithTheSearchField();
    void theIconButtonHasAFingersSizeAndAName();

    void theLibraryIsUpdatedFromTheFolder();
    void anUpdateTellsWhatFailed();
    void thePickedSymbolIsInserted();
    void anImportedSymbolIsTheirOwn();
    void theMenuInsertsTheTappedSymbol();

    void theDialogListsTheMediaThatAreAnnounced();
    void dialogsThatAskedBeforeAreToldToo();
    void aTappedManualIsLaunched();
    void onlyManualsAreLaunched_data();
    void onlyManualsAreLaunched();

    void theFormsFieldIsStoredWhenItIsLeft();
    void thePersonsLanguageIsSpoken();
    void aChangeOfLanguageReachesThePage();

    void fontsHaveTheDevicesSizes();
    void theLogIsCollected();
    void theRulesSilenceDebugLines();
};

namespace {

QPushButton* buttonCalled(const QWidget* window, const QString& text)
{
    const auto buttons = window->findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        if (button->text().remove(QLatin1Char('&')) == text) {
            return button;
        }
    }
    return nullptr;
}

QPushButton* closeButtonOf(const QWidget* window)
{
    return window->findChild<ContainerTitleBar*>()->findChild<QPushButton*>();
}

QWidget* childCalled(const QWidget* window, const QString& accessibleName)
{
    const auto children = window->findChildren<QWidget*>();
    for (QWidget* child : children) {
        if (child->accessibleName() == accessibleName) {
            return child;
        }
    }
    return nullptr;
}

void showActive(QWidget* window)
{
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window));
}

QStringList coloursIn(const QString& path, const QRegularExpression& line)
{
    QFile file(path);
    QStringList colours;
    if (file.open(QIODevice::ReadOnly)) {
        auto matches = line.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext()) {
            colours.append(matches.next().captured(1).toLower());
        }
    }
    colours.sort();
    colours.removeDuplicates();
    return colours;
}

/// The product's library, made of the drawings that come with the gallery.
QString productLibrary()
{
    const QString path = DatabasesPath + QStringLiteral("symbols.db");
    QDir().mkpath(DatabasesPath);
    QFile::remove(path);
    return updateLibrary(path, QStringLiteral(SYMBOLS_FOLDER)) ? path : QString();
}

QString ownLibrary()
{
    return HomeFolderPath + QStringLiteral("databases/userSymbols.db");
}

QByteArray launchData(const QString& path)
{
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream << path;
    return data;
}

void makeFile(const QString& path)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

} // namespace

void TestGuides::theFieldSaysWhenItIsLeft()
{
    Form form;
    showActive(&form);
    auto* field = form.findChild<OxLineEdit*>();
    field->setFocus();
    QVERIFY(!form.isStored());
    field->clearFocus();
    QVERIFY(form.isStored());
}

void TestGuides::theTableOfColoursIsThePalette()
{
    static const QRegularExpression row(QStringLiteral("\\| `(#[0-9a-f]{6})` \\|"));
    static const QRegularExpression constant(QStringLiteral("define \\w+ \"(#\\w{6})\""));
    const QString project = QStringLiteral(PROJECT_FOLDER);
    const QStringList table = coloursIn(project + QStringLiteral("/docs/guides/look.md"), row);
    QVERIFY(table.count() > 10);
    QCOMPARE(table, coloursIn(project + QStringLiteral("/look/palette.h"), constant));
}

void TestGuides::theButtonsSheetIsTheHouses()
{
    QCOMPARE(houseButton(), Look::gradientButton());
}

void TestGuides::theStyleIsTheApplications()
{
    const QFont before = QApplication::font();
    prepareLook();
    QCOMPARE(QApplication::font().pointSize(), ApplicationFont::sizes().normal);
    QCOMPARE(QApplication::style()->metaObject()->className(), "QProxyStyle");
    QApplication::setFont(before);
}

void TestGuides::aHeadingIsLargeAndBold()
{
    QWidget page;
    const QLabel* heading = createHeading(QStringLiteral("Layers"), &page);
    QCOMPARE(heading->font().pointSize(), ApplicationFont::sizes().large);
    QVERIFY(heading->font().bold());
}

void TestGuides::theDialogChangesTheSpacingWhenItIsDone()
{
    GridPage page;
    whileModal<QDialog>([&page] { page.editSpacing(); },
                        [](QDialog* dialog) {
                            QCOMPARE(dialog->findChild<OxSpinBox*>()->value(), 10);
                            dialog->findChild<OxSpinBox*>()->setValue(25);
                            Finger().tap(buttonCalled(dialog, QStringLiteral("Done")));
                        });
    QCOMPARE(page.spacing(), 25);
}

void TestGuides::theDialogChangesNothingWhenItIsClosed()
{
    GridPage page;
    whileModal<QDialog>([&page] { page.editSpacing(); },
                        [](QDialog* dialog) {
                            dialog->findChild<OxSpinBox*>()->setValue(25);
                            Finger().tap(closeButtonOf(dialog));
                        });
    QCOMPARE(page.spacing(), 10);
}

void TestGuides::theQuestionDeletesAfterYesAlone_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("deleted");
    QTest::newRow("yes") << QStringLiteral("Yes") << 1;
    QTest::newRow("no") << QStringLiteral("No") << 0;
}

void TestGuides::theQuestionDeletesAfterYesAlone()
{
    QFETCH(const QString, button);
    GridPage page;
    const QSignalSpy deleted(&page, &GridPage::layerDeleted);
    whileModal<QDialog>([&page] { page.deleteLayer(); },
                        [&button](QDialog* dialog) { Finger().tap(buttonCalled(dialog, button)); });
    QTEST(int(deleted.count()), "deleted");
}

void TestGuides::thePanelEndsTheDimmingWhenItIsClosed()
{
    GridPage page;
    page.showLayers();
    LayerPanel* panel = nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        if (qobject_cast<const OxTransparentContainer*>(window) != nullptr) {
            panel = window->findChild<LayerPanel*>();
        }
    }
    if (panel == nullptr) {
        QFAIL("no container shows the panel");
    }
    QVERIFY(panel->isVisible());
    const QPointer<QWidget> container = panel->window();
    Finger().tap(closeButtonOf(panel));
    QTRY_VERIFY(container == nullptr);
}

void TestGuides::aTapOnTheListShowsTheLayer()
{
    LayerPage page;
    showActive(&page);
    auto* list = page.findChild<DragScrollListWidget*>();
    QVERIFY(list->visualItemRect(list->item(0)).height() >= 35);
    Finger().tap(list->viewport(), list->visualItemRect(list->item(1)).center());
    QCOMPARE(page.shownLayer(), QStringLiteral("Layer 2"));
}

void TestGuides::aDragScrollsTheListAndTapsNothing()
{
    LayerPage page;
    page.resize(ScreenSize);
    showActive(&page);
    auto* list = page.findChild<DragScrollListWidget*>();
    Finger finger;
    finger.press(list->viewport(), list->visualItemRect(list->item(2)).center());
    finger.moveBy({ 0, -30 });
    finger.moveBy({ 0, -30 });
    finger.release();
    QVERIFY(list->verticalScrollBar()->value() > 0);
    QCOMPARE(page.shownLayer(), QString());
}

void TestGuides::whatWasTypedIsStoredWhenTheFieldIsLeft()
{
    LayerPage page;
    showActive(&page);
    QWidget* name = childCalled(&page, QStringLiteral("Name of the layer"));
    name->setFocus();
    QTest::keyClicks(name, QStringLiteral("Sky"));
    QCOMPARE(page.storedName(), QString());
    page.findChild<DragScrollListWidget*>()->setFocus();
    QCOMPARE(page.storedName(), QStringLiteral("Sky"));
}

void TestGuides::enterStaysWithTheSearchField()
{
    QDialog dialog;
    auto* page = new LayerPage(&dialog);
    QPushButton button(&dialog);
    button.setDefault(true);
    const QSignalSpy pressed(&button, &QPushButton::clicked);
    showActive(&dialog);
    QWidget* search = childCalled(page, QStringLiteral("Search layers"));
    search->setFocus();
    QTest::keyClicks(search, QStringLiteral("sky"));
    QTest::keyClick(search, Qt::Key_Return);
    QCOMPARE(page->searchedText(), QStringLiteral("sky"));
    QCOMPARE(pressed.count(), 0);

    // As any other field would have it:
    QWidget* name = childCalled(page, QStringLiteral("Name of the layer"));
    name->setFocus();
    QTest::keyClick(name, Qt::Key_Return);
    QCOMPARE(pressed.count(), 1);
}

void TestGuides::theIconButtonHasAFingersSizeAndAName()
{
    LayerPage page;
    showActive(&page);
    auto* lock = qobject_cast<QPushButton*>(childCalled(&page, QStringLiteral("Lock")));
    QCOMPARE(lock->size(), QSize(35, 35));
    Finger finger;
    finger.press(lock);
    QVERIFY(lock->graphicsEffect() != nullptr);
    finger.release();
    QVERIFY(lock->graphicsEffect() == nullptr);
}

void TestGuides::theLibraryIsUpdatedFromTheFolder()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("symbols.db"));
    QStringList failed;
    QVERIFY(updateLibrary(path, QStringLiteral(SYMBOLS_FOLDER), &failed));
    QCOMPARE(failed, QStringList());
    SymbolDatabaseModel library;
    library.setDatabasePath(path);
    QCOMPARE(library.categories().count(), 6);
    // A second time there is nothing new.
    QVERIFY(updateLibrary(path, QStringLiteral(SYMBOLS_FOLDER), &failed));
    QCOMPARE(library.categories().count(), 6);
}

void TestGuides::anUpdateTellsWhatFailed()
{
    const QTemporaryDir folder;
    makeFile(folder.filePath(QStringLiteral("drawings/Arrows/empty.svg")));
    QStringList failed;
    QVERIFY(!updateLibrary(folder.filePath(QStringLiteral("symbols.db")),
                           folder.filePath(QStringLiteral("drawings")), &failed));
    QCOMPARE(failed, QStringList { QStringLiteral("Arrows/empty.svg") });
}

void TestGuides::thePickedSymbolIsInserted()
{
    QVERIFY(!productLibrary().isEmpty());
    SymbolPage page;
    whileModal<SymbolDatabaseWidget>([&page] { page.insertSymbol(); },
                                     [](SymbolDatabaseWidget* browser) {
                                         auto* view = browser->findChild<QListView*>();
                                         QTRY_VERIFY(view->model()->rowCount() > 0);
                                         browser->onDoubleClicked(view->model()->index(0, 0));
                                         // A tap selects before it is doubled.
                                         const_cast<QListView*>(view)->setCurrentIndex(
                                             view->model()->index(0, 0));
                                         browser->acceptSlot();
                                     });
    QVERIFY(page.inserted().contains("<svg"));
}

void TestGuides::anImportedSymbolIsTheirOwn()
{
    const FileDialogHome home;
    QVERIFY(QFile::copy(QStringLiteral(SYMBOLS_FOLDER "/Arrows/arrow-up.svg"),
                        home.path(QStringLiteral("mine.svg"))));
    QDir(HomeFolderPath).removeRecursively();
    SymbolPage page;
    whileModal<OxFileDialog>([&page] { page.importSymbol(); },
                             [](OxFileDialog* dialog) {
                                 const FileDialogUser user(dialog);
                                 user.tapFile(QStringLiteral("mine.svg"));
                                 Finger().tap(user.accept);
                             });
    SymbolDatabaseModel own;
    own.setDatabasePath(ownLibrary());
    QCOMPARE(own.categories(), QStringList { QStringLiteral("USER") });
    QVERIFY(own.getDataFromSymbolName(QStringLiteral("mine")).contains("<svg"));
}

void TestGuides::theMenuInsertsTheTappedSymbol()
{
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QVERIFY(updateLibrary(folder.filePath(QStringLiteral("symbols.db")),
                          QStringLiteral(SYMBOLS_FOLDER)));
    QVERIFY(QDir::setCurrent(folder.path()));
    SymbolPage page;
    SymbolsMenu* menu = page.createMenu();
    auto* list = menu->findChild<QListView*>();
    menu->searchUpdate();
    QVERIFY(list->model()->rowCount() > 0);
    menu->symbolSelection(list->model()->index(0, 0));
    QVERIFY(page.inserted().contains("<svg"));
    QVERIFY(QDir::setCurrent(before));
}

void TestGuides::theDialogListsTheMediaThatAreAnnounced()
{
    const FileDialogHome home;
    MediaAnnouncer announcer;
    announcer.add(QStringLiteral("/media/CARD"));
    whileModal<OxFileDialog>(
        [] { return OxFileDialog::getOpenFileName(nullptr); },
        [&announcer](OxFileDialog* dialog) {
            const FileDialogUser user(dialog);
            QTRY_VERIFY(user.favoriteNames().contains(QStringLiteral("CARD")));
            announcer.add(QStringLiteral("/media/STICK"));
            QTRY_VERIFY(user.favoriteNames().contains(QStringLiteral("STICK")));
            announcer.remove(QStringLiteral("/media/CARD"));
            QTRY_VERIFY(!user.favoriteNames().contains(QStringLiteral("CARD")));
            QVERIFY(user.favoriteNames().contains(QStringLiteral("STICK")));
            dialog->reject();
        });
}

void TestGuides::dialogsThatAskedBeforeAreToldToo()
{
    const QCopChannel dialogs(QStringLiteral("OxWindowManager/Mounts"));
    QSignalSpy told(&dialogs, &QCopChannel::received);
    const MediaAnnouncer announcer;
    QTRY_COMPARE(told.count(), 1);
    QCOMPARE(told.constFirst().constFirst().toString(), QStringLiteral("mounts"));
}

void TestGuides::aTappedManualIsLaunched()
{
    const QString manual = QStringLiteral("/Home/Manuals/Editor/Printing/Colours.pdf");
    makeFile(manual);
    const ManualLauncher launcher;
    QSignalSpy requested(&launcher, &ManualLauncher::manualRequested);
    OxHelpWindow help;
    fillHelp(&help);
    showActive(&help);
    auto* list = help.findChild<QListWidget*>(QStringLiteral("PDFHelpListWidget"));
    const auto items = list->findItems(QStringLiteral("Colours"), Qt::MatchContains);
    QCOMPARE(items.count(), 1);
    Finger().tap(list->viewport(), list->visualItemRect(items.constFirst()).center());
    QTRY_COMPARE(requested.count(), 1);
    QCOMPARE(requested.constFirst().constFirst().toString(), manual);
}

void TestGuides::onlyManualsAreLaunched_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("another message") << QStringLiteral("raise") << QByteArray();
    QTest::newRow("no data") << QStringLiteral("launch") << QByteArray();
    QTest::newRow("no such file") << QStringLiteral("launch")
                                  << launchData(QStringLiteral("/Home/nothing.pdf"));
    QTest::newRow("a program") << QStringLiteral("launch") << launchData(QStringLiteral("/bin/sh"));
}

void TestGuides::onlyManualsAreLaunched()
{
    QFETCH(const QString, message);
    QFETCH(const QByteArray, data);
    const QString manual = QStringLiteral("/Home/Manuals/Editor/Setup.PDF");
    makeFile(manual);
    const ManualLauncher launcher;
    QSignalSpy requested(&launcher, &ManualLauncher::manualRequested);
    QVERIFY(QCopChannel::send(QStringLiteral("OxHomeInstance"), message, data));
    QVERIFY(QCopChannel::send(QStringLiteral("OxHomeInstance"), QStringLiteral("launch"),
                              launchData(manual)));
    QTRY_VERIFY(!requested.isEmpty());
    QCOMPARE(requested.count(), 1); // that of the manual, which came last
    QCOMPARE(requested.constFirst().constFirst().toString(), manual);
}

void TestGuides::theFormsFieldIsStoredWhenItIsLeft()
{
    FormPage page;
    showActive(&page);
    QVERIFY(page.findChild<ContainerTitleBar*>() != nullptr);
    auto* name = page.findChild<OxLineEdit*>();
    name->setFocus();
    QTest::keyClicks(name, QStringLiteral("Sky"));
    name->clearFocus();
    QCOMPARE(page.name(), QStringLiteral("Sky"));
}

void TestGuides::thePersonsLanguageIsSpoken()
{
    QLocale::setDefault(QLocale(QLocale::German));
    installPersonsLanguage();
    ContainerTitleBar bar;
    const QString name = bar.findChild<QPushButton*>()->accessibleName();
    QCOMPARE(name, TRANSLATED ? QStringLiteral("Schließen") : QStringLiteral("Close"));
    QLocale::setDefault(QLocale::c());
    OxTranslation::install(QLocale(QLocale::English));
}

void TestGuides::aChangeOfLanguageReachesThePage()
{
    SettingsPage page;
    ContainerTitleBar bar;
    const auto* close = bar.findChild<QPushButton*>();
    QCOMPARE(page.label()->text(), QStringLiteral("Language"));

    page.setLanguage(QStringLiteral("de"));
    QCOMPARE(QLocale().language(), QLocale::German);
    QTRY_COMPARE(close->accessibleName(),
                 TRANSLATED ? QStringLiteral("Schließen") : QStringLiteral("Close"));
    {
        const EverythingTranslated application;
        QTRY_COMPARE(page.label()->text(), EverythingTranslated::text());
    }
    page.setLanguage(QStringLiteral("en"));
    QTRY_COMPARE(close->accessibleName(), QStringLiteral("Close"));
    QTRY_COMPARE(page.label()->text(), QStringLiteral("Language"));
    QLocale::setDefault(QLocale::c());
}

void TestGuides::fontsHaveTheDevicesSizes()
{
    const ApplicationFont::Sizes before = ApplicationFont::sizes();
    setDeviceFontSizes();
    QCOMPARE(ApplicationFont::getWidgetFont().pointSize(), 14);
    QCOMPARE(ApplicationFont::getWidgetFontLarge().pointSize(), 17);
    QCOMPARE(ApplicationFont::getWidgetFontSmall().pointSize(), before.small);
    ApplicationFont::setSizes(before);
}

void TestGuides::theLogIsCollected()
{
    loggedLines().clear();
    const QtMessageHandler before = qInstallMessageHandler(nullptr);
    collectLog();
    qWarning("of something else");
    logFailure(QStringLiteral("/data/ä"));
    qInstallMessageHandler(before);
    QCOMPARE(loggedLines(), QStringList { QStringLiteral("Cannot read /data/ä") });
}

void TestGuides::theRulesSilenceDebugLines()
{
    const QLoggingCategory category("UtilityWidgets");
    QVERIFY(category.isDebugEnabled());
    logDetails();
    QVERIFY(!category.isDebugEnabled());
    QVERIFY(category.isInfoEnabled());
    QLoggingCategory::setFilterRules(QString());
}

UW_TEST_MAIN_WITH(FileDialogApplication, TestGuides)

#include "tst_guides.moc"
