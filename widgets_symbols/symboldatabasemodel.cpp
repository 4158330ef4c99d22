// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symboldatabasemodel.h"

#include "detachedsync.h"
#include "logger.h"
#include "symbolfolder.h"
#include "symbolitem.h"
#include "symbolstatements.h"
#include "symbolthumbnail.h"

#include <QFile>
#include <QIcon>
#include <QPixmap>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QThread>
#include <QUuid>

#include <algorithm>

namespace {

/// The id of no symbol.
constexpr int NoSymbol = -1;

/// What Qt's driver waits of its own accord, in milliseconds.
constexpr int DriversLockTimeout = 5000;

int toId(const QVariant& value)
{
    bool isNumber = false;
    const int id = value.toInt(&isNumber);
    return isNumber ? id : NoSymbol;
}

QIcon toIcon(const QByteArray& thumbnail)
{
    QPixmap pixmap;
    pixmap.loadFromData(thumbnail);
    return QIcon(pixmap);
}

/// Whether the owner of this thread wants it to end.
bool isInterrupted()
{
    return QThread::currentThread()->isInterruptionRequested();
}

/// A public operation: the database is open for as long as this lives, or could not be opened.
class Session
{
public:
    enum Access { Write, Read };

    Session(SymbolDatabaseModel& model, Access access)
        : m_model(model)
        , m_isOpen(model.open(access == Read))
    { }
    ~Session() { m_model.close(); }
    Q_DISABLE_COPY_MOVE(Session)

    bool isOpen() const { return m_isOpen; }

private:
    SymbolDatabaseModel& m_model;
    const bool m_isOpen;
};

/// A transaction, undone at the end unless it was committed, whatever the outcome of its steps.
class Transaction
{
public:
    explicit Transaction(SymbolDatabaseModel& model)
        : m_model(model)
        , m_isOpen(model.startTransaction())
    { }
    ~Transaction()
    {
        if (m_isOpen) {
            m_model.database().rollback();
        }
    }
    Q_DISABLE_COPY_MOVE(Transaction)

    bool isOpen() const { return m_isOpen; }

    bool commit()
    {
        m_isOpen = false;
        return m_model.endTransaction();
    }

private:
    SymbolDatabaseModel& m_model;
    bool m_isOpen;
};

/// What an update has to do and has done.
struct Update
{
    struct Drawing
    {
        QString category;
        QString name;
    };

    QString folder;
    QStringList addedCategories;
    QList<Drawing> newSymbols;
    QList<Drawing> knownSymbols;

    QString pathOf(const Drawing& drawing) const
    {
        return SymbolFolder::path(folder, drawing.category, drawing.name);
    }
};

QStringList namesOf(const QList<Update::Drawing>& drawings)
{
    QStringList names;
    for (const Update::Drawing& drawing : drawings) {
        names.append(drawing.name);
    }
    return names;
}

void logList(const char* title, const QStringList& names)
{
    CuteMessageLogger(loggerInstance(), CuteMessageLogger::Debug,
                      "widgets_symbols/symboldatabasemodel", __LINE__,
                      "bool SymbolDatabaseModel::updateDatabase(QString)")
        .write("%s%s", title, qUtf8Printable(names.join(QStringLiteral(", "))));
}

} // namespace

class SymbolDatabaseModel::Private
{
public:
    using Values = std::initializer_list<std::pair<QLatin1String, QVariant>>;

    explicit Private(SymbolDatabaseModel* model)
        : q(model)
    { }

    QSqlQuery prepare(const QString& statement, Values values) const;
    bool execute(QSqlQuery& query) const;
    static QString errorString(const QSqlQuery& query, const QSqlError& error);
    bool change(const QString& statement, Values values) const;
    QStringList firstColumn(const QString& statement) const;
    QByteArray bytes(const QString& statement, Values values) const;
    int knownCategory(const QString& category) const;
    QSet<QString> symbolNames() const;
    Update planUpdate(const QString& folder) const;
    bool carryOut(const Update& update) const;

