// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxfiledialog.h"

#include "applicationfont.h"
#include "qcopchannel.h"
#include "support/filedialoguser.h"
#include "support/finger.h"
#include "support/modaldialog.h"
#include "support/secondprocess.h"
#include "support/test.h"

#include <QLineEdit>
#include <QSettings>
#include <QSignalSpy>

#include <functional>
#include <limits>

namespace {

using Script = std::function<void(const FileDialogUser&)>;

const QString AddText = QStringLiteral("Add To Favorites");
const QString RemoveText = QStringLiteral("Remove Favorite");

void show(OxFileDialog::DialogState state, const QString& dir, const Script& script)
{
    whileModal<OxFileDialog>([&] { return OxFileDialog::getFileName(state, nullptr, {}, dir); },
                             [script](OxFileDialog* dialog) {
                                 script(FileDialogUser(dialog));
                                 dialog->hide();
                             });
}

void open(const Script& script, const QString& dir = {})
{
    show(OxFileDialog::OpenFile, dir, script);
}

/// Adds the folder to the favourites as a person does, in a dialog of its own.
void addFavorite(const QString& folder, OxFileDialog::DialogState state = OxFileDialog::OpenFile)
{
    show(state, folder, [](const FileDialogUser& user) { Finger().tap(user.favorite); });
}

/// The array as it is stored, "index name path", and its size last.
QStringList stored()
{
    QSettings settings;
    settings.beginGroup(QStringLiteral("fileDialog"));
    QStringList elements;
    const int size = settings.beginReadArray(QStringLiteral("links"));
    for (int i = 0; i < size; ++i) {
        settings.setArrayIndex(i);
        const QString name = settings.value(QStringLiteral("name")).toString();
        if (!name.isEmpty()) {
            elements.append(QStringLiteral("%1 %2 %3")
                                .arg(QString::number(i), name,
                                     settings.value(QStringLiteral("path")).toString()));
        }
    }
    elements.append(QString::number(size));
    return elements;
}

QString element(int index, const QString& path)
{
    return QStringLiteral("%1 %2 %3").arg(QString::number(index), QFileInfo(path).fileName(), path);
}

void setElement(int index, const QVariant& name, const QVariant& path)
{
    QSettings settings;
    const QString group = QStringLiteral("fileDialog/links/%1/").arg(index + 1);
    settings.setValue(group + QStringLiteral("name"), name);
    settings.setValue(group + QStringLiteral("path"), path);
}

void setStoredSize(const QVariant& size)
{
    QSettings().setValue(QStringLiteral("fileDialog/links/size"), size);
}

/// The fixed entries of a dialog that opens files: Desktop, and the home folder by its name.
QStringList fixedNames()
{
    return { QStringLiteral("Desktop"), QFileInfo(QDir::homePath()).fileName() };
}

} // namespace

class TestOxFileDialogFavorites : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theFixedFavoritesComeFirst();
    void savingHasOneFixedFavorite();
    void aFavoriteHoldsItsData();
    void aTappedFavoriteIsShown();
    void homeAndDesktopCannotBeRemoved();
    void aTappedFavoriteIsTakenFromTheOtherLocations();
    void aFavoriteSelectedByKeysIsShown();
    void aFavoriteThatIsNotThereShowsNothing();

    void theShownFolderIsAdded();
    void aFolderThatIsAFavoriteIsNotAddedAgain();
    void theRootIsAddedByAVisibleName();
    void favoritesSurviveARestartInTheirOrder();
    void aRemovedFavoriteIsForgotten();
    void theFixedHomeIsNotRemoved();
    void removingAFavoriteStaysInItsFolder();
    void theButtonForgetsTheFavoriteWhenTheListIsLeft();
    void aFingerReachesRemoveFavorite_data();
    void aFingerReachesRemoveFavorite();
    void savingStoresAtTheNextIndexByItsOwnRows();

    void gapsAndEmptyElementsAreSkipped();
    void elementsWithOddNumbersAreSkipped();
    void fixedNamesInTheSettingsAreSkipped();
    void elementsOfWrongTypesDoNoHarm_data();
    void elementsOfWrongTypesDoNoHarm();
    void anAbsurdSizeIsNotBelieved_data();
    void anAbsurdSizeIsNotBelieved();
    void anAbsurdSizeLosesNothingThatMoves();
    void addingKeepsWhatAnotherProcessAdded();
    void removingKeepsWhatAnotherProcessAdded();

    void theWindowManagerIsAskedOnce();
    void mountedMediaAppearAndDisappear();
    void bothChannelsAreHeard();
    void anEmptyListOfMediaAddsNothing();
    void aKnownMediumIsNotAddedAgain();
    void aMediumIsNotKept();
    void aMediumOfAFavoritesNameLeavesTheFavorite();
    void anUnknownMediumRemovesNothing();
    void removingTheShownMediumStaysInItsFolder();
    void aMediumThatGoesIsNoLongerOfferedForRemoval();
    void messagesRemoveNothingButMedia();
    void unknownMessagesAreIgnored_data();
    void unknownMessagesAreIgnored();
};

