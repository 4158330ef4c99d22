// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symboldatabasewidget.h"

#include "applicationfont.h"
#include "containertitlebar.h"
#include "dragscrollbutton.h"
#include "dragscrolllistview.h"
#include "lockwidget.h"
#include "logger.h"
#include "look/housedialog.h"
#include "look/palette.h"
#include "look/sheets.h"
#include "oxpushbuttonstyleproxy.h"
#include "sharedconstants.h"
#include "symboldatabasemodel.h"
#include "symboldatabaseworker.h"
#include "symbolitem.h"
#include "symbolview.h"
#include "toolbox.h"
#include "toolboxcontainer.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStandardItemModel>
#include <QThread>
#include <QVBoxLayout>

namespace {

constexpr int CategoryWidth = 260; // pixels
constexpr QSize GridSize(60, 60);
/// Milliseconds that the destructor waits at most. A person takes them for no wait.
constexpr int LongestWait = 100;

/// Milliseconds that each statement waits for another process that is writing the user's symbols:
/// they are read while the person waits.
constexpr int LockTimeout = 250;
/// And for the document of the one that the person has chosen: the dialog is closed by then, and
/// without it the choice would be lost.
constexpr int ChoiceLockTimeout = 5000;

constexpr int IdRole = Qt::UserRole + 1;
/// Where a single item keeps its document.
constexpr int DataRole = Qt::UserRole + 1;

QString threadName()
{
    return QStringLiteral("SymbolLibrary");
}

QString allLabel()
{
    return QObject::tr("All", "Section header for showing all symbols.");
}

QString userSymbolsLabel()
{
    return QObject::tr("User Symbols", "Header label for symbol insert menu.");
}

QString libraryPath()
{
    return DatabasesPath + QStringLiteral("symbols.db");
}

QString userPath()
{
    return HomeFolderPath + QStringLiteral("databases/") + QStringLiteral("userSymbols.db");
}

QString categoryButtonSheet()
{
    return QStringLiteral(
        "QPushButton { border: 1px solid " LOOK_ACCENT_ORANGE ";\n"
        "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 " LOOK_BUTTON_TOP
        ", stop: 1 " LOOK_BUTTON_BOTTOM ");\n"
        "color: white; border-radius: 0px; min-width: 260; min-height: 36; }\n"
        "QPushButton:pressed, QPushButton:checked { background-color: " LOOK_ACCENT_ORANGE
        "; color: black; }\n");
}

QString dialogButtonSheet()
{
    return Look::gradientButton()
        + QStringLiteral("QPushButton:disabled { border: 1px solid " LOOK_DISABLED_BORDER
                         "; color: " LOOK_DISABLED_TEXT "; \n"
                         "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: "
                         "0 " LOOK_DISABLED_TOP ", stop: 1 " LOOK_DISABLED_BOTTOM ");\n"
                         "border-radius: 6px; }\n");
}

/// Shows the names of categories as they are: an ampersand is a part of the name.
class CategoryStyle : public OxPushButtonStyleProxy
{
public:
    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text,
                      QPalette::ColorRole textRole) const override
    {
        OxPushButtonStyleProxy::drawItemText(painter, rect,
                                             flags & ~(Qt::TextShowMnemonic | Qt::TextHideMnemonic),
                                             palette, enabled, text, textRole);
    }
};

/// As high as the text needs that its style breaks into lines.
void fitHeight(QAbstractButton* button)
{
    constexpr int Padding = 4; // pixels above and below together, the border included
    button->ensurePolished();
    const QRect room(0, 0, CategoryWidth - Padding, 0);
    const int height =
        button->fontMetrics().boundingRect(room, Qt::TextWordWrap, button->text()).height()
        + Padding;
    button->setMinimumHeight(std::max(height, button->minimumHeight()));
}

/// The document of a symbol that was chosen.
QByteArray chosenDocument(SymbolDatabaseModel& model, int id)
{
    model.setLockTimeout(ChoiceLockTimeout);
    QByteArray document = model.getDataFromSymbolId(id);
    model.setLockTimeout(LockTimeout);
    return document;
}

/// Gives a category button, if there is one, another text.
void relabel(QAbstractButton* button, const QString& text)
{
    if (button != nullptr) {
        button->setText(text);
        fitHeight(button);
    }
}

} // namespace

/// The thread on which the library is read, with its worker.
class SymbolDatabaseWidget::LibraryThread : public QThread
{
public:
    LibraryThread()
    {
        setObjectName(threadName());
        worker.moveToThread(this);
        start(QThread::InheritPriority);
    }
    ~LibraryThread() override
    {
        end();
        wait();
    }
    Q_DISABLE_COPY_MOVE(LibraryThread)

    void end()
    {
        requestInterruption();
        quit();
    }

