// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QEvent>
#include <QKeyEvent>
#include <QList>
#include <QObject>
#include <QString>

/// Records the key presses that reach a widget, also those that the widgets inside it passed on.
class KeyPresses : public QObject
{
public:
    struct Press
    {
        int key;
        /// As stored in the event: QKeyEvent::modifiers() adds Control to the Control key's own.
        Qt::KeyboardModifiers modifiers;
        QString text;
        bool autoRepeat;
        int count;
        bool spontaneous;
    };

    explicit KeyPresses(QObject* watched) { watched->installEventFilter(this); }

    const QList<Press>& list() const { return m_list; }
    qsizetype count() const { return m_list.count(); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            m_list.append({ key->key(), key->QInputEvent::modifiers(), key->text(),
                            key->isAutoRepeat(), key->count(), key->spontaneous() });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QList<Press> m_list;
};
