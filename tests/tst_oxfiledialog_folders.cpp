// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxfiledialog.h"

#include "support/filedialoguser.h"
#include "support/finger.h"
#include "support/modaldialog.h"
#include "support/test.h"

#include <QFileInfo>
#include <QLineEdit>

#include <functional>

#include <fcntl.h>
#include <unistd.h>

namespace {

using Script = std::function<void(const FileDialogUser&)>;

const QString AllFiles = QStringLiteral("All files (*)");

QString openFile(const Script& script, const QString& dir = {})
{
    return whileModal<OxFileDialog>(
        [&] { return OxFileDialog::getOpenFileName(nullptr, {}, dir, AllFiles); },
        [script](OxFileDialog* dialog) { script(FileDialogUser(dialog)); });
}

QString selectFolder(const Script& script, const QString& dir)
{
    return whileModal<OxFileDialog>(
        [&] { return OxFileDialog::getExistingDirectory(nullptr, {}, dir); },
        [script](OxFileDialog* dialog) { script(FileDialogUser(dialog)); });
}

/// Acts as a user without rights for as long as it lives, if the test runs as root.
class WithoutRights
{
public:
    WithoutRights()
    {
        if (::geteuid() == 0 && ::seteuid(Nobody) != 0) {
            qFatal("cannot give up root's rights");
        }
    }
    ~WithoutRights()
    {
        if (::getuid() == 0 && ::seteuid(0) != 0) {
            qFatal("cannot take back root's rights");
        }
    }
    Q_DISABLE_COPY_MOVE(WithoutRights)

private:
    static constexpr uid_t Nobody = 65534;
};

/// Names that a person, or another system, may give a file or a folder.
void addOddNames()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << QStringLiteral(" two  blanks ");
    QTest::newRow("umlauts") << QStringLiteral("Äußerst schön");
    QTest::newRow("emoji") << QStringLiteral("🍏🇩🇪👩‍🚀");
    QTest::newRow("right to left") << QStringLiteral("שלום");
    QTest::newRow("newline") << QStringLiteral("two\nlines");
    QTest::newRow("leading dash") << QStringLiteral("-rf");
    QTest::newRow("255 bytes") << QString(255, QLatin1Char('x'));
    QTest::newRow("255 bytes in umlauts") << QString(127, QChar(0xe4)) + QLatin1Char('x');
    QTest::newRow("markup") << QStringLiteral("<b>bold");
    QTest::newRow("backslash") << QStringLiteral("a\\b");
    QTest::newRow("two dots inside") << QStringLiteral("a..b");
}

} // namespace

class TestOxFileDialogFolders : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aFileOfAnOddNameIsOpened_data();
    void aFileOfAnOddNameIsOpened();
    void aFileOfAnOddNameIsDoubleTapped_data();
    void aFileOfAnOddNameIsDoubleTapped();
    void aFolderOfAnOddNameIsEnteredLeftAndKept_data();
    void aFolderOfAnOddNameIsEnteredLeftAndKept();
    void aFolderWithADotInItsNameCanBeEntered();
    void aLinkToAFolderIsEnteredAndLeft();
    void aLinkToAFolderIsSelected();
    void aLinkThatGoesInCirclesIsFollowedOnlyByTaps();
    void aDanglingLinkDoesNotOpen();
    void aFolderWithoutReadPermissionIsEmpty();
    void aFolderThatVanishesWhileShownIsEmpty();
    void aFolderThatIsReplacedWhileShownDoesNoHarm();
    void aFileThatVanishesBeforeItIsOpenedLeavesTheDialogOpen();
    void newFilesAppear();
    void theDialogMayEndWhileAFolderIsRead();
    void twentyThousandFilesAreListedAndOneIsOpened();
};

void TestOxFileDialogFolders::aFileOfAnOddNameIsOpened_data()
{
    addOddNames();
}

void TestOxFileDialogFolders::aFileOfAnOddNameIsOpened()
{
    const FileDialogHome home;
    QFETCH(QString, name);
    const QString file = home.addFile(name);
    const QString path = openFile([name](const FileDialogUser& user) {
        user.tapFile(name);
        QCOMPARE(user.nameBox->currentText(), name);
        QCOMPARE(user.files->visualRect(user.item(name)).height(), 35);
        Finger().tap(user.accept);
    });
    QCOMPARE(path, file);
}

void TestOxFileDialogFolders::aFileOfAnOddNameIsDoubleTapped_data()
{
    addOddNames();
}

void TestOxFileDialogFolders::aFileOfAnOddNameIsDoubleTapped()
{
    const FileDialogHome home;
    QFETCH(QString, name);
    const QString file = home.addFile(name);
    const QString path = openFile([name](const FileDialogUser& user) { user.doubleTapFile(name); });
    QCOMPARE(path, file);
}

