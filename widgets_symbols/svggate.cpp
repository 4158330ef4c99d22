// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "svggate.h"

#include <QBuffer>
#include <QHash>
#include <QImageReader>
#include <QSet>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <zlib.h>

#include <algorithm>
#include <array>
#include <vector>

namespace {

// Far above what any drawing of a symbol has, far below what hurts.
constexpr int MaximumBytes = 32 * 1024 * 1024;
constexpr int MaximumElements = 200'000;
/// Elements drawn, each counted as often as it is repeated through `use`.
constexpr qint64 MaximumDrawn = 500'000;
/// The renderer recurses once for every level.
constexpr int MaximumDepth = 200;
/// Lengths, coordinates and factors.
constexpr double MaximumNumber = 1e7;
/// Characters of one text.
constexpr qsizetype MaximumText = 10'000;
/// Every rule of a style sheet is tried on every element.
constexpr qint64 MaximumRuleTrials = 20'000'000;
constexpr qint64 MaximumImagePixels = qint64(4096) * 4096;

QByteArray inflated(const QByteArray& data, QString& refusal)
{
    z_stream stream = {};
    constexpr int GzipWindow = MAX_WBITS + 16;
    if (inflateInit2(&stream, GzipWindow) != Z_OK) {
        refusal = QStringLiteral("cannot be decompressed");
        return {};
    }
    // zlib only reads it, it merely does not say so in the type.
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data.constData()));
    stream.avail_in = uInt(data.size());
    QByteArray document;
    std::array<char, 65'536> chunk;
    int status = Z_OK;
    while (status == Z_OK && document.size() <= MaximumBytes) {
        stream.next_out = reinterpret_cast<Bytef*>(chunk.data());
        stream.avail_out = uInt(chunk.size());
        status = inflate(&stream, Z_NO_FLUSH);
        document.append(chunk.data(), qsizetype(chunk.size() - stream.avail_out));
    }
    inflateEnd(&stream);
    if (document.size() > MaximumBytes) {
        refusal = QStringLiteral("too large");
    } else if (status != Z_STREAM_END) {
        refusal = QStringLiteral("cannot be decompressed");
    }
    return document;
}

/// What a qualified name says behind its prefix.
QStringView localName(QStringView name)
{
    return name.mid(name.lastIndexOf(QLatin1Char(':')) + 1);
}

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool isLetter(QChar c)
{
    const char16_t lower = c.unicode() | 0x20;
    return c.unicode() < 128 ? lower >= u'a' && lower <= u'z' : c.isLetter();
}

/// Of which part of a document's text the numbers are looked at. This is done to each character of
/// each drawing: whatever can be decided by a few comparisons is.
enum class Notation {
    Numbers, ///< numbers follow letters directly, as in a path
    Css, ///< digits after a letter belong to a name, after a hash sign to a colour
};

/// Whether the number that starts at `at` is absurd; `at` then is where it ends.
bool isAbsurdNumber(QStringView text, qsizetype& at)
{
    const qsizetype start = at;
    const auto skipDigits = [&] {
        while (at < text.size() && isDigit(text[at])) {
            ++at;
        }
    };
    skipDigits();
    // Seven digits and less are no more than the maximum.
    bool isSuspicious = at - start > 7;
    if (at < text.size() && text[at] == QLatin1Char('.')) {
        ++at;
        skipDigits();
    }
    if (at + 1 < text.size() && (text[at].unicode() | 0x20) == u'e') {
        const bool isSigned = text[at + 1] == QLatin1Char('-') || text[at + 1] == QLatin1Char('+');
        const qsizetype exponent = at + (isSigned ? 2 : 1);
        if (exponent < text.size() && isDigit(text[exponent])) {
            at = exponent;
            skipDigits();
            isSuspicious = true;
        }
    }
    return isSuspicious && text.mid(start, at - start).toDouble() > MaximumNumber;
}

bool hasAbsurdNumber(QStringView text, Notation notation)
{
    qsizetype at = 0;
    while (at < text.size()) {
        const QChar c = text[at];
        if (notation == Notation::Css && (c == QLatin1Char('#') || isLetter(c) || c == u'_')) {
            do {
                ++at;
            } while (at < text.size()
                     && (isLetter(text[at]) || text[at].isNumber() || text[at] == u'_'
                         || text[at] == u'-'));
        } else if (isDigit(c)) {
            if (isAbsurdNumber(text, at)) {
                return true;
            }
        } else {
            ++at;
        }
    }
    return false;
}

