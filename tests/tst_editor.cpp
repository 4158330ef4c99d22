// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "editorwindow.h"
#include "recordbar.h"

#include "databaseselectordialog.h"
#include "dragscrolllistview.h"
#include "multiitemselectiondialog.h"
#include "multiitemselectionwidget.h"
#include "oxhelpwindow.h"
#include "oxinfowidget.h"
#include "oxinputdialog.h"
#include "oxmessagebox.h"
#include "qcopchannel.h"
#include "sharedconstants.h"
#include "support/editoruser.h"
#include "support/filedialoguser.h"
#include "support/finger.h"
#include "support/program.h"
#include "support/secondprocess.h"
#include "support/symboldatabase.h"
#include "support/test.h"
#include "symboldatabasemodel.h"
#include "symboldatabasewidget.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <csignal>
#include <sys/resource.h>

// NOLINTBEGIN(cppcoreguidelines-macro-usage)
/// A step of a way through the program; the first one that fails ends it.
#define STEP(...)                                                                                  \
    do {                                                                                           \
        __VA_ARGS__;                                                                               \
        if (QTest::currentTestFailed()) {                                                          \
            qInfo("failed in the step: " #__VA_ARGS__);                                            \
            return;                                                                                \
        }                                                                                          \
    } while (false)
// NOLINTEND(cppcoreguidelines-macro-usage)

namespace {

QString channelName()
{
    return QStringLiteral("UtilityWidgetsEditor");
}

void makeFile(const QString& path, const QByteArray& content)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// A database as the records program of the device writes them.
void makeRecords(const QString& name, const QStringList& statements)
{
    QVERIFY(QDir().mkpath(DatabasesPath + QStringLiteral("Labels")));
    {
        QSqlDatabase database =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("test"));
        database.setDatabaseName(DatabasesPath + QStringLiteral("Labels/") + name);
        QVERIFY(database.open());
        for (const QString& statement : statements) {
            QSqlQuery query(database);
            QVERIFY(query.exec(statement));
        }
    }
    QSqlDatabase::removeDatabase(QStringLiteral("test"));
}

void makeAddresses()
{
    makeRecords(
        QStringLiteral("Addresses.db"),
        { QStringLiteral("CREATE TABLE Address (Id INTEGER PRIMARY KEY, name TEXT, city TEXT)"),
          QStringLiteral("INSERT INTO Address (name, city) VALUES ('Ada', 'London'), "
                         "('Grace', 'New York'), ('Katherine', 'Hampton')") });
}

void makeSymbols()
{
    const QString path = DatabasesPath + QStringLiteral("symbols.db");
    QVERIFY(QDir().mkpath(DatabasesPath));
    SymbolDatabaseModel library;
    library.setDatabasePath(path);
    QVERIFY(library.createSchema());
    QVERIFY(library.addCategory(QStringLiteral("Weather")));
    const QString folder = QStringLiteral(SYMBOLS_FOLDER "/Weather/");
    QVERIFY(library.addSymbol(folder + QStringLiteral("sun.svg"), QStringLiteral("sun"),
                              QStringLiteral("Weather"), {}));
    QVERIFY(library.addSymbol(folder + QStringLiteral("rain.svg"), QStringLiteral("rain"),
                              QStringLiteral("Weather"), {}));
}

Object object(Object::Kind kind, const QString& text = {})
{
    Object made;
    made.kind = kind;
    made.text = text;
    return made;
}

/// One of everything.
Content exampleContent()
{
    Document document;
    document.add(object(Object::Text, QStringLiteral("Grüße an {name}")));
    document.add(object(Object::Rectangle));
    Object locked = object(Object::Ellipse);
    locked.isLocked = true;
    locked.fillColor = QStringLiteral("#fd7800");
    document.add(locked);
    Object symbol = object(Object::Symbol);
    symbol.svg = filledSvg("red");
    document.add(symbol);
    Content content = document.content();
    content.pageWidth = 62.5;
    content.layers.append({ QStringLiteral("Notes"), false, { object(Object::Line) } });
    content.layers[1].objects[0].id = 77;
    return content;
}

/// What a file of it holds.
QByteArray savedBytes(const Content& content)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("saved.label"));
    return content.write(path).isEmpty() ? contentOf(path) : QByteArray();
}

bool isSame(const Content& first, const Content& second)
{
    return !savedBytes(first).isEmpty() && savedBytes(first) == savedBytes(second);
}

QString textOf(const OxMessageBox* box)
{
    QStringList texts;
    const auto labels = box->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        texts.append(label->text());
    }
    return texts.join(QLatin1Char('\n'));
}

/// The person reads an error and taps OK.
std::function<void(OxMessageBox*)> expectError(const QString& part)
{
    return [part](OxMessageBox* box) {
        QVERIFY2(textOf(box).contains(part), qPrintable(textOf(box)));
        EditorUser::tapButton(box, QStringLiteral("OK"));
    };
}

/// While it lives no file of this process can become larger.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN); // NOLINT(cert-err33-c): the write fails instead
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit { bytes, m_before.rlim_max };
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit m_before {};
};

