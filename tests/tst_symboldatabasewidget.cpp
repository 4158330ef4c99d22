// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symboldatabasewidget.h"

#include "applicationfont.h"
#include "containertitlebar.h"
#include "dragscrolllistview.h"
#include "lockwidget.h"
#include "sharedconstants.h"
#include "support/countingitem.h"
#include "support/finger.h"
#include "support/longtranslation.h"
#include "support/modaldialog.h"
#include "support/secondprocess.h"
#include "support/symboldatabase.h"
#include "support/syncstandin.h"
#include "support/test.h"
#include "support/translationrecorder.h"
#include "support/visibletexts.h"
#include "toolbox.h"
#include "toolboxcontainer.h"

#include <QButtonGroup>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStandardItemModel>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>
#include <optional>

class TestSymbolDatabaseWidget : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    // what it looks like
    void isAFramelessDialogWithTheHousesIconAndTitle();
    void hasItsSlotsAndSignals();
    void everyTextIsTranslatedWithItsComment();
    void theFrameIsOrangeAndTheSizeFixedAtTheStart();
    void theDialogButtonsHaveSheetsAndWidths();
    void theLayoutIsExact();
    void theViewIsAGridOfPictures();
    void theModesChangeTitleButtonAndLocks();
    void beforeAModeIsSetTheTitleIsNeutral();
    void theLocksStandInOneRow();
    void fitsTheScreen();

    // start
    void startsBusyAndEmpty();
    void showsCategoriesAndAllSymbolsOnceRead();
#ifdef SYMBOLLIBRARY
    void showsALibraryThatTheToolHasFilled();
#endif
    void categoryButtonsLookAsStated();
    void underscoresAreShownAsBlanks();
    void categoriesStandTogetherAtTheTop();
    void categoriesAreNeverSeenSquashed();
    void aLongCategoryIsBrokenIntoLines();
    void anAmpersandIsPartOfTheName();
    void userSymbolsHaveAButtonOnlyWhenThereAreAny_data();
    void userSymbolsHaveAButtonOnlyWhenThereAreAny();

    // categories
    void allShowsTheUsersSymbolsFirst();
    void aCategoryShowsItsSymbols();
    void underscoresAreRestoredForTheSearch();
    void userSymbolsAreReadAnew();
    void allIsReadAnew();
    void aTapWhileBusyIsIgnored();
    void aTapWhileTheLibraryIsStillReadIsIgnored();
    void aCallThatComesFromNoButtonIsIgnored();
    void aButtonOfTheApplicationsChoosesACategory();
    void anotherLanguageDoesNotChangeWhatTheButtonsMean();
    void livingButtonsSpeakAnotherLanguageAndMeanTheSame();
    void theTextsFollowTheLanguage_data();
    void theTextsFollowTheLanguage();
    void nothingCanBePickedWhileACategoryIsRead();
    void anEmptyCategoryShowsNothing();
    void answersThatAreOutOfDateAreNotShown();
    void anotherLibraryReplacesTheOneShown();
    void symbolsCarryTheirRoles();
    void noSymbolOutOfSightIsAskedForItsIcon();
    void draggingACategoryScrollsAndChoosesNothing();

    // choosing
    void insertWithNothingSelectedLeavesItOpen();
    void insertWithASelectionAccepts();
    void aDoubleTapAccepts();
    void anInvalidIndexDoesNotAccept();
    void enterInserts();
    void everyWayToCancelRejects_data();
    void everyWayToCancelRejects();
    void insertFromFileIsReportedAndLeavesItOpen();
    void theSelectedSymbolOfACategoryIsTheLibrarys();
    void theSelectedUserSymbolIsTheUsers();
    void inAllTheNameDecidesBetweenEqualIds();
    void inAllEqualIdsAndNamesAreTheLibrarys();
    void aSymbolThatIsGoneIsEmpty();
    void severalSelectedSymbolsAreNone();
    void theSelectionCanBeReadAfterTheDialogWasClosed();

    // libraries that are no good
    void aBadLibraryIsShownEmptyAndLogged_data();
    void aBadLibraryIsShownEmptyAndLogged();
    void aBadUserDatabaseIsLoggedAndHasNoButton();

    // the end
    void canBeDestroyedAtAnyMoment();
    void canBeDestroyedInTheMiddleOfALongSearch();
    void doesNotWaitForALibraryThatIsLocked();
    void theApplicationEndsInOrderWithALibraryThatIsLocked();
    void doesNotFreezeForUserSymbolsThatAreLocked();
    void waitsForTheChosenUserSymbolWhileItIsLocked();
    void manyInARowLeaveNothingBehind();

private:
    SyncStandIn m_sync;
};

namespace {

QString libraryPath()
{
    return QStringLiteral("/data/usr/share/data/Halvard/databases/symbols.db");
}

QString userPath()
{
    return QStringLiteral("/Home/databases/userSymbols.db");
}

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// A drawing that tells which symbol it is.
QByteArray svgOf(const QString& name, int copy = 0)
{
    return filledSvg(QByteArrayLiteral("red"), 50, 50)
        + QStringLiteral("<!-- %1 %2 -->").arg(name).arg(copy).toUtf8();
}

void write(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QFile::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

/// Fills the product's library from a folder of drawings: "Category/name" each.
void makeLibrary(const QStringList& symbols, const QString& path = libraryPath())
{
    const QTemporaryDir drawings;
    for (const QString& symbol : symbols) {
        write(drawings.filePath(symbol) + QStringLiteral(".svg"), svgOf(symbol.section(u'/', 1)));
    }
    QDir().mkpath(QFileInfo(path).path());
    SymbolDatabaseModel model;
    model.setDatabasePath(path);
    if (!model.createSchema() || !model.updateDatabase(drawings.path())) {
        qFatal("no library");
    }
    model.close();
}

/// Adds symbols to the person's own database, which is made.
void makeUserSymbols(const QStringList& names)
{
    QDir().mkpath(QFileInfo(userPath()).path());
    SymbolDatabaseModel model;
    model.setDatabasePath(userPath());
    if (!QFile::exists(userPath())) {
        model.createSchema();
        model.addCategory(QStringLiteral("USER"));
    }
    for (const QString& name : names) {
        const QByteArray svg = svgOf(name, 1);
        if (!model.addSymbol(svg, model.getThumbnailDataFromRawData(svg), name,
                             QStringLiteral("USER"))) {
            qFatal("no symbol of the user's");
        }
    }
}

void makeUsualLibrary()
{
    makeLibrary({ QStringLiteral("Arrows/down"), QStringLiteral("Arrows/up"),
                  QStringLiteral("Road_Signs/stop"), QStringLiteral("Cats/cat") });
}

/// Runs a statement on a database behind the browser's back; the connection lives on.
class Connection
{
public:
    explicit Connection(const QString& path)
    {
        QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), Name);
        connection.setDatabaseName(path);
        connection.open();
    }
    ~Connection() { QSqlDatabase::removeDatabase(Name); }
    Q_DISABLE_COPY_MOVE(Connection)

    void run(const QString& statement) const
    {
        QSqlQuery query(QSqlDatabase::database(Name));
        if (!query.exec(statement)) {
            qFatal("%s", qPrintable(statement));
        }
    }

private:
    static inline const QString Name = QStringLiteral("behind the browser's back");
};

