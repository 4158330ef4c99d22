// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "commandline.h"

#include "console.h"

#include <QCommandLineParser>

#include <algorithm>
#include <climits>

namespace {

struct Option
{
    const char* name;
    const char* letter; ///< "" for none
    const char* value; ///< what its value is called; "" for none
    const char* description;
};

const Option Options[] {
    { "category", "c", "NAME", "only the symbols of this category" },
    { "force", "f", "", "overwrite files" },
    { "names", "", "", "arguments are names, each for all symbols called so" },
    { "quiet", "q", "", "no progress and no report, only errors" },
    { "thumbnails", "", "", "the thumbnails, as PNG, instead of the drawings" },
    { "verbose", "v", "", "also report the symbols that were there before" },
    { "help", "h", "", "print this text and exit" },
    { "version", "", "", "print the version and exit" },
};

struct Command
{
    const char* name;
    const char* arguments;
    int least; ///< arguments
    int most;
    const char* options; ///< their names, separated by blanks
    const char* description;
};

const Command Commands[] {
    { "update", "DB FOLDER", 2, 2, "quiet verbose",
      "Adds the new drawings of a folder: each subfolder is a category, each\n"
      "\"*.svg\" file in it a symbol. Makes the library if there is none.\n"
      "Reports what was added and what will not look as it was drawn." },
    { "list", "DB", 1, 1, "category", "Prints id, category and name of every symbol." },
    { "search", "DB TEXT", 2, 2, "category",
      "The same for the symbols with TEXT in their name or in a tag." },
    { "export", "DB FOLDER", 2, 2, "category force quiet thumbnails",
      "Writes every drawing as FOLDER/CATEGORY/NAME.svg, which \"update\"\n"
      "reads." },
    { "check", "DB", 1, 1, "quiet",
      "Looks for damage: tables, the integrity of the file, thumbnails that\n"
      "are no pictures; and reports blank ones." },
    { "remove", "DB ID...", 2, INT_MAX, "names", "Removes symbols: all of those named, or none." },
};

const Command* commandOf(const QString& name)
{
    const auto* found =
        std::find_if(std::begin(Commands), std::end(Commands),
                     [&](const Command& command) { return name == QLatin1String(command.name); });
    return found == std::end(Commands) ? nullptr : found;
}

bool takesOption(const Command& command, const QString& option)
{
    return QString::fromLatin1(command.options).split(QLatin1Char(' ')).contains(option);
}

/// What is wrong with what the parser found; empty if nothing is.
QString mistakeOf(const QStringList& words, const QSet<QString>& options)
{
    if (words.isEmpty()) {
        return QStringLiteral("no command given");
    }
    const Command* command = commandOf(words.constFirst());
    if (command == nullptr) {
        return QStringLiteral("there is no command \"%1\"")
            .arg(Console::printable(words.constFirst()));
    }
    for (const QString& option : options) {
        if (!takesOption(*command, option)) {
            return QStringLiteral("\"%1\" takes no option --%2").arg(words.constFirst(), option);
        }
    }
    const qsizetype count = words.size() - 1;
    if (count < command->least || count > command->most) {
        return QStringLiteral("usage: symbollibrary %1 %2")
            .arg(words.constFirst(), QString::fromLatin1(command->arguments));
    }
    return {};
}

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    for (const Option& option : Options) {
        QStringList names { QString::fromLatin1(option.name) };
        if (*option.letter != '\0') {
            names.append(QString::fromLatin1(option.letter));
        }
        parser.addOption({ names, QString(), QString::fromLatin1(option.value) });
    }
    const bool isParsed = parser.parse(arguments);

    CommandLine line;
    QSet<QString> options;
    for (const Option& option : Options) {
        if (parser.isSet(QString::fromLatin1(option.name))) {
            options.insert(QString::fromLatin1(option.name));
        }
    }
    const QStringList words = parser.positionalArguments();
    for (const char* wish : { "help", "version" }) {
        if (isParsed && options.contains(QLatin1String(wish))) {
            line.command = QString::fromLatin1(wish);
            return line;
        }
    }
    QString mistake = isParsed ? mistakeOf(words, options) : parser.errorText();
    if (!parser.unknownOptionNames().isEmpty()) {
        mistake = QStringLiteral("there is no option \"%1\"")
                      .arg(Console::printable(parser.unknownOptionNames().constFirst()));
    }
    if (!mistake.isEmpty()) {
        Console::complain(mistake);
        Console::complain(QStringLiteral("see symbollibrary --help"));
        return line;
    }
    line.command = words.constFirst();
    line.arguments = words.mid(1);
    line.flags = options;
    if (parser.isSet(QStringLiteral("category"))) {
        // Empty is a name as well, which no category has.
        line.category = QLatin1String("") + parser.value(QStringLiteral("category"));
    }
    return line;
}

QString CommandLine::help()
{
    QString text = QStringLiteral("Usage: symbollibrary COMMAND [OPTION...] ARGUMENT...\n"
                                  "Maintains symbol libraries: SVG symbols in an SQLite file DB.\n"
                                  "\n"
                                  "Commands:\n");
    for (const Command& command : Commands) {
        QString description = QString::fromLatin1(command.description);
        description.replace(QLatin1Char('\n'), QLatin1String("\n      "));
        text += QStringLiteral("  %1 %2\n      %3\n")
                    .arg(QString::fromLatin1(command.name), QString::fromLatin1(command.arguments),
                         description);
    }
    text += QLatin1String("\nOptions:\n");
    for (const Option& option : Options) {
        QString names = *option.letter == '\0'
            ? QString()
            : QStringLiteral("-%1, ").arg(QLatin1String(option.letter));
        names += QStringLiteral("--%1").arg(QLatin1String(option.name));
        if (*option.value != '\0') {
            names += QLatin1Char(' ') + QString::fromLatin1(option.value);
        }
        QStringList users;
        for (const Command& command : Commands) {
            if (takesOption(command, QString::fromLatin1(option.name))) {
                users.append(QString::fromLatin1(command.name));
            }
        }
        text +=
            QStringLiteral("  %1 %2").arg(names, -21).arg(QString::fromLatin1(option.description));
        text += users.isEmpty() ? QStringLiteral("\n")
                                : QStringLiteral(" (%1)\n").arg(users.join(QLatin1String(", ")));
    }
    text += QLatin1String(
        "\n"
        "\"--\" ends the options. Names are printed with \"\\n\" for a line break, \"\\t\" for a tab,\n"
        "\"\\xHH\" for other control characters and \"\\\\\" for a backslash.\n"
        "\n"
        "Exit code: 0 done; 1 something failed or is damaged, or nothing was found; 2 wrong usage.");
    return text;
}
