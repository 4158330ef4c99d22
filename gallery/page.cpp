// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "page.h"

#include "pages/families.h"
#include "snippets.h"

const QList<Gallery::Family>& Gallery::families()
{
    static const QList<Family> all {
        lookFamily(),      dialogsFamily(),      applicationDialogsFamily(),
        filesFamily(),     inputsFamily(),       controlsFamily(),
        coloursFamily(),   selectionFamily(),    panelsFamily(),
        scrollingFamily(), touchHelpersFamily(), symbolsFamily(),
        platformFamily(),
    };
    return all;
}

QString Gallery::Family::snippetOf(const Page& page) const
{
    return snippet(page.source.isEmpty() ? source : page.source, page.id);
}

QString Gallery::longText()
{
    return QStringLiteral("Unverhältnismäßig lange Übersetzung, die kein Entwurf vorgesehen hat");
}
