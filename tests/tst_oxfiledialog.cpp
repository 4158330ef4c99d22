// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxfiledialog.h"

#include "applicationfont.h"
#include "look/sheets.h"
#include "oxiconitemdelegate.h"
#include "sharedconstants.h"
#include "support/everythingtranslated.h"
#include "support/filedialoguser.h"
#include "support/finger.h"
#include "support/modaldialog.h"
#include "support/test.h"
#include "support/translationrecorder.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QTranslator>

#include <algorithm>
#include <functional>
#include <optional>

namespace {

using State = OxFileDialog::DialogState;
using Args = OxFileDialog::OxFileDialogArgs;
using Script = std::function<void(const FileDialogUser&)>;

const QString TwoFormats = QStringLiteral("Labels (*.lbl);;Texts (*.txt)");

QString run(const std::function<QString()>& call, const Script& script)
{
    return whileModal<OxFileDialog>(
        call, [script](OxFileDialog* dialog) { script(FileDialogUser(dialog)); });
}

QString openFile(const Script& script, const QString& dir = {}, const QString& filter = {})
{
    return run([=] { return OxFileDialog::getOpenFileName(nullptr, {}, dir, filter); }, script);
}

QString saveFile(const Script& script, const QString& dir = {}, const QString& filter = {})
{
    return run([=] { return OxFileDialog::getSaveFileName(nullptr, {}, dir, filter); }, script);
}

QString selectFolder(const Script& script, const QString& dir = {},
                     QFileDialog::Options options = QFileDialog::ShowDirsOnly)
{
    return run([=] { return OxFileDialog::getExistingDirectory(nullptr, {}, dir, options); },
               script);
}

QString byState(State state, const Script& script)
{
    return run(
        [=] {
            if (state == OxFileDialog::SelectFolder) {
                return OxFileDialog::getExistingDirectory(nullptr);
            }
            return OxFileDialog::getFileName(state, nullptr);
        },
        script);
}

void addStates()
{
    QTest::addColumn<State>("state");
    QTest::newRow("open") << OxFileDialog::OpenFile;
    QTest::newRow("save") << OxFileDialog::SaveFile;
    QTest::newRow("folder") << OxFileDialog::SelectFolder;
}

void tap(QWidget* widget)
{
    Finger().tap(widget);
}

/// Makes every text half as long again, in one word more or in longer ones.
class LongTexts : public QTranslator
{
public:
    LongTexts() { QCoreApplication::installTranslator(this); }
    ~LongTexts() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY_MOVE(LongTexts)

    bool isEmpty() const override { return false; }

    QString translate(const char* /*context*/, const char* text, const char* /*comment*/,
                      int /*number*/) const override
    {
        QString longer = QString::fromUtf8(text);
        longer.append(QString((longer.size() + 1) / 2, QLatin1Char('m')));
        return longer;
    }
};

/// Puts the process into another folder for as long as it lives.
class ProcessFolder
{
public:
    explicit ProcessFolder(const QString& path) { QDir::setCurrent(path); }
    ~ProcessFolder() { QDir::setCurrent(m_former); }
    Q_DISABLE_COPY_MOVE(ProcessFolder)

private:
    const QString m_former = QDir::currentPath();
};

const QString SelectionSheet =
    QStringLiteral("QListView { show-decoration-selected: 1; selection-color: white; "
                   "selection-background-color: #0068d9; }\n");

/// What a widget's text needs, and what it has.
bool textFits(const QWidget* widget)
{
    if (const auto* button = qobject_cast<const QPushButton*>(widget)) {
        return button->fontMetrics().horizontalAdvance(button->text()) <= button->width() - 4;
    }
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        const int flags = int(label->alignment()) | (label->wordWrap() ? Qt::TextWordWrap : 0);
        const QRect needed =
            label->fontMetrics().boundingRect(label->contentsRect(), flags, label->text());
        return label->contentsRect().contains(needed);
    }
    return true;
}

} // namespace

class TestOxFileDialog : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aPlainDialogIsEmpty();
    void theStatesHaveFixedValues();
    void theWindowIsFramelessModalAndOfAFixedSize();
    void theDialogIsInTheMiddleOfTheScreen();
    void theTitleNamesTheState_data();
    void theTitleNamesTheState();
    void aCaptionIsTheWholeTitle();
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void theTextsHaveTheirComments();
    void thePartsHaveFixedSizes();
    void thePartsStandInTheirRows_data();
    void thePartsStandInTheirRows();
    void theSheetsAreExact();
    void theListsAreMadeForFingers();
    void nothingIsClipped_data();
    void nothingIsClipped();
    void everyTargetIsAFingerHigh_data();
    void everyTargetIsAFingerHigh();
    void theFocusGoesDownTheDialog_data();
    void theFocusGoesDownTheDialog();
    void typingStartsInTheNameBox_data();
    void typingStartsInTheNameBox();
    void aSelectedFileKeepsTheColoursOfItsPicture();

    void everyWayToCancelReturnsNothing_data();
    void everyWayToCancelReturnsNothing();
    void whatWasTappedIsNotReturnedWhenCancelled();

    void openingStartsAtHome();
    void savingStartsOnTheDesktop();
    void savingStartsWithNothingWhereThereIsNoDesktop();
    void selectingAFolderStartsOnTheDesktop();
    void aFileStandsForItsFolder();
    void aFolderWithADotStandsForTheOneAboveIt();
    void theWorkingDirectoryIsAbsolute_data();
    void theWorkingDirectoryIsAbsolute();

    void twoEntriesMakeTwoFormats();
    void choosingAFormatListsItsFilesAlone();
    void anEmptyFilterMeansTexts();
    void aPatternInCapitalsMatchesNoOrdinaryFile();
    void aPatternWithADigitEndsBeforeIt();
    void allFilesAreListedWithoutPatterns();
    void theSelectedFilterIsChosenAndNotWrittenBack();
    void aSelectedFilterThatIsNoEntryLeavesTheFirst();
    void hiddenFilesAreNotListed();
    void foldersAloneAreListedForAFolder_data();
    void foldersAloneAreListedForAFolder();
    void aFolderHasNoFormats();

    void aTappedFileIsOpened();
    void aDoubleTappedFileIsReturnedAtOnce_data();
    void aDoubleTappedFileIsReturnedAtOnce();
    void aTypedNameIsOpened();
    void enterOpensATypedName();
    void aNameThatIsNotThereLeavesTheDialogOpen();
    void aNameThatIsNotThereOpensTheTappedFile();
    void anEmptyNameReturnsTheShownFolder();
    void anEmptyNameWithoutATapLeavesTheDialogOpen();
    void aTypedWayUpIsRemoved();
    void threeDotsDoNotOpenTheFolderAbove();
    void openingReadsATypedLocation();
    void theSelectionByKeysNamesTheFile();
    void enterOnAFolderOnlyEntersIt();
    void enterOnAFileReturnsItOnce();
    void aDragOverTheListChoosesNothing();
    void touchPointsChooseAsWell();
    void touchPointsEnterAFolderByADoubleTap();

    void savingAddsTheExtension();
    void savingKeepsAnExtension_data();
    void savingKeepsAnExtension();
    void savingTakesThePatternAtTheFormatsPlace();
    void savingWithoutPatternsKeepsTheName();
    void savingAnExistingFileAsksNothing();
    void savingANameOfTheProcessFolderReturnsWhatWasTapped();
    void savingAnEmptyNameLeavesTheDialogOpen();
    void savingStaysInTheShownFolder();
    void savingCleansTheName_data();
    void savingCleansTheName();

    void aTappedFolderIsSelected();
    void aTypedFolderIsSelected();
    void theShownFolderIsSelectedWithoutAName();
    void aFolderThatIsNotThereSelectsTheTappedOne();

    void aDoubleTapEntersAFolder();
    void enteringAddsTheStartToTheLocations();
    void goingUpEndsAtTheTopFolder();
    void goingUpOutsideTheTopFolderEndsByOrder();
    void goingUpEndsAtTheRoot();
    void aChosenLocationIsShown();
    void choosingTheStartTakesItFromTheLocations();
    void enteringAFolderStartsAtItsTop();
};

