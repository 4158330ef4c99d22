// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLabel>
#include <QStringList>
#include <QTranslator>
#include <QWidget>

/// Makes each line of every text that is translated half as long again, for as long as it lives.
/// What stands behind a line's last letter stays there.
class LongTranslation
{
public:
    LongTranslation() { QCoreApplication::installTranslator(&m_translator); }
    ~LongTranslation() { QCoreApplication::removeTranslator(&m_translator); }

    Q_DISABLE_COPY_MOVE(LongTranslation)

private:
    class Translator : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }

        QString translate(const char* /*context*/, const char* source,
                          const char* /*disambiguation*/, int /*n*/) const override
        {
            QStringList lines = QString::fromUtf8(source).split(QLatin1Char('\n'));
            for (QString& line : lines) {
                line.prepend(line.left((line.size() + 1) / 2));
            }
            return lines.join(QLatin1Char('\n'));
        }
    };

    Translator m_translator;
};

/// The texts of the labels and buttons in `window` that do not fit where they are shown, or are
/// outside the window; empty when all do. Leaves out those below `except`, which may be null.
inline QString textsThatDoNotFit(const QWidget& window, const QWidget* except = nullptr)
{
    QStringList found;
    const auto check = [&](const QWidget* widget, const QString& text, int flags) {
        if (!widget->isVisible() || text.isEmpty()
            || (except != nullptr && except->isAncestorOf(widget))) {
            return;
        }
        const QRect room = widget->contentsRect();
        const QSize needed = widget->fontMetrics()
                                 .boundingRect(QRect(0, 0, room.width(), 10000), flags, text)
                                 .size();
        const QRect place(widget->mapTo(&window, QPoint()), widget->size());
        if (needed.width() > room.width() || needed.height() > room.height()
            || !window.rect().contains(place)) {
            found.append(text);
        }
    };
    const auto labels = window.findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        check(label, label->text(), label->wordWrap() ? Qt::TextWordWrap : 0);
    }
    const auto buttons = window.findChildren<QAbstractButton*>();
    for (const QAbstractButton* button : buttons) {
        check(button, button->text(), 0);
    }
    return found.join(QLatin1String(" | "));
}
