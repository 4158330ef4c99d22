// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// Messages between two processes, on channels and on a local socket that is connected already.

#include "measure.h"

#include "qcopchannel.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>

#include <unistd.h>

namespace {

const QString There = QStringLiteral("benchmark, there");
const QString Back = QStringLiteral("benchmark, back");
const QString Ping = QStringLiteral("ping");
const QString Count = QStringLiteral("count");
const QString Last = QStringLiteral("last");

constexpr int MessageSize = 100; // bytes
constexpr int RoundTrips = 500;
constexpr int Messages = 20000;
constexpr int Rounds = 31;

// The socket's messages are a letter, for its kind, and the rest of MessageSize.

/// The other process: answers what asks for an answer.
int answer(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    QCopChannel channel(There);
    QObject::connect(&channel, &QCopChannel::received, &application,
                     [](const QString& msg, const QByteArray& data) {
                         if (msg != Count) {
                             QCopChannel::send(Back, msg, data);
                         }
                     });
    QLocalServer server;
    server.listen(QString::fromLocal8Bit(argv[1]));
    QObject::connect(&server, &QLocalServer::newConnection, &application, [&] {
        QLocalSocket* socket = server.nextPendingConnection();
        QObject::connect(socket, &QLocalSocket::readyRead, socket, [socket] {
            while (socket->bytesAvailable() >= MessageSize) {
                const QByteArray message = socket->read(MessageSize);
                if (message.at(0) != 'c') {
                    socket->write(message);
                }
            }
        });
        QObject::connect(socket, &QLocalSocket::disconnected, &application,
                         &QCoreApplication::quit);
    });
    std::puts("ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

class Benchmark
{
public:
    explicit Benchmark(const QString& socketName)
        : m_channel(Back)
    {
        QObject::connect(&m_channel, &QCopChannel::received, &m_channel, [this] { ++m_answers; });
        QObject::connect(&m_socket, &QLocalSocket::readyRead, &m_channel, [this] {
            while (m_socket.bytesAvailable() >= MessageSize) {
                m_socket.read(MessageSize);
                ++m_answers;
            }
        });
        m_socket.connectToServer(socketName);
        m_socket.waitForConnected();
    }

    /// Microseconds per message that is sent there and comes back.
    template <typename Send> double roundTrip(Send send)
    {
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < RoundTrips; ++i) {
            send();
            waitForAnswer();
        }
        return double(timer.nsecsElapsed()) / 1e3 / RoundTrips;
    }

    /// Microseconds per message, of many on their way at once, until the last is answered.
    template <typename Send> double stream(Send send)
    {
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < Messages; ++i) {
            send(i == Messages - 1);
        }
        waitForAnswer();
        return double(timer.nsecsElapsed()) / 1e3 / Messages;
    }

    void run()
    {
        const QByteArray data(MessageSize, 'x');
        const QByteArray ping = 'p' + data.mid(1);
        const QByteArray count = 'c' + data.mid(1);
        const auto sendOnChannel = [&](bool last) {
            if (!QCopChannel::send(There, last ? Last : Count, data)) {
                std::fputs("a message was lost\n", stderr);
                std::exit(1);
            }
        };
        Measure::printHead("Channel (peer: QLocalSocket; target 1.00)");
        Measure::compare(
            "round trip, us", Rounds,
            [&] { return roundTrip([&] { QCopChannel::send(There, Ping, data); }); },
            [&] { return roundTrip([&] { m_socket.write(ping); }); });
        Measure::compare(
            "a message of many, us; peer lets each leave, as channels do", Rounds,
            [&] { return stream(sendOnChannel); },
            [&] {
                return stream([&](bool last) {
                    m_socket.write(last ? ping : count);
                    while (m_socket.bytesToWrite() > 0) {
                        m_socket.waitForBytesWritten();
                    }
                });
            });
        Measure::compare(
            "a message of many, us; peer collects them in a buffer", Rounds,
            [&] { return stream(sendOnChannel); },
            [&] { return stream([&](bool last) { m_socket.write(last ? ping : count); }); });
    }

private:
    void waitForAnswer()
    {
        const int before = m_answered;
        m_answered = before + 1;
        while (m_answers < m_answered) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    QCopChannel m_channel;
    QLocalSocket m_socket;
    int m_answers = 0;
    int m_answered = 0;
};

} // namespace

int main(int argc, char* argv[])
{
    if (argc > 1) {
        return answer(argc, argv);
    }
    const QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
    const QCoreApplication application(argc, argv);
    const QString socketName = runtime.filePath(QStringLiteral("socket"));
    QProcess other;
    other.start(QCoreApplication::applicationFilePath(), { socketName });
    other.waitForReadyRead();
    {
        Benchmark benchmark(socketName);
        benchmark.run();
    }
    other.waitForFinished();
    return 0;
}