    /// Ends `thread` without waiting longer than a person notices. If it needs longer, it dies by
    /// itself, or with the application object.
    static void dispose(std::unique_ptr<LibraryThread> thread)
    {
        thread->end();
        if (thread->wait(LongestWait)) {
            return;
        }
        thread->setParent(QCoreApplication::instance());
        // Before Qt's own one, which takes the databases away from whoever still uses them.
        qAddPostRoutine(waitForThreads);
        connect(thread.get(), &QThread::finished, thread.get(), &QObject::deleteLater);
        if (thread->isFinished()) { // before it was connected
            thread->deleteLater();
        }
        thread.release(); // NOLINT(bugprone-unused-return-value): its parent's now
    }

    SymbolDatabaseWorker worker;

private:
    static void waitForThreads()
    {
        qDeleteAll(QCoreApplication::instance()->findChildren<QThread*>(
            threadName(), Qt::FindDirectChildrenOnly));
    }
};

SymbolDatabaseWidget::SymbolDatabaseWidget(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("SymbolsMenu"));
    setWindowFlags(Qt::FramelessWindowHint);
    Look::prepareHouseDialog(this);

    m_itemModel = new QStandardItemModel(this);
    connectWorker();
    Q_EMIT startSymbolManager(libraryPath());

    setStyleSheet(Look::framedPanel(QStringLiteral("#SymbolsMenu")));
    resize(900, 518);
    m_titleBar = new ContainerTitleBar(this);

    auto* layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_titleBar);
    layout->addLayout(createContent());
    setLayout(layout);
    retranslate();
    m_symbolView->setFocus();
    // The last child, so that it outlives the buttons, which do not own it.
    m_categoryStyle = new CategoryStyle;
    m_categoryStyle->setParent(this);

    connect(m_symbolView, &QListView::doubleClicked, this, &SymbolDatabaseWidget::onDoubleClicked);
    connect(m_importButton, &QPushButton::clicked, this, &SymbolDatabaseWidget::importSlot);
    connect(m_acceptButton, &QPushButton::clicked, this, &SymbolDatabaseWidget::acceptSlot);
    connect(m_titleBar, &ContainerTitleBar::closeButtonClicked, this,
            &SymbolDatabaseWidget::reject);
}

SymbolDatabaseWidget::~SymbolDatabaseWidget()
{
    LibraryThread::dispose(std::move(m_libraryThread));
}

LockWidget* SymbolDatabaseWidget::getLockWidget() const
{
    return m_lockWidget;
}

QByteArray SymbolDatabaseWidget::getSelectedSymbol()
{
    const QModelIndexList selection = m_symbolView->selectionModel()->selectedIndexes();
    if (selection.count() != 1) {
        return {};
    }
    const QModelIndex& index = selection.constFirst();
    const int id = index.data(IdRole).toInt();
    SymbolDatabaseWorker& library = m_libraryThread->worker;
    if (m_userSymbolsShown) {
        return chosenDocument(*m_userModel, id);
    }
    if (m_allShown) {
        // Both databases may have a symbol of this id: the name tells which one it is.
        const std::unique_ptr<QStandardItem> item(library.getItemFromSymbolId(id));
        return item->toolTip() == index.data(Qt::ToolTipRole).toString()
            ? item->data(DataRole).toByteArray()
            : chosenDocument(*m_userModel, id);
    }
    return library.getDataFromSymbolId(id);
}

void SymbolDatabaseWidget::setInsertMode(bool insert)
{
    m_mode = insert ? Mode::Insert : Mode::Edit;
    showMode();
    m_lockWidget->setVisible(!insert);
}

void SymbolDatabaseWidget::acceptSlot()
{
    if (m_symbolView->selectionModel()->hasSelection()) {
        accept();
    }
}

void SymbolDatabaseWidget::onDoubleClicked(const QModelIndex& index)
{
    if (index.isValid()) {
        acceptSlot();
    }
}

void SymbolDatabaseWidget::importSlot()
{
    Q_EMIT importSymbolRequestedSignal();
}

void SymbolDatabaseWidget::onCategoryClicked()
{
    auto* button = qobject_cast<QAbstractButton*>(sender());
    if (button == nullptr) {
        return;
    }
    if (m_requests > 0) {
        // The tap has checked its button all the same.
        if (m_currentButton) {
            m_currentButton->setChecked(true);
        }
        return;
    }
    m_currentButton = button;
    m_userSymbolsShown = button->text() == m_userSymbolsLabel;
    m_allShown = !m_userSymbolsShown && button->text() == m_allLabel;
    if (m_userSymbolsShown) {
        m_itemModel->clear();
        getUserSymbolItemsList();
    } else if (m_allShown) {
        Q_EMIT getItemByCategory(QString());
    } else {
        Q_EMIT getItemByCategory(button->text().replace(QLatin1Char(' '), QLatin1Char('_')));
    }
}

