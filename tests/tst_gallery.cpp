// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "gallery/gallerywindow.h"
#include "gallery/page.h"
#include "gallery/pageview.h"
#include "gallery/shippedlibrary.h"
#include "gallery/signallog.h"
#include "gallery/snippets.h"
#include "gallery/symbolpreview.h"
#include "gallery/tour.h"

#include "containertitlebar.h"
#include "oxfiledialog.h"
#include "oxtitlebar.h"
#include "sharedconstants.h"
#include "support/finger.h"
#include "support/modaldialog.h"
#include "support/test.h"
#include "symboldatabasemodel.h"
#include "symboldatabasewidget.h"

#include <QDir>
#include <QLabel>
#include <QListView>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>

class TestGallery : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void everyClassOfTheLibraryHasItsPage();
    void everyPageHasASnippetAndASummary();
    void pageNamesAreUnique();
    void theWindowShowsThePageThatIsTappedInTheList();
    void anUnknownPageChangesNothing();
    void everyPageFitsTheWidthOfTheWindow_data();
    void everyPageFitsTheWidthOfTheWindow();
    void theTourWritesOnePicturePerPageAndDialog();
    void theTourShowsTranslucentWindowsAsAPersonSeesThem();
    void theTourReportsAFolderItCannotMake();
    void theListNamesEveryPictureOfTheTour();
    void thePicturesShowWhatAPageShowsAlone();
    void aLanguageThatTheLibraryDoesNotSpeakIsReported();

    void theFileDialogsSpareAFolderThatIsThere();
    void theFileDialogsLeaveNothingBehind();

    void theShippedLibraryIsMadeOnAnotherThread();
    void theChosenSymbolIsShownLarge();
    void aSymbolThatCannotBeDrawnShowsAnEmptySheet();

    void aSnippetIsCutBetweenItsMarks_data();
    void aSnippetIsCutBetweenItsMarks();

    void theLogShowsSignalsWithTheirArguments();
    void theLogCountsRepeatedSignals();
    void theLogLeavesOutWhatEveryWidgetHas();
    void theLogLeavesOutRepaints();
    void aResetLogIsSilent();
};

