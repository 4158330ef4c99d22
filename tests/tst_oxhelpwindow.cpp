// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxhelpwindow.h"

#include "containertitlebar.h"
#include "qcopchannel.h"
#include "sharedconstants.h"
#include "support/everythingtranslated.h"
#include "support/finger.h"
#include "support/longtranslation.h"
#include "support/secondprocess.h"
#include "support/test.h"
#include "support/translationrecorder.h"

#include <QDataStream>
#include <QDir>
#include <QGridLayout>
#include <QHash>
#include <QLabel>
#include <QListWidget>
#include <QMetaMethod>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>

#include <memory>

namespace {

QString homeChannel()
{
    return QStringLiteral("OxHomeInstance");
}

QString manuals()
{
    return QStringLiteral("/Home/Manuals/Editor/");
}

void makeFile(const QString& path)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
}

QListWidget* questions(const OxHelpWindow& window)
{
    return window.findChild<QListWidget*>(QStringLiteral("listWidget"));
}

QListWidget* manualsList(const OxHelpWindow& window)
{
    return window.findChild<QListWidget*>(QStringLiteral("PDFHelpListWidget"));
}

QPushButton* closeButton(const OxHelpWindow& window)
{
    return window.findChild<QPushButton*>(QStringLiteral("closeButton"));
}

ContainerTitleBar* titleBarOf(const OxHelpWindow& window)
{
    return window.findChild<ContainerTitleBar*>();
}

QLabel* label(const OxHelpWindow& window, const char* name)
{
    return window.findChild<QLabel*>(QLatin1String(name));
}

/// The texts of the manuals list, one behind the other.
QString entries(const OxHelpWindow& window)
{
    QStringList texts;
    for (int row = 0; row < manualsList(window)->count(); ++row) {
        texts.append(manualsList(window)->item(row)->text());
    }
    return texts.join(QLatin1Char('|'));
}

QString pathOf(const QListWidgetItem* item)
{
    return item->data(Qt::UserRole).toString();
}

QByteArray serialised(const QString& path)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << path;
    return bytes;
}

/// What the other program of the channel tests prints for a message.
QByteArray printed(const QString& message, const QByteArray& bytes)
{
    const QByteArray text(reinterpret_cast<const char*>(message.constData()), message.size() * 2);
    return "got " + text.toHex() + ' ' + bytes.toHex();
}

/// The home program, as far as it listens.
class HomeProgram
{
public:
    HomeProgram()
        : m_channel(homeChannel())
        , m_received(&m_channel, &QCopChannel::received)
    { }

    /// The data of the next message; "end" once it is told that there is no more. Messages of one
    /// sender arrive in their order.
    QByteArray next()
    {
        QCopChannel::send(homeChannel(), QStringLiteral("end"));
        if (!QTest::qWaitFor([this] { return !m_received.isEmpty(); })) {
            return "nothing";
        }
        const QList<QVariant> message = m_received.takeFirst();
        return message.at(0) == QStringLiteral("end") ? QByteArray("end")
                                                      : message.at(1).toByteArray();
    }

private:
    QCopChannel m_channel;
    QSignalSpy m_received;
};

/// The Editor's help, with this one manual.
struct OneManual
{
    OneManual()
    {
        makeFile(manuals() + QStringLiteral("Layers/Lock.pdf"));
        window.populatePDF(QStringLiteral("Editor"));
        list = manualsList(window);
    }

    /// Row 0 is the header of its folder.
    void tap(int row) const
    {
        Finger().tap(list->viewport(), list->visualItemRect(list->item(row)).center());
    }

    OxHelpWindow window;
    QListWidget* list = nullptr;
};

} // namespace

