// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "applicationfont.h"
#include "lockwidget.h"
#include "logger.h"
#include "oxtranslation.h"
#include "qcopchannel.h"
#include "stage.h"

#include <QLabel>

namespace Gallery {

namespace {

QLabel* createSample(const QFont& font)
{
    auto* sample = new QLabel(QStringLiteral("Vela Orca 0123"));
    sample->setFont(font);
    return sample;
}

void showApplicationFont(Stage& stage)
{
    //! [ApplicationFont]
    auto* heading = new QLabel(QStringLiteral("Layers"));
    heading->setFont(ApplicationFont::getWidgetFontLarge(true));
    //! [ApplicationFont]
    stage.addWide(QStringLiteral("A heading"), heading);

    using FontFunction = QFont (*)(bool);
    const std::pair<const char*, FontFunction> sizes[] {
        { "Large", ApplicationFont::getWidgetFontLarge },
        { "Normal", ApplicationFont::getWidgetFont },
        { "Small", ApplicationFont::getWidgetFontSmall },
        { "Tiny", ApplicationFont::getWidgetFontTiny },
    };
    stage.setColumns(4);
    for (const auto& [name, font] : sizes) {
        stage.add(QString::fromLatin1(name), createSample(font(false)));
    }
    for (const auto& [name, font] : sizes) {
        stage.add(QString::fromLatin1(name) + QStringLiteral(", bold"), createSample(font(true)));
    }
}

void showCuteMessageLogger(Stage& stage)
{
    const char* const levels[] { "Trace", "Debug", "Info", "Warning", "Error", "Fatal" };
    for (int level = CuteMessageLogger::Trace; level <= CuteMessageLogger::Fatal; ++level) {
        const QString name = QString::fromLatin1(levels[level]);
        stage.addAction(name, [level, name, stage]() mutable {
            //! [CuteMessageLogger]
            CuteMessageLogger(loggerInstance(), level, __FILE__, __LINE__, Q_FUNC_INFO)
                .write("A line of the level %s", qUtf8Printable(name));
            //! [CuteMessageLogger]
            stage.log(name + QStringLiteral(" written to the process's log"));
        });
    }
}

void showOxSingleInstanceApplication(Stage& stage)
{
    auto* explanation = new QLabel(QStringLiteral("A second start brings the running program "
                                                  "forward and ends. The gallery is such a "
                                                  "program."));
    explanation->setWordWrap(true);
    stage.addWide(QStringLiteral("The start of a program"), explanation);
    stage.addAction(QStringLiteral("Start it again"), [stage]() mutable {
        // What a second start does in its constructor, seen from the first.
        QCopChannel::send(QString::fromLatin1(ChannelName), QStringLiteral("raise"));
        stage.log(QStringLiteral("\"raise\" sent: this window is in front"));
    });
}

void showOxTranslation(Stage& stage)
{
    stage.setColumns(2);
    stage.addWide(QStringLiteral("A widget that is alive"), new LockWidget(true, nullptr));
    stage.setColumns(3);
    const std::pair<const char*, const char*> languages[] {
        { "English", "en" }, { "Deutsch", "de" }, { "Français", "fr" },
        { "Español", "es" }, { "日本語", "ja" },  { "العربية", "ar" },
    };
    for (const auto& [name, language] : languages) {
        const QString code = QString::fromLatin1(language);
        stage.addAction(QString::fromUtf8(name), [code, stage]() mutable {
            //! [OxTranslation]
            QLocale::setDefault(QLocale(code)); // numbers, dates and sizes
            const bool isTranslated = OxTranslation::install(); // texts, also of living widgets
            //! [OxTranslation]
            stage.log(QStringLiteral("%1: %2").arg(
                code, QLatin1String(isTranslated ? "translated" : "not translated")));
        });
    }
}

void showQCopChannel(Stage& stage)
{
    auto* last = new QLabel(QStringLiteral("none yet"));
    //! [QCopChannel]
    auto* channel = new QCopChannel(QStringLiteral("Gallery/Mounts"), last);
    QObject::connect(channel, &QCopChannel::received, last, &QLabel::setText);
    //! [QCopChannel]
    stage.addWide(QStringLiteral("Last message received"), last);
    stage.watch(QStringLiteral("Channel"), channel);
    const char* const messages[] { "mounts", "add", "remove" };
    for (const char* message : messages) {
        stage.addAction(QStringLiteral("Send \"%1\"").arg(QLatin1String(message)), [message] {
            //! [QCopChannel]
            QCopChannel::send(QStringLiteral("Gallery/Mounts"), QLatin1String(message),
                              QByteArrayLiteral("/media/stick"));
            //! [QCopChannel]
        });
    }
}

} // namespace

Family platformFamily()
{
    return {
        QStringLiteral("Platform"),
        QStringLiteral(":/gallery/pages/platform.cpp"),
        {
            {
                QStringLiteral("ApplicationFont"),
                QStringLiteral("The four sizes, plain and bold, in which all text is drawn."),
                showApplicationFont,
                {},
            },
            {
                QStringLiteral("CuteMessageLogger"),
                QStringLiteral("Writes a line to the process's log, with its place in the source."),
                showCuteMessageLogger,
                {},
            },
            {
                QStringLiteral("QCopChannel"),
                QStringLiteral("Named channels on which the programs of one user send each other "
                               "messages."),
                showQCopChannel,
                {},
            },
            {
                QStringLiteral("OxTranslation"),
                QStringLiteral(
                    "The language of the library's texts, also while widgets are alive."),
                showOxTranslation,
                {},
            },
            {
                QStringLiteral("OxSingleInstanceApplication"),
                QStringLiteral("The application object of a program that runs at most once."),
                showOxSingleInstanceApplication,
                {},
                QStringLiteral(":/gallery/main.cpp"),
            },
        },
    };
}

} // namespace Gallery
