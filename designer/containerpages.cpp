// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "containerpages.h"

#include "oxcollapsiblewidgetcontainer.h"
#include "toolbox.h"
#include "toolboxcontainer.h"

#include <QLayout>
#include <QtDesigner/QExtensionManager>

namespace {

QList<QWidget*> widgetsOf(const QLayout* layout)
{
    QList<QWidget*> widgets;
    for (int i = 0; layout != nullptr && i < layout->count(); ++i) {
        if (QWidget* widget = layout->itemAt(i)->widget()) {
            widgets.append(widget);
        }
    }
    return widgets;
}

QList<QWidget*> menuItems(QWidget* container)
{
    return widgetsOf(container->layout());
}

void removeMenuItem(QWidget* container, QWidget* page)
{
    container->layout()->removeWidget(page);
}

/// Null before the container has been initialized.
QLayout* columnOf(QWidget* container)
{
    const ToolBox* toolBox = static_cast<ToolBoxContainer*>(container)->getToolBox();
    return toolBox != nullptr ? toolBox->widget()->layout() : nullptr;
}

QList<QWidget*> panels(QWidget* container)
{
    return widgetsOf(columnOf(container));
}

void removePanel(QWidget* container, QWidget* page)
{
    columnOf(container)->removeWidget(page);
}

QList<QWidget*> content(QWidget* container)
{
    QWidget* page = static_cast<OxCollapsibleWidgetContainer*>(container)->getContainedWidget();
    return page != nullptr ? QList<QWidget*> { page } : QList<QWidget*>();
}

void removeContent(QWidget* container, QWidget* /*page*/)
{
    static_cast<OxCollapsibleWidgetContainer*>(container)->setContainedWidget(nullptr);
}

constexpr int Any = 1000;

} // namespace

const Designer::PageAccess Designer::FileMenuPages { "addMenuItem", menuItems, removeMenuItem,
                                                     Any };
const Designer::PageAccess Designer::CollapsiblePages { "setContainedWidget", content,
                                                        removeContent, 1 };
const Designer::PageAccess Designer::ToolBoxContainerPages { "addPanel", panels, removePanel, Any };

Designer::ContainerPages::ContainerPages(const PageAccess& access, QWidget* container,
                                         QObject* parent)
    : QObject(parent)
    , m_access(access)
    , m_container(container)
{ }

int Designer::ContainerPages::count() const
{
    return int(pages().size());
}

QWidget* Designer::ContainerPages::widget(int index) const
{
    return pages().value(index);
}

int Designer::ContainerPages::currentIndex() const
{
    return qMin(m_currentIndex, count() - 1); // -1: no page
}

void Designer::ContainerPages::setCurrentIndex(int index)
{
    m_currentIndex = qMax(0, index);
}

bool Designer::ContainerPages::canAddWidget() const
{
    return count() < m_access.maximumCount;
}

void Designer::ContainerPages::addWidget(QWidget* widget)
{
    append(widget);
    m_currentIndex = count() - 1;
}

void Designer::ContainerPages::insertWidget(int index, QWidget* widget)
{
    // The containers only append: what comes behind is taken out and appended again.
    const QList<QWidget*> behind = pages().mid(index);
    for (QWidget* page : behind) {
        m_access.remove(m_container, page);
    }
    append(widget);
    for (QWidget* page : behind) {
        append(page);
    }
    m_currentIndex = index;
}

bool Designer::ContainerPages::canRemove(int index) const
{
    return index >= 0 && index < count();
}

void Designer::ContainerPages::remove(int index)
{
    if (canRemove(index)) {
        m_access.remove(m_container, widget(index));
    }
}

QList<QWidget*> Designer::ContainerPages::pages() const
{
    return m_access.pages(m_container);
}

void Designer::ContainerPages::append(QWidget* page)
{
    QMetaObject::invokeMethod(m_container, m_access.addPageMethod, Q_ARG(QWidget*, page));
    page->show();
}

Designer::ContainerPagesFactory::ContainerPagesFactory(const QMetaObject& containerClass,
                                                       const PageAccess& access,
                                                       QExtensionManager* manager)
    : QExtensionFactory(manager)
    , m_containerClass(containerClass)
    , m_access(access)
{ }

QObject* Designer::ContainerPagesFactory::createExtension(QObject* object, const QString& iid,
                                                          QObject* parent) const
{
    if (iid != Q_TYPEID(QDesignerContainerExtension) || !m_containerClass.cast(object)) {
        return nullptr;
    }
    return new ContainerPages(m_access, static_cast<QWidget*>(object), parent);
}

#include "moc_containerpages.cpp"