void TestOxFileDialogFavorites::theFixedFavoritesComeFirst()
{
    const FileDialogHome home;
    open([](const FileDialogUser& user) { QCOMPARE(user.favoriteNames(), fixedNames()); });
}

void TestOxFileDialogFavorites::savingHasOneFixedFavorite()
{
    const FileDialogHome home;
    show(OxFileDialog::SaveFile, {}, [&](const FileDialogUser& user) {
        QCOMPARE(user.favoriteNames(), QStringList { QStringLiteral("Desktop") });
        QCOMPARE(user.favorites->item(0)->data(Qt::UserRole).toString(), home.desktop());
    });
}

void TestOxFileDialogFavorites::aFavoriteHoldsItsData()
{
    const FileDialogHome home;
    const QString folder = home.addFolder(QStringLiteral("designs"));
    addFavorite(folder);
    open([&](const FileDialogUser& user) {
        user.receive(QStringLiteral("add"), QStringLiteral("/media/STICK"));
        const QStringList paths { home.desktop(), home.path(), folder,
                                  QStringLiteral("/media/STICK") };
        const QStringList icons { QStringLiteral("home_unpressed"),
                                  QStringLiteral("user_icon_outlined"),
                                  QStringLiteral("folder_unpressed"),
                                  QStringLiteral("usb_unpressed") };
        QCOMPARE(user.favorites->count(), 4);
        for (int row = 0; row < 4; ++row) {
            const QListWidgetItem* item = user.favorites->item(row);
            QCOMPARE(item->text(), QFileInfo(paths.at(row)).fileName());
            QCOMPARE(item->data(Qt::UserRole).toString(), paths.at(row));
            QCOMPARE(item->font(), ApplicationFont::getWidgetFontLarge(true));
            QCOMPARE(item->sizeHint(), QSize(200, 35));
            const QIcon icon(QStringLiteral(":/Navigation/NavigationIcons/") + icons.at(row));
            QVERIFY(!icon.pixmap(24).isNull());
            QCOMPARE(item->icon().pixmap(24).toImage(), icon.pixmap(24).toImage());
        }
    });
}

void TestOxFileDialogFavorites::aTappedFavoriteIsShown()
{
    const FileDialogHome home;
    const QString folder = home.addFolder(QStringLiteral("designs"));
    home.addFile(QStringLiteral("designs/a.txt"));
    addFavorite(folder);
    open([&](const FileDialogUser& user) {
        QCOMPARE(user.favoriteNames(), fixedNames() + QStringList { QStringLiteral("designs") });
        user.tapFavorite(QStringLiteral("designs"));
        QVERIFY(user.lists({ QStringLiteral("a.txt") }));
        QCOMPARE(user.locations(), QStringList { folder });
        QCOMPARE(user.locationBox->currentText(), folder);
        QCOMPARE(user.favorite->text(), RemoveText);
    });
}

void TestOxFileDialogFavorites::homeAndDesktopCannotBeRemoved()
{
    const FileDialogHome home;
    const QString namedHome = home.addFolder(QStringLiteral("x/Home"));
    addFavorite(namedHome);
    open(
        [&](const FileDialogUser& user) {
            QVERIFY(user.up->isEnabled());
            user.tapFavorite(QStringLiteral("Desktop"));
            QCOMPARE(user.favorite->text(), AddText);
            QVERIFY(!user.up->isEnabled());
            QCOMPARE(user.locationBox->currentText(), home.desktop());
            user.up->setEnabled(true);
            user.tapFavorite(QStringLiteral("Home"));
            QCOMPARE(user.favorite->text(), AddText);
            QVERIFY(!user.up->isEnabled());
        },
        namedHome);
}

