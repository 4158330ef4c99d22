// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "mountinfo.h"

#include "support/test.h"

#include <QCoreApplication>

class TestMountInfo : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void unescapes_data();
    void unescapes();
    void findsWhatIsMountedBelowTheFolders_data();
    void findsWhatIsMountedBelowTheFolders();
    void tellsTwoListsApart_data();
    void tellsTwoListsApart();
};

void TestMountInfo::unescapes_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("nothing") << QByteArray() << QByteArray();
    QTest::newRow("plain") << QByteArray("/media/usb") << QByteArray("/media/usb");
    QTest::newRow("blank") << QByteArray("/media/My\\040Stick") << QByteArray("/media/My Stick");
    QTest::newRow("two in a row") << QByteArray("a\\040\\040b") << QByteArray("a  b");
    QTest::newRow("tab") << QByteArray("a\\011b") << QByteArray("a\tb");
    QTest::newRow("line break") << QByteArray("a\\012b") << QByteArray("a\nb");
    QTest::newRow("backslash") << QByteArray("a\\134b") << QByteArray("a\\b");
    QTest::newRow("backslash and digits") << QByteArray("a\\134040b") << QByteArray("a\\040b");
    QTest::newRow("number sign") << QByteArray("\\043") << QByteArray("#");
    QTest::newRow("beyond ASCII") << QByteArray("\\303\\244") << QByteArray("\xc3\xa4");
    QTest::newRow("cut off") << QByteArray("a\\04") << QByteArray("a\\04");
    QTest::newRow("no octal digits") << QByteArray("a\\08x") << QByteArray("a\\08x");
    QTest::newRow("beyond a byte") << QByteArray("a\\777") << QByteArray("a\\777");
}

void TestMountInfo::unescapes()
{
    QFETCH(QByteArray, field);

    QTEST(MountInfo::unescaped(field), "text");
}

void TestMountInfo::findsWhatIsMountedBelowTheFolders_data()
{
    QTest::addColumn<QByteArray>("mountinfo");
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<QStringList>("paths");
    const auto row = [](const char* name, const QByteArray& mountinfo, const QStringList& paths,
                        const QStringList& folders = { QStringLiteral("/media") }) {
        QTest::newRow(name) << mountinfo << folders << paths;
    };
    const QString usb = QStringLiteral("/media/usb");
    const QByteArray root = "25 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n";
    const QByteArray stick = "61 25 8:17 / /media/usb rw shared:3 - vfat /dev/sdb1 rw,utf8\n";

    constexpr char Garbage[] = "\0\xff \n\n - - - - - -\n/media/usb\n";

    row("nothing is mounted", "", {});
    row("nothing below", root, {});
    row("one", root + stick, { usb });
    row("no optional fields", "61 25 8:17 / /media/usb rw - vfat /dev/sdb1 rw\n", { usb });
    row("several optional fields",
        "61 25 8:17 / /media/usb rw shared:3 master:1 unbindable - vfat /dev/sdb1 rw\n", { usb });
    row("no line break at the end", stick.chopped(1), { usb });
    row("a label with a blank", "61 25 8:17 / /media/My\\040Stick rw - vfat /dev/sdb1 rw\n",
        { QStringLiteral("/media/My Stick") });
    row("a label with an umlaut", "61 25 8:17 / /media/K\xc3\xbchler rw - vfat /dev/sdb1 rw\n",
        { QStringLiteral("/media/Kühler") });
    row("a label with a line break", "61 25 8:17 / /media/a\\012b rw - vfat /dev/sdb1 rw\n",
        { QStringLiteral("/media/a\nb") });
    row("a label that looks like the separator", "61 25 8:17 / /media/- rw - vfat /dev/sdb1 rw\n",
        { QStringLiteral("/media/-") });
    row("deep below", "61 25 8:17 / /media/person/usb rw - vfat /dev/sdb1 rw\n",
        { QStringLiteral("/media/person/usb") });
    row("on the folder itself", "61 25 8:17 / /media rw - tmpfs tmpfs rw\n", {});
    row("beside the folder", "61 25 8:17 / /mediaserver rw - ext4 /dev/sdb1 rw\n", {});
    row("the same place twice", stick + "62 61 8:18 / /media/usb rw - vfat /dev/sdb2 rw\n",
        { usb });
    row("in the order of mounting",
        "61 25 8:17 / /media/b rw - vfat /dev/sdb1 rw\n"
        "62 25 8:18 / /media/a rw - vfat /dev/sdb2 rw\n",
        { QStringLiteral("/media/b"), QStringLiteral("/media/a") });
    row("two folders", stick + "62 25 8:18 / /mnt/x rw - vfat /dev/sdb2 rw\n",
        { usb, QStringLiteral("/mnt/x") }, { QStringLiteral("/mnt"), QStringLiteral("/media") });
    row("no folders", stick, {}, {});
    row("the root folder", "garbage\n" + root + stick, { usb }, { QStringLiteral("/") });
    row("mounted once it is looked at", "61 25 0:50 / /media/usb rw - autofs systemd-1 rw,fd=50\n",
        {});
    row("and then looked at", "61 25 0:50 / /media/usb rw - autofs systemd-1 rw,fd=50\n" + stick,
        { usb });
    row("deleted", "61 25 8:17 / /media/usb//deleted rw - vfat /dev/sdb1 rw\n", {});
    row("cut off before the type", "61 25 8:17 / /media/usb rw shared:3 -", {});
    row("cut off before the separator", "61 25 8:17 / /media/usb rw shared:3", {});
    row("garbage", QByteArray(Garbage, sizeof(Garbage) - 1), {});
}

void TestMountInfo::findsWhatIsMountedBelowTheFolders()
{
    QFETCH(QByteArray, mountinfo);
    QFETCH(QStringList, folders);

    QTEST(MountInfo::mountsBelow(folders, mountinfo), "paths");
}

void TestMountInfo::tellsTwoListsApart_data()
{
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QStringList>("after");
    QTest::addColumn<QStringList>("removed");
    QTest::addColumn<QStringList>("added");
    const auto list = [](const char* letters) {
        return QString::fromLatin1(letters).split(QString(), Qt::SkipEmptyParts);
    };
    const auto row = [&](const char* name, const char* before, const char* after,
                         const char* removed, const char* added) {
        QTest::newRow(name) << list(before) << list(after) << list(removed) << list(added);
    };

    row("empty and empty", "", "", "", "");
    row("the same", "ab", "ab", "", "");
    row("another order", "ab", "ba", "", "");
    row("one more", "a", "ab", "", "b");
    row("one less", "abc", "ac", "b", "");
    row("from nothing", "", "ba", "", "ba");
    row("to nothing", "ba", "", "ba", "");
    row("something else", "ab", "cd", "ab", "cd");
    row("some of each", "abc", "cdb", "a", "d");
}

void TestMountInfo::tellsTwoListsApart()
{
    QFETCH(QStringList, before);
    QFETCH(QStringList, after);

    const MountInfo::Changes changes = MountInfo::difference(before, after);

    QTEST(changes.removed, "removed");
    QTEST(changes.added, "added");
}

UW_TEST_MAIN_WITH(QCoreApplication, TestMountInfo)

#include "tst_mountinfo.moc"
