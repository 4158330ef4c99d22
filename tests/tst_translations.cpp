// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// What is in translations/: complete, of today's texts, and nothing that a translation can break is
// broken. And that no text of the library changes unnoticed: see tests/texts.txt.

#include "oxtranslation.h"
#include "support/test.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

struct Message
{
    QString context;
    QString source;
    QString comment;
    bool hasComment = false;
    QString translation;
    /// "unfinished", "vanished" or "obsolete"; empty for one that is in use and done.
    QString state;

    /// As a line of the list of texts, without line breaks and with blanks that can be seen.
    QString line() const
    {
        const auto shown = [](QString text) -> QString {
            text.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
            return QLatin1Char('"') + text.replace(QLatin1Char('\n'), QStringLiteral("\\n"))
                + QLatin1Char('"');
        };
        return context + QLatin1Char('\t') + shown(source)
            + (hasComment ? QLatin1Char('\t') + shown(comment) : QString());
    }
};

QString projectFile(const QString& path)
{
    return QStringLiteral(PROJECT_FOLDER "/") + path;
}

/// Those that have a file: one that is added is tested without being named here.
QStringList languages()
{
    QStringList codes =
        QDir(projectFile(QStringLiteral("translations"))).entryList({ QStringLiteral("*.ts") });
    codes.replaceInStrings(QStringLiteral("utilitywidgets_"), QString());
    return codes.replaceInStrings(QStringLiteral(".ts"), QString());
}

QString translationFile(const QString& language)
{
    return projectFile(QStringLiteral("translations/utilitywidgets_%1.ts").arg(language));
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QList<Message> messagesIn(const QString& path)
{
    const QByteArray document = contents(path);
    QXmlStreamReader xml(document);
    QList<Message> messages;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            messages.append(Message());
            messages.last().context = context;
        } else if (xml.name() == QLatin1String("source")) {
            messages.last().source = xml.readElementText();
        } else if (xml.name() == QLatin1String("comment")) {
            messages.last().comment = xml.readElementText();
            messages.last().hasComment = true;
        } else if (xml.name() == QLatin1String("translation")) {
            messages.last().state = xml.attributes().value(QLatin1String("type")).toString();
            messages.last().translation = xml.readElementText();
        }
    }
    if (xml.hasError()) {
        qWarning("%s: %s", qPrintable(path), qPrintable(xml.errorString()));
    }
    return messages;
}

/// Runs the program that finds the texts in the sources. An empty text is a success.
QString updateTexts(const QString& file)
{
    QProcess lupdate;
    lupdate.setWorkingDirectory(QStringLiteral(PROJECT_FOLDER));
    lupdate.start(QStringLiteral(LUPDATE),
                  { QStringLiteral("-silent"), QStringLiteral("-no-obsolete"),
                    QStringLiteral("-locations"), QStringLiteral("none"),
                    QStringLiteral("platform"), QStringLiteral("look"), QStringLiteral("touch"),
                    QStringLiteral("widgets"), QStringLiteral("widgets_symbols"),
                    QStringLiteral("-ts"), file });
    if (!lupdate.waitForFinished(120000)) {
        return lupdate.errorString();
    }
    return QString::fromLocal8Bit(lupdate.readAllStandardError());
}

/// What all matches of `pattern` in `text` are, in alphabetical order: where they stand is the
/// language's business.
QStringList matches(const QString& text, const char* pattern)
{
    const QRegularExpression expression { QLatin1String(pattern) };
    QStringList found;
    auto match = expression.globalMatch(text);
    while (match.hasNext()) {
        found.append(match.next().captured());
    }
    found.sort();
    return found;
}

/// Texts that are joined to others: a language that writes compounds as one word, or has another
/// order, has no blank there.
bool isPartOfATitle(const Message& message)
{
    return message.source == QLatin1String(" Name") || message.source == QLatin1String(" Dialog");
}

} // namespace

class TestTranslations : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void noLanguageIsLost();
    void noTextChangesUnnoticed();

    void everyFileHoldsTheTextsOfToday_data();
    void everyFileHoldsTheTextsOfToday();
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void placeholdersBlanksAndLinesAreKept_data();
    void placeholdersBlanksAndLinesAreKept();
    void acceleratorsAreKept_data();
    void acceleratorsAreKept();
    void aFrenchColonStaysWithItsWord();
    void theEmbeddedFileSpeaksAsTheSourceDoes_data();
    void theEmbeddedFileSpeaksAsTheSourceDoes();

private:
    static void addLanguages();
};