namespace {

QList<Gallery::Page> allPages()
{
    QList<Gallery::Page> pages;
    for (const Gallery::Family& family : Gallery::families()) {
        pages += family.pages;
    }
    return pages;
}

QStringList pictureNames()
{
    QStringList names;
    const QList<Gallery::Page> pages = allPages();
    for (const Gallery::Page& page : pages) {
        names.append(page.id);
        for (const Gallery::DialogState& state : page.dialogs) {
            names.append(page.id + QLatin1Char('-') + state.id);
        }
    }
    return names;
}

/// Where the pictures of a tour are, which is taken when they are first asked for.
QString tourFolder()
{
    static const QTemporaryDir folder;
    static const QString tour = folder.filePath(QStringLiteral("new/tour"));
    static const bool isTaken = Gallery::takeTour(tour);
    return isTaken ? tour : QString();
}

/// Temporary files go to a folder of their own for as long as this lives.
class TemporaryFolder
{
public:
    TemporaryFolder() { qputenv("TMPDIR", QFile::encodeName(m_folder.path())); }
    ~TemporaryFolder() { qputenv("TMPDIR", m_former); }
    Q_DISABLE_COPY_MOVE(TemporaryFolder)

private:
    const QByteArray m_former = QFile::encodeName(QDir::tempPath());
    const QTemporaryDir m_folder;
};

void showAndCloseFileDialogs()
{
    const QList<Gallery::Page> pages = allPages();
    for (const Gallery::Page& page : pages) {
        if (page.id != QLatin1String("OxFileDialog")) {
            continue;
        }
        for (const Gallery::DialogState& state : page.dialogs) {
            whileModal<OxFileDialog>(state.open, [](OxFileDialog* dialog) { dialog->hide(); });
        }
    }
}

bool isBlank(const QImage& image)
{
    const QRgb first = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != first) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

void TestGallery::everyClassOfTheLibraryHasItsPage()
{
    const QStringList classes = QStringLiteral(UTILITYWIDGETS_CLASSES).split(QLatin1Char(','));
    QVERIFY(classes.count() > 2);
    QStringList missing = classes;
    const QList<Gallery::Page> pages = allPages();
    for (const Gallery::Page& page : pages) {
        missing.removeAll(page.id);
    }
    QCOMPARE(missing, QStringList());
}

void TestGallery::everyPageHasASnippetAndASummary()
{
    for (const Gallery::Family& family : Gallery::families()) {
        for (const Gallery::Page& page : family.pages) {
            QVERIFY2(!page.summary.isEmpty(), qPrintable(page.id));
            QVERIFY2(!family.snippetOf(page).isEmpty(), qPrintable(page.id));
        }
    }
}

void TestGallery::pageNamesAreUnique()
{
    const QStringList names = pictureNames();
    QCOMPARE(QSet<QString>(names.begin(), names.end()).count(), names.count());
}

void TestGallery::theWindowShowsThePageThatIsTappedInTheList()
{
    Gallery::GalleryWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(window.findChild<OxTitleBar*>() != nullptr);
    QCOMPARE(window.size(), ScreenSize);

    auto* list = window.findChild<QListWidget*>(QStringLiteral("GalleryList"));
    const auto items = list->findItems(QStringLiteral("ContainerTitleBar"), Qt::MatchExactly);
    QCOMPARE(items.count(), 1);
    list->scrollToItem(items.constFirst());
    Finger().tap(list->viewport(), list->visualItemRect(items.constFirst()).center());

    auto* view = window.findChild<Gallery::PageView*>();
    QCOMPARE(view->findChild<QLabel*>()->text(), QStringLiteral("ContainerTitleBar"));
    QVERIFY(!view->findChildren<ContainerTitleBar*>().isEmpty());
}

void TestGallery::anUnknownPageChangesNothing()
{
    Gallery::GalleryWindow window;
    auto* list = window.findChild<QListWidget*>(QStringLiteral("GalleryList"));
    window.showPage(QStringLiteral("ContainerTitleBar"));
    window.showPage(QStringLiteral("NoSuchPage"));
    QCOMPARE(list->currentItem()->text(), QStringLiteral("ContainerTitleBar"));
}

void TestGallery::everyPageFitsTheWidthOfTheWindow_data()
{
    QTest::addColumn<QString>("page");

    const QList<Gallery::Page> pages = allPages();
    for (const Gallery::Page& page : pages) {
        QTest::newRow(qPrintable(page.id)) << page.id;
    }
}

void TestGallery::everyPageFitsTheWidthOfTheWindow()
{
    QFETCH(const QString, page);
    Gallery::GalleryWindow window;
    window.showPage(page);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    const auto* instances = window.findChild<QScrollArea*>(QStringLiteral("GalleryInstances"));
    QCOMPARE(instances->horizontalScrollBar()->maximum(), 0);
}

void TestGallery::theTourWritesOnePicturePerPageAndDialog()
{
    const QDir pictures(tourFolder());
    QStringList expected = pictureNames();
    expected.replaceInStrings(QRegularExpression(QStringLiteral("$")), QStringLiteral(".png"));
    expected.sort();
    QStringList written = pictures.entryList(QDir::Files);
    written.sort();
    QCOMPARE(written, expected);

    QSet<QByteArray> different;
    for (const QString& name : std::as_const(written)) {
        const QImage image(pictures.filePath(name));
        QCOMPARE(image.size(), ScreenSize * qGuiApp->devicePixelRatio());
        QVERIFY2(!isBlank(image), qPrintable(name));
        different.insert(QByteArray::fromRawData(reinterpret_cast<const char*>(image.constBits()),
                                                 image.sizeInBytes())
                             .toBase64());
    }
    QCOMPARE(different.count(), written.count());
}

void TestGallery::theTourShowsTranslucentWindowsAsAPersonSeesThem()
{
    const QDir pictures(tourFolder());
    const auto pixel = [&](const char* picture, const QPoint& at) {
        return QImage(pictures.filePath(QLatin1String(picture)))
            .pixelColor(at * qGuiApp->devicePixelRatio());
    };
    const QPoint bright(ScreenWidth - 5, 59);
    const QPoint dimmed(ScreenWidth - 5, 60);
    const QColor panelGrey(0xf2, 0xf2, 0xf2);

    QCOMPARE(pixel("OxTransparentOverlay.png", bright), panelGrey);
    QCOMPARE(pixel("OxTransparentOverlay-dimmed.png", bright), panelGrey);
    QCOMPARE(pixel("OxTransparentOverlay.png", dimmed), panelGrey);
    const int seventyPercent = 0xf2 * 7 / 10;
    QVERIFY(qAbs(pixel("OxTransparentOverlay-dimmed.png", dimmed).red() - seventyPercent) <= 2);

    // The panel stands in front of what dims the screen.
    QVERIFY(qAbs(pixel("OxTransparentContainer-panel.png", dimmed).red() - seventyPercent) <= 2);
    const QPoint betweenSwatches(ScreenWidth / 2 - 25, ScreenHeight / 2 + 20);
    QCOMPARE(pixel("OxTransparentContainer-panel.png", betweenSwatches), panelGrey);
}

void TestGallery::theTourReportsAFolderItCannotMake()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QFile::WriteOnly));
    QVERIFY(!Gallery::takeTour(file.fileName() + QStringLiteral("/tour")));
}

