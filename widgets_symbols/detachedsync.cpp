// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "detachedsync.h"

#include <QMutex>

#include <algorithm>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Starts "sync" and returns its process; 0 if there is none.
///
/// Not by QProcess, which forks: with a large library in memory, that takes milliseconds, and
/// everything that is written afterwards must be made writable again page by page, which takes
/// longer than showing the library.
pid_t spawnSync()
{
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    // It survives the end of this process, and of its terminal.
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    // Who is at the other end of one of our pipes does not wait for it either.
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDWR, 0);
    posix_spawn_file_actions_adddup2(&files, STDIN_FILENO, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&files, STDIN_FILENO, STDERR_FILENO);
    char name[] = "sync";
    char* const arguments[] = { name, nullptr };
    pid_t process = 0;
    const int error = posix_spawnp(&process, name, &files, &attributes, arguments, environ);
    posix_spawn_file_actions_destroy(&files);
    posix_spawnattr_destroy(&attributes);
    return error == 0 ? process : 0;
}

} // namespace

void startDetachedSync()
{
    // Never destroyed, because a thread may still close a database while the process ends.
    static QBasicMutex mutex;
    static auto& started = *new std::vector<pid_t>;
    const QMutexLocker lock(&mutex);
    // Those that have ended since would stay zombies: nobody else waits for them.
    const auto hasEnded = [](pid_t process) {
        return waitpid(process, nullptr, WNOHANG) != 0;
    };
    started.erase(std::remove_if(started.begin(), started.end(), hasEnded), started.end());
    const pid_t process = spawnSync();
    if (process > 0) {
        started.push_back(process);
    }
}
