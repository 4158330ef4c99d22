// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "translating.h"

#include <OxTranslation>

#include <QApplication>
#include <QEvent>
#include <QLabel>

void installPersonsLanguage()
{
    //! [install]
    OxTranslation::install(); // that of QLocale(), which is the person's
    //! [install]
}

//! [change]
void SettingsPage::setLanguage(const QString& code)
{
    QLocale::setDefault(QLocale(code)); // numbers, dates and sizes
    OxTranslation::install(); // the texts of the library
    QApplication::removeTranslator(&m_translator); // or it would be asked twice
    if (m_translator.load(QLocale(), QStringLiteral("editor"), QStringLiteral("_"),
                          QStringLiteral(":/translations"))) {
        QApplication::installTranslator(&m_translator); // the application's own
    }
}
//! [change]

//! [texts]
SettingsPage::SettingsPage(QWidget* parent)
    : QWidget(parent)
    , m_label(new QLabel(this))
{
    setTexts();
}

void SettingsPage::setTexts()
{
    m_label->setText(tr("Language", "Label of a field."));
}

void SettingsPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
    }
    QWidget::changeEvent(event);
}
//! [texts]