    /// Runs `steps` in a transaction, which is committed whatever they return.
    template <typename Steps> bool inTransaction(Steps steps) const
    {
        Transaction transaction(*q);
        if (!transaction.isOpen()) {
            return false;
        }
        const bool done = steps();
        return transaction.commit() && done;
    }

    SymbolDatabaseModel* const q;
    QString databasePath;
    int lockTimeout = DriversLockTimeout;
    const QString connectionName = QUuid::createUuid().toString();
    UpdateObserver updateObserver;
};

/// A query that keeps no row longer than it is needed. If the statement is no good, executing it
/// fails.
QSqlQuery SymbolDatabaseModel::Private::prepare(const QString& statement, Values values) const
{
    QSqlQuery query(q->database());
    query.setForwardOnly(true);
    query.prepare(statement);
    for (const auto& [placeholder, value] : values) {
        query.bindValue(placeholder, value);
    }
    return query;
}

bool SymbolDatabaseModel::Private::execute(QSqlQuery& query) const
{
    if (isInterrupted()) {
        return false;
    }
    // If it could not be prepared, that error tells more than the one of executing it nevertheless.
    const QSqlError preparation = query.lastError();
    if (query.exec()) {
        return true;
    }
    Q_EMIT q->errorOccured(
        errorString(query, preparation.isValid() ? preparation : query.lastError()));
    return false;
}

QString SymbolDatabaseModel::Private::errorString(const QSqlQuery& query, const QSqlError& error)
{
    // lastQuery() and not executedQuery(), which is empty for a statement that cannot be prepared.
    return tr("Query:[%1] Failed With:[%2]",
              "Error message: A query is used to extract data from the database.")
        .arg(query.lastQuery(), error.text());
}

int SymbolDatabaseModel::Private::knownCategory(const QString& category) const
{
    const int id = q->getCategoryIdWhileOpen(category);
    if (id == NoSymbol) {
        Q_EMIT q->errorOccured(tr("Unknown category: [%1]",
                                  "Error message: Categories are child tables of a parent table in "
                                  "a database.")
                                   .arg(category));
    }
    return id;
}

bool SymbolDatabaseModel::Private::change(const QString& statement, Values values) const
{
    QSqlQuery query = prepare(statement, values);
    return execute(query);
}

QStringList SymbolDatabaseModel::Private::firstColumn(const QString& statement) const
{
    QStringList texts;
    QSqlQuery query = prepare(statement, {});
    if (execute(query)) {
        while (query.next()) {
            texts.append(query.value(0).toString());
        }
    }
    return texts;
}

/// The first column of the first row, read in a session of its own.
QByteArray SymbolDatabaseModel::Private::bytes(const QString& statement, Values values) const
{
    const Session session(*q, Session::Read);
    if (!session.isOpen()) {
        return {};
    }
    QSqlQuery query = prepare(statement, values);
    return execute(query) && query.next() ? query.value(0).toByteArray() : QByteArray();
}

/// Looking up one name after the other would read the whole table each time, thumbnails and
/// documents included. A failure is not reported, as by the look-up.
QSet<QString> SymbolDatabaseModel::Private::symbolNames() const
{
    QSet<QString> names;
    QSqlQuery query = prepare(SymbolStatements::SymbolNames, {});
    if (query.exec()) {
        while (query.next()) {
            names.insert(query.value(0).toString());
        }
    }
    return names;
}

