// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document.h"

#include <QCache>
#include <QCoreApplication>
#include <QSqlRecord>
#include <QSvgRenderer>

class QPainter;

/// Draws documents, on the screen and on paper alike.
class DocumentPainter
{
    Q_DECLARE_TR_FUNCTIONS(DocumentPainter)

public:
    /// One unit of the painter is a millimetre, and its origin the top left corner of the page.
    void paint(QPainter* painter, const Content& content, const QSqlRecord& record);

    /// Writes a PDF file, one page per record, as a whole or not at all. Returns what to tell the
    /// person, or nothing.
    static QString print(const QString& path, const Content& content,
                         const QList<QSqlRecord>& records);

    /// A text with the record's fields in the place of their {names}.
    static QString filledIn(QString text, const QSqlRecord& record);

private:
    void paint(QPainter* painter, const Object& object, const QSqlRecord& record);

    QCache<QByteArray, QSvgRenderer> m_drawings; // to read each of them once
};
