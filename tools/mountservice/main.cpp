// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "endsignals.h"
#include "mountservice.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

namespace {

constexpr int Failure = 1;
constexpr int UsageError = 2;

int complain(const QString& line, int exitCode)
{
    std::fprintf(stderr, "mountservice: %s\n", qPrintable(line));
    return exitCode;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const EndSignals endSignals;
    QCoreApplication::setApplicationVersion(QStringLiteral(VERSION));
    QObject::connect(&endSignals, &EndSignals::received, &application, &QCoreApplication::quit,
                     Qt::QueuedConnection);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Tells file dialogs which removable media are mounted, from now until it "
                       "gets SIGTERM or SIGINT."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addPositionalArgument(
        QStringLiteral("folder"),
        QStringLiteral("What is mounted below it is a medium, for example /media."),
        QStringLiteral("folder..."));
    if (!parser.parse(QCoreApplication::arguments())) {
        return complain(parser.errorText(), UsageError);
    }
    if (parser.isSet(help) || parser.isSet(QStringLiteral("help-all"))) {
        parser.showHelp();
    }
    if (parser.isSet(version)) {
        parser.showVersion();
    }
    if (parser.positionalArguments().isEmpty()) {
        return complain(QStringLiteral("no folder given; see --help"), UsageError);
    }

    const MountService service(parser.positionalArguments());
    if (!service.isWatching()) {
        return complain(QStringLiteral("/proc/self/mountinfo: ") + service.error(), Failure);
    }
    return QCoreApplication::exec();
}
