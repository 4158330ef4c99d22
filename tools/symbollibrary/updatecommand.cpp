// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "console.h"
#include "library.h"
#include "remarks.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

using Step = SymbolDatabaseModel::UpdateStep;

QString nameOf(const QString& category, const QString& name)
{
    return Console::printable(category + QLatin1Char('/') + name);
}

bool isReadableFolder(const QString& folder)
{
    const QFileInfo info(folder);
    QString problem;
    if (!info.exists()) {
        problem = QStringLiteral("no such folder");
    } else if (!info.isDir()) {
        problem = QStringLiteral("not a folder");
    } else if (!QDir(folder).isReadable()) {
        problem = QStringLiteral("cannot be read");
    } else {
        return true;
    }
    Console::complain(Console::printable(folder) + QStringLiteral(": ") + problem);
    return false;
}

/// Why a drawing could not be added; `messages` are the model's.
QString reasonOf(const QString& path, const QStringList& messages)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) {
        return file.errorString();
    }
    return file.size() == 0 ? QStringLiteral("is empty") : messages.join(QLatin1String("; "));
}

/// One update, and what is said about it.
class UpdateRun
{
public:
    UpdateRun(Library& library, QString folder, const CommandLine& line)
        : m_library(library)
        , m_folder(std::move(folder))
        , m_isQuiet(line.has("quiet"))
        , m_isVerbose(line.has("verbose"))
    { }

    /// False if the library is as it was.
    bool run();
    void report();

private:
    void follow(const Step& step);
    void inspectNewSymbols();

    Library& m_library;
    const QString m_folder;
    const bool m_isQuiet;
    const bool m_isVerbose;

    Progress m_progress { QStringLiteral("Adding") };
    QStringList m_formerCategories;
    int m_lastFormerId = 0;
    QList<Step> m_added;
    QList<Step> m_known;
    int m_doubtful = 0;
};

bool UpdateRun::run()
{
    m_formerCategories = m_library.model().getCategoriesWhileOpen();
    const bool isRead = m_library.forEachRow(
        QStringLiteral("SELECT max(Id) FROM Image"),
        [this](const QSqlQuery& row) { m_lastFormerId = row.value(0).toInt(); });
    m_library.close();
    if (!isRead) {
        return false;
    }

    SymbolDatabaseModel& model = m_library.model();
    model.setUpdateObserver([this](const Step& step) { follow(step); });
    m_library.holdMessages(true);
    const bool isDone = model.updateDatabase(m_folder);
    m_library.holdMessages(false);
    model.close();
    Progress::clear();
    const QStringList messages = m_library.takeMessages();
    for (const QString& message : messages) {
        m_library.complain(message);
    }
    return isDone;
}

void UpdateRun::follow(const Step& step)
{
    switch (step.outcome) {
    case Step::Added:
        m_added.append(step);
        break;
    case Step::Known:
        m_known.append(step);
        break;
    case Step::Failed: {
        const QString path = QDir(m_folder).filePath(step.category + QLatin1Char('/') + step.name);
        Console::complain(Console::printable(path) + QStringLiteral(": ")
                          + reasonOf(path, m_library.takeMessages()));
        break;
    }
    }
    if (!m_isQuiet) {
        m_progress.show(step.done, step.total);
    }
}

void UpdateRun::report()
{
    if (!m_library.open(Library::Read)) {
        return;
    }
    const QStringList categories = m_library.model().getCategoriesWhileOpen();
    int addedCategories = 0;
    for (const QString& category : categories) {
        if (!m_formerCategories.contains(category)) {
            ++addedCategories;
            Console::print(QStringLiteral("added category: ") + Console::printable(category));
        }
    }
    for (const Step& step : std::as_const(m_added)) {
        Console::print(QStringLiteral("added: ") + nameOf(step.category, step.name));
    }
    if (m_isVerbose) {
        for (const Step& step : std::as_const(m_known)) {
            Console::print(QStringLiteral("existing: ") + nameOf(step.category, step.name));
        }
    }
    inspectNewSymbols();
    Console::print(QStringLiteral("%1 categories added, %2 symbols added, %3 existing; %4 of the "
                                  "added may not look as drawn")
                       .arg(addedCategories)
                       .arg(m_added.size())
                       .arg(m_known.size())
                       .arg(m_doubtful));
}

/// Reports each new symbol that does not look as it was drawn.
void UpdateRun::inspectNewSymbols()
{
    Progress progress(QStringLiteral("Inspecting"));
    qsizetype done = 0;
    m_library.forEachRow(
        QStringLiteral("SELECT Category.Name, Image.Name, Thumbnail, Data FROM Image "
                       "LEFT JOIN Category ON Image.CategoryId = Category.Id WHERE Image.Id > %1")
            .arg(m_lastFormerId),
        [&](const QSqlQuery& row) {
            const QString remarks =
                remarksOn(row.value(2).toByteArray(), row.value(3).toByteArray());
            if (!remarks.isEmpty()) {
                ++m_doubtful;
                Console::print(QStringLiteral("doubtful: ")
                               + nameOf(row.value(0).toString(), row.value(1).toString())
                               + QStringLiteral(": ") + remarks);
            }
            progress.show(++done, m_added.size());
        });
}

} // namespace

int Commands::update(const CommandLine& line)
{
    const QString folder = line.arguments.at(1);
    if (!isReadableFolder(folder)) {
        return Console::Failure;
    }
    Library library(line.arguments.at(0));
    const bool isNew = !QFileInfo::exists(library.path());
    if (isNew && !library.create()) {
        QFile::remove(library.path()); // a file without all the tables would be refused next time
        return Console::Failure;
    }
    if (!library.open(Library::Write)) {
        return Console::Failure;
    }
    UpdateRun update(library, folder, line);
    if (!update.run()) {
        if (isNew) {
            QFile::remove(library.path());
        }
        library.complain(QStringLiteral("nothing was changed"));
        return Console::Failure;
    }
    if (!line.has("quiet")) {
        update.report();
    }
    return library.hasFailed() ? Console::Failure : Console::Success;
}
