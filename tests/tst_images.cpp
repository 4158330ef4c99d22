// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "containertitlebar.h"
#include "oxtitlebar.h"
#include "sharedconstants.h"

#include "iconrenderer.h"
#include "look/imagetable.h"
#include "manifest.h"
#include "outputs.h"
#include "support/test.h"

#include <QApplication>
#include <QDirIterator>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace {

QString path(const Look::Image& image)
{
    return QString::fromLatin1(image.path);
}

QSize size(const Look::Image& image)
{
    return { image.width, image.height };
}

QColor ground(const Look::Image& image)
{
    return QColor(QString::fromLatin1(image.ground));
}

bool isIcon(const Look::Image& image)
{
    return path(image).endsWith(QLatin1String(".ico"));
}

const Look::Image* findImage(const QByteArray& macro)
{
    for (const Look::Image& image : Look::images) {
        if (macro == image.macro) {
            return &image;
        }
    }
    return nullptr;
}

/// The image as it is seen, on the widget that it is drawn for.
QImage onItsGround(const Look::Image& image)
{
    QImage seen(size(image), QImage::Format_RGB32);
    seen.fill(ground(image));
    QPainter painter(&seen);
    painter.drawImage(0, 0, QImage(path(image)));
    return seen;
}

double luminance(QRgb colour)
{
    const auto linear = [](int channel) {
        const double value = channel / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour))
        + 0.0722 * linear(qBlue(colour));
}

/// The ratio that accessibility guidelines ask to be at least 3 for pictures that mean something.
double contrast(QRgb left, QRgb right)
{
    const double a = luminance(left);
    const double b = luminance(right);
    return (qMax(a, b) + 0.05) / (qMin(a, b) + 0.05);
}

template <typename Function> void forEachPixel(const QImage& image, Function function)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            function(image.pixel(x, y));
        }
    }
}

int countOrange(const Look::Image& image)
{
    int count = 0;
    forEachPixel(onItsGround(image), [&count](QRgb pixel) {
        const bool isOrange =
            qAbs(qRed(pixel) - 0xfd) < 12 && qAbs(qGreen(pixel) - 0x78) < 12 && qBlue(pixel) < 12;
        count += isOrange ? 1 : 0;
    });
    return count;
}

double meanContrast(const Look::Image& image)
{
    const QImage seen = onItsGround(image);
    double sum = 0;
    forEachPixel(seen, [&](QRgb pixel) { sum += contrast(pixel, ground(image).rgb()); });
    return sum / (seen.width() * seen.height());
}

/// The rows of a test: every state that has a twin without the suffix.
void addStates(const QByteArray& suffix)
{
    QTest::addColumn<const Look::Image*>("normal");
    QTest::addColumn<const Look::Image*>("state");
    for (const Look::Image& image : Look::images) {
        const QByteArray macro(image.macro);
        const Look::Image* normal = findImage(macro.chopped(qMin(suffix.size(), macro.size())));
        if (macro.endsWith(suffix) && normal != nullptr) {
            QTest::newRow(image.macro) << normal << &image;
        }
    }
}

/// Set before the application object is made: only an application on a fine screen uses the finer
/// images.
int& onFineScreen(int& argc)
{
    qputenv("QT_SCALE_FACTOR", "2");
    return argc;
}

class FineScreenApplication : public QApplication
{
public:
    FineScreenApplication(int& argc, char** argv)
        : QApplication(onFineScreen(argc), argv)
    { }
};

} // namespace

Q_DECLARE_METATYPE(const Look::Image*)