void TestOxFileDialog::aPlainDialogIsEmpty()
{
    OxFileDialog dialog(nullptr);
    QCOMPARE(dialog.objectName(), QStringLiteral("OxFileDialog"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("File Dialog"));
    QVERIFY(dialog.findChildren<QWidget*>().isEmpty());
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Return);
    QVERIFY(dialog.isVisible());

    const OxFileDialog tool(nullptr, Qt::Tool);
    QCOMPARE(tool.windowType(), Qt::Tool);
    QCOMPARE(tool.windowTitle(), QStringLiteral("File Dialog"));
}

void TestOxFileDialog::theStatesHaveFixedValues()
{
    QCOMPARE(int(OxFileDialog::OpenFile), 0);
    QCOMPARE(int(OxFileDialog::SaveFile), 1);
    QCOMPARE(int(OxFileDialog::SelectFolder), 2);
}

void TestOxFileDialog::theWindowIsFramelessModalAndOfAFixedSize()
{
    const FileDialogHome home;
    QWidget parent;
    const OxFileDialog dialog(&parent, {}, OxFileDialog::OpenFile);
    QCOMPARE(dialog.parentWidget(), &parent);
    QVERIFY(dialog.isWindow());
    QCOMPARE(dialog.objectName(), QStringLiteral("OxFileDialog"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("File Dialog"));
    QCOMPARE(dialog.windowType(), Qt::Dialog);
    QVERIFY(dialog.windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(dialog.windowModality(), Qt::WindowModal);
    QCOMPARE(dialog.minimumSize(), QSize(620, 520));
    QCOMPARE(dialog.maximumSize(), QSize(620, 520));
    QCOMPARE(dialog.font().pointSize(), ApplicationFont::getWidgetFontTiny(false).pointSize());
    QVERIFY(!dialog.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!dialog.testAttribute(Qt::WA_QuitOnClose));
    QVERIFY(!dialog.windowIcon().pixmap(32).isNull());
}

void TestOxFileDialog::theDialogIsInTheMiddleOfTheScreen()
{
    const FileDialogHome home;
    const QSize screen = QGuiApplication::primaryScreen()->size();
    openFile([screen](const FileDialogUser& user) {
        QCOMPARE(user.dialog->pos(), QPoint(screen.width() / 2 - 310, screen.height() / 2 - 260));
        tap(user.cancel);
    });
}

void TestOxFileDialog::theTitleNamesTheState_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("accept");
    QTest::addColumn<QString>("name");

    const auto add = [](State state, const char* title, const char* accept, const char* name) {
        QTest::newRow(accept) << state << QString::fromLatin1(title) << QString::fromLatin1(accept)
                              << QString::fromLatin1(name);
    };
    add(OxFileDialog::OpenFile, "Open File Dialog", "Open", "File Name");
    add(OxFileDialog::SaveFile, "Save File Dialog", "Save", "File Name");
    add(OxFileDialog::SelectFolder, "Select Folder Dialog", "Select", "Folder Name");
}

void TestOxFileDialog::theTitleNamesTheState()
{
    const FileDialogHome home;
    QFETCH(State, state);
    QFETCH(QString, title);
    QFETCH(QString, accept);
    QFETCH(QString, name);
    byState(state, [&](const FileDialogUser& user) {
        QCOMPARE(user.title(), title);
        QCOMPARE(user.accept->text(), accept);
        QCOMPARE(user.cancel->text(), QStringLiteral("Cancel"));
        QCOMPARE(user.favorite->text(), QStringLiteral("Add To Favorites"));
        QStringList labels;
        const auto children =
            user.dialog->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
        for (const QLabel* label : children) {
            labels.append(label->text());
        }
        labels.sort();
        QStringList expected { QStringLiteral("Favorites"), name };
        if (state != OxFileDialog::SelectFolder) {
            expected.append(QStringLiteral("Format"));
        }
        expected.sort();
        QCOMPARE(labels, expected);
        tap(user.cancel);
    });
}

void TestOxFileDialog::aCaptionIsTheWholeTitle()
{
    const FileDialogHome home;
    run([] { return OxFileDialog::getSaveFileName(nullptr, QStringLiteral("Export the label")); },
        [](const FileDialogUser& user) {
            QCOMPARE(user.title(), QStringLiteral("Export the label"));
            QCOMPARE(user.accept->text(), QStringLiteral("Save"));
            tap(user.cancel);
        });
}

void TestOxFileDialog::everyTextIsTranslated_data()
{
    addStates();
}

void TestOxFileDialog::everyTextIsTranslated()
{
    const FileDialogHome home;
    QFETCH(State, state);
    const EverythingTranslated translated;
    const QString text = EverythingTranslated::text();
    byState(state, [&](const FileDialogUser& user) {
        QCOMPARE(user.title(), text + QLatin1Char(' ') + text + text);
        for (const QPushButton* button : { user.accept, user.cancel, user.favorite }) {
            QCOMPARE(button->text(), text);
        }
        QCOMPARE(user.up->accessibleName(), text);
        QCOMPARE(user.locationBox->accessibleName(), text);
        QCOMPARE(user.files->accessibleName(), text);
        QCOMPARE(user.favorites->accessibleName(), text);
        const auto labels =
            user.dialog->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
        for (const QLabel* label : labels) {
            QVERIFY(label->text() == text || label->text() == text + text);
        }
        tap(user.cancel);
    });
}

void TestOxFileDialog::theTextsHaveTheirComments()
{
    const FileDialogHome home;
    const TranslationRecorder shared("QObject");
    const TranslationRecorder own("OxFileDialog");
    for (const State state :
         { OxFileDialog::OpenFile, OxFileDialog::SaveFile, OxFileDialog::SelectFolder }) {
        byState(state, [](const FileDialogUser& user) {
            user.receive(QStringLiteral("add"), QStringLiteral("/media/STICK"));
            user.tapFavorite(QStringLiteral("STICK"));
            tap(user.cancel);
        });
    }
    QStringList texts = shared.texts();
    texts.sort();
    QCOMPARE(texts.join(QLatin1Char('\n')),
             QStringLiteral(
                 " Dialog / Last part of the File or Folder Dialog title.\n"
                 "Add To Favorites / Text on the button to add a folder location to a list of "
                 "favorites.\n"
                 "File / Middle part of the Select File Dialog title.\n"
                 "Folder / Middle part of the Select Folder Dialog title.\n"
                 "Open / First part of the Open File Dialog title.\n"
                 "Remove Favorite / Text on the button for removing a favorite folder location.\n"
                 "Save / First part of the Save File Dialog title.\n"
                 "Select / First part of the Select File Dialog title."));
    texts = own.texts();
    texts.sort();
    QCOMPARE(texts.join(QLatin1Char('\n')),
             QStringLiteral(
                 " Name / Label used to denote what the current 'File Name' or 'Folder Name' is "
                 "selected.\n"
                 "%1 %2%3 / Title of the dialog: %1 is Open, Save or Select, %2 File or Folder, "
                 "%3 Dialog.\n"
                 "Cancel / Button text to cancel file dialog.\n"
                 "Favorites / Header label for display favorite folder locations.\n"
                 "Files / Accessible name of the list of files and folders.\n"
                 "Format / Label to denote the file format selected.\n"
                 "Location / Accessible name of the box that names the shown folder.\n"
                 "Up / Accessible name of the button that shows the folder above."));
}

void TestOxFileDialog::thePartsHaveFixedSizes()
{
    const FileDialogHome home;
    openFile([](const FileDialogUser& user) {
        QCOMPARE(user.nameBox->size(), QSize(520, 35));
        QCOMPARE(user.formatBox->size(), QSize(340, 35));
        QCOMPARE(user.locationBox->size(), QSize(385, 55));
        QCOMPARE(user.up->size(), IconButtonSize);
        QCOMPARE(user.favorite->size(), QSize(160, 35));
        QCOMPARE(user.accept->width(), 80);
        QCOMPARE(user.cancel->width(), 80);
        QCOMPARE(user.files->size(), QSize(400, 305));
        QCOMPARE(user.favorites->size(), QSize(190, 280));
        QCOMPARE(user.nameBox->minimumHeight(), 35); // not the 37 of its sheet
        QVERIFY(user.nameBox->isEditable());
        QVERIFY(user.accept->isDefault());
        QVERIFY(user.accept->autoDefault());
        const auto* outer = qobject_cast<QVBoxLayout*>(user.dialog->layout());
        QCOMPARE(outer->spacing(), 10);
        QCOMPARE(outer->contentsMargins(), QMargins());
        QCOMPARE(outer->itemAt(1)->layout()->contentsMargins(), QMargins(6, 6, 6, 6));
        tap(user.cancel);
    });
}

void TestOxFileDialog::thePartsStandInTheirRows_data()
{
    addStates();
}

/// Each row from left to right, one below the other.
void TestOxFileDialog::thePartsStandInTheirRows()
{
    const FileDialogHome home;
    QFETCH(State, state);
    byState(state, [state](const FileDialogUser& user) {
        QWidgetList lastRow { user.formatBox, user.accept, user.cancel };
        if (state == OxFileDialog::SelectFolder) {
            lastRow.removeFirst();
        }
        const QList<QWidgetList> rows { { user.dialog->findChild<ContainerTitleBar*>() },
                                        { user.up, user.locationBox, user.favorite },
                                        { user.favorites, user.files },
                                        { user.nameBox },
                                        lastRow };
        int bottom = -1;
        for (const QWidgetList& row : rows) {
            int right = -1;
            int lowest = bottom;
            for (const QWidget* widget : row) {
                QVERIFY(widget->geometry().top() > bottom);
                QVERIFY(widget->geometry().left() > right);
                right = widget->geometry().right();
                lowest = std::max(lowest, widget->geometry().bottom());
            }
            bottom = lowest;
        }
        // The header and its list are as high as the files beside them.
        QCOMPARE(user.favorites->geometry().bottom(), user.files->geometry().bottom());
        QCOMPARE(user.favorites->y() - user.files->y(), 25);
        tap(user.cancel);
    });
}

void TestOxFileDialog::theSheetsAreExact()
{
    const FileDialogHome home;
    const QString combo = QStringLiteral(
        "QComboBox { border: 1px solid #c6c6c6; }\nQComboBox::drop-down { border: 0px; }\n"
        "QComboBox::down-arrow { image: "
        "url(:/module_icons/ModuleIcons/combobox-down-arrow.png); }\n"
        "QComboBox::down-arrow::disabled { image: "
        "url(:/module_icons/ModuleIcons/combobox-down-arrow-disabled.png); }\n"
        "QComboBox QAbstractItemView::item { min-height: 35px; }\n "
        "QComboBox { min-height: 35px; background-color: white; }\n");
    openFile([combo](const FileDialogUser& user) {
        QCOMPARE(user.dialog->styleSheet(),
                 QStringLiteral(
                     "#OxFileDialog { background-color: #f2f2f2; border: 1px solid #fd7800; } "
                     "QPushButton { border: 1px solid #fd7800; color: white; font: bold; "
                     "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 "
                     "#5a5959, stop: 1 #060606); border-radius: 5px; outline: 0; }\n"
                     "QPushButton:pressed { background-color: #fd7800; color: white; }\n"
                     "QPushButton { width: 55px; height: 30px; }\n"
                     "QPushButton:disabled { border: 1px solid #d3d3d3; color: #848484; "
                     "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 "
                     "#d3d3d3, stop: 1 #a8a8a8); }\n"
                     "ContainerTitleBar QPushButton { border: 0px; background: none; }\n"));
        for (const QComboBox* box : { user.nameBox, user.formatBox, user.locationBox }) {
            QCOMPARE(box->styleSheet(), combo + Look::scrollBars());
        }
        QCOMPARE(
            user.files->styleSheet(),
            SelectionSheet
                + QStringLiteral(
                    "QListView::item:selected:active:hover { background-color: #fd7800; color: "
                    "white; }\n"
                    "QListView::item:selected:!active { background-color: #fd7800; color: white; "
                    "}\n"
                    "QListView::item:selected:active:!hover { background-color: #fda800; color: "
                    "white; }\n"
                    "QListView::item:!selected:hover { background-color: #fda800; color: white; "
                    "}\n")
                + Look::scrollBars());
        QCOMPARE(user.favorites->styleSheet(), SelectionSheet + Look::scrollBars(23));
        const auto labels =
            user.dialog->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
        const auto header = std::find_if(labels.begin(), labels.end(), [](const QLabel* label) {
            return label->text() == QLatin1String("Favorites");
        });
        QVERIFY(header != labels.end());
        QCOMPARE((*header)->styleSheet(),
                 QStringLiteral("color: white; background-color: #5A5959; font:bold;"));
        QCOMPARE((*header)->height(), 25);
        QCOMPARE((*header)->alignment(), Qt::AlignCenter);
        QCOMPARE(user.up->styleSheet(),
                 QStringLiteral("QPushButton { border: 0px; background: none; border-image: "
                                "url(:/FileDialog/FileDialogIcons/up-arrow_normal.jpg); }\n"
                                "QPushButton:pressed { border-image: "
                                "url(:/FileDialog/FileDialogIcons/up-arrow_pressed.jpg); }\n"
                                "QPushButton:disabled { border-image: "
                                "url(:/FileDialog/FileDialogIcons/up-arrow_disabled.jpg); }"));
        tap(user.cancel);
    });
}

void TestOxFileDialog::theListsAreMadeForFingers()
{
    const FileDialogHome home;
    home.addFile(QStringLiteral("a.txt"));
    openFile([](const FileDialogUser& user) {
        QVERIFY(user.files->uniformItemSizes());
        QCOMPARE(user.files->iconSize(), IconButtonSize);
        QVERIFY(qobject_cast<OxIconItemDelegate*>(user.files->itemDelegate()) != nullptr);
        QCOMPARE(user.files->visualRect(user.item(QStringLiteral("a.txt"))).height(), 35);
        QCOMPARE(user.favorites->gridSize(), QSize(165, 40));
        QCOMPARE(user.favorites->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        tap(user.cancel);
    });
}

void TestOxFileDialog::nothingIsClipped_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<bool>("longTexts");
    const QStringList names { QStringLiteral("open"), QStringLiteral("save"),
                              QStringLiteral("folder") };
    for (int state = 0; state < 3; ++state) {
        QTest::addRow("%s", qPrintable(names.at(state))) << State(state) << false;
        QTest::addRow("%s, long texts", qPrintable(names.at(state))) << State(state) << true;
    }
}

void TestOxFileDialog::nothingIsClipped()
{
    const FileDialogHome home;
    home.addFolder(QStringLiteral("designs"));
    QFETCH(State, state);
    QFETCH(bool, longTexts);
    std::optional<LongTexts> translator;
    if (longTexts) {
        translator.emplace();
    }
    byState(state, [&](const FileDialogUser& user) {
        user.receive(QStringLiteral("add"), QStringLiteral("/media/STICK"));
        user.tapFavorite(QStringLiteral("STICK")); // the longer of the button's texts
        QCOMPARE(user.dialog->size(), QSize(620, 520));
        QVERIFY(user.dialog->layout()->minimumSize().width() <= 620);
        QVERIFY(user.dialog->layout()->minimumSize().height() <= 520);

        QWidgetList shown;
        const auto children =
            user.dialog->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (QWidget* child : children) {
            if (child->isVisible()) {
                shown.append(child);
            }
        }
        QVERIFY(shown.size() >= 10);
        for (const QWidget* widget : shown) {
            QVERIFY2(user.dialog->rect().contains(widget->geometry()),
                     widget->metaObject()->className());
            QVERIFY2(textFits(widget), widget->metaObject()->className());
            for (const QWidget* other : shown) {
                QVERIFY(widget == other || !widget->geometry().intersects(other->geometry()));
            }
        }
        user.tapCloseButton();
    });
}

void TestOxFileDialog::everyTargetIsAFingerHigh_data()
{
    addStates();
}

void TestOxFileDialog::everyTargetIsAFingerHigh()
{
    const FileDialogHome home;
    for (int i = 0; i < 20; ++i) {
        home.addFolder(QStringLiteral("folder %1").arg(i));
    }
    QFETCH(State, state);
    byState(state, [](const FileDialogUser& user) {
        const QWidgetList targets { user.accept,   user.cancel,  user.up,
                                    user.favorite, user.nameBox, user.locationBox };
        for (const QWidget* target : targets) {
            QVERIFY(target->height() >= 35);
        }
        QVERIFY(user.formatBox->isHidden() || user.formatBox->height() >= 35);
        for (int row = 0; row < user.favorites->count(); ++row) {
            QVERIFY(user.favorites->visualItemRect(user.favorites->item(row)).height() >= 35);
        }
        for (const QComboBox* box : { user.locationBox, user.formatBox }) {
            QVERIFY(box->count() == 0 || box->view()->sizeHintForRow(0) >= 35);
        }
        tap(user.cancel);
    });
}

void TestOxFileDialog::theFocusGoesDownTheDialog_data()
{
    addStates();
}

void TestOxFileDialog::theFocusGoesDownTheDialog()
{
    const FileDialogHome home;
    QFETCH(State, state);
    byState(state, [state](const FileDialogUser& user) {
        user.up->setEnabled(true);
        QWidgetList chain { user.up,    user.locationBox, user.favorite, user.favorites,
                            user.files, user.nameBox,     user.formatBox };
        if (state == OxFileDialog::SelectFolder) {
            chain.removeLast();
        }
        chain += QWidgetList { user.accept, user.cancel };
        user.up->setFocus();
        for (const QWidget* widget : chain) {
            QWidget* focused = QApplication::focusWidget();
            QVERIFY(focused == widget || focused->parentWidget() == widget);
            user.press(Qt::Key_Tab);
        }
        tap(user.cancel);
    });
}

void TestOxFileDialog::typingStartsInTheNameBox_data()
{
    addStates();
}

void TestOxFileDialog::typingStartsInTheNameBox()
{
    const FileDialogHome home;
    QFETCH(State, state);
    byState(state, [](const FileDialogUser& user) {
        FileDialogUser::type(QStringLiteral("abc"));
        QCOMPARE(user.nameBox->currentText(), QStringLiteral("abc"));
        tap(user.cancel);
    });
}

void TestOxFileDialog::aSelectedFileKeepsTheColoursOfItsPicture()
{
    const FileDialogHome home;
    home.addFile(QStringLiteral("a.txt"));
    openFile([](const FileDialogUser& user) {
        user.tapFile(QStringLiteral("a.txt"));
        const auto picture = [](const QVariant& icon, QIcon::Mode mode) {
            return icon.value<QIcon>().pixmap(IconButtonSize, mode).toImage();
        };
        const QVariant file = user.item(QStringLiteral("a.txt")).data(Qt::DecorationRole);
        QVERIFY(!picture(file, QIcon::Normal).isNull());
        QCOMPARE(picture(file, QIcon::Selected), picture(file, QIcon::Normal));
        const QVariant favorite = user.favorites->item(0)->icon();
        QVERIFY(!picture(favorite, QIcon::Normal).isNull());
        QCOMPARE(picture(favorite, QIcon::Selected), picture(favorite, QIcon::Normal));
        tap(user.cancel);
    });
}

void TestOxFileDialog::everyWayToCancelReturnsNothing_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<QString>("way");
    for (const State state :
         { OxFileDialog::OpenFile, OxFileDialog::SaveFile, OxFileDialog::SelectFolder }) {
        for (const char* way : { "Cancel", "close button", "Escape", "window system" }) {
            QTest::addRow("%d, %s", int(state), way) << state << QString::fromLatin1(way);
        }
    }
}

