// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <NavigationBar>

#include <QSqlRecord>

/// Pages through the records of a database and finds them. Hidden until one is opened.
class RecordBar : public NavigationBar
{
    Q_OBJECT

public:
    explicit RecordBar(QWidget* parent = nullptr);

    /// Shows the records of the first table of an SQLite file, at most as many as the bar can
    /// count. Returns what to tell the person, or nothing.
    QString open(const QString& path);

    /// All of them; without a database a single one without fields.
    QList<QSqlRecord> records() const { return m_records; }
    QSqlRecord current() const { return m_records.at(m_current); }

Q_SIGNALS:
    void currentChanged();

private:
    void goTo(qsizetype record);
    void find(const QString& field, const QString& text);

    QList<QSqlRecord> m_records = { QSqlRecord() };
    qsizetype m_current = 0;
};
