// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

class QSqlDatabase;
class QSqlQuery;
class QStandardItem;

/*!
 * \brief A library of symbols: SVG documents with categories, tags and thumbnails in an SQLite file.
 *
 * Use it to make such a library, to fill it and to search it; where a person waits, let a
 * SymbolDatabaseWorker do it on another thread. The object is nothing but a path: every operation
 * opens the file, does its work and closes it again, so that no file is held open in between and
 * any number of models, in any number of threads and processes, may use the same file.
 *
 * \code
 * SymbolDatabaseModel symbols;
 * symbols.setDatabasePath(path);
 * if (symbols.createSchema() && symbols.addCategory(tr("Arrows"))) {
 *     symbols.addSymbol(svgPath, tr("Up"), tr("Arrows"), {});
 * }
 * list->appendColumn(symbols.getItemsBySearch(tr("Arrows")));
 * \endcode
 *
 * What an operation's name ends in says what it expects:
 * - without an ending it opens the database itself and closes it again, whatever happened. Never
 *   call it between open() and close(): it fails, and closes the connection that was open;
 * - "WhileOpen": the caller has called open() and will call close();
 * - "WhileOpenTransaction": and has called startTransaction() and will call endTransaction().
 *
 * Whoever changes the database keeps what was changed before a failure: a failure inside a
 * transaction does not undo it.
 *
 * Of two that change one file at the same moment, one may be refused with "database is locked" in
 * its message, at once or after five seconds: nothing is lost, and it can try again. No transaction
 * takes the right to write before its first change, so that readers are kept waiting no longer than
 * need be.
 *
 * Nothing throws. An operation that fails emits errorOccured() and returns false, -1, or something
 * empty. One model belongs to one thread at a time and must not be destroyed during an operation.
 * Ids are never reused; -1 is none. On a thread whose interruption has been requested (see
 * QThread::requestInterruption()) every statement fails without a message, and a search that is
 * under way ends with what it has found so far. Those who call the functions that take or return
 * classes of Qt SQL link that module themselves.
 */
class UTILITYWIDGETS_EXPORT SymbolDatabaseModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(
        QString DatabasePath READ databasePath WRITE setDatabasePath NOTIFY databasePathChanged)

