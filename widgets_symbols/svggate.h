// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QStringList>

/*!
 * What keeps a hostile or broken drawing away from QSvgRenderer, which trusts what it reads.
 *
 * Taken away are references to files (it opens them, the drawing itself included, over and over),
 * elements that refer to themselves, nesting and repetition beyond all measure, and sizes that no
 * drawing has; the rest is drawn. A document without any of it passes unchanged, byte for byte.
 * Refused whole is what cannot be drawn in part: no well-formed SVG, or more than the memory of a
 * device should hold.
 */
struct SvgGate
{
    /// The document to draw; null if it is refused.
    QByteArray document;
    /// What was taken away, each kind once, in English; empty for a document that passes unchanged.
    QStringList removed;
    /// Why it is refused, in English; empty if it is not.
    QString refusal;

    /// `data` may be compressed with gzip; the document never is. Any thread.
    static SvgGate pass(const QByteArray& data);
};
