// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// The other process of the channel tests.
//
//   channel_peer listen CHANNEL...          prints "ready", then what it gets; takes commands
//   channel_peer send CHANNEL COUNT SIZE    sends numbered messages and is gone
//   channel_peer fork CHANNEL               sends from a process and from a fork of it
//   channel_peer intrude FOLDER SOCKET      sends as another user; for root only

#include "qcopchannel.h"

#include <QCoreApplication>
#include <QFile>
#include <QSocketNotifier>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

void print(const QByteArray& line)
{
    std::printf("%s\n", line.constData());
    std::fflush(stdout);
}

/// Unbuffered, so that nothing is held back from the notifier.
QByteArray readLine()
{
    QByteArray line;
    char next = 0;
    while (::read(STDIN_FILENO, &next, 1) == 1 && next != '\n') {
        line += next;
    }
    return line;
}

QByteArray residentKilobytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = status.readAll().split('\n');
        for (const QByteArray& line : lines) {
            if (line.startsWith("VmRSS:")) {
                return line.simplified().split(' ').at(1);
            }
        }
    }
    return "?";
}

class Listener : public QObject
{
public:
    explicit Listener(const QStringList& names)
    {
        for (const QString& name : names) {
            m_channels.push_back(std::make_unique<QCopChannel>(name));
            connect(m_channels.back().get(), &QCopChannel::received, this, &Listener::onReceived);
        }
        connect(&m_commands, &QSocketNotifier::activated, this, &Listener::onCommand);
    }

private:
    void onReceived(const QString& msg, const QByteArray& data)
    {
        const QByteArray text(reinterpret_cast<const char*>(msg.constData()), msg.size() * 2);
        const QByteArray line = "got " + (msg.isNull() ? QByteArray("null") : text.toHex()) + ' '
            + (data.isNull() ? QByteArray("null") : data.toHex());
        if (m_collecting) {
            m_collected += line;
        } else {
            print(line);
        }
    }

    void onCommand()
    {
        const QByteArray command = readLine();
        if (command == "busy") { // until it is told anything
            print("busy");
            readLine();
        } else if (command == "collect") { // so that a full pipe does not stop it
            m_collecting = true;
            print("collecting");
        } else if (command == "count") {
            print(QByteArray::number(m_collected.size()));
        } else if (command == "print") {
            print(m_collected.join('\n'));
        } else if (command == "rss") {
            print(residentKilobytes());
        } else if (command == "close") {
            m_channels.clear();
            print("closed");
        } else {
            QCoreApplication::quit();
        }
    }

    QSocketNotifier m_commands { STDIN_FILENO, QSocketNotifier::Read };
    std::vector<std::unique_ptr<QCopChannel>> m_channels;
    QByteArrayList m_collected;
    bool m_collecting = false;
};

int listen(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QStringList names;
    for (int i = 2; i < argc; ++i) {
        names += QString::fromUtf8(argv[i]);
    }
    const Listener listener(names);
    print("ready");
    return QCoreApplication::exec();
}

bool sendNumber(const QString& channel, int number, int size)
{
    return QCopChannel::send(channel, QString::number(number), QByteArray(size, char(number)));
}

/// No application object, no event loop, and not even the end of main() is reached.
[[noreturn]] void send(const QString& channel, int count, int size)
{
    for (int i = 0; i < count; ++i) {
        if (!sendNumber(channel, i, size)) {
            ::_exit(1);
        }
    }
    ::_exit(0);
}

int sendAndFork(const QString& channel)
{
    bool sent = sendNumber(channel, 0, 1);
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(sendNumber(channel, 1, 1) ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    sent = sendNumber(channel, 2, 1) && sent;
    return sent && status == 0 ? 0 : 1;
}

int intrude(const char* folder, const char* socketName)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, socketName, sizeof(address.sun_path) - 1);
    constexpr unsigned SomebodyElse = 12345;
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    if (::chdir(folder) != 0 || ::setgid(SomebodyElse) != 0 || ::setuid(SomebodyElse) != 0
        || ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0) {
        std::perror("channel_peer intrude");
        return 1;
    }
    const char frame[] = "\1\0\0\0\10\0\0\0\0\0\0\0\0"; // an empty text and empty data
    if (::write(socket, frame, sizeof(frame) - 1) > 0) {
        print("sent");
    }
    char end = 0;
    print(::read(socket, &end, 1) <= 0 ? "closed" : "answered");
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    const QByteArray mode(argc > 2 ? argv[1] : "");
    if (mode == "listen") {
        return listen(argc, argv);
    }
    if (mode == "send" && argc == 5) {
        send(QString::fromUtf8(argv[2]), std::atoi(argv[3]), std::atoi(argv[4]));
    }
    if (mode == "fork") {
        return sendAndFork(QString::fromUtf8(argv[2]));
    }
    if (mode == "intrude" && argc == 4) {
        return intrude(argv[2], argv[3]);
    }
    return 2;
}
