// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxinfowidget.h"

#include "applicationfont.h"
#include "containertitlebar.h"
#include "look/housedialog.h"
#include "look/palette.h"
#include "look/sheets.h"

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

OxInfoWidget::OxInfoWidget(const QString& version, QWidget* parent)
    : QDialog(parent)
    , m_versionNumber(version)
{
    setObjectName(QStringLiteral("OxInfoWidget"));
    Look::prepareHouseDialog(this);
    setWindowFlags(Qt::FramelessWindowHint);
    setModal(true);
    setStyleSheet(Look::framedPanel(QStringLiteral("#OxInfoWidget")));

    auto* titleBar = new ContainerTitleBar(this);
    titleBar->setTitle(
        tr("ABOUT", "Section header for displaying information about the application."));

    auto* layout = new QVBoxLayout;
    layout->setSpacing(10);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(titleBar);
    layout->addLayout(createContent(version));
    setLayout(layout);
    setFixedSize(PanelSize);

    connect(titleBar, &ContainerTitleBar::closeButtonClicked, this, &QWidget::hide);
}

QString OxInfoWidget::versionNumber() const
{
    return m_versionNumber;
}

void OxInfoWidget::setVersionNumber(const QString& version)
{
    m_versionNumber = version;
    m_versionLabel->setText(tr("Version: ") + version);
}

QGridLayout* OxInfoWidget::createContent(const QString& version)
{
    auto* heading =
        createLine(tr("About ", "Label for displaying information about the application.")
                       + QStringLiteral("Sigilant PRO"),
                   this);
    heading->setFont(ApplicationFont::getWidgetFontLarge(true));
    m_versionLabel =
        createLine(tr("Version: ", "Label that displays the application version") + version, this);
    // Short lines, so that a translation half as long again still stands in four.
    auto* contact =
        createLine(tr("For help or feedback, call\n555-0142\nor write to\nsupport@example.com",
                      "Contact information for users that need help with the application. The "
                      "backslash n characters are newlines and should be ignored."),
                   this);
    auto* notice = createLine(QString::fromUtf8("Copyright © 2026 Sigilant PRO"), this);

    auto* closeButton =
        new QPushButton(tr("Close", "Button text to close the About window."), this);
    closeButton->setStyleSheet(Look::gradientButton());
    // The fixed height wins over the sheet's minimum, which the border makes 37.
    closeButton->setFixedSize(180, 35);
    connect(closeButton, &QPushButton::clicked, this, &QWidget::hide);

    auto* grid = new QGridLayout;
    grid->setContentsMargins(Margin, Margin, Margin, Margin);
    grid->addWidget(heading, 0, 0, Qt::AlignLeft);
    grid->addWidget(createSeparator(this), 1, 0);
    grid->addWidget(m_versionLabel, 2, 0, Qt::AlignLeft);
    grid->addWidget(contact, 3, 0, Qt::AlignLeft);
    // Two rows are left empty between the contact and the notice.
    grid->addWidget(notice, 6, 0, Qt::AlignLeft);
    grid->addWidget(closeButton, 7, 0, Qt::AlignRight);
    return grid;
}

#include "moc_oxinfowidget.cpp"