/// So many symbols that reading them takes a while.
void makeLargeLibrary(int count)
{
    makeUsualLibrary();
    Connection(libraryPath())
        .run(QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
                            "WHERE i < %1) INSERT INTO Image (Name, Thumbnail, Data, CategoryId) "
                            "SELECT 'symbol ' || i, zeroblob(500), zeroblob(10), 1 FROM n")
                 .arg(count));
}

/// A browser and what is found in it.
class Browser
{
public:
    Browser()
        : widget(std::make_unique<SymbolDatabaseWidget>())
    {
        view = widget->findChild<DragScrollListView*>();
        titleBar = widget->findChild<ContainerTitleBar*>();
        locks = widget->findChild<LockWidget*>();
    }

    bool show() const
    {
        widget->show();
        return QTest::qWaitForWindowExposed(widget.get());
    }

    /// Waits until the library has been read.
    bool isReady() const
    {
        return QTest::qWaitFor([this] { return !categories().isEmpty(); }, 30000);
    }

    /// Waits until the view shows these symbols, in this order.
    bool shows(const QStringList& expected) const
    {
        const bool right = QTest::qWaitFor([&] { return names() == expected; }, 30000);
        if (!right) {
            qInfo() << "shown:" << names();
        }
        return right;
    }

    QList<QPushButton*> categories() const
    {
        return widget->findChildren<QPushButton*>(QStringLiteral("DragScrollButton"));
    }

    QStringList categoryTexts() const
    {
        QStringList texts;
        for (const QPushButton* button : categories()) {
            texts.append(button->text());
        }
        return texts;
    }

    QString checkedCategory() const
    {
        QStringList texts;
        for (const QPushButton* button : categories()) {
            if (button->isChecked()) {
                texts.append(button->text());
            }
        }
        return texts.join(QLatin1Char('+'));
    }

    /// By its text, at the start or now.
    QPushButton* button(const char* text) const
    {
        for (auto* button : widget->findChildren<QPushButton*>()) {
            if (button->text() == QString::fromLatin1(text)) {
                return button;
            }
        }
        return nullptr;
    }

    QStringList names() const
    {
        QStringList names;
        for (int row = 0; row < view->model()->rowCount(); ++row) {
            names.append(view->model()->index(row, 0).data(Qt::ToolTipRole).toString());
        }
        return names;
    }

    QModelIndex index(const char* name) const
    {
        return view->model()->index(int(names().indexOf(QString::fromLatin1(name))), 0);
    }

    void select(const char* name) const { view->setCurrentIndex(index(name)); }

    QString title() const { return titleBar->findChild<QLabel*>()->text(); }

    std::unique_ptr<SymbolDatabaseWidget> widget;
    DragScrollListView* view = nullptr;
    ContainerTitleBar* titleBar = nullptr;
    LockWidget* locks = nullptr;
};

/// Notes the smallest height in which a widget of this name is ever painted, and how many are.
class SmallestPaint : public QObject
{
public:
    explicit SmallestPaint(const QString& name)
    {
        setObjectName(name);
        QCoreApplication::instance()->installEventFilter(this);
    }

    int height = 10000;
    int painted = 0;

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && object->objectName() == objectName()) {
            const auto* widget = static_cast<QWidget*>(object);
            height = std::min(height, widget->height());
            m_seen.insert(object);
            painted = int(m_seen.count());
        }
        return false;
    }

private:
    QSet<QObject*> m_seen;
};

/// More than the column shows.
QStringList manyCategories()
{
    QStringList symbols;
    for (int i = 10; i < 40; ++i) {
        symbols += QStringLiteral("Category_%1/x%1").arg(i);
    }
    return symbols;
}

const QStringList UsualNames = words("cat.svg down.svg stop.svg up.svg");

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

/// How often this process has a file open.
qsizetype timesOpen(const QString& path)
{
    const QFileInfoList files =
        QDir(QStringLiteral("/proc/self/fd")).entryInfoList(QDir::Files | QDir::System);
    return std::count_if(files.begin(), files.end(),
                         [&](const QFileInfo& file) { return file.symLinkTarget() == path; });
}

/// Threads that a browser has left behind, still at work.
qsizetype threadsLeft()
{
    return QCoreApplication::instance()->findChildren<QThread*>().count();
}

} // namespace

void TestSymbolDatabaseWidget::init()
{
    Test::init();
    for (const QString& path : { libraryPath(), userPath() }) {
        QFile::remove(path);
        QFile::remove(path + QStringLiteral("-journal"));
    }
}

// --- what it looks like ---------------------------------------------------------------------------

