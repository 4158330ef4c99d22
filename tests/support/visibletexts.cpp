// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/visibletexts.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTabBar>
#include <QWidget>

namespace {

/// The texts of `widget` itself, each with its kind before it.
QStringList textsOf(const QWidget* widget)
{
    QStringList texts;
    const auto add = [&](const char* kind, const QString& text) {
        if (!text.isEmpty()) {
            texts.append(QStringLiteral("%1: %2: %3")
                             .arg(QString::fromLatin1(widget->metaObject()->className()),
                                  QLatin1String(kind), text));
        }
    };
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        add("text", label->text());
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        add("text", button->text());
    } else if (const auto* field = qobject_cast<const QLineEdit*>(widget)) {
        add("text", field->text());
        add("placeholder", field->placeholderText());
    } else if (const auto* group = qobject_cast<const QGroupBox*>(widget)) {
        add("title", group->title());
    } else if (const auto* combo = qobject_cast<const QComboBox*>(widget)) {
        for (int index = 0; index < combo->count(); ++index) {
            add("entry", combo->itemText(index));
        }
        add("current entry", combo->currentText());
    } else if (const auto* list = qobject_cast<const QListWidget*>(widget)) {
        for (int row = 0; row < list->count(); ++row) {
            add("item", list->item(row)->text());
        }
    } else if (const auto* tabs = qobject_cast<const QTabBar*>(widget)) {
        for (int index = 0; index < tabs->count(); ++index) {
            add("tab", tabs->tabText(index));
        }
    }
    add("tool tip", widget->toolTip());
    add("accessible name", widget->accessibleName());
    add("accessible description", widget->accessibleDescription());
    add("window title", widget->windowTitle());
    return texts;
}

} // namespace

QStringList visibleTexts(const QWidget& root)
{
    QStringList texts = textsOf(&root);
    const auto widgets = root.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        // Qt's own tab bar gives its two arrows their names once.
        if (qobject_cast<const QTabBar*>(widget->parentWidget()) == nullptr) {
            texts += textsOf(widget);
        }
    }
    return texts;
}

void settleLanguageChange()
{
    // The application posts it to the windows, which pass it on to what is in them.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}
