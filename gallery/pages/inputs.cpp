// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "oxlineedit.h"
#include "stage.h"

namespace Gallery {

namespace {

void showOxLineEdit(Stage& stage)
{
    //! [OxLineEdit]
    auto* name = new OxLineEdit(QStringLiteral("Layer 1"));
    QObject::connect(name, &OxLineEdit::focusLost, name, &OxLineEdit::deselect);
    //! [OxLineEdit]
    stage.addWide(QStringLiteral("Drops the selection when left"), name);
    stage.addStates([](const QString& text) { return new OxLineEdit(text); });
}

} // namespace

Family inputsFamily()
{
    return {
        QStringLiteral("Inputs"),
        QStringLiteral(":/gallery/pages/inputs.cpp"),
        {
            {
                QStringLiteral("OxLineEdit"),
                QStringLiteral("A line edit that calls for the keyboard and says when it is left."),
                showOxLineEdit,
                {},
            },
        },
    };
}

} // namespace Gallery