/// Adds the categories that are new and finds the symbols that are.
Update SymbolDatabaseModel::Private::planUpdate(const QString& folder) const
{
    Update update;
    update.folder = folder;
    const QStringList categories = SymbolFolder::categories(folder);
    const QStringList known = q->getCategoriesWhileOpen();
    const QSet<QString> knownCategories(known.begin(), known.end());
    for (const QString& category : categories) {
        if (!knownCategories.contains(category)) {
            q->addCategoryWhileOpen(category);
            update.addedCategories.append(category);
        }
    }

    QSet<QString> names = symbolNames();
    for (const QString& category : categories) {
        const QStringList files = SymbolFolder::files(folder, category);
        for (const QString& file : files) {
            if (names.contains(file)) {
                update.knownSymbols.append({ category, file });
            } else {
                names.insert(file);
                update.newSymbols.append({ category, file });
            }
        }
    }
    return update;
}

/// Adds the new symbols and tells the observer of all.
bool SymbolDatabaseModel::Private::carryOut(const Update& update) const
{
    const int total = int(update.knownSymbols.size() + update.newSymbols.size());
    int done = 0;
    const auto tell = [&](const Update::Drawing& drawing, UpdateStep::Outcome outcome) {
        ++done;
        if (updateObserver) {
            updateObserver({ drawing.category, drawing.name, outcome, done, total });
        }
    };
    for (const Update::Drawing& drawing : update.knownSymbols) {
        tell(drawing, UpdateStep::Known);
    }

    QStringList paths;
    for (const Update::Drawing& drawing : update.newSymbols) {
        paths.append(update.pathOf(drawing));
    }
    SymbolReader reader(paths);
    bool areAdded = true;
    for (const Update::Drawing& drawing : update.newSymbols) {
        const SymbolReader::Symbol read = reader.next();
        // What could not be read is tried again the slow way, which reports why.
        const bool isAdded = read.thumbnail.isNull()
            ? q->addSymbolWhileOpenTransaction(update.pathOf(drawing), drawing.name,
                                               drawing.category, QStringList())
            : q->addSymbolWhileOpenTransaction(read.data, read.thumbnail, drawing.name,
                                               drawing.category);
        areAdded = isAdded && areAdded;
        tell(drawing, isAdded ? UpdateStep::Added : UpdateStep::Failed);
    }
    return areAdded;
}

SymbolDatabaseModel::SymbolDatabaseModel(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this))
{
    setObjectName(QStringLiteral("SymbolDatabaseModel"));
}

SymbolDatabaseModel::~SymbolDatabaseModel() = default;

QString SymbolDatabaseModel::databasePath() const
{
    return d->databasePath;
}

void SymbolDatabaseModel::setDatabasePath(const QString& path)
{
    if (path == d->databasePath) {
        return;
    }
    d->databasePath = path;
    Q_EMIT databasePathChanged(path);
}

// --- Connection -----------------------------------------------------------------------------------

QString SymbolDatabaseModel::connectionName()
{
    return d->connectionName;
}

QSqlDatabase SymbolDatabaseModel::database()
{
    return QSqlDatabase::database(d->connectionName);
}

void SymbolDatabaseModel::setLockTimeout(int milliseconds)
{
    d->lockTimeout = std::max(0, milliseconds);
}

bool SymbolDatabaseModel::open(bool readOnly)
{
    if (readOnly && !QFile::exists(d->databasePath)) {
        return false;
    }
    if (QSqlDatabase::contains(d->connectionName)) {
        Q_EMIT errorOccured(
            tr("[%1]: Connection already exists, possible failure to remove connection",
               "Error message: Database is already connected.")
                .arg(d->connectionName));
        return false;
    }

    QSqlDatabase connection =
        QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), d->connectionName);
    connection.setDatabaseName(d->databasePath);
    QStringList options;
    if (readOnly) {
        options.append(QStringLiteral("QSQLITE_OPEN_READONLY"));
    }
    if (d->lockTimeout != DriversLockTimeout) {
        options.append(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(d->lockTimeout));
    }
    connection.setConnectOptions(options.join(QLatin1Char(';')));
    if (!connection.open()) {
        Q_EMIT errorOccured(tr("Failed to open database connection:[%1]",
                               "Error message: unable to connect to a database file.")
                                .arg(connection.lastError().text()));
        return false;
    }
    // Off by default in every connection; without it nothing cascades.
    if (!QSqlQuery(connection).exec(SymbolStatements::EnableForeignKeys)) {
        Q_EMIT errorOccured(tr("Failed to enable foreign key support",
                               "Error message: database is unable to support a foreign key that "
                               "identifies a row of another table."));
    }
    return true;
}