public:
    /// A drawing that updateDatabase() has dealt with.
    struct UpdateStep
    {
        enum Outcome {
            Added,
            Known, ///< there is a symbol of that name, which stays as it is
            Failed, ///< errorOccured() has just said why; in the end the update will be undone
        };

        QString category;
        QString name;
        Outcome outcome = Added;
        int done = 0; ///< the drawings dealt with so far, this one included
        int total = 0; ///< the drawings in the whole folder
    };
    using UpdateObserver = std::function<void(const UpdateStep&)>;

    explicit SymbolDatabaseModel(QObject* parent = nullptr);
    ~SymbolDatabaseModel() override;

    /// The SQLite file; empty until set.
    QString databasePath() const;
    /// Counts from the next open() on.
    void setDatabasePath(const QString& path);

    /// \name Connection
    /// @{
    /// The connection's name in Qt's list of connections: of this object alone, never changing.
    QString connectionName();
    /// The connection, opened if it was made by open() but is not open; invalid before open().
    QSqlDatabase database();
    /// For how long a statement waits for another process that is writing to the file, before it
    /// fails: in milliseconds, 5000 at first. For a model that is used where a person waits. Counts
    /// from the next open() on.
    void setLockTimeout(int milliseconds);
    /// Must be followed by close() also when it failed. For reading only, the file must exist
    /// (false without a message otherwise); for writing, an empty one is made where none is.
    bool open(bool readOnly);
    /// Also has everything that was written brought to the medium, in the background. Queries of
    /// the connection must be gone by then.
    void close();
    bool startTransaction();
    /// Commits, or rolls back if that fails.
    bool endTransaction();
    /// Message for a query that failed.
    QString queryErrorString(QSqlQuery query);
    /// @}

    /// \name Schema
    /// @{
    /// Makes the four tables, and the file if need be. What could be made before a failure stays.
    bool createSchema();
    /// Whether there are four tables of the right names; their columns are not looked at.
    bool isValidSchema();
    /// @}

    /// \name Symbols from files
    /// @{
    /// The whole content of the file, whatever it is; null if it cannot be read.
    QByteArray getRawDataFromImagePath(const QString& imagePath);
    /// The SVG document, stretched to 50 x 50 pixels on white, as PNG: plain white if it is no SVG,
    /// null only if there is no data. Dangerous parts of a document, such as references to files,
    /// are left out. Any thread.
    QByteArray getThumbnailDataFromRawData(const QByteArray& rawData);
    /// @}

    /// \name Ids by name, or -1
    /// @{
    /// `table` becomes part of the statement: never pass what a person typed.
    int getRowIdFromTableWhileOpen(const QString& table, const QString& name);
    int getTagIdWhileOpen(const QString& tag);
    int getCategoryIdWhileOpen(const QString& category);
    /// The first of several symbols of that name; a failure is not reported.
    int getSymbolIDFromNameWhileOpen(const QString& name);
    /// @}

    /// \name Adding and removing
    /// Categories and tags must have been added before a symbol can name them.
    /// @{
    bool addCategoryWhileOpen(const QString& category);
    bool addTagWhileOpen(const QString& tag);
    Q_INVOKABLE bool addCategory(const QString& category);
    Q_INVOKABLE bool addTag(const QString& tag);
    bool addTagToImageWhileOpen(int imageId, const QString& tag);
    /// The new symbol's id. Another symbol of the same name is no hindrance.
    int addImageWhileOpen(const QString& name, const QString& category, const QByteArray& thumbnail,
                          const QByteArray& data);

    /// The thumbnail is stored as it is given.
    bool addSymbolWhileOpenTransaction(const QByteArray& imageData, const QByteArray& thumbnailData,
                                       const QString& symbolName, const QString& symbolCategory);
    /// The thumbnail is made from the file. False also if only some of the tags are unknown; then
    /// the symbol is stored with the others.
    bool addSymbolWhileOpenTransaction(const QString& symbolPath, const QString& symbolName,
                                       const QString& symbolCategory,
                                       const QStringList& symbolTags);
    bool addSymbolWhileOpen(const QByteArray& imageData, const QByteArray& thumbnailData,
                            const QString& symbolName, const QString& symbolCategory);
    bool addSymbolWhileOpen(const QString& symbolPath, const QString& symbolName,
                            const QString& symbolCategory, const QStringList& symbolTags);
    Q_INVOKABLE bool addSymbol(const QByteArray& imageData, const QByteArray& thumbnailData,
                               const QString& symbolName, const QString& symbolCategory);
    Q_INVOKABLE bool addSymbol(const QString& symbolPath, const QString& symbolName,
                               const QString& symbolCategory, const QStringList& symbolTags);

    /// True also if there is no such symbol. Its category and tags stay.
    bool removeSymbolWhileOpenTransaction(int symbolId);
    bool removeSymbolWhileOpen(int symbolId);
    Q_INVOKABLE bool removeSymbol(int symbolId);
    /// @}

    /// \name Reading
    /// Everything comes in the order of the database; nothing is sorted.
    /// @{
    QStringList categories();
    QStringList tags();
    QStringList getCategoriesWhileOpen();
    QStringList getTagsWhileOpen();
    QByteArray getDataFromSymbolId(int symbolId);
    /// The first of several symbols of that name.
    QByteArray getDataFromSymbolName(const QString& symbolName);
    /// The thumbnail's PNG bytes.
    QByteArray getIconFromSymbolId(int symbolId);

    /// A new item, never null, which the caller owns: the name under Qt::ToolTipRole, the SVG
    /// document under Qt::UserRole + 1, the id under Qt::UserRole + 2 and the thumbnail as icon.
    /// For an unknown id it has nothing but the id -1. For the GUI thread.
    QStandardItem* getItemFromSymbolId(int symbolId);

    /*!
     * The symbols of a category with a tag that contains `tag`, each once, as new items that the
     * caller owns: the name under Qt::ToolTipRole, the id under Qt::UserRole + 1 (another place
     * than in getItemFromSymbolId()), and the thumbnail as icon or, without `buildPixmap`, as PNG
     * bytes under Qt::UserRole + 2. Icons are for the GUI thread only.
     *
     * An empty category or the translated "All Categories" and an empty tag mean all. Letters of
     * ASCII count without regard to case; "%" and "_" stand for any text and any character. An
     * unknown category is an error without a tag and is not regarded with one.
     */
    Q_INVOKABLE QList<QStandardItem*> getItemsBySearch(const QString& category = QString(),
                                                       const QString& tag = QString(),
                                                       bool buildPixmap = true);
    /// Runs a query of this connection that gives id, name and thumbnail; see getItemsBySearch().
    QList<QStandardItem*> getItemsFromPreparedQuery(QSqlQuery query, bool buildPixmap);
    /// @}

    /*!
     * Adds what is new in a folder of drawings: each subfolder is a category, each "*.svg" file in
     * one a symbol named after the file, ending included. A symbol whose name is known, in whatever
     * category, stays as it is. All or nothing: false if a single drawing could not be added.
     *
     * The three lists of what was added and what was known go to the log. Who wants to know sooner,
     * or which drawing failed, sets an observer.
     *
     * The connection stays open, whatever the result: call close() before anything else.
     */
    Q_INVOKABLE bool updateDatabase(const QString& svgFolderPath);
    /// Is called by updateDatabase(), on its thread, once for each drawing: first the known ones,
    /// then the others in their order, each as soon as it is stored. May look things up
    /// ("WhileOpen") but change nothing.
    void setUpdateObserver(UpdateObserver observer);

Q_SIGNALS:
    void databasePathChanged(QString path);
    /// Something failed; the text is translated and meant for a log or for the person.
    void errorOccured(QString error);
    /// One result of a search is complete. The search still returns it: receivers must not delete
    /// it.
    void symbolReady(QStandardItem* item);

private:
    class Private;
    const std::unique_ptr<Private> d;
};
