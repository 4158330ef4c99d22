// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symbolsmenu.h"

#include "clickablecombobox.h"
#include "dragscrolllistview.h"
#include "support/countingitem.h"
#include "support/finger.h"
#include "support/symboldatabase.h"
#include "support/syncstandin.h"
#include "support/test.h"
#include "symbolslineedit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStandardItemModel>
#include <QToolButton>
#include <QVBoxLayout>

#include <memory>
#include <vector>

class TestSymbolsMenu : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isNamedSymbolsMenu();
    void hasItsSlotsAndSignal();
    void standsInOneColumn();
    void theCategoryBoxHasTheSharedSheet();
    void theListIsANarrowColumnOfPictures();
    void theSearchFieldHasItsWindowIcon();
    void everyTextIsTranslatedWithItsComment();
    void canBeMadeWithAParentAlone();
    void readsTheLibraryThatItIsGiven();
    void withoutAPathItNeverReadsAnything();
    void aLongNameShowsItsBeginningAndDoesNotWidenTheMenu();

    void offersTheGivenNamesThenTheCategoriesThenAll();
    void startsWithTheFirstEntry();
    void choosingACategoryShowsItsSymbols();
    void allCategoriesShowsEverySymbol();
    void allCategoriesIsOneOnlyIfBothTranslationsAgree();
    void aNameThatIsNoCategoryFindsNothing();
    void aNameThatIsNoCategoryFindsWhatHasTheTag();
    void typingAPartOfATagAndReturnFindsEverySymbolWithIt();
    void theMagnifierSearchesLikeReturn();
    void theSearchTextCountsWhenTheCategoryChanges();
    void typingInTheCategoryBoxSearchesOnlyWhenAsked();

    void symbolsHaveIconsAndCannotBeEdited();
    void anAddedSymbolIsShownAndCannotBeEdited();
    void tappingASymbolHandsOverItsDocument();
    void tappingASymbolThatIsGoneHandsOverNothing();
    void draggingTheListHandsOverNothing();
    void noSymbolOutOfSightIsAskedForItsIcon();

    void suggestsTagsWithoutRegardToCase();
    void aTappedSuggestionIsSearchedFor();
    void suggestionsAreFingerSizedAndScrollByDragging();

    void withoutALibraryItIsEmptyAndMakesNoFile();
    void aLibraryThatCannotBeReadLeavesItEmpty_data();
    void aLibraryThatCannotBeReadLeavesItEmpty();
    void aLibraryThatIsLockedFreezesNothing();

private:
    SyncStandIn m_sync;
    QString m_formerFolder;
};

namespace {

using Names = QList<QString>;

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// A menu in a working directory with a library.
struct Subject
{
    /// The libraries of this test: they go only after the processes that were started in them.
    static inline std::vector<std::shared_ptr<SymbolDatabase>> used;

    explicit Subject(const Names& names = {},
                     SymbolDatabase::Content content = SymbolDatabase::Symbols)
        : folder(std::make_shared<SymbolDatabase>(content))
        , database(*folder)
    {
        QDir::setCurrent(QFileInfo(database.path()).path());
        used.push_back(folder);
        menu = std::make_unique<SymbolsMenu>(names);
        categories = menu->findChild<ClickableComboBox*>();
        field = menu->findChild<SymbolsLineEdit*>();
        list = menu->findChild<DragScrollListView*>();
    }

    bool show() const
    {
        menu->show();
        return QTest::qWaitForWindowExposed(menu.get());
    }

    QStringList names() const
    {
        QStringList names;
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            names.append(list->model()->index(row, 0).data(Qt::ToolTipRole).toString());
        }
        return names;
    }

    QStringList entries() const
    {
        QStringList entries;
        for (int index = 0; index < categories->count(); ++index) {
            entries.append(categories->itemText(index));
        }
        return entries;
    }

    void choose(const char* category) const
    {
        categories->setCurrentIndex(categories->findText(QString::fromLatin1(category)));
    }