bool isGeometry(QStringView attribute)
{
    static const QSet<QString> names {
        QStringLiteral("cx"),
        QStringLiteral("cy"),
        QStringLiteral("d"),
        QStringLiteral("dx"),
        QStringLiteral("dy"),
        QStringLiteral("font-size"),
        QStringLiteral("fx"),
        QStringLiteral("fy"),
        QStringLiteral("gradientTransform"),
        QStringLiteral("height"),
        QStringLiteral("points"),
        QStringLiteral("r"),
        QStringLiteral("rx"),
        QStringLiteral("ry"),
        QStringLiteral("stroke-dasharray"),
        QStringLiteral("stroke-dashoffset"),
        QStringLiteral("stroke-width"),
        QStringLiteral("transform"),
        QStringLiteral("viewBox"),
        QStringLiteral("width"),
        QStringLiteral("x"),
        QStringLiteral("x1"),
        QStringLiteral("x2"),
        QStringLiteral("y"),
        QStringLiteral("y1"),
        QStringLiteral("y2"),
    };
    return names.contains(attribute.toString());
}

bool hasAbsurdNumber(const QXmlStreamAttribute& attribute)
{
    // The names come last: hardly any attribute has such a number.
    const QStringView value = attribute.value();
    if (attribute.qualifiedName() == QLatin1String("style")) {
        return hasAbsurdNumber(value, Notation::Css);
    }
    return hasAbsurdNumber(value, Notation::Numbers) && isGeometry(attribute.qualifiedName());
}

/// Whether an image stands inside the document and is a bitmap of bearable size. An SVG inside an
/// SVG would not have passed this gate.
bool isHarmlessImage(QStringView reference)
{
    const QLatin1String mark("base64,");
    const qsizetype at = reference.lastIndexOf(mark);
    if (!reference.startsWith(QLatin1String("data:")) || at < 0) {
        return false;
    }
    QByteArray data = QByteArray::fromBase64(reference.mid(at + mark.size()).toLatin1());
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    static const QList<QByteArray> formats { "bmp", "gif", "jpeg", "png", "webp" };
    const QSize size = reader.size();
    return formats.contains(reader.format()) && size.isValid()
        && qint64(size.width()) * size.height() <= MaximumImagePixels;
}

QStringView referenceOf(const QXmlStreamAttributes& attributes)
{
    for (const QXmlStreamAttribute& attribute : attributes) {
        if (localName(attribute.qualifiedName()) == QLatin1String("href")) {
            return attribute.value();
        }
    }
    return {};
}

/// Reads a document once and finds out what must go. Elements are known by their number, in the
/// order in which they start.
class Inspection
{
public:
    explicit Inspection(const QByteArray& document);

    QString refusal() const { return m_refusal; }
    QStringList removed() const { return m_removed; }

    bool isDropped(int element) const { return m_elements[size_t(element)].dropped; }
    QSet<QString> droppedRootAttributes() const { return m_droppedRootAttributes; }

private:
    struct Element
    {
        int parent = -1;
        int depth = 1;
        int firstChild = -1;
        int nextSibling = -1;
        bool dropped = false;

        /// How it is drawn, repetitions included.
        enum { Unknown, Active, Known } state = Unknown;
        qint64 drawn = 1;
        int height = 1;
    };

    Element& at(int element) { return m_elements[size_t(element)]; }
    void drop(int element, const QString& what);
    void note(const QString& what);

    void read(const QByteArray& document);
    void startElement(QStringView name, const QXmlStreamAttributes& attributes);
    void inspectRoot(const QXmlStreamAttributes& attributes);
    void inspectReference(QStringView name, QStringView reference);
    void inspectText(QStringView text);
    void inspectStyleSheets();
    void inspectRepetitions();
    void measure(int element, int level);

    std::vector<Element> m_elements;
    std::vector<int> m_lastChildren; ///< of the open elements, outermost first
    std::vector<int> m_open;
    std::vector<qsizetype> m_texts; ///< characters in each of the open elements
    QHash<QString, int> m_ids;
    QHash<int, QString> m_uses;
    std::vector<int> m_styleSheets;
    qint64 m_styleRules = 0;

    QSet<QString> m_droppedRootAttributes;
    QStringList m_removed;
    QString m_refusal;
};

