// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "platform.h"

#include <ApplicationFont>

#include "logger.h"

#include <QLoggingCategory>

QStringList& loggedLines()
{
    static QStringList lines;
    return lines;
}

void setDeviceFontSizes()
{
    //! [sizes]
    ApplicationFont::Sizes sizes;
    sizes.normal = 14; // points
    sizes.large = 17;
    ApplicationFont::setSizes(sizes); // before the first widget is made
    //! [sizes]
}

//! [handler]
void keepLine(QtMsgType /*type*/, const QMessageLogContext& context, const QString& message)
{
    if (qstrcmp(context.category, "UtilityWidgets") == 0) {
        loggedLines().append(message);
    }
}

void collectLog()
{
    qInstallMessageHandler(keepLine);
}
//! [handler]

void logDetails()
{
    //! [rules]
    QLoggingCategory::setFilterRules(QStringLiteral("UtilityWidgets.debug=false"));
    //! [rules]
}

void logFailure(const QString& path)
{
    //! [log]
    CuteMessageLogger(loggerInstance(), CuteMessageLogger::Warning, __FILE__, __LINE__, Q_FUNC_INFO)
        .write("Cannot read %s", qUtf8Printable(path));
    //! [log]
}
