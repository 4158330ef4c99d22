// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// A second process that changes a symbol database:
//   symbol_store add DATABASE COUNT        adds symbols of 20 kB, one after the other
//   symbol_store update DATABASE FOLDER [MICROSECONDS]
//                                          updates it, and dies by SIGKILL after that time
//   symbol_store lock DATABASE [MILLISECONDS]
//                                          writes to it for that time, or until a line is read
// Each message of the model is printed as "error ..."; the last line is the number of symbols that
// were added, or of updates that succeeded.

#include "symboldatabasemodel.h"

#include <QGuiApplication>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <thread>

namespace {

int addSymbols(SymbolDatabaseModel& model, int count)
{
    const QByteArray data(20'000, 'x');
    int added = 0;
    for (int i = 0; i < count; ++i) {
        added +=
            model.addSymbol(data, "png", QStringLiteral("dog"), QStringLiteral("Animals")) ? 1 : 0;
    }
    return added;
}

/// Keeps everybody else from reading, as a process that hangs in the middle of a commit would.
int lockDatabase(SymbolDatabaseModel& model, int milliseconds)
{
    model.open(false);
    const bool locked = QSqlQuery(model.database()).exec(QStringLiteral("BEGIN EXCLUSIVE"));
    std::puts(locked ? "locked" : "not locked");
    std::fflush(stdout);
    if (milliseconds > 0) {
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    } else {
        std::getchar();
    }
    model.close();
    return locked ? 1 : 0;
}

void dieAfter(int microseconds)
{
    std::thread([microseconds] {
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds));
        std::raise(SIGKILL);
    }).detach();
}

} // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    SymbolDatabaseModel model;
    QObject::connect(&model, &SymbolDatabaseModel::errorOccured, &model, [](const QString& error) {
        std::printf("error %s\n", qUtf8Printable(error));
    });
    model.setDatabasePath(arguments.value(2));
    if (arguments.count() > 4) {
        dieAfter(arguments.at(4).toInt());
    }
    int done = 0;
    if (arguments.value(1) == QLatin1String("add")) {
        done = addSymbols(model, arguments.value(3).toInt());
    } else if (arguments.value(1) == QLatin1String("lock")) {
        done = lockDatabase(model, arguments.value(3).toInt());
    } else {
        done = model.updateDatabase(arguments.value(3)) ? 1 : 0;
        model.close();
    }
    std::printf("%d\n", done);
    return 0;
}