void TestOxFileDialog::everyWayToCancelReturnsNothing()
{
    const FileDialogHome home;
    QFETCH(State, state);
    QFETCH(QString, way);
    const QString path = byState(state, [way](const FileDialogUser& user) {
        if (way == QLatin1String("Cancel")) {
            tap(user.cancel);
        } else if (way == QLatin1String("close button")) {
            user.tapCloseButton();
        } else if (way == QLatin1String("Escape")) {
            user.press(Qt::Key_Escape);
        } else {
            user.dialog->close();
        }
    });
    QVERIFY(path.isEmpty());
}

void TestOxFileDialog::whatWasTappedIsNotReturnedWhenCancelled()
{
    const FileDialogHome home;
    home.addFile(QStringLiteral("a.txt"));
    const QString path = openFile([](const FileDialogUser& user) {
        user.tapFile(QStringLiteral("a.txt"));
        QVERIFY(!user.dialog->selectedPath().isEmpty());
        tap(user.cancel);
    });
    QVERIFY(path.isEmpty());
}

void TestOxFileDialog::openingStartsAtHome()
{
    const FileDialogHome home;
    openFile([home](const FileDialogUser& user) {
        QVERIFY(user.lists({ QStringLiteral("Desktop") }));
        QCOMPARE(user.locations(), QStringList { home.path() });
        QVERIFY(!user.up->isEnabled());
        tap(user.cancel);
    });
}

