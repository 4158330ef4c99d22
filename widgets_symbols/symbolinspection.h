// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QByteArray>
#include <QStringList>

/*!
 * \brief Tells why the thumbnail of an SVG document looks different from the drawing.
 *
 * A symbol's thumbnail is made without a word: what is dangerous in its document is left out, what
 * Qt can't draw is ignored, and what is no SVG document becomes a white square. Ask this class when
 * somebody wants to know, for instance before a drawing is taken into a library:
 *
 * \code
 * const SymbolInspection inspection(symbols.getRawDataFromImagePath(path));
 * if (!inspection.isRefused() && inspection.leftOut().isEmpty()) {
 *     symbols.addSymbol(path, name, category, {});
 * }
 * \endcode
 *
 * The texts are English: they are meant for those who draw and maintain symbols, in messages of
 * their tools. Any thread; there must be a QGuiApplication, as for whatever draws.
 */
class UTILITYWIDGETS_EXPORT SymbolInspection
{
public:
    /// The document may be compressed with gzip.
    explicit SymbolInspection(const QByteArray& document);

    /// Whether every pixel of a thumbnail is white. False for what is no picture.
    static bool isBlank(const QByteArray& thumbnail);

    /// Whether the document is not drawn at all.
    bool isRefused() const;
    /// Why it is not, as "not an SVG document"; empty if it is.
    QString refusal() const;
    /// Dangerous parts that are left out, as "references to files", each kind once.
    QStringList leftOut() const;
    /// Features that are used but not drawn, as "clip paths". That the document uses one does not
    /// mean that it can be seen: some programs clip every drawing to its own size.
    QStringList ignored() const;

private:
    QString m_refusal;
    QStringList m_leftOut;
    QStringList m_ignored;
};
