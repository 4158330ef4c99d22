// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "lockwidget.h"
#include "shippedlibrary.h"
#include "stage.h"
#include "symboldatabasemodel.h"
#include "symboldatabasewidget.h"
#include "symboldatabaseworker.h"
#include "symbolinspection.h"
#include "symbolpreview.h"
#include "symbolslineedit.h"
#include "symbolsmenu.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPixmap>
#include <QPointer>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

namespace Gallery {

namespace {

struct Drawing
{
    const char* name;
    const char* category;
    const char* tag;
    const char* shape;
};

const Drawing Drawings[] {
    { "Up", "Arrows", "pointer", "<path d='M24 6L42 26H31V42H17V26H6Z' fill='#2b2b2b'/>" },
    { "Down", "Arrows", "pointer", "<path d='M24 42L6 22H17V6H31V22H42Z' fill='#2b2b2b'/>" },
    { "Danger", "Signs", "warning",
      "<path d='M24 5L45 43H3Z' fill='#fd7800'/><path d='M22 17h4v14h-4zM22 34h4v4h-4z'/>" },
    { "Stop", "Signs", "warning",
      "<path d='M16 4H32L44 16V32L32 44H16L4 32V16Z' fill='#c00000'/>"
      "<path d='M10 21h28v6H10z' fill='white'/>" },
};

QByteArray documentOf(const Drawing& drawing)
{
    return QByteArrayLiteral("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 48 48'>")
        + drawing.shape + QByteArrayLiteral("</svg>");
}

/// A library in a folder that lives as long as `owner`.
SymbolDatabaseModel* makeLibrary(QObject* owner)
{
    auto folder = std::make_shared<QTemporaryDir>();
    QObject::connect(owner, &QObject::destroyed, [folder] {});
    //! [SymbolDatabaseModel]
    auto* symbols = new SymbolDatabaseModel(owner);
    symbols->setDatabasePath(folder->filePath(QStringLiteral("symbols.db")));
    symbols->createSchema();
    symbols->addCategory(QStringLiteral("Arrows"));
    //! [SymbolDatabaseModel]
    symbols->addCategory(QStringLiteral("Signs"));
    for (const Drawing& drawing : Drawings) {
        const QByteArray svg = documentOf(drawing);
        const QString name = QString::fromLatin1(drawing.name);
        const QString category = QString::fromLatin1(drawing.category);
        //! [SymbolDatabaseModel]
        symbols->addSymbol(svg, symbols->getThumbnailDataFromRawData(svg), name, category);
        //! [SymbolDatabaseModel]
    }
    return symbols;
}

QListView* createView(QStandardItemModel* items)
{
    auto* view = new QListView;
    view->setViewMode(QListView::IconMode);
    view->setIconSize(QSize(50, 50));
    view->setGridSize(QSize(66, 66));
    view->setMovement(QListView::Static);
    view->setModel(items);
    items->setParent(view);
    return view;
}

void showSymbolDatabaseModel(Stage& stage)
{
    auto* items = new QStandardItemModel;
    QListView* view = createView(items);
    SymbolDatabaseModel* symbols = makeLibrary(view);

    const auto search = [symbols, items](const QString& category) {
        items->clear();
        //! [SymbolDatabaseModel]
        items->appendColumn(symbols->getItemsBySearch(category));
        //! [SymbolDatabaseModel]
    };
    search(QString());
    stage.addWide(QStringLiteral("Symbols of a category; the name is the tool tip"), view);
    stage.watch(QStringLiteral("Library"), symbols);
    stage.addAction(QStringLiteral("All"), [search] { search(QString()); });
    const QStringList categories = symbols->categories();
    for (const QString& category : categories) {
        stage.addAction(category, [search, category] { search(category); });
    }
    stage.addAction(QStringLiteral("Unknown category"),
                    [search] { search(QStringLiteral("Flowers")); });
}

/// A thread that ends with its owner, and the worker on it.
class WorkerThread : public QThread
{
public:
    explicit WorkerThread(QObject* parent)
        : QThread(parent)
    {
        //! [SymbolDatabaseWorker]
        worker.moveToThread(this);
        start();
        //! [SymbolDatabaseWorker]
    }
    ~WorkerThread() override
    {
        quit();
        wait();
    }

