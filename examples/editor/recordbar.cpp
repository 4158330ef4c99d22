// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "recordbar.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlQuery>

namespace {

constexpr int MostRecords = 9999; // the bar's field has four digits

QList<QSqlRecord> readRecords(const QSqlDatabase& database)
{
    const QString table = database.tables().value(0);
    QSqlQuery query(database);
    query.setForwardOnly(true);
    query.exec(QStringLiteral("SELECT * FROM %1 LIMIT %2")
                   .arg(database.driver()->escapeIdentifier(table, QSqlDriver::TableName))
                   .arg(MostRecords));
    QList<QSqlRecord> records;
    while (query.next()) {
        records.append(query.record());
    }
    return records;
}

} // namespace

RecordBar::RecordBar(QWidget* parent)
    : NavigationBar(parent)
{
    hide();
    hideZoomButtons();
    setSearchPlaceholder(tr("Find a record", "Hint in a search field."));
    connect(this, &NavigationBar::nextLabelSignal, this, [this] { goTo(m_current + 1); });
    connect(this, &NavigationBar::previousLabelSignal, this, [this] { goTo(m_current - 1); });
    // Comes twice for one Return, and also when the field is left as it was.
    connect(this, &NavigationBar::navigateEditSignal, this,
            [this](const QString& number) { goTo(number.toInt() - 1); });
    connect(this, &NavigationBar::searchStringSignal, this, &RecordBar::find);
    connect(this, &NavigationBar::closeSignal, this, [this] {
        m_records = { QSqlRecord() };
        goTo(0);
        hide();
    });
}

QString RecordBar::open(const QString& path)
{
    const QString connection = QStringLiteral("records");
    QList<QSqlRecord> records;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        database.setDatabaseName(path);
        database.open();
        records = readRecords(database);
    }
    QSqlDatabase::removeDatabase(connection);
    if (records.isEmpty()) {
        return tr("%1 holds no records.", "Error message: a database.")
            .arg(QFileInfo(path).completeBaseName());
    }
    m_records = records;
    QStringList fields;
    for (int i = 0; i < records.constFirst().count(); ++i) {
        fields.append(records.constFirst().fieldName(i));
    }
    setSearchByTerms(fields);
    setRecordNumberSlot(int(records.count()) - 1);
    goTo(0);
    show();
    return {};
}

void RecordBar::goTo(qsizetype record)
{
    m_current = qBound(qsizetype(0), record, m_records.count() - 1);
    setCurrentRecordSlot(int(m_current));
    Q_EMIT currentChanged();
}

void RecordBar::find(const QString& field, const QString& text)
{
    for (qsizetype step = 1; step <= m_records.count(); ++step) { // the current one comes last
        const qsizetype record = (m_current + step) % m_records.count();
        if (m_records.at(record).value(field).toString().contains(text, Qt::CaseInsensitive)) {
            goTo(record);
            return;
        }
    }
}

#include "moc_recordbar.cpp"
