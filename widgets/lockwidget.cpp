// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "lockwidget.h"

#include "applicationfont.h"
#include "linelabel.h"
#include "look/images.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>

namespace {

// The three blanks behind "checked" and the two behind "disabled" belong to the exact text.
QString indicatorSheet(const QString& checked, const QString& unchecked, const QString& disabled)
{
    return QStringLiteral("QCheckBox::indicator:checked   { image: url(%1); } "
                          "QCheckBox::indicator:unchecked { image: url(%2); } "
                          "QCheckBox::indicator:disabled  { image: url(%3); }")
        .arg(checked, unchecked, disabled);
}

QSpacerItem* createSpacer()
{
    return new QSpacerItem(5, 5, QSizePolicy::Minimum, QSizePolicy::Minimum);
}

} // namespace

LockWidget::LockWidget(bool horizontal, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("LockWidget"));
    setUpBoxes();
    if (horizontal) {
        layOutAsRow();
    } else {
        layOutAsGrid();
    }
    retranslate();

    connect(&m_lockBox, &QCheckBox::clicked, this, &LockWidget::lockSignal);
    connect(&m_readOnlyBox, &QCheckBox::clicked, this, &LockWidget::readOnlySignal);
    connect(&m_userBackgroundBox, &QCheckBox::clicked, this, &LockWidget::userBackgroundSignal);
}

LockWidget::LockWidget(QWidget* parent)
    : LockWidget(false, parent)
{ }

bool LockWidget::lockState() const
{
    return m_lockBox.isChecked();
}

bool LockWidget::readOnlyState() const
{
    return m_readOnlyBox.isChecked();
}

bool LockWidget::userBackgroundState() const
{
    return m_userBackgroundBox.isChecked();
}

void LockWidget::setLockState(bool checked)
{
    m_lockBox.setChecked(checked);
}

void LockWidget::setReadOnlyState(bool checked)
{
    m_readOnlyBox.setChecked(checked);
    m_lockBox.setEnabled(!checked);
}

void LockWidget::setUserBackgroundState(bool checked)
{
    m_userBackgroundBox.setChecked(checked);
    m_lockBox.setEnabled(!checked && !m_readOnlyBox.isChecked());
    m_readOnlyBox.setEnabled(!checked);
}

void LockWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void LockWidget::retranslate()
{
    m_lockBox.setText(tr("Lock", "Lock button text."));
    m_lockBox.setToolTip(
        tr("All object properties except for data editing are prevented from being changed.",
           "Lock button tool tip text."));
    m_readOnlyBox.setText(tr("Read\nOnly", "Read-only button text."));
    m_readOnlyBox.setToolTip(tr("All object properties are prevented from being changed.",
                                "Read-only button tool tip text."));
    m_userBackgroundBox.setText(tr("Set As User\nBackground", "User template button text."));
    m_userBackgroundBox.setToolTip(
        tr("The object is placed in a separate layer, that can be hidden (option in defaults menu) "
           "\nand optionally printed (option in print widget).",
           "User template button tool tip text."));
    if (m_header != nullptr) {
        m_header->setText(tr("Lock Options", "Section header for object lock options."));
    }
}

void LockWidget::setUpBoxes()
{
    m_lockBox.setStyleSheet(indicatorSheet(QStringLiteral(LOOK_IMAGE_LOCK_CHECKED),
                                           QStringLiteral(LOOK_IMAGE_LOCK),
                                           QStringLiteral(LOOK_IMAGE_LOCK_DISABLED)));
    m_readOnlyBox.setStyleSheet(indicatorSheet(QStringLiteral(LOOK_IMAGE_READ_ONLY_CHECKED),
                                               QStringLiteral(LOOK_IMAGE_READ_ONLY),
                                               QStringLiteral(LOOK_IMAGE_READ_ONLY_DISABLED)));
    m_userBackgroundBox.setStyleSheet(
        indicatorSheet(QStringLiteral(LOOK_IMAGE_USER_BACKGROUND_CHECKED),
                       QStringLiteral(LOOK_IMAGE_USER_BACKGROUND),
                       QStringLiteral(LOOK_IMAGE_USER_BACKGROUND_DISABLED)));
}

void LockWidget::layOutAsRow()
{
    auto* row = new QHBoxLayout;
    row->addItem(createSpacer());
    row->addWidget(&m_lockBox);
    row->addWidget(&m_readOnlyBox);
    row->addWidget(&m_userBackgroundBox);
    setLayout(row);
}

void LockWidget::layOutAsGrid()
{
    m_header = new LineLabel;
    m_header->setFont(ApplicationFont::getWidgetFont(true));

    auto* grid = new QGridLayout;
    grid->addWidget(m_header, 0, 0, 1, 2);
    grid->addWidget(&m_lockBox, 1, 0);
    grid->addWidget(&m_readOnlyBox, 1, 1);
    grid->addItem(createSpacer(), 2, 0);
    grid->addWidget(&m_userBackgroundBox, 3, 0, 1, 2);
    setLayout(grid);
}

#include "moc_lockwidget.cpp"