void TestSymbolDatabaseWidget::isAFramelessDialogWithTheHousesIconAndTitle()
{
    makeUsualLibrary();
    const Browser browser;
    const SymbolDatabaseWidget& widget = *browser.widget;
    QCOMPARE(widget.objectName(), QStringLiteral("SymbolsMenu"));
    QVERIFY(widget.windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(widget.isWindow());
    QVERIFY(!widget.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!widget.testAttribute(Qt::WA_QuitOnClose));
    QCOMPARE(widget.windowTitle(), QStringLiteral("Sigilant PRO"));
    QCOMPARE(widget.windowIcon().pixmap(32, 32).toImage(),
             QIcon(QStringLiteral(":/Icon/ApplicationIcons/popup.ico")).pixmap(32, 32).toImage());
}

void TestSymbolDatabaseWidget::hasItsSlotsAndSignals()
{
    const QMetaObject& meta = SymbolDatabaseWidget::staticMetaObject;
    for (const char* slot :
         { "setInsertMode(bool)", "acceptSlot()", "onDoubleClicked(QModelIndex)", "importSlot()",
           "onCategoryClicked()", "handleSymbolManagerStartup(QStringList)",
           "handleSymbolItemsList()", "getUserSymbolItemsList()" }) {
        QVERIFY2(meta.indexOfSlot(slot) >= 0, slot);
    }
    for (const char* signal : { "startSymbolManager(QString)", "getItemByCategory(QString)",
                                "importSymbolRequestedSignal()", "operate(QString)" }) {
        QVERIFY2(meta.indexOfSignal(signal) >= 0, signal);
    }
}

void TestSymbolDatabaseWidget::everyTextIsTranslatedWithItsComment()
{
    makeUsualLibrary();
    makeUserSymbols(words("mine"));
    TranslationRecorder own("SymbolDatabaseWidget");
    TranslationRecorder general("QObject");
    const Browser browser;
    browser.widget->setInsertMode(true);
    browser.widget->setInsertMode(false);
    QVERIFY(browser.isReady());
    QCOMPARE(
        sorted(own.texts()),
        sorted({
            QStringLiteral("SYMBOLS / Header label for symbol insert menu."),
            QStringLiteral(
                "SYMBOLS - INSERT / Window title for this section that inserts symbols."),
            QStringLiteral("SYMBOLS - EDIT / Window title for this section that edits symbols."),
            QStringLiteral("Insert / Button text for inserting a symbol."),
            QStringLiteral("Insert / Button text for inserting a symbol image."),
            QStringLiteral("OK / Button text for accepting the edit of a symbol image."),
            QStringLiteral(
                "Insert From File / Button text for inserting a custom symbol from a file."),
            QStringLiteral("Cancel / Button text to cancel and close the symbol widget."),
        }));
    QCOMPARE(sorted(general.texts()),
             sorted({ QStringLiteral("All / Section header for showing all symbols."),
                      QStringLiteral("User Symbols / Header label for symbol insert menu."),
                      QStringLiteral("Symbols / Accessible name of a list of symbols.") }));
}

void TestSymbolDatabaseWidget::theFrameIsOrangeAndTheSizeFixedAtTheStart()
{
    makeUsualLibrary();
    const Browser browser;
    QCOMPARE(
        browser.widget->styleSheet(),
        QStringLiteral("#SymbolsMenu { background-color: #f2f2f2; border: 1px solid #fd7800; } "));
    QCOMPARE(browser.widget->size(), QSize(900, 518));
}

void TestSymbolDatabaseWidget::theDialogButtonsHaveSheetsAndWidths()
{
    makeUsualLibrary();
    const Browser browser;
    const QString sheet = QStringLiteral(
        "QPushButton { border: 1px solid #fd7800; color: white; font: bold; \n"
        "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #5a5959, stop: 1 "
        "#060606);\nborder-radius: 6px; outline: 0;\nmin-height: 35px; }\n"
        "QPushButton:pressed { background-color: #fd7800; color: white; }\n"
        "QPushButton:disabled { border: 1px solid #d3d3d3; color: #848484; \n"
        "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #d3d3d3, stop: 1 "
        "#a8a8a8);\nborder-radius: 6px; }\n");
    const std::pair<const char*, int> buttons[] { { "Insert From File", 160 },
                                                  { "Insert", 120 },
                                                  { "Cancel", 120 } };
    for (const auto& [text, width] : buttons) {
        const QPushButton* button = browser.button(text);
        QVERIFY2(button != nullptr, text);
        QCOMPARE(button->styleSheet(), sheet);
        QCOMPARE(button->minimumWidth(), width);
    }
}

void TestSymbolDatabaseWidget::theLayoutIsExact()
{
    makeUsualLibrary();
    const Browser browser;
    auto* outer = qobject_cast<QVBoxLayout*>(browser.widget->layout());
    QVERIFY(outer != nullptr);
    QCOMPARE(outer->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(outer->spacing(), 0);
    QCOMPARE(outer->count(), 2);
    QCOMPARE(outer->itemAt(0)->widget(), browser.titleBar);

    auto* content = qobject_cast<QVBoxLayout*>(outer->itemAt(1)->layout());
    QVERIFY(content != nullptr);
    QCOMPARE(content->contentsMargins(), QMargins(6, 6, 6, 6));
    QCOMPARE(content->spacing(), 6);
    QCOMPARE(content->count(), 2);

    auto* grid = qobject_cast<QGridLayout*>(content->itemAt(0)->layout());
    QVERIFY(grid != nullptr);
    QCOMPARE(grid->spacing(), 0);
    auto* container = browser.widget->findChild<ToolBoxContainer*>();
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), container);
    QCOMPARE(grid->itemAtPosition(1, 0)->widget(), container);
    QCOMPARE(grid->itemAtPosition(0, 1)->widget(), browser.view);
    QCOMPARE(grid->itemAtPosition(1, 1)->widget(), browser.locks);
    QCOMPARE(container->minimumWidth(), 260);
    QCOMPARE(container->maximumWidth(), 260);
    QCOMPARE(container->contentsMargins(), QMargins());
    QCOMPARE(container->getToolBox()->widget()->layout()->spacing(), 0);

    QLayout* row = content->itemAt(1)->layout();
    QCOMPARE(row->count(), 4);
    QCOMPARE(row->itemAt(0)->widget(), browser.button("Insert From File"));
    QVERIFY(row->itemAt(1)->spacerItem() != nullptr);
    QCOMPARE(row->itemAt(1)->sizeHint(), QSize(212, 10));
    QCOMPARE(row->itemAt(2)->widget(), browser.button("Insert"));
    QCOMPARE(row->itemAt(3)->widget(), browser.button("Cancel"));
}

void TestSymbolDatabaseWidget::theViewIsAGridOfPictures()
{
    makeUsualLibrary();
    const Browser browser;
    QCOMPARE(browser.view->viewMode(), QListView::IconMode);
    QCOMPARE(browser.view->iconSize(), QSize(60, 60));
    QCOMPARE(browser.view->gridSize(), QSize(60, 60));
    QCOMPARE(browser.view->resizeMode(), QListView::Adjust);
    QCOMPARE(browser.view->movement(), QListView::Static);
    QCOMPARE(browser.view->frameShape(), QFrame::NoFrame);
    QVERIFY(browser.isReady());
    QCOMPARE(browser.view->model()->columnCount(), 1);
}

void TestSymbolDatabaseWidget::theModesChangeTitleButtonAndLocks()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.show());
    QPushButton* accept = browser.button("Insert");
    browser.widget->setInsertMode(false);
    QCOMPARE(browser.title(), QStringLiteral("SYMBOLS - EDIT"));
    QCOMPARE(accept->text(), QStringLiteral("OK"));
    QVERIFY(browser.locks->isVisible());
    browser.widget->setInsertMode(true);
    QCOMPARE(browser.title(), QStringLiteral("SYMBOLS - INSERT"));
    QCOMPARE(accept->text(), QStringLiteral("Insert"));
    QVERIFY(!browser.locks->isVisible());
}

void TestSymbolDatabaseWidget::beforeAModeIsSetTheTitleIsNeutral()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.show());
    QCOMPARE(browser.title(), QStringLiteral("SYMBOLS"));
    QVERIFY(browser.button("Insert") != nullptr);
    QVERIFY(browser.locks->isVisible());
}

void TestSymbolDatabaseWidget::theLocksStandInOneRow()
{
    makeUsualLibrary();
    const Browser browser;
    QCOMPARE(browser.widget->getLockWidget(), browser.locks);
    QVERIFY(qobject_cast<QHBoxLayout*>(browser.locks->layout()) != nullptr);
}

void TestSymbolDatabaseWidget::fitsTheScreen()
{
    makeUsualLibrary();
    const Browser browser;
    browser.widget->setInsertMode(false);
    QVERIFY(browser.isReady());
    QVERIFY(browser.show());
    QCOMPARE(browser.widget->size(), QSize(900, 518));
    const QRect inside = browser.widget->rect();
    for (const auto* button : browser.widget->findChildren<QPushButton*>()) {
        if (button->isVisible()) {
            const QRect place(button->mapTo(browser.widget.get(), QPoint()), button->size());
            QVERIFY2(inside.contains(place), qPrintable(button->text()));
        }
    }
}

// --- start ----------------------------------------------------------------------------------------

void TestSymbolDatabaseWidget::startsBusyAndEmpty()
{
    makeUsualLibrary();
    makeUserSymbols(words("mine"));
    const Browser browser;
    QCOMPARE(browser.names(), QStringList());
    QCOMPARE(browser.categoryTexts(), QStringList());
    QCOMPARE(browser.widget->getSelectedSymbol(), QByteArray());
    browser.widget->acceptSlot();
    QCOMPARE(browser.widget->result(), 0);
}

void TestSymbolDatabaseWidget::showsCategoriesAndAllSymbolsOnceRead()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.isReady());
    QCOMPARE(browser.categoryTexts(),
             (QStringList { QStringLiteral("All"), QStringLiteral("Arrows"), QStringLiteral("Cats"),
                            QStringLiteral("Road Signs") }));
    QCOMPARE(browser.checkedCategory(), QStringLiteral("All"));
    QCOMPARE(sorted(browser.names()), UsualNames);
}

