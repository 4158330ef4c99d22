// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "buttonpresseventhandler.h"
#include "focusrectangleproxystyle.h"
#include "ignoreentereventhandler.h"
#include "oxlineedit.h"
#include "oxpushbuttonstyleproxy.h"
#include "page.h"
#include "stage.h"

#include <QListWidget>
#include <QPushButton>
#include <QStyleFactory>

namespace Gallery {

namespace {

void showButtonPressEventHandler(Stage& stage)
{
    const auto createButton = [](const QString& text) {
        //! [ButtonPressEventHandler]
        auto* button = new QPushButton(text);
        button->installEventFilter(new ButtonPressEventHandler(button));
        //! [ButtonPressEventHandler]
        button->setFixedHeight(40);
        return button;
    };
    QPushButton* held = createButton(QStringLiteral("OK"));
    held->setDown(true);
    ButtonPressEventHandler().setColorizeEffect(held);
    stage.addWide(QStringLiteral("As under a finger"), held);
    stage.addStates(createButton, QStringLiteral("OK"));
}

void showIgnoreEnterEventHandler(Stage& stage)
{
    const auto createField = [](const QString& text) {
        //! [IgnoreEnterEventHandler]
        auto* field = new OxLineEdit(text);
        field->installEventFilter(new IgnoreEnterEventHandler(field));
        //! [IgnoreEnterEventHandler]
        field->setCursorPosition(0);
        return field;
    };
    stage.addWide(QStringLiteral("Without it, Return is reported"),
                  new OxLineEdit(QStringLiteral("Layer 1")));
    stage.addStates(createField);
}

QListWidget* createList(const QString& text)
{
    auto* list = new QListWidget;
    list->addItems({ text, QStringLiteral("Layer 2"), QStringLiteral("Layer 3") });
    list->setCurrentRow(0);
    list->setFixedHeight(100);
    return list;
}

void showFocusRectangleProxyStyle(Stage& stage)
{
    const auto createStyledList = [](const QString& text) {
        QListWidget* list = createList(text);
        //! [FocusRectangleProxyStyle]
        auto* style = new FocusRectangleProxyStyle(QStringLiteral("Fusion"));
        style->setParent(list); // setStyle() takes no ownership
        list->setStyle(style);
        //! [FocusRectangleProxyStyle]
        return list;
    };
    stage.addWide(QStringLiteral("Without it: framed when reached with the Tab key"),
                  createList(QStringLiteral("Layer 1")));
    stage.addStates(createStyledList);
}

void showOxPushButtonStyleProxy(Stage& stage)
{
    const auto createPlainButton = [](const QString& text) {
        auto* button = new QPushButton(text);
        button->setFixedHeight(88);
        return button;
    };
    const auto createButton = [=](const QString& text) {
        QPushButton* button = createPlainButton(text);
        //! [OxPushButtonStyleProxy]
        auto* base = QStyleFactory::create(QStringLiteral("Fusion"));
        auto* style = new OxPushButtonStyleProxy(base); // owns the base
        style->setParent(button); // setStyle() takes no ownership
        button->setStyle(style);
        //! [OxPushButtonStyleProxy]
        button->setFixedWidth(200);
        return button;
    };
    const QString text = QStringLiteral("Insert all selected symbols");
    QPushButton* plain = createPlainButton(text);
    plain->setFixedWidth(200);
    stage.addWide(QStringLiteral("Without it"), plain);
    stage.addStates(createButton, text);
}

} // namespace

Family touchHelpersFamily()
{
    const auto page = [](const char* id, const char* summary, void (*build)(Stage&)) {
        return Page { QString::fromLatin1(id), QString::fromLatin1(summary), build, {} };
    };
    return {
        QStringLiteral("Touch helpers"),
        QStringLiteral(":/gallery/pages/touchhelpers.cpp"),
        {
            page("ButtonPressEventHandler",
                 "Tints a push button orange for as long as a finger holds it down.",
                 showButtonPressEventHandler),
            page("IgnoreEnterEventHandler", "Keeps Return and Enter from a widget and its dialog.",
                 showIgnoreEnterEventHandler),
            page("FocusRectangleProxyStyle", "A style without the dotted focus rectangle.",
                 showFocusRectangleProxyStyle),
            page("OxPushButtonStyleProxy",
                 "Breaks the text of a push button into lines where it is too long.",
                 showOxPushButtonStyleProxy),
        },
    };
}

} // namespace Gallery