void TestOxFileDialog::savingStartsOnTheDesktop()
{
    const FileDialogHome home;
    home.addFile(QStringLiteral("Desktop/a.txt"));
    saveFile([home](const FileDialogUser& user) {
        QVERIFY(user.lists({ QStringLiteral("a.txt") }));
        QCOMPARE(user.locations(), QStringList { home.desktop() });
        QVERIFY(!user.up->isEnabled());
        tap(user.cancel);
    });
}

/// Not with what lies in the root of the file system, as a view without a root would.
void TestOxFileDialog::savingStartsWithNothingWhereThereIsNoDesktop()
{
    const FileDialogHome home;
    QDir().rmdir(home.desktop());
    const QString path = saveFile([home](const FileDialogUser& user) {
        QCOMPARE(user.locations(), QStringList { home.desktop() });
        QCoreApplication::processEvents();
        QCOMPARE(user.listedNames(), QStringList());
        QCOMPARE(user.files->model()->rowCount(), 0);
        FileDialogUser::type(QStringLiteral("report"));
        tap(user.accept);
    });
    QCOMPARE(path, home.desktop() + QStringLiteral("/report.txt"));
}

void TestOxFileDialog::selectingAFolderStartsOnTheDesktop()
{
    const FileDialogHome home;
    selectFolder([home](const FileDialogUser& user) {
        QCOMPARE(user.locations(), QStringList({ home.desktop(), home.path() }));
        QVERIFY(user.up->isEnabled());
        tap(user.cancel);
    });
}

void TestOxFileDialog::aFileStandsForItsFolder()
{
    const FileDialogHome home;
    home.addFolder(QStringLiteral("designs"));
    const QString file = home.addFile(QStringLiteral("designs/a.txt"));
    openFile(
        [home](const FileDialogUser& user) {
            QVERIFY(user.lists({ QStringLiteral("a.txt") }));
            QCOMPARE(user.locations(),
                     QStringList({ home.path(QStringLiteral("designs")), home.path() }));
            QVERIFY(user.up->isEnabled());
            tap(user.cancel);
        },
        file);
}

