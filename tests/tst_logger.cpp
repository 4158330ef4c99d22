// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "logger.h"

#include "support/test.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <mutex>
#include <thread>
#include <vector>

namespace {

struct Line
{
    QtMsgType type;
    QString text;
    QByteArray category;
    QByteArray file;
    int line;
    QByteArray function;
};

/// Collects what is logged until the end of the scope.
class Log
{
public:
    Log()
    {
        lines().clear();
        m_before = qInstallMessageHandler(collect);
    }
    ~Log() { qInstallMessageHandler(m_before); }

    Q_DISABLE_COPY_MOVE(Log)

    static std::vector<Line>& lines()
    {
        static std::vector<Line> all;
        return all;
    }

private:
    static void collect(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        static std::mutex mutex;
        const std::lock_guard lock(mutex);
        lines().push_back(
            { type, text, context.category, context.file, context.line, context.function });
    }

    QtMessageHandler m_before;
};

} // namespace

class TestLogger : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void thereIsOneLogger();
    void eachLevelHasItsNumberAndKind_data();
    void eachLevelHasItsNumberAndKind();
    void aLineCarriesCategoryFileLineAndFunction();
    void formatsLikePrintf();
    void textsAreInUtf8();
    void percentSignsInTextsAreLeftAlone();
    void longLinesAreNotCut();
    void evenAFatalLineLetsTheProcessLive();
    void filterRulesApply();
    void anyThreadMayWrite();
    void noLoggerMeansTheOneThereIs();
};

void TestLogger::thereIsOneLogger()
{
    QVERIFY(loggerInstance() != nullptr);
    QCOMPARE(loggerInstance(), loggerInstance());
}

void TestLogger::eachLevelHasItsNumberAndKind_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("number");
    QTest::addColumn<QtMsgType>("type");

    const auto row = [](const char* name, int level, int number, QtMsgType type) {
        QTest::newRow(name) << level << number << type;
    };
    row("trace", CuteMessageLogger::Trace, 0, QtDebugMsg);
    row("debug", CuteMessageLogger::Debug, 1, QtDebugMsg);
    row("info", CuteMessageLogger::Info, 2, QtInfoMsg);
    row("warning", CuteMessageLogger::Warning, 3, QtWarningMsg);
    row("error", CuteMessageLogger::Error, 4, QtCriticalMsg);
    row("fatal", CuteMessageLogger::Fatal, 5, QtCriticalMsg);
    row("below the lowest", -1, -1, QtDebugMsg);
    row("above the highest", 6, 6, QtCriticalMsg);
}

void TestLogger::eachLevelHasItsNumberAndKind()
{
    QFETCH(const int, level);
    QFETCH(const int, number);
    QFETCH(const QtMsgType, type);
    QCOMPARE(level, number);
    {
        const Log log;
        CuteMessageLogger(loggerInstance(), level, "a.cpp", 1, "f").write("line");
    }
    QCOMPARE(Log::lines().size(), size_t(1));
    QCOMPARE(Log::lines()[0].type, type);
}

void TestLogger::aLineCarriesCategoryFileLineAndFunction()
{
    {
        const Log log;
        CuteMessageLogger(loggerInstance(), CuteMessageLogger::Info, "some/file.cpp", 42,
                          "void Some::function()")
            .write("text");
    }
    QCOMPARE(Log::lines().size(), size_t(1));
    const Line& line = Log::lines()[0];
    QCOMPARE(line.text, QStringLiteral("text"));
    QCOMPARE(line.category, QByteArray("UtilityWidgets"));
    QCOMPARE(line.file, QByteArray("some/file.cpp"));
    QCOMPARE(line.line, 42);
    QCOMPARE(line.function, QByteArray("void Some::function()"));
}

void TestLogger::formatsLikePrintf()
{
    {
        const Log log;
        CuteMessageLogger(loggerInstance(), CuteMessageLogger::Info, "a.cpp", 1, "f")
            .write("%s|%5d|%-3u|%c|%.2f|%lld|%zu|%#x|%%", "text", -7, 8U, 'c', 0.125, 1LL << 40,
                   size_t(9), 255U);
    }
    QCOMPARE(Log::lines().at(0).text,
             QStringLiteral("text|   -7|8  |c|0.12|1099511627776|9|0xff|%"));
}

void TestLogger::textsAreInUtf8()
{
    {
        const Log log;
        CuteMessageLogger(loggerInstance(), CuteMessageLogger::Info, "a.cpp", 1, "f")
            .write("Maß %s", "Größe 線");
    }
    QCOMPARE(Log::lines().at(0).text, QString::fromUtf8("Maß Größe 線"));
}

void TestLogger::percentSignsInTextsAreLeftAlone()
{
    {
        const Log log;
        CuteMessageLogger(loggerInstance(), CuteMessageLogger::Info, "a.cpp", 1, "f")
            .write("%s", "100 %s %n %d");
    }
    QCOMPARE(Log::lines().at(0).text, QStringLiteral("100 %s %n %d"));
}

void TestLogger::longLinesAreNotCut()
{
    const QByteArray text(100'000, 'x');
    {
        const Log log;
        CuteMessageLogger(loggerInstance(), CuteMessageLogger::Info, "a.cpp", 1, "f")
            .write("%s", text.constData());
    }
    QCOMPARE(Log::lines().at(0).text, QString::fromLatin1(text));
}

void TestLogger::evenAFatalLineLetsTheProcessLive()
{
    QTest::ignoreMessage(QtCriticalMsg, "the end");
    CuteMessageLogger(loggerInstance(), CuteMessageLogger::Fatal, "a.cpp", 1, "f").write("the end");
}

void TestLogger::filterRulesApply()
{
    QLoggingCategory::setFilterRules(QStringLiteral("UtilityWidgets.info=false"));
    {
        const Log log;
        CuteMessageLogger(loggerInstance(), CuteMessageLogger::Info, "a.cpp", 1, "f").write("no");
        CuteMessageLogger(loggerInstance(), CuteMessageLogger::Warning, "a.cpp", 1, "f")
            .write("yes");
    }
    QLoggingCategory::setFilterRules(QString());
    QCOMPARE(Log::lines().size(), size_t(1));
    QCOMPARE(Log::lines()[0].text, QStringLiteral("yes"));
}

void TestLogger::anyThreadMayWrite()
{
    constexpr int Threads = 4;
    constexpr int Count = 250;
    {
        const Log log;
        std::vector<std::thread> threads;
        threads.reserve(Threads);
        for (int i = 0; i < Threads; ++i) {
            threads.emplace_back([i] {
                for (int j = 0; j < Count; ++j) {
                    CuteMessageLogger(loggerInstance(), CuteMessageLogger::Info, "a.cpp", 1, "f")
                        .write("%d %d", i, j);
                }
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
    }
    QCOMPARE(Log::lines().size(), size_t(Threads * Count));
    std::vector<int> next(Threads, 0);
    for (const Line& line : Log::lines()) {
        const QStringList numbers = line.text.split(QLatin1Char(' '));
        QCOMPARE(numbers.at(1).toInt(), next.at(size_t(numbers.at(0).toInt()))++);
    }
}

void TestLogger::noLoggerMeansTheOneThereIs()
{
    QTest::ignoreMessage(QtInfoMsg, "text");
    CuteMessageLogger(nullptr, CuteMessageLogger::Info, "a.cpp", 1, "f").write("text");
}

UW_TEST_MAIN_WITH(QCoreApplication, TestLogger)

#include "tst_logger.moc"
