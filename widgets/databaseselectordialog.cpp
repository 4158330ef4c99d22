// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "databaseselectordialog.h"

#include "look/housedialog.h"
#include "look/palette.h"
#include "look/sheets.h"
#include "sharedconstants.h"
#include "ui_databaseselectordialog.h"

#include <QDir>
#include <QEvent>

namespace {

constexpr int RowHeight = 40; // pixels

QString fileEnding()
{
    return QStringLiteral(".db");
}

QString dialogSheet()
{
    return QStringLiteral("QPushButton { outline: 0; border: 1px solid " LOOK_ACCENT_ORANGE
                          "; background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
                          "stop: 0 " LOOK_BUTTON_TOP_UPPER_CASE ", stop: 1 " LOOK_BUTTON_BOTTOM
                          "); color: white; font: bold 14px; border-radius: 6px; }\n"
                          "QPushButton:pressed { background-color: " LOOK_ACCENT_ORANGE
                          "; color: white; }");
}

/// No upper edge: it joins the title bar.
QString contentsSheet()
{
    return QStringLiteral("#contentsFrame {background-color: " LOOK_PANEL_GREY_UPPER_CASE
                          "; \n border: 1px solid " LOOK_ACCENT_ORANGE ";  border-top: none; }");
}

} // namespace

DatabaseSelectorDialog::DatabaseSelectorDialog(const QString& subfolder, QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui_DatabaseSelectorDialog>())
{
    setStyleSheet(dialogSheet());
    m_ui->setupUi(this);
    m_ui->contentsFrame->setStyleSheet(contentsSheet());
    m_ui->dataLabel->setStyleSheet(QStringLiteral("font: 14px;"));
    m_ui->dataListWidget->setStyleSheet(Look::dialogList());

    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    Look::prepareHouseDialog(this);
    m_subfolder = subfolder;
    Look::alignToLineStart(m_ui->dataLabel);
    retranslate();

    connect(m_ui->headerBar, &ContainerTitleBar::closeButtonClicked, this, &QDialog::reject);
    populateDatabasesList(subfolder);
}

DatabaseSelectorDialog::~DatabaseSelectorDialog() = default;

QString DatabaseSelectorDialog::getDatabaseName() const
{
    return m_databaseName;
}

void DatabaseSelectorDialog::populateDatabasesList(const QString& subfolder)
{
    m_folderPath = DatabasesPath + subfolder;
    const QDir folder(m_folderPath);
    if (!folder.exists()) {
        return;
    }
    QListWidget* list = m_ui->dataListWidget;
    const QStringList files = folder.entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (const QString& file : files) {
        if (!file.endsWith(fileEnding(), Qt::CaseInsensitive)) {
            continue;
        }
        auto* item = new QListWidgetItem(file.chopped(fileEnding().size()));
        item->setSizeHint(QSize(list->width(), RowHeight));
        item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        list->addItem(item);
    }
    if (list->count() > 0) {
        list->setCurrentRow(0);
    }
}

void DatabaseSelectorDialog::on_okayButton_clicked()
{
    const QListWidgetItem* item = m_ui->dataListWidget->currentItem();
    if (item == nullptr) {
        m_databaseName.clear();
    } else {
        const QString name = item->text();
        Q_EMIT databaseSelectedSignal(name);
        m_databaseName = m_folderPath + QDir::separator() + name + fileEnding();
    }
    accept();
}

void DatabaseSelectorDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    } else if (event->type() == QEvent::LayoutDirectionChange) {
        Look::alignToLineStart(m_ui->dataLabel);
    }
}

void DatabaseSelectorDialog::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->headerBar->setTitle(tr("DATABASE SELECTOR"));
    // Behind the form's function, which would leave the form's own text. Not translated: it is part of
    // a name.
    m_ui->dataLabel->setText(m_subfolder + QStringLiteral(" Databases"));
    m_ui->dataListWidget->setAccessibleName(m_ui->dataLabel->text());
}

#include "moc_databaseselectordialog.cpp"
