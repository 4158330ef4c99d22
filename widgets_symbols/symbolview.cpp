// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symbolview.h"

#include "focusrectangleproxystyle.h"
#include "look/palette.h"

#include <QListView>

void prepareSymbolView(QListView* view, const QSize& grid)
{
    // Around the text that symbols do not have, the focus rectangle is a speck.
    auto* style = new FocusRectangleProxyStyle;
    style->setParent(view);
    view->setStyle(style);
    QPalette palette = view->palette();
    palette.setColor(QPalette::Highlight, QColor(LOOK_ACCENT_ORANGE));
    view->setPalette(palette);

    view->setViewMode(QListView::IconMode); // first, because it sets others of these
    view->setIconSize(grid);
    view->setGridSize(grid);
    view->setMovement(QListView::Static);
    view->setFrameShape(QFrame::NoFrame);
    // Otherwise the view asks each symbol for its icon before it shows the first one.
    view->setUniformItemSizes(true);
}