Inspection::Inspection(const QByteArray& document)
{
    read(document);
    if (!m_refusal.isEmpty()) {
        return;
    }
    inspectStyleSheets();
    if (!m_uses.isEmpty()) {
        inspectRepetitions();
    }
}

void Inspection::note(const QString& what)
{
    if (!m_removed.contains(what)) {
        m_removed.append(what);
    }
}

void Inspection::drop(int element, const QString& what)
{
    at(element).dropped = true;
    note(what);
}

void Inspection::read(const QByteArray& document)
{
    QXmlStreamReader reader(document);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd() && m_refusal.isEmpty()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            startElement(localName(reader.qualifiedName()), reader.attributes());
            break;
        case QXmlStreamReader::EndElement:
            m_open.pop_back();
            m_lastChildren.pop_back();
            m_texts.pop_back();
            break;
        case QXmlStreamReader::Characters:
            inspectText(reader.text());
            break;
        case QXmlStreamReader::ProcessingInstruction:
            if (reader.processingInstructionTarget() == QLatin1String("xml-stylesheet")) {
                note(QStringLiteral("references to files"));
            }
            break;
        default:
            break;
        }
    }
    if (reader.hasError()) {
        m_refusal = QStringLiteral("not well-formed (line %1: %2)")
                        .arg(reader.lineNumber())
                        .arg(reader.errorString());
    }
}

void Inspection::startElement(QStringView name, const QXmlStreamAttributes& attributes)
{
    const int element = int(m_elements.size());
    Element added;
    added.parent = m_open.empty() ? -1 : m_open.back();
    added.depth = int(m_open.size()) + 1;
    m_elements.push_back(added);
    if (!m_open.empty()) {
        int& last = m_lastChildren.back();
        (last < 0 ? at(added.parent).firstChild : at(last).nextSibling) = element;
        last = element;
    }
    m_open.push_back(element);
    m_lastChildren.push_back(-1);
    m_texts.push_back(name == QLatin1String("style") ? -1 : 0);
    if (name == QLatin1String("style")) {
        m_styleSheets.push_back(element);
    }

    if (added.parent < 0) {
        if (name != QLatin1String("svg")) {
            m_refusal = QStringLiteral("not an SVG document");
        }
        inspectRoot(attributes);
        return;
    }
    if (element >= MaximumElements) {
        drop(element, QStringLiteral("elements beyond the first %1").arg(MaximumElements));
    } else if (added.depth > MaximumDepth) {
        drop(element, QStringLiteral("nesting deeper than %1 levels").arg(MaximumDepth));
    } else {
        if (std::any_of(attributes.begin(), attributes.end(),
                        [](const auto& attribute) { return hasAbsurdNumber(attribute); })) {
            drop(element, QStringLiteral("elements of absurd size"));
        }
        const QStringView id = attributes.value(QLatin1String("id"));
        if (!id.isEmpty()) {
            m_ids.insert(id.toString(), element);
        }
        inspectReference(name, referenceOf(attributes));
    }
}

void Inspection::inspectRoot(const QXmlStreamAttributes& attributes)
{
    for (const QXmlStreamAttribute& attribute : attributes) {
        if (hasAbsurdNumber(attribute)) {
            m_droppedRootAttributes.insert(attribute.qualifiedName().toString());
            note(QStringLiteral("an absurd size of the whole drawing"));
        }
    }
}

void Inspection::inspectReference(QStringView name, QStringView reference)
{
    const int element = m_open.back();
    if (name == QLatin1String("use")) {
        if (reference.startsWith(QLatin1Char('#'))) {
            m_uses.insert(element, reference.mid(1).toString());
        } else {
            drop(element, QStringLiteral("references to files"));
        }
    } else if (name == QLatin1String("image") || name == QLatin1String("feImage")) {
        if (!isHarmlessImage(reference)) {
            drop(element,
                 reference.startsWith(QLatin1String("data:"))
                     ? QStringLiteral("embedded images other than bitmaps up to 4096 x 4096 pixels")
                     : QStringLiteral("references to files"));
        }
    } else if (name == QLatin1String("font-face-uri")) {
        drop(element, QStringLiteral("references to files"));
    }
}

void Inspection::inspectText(QStringView text)
{
    if (m_open.empty()) {
        return;
    }
    qsizetype& size = m_texts.back();
    if (size < 0) {
        m_styleRules += text.count(QLatin1Char('{'));
        if (hasAbsurdNumber(text, Notation::Css)) {
            drop(m_open.back(), QStringLiteral("style sheets with absurd sizes"));
        }
        return;
    }
    size += text.size();
    if (size > MaximumText) {
        drop(m_open.back(), QStringLiteral("texts longer than %1 characters").arg(MaximumText));
    }
}