void TestOxFileDialogFavorites::aTappedFavoriteIsTakenFromTheOtherLocations()
{
    const FileDialogHome home;
    const QString folder = home.addFolder(QStringLiteral("designs"));
    open(
        [&](const FileDialogUser& user) {
            QCOMPARE(user.locations(), QStringList({ folder, home.path() }));
            user.tapFavorite(fixedNames().at(1));
            QCOMPARE(user.locations(), QStringList { home.path() });
            user.tapFavorite(fixedNames().at(1));
            QCOMPARE(user.locations(), QStringList { home.path() });
        },
        folder);
}

void TestOxFileDialogFavorites::aFavoriteSelectedByKeysIsShown()
{
    const FileDialogHome home;
    open([&](const FileDialogUser& user) {
        user.tapFavorite(QStringLiteral("Desktop"));
        user.press(Qt::Key_Down);
        QCOMPARE(user.locationBox->currentText(), home.path());
        user.press(Qt::Key_Up);
        QCOMPARE(user.locationBox->currentText(), home.desktop());
    });
}

void TestOxFileDialogFavorites::aFavoriteThatIsNotThereShowsNothing()
{
    const FileDialogHome home;
    home.addFolder(QStringLiteral("designs"));
    setElement(0, QStringLiteral("gone"), QStringLiteral("/gone/for/good"));
    setStoredSize(1);
    open([&](const FileDialogUser& user) {
        user.item(QStringLiteral("designs"));
        user.tapFavorite(QStringLiteral("gone"));
        QCOMPARE(user.listedNames(), QStringList());
        QCOMPARE(user.files->model()->rowCount(), 0);
        QCOMPARE(user.locationBox->currentText(), QStringLiteral("/gone/for/good"));
        user.tapFavorite(fixedNames().at(1));
        QVERIFY(user.lists({ QStringLiteral("designs"), QStringLiteral("Desktop") }));
    });
}

void TestOxFileDialogFavorites::theShownFolderIsAdded()
{
    const FileDialogHome home;
    const QString folder = home.addFolder(QStringLiteral("designs"));
    open([&](const FileDialogUser& user) {
        user.doubleTapFile(QStringLiteral("designs"));
        Finger().tap(user.favorite);
        QCOMPARE(user.favoriteNames(), fixedNames() + QStringList { QStringLiteral("designs") });
        QCOMPARE(stored(), QStringList({ element(1, folder), QStringLiteral("2") }));
        QCOMPARE(user.favorite->text(), AddText);
    });
}

void TestOxFileDialogFavorites::aFolderThatIsAFavoriteIsNotAddedAgain()
{
    const FileDialogHome home;
    const QString folder = home.addFolder(QStringLiteral("designs"));
    addFavorite(folder);
    const QStringList before = stored();
    addFavorite(folder);
    addFavorite(home.path());
    QCOMPARE(stored(), before);
    open([](const FileDialogUser& user) {
        QCOMPARE(user.favoriteNames(), fixedNames() + QStringList { QStringLiteral("designs") });
    });
}

void TestOxFileDialogFavorites::theRootIsAddedByAVisibleName()
{
    const FileDialogHome home;
    addFavorite(QStringLiteral("/"));
    open([](const FileDialogUser& user) {
        QCOMPARE(user.favoriteNames(), fixedNames() + QStringList { QStringLiteral("/") });
    });
}

void TestOxFileDialogFavorites::favoritesSurviveARestartInTheirOrder()
{
    const FileDialogHome home;
    QStringList names;
    for (const char* name :
         { "zebra", "ant", "Ölbilder", "with blanks", "12", "m", "n", "o", "p", "q", "r" }) {
        names.append(QString::fromUtf8(name));
        addFavorite(home.addFolder(names.last()));
    }
    open([&](const FileDialogUser& user) { QCOMPARE(user.favoriteNames(), fixedNames() + names); });
}

void TestOxFileDialogFavorites::aRemovedFavoriteIsForgotten()
{
    const FileDialogHome home;
    const QString a = home.addFolder(QStringLiteral("a"));
    const QString b = home.addFolder(QStringLiteral("b"));
    const QString c = home.addFolder(QStringLiteral("c"));
    for (const QString& folder : { a, b, c }) {
        addFavorite(folder);
    }
    open([&](const FileDialogUser& user) {
        user.tapFavorite(QStringLiteral("b"));
        QCOMPARE(user.favorite->text(), RemoveText);
        Finger().tap(user.favorite);
        QCOMPARE(user.favorite->text(), AddText);
        QCOMPARE(user.favoriteNames(),
                 fixedNames() + QStringList({ QStringLiteral("a"), QStringLiteral("c") }));
        QVERIFY(user.favorites->selectedItems().isEmpty());
        // The home folder, in the second row, is written first; loading skips it.
        QCOMPARE(stored(),
                 QStringList({ element(0, home.path()), element(1, a), element(2, c),
                               QStringLiteral("3") }));
    });
    open([](const FileDialogUser& user) {
        QCOMPARE(user.favoriteNames(),
                 fixedNames() + QStringList({ QStringLiteral("a"), QStringLiteral("c") }));
    });
}