void TestGallery::aLanguageThatTheLibraryDoesNotSpeakIsReported()
{
    const QTemporaryDir folder;
    QProcess gallery;
    gallery.start(QStringLiteral(UTILITYWIDGETS_GALLERY),
                  { QStringLiteral("--language"), QStringLiteral("pl"), QStringLiteral("--tour"),
                    folder.path() });
    QVERIFY(gallery.waitForFinished());
    QCOMPARE(gallery.exitCode(), 1);
    QVERIFY(gallery.readAllStandardError().contains("no translation for pl\n"));
    QCOMPARE(QDir(folder.path()).count(), uint(2)); // "." and ".."
}

void TestGallery::theListNamesEveryPictureOfTheTour()
{
    QProcess gallery;
    gallery.start(QStringLiteral(UTILITYWIDGETS_GALLERY), { QStringLiteral("--list") });
    QVERIFY(gallery.waitForFinished());
    QCOMPARE(gallery.exitCode(), 0);
    QStringList names;
    const QStringList lines = QString::fromUtf8(gallery.readAllStandardOutput())
                                  .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        names.append(line.section(QLatin1Char('\t'), 1, 1));
    }
    QCOMPARE(names, pictureNames());
}

/// Every page has one of its stage or, where that is empty, of its dialogs.
void TestGallery::thePicturesShowWhatAPageShowsAlone()
{
    const QTemporaryDir folder;
    QVERIFY(Gallery::takePictures(folder.path()));
    const auto picture = [&](const QString& name) {
        return QImage(folder.filePath(name + QStringLiteral(".png")));
    };
    const QList<Gallery::Page> pages = allPages();
    for (const Gallery::Page& page : pages) {
        QVERIFY2(!picture(page.id).isNull() || !page.dialogs.isEmpty(), qPrintable(page.id));
        for (const Gallery::DialogState& state : page.dialogs) {
            const QString name = page.id + QLatin1Char('-') + state.id;
            QVERIFY2(!isBlank(picture(name)), qPrintable(name));
        }
    }

    // Of a dialog, its frame is the edge; of a page, there is a margin around the stage.
    const QImage about = picture(QStringLiteral("OxInfoWidget-about"));
    QCOMPARE(about.size(), QSize(360, 300) * qGuiApp->devicePixelRatio());
    QCOMPARE(about.pixelColor(0, about.height() / 2), QColor(0xfd, 0x78, 0x00));
    QVERIFY(picture(QStringLiteral("OxInfoWidget")).isNull());
    const QImage bars = picture(QStringLiteral("ContainerTitleBar"));
    const QSize screen = ScreenSize * qGuiApp->devicePixelRatio();
    QVERIFY(bars.width() < screen.width() && bars.height() < screen.height());
    for (int x = 0; x < bars.width(); ++x) {
        QCOMPARE(bars.pixelColor(x, 0), QColor(0xf2, 0xf2, 0xf2));
    }
    // What does not fit on the page is there as well.
    QVERIFY(picture(QStringLiteral("MultiItemSelectionWidget")).height() > screen.height());
}