class TestOxHelpWindow : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isNamedOxHelpWindow();
    void isAFramelessWindow();
    void insideAParentItIsNoWindow();
    void closingNeitherDeletesItNorQuits();
    void hasTheHousesIconAndTitle();
    void theSheetBeginsWithFrameAndButtons();
    void itsInterfaceHasThePropertyAndTheSlots();
    void theTexts();
    void allTextsAreTranslated();
    void theTextsHaveTheirComments();
    void theFormIsExact();
    void theHeaderRowIsExact();
    void theQuestionsListIsExact();
    void theManualsListIsExact();
    void theCloseButtonIsExact();
    void fitsTheScreen();

    void questionsAreTilesInTheGivenOrder();
    void moreQuestionsAreAppended();
    void aTileCannotBeSelected();
    void clearedQuestionsAreGone();
    void theTilesStandBelowEachOther();

    void twoFoldersGiveAHeaderEachAndTheirManuals();
    void aHeaderIsUnderlinedAndHasAnEmptyPath();
    void aManualIsBlueAndHasItsPath();
    void manualsAreListedByName_data();
    void manualsAreListedByName();
    void aSidebarHidesWhatSortsBehindIt();
    void aSidebarThatSortsLastChangesNothing();
    void behindASidebarFoldersAreLookedForInIt();
    void aFolderThatCannotBeEnteredIsPassedOver();
    void aMissingFolderAddsNothing();
    void calledTwiceItListsTheManualsTwice();
    void theFolderIsAProperty();

    void aTappedManualIsSentToTheHomeProgram();
    void aTapOnAHeaderSendsNothing();
    void aDragSendsNothing();
    void withoutAHomeProgramATapIsLost();
    void theSlotTakesNoItemToo();
    void returnOpensTheCurrentManual();

    void bothCloseButtonsHideIt_data();
    void bothCloseButtonsHideIt();
    void theKeyboardReachesEverything();
    void theListsHaveTheirHeadersAsNames();
    void theCloseButtonOfTheTitleBarKeepsItsSize();
    void everyTextFits_data();
    void everyTextFits();
    void isMirroredForLanguagesFromRightToLeft();
};

void TestOxHelpWindow::init()
{
    Test::init();
    QVERIFY(QDir().mkpath(manuals()));
}

void TestOxHelpWindow::cleanup()
{
    QVERIFY(QDir(QStringLiteral("/Home/Manuals")).removeRecursively());
    Test::cleanup();
}

void TestOxHelpWindow::isNamedOxHelpWindow()
{
    QCOMPARE(OxHelpWindow().objectName(), QStringLiteral("OxHelpWindow"));
}

void TestOxHelpWindow::isAFramelessWindow()
{
    QCOMPARE(OxHelpWindow().windowFlags(), Qt::FramelessWindowHint | Qt::Window);
}

void TestOxHelpWindow::insideAParentItIsNoWindow()
{
    QWidget parent;
    const OxHelpWindow window(&parent);
    QCOMPARE(window.parentWidget(), &parent);
    QCOMPARE(window.windowFlags(), Qt::FramelessWindowHint);
}

void TestOxHelpWindow::closingNeitherDeletesItNorQuits()
{
    const OxHelpWindow window;
    QVERIFY(!window.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!window.testAttribute(Qt::WA_QuitOnClose));
}

void TestOxHelpWindow::hasTheHousesIconAndTitle()
{
    const EverythingTranslated translated;
    const OxHelpWindow window;
    QCOMPARE(window.windowTitle(), QStringLiteral("Sigilant PRO"));
    QVERIFY(!window.windowIcon().pixmap(32).isNull());
    QCOMPARE(window.windowIcon().pixmap(32).toImage(),
             QIcon(QStringLiteral(":/Icon/ApplicationIcons/popup.ico")).pixmap(32).toImage());
}

void TestOxHelpWindow::theSheetBeginsWithFrameAndButtons()
{
    const QString sheet = OxHelpWindow().styleSheet();
    QVERIFY(sheet.startsWith(QStringLiteral(
        "\n    QDialog { border: 1px solid #fd7800; } \n    QPushButton { border: 1px solid "
        "#fd7800; color: white; font: bold; border-radius: 6px; ")));
    QVERIFY(sheet.contains(QStringLiteral("qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 "
                                          "#5a5959, stop: 1 #060606)")));
}