void TestOxFileDialogFolders::aFolderOfAnOddNameIsEnteredLeftAndKept_data()
{
    addOddNames();
}

void TestOxFileDialogFolders::aFolderOfAnOddNameIsEnteredLeftAndKept()
{
    const FileDialogHome home;
    QFETCH(QString, name);
    const QString folder = home.addFolder(name);
    const QString file = home.addFile(name + QStringLiteral("/inside"));
    openFile([&](const FileDialogUser& user) {
        user.doubleTapFile(name);
        QVERIFY(user.lists({ QStringLiteral("inside") }));
        QCOMPARE(user.locations().constFirst(), folder);
        Finger().tap(user.favorite);
        QCOMPARE(user.favoriteNames().last(), name);
        Finger().tap(user.up);
        QCOMPARE(user.locations().constFirst(), home.path());
        Finger().tap(user.cancel);
    });
    const QString path = openFile([&](const FileDialogUser& user) {
        user.tapFavorite(name);
        user.doubleTapFile(QStringLiteral("inside"));
    });
    QCOMPARE(path, file);
}

/// Only a path that a dialog is opened with is cut there.
void TestOxFileDialogFolders::aFolderWithADotInItsNameCanBeEntered()
{
    const FileDialogHome home;
    home.addFolder(QStringLiteral("v1.2"));
    const QString file = home.addFile(QStringLiteral("v1.2/a.txt"));
    const QString path = openFile([](const FileDialogUser& user) {
        user.doubleTapFile(QStringLiteral("v1.2"));
        user.tapFile(QStringLiteral("a.txt"));
        Finger().tap(user.accept);
    });
    QCOMPARE(path, file);
}

void TestOxFileDialogFolders::aLinkToAFolderIsEnteredAndLeft()
{
    const FileDialogHome home;
    const QString target = home.addFolder(QStringLiteral("far/away"));
    home.addFile(QStringLiteral("far/away/a.txt"));
    QVERIFY(QFile::link(target, home.path(QStringLiteral("link"))));
    openFile([&](const FileDialogUser& user) {
        user.doubleTapFile(QStringLiteral("link"));
        QVERIFY(user.lists({ QStringLiteral("a.txt") }));
        QCOMPARE(user.locationBox->currentText(), home.path(QStringLiteral("link")));
        Finger().tap(user.up);
        QCOMPARE(user.locationBox->currentText(), home.path());
        QVERIFY(user.item(QStringLiteral("link")).isValid());
        Finger().tap(user.cancel);
    });
}

void TestOxFileDialogFolders::aLinkToAFolderIsSelected()
{
    const FileDialogHome home;
    QVERIFY(
        QFile::link(home.addFolder(QStringLiteral("far/away")), home.path(QStringLiteral("link"))));
    const QString path = selectFolder(
        [](const FileDialogUser& user) {
            user.tapFile(QStringLiteral("link"));
            Finger().tap(user.accept);
        },
        home.path());
    QCOMPARE(path, home.path(QStringLiteral("link")));
}

void TestOxFileDialogFolders::aLinkThatGoesInCirclesIsFollowedOnlyByTaps()
{
    const FileDialogHome home;
    QVERIFY(QFile::link(home.path(), home.path(QStringLiteral("self"))));
    openFile([&](const FileDialogUser& user) {
        user.doubleTapFile(QStringLiteral("self"));
        user.doubleTapFile(QStringLiteral("self"));
        QCOMPARE(user.locationBox->currentText(), home.path(QStringLiteral("self/self")));
        Finger().tap(user.cancel);
    });
}

void TestOxFileDialogFolders::aDanglingLinkDoesNotOpen()
{
    const FileDialogHome home;
    QVERIFY(QFile::link(home.path(QStringLiteral("gone")), home.path(QStringLiteral("link"))));
    const QString path = openFile([](const FileDialogUser& user) {
        // It may be listed or not: a person can also type its name.
        FileDialogUser::type(QStringLiteral("link"));
        Finger().tap(user.accept);
        QVERIFY(user.dialog->isVisible());
        Finger().tap(user.cancel);
    });
    QVERIFY(path.isEmpty());
}