#ifdef SYMBOLLIBRARY
void TestSymbolDatabaseWidget::showsALibraryThatTheToolHasFilled()
{
    const QString drawings = QStringLiteral(SYMBOLS_FOLDER);
    QDir().mkpath(QFileInfo(libraryPath()).path());
    QProcess tool;
    tool.setProcessChannelMode(QProcess::MergedChannels);
    tool.start(QStringLiteral(SYMBOLLIBRARY),
               { QStringLiteral("update"), libraryPath(), drawings });
    QVERIFY2(tool.waitForFinished() && tool.exitCode() == 0, tool.readAll().constData());

    const Browser browser;
    QVERIFY(browser.isReady());
    QStringList categories = QDir(drawings).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY(categories.count() > 3);
    categories.prepend(QStringLiteral("All"));
    QCOMPARE(browser.categoryTexts(), categories);
    QVERIFY(browser.view->model()->rowCount() > 40);
    browser.button("Weather")->click();
    const QDir weather(drawings + QStringLiteral("/Weather"));
    QVERIFY(QTest::qWaitFor([&] {
        return sorted(browser.names()) == sorted(weather.entryList({ QStringLiteral("*.svg") }));
    }));
    browser.select("sun.svg");
    QFile sun(weather.filePath(QStringLiteral("sun.svg")));
    QVERIFY(sun.open(QFile::ReadOnly));
    QCOMPARE(browser.widget->getSelectedSymbol(), sun.readAll());
    const auto icon = browser.index("sun.svg").data(Qt::DecorationRole).value<QIcon>();
    QCOMPARE(icon.availableSizes(), QList<QSize> { QSize(50, 50) });
}
#endif

void TestSymbolDatabaseWidget::categoryButtonsLookAsStated()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.isReady());
    const QString sheet = QStringLiteral(
        "QPushButton { border: 1px solid #fd7800;\n"
        "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #5a5959, stop: 1 "
        "#060606);\ncolor: white; border-radius: 0px; min-width: 260; min-height: 36; }\n"
        "QPushButton:pressed, QPushButton:checked { background-color: #fd7800; color: black; }\n");
    const auto* group = browser.widget->findChild<QButtonGroup*>();
    QVERIFY(group->exclusive());
    for (QPushButton* button : browser.categories()) {
        QVERIFY(button->isFlat());
        QVERIFY(button->isCheckable());
        QVERIFY(group->buttons().contains(button));
        QCOMPARE(button->styleSheet(), sheet);
        QCOMPARE(button->font().pointSize(), ApplicationFont::getWidgetFont(true).pointSize());
        QVERIFY(button->font().bold());
    }
}

void TestSymbolDatabaseWidget::underscoresAreShownAsBlanks()
{
    makeLibrary({ QStringLiteral("A_B__c_/x") });
    const Browser browser;
    QVERIFY(browser.isReady());
    QCOMPARE(browser.categoryTexts(),
             (QStringList { QStringLiteral("All"), QStringLiteral("A B  c ") }));
}

void TestSymbolDatabaseWidget::categoriesStandTogetherAtTheTop()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.isReady());
    QVERIFY(browser.show());
    const QList<QPushButton*> buttons = browser.categories();
    QCOMPARE(buttons.constFirst()->y(), 0);
    for (qsizetype i = 1; i < buttons.count(); ++i) {
        QCOMPARE(buttons.at(i)->y(), buttons.at(i - 1)->geometry().bottom() + 1);
        QVERIFY(buttons.at(i)->height() >= 35);
    }
}

void TestSymbolDatabaseWidget::categoriesAreNeverSeenSquashed()
{
    makeLibrary(manyCategories());
    const Browser browser;
    QVERIFY(browser.show());
    const SmallestPaint watch(QStringLiteral("DragScrollButton"));
    QVERIFY(browser.isReady());
    QTRY_COMPARE(watch.painted, 11); // those that are in sight
    QCOMPARE(watch.height, 38);
}

void TestSymbolDatabaseWidget::aLongCategoryIsBrokenIntoLines()
{
    makeLibrary({ QStringLiteral("Arrows/up"),
                  QStringLiteral("Warning_signs_of_the_high_voltage_laboratory_on_the_second_floor/"
                                 "stop") });
    const Browser browser;
    QVERIFY(browser.isReady());
    QVERIFY(browser.show());
    const QPushButton* longOne = browser.categories().at(2);
    const QPushButton* shortOne = browser.categories().at(1);
    QVERIFY(longOne->height() > shortOne->height());
    const QRect needed = longOne->fontMetrics().boundingRect(QRect(0, 0, longOne->width(), 1000),
                                                             Qt::TextWordWrap, longOne->text());
    QVERIFY(longOne->height() >= needed.height());
}

void TestSymbolDatabaseWidget::anAmpersandIsPartOfTheName()
{
    makeLibrary({ QStringLiteral("R&D/x"), QStringLiteral("RD/y") });
    const Browser browser;
    QVERIFY(browser.isReady());
    QVERIFY(browser.show());
    const QList<QPushButton*> buttons = browser.categories();
    QCOMPARE(buttons.at(1)->text(), QStringLiteral("R&D"));
    QVERIFY(buttons.at(1)->grab().toImage() != buttons.at(2)->grab().toImage());
    buttons.at(1)->click();
    QVERIFY(browser.shows(words("x.svg")));
}

void TestSymbolDatabaseWidget::userSymbolsHaveAButtonOnlyWhenThereAreAny_data()
{
    QTest::addColumn<bool>("hasFile");
    QTest::addColumn<QStringList>("symbols");
    QTest::newRow("no database") << false << QStringList();
    QTest::newRow("an empty one") << true << QStringList();
    QTest::newRow("one symbol") << true << words("mine");
}

void TestSymbolDatabaseWidget::userSymbolsHaveAButtonOnlyWhenThereAreAny()
{
    QFETCH(bool, hasFile);
    QFETCH(QStringList, symbols);
    makeUsualLibrary();
    if (hasFile) {
        makeUserSymbols(symbols);
    }
    const Browser browser;
    QVERIFY(browser.isReady());
    QStringList expected { QStringLiteral("All") };
    if (!symbols.isEmpty()) {
        expected += QStringLiteral("User Symbols");
    }
    expected += { QStringLiteral("Arrows"), QStringLiteral("Cats"), QStringLiteral("Road Signs") };
    QCOMPARE(browser.categoryTexts(), expected);
    QCOMPARE(sorted(browser.names()), sorted(symbols + UsualNames));
    QCOMPARE(QFile::exists(userPath()), hasFile);
}

// --- categories -----------------------------------------------------------------------------------

void TestSymbolDatabaseWidget::allShowsTheUsersSymbolsFirst()
{
    makeLibrary({ QStringLiteral("Arrows/up") });
    makeUserSymbols(words("b a"));
    const Browser browser;
    QVERIFY(browser.isReady());
    QCOMPARE(browser.names(), words("b a up.svg"));
    browser.button("Arrows")->click();
    QVERIFY(browser.shows(words("up.svg")));
    browser.button("All")->click();
    QVERIFY(browser.shows(words("b a up.svg")));
}