void TestOxHelpWindow::itsInterfaceHasThePropertyAndTheSlots()
{
    const QMetaObject& meta = OxHelpWindow::staticMetaObject;
    QVERIFY(meta.indexOfProperty("manualsFolderName") >= meta.propertyOffset());
    for (const char* slot :
         { "insertHelpFAQs(QList<QPair<QIcon,QString> >)", "populatePDF(QString)", "clearFAQs()",
           "callPDFLaunchSlot(QListWidgetItem*)" }) {
        QVERIFY2(meta.indexOfSlot(QMetaObject::normalizedSignature(slot).constData())
                     >= meta.methodOffset(),
                 slot);
    }
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QVERIFY(meta.method(i).methodType() != QMetaMethod::Signal);
    }
}

void TestOxHelpWindow::theTexts()
{
    const OxHelpWindow window;
    QCOMPARE(titleBarOf(window)->findChild<QLabel*>()->text(), QStringLiteral("HELP"));
    QCOMPARE(label(window, "FAQLabel")->text(), QStringLiteral("Common Help"));
    QCOMPARE(label(window, "PDFLabel")->text(), QStringLiteral("Detailed Help"));
    QCOMPARE(closeButton(window)->text(), QStringLiteral("Close"));
}

void TestOxHelpWindow::allTextsAreTranslated()
{
    const EverythingTranslated translated;
    const OxHelpWindow window;
    const auto labels = window.findChildren<QLabel*>();
    QCOMPARE(labels.count(), 3);
    for (const QLabel* text : labels) {
        QCOMPARE(text->text(), EverythingTranslated::text());
    }
    QCOMPARE(closeButton(window)->text(), EverythingTranslated::text());
}

void TestOxHelpWindow::theFormIsExact()
{
    const OxHelpWindow window;
    const auto* vertical = qobject_cast<QVBoxLayout*>(window.layout());
    QVERIFY(vertical != nullptr);
    QCOMPARE(vertical->spacing(), 0);
    QCOMPARE(vertical->contentsMargins(), QMargins());
    QCOMPARE(vertical->count(), 2);
    QCOMPARE(vertical->itemAt(0)->widget(), titleBarOf(window));
    const QWidget* container = vertical->itemAt(1)->widget();
    QCOMPARE(container->objectName(), QStringLiteral("containerFrame"));

    // The header above, the questions beside the manuals and the row of the close button.
    const auto* grid = qobject_cast<QGridLayout*>(container->layout());
    QVERIFY(grid != nullptr);
    const auto at = [grid](int row, int column) {
        return grid->itemAtPosition(row, column)->widget();
    };
    QVERIFY(at(0, 0)->isAncestorOf(label(window, "FAQLabel")));
    QCOMPARE(at(0, 1), at(0, 0));
    QCOMPARE(at(1, 0), questions(window));
    QCOMPARE(at(2, 0), questions(window));
    QCOMPARE(at(1, 1), manualsList(window));
    QCOMPARE(at(2, 1), closeButton(window)->parentWidget());
    QCOMPARE(at(2, 1)->maximumSize(), QSize(225, 40));
    QVERIFY(at(2, 1)->layout()->itemAt(0)->spacerItem() != nullptr);
    QCOMPARE(at(2, 1)->layout()->itemAt(1)->widget(), closeButton(window));
}

