// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>
#include <QtDesigner/QDesignerContainerExtension>
#include <QtDesigner/QExtensionFactory>

class QWidget;

namespace Designer {

/*!
 * How the editor reaches what a form puts into a container that is not laid out by the form: its
 * pages, of which all are visible.
 */
struct PageAccess
{
    const char* addPageMethod; ///< invokable, as in the code that is made of a form
    QList<QWidget*> (*pages)(QWidget* container); ///< in their order
    void (*remove)(QWidget* container, QWidget* page);
    int maximumCount;
};

extern const PageAccess FileMenuPages;
extern const PageAccess CollapsiblePages;
extern const PageAccess ToolBoxContainerPages;

/// One container on one form of the editor.
class ContainerPages : public QObject, public QDesignerContainerExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerContainerExtension)

public:
    ContainerPages(const PageAccess& access, QWidget* container, QObject* parent);

    int count() const override;
    QWidget* widget(int index) const override;
    int currentIndex() const override;
    void setCurrentIndex(int index) override;
    bool canAddWidget() const override;
    void addWidget(QWidget* widget) override;
    void insertWidget(int index, QWidget* widget) override;
    bool canRemove(int index) const override;
    void remove(int index) override;

private:
    QList<QWidget*> pages() const;
    void append(QWidget* page);

    const PageAccess& m_access;
    QWidget* m_container;
    int m_currentIndex = 0;
};

/// Makes the above for all containers of one class.
class ContainerPagesFactory : public QExtensionFactory
{
    Q_OBJECT

public:
    ContainerPagesFactory(const QMetaObject& containerClass, const PageAccess& access,
                          QExtensionManager* manager);

protected:
    QObject* createExtension(QObject* object, const QString& iid, QObject* parent) const override;

private:
    const QMetaObject& m_containerClass;
    const PageAccess& m_access;
};

} // namespace Designer
