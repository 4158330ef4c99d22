// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "snippets.h"

#include <QFile>
#include <QStringList>

#include <algorithm>

namespace {

int indentation(const QString& line)
{
    const auto text =
        std::find_if_not(line.begin(), line.end(), [](QChar c) { return c == QLatin1Char(' '); });
    return int(text - line.begin());
}

/// The lines without the indentation that all of them have.
QStringList outdented(QStringList lines)
{
    int common = std::numeric_limits<int>::max();
    for (const QString& line : std::as_const(lines)) {
        if (!line.trimmed().isEmpty()) {
            common = std::min(common, indentation(line));
        }
    }
    for (QString& line : lines) {
        line = line.mid(std::min(common, indentation(line)));
    }
    return lines;
}

} // namespace

QString Gallery::extractSnippet(const QString& source, const QString& name)
{
    const QString mark = QStringLiteral("//! [%1]").arg(name);
    QStringList snippet;
    QStringList part;
    bool inside = false;
    const QStringList all = source.split(QLatin1Char('\n'));
    for (const QString& line : all) {
        if (line.trimmed() == mark) {
            snippet += outdented(part);
            part.clear();
            inside = !inside;
        } else if (inside) {
            part.append(line);
        }
    }
    return snippet.join(QLatin1Char('\n'));
}

QString Gallery::snippet(const QString& path, const QString& name)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? extractSnippet(QString::fromUtf8(file.readAll()), name)
                                      : QString();
}
