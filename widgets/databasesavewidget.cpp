// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "databasesavewidget.h"

#include "applicationfont.h"
#include "clickablelabel.h"
#include "containertitlebar.h"
#include "look/housedialog.h"
#include "look/images.h"
#include "look/sheets.h"

#include <QEvent>
#include <QGridLayout>
#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr int DialogWidth = 380; // pixels
constexpr int MaximumHeight = 242; // pixels
constexpr int SideMargin = 12; // pixels beside options and buttons
constexpr int TextMargin = 8; // pixels between a radio button and its texts

enum Response {
    Cancelled = 0,
    Save = 1,
    SaveAs = 2,
};

QString radioButtonSheet()
{
    return QStringLiteral(
        "QRadioButton::indicator { width: 24px; height: 24px; }\n"
        "QRadioButton::indicator:checked { image: url(" LOOK_IMAGE_RADIO_CHECKED "); }\n"
        "QRadioButton::indicator:unchecked { image: url(" LOOK_IMAGE_RADIO_UNCHECKED "); }\n"
        "QRadioButton::indicator:checked:disabled { image: url(" LOOK_IMAGE_RADIO_CHECKED_DISABLED
        "); }\n"
        "QRadioButton::indicator:unchecked:disabled { image: "
        "url(" LOOK_IMAGE_RADIO_UNCHECKED_DISABLED "); }\n");
}

QString pushButtonSheet()
{
    return Look::gradientButton() + QStringLiteral("QPushButton { min-width: 80px; }");
}

/// A label for a text of an option. It takes the whole width beside the radio button, so that all of
/// the row can be tapped, and no translation makes the dialog wider than it is.
ClickableLabel* createText(QWidget* parent)
{
    auto* label = new ClickableLabel(QString(), parent);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    label->setIndent(TextMargin);
    return label;
}

/// `preferred`, or `smaller` for a translation that is too long for one line of the dialog, which
/// has no room for a second one.
QFont fontFor(const QString& text, const QFont& preferred, const QFont& smaller)
{
    constexpr int IndicatorWidth = 24; // pixels
    constexpr int Room = DialogWidth - 2 * SideMargin - IndicatorWidth - TextMargin;
    return QFontMetrics(preferred).horizontalAdvance(text) <= Room ? preferred : smaller;
}

void setOption(QLabel* label, const QString& text)
{
    label->setText(text);
    label->setFont(fontFor(text, ApplicationFont::getWidgetFontLarge(true),
                           ApplicationFont::getWidgetFont(true)));
}

void setExplanation(QLabel* label, const QString& text)
{
    label->setText(text);
    label->setFont(fontFor(text, ApplicationFont::getWidgetFontSmall(false),
                           ApplicationFont::getWidgetFontTiny(false)));
}

} // namespace

DatabaseSaveWidget::DatabaseSaveWidget(QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    setObjectName(QStringLiteral("DatabaseSaveWidget"));
    setWindowFlags(Qt::FramelessWindowHint);
    Look::prepareHouseDialog(this);
    setStyleSheet(Look::framedPanel(QStringLiteral("#DatabaseSaveWidget")) + radioButtonSheet()
                  + pushButtonSheet());

    m_titleBar = new ContainerTitleBar(this);
    createOptions();
    createButtons();
    retranslate();
    createLayout();
    setFixedWidth(DialogWidth);
    setMaximumHeight(MaximumHeight);
    m_saveRadio->setChecked(true);

    connect(m_saveLabel, &ClickableLabel::clicked, this, &DatabaseSaveWidget::checkSaveRadio);
    connect(m_saveInfoLabel, &ClickableLabel::clicked, this, &DatabaseSaveWidget::checkSaveRadio);
    connect(m_saveAsLabel, &ClickableLabel::clicked, this, &DatabaseSaveWidget::checkSaveAsRadio);
    connect(m_saveAsInfoLabel, &ClickableLabel::clicked, this,
            &DatabaseSaveWidget::checkSaveAsRadio);
    connect(m_okButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_titleBar, &ContainerTitleBar::closeButtonClicked, this, &QDialog::reject);
}

int DatabaseSaveWidget::execWidget()
{
    DatabaseSaveWidget dialog;
    dialog.exec();
    return dialog.getResponse();
}

int DatabaseSaveWidget::getResponse() const
{
    if (result() != Accepted) {
        return Cancelled;
    }
    if (m_saveRadio->isChecked()) {
        return Save;
    }
    return m_saveAsRadio->isChecked() ? SaveAs : Cancelled;
}

void DatabaseSaveWidget::checkSaveRadio()
{
    m_saveRadio->setChecked(true);
}

void DatabaseSaveWidget::checkSaveAsRadio()
{
    m_saveAsRadio->setChecked(true);
}

void DatabaseSaveWidget::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void DatabaseSaveWidget::retranslate()
{
    m_titleBar->setTitle(tr("SAVE TO DATABASE", "Header label to save record to the database."));
    setOption(m_saveLabel,
              tr("Save Current Record", "Label to save current record into the database."));
    setExplanation(m_saveInfoLabel, tr("Overwrites current record in database", "Save info label"));
    setOption(m_saveAsLabel,
              tr("Save As New Record", "Label to save as a new record into the database."));
    setExplanation(m_saveAsInfoLabel, tr("Saves as new record in database", "Save As info label"));
    m_saveRadio->setAccessibleName(m_saveLabel->text());
    m_saveAsRadio->setAccessibleName(m_saveAsLabel->text());
    m_okButton->setText(tr("OK", "Ok button for saving to a database."));
    m_cancelButton->setText(tr("Cancel", "Cancel button for saving to a database."));
}

void DatabaseSaveWidget::createOptions()
{
    m_saveRadio = new QRadioButton(this);
    m_saveLabel = createText(this);
    m_saveInfoLabel = createText(this);
    m_saveAsRadio = new QRadioButton(this);
    m_saveAsLabel = createText(this);
    m_saveAsInfoLabel = createText(this);
}

void DatabaseSaveWidget::createButtons()
{
    m_okButton = new QPushButton(this);
    m_okButton->setStyleSheet(pushButtonSheet());
    m_cancelButton = new QPushButton(this);
    m_cancelButton->setStyleSheet(pushButtonSheet());
}

QGridLayout* DatabaseSaveWidget::layOutOptions()
{
    auto* grid = new QGridLayout;
    grid->setSpacing(0);
    grid->addWidget(m_saveRadio, 0, 0);
    grid->addWidget(m_saveLabel, 0, 1);
    grid->addWidget(m_saveInfoLabel, 1, 1);
    grid->addItem(new QSpacerItem(0, 4, QSizePolicy::Minimum, QSizePolicy::Expanding), 2, 0);
    grid->addWidget(m_saveAsRadio, 3, 0);
    grid->addWidget(m_saveAsLabel, 3, 1);
    grid->addWidget(m_saveAsInfoLabel, 4, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

void DatabaseSaveWidget::createLayout()
{
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_okButton);
    buttons->addWidget(m_cancelButton);

    auto* inner = new QVBoxLayout;
    inner->setContentsMargins(SideMargin, 0, SideMargin, 8);
    inner->setSpacing(7);
    inner->addLayout(layOutOptions());
    inner->addSpacing(30);
    inner->addLayout(buttons);
    inner->setAlignment(buttons, Qt::AlignRight);

    auto* outer = new QVBoxLayout;
    outer->setSpacing(30);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(m_titleBar);
    outer->addLayout(inner);
    setLayout(outer);
}

#include "moc_databasesavewidget.cpp"
