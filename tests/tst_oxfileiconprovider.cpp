// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxfileiconprovider.h"

#include "look/images.h"
#include "support/test.h"

#include <QDir>
#include <QFile>
#include <QFileSystemModel>
#include <QTemporaryDir>

class TestOxFileIconProvider : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void showsFoldersAndFilesWithTheirPicture_data();
    void showsFoldersAndFilesWithTheirPicture();
    void followsLinks();
    void leavesThePicturesOfSelectedRowsUntinted_data();
    void leavesThePicturesOfSelectedRowsUntinted();
    void greysThePicturesOfDisabledRows();
    void leavesTheIconsOfTypesToTheBaseClass();
    void givesAModelItsIcons();
};

namespace {

QImage imageOf(const QIcon& icon, QIcon::Mode mode = QIcon::Normal)
{
    return icon.pixmap(QSize(35, 35), 1.0, mode).toImage().convertToFormat(QImage::Format_ARGB32);
}

QImage imageAt(const char* path)
{
    return QImage(QString::fromLatin1(path)).convertToFormat(QImage::Format_ARGB32);
}

QImage folderImage()
{
    return imageAt(LOOK_IMAGE_FOLDER);
}

QImage fileImage()
{
    return imageAt(LOOK_IMAGE_FILE);
}

/// An empty file.
bool createFile(const QString& path)
{
    return QFile(path).open(QIODevice::WriteOnly);
}

} // namespace

void TestOxFileIconProvider::showsFoldersAndFilesWithTheirPicture_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("folder");

    QTest::newRow("a folder") << "designs/" << true;
    QTest::newRow("a folder whose name ends in a file extension") << "labels.txt/" << true;
    QTest::newRow("a hidden folder") << ".cache/" << true;
    QTest::newRow("a text file") << "report.txt" << false;
    QTest::newRow("a picture") << "photo.png" << false;
    QTest::newRow("a file without extension") << "designs" << false;
    QTest::newRow("an archive") << "folder.zip" << false;
}

void TestOxFileIconProvider::showsFoldersAndFilesWithTheirPicture()
{
    QFETCH(QString, name);
    QFETCH(bool, folder);
    const QTemporaryDir dir;
    const QString path = dir.filePath(name);
    QVERIFY(folder ? QDir().mkpath(path) : createFile(path));

    const QImage image = imageOf(OxFileIconProvider().icon(QFileInfo(QDir::cleanPath(path))));

    QCOMPARE(image.size(), QSize(35, 35));
    QCOMPARE(image, folder ? folderImage() : fileImage());
    QVERIFY(folderImage() != fileImage());
}

void TestOxFileIconProvider::followsLinks()
{
    const QTemporaryDir dir;
    const OxFileIconProvider provider;
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("designs")));
    QVERIFY(createFile(dir.filePath(QStringLiteral("report.txt"))));
    const auto imageOfLinkTo = [&](const char* target) {
        const QString link = dir.filePath(QStringLiteral("link to "))
            + QString::fromLatin1(target).section(QLatin1Char('/'), -1);
        const bool made = QFile::link(QString::fromLatin1(target), link);
        return made ? imageOf(provider.icon(QFileInfo(link))) : QImage();
    };

    QCOMPARE(imageOfLinkTo("designs"), folderImage());
    QCOMPARE(imageOfLinkTo("report.txt"), fileImage());
    QCOMPARE(imageOfLinkTo("nothing"), fileImage());
    QCOMPARE(imageOfLinkTo("/dev/null"), fileImage());
}

void TestOxFileIconProvider::leavesThePicturesOfSelectedRowsUntinted_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("folder") << QStringLiteral("/");
    QTest::newRow("file") << QStringLiteral("/dev/null");
}

void TestOxFileIconProvider::leavesThePicturesOfSelectedRowsUntinted()
{
    QFETCH(QString, path);
    const QIcon icon = OxFileIconProvider().icon(QFileInfo(path));

    QCOMPARE(imageOf(icon, QIcon::Selected), imageOf(icon));
}

void TestOxFileIconProvider::greysThePicturesOfDisabledRows()
{
    const QIcon icon = OxFileIconProvider().icon(QFileInfo(QStringLiteral("/")));

    QVERIFY(imageOf(icon, QIcon::Disabled) != imageOf(icon));
}

void TestOxFileIconProvider::leavesTheIconsOfTypesToTheBaseClass()
{
    const OxFileIconProvider provider;

    for (const auto type : { QFileIconProvider::Folder, QFileIconProvider::File }) {
        QCOMPARE(imageOf(provider.icon(type)), imageOf(QFileIconProvider().icon(type)));
        QVERIFY(imageOf(provider.icon(type)) != folderImage());
    }
}

void TestOxFileIconProvider::givesAModelItsIcons()
{
    const QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("designs")));
    QVERIFY(createFile(dir.filePath(QStringLiteral("report.txt"))));
    OxFileIconProvider provider;
    QFileSystemModel model;
    model.setIconProvider(&provider);

    const QModelIndex root = model.setRootPath(dir.path());

    QTRY_COMPARE(model.rowCount(root), 2);
    const auto imageOfRow = [&](const char* name) {
        return imageOf(model.fileIcon(model.index(dir.filePath(QString::fromLatin1(name)))));
    };
    QTRY_COMPARE(imageOfRow("designs"), folderImage());
    QTRY_COMPARE(imageOfRow("report.txt"), fileImage());
}

UW_TEST_MAIN(TestOxFileIconProvider)

#include "tst_oxfileiconprovider.moc"
