// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>

class QGridLayout;
class QObject;
class QWidget;

namespace Gallery {

class SignalLog;

/*!
 * Where a page puts its live instances.
 *
 * Instances stand in columns, each under a caption; every signal that one emits appears in the
 * page's log under that caption.
 *
 * \code
 * stage.add(QStringLiteral("Enabled"), new OxLineEdit(QStringLiteral("Layer 1")));
 * stage.addStates([](const QString& text) { return new OxLineEdit(text); });
 * \endcode
 */
class Stage
{
public:
    Stage(QGridLayout* grid, SignalLog* log);

    /// How many instances stand side by side; 3 unless said otherwise. Starts a new row.
    void setColumns(int columns);

    /// Shows `widget`, which the page then owns, in the next free column.
    void add(const QString& caption, QWidget* widget);

    /// Shows `widget` over all columns, on a row of its own.
    void addWide(const QString& caption, QWidget* widget);

    /// Three instances of what `make` returns: enabled, disabled, and with a very long text.
    void addStates(const std::function<QWidget*(const QString& text)>& make,
                   const QString& text = QStringLiteral("Layer 1"));

    /// A button of the gallery's own that does something to the instances.
    void addAction(const QString& text, const std::function<void()>& action);

    /// Also logs the signals of an object that is no widget; the caller keeps owning it.
    void watch(const QString& name, QObject* object);

    /// Writes a line of the page's own into the log.
    void log(const QString& line);

private:
    void place(const QString& caption, QWidget* widget, int span);

    QGridLayout* m_grid;
    SignalLog* m_log;
    int m_columns = 3;
    int m_row = 0;
    int m_column = 0;
};

} // namespace Gallery
