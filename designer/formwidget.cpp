// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "formwidget.h"

#include "containerpages.h"

#include <QIcon>
#include <QMetaObject>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QExtensionManager>

namespace {

/// "oxLineEdit" for OxLineEdit: a member of its class's own name would not compile.
QString objectName(const QString& className)
{
    return className.at(0).toLower() + className.mid(1);
}

/// The nearest class that Qt Designer and uic know by themselves.
QString qtClassOf(const QMetaObject& widgetClass)
{
    const QMetaObject* base = widgetClass.superClass();
    while (base->className()[0] != 'Q') {
        base = base->superClass();
    }
    return QString::fromLatin1(base->className());
}

QString sizeProperty(const QSize& size)
{
    return QStringLiteral("<property name=\"minimumSize\"><size>"
                          "<width>%1</width><height>%2</height></size></property>")
        .arg(size.width())
        .arg(size.height());
}

} // namespace

Designer::FormWidgetBase::FormWidgetBase(const QMetaObject& widgetClass, FormWidgetTexts texts,
                                         FormWidgetDefaults defaults, FormWidgetChildren children)
    : m_widgetClass(widgetClass)
    , m_texts(std::move(texts))
    , m_defaults(std::move(defaults))
    , m_children(children)
{ }

Designer::FormWidgetBase::~FormWidgetBase() = default;

QString Designer::FormWidgetBase::name() const
{
    return QString::fromLatin1(m_widgetClass.className());
}

QString Designer::FormWidgetBase::group() const
{
    return m_texts.group;
}

QString Designer::FormWidgetBase::toolTip() const
{
    return m_texts.toolTip;
}

QString Designer::FormWidgetBase::whatsThis() const
{
    return m_texts.whatsThis;
}

QString Designer::FormWidgetBase::includeFile() const
{
    return name().toLower() + QStringLiteral(".h");
}

QIcon Designer::FormWidgetBase::icon() const
{
    return QIcon(QStringLiteral(":/utilitywidgets/designer/%1.svg").arg(name().toLower()));
}

bool Designer::FormWidgetBase::isContainer() const
{
    return m_children.allowed;
}

QString Designer::FormWidgetBase::domXml() const
{
    QString properties = QStringLiteral("<property name=\"geometry\"><rect><x>0</x><y>0</y>"
                                        "<width>%1</width><height>%2</height></rect></property>")
                             .arg(m_defaults.size.width())
                             .arg(m_defaults.size.height());
    if (!m_defaults.minimumSize.isNull() && m_defaults.minimumSize.isValid()) {
        properties += sizeProperty(m_defaults.minimumSize);
    }
    QString description = QStringLiteral("<class>%1</class><extends>%2</extends>")
                              .arg(name(), qtClassOf(m_widgetClass));
    if (m_children.pages != nullptr) {
        description += QStringLiteral("<addpagemethod>%1</addpagemethod>")
                           .arg(QLatin1String(m_children.pages->addPageMethod));
    }
    if (!m_defaults.propertySpecifications.isEmpty()) {
        description += QStringLiteral("<propertyspecifications>%1</propertyspecifications>")
                           .arg(m_defaults.propertySpecifications);
    }
    return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">%3%4</widget>"
                          "<customwidgets><customwidget>%5</customwidget></customwidgets></ui>")
        .arg(name(), objectName(name()), properties, m_defaults.xml, description);
}

void Designer::FormWidgetBase::initialize(QDesignerFormEditorInterface* core)
{
    if (m_initialized) {
        return;
    }
    m_initialized = true;
    if (m_children.pages != nullptr) {
        QExtensionManager* manager = core->extensionManager();
        manager->registerExtensions(
            new ContainerPagesFactory(m_widgetClass, *m_children.pages, manager),
            Q_TYPEID(QDesignerContainerExtension));
    }
}

bool Designer::FormWidgetBase::isInitialized() const
{
    return m_initialized;
}