    SymbolDatabaseWorker worker;
};

void showSymbolDatabaseWorker(Stage& stage)
{
    auto* items = new QStandardItemModel;
    QListView* view = createView(items);
    const QString path = makeLibrary(view)->databasePath();
    auto* thread = new WorkerThread(view);
    SymbolDatabaseWorker* worker = &thread->worker;

    // One search at a time: of two that end together, the second would hand out the same items.
    const auto isBusy = std::make_shared<bool>(false);
    const auto showResults = [worker, items, isBusy] {
        *isBusy = false;
        items->clear();
        //! [SymbolDatabaseWorker]
        const QList<QStandardItem*> results = worker->getResults();
        for (QStandardItem* item : results) {
            QPixmap thumbnail;
            thumbnail.loadFromData(item->data(Qt::UserRole + 2).toByteArray());
            item->setIcon(thumbnail);
        }
        items->appendColumn(results);
        //! [SymbolDatabaseWorker]
    };
    //! [SymbolDatabaseWorker]
    QObject::connect(worker, &SymbolDatabaseWorker::resultReady, items, showResults);
    //! [SymbolDatabaseWorker]
    // A page is shown complete, unlike a screen that a person waits for.
    QMetaObject::invokeMethod(
        worker, [worker, path] { worker->getStartupItems(path); }, Qt::BlockingQueuedConnection);
    showResults();

    stage.addWide(QStringLiteral("Symbols that another thread has read"), view);
    stage.watch(QStringLiteral("Worker"), worker);
    for (const QString& category :
         { QString(), QStringLiteral("Arrows"), QStringLiteral("Signs") }) {
        stage.addAction(category.isEmpty() ? QStringLiteral("All") : category, [=] {
            if (*isBusy) {
                return;
            }
            *isBusy = true;
            //! [SymbolDatabaseWorker]
            QMetaObject::invokeMethod(worker, [=] { worker->getItemsBySearch(category); });
            //! [SymbolDatabaseWorker]
        });
    }
}

/// The place on the page where the chosen symbol is shown.
QPointer<SymbolPreview> previewOnThePage;

void showSymbolDatabaseWidget(Stage& stage)
{
    ShippedLibrary::instance()->make(); // so that it is there when the browser is opened
    previewOnThePage = new SymbolPreview;
    QFile first(QStringLiteral(":/gallery/symbols/Transport/sailing-boat.svg"));
    if (first.open(QFile::ReadOnly)) {
        previewOnThePage->setSymbol(first.readAll());
    }
    stage.addWide(QStringLiteral("The symbol that was chosen last"), previewOnThePage);
}

/// Waits for what ends `waiting`, for a person's patience at the most, and meanwhile takes no taps.
void waitFor(QEventLoop& waiting)
{
    QTimer::singleShot(2000, &waiting, &QEventLoop::quit); // milliseconds
    waiting.exec(QEventLoop::ExcludeUserInputEvents);
}

/// Has `browser` show the gallery's own library in place of the device's, and waits until it does:
/// a page shows it filled, which no application would wait for.
void fill(SymbolDatabaseWidget& browser)
{
    ShippedLibrary* library = ShippedLibrary::instance();
    library->make();
    if (library->isBeingMade()) {
        QEventLoop making;
        QObject::connect(library, &ShippedLibrary::finished, &making, &QEventLoop::quit);
        waitFor(making);
    }
    if (library->isMade()) {
        QEventLoop reading;
        QObject::connect(browser.findChild<QListView*>()->model(),
                         &QAbstractItemModel::rowsInserted, &reading, &QEventLoop::quit);
        Q_EMIT browser.startSymbolManager(library->path());
        waitFor(reading);
    }
}

void openBrowser(bool insert)
{
    //! [SymbolDatabaseWidget]
    SymbolDatabaseWidget browser;
    browser.setInsertMode(insert);
    //! [SymbolDatabaseWidget]
    fill(browser);
    SymbolPreview* preview = previewOnThePage;
    //! [SymbolDatabaseWidget]
    browser.getLockWidget()->setReadOnlyState(true);
    if (browser.exec() == QDialog::Accepted) {
        preview->setSymbol(browser.getSelectedSymbol());
    }
    //! [SymbolDatabaseWidget]
}

void showSymbolsLineEdit(Stage& stage)
{
    stage.addStates(
        [](const QString& text) {
            //! [SymbolsLineEdit]
            auto* field = new SymbolsLineEdit;
            field->setText(text);
            //! [SymbolsLineEdit]
            return field;
        },
        QStringLiteral("arrow"));
}

/// A menu on the library in `folder`. It looks for it where the process works, whenever it is
/// touched, so that the process works there for as long as the menu lives.
SymbolsMenu* createMenu(const QString& folder, const QStringList& names)
{
    static const QString start = QDir::currentPath();
    QDir::setCurrent(folder);
    //! [SymbolsMenu]
    auto* menu = new SymbolsMenu(names);
    //! [SymbolsMenu]
    QObject::connect(menu, &QObject::destroyed, [folder] {
        if (QDir::current() == QDir(folder)) { // and not that of a newer page
            QDir::setCurrent(start);
        }
    });
    return menu;
}

void showSymbolsMenu(Stage& stage)
{
    auto* owner = new QWidget;
    const QString folder = QFileInfo(makeLibrary(owner)->databasePath()).path();
    const auto create = [&](const QStringList& names) {
        return createMenu(folder, names);
    };
    SymbolsMenu* menu = create({});
    owner->setParent(menu);
    owner->hide();
    stage.add(QStringLiteral("Categories of the library"), menu);
    SymbolsMenu* disabled = create({});
    disabled->setEnabled(false);
    stage.add(QStringLiteral("Disabled"), disabled);
    stage.add(QStringLiteral("A first category with a very long name"), create({ longText() }));
}

const Drawing DoubtfulDrawings[] {
    { "A drawing without faults", "", "", "<path d='M24 6L42 26H31V42H17V26H6Z' fill='#2b2b2b'/>" },
    { "It uses a clip path", "", "",
      "<clipPath id='c'><path d='M0 0H24V48H0Z'/></clipPath>"
      "<circle cx='24' cy='24' r='20' fill='#fd7800' clip-path='url(#c)'/>" },
    { "It shows an image file", "", "",
      "<circle cx='24' cy='24' r='20' fill='#5a5959'/>"
      "<image href='photo.png' width='48' height='48'/>" },
    { "It is not well-formed", "", "", "<circle cx='24' cy='24' r='20'>" },
};

QString textOf(const QByteArray& document)
{
    QString text;
    //! [SymbolInspection]
    const SymbolInspection inspection(document);
    if (inspection.isRefused()) {
        text = QStringLiteral("Not drawn: ") + inspection.refusal();
    } else if (!inspection.leftOut().isEmpty()) {
        text = QStringLiteral("Left out: ") + inspection.leftOut().join(QStringLiteral(", "));
    } else if (!inspection.ignored().isEmpty()) {
        text = QStringLiteral("Ignored: ") + inspection.ignored().join(QStringLiteral(", "));
    }
    //! [SymbolInspection]
    return text.isEmpty() ? QStringLiteral("As drawn") : text;
}

void showSymbolInspection(Stage& stage)
{
    stage.setColumns(2);
    for (const Drawing& drawing : DoubtfulDrawings) {
        const QByteArray document = documentOf(drawing);
        QPixmap thumbnail;
        thumbnail.loadFromData(SymbolDatabaseModel().getThumbnailDataFromRawData(document));
        auto* picture = new QLabel;
        picture->setPixmap(thumbnail);
        auto* verdict = new QLabel(textOf(document));
        verdict->setWordWrap(true);
        auto* row = new QWidget;
        auto* layout = new QHBoxLayout(row);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(picture);
        layout->addWidget(verdict, 1);
        stage.add(QString::fromLatin1(drawing.name), row);
    }
}

} // namespace

Family symbolsFamily()
{
    return {
        QStringLiteral("Symbols"),
        QStringLiteral(":/gallery/pages/symbols.cpp"),
        {
            {
                QStringLiteral("SymbolDatabaseModel"),
                QStringLiteral("A library of symbols, with categories and tags, in one file."),
                showSymbolDatabaseModel,
                {},
            },
            {
                QStringLiteral("SymbolDatabaseWorker"),
                QStringLiteral("Searches and changes a library of symbols on another thread."),
                showSymbolDatabaseWorker,
                {},
            },
            {
                QStringLiteral("SymbolDatabaseWidget"),
                QStringLiteral("The dialog in which a person picks a symbol from a library."),
                showSymbolDatabaseWidget,
                {
                    { QStringLiteral("insert"), QStringLiteral("Insert a symbol"),
                      [] {
                          openBrowser(true);
                      } },
                    { QStringLiteral("edit"), QStringLiteral("Replace a symbol"),
                      [] {
                          openBrowser(false);
                      } },
                },
            },
            {
                QStringLiteral("SymbolsMenu"),
                QStringLiteral("A small picker of symbols, by category and by tag."),
                showSymbolsMenu,
                {},
            },
            {
                QStringLiteral("SymbolsLineEdit"),
                QStringLiteral("A search field whose magnifier stands for the Return key."),
                showSymbolsLineEdit,
                {},
            },
            {
                QStringLiteral("SymbolInspection"),
                QStringLiteral("Tells why a thumbnail differs from the drawing it was made of."),
                showSymbolInspection,
                {},
            },
        },
    };
}

} // namespace Gallery
