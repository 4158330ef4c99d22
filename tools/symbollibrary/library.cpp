// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "library.h"

#include "console.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>

#include <algorithm>

namespace {

const QLatin1String AllSymbols("SELECT Image.Id, Category.Name, Image.Name FROM Image "
                               "LEFT JOIN Category ON Image.CategoryId = Category.Id");

} // namespace

Library::Library(QString path)
    : m_path(std::move(path))
{
    m_model.setDatabasePath(m_path);
    QObject::connect(&m_model, &SymbolDatabaseModel::errorOccured, &m_model,
                     [this](const QString& error) {
                         if (m_isHolding) {
                             m_messages.append(error);
                         } else {
                             complain(error);
                         }
                     });
}

Library::~Library()
{
    close();
}

bool Library::create()
{
    return m_model.createSchema();
}

bool Library::open(Access access, const QString& category)
{
    const QFileInfo file(m_path);
    if (!file.exists()) {
        complain(QStringLiteral("no such file"));
        return false;
    }
    if (!file.isFile()) {
        complain(QStringLiteral("not a file"));
        return false;
    }
    m_isOpen = true; // to be closed also when it cannot be opened
    if (!m_model.open(access == Read)) {
        return false;
    }
    // The list of tables is empty also where it cannot be read.
    if (!forEachRow(QStringLiteral("SELECT count(*) FROM sqlite_master"), [](const auto&) {})) {
        return false;
    }
    const QStringList tables = m_model.database().tables();
    for (const char* table : { "Image", "Tag", "Category", "Image_Tag" }) {
        if (!tables.contains(QLatin1String(table), Qt::CaseInsensitive)) {
            complain(QStringLiteral("not a symbol library: there is no table \"%1\"")
                         .arg(QLatin1String(table)));
            return false;
        }
    }
    if (!category.isNull() && !m_model.getCategoriesWhileOpen().contains(category)) {
        complain(QStringLiteral("no category \"%1\"").arg(Console::printable(category)));
        return false;
    }
    return true;
}

void Library::close()
{
    if (m_isOpen) {
        m_isOpen = false;
        m_model.close();
    }
}

std::optional<QList<Library::Symbol>> Library::symbols(const QString& category)
{
    QList<Symbol> found;
    const bool isRead = forEachRow(AllSymbols, [&](const QSqlQuery& row) {
        const QString itsCategory = row.value(1).toString();
        if (category.isNull() || itsCategory == category) {
            found.append({ row.value(0).toInt(), itsCategory, row.value(2).toString() });
        }
    });
    if (!isRead) {
        return std::nullopt;
    }
    std::sort(found.begin(), found.end(), [](const Symbol& a, const Symbol& b) {
        return std::tie(a.category, a.name, a.id) < std::tie(b.category, b.name, b.id);
    });
    return found;
}

bool Library::forEachRow(const QString& statement, const std::function<void(const QSqlQuery&)>& use)
{
    QSqlQuery query(m_model.database());
    query.setForwardOnly(true);
    if (query.exec(statement)) {
        while (query.next()) {
            use(query);
        }
    }
    if (query.lastError().isValid()) {
        complain(query.lastError().databaseText());
        return false;
    }
    return true;
}

void Library::holdMessages(bool on)
{
    m_isHolding = on;
}

QStringList Library::takeMessages()
{
    return std::exchange(m_messages, {});
}

void Library::complain(const QString& what) const
{
    m_hasFailed = true;
    Console::complain(Console::printable(m_path) + QStringLiteral(": ") + what);
}