void TestOxHelpWindow::theHeaderRowIsExact()
{
    const OxHelpWindow window;
    const QWidget* header = label(window, "FAQLabel")->parentWidget();
    QCOMPARE(header->minimumHeight(), 36);
    QCOMPARE(header->maximumHeight(), 36);
    const auto* grid = qobject_cast<QGridLayout*>(header->layout());
    QVERIFY(grid != nullptr);
    QCOMPARE(grid->contentsMargins().left(), 5);
    QCOMPARE(grid->contentsMargins().right(), 5);
    const QStringList names {
        QStringLiteral("line"),   QStringLiteral("FAQLabel"), QStringLiteral("line_2"), QString(),
        QStringLiteral("line_3"), QStringLiteral("PDFLabel"), QStringLiteral("line_4"),
    };
    QCOMPARE(grid->columnCount(), names.count());
    const QHash<QString, int> widths {
        { QStringLiteral("line"), 180 },
        { QStringLiteral("line_2"), 180 },
        { QStringLiteral("line_3"), 45 },
        { QStringLiteral("line_4"), 45 },
    };
    for (int column = 0; column < names.count(); ++column) {
        const auto* widget = qobject_cast<QFrame*>(grid->itemAtPosition(0, column)->widget());
        QCOMPARE(widget != nullptr ? widget->objectName() : QString(), names.at(column));
        if (widget != nullptr && widths.contains(names.at(column))) {
            QCOMPARE(widget->frameShape(), QFrame::HLine);
            QCOMPARE(widget->frameShadow(), QFrame::Sunken);
            QCOMPARE(widget->lineWidth(), 2);
            QCOMPARE(widget->minimumWidth(), widths.value(names.at(column)));
        }
    }
    QVERIFY(grid->itemAtPosition(0, 3)->spacerItem() != nullptr);
}