/// They show a folder of samples in the folder for temporary files, by a name that others may have
/// taken.
void TestGallery::theFileDialogsSpareAFolderThatIsThere()
{
    const TemporaryFolder temporary;
    QVERIFY(QDir::temp().mkdir(QStringLiteral("Designs")));
    QFile file(QDir::temp().filePath(QStringLiteral("Designs/Read me.txt")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("mine");
    file.close();

    showAndCloseFileDialogs();
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("mine"));
    QCOMPARE(QDir(QFileInfo(file).path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList { QStringLiteral("Read me.txt") });
}

void TestGallery::theFileDialogsLeaveNothingBehind()
{
    const TemporaryFolder temporary;
    showAndCloseFileDialogs();
    QVERIFY(!QDir::temp().exists(QStringLiteral("Designs")));
}

void TestGallery::theShippedLibraryIsMadeOnAnotherThread()
{
    Gallery::ShippedLibrary* library = Gallery::ShippedLibrary::instance();
    library->make();
    // Nothing has come of it before this thread is asked.
    QVERIFY(library->isBeingMade() != library->isMade());
    QTRY_VERIFY(library->isMade());
    QVERIFY(!library->isBeingMade());

    SymbolDatabaseModel symbols;
    symbols.setDatabasePath(library->path());
    QCOMPARE(symbols.categories().count(), 6);
    QCOMPARE(Gallery::ShippedLibrary::instance(), library);
}

void TestGallery::theChosenSymbolIsShownLarge()
{
    Gallery::GalleryWindow window;
    window.showPage(QStringLiteral("SymbolDatabaseWidget"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto* preview = window.findChild<Gallery::SymbolPreview*>();
    QPushButton* button = nullptr;
    const auto buttons = window.findChildren<QPushButton*>();
    for (QPushButton* candidate : buttons) {
        button = candidate->text() == QStringLiteral("Insert a symbol") ? candidate : button;
    }
    QVERIFY(button != nullptr);

    QByteArray chosen;
    whileModal<SymbolDatabaseWidget>([button] { button->click(); },
                                     [&chosen](SymbolDatabaseWidget* browser) {
                                         auto* view = browser->findChild<QListView*>();
                                         QCOMPARE(view->model()->rowCount(), 60);
                                         view->setCurrentIndex(view->model()->index(17, 0));
                                         chosen = browser->getSelectedSymbol();
                                         browser->acceptSlot();
                                     });

    Gallery::SymbolPreview expected;
    expected.resize(preview->size());
    expected.setSymbol(chosen);
    const auto picture = [](QWidget* widget) {
        return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    QCOMPARE(picture(preview), picture(&expected));
    QVERIFY(!isBlank(preview->grab(preview->rect().adjusted(1, 1, -1, -1)).toImage()));
}

void TestGallery::aSymbolThatCannotBeDrawnShowsAnEmptySheet()
{
    Gallery::SymbolPreview preview;
    preview.resize(200, 180);
    preview.setSymbol(QByteArrayLiteral("no drawing"));
    QVERIFY(isBlank(preview.grab(preview.rect().adjusted(1, 1, -1, -1)).toImage()));
}

void TestGallery::aSnippetIsCutBetweenItsMarks_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("snippet");

    QTest::newRow("no marks") << QStringLiteral("int a;\n") << QString();
    QTest::newRow("another name") << QStringLiteral("//! [B]\nint a;\n//! [B]\n") << QString();
    QTest::newRow("common indentation")
        << QStringLiteral("x\n    //! [A]\n    if (a) {\n        b();\n    }\n    //! [A]\ny\n")
        << QStringLiteral("if (a) {\n    b();\n}");
    QTest::newRow("an empty line keeps the indentation of the others")
        << QStringLiteral("    //! [A]\n    a();\n\n    b();\n    //! [A]\n")
        << QStringLiteral("a();\n\nb();");
    QTest::newRow("two parts") << QStringLiteral(
        "//! [A]\na\n//! [A]\nx\n  //! [A]\n  b\n  //! [A]")
                               << QStringLiteral("a\nb");
}

void TestGallery::aSnippetIsCutBetweenItsMarks()
{
    QFETCH(QString, source);
    QFETCH(QString, snippet);
    QCOMPARE(Gallery::extractSnippet(source, QStringLiteral("A")), snippet);
}

void TestGallery::theLogShowsSignalsWithTheirArguments()
{
    Gallery::SignalLog log;
    QSpinBox box;
    OxTitleBar bar(nullptr, QString(), QString());
    log.watch(QStringLiteral("Box"), &box);
    log.watch(QStringLiteral("Bar"), &bar);

    box.setValue(7);
    bar.findChild<QPushButton*>()->click();

    QCOMPARE(log.toPlainText(),
             QStringLiteral("Box: textChanged(\"7\")\nBox: valueChanged(7)\n"
                            "Bar: closeButtonClicked()"));
}

void TestGallery::theLogCountsRepeatedSignals()
{
    Gallery::SignalLog log;
    ContainerTitleBar bar(nullptr, QString());
    log.watch(QStringLiteral("Bar"), &bar);
    for (int i = 0; i < 3; ++i) {
        bar.findChild<QPushButton*>()->click();
    }
    log.addLine(QStringLiteral("end"), true);
    QCOMPARE(log.toPlainText(), QStringLiteral("Bar: closeButtonClicked()  (3 times)\nend"));
}

void TestGallery::theLogLeavesOutWhatEveryWidgetHas()
{
    Gallery::SignalLog log;
    QLabel label;
    log.watch(QStringLiteral("Label"), &label);
    label.setWindowTitle(QStringLiteral("title"));
    label.setObjectName(QStringLiteral("name"));
    QCOMPARE(log.toPlainText(), QString());
}

void TestGallery::theLogLeavesOutRepaints()
{
    Gallery::SignalLog log;
    QPlainTextEdit field;
    QSignalSpy repainted(&field, &QPlainTextEdit::updateRequest);
    log.watch(QStringLiteral("Field"), &field);
    field.setFocus();
    field.show();
    QTRY_VERIFY(!repainted.isEmpty());
    QCOMPARE(log.toPlainText(), QString());
}

void TestGallery::aResetLogIsSilent()
{
    Gallery::SignalLog log;
    QSpinBox box;
    log.watch(QStringLiteral("Box"), &box);
    box.setValue(7);
    log.reset();
    box.setValue(8);
    QCOMPARE(log.toPlainText(), QString());
}

UW_TEST_MAIN(TestGallery)

#include "tst_gallery.moc"