QString runTool(const QString& tool, const QStringList& arguments)
{
    const ProgramResult result = runProgram(tool, arguments);
    if (result.exitCode != 0) {
        QTest::qFail(qPrintable(tool + QStringLiteral(": ") + result.errors), __FILE__, __LINE__);
    }
    return result.output;
}

} // namespace

class TestEditor : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void fromANewDocumentToAPrintedPdf();

    void aTapSelectsAndATapBesideSelectsNothing();
    void aDragMovesAnObject();
    void aTapThatTremblesMovesNothing();
    void aHiddenLayerIsNotReached();
    void theUserBackgroundIsNotReached();
    void aReadOnlyTextCannotBeEdited();
    void aLockedObjectCannotBeDeleted();
    void whatIsTypedIsKeptWhenATapGoesElsewhere_data();
    void whatIsTypedIsKeptWhenATapGoesElsewhere();
    void undoAndRedoGoThroughTheSteps();
    void whatIsChangedIsAskedForBeforeItIsLost_data();
    void whatIsChangedIsAskedForBeforeItIsLost();
    void escapeLeavesTheQuestionAndTheDocument();
    void anExistingFileIsReplacedOnlyIfThePersonWants();
    void aDatabaseWithoutRecordsIsRefused_data();
    void aDatabaseWithoutRecordsIsRefused();
    void closingTheRecordBarShowsTheNamesOfFields();
    void aSymbolIsInsertedFromAFile();
    void aDrawingThatReadsFilesIsRefused();
    void aTapElsewhereClosesTheMenu();
    void everyControlHasANameAndIsLargeEnough();

    void aDocumentIsReadAsItWasWritten();
    void whatWasDraggedFarAwayCanBeReadAgain();
    void aBadFileIsRefusedAndLosesNothing_data();
    void aBadFileIsRefusedAndLosesNothing();
    void everyFieldOfAnObjectIsChecked_data();
    void everyFieldOfAnObjectIsChecked();
    void aCutFileNeverCrashes();
    void aFileThatCannotBeWrittenKeepsWhatItWas();
    void aDocumentIsNotSavedIntoAFolderThatIsNotThere();
    void aPdfThatCannotBeWrittenKeepsWhatItWas();

    void theProgramStartsWithAFile();
    void aSecondStartEndsAndTheFirstComesForward();
    void theProgramTellsItsOptions();
    void theSourcesAreFewerThan1500Lines();
};

void TestEditor::initTestCase()
{
    // A finger is quicker than a blinking cursor, and focus must not depend on who blinks.
    QApplication::setCursorFlashTime(0);
}

void TestEditor::init()
{
    Test::init();
    QDir(DataRootPath).removeRecursively();
    QDir(HomeFolderPath).removeRecursively();
}

