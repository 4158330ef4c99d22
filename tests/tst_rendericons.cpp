// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/program.h"
#include "support/test.h"

#include <QApplication>
#include <QDirIterator>
#include <QImage>

namespace {

/// A project of its own with one drawing, made anew for each test.
class SmallProject
{
public:
    SmallProject()
    {
        write(QStringLiteral("resources/masters/box.svg"),
              R"svg(<svg viewBox="0 0 4 2">
                      <path fill="var(--ink, #112233)" d="M0 0H4V2H0Z"/>
                    </svg>)svg");
        writeManifest(R"({"macro": "BOX", "path": "Set/box.png", "role": "A box",
                          "size": [8, 6], "master": "box", "look": "dark"})");
    }

    void writeManifest(const QByteArray& images) const
    {
        const QByteArray looks = R"({
            "dark": {"ground": "#000000", "colours": {"ink": "#fd7800"}},
            "plain": {"ground": "#ffffff"}})";
        write(QStringLiteral("resources/masters/manifest.json"),
              R"({"looks": )" + looks + R"(, "images": [)" + images + "]}");
    }

    void write(const QString& name, const QByteArray& content) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }

    QByteArray read(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }

    ProgramResult run(const QStringList& arguments = {}) const
    {
        return runProgram(QStringLiteral(RENDERICONS), QStringList { m_folder.path() } + arguments);
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

class TestRenderIcons : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void centresTheDrawingInItsColoursAtBothScales();
    void takesADrawingsOwnColourWhereTheLookHasNone();
    void turnsADrawing();
    void keepsAPathWithoutExtensionAsAnAlias();
    void fillsAJpegWithItsMatteAndKeepsThinColouredLines();
    void writesAllSizesOfAnIcon();
    void writesTheMacroTheTableAndTheResourceList();
    void leavesFilesThatMatchUntouched();
    void checkNamesWhatDiffersAndWritesNothing_data();
    void checkNamesWhatDiffersAndWritesNothing();
    void namesImagesAndDrawingsThatNobodyLists();
    void refusesAFaultyManifest_data();
    void refusesAFaultyManifest();
    void refusesADrawingThatIsMissingOrTooLarge();
    void writesContactSheets();
    void refusesContradictoryOptions();
};

void TestRenderIcons::centresTheDrawingInItsColoursAtBothScales()
{
    const SmallProject project;

    QCOMPARE(project.run().exitCode, 0);

    const QImage once(project.path(QStringLiteral("resources/Set/box.png")));
    const QImage twice(project.path(QStringLiteral("resources/Set/box@2x.png")));
    QCOMPARE(once.size(), QSize(8, 6));
    QCOMPARE(twice.size(), QSize(16, 12));
    for (int scale : { 1, 2 }) {
        const QImage& image = scale == 1 ? once : twice;
        const QRect box(2 * scale, 2 * scale, 4 * scale, 2 * scale);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                QCOMPARE(image.pixelColor(x, y).alpha(), box.contains(x, y) ? 255 : 0);
            }
        }
        QCOMPARE(image.pixelColor(box.center()), QColor(0xfd7800));
    }
}

void TestRenderIcons::takesADrawingsOwnColourWhereTheLookHasNone()
{
    const SmallProject project;
    project.writeManifest(R"({"macro": "BOX", "path": "Set/box.png", "role": "A box",
                          "size": [4, 2], "master": "box", "look": "plain"},
                          {"macro": "OTHER", "path": "Set/other.png", "role": "A box",
                          "size": [4, 2], "master": "box", "look": "dark",
                          "with": {"ink": "#445566"}})");

    QCOMPARE(project.run().exitCode, 0);

    QCOMPARE(QImage(project.path(QStringLiteral("resources/Set/box.png"))).pixelColor(0, 0),
             QColor(0x112233));
    QCOMPARE(QImage(project.path(QStringLiteral("resources/Set/other.png"))).pixelColor(0, 0),
             QColor(0x445566));
}

void TestRenderIcons::turnsADrawing()
{
    const SmallProject project;
    project.write(QStringLiteral("resources/masters/box.svg"),
                  R"(<svg viewBox="0 0 4 2"><path d="M0 0H1V2H0Z"/></svg>)");
    project.writeManifest(R"({"macro": "BOX", "path": "Set/box.png", "role": "A box",
                          "size": [2, 4], "master": "box", "look": "dark", "rotate": 90})");

    QCOMPARE(project.run().exitCode, 0);

    const QImage image(project.path(QStringLiteral("resources/Set/box.png")));
    QCOMPARE(image.size(), QSize(2, 4));
    for (int y = 0; y < 4; ++y) {
        QCOMPARE(image.pixelColor(0, y).alpha(), y == 0 ? 255 : 0);
        QCOMPARE(image.pixelColor(1, y).alpha(), y == 0 ? 255 : 0);
    }
}