void SymbolDatabaseModel::close()
{
    {
        // Not database(): a connection that could not be opened would be tried once more.
        QSqlDatabase connection = QSqlDatabase::database(d->connectionName, false);
        if (connection.isValid() && connection.isOpen()) {
            connection.close();
        }
    }
    if (QSqlDatabase::contains(d->connectionName)) {
        QSqlDatabase::removeDatabase(d->connectionName);
    } else {
        Q_EMIT errorOccured(tr("[%1]: Connection does not exist, can not close database",
                               "Error message: closing a database connection.")
                                .arg(d->connectionName));
    }
    startDetachedSync();
}

bool SymbolDatabaseModel::startTransaction()
{
    QSqlDatabase connection = database();
    if (connection.transaction()) {
        return true;
    }
    Q_EMIT errorOccured(tr("Failed to start transaction:[%1]",
                           "Error message: A transaction is a single unit of work for data "
                           "retrieval or updates.")
                            .arg(connection.lastError().text()));
    return false;
}

bool SymbolDatabaseModel::endTransaction()
{
    QSqlDatabase connection = database();
    if (connection.commit()) {
        startDetachedSync();
        return true;
    }
    Q_EMIT errorOccured(tr("Failed to commit transaction:[%1]",
                           "Error message: A transaction is a single unit of work for data "
                           "retrieval or updates.")
                            .arg(connection.lastError().text()));
    connection.rollback();
    return false;
}

QString SymbolDatabaseModel::queryErrorString(QSqlQuery query)
{
    return Private::errorString(query, query.lastError());
}

// --- Schema ---------------------------------------------------------------------------------------

bool SymbolDatabaseModel::createSchema()
{
    const Session session(*this, Session::Write);
    return session.isOpen() && d->inTransaction([this] {
        return std::all_of(std::begin(SymbolStatements::Schema), std::end(SymbolStatements::Schema),
                           [this](QLatin1String statement) { return d->change(statement, {}); });
    });
}

bool SymbolDatabaseModel::isValidSchema()
{
    const Session session(*this, Session::Read);
    if (!session.isOpen()) {
        return false;
    }
    const QLatin1String names[] { QLatin1String("Image"), QLatin1String("Tag"),
                                  QLatin1String("Category"), QLatin1String("Image_Tag") };
    return std::all_of(std::begin(names), std::end(names), [this](QLatin1String name) {
        return database().tables(QSql::Tables).contains(name, Qt::CaseInsensitive);
    });
}

// --- Symbols from files ---------------------------------------------------------------------------

QByteArray SymbolDatabaseModel::getRawDataFromImagePath(const QString& imagePath)
{
    QFile file(imagePath);
    if (!file.exists()) {
        Q_EMIT errorOccured(
            tr("Image file path does not exist: [%1]", "Error message: trying to open symbol file.")
                .arg(imagePath));
        return {};
    }
    if (!file.open(QIODevice::ReadOnly)) {
        Q_EMIT errorOccured(
            tr("Failed to open image file: [%1]", "Error message: trying to open symbol file.")
                .arg(imagePath));
        return {};
    }
    return file.readAll();
}

QByteArray SymbolDatabaseModel::getThumbnailDataFromRawData(const QByteArray& rawData)
{
    if (rawData.isEmpty()) {
        Q_EMIT errorOccured(tr("Raw SVG Data is null, can not create thumbnail",
                               "Error message: Unable to create a file thumbnail using the empty "
                               "unprocessed image data."));
        return {};
    }
    return renderSymbolThumbnail(rawData);
}