void TestEditor::fromANewDocumentToAPrintedPdf()
{
    const FileDialogHome home;
    makeAddresses();
    makeSymbols();
    makeFile(QStringLiteral("/Home/Manuals/Editor/First steps/Printing.pdf"), "%PDF-1.4\n");
    EditorUser user;
    const Document& document = user.window.document();

    // A text by the input dialog, placed by numbers.
    STEP(user.insertText(QStringLiteral("Dear {name} in {city}")));
    QCOMPARE(user.objects().count(), 1);
    QCOMPARE(user.objects().at(0).text, QStringLiteral("Dear {name} in {city}"));
    STEP(user.enter(QStringLiteral("left"), QStringLiteral("5")));
    STEP(user.enter(QStringLiteral("top"), QStringLiteral("4")));
    STEP(user.enter(QStringLiteral("width"), QStringLiteral("80")));
    QCOMPARE(user.objects().at(0).rect(), QRectF(5, 4, 80, 10));

    // Shapes, in colours.
    STEP(user.insertShape(QStringLiteral("addRectangle")));
    STEP(user.tapColor(QStringLiteral("#ffd500")));
    QCOMPARE(user.objects().at(1).fillColor, QStringLiteral("#ffd500"));
    STEP(user.tapTab(QStringLiteral("colorTabs"), 1));
    STEP(user.tapColor(QStringLiteral("#d00000")));
    QCOMPARE(user.objects().at(1).lineColor, QStringLiteral("#d00000"));
    STEP(user.drag(user.canvas->rectOf(user.objects().at(1)).center(), QPoint(-90, 40)));
    const QPointF rectangleAt = user.objects().at(1).rect().topLeft();
    QVERIFY2(rectangleAt.x() < 25, "the rectangle did not follow the finger");

    // A second layer, with an ellipse and a line.
    STEP(user.tapTab(QStringLiteral("tabs"), 1));
    whileModal<OxInputDialog>(
        [&] { user.tap(QStringLiteral("addLayer")); },
        [](OxInputDialog* dialog) { EditorUser::tapButton(dialog, QStringLiteral("OK")); });
    STEP(;);
    QCOMPARE(document.content().layers.count(), 2);
    QCOMPARE(document.currentLayer(), 1);
    STEP(user.insertShape(QStringLiteral("addEllipse")));
    STEP(user.drag(user.canvas->rectOf(user.selected().at(0)).center(), QPoint(90, 40)));
    STEP(user.insertShape(QStringLiteral("addLine")));
    QCOMPARE(document.content().layers.at(1).objects.count(), 2);

    // A symbol out of the browser.
    whileModal<SymbolDatabaseWidget>(
        [&] { user.tap(QStringLiteral("addSymbol")); },
        [](SymbolDatabaseWidget* browser) {
            auto* view = browser->findChild<DragScrollListView*>();
            QTRY_COMPARE_WITH_TIMEOUT(view->model()->rowCount(), 2, 20000);
            const QModelIndexList found = view->model()->match(
                view->model()->index(0, 0), Qt::ToolTipRole, QStringLiteral("sun"));
            QVERIFY2(!found.isEmpty(), "the browser does not list the sun");
            EditorUser::tapItem(view, found.at(0).row());
            EditorUser::tapButton(browser, QStringLiteral("Insert"));
        });
    STEP(;);
    QCOMPARE(user.objects().count(), 5);
    const Object symbol = user.selected().at(0);
    QCOMPARE(symbol.kind, Object::Symbol);
    QCOMPARE(symbol.svg, contentOf(QStringLiteral(SYMBOLS_FOLDER "/Weather/sun.svg")));

    // Locked, it stays where it is.
    STEP(user.tapTab(QStringLiteral("tabs"), 0));
    STEP(user.tapLock(QStringLiteral("Lock")));
    QVERIFY2(user.selected().at(0).isLocked, "the lock was not tapped");
    STEP(user.drag(user.canvas->rectOf(symbol).center(), QPoint(60, -60)));
    QCOMPARE(user.selected().at(0).rect(), symbol.rect());

    // Several at once: all but the locked one turn green.
    whileModal<MultiItemSelectionDialog>([&] { user.tap(QStringLiteral("several")); },
                                         [](MultiItemSelectionDialog* dialog) {
                                             EditorUser::tapButton(dialog, QStringLiteral(">>"));
                                             EditorUser::tapButton(dialog, QStringLiteral("OK"));
                                         });
    STEP(;);
    QCOMPARE(user.selected().count(), 5);
    STEP(user.tapColor(QStringLiteral("#008a3e")));
    for (const Object& changed : user.objects()) {
        const bool isGreen = changed.lineColor == QLatin1String("#008a3e");
        QVERIFY2(isGreen != changed.isLocked, qPrintable(changed.description()));
    }

    // Two are picked out and deleted.
    whileModal<MultiItemSelectionDialog>(
        [&] { user.tap(QStringLiteral("several")); },
        [](MultiItemSelectionDialog* dialog) {
            EditorUser::tapButton(dialog, QStringLiteral("<<"));
            MultiItemSelectionWidget* lists = dialog->getSelectionWidget();
            for (const QString& name : { QStringLiteral("Ellipse 3"), QStringLiteral("Line 4") }) {
                DragScrollListView* view = lists->getAvailableListView();
                const QModelIndexList found =
                    view->model()->match(view->model()->index(0, 0), Qt::DisplayRole, name);
                QVERIFY2(!found.isEmpty(), qPrintable(name));
                EditorUser::tapItem(view, found.at(0).row());
                EditorUser::tapButton(dialog, QStringLiteral(">"));
            }
            EditorUser::tapButton(dialog, QStringLiteral("OK"));
        });
    STEP(;);
    QCOMPARE(user.selected().count(), 2);
    STEP(user.tap(QStringLiteral("remove")));
    QCOMPARE(user.objects().count(), 3);

    // Records.
    STEP(user.command<DatabaseSelectorDialog>(
        QStringLiteral("Database"), [](DatabaseSelectorDialog* dialog) {
            EditorUser::tapButton(dialog, QStringLiteral("OK"));
        }));
    auto* bar = user.window.findChild<RecordBar*>();
    QTRY_VERIFY2(bar->isVisible(), "no record bar");
    QCOMPARE(bar->records().count(), 3);
    STEP(user.tap(QStringLiteral("nextButton")));
    QCOMPARE(bar->current().value(QStringLiteral("name")).toString(), QStringLiteral("Grace"));
    QLineEdit* field = nullptr;
    const auto fields = bar->findChildren<QLineEdit*>();
    for (QLineEdit* edit : fields) {
        if (edit->placeholderText() == QLatin1String("Find a record")) {
            field = edit;
        }
    }
    QVERIFY2(field != nullptr, "no search field");
    TouchFinger().tap(field);
    QTest::keyClicks(field, QStringLiteral("3")); // the first field is the id
    STEP(user.tap(QStringLiteral("navigationSearchButton")));
    QCOMPARE(bar->current().value(QStringLiteral("name")).toString(), QStringLiteral("Katherine"));

    // Saved, given up for a new one, and opened again.
    STEP(user.command<OxFileDialog>(QStringLiteral("Save"), [](OxFileDialog* dialog) {
        EditorUser::chooseName(dialog, QStringLiteral("greeting"));
    }));
    const QString path = home.desktop() + QStringLiteral("/greeting.label");
    QVERIFY2(QFile::exists(path), "the document has not been saved");
    QVERIFY(!document.isModified());
    const Content saved = document.content();
    STEP(user.command(QStringLiteral("New")));
    QCOMPARE(user.objects().count(), 0);
    STEP(user.command<OxFileDialog>(QStringLiteral("Open"), [](OxFileDialog* dialog) {
        const FileDialogUser files(dialog);
        EditorUser::tapItem(files.favorites, files.favoriteRow(QStringLiteral("Desktop")));
        EditorUser::chooseFile(dialog, QStringLiteral("greeting.label"));
    }));
    QVERIFY2(isSame(document.content(), saved), "what was opened is not what was saved");
    QCOMPARE(document.path(), path);

    // On paper, a page per record.
    STEP(user.command<OxFileDialog>(QStringLiteral("Print to PDF"), [](OxFileDialog* dialog) {
        EditorUser::chooseName(dialog, QStringLiteral("greeting"));
    }));
    const QString pdf = home.desktop() + QStringLiteral("/greeting.pdf");
    QVERIFY2(QFile::exists(pdf), "nothing has been printed");
    const QString information = runTool(QStringLiteral("pdfinfo"), { pdf });
    QVERIFY2(information.contains(QRegularExpression(QStringLiteral("Pages: +3\\n"))),
             qPrintable(information));
    // 100 x 70 millimetres in points.
    QVERIFY2(information.contains(QRegularExpression(
                 QStringLiteral("Page size: +283(\\.\\d+)? x 198(\\.\\d+)? pts"))),
             qPrintable(information));
    const QString text =
        runTool(QStringLiteral("pdftotext"), { pdf, QStringLiteral("-") }).simplified();
    for (const QString& line :
         { QStringLiteral("Dear Ada in London"), QStringLiteral("Dear Grace in New York"),
           QStringLiteral("Dear Katherine in Hampton") }) {
        QVERIFY2(text.contains(line), qPrintable(text));
    }

    // About, and a manual that the home program is asked for.
    STEP(user.command<OxInfoWidget>(QStringLiteral("About"), [](OxInfoWidget* about) {
        EditorUser::tapButton(about, QStringLiteral("Close"));
    }));
    QCopChannel homeChannel(QStringLiteral("OxHomeInstance"));
    QSignalSpy received(&homeChannel, &QCopChannel::received);
    STEP(user.command<OxHelpWindow>(QStringLiteral("Help"), [&](OxHelpWindow* help) {
        EditorUser::tapItem(help->findChild<QListWidget*>(QStringLiteral("PDFHelpListWidget")), 1);
        QTRY_COMPARE(received.count(), 1);
        EditorUser::tapButton(help, QStringLiteral("Close"));
    }));
    QCOMPARE(received.at(0).at(0).toString(), QStringLiteral("launch"));
    QString manual;
    QDataStream stream(received.at(0).at(1).toByteArray());
    stream >> manual;
    QCOMPARE(manual, QStringLiteral("/Home/Manuals/Editor/First steps/Printing.pdf"));
}