/// Where the home folder is not called Home the button offers it; nothing happens then.
void TestOxFileDialogFavorites::theFixedHomeIsNotRemoved()
{
    const FileDialogHome home;
    open([&](const FileDialogUser& user) {
        user.tapFavorite(fixedNames().at(1));
        QCOMPARE(user.favorite->text(), RemoveText);
        Finger().tap(user.favorite);
        QCOMPARE(user.favoriteNames(), fixedNames());
        QCOMPARE(user.favorite->text(), AddText);
        QCOMPARE(stored(), QStringList { QStringLiteral("0") });
    });
}

/// The list goes over to a neighbour of what is removed; the dialog must not.
void TestOxFileDialogFavorites::removingAFavoriteStaysInItsFolder()
{
    const FileDialogHome home;
    const QString a = home.addFolder(QStringLiteral("a"));
    home.addFile(QStringLiteral("a/inside.txt"));
    addFavorite(a);
    addFavorite(home.addFolder(QStringLiteral("b")));
    open([&](const FileDialogUser& user) {
        user.tapFavorite(QStringLiteral("a"));
        QVERIFY(user.lists({ QStringLiteral("inside.txt") }));
        Finger().tap(user.favorite);
        QCOMPARE(user.favoriteNames(), fixedNames() + QStringList { QStringLiteral("b") });
        QCOMPARE(user.locationBox->currentText(), a);
        QCOMPARE(user.listedNames(), QStringList { QStringLiteral("inside.txt") });
        Finger().tap(user.favorite); // and it can be added again, last
        QCOMPARE(user.favoriteNames(),
                 fixedNames() + QStringList({ QStringLiteral("b"), QStringLiteral("a") }));
    });
}

void TestOxFileDialogFavorites::theButtonForgetsTheFavoriteWhenTheListIsLeft()
{
    const FileDialogHome home;
    addFavorite(home.addFolder(QStringLiteral("a")));
    open([&](const FileDialogUser& user) {
        user.tapFavorite(QStringLiteral("a"));
        QCOMPARE(user.favorite->text(), RemoveText);
        QCursor::setPos(user.nameBox->mapToGlobal(QPoint(5, 5)));
        user.nameBox->setFocus();
        QCOMPARE(user.favorite->text(), AddText);

        user.tapFavorite(QStringLiteral("a"));
        user.favorites->setFocus();
        QCursor::setPos(user.favorite->mapToGlobal(user.favorite->rect().center()));
        user.nameBox->setFocus();
        QCOMPARE(user.favorite->text(), RemoveText); // the pointer is on the button
        QCursor::setPos(0, 0);
    });
}

void TestOxFileDialogFavorites::aFingerReachesRemoveFavorite_data()
{
    QTest::addColumn<bool>("touchPoints");
    QTest::newRow("mouse events") << false;
    QTest::newRow("touch points") << true;
}

/// The list loses the focus to the button before the button hears of the tap.
void TestOxFileDialogFavorites::aFingerReachesRemoveFavorite()
{
    const FileDialogHome home;
    addFavorite(home.addFolder(QStringLiteral("a")));
    QFETCH(bool, touchPoints);
    QCursor::setPos(0, 0);
    open([&](const FileDialogUser& user) {
        user.tapFavorite(QStringLiteral("a"));
        QVERIFY(user.favorites->hasFocus());
        if (touchPoints) {
            TouchFinger().tap(user.favorite);
        } else {
            Finger().tap(user.favorite);
        }
        QVERIFY(!user.favorites->hasFocus());
        QCOMPARE(user.favoriteNames(), fixedNames());
    });
}

/// Its first row is the one that is not kept, so that it counts one less than a dialog that opens.
void TestOxFileDialogFavorites::savingStoresAtTheNextIndexByItsOwnRows()
{
    const FileDialogHome home;
    const QString a = home.addFolder(QStringLiteral("a"));
    const QString b = home.addFolder(QStringLiteral("b"));
    addFavorite(a, OxFileDialog::SaveFile);
    QCOMPARE(stored(), QStringList({ element(0, a), QStringLiteral("1") }));
    addFavorite(b, OxFileDialog::SaveFile);
    QCOMPARE(stored(), QStringList({ element(0, a), element(1, b), QStringLiteral("2") }));
}

