// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "platform/qcopchannel/copframe.h"
#include "widgets/filedialogfavorites.h"
#include "widgets/filedialogmedia.h"
#include "widgets_symbols/svggate.h"
#include "widgets_symbols/symbolthumbnail.h"

#include "support/test.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QRandomGenerator>
#include <QSettings>

#include <algorithm>
#include <deque>

/// Whatever bytes come, none of the readers crashes, hangs or reads beyond them, which AddressSanitizer
/// sees; and what each promises of its result holds.
///
/// No Test: what Qt says of broken drawings is no failure.
class FuzzReaders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void whatTheGatePassesIsDrawn();
    void framesComeOutAsTheyWentIn();
    void brokenFramesAreRefusedForGood();
    void mediaStayWithinBounds();
    void favoritesAreComplete();
};

namespace {

quint32 seed()
{
    static const auto seed = quint32(qEnvironmentVariableIntValue("FUZZ_SEED"));
    return seed;
}

int rounds(int usual)
{
    const int wanted = qEnvironmentVariableIntValue("FUZZ_ROUNDS");
    return wanted > 0 ? wanted : usual;
}

/// Spoils bytes in the ways in which files and lines go wrong.
class Mutator
{
public:
    /// `words` are put in now and then: what the reader would look for.
    explicit Mutator(QList<QByteArray> words)
        : m_words(std::move(words))
    { }

    QByteArray spoil(QByteArray bytes)
    {
        for (int times = below(4); times >= 0; --times) {
            const int at = below(int(bytes.size()) + 1);
            const int length = below(std::min(64, int(bytes.size()) - at + 1));
            switch (below(6)) {
            case 0:
                bytes.replace(at, std::min(length, 1), QByteArray(1, char(below(256))));
                break;
            case 1:
                bytes.remove(at, length);
                break;
            case 2:
                bytes.insert(at, bytes.mid(below(int(bytes.size()) + 1), length));
                break;
            case 3:
                bytes.truncate(at);
                break;
            case 4:
                bytes.replace(at, std::min(length, 4),
                              QByteArray(4, below(2) == 0 ? '\xff' : '\0'));
                break;
            default:
                bytes.insert(at, m_words.at(below(int(m_words.size()))));
                break;
            }
        }
        return bytes;
    }

    int below(int limit) { return int(m_random.bounded(quint32(limit))); }

private:
    const QList<QByteArray> m_words;
    QRandomGenerator m_random { seed() };
};

/// Lets nothing be said while it lives: there would be thousands of lines.
class Silence
{
public:
    Silence()
        : m_former(
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}))
    { }
    ~Silence() { qInstallMessageHandler(m_former); }
    Q_DISABLE_COPY_MOVE(Silence)

private:
    const QtMessageHandler m_former;
};

QByteArray pathsAsData(const QStringList& paths)
{
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream << paths;
    return data;
}

} // namespace

void FuzzReaders::initTestCase()
{
    qInfo() << "seed" << seed();
    QCoreApplication::setOrganizationName(QStringLiteral("fuzz"));
}

void FuzzReaders::whatTheGatePassesIsDrawn()
{
    Mutator mutator({ "<g>", "</g>", "<use href='#a'/>", "<image href='file:///etc/passwd'/>",
                      "id='a'", "fill='url(#a)'", "<!ENTITY a 'b'>", "&a;", "1e9999", "-0", "nan",
                      "<![CDATA[", "]]>", "<!--", "style='", "transform='scale(1e30)'", "\x1f\x8b",
                      "stroke-dasharray='.0001'", "<?xml-stylesheet href='a.css'?>" });
    const QByteArray open = "<svg xmlns='http://www.w3.org/2000/svg' "
                            "xmlns:xlink='http://www.w3.org/1999/xlink' viewBox='0 0 48 48'>";
    const QList<QByteArray> drawings {
        open + "<path d='M24 6L42 26H31V42H17V26H6Z' fill='#fd7800'/></svg>",
        open
            + "<defs><linearGradient id='a'><stop offset='0' stop-color='red'/></linearGradient>"
              "<g id='b'><circle r='5' fill='url(#a)'/></g></defs><use xlink:href='#b' x='9'/>"
              "<text x='2' y='20' font-size='9'>A &amp; B</text></svg>",
        open
            + "<style>.c { stroke: blue; stroke-dasharray: 1 2 }</style><rect class='c' width='9' "
              "height='9' transform='rotate(30)'/><image width='3' height='3' "
              "xlink:href='data:image/png;base64,iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNk+M9QDwADhgGAWjR9awAAAABJRU5ErkJggg=='/></svg>",
    };
    for (int round = 0; round < rounds(6000); ++round) {
        const QByteArray data = mutator.spoil(drawings.at(mutator.below(int(drawings.size()))));
        const QByteArray which = data.toPercentEncoding();
        const SvgGate gate = SvgGate::pass(data);
        QVERIFY2(gate.document.isNull() == !gate.refusal.isEmpty(), which.constData());
        if (!gate.document.isNull()) {
            const SvgGate again = SvgGate::pass(gate.document);
            QVERIFY2(again.refusal.isEmpty(), which.constData());
            QVERIFY2(again.removed.isEmpty(), which.constData());
        }
        const Silence silence;
        const QImage thumbnail = QImage::fromData(renderSymbolThumbnail(data), "PNG");
        QVERIFY2(data.isEmpty() || thumbnail.size() == QSize(50, 50), which.constData());
    }
}