void TestSymbolDatabaseWidget::aCategoryShowsItsSymbols()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.isReady());
    QVERIFY(browser.show());
    QSignalSpy asked(browser.widget.get(), &SymbolDatabaseWidget::getItemByCategory);
    Finger().tap(browser.button("Cats"));
    QVERIFY(browser.shows(words("cat.svg")));
    QCOMPARE(browser.checkedCategory(), QStringLiteral("Cats"));
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.constFirst().constFirst().toString(), QStringLiteral("Cats"));
    TouchFinger().tap(browser.button("All"));
    QVERIFY(QTest::qWaitFor([&] { return sorted(browser.names()) == UsualNames; }));
    QCOMPARE(asked.count(), 2);
    QVERIFY(asked.constLast().constFirst().toString().isNull());
}

void TestSymbolDatabaseWidget::underscoresAreRestoredForTheSearch()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.isReady());
    QSignalSpy asked(browser.widget.get(), &SymbolDatabaseWidget::getItemByCategory);
    browser.button("Road Signs")->click();
    QVERIFY(browser.shows(words("stop.svg")));
    QCOMPARE(asked.constFirst().constFirst().toString(), QStringLiteral("Road_Signs"));
}

void TestSymbolDatabaseWidget::userSymbolsAreReadAnew()
{
    makeUsualLibrary();
    makeUserSymbols(words("mine"));
    const Browser browser;
    QVERIFY(browser.isReady());
    QSignalSpy asked(browser.widget.get(), &SymbolDatabaseWidget::getItemByCategory);
    browser.button("User Symbols")->click();
    QCOMPARE(browser.names(), words("mine"));
    makeUserSymbols(words("another"));
    browser.button("User Symbols")->click();
    QCOMPARE(browser.names(), words("mine another"));
    QCOMPARE(asked.count(), 0);
}

void TestSymbolDatabaseWidget::allIsReadAnew()
{
    makeLibrary({ QStringLiteral("Arrows/up") });
    makeUserSymbols(words("mine"));
    const Browser browser;
    QVERIFY(browser.isReady());
    makeUserSymbols(words("another"));
    browser.button("All")->click();
    QVERIFY(browser.shows(words("mine another up.svg")));
}

void TestSymbolDatabaseWidget::aTapWhileBusyIsIgnored()
{
    makeUsualLibrary();
    makeUserSymbols(words("mine"));
    const Browser browser;
    QVERIFY(browser.isReady());
    QSignalSpy asked(browser.widget.get(), &SymbolDatabaseWidget::getItemByCategory);
    browser.button("Cats")->click();
    // The answer cannot arrive before the event loop runs.
    browser.button("Arrows")->click();
    QCOMPARE(browser.checkedCategory(), QStringLiteral("Cats"));
    browser.button("User Symbols")->click();
    QCOMPARE(browser.checkedCategory(), QStringLiteral("Cats"));
    QCOMPARE(browser.names(), QStringList());
    QVERIFY(browser.shows(words("cat.svg")));
    QCOMPARE(asked.count(), 1);
    browser.button("Road Signs")->click();
    QVERIFY(browser.shows(words("stop.svg")));
}

void TestSymbolDatabaseWidget::aTapWhileTheLibraryIsStillReadIsIgnored()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.isReady());
    Q_EMIT browser.widget->startSymbolManager(libraryPath());
    QSignalSpy asked(browser.widget.get(), &SymbolDatabaseWidget::getItemByCategory);
    browser.button("Cats")->click();
    QCOMPARE(browser.checkedCategory(), QStringLiteral("All"));
    QCOMPARE(asked.count(), 0);
    QVERIFY(QTest::qWaitFor([&] { return sorted(browser.names()) == UsualNames; }));
}

void TestSymbolDatabaseWidget::aCallThatComesFromNoButtonIsIgnored()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.isReady());
    QSignalSpy asked(browser.widget.get(), &SymbolDatabaseWidget::getItemByCategory);
    browser.widget->onCategoryClicked();
    QObject sender;
    connect(&sender, &QObject::objectNameChanged, browser.widget.get(),
            &SymbolDatabaseWidget::onCategoryClicked);
    sender.setObjectName(QStringLiteral("Cats"));
    QCOMPARE(asked.count(), 0);
    QCOMPARE(sorted(browser.names()), UsualNames);
}

void TestSymbolDatabaseWidget::aButtonOfTheApplicationsChoosesACategory()
{
    makeUsualLibrary();
    const Browser browser;
    auto button = std::make_unique<QPushButton>(QStringLiteral("Cats"));
    connect(button.get(), &QPushButton::clicked, browser.widget.get(),
            &SymbolDatabaseWidget::onCategoryClicked);
    button->click(); // before there are others
    QVERIFY(browser.isReady());
    QCOMPARE(sorted(browser.names()), UsualNames);
    button->click();
    QVERIFY(browser.shows(words("cat.svg")));
    button.reset();
    Q_EMIT browser.widget->getItemByCategory(QStringLiteral("Road_Signs"));
    browser.button("Arrows")->click(); // too soon
    QVERIFY(browser.shows(words("stop.svg")));
}

void TestSymbolDatabaseWidget::anotherLanguageDoesNotChangeWhatTheButtonsMean()
{
    makeLibrary({ QStringLiteral("Arrows/up") });
    makeUserSymbols(words("mine"));
    const Browser browser;
    QVERIFY(browser.isReady());
    TranslationRecorder other("QObject");
    other.setTranslation("All", QStringLiteral("Alle"));
    other.setTranslation("User Symbols", QStringLiteral("Eigene"));
    browser.button("User Symbols")->click();
    QCOMPARE(browser.names(), words("mine"));
    browser.button("All")->click();
    QVERIFY(browser.shows(words("mine up.svg")));
}

void TestSymbolDatabaseWidget::livingButtonsSpeakAnotherLanguageAndMeanTheSame()
{
    makeLibrary({ QStringLiteral("Arrows/up") });
    makeUserSymbols(words("mine"));
    const Browser browser;
    QVERIFY(browser.isReady());
    browser.button("User Symbols")->click();
    TranslationRecorder other("QObject");
    other.setTranslation("All", QStringLiteral("Alle"));
    other.setTranslation("User Symbols", QStringLiteral("Eigene"));
    QTRY_COMPARE(browser.categoryTexts(), words("Alle Eigene Arrows"));
    QCOMPARE(browser.checkedCategory(), QStringLiteral("Eigene"));
    QCOMPARE(browser.names(), words("mine")); // nothing is read again
    browser.button("Alle")->click();
    QVERIFY(browser.shows(words("mine up.svg")));
    browser.button("Eigene")->click();
    QCOMPARE(browser.names(), words("mine"));
    browser.button("Arrows")->click();
    QVERIFY(browser.shows(words("up.svg")));
}

void TestSymbolDatabaseWidget::theTextsFollowTheLanguage_data()
{
    QTest::addColumn<std::optional<bool>>("insert");

    QTest::newRow("new") << std::optional<bool>();
    QTest::newRow("to insert") << std::optional<bool>(true);
    QTest::newRow("to edit") << std::optional<bool>(false);
}

