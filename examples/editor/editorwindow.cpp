// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "editorwindow.h"

#include "canvas.h"
#include "sidepanel.h"
#include "ui_editorwindow.h"

#include <DatabaseSelectorDialog>
#include <MultiItemSelectionDialog>
#include <MultiItemSelectionWidget>
#include <OxFileDialog>
#include <OxHelpWindow>
#include <OxInfoWidget>
#include <OxInputDialog>
#include <OxMessageBox>
#include <SymbolDatabaseWidget>

#include <QCloseEvent>
#include <QStandardItem>

namespace {

constexpr QSize ListItemSize(220, 40);
constexpr qint64 LargestSymbol = qint64(4) * 1024 * 1024; // bytes

} // namespace

EditorWindow::EditorWindow(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::EditorWindow>())
    , m_canvas(new Canvas(&m_document))
    , m_panel(new SidePanel(&m_document))
{
    setWindowFlag(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_StyledBackground);
    QFile sheet(QStringLiteral(":/editor/editor.qss"));
    sheet.open(QFile::ReadOnly);
    setStyleSheet(QString::fromUtf8(sheet.readAll()));
    m_ui->setupUi(this);
    m_ui->body->addWidget(m_canvas, 1);
    m_ui->body->addWidget(m_panel);
    m_ui->menu->raise();
    // A tap on an item leaves the focus to the menu, or it would end before the tap is over.
    connect(m_ui->menu, &FileMenuWidget::focusLost, m_ui->menu, [menu = m_ui->menu] {
        menu->setVisible(menu->isAncestorOf(QApplication::focusWidget()));
    });
    connect(m_ui->undo, &QPushButton::clicked, &m_document, &Document::undo);
    connect(m_ui->redo, &QPushButton::clicked, &m_document, &Document::redo);
    connect(m_ui->addRectangle, &QPushButton::clicked, this, [this] { add(Object::Rectangle); });
    connect(m_ui->addEllipse, &QPushButton::clicked, this, [this] { add(Object::Ellipse); });
    connect(m_ui->addLine, &QPushButton::clicked, this, [this] { add(Object::Line); });
    connect(m_ui->records, &RecordBar::currentChanged, m_canvas,
            [this] { m_canvas->setRecord(m_ui->records->current()); });
    connect(&m_document, &Document::changed, this, &EditorWindow::showDocument);
    showDocument();
}

EditorWindow::~EditorWindow()
{
    // A field that goes while it has the focus tells what is typed: the document must still be there.
    const std::unique_ptr<QWidget> panel(m_panel);
}

void EditorWindow::showDocument()
{
    const QString file = QFileInfo(m_document.path()).fileName();
    const QString name = file.isEmpty() ? tr("New Label", "A document without a file.") : file;
    m_ui->titleBar->setTitle(m_document.isModified() ? name + QStringLiteral(" *") : name);
    m_ui->undo->setEnabled(m_document.canUndo());
    m_ui->redo->setEnabled(m_document.canRedo());
    m_ui->remove->setEnabled(!m_document.selectedObjects().isEmpty());
}

void EditorWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayLeave());
}

void EditorWindow::showOrHideMenu()
{
    m_ui->menu->move(m_ui->file->geometry().bottomLeft());
    m_ui->menu->adjustSize();
    m_ui->menu->setVisible(m_ui->menu->isHidden());
    m_ui->menu->setFocus();
}

bool EditorWindow::mayLeave()
{
    if (!m_document.isModified()) {
        return true;
    }
    const auto answer = OxMessageBox::customQuestion(
        this, tr("NOT SAVED", "Title of a question."),
        tr("The label has been changed.\nSave the changes?", "Question."),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes,
        { { QMessageBox::Yes, tr("Save", "Button.") },
          { QMessageBox::No, tr("Discard", "Button: the changes are lost.") } });
    return answer == QMessageBox::Yes ? save() : answer == QMessageBox::No;
}

bool EditorWindow::check(const QString& error)
{
    if (!error.isEmpty()) {
        OxMessageBox::warning(this, tr("ERROR", "The title of an error dialog window."), error);
    }
    return error.isEmpty();
}

void EditorWindow::newDocument()
{
    if (mayLeave()) {
        m_document.reset(Document().content(), QString());
    }
}

void EditorWindow::openDocument()
{
    if (mayLeave()) {
        openFile(OxFileDialog::getOpenFileName(this, QString(), m_document.path(),
                                               tr("Labels (*.label)", "Kind of files.")));
    }
}

void EditorWindow::openFile(const QString& path)
{
    Content content;
    if (!path.isEmpty() && check(content.read(path))) {
        m_document.reset(content, path);
    }
}