void TestOxFileDialogFavorites::gapsAndEmptyElementsAreSkipped()
{
    const FileDialogHome home;
    setElement(1, QStringLiteral("b"), QStringLiteral("/b"));
    setElement(3, QStringLiteral("name without a path"), QString());
    setElement(4, QString(), QStringLiteral("/path/without/a/name"));
    setElement(11, QStringLiteral("k"), QStringLiteral("/k"));
    setElement(7, QStringLiteral("a"), QStringLiteral("/a"));
    setElement(20, QStringLiteral("beyond the size"), QStringLiteral("/x"));
    setStoredSize(15);
    open([](const FileDialogUser& user) {
        QCOMPARE(
            user.favoriteNames(),
            fixedNames()
                + QStringList({ QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("k") }));
    });
}

void TestOxFileDialogFavorites::elementsWithOddNumbersAreSkipped()
{
    const FileDialogHome home;
    QSettings settings;
    for (const char* number : { "-2147483648", "-1", "0", "01", "+1", "1x", "2147483648", "x" }) {
        const QString group =
            QStringLiteral("fileDialog/links/%1/").arg(QString::fromLatin1(number));
        settings.setValue(group + QStringLiteral("name"), QStringLiteral("odd"));
        settings.setValue(group + QStringLiteral("path"), QStringLiteral("/odd"));
    }
    setElement(1, QStringLiteral("a"), QStringLiteral("/a"));
    setStoredSize(10);
    open([](const FileDialogUser& user) {
        QCOMPARE(user.favoriteNames(), fixedNames() + QStringList { QStringLiteral("a") });
    });
}

void TestOxFileDialogFavorites::fixedNamesInTheSettingsAreSkipped()
{
    const FileDialogHome home;
    setElement(0, QStringLiteral("Desktop"), QStringLiteral("/a"));
    setElement(1, fixedNames().at(1), QStringLiteral("/b"));
    setElement(2, QStringLiteral("c"), QStringLiteral("/c"));
    setStoredSize(3);
    open([](const FileDialogUser& user) {
        QCOMPARE(user.favoriteNames(), fixedNames() + QStringList { QStringLiteral("c") });
    });
}

void TestOxFileDialogFavorites::elementsOfWrongTypesDoNoHarm_data()
{
    QTest::addColumn<QVariant>("wrong");
    QTest::newRow("number") << QVariant(42);
    QTest::newRow("list") << QVariant(QStringList({ QStringLiteral("/a"), QStringLiteral("/b") }));
    QTest::newRow("bytes") << QVariant(QByteArray("\xff\xfe\x00x", 4));
    QTest::newRow("map") << QVariant(QVariantMap { { QStringLiteral("a"), 1 } });
    QTest::newRow("invalid") << QVariant();
}

void TestOxFileDialogFavorites::elementsOfWrongTypesDoNoHarm()
{
    const FileDialogHome home;
    QFETCH(QVariant, wrong);
    setElement(0, wrong, wrong);
    setElement(1, QStringLiteral("a"), QStringLiteral("/a"));
    setStoredSize(2);
    open([&](const FileDialogUser& user) {
        QCOMPARE(user.favoriteNames().mid(0, 2), fixedNames());
        QVERIFY(user.favoriteNames().contains(QStringLiteral("a")));
        for (const QString& name : user.favoriteNames()) {
            user.tapFavorite(name);
        }
    });
    addFavorite(home.addFolder(QStringLiteral("b")));
    open([](const FileDialogUser& user) {
        QVERIFY(user.favoriteNames().contains(QStringLiteral("a")));
        QVERIFY(user.favoriteNames().contains(QStringLiteral("b")));
    });
}

void TestOxFileDialogFavorites::anAbsurdSizeIsNotBelieved_data()
{
    QTest::addColumn<QVariant>("size");
    QTest::addColumn<bool>("isRead");
    QTest::newRow("two thousand million") << QVariant(2000000000) << true;
    QTest::newRow("negative") << QVariant(-5) << false;
    QTest::newRow("text") << QVariant(QStringLiteral("many")) << false;
}