void TestRenderIcons::keepsAPathWithoutExtensionAsAnAlias()
{
    const SmallProject project;
    project.writeManifest(R"({"macro": "BOX", "path": "Set/box", "role": "A box",
                          "size": [4, 2], "master": "box", "look": "dark"})");

    QCOMPARE(project.run().exitCode, 0);

    QVERIFY(QFile::exists(project.path(QStringLiteral("resources/Set/box@2x.png"))));
    const QByteArray list = project.read(QStringLiteral("resources/module_resource_icons.qrc"));
    QVERIFY(list.contains(R"(<file alias="Set/box">Set/box.png</file>)"));
    QVERIFY(list.contains(R"(<file alias="Set/box@2x">Set/box@2x.png</file>)"));
}

void TestRenderIcons::fillsAJpegWithItsMatteAndKeepsThinColouredLines()
{
    const SmallProject project;
    project.write(QStringLiteral("resources/masters/box.svg"),
                  R"(<svg viewBox="0 0 16 16"><path fill="#fd7800" d="M5 0H6V16H5Z"/></svg>)");
    project.writeManifest(R"({"macro": "BOX", "path": "Set/box.jpg", "role": "A box",
                          "size": [16, 16], "master": "box", "look": "dark",
                          "matte": "#2b2b2b"})");

    QCOMPARE(project.run().exitCode, 0);

    const QImage image(project.path(QStringLiteral("resources/Set/box.jpg")), "jpg");
    const auto isNear = [&image](int x, QRgb colour) {
        const QRgb pixel = image.pixel(x, 8);
        return qAbs(qRed(pixel) - qRed(colour)) < 16 && qAbs(qGreen(pixel) - qGreen(colour)) < 16
            && qAbs(qBlue(pixel) - qBlue(colour)) < 16;
    };
    QVERIFY(isNear(4, 0x2b2b2b));
    QVERIFY(isNear(5, 0xfd7800));
    QVERIFY(isNear(6, 0x2b2b2b));
}

void TestRenderIcons::writesAllSizesOfAnIcon()
{
    const SmallProject project;
    project.writeManifest(R"({"macro": "BOX", "path": "Set/box.ico", "role": "A box",
                          "size": [32, 32], "master": "box", "look": "dark", "icon":
                          [{"size": 32, "master": "box"}, {"size": 16, "master": "box"}]})");

    QCOMPARE(project.run().exitCode, 0);

    QCOMPARE(QIcon(project.path(QStringLiteral("resources/Set/box.ico"))).availableSizes(),
             QList<QSize>({ QSize(32, 32), QSize(16, 16) }));
    QVERIFY(!QFile::exists(project.path(QStringLiteral("resources/Set/box@2x.ico"))));
}

void TestRenderIcons::writesTheMacroTheTableAndTheResourceList()
{
    const SmallProject project;

    QCOMPARE(project.run().exitCode, 0);

    QVERIFY(project.read(QStringLiteral("look/images.h"))
                .contains("/// A box; 8 x 6.\n#define LOOK_IMAGE_BOX \":/Set/box.png\"\n"));
    QVERIFY(project.read(QStringLiteral("look/imagetable.h"))
                .contains("{\"LOOK_IMAGE_BOX\", LOOK_IMAGE_BOX, 8, 6, \"#000000\"},\n"));
    QVERIFY(project.read(QStringLiteral("resources/module_resource_icons.qrc"))
                .contains("<file>Set/box.png</file>\n    <file>Set/box@2x.png</file>\n"));
}

void TestRenderIcons::leavesFilesThatMatchUntouched()
{
    const SmallProject project;
    QCOMPARE(project.run().exitCode, 0);
    const QString image = project.path(QStringLiteral("resources/Set/box.png"));
    QVERIFY(QImage(image).save(image, "png", 100)); // the same pixels in other bytes
    const QByteArray bytes = project.read(QStringLiteral("resources/Set/box.png"));

    const ProgramResult result = project.run();

    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QString());
    QCOMPARE(project.read(QStringLiteral("resources/Set/box.png")), bytes);
}

void TestRenderIcons::checkNamesWhatDiffersAndWritesNothing_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("image") << QStringLiteral("resources/Set/box.png");
    QTest::newRow("image for fine screens") << QStringLiteral("resources/Set/box@2x.png");
    QTest::newRow("resource list") << QStringLiteral("resources/module_resource_icons.qrc");
    QTest::newRow("macros") << QStringLiteral("look/images.h");
    QTest::newRow("table") << QStringLiteral("look/imagetable.h");
}

