// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QLocale>

/*!
 * \brief Makes the library speak the person's language.
 *
 * Call it once, when the application object is there and before the first window is made:
 *
 * \code
 * OxSingleInstanceApplication application(argc, argv, channel);
 * OxTranslation::install();
 * \endcode
 *
 * and again whenever the person chooses another language:
 *
 * \code
 * void SettingsPage::setLanguage(const QString& code)
 * {
 *     QLocale::setDefault(QLocale(code)); // numbers, dates and sizes
 *     OxTranslation::install(); // the texts of the library and of Qt
 *     QApplication::removeTranslator(&m_translator); // the application's own
 *     if (m_translator.load(QLocale(), "editor", "_", ":/translations")) {
 *         QApplication::installTranslator(&m_translator);
 *     }
 * }
 * \endcode
 *
 * Widgets that are alive read their texts again, as Qt's own do: each gets a
 * QEvent::LanguageChange as soon as the event loop runs, dialogs inside exec() included. What the
 * application has set (titles, labels, items) stays as it is; set it again in the changeEvent() of
 * the widget that has set it. The names of a file dialog's favourite folders are the person's and
 * stay, too.
 *
 * The translations are embedded in the library: German (de), French (fr), Spanish (es),
 * Japanese (ja) and Arabic (ar). With the last, the application is laid out from right to left,
 * unless it called QGuiApplication::setLayoutDirection() itself.
 *
 * An application that words a text of the library differently has a translator of its own for that
 * text, in the library's context, and installs it after each of these calls: Qt asks the translator
 * that was installed last first.
 */
class UTILITYWIDGETS_EXPORT OxTranslation
{
public:
    /*!
     * Translates the texts of the library and those of the standard buttons of message boxes. Where
     * Qt's own file of that language ("qtbase_<language>.qm", in QLibraryInfo::TranslationsPath) is
     * installed on the device, the rest of Qt's texts, such as the menus of text fields, speak it,
     * too. Replaces what an earlier call has installed. The translators belong to the application
     * object and are deleted with it.
     *
     * Of the languages that `locale` prefers, in the order of QLocale::uiLanguages(), the first
     * that is English or translated counts. English, which the texts are written in, has no
     * translator: the call removes what an earlier one has installed.
     *
     * Returns true when the library's texts are in one of the preferred languages now. Returns
     * false when none of them is translated: the texts are English then; and when there is no
     * application object yet: nothing was done.
     *
     * To be called on the GUI thread only. A call for the language that is installed already does
     * nothing.
     */
    static bool install(const QLocale& locale = QLocale());
};