void TestOxFileDialog::aFolderWithADotStandsForTheOneAboveIt()
{
    const FileDialogHome home;
    const QString folder = home.addFolder(QStringLiteral("v1.2"));
    openFile(
        [home](const FileDialogUser& user) {
            QCOMPARE(user.locationBox->currentText(), home.path());
            tap(user.cancel);
        },
        folder);
}

void TestOxFileDialog::theWorkingDirectoryIsAbsolute_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    QTest::newRow("absolute") << QStringLiteral("/tmp") << QStringLiteral("/tmp");
    QTest::newRow("relative") << QStringLiteral("a/b")
                              << QDir::currentPath() + QStringLiteral("/a/b");
    QTest::newRow("nothing") << QString() << QDir::homePath() + QStringLiteral("/Desktop");
}

void TestOxFileDialog::theWorkingDirectoryIsAbsolute()
{
    QFETCH(QString, path);
    QTEST(OxFileDialog::workingDirectory(path), "expected");
}

void TestOxFileDialog::twoEntriesMakeTwoFormats()
{
    const FileDialogHome home;
    openFile(
        [](const FileDialogUser& user) {
            QCOMPARE(user.formatBox->count(), 2);
            QCOMPARE(user.formatBox->itemText(0), QStringLiteral("Labels (*.lbl)"));
            QCOMPARE(user.formatBox->itemText(1), QStringLiteral("Texts (*.txt)"));
            QCOMPARE(user.formatBox->currentIndex(), 0);
            tap(user.cancel);
        },
        {}, TwoFormats + QStringLiteral(";;;;"));
}

void TestOxFileDialog::choosingAFormatListsItsFilesAlone()
{
    const FileDialogHome home;
    home.addFile(QStringLiteral("a.lbl"));
    home.addFile(QStringLiteral("b.txt"));
    const QString desktop = QStringLiteral("Desktop");
    openFile(
        [desktop](const FileDialogUser& user) {
            QVERIFY(user.lists({ desktop, QStringLiteral("a.lbl") }));
            FileDialogUser::choose(user.formatBox, 1);
            QVERIFY(user.lists({ desktop, QStringLiteral("b.txt") }));
            tap(user.cancel);
        },
        {}, TwoFormats);
}

void TestOxFileDialog::anEmptyFilterMeansTexts()
{
    const FileDialogHome home;
    home.addFile(QStringLiteral("a.txt"));
    home.addFile(QStringLiteral("b.lbl"));
    openFile([](const FileDialogUser& user) {
        QCOMPARE(user.formatBox->currentText(), QStringLiteral("*.txt"));
        QVERIFY(user.lists({ QStringLiteral("Desktop"), QStringLiteral("a.txt") }));
        tap(user.cancel);
    });
}

void TestOxFileDialog::aPatternInCapitalsMatchesNoOrdinaryFile()
{
    const FileDialogHome home;
    home.addFile(QStringLiteral("a.png"));
    home.addFile(QStringLiteral("b.PNG"));
    openFile(
        [](const FileDialogUser& user) {
            QVERIFY(user.lists({ QStringLiteral("Desktop") }));
            tap(user.cancel);
        },
        {}, QStringLiteral("Pictures (*.PNG)"));
}

void TestOxFileDialog::aPatternWithADigitEndsBeforeIt()
{
    const FileDialogHome home;
    home.addFile(QStringLiteral("a.mp3"));
    home.addFile(QStringLiteral("b.mp"));
    openFile(
        [](const FileDialogUser& user) {
            QVERIFY(user.lists({ QStringLiteral("Desktop"), QStringLiteral("b.mp") }));
            tap(user.cancel);
        },
        {}, QStringLiteral("Music (*.mp3)"));
}

void TestOxFileDialog::allFilesAreListedWithoutPatterns()
{
    const FileDialogHome home;
    home.addFile(QStringLiteral("a.lbl"));
    home.addFile(QStringLiteral("b"));
    openFile(
        [](const FileDialogUser& user) {
            QVERIFY(user.lists(
                { QStringLiteral("Desktop"), QStringLiteral("a.lbl"), QStringLiteral("b") }));
            tap(user.cancel);
        },
        {}, QStringLiteral("All files (*)"));
}

void TestOxFileDialog::theSelectedFilterIsChosenAndNotWrittenBack()
{
    const FileDialogHome home;
    home.addFile(QStringLiteral("a.lbl"));
    home.addFile(QStringLiteral("b.txt"));
    QString selected = QStringLiteral("Texts (*.txt)");
    run(
        [&selected] {
            return OxFileDialog::getOpenFileName(nullptr, {}, {}, TwoFormats, &selected);
        },
        [](const FileDialogUser& user) {
            QCOMPARE(user.formatBox->currentIndex(), 1);
            QVERIFY(user.lists({ QStringLiteral("Desktop"), QStringLiteral("b.txt") }));
            FileDialogUser::choose(user.formatBox, 0);
            QVERIFY(user.lists({ QStringLiteral("Desktop"), QStringLiteral("a.lbl") }));
            user.doubleTapFile(QStringLiteral("a.lbl"));
        });
    QCOMPARE(selected, QStringLiteral("Texts (*.txt)"));
}

/// Compared as it is written, capitals included.
void TestOxFileDialog::aSelectedFilterThatIsNoEntryLeavesTheFirst()
{
    const FileDialogHome home;
    QString selected = QStringLiteral("texts (*.txt)");
    const QString path = run(
        [&selected] {
            return OxFileDialog::getSaveFileName(nullptr, {}, {}, TwoFormats, &selected);
        },
        [](const FileDialogUser& user) {
            QCOMPARE(user.formatBox->currentIndex(), 0);
            user.nameBox->setFocus();
            FileDialogUser::type(QStringLiteral("a"));
            tap(user.accept);
        });
    // What is added is the selected filter's pattern, not the format's.
    QCOMPARE(path, home.desktop() + QStringLiteral("/a.txt"));
}

void TestOxFileDialog::hiddenFilesAreNotListed()
{
    const FileDialogHome home;
    home.addFile(QStringLiteral(".hidden.txt"));
    home.addFolder(QStringLiteral(".config"));
    home.addFile(QStringLiteral("a.txt"));
    openFile([](const FileDialogUser& user) {
        QVERIFY(user.lists({ QStringLiteral("Desktop"), QStringLiteral("a.txt") }));
        tap(user.cancel);
    });
}

void TestOxFileDialog::foldersAloneAreListedForAFolder_data()
{
    QTest::addColumn<bool>("showDirsOnly");
    QTest::newRow("as without the option") << false;
    QTest::newRow("as with it") << true;
}

void TestOxFileDialog::foldersAloneAreListedForAFolder()
{
    const FileDialogHome home;
    home.addFile(QStringLiteral("a.txt"));
    home.addFolder(QStringLiteral("b"));
    QFETCH(bool, showDirsOnly);
    selectFolder(
        [](const FileDialogUser& user) {
            QVERIFY(user.lists({ QStringLiteral("b"), QStringLiteral("Desktop") }));
            tap(user.cancel);
        },
        home.path(), showDirsOnly ? QFileDialog::ShowDirsOnly : QFileDialog::Options());
}

void TestOxFileDialog::aFolderHasNoFormats()
{
    const FileDialogHome home;
    selectFolder([](const FileDialogUser& user) {
        QVERIFY(user.formatBox->isHidden());
        QCOMPARE(user.formatBox->count(), 0);
        tap(user.cancel);
    });
}

