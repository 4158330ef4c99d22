// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

//! [logger]
class Logger;

Logger* loggerInstance();

class CuteMessageLogger
{
public:
    enum Level { Trace, Debug, Info, Warning, Error, Fatal };

    CuteMessageLogger(Logger* logger, int level, const char* file, int line, const char* function);

    void write(const char* format, ...) const __attribute__((format(printf, 2, 3)));
};
//! [logger]