// --- Ids by name ----------------------------------------------------------------------------------

int SymbolDatabaseModel::getRowIdFromTableWhileOpen(const QString& table, const QString& name)
{
    QSqlQuery query = d->prepare(QString(SymbolStatements::IdByName).arg(table),
                                 { { QLatin1String(":Name"), name } });
    return d->execute(query) && query.next() ? toId(query.value(0)) : NoSymbol;
}

int SymbolDatabaseModel::getTagIdWhileOpen(const QString& tag)
{
    return getRowIdFromTableWhileOpen(QStringLiteral("Tag"), tag);
}

int SymbolDatabaseModel::getCategoryIdWhileOpen(const QString& category)
{
    return getRowIdFromTableWhileOpen(QStringLiteral("Category"), category);
}

int SymbolDatabaseModel::getSymbolIDFromNameWhileOpen(const QString& name)
{
    QSqlQuery query =
        d->prepare(SymbolStatements::SymbolIdByName, { { QLatin1String(":name"), name } });
    return query.exec() && query.next() ? toId(query.value(0)) : NoSymbol;
}

// --- Adding and removing --------------------------------------------------------------------------

bool SymbolDatabaseModel::addCategoryWhileOpen(const QString& category)
{
    return d->change(SymbolStatements::AddCategory, { { QLatin1String(":Name"), category } });
}

bool SymbolDatabaseModel::addTagWhileOpen(const QString& tag)
{
    return d->change(SymbolStatements::AddTag, { { QLatin1String(":Name"), tag } });
}

bool SymbolDatabaseModel::addCategory(const QString& category)
{
    const Session session(*this, Session::Write);
    return session.isOpen() && addCategoryWhileOpen(category);
}

bool SymbolDatabaseModel::addTag(const QString& tag)
{
    const Session session(*this, Session::Write);
    return session.isOpen() && addTagWhileOpen(tag);
}

bool SymbolDatabaseModel::addTagToImageWhileOpen(int imageId, const QString& tag)
{
    const int tagId = getTagIdWhileOpen(tag);
    if (tagId == NoSymbol) {
        Q_EMIT errorOccured(
            tr("Unknown tag: [%1]", "Error message: tag is a keyword assigned to a piece of info.")
                .arg(tag));
        return false;
    }
    return d->change(
        SymbolStatements::LinkTag,
        { { QLatin1String(":ImageId"), imageId }, { QLatin1String(":TagId"), tagId } });
}

int SymbolDatabaseModel::addImageWhileOpen(const QString& name, const QString& category,
                                           const QByteArray& thumbnail, const QByteArray& data)
{
    const int categoryId = d->knownCategory(category);
    if (categoryId == NoSymbol) {
        return NoSymbol;
    }
    QSqlQuery query = d->prepare(SymbolStatements::AddImage,
                                 { { QLatin1String(":Name"), name },
                                   { QLatin1String(":Thumbnail"), thumbnail },
                                   { QLatin1String(":Data"), data },
                                   { QLatin1String(":CategoryId"), categoryId } });
    return d->execute(query) ? toId(query.lastInsertId()) : NoSymbol;
}

bool SymbolDatabaseModel::addSymbolWhileOpenTransaction(const QByteArray& imageData,
                                                        const QByteArray& thumbnailData,
                                                        const QString& symbolName,
                                                        const QString& symbolCategory)
{
    return d->knownCategory(symbolCategory) != NoSymbol
        && addImageWhileOpen(symbolName, symbolCategory, thumbnailData, imageData) != NoSymbol;
}

