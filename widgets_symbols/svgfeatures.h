// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QStringList>

/*!
 * What a document uses and QSvgRenderer ignores without a word, such as "clip paths": each feature
 * once, in English.
 *
 * Which features that are depends on the release of Qt; it is found out by drawing. The document
 * must have passed SvgGate. Any thread.
 */
QStringList ignoredSvgFeatures(const QByteArray& document);