void TestOxFileDialog::aTappedFileIsOpened()
{
    const FileDialogHome home;
    const QString file = home.addFile(QStringLiteral("a.txt"));
    home.addFile(QStringLiteral("b.txt"));
    const QString path = openFile([](const FileDialogUser& user) {
        user.tapFile(QStringLiteral("b.txt"));
        QCOMPARE(user.nameBox->currentText(), QStringLiteral("b.txt"));
        user.tapFile(QStringLiteral("a.txt"));
        QCOMPARE(user.nameBox->currentText(), QStringLiteral("a.txt"));
        user.tapFile(QStringLiteral("Desktop")); // a folder is not for opening
        QCOMPARE(user.nameBox->currentText(), QStringLiteral("a.txt"));
        tap(user.accept);
    });
    QCOMPARE(path, file);
}

void TestOxFileDialog::aDoubleTappedFileIsReturnedAtOnce_data()
{
    QTest::addColumn<State>("state");
    QTest::newRow("open") << OxFileDialog::OpenFile;
    QTest::newRow("save") << OxFileDialog::SaveFile;
}

void TestOxFileDialog::aDoubleTappedFileIsReturnedAtOnce()
{
    const FileDialogHome home;
    const QString file = home.addFile(QStringLiteral("Desktop/a.txt"));
    QFETCH(State, state);
    const QString path =
        run([&] { return OxFileDialog::getFileName(state, nullptr, {}, home.desktop()); },
            [](const FileDialogUser& user) { user.doubleTapFile(QStringLiteral("a.txt")); });
    QCOMPARE(path, file);
}

void TestOxFileDialog::aTypedNameIsOpened()
{
    const FileDialogHome home;
    const QString file = home.addFile(QStringLiteral("a.lbl"));
    const QString path = openFile([](const FileDialogUser& user) {
        FileDialogUser::type(QStringLiteral("a.lbl")); // though the format does not list it
        tap(user.accept);
    });
    QCOMPARE(path, file);
}

void TestOxFileDialog::enterOpensATypedName()
{
    const FileDialogHome home;
    const QString file = home.addFile(QStringLiteral("a.txt"));
    const QString path = openFile([](const FileDialogUser& user) {
        FileDialogUser::type(QStringLiteral("a.txt"));
        user.press(Qt::Key_Return);
    });
    QCOMPARE(path, file);
}

void TestOxFileDialog::aNameThatIsNotThereLeavesTheDialogOpen()
{
    const FileDialogHome home;
    openFile([](const FileDialogUser& user) {
        FileDialogUser::type(QStringLiteral("gone.txt"));
        tap(user.accept);
        QVERIFY(user.dialog->isVisible());
        QCOMPARE(user.nameBox->currentText(), QStringLiteral("gone.txt"));
        QCOMPARE(QApplication::activeModalWidget(), user.dialog); // and no message
        tap(user.cancel);
    });
}

void TestOxFileDialog::aNameThatIsNotThereOpensTheTappedFile()
{
    const FileDialogHome home;
    const QString file = home.addFile(QStringLiteral("a.txt"));
    const QString path = openFile([](const FileDialogUser& user) {
        user.tapFile(QStringLiteral("a.txt"));
        user.nameBox->setEditText(QStringLiteral("gone.txt"));
        tap(user.accept);
    });
    QCOMPARE(path, file);
}

void TestOxFileDialog::anEmptyNameReturnsTheShownFolder()
{
    const FileDialogHome home;
    home.addFile(QStringLiteral("a.txt"));
    const QString path = openFile([](const FileDialogUser& user) {
        user.tapFile(QStringLiteral("a.txt"));
        user.nameBox->clearEditText();
        tap(user.accept);
    });
    QCOMPARE(path, home.path() + QLatin1Char('/'));
}

void TestOxFileDialog::anEmptyNameWithoutATapLeavesTheDialogOpen()
{
    const FileDialogHome home;
    openFile([](const FileDialogUser& user) {
        tap(user.accept);
        QVERIFY(user.dialog->isVisible());
        tap(user.cancel);
    });
}

void TestOxFileDialog::aTypedWayUpIsRemoved()
{
    const FileDialogHome home;
    const QString file = home.addFile(QStringLiteral("x"));
    const QString path = openFile([](const FileDialogUser& user) {
        FileDialogUser::type(QStringLiteral("../x"));
        tap(user.accept);
    });
    QCOMPARE(path, file);
}

void TestOxFileDialog::threeDotsDoNotOpenTheFolderAbove()
{
    const FileDialogHome home;
    openFile([](const FileDialogUser& user) {
        FileDialogUser::type(QStringLiteral("..."));
        tap(user.accept);
        QVERIFY(user.dialog->isVisible());
        tap(user.cancel);
    });
}

void TestOxFileDialog::openingReadsATypedLocation()
{
    const FileDialogHome home;
    home.addFolder(QStringLiteral("designs"));
    const QString file = home.addFile(QStringLiteral("designs/a.txt"));
    const QString path = openFile([home](const FileDialogUser& user) {
        user.locationBox->setEditText(home.path(QStringLiteral("designs")));
        FileDialogUser::type(QStringLiteral("a.txt"));
        tap(user.accept);
    });
    QCOMPARE(path, file);
}

void TestOxFileDialog::theSelectionByKeysNamesTheFile()
{
    const FileDialogHome home;
    home.addFile(QStringLiteral("a.txt"));
    const QString file = home.addFile(QStringLiteral("b.txt"));
    const QString path = openFile([](const FileDialogUser& user) {
        user.tapFile(QStringLiteral("a.txt"));
        user.press(Qt::Key_Down);
        QCOMPARE(user.nameBox->currentText(), QStringLiteral("b.txt"));
        user.press(Qt::Key_Up);
        user.press(Qt::Key_Up); // on the folder
        QCOMPARE(user.nameBox->currentText(), QStringLiteral("a.txt"));
        user.press(Qt::Key_Down);
        user.press(Qt::Key_Down);
        tap(user.accept);
    });
    QCOMPARE(path, file);
}

/// Enter also presses the default button of a dialog: here, with a tapped file, it would be chosen.
void TestOxFileDialog::enterOnAFolderOnlyEntersIt()
{
    const FileDialogHome home;
    home.addFile(QStringLiteral("a.txt"));
    const QString file = home.addFile(QStringLiteral("Desktop/b.txt"));
    const QString path = openFile([home](const FileDialogUser& user) {
        user.tapFile(QStringLiteral("a.txt"));
        user.press(Qt::Key_Up);
        user.press(Qt::Key_Enter);
        QVERIFY(user.dialog->isVisible());
        QCOMPARE(user.locationBox->currentText(), home.desktop());
        user.doubleTapFile(QStringLiteral("b.txt"));
    });
    QCOMPARE(path, file);
}

void TestOxFileDialog::enterOnAFileReturnsItOnce()
{
    const FileDialogHome home;
    const QString file = home.addFile(QStringLiteral("Desktop/a.bak"));
    const QString path = saveFile(
        [](const FileDialogUser& user) {
            user.tapFile(QStringLiteral("a.bak"));
            user.press(Qt::Key_Return);
        },
        {}, QStringLiteral("Backups (*.bak);;Texts (*.txt)"));
    QCOMPARE(path, file);
}

void TestOxFileDialog::aDragOverTheListChoosesNothing()
{
    const FileDialogHome home;
    for (int i = 0; i < 40; ++i) {
        home.addFolder(QStringLiteral("folder %1").arg(i, 2, 10, QLatin1Char('0')));
    }
    selectFolder(
        [](const FileDialogUser& user) {
            user.item(QStringLiteral("folder 39"));
            const int before = user.files->verticalScrollBar()->value();
            Finger finger;
            finger.press(user.files->viewport());
            finger.moveBy({ 0, -100 });
            finger.release();
            QCOMPARE(user.files->verticalScrollBar()->value(), before + 100);
            QCOMPARE(user.nameBox->currentText(), QString());
            QVERIFY(user.dialog->selectedPath().isEmpty());
            tap(user.cancel);
        },
        home.path());
}