void TestEditor::aTapSelectsAndATapBesideSelectsNothing()
{
    EditorUser user;
    user.insertShape(QStringLiteral("addRectangle"));
    TouchFinger().tap(user.canvas, QPoint(5, 5));
    QCOMPARE(user.selected().count(), 0);
    user.tapObject(user.objects().at(0));
    QCOMPARE(user.selected().count(), 1);
}

void TestEditor::aDragMovesAnObject()
{
    EditorUser user;
    user.insertShape(QStringLiteral("addRectangle"));
    const QRectF before = user.objects().at(0).rect();
    user.drag(user.canvas->rectOf(user.objects().at(0)).center(), QPoint(50, 0));
    const QRectF after = user.objects().at(0).rect();
    QVERIFY(after.x() > before.x() + 5);
    QCOMPARE(after.size(), before.size());
    QCOMPARE(after.y(), before.y());
    QCOMPARE(after.x() * 2, std::round(after.x() * 2)); // on half millimetres
}

void TestEditor::aTapThatTremblesMovesNothing()
{
    EditorUser user;
    user.insertShape(QStringLiteral("addRectangle"));
    const QRectF before = user.objects().at(0).rect();
    user.drag(user.canvas->rectOf(user.objects().at(0)).center(), QPoint(4, 3));
    QCOMPARE(user.objects().at(0).rect(), before);
}

void TestEditor::aHiddenLayerIsNotReached()
{
    EditorUser user;
    user.insertShape(QStringLiteral("addRectangle"));
    user.tapTab(QStringLiteral("tabs"), 1);
    user.tap(QStringLiteral("showLayer"));
    user.tapObject(user.objects().at(0));
    QCOMPARE(user.selected().count(), 0);
    user.tap(QStringLiteral("showLayer"));
    user.tapObject(user.objects().at(0));
    QCOMPARE(user.selected().count(), 1);
}

