// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "svgfeatures.h"

#include <QHash>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QSvgRenderer>
#include <QXmlStreamReader>

#include <algorithm>
#include <vector>

namespace {

struct Feature
{
    enum Use {
        Referenced, ///< an element of that name is referred to
        Present, ///< there is an element of that name
        Property, ///< a property of that name has another value than "normal"
    };

    const char* name; ///< of the element or the property
    Use use;
    const char* description;
    /// Content of a drawing that shows red where the feature is drawn. Without one, no release of
    /// Qt draws it.
    const char* probe;
};

/// Inside "defs", because a renderer that does not know an element draws what is in it.
const char MarkerProbe[] =
    "<defs><marker id='a' markerWidth='8' markerHeight='8' markerUnits='userSpaceOnUse'>"
    "<rect width='8' height='8' fill='red'/></marker></defs>"
    "<path d='M0 0L8 0' marker-start='url(#a)'/>";

// Drawings with patterns and symbol elements would make a renderer that knows neither warn. Qt
// learned them together with markers.
const Feature Features[] {
    { "clipPath", Feature::Referenced, "clip paths",
      "<clipPath id='a'><rect width='1' height='1'/></clipPath>"
      "<rect width='8' height='8' fill='red'/><rect width='8' height='8' clip-path='url(#a)'/>" },
    { "mask", Feature::Referenced, "masks",
      "<mask id='a'><rect width='8' height='8' fill='black'/></mask>"
      "<rect width='8' height='8' fill='red'/><rect width='8' height='8' mask='url(#a)'/>" },
    { "filter", Feature::Referenced, "filters",
      "<filter id='a'><feFlood flood-color='red'/></filter>"
      "<rect width='8' height='8' filter='url(#a)'/>" },
    { "pattern", Feature::Referenced, "patterns", MarkerProbe },
    { "marker", Feature::Referenced, "markers", MarkerProbe },
    { "symbol", Feature::Referenced, "symbol elements", MarkerProbe },
    { "mix-blend-mode", Feature::Property, "blend modes",
      "<rect width='8' height='8' fill='red'/>"
      "<rect width='8' height='8' fill='white' style='mix-blend-mode:multiply'/>" },
    { "textPath", Feature::Present, "texts along paths", nullptr },
    { "flowRoot", Feature::Present, "flowed texts", nullptr },
    { "foreignObject", Feature::Present, "foreign objects", nullptr },
};

bool isDrawn(const Feature& feature)
{
    if (feature.probe == nullptr) {
        return false;
    }
    QSvgRenderer renderer(QByteArray("<svg xmlns='http://www.w3.org/2000/svg' "
                                     "xmlns:xlink='http://www.w3.org/1999/xlink' "
                                     "width='8' height='8'>")
                          + feature.probe + "</svg>");
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(0, 0, 8, 8));
    painter.end();
    return image.pixel(5, 5) == qRgb(255, 0, 0);
}

const std::vector<Feature>& ignoredFeatures()
{
    static const std::vector<Feature> ignored = [] {
        std::vector<Feature> found;
        std::remove_copy_if(std::begin(Features), std::end(Features), std::back_inserter(found),
                            isDrawn);
        return found;
    }();
    return ignored;
}

QStringView localName(QStringView name)
{
    return name.mid(name.lastIndexOf(QLatin1Char(':')) + 1);
}

/// What a document is made of, as far as a feature shows in it.
class Survey
{
public:
    explicit Survey(const QByteArray& document);

    bool uses(const Feature& feature) const;

private:
    void visit(QStringView name, const QXmlStreamAttributes& attributes);
    void readProperties(QStringView text);

    QSet<QString> m_elements;
    QHash<QString, QString> m_elementsById;
    QSet<QString> m_references;
    bool m_blends = false;
};

Survey::Survey(const QByteArray& document)
{
    QXmlStreamReader reader(document);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            visit(localName(reader.qualifiedName()), reader.attributes());
        } else if (token == QXmlStreamReader::Characters) {
            readProperties(reader.text());
        }
    }
}

void Survey::visit(QStringView name, const QXmlStreamAttributes& attributes)
{
    // An object for one program alone is not for this one.
    if (!attributes.hasAttribute(QLatin1String("requiredExtensions"))) {
        m_elements.insert(name.toString());
    }
    for (const QXmlStreamAttribute& attribute : attributes) {
        const QStringView value = attribute.value();
        if (attribute.qualifiedName() == QLatin1String("id")) {
            m_elementsById.insert(value.toString(), name.toString());
        } else if (localName(attribute.qualifiedName()) == QLatin1String("href")) {
            // The gate lets no other "use" through than one that begins with a hash sign.
            if (name == QLatin1String("use")) {
                m_references.insert(value.mid(1).toString());
            }
        } else {
            readProperties(value);
        }
    }
}

void Survey::readProperties(QStringView text)
{
    static const QRegularExpression reference(QStringLiteral(R"(url\(\s*['"]?#([^)'"]*))"));
    static const QRegularExpression blending(
        QStringLiteral(R"(mix-blend-mode\s*:\s*(?!normal|inherit))"));
    if (text.contains(QLatin1String("url("))) {
        auto matches = reference.globalMatch(text.toString());
        while (matches.hasNext()) {
            m_references.insert(matches.next().captured(1).trimmed());
        }
    }
    if (text.contains(QLatin1String("mix-blend-mode"))) {
        m_blends = m_blends || blending.match(text.toString()).hasMatch();
    }
}

bool Survey::uses(const Feature& feature) const
{
    const QString name = QString::fromLatin1(feature.name);
    switch (feature.use) {
    case Feature::Present:
        return m_elements.contains(name);
    case Feature::Property:
        return m_blends;
    case Feature::Referenced:
        break;
    }
    return std::any_of(m_references.begin(), m_references.end(),
                       [&](const QString& id) { return m_elementsById.value(id) == name; });
}

} // namespace

QStringList ignoredSvgFeatures(const QByteArray& document)
{
    const Survey survey(document);
    QStringList descriptions;
    for (const Feature& feature : ignoredFeatures()) {
        if (survey.uses(feature)) {
            descriptions.append(QString::fromLatin1(feature.description));
        }
    }
    return descriptions;
}
