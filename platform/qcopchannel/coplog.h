// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "logger.h"

/// A warning in the process's log; its arguments are those of printf.
#define COP_WARNING                                                                                \
    CuteMessageLogger(loggerInstance(), CuteMessageLogger::Warning, __FILE__, __LINE__,            \
                      Q_FUNC_INFO)                                                                 \
        .write