void TestSymbolDatabaseWidget::theTextsFollowTheLanguage()
{
    QFETCH(std::optional<bool>, insert);
    makeLibrary({ QStringLiteral("Arrows/up") });
    makeUserSymbols(words("mine"));
    const auto setMode = [&](const Browser& browser) {
        QVERIFY(browser.isReady());
        if (insert) {
            browser.widget->setInsertMode(*insert);
        }
    };
    const Browser living;
    setMode(living);
    const QStringList english = visibleTexts(*living.widget);
    {
        const LongTranslation other;
        settleLanguageChange();
        const Browser fresh;
        setMode(fresh);
        QCOMPARE(visibleTexts(*living.widget), visibleTexts(*fresh.widget));
        QVERIFY(visibleTexts(*living.widget) != english);
    }
    settleLanguageChange();
    QCOMPARE(visibleTexts(*living.widget), english);
}

void TestSymbolDatabaseWidget::nothingCanBePickedWhileACategoryIsRead()
{
    makeUsualLibrary();
    makeUserSymbols(words("mine"));
    const Browser browser;
    QVERIFY(browser.isReady());
    browser.button("User Symbols")->click();
    browser.select("mine");
    browser.button("Cats")->click();
    // Its id would be looked up in the library by now.
    QCOMPARE(browser.widget->getSelectedSymbol(), QByteArray());
    browser.widget->acceptSlot();
    QCOMPARE(browser.widget->result(), 0);
    QVERIFY(browser.shows(words("cat.svg")));
    QCOMPARE(browser.widget->getSelectedSymbol(), QByteArray());
}

void TestSymbolDatabaseWidget::anEmptyCategoryShowsNothing()
{
    makeUsualLibrary();
    Connection(libraryPath()).run(QStringLiteral("INSERT INTO Category (Name) VALUES ('Empty')"));
    const Browser browser;
    QVERIFY(browser.isReady());
    browser.button("Empty")->click();
    QVERIFY(browser.shows({}));
    QSignalSpy asked(browser.widget.get(), &SymbolDatabaseWidget::getItemByCategory);
    QVERIFY(QTest::qWaitFor([&] {
        browser.button("Cats")->click(); // no longer ignored at some time
        return asked.count() == 1;
    }));
    QVERIFY(browser.shows(words("cat.svg")));
}

void TestSymbolDatabaseWidget::answersThatAreOutOfDateAreNotShown()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.isReady());
    QStringList shown;
    connect(browser.view->model(), &QAbstractItemModel::rowsInserted, this,
            [&] { shown += browser.names(); });
    Q_EMIT browser.widget->getItemByCategory(QStringLiteral("Arrows"));
    Q_EMIT browser.widget->getItemByCategory(QStringLiteral("Road_Signs"));
    Q_EMIT browser.widget->getItemByCategory(QStringLiteral("Cats"));
    QTRY_COMPARE(shown, words("cat.svg"));
}

void TestSymbolDatabaseWidget::anotherLibraryReplacesTheOneShown()
{
    makeUsualLibrary();
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("other.db"));
    makeLibrary({ QStringLiteral("Dogs/dog") }, path);
    {
        const Browser browser;
        QVERIFY(browser.isReady());
        Q_EMIT browser.widget->startSymbolManager(path);
        QVERIFY(browser.shows(words("dog.svg")));
        QCOMPARE(browser.categoryTexts(), words("All Dogs"));
        browser.select("dog.svg");
        QCOMPARE(browser.widget->getSelectedSymbol(), svgOf(QStringLiteral("dog")));
        browser.button("Dogs")->click();
        QVERIFY(browser.shows(words("dog.svg")));
    }
    const Browser browser; // and before the first one has been read
    Q_EMIT browser.widget->startSymbolManager(path);
    QVERIFY(browser.shows(words("dog.svg")));
    QCOMPARE(browser.categoryTexts(), words("All Dogs"));
}

void TestSymbolDatabaseWidget::symbolsCarryTheirRoles()
{
    makeLibrary({ QStringLiteral("Arrows/up") });
    makeUserSymbols(words("mine"));
    const Browser browser;
    QVERIFY(browser.isReady());
    QCOMPARE(browser.names(), words("mine up.svg"));
    for (const char* name : { "mine", "up.svg" }) {
        const QModelIndex index = browser.index(name);
        QCOMPARE(index.data(Qt::UserRole + 1), QVariant(1));
        QVERIFY(index.data(Qt::UserRole + 2).toByteArray().startsWith("\x89PNG"));
        const auto icon = index.data(Qt::DecorationRole).value<QIcon>();
        QCOMPARE(icon.pixmap(50, 50).toImage().pixelColor(25, 25), QColor("red"));
        QVERIFY(!index.data(Qt::DisplayRole).isValid());
        QVERIFY(!(index.flags() & Qt::ItemIsEditable));
    }
}

void TestSymbolDatabaseWidget::noSymbolOutOfSightIsAskedForItsIcon()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.isReady());
    auto* model = qobject_cast<QStandardItemModel*>(browser.view->model());
    QList<QStandardItem*> items;
    for (int i = 0; i < 5000; ++i) {
        items.append(new CountingItem);
    }
    model->clear();
    CountingItem::count = 0;
    model->invisibleRootItem()->appendRows(items);
    QVERIFY(browser.show());
    QTRY_VERIFY(CountingItem::count > 0);
    QVERIFY2(CountingItem::count < 500, qPrintable(QString::number(CountingItem::count)));
}

void TestSymbolDatabaseWidget::draggingACategoryScrollsAndChoosesNothing()
{
    makeLibrary(manyCategories());
    const Browser browser;
    QVERIFY(browser.isReady());
    QVERIFY(browser.show());
    auto* container = browser.widget->findChild<ToolBoxContainer*>();
    TouchFinger finger;
    finger.press(browser.button("Category 15"));
    finger.moveBy(QPoint(0, -20));
    finger.moveBy(QPoint(0, -80));
    finger.release();
    QCOMPARE(container->getToolBoxVerticalScrollValue(), 100);
    QCOMPARE(browser.checkedCategory(), QStringLiteral("All"));
    finger.tap(browser.button("Category 17"));
    QVERIFY(browser.shows(words("x17.svg")));
}

// --- choosing -------------------------------------------------------------------------------------

void TestSymbolDatabaseWidget::insertWithNothingSelectedLeavesItOpen()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.isReady());
    QVERIFY(browser.show());
    QSignalSpy finished(browser.widget.get(), &QDialog::finished);
    Finger().tap(browser.button("Insert"));
    QVERIFY(browser.widget->isVisible());
    QCOMPARE(finished.count(), 0);
}

void TestSymbolDatabaseWidget::insertWithASelectionAccepts()
{
    makeUsualLibrary();
    SymbolDatabaseWidget* shown = nullptr;
    QByteArray chosen;
    const int result = whileModal<SymbolDatabaseWidget>(
        [&] {
            const Browser browser;
            shown = browser.widget.get();
            browser.widget->setInsertMode(true);
            const int code = browser.widget->exec();
            chosen = browser.widget->getSelectedSymbol();
            return code;
        },
        [&](SymbolDatabaseWidget* dialog) {
            auto* view = dialog->findChild<DragScrollListView*>();
            QTRY_COMPARE(view->model()->rowCount(), 4);
            QVERIFY(dialog->isModal());
            Finger().tap(view->viewport(), view->visualRect(view->model()->index(0, 0)).center());
            for (auto* button : dialog->findChildren<QPushButton*>()) {
                if (button->text() == QStringLiteral("Insert")) {
                    Finger().tap(button);
                    return;
                }
            }
        });
    QCOMPARE(result, int(QDialog::Accepted));
    QVERIFY(chosen.startsWith("<svg"));
}