void TestEditor::theUserBackgroundIsNotReached()
{
    EditorUser user;
    user.insertShape(QStringLiteral("addRectangle"));
    user.tapLock(QStringLiteral("Set As User\nBackground"));
    QVERIFY(user.objects().at(0).isBackground);
    user.tapObject(user.objects().at(0));
    QCOMPARE(user.selected().count(), 0);
    // Select Several still finds it.
    whileModal<MultiItemSelectionDialog>([&] { user.tap(QStringLiteral("several")); },
                                         [](MultiItemSelectionDialog* dialog) {
                                             EditorUser::tapButton(dialog, QStringLiteral(">>"));
                                             EditorUser::tapButton(dialog, QStringLiteral("OK"));
                                         });
    QCOMPARE(user.selected().count(), 1);
}

void TestEditor::aReadOnlyTextCannotBeEdited()
{
    EditorUser user;
    user.insertText(QStringLiteral("Fixed"));
    QVERIFY(user.find(QStringLiteral("text"))->isEnabled());
    user.tapLock(QStringLiteral("Lock"));
    QVERIFY2(user.find(QStringLiteral("text"))->isEnabled(), "its data is not locked");
    QVERIFY(!user.find(QStringLiteral("left"))->isEnabled());
    user.tapLock(QStringLiteral("Read\nOnly"));
    QVERIFY(!user.find(QStringLiteral("text"))->isEnabled());
}

void TestEditor::aLockedObjectCannotBeDeleted()
{
    EditorUser user;
    user.insertShape(QStringLiteral("addRectangle"));
    user.tapLock(QStringLiteral("Lock"));
    whileModal<OxMessageBox>([&] { user.tap(QStringLiteral("remove")); },
                             expectError(QStringLiteral("locked")));
    QCOMPARE(user.objects().count(), 1);
    // Nor with its layer.
    user.tapTab(QStringLiteral("tabs"), 1);
    user.tap(QStringLiteral("removeLayer"));
    QCOMPARE(user.objects().count(), 1);
}

void TestEditor::whatIsTypedIsKeptWhenATapGoesElsewhere_data()
{
    QTest::addColumn<QString>("elsewhere");
    QTest::newRow("a tool") << QStringLiteral("addEllipse");
    QTest::newRow("the menu") << QStringLiteral("file");
    QTest::newRow("another field") << QStringLiteral("top");
}

void TestEditor::whatIsTypedIsKeptWhenATapGoesElsewhere()
{
    QFETCH(QString, elsewhere);
    EditorUser user;
    user.insertShape(QStringLiteral("addRectangle"));
    user.tap(QStringLiteral("left"));
    auto* field = user.find(QStringLiteral("left"));
    QTRY_VERIFY(field->hasFocus());
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, QStringLiteral("7"));
    user.tap(elsewhere);
    QTRY_COMPARE(user.objects().at(0).left, 7.0);
}

void TestEditor::undoAndRedoGoThroughTheSteps()
{
    EditorUser user;
    QVERIFY(!user.find(QStringLiteral("undo"))->isEnabled());
    user.insertShape(QStringLiteral("addRectangle"));
    user.tapColor(QStringLiteral("#d00000"));
    user.tap(QStringLiteral("undo"));
    QCOMPARE(user.objects().at(0).fillColor, QStringLiteral("transparent"));
    user.tap(QStringLiteral("undo"));
    QCOMPARE(user.objects().count(), 0);
    user.tap(QStringLiteral("redo"));
    user.tap(QStringLiteral("redo"));
    QCOMPARE(user.objects().at(0).fillColor, QStringLiteral("#d00000"));
    QVERIFY(!user.find(QStringLiteral("redo"))->isEnabled());
}

void TestEditor::whatIsChangedIsAskedForBeforeItIsLost_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<int>("objects");

    QTest::newRow("new, discarded") << QStringLiteral("New") << QStringLiteral("Discard") << 0;
    QTest::newRow("new, cancelled") << QStringLiteral("New") << QStringLiteral("Cancel") << 1;
    QTest::newRow("open, cancelled") << QStringLiteral("Open") << QStringLiteral("Cancel") << 1;
}

void TestEditor::whatIsChangedIsAskedForBeforeItIsLost()
{
    QFETCH(QString, way);
    QFETCH(QString, answer);
    EditorUser user;
    user.insertShape(QStringLiteral("addRectangle"));
    user.command<OxMessageBox>(way, [&](OxMessageBox* box) { EditorUser::tapButton(box, answer); });
    QTEST(int(user.objects().count()), "objects");
}

void TestEditor::escapeLeavesTheQuestionAndTheDocument()
{
    EditorUser user;
    user.insertShape(QStringLiteral("addRectangle"));
    whileModal<OxMessageBox>([&] { user.window.close(); },
                             [](OxMessageBox* box) { QTest::keyClick(box, Qt::Key_Escape); });
    QVERIFY(user.window.isVisible());
    whileModal<OxMessageBox>(
        [&] { user.window.close(); },
        [](OxMessageBox* box) { EditorUser::tapButton(box, QStringLiteral("Discard")); });
    QVERIFY(!user.window.isVisible());
}

