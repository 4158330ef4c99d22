// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "tour.h"

#include "gallerywindow.h"
#include "look/palette.h"
#include "page.h"
#include "sharedconstants.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QScrollArea>
#include <QStyleHints>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <utility>

namespace Gallery {

namespace {

constexpr int DialogPatience = 5000; // milliseconds until a dialog counts as missing
constexpr int ListPatience = 1000; // milliseconds until an empty list counts as one
constexpr int StageMargin = 8; // pixels of the page around its stage
constexpr int PollInterval = 20; // milliseconds between two looks at a dialog

/// All windows that can be seen, in the order in which they were made: that is how they stack.
QWidgetList visibleWindows()
{
    QWidgetList visible;
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (const QWindow* window : windows) {
        QWidget* widget = QWidget::find(window->winId());
        if (widget != nullptr && widget->isVisible()) {
            visible.append(widget);
        }
    }
    return visible;
}

/// The screen as a person sees it: the window, and in front of it whatever else is open.
QPixmap picture(GalleryWindow* window)
{
    QPixmap screen = window->grab();
    QPainter painter(&screen);
    const QWidgetList widgets = visibleWindows();
    for (QWidget* widget : widgets) {
        if (widget != window) {
            painter.setOpacity(widget->windowOpacity());
            painter.drawPixmap(widget->pos() - window->pos(), widget->grab());
        }
    }
    return screen;
}

/// The stage alone: what the page shows, with its captions, on the page's background. Null where
/// that is nothing.
QPixmap stagePicture(GalleryWindow* window)
{
    auto* stage = window->findChild<QWidget*>(QStringLiteral("GalleryInstancesContent"));
    QRect used;
    const auto widgets = stage->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (const QWidget* widget : widgets) {
        if (widget->isVisible()) {
            used |= widget->geometry();
        }
    }
    if (used.isEmpty()) {
        return {};
    }
    // What lies around the stage in the window belongs to other parts of the page.
    const QPixmap shown = window->grab({ stage->mapTo(window, used.topLeft()), used.size() });
    const qreal scale = shown.devicePixelRatio();
    QPixmap sheet((used.size() + 2 * QSize(StageMargin, StageMargin)) * scale);
    sheet.setDevicePixelRatio(scale);
    sheet.fill(QColor(QStringLiteral(LOOK_PANEL_GREY)));
    QPainter(&sheet).drawPixmap(StageMargin, StageMargin, shown);
    return sheet;
}

/// What stands in front of the window, and no more of that than lies between.
QPixmap frontPicture(GalleryWindow* window)
{
    QRect front;
    const QWidgetList widgets = visibleWindows();
    for (const QWidget* widget : widgets) {
        if (widget != window) {
            front |= widget->geometry().translated(-window->pos());
        }
    }
    front &= window->rect();
    const QPixmap screen = picture(window);
    const qreal scale = screen.devicePixelRatio();
    return screen.copy({ (QPointF(front.topLeft()) * scale).toPoint(), front.size() * scale });
}

/// Makes the window as high as the page's stage asks for, so that nothing of it is scrolled away.
void showWholeStage(GalleryWindow* window)
{
    const auto* area = window->findChild<QScrollArea*>(QStringLiteral("GalleryInstances"));
    QApplication::processEvents();
    const int missing = area->widget()->sizeHint().height() - area->viewport()->height();
    window->resize(ScreenWidth, ScreenHeight + std::max(missing, 0));
    QApplication::processEvents();
}

bool save(const QPixmap& picture, const QString& path)
{
    const bool saved = picture.save(path, "PNG");
    if (!saved) {
        std::fprintf(stderr, "cannot write %s\n", qUtf8Printable(path));
    }
    return saved;
}

/// Whether a list in `dialog` may still be filling, as those of folders do on threads of their own.
bool hasEmptyList(const QWidget* dialog)
{
    const auto views = dialog->findChildren<QAbstractItemView*>();
    return std::any_of(views.begin(), views.end(), [](const QAbstractItemView* view) {
        return view->isVisible() && view->model() != nullptr
            && view->model()->rowCount(view->rootIndex()) == 0;
    });
}

using TakePicture = QPixmap (*)(GalleryWindow*);

bool saveDialog(GalleryWindow* window, const DialogState& state, TakePicture take,
                const QString& path)
{
    bool saved = false;
    QElapsedTimer waited;
    waited.start();
    QTimer poll;
    bool over = false;
    QImage seen; // what the dialog looked like last time: it is done when it no longer changes
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        QWidget* dialog = windowInFrontOf(window);
        if (dialog == nullptr && (over || waited.elapsed() < DialogPatience)) {
            return;
        }
        if (!over && dialog != nullptr && waited.elapsed() < ListPatience) {
            const QImage before = std::exchange(seen, dialog->grab().toImage());
            if (seen != before || hasEmptyList(dialog)) {
                return;
            }
        }
        if (dialog == nullptr) {
            std::fprintf(stderr, "no dialog for %s\n", qUtf8Printable(path));
        } else if (!over) {
            QApplication::processEvents();
            saved = save(take(window), path);
        }
        over = true;
        // One that opens another when it is answered must not make the tour wait for a person.
        if (dialog != nullptr) {
            dialog->close();
        }
    });
    poll.start(PollInterval);
    state.open();
    return saved;
}

/// Goes through all pages and their dialogs. `savePage` gets each page when it is shown, `take` takes
/// the picture of each dialog.
bool walk(const QString& folder, TakePicture take,
          const std::function<bool(GalleryWindow*, const QString& path)>& savePage)
{
    // Absolute, because a page may change the working directory.
    const QDir target(QDir(folder).absolutePath());
    if (!target.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "cannot make %s\n", qUtf8Printable(folder));
        return false;
    }

    // A cursor that blinks would make two tours differ.
    QApplication::setCursorFlashTime(0);
    GalleryWindow window;
    window.move(0, 0);
    window.resize(ScreenSize);
    window.show();
    window.activateWindow();

    bool complete = true;
    for (const Family& family : families()) {
        for (const Page& page : family.pages) {
            window.showPage(page.id);
            QApplication::processEvents();
            complete &= savePage(&window, target.filePath(page.id + QStringLiteral(".png")));
            for (const DialogState& state : page.dialogs) {
                const QString name = QStringLiteral("%1-%2.png").arg(page.id, state.id);
                complete &= saveDialog(&window, state, take, target.filePath(name));
            }
        }
    }
    return complete;
}

} // namespace

QWidget* windowInFrontOf(const GalleryWindow* window)
{
    if (QWidget* dialog = QApplication::activeModalWidget()) {
        return dialog;
    }
    if (QWidget* popup = QApplication::activePopupWidget()) {
        return popup;
    }
    const QWidgetList widgets = visibleWindows();
    return widgets.isEmpty() || widgets.constLast() == window ? nullptr : widgets.constLast();
}

bool takeTour(const QString& folder)
{
    return walk(folder, picture, [](GalleryWindow* window, const QString& path) {
        return save(picture(window), path);
    });
}

bool takePictures(const QString& folder)
{
    return walk(folder, frontPicture, [](GalleryWindow* window, const QString& path) {
        showWholeStage(window);
        const QPixmap stage = stagePicture(window);
        const bool saved = stage.isNull() || save(stage, path);
        window->resize(ScreenSize);
        return saved;
    });
}

} // namespace Gallery