void TestOxHelpWindow::theQuestionsListIsExact()
{
    const OxHelpWindow window;
    const QListWidget* list = questions(window);
    QCOMPARE(list->gridSize(), QSize(520, 90));
    QCOMPARE(list->selectionMode(), QAbstractItemView::NoSelection);
    QCOMPARE(list->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(list->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(list->verticalScrollMode(), QAbstractItemView::ScrollPerItem);
    QCOMPARE(list->textElideMode(), Qt::ElideNone);
    QCOMPARE(list->viewMode(), QListView::ListMode);
    QCOMPARE(list->flow(), QListView::LeftToRight);
    QVERIFY(list->isWrapping());
    QCOMPARE(list->resizeMode(), QListView::Adjust);
    QCOMPARE(list->spacing(), 4);
}

void TestOxHelpWindow::theManualsListIsExact()
{
    const OxHelpWindow window;
    const QListWidget* list = manualsList(window);
    QCOMPARE(list->minimumWidth(), 225);
    QCOMPARE(list->maximumWidth(), 225);
    QCOMPARE(list->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    QCOMPARE(list->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
}

void TestOxHelpWindow::theCloseButtonIsExact()
{
    const OxHelpWindow window;
    QCOMPARE(closeButton(window)->minimumSize(), QSize(120, 35));
    QCOMPARE(closeButton(window)->maximumHeight(), 35);
}

void TestOxHelpWindow::fitsTheScreen()
{
    OxHelpWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(window.width() <= ScreenWidth);
    QVERIFY(window.height() <= ScreenHeight);
    QCOMPARE(closeButton(window)->height(), 35);
}

void TestOxHelpWindow::questionsAreTilesInTheGivenOrder()
{
    OxHelpWindow window;
    const QIcon icon(QStringLiteral(":/Navigation/NavigationIcons/error-icon.png"));
    window.insertHelpFAQs(
        { { icon, QStringLiteral("How do I save?") }, { QIcon(), QStringLiteral("And print?") } });

    QCOMPARE(questions(window)->count(), 2);
    const QListWidgetItem* first = questions(window)->item(0);
    QCOMPARE(first->text(), QStringLiteral("How do I save?"));
    QCOMPARE(first->icon().pixmap(29, 28).toImage(), icon.pixmap(29, 28).toImage());
    QCOMPARE(first->sizeHint(), QSize(520, 90));
    QCOMPARE(questions(window)->item(1)->text(), QStringLiteral("And print?"));
}

void TestOxHelpWindow::moreQuestionsAreAppended()
{
    OxHelpWindow window;
    window.insertHelpFAQs({ { QIcon(), QStringLiteral("1") } });
    window.insertHelpFAQs({ { QIcon(), QStringLiteral("2") }, { QIcon(), QStringLiteral("3") } });
    QCOMPARE(questions(window)->count(), 3);
    QCOMPARE(questions(window)->item(2)->text(), QStringLiteral("3"));
}

void TestOxHelpWindow::aTileCannotBeSelected()
{
    OxHelpWindow window;
    window.insertHelpFAQs({ { QIcon(), QStringLiteral("How do I save?") } });
    QCOMPARE(questions(window)->item(0)->flags(), Qt::ItemIsEnabled);
    window.show();
    Finger().tap(questions(window)->viewport(), QPoint(40, 40));
    QVERIFY(questions(window)->selectedItems().isEmpty());
}

void TestOxHelpWindow::clearedQuestionsAreGone()
{
    OxHelpWindow window;
    makeFile(manuals() + QStringLiteral("a/b.pdf"));
    window.populatePDF(QStringLiteral("Editor"));
    window.insertHelpFAQs({ { QIcon(), QStringLiteral("How do I save?") } });
    window.clearFAQs();
    QCOMPARE(questions(window)->count(), 0);
    QCOMPARE(manualsList(window)->count(), 2);
}

void TestOxHelpWindow::theTilesStandBelowEachOther()
{
    OxHelpWindow window;
    for (int i = 0; i < 9; ++i) {
        window.insertHelpFAQs({ { QIcon(), QString::number(i) } });
    }
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QListWidget* list = questions(window);
    const QRect first = list->visualItemRect(list->item(0));
    const QRect second = list->visualItemRect(list->item(1));
    QCOMPARE(first.left(), second.left());
    QVERIFY(second.top() >= first.bottom());
    // The whole tile can be seen beside the scroll bar.
    QVERIFY(list->verticalScrollBar()->isVisible());
    QVERIFY(list->viewport()->width() >= 520);
}

void TestOxHelpWindow::twoFoldersGiveAHeaderEachAndTheirManuals()
{
    makeFile(manuals() + QStringLiteral("Printing/Paper.pdf"));
    makeFile(manuals() + QStringLiteral("Layers/Lock.pdf"));
    makeFile(manuals() + QStringLiteral("Layers/Hide.pdf"));
    OxHelpWindow window;
    window.populatePDF(QStringLiteral("Editor"));
    QCOMPARE(entries(window), QStringLiteral("Layers|   Hide|   Lock|Printing|   Paper"));
}

void TestOxHelpWindow::aHeaderIsUnderlinedAndHasAnEmptyPath()
{
    const OneManual help;
    const QListWidgetItem* header = help.list->item(0);
    QFont underlined = QApplication::font();
    underlined.setUnderline(true);
    QCOMPARE(header->data(Qt::FontRole).value<QFont>(), underlined);
    QCOMPARE(header->data(Qt::UserRole).userType(), int(QMetaType::QString));
    QVERIFY(pathOf(header).isEmpty());
    QVERIFY(!pathOf(header).isNull());
    QCOMPARE(header->flags(), Qt::ItemIsEnabled);
}

void TestOxHelpWindow::aManualIsBlueAndHasItsPath()
{
    const OneManual help;
    const QListWidgetItem* manual = help.list->item(1);
    QCOMPARE(manual->data(Qt::ForegroundRole).value<QBrush>(), QBrush(Qt::blue, Qt::SolidPattern));
    QCOMPARE(manual->data(Qt::SizeHintRole).toSize(), QSize(100, 40));
    QCOMPARE(pathOf(manual), QStringLiteral("/Home/Manuals/Editor/Layers/Lock.pdf"));
    QCOMPARE(manual->flags(), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    QVERIFY(!manual->data(Qt::FontRole).isValid());
}

void TestOxHelpWindow::manualsAreListedByName_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("text"); // empty: not listed
    QTest::addColumn<QString>("pathEnd");

    QTest::newRow("plain") << QStringLiteral("guide.pdf") << QStringLiteral("   guide")
                           << QStringLiteral("/guide.pdf");
    QTest::newRow("cut at its first dot, so the file of the path is not there")
        << QStringLiteral("Setup.v2.pdf") << QStringLiteral("   Setup")
        << QStringLiteral("/Setup.pdf");
    QTest::newRow("upper case") << QStringLiteral("GUIDE.PDF") << QStringLiteral("   GUIDE")
                                << QStringLiteral("/GUIDE.pdf");
    QTest::newRow("another ending behind")
        << QStringLiteral("guide.pdf.txt") << QString() << QString();
    QTest::newRow("no ending") << QStringLiteral("guidepdf") << QString() << QString();
    QTest::newRow("hidden") << QStringLiteral(".guide.pdf") << QString() << QString();
    QTest::newRow("blanks") << QStringLiteral("my guide.pdf") << QStringLiteral("   my guide")
                            << QStringLiteral("/my guide.pdf");
}

void TestOxHelpWindow::manualsAreListedByName()
{
    QFETCH(QString, file);
    QFETCH(QString, text);
    QFETCH(QString, pathEnd);
    makeFile(manuals() + QStringLiteral("Layers/") + file);
    OxHelpWindow window;
    window.populatePDF(QStringLiteral("Editor"));
    QCOMPARE(manualsList(window)->count(), text.isEmpty() ? 1 : 2);
    if (!text.isEmpty()) {
        QCOMPARE(manualsList(window)->item(1)->text(), text);
        QCOMPARE(pathOf(manualsList(window)->item(1)),
                 QString(QStringLiteral("/Home/Manuals/Editor/Layers") + pathEnd));
    }
}

void TestOxHelpWindow::aSidebarHidesWhatSortsBehindIt()
{
    makeFile(manuals() + QStringLiteral("Layers/Lock.pdf"));
    makeFile(manuals() + QStringLiteral("sidebar/Panel.pdf"));
    makeFile(manuals() + QStringLiteral("Text/Font.pdf"));
    makeFile(manuals() + QStringLiteral("Zoom/Zoom.pdf"));
    OxHelpWindow window;
    window.populatePDF(QStringLiteral("Editor"));
    QCOMPARE(entries(window), QStringLiteral("Layers|   Lock"));
}

void TestOxHelpWindow::aSidebarThatSortsLastChangesNothing()
{
    makeFile(manuals() + QStringLiteral("Layers/Lock.pdf"));
    makeFile(manuals() + QStringLiteral("Printing/Paper.pdf"));
    makeFile(manuals() + QStringLiteral("sidebar/Panel.pdf"));
    OxHelpWindow window;
    window.populatePDF(QStringLiteral("Editor"));
    QCOMPARE(entries(window), QStringLiteral("Layers|   Lock|Printing|   Paper"));
}

void TestOxHelpWindow::behindASidebarFoldersAreLookedForInIt()
{
    makeFile(manuals() + QStringLiteral("sidebar/Text/Inside.pdf"));
    makeFile(manuals() + QStringLiteral("Text/Font.pdf"));
    makeFile(manuals() + QStringLiteral("Zoom/Zoom.pdf"));
    OxHelpWindow window;
    window.populatePDF(QStringLiteral("Editor"));
    QCOMPARE(entries(window), QStringLiteral("Text|   Inside"));
    QCOMPARE(pathOf(manualsList(window)->item(1)),
             QStringLiteral("/Home/Manuals/Editor/sidebar/Text/Inside.pdf"));
}

void TestOxHelpWindow::aFolderThatCannotBeEnteredIsPassedOver()
{
    makeFile(manuals() + QStringLiteral("sidebar/Text"));
    makeFile(manuals() + QStringLiteral("Text/Font.pdf"));
    makeFile(manuals() + QStringLiteral("sidebar/Zoom/Inside.pdf"));
    QVERIFY(QDir().mkpath(manuals() + QStringLiteral("Zoom")));
    OxHelpWindow window;
    window.populatePDF(QStringLiteral("Editor"));
    QCOMPARE(entries(window), QStringLiteral("Zoom|   Inside"));
}

void TestOxHelpWindow::aMissingFolderAddsNothing()
{
    makeFile(manuals() + QStringLiteral("Layers/Lock.pdf"));
    OxHelpWindow window;
    window.populatePDF(QStringLiteral("Editor"));
    window.populatePDF(QStringLiteral("Missing"));
    QCOMPARE(entries(window), QStringLiteral("Layers|   Lock"));
}

void TestOxHelpWindow::calledTwiceItListsTheManualsTwice()
{
    makeFile(manuals() + QStringLiteral("Layers/Lock.pdf"));
    OxHelpWindow window;
    window.populatePDF(QStringLiteral("Editor"));
    window.populatePDF(QStringLiteral("Editor"));
    QCOMPARE(entries(window), QStringLiteral("Layers|   Lock|Layers|   Lock"));
}

void TestOxHelpWindow::theFolderIsAProperty()
{
    makeFile(manuals() + QStringLiteral("Layers/Lock.pdf"));
    OxHelpWindow window;
    QCOMPARE(window.property("manualsFolderName").toString(), QString());
    QVERIFY(window.setProperty("manualsFolderName", QStringLiteral("Editor")));
    QCOMPARE(window.property("manualsFolderName").toString(), QStringLiteral("Editor"));
    QCOMPARE(entries(window), QStringLiteral("Layers|   Lock"));
    window.populatePDF(QStringLiteral("Missing"));
    QCOMPARE(window.manualsFolderName(), QStringLiteral("Editor"));
}

void TestOxHelpWindow::aTappedManualIsSentToTheHomeProgram()
{
    SecondProcess home(QStringLiteral("channel_peer"), { QStringLiteral("listen"), homeChannel() });
    QVERIFY(home.waitForLine("ready"));
    OneManual help;
    help.window.show();
    help.tap(1);
    QCOMPARE(home.nextLine(),
             printed(QStringLiteral("launch"),
                     serialised(QStringLiteral("/Home/Manuals/Editor/Layers/Lock.pdf"))));
}

void TestOxHelpWindow::aTapOnAHeaderSendsNothing()
{
    SecondProcess home(QStringLiteral("channel_peer"), { QStringLiteral("listen"), homeChannel() });
    QVERIFY(home.waitForLine("ready"));
    OneManual help;
    help.window.show();
    help.tap(0);
    // Messages of one sender arrive in their order: this one is the first.
    QCopChannel::send(homeChannel(), QStringLiteral("end"));

    QCOMPARE(home.nextLine(), QByteArray("got 65006e006400 null"));
}

void TestOxHelpWindow::aDragSendsNothing()
{
    for (int i = 10; i < 40; ++i) {
        makeFile(manuals() + QStringLiteral("Layers/Lock%1.pdf").arg(i));
    }
    HomeProgram home;
    OxHelpWindow window;
    window.populatePDF(QStringLiteral("Editor"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QListWidget* list = manualsList(window);

    Finger finger;
    finger.press(list->viewport(), QPoint(20, 300));
    finger.moveBy(QPoint(0, -100));
    finger.release();

    QCOMPARE(home.next(), QByteArray("end"));
    QVERIFY(list->verticalScrollBar()->value() > 0);
}

void TestOxHelpWindow::withoutAHomeProgramATapIsLost()
{
    OneManual help;
    help.window.show();
    help.tap(1);
    QCOMPARE(HomeProgram().next(), QByteArray("end"));
}

void TestOxHelpWindow::theSlotTakesNoItemToo()
{
    HomeProgram home;
    OxHelpWindow window;
    const QListWidgetItem withoutData;

    window.callPDFLaunchSlot(nullptr);
    window.callPDFLaunchSlot(const_cast<QListWidgetItem*>(&withoutData));

    QCOMPARE(home.next(), QByteArray("end"));
}

void TestOxHelpWindow::returnOpensTheCurrentManual()
{
    HomeProgram home;
    OneManual help;
    help.window.show();
    help.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&help.window));
    help.list->setFocus();
    help.list->setCurrentRow(1);

    QTest::keyClick(help.window.windowHandle(), Qt::Key_Return);

    QCOMPARE(home.next(), serialised(QStringLiteral("/Home/Manuals/Editor/Layers/Lock.pdf")));
    QVERIFY(help.window.isVisible());
}

void TestOxHelpWindow::bothCloseButtonsHideIt_data()
{
    QTest::addColumn<bool>("inTheTitleBar");

    QTest::newRow("Close") << false;
    QTest::newRow("close button of the title bar") << true;
}

void TestOxHelpWindow::bothCloseButtonsHideIt()
{
    QFETCH(bool, inTheTitleBar);
    OxHelpWindow window;
    QSignalSpy finished(&window, &QDialog::finished);
    window.insertHelpFAQs({ { QIcon(), QStringLiteral("How do I save?") } });
    window.show();

    Finger().tap(inTheTitleBar ? titleBarOf(window)->findChild<QPushButton*>()
                               : closeButton(window));

    QVERIFY(!window.isVisible());
    QCOMPARE(finished.count(), 0);
    window.show();
    QCOMPARE(questions(window)->count(), 1);
}

void TestOxHelpWindow::theKeyboardReachesEverything()
{
    OxHelpWindow window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QCOMPARE(QApplication::focusWidget(), questions(window));
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), manualsList(window));
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), closeButton(window));
    QTest::keyClick(window.windowHandle(), Qt::Key_Space);
    QVERIFY(!window.isVisible());
}

