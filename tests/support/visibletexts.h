// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QWidget;

/*!
 * Every text that a person can read or have read out in `root` and the widgets inside it, hidden
 * ones included: texts, titles, entries of lists and boxes, placeholders, tool tips, accessible
 * names. One line each, "class: kind: text", in the order in which the widgets were made: two
 * widgets that are made alike give lists that can be compared line by line.
 */
QStringList visibleTexts(const QWidget& root);

/// Lets everybody hear of a new language: what is posted, and what answers to it posts.
void settleLanguageChange();