void TestSymbolDatabaseWidget::aDoubleTapAccepts()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.isReady());
    QVERIFY(browser.show());
    QSignalSpy accepted(browser.widget.get(), &QDialog::accepted);
    const QPoint cat = browser.view->visualRect(browser.index("cat.svg")).center();
    Finger().tap(browser.view->viewport(), cat);
    QCOMPARE(accepted.count(), 0);
    QTest::mouseDClick(browser.widget->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       browser.view->viewport()->mapTo(browser.widget.get(), cat));
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(browser.widget->getSelectedSymbol(), svgOf(QStringLiteral("cat")));
}

void TestSymbolDatabaseWidget::anInvalidIndexDoesNotAccept()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.isReady());
    QSignalSpy accepted(browser.widget.get(), &QDialog::accepted);
    browser.select("cat.svg");
    browser.widget->onDoubleClicked(QModelIndex());
    QCOMPARE(accepted.count(), 0);
    browser.widget->onDoubleClicked(browser.index("cat.svg"));
    QCOMPARE(accepted.count(), 1);
}

void TestSymbolDatabaseWidget::enterInserts()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.isReady());
    QVERIFY(browser.show());
    QSignalSpy accepted(browser.widget.get(), &QDialog::accepted);
    QTest::keyClick(browser.widget->windowHandle(), Qt::Key_Return);
    QCOMPARE(accepted.count(), 0);
    QVERIFY(browser.widget->isVisible());
    QCOMPARE(browser.checkedCategory(), QStringLiteral("All"));
    browser.select("cat.svg");
    QTest::keyClick(browser.widget->windowHandle(), Qt::Key_Return);
    QCOMPARE(accepted.count(), 1);
}

void TestSymbolDatabaseWidget::everyWayToCancelRejects_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("cancel") << QStringLiteral("Cancel");
    QTest::newRow("close button") << QStringLiteral("close");
    QTest::newRow("Escape") << QStringLiteral("Escape");
}

void TestSymbolDatabaseWidget::everyWayToCancelRejects()
{
    QFETCH(QString, way);
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.show());
    browser.widget->setResult(QDialog::Accepted);
    QSignalSpy rejected(browser.widget.get(), &QDialog::rejected);
    if (way == QLatin1String("Cancel")) {
        Finger().tap(browser.button("Cancel"));
    } else if (way == QLatin1String("close")) {
        Finger().tap(browser.titleBar->findChild<QPushButton*>());
    } else {
        QTest::keyClick(browser.widget->windowHandle(), Qt::Key_Escape);
    }
    QCOMPARE(rejected.count(), 1);
    QCOMPARE(browser.widget->result(), int(QDialog::Rejected));
    QVERIFY(!browser.widget->isVisible());
}

void TestSymbolDatabaseWidget::insertFromFileIsReportedAndLeavesItOpen()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.show());
    QSignalSpy requested(browser.widget.get(), &SymbolDatabaseWidget::importSymbolRequestedSignal);
    Finger().tap(browser.button("Insert From File"));
    QCOMPARE(requested.count(), 1);
    QVERIFY(browser.widget->isVisible());
}

void TestSymbolDatabaseWidget::theSelectedSymbolOfACategoryIsTheLibrarys()
{
    makeUsualLibrary();
    makeUserSymbols(words("one two three four"));
    const Browser browser;
    QVERIFY(browser.isReady());
    browser.button("Cats")->click();
    QVERIFY(browser.shows(words("cat.svg")));
    QCOMPARE(browser.widget->getSelectedSymbol(), QByteArray());
    browser.select("cat.svg");
    QCOMPARE(browser.widget->getSelectedSymbol(), svgOf(QStringLiteral("cat")));
}

void TestSymbolDatabaseWidget::theSelectedUserSymbolIsTheUsers()
{
    makeUsualLibrary();
    makeUserSymbols(words("one two"));
    const Browser browser;
    QVERIFY(browser.isReady());
    browser.button("User Symbols")->click();
    browser.select("two");
    QCOMPARE(browser.widget->getSelectedSymbol(), svgOf(QStringLiteral("two"), 1));
}

void TestSymbolDatabaseWidget::inAllTheNameDecidesBetweenEqualIds()
{
    makeLibrary({ QStringLiteral("Arrows/up") });
    makeUserSymbols(words("one two"));
    const Browser browser;
    QVERIFY(browser.isReady());
    QCOMPARE(browser.index("one").data(Qt::UserRole + 1), QVariant(1));
    QCOMPARE(browser.index("up.svg").data(Qt::UserRole + 1), QVariant(1));
    browser.select("one");
    QCOMPARE(browser.widget->getSelectedSymbol(), svgOf(QStringLiteral("one"), 1));
    browser.select("up.svg");
    QCOMPARE(browser.widget->getSelectedSymbol(), svgOf(QStringLiteral("up")));
    browser.select("two"); // the library has no symbol of this id
    QCOMPARE(browser.widget->getSelectedSymbol(), svgOf(QStringLiteral("two"), 1));
}

void TestSymbolDatabaseWidget::inAllEqualIdsAndNamesAreTheLibrarys()
{
    makeLibrary({ QStringLiteral("Arrows/up") });
    makeUserSymbols(words("up.svg"));
    const Browser browser;
    QVERIFY(browser.isReady());
    QCOMPARE(browser.names(), words("up.svg up.svg"));
    browser.view->setCurrentIndex(browser.view->model()->index(0, 0));
    QCOMPARE(browser.widget->getSelectedSymbol(), svgOf(QStringLiteral("up")));
}

void TestSymbolDatabaseWidget::aSymbolThatIsGoneIsEmpty()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.isReady());
    browser.select("cat.svg");
    Connection(libraryPath()).run(QStringLiteral("DELETE FROM Image"));
    QCOMPARE(browser.widget->getSelectedSymbol(), QByteArray());
}

void TestSymbolDatabaseWidget::severalSelectedSymbolsAreNone()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.isReady());
    browser.view->setSelectionMode(QAbstractItemView::MultiSelection);
    browser.view->selectAll();
    QCOMPARE(browser.widget->getSelectedSymbol(), QByteArray());
    browser.widget->acceptSlot();
    QCOMPARE(browser.widget->result(), int(QDialog::Accepted));
}

void TestSymbolDatabaseWidget::theSelectionCanBeReadAfterTheDialogWasClosed()
{
    makeUsualLibrary();
    const Browser browser;
    QVERIFY(browser.isReady());
    QVERIFY(browser.show());
    browser.select("cat.svg");
    browser.widget->accept();
    QCOMPARE(browser.widget->getSelectedSymbol(), svgOf(QStringLiteral("cat")));
}

// --- libraries that are no good -------------------------------------------------------------------

void TestSymbolDatabaseWidget::aBadLibraryIsShownEmptyAndLogged_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("statement");
    QTest::newRow("missing") << QByteArray() << QString();
    QTest::newRow("empty file") << QByteArray("") << QString();
    QTest::newRow("no database") << QByteArray(5000, 'x') << QString();
    QTest::newRow("only the head of one") << QByteArray("SQLite format 3\0", 16) << QString();
    QTest::newRow("without the tables") << QByteArray() << QStringLiteral("CREATE TABLE Other (a)");
    QTest::newRow("only categories")
        << QByteArray() << QStringLiteral("CREATE TABLE Category (Id INTEGER, Name TEXT)");
}