bool SymbolDatabaseModel::addSymbolWhileOpenTransaction(const QString& symbolPath,
                                                        const QString& symbolName,
                                                        const QString& symbolCategory,
                                                        const QStringList& symbolTags)
{
    if (d->knownCategory(symbolCategory) == NoSymbol) {
        return false;
    }
    // Without data there is no thumbnail either, and the database refuses the symbol.
    const QByteArray data = getRawDataFromImagePath(symbolPath);
    const QByteArray thumbnail = getThumbnailDataFromRawData(data);
    const int id = addImageWhileOpen(symbolName, symbolCategory, thumbnail, data);
    if (id == NoSymbol) {
        return false;
    }
    bool areLinked = true;
    for (const QString& tag : symbolTags) {
        areLinked = addTagToImageWhileOpen(id, tag) && areLinked;
    }
    return areLinked;
}

bool SymbolDatabaseModel::addSymbolWhileOpen(const QByteArray& imageData,
                                             const QByteArray& thumbnailData,
                                             const QString& symbolName,
                                             const QString& symbolCategory)
{
    return d->inTransaction([&] {
        return addSymbolWhileOpenTransaction(imageData, thumbnailData, symbolName, symbolCategory);
    });
}

bool SymbolDatabaseModel::addSymbolWhileOpen(const QString& symbolPath, const QString& symbolName,
                                             const QString& symbolCategory,
                                             const QStringList& symbolTags)
{
    return d->inTransaction([&] {
        return addSymbolWhileOpenTransaction(symbolPath, symbolName, symbolCategory, symbolTags);
    });
}

bool SymbolDatabaseModel::addSymbol(const QByteArray& imageData, const QByteArray& thumbnailData,
                                    const QString& symbolName, const QString& symbolCategory)
{
    const Session session(*this, Session::Write);
    return session.isOpen()
        && addSymbolWhileOpen(imageData, thumbnailData, symbolName, symbolCategory);
}

bool SymbolDatabaseModel::addSymbol(const QString& symbolPath, const QString& symbolName,
                                    const QString& symbolCategory, const QStringList& symbolTags)
{
    const Session session(*this, Session::Write);
    return session.isOpen()
        && addSymbolWhileOpen(symbolPath, symbolName, symbolCategory, symbolTags);
}

bool SymbolDatabaseModel::removeSymbolWhileOpenTransaction(int symbolId)
{
    return d->change(SymbolStatements::RemoveSymbol, { { QLatin1String(":Id"), symbolId } });
}

bool SymbolDatabaseModel::removeSymbolWhileOpen(int symbolId)
{
    return d->inTransaction([&] { return removeSymbolWhileOpenTransaction(symbolId); });
}

bool SymbolDatabaseModel::removeSymbol(int symbolId)
{
    const Session session(*this, Session::Write);
    return session.isOpen() && removeSymbolWhileOpen(symbolId);
}

// --- Reading --------------------------------------------------------------------------------------

QStringList SymbolDatabaseModel::categories()
{
    const Session session(*this, Session::Read);
    return session.isOpen() ? getCategoriesWhileOpen() : QStringList();
}

QStringList SymbolDatabaseModel::tags()
{
    const Session session(*this, Session::Read);
    return session.isOpen() ? getTagsWhileOpen() : QStringList();
}

QStringList SymbolDatabaseModel::getCategoriesWhileOpen()
{
    return d->firstColumn(SymbolStatements::Categories);
}

QStringList SymbolDatabaseModel::getTagsWhileOpen()
{
    return d->firstColumn(SymbolStatements::Tags);
}

QByteArray SymbolDatabaseModel::getDataFromSymbolId(int symbolId)
{
    return d->bytes(SymbolStatements::DataById, { { QLatin1String(":SymbolId"), symbolId } });
}

QByteArray SymbolDatabaseModel::getDataFromSymbolName(const QString& symbolName)
{
    return d->bytes(SymbolStatements::DataByName, { { QLatin1String(":SymbolName"), symbolName } });
}

QByteArray SymbolDatabaseModel::getIconFromSymbolId(int symbolId)
{
    return d->bytes(SymbolStatements::ThumbnailById, { { QLatin1String(":SymbolId"), symbolId } });
}