void TestOxFileDialogFavorites::anAbsurdSizeIsNotBelieved()
{
    const FileDialogHome home;
    QFETCH(QVariant, size);
    QFETCH(bool, isRead);
    setElement(0, QStringLiteral("a"), QStringLiteral("/a"));
    setStoredSize(size);
    open([&](const FileDialogUser& user) {
        QCOMPARE(user.favoriteNames().contains(QStringLiteral("a")), isRead);
        user.tapFavorite(fixedNames().at(0));
    });
    addFavorite(home.addFolder(QStringLiteral("b")));
    open([](const FileDialogUser& user) {
        QVERIFY(user.favoriteNames().contains(QStringLiteral("b")));
    });
}

/// Beyond the largest index there is none to move to.
void TestOxFileDialogFavorites::anAbsurdSizeLosesNothingThatMoves()
{
    const FileDialogHome home;
    const QString b = home.addFolder(QStringLiteral("b"));
    open(
        [](const FileDialogUser& user) {
            setElement(1, QStringLiteral("a"), QStringLiteral("/a"));
            setStoredSize(std::numeric_limits<int>::max());
            Finger().tap(user.favorite); // at the index where the other one has been put since
        },
        b);
    open([](const FileDialogUser& user) {
        QCOMPARE(user.favoriteNames(),
                 fixedNames() + QStringList({ QStringLiteral("b"), QStringLiteral("a") }));
    });
}

void TestOxFileDialogFavorites::addingKeepsWhatAnotherProcessAdded()
{
    const FileDialogHome home;
    const QString mine = home.addFolder(QStringLiteral("mine"));
    const QString theirs = home.addFolder(QStringLiteral("theirs"));
    const QString later = home.addFolder(QStringLiteral("later"));
    SecondProcess other(
        QStringLiteral("favorite_keeper"),
        { QCoreApplication::organizationName(), QCoreApplication::applicationName() });
    QVERIFY(other.waitForLine("ready"));
    open(
        [&](const FileDialogUser& user) {
            for (const QString& folder : { theirs, later }) {
                other.writeLine(folder.toUtf8());
                QVERIFY(other.waitForLine("done"));
            }
            Finger().tap(user.favorite); // at the index that the other one has used as well
            QCOMPARE(stored(),
                     QStringList({ element(1, mine), element(2, later), element(3, theirs),
                                   QStringLiteral("4") }));
        },
        mine);
    open([](const FileDialogUser& user) {
        QCOMPARE(user.favoriteNames(),
                 fixedNames()
                     + QStringList({ QStringLiteral("mine"), QStringLiteral("later"),
                                     QStringLiteral("theirs") }));
    });
    other.writeLine("quit");
    QCOMPARE(other.waitForEnd(), 0);
}

void TestOxFileDialogFavorites::removingKeepsWhatAnotherProcessAdded()
{
    const FileDialogHome home;
    const QString mine = home.addFolder(QStringLiteral("mine"));
    const QString theirs = home.addFolder(QStringLiteral("theirs"));
    addFavorite(mine);
    SecondProcess other(
        QStringLiteral("favorite_keeper"),
        { QCoreApplication::organizationName(), QCoreApplication::applicationName() });
    QVERIFY(other.waitForLine("ready"));
    open([&](const FileDialogUser& user) {
        other.writeLine(theirs.toUtf8());
        QVERIFY(other.waitForLine("done"));
        user.tapFavorite(QStringLiteral("mine"));
        Finger().tap(user.favorite);
    });
    open([](const FileDialogUser& user) {
        QCOMPARE(user.favoriteNames(), fixedNames() + QStringList { QStringLiteral("theirs") });
    });
    other.writeLine("quit");
    QCOMPARE(other.waitForEnd(), 0);
}

void TestOxFileDialogFavorites::theWindowManagerIsAskedOnce()
{
    const FileDialogHome home;
    const QCopChannel windowManager(QStringLiteral("OxWindowManager"));
    QSignalSpy received(&windowManager, &QCopChannel::received);
    open([&](const FileDialogUser& /*user*/) { QTRY_COMPARE(received.count(), 1); });
    QCOMPARE(received.count(), 1);
    QCOMPARE(received.at(0).at(0).toString(), QStringLiteral("mounts"));
    QCOMPARE(received.at(0).at(1).toByteArray(), QByteArray());
}