    void tapSymbol(int row) const
    {
        Finger().tap(list->viewport(), list->visualRect(list->model()->index(row, 0)).center());
    }

    std::shared_ptr<SymbolDatabase> folder;
    SymbolDatabase& database;
    std::unique_ptr<SymbolsMenu> menu;
    ClickableComboBox* categories = nullptr;
    SymbolsLineEdit* field = nullptr;
    DragScrollListView* list = nullptr;
};

} // namespace

void TestSymbolsMenu::init()
{
    Test::init();
    m_formerFolder = QDir::currentPath();
}

void TestSymbolsMenu::cleanup()
{
    QDir::setCurrent(m_formerFolder);
    m_sync.takeStarts();
    Subject::used.clear();
    Test::cleanup();
}

void TestSymbolsMenu::isNamedSymbolsMenu()
{
    const Subject subject;
    QCOMPARE(subject.menu->objectName(), QStringLiteral("SymbolsMenu"));
}

void TestSymbolsMenu::hasItsSlotsAndSignal()
{
    const QMetaObject& meta = SymbolsMenu::staticMetaObject;
    QVERIFY(meta.indexOfSlot("symbolSelection(QModelIndex)") >= 0);
    QVERIFY(meta.indexOfSlot("searchUpdate()") >= 0);
    QVERIFY(meta.indexOfSlot("categoryUpdate(QString)") >= 0);
    QVERIFY(meta.indexOfSignal("symbolSignal(QByteArray)") >= 0);
}

void TestSymbolsMenu::standsInOneColumn()
{
    const Subject subject;
    auto* layout = qobject_cast<QVBoxLayout*>(subject.menu->layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->count(), 3);
    QCOMPARE(layout->itemAt(0)->widget(), subject.categories);
    QCOMPARE(layout->itemAt(1)->widget(), subject.field);
    QCOMPARE(layout->itemAt(2)->widget(), subject.list);
}

void TestSymbolsMenu::theCategoryBoxHasTheSharedSheet()
{
    const Subject subject;
    const QString begin =
        QStringLiteral("QComboBox { border: 1px solid #c6c6c6; }\n"
                       "QComboBox::drop-down { border: 0px; }\n"
                       "QComboBox::down-arrow { image: "
                       "url(:/module_icons/ModuleIcons/combobox-down-arrow.png); }\n"
                       "QComboBox::down-arrow::disabled { image: "
                       "url(:/module_icons/ModuleIcons/combobox-down-arrow-disabled.png); }\n"
                       "QComboBox QAbstractItemView::item { min-height: 35px; }\n "
                       "QComboBox { min-height: 35px; background-color: white; }");
    const QString sheet = subject.categories->styleSheet();
    QCOMPARE(sheet.left(begin.size()), begin);
    QVERIFY(sheet.mid(begin.size()).contains(QStringLiteral("QScrollBar")));
}