class TestImages : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void eachLoadsInItsSize_data();
    void eachLoadsInItsSize();
    void eachHasTheSizeThatItsUserAsksFor_data();
    void eachHasTheSizeThatItsUserAsksFor();
    void eachHasATwinForFineScreensThatIconsFind_data();
    void eachHasATwinForFineScreensThatIconsFind();
    void applicationIconHasThePictureForEverySize();
    void pathsWithoutExtensionNameFiles_data();
    void pathsWithoutExtensionNameFiles();
    void everyFileOfTheSetHasAMacro();
    void noPathAndNoMacroIsListedTwice();
    void noTwoLookTheSame();
    void eachStandsOutFromItsGround_data();
    void eachStandsOutFromItsGround();
    void disabledOnesAreGreyAndFainter_data();
    void disabledOnesAreGreyAndFainter();
    void pressedOnesAreOrange_data();
    void pressedOnesAreOrange();
    void checkedOnesAreOrange_data();
    void checkedOnesAreOrange();
    void titleBarsShowTheCloseImageInItsSize();
    void filesMatchTheirDrawings_data();
    void filesMatchTheirDrawings();
    void everyDrawingAndEveryImageIsListed();

private:
    static void addImages();
    static void stateIsOrange();
};

void TestImages::addImages()
{
    QTest::addColumn<const Look::Image*>("image");
    for (const Look::Image& image : Look::images) {
        QTest::newRow(image.macro) << &image;
    }
}

void TestImages::eachLoadsInItsSize_data()
{
    addImages();
}

void TestImages::eachLoadsInItsSize()
{
    QFETCH(const Look::Image*, image);

    QCOMPARE(QPixmap(path(*image)).size(), size(*image));
    QCOMPARE(QIcon(path(*image)).pixmap(size(*image), 1.0).size(), size(*image));
}

void TestImages::eachHasTheSizeThatItsUserAsksFor_data()
{
    QTest::addColumn<QStringList>("paths");
    QTest::addColumn<QSize>("size");
    const auto row = [](const char* user, const QSize& size,
                        std::initializer_list<const char*> paths) {
        QStringList list;
        for (const char* path : paths) {
            list << QString::fromLatin1(path);
        }
        QTest::newRow(user) << list << size;
    };
    row("close button of a title bar", CloseButtonSize, { LOOK_IMAGE_CLOSE });
    row("icon label of a title bar", QSize(29, 28), { LOOK_IMAGE_ERROR, LOOK_IMAGE_INFORMATION });
    row("zoom buttons", QSize(50, 57),
        { LOOK_IMAGE_ZOOM_IN, LOOK_IMAGE_ZOOM_IN_PRESSED, LOOK_IMAGE_ZOOM_IN_DISABLED,
          LOOK_IMAGE_ZOOM_OUT, LOOK_IMAGE_ZOOM_OUT_PRESSED, LOOK_IMAGE_ZOOM_OUT_DISABLED,
          LOOK_IMAGE_ZOOM_FIT, LOOK_IMAGE_ZOOM_FIT_PRESSED, LOOK_IMAGE_ZOOM_FIT_DISABLED });
    row("record buttons", QSize(37, 57),
        { LOOK_IMAGE_NAVIGATION_PREVIOUS, LOOK_IMAGE_NAVIGATION_NEXT });
    row("close button of the navigation bar", QSize(66, 57), { LOOK_IMAGE_NAVIGATION_CLOSE });
    row("square buttons and list rows", IconButtonSize,
        { LOOK_IMAGE_NAVIGATION_SEARCH, LOOK_IMAGE_FOLDER_UP, LOOK_IMAGE_FOLDER_UP_PRESSED,
          LOOK_IMAGE_FOLDER_UP_DISABLED, LOOK_IMAGE_COLLAPSE, LOOK_IMAGE_COLLAPSE_PRESSED,
          LOOK_IMAGE_EXPAND, LOOK_IMAGE_EXPAND_PRESSED, LOOK_IMAGE_FOLDER, LOOK_IMAGE_FILE });
    row("radio buttons", QSize(24, 24),
        { LOOK_IMAGE_RADIO_CHECKED, LOOK_IMAGE_RADIO_UNCHECKED, LOOK_IMAGE_RADIO_CHECKED_DISABLED,
          LOOK_IMAGE_RADIO_UNCHECKED_DISABLED });
    row("button in the search field", QSize(16, 16), { LOOK_IMAGE_SEARCH });
    row("colour buttons", QSize(35, 35), { LOOK_IMAGE_TRANSPARENCY });
}

