// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QWidget>

class SymbolsMenu;

/// What could not be added is appended to `failed`, if it is given.
bool updateLibrary(const QString& database, const QString& folder, QStringList* failed = nullptr);

class SymbolPage : public QWidget
{
    Q_OBJECT

public:
    QByteArray inserted() const { return m_inserted; }

    void insertSymbol();
    void importSymbol();
    SymbolsMenu* createMenu();

private:
    void insertSvg(const QByteArray& svg) { m_inserted = svg; }

    QByteArray m_inserted;
};