void TestRenderIcons::checkNamesWhatDiffersAndWritesNothing()
{
    QFETCH(QString, file);
    const SmallProject project;
    QCOMPARE(project.run().exitCode, 0);
    QCOMPARE(project.run({ QStringLiteral("--check") }).exitCode, 0);

    project.write(file, "something else");
    const ProgramResult changed = project.run({ QStringLiteral("--check") });

    QCOMPARE(changed.exitCode, 1);
    QCOMPARE(changed.output, file + QLatin1Char('\n'));
    QCOMPARE(project.read(file), QByteArray("something else"));

    QVERIFY(QFile::remove(project.path(file)));
    const ProgramResult missing = project.run({ QStringLiteral("--check") });

    QCOMPARE(missing.exitCode, 1);
    QCOMPARE(missing.output, file + QLatin1Char('\n'));
    QVERIFY(!QFile::exists(project.path(file)));
}

void TestRenderIcons::namesImagesAndDrawingsThatNobodyLists()
{
    const SmallProject project;
    QCOMPARE(project.run().exitCode, 0);
    project.write(QStringLiteral("resources/Set/left-over.png"), "");
    project.write(QStringLiteral("resources/masters/left-over.svg"), "");

    const ProgramResult result = project.run({ QStringLiteral("--check") });

    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.output,
             QStringLiteral("not in the manifest: resources/Set/left-over.png\n"
                            "not in the manifest: resources/masters/left-over.svg\n"));
}

void TestRenderIcons::refusesAFaultyManifest_data()
{
    QTest::addColumn<QByteArray>("images");
    QTest::addColumn<QString>("complaint");
    const auto image = [](const QByteArray& path, const QByteArray& rest) -> QByteArray {
        return R"({"macro": "BOX", "path": ")" + path + R"(", "role": "A box", "size": [8, 6], )"
            + rest + "}";
    };
    const QByteArray good = R"("master": "box", "look": "dark")";
    QTest::newRow("no images") << QByteArray() << QStringLiteral("lists no images");
    QTest::newRow("no JSON") << QByteArray("{") << QStringLiteral("byte");
    QTest::newRow("misspelt key") << image("a.png", good + R"(, "rotation": 90)")
                                  << QStringLiteral("unknown key \"rotation\"");
    QTest::newRow("unknown look") << image("a.png", R"("master": "box", "look": "light")")
                                  << QStringLiteral("no look is called \"light\"");
    QTest::newRow("no drawing") << image("a.png", R"("look": "dark")")
                                << QStringLiteral("is missing");
    QTest::newRow("odd angle") << image("a.png", good + R"(, "rotate": 45)")
                               << QStringLiteral("no multiple of 90");
    QTest::newRow("no colour") << image("a.png", good + R"(, "with": {"ink": "oringe"})")
                               << QStringLiteral("\"oringe\" is no colour");
    QTest::newRow("JPEG without matte")
        << image("a.jpg", good) << QStringLiteral("\"matte\" belongs to .jpg files");
    QTest::newRow("icon without sizes")
        << image("a.ico", good) << QStringLiteral("\"icon\" belongs to .ico files");
    QTest::newRow("listed twice") << image("a.png", good) + "," + image("a.png", good)
                                  << QStringLiteral("listed twice");
}

void TestRenderIcons::refusesAFaultyManifest()
{
    QFETCH(QByteArray, images);
    QFETCH(QString, complaint);
    const SmallProject project;
    project.writeManifest(images);

    const ProgramResult result = project.run();

    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains(complaint), qPrintable(result.errors));
    QVERIFY(!QFile::exists(project.path(QStringLiteral("look/images.h"))));
}

void TestRenderIcons::refusesADrawingThatIsMissingOrTooLarge()
{
    const SmallProject project;
    project.writeManifest(R"({"macro": "A", "path": "Set/a.png", "role": "A",
                          "size": [8, 6], "master": "nowhere", "look": "dark"},
                          {"macro": "B", "path": "Set/b.png", "role": "B",
                          "size": [3, 6], "master": "box", "look": "dark"})");

    const ProgramResult result = project.run();

    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.errors.contains(QLatin1String("nowhere.svg")));
    QVERIFY(result.errors.contains(QLatin1String("Set/b.png: box.svg")));
    QVERIFY(!QFile::exists(project.path(QStringLiteral("resources/Set/b.png"))));
}

void TestRenderIcons::writesContactSheets()
{
    const SmallProject project;

    const ProgramResult result =
        project.run({ QStringLiteral("--sheets"), project.path(QStringLiteral("sheets")) });

    QCOMPARE(result.exitCode, 0);
    QVERIFY(!QImage(project.path(QStringLiteral("sheets/Set.png"))).isNull());
    QVERIFY(!QFile::exists(project.path(QStringLiteral("look/images.h"))));
}

void TestRenderIcons::refusesContradictoryOptions()
{
    const SmallProject project;

    QCOMPARE(project
                 .run({ QStringLiteral("--check"), QStringLiteral("--sheets"),
                        project.path(QStringLiteral("sheets")) })
                 .exitCode,
             2);
    QCOMPARE(project.run({ QStringLiteral("elsewhere") }).exitCode, 2);
}

UW_TEST_MAIN(TestRenderIcons)

#include "tst_rendericons.moc"
