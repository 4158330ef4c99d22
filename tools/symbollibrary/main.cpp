// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "commands.h"
#include "console.h"

#include <QGuiApplication>
#include <QHash>
#include <QLoggingCategory>

#include <clocale>
#include <cstring>

#include <langinfo.h>

namespace {

/// What Qt needs to know before it starts: no display is needed, and names are UTF-8 even where the
/// environment says nothing about it.
void prepareEnvironment()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    setlocale(LC_CTYPE, "");
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) {
        qputenv("LC_ALL", "C.UTF-8");
    }
}

int run(const CommandLine& line)
{
    static const QHash<QString, int (*)(const CommandLine&)> commands {
        { QStringLiteral("update"), Commands::update },
        { QStringLiteral("list"), Commands::list },
        { QStringLiteral("search"), Commands::search },
        { QStringLiteral("export"), Commands::exportSymbols },
        { QStringLiteral("check"), Commands::check },
        { QStringLiteral("remove"), Commands::remove },
    };
    if (line.command == QLatin1String("help")) {
        Console::print(CommandLine::help());
        return Console::Success;
    }
    if (line.command == QLatin1String("version")) {
        Console::print(QStringLiteral("symbollibrary " VERSION));
        return Console::Success;
    }
    const auto command = commands.value(line.command);
    return command == nullptr ? Console::UsageError : command(line);
}

} // namespace

int main(int argc, char* argv[])
{
    prepareEnvironment();
    // What a person has to know, the commands say; QT_LOGGING_RULES brings the rest back.
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    const QGuiApplication application(argc, argv);
    const int exitCode = run(CommandLine::parse(QCoreApplication::arguments()));
    return Console::finish() ? exitCode : Console::Failure;
}