void TestTranslations::addLanguages()
{
    QTest::addColumn<QString>("language");
    const QStringList all = languages();
    for (const QString& language : all) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void TestTranslations::noLanguageIsLost()
{
    const QStringList all = languages();
    for (const char* language : { "ar", "de", "es", "fr", "ja" }) {
        QVERIFY2(all.contains(QLatin1String(language)), language);
    }
}

void TestTranslations::noTextChangesUnnoticed()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("texts_en.ts"));
    QCOMPARE(updateTexts(file), QString());
    QStringList lines;
    const QList<Message> messages = messagesIn(file);
    for (const Message& message : messages) {
        lines.append(message.line());
    }
    lines.sort();
    const QByteArray today = lines.join(QLatin1Char('\n')).toUtf8() + '\n';

    const QString list = projectFile(QStringLiteral("tests/texts.txt"));
    const QByteArray former = contents(list);
    if (today == former) {
        return;
    }
    QFile written(QStringLiteral(TEXTS_OF_TODAY));
    QVERIFY(written.open(QIODevice::WriteOnly));
    written.write(today);
    const QList<QByteArray> formerLines = former.split('\n');
    const QSet<QByteArray> before(formerLines.begin(), formerLines.end());
    const QList<QByteArray> todaysLines = today.split('\n');
    const QSet<QByteArray> now(todaysLines.begin(), todaysLines.end());
    QByteArray difference;
    for (const QByteArray& line : formerLines) {
        difference += now.contains(line) ? QByteArray() : "\n- " + line;
    }
    for (const QByteArray& line : todaysLines) {
        difference += before.contains(line) ? QByteArray() : "\n+ " + line;
    }
    const QByteArray message =
        "texts or their comments have changed, and every translation of them "
        "with them:"
        + difference + "\nIf that is meant: cp " TEXTS_OF_TODAY " " + list.toLocal8Bit()
        + ", then build the target update_translations and translate";
    QFAIL(message.constData());
}

void TestTranslations::everyFileHoldsTheTextsOfToday_data()
{
    addLanguages();
}

void TestTranslations::everyFileHoldsTheTextsOfToday()
{
    QFETCH(QString, language);
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QFileInfo(translationFile(language)).fileName());
    QVERIFY(QFile::copy(translationFile(language), copy));
    QCOMPARE(updateTexts(copy), QString());
    // As it was, to the letter: otherwise the next update makes a difference that nobody wants.
    QVERIFY2(contents(copy) == contents(translationFile(language)),
             "build the target update_translations and translate what is new");
}

void TestTranslations::everyTextIsTranslated_data()
{
    addLanguages();
}

void TestTranslations::everyTextIsTranslated()
{
    QFETCH(QString, language);
    const QList<Message> messages = messagesIn(translationFile(language));
    QVERIFY(messages.size() > 100);
    for (const Message& message : messages) {
        QVERIFY2(message.state.isEmpty(), qPrintable(message.state + message.line()));
        QVERIFY2(!message.translation.isEmpty(), qPrintable(message.line()));
    }
}

void TestTranslations::placeholdersBlanksAndLinesAreKept_data()
{
    addLanguages();
}

void TestTranslations::placeholdersBlanksAndLinesAreKept()
{
    QFETCH(QString, language);
    const QList<Message> messages = messagesIn(translationFile(language));
    for (const Message& message : messages) {
        const QString& source = message.source;
        const QString& translation = message.translation;
        const QByteArray line = message.line().toUtf8() + " -> " + translation.toUtf8();
        QVERIFY2(matches(source, "%[Ln1-9]+") == matches(translation, "%[Ln1-9]+"),
                 line.constData());
        QVERIFY2(source.count(QLatin1Char('\n')) == translation.count(QLatin1Char('\n')),
                 line.constData());
        if (!isPartOfATitle(message)) {
            QVERIFY2(matches(source, "^ +") == matches(translation, "^ +"), line.constData());
            QVERIFY2(matches(source, " +$") == matches(translation, " +$"), line.constData());
        }
        // What is not the library's to translate: numbers to call, addresses, product names.
        QVERIFY2(matches(source, "[0-9]{3}-[0-9]{4}|[a-z]+@[a-z.]+|SVG")
                     == matches(translation, "[0-9]{3}-[0-9]{4}|[a-z]+@[a-z.]+|SVG"),
                 line.constData());
    }
}

void TestTranslations::acceleratorsAreKept_data()
{
    addLanguages();
}

void TestTranslations::acceleratorsAreKept()
{
    QFETCH(QString, language);
    const QList<Message> messages = messagesIn(translationFile(language));
    for (const Message& message : messages) {
        // None in Arabic: the letter behind the ampersand would be torn off its word.
        const qsizetype expected =
            language == QLatin1String("ar") ? 0 : message.source.count(QLatin1Char('&'));
        QVERIFY2(message.translation.count(QLatin1Char('&')) == expected,
                 qPrintable(message.line()));
    }
}

void TestTranslations::aFrenchColonStaysWithItsWord()
{
    const QList<Message> messages = messagesIn(translationFile(QStringLiteral("fr")));
    for (const Message& message : messages) {
        // A blank at which a line may break would leave the colon alone on the next one.
        QVERIFY2(matches(message.translation, "(^|[^\\xa0])[:;!?]").isEmpty(),
                 qPrintable(message.line()));
    }
}

void TestTranslations::theEmbeddedFileSpeaksAsTheSourceDoes_data()
{
    addLanguages();
}

void TestTranslations::theEmbeddedFileSpeaksAsTheSourceDoes()
{
    QFETCH(QString, language);
    QVERIFY(OxTranslation::install(QLocale(language)));
    const QList<Message> messages = messagesIn(translationFile(language));
    for (const Message& message : messages) {
        const QByteArray comment = message.comment.toUtf8();
        QCOMPARE(QCoreApplication::translate(message.context.toUtf8().constData(),
                                             message.source.toUtf8().constData(),
                                             message.hasComment ? comment.constData() : nullptr),
                 message.translation);
    }
}

UW_TEST_MAIN(TestTranslations)

#include "tst_translations.moc"
