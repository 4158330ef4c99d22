// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gallery/gallerywindow.h"

#include <QTimer>
#include <QWidget>

#include <functional>

/*!
 * What the walks over all pages of the gallery share. A control is a widget that a person operates;
 * what belongs to a larger one, such as the line edit of a spin box, counts as that.
 */
namespace GalleryWalk {

/// One row per page, in the column "page".
void addPages();

/// The control that `widget` is or belongs to; null for labels, panels and the like.
QWidget* controlOf(QWidget* widget);

/// All controls inside `window` that can be seen, or would be after scrolling. Disabled ones only
/// if asked for.
QWidgetList controlsIn(const QWidget* window, bool withDisabled = false);

/// For messages: class, name and place.
QString describe(const QWidget* widget);
QStringList describe(const QWidgetList& widgets);

/// The gallery at one page, shown and active.
class ShownGallery : public Gallery::GalleryWindow
{
public:
    explicit ShownGallery(const QString& page = {});
};

/// Performs a script on every window that opens in front of another one while this lives, popups
/// included. The script is expected to end it; what it leaves open is closed and counted.
class Visitor : public QObject
{
    Q_OBJECT

public:
    using Script = std::function<void(QWidget*)>;

    Visitor(const Gallery::GalleryWindow* behind, Script script);

    int visited() const { return m_visited; }
    /// The windows that the script did not end.
    const QStringList& leftOpen() const { return m_leftOpen; }

private:
    void look();

    const Gallery::GalleryWindow* m_behind;
    Script m_script;
    QTimer m_poll;
    bool m_isVisiting = false;
    int m_visited = 0;
    QStringList m_leftOpen;
};

} // namespace GalleryWalk

/// Fails with the lines, each of which tells of something that is wrong.
#define VERIFY_NONE(lines)                                                                         \
    do {                                                                                           \
        const QString linesFound = (lines).join(QLatin1Char('\n'));                                \
        QVERIFY2(linesFound.isEmpty(), qPrintable(linesFound));                                    \
    } while (false)