void TestSymbolsMenu::theListIsANarrowColumnOfPictures()
{
    const Subject subject;
    const DragScrollListView* list = subject.list;
    QCOMPARE(list->maximumWidth(), 160);
    QCOMPARE(list->minimumHeight(), 210);
    QCOMPARE(list->maximumHeight(), 210);
    QCOMPARE(list->viewMode(), QListView::IconMode);
    QCOMPARE(list->iconSize(), QSize(50, 50));
    QCOMPARE(list->gridSize(), QSize(50, 50));
    QCOMPARE(list->movement(), QListView::Static);
    QCOMPARE(list->frameShape(), QFrame::NoFrame);
    QCOMPARE(list->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(list->model()->parent(), subject.menu.get());
}

void TestSymbolsMenu::theSearchFieldHasItsWindowIcon()
{
    const Subject subject;
    const QImage icon = subject.field->windowIcon().pixmap(24, 24).toImage();
    QVERIFY(!icon.isNull());
    QCOMPARE(
        icon,
        QIcon(QStringLiteral(":/Navigation/NavigationIcons/search.png")).pixmap(24, 24).toImage());
}

void TestSymbolsMenu::everyTextIsTranslatedWithItsComment()
{
    TranslationRecorder recorder("SymbolsMenu");
    const Subject subject;
    QCOMPARE(recorder.texts(),
             QStringList({
                 QStringLiteral("Category / Accessible name of the symbols' categories."),
                 QStringLiteral("All Categories / Categories header for showing all symbols."),
             }));
}

void TestSymbolsMenu::canBeMadeWithAParentAlone()
{
    const Subject subject;
    QWidget parent;
    const SymbolsMenu menu(&parent);
    QCOMPARE(menu.parentWidget(), &parent);
    QCOMPARE(menu.findChild<ClickableComboBox*>()->count(), subject.categories->count());
}

void TestSymbolsMenu::readsTheLibraryThatItIsGiven()
{
    const Subject subject;
    QVERIFY(QDir::setCurrent(QDir::rootPath()));
    const SymbolsMenu menu({}, subject.database.path(), nullptr);
    QCOMPARE(menu.findChild<ClickableComboBox*>()->count(), subject.categories->count());
    const auto* list = menu.findChild<DragScrollListView*>();
    QCOMPARE(list->model()->rowCount(), subject.list->model()->rowCount());
}

void TestSymbolsMenu::withoutAPathItNeverReadsAnything()
{
    const Subject subject; // its library is in the working directory
    m_sync.takeStarts();
    SymbolsMenu menu({ QStringLiteral("Shapes") }, QString(), nullptr);
    auto* categories = menu.findChild<ClickableComboBox*>();
    QCOMPARE(categories->count(), 2); // "Shapes" and "All Categories"
    categories->setCurrentIndex(1);
    menu.searchUpdate();
    QCOMPARE(menu.findChild<DragScrollListView*>()->model()->rowCount(), 0);
    QCOMPARE(m_sync.takeStarts(), 0);
}

void TestSymbolsMenu::aLongNameShowsItsBeginningAndDoesNotWidenTheMenu()
{
    const Subject usual;
    const Subject subject({ QString(100, QLatin1Char('W')), QString(90, QLatin1Char('W')) });
    QCOMPARE(subject.menu->sizeHint(), usual.menu->sizeHint());
    QCOMPARE(subject.categories->lineEdit()->cursorPosition(), 0);
    subject.categories->setCurrentIndex(1);
    QCOMPARE(subject.categories->lineEdit()->cursorPosition(), 0);
}

void TestSymbolsMenu::offersTheGivenNamesThenTheCategoriesThenAll()
{
    const Subject subject({ QStringLiteral("Recent"), QStringLiteral("Favourites") });
    QStringList expected { QStringLiteral("Recent"), QStringLiteral("Favourites") };
    expected += subject.database.sql(QStringLiteral("SELECT Name FROM Category"));
    expected += QStringLiteral("All Categories");
    QCOMPARE(subject.entries(), expected);
    QCOMPARE(subject.entries().count(), 6);
    for (int index = 0; index < subject.categories->count(); ++index) {
        QVERIFY(subject.categories->itemIcon(index).isNull());
    }
}

void TestSymbolsMenu::startsWithTheFirstEntry()
{
    const Subject subject;
    QCOMPARE(subject.categories->currentIndex(), 0);
    QCOMPARE(subject.categories->currentText(), QStringLiteral("Signs"));
    QCOMPARE(subject.names(), words("up danger"));
}

void TestSymbolsMenu::choosingACategoryShowsItsSymbols()
{
    const Subject subject;
    subject.choose("Signs");
    QCOMPARE(subject.names(), words("up danger"));
    subject.choose("Empty");
    QCOMPARE(subject.names(), QStringList());
    subject.choose("Animals");
    QCOMPARE(subject.names(), words("cat"));
}

void TestSymbolsMenu::allCategoriesShowsEverySymbol()
{
    const Subject subject;
    subject.choose("All Categories");
    QCOMPARE(subject.names(), words("up danger cat"));
}

void TestSymbolsMenu::allCategoriesIsOneOnlyIfBothTranslationsAgree()
{
    TranslationRecorder menus("SymbolsMenu");
    menus.setTranslation("All Categories", QStringLiteral("Alle"));
    {
        const Subject subject;
        subject.choose("Alle");
        QCOMPARE(subject.names(), QStringList());
    }
    TranslationRecorder models("SymbolDatabaseModel");
    models.setTranslation("All Categories", QStringLiteral("Alle"));
    const Subject subject;
    subject.choose("Alle");
    QCOMPARE(subject.names(), words("up danger cat"));
}

void TestSymbolsMenu::aNameThatIsNoCategoryFindsNothing()
{
    const Subject subject({ QStringLiteral("Recent") });
    QCOMPARE(subject.categories->currentText(), QStringLiteral("Recent"));
    QCOMPARE(subject.names(), QStringList());
}

void TestSymbolsMenu::aNameThatIsNoCategoryFindsWhatHasTheTag()
{
    const Subject subject({ QStringLiteral("Recent") });
    subject.field->setText(QStringLiteral("pet"));
    subject.menu->searchUpdate();
    QCOMPARE(subject.names(), words("cat"));
}

void TestSymbolsMenu::typingAPartOfATagAndReturnFindsEverySymbolWithIt()
{
    const Subject subject;
    subject.choose("All Categories");
    QTest::keyClicks(subject.field, QStringLiteral("pet"));
    QCOMPARE(subject.names(), words("up danger cat")); // not before Return
    QTest::keyClick(subject.field, Qt::Key_Return);
    QCOMPARE(subject.names(), words("cat"));
    subject.field->clear();
    QTest::keyClicks(subject.field, QStringLiteral("ar"));
    QTest::keyClick(subject.field, Qt::Key_Return);
    QStringList names = subject.names();
    names.sort();
    QCOMPARE(names, words("cat danger up"));
}

void TestSymbolsMenu::theMagnifierSearchesLikeReturn()
{
    const Subject subject;
    QVERIFY(subject.show());
    subject.choose("All Categories");
    subject.field->setText(QStringLiteral("warn"));
    Finger().tap(subject.field->findChild<QToolButton*>());
    QCOMPARE(subject.names(), words("danger"));
}

void TestSymbolsMenu::theSearchTextCountsWhenTheCategoryChanges()
{
    const Subject subject;
    subject.field->setText(QStringLiteral("Arrow"));
    QCOMPARE(subject.names(), words("up danger"));
    subject.choose("Animals");
    QCOMPARE(subject.names(), words("cat"));
    subject.choose("Signs");
    QCOMPARE(subject.names(), words("up"));
}

void TestSymbolsMenu::typingInTheCategoryBoxSearchesOnlyWhenAsked()
{
    const Subject subject;
    subject.categories->setEditText(QStringLiteral("Animals"));
    QCOMPARE(subject.names(), words("up danger"));
    subject.menu->searchUpdate();
    QCOMPARE(subject.names(), words("cat"));
}

void TestSymbolsMenu::symbolsHaveIconsAndCannotBeEdited()
{
    const Subject subject;
    subject.choose("Animals");
    const QModelIndex cat = subject.list->model()->index(0, 0);
    QVERIFY(!(cat.flags() & Qt::ItemIsEditable));
    QVERIFY(cat.flags() & Qt::ItemIsSelectable);
    QCOMPARE(cat.data(Qt::UserRole + 1), QVariant(3));
    QVERIFY(!cat.data(Qt::UserRole + 2).isValid());
    const QImage picture = cat.data(Qt::DecorationRole).value<QIcon>().pixmap(50, 50).toImage();
    QCOMPARE(picture.size(), QSize(50, 50));
    QCOMPARE(picture.pixelColor(25, 25), QColor("green"));
}

void TestSymbolsMenu::anAddedSymbolIsShownAndCannotBeEdited()
{
    const Subject subject;
    auto* item = new QStandardItem;
    item->setToolTip(QStringLiteral("mine"));
    subject.menu->addSymbol(item);
    QCOMPARE(subject.names(), words("up danger mine"));
    QVERIFY(!item->isEditable());
    subject.choose("Animals");
    QCOMPARE(subject.names(), words("cat"));
}

void TestSymbolsMenu::tappingASymbolHandsOverItsDocument()
{
    const Subject subject;
    QVERIFY(subject.show());
    subject.choose("Animals");
    QSignalSpy chosen(subject.menu.get(), &SymbolsMenu::symbolSignal);
    subject.tapSymbol(0);
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(chosen.constFirst().constFirst().toByteArray(), filledSvg("green"));
    QVERIFY(subject.menu->isVisible());
    subject.choose("All Categories");
    subject.tapSymbol(1);
    QCOMPARE(chosen.count(), 2);
    QCOMPARE(chosen.constLast().constFirst().toByteArray(), filledSvg("red"));
}

void TestSymbolsMenu::tappingASymbolThatIsGoneHandsOverNothing()
{
    const Subject subject;
    QVERIFY(subject.show());
    QSignalSpy chosen(subject.menu.get(), &SymbolsMenu::symbolSignal);
    subject.database.sql(QStringLiteral("DELETE FROM Image"));
    subject.tapSymbol(0);
    subject.menu->symbolSelection(QModelIndex());
    QCOMPARE(chosen.count(), 0);
}

void TestSymbolsMenu::draggingTheListHandsOverNothing()
{
    const Subject subject;
    for (int i = 0; i < 60; ++i) {
        subject.menu->addSymbol(new QStandardItem);
    }
    QVERIFY(subject.show());
    QSignalSpy chosen(subject.menu.get(), &SymbolsMenu::symbolSignal);
    TouchFinger finger;
    finger.press(subject.list->viewport(), QPoint(25, 150));
    finger.moveBy(QPoint(0, -100));
    finger.release();
    QCOMPARE(chosen.count(), 0);
    QVERIFY(subject.list->verticalScrollBar()->value() > 0);
}

void TestSymbolsMenu::noSymbolOutOfSightIsAskedForItsIcon()
{
    const Subject subject;
    QVERIFY(subject.show());
    for (int i = 0; i < 5000; ++i) {
        subject.menu->addSymbol(new CountingItem);
    }
    CountingItem::count = 0;
    subject.list->grab();
    QCoreApplication::processEvents();
    QVERIFY(CountingItem::count > 0);
    QVERIFY2(CountingItem::count < 200, qPrintable(QString::number(CountingItem::count)));
}

void TestSymbolsMenu::suggestsTagsWithoutRegardToCase()
{
    const Subject subject;
    QCompleter* completer = subject.field->completer();
    QVERIFY(completer != nullptr);
    QCOMPARE(completer->caseSensitivity(), Qt::CaseInsensitive);
    completer->setCompletionPrefix(QStringLiteral("AR"));
    QCOMPARE(completer->completionCount(), 2);
    completer->setCompletionPrefix(QString());
    QCOMPARE(completer->completionCount(), 5);
}

void TestSymbolsMenu::aTappedSuggestionIsSearchedFor()
{
    const Subject subject;
    QVERIFY(subject.show());
    subject.choose("All Categories");
    subject.menu->activateWindow();
    subject.field->setFocus();
    QTRY_VERIFY(subject.field->hasFocus());
    QTest::keyClicks(subject.field, QStringLiteral("wa"));
    QAbstractItemView* suggestions = subject.field->completer()->popup();
    QTRY_VERIFY(suggestions->isVisible());
    const QModelIndex first = suggestions->model()->index(0, 0);
    QCOMPARE(first.data().toString(), QStringLiteral("warning"));
    TouchFinger().tap(suggestions->viewport(), suggestions->visualRect(first).center());
    QTRY_VERIFY(!suggestions->isVisible());
    QCOMPARE(subject.field->text(), QStringLiteral("warning"));
    QCOMPARE(subject.names(), words("danger"));
}

void TestSymbolsMenu::suggestionsAreFingerSizedAndScrollByDragging()
{
    Subject subject({}, SymbolDatabase::Symbols);
    for (int i = 0; i < 30; ++i) {
        QVERIFY(subject.database.model.addTag(QStringLiteral("sign %1").arg(i)));
    }
    subject.menu = std::make_unique<SymbolsMenu>();
    subject.field = subject.menu->findChild<SymbolsLineEdit*>();
    QVERIFY(subject.show());
    subject.menu->activateWindow();
    subject.field->setFocus();
    QTRY_VERIFY(subject.field->hasFocus());
    QTest::keyClicks(subject.field, QStringLiteral("sign"));
    auto* suggestions = qobject_cast<DragScrollListView*>(subject.field->completer()->popup());
    QVERIFY(suggestions != nullptr);
    QTRY_VERIFY(suggestions->isVisible());
    QCOMPARE(suggestions->visualRect(suggestions->model()->index(0, 0)).height(), 35);

    TouchFinger finger;
    finger.press(suggestions->viewport(), QPoint(20, suggestions->height() - 20));
    finger.moveBy(QPoint(0, -60));
    finger.release();
    QCOMPARE(suggestions->verticalScrollBar()->value(), 60);
    QVERIFY(suggestions->isVisible());
    QCOMPARE(subject.field->text(), QStringLiteral("sign"));
    suggestions->hide();
}

void TestSymbolsMenu::withoutALibraryItIsEmptyAndMakesNoFile()
{
    const Subject subject({ QStringLiteral("Recent") }, SymbolDatabase::NoFile);
    QCOMPARE(subject.entries(),
             (QStringList { QStringLiteral("Recent"), QStringLiteral("All Categories") }));
    subject.choose("All Categories");
    subject.field->setText(QStringLiteral("ar"));
    subject.menu->searchUpdate();
    QCOMPARE(subject.names(), QStringList());
    QVERIFY(!subject.database.exists());
    QCOMPARE(QDir().entryList(QDir::Files), QStringList());
}

void TestSymbolsMenu::aLibraryThatCannotBeReadLeavesItEmpty_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("no database") << QByteArray(5000, 'x');
    QTest::newRow("only the head of one") << QByteArray("SQLite format 3\0", 16);
}

