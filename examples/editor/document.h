// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QRectF>
#include <QSqlRecord>

class QPainter;

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
    /// Why a drawing is not accepted for a symbol; empty if it is.
    static QString complaintAbout(const QByteArray& svg);
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
    Q_DECLARE_TR_FUNCTIONS(Content)

public:
    double pageWidth = 100; ///< millimetres, as the height
    double pageHeight = 70;
    QList<Layer> layers; ///< at least one; the last one lies on top

    QSizeF page() const { return { pageWidth, pageHeight }; }
    /// All of them, the lowest first.
    QList<Object> objects() const;

    /// Draws it, on the screen and on paper alike. One unit of the painter is a millimetre, and its
    /// origin the top left corner of the page.
    void paint(QPainter* painter, const QSqlRecord& record) const;

    /// \name Files, written as a whole or not at all
    /// All return what to tell the person, or nothing.
    /// @{
    /// A file can come from anywhere: every number that is read can be drawn, and every drawing may
    /// be. Where there is something to tell, this content is of no use.
    QString read(const QString& path);
    QString write(const QString& path) const;
    /// To PDF, one page per record.
    QString print(const QString& path, const QList<QSqlRecord>& records) const;
    /// @}
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
    /// The objects in `content`, a copy of this document's, that are selected and whose locks allow
    /// a change.
    QList<Object*> changeable(Content* content, Object::Aspect aspect) const;
    /// Sets a field of the selected objects whose locks allow it. No step if nothing changes.
    template <typename Value>
    void setSelected(Object::Aspect aspect, Value Object::*field, const Value& value)
    {
        Content content = m_content;
        bool isChanged = false;
        for (Object* object : changeable(&content, aspect)) {
            isChanged = isChanged || object->*field != value;
            object->*field = value;
        }
        if (isChanged) {
            edit(content);
        }
    }
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