bool EditorWindow::save()
{
    return m_document.path().isEmpty() ? saveAs() : saveTo(m_document.path());
}

bool EditorWindow::saveAs()
{
    return saveTo(askForFile(QString(), tr("Labels (*.label)", "Kind of files.")));
}

bool EditorWindow::saveTo(const QString& path)
{
    if (path.isEmpty() || !check(m_document.content().write(path))) {
        return false;
    }
    m_document.setSaved(path);
    return true;
}

QString EditorWindow::askForFile(const QString& caption, const QString& filter)
{
    const QString path = OxFileDialog::getSaveFileName(this, caption, m_document.path(), filter);
    const QString question = tr("%1 is there already.\nReplace it?", "Question; a file.");
    const bool isWanted = !QFileInfo::exists(path)
        || OxMessageBox::question(this, tr("REPLACE", "Title of a question."),
                                  question.arg(QFileInfo(path).fileName()),
                                  QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
            == QMessageBox::Yes;
    return isWanted ? path : QString();
}

void EditorWindow::print()
{
    const QString path = askForFile(tr("Print to PDF", "Title of a dialog."),
                                    tr("PDF Documents (*.pdf)", "Kind of files."));
    if (!path.isEmpty()) {
        check(m_document.content().print(path, m_ui->records->records()));
    }
}

void EditorWindow::openDatabase()
{
    DatabaseSelectorDialog dialog(QStringLiteral("Labels"), this);
    if (dialog.exec() == QDialog::Accepted && !dialog.getDatabaseName().isEmpty()) {
        check(m_ui->records->open(dialog.getDatabaseName()));
    }
}

void EditorWindow::showHelp()
{
    OxHelpWindow help; // no parent, as three others here: with one they would be no window
    help.insertHelpFAQs({
        { QIcon(QStringLiteral(":/Lock/Lock/object-lock.png")),
          tr("Why can an object not be moved?\nIt is locked: see its lock options.", "Help.") },
        { QIcon(QStringLiteral(":/Navigation/NavigationIcons/search-icon.png")),
          tr("How does a text show a record?\nWrite a field's name as {name}.", "Help.") },
    });
    help.populatePDF(QStringLiteral("Editor"));
    help.exec();
}

void EditorWindow::showAbout()
{
    OxInfoWidget(QStringLiteral(EDITOR_VERSION)).exec();
}

void EditorWindow::add(Object::Kind kind, const QString& text, const QByteArray& svg)
{
    Object object;
    object.kind = kind;
    object.text = text;
    object.svg = svg;
    object.width = kind == Object::Text ? 50 : 25;
    object.height = kind == Object::Text ? 10 : 20;
    m_document.add(object);
}

void EditorWindow::addText()
{
    const QString text =
        OxInputDialog::getText(this, tr("TEXT", "Title of a dialog."),
                               tr("Text, or a field of a record as {name}:", "Label of a field."));
    if (!text.isEmpty()) {
        add(Object::Text, text);
    }
}

void EditorWindow::addSymbol()
{
    SymbolDatabaseWidget browser;
    browser.setInsertMode(true);
    QByteArray svg;
    connect(&browser, &SymbolDatabaseWidget::importSymbolRequestedSignal, &browser, [&] {
        QFile file(OxFileDialog::getOpenFileName(&browser, QString(), QString(),
                                                 tr("Drawings (*.svg)", "Kind of files.")));
        if (file.open(QFile::ReadOnly)) {
            svg = file.read(LargestSymbol);
            browser.reject();
        }
    });
    if (browser.exec() == QDialog::Accepted) {
        svg = browser.getSelectedSymbol();
    }
    if (!svg.isEmpty() && check(Object::complaintAbout(svg))) {
        add(Object::Symbol, QString(), svg);
    }
}

void EditorWindow::selectSeveral()
{
    QList<QStandardItem*> items; // which the dialog owns
    QList<int> selected;
    for (const Object& object : m_document.content().objects()) {
        items.append(new QStandardItem(object.description()));
        items.constLast()->setData(object.id, Qt::UserRole + 1);
        items.constLast()->setSizeHint(ListItemSize); // for a finger
        if (m_document.isSelected(object)) {
            selected.append(object.id);
        }
    }
    MultiItemSelectionDialog dialog;
    dialog.getSelectionWidget()->setAvailableItems(items);
    dialog.getSelectionWidget()->setSelectedItems(selected);
    if (dialog.exec() == QDialog::Accepted) {
        m_document.select(dialog.getSelectionWidget()->getSelectedItemIds());
    }
}

void EditorWindow::removeSelected()
{
    check(m_document.removeSelected() ? QString() : tr("An object is locked.", "Error message."));
}

#include "moc_editorwindow.cpp"