void TestOxFileDialog::touchPointsChooseAsWell()
{
    const FileDialogHome home;
    const QString file = home.addFile(QStringLiteral("a.txt"));
    const QString path = openFile([](const FileDialogUser& user) {
        const QModelIndex index = user.item(QStringLiteral("a.txt"));
        TouchFinger().tap(user.files->viewport(), user.files->visualRect(index).center());
        TouchFinger().tap(user.accept);
    });
    QCOMPARE(path, file);
}

void TestOxFileDialog::touchPointsEnterAFolderByADoubleTap()
{
    const FileDialogHome home;
    const QString file = home.addFile(QStringLiteral("Desktop/a.txt"));
    const int doubleClickInterval = QApplication::doubleClickInterval();
    const QString path = openFile([=](const FileDialogUser& user) {
        TouchFinger finger;
        QApplication::setDoubleClickInterval(doubleClickInterval); // which the finger has shortened
        for (const char* name : { "Desktop", "a.txt" }) {
            const QModelIndex index = user.item(QString::fromLatin1(name));
            const QPoint at = user.files->visualRect(index).center();
            finger.tap(user.files->viewport(), at);
            finger.tap(user.files->viewport(), at);
            QCOMPARE(user.locationBox->currentText(), home.desktop());
        }
    });
    QCOMPARE(path, file);
}

void TestOxFileDialog::savingAddsTheExtension()
{
    const FileDialogHome home;
    const QString path = saveFile([](const FileDialogUser& user) {
        FileDialogUser::type(QStringLiteral("report"));
        user.press(Qt::Key_Return);
    });
    QCOMPARE(path, home.desktop() + QStringLiteral("/report.txt"));
}

void TestOxFileDialog::savingKeepsAnExtension_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("the format's") << QStringLiteral("report.txt");
    QTest::newRow("in the middle") << QStringLiteral("a.txt.bak");
    QTest::newRow("another format's") << QStringLiteral("a.lbl");
}

void TestOxFileDialog::savingKeepsAnExtension()
{
    const FileDialogHome home;
    QFETCH(QString, name);
    const QString path = saveFile(
        [name](const FileDialogUser& user) {
            FileDialogUser::type(name);
            tap(user.accept);
        },
        {}, TwoFormats);
    QCOMPARE(path, home.desktop() + QLatin1Char('/') + name);
}

/// Of all patterns of the filter, not of the format's own.
void TestOxFileDialog::savingTakesThePatternAtTheFormatsPlace()
{
    const FileDialogHome home;
    const QString path = saveFile(
        [](const FileDialogUser& user) {
            FileDialogUser::type(QStringLiteral("a"));
            FileDialogUser::choose(user.formatBox, 1);
            tap(user.accept);
        },
        {}, QStringLiteral("Drawings (*.lbl *.svg);;Texts (*.txt)"));
    QCOMPARE(path, home.desktop() + QStringLiteral("/a.svg"));
}

void TestOxFileDialog::savingWithoutPatternsKeepsTheName()
{
    const FileDialogHome home;
    const QString path = saveFile(
        [](const FileDialogUser& user) {
            FileDialogUser::type(QStringLiteral("a"));
            tap(user.accept);
        },
        {}, QStringLiteral("All files (*)"));
    QCOMPARE(path, home.desktop() + QStringLiteral("/a"));
}

void TestOxFileDialog::savingAnExistingFileAsksNothing()
{
    const FileDialogHome home;
    const QString file = home.addFile(QStringLiteral("Desktop/a.txt"));
    const QString path = saveFile([](const FileDialogUser& user) {
        user.tapFile(QStringLiteral("a.txt"));
        tap(user.accept);
    });
    QCOMPARE(path, file);
}

void TestOxFileDialog::savingANameOfTheProcessFolderReturnsWhatWasTapped()
{
    const FileDialogHome home;
    const ProcessFolder processFolder(home.path());
    home.addFile(QStringLiteral("here.txt"));
    const QString file = home.addFile(QStringLiteral("Desktop/a.txt"));
    const QString path = saveFile([](const FileDialogUser& user) {
        user.tapFile(QStringLiteral("a.txt"));
        user.nameBox->setEditText(QStringLiteral("here.txt"));
        tap(user.accept);
    });
    QCOMPARE(path, file);

    const QString nothing = saveFile([](const FileDialogUser& user) {
        FileDialogUser::type(QStringLiteral("here.txt"));
        tap(user.accept);
        QVERIFY(!user.dialog->isVisible());
    });
    QVERIFY(nothing.isEmpty());
}

void TestOxFileDialog::savingAnEmptyNameLeavesTheDialogOpen()
{
    const FileDialogHome home;
    saveFile([](const FileDialogUser& user) {
        tap(user.accept);
        QVERIFY(user.dialog->isVisible());
        FileDialogUser::type(QStringLiteral("../"));
        tap(user.accept);
        QVERIFY(user.dialog->isVisible());
        tap(user.cancel);
    });
}

void TestOxFileDialog::savingStaysInTheShownFolder()
{
    const FileDialogHome home;
    const QString path = saveFile([](const FileDialogUser& user) {
        FileDialogUser::type(QStringLiteral("/../....//x.txt"));
        tap(user.accept);
    });
    QVERIFY(QDir::cleanPath(path).startsWith(home.desktop() + QLatin1Char('/')));
}

void TestOxFileDialog::savingCleansTheName_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("name");
    QTest::newRow("a way up") << QStringLiteral("../a.txt") << QStringLiteral("a.txt");
    QTest::newRow("a way up with a backslash")
        << QStringLiteral("..\\a.txt") << QStringLiteral("a.txt");
    QTest::newRow("a way up in the middle")
        << QStringLiteral("b../../a.txt") << QStringLiteral("ba.txt");
    QTest::newRow("a leading dot") << QStringLiteral(".a.txt") << QStringLiteral("a.txt");
    QTest::newRow("two leading dots") << QStringLiteral("..a.txt") << QStringLiteral(".a.txt");
    QTest::newRow("dots in the middle") << QStringLiteral("a..txt") << QStringLiteral("a..txt");
}

void TestOxFileDialog::savingCleansTheName()
{
    const FileDialogHome home;
    QFETCH(QString, typed);
    QFETCH(QString, name);
    const QString path = saveFile([typed](const FileDialogUser& user) {
        FileDialogUser::type(typed);
        tap(user.accept);
    });
    QCOMPARE(path, home.desktop() + QLatin1Char('/') + name);
}

void TestOxFileDialog::aTappedFolderIsSelected()
{
    const FileDialogHome home;
    const QString folder = home.addFolder(QStringLiteral("designs"));
    const QString path = selectFolder(
        [](const FileDialogUser& user) {
            user.tapFile(QStringLiteral("designs"));
            QCOMPARE(user.nameBox->currentText(), QStringLiteral("designs"));
            tap(user.accept);
        },
        home.path());
    QCOMPARE(path, folder);
}

void TestOxFileDialog::aTypedFolderIsSelected()
{
    const FileDialogHome home;
    const QString folder = home.addFolder(QStringLiteral("designs"));
    const QString path = selectFolder(
        [](const FileDialogUser& user) {
            FileDialogUser::type(QStringLiteral("designs"));
            user.press(Qt::Key_Return);
        },
        home.path());
    QCOMPARE(path, folder);
}

void TestOxFileDialog::theShownFolderIsSelectedWithoutAName()
{
    const FileDialogHome home;
    const QString path =
        selectFolder([](const FileDialogUser& user) { tap(user.accept); }, home.path());
    QCOMPARE(path, home.path() + QLatin1Char('/'));
}

