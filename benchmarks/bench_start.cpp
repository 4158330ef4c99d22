// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// How long a process takes that is loaded with the library, and one that finds out that another
// instance runs, beside processes that have Qt Widgets alone.

#include "measure.h"

#include "qcopchannel.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstring>

#include <link.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const char ChannelName[] = "benchmark";

/// Starts a program of this folder, waits for its end and for `until`; returns milliseconds.
template <typename Until> double run(const char* program, const char* argument, Until until)
{
    const QByteArray path =
        QCoreApplication::applicationDirPath().toLocal8Bit() + '/' + QByteArray(program);
    char* arguments[] = { const_cast<char*>(program), const_cast<char*>(argument),
                          nullptr }; // for exec's sake
    QElapsedTimer timer;
    timer.start();
    pid_t process = 0;
    int status = 0;
    if (::posix_spawn(&process, path.constData(), nullptr, nullptr, arguments, environ) != 0
        || ::waitpid(process, &status, 0) != process || status != 0) {
        std::fprintf(stderr, "%s does not run\n", path.constData());
        std::exit(1);
    }
    until();
    return double(timer.nsecsElapsed()) / 1e6;
}

double run(const char* program, const char* argument)
{
    return run(program, argument, [] {});
}

struct Relocations
{
    const char* library;
    size_t relative = 0; // only moved
    size_t symbolic = 0; // looked up by name: these cost
};

int countRelocations(dl_phdr_info* info, size_t /*size*/, void* data)
{
    auto* relocations = static_cast<Relocations*>(data);
    if (std::strstr(info->dlpi_name, relocations->library) == nullptr) {
        return 0;
    }
    size_t all = 0;
    for (int i = 0; i < info->dlpi_phnum; ++i) {
        if (info->dlpi_phdr[i].p_type != PT_DYNAMIC) {
            continue;
        }
        const auto* entry =
            reinterpret_cast<const ElfW(Dyn)*>(info->dlpi_addr + info->dlpi_phdr[i].p_vaddr);
        for (; entry->d_tag != DT_NULL; ++entry) {
            if (entry->d_tag == DT_RELACOUNT) {
                relocations->relative = entry->d_un.d_val;
            } else if (entry->d_tag == DT_RELASZ || entry->d_tag == DT_PLTRELSZ) {
                all += entry->d_un.d_val / sizeof(ElfW(Rela));
            }
        }
    }
    relocations->symbolic = all - relocations->relative;
    return 1;
}

Relocations relocationsOf(const char* library)
{
    Relocations relocations { library };
    ::dl_iterate_phdr(countRelocations, &relocations);
    return relocations;
}

} // namespace

int main(int argc, char* argv[])
{
    const QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
    const QCoreApplication application(argc, argv);
    const QCopChannel first { QString::fromLatin1(ChannelName) };
    int told = 0;
    QObject::connect(&first, &QCopChannel::received, &application, [&] { ++told; });

    Measure::printHead("Start of a process");
    Measure::compare(
        "load and end, ms (peer: Qt Widgets alone; target 1.10)", 200,
        [] { return run("start_library", nullptr); }, [] { return run("start_widgets", nullptr); });
    Measure::compare(
        "second start until told, ms (peer: QApplication; 1.10)", 100,
        [&] {
            const int before = told;
            return run("start_library", ChannelName, [&] {
                while (told == before) {
                    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
                }
            });
        },
        [] { return run("start_widgets", "construct"); });

    const Relocations ours = relocationsOf("libUtilityWidgets");
    const Relocations widgets = relocationsOf("libQt6Widgets");
    Measure::printRow("relocations by name (peer: libQt6Widgets)", double(ours.symbolic),
                      double(widgets.symbolic));
    Measure::printRow("relative relocations (peer: libQt6Widgets)", double(ours.relative),
                      double(widgets.relative));
    return 0;
}