void TestSymbolsMenu::aLibraryThatCannotBeReadLeavesItEmpty()
{
    QFETCH(QByteArray, content);
    const Subject whole;
    whole.database.overwrite(content);
    SymbolsMenu menu;
    menu.categoryUpdate(QStringLiteral("All Categories"));
    QCOMPARE(menu.findChild<ClickableComboBox*>()->count(), 1);
    QCOMPARE(menu.findChild<DragScrollListView*>()->model()->rowCount(), 0);
    QCOMPARE(whole.database.read(), content);
}

void TestSymbolsMenu::aLibraryThatIsLockedFreezesNothing()
{
    const Subject subject;
    SymbolDatabaseModel& other = subject.database.model;
    QVERIFY(other.open(false));
    QVERIFY(QSqlQuery(other.database()).exec(QStringLiteral("BEGIN EXCLUSIVE")));
    QElapsedTimer timer;
    timer.start();
    const SymbolsMenu menu;
    QVERIFY2(timer.elapsed() < 4000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(menu.findChild<ClickableComboBox*>()->count(), 1);
    QCOMPARE(menu.findChild<DragScrollListView*>()->model()->rowCount(), 0);
    other.close();
}

UW_TEST_MAIN(TestSymbolsMenu)

#include "tst_symbolsmenu.moc"