void TestOxFileDialogFavorites::mountedMediaAppearAndDisappear()
{
    const FileDialogHome home;
    const QStringList media { QStringLiteral("/media/STICK"), QStringLiteral("/media/MY CARD") };
    open([&](const FileDialogUser& user) {
        user.receive(QStringLiteral("mounts"), media);
        QCOMPARE(user.favoriteNames(),
                 fixedNames()
                     + QStringList({ QStringLiteral("STICK"), QStringLiteral("MY CARD") }));
        user.receive(QStringLiteral("add"), QStringLiteral("/media/third"));
        QCOMPARE(user.favoriteNames().last(), QStringLiteral("third"));
        user.receive(QStringLiteral("remove"), media.at(0));
        QCOMPARE(user.favoriteNames(),
                 fixedNames()
                     + QStringList({ QStringLiteral("MY CARD"), QStringLiteral("third") }));
        user.receive(QStringLiteral("add"), media.at(0));
        QCOMPARE(user.favoriteNames().last(), QStringLiteral("STICK"));
    });
}

void TestOxFileDialogFavorites::bothChannelsAreHeard()
{
    const FileDialogHome home;
    open([&](const FileDialogUser& user) {
        QCopChannel::send(QStringLiteral("OxWindowManager/Mounts"), QStringLiteral("mounts"),
                          FileDialogUser::bytes(QStringList { QStringLiteral("/media/a") }));
        QTRY_COMPARE(user.favoriteNames().last(), QStringLiteral("a"));
        QCopChannel::send(QStringLiteral("Taskbar/Mounts"), QStringLiteral("add"),
                          FileDialogUser::bytes(QStringLiteral("/media/b")));
        QTRY_COMPARE(user.favoriteNames().last(), QStringLiteral("b"));
        QCopChannel::send(QStringLiteral("Taskbar/Mounts"), QStringLiteral("remove"),
                          FileDialogUser::bytes(QStringLiteral("/media/a")));
        QTRY_COMPARE(user.favoriteNames(), fixedNames() + QStringList { QStringLiteral("b") });
    });
    QVERIFY(!QCopChannel::isRegistered(QStringLiteral("Taskbar/Mounts")));
}

void TestOxFileDialogFavorites::anEmptyListOfMediaAddsNothing()
{
    const FileDialogHome home;
    open([](const FileDialogUser& user) {
        user.receive(QStringLiteral("mounts"), QStringList());
        QCOMPARE(user.favoriteNames(), fixedNames());
    });
}

void TestOxFileDialogFavorites::aKnownMediumIsNotAddedAgain()
{
    const FileDialogHome home;
    open([](const FileDialogUser& user) {
        const QString path = QStringLiteral("/media/STICK");
        user.receive(QStringLiteral("mounts"), QStringList({ path, path }));
        user.receive(QStringLiteral("add"), path);
        user.receive(QStringLiteral("mounts"), QStringList { path });
        QCOMPARE(user.favoriteNames(), fixedNames() + QStringList { QStringLiteral("STICK") });
    });
}

/// Not even when a favourite is removed, which writes the whole list anew.
void TestOxFileDialogFavorites::aMediumIsNotKept()
{
    const FileDialogHome home;
    const QString a = home.addFolder(QStringLiteral("a"));
    const QString b = home.addFolder(QStringLiteral("b"));
    addFavorite(a);
    open(
        [&](const FileDialogUser& user) {
            user.receive(QStringLiteral("add"), QStringLiteral("/media/STICK"));
            QCOMPARE(stored(), QStringList({ element(1, a), QStringLiteral("2") }));
            Finger().tap(user.favorite); // in the row below the medium's
            QCOMPARE(stored(), QStringList({ element(1, a), element(3, b), QStringLiteral("4") }));
            user.tapFavorite(QStringLiteral("a"));
            Finger().tap(user.favorite);
            QCOMPARE(stored(),
                     QStringList({ element(0, home.path()), element(2, b), QStringLiteral("3") }));
        },
        b);
    open([](const FileDialogUser& user) {
        QCOMPARE(user.favoriteNames(), fixedNames() + QStringList { QStringLiteral("b") });
    });
}

void TestOxFileDialogFavorites::aMediumOfAFavoritesNameLeavesTheFavorite()
{
    const FileDialogHome home;
    const QString stick = home.addFolder(QStringLiteral("STICK"));
    addFavorite(stick);
    open([&](const FileDialogUser& user) {
        user.receive(QStringLiteral("add"), QStringLiteral("/media/STICK"));
        QCOMPARE(user.favorites->count(), 4);
        user.receive(QStringLiteral("remove"), QStringLiteral("/media/STICK"));
        QCOMPARE(user.favorites->count(), 3);
        QCOMPARE(user.favorites->item(2)->data(Qt::UserRole).toString(), stick);
    });
    open([](const FileDialogUser& user) {
        QCOMPARE(user.favoriteNames(), fixedNames() + QStringList { QStringLiteral("STICK") });
    });
}

