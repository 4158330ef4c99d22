// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include <OxCollapsibleWidgetContainer>
#include <OxSingleInstanceApplication>
#include <OxTitleBar>

#include <QLabel>

#include "applicationfont.h"
#include "logger.h"
#include "qcopchannel.h"

#include <cstdio>
#include <type_traits>

static_assert(std::is_empty_v<CuteMessageLogger>,
              "The library's own logger.h was found before the device's");

int main(int argc, char* argv[])
{
    OxSingleInstanceApplication application(argc, argv, "Product");
    OxTitleBar bar(nullptr, QString(), "Title");
    CuteMessageLogger(loggerInstance(), CuteMessageLogger::Info, __FILE__, __LINE__, Q_FUNC_INFO)
        .write("bar %d", bar.height());

    const OxCollapsibleWidgetContainer section(nullptr);
    const auto labels = section.findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (label->font().family() == "Device Sans") {
            std::printf("font of %d points\n", label->font().pointSize());
        }
    }
    std::printf("%s\n", QCopChannel::isRegistered("Product") ? "listening" : "deaf");
    return 0;
}