QStandardItem* SymbolDatabaseModel::getItemFromSymbolId(int symbolId)
{
    auto item = std::make_unique<QStandardItem>();
    item->setData(NoSymbol, Qt::UserRole + 2);

    const Session session(*this, Session::Read);
    if (session.isOpen()) {
        QSqlQuery query =
            d->prepare(SymbolStatements::SymbolById, { { QLatin1String(":SymbolId"), symbolId } });
        if (d->execute(query) && query.next()) {
            item->setData(query.value(0).toString(), Qt::ToolTipRole);
            item->setData(query.value(1).toByteArray(), Qt::UserRole + 1);
            item->setData(symbolId, Qt::UserRole + 2);
            item->setData(toIcon(query.value(2).toByteArray()), Qt::DecorationRole);
        }
    }
    return item.release();
}

QList<QStandardItem*> SymbolDatabaseModel::getItemsBySearch(const QString& category,
                                                            const QString& tag, bool buildPixmap)
{
    const bool isAll = category == tr("All Categories", "All database categories.");
    const QString wanted = isAll ? QString() : category;
    const Session session(*this, Session::Read);
    if (!session.isOpen()) {
        return {};
    }

    const int categoryId = getCategoryIdWhileOpen(wanted);
    QString statement = SymbolStatements::Search;
    if (!tag.isEmpty()) {
        statement += SymbolStatements::SearchJoinsTags;
    }
    // The word stands alone when the category is unknown and there is no tag: that search fails,
    // and is reported, instead of finding everything.
    if (!tag.isEmpty() || !wanted.isEmpty()) {
        statement += SymbolStatements::SearchWhere;
    }
    if (categoryId != NoSymbol) {
        statement += SymbolStatements::SearchInCategory;
        if (!tag.isEmpty()) {
            statement += SymbolStatements::SearchAnd;
        }
    }
    if (!tag.isEmpty()) {
        statement += SymbolStatements::SearchForTag;
    }

    QSqlQuery query = d->prepare(statement, {});
    if (categoryId != NoSymbol) {
        query.bindValue(QStringLiteral(":CategoryId"), categoryId);
    }
    if (!tag.isEmpty()) {
        query.bindValue(QStringLiteral(":Tag"), QString(QLatin1Char('%') + tag + QLatin1Char('%')));
    }
    return getItemsFromPreparedQuery(std::move(query), buildPixmap);
}

QList<QStandardItem*> SymbolDatabaseModel::getItemsFromPreparedQuery(QSqlQuery query,
                                                                     bool buildPixmap)
{
    QList<QStandardItem*> items;
    if (!d->execute(query)) {
        return items;
    }
    while (!isInterrupted() && query.next()) {
        const int id = query.value(0).toInt();
        const QString name = query.value(1).toString();
        QByteArray thumbnail = query.value(2).toByteArray();
        auto* item = new SymbolItem(name, id, std::move(thumbnail),
                                    buildPixmap ? SymbolItem::Icon : SymbolItem::Bytes);
        Q_EMIT symbolReady(item);
        items.append(item);
    }
    return items;
}

// --- Update ---------------------------------------------------------------------------------------

bool SymbolDatabaseModel::updateDatabase(const QString& svgFolderPath)
{
    // No Session: the connection stays open for the caller to close.
    if (!open(false)) {
        return false;
    }
    Transaction transaction(*this);
    if (!transaction.isOpen()) {
        return false;
    }
    const Update update = d->planUpdate(svgFolderPath);
    if (!d->carryOut(update) || !transaction.commit()) {
        return false;
    }
    startDetachedSync();

    logList("Added Categories:", update.addedCategories);
    logList("Added Symbols:", namesOf(update.newSymbols));
    logList("Updated Symbols:", namesOf(update.knownSymbols));
    return true;
}

void SymbolDatabaseModel::setUpdateObserver(UpdateObserver observer)
{
    d->updateObserver = std::move(observer);
}

#include "moc_symboldatabasemodel.cpp"