void TestImages::eachHasTheSizeThatItsUserAsksFor()
{
    QFETCH(QStringList, paths);
    QFETCH(QSize, size);

    for (const QString& path : std::as_const(paths)) {
        QCOMPARE(QPixmap(path).size(), size);
    }
}

void TestImages::eachHasATwinForFineScreensThatIconsFind_data()
{
    QTest::addColumn<const Look::Image*>("image");
    for (const Look::Image& image : Look::images) {
        if (!isIcon(image)) { // holds its larger pictures itself
            QTest::newRow(image.macro) << &image;
        }
    }
}

void TestImages::eachHasATwinForFineScreensThatIconsFind()
{
    QFETCH(const Look::Image*, image);

    const QPixmap fine = QIcon(path(*image)).pixmap(size(*image), 2.0);

    QCOMPARE(fine.size(), size(*image) * 2);
    QCOMPARE(fine.devicePixelRatio(), 2.0);
}

void TestImages::applicationIconHasThePictureForEverySize()
{
    const QIcon icon(QStringLiteral(LOOK_IMAGE_APPLICATION));

    for (const int extent : { 16, 24, 32, 48, 64, 128 }) {
        QVERIFY2(icon.availableSizes().contains(QSize(extent, extent)),
                 qPrintable(QString::number(extent)));
    }
}

void TestImages::pathsWithoutExtensionNameFiles_data()
{
    QTest::addColumn<const Look::Image*>("image");
    for (const Look::Image& image : Look::images) {
        if (QFileInfo(path(image)).suffix().isEmpty()) {
            QTest::newRow(image.macro) << &image;
        }
    }
}

void TestImages::pathsWithoutExtensionNameFiles()
{
    QFETCH(const Look::Image*, image);

    // A file that is only found because Qt tries extensions would lose its finer twin.
    QVERIFY(QFile::exists(path(*image)));
    QVERIFY(QFile::exists(path(*image) + QStringLiteral("@2x")));
}

void TestImages::everyFileOfTheSetHasAMacro()
{
    QSet<QString> known;
    QSet<QString> folders;
    for (const Look::Image& image : Look::images) {
        known << path(image);
        folders << path(image).section(QLatin1Char('/'), 0, 1);
    }
    int count = 0;
    for (const QString& folder : std::as_const(folders)) {
        QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            QVERIFY2(known.contains(QString(file).remove(QStringLiteral("@2x"))), qPrintable(file));
            ++count;
        }
    }
    QCOMPARE(count, 2 * int(std::size(Look::images)) - 1); // the .ico file has no twin
}

void TestImages::noPathAndNoMacroIsListedTwice()
{
    QSet<QString> paths;
    QSet<QByteArray> macros;
    for (const Look::Image& image : Look::images) {
        paths << path(image);
        macros << image.macro;
    }
    QCOMPARE(paths.size(), int(std::size(Look::images)));
    QCOMPARE(macros.size(), int(std::size(Look::images)));
}

void TestImages::noTwoLookTheSame()
{
    for (const Look::Image& one : Look::images) {
        for (const Look::Image& other : Look::images) {
            QVERIFY2(
                &one == &other
                    || !IconRenderer::samePixels({ QImage(path(one)) }, { QImage(path(other)) }),
                qPrintable(path(one) + QLatin1Char(' ') + path(other)));
        }
    }
}

void TestImages::eachStandsOutFromItsGround_data()
{
    QTest::addColumn<const Look::Image*>("image");
    for (const Look::Image& image : Look::images) {
        // What is disabled is meant to be faint, and a swatch is all ground.
        if (!QByteArray(image.macro).endsWith("_DISABLED")
            && qstrcmp(image.path, LOOK_IMAGE_TRANSPARENCY) != 0) {
            QTest::newRow(image.macro) << &image;
        }
    }
}

