// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "logger.h"

#include <cstdarg>
#include <cstdio>

class Logger
{ };

Logger* loggerInstance()
{
    static Logger logger;
    return &logger;
}

CuteMessageLogger::CuteMessageLogger(Logger* /*logger*/, int /*level*/, const char* /*file*/,
                                     int /*line*/, const char* /*function*/)
{ }

void CuteMessageLogger::write(const char* format, ...) const
{
    std::fputs("device: ", stdout);
    va_list arguments;
    va_start(arguments, format);
    std::vprintf(format, arguments);
    va_end(arguments);
    std::putchar('\n');
}
