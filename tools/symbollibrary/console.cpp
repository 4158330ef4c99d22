// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "console.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <unistd.h>

namespace {

constexpr char ProgramName[] = "symbollibrary";
/// Milliseconds. More often than this nobody reads it, and a slow terminal would hold us up.
constexpr qint64 BetweenSteps = 100;

bool isProgressShown = false;

/// Of the first line that could not be written; 0 if all could.
int writeError = 0;

void noteWriteError(bool isWritten)
{
    if (!isWritten && writeError == 0) {
        writeError = errno;
    }
}

} // namespace

QString Console::printable(const QString& name)
{
    QString text;
    for (const QChar c : name) {
        if (c == QLatin1Char('\\')) {
            text += QLatin1String("\\\\");
        } else if (c == QLatin1Char('\n')) {
            text += QLatin1String("\\n");
        } else if (c == QLatin1Char('\t')) {
            text += QLatin1String("\\t");
        } else if (c.category() == QChar::Other_Control) {
            text += QStringLiteral("\\x%1").arg(uint(c.unicode()), 2, 16, QLatin1Char('0'));
        } else {
            text += c;
        }
    }
    return text;
}

void Console::print(const QString& line)
{
    Progress::clear();
    const QByteArray bytes = line.toUtf8() + '\n';
    const auto size = size_t(bytes.size());
    noteWriteError(std::fwrite(bytes.constData(), 1, size, stdout) == size);
}

void Console::complain(const QString& line)
{
    Progress::clear();
    noteWriteError(std::fflush(stdout) == 0); // in their order where both are one file
    std::fprintf(stderr, "%s: %s\n", ProgramName, qUtf8Printable(line));
}

bool Console::finish()
{
    noteWriteError(std::fflush(stdout) == 0);
    if (writeError != 0) {
        std::fprintf(stderr, "%s: cannot write the output: %s\n", ProgramName,
                     std::strerror(writeError));
    }
    return writeError == 0;
}

Progress::Progress(QString task)
    : m_task(std::move(task))
    , m_isTerminal(isatty(STDERR_FILENO) == 1)
{ }

Progress::~Progress()
{
    clear();
}

void Progress::show(qsizetype done, qsizetype total)
{
    if (!m_isTerminal || (m_sinceShown.isValid() && m_sinceShown.elapsed() < BetweenSteps)) {
        return;
    }
    m_sinceShown.start();
    isProgressShown = true;
    std::fprintf(stderr, "\r%s %lld of %lld\x1b[K", qUtf8Printable(m_task),
                 static_cast<long long>(done), static_cast<long long>(total));
    std::fflush(stderr);
}

void Progress::clear()
{
    if (isProgressShown) {
        std::fputs("\r\x1b[K", stderr);
        isProgressShown = false;
    }
}