void TestEditor::anExistingFileIsReplacedOnlyIfThePersonWants()
{
    const FileDialogHome home;
    const QString path = home.desktop() + QStringLiteral("/taken.label");
    makeFile(path, "something else");
    EditorUser user;
    user.insertShape(QStringLiteral("addRectangle"));
    const auto saveOver = [&](const QString& answer) {
        bool isAsked = false;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
            auto* box = qobject_cast<OxMessageBox*>(QApplication::activeModalWidget());
            if (box != nullptr && !isAsked && box->isVisible()) {
                isAsked = true;
                EditorUser::tapButton(box, answer);
            }
        });
        poll.start(0);
        user.command<OxFileDialog>(QStringLiteral("Save"), [](OxFileDialog* dialog) {
            EditorUser::chooseName(dialog, QStringLiteral("taken"));
        });
        QVERIFY2(isAsked, "it was not asked whether the file is to be replaced");
    };
    STEP(saveOver(QStringLiteral("No")));
    QCOMPARE(contentOf(path), QByteArray("something else"));
    QVERIFY(user.window.document().isModified());
    STEP(saveOver(QStringLiteral("Yes")));
    QVERIFY(contentOf(path).startsWith('{'));
    QVERIFY(!user.window.document().isModified());
}

void TestEditor::aDatabaseWithoutRecordsIsRefused_data()
{
    QTest::addColumn<QStringList>("statements");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("no table") << QStringList() << QByteArray();
    QTest::newRow("no record") << QStringList { QStringLiteral("CREATE TABLE a (b)") }
                               << QByteArray();
    QTest::newRow("no database") << QStringList() << QByteArray(5000, 'x');
}

void TestEditor::aDatabaseWithoutRecordsIsRefused()
{
    QFETCH(QStringList, statements);
    QFETCH(QByteArray, bytes);
    const QString name = QStringLiteral("Empty.db");
    makeRecords(name, statements);
    if (!bytes.isEmpty()) {
        makeFile(DatabasesPath + QStringLiteral("Labels/") + name, bytes);
    }
    RecordBar bar;
    QCOMPARE(bar.open(DatabasesPath + QStringLiteral("Labels/") + name),
             QStringLiteral("Empty holds no records."));
    QCOMPARE(bar.records().count(), 1);
    QVERIFY(bar.isHidden());
}

void TestEditor::closingTheRecordBarShowsTheNamesOfFields()
{
    makeAddresses();
    EditorUser user;
    auto* bar = user.window.findChild<RecordBar*>();
    QCOMPARE(bar->open(DatabasesPath + QStringLiteral("Labels/Addresses.db")), QString());
    QCOMPARE(bar->current().value(QStringLiteral("name")).toString(), QStringLiteral("Ada"));
    QTRY_VERIFY(bar->isVisible());
    user.tap(QStringLiteral("closeButton"));
    QVERIFY(!bar->isVisible());
    QVERIFY2(bar->current().isEmpty(), "there is still a record for the {name} of a text");
}

void TestEditor::aSymbolIsInsertedFromAFile()
{
    const FileDialogHome home;
    makeSymbols();
    makeFile(home.path(QStringLiteral("own.svg")), filledSvg("blue"));
    EditorUser user;
    whileModal<SymbolDatabaseWidget>(
        [&] { user.tap(QStringLiteral("addSymbol")); },
        [](SymbolDatabaseWidget* browser) {
            whileModal<OxFileDialog>(
                [&] { EditorUser::tapButton(browser, QStringLiteral("Insert From File")); },
                [](OxFileDialog* dialog) {
                    EditorUser::chooseFile(dialog, QStringLiteral("own.svg"));
                });
        });
    QCOMPARE(user.objects().count(), 1);
    QCOMPARE(user.objects().at(0).svg, filledSvg("blue"));
}

void TestEditor::aDrawingThatReadsFilesIsRefused()
{
    const QByteArray svg =
        "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
        "width='9' height='9'><image xlink:href='/etc/passwd' width='9' height='9'/></svg>";
    QCOMPARE(Object::complaintAbout(svg), QStringLiteral("references to files"));
    QCOMPARE(Object::complaintAbout(filledSvg("red")), QString());
    QVERIFY(!Object::complaintAbout("<svg>").isEmpty());
}

void TestEditor::aTapElsewhereClosesTheMenu()
{
    EditorUser user;
    const QWidget* menu = user.find(QStringLiteral("menu"));
    user.tap(QStringLiteral("file"));
    QVERIFY(menu->isVisible());
    TouchFinger().tap(user.canvas, QPoint(user.canvas->width() - 9, 9));
    QTRY_VERIFY(!menu->isVisible());
    user.tap(QStringLiteral("file"));
    QVERIFY(menu->isVisible());
    user.tap(QStringLiteral("file"));
    QTRY_VERIFY(!menu->isVisible());
}

void TestEditor::everyControlHasANameAndIsLargeEnough()
{
    EditorUser user;
    user.tap(QStringLiteral("file"));
    for (const int tab : { 0, 1 }) {
        user.tapTab(QStringLiteral("tabs"), tab);
        const auto buttons = user.window.findChildren<QAbstractButton*>();
        for (const QAbstractButton* button : buttons) {
            const QByteArray about = button->metaObject()->className() + QByteArray(" ")
                + button->objectName().toUtf8() + " " + button->text().toUtf8();
            if (!button->isVisible()) {
                continue;
            }
            QVERIFY2(!button->text().isEmpty() || !button->accessibleName().isEmpty()
                         || button->objectName() == QLatin1String("ColorButton"),
                     about.constData());
            QVERIFY2(button->height() >= CloseButtonSize.height()
                         && button->width() >= CloseButtonSize.width(),
                     about.constData());
        }
    }
}