void TestOxFileDialogFolders::aFolderWithoutReadPermissionIsEmpty()
{
    const FileDialogHome home;
    const QString folder = home.addFolder(QStringLiteral("locked"));
    home.addFile(QStringLiteral("locked/a.txt"));
    home.addFolder(QStringLiteral("open"));
    home.addFile(QStringLiteral("open/b.txt"));
    const auto everyone = QFile::ReadOther | QFile::ExeOther | QFile::ReadGroup | QFile::ExeGroup
        | QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    QVERIFY(QFile::setPermissions(QFileInfo(home.path()).path(), everyone));
    QVERIFY(QFile::setPermissions(folder, {}));
    openFile([&](const FileDialogUser& user) {
        user.item(QStringLiteral("locked"));
        const WithoutRights withoutRights;
        QVERIFY(::eaccess(QFile::encodeName(folder).constData(), R_OK) != 0);
        user.doubleTapFile(QStringLiteral("locked"));
        QCOMPARE(user.locationBox->currentText(), folder);
        QCoreApplication::processEvents();
        QCOMPARE(user.listedNames(), QStringList());
        Finger().tap(user.up);
        user.doubleTapFile(QStringLiteral("open"));
        QVERIFY(user.lists({ QStringLiteral("b.txt") }));
        QVERIFY(user.dialog->isVisible());
        Finger().tap(user.cancel);
    });
    QVERIFY(QFile::setPermissions(folder, everyone));
}

void TestOxFileDialogFolders::aFolderThatVanishesWhileShownIsEmpty()
{
    const FileDialogHome home;
    const QString folder = home.addFolder(QStringLiteral("a/designs"));
    home.addFile(QStringLiteral("a/designs/a.txt"));
    openFile(
        [&](const FileDialogUser& user) {
            user.tapFile(QStringLiteral("a.txt"));
            QVERIFY(QDir(folder).removeRecursively());
            QVERIFY(user.lists({}));
            QCOMPARE(user.files->model()->rowCount(user.files->rootIndex()), 0);
            QCOMPARE(user.locationBox->currentText(), folder);
            Finger().tap(user.accept);
            QVERIFY(user.dialog->isVisible());
            Finger().tap(user.up);
            QCOMPARE(user.locationBox->currentText(), home.path(QStringLiteral("a")));
            Finger().tap(user.up);
            QVERIFY(user.item(QStringLiteral("Desktop")).isValid());
            Finger().tap(user.cancel);
        },
        folder);
}

void TestOxFileDialogFolders::aFolderThatIsReplacedWhileShownDoesNoHarm()
{
    const FileDialogHome home;
    const QString folder = home.addFolder(QStringLiteral("designs"));
    home.addFile(QStringLiteral("designs/a.txt"));
    openFile(
        [&](const FileDialogUser& user) {
            user.item(QStringLiteral("a.txt"));
            QVERIFY(QDir(folder).removeRecursively());
            home.addFile(QStringLiteral("designs")); // a file of the same name
            QVERIFY(user.lists({}));
            Finger().tap(user.up);
            user.doubleTapFile(QStringLiteral("designs"));
        },
        folder);
}

void TestOxFileDialogFolders::aFileThatVanishesBeforeItIsOpenedLeavesTheDialogOpen()
{
    const FileDialogHome home;
    const QString file = home.addFile(QStringLiteral("a.txt"));
    openFile([&](const FileDialogUser& user) {
        user.tapFile(QStringLiteral("a.txt"));
        QVERIFY(QFile::remove(file));
        Finger().tap(user.accept);
        QVERIFY(user.dialog->isVisible());
        Finger().tap(user.cancel);
    });
}

void TestOxFileDialogFolders::newFilesAppear()
{
    const FileDialogHome home;
    openFile([&](const FileDialogUser& user) {
        QVERIFY(user.lists({ QStringLiteral("Desktop") }));
        home.addFile(QStringLiteral("new"));
        QVERIFY(user.lists({ QStringLiteral("Desktop"), QStringLiteral("new") }));
        Finger().tap(user.cancel);
    });
}

void TestOxFileDialogFolders::theDialogMayEndWhileAFolderIsRead()
{
    const FileDialogHome home;
    for (int i = 0; i < 2000; ++i) {
        home.addFile(QString::number(i));
    }
    for (int round = 0; round < 10; ++round) {
        openFile([](const FileDialogUser& user) { Finger().tap(user.cancel); });
    }
}

void TestOxFileDialogFolders::twentyThousandFilesAreListedAndOneIsOpened()
{
    constexpr int count = 20000;
    const FileDialogHome home;
    const QByteArray folder = QFile::encodeName(home.path());
    for (int i = 0; i < count; ++i) {
        const QByteArray path = folder + '/' + QByteArray::number(i);
        const int file = ::open(path.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
        QVERIFY(file >= 0);
        ::close(file);
    }
    const QString chosen = openFile([&](const FileDialogUser& user) {
        const QAbstractItemModel* model = user.files->model();
        QTRY_COMPARE_WITH_TIMEOUT(model->rowCount(user.files->rootIndex()), count + 1, 60000);
        user.tapFile(QStringLiteral("12345"));
        Finger().tap(user.accept);
    });
    QCOMPARE(chosen, home.path(QStringLiteral("12345")));
}

UW_TEST_MAIN_WITH(FileDialogApplication, TestOxFileDialogFolders)

#include "tst_oxfiledialog_folders.moc"
