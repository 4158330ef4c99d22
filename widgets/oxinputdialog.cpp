// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxinputdialog.h"

#include "look/housedialog.h"
#include "look/images.h"
#include "look/sheets.h"
#include "look/styledwidgetpainting.h"
#include "oxdoublespinbox.h"
#include "oxspinbox.h"
#include "oxtitlebar.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// Space around the label and around the row of buttons, in pixels.
constexpr int Margin = 12;
constexpr int FieldHeight = 35; // pixels
constexpr int TextWidth = 430; // pixels
constexpr int NumberWidth = 300; // pixels
/// So large a stretch that the field's row takes all the spare height.
constexpr int FieldStretch = 132;

template <typename SpinBox, typename Value>
SpinBox* createSpinBox(QWidget* parent, Value value, Value minimum, Value maximum)
{
    auto* box = new SpinBox(parent);
    box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    box->setRange(minimum, maximum);
    box->setValue(value);
    return box;
}

} // namespace

OxInputDialog::OxInputDialog(QWidget* parent, Qt::WindowFlags flags, const QString& title,
                             const QString& label)
    : QDialog(parent, flags)
{
    setObjectName(QStringLiteral("OxInputWidget"));
    Look::prepareHouseDialog(this);

    m_titleBar = new OxTitleBar(this, QStringLiteral(LOOK_IMAGE_INFORMATION), title);
    m_titleBar->setStyleSheet(OxTitleBar::barStyle());
    m_label = new QLabel(label, this);
    m_label->setMargin(Margin);
    createButtons();
    // The message box's sheet, on purpose: it names another widget, so this dialog keeps the
    // default background.
    setStyleSheet(Look::framedPanel(QStringLiteral("QWidget#MessageBoxWidget")));

    connect(m_titleBar, &OxTitleBar::closeButtonClicked, this, &OxInputDialog::closeButton);
    connect(m_buttonBox, &QDialogButtonBox::clicked, this, &OxInputDialog::onButtonClicked);
}

QString OxInputDialog::getText(QWidget* parent, const QString& title, const QString& label,
                               const QString& text, bool* cancelled, Qt::WindowFlags flags)
{
    OxInputDialog dialog(parent, flags, title, label);
    dialog.setTextLayout(text);
    return dialog.run(cancelled) ? dialog.getTextValue() : QString();
}

int OxInputDialog::getInt(QWidget* parent, const QString& title, const QString& label, int value,
                          int minimum, int maximum, bool* cancelled, Qt::WindowFlags flags)
{
    OxInputDialog dialog(parent, flags, title, label);
    dialog.setIntLayout(value, minimum, maximum);
    return dialog.run(cancelled) ? dialog.getIntValue() : 0;
}

double OxInputDialog::getDouble(QWidget* parent, const QString& title, const QString& label,
                                double value, double minimum, double maximum, bool* cancelled,
                                Qt::WindowFlags flags)
{
    OxInputDialog dialog(parent, flags, title, label);
    dialog.setDoubleLayout(value, minimum, maximum);
    return dialog.run(cancelled) ? dialog.getDoubleValue() : 0.0;
}

void OxInputDialog::setTextLayout(const QString& text)
{
    m_textField = new QLineEdit(text, this);
    createLayout(m_textField, TextWidth);
    m_textField->selectAll();
}

void OxInputDialog::setIntLayout(int value, int minimum, int maximum)
{
    m_intField = createSpinBox<OxSpinBox>(this, value, minimum, maximum);
    createLayout(m_intField, NumberWidth);
    m_intField->selectAll();
}

void OxInputDialog::setDoubleLayout(double value, double minimum, double maximum)
{
    m_doubleField = createSpinBox<OxDoubleSpinBox>(this, value, minimum, maximum);
    createLayout(m_doubleField, NumberWidth);
    m_doubleField->selectAll();
}

QString OxInputDialog::getTextValue() const
{
    return m_textField != nullptr ? m_textField->text() : QString();
}

int OxInputDialog::getIntValue() const
{
    return m_intField != nullptr ? m_intField->value() : 0;
}

double OxInputDialog::getDoubleValue() const
{
    return m_doubleField != nullptr ? m_doubleField->value() : 0.0;
}

void OxInputDialog::closeButton()
{
    done(Rejected);
}

void OxInputDialog::onButtonClicked(QAbstractButton* button)
{
    done(m_buttonBox->standardButton(button) == QDialogButtonBox::Ok ? Accepted : Rejected);
}

void OxInputDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        done(Rejected);
        return;
    }
    QDialog::keyPressEvent(event);
}

void OxInputDialog::paintEvent(QPaintEvent* /*event*/)
{
    Look::paintStyledWidget(this);
}

void OxInputDialog::createButtons()
{
    m_buttonBox = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_buttonBox->setContentsMargins(Margin, Margin, Margin, Margin);
    const auto buttons = m_buttonBox->buttons();
    for (QAbstractButton* button : buttons) {
        Look::prepareMessageButton(button);
    }
}

void OxInputDialog::createLayout(QWidget* field, int minimumWidth)
{
    field->setMinimumSize(minimumWidth, FieldHeight);
    // Not as the label's buddy: that would make a shortcut of an ampersand in the text.
    field->setAccessibleName(m_label->text());

    auto* inner = new QVBoxLayout;
    inner->setContentsMargins(12, 6, 12, 6);
    inner->addWidget(field, 0, Qt::AlignCenter);

    auto* outer = new QVBoxLayout;
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(m_titleBar, 0, Qt::AlignTop);
    outer->addWidget(m_label, 0, Qt::AlignLeft);
    outer->addLayout(inner, FieldStretch);
    outer->addWidget(m_buttonBox, 0, Qt::AlignRight | Qt::AlignBottom);
    setLayout(outer);
    update();

    // A person expects to type at once.
    field->setFocus();
}

/// Runs the dialog; true when it was accepted. Tells `cancelled`, if there is one, the opposite.
bool OxInputDialog::run(bool* cancelled)
{
    const bool accepted = exec() == Accepted;
    if (cancelled != nullptr) {
        *cancelled = !accepted;
    }
    return accepted;
}

#include "moc_oxinputdialog.cpp"