void TestEditor::aDocumentIsReadAsItWasWritten()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("all.label"));
    QCOMPARE(exampleContent().write(path), QString());
    Content content;
    QCOMPARE(content.read(path), QString());
    QVERIFY(isSame(content, exampleContent()));
    // The same document is the same file.
    const QString again = folder.filePath(QStringLiteral("again.label"));
    QCOMPARE(content.write(again), QString());
    QCOMPARE(contentOf(again), contentOf(path));
}

void TestEditor::whatWasDraggedFarAwayCanBeReadAgain()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("far.label"));
    Content content = exampleContent();
    content.layers[0].objects[0].left = -1e7;
    QCOMPARE(content.write(path), QString());
    QCOMPARE(content.read(path), QString());
    QCOMPARE(content.objects().at(0).left, -10000.0);
}

void TestEditor::aBadFileIsRefusedAndLosesNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("complaint");

    const QString noLabel = QStringLiteral("bad.label is not a label, or it is damaged.");
    const QString values = QStringLiteral("bad.label holds values that cannot be used.");
    QTest::newRow("empty") << QByteArray() << noLabel;
    QTest::newRow("no JSON") << QByteArray("%PDF-1.4") << noLabel;
    QTest::newRow("other JSON") << QByteArray(R"({"objects": []})") << noLabel;
    QTest::newRow("a list") << QByteArray("[1, 2]") << noLabel;
    QTest::newRow("a newer version")
        << QByteArray(R"({"version": 2})")
        << QStringLiteral("bad.label was saved by a newer version of this program.");
    QTest::newRow("version 0") << QByteArray(R"({"version": 0})") << values;
    QTest::newRow("half a version") << QByteArray(R"({"version": "1"})") << noLabel;
    QTest::newRow("no layer") << QByteArray(
        R"({"version": 1, "pageWidth": 9, "pageHeight": 9, "layers": []})")
                              << values;
    QTest::newRow("a page without end")
        << QByteArray(R"({"version": 1, "pageWidth": 1e300, "pageHeight": 9,
                          "layers": [{"name": "", "visible": true, "objects": []}]})")
        << values;
    QTest::newRow("layers that are none")
        << QByteArray(R"({"version": 1, "pageWidth": 9, "pageHeight": 9, "layers": [7]})")
        << values;
}

void TestEditor::aBadFileIsRefusedAndLosesNothing()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, complaint);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("bad.label"));
    makeFile(path, bytes);
    EditorUser user;
    user.insertShape(QStringLiteral("addRectangle"));
    whileModal<OxMessageBox>([&] { user.window.openFile(path); }, expectError(complaint));
    QCOMPARE(user.objects().count(), 1);
    QVERIFY(user.window.document().isModified());
    QCOMPARE(contentOf(path), bytes);
}

void TestEditor::everyFieldOfAnObjectIsChecked_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QJsonValue>("value");

    const auto row = [](const char* name, const char* field, const QJsonValue& value) {
        QTest::newRow(name) << QString::fromLatin1(field) << value;
    };
    row("no id", "id", QJsonValue::Undefined);
    row("id 0", "id", 0);
    row("an id twice", "id", 2);
    row("unknown kind", "kind", QStringLiteral("spline"));
    row("kind is a number", "kind", 1);
    row("far away", "x", 1e9);
    row("farther away than a number can tell", "y", 1e308);
    row("x is a text", "x", QStringLiteral("1"));
    row("less than no width", "width", -1);
    row("endless height", "height", 1e12);
    row("line of no colour", "lineColor", QStringLiteral("brightest"));
    row("fill colour is a flag", "fillColor", true);
    row("line too wide", "lineWidth", 1e6);
    row("font too large", "fontSize", 2e9);
    row("font without size", "fontSize", 0);
    row("lock is a number", "locked", 1);
    row("text is a list", "text", QJsonArray());
    row("no drawing", "svg", QStringLiteral("!!!"));
    row("drawing that refers to itself without end", "svg",
        QString::fromLatin1(QByteArray("<svg xmlns='http://www.w3.org/2000/svg' "
                                       "xmlns:xlink='http://www.w3.org/1999/xlink'><g id='a'>"
                                       "<use xlink:href='#a'/></g></svg>")
                                .toBase64()));
    row("drawing that reads a file", "svg",
        QString::fromLatin1(QByteArray("<svg xmlns='http://www.w3.org/2000/svg' "
                                       "xmlns:xlink='http://www.w3.org/1999/xlink'>"
                                       "<image xlink:href='/etc/passwd' width='9' height='9'/>"
                                       "</svg>")
                                .toBase64()));
}

