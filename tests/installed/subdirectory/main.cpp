// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include <OxTitleBar>
#include <QApplication>

#include "logger.h"

#ifndef DEVICE_LOGGER
#error "The library's own logger.h was found before the device's"
#endif

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    OxTitleBar bar(nullptr, QString(), "Title");
    CuteMessageLogger(loggerInstance(), CuteMessageLogger::Info, __FILE__, __LINE__, Q_FUNC_INFO)
        .write("bar %d", bar.height());
    return 0;
}
