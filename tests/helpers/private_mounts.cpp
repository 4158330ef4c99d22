// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// Mounts things where nobody else sees them, except a program that it starts:
//
//   private_mounts PROGRAM [ARGUMENT...]
//
// Prints "ready", or "forbidden: ..." where the machine allows no private mounts. Then takes lines:
//
//   mount PATH      mounts an empty tmpfs there; PATH is made if need be
//   unmount PATH
//   end NUMBER      sends the program that signal and waits for it
//   restart         starts the program again
//
// and answers "done", "failed: ...", or "ended" and the program's exit code. It ends, and the
// program with it, when there are no more lines.

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <string>

#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::string reason()
{
    return std::strerror(errno);
}

void answer(bool done)
{
    std::cout << (done ? "done" : "failed: " + reason()) << std::endl;
}

bool write(const char* path, const std::string& text)
{
    std::ofstream file(path);
    file << text << std::flush;
    return bool(file);
}

/// Mounts of its own, and the right to make them. The user stays who it is: channels work between
/// processes of one user only.
bool enterPrivateNamespace()
{
    const std::string user = std::to_string(::geteuid());
    const std::string group = std::to_string(::getegid());
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0) {
        if (!write("/proc/self/uid_map", user + ' ' + user + " 1")
            || !write("/proc/self/setgroups", "deny")
            || !write("/proc/self/gid_map", group + ' ' + group + " 1")) {
            return false;
        }
    } else if (::unshare(CLONE_NEWNS) != 0) { // all that root needs
        return false;
    }
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

pid_t start(char* program[])
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        ::execv(program[0], program);
        ::_exit(127);
    }
    return child;
}

bool mountAt(const std::string& path)
{
    return (::mkdir(path.c_str(), 0755) == 0 || errno == EEXIST)
        && ::mount("tmpfs", path.c_str(), "tmpfs", 0, nullptr) == 0;
}

int exitCodeOf(pid_t child)
{
    int status = 0;
    return ::waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc < 2) {
        return 2;
    }
    if (!enterPrivateNamespace()) {
        std::cout << "forbidden: " << reason() << std::endl;
        return 1;
    }
    char** program = argv + 1;
    pid_t child = start(program);
    std::cout << "ready" << std::endl;

    std::string line;
    while (std::getline(std::cin, line)) {
        const auto blank = line.find(' ');
        const std::string command = line.substr(0, blank);
        const std::string argument = blank == std::string::npos ? "" : line.substr(blank + 1);
        if (command == "mount") {
            answer(mountAt(argument));
        } else if (command == "unmount") {
            answer(::umount2(argument.c_str(), 0) == 0);
        } else if (command == "end") {
            ::kill(child, std::atoi(argument.c_str()));
            std::cout << "ended " << exitCodeOf(child) << std::endl;
        } else if (command == "restart") {
            child = start(program);
            std::cout << "done" << std::endl;
        }
    }
    ::kill(child, SIGKILL);
    return 0;
}