void TestOxFileDialogFavorites::anUnknownMediumRemovesNothing()
{
    const FileDialogHome home;
    const QString stick = home.addFolder(QStringLiteral("STICK"));
    addFavorite(stick);
    const QStringList before = stored();
    open([](const FileDialogUser& user) {
        for (const QString& path : { QStringLiteral("/media/other"), QStringLiteral("/mnt/STICK"),
                                     QStringLiteral("/mnt/Desktop") }) {
            user.receive(QStringLiteral("remove"), path);
        }
        QCOMPARE(user.favoriteNames(), fixedNames() + QStringList { QStringLiteral("STICK") });
    });
    QCOMPARE(stored(), before);
}

void TestOxFileDialogFavorites::removingTheShownMediumStaysInItsFolder()
{
    const FileDialogHome home;
    const QString stick = home.addFolder(QStringLiteral("stick"));
    home.addFile(QStringLiteral("stick/a.txt"));
    open([&](const FileDialogUser& user) {
        user.receive(QStringLiteral("add"), stick);
        user.receive(QStringLiteral("add"), home.addFolder(QStringLiteral("other")));
        user.tapFavorite(QStringLiteral("stick"));
        QVERIFY(user.lists({ QStringLiteral("a.txt") }));
        user.receive(QStringLiteral("remove"), stick);
        QCOMPARE(user.favoriteNames(), fixedNames() + QStringList { QStringLiteral("other") });
        QCOMPARE(user.locationBox->currentText(), stick);
        QCOMPARE(user.listedNames(), QStringList { QStringLiteral("a.txt") });
    });
}

/// The list goes over to a neighbour of what is gone; the button must not.
void TestOxFileDialogFavorites::aMediumThatGoesIsNoLongerOfferedForRemoval()
{
    const FileDialogHome home;
    addFavorite(home.addFolder(QStringLiteral("a")));
    const QString stick = home.addFolder(QStringLiteral("stick"));
    open([&](const FileDialogUser& user) {
        const QStringList before = user.favoriteNames();
        user.receive(QStringLiteral("add"), stick);
        user.tapFavorite(QStringLiteral("stick"));
        QCOMPARE(user.favorite->text(), RemoveText);
        user.receive(QStringLiteral("remove"), stick);
        QCOMPARE(user.favorite->text(), AddText);
        QVERIFY(user.favorites->selectedItems().isEmpty());
        QVERIFY(user.favorites->currentItem() == nullptr);
        QCOMPARE(user.favoriteNames(), before);

        // One that is not chosen goes without a word.
        user.receive(QStringLiteral("add"), stick);
        user.tapFavorite(QStringLiteral("a"));
        user.receive(QStringLiteral("remove"), stick);
        QCOMPARE(user.favorite->text(), RemoveText);
        QCOMPARE(user.favorites->currentItem()->text(), QStringLiteral("a"));
    });
}

/// Whatever path a message names.
void TestOxFileDialogFavorites::messagesRemoveNothingButMedia()
{
    const FileDialogHome home;
    const QString a = home.addFolder(QStringLiteral("a"));
    addFavorite(a);
    const QStringList before = stored();
    open([&](const FileDialogUser& user) {
        for (const QString& path : { home.desktop(), home.path(), a }) {
            user.receive(QStringLiteral("add"), path);
            user.receive(QStringLiteral("remove"), path);
        }
        QCOMPARE(user.favoriteNames(), fixedNames() + QStringList { QStringLiteral("a") });
    });
    QCOMPARE(stored(), before);
}

void TestOxFileDialogFavorites::unknownMessagesAreIgnored_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("another name") << QStringLiteral("raise");
    QTest::newRow("capitals") << QStringLiteral("Add");
    QTest::newRow("a blank more") << QStringLiteral("add ");
    QTest::newRow("nothing") << QString();
}

void TestOxFileDialogFavorites::unknownMessagesAreIgnored()
{
    const FileDialogHome home;
    QFETCH(QString, message);
    open([&](const FileDialogUser& user) {
        user.receive(message, QStringLiteral("/media/STICK"));
        QCOMPARE(user.favoriteNames(), fixedNames());
    });
}

UW_TEST_MAIN_WITH(FileDialogApplication, TestOxFileDialogFavorites)

#include "tst_oxfiledialog_favorites.moc"
