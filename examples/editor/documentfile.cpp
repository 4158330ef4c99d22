// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "document.h"

#include <SymbolInspection>

#include <QColor>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSet>

namespace {

constexpr int Version = 1;
constexpr qint64 LargestFile = qint64(32) * 1024 * 1024; // bytes
constexpr double Farthest = 10000; // millimetres
constexpr double MillimetresPerInch = 25.4;
const QStringList KindNames = { QStringLiteral("text"), QStringLiteral("rectangle"),
                                QStringLiteral("ellipse"), QStringLiteral("line"),
                                QStringLiteral("symbol") };

/// One JSON object whose fields are visited: written from variables, or read into them. The one
/// list of fields serves both.
struct Fields
{
    QJsonObject json;
    bool isReading = false;
    bool isGood = true; ///< all that was read could be used

    template <typename Value> void field(const char* name, Value* value)
    {
        QJsonValueRef stored = json[QLatin1String(name)];
        if (!isReading) {
            stored = *value;
        }
        isGood = isGood && stored.type() == QJsonValue(*value).type();
        *value = stored.toVariant().value<Value>();
    }
    template <typename Value> void field(const char* name, Value* value, Value least, Value most)
    {
        // What is written can be read again, however far a finger has dragged it.
        *value = qBound(least, *value, most);
        const double stored = json[QLatin1String(name)].toDouble(least);
        isGood = isGood && (!isReading || (stored >= least && stored <= most));
        field(name, value);
    }
    template <typename Part> void list(const char* name, QList<Part>* parts)
    {
        QJsonArray array = json.value(QLatin1String(name)).toArray();
        parts->resize(isReading ? array.count() : parts->count());
        for (int i = 0; i < parts->count(); ++i) {
            Fields fields { array.at(i).toObject(), isReading };
            visit(&fields, &(*parts)[i]);
            isGood = isGood && fields.isGood;
            if (!isReading) {
                array.append(fields.json);
            }
        }
        json.insert(QLatin1String(name), array);
    }
};

void visit(Fields* fields, Object* object)
{
    QString kind = KindNames.at(object->kind);
    QString svg = QString::fromLatin1(object->svg.toBase64());
    fields->field("id", &object->id, 1, 1000000);
    fields->field("kind", &kind);
    fields->field("x", &object->left, -Farthest, Farthest);
    fields->field("y", &object->top, -Farthest, Farthest);
    fields->field("width", &object->width, 0., Farthest);
    fields->field("height", &object->height, 0., Farthest);
    fields->field("text", &object->text);
    fields->field("svg", &svg);
    fields->field("fillColor", &object->fillColor);
    fields->field("lineColor", &object->lineColor);
    fields->field("lineWidth", &object->lineWidth, 0., 100.);
    fields->field("fontSize", &object->fontSize, 1, 500);
    fields->field("locked", &object->isLocked);
    fields->field("readOnly", &object->isReadOnly);
    fields->field("background", &object->isBackground);
    object->svg = QByteArray::fromBase64(svg.toLatin1());
    object->kind = Object::Kind(qMax(qsizetype(0), KindNames.indexOf(kind)));
    fields->isGood = fields->isGood && KindNames.contains(kind)
        && QColor::isValidColor(object->fillColor) && QColor::isValidColor(object->lineColor)
        && (object->kind != Object::Symbol || Object::complaintAbout(object->svg).isEmpty());
}

void visit(Fields* fields, Layer* layer)
{
    fields->field("name", &layer->name);
    fields->field("visible", &layer->isVisible);
    fields->list("objects", &layer->objects);
}

void visit(Fields* fields, Content* content)
{
    int version = Version;
    fields->field("version", &version, 1, Version);
    fields->field("pageWidth", &content->pageWidth, 1., 2000.);
    fields->field("pageHeight", &content->pageHeight, 1., 2000.);
    fields->list("layers", &content->layers);
}

bool hasEveryIdOnce(const Content& content)
{
    QSet<int> ids;
    const QList<Object> objects = content.objects();
    for (const Object& object : objects) {
        ids.insert(object.id);
    }
    return ids.count() == objects.count();
}

/// Commits the file, unless some of it could not be written. QSaveFile alone does not notice when
/// only a part of its last buffer fits on the disk.
bool commit(QSaveFile* file)
{
    return file->flush() && file->error() == QFile::NoError && file->commit();
}

} // namespace

QString Object::complaintAbout(const QByteArray& svg)
{
    const SymbolInspection inspection(svg);
    return inspection.isRefused() ? inspection.refusal()
                                  : inspection.leftOut().join(QLatin1String(", "));
}

QString Content::read(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) {
        return tr("%1 cannot be read:\n%2", "Error message: a file and the system's reason.")
            .arg(name, file.errorString());
    }
    const QByteArray bytes = file.read(LargestFile + 1);
    Fields fields { QJsonDocument::fromJson(bytes).object(), true };
    const QJsonValue version = fields.json.value(QLatin1String("version"));
    if (bytes.size() > LargestFile || !version.isDouble()) {
        return tr("%1 is not a label, or it is damaged.", "Error message: a file.").arg(name);
    }
    if (version.toDouble() > Version) {
        return tr("%1 was saved by a newer version of this program.", "Error message: a file.")
            .arg(name);
    }
    visit(&fields, this);
    return fields.isGood && !layers.isEmpty() && hasEveryIdOnce(*this)
        ? QString()
        : tr("%1 holds values that cannot be used.", "Error message: a file.").arg(name);
}

QString Content::write(const QString& path) const
{
    Content visited = *this;
    Fields fields;
    visit(&fields, &visited);
    QSaveFile file(path);
    if (file.open(QFile::WriteOnly) && file.write(QJsonDocument(fields.json).toJson()) >= 0
        && commit(&file)) {
        return {};
    }
    return tr("%1 cannot be saved:\n%2", "Error message: a file and the system's reason.")
        .arg(QFileInfo(path).fileName(), file.errorString());
}

QString Content::print(const QString& path, const QList<QSqlRecord>& records) const
{
    QSaveFile file(path);
    bool isWritten = file.open(QFile::WriteOnly);
    if (isWritten) {
        QPdfWriter writer(&file);
        writer.setPageLayout(
            { QPageSize(page(), QPageSize::Millimeter, QString(), QPageSize::ExactMatch),
              QPageLayout::Portrait, QMarginsF() });
        QPainter painter(&writer);
        const double scale = writer.resolution() / MillimetresPerInch;
        painter.scale(scale, scale);
        for (qsizetype i = 0; i < records.count() && isWritten; ++i) {
            isWritten = i == 0 || writer.newPage();
            paint(&painter, records.at(i));
        }
        isWritten = painter.end() && isWritten;
    }
    if (!isWritten || !commit(&file)) {
        return tr("%1 cannot be printed:\n%2", "Error message: a file and the system's reason.")
            .arg(QFileInfo(path).fileName(), file.errorString());
    }
    return {};
}