void Inspection::inspectStyleSheets()
{
    if (m_styleRules * qint64(m_elements.size()) > MaximumRuleTrials) {
        for (const int element : m_styleSheets) {
            drop(element, QStringLiteral("style sheets of too many rules"));
        }
    }
}

/// A `use` draws another element again. One that leads back to itself never ends, and a few of them
/// in a row, each doubling the one before, last as long as that.
void Inspection::inspectRepetitions()
{
    measure(0, 1);
    if (at(0).drawn <= MaximumDrawn) {
        return;
    }
    for (auto use = m_uses.cbegin(); use != m_uses.cend(); ++use) {
        drop(use.key(), QStringLiteral("repetitions beyond %1 elements").arg(MaximumDrawn));
    }
}

void Inspection::measure(int element, int level)
{
    at(element).state = Element::Active;
    for (int child = at(element).firstChild; child >= 0; child = at(child).nextSibling) {
        if (at(child).state == Element::Active) {
            // It is being measured further up, and this element is a repetition below it.
            drop(child, QStringLiteral("elements that repeat themselves"));
        }
        if (at(child).dropped) {
            continue;
        }
        if (at(child).state == Element::Unknown) {
            measure(child, level + 1);
        }
        at(element).drawn = std::min(at(element).drawn + at(child).drawn, MaximumDrawn + 1);
        at(element).height = std::max(at(element).height, at(child).height + 1);
    }
    const int target = m_ids.value(m_uses.value(element), -1);
    if (target >= 0) {
        // The chain is followed as far as the stack surely allows; what is longer is too deep.
        if (at(target).state == Element::Unknown && level < 4 * MaximumDepth) {
            measure(target, level + 1);
        }
        if (at(target).state == Element::Active) {
            drop(element, QStringLiteral("elements that repeat themselves"));
        } else if (at(target).state == Element::Unknown || at(target).height >= MaximumDepth) {
            drop(element, QStringLiteral("nesting deeper than %1 levels").arg(MaximumDepth));
        } else {
            at(element).drawn = std::min(at(element).drawn + at(target).drawn, MaximumDrawn + 1);
            at(element).height = std::max(at(element).height, at(target).height + 1);
        }
    }
    at(element).state = Element::Known;
}

/// Writes the document again without what must go.
QByteArray withoutDropped(const QByteArray& document, const Inspection& inspection)
{
    QByteArray rest;
    QXmlStreamReader reader(document);
    reader.setNamespaceProcessing(false);
    QXmlStreamWriter writer(&rest);
    int element = -1;
    int depthOfDropped = 0;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            ++element;
            if (depthOfDropped > 0 || inspection.isDropped(element)) {
                ++depthOfDropped;
                continue;
            }
            writer.writeStartElement(reader.qualifiedName().toString());
            const QXmlStreamAttributes attributes = reader.attributes();
            for (const QXmlStreamAttribute& attribute : attributes) {
                const QString name = attribute.qualifiedName().toString();
                if (element > 0 || !inspection.droppedRootAttributes().contains(name)) {
                    writer.writeAttribute(name, attribute.value().toString());
                }
            }
        } else if (token == QXmlStreamReader::EndElement) {
            if (depthOfDropped > 0) {
                --depthOfDropped;
            } else {
                writer.writeEndElement();
            }
        } else if (token == QXmlStreamReader::Characters && depthOfDropped == 0 && element >= 0) {
            writer.writeCharacters(reader.text().toString());
        }
    }
    return rest;
}

} // namespace

SvgGate SvgGate::pass(const QByteArray& data)
{
    SvgGate result;
    QByteArray document = data;
    if (data.startsWith("\x1f\x8b")) {
        document = inflated(data, result.refusal);
    } else if (data.size() > MaximumBytes) {
        result.refusal = QStringLiteral("too large");
    }
    if (!result.refusal.isEmpty()) {
        return result;
    }

    const Inspection inspection(document);
    result.refusal = inspection.refusal();
    result.removed = inspection.removed();
    if (result.refusal.isEmpty()) {
        result.document =
            result.removed.isEmpty() ? document : withoutDropped(document, inspection);
    }
    return result;
}