void SymbolDatabaseWidget::handleSymbolManagerStartup(const QStringList& categoryNames)
{
    m_userModel = std::make_unique<SymbolDatabaseModel>();
    m_userModel->setDatabasePath(userPath());
    m_userModel->setLockTimeout(LockTimeout);
    connect(m_userModel.get(), &SymbolDatabaseModel::errorOccured, this,
            &SymbolDatabaseWidget::logUserError);

    const QList<QStandardItem*> userItems = readUserSymbols();
    createCategoryButtons(categoryNames, !userItems.isEmpty());
    m_userSymbolsShown = false;
    m_allShown = true;
    if (!endRequest()) {
        qDeleteAll(userItems);
        return;
    }
    const QList<QStandardItem*> libraryItems = m_libraryThread->worker.takeResults();
    if (libraryItems.isEmpty()) {
        logEmptyLibrary();
    }
    m_itemModel->clear();
    m_itemModel->setColumnCount(1);
    appendSymbols(*m_itemModel, userItems);
    appendSymbols(*m_itemModel, libraryItems);
}

void SymbolDatabaseWidget::handleSymbolItemsList()
{
    if (!endRequest()) {
        return;
    }
    m_itemModel->clear();
    if (m_allShown) {
        getUserSymbolItemsList();
    }
    appendSymbols(*m_itemModel, m_libraryThread->worker.takeResults());
}

void SymbolDatabaseWidget::getUserSymbolItemsList()
{
    appendSymbols(*m_itemModel, readUserSymbols());
}

void SymbolDatabaseWidget::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void SymbolDatabaseWidget::retranslate()
{
    showMode();
    m_importButton->setText(
        tr("Insert From File", "Button text for inserting a custom symbol from a file."));
    m_cancelButton->setText(tr("Cancel", "Button text to cancel and close the symbol widget."));
    nameSymbolView(m_symbolView);
    // What is shown is known by its label: label and button change together.
    m_allLabel = allLabel();
    m_userSymbolsLabel = userSymbolsLabel();
    relabel(m_allButton, m_allLabel);
    relabel(m_userSymbolsButton, m_userSymbolsLabel);
}

void SymbolDatabaseWidget::showMode()
{
    switch (m_mode) {
    case Mode::Unset:
        m_titleBar->setTitle(tr("SYMBOLS", "Header label for symbol insert menu."));
        m_acceptButton->setText(tr("Insert", "Button text for inserting a symbol."));
        break;
    case Mode::Insert:
        m_titleBar->setTitle(
            tr("SYMBOLS - INSERT", "Window title for this section that inserts symbols."));
        m_acceptButton->setText(tr("Insert", "Button text for inserting a symbol image."));
        break;
    case Mode::Edit:
        m_titleBar->setTitle(
            tr("SYMBOLS - EDIT", "Window title for this section that edits symbols."));
        m_acceptButton->setText(tr("OK", "Button text for accepting the edit of a symbol image."));
        break;
    }
}

void SymbolDatabaseWidget::connectWorker()
{
    m_libraryThread = std::make_unique<LibraryThread>();
    const SymbolDatabaseWorker* worker = &m_libraryThread->worker;
    connect(this, &SymbolDatabaseWidget::startSymbolManager, this, [this](const QString& path) {
        m_libraryPath = path;
        beginRequest();
    });
    connect(this, &SymbolDatabaseWidget::startSymbolManager, worker,
            &SymbolDatabaseWorker::getStartupItems);
    connect(worker, &SymbolDatabaseWorker::startupReady, this,
            &SymbolDatabaseWidget::handleSymbolManagerStartup);
    connect(this, &SymbolDatabaseWidget::getItemByCategory, this,
            &SymbolDatabaseWidget::beginRequest);
    connect(this, &SymbolDatabaseWidget::getItemByCategory, worker,
            &SymbolDatabaseWorker::getItemsBySearch);
    connect(worker, &SymbolDatabaseWorker::resultReady, this,
            &SymbolDatabaseWidget::handleSymbolItemsList);
}

