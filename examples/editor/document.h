// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QRectF>

#include <functional>
#include <tuple>

/// One thing on a page. Lengths are millimetres from the page's top left corner.
struct Object
{
    enum Kind { Text, Rectangle, Ellipse, Line, Symbol };
    /// What a change is about; the locks allow less and less of it.
    enum Aspect { Properties, Data, Locks };

    int id = 0;
    Kind kind = Rectangle;
    double left = 0;
    double top = 0;
    double width = 30;
    double height = 20;
    QString text; ///< {name} stands for the field of that name of the current record
    QByteArray svg; ///< what a symbol shows
    QString fillColor = QStringLiteral("transparent");
    QString lineColor = QStringLiteral("#000000"); ///< also that of text
    double lineWidth = 0.5;
    int fontSize = 14; ///< points
    bool isLocked = false;
    bool isReadOnly = false;
    bool isBackground = false; ///< below all layers, where no finger reaches it

    QRectF rect() const { return { left, top, width, height }; }
    bool allows(Aspect aspect) const;
    /// For lists: what it is and what tells it from others.
    QString description() const;
    auto fields() const
    {
        return std::tie(id, kind, left, top, width, height, text, svg, fillColor, lineColor,
                        lineWidth, fontSize, isLocked, isReadOnly, isBackground);
    }
};

struct Layer
{
    QString name;
    bool isVisible = true;
    QList<Object> objects; ///< the last one lies on top
};

/// All that is saved of a document. Copies are cheap: they share what is not changed.
struct Content
{
    double pageWidth = 100; ///< millimetres, as the height
    double pageHeight = 70;
    QList<Layer> layers; ///< at least one; the last one lies on top

    QSizeF page() const { return { pageWidth, pageHeight }; }
    /// All of them, the lowest first.
    QList<Object> objects() const;
};

/*!
 * The document that is edited: its content, what is selected of it, and the way back.
 *
 * What an object's locks forbid this class does not do, whoever asks for it.
 */
class Document : public QObject
{
    Q_OBJECT

public:
    Document();

    const Content& content() const { return m_content; }
    QString path() const { return m_path; }
    /// Another document, which is in the file at `path`, or in none.
    void reset(const Content& content, const QString& path);
    /// The content as it is now has been saved there.
    void setSaved(const QString& path);
    bool isModified() const { return m_isModified; }
    bool canUndo() const { return !m_past.isEmpty(); }
    bool canRedo() const { return !m_future.isEmpty(); }

    void select(const QList<int>& ids);
    bool isSelected(const Object& object) const { return m_selection.contains(object.id); }
    /// The lowest first.
    QList<Object> selectedObjects() const;
    /// The one that new objects go to.
    int currentLayer() const { return m_currentLayer; }
    void setCurrentLayer(int layer);

    /// One step that can be undone.
    void edit(const Content& content);
    /// Adds a copy to the current layer, in the middle of the page, and selects it.
    void add(Object object);
    /// Changes the selected objects whose locks allow it. No step if nothing is different then.
    void changeSelected(Object::Aspect aspect, const std::function<void(Object&)>& change);
    /// Removes the selected objects. False, and nothing is removed, if a lock forbids one of them.
    bool removeSelected();
    /// Removes the current layer. False if it is the last or a lock forbids one of its objects.
    bool removeCurrentLayer();

public Q_SLOTS:
    void undo() { step(&m_past, &m_future); }
    void redo() { step(&m_future, &m_past); }

Q_SIGNALS:
    /// The content, its file, whether it is saved, or what is selected of it.
    void changed();

private:
    void setContent(const Content& content);
    void step(QList<Content>* from, QList<Content>* to);

    Content m_content;
    QString m_path;
    bool m_isModified = false;
    QList<Content> m_past;
    QList<Content> m_future;
    QList<int> m_selection; ///< ids; those of objects that are gone do no harm
    int m_currentLayer = 0;
};
