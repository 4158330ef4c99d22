// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "manifest.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

QString ImageEntry::fileName(int scale) const
{
    const QString name = pathAt(scale);
    return QFileInfo(name).suffix().isEmpty() ? name + QStringLiteral(".png") : name;
}

QString ImageEntry::pathAt(int scale) const
{
    if (scale == 1) {
        return path;
    }
    const qsizetype dot = path.lastIndexOf(QLatin1Char('.'));
    QString scaled = path;
    scaled.insert(dot < 0 ? path.size() : dot, QStringLiteral("@%1x").arg(scale));
    return scaled;
}

Manifest::Manifest(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        m_errors << QStringLiteral("%1: %2").arg(fileName, file.errorString());
        return;
    }
    QJsonParseError error;
    const QJsonObject root = QJsonDocument::fromJson(file.readAll(), &error).object();
    if (error.error != QJsonParseError::NoError) {
        m_errors << QStringLiteral("%1, byte %2: %3")
                        .arg(fileName)
                        .arg(error.offset)
                        .arg(error.errorString());
        return;
    }
    refuseUnknownKeys(root, { QStringLiteral("looks"), QStringLiteral("images") }, fileName);
    readLooks(root.value(QLatin1String("looks")).toObject());
    const QJsonArray images = root.value(QLatin1String("images")).toArray();
    for (const auto& image : images) {
        readImage(image.toObject());
    }
    if (m_images.isEmpty()) {
        m_errors << QStringLiteral("%1 lists no images").arg(fileName);
    }
}

void Manifest::readLooks(const QJsonObject& looks)
{
    for (auto it = looks.begin(); it != looks.end(); ++it) {
        const QJsonObject object = it.value().toObject();
        refuseUnknownKeys(object, { QStringLiteral("ground"), QStringLiteral("colours") },
                          it.key());
        Look look;
        look.ground = QColor(object.value(QLatin1String("ground")).toString());
        look.colours = readColours(object.value(QLatin1String("colours")).toObject(), it.key());
        m_looks.insert(it.key(), look);
    }
}

void Manifest::readImage(const QJsonObject& object)
{
    ImageEntry image;
    image.macro = object.value(QLatin1String("macro")).toString();
    image.path = object.value(QLatin1String("path")).toString();
    image.role = object.value(QLatin1String("role")).toString();
    image.master = object.value(QLatin1String("master")).toString();
    image.rotate = object.value(QLatin1String("rotate")).toInt();
    image.matte = QColor(object.value(QLatin1String("matte")).toString());
    const QJsonArray size = object.value(QLatin1String("size")).toArray();
    image.size = QSize(size.at(0).toInt(), size.at(1).toInt());

    refuseUnknownKeys(object,
                      { QStringLiteral("macro"), QStringLiteral("path"), QStringLiteral("role"),
                        QStringLiteral("size"), QStringLiteral("master"), QStringLiteral("look"),
                        QStringLiteral("with"), QStringLiteral("rotate"), QStringLiteral("matte"),
                        QStringLiteral("icon") },
                      image.path);
    const QString look = object.value(QLatin1String("look")).toString();
    if (!m_looks.contains(look)) {
        m_errors << QStringLiteral("%1: no look is called \"%2\"").arg(image.path, look);
    }
    image.colours = m_looks.value(look).colours;
    image.ground = m_looks.value(look).ground;
    image.colours.insert(readColours(object.value(QLatin1String("with")).toObject(), image.path));
    const QJsonArray icon = object.value(QLatin1String("icon")).toArray();
    for (const auto& step : icon) {
        image.icon << IconStep { step.toObject().value(QLatin1String("size")).toInt(),
                                 step.toObject().value(QLatin1String("master")).toString() };
    }
    checkImage(image);
    m_images << image;
}

void Manifest::checkImage(const ImageEntry& image)
{
    const QString suffix = QFileInfo(image.path).suffix();
    if (image.macro.isEmpty() || image.path.isEmpty() || image.role.isEmpty()
        || image.master.isEmpty() || image.size.isEmpty() || image.rotate % 90 != 0) {
        m_errors << QStringLiteral("%1: macro, path, role, master or size is missing, or the "
                                   "rotation is no multiple of 90")
                        .arg(image.path);
    }
    if (image.isIcon() != (suffix == QLatin1String("ico"))) {
        m_errors << QStringLiteral("%1: \"icon\" belongs to .ico files").arg(image.path);
    }
    if (image.matte.isValid() != (suffix == QLatin1String("jpg"))) {
        m_errors << QStringLiteral("%1: \"matte\" belongs to .jpg files").arg(image.path);
    }
    for (const ImageEntry& other : std::as_const(m_images)) {
        if (other.path == image.path || other.macro == image.macro) {
            m_errors << QStringLiteral("%1: listed twice, or its macro is").arg(image.path);
        }
    }
}

void Manifest::refuseUnknownKeys(const QJsonObject& object, const QStringList& known,
                                 const QString& where)
{
    const QStringList keys = object.keys();
    for (const QString& key : keys) {
        if (!known.contains(key)) {
            m_errors << QStringLiteral("%1: unknown key \"%2\"").arg(where, key);
        }
    }
}

QMap<QString, QString> Manifest::readColours(const QJsonObject& colours, const QString& where)
{
    QMap<QString, QString> result;
    for (auto it = colours.begin(); it != colours.end(); ++it) {
        const QString colour = it.value().toString();
        if (colour != QLatin1String("none") && !QColor(colour).isValid()) {
            m_errors << QStringLiteral("%1: \"%2\" is no colour").arg(where, colour);
        }
        result.insert(it.key(), colour);
    }
    return result;
}