void TestSymbolDatabaseWidget::aBadLibraryIsShownEmptyAndLogged()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, statement);
    const bool isMissing = content.isNull() && statement.isEmpty();
    if (!content.isNull()) {
        write(libraryPath(), content);
    }
    if (!statement.isEmpty()) {
        QDir().mkpath(QFileInfo(libraryPath()).path());
        Connection(libraryPath()).run(statement);
    }
    QTest::ignoreMessage(
        QtWarningMsg,
        qPrintable((isMissing ? QStringLiteral("The symbol library does not exist: ")
                              : QStringLiteral("The symbol library has no symbols or cannot be "
                                               "read: "))
                   + libraryPath()));
    const Browser browser;
    QVERIFY(browser.show());
    QVERIFY(browser.isReady());
    QCOMPARE(browser.categoryTexts(), words("All"));
    QCOMPARE(browser.names(), QStringList());
    QCOMPARE(QFile::exists(libraryPath()), !isMissing);
    browser.button("All")->click();
    Finger().tap(browser.button("Cancel"));
    QVERIFY(!browser.widget->isVisible());
}

void TestSymbolDatabaseWidget::aBadUserDatabaseIsLoggedAndHasNoButton()
{
    makeUsualLibrary();
    write(userPath(), QByteArray(5000, 'x'));
    QTest::ignoreMessage(QtCriticalMsg,
                         QRegularExpression(QStringLiteral("^Error: .*file is not a database")));
    QTest::ignoreMessage(QtCriticalMsg,
                         QRegularExpression(QStringLiteral("^Error: .*file is not a database")));
    const Browser browser;
    QVERIFY(browser.isReady());
    QVERIFY(!browser.categoryTexts().contains(QStringLiteral("User Symbols")));
    QCOMPARE(sorted(browser.names()), UsualNames);
}

// --- the end --------------------------------------------------------------------------------------

void TestSymbolDatabaseWidget::canBeDestroyedAtAnyMoment()
{
    makeUsualLibrary();
    makeUserSymbols(words("mine"));
    SymbolDatabaseWidget().show();
    for (int events = 0; events < 8; ++events) {
        const Browser browser;
        browser.widget->show();
        for (int i = 0; i < events; ++i) {
            QCoreApplication::processEvents();
        }
    }
    {
        const Browser browser;
        QVERIFY(browser.isReady());
        browser.button("Cats")->click(); // unanswered
    }
    QTRY_COMPARE(threadsLeft(), 0);
}

void TestSymbolDatabaseWidget::canBeDestroyedInTheMiddleOfALongSearch()
{
    makeLargeLibrary(60000);
    for (qint64 moment = 0; moment < 30; moment += 3) { // milliseconds
        auto browser = std::make_unique<Browser>();
        browser->widget->show();
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < moment) {
            QCoreApplication::processEvents();
        }
        timer.restart();
        browser.reset();
        // As long as it promises, and what a loaded machine adds.
        QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    }
    QTRY_COMPARE_WITH_TIMEOUT(threadsLeft(), 0, 30000);

    const Browser browser; // and none of them has harmed the library
    QVERIFY(browser.isReady());
    QCOMPARE(browser.view->model()->rowCount(), 60004);
}

void TestSymbolDatabaseWidget::doesNotWaitForALibraryThatIsLocked()
{
    makeUsualLibrary();
    const Connection other(libraryPath());
    other.run(QStringLiteral("BEGIN EXCLUSIVE"));
    // A browser that is quick enough ends before its thread begins to wait for the file.
    for (int attempt = 0; attempt < 100 && threadsLeft() == 0; ++attempt) {
        auto browser = std::make_unique<Browser>();
        QVERIFY(QTest::qWaitFor([] { return timesOpen(libraryPath()) == 2; }));
        QElapsedTimer timer;
        timer.start();
        browser.reset();
        // The file would be waited for for five seconds.
        QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    }
    QCOMPARE(threadsLeft(), 1);
    other.run(QStringLiteral("COMMIT"));
    QTRY_COMPARE_WITH_TIMEOUT(threadsLeft(), 0, 30000);
}

void TestSymbolDatabaseWidget::theApplicationEndsInOrderWithALibraryThatIsLocked()
{
    makeUsualLibrary();
    const Connection other(libraryPath());
    other.run(QStringLiteral("BEGIN EXCLUSIVE"));
    SecondProcess process(QStringLiteral("symbol_browser"));
    QVERIFY(process.waitForLine("destroyed", 30000));
    other.run(QStringLiteral("COMMIT"));
    QCOMPARE(process.waitForEnd(30000), 0);
}

void TestSymbolDatabaseWidget::doesNotFreezeForUserSymbolsThatAreLocked()
{
    makeUsualLibrary();
    makeUserSymbols(words("mine"));
    SecondProcess other(QStringLiteral("symbol_store"), { QStringLiteral("lock"), userPath() });
    QVERIFY(other.waitForLine("locked"));
    const QRegularExpression message(QStringLiteral("^Error: .*database is locked"));
    QTest::ignoreMessage(QtCriticalMsg, message);
    QTest::ignoreMessage(QtCriticalMsg, message);
    {
        const Browser browser;
        // The longest time that passes between two turns of the event loop.
        qint64 longest = 0;
        QElapsedTimer sinceLast;
        QTimer timer;
        timer.start(0);
        sinceLast.start();
        connect(&timer, &QTimer::timeout, this,
                [&] { longest = std::max(longest, sinceLast.restart()); });
        QVERIFY(browser.isReady());
        QCOMPARE(sorted(browser.names()), UsualNames);
        QVERIFY2(longest < 4000, qPrintable(QString::number(longest)));
        QVERIFY(browser.button("User Symbols") == nullptr);
    }
    other.writeLine("unlock");
    QCOMPARE(other.waitForEnd(), 0);

    const Browser browser; // they are there again
    QVERIFY(browser.isReady());
    QVERIFY(browser.button("User Symbols") != nullptr);
}

void TestSymbolDatabaseWidget::waitsForTheChosenUserSymbolWhileItIsLocked()
{
    makeUsualLibrary();
    makeUserSymbols(words("mine"));
    const Browser browser;
    QVERIFY(browser.isReady());
    for (const char* category : { "All", "User Symbols" }) {
        if (!browser.button(category)->isChecked()) {
            browser.button(category)->click();
        }
        browser.select("mine");
        // As long as a commit to a slow card may take.
        SecondProcess other(QStringLiteral("symbol_store"),
                            { QStringLiteral("lock"), userPath(), QStringLiteral("1000") });
        QVERIFY(other.waitForLine("locked"));
        QCOMPARE(browser.widget->getSelectedSymbol(), svgOf(QStringLiteral("mine"), 1));
        QCOMPARE(other.waitForEnd(), 0);
    }
}

void TestSymbolDatabaseWidget::manyInARowLeaveNothingBehind()
{
    makeUsualLibrary();
    makeUserSymbols(words("mine"));
    for (int i = 0; i < 30; ++i) {
        const Browser browser;
        if (i % 3 == 0) {
            QVERIFY(browser.isReady());
        }
    }
    QTRY_COMPARE(threadsLeft(), 0);
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
}

UW_TEST_MAIN(TestSymbolDatabaseWidget)

#include "tst_symboldatabasewidget.moc"
