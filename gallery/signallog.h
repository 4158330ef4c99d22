// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPlainTextEdit>

#include <memory>
#include <vector>

namespace Gallery {

/*!
 * Shows every signal that the watched objects emit, with its arguments.
 *
 * What the classes of the library add is shown strong, what they inherit from Qt's widgets faint;
 * what every QWidget has is left out. A line that repeats the one before is counted, not repeated.
 */
class SignalLog : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit SignalLog(QWidget* parent = nullptr);
    ~SignalLog() override;

    /// Logs the signals of `object` under `name` until the object dies or the log is reset.
    void watch(const QString& name, QObject* object);

    /// Adds `line`, or counts it if it is the same as the last one.
    void addLine(const QString& line, bool strong);

    /// Forgets all watched objects and clears the text.
    void reset();

private:
    class Watcher;

    std::vector<std::unique_ptr<Watcher>> m_watchers;
    QString m_lastLine;
    int m_repeats = 1;
};

} // namespace Gallery