void TestOxHelpWindow::theListsHaveTheirHeadersAsNames()
{
    const OxHelpWindow window;
    QCOMPARE(questions(window)->accessibleName(), QStringLiteral("Common Help"));
    QCOMPARE(manualsList(window)->accessibleName(), QStringLiteral("Detailed Help"));
}

void TestOxHelpWindow::theCloseButtonOfTheTitleBarKeepsItsSize()
{
    OxHelpWindow window;
    window.show();
    QCOMPARE(titleBarOf(window)->findChild<QPushButton*>()->size(), QSize(34, 31));
}

void TestOxHelpWindow::everyTextFits_data()
{
    QTest::addColumn<bool>("longTexts");

    QTest::newRow("as it is") << false;
    QTest::newRow("translations half as long again") << true;
}

void TestOxHelpWindow::everyTextFits()
{
    QFETCH(bool, longTexts);
    const auto translation = longTexts ? std::make_unique<LongTranslation>() : nullptr;
    OxHelpWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(window.width() <= ScreenWidth);
    QCOMPARE(textsThatDoNotFit(window), QString());
}

void TestOxHelpWindow::isMirroredForLanguagesFromRightToLeft()
{
    OxHelpWindow window;
    window.setLayoutDirection(Qt::RightToLeft);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(manualsList(window)->x() < questions(window)->x());
    QVERIFY(label(window, "PDFLabel")->x() < label(window, "FAQLabel")->x());
}

void TestOxHelpWindow::theTextsHaveTheirComments()
{
    const TranslationRecorder recorder("OxHelpWindow");
    const OxHelpWindow window;
    QStringList texts = recorder.texts();
    texts.sort();
    QCOMPARE(texts.join(QLatin1Char('\n')),
             QStringLiteral(
                 "Close / Close button for the help menu.\n"
                 "Common Help / Title of the common help section for frequently asked questions.\n"
                 "Detailed Help / Title of the detailed help section for frequently asked "
                 "questions.\n"
                 "HELP / The title of the help dialog."));
}

UW_TEST_MAIN(TestOxHelpWindow)

#include "tst_oxhelpwindow.moc"
