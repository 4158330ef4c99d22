// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxhelpwindow.h"

#include "applicationfont.h"
#include "look/housedialog.h"
#include "look/palette.h"
#include "look/sheets.h"
#include "qcopchannel.h"
#include "sharedconstants.h"
#include "ui_oxhelpwindow.h"

#include <QApplication>
#include <QDataStream>
#include <QDir>
#include <QEvent>
#include <QKeyEvent>

namespace {

constexpr QSize QuestionSize(520, 90); // pixels, also the grid of the questions
constexpr QSize ManualSize(100, 40); // pixels

QString dialogSheet()
{
    return QStringLiteral("\n    QDialog { border: 1px solid " LOOK_ACCENT_ORANGE "; } "
                          "\n    QPushButton { border: 1px solid " LOOK_ACCENT_ORANGE
                          "; color: white; font: bold; border-radius: 6px; outline: 0; "
                          "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
                          "stop: 0 " LOOK_BUTTON_TOP ", stop: 1 " LOOK_BUTTON_BOTTOM "); } "
                          "\n    QPushButton:pressed { background-color: " LOOK_ACCENT_ORANGE
                          "; color: white; } "
                          // No upper edge: it joins the title bar.
                          "\n    #containerFrame { background-color: " LOOK_PANEL_GREY
                          "; border: 1px solid " LOOK_ACCENT_ORANGE "; border-top: none; }\n");
}

} // namespace

OxHelpWindow::OxHelpWindow(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui_OxHelpWindow>())
{
    setObjectName(QStringLiteral("OxHelpWindow"));
    setStyleSheet(dialogSheet());
    m_ui->setupUi(this);
    m_ui->FAQLabel->setFont(ApplicationFont::getWidgetFont(true));
    m_ui->PDFLabel->setFont(ApplicationFont::getWidgetFont(true));
    m_ui->listWidget->setGridSize(QuestionSize);
    m_ui->listWidget->setStyleSheet(Look::dialogList());
    m_ui->PDFHelpListWidget->setStyleSheet(Look::dialogList());

    Look::prepareHouseDialog(this);
    retranslate();
    setWindowFlags(Qt::FramelessWindowHint);

    connect(m_ui->closeButton, &QPushButton::clicked, this, &QWidget::hide);
    connect(m_ui->PDFHelpListWidget, &QListWidget::itemClicked, this,
            &OxHelpWindow::callPDFLaunchSlot);
    connect(m_ui->headerBar, &ContainerTitleBar::closeButtonClicked, this, &QWidget::hide);
}

OxHelpWindow::~OxHelpWindow()
{
    clearFAQs();
}

QString OxHelpWindow::manualsFolderName() const
{
    return m_manualsFolderName;
}

void OxHelpWindow::insertHelpFAQs(const QList<QPair<QIcon, QString>>& faqs)
{
    for (const auto& [icon, question] : faqs) {
        auto* item = new QListWidgetItem(icon, question);
        item->setFlags(Qt::ItemIsEnabled);
        item->setSizeHint(QuestionSize);
        m_ui->listWidget->addItem(item);
    }
}

void OxHelpWindow::populatePDF(const QString& manualsFolderName)
{
    QDir folder(HomeFolderPath + QStringLiteral("Manuals") + QDir::separator() + manualsFolderName);
    if (!folder.exists()) {
        return;
    }
    m_manualsFolderName = manualsFolderName;
    QFont headerFont = QApplication::font();
    headerFont.setUnderline(true);
    const QStringList names = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : names) {
        if (!folder.cd(name)) {
            continue;
        }
        if (name == QLatin1String("sidebar")) {
            // Not back up to the parent, on purpose: what sorts behind this folder is looked for
            // in it. Manuals that belong to a page's side bar are hidden that way.
            continue;
        }
        auto* header = new QListWidgetItem(name);
        header->setFont(headerFont);
        header->setData(Qt::UserRole, QString(QLatin1String("")));
        header->setFlags(Qt::ItemIsEnabled);
        m_ui->PDFHelpListWidget->addItem(header);
        addManuals(folder.path(), folder.entryList(QDir::Files));
        folder.cdUp();
    }
}

void OxHelpWindow::clearFAQs()
{
    m_ui->listWidget->clear();
}

void OxHelpWindow::callPDFLaunchSlot(QListWidgetItem* item)
{
    const QString path = item != nullptr ? item->data(Qt::UserRole).toString() : QString();
    if (path.isEmpty()) {
        return;
    }
    QByteArray serialised;
    QDataStream stream(&serialised, QIODevice::WriteOnly);
    stream << path;
    QCopChannel::send(QStringLiteral("OxHomeInstance"), QStringLiteral("launch"), serialised);
}

void OxHelpWindow::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void OxHelpWindow::keyPressEvent(QKeyEvent* event)
{
    // The list passes Return on, and the dialog would close on it.
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && m_ui->PDFHelpListWidget->hasFocus()) {
        callPDFLaunchSlot(m_ui->PDFHelpListWidget->currentItem());
        return;
    }
    QDialog::keyPressEvent(event);
}

void OxHelpWindow::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->headerBar->setTitle(tr("HELP", "The title of the help dialog."));
    m_ui->listWidget->setAccessibleName(m_ui->FAQLabel->text());
    m_ui->PDFHelpListWidget->setAccessibleName(m_ui->PDFLabel->text());
}

/// Adds those of `files` that are PDF files; `folder` is the path that they are in.
void OxHelpWindow::addManuals(const QString& folder, const QStringList& files)
{
    for (const QString& file : files) {
        if (!file.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive)) {
            continue;
        }
        // Empty parts are skipped: a name that starts with a dot has a first part, too.
        const QString name = file.section(QLatin1Char('.'), 0, 0, QString::SectionSkipEmpty);
        auto* item = new QListWidgetItem(QStringLiteral("   ") + name);
        item->setSizeHint(ManualSize);
        item->setForeground(QBrush(Qt::blue));
        item->setData(Qt::UserRole,
                      QString(folder + QDir::separator() + name + QStringLiteral(".pdf")));
        item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        m_ui->PDFHelpListWidget->addItem(item);
    }
}

#include "moc_oxhelpwindow.cpp"
