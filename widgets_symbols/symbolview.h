// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

class QListView;
class QSize;

/// Makes `view` a grid of symbols, `grid` pixels each, that stay where they are. A selected one is
/// framed in the house's colour.
void prepareSymbolView(QListView* view, const QSize& grid);

/// Gives `view` its accessible name, in the language of the moment.
void nameSymbolView(QListView* view);
