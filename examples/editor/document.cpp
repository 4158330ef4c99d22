// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "document.h"

#include <algorithm>

namespace {

bool areFree(const QList<Object>& objects)
{
    return std::all_of(objects.cbegin(), objects.cend(),
                       [](const Object& object) { return object.allows(Object::Properties); });
}

} // namespace

bool Object::allows(Aspect aspect) const
{
    return aspect == Locks || (!isReadOnly && (aspect == Data || !isLocked));
}

QString Object::description() const
{
    const QString names[] = {
        Document::tr("Text: %1", "Object in a list; its text."),
        Document::tr("Rectangle %1", "Object in a list; its number."),
        Document::tr("Ellipse %1", "Object in a list; its number."),
        Document::tr("Line %1", "Object in a list; its number."),
        Document::tr("Symbol %1", "Object in a list; its number."),
    };
    return names[kind].arg(kind == Text ? text : QString::number(id));
}

QList<Object> Content::objects() const
{
    QList<Object> all;
    for (const Layer& layer : layers) {
        all += layer.objects;
    }
    return all;
}

Document::Document()
{
    m_content.layers = { { tr("Layer %1", "Name of a new layer; its number.").arg(1), true, {} } };
}

void Document::reset(const Content& content, const QString& path)
{
    m_past.clear();
    m_future.clear();
    m_selection.clear();
    m_content = content;
    m_currentLayer = int(content.layers.count()) - 1;
    setSaved(path);
}

void Document::setSaved(const QString& path)
{
    m_path = path;
    m_isModified = false;
    Q_EMIT changed();
}

void Document::select(const QList<int>& ids)
{
    m_selection = ids;
    Q_EMIT changed();
}

QList<Object> Document::selectedObjects() const
{
    QList<Object> objects = m_content.objects();
    objects.removeIf([this](const Object& object) { return !isSelected(object); });
    return objects;
}

void Document::setCurrentLayer(int layer)
{
    m_currentLayer = layer;
    Q_EMIT changed();
}

void Document::edit(const Content& content)
{
    m_past.append(m_content);
    m_future.clear();
    setContent(content);
}

void Document::add(Object object)
{
    Content content = m_content;
    object.id = 1;
    for (const Object& other : content.objects()) {
        object.id = qMax(object.id, other.id + 1);
    }
    object.left = (content.pageWidth - object.width) / 2;
    object.top = (content.pageHeight - object.height) / 2;
    content.layers[m_currentLayer].objects.append(object);
    m_selection = { object.id };
    edit(content);
}

QList<Object*> Document::changeable(Content* content, Object::Aspect aspect) const
{
    QList<Object*> objects;
    for (Layer& layer : content->layers) {
        for (Object& object : layer.objects) {
            if (isSelected(object) && object.allows(aspect)) {
                objects.append(&object);
            }
        }
    }
    return objects;
}

bool Document::removeSelected()
{
    if (!areFree(selectedObjects())) {
        return false;
    }
    Content content = m_content;
    for (Layer& layer : content.layers) {
        layer.objects.removeIf([this](const Object& object) { return isSelected(object); });
    }
    edit(content);
    return true;
}

bool Document::removeCurrentLayer()
{
    Content content = m_content;
    const Layer removed = content.layers.takeAt(m_currentLayer);
    if (content.layers.isEmpty() || !areFree(removed.objects)) {
        return false;
    }
    edit(content);
    return true;
}

void Document::setContent(const Content& content)
{
    m_content = content;
    m_currentLayer = qMin(m_currentLayer, int(content.layers.count()) - 1);
    m_isModified = true;
    Q_EMIT changed();
}

void Document::step(QList<Content>* from, QList<Content>* to)
{
    if (!from->isEmpty()) {
        to->append(m_content);
        setContent(from->takeLast());
    }
}

#include "moc_document.cpp"
