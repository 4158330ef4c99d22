// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symbolview.h"

#include "look/palette.h"

#include <QListView>
#include <QPainter>
#include <QStyledItemDelegate>

namespace {

constexpr int FrameWidth = 3; // pixels
/// Many times what a screen shows, and a matter of a millisecond.
constexpr int BatchSize = 2000;

/// Frames a selected symbol in the house's colour. The style would tint it instead, in the colour of
/// the application's palette, and the person would no longer see its own.
class SymbolDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        QStyleOptionViewItem plain(option);
        // Around the text that symbols do not have, the focus rectangle is a speck.
        plain.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
        QStyledItemDelegate::paint(painter, plain, index);
        if (option.state & QStyle::State_Selected) {
            const QColor colour(LOOK_ACCENT_ORANGE);
            const QRect& outer = option.rect;
            const QRect inner = outer.adjusted(FrameWidth, FrameWidth, -FrameWidth, -FrameWidth);
            for (const QRect& edge : QRegion(outer).subtracted(inner)) {
                painter->fillRect(edge, colour);
            }
        }
    }
};

} // namespace

void prepareSymbolView(QListView* view, const QSize& grid)
{
    view->setItemDelegate(new SymbolDelegate(view));
    view->setViewMode(QListView::IconMode); // first, because it sets others of these
    view->setIconSize(grid);
    view->setGridSize(grid);
    view->setMovement(QListView::Static);
    view->setFrameShape(QFrame::NoFrame);
    // Otherwise the view asks each symbol for its icon before it shows the first one.
    view->setUniformItemSizes(true);
    // A large library is laid out while the person looks at its first symbols.
    view->setLayoutMode(QListView::Batched);
    view->setBatchSize(BatchSize);
}

void nameSymbolView(QListView* view)
{
    view->setAccessibleName(QObject::tr("Symbols", "Accessible name of a list of symbols."));
}
