// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "logger.h"

#include <QByteArray>
#include <QLoggingCategory>

#include <algorithm>
#include <cstdarg>
#include <cstdio>

class Logger
{
public:
    const QLoggingCategory& category() const { return m_category; }

private:
    QLoggingCategory m_category { "UtilityWidgets" };
};

namespace {

QtMsgType messageType(int level)
{
    if (level <= CuteMessageLogger::Debug) {
        return QtDebugMsg;
    }
    if (level == CuteMessageLogger::Info) {
        return QtInfoMsg;
    }
    // Never QtFatalMsg: that would abort the host.
    return level == CuteMessageLogger::Warning ? QtWarningMsg : QtCriticalMsg;
}

} // namespace

Logger* loggerInstance()
{
    // Never destroyed: destructors of other static objects may have something to say.
    static auto* const logger = new Logger;
    return logger;
}

CuteMessageLogger::CuteMessageLogger(Logger* logger, int level, const char* file, int line,
                                     const char* function)
    : m_logger(logger != nullptr ? logger : loggerInstance())
    , m_level(level)
    , m_file(file)
    , m_line(line)
    , m_function(function)
{ }

void CuteMessageLogger::write(const char* format, ...) const
{
    const QLoggingCategory& category = m_logger->category();
    const QtMsgType type = messageType(m_level);
    if (!category.isEnabled(type)) {
        return;
    }
    va_list arguments;
    va_start(arguments, format);
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    QByteArray text(std::max(length, 0), Qt::Uninitialized);
    std::vsnprintf(text.data(), size_t(text.size()) + 1, format, again);
    va_end(again);

    const QMessageLogger log(m_file, m_line, m_function);
    if (type == QtDebugMsg) {
        log.debug(category, "%s", text.constData());
    } else if (type == QtInfoMsg) {
        log.info(category, "%s", text.constData());
    } else if (type == QtWarningMsg) {
        log.warning(category, "%s", text.constData());
    } else {
        log.critical(category, "%s", text.constData());
    }
}