void FuzzReaders::framesComeOutAsTheyWentIn()
{
    Mutator mutator({ "mounts" });
    for (int round = 0; round < rounds(2000); ++round) {
        QByteArray bytes;
        std::deque<Cop::Message> sent;
        for (int count = mutator.below(5); count >= 0; --count) {
            sent.push_back({ QString::fromLatin1(mutator.spoil("add(QString)")),
                             mutator.spoil(QByteArray(mutator.below(300), 'x')) });
            bytes += Cop::encode(sent.back());
        }
        Cop::Decoder decoder;
        std::deque<Cop::Message> received;
        for (int at = 0; at < bytes.size();) {
            const int size = std::min(int(bytes.size()) - at, 1 + mutator.below(40));
            QVERIFY(decoder.feed(bytes.constData() + at, size, received));
            at += size;
        }
        QCOMPARE(received.size(), sent.size());
        for (size_t i = 0; i < sent.size(); ++i) {
            QCOMPARE(received[i].text, sent[i].text);
            QCOMPARE(received[i].data, sent[i].data);
        }
    }
}

void FuzzReaders::brokenFramesAreRefusedForGood()
{
    Mutator mutator({ QByteArray(4, '\xff'), QByteArray(4, '\0'), "\x01", "\x7f" });
    const QByteArray frames = Cop::encode({ QStringLiteral("add(QString)"), "one" })
        + Cop::encode({ QStringLiteral("remove(QString)"), QByteArray(100, 'x') });
    for (int round = 0; round < rounds(20000); ++round) {
        const QByteArray bytes = mutator.spoil(frames);
        Cop::Decoder decoder;
        std::deque<Cop::Message> received;
        for (int at = 0; at < bytes.size();) {
            const int size = std::min(int(bytes.size()) - at, 1 + mutator.below(40));
            if (!decoder.feed(bytes.constData() + at, size, received)) {
                break; // the connection would be closed
            }
            at += size;
        }
        // No message is larger than all that came.
        for (const Cop::Message& message : received) {
            QVERIFY(message.text.size() + message.data.size() <= bytes.size());
        }
    }
}

void FuzzReaders::mediaStayWithinBounds()
{
    Mutator mutator({ QByteArray(4, '\xff'), QByteArray(3, '\0') + "\x04", "/m\0/", "\0/" });
    FileDialogMedia media;
    for (int round = 0; round < rounds(20000); ++round) {
        const QStringList before = media.paths();
        const QByteArray data = mutator.spoil(pathsAsData(
            { QStringLiteral("/media/usb%1").arg(round), QStringLiteral("/media/card") }));
        switch (mutator.below(3)) {
        case 0:
            if (!media.replace(data)) {
                QCOMPARE(media.paths(), before);
            }
            break;
        case 1:
            media.add(data.mid(4));
            break;
        default:
            media.remove(data.mid(4));
            break;
        }
        QVERIFY(media.paths().size() <= FileDialogMedia::MaximumCount);
        for (const QString& path : media.paths()) {
            QVERIFY(path.startsWith(QLatin1Char('/')));
            QVERIFY(!path.contains(QChar(QChar::Null)));
        }
    }
}

void FuzzReaders::favoritesAreComplete()
{
    Mutator mutator({ "links\\size=2147483647\n", "links\\-1\\path=/a\n", "links\\007\\name=x\n",
                      "[fileDialog]\n", "@Invalid()", "@ByteArray(", "\\x0", "\\xffff",
                      "%U00110000", "links\\9999999999\\path=/a\n", "=", "\\", "\"" });
    const QByteArray written = "[fileDialog]\nlinks\\1\\name=Labels\nlinks\\1\\path=/Home/Labels\n"
                               "links\\3\\name=Signs\nlinks\\3\\path=/Home/Signs\nlinks\\size=3\n";
    for (int round = 0; round < rounds(1000); ++round) {
        // Settings that are in memory are not read from the file again.
        QCoreApplication::setApplicationName(QStringLiteral("favorites%1").arg(round));
        const QString path = QSettings().fileName();
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QFile::WriteOnly));
        file.write(mutator.spoil(written));
        file.close();
        const QList<FileDialogFavorites::Favorite> favorites = FileDialogFavorites().load();
        QVERIFY(favorites.size() <= 20);
        QVERIFY(std::all_of(favorites.begin(), favorites.end(),
                            [](const auto& favorite) { return favorite.isComplete(); }));
        QVERIFY(file.remove());
    }
}

UW_TEST_MAIN(FuzzReaders)

#include "fuzz_readers.moc"