void TestOxFileDialog::aFolderThatIsNotThereSelectsTheTappedOne()
{
    const FileDialogHome home;
    const QString folder = home.addFolder(QStringLiteral("designs"));
    home.addFile(QStringLiteral("a"));
    for (const QString& name : { QStringLiteral("gone"), QStringLiteral("a") }) {
        const QString path = selectFolder(
            [name](const FileDialogUser& user) {
                user.tapFile(QStringLiteral("designs"));
                user.nameBox->setEditText(name); // a file is no folder
                tap(user.accept);
            },
            home.path());
        QCOMPARE(path, folder);
    }
    const QString nothing = selectFolder(
        [](const FileDialogUser& user) {
            FileDialogUser::type(QStringLiteral("gone"));
            tap(user.accept);
            QVERIFY(!user.dialog->isVisible());
        },
        home.path());
    QVERIFY(nothing.isEmpty());
}

void TestOxFileDialog::aDoubleTapEntersAFolder()
{
    const FileDialogHome home;
    home.addFolder(QStringLiteral("designs/2026"));
    const QString file = home.addFile(QStringLiteral("designs/2026/a.txt"));
    const QString path = openFile([home](const FileDialogUser& user) {
        QVERIFY(!user.up->isEnabled());
        user.doubleTapFile(QStringLiteral("designs"));
        QVERIFY(user.dialog->isVisible());
        QVERIFY(user.up->isEnabled());
        QVERIFY(user.lists({ QStringLiteral("2026") }));
        QCOMPARE(user.locationBox->currentText(), home.path(QStringLiteral("designs")));
        user.doubleTapFile(QStringLiteral("2026"));
        QCOMPARE(user.locationBox->currentText(), home.path(QStringLiteral("designs/2026")));
        user.nameBox->setFocus();
        FileDialogUser::type(QStringLiteral("a.txt"));
        tap(user.accept);
    });
    QCOMPARE(path, file);
}

void TestOxFileDialog::enteringAddsTheStartToTheLocations()
{
    const FileDialogHome home;
    const QString designs = home.addFolder(QStringLiteral("designs"));
    const QString year = home.addFolder(QStringLiteral("designs/2026"));
    home.addFolder(QStringLiteral("designs/2026/may"));
    openFile(
        [=](const FileDialogUser& user) {
            QCOMPARE(user.locations(), QStringList({ designs, home.path() }));
            user.doubleTapFile(QStringLiteral("2026"));
            QCOMPARE(user.locations(), QStringList({ year, home.path(), designs }));
            user.doubleTapFile(QStringLiteral("may"));
            QCOMPARE(user.locations(),
                     QStringList({ year + QStringLiteral("/may"), home.path(), designs }));
            tap(user.cancel);
        },
        designs);
}

void TestOxFileDialog::goingUpEndsAtTheTopFolder()
{
    const FileDialogHome home;
    const QString designs = home.addFolder(QStringLiteral("designs"));
    const QString year = home.addFolder(QStringLiteral("designs/2026"));
    openFile(
        [=](const FileDialogUser& user) {
            QCOMPARE(user.locations(), QStringList({ year, home.path() }));
            tap(user.up);
            QCOMPARE(user.locations(), QStringList({ designs, home.path() }));
            QVERIFY(user.lists({ QStringLiteral("2026") }));
            QVERIFY(user.up->isEnabled());
            tap(user.up);
            QCOMPARE(user.locations(), QStringList { home.path() });
            QVERIFY(user.lists({ QStringLiteral("designs"), QStringLiteral("Desktop") }));
            QVERIFY(!user.up->isEnabled());
            // A button that is enabled in the top folder notices when it is tapped.
            user.up->setEnabled(true);
            tap(user.up);
            QCOMPARE(user.locations(), QStringList { home.path() });
            QVERIFY(!user.up->isEnabled());
            tap(user.cancel);
        },
        year);
}

/// What comes after the home folder by its text is gone up step by step, what comes before it by
/// one step alone.
void TestOxFileDialog::goingUpOutsideTheTopFolderEndsByOrder()
{
    const FileDialogHome home;
    const QString after = home.path() + QStringLiteral("s");
    const QString before = QFileInfo(home.path()).path() + QStringLiteral("/a");
    QVERIFY(QDir().mkpath(after + QStringLiteral("/b/c")));
    QVERIFY(QDir().mkpath(before + QStringLiteral("/b/c")));
    openFile(
        [=](const FileDialogUser& user) {
            tap(user.up);
            QCOMPARE(user.locationBox->currentText(), after + QStringLiteral("/b"));
            QVERIFY(user.up->isEnabled());
            tap(user.up);
            QVERIFY(user.up->isEnabled());
            tap(user.cancel);
        },
        after + QStringLiteral("/b/c"));
    openFile(
        [=](const FileDialogUser& user) {
            tap(user.up);
            QCOMPARE(user.locations(), QStringList { before + QStringLiteral("/b") });
            QVERIFY(!user.up->isEnabled());
            tap(user.cancel);
        },
        before + QStringLiteral("/b/c"));
    QVERIFY(QDir(after).removeRecursively());
    QVERIFY(QDir(before).removeRecursively());
}

void TestOxFileDialog::goingUpEndsAtTheRoot()
{
    const FileDialogHome home;
    openFile(
        [](const FileDialogUser& user) {
            tap(user.up);
            QCOMPARE(user.locations(), QStringList { QStringLiteral("/") });
            QVERIFY(!user.up->isEnabled());
            QVERIFY(user.item(QStringLiteral("tmp")).isValid());
            tap(user.cancel);
        },
        QStringLiteral("/tmp"));
}

void TestOxFileDialog::aChosenLocationIsShown()
{
    const FileDialogHome home;
    const QString designs = home.addFolder(QStringLiteral("designs"));
    const QString year = home.addFolder(QStringLiteral("designs/2026"));
    openFile(
        [=](const FileDialogUser& user) {
            user.doubleTapFile(QStringLiteral("2026"));
            QCOMPARE(user.locations(), QStringList({ year, home.path(), designs }));
            FileDialogUser::choose(user.locationBox, 1);
            QVERIFY(user.lists({ QStringLiteral("designs"), QStringLiteral("Desktop") }));
            QCOMPARE(user.locationBox->currentIndex(), 0);
            QCOMPARE(user.locationBox->currentText(), home.path());
            QCOMPARE(user.locations(), QStringList({ home.path(), home.path(), designs }));
            QVERIFY(!user.up->isEnabled());
            tap(user.cancel);
        },
        designs);
}

void TestOxFileDialog::choosingTheStartTakesItFromTheLocations()
{
    const FileDialogHome home;
    const QString designs = home.addFolder(QStringLiteral("designs"));
    home.addFolder(QStringLiteral("designs/2026"));
    openFile(
        [=](const FileDialogUser& user) {
            user.doubleTapFile(QStringLiteral("2026"));
            FileDialogUser::choose(user.locationBox, 2);
            QCOMPARE(user.locations(), QStringList({ designs, home.path() }));
            QCOMPARE(user.locationBox->currentText(), designs);
            QVERIFY(user.lists({ QStringLiteral("2026") }));
            // The button is off after every choice, also below the top folder ...
            QVERIFY(!user.up->isEnabled());
            // ... until a folder is entered, and the box still listens.
            user.doubleTapFile(QStringLiteral("2026"));
            QVERIFY(user.up->isEnabled());
            FileDialogUser::choose(user.locationBox, 1);
            QCOMPARE(user.locationBox->currentText(), home.path());
            tap(user.cancel);
        },
        designs);
}

void TestOxFileDialog::enteringAFolderStartsAtItsTop()
{
    const FileDialogHome home;
    for (int i = 0; i < 40; ++i) {
        home.addFolder(QStringLiteral("folder %1").arg(i, 2, 10, QLatin1Char('0')));
        home.addFolder(QStringLiteral("folder 39/%1").arg(i));
    }
    openFile([](const FileDialogUser& user) {
        user.doubleTapFile(QStringLiteral("folder 39"));
        user.item(QStringLiteral("39"));
        QCOMPARE(user.files->verticalScrollBar()->value(), 0);
        tap(user.cancel);
    });
}

UW_TEST_MAIN_WITH(FileDialogApplication, TestOxFileDialog)

#include "tst_oxfiledialog.moc"
