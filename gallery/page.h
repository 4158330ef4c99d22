// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace Gallery {

class Stage;

/// Channel on which a second start of the gallery calls for the first.
inline constexpr char ChannelName[] = "UtilityWidgetsGallery";

/// A dialog that a page opens: by a button on the page, and in the tour without a person.
struct DialogState
{
    /// Part of the picture's file name: "<page>-<id>.png".
    QString id;
    /// Text of the button that opens it.
    QString caption;
    /// Shows the dialog, or another window or a popup, and returns when it has been ended, as the
    /// static helpers do.
    std::function<void()> open;
};

/// The page of one class.
struct Page
{
    /// The class's name; also the name of its picture ("<id>.png") and of its snippet: the lines
    /// between two "//! [<id>]" marks of the family's source.
    QString id;
    /// What the class is for, in one sentence.
    QString summary;
    /// Puts the live instances on the stage. Called whenever the page is opened.
    std::function<void(Stage&)> build;
    QList<DialogState> dialogs;
    /// The embedded source that holds the snippet, where it is not the family's.
    QString source = {};
};

/// The pages of related classes, under one heading of the list.
struct Family
{
    QString name;
    /// The source that holds the pages, as embedded: ":/gallery/pages/<name>.cpp".
    QString source;
    QList<Page> pages;

    /// The code that the page shows; empty if its source has no such marks.
    QString snippetOf(const Page& page) const;
};

/// The one table from which the window, `--list`, `--tour` and the documentation are made.
const QList<Family>& families();

/// Text that is much longer than a designer would wish, as translations sometimes are.
QString longText();

} // namespace Gallery