void TestEditor::everyFieldOfAnObjectIsChecked()
{
    QFETCH(QString, field);
    QFETCH(QJsonValue, value);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("bad.label"));
    QCOMPARE(exampleContent().write(path), QString());
    QJsonObject json = QJsonDocument::fromJson(contentOf(path)).object();
    QJsonArray layers = json[QStringLiteral("layers")].toArray();
    QJsonObject layer = layers.at(0).toObject();
    QJsonArray objects = layer[QStringLiteral("objects")].toArray();
    const int last = int(objects.count()) - 1; // the symbol
    QJsonObject changed = objects.at(last).toObject();
    changed[field] = value;
    objects[last] = changed;
    layer[QStringLiteral("objects")] = objects;
    layers[0] = layer;
    json[QStringLiteral("layers")] = layers;
    makeFile(path, QJsonDocument(json).toJson());
    Content content;
    QCOMPARE(content.read(path), QStringLiteral("bad.label holds values that cannot be used."));
}

void TestEditor::aCutFileNeverCrashes()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("cut.label"));
    QCOMPARE(exampleContent().write(path), QString());
    const QByteArray whole = contentOf(path).trimmed();
    for (int length = 0; length < whole.size(); length += 13) {
        makeFile(path, whole.left(length));
        Content content;
        QVERIFY2(!content.read(path).isEmpty(), qPrintable(QString::number(length)));
    }
}

void TestEditor::aFileThatCannotBeWrittenKeepsWhatItWas()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("full.label"));
    QCOMPARE(Document().content().write(path), QString());
    const QByteArray before = contentOf(path);
    EditorUser user;
    user.window.openFile(path);
    user.insertShape(QStringLiteral("addRectangle"));
    {
        const FullDisk disk(16);
        user.command<OxMessageBox>(QStringLiteral("Save"),
                                   expectError(QStringLiteral("full.label cannot be saved:")));
    }
    QCOMPARE(contentOf(path), before);
    QVERIFY(user.window.document().isModified());
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
             QStringList { QStringLiteral("full.label") });
    user.command(QStringLiteral("Save"));
    QVERIFY(contentOf(path) != before);
    QVERIFY(!user.window.document().isModified());
}

void TestEditor::aDocumentIsNotSavedIntoAFolderThatIsNotThere()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("gone/a.label"));
    QVERIFY(exampleContent().write(path).startsWith(QStringLiteral("a.label cannot be saved:\n")));
    QVERIFY(exampleContent()
                .write(QStringLiteral("/proc/a.label"))
                .startsWith(QStringLiteral("a.label cannot be saved:\n")));
}

void TestEditor::aPdfThatCannotBeWrittenKeepsWhatItWas()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("full.pdf"));
    makeFile(path, "before");
    const FullDisk disk(64);
    QVERIFY(exampleContent()
                .print(path, { QSqlRecord() })
                .startsWith(QStringLiteral("full.pdf cannot be printed:\n")));
    QCOMPARE(contentOf(path), QByteArray("before"));
}

void TestEditor::theProgramStartsWithAFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("first.label"));
    QCOMPARE(exampleContent().write(path), QString());
    SecondProcess editor(QStringLiteral(UTILITYWIDGETS_EDITOR), { path });
    QVERIFY2(editor.waitForLine("editing " + path.toUtf8()), "the program does not run");
}

void TestEditor::aSecondStartEndsAndTheFirstComesForward()
{
    QCopChannel first(channelName());
    QSignalSpy received(&first, &QCopChannel::received);
    SecondProcess second(QStringLiteral(UTILITYWIDGETS_EDITOR));
    QCOMPARE(second.waitForEnd(), 0);
    QVERIFY2(!second.hasLine(), "the second start has opened a window");
    QTRY_COMPARE(received.count(), 1);
    QCOMPARE(received.at(0).at(0).toString(), QStringLiteral("raise"));
}

void TestEditor::theProgramTellsItsOptions()
{
    const ProgramResult help =
        runProgram(QStringLiteral(UTILITYWIDGETS_EDITOR), { QStringLiteral("--help") });
    QCOMPARE(help.exitCode, 0);
    QVERIFY2(help.output.contains(QStringLiteral("[file]")), qPrintable(help.output));
    const ProgramResult version =
        runProgram(QStringLiteral(UTILITYWIDGETS_EDITOR), { QStringLiteral("--version") });
    QVERIFY2(version.output.startsWith(QStringLiteral("utilitywidgets-editor ")),
             qPrintable(version.output));
}

void TestEditor::theSourcesAreFewerThan1500Lines()
{
    const QDir folder(QStringLiteral(EDITOR_FOLDER));
    const QStringList names = folder.entryList(
        { QStringLiteral("*.h"), QStringLiteral("*.cpp"), QStringLiteral("CMakeLists.txt") });
    QVERIFY(names.count() > 10);
    // Every line counts, as wc -l counts them. Not so the forms: they are Designer's, and the code
    // that uic makes of them is nobody's to read.
    qsizetype lines = 0;
    for (const QString& name : names) {
        lines += contentOf(folder.filePath(name)).count('\n');
    }
    QVERIFY2(lines > 100 && lines < 1500, qPrintable(QString::number(lines)));
}

UW_TEST_MAIN_WITH(FileDialogApplication, TestEditor)

#include "tst_editor.moc"
