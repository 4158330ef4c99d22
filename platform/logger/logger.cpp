// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "logger.h"

#include <QLoggingCategory>
#include <QString>

#include <cstdarg>

class Logger
{
public:
    const QLoggingCategory& category() const { return m_category; }

private:
    QLoggingCategory m_category { "UtilityWidgets" };
};

Logger* loggerInstance()
{
    static Logger logger;
    return &logger;
}

CuteMessageLogger::CuteMessageLogger(Logger* logger, int level, const char* file, int line,
                                     const char* function)
    : m_logger(logger)
    , m_level(level)
    , m_file(file)
    , m_line(line)
    , m_function(function)
{ }

void CuteMessageLogger::write(const char* format, ...) const
{
    va_list arguments;
    va_start(arguments, format);
    const QByteArray text = QString::vasprintf(format, arguments).toUtf8();
    va_end(arguments);

    const QMessageLogger log(m_file, m_line, m_function);
    const QLoggingCategory& category = m_logger->category();
    if (m_level <= Debug) {
        log.debug(category, "%s", text.constData());
    } else if (m_level == Info) {
        log.info(category, "%s", text.constData());
    } else if (m_level == Warning) {
        log.warning(category, "%s", text.constData());
    } else {
        // Never QMessageLogger::fatal(): that would abort the host.
        log.critical(category, "%s", text.constData());
    }
}
