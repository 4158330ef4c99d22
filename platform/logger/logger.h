// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

/// The process's log. Opaque: it is only handed to CuteMessageLogger.
class Logger;

/// The one logger of this process; never null. Any thread, and until the process has ended: also
/// destructors of static objects may use it.
UTILITYWIDGETS_EXPORT Logger* loggerInstance();

/*!
 * \brief Writes one line to the process's log, with the place in the source that wrote it.
 *
 * The line goes to Qt's message logging under the category "UtilityWidgets", with the given file,
 * line and function as its context. Hosts therefore filter and redirect it with what they already
 * have: `QT_LOGGING_RULES`, QLoggingCategory::setFilterRules, qInstallMessageHandler.
 *
 * \code
 * CuteMessageLogger(loggerInstance(), CuteMessageLogger::Warning, __FILE__, __LINE__, Q_FUNC_INFO)
 *     .write("Cannot read %s", qUtf8Printable(path));
 * \endcode
 *
 * Use it in code that the family of applications shares; an application's own diagnostics may as
 * well use qCWarning(). Any thread.
 */
class UTILITYWIDGETS_EXPORT CuteMessageLogger
{
public:
    /// How grave a line is. Trace and Debug become Qt's debug messages, Error and Fatal its
    /// critical ones: a line in the log never ends the process, not even a fatal one.
    enum Level {
        Trace = 0,
        Debug = 1,
        Info = 2,
        Warning = 3,
        Error = 4,
        Fatal = 5,
    };

    /// `logger` is loggerInstance(); null means the same. A `level` outside 0 to 5 counts as the
    /// nearest one. `file` and `function` are not copied: they must live until write() returns.
    CuteMessageLogger(Logger* logger, int level, const char* file, int line, const char* function);

    /// Formats like printf (texts in UTF-8) and writes one line. A line break is not added.
    void write(const char* format, ...) const
#if defined(__GNUC__)
        __attribute__((format(printf, 2, 3)))
#endif
        ;

private:
    Logger* m_logger;
    int m_level;
    const char* m_file;
    int m_line;
    const char* m_function;
};
