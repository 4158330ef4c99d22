// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxinfowidget.h"

#include "applicationfont.h"
#include "containertitlebar.h"
#include "look/housedialog.h"
#include "look/palette.h"
#include "look/sheets.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr QSize PanelSize(360, 300);
constexpr int Margin = 8; // pixels around the content

/// A label that wraps at the width of the panel, and not before.
QLabel* createLine(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(PanelSize.width() - 2 * Margin);
    return label;
}

QFrame* createSeparator(QWidget* parent)
{
    auto* separator = new QFrame(parent);
    separator->setFrameShape(QFrame::HLine);
    separator->setLineWidth(1);
    QPalette palette = separator->palette();
    palette.setColor(QPalette::All, QPalette::WindowText, QColor(LOOK_SEPARATOR));
    separator->setPalette(palette);
    return separator;
}

} // namespace

// NOLINTNEXTLINE(modernize-pass-by-value): the signature is part of the interface
OxInfoWidget::OxInfoWidget(const QString& version, QWidget* parent)
    : QDialog(parent)
    , m_version(version)
{
    setObjectName(QStringLiteral("OxInfoWidget"));
    Look::prepareHouseDialog(this);
    setWindowFlags(Qt::FramelessWindowHint);
    setModal(true);
    setStyleSheet(Look::framedPanel(QStringLiteral("#OxInfoWidget")));

    m_titleBar = new ContainerTitleBar(this);

    auto* layout = new QVBoxLayout;
    layout->setSpacing(10);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_titleBar);
    layout->addLayout(createContent());
    setLayout(layout);
    setFixedSize(PanelSize);
    retranslate();
    alignLines();

    connect(m_titleBar, &ContainerTitleBar::closeButtonClicked, this, &QWidget::hide);
}

QString OxInfoWidget::versionNumber() const
{
    return m_version;
}

void OxInfoWidget::setVersionNumber(const QString& version)
{
    m_version = version;
    m_isVersionReplaced = true;
    showVersion();
}

void OxInfoWidget::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    } else if (event->type() == QEvent::LayoutDirectionChange) {
        alignLines();
    }
}

void OxInfoWidget::retranslate()
{
    m_titleBar->setTitle(
        tr("ABOUT", "Section header for displaying information about the application."));
    m_headingLabel->setText(tr("About ", "Label for displaying information about the application.")
                            + QStringLiteral("Sigilant PRO"));
    showVersion();
    // Short lines, so that a translation half as long again still stands in four.
    m_contactLabel->setText(
        tr("For help or feedback, call\n555-0142\nor write to\nsupport@example.com",
           "Contact information for users that need help with the application. The "
           "backslash n characters are newlines and should be ignored."));
    m_closeButton->setText(tr("Close", "Button text to close the About window."));
}

void OxInfoWidget::alignLines()
{
    for (QLabel* line : { m_headingLabel, m_versionLabel, m_contactLabel, m_noticeLabel }) {
        Look::alignToLineStart(line);
    }
}

void OxInfoWidget::showVersion()
{
    // Two texts, on purpose: a translation may word the one that is set later differently.
    m_versionLabel->setText((m_isVersionReplaced
                                 ? tr("Version: ")
                                 : tr("Version: ", "Label that displays the application version"))
                            + m_version);
}

QGridLayout* OxInfoWidget::createContent()
{
    m_headingLabel = createLine(QString(), this);
    m_headingLabel->setFont(ApplicationFont::getWidgetFontLarge(true));
    m_versionLabel = createLine(QString(), this);
    m_contactLabel = createLine(QString(), this);
    m_noticeLabel = createLine(QString::fromUtf8("Copyright © 2026 Sigilant PRO"), this);

    m_closeButton = new QPushButton(this);
    m_closeButton->setStyleSheet(Look::gradientButton());
    // The fixed height wins over the sheet's minimum, which the border makes 37.
    m_closeButton->setFixedSize(180, 35);
    connect(m_closeButton, &QPushButton::clicked, this, &QWidget::hide);

    auto* grid = new QGridLayout;
    grid->setContentsMargins(Margin, Margin, Margin, Margin);
    grid->addWidget(m_headingLabel, 0, 0, Qt::AlignLeft);
    grid->addWidget(createSeparator(this), 1, 0);
    grid->addWidget(m_versionLabel, 2, 0, Qt::AlignLeft);
    grid->addWidget(m_contactLabel, 3, 0, Qt::AlignLeft);
    // Two rows are left empty between the contact and the notice.
    grid->addWidget(m_noticeLabel, 6, 0, Qt::AlignLeft);
    grid->addWidget(m_closeButton, 7, 0, Qt::AlignRight);
    return grid;
}

#include "moc_oxinfowidget.cpp"