QLayout* SymbolDatabaseWidget::createContent()
{
    m_lockWidget = new LockWidget(true, this);

    m_categoryContainer = new ToolBoxContainer(this);
    m_categoryContainer->setFixedWidth(CategoryWidth);
    m_categoryContainer->initialize(m_categoryContainer->size(), m_categoryContainer->pos());
    m_categoryContainer->setContentsMargins(0, 0, 0, 0);
    m_categoryContainer->setLayoutSpacing(0);
    m_categoryButtons = new QButtonGroup(this);

    m_symbolView = new DragScrollListView(this);
    prepareSymbolView(m_symbolView, GridSize);
    m_symbolView->setResizeMode(QListView::Adjust);
    m_symbolView->setModel(m_itemModel);

    auto* grid = new QGridLayout;
    grid->setSpacing(0);
    grid->addWidget(m_categoryContainer, 0, 0, 2, 1);
    grid->addWidget(m_symbolView, 0, 1);
    grid->addWidget(m_lockWidget, 1, 1);

    auto* content = new QVBoxLayout;
    content->setContentsMargins(6, 6, 6, 6);
    content->setSpacing(6);
    content->addLayout(grid);
    content->addLayout(createButtonRow());
    return content;
}

QLayout* SymbolDatabaseWidget::createButtonRow()
{
    m_importButton = createButton(160);
    m_acceptButton = createButton(120);
    m_acceptButton->setDefault(true);
    m_cancelButton = createButton(120);
    connect(m_cancelButton, &QPushButton::clicked, this, &SymbolDatabaseWidget::reject);

    auto* row = new QHBoxLayout;
    row->addWidget(m_importButton);
    row->addItem(new QSpacerItem(212, 10, QSizePolicy::Expanding, QSizePolicy::Minimum));
    row->addWidget(m_acceptButton);
    row->addWidget(m_cancelButton);
    return row;
}

QPushButton* SymbolDatabaseWidget::createButton(int minimumWidth)
{
    auto* button = new QPushButton(this);
    button->setStyleSheet(dialogButtonSheet());
    button->setMinimumWidth(minimumWidth);
    return button;
}

void SymbolDatabaseWidget::createCategoryButtons(const QStringList& categoryNames,
                                                 bool withUserSymbols)
{
    // Those of a library that was shown before.
    m_categoryContainer->clearLayout(m_categoryContainer->getToolBox()->widget()->layout());

    m_allLabel = allLabel();
    m_userSymbolsLabel = userSymbolsLabel();
    m_allButton = createCategoryButton(m_allLabel);
    m_currentButton = m_allButton;
    m_currentButton->setChecked(true);
    if (withUserSymbols) {
        m_userSymbolsButton = createCategoryButton(m_userSymbolsLabel);
    }
    for (QString name : categoryNames) {
        createCategoryButton(name.replace(QLatin1Char('_'), QLatin1Char(' ')));
    }
    // Few buttons stand together at the top.
    m_categoryContainer->insertSpacerItem();
}

QAbstractButton* SymbolDatabaseWidget::createCategoryButton(const QString& text)
{
    auto* button = new DragScrollButton(text);
    button->setFlat(true);
    button->setCheckable(true);
    button->setAutoDefault(false); // Enter inserts
    button->setStyle(m_categoryStyle);
    button->setStyleSheet(categoryButtonSheet());
    button->setFont(ApplicationFont::getWidgetFont(true));
    m_categoryButtons->addButton(button);
    m_categoryContainer->addPropertiesWidget(button);
    fitHeight(button); // only here: a new parent means a new style, and the sheet's height again
    connect(button, &QPushButton::clicked, this, &SymbolDatabaseWidget::onCategoryClicked);
    return button;
}

/// What is shown no longer fits the category, and cannot be picked any more.
void SymbolDatabaseWidget::beginRequest()
{
    ++m_requests;
    m_itemModel->clear();
}

/// Whether this was the answer to the newest request: the results of others are out of date.
bool SymbolDatabaseWidget::endRequest()
{
    m_requests = std::max(0, m_requests - 1);
    return m_requests == 0;
}

QList<QStandardItem*> SymbolDatabaseWidget::readUserSymbols()
{
    return m_userModel ? m_userModel->getItemsBySearch(QString(), QString(), false)
                       : QList<QStandardItem*>();
}

void SymbolDatabaseWidget::logEmptyLibrary() const
{
    CuteMessageLogger(loggerInstance(), CuteMessageLogger::Warning,
                      "widgets_symbols/symboldatabasewidget", __LINE__,
                      "void SymbolDatabaseWidget::handleSymbolManagerStartup(QStringList)")
        .write("The symbol library %s: %s",
               QFile::exists(m_libraryPath) ? "has no symbols or cannot be read" : "does not exist",
               qUtf8Printable(m_libraryPath));
}

void SymbolDatabaseWidget::logUserError(const QString& error) const
{
    // Without symbols of their own, people have no such file. That is no error.
    if (QFile::exists(userPath())) {
        CuteMessageLogger(loggerInstance(), CuteMessageLogger::Error,
                          "widgets_symbols/symboldatabasewidget", __LINE__,
                          "void SymbolDatabaseWidget::getUserSymbolItemsList()")
            .write("Error: %s", qUtf8Printable(error));
    }
}

#include "moc_symboldatabasewidget.cpp"
