// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

class QIcon;
class QPixmap;
class QSize;
class QString;

namespace Look {

/*!
 * The icon made of our image `path`, read once for as long as the application object lives.
 *
 * Dialogs are made anew each time they are shown; reading and decoding the same images again takes
 * a tenth of that time. Only for resources, which never change. GUI thread only.
 */
QIcon icon(const QString& path);

/// The same for items of lists: in a selected row it keeps its colours, where other icons are tinted
/// with the selection's.
QIcon listIcon(const QString& path);

/// The image at `path`, in its own size and as sharp as a screen of that device pixel ratio shows
/// it: QPixmap alone takes no notice of the "@2x" file beside it. Null if there is no image.
QPixmap picture(const QString& path, qreal devicePixelRatio);

/// Whether pictures for that ratio lie between those for plain screens and their "@2x" twins.
bool isFraction(qreal devicePixelRatio);

/// The size in which a plain screen shows `icon` where there is that much `room` for it: its own, or
/// less in the same proportions. QIcon, which has no notion of a plain screen, takes a picture for
/// finer screens for a larger one and shows it twice as large there. Pictures count as such when
/// the icon has them in the plain size too. No size for a null icon.
QSize shownSize(const QIcon& icon, const QSize& room, qreal devicePixelRatio);

} // namespace Look