void TestImages::eachStandsOutFromItsGround()
{
    QFETCH(const Look::Image*, image);
    constexpr double Noticeable = 3;
    // The smallest chevron has two arms, each two pixels wide and more than five long.
    constexpr int Enough = 20;

    int count = 0;
    forEachPixel(onItsGround(*image), [&](QRgb pixel) {
        count += contrast(pixel, ground(*image).rgb()) >= Noticeable ? 1 : 0;
    });

    QVERIFY2(count >= Enough, qPrintable(QString::number(count)));
}

void TestImages::disabledOnesAreGreyAndFainter_data()
{
    addStates("_DISABLED");
}

void TestImages::disabledOnesAreGreyAndFainter()
{
    QFETCH(const Look::Image*, normal);
    QFETCH(const Look::Image*, state);

    int mostColourful = 0;
    forEachPixel(onItsGround(*state), [&](QRgb pixel) {
        const auto [least, most] = std::minmax({ qRed(pixel), qGreen(pixel), qBlue(pixel) });
        mostColourful = qMax(mostColourful, most - least);
    });

    QVERIFY2(mostColourful <= 4, qPrintable(QString::number(mostColourful)));
    QVERIFY(meanContrast(*state) < meanContrast(*normal));
}

void TestImages::pressedOnesAreOrange_data()
{
    addStates("_PRESSED");
}

void TestImages::pressedOnesAreOrange()
{
    stateIsOrange();
}

void TestImages::checkedOnesAreOrange_data()
{
    addStates("_CHECKED");
}

void TestImages::checkedOnesAreOrange()
{
    stateIsOrange();
}

void TestImages::stateIsOrange()
{
    QFETCH(const Look::Image*, normal);
    QFETCH(const Look::Image*, state);

    QVERIFY(countOrange(*state) > countOrange(*normal) + 40);
}

void TestImages::titleBarsShowTheCloseImageInItsSize()
{
    const OxTitleBar titleBar(nullptr, QString(), QString());
    const ContainerTitleBar containerBar(nullptr, QString());

    for (const QWidget* bar :
         { static_cast<const QWidget*>(&titleBar), static_cast<const QWidget*>(&containerBar) }) {
        const auto* button = bar->findChild<QPushButton*>();
        QVERIFY(button != nullptr);
        QCOMPARE(button->iconSize(), QSize(34, 31));
        QCOMPARE(button->icon().pixmap(button->iconSize(), 1.0).toImage(),
                 QPixmap(QStringLiteral(LOOK_IMAGE_CLOSE)).toImage());
        QCOMPARE(button->icon().pixmap(button->iconSize(), 2.0).size(), QSize(68, 62));
    }
}

void TestImages::filesMatchTheirDrawings_data()
{
    const QString project = QStringLiteral(PROJECT_FOLDER);
    const QString masters = project + QStringLiteral("/resources/masters");
    const Manifest manifest(masters + QStringLiteral("/manifest.json"));
    QVERIFY2(manifest.errors().isEmpty(), qPrintable(manifest.errors().join(u'\n')));
    IconRenderer renderer(masters);

    QTest::addColumn<bool>("upToDate");
    const QList<OutputFile> outputs = makeOutputs(manifest, renderer);
    for (const OutputFile& output : outputs) {
        QTest::newRow(qPrintable(output.path)) << isUpToDate(output, project);
    }
    QVERIFY2(renderer.errors().isEmpty(), qPrintable(renderer.errors().join(u'\n')));
}

void TestImages::filesMatchTheirDrawings()
{
    QFETCH(bool, upToDate);

    QVERIFY2(upToDate, "build the target render-icons");
}

void TestImages::everyDrawingAndEveryImageIsListed()
{
    const QString project = QStringLiteral(PROJECT_FOLDER);
    const Manifest manifest(project + QStringLiteral("/resources/masters/manifest.json"));

    QCOMPARE(strayFiles(manifest, project), QStringList());
}

UW_TEST_MAIN_WITH(FineScreenApplication, TestImages)

#include "tst_images.moc"
