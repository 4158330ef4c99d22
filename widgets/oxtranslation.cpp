// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxtranslation.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

namespace {

/// Qt asks the translators for the direction of the application's layout by this text. Our files
/// hold it as well: where Qt's own are not installed, Arabic still runs from right to left.
[[maybe_unused]] constexpr auto LayoutDirection =
    QT_TRANSLATE_NOOP3("QGuiApplication", "QT_LAYOUT_DIRECTION",
                       "LTR, or RTL for languages that are written from right to left.");

/// The standard buttons of message boxes: ours, so that they speak where Qt's files are not there.
/// In Arabic they have no ampersand, because Qt tears the letter behind it off the rest of the word.
[[maybe_unused]] constexpr const char* StandardButtons[] {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Save"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Save All"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Open"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Yes to &All"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&No"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "N&o to All"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Abort"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Retry"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Ignore"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Close"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Discard"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Help"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Apply"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Reset"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Restore Defaults"),
};

/// The language that the texts are written in.
QString sourceLanguage()
{
    return QStringLiteral("en");
}

QString fileOf(const QString& language)
{
    return QStringLiteral(":/UtilityWidgets/translations/utilitywidgets_%1.qm").arg(language);
}

/// The first language of `locale` that can be spoken; empty when there is none.
QString languageOf(const QLocale& locale)
{
    const QStringList names = locale.uiLanguages();
    for (const QString& name : names) {
        QString language = name.section(QLatin1Char('-'), 0, 0);
        // The locale "C" counts as English, as it does for Qt.
        if (language == QLatin1String("C") || language == sourceLanguage()) {
            return sourceLanguage();
        }
        if (QFile::exists(fileOf(language))) {
            return language;
        }
    }
    return {};
}

// The translators are the application object's children and found again by these names, so that
// an application object that is made later in the same process starts without any.
constexpr QLatin1String ToolkitName("OxTranslation_Qt");
constexpr QLatin1String LibraryName("OxTranslation_UtilityWidgets");

QTranslator* installed(QLatin1String name)
{
    return QCoreApplication::instance()->findChild<QTranslator*>(name, Qt::FindDirectChildrenOnly);
}

/// Puts the translations of `file` in the place of those installed under `name`. A file that is
/// missing, or no file, puts nothing there.
void replace(QLatin1String name, const QString& file)
{
    const std::unique_ptr<QTranslator> previous(installed(name));
    if (!file.isEmpty()) {
        auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
        translator->setObjectName(name);
        if (translator->load(file)) {
            QCoreApplication::installTranslator(translator.release());
        }
    }
    // The previous one leaves only now: if there were none in between, a layout from right to left
    // would turn around and back.
}

} // namespace

bool OxTranslation::install(const QLocale& locale)
{
    if (QCoreApplication::instance() == nullptr) {
        return false;
    }
    const QString language = languageOf(locale);
    const QString wanted = language == sourceLanguage() ? QString() : language;
    const QTranslator* current = installed(LibraryName);
    if (wanted != (current != nullptr ? current->language() : QString())) {
        replace(ToolkitName,
                wanted.isEmpty() ? QString()
                                 : QLibraryInfo::path(QLibraryInfo::TranslationsPath)
                        + QStringLiteral("/qtbase_%1.qm").arg(wanted));
        replace(LibraryName, wanted.isEmpty() ? QString() : fileOf(wanted));
    }
    return !language.isEmpty();
}
