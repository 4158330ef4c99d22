// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/formtexts.h"

#include "support/propertycases.h"

#include <QColor>
#include <QDomDocument>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

QList<QDesignerCustomWidgetInterface*> formWidgetTable()
{
    static QPluginLoader loader(QStringLiteral(PLUGIN));
    auto* plugin = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    if (plugin == nullptr) {
        qWarning() << loader.errorString();
        return {};
    }
    return plugin->customWidgets();
}

void addRowPerFormWidget()
{
    QTest::addColumn<int>("index");
    const QList<QDesignerCustomWidgetInterface*> widgets = formWidgetTable();
    QVERIFY(!widgets.isEmpty());
    for (int i = 0; i < widgets.size(); ++i) {
        QTest::newRow(qPrintable(widgets.at(i)->name())) << i;
    }
}

QByteArray formOf(const QString& content, const QString& customWidgets)
{
    return QStringLiteral("<ui version=\"4.0\"><class>Form</class>"
                          "<widget class=\"QWidget\" name=\"Form\">%1</widget>%2</ui>")
        .arg(content, customWidgets)
        .toUtf8();
}

QString outerXml(const QDomElement& element)
{
    QString text;
    QTextStream stream(&text);
    element.save(stream, 0);
    return text;
}

QByteArray formOfBox(const QDesignerCustomWidgetInterface& entry)
{
    QDomDocument document;
    document.setContent(entry.domXml());
    const QDomElement ui = document.documentElement();
    return formOf(outerXml(ui.firstChildElement(QStringLiteral("widget"))),
                  outerXml(ui.firstChildElement(QStringLiteral("customwidgets"))));
}

QString formXml(const QMetaProperty& property, const QVariant& value)
{
    QString text;
    if (property.isEnumType()) {
        text = QStringLiteral("<enum>%1</enum>")
                   .arg(QLatin1String(property.enumerator().valueToKey(value.toInt())));
    } else if (value.metaType() == QMetaType::fromType<bool>()) {
        text = QStringLiteral("<bool>%1</bool>").arg(value.toString());
    } else if (value.metaType() == QMetaType::fromType<int>()) {
        text = QStringLiteral("<number>%1</number>").arg(value.toInt());
    } else if (value.metaType() == QMetaType::fromType<QStringList>()) {
        text = QStringLiteral("<stringlist><string>%1</string></stringlist>")
                   .arg(value.toStringList().join(QStringLiteral("</string><string>")));
    } else if (value.metaType() == QMetaType::fromType<QColor>()) {
        const auto color = value.value<QColor>();
        text = QStringLiteral("<color><red>%1</red><green>%2</green><blue>%3</blue></color>")
                   .arg(color.red())
                   .arg(color.green())
                   .arg(color.blue());
    } else {
        text = QStringLiteral("<string>%1</string>").arg(value.toString());
    }
    return QStringLiteral("<property name=\"%1\">%2</property>")
        .arg(QLatin1String(property.name()), text);
}

QString nameInForm(const QDesignerCustomWidgetInterface& entry)
{
    const QString name = entry.name();
    return name.at(0).toLower() + name.mid(1);
}

QString customWidgetsOf(const QString& className)
{
    for (const QDesignerCustomWidgetInterface* entry : formWidgetTable()) {
        if (entry->name() == className) {
            QDomDocument document;
            document.setContent(entry->domXml());
            return outerXml(
                document.documentElement().firstChildElement(QStringLiteral("customwidgets")));
        }
    }
    return {};
}

QString otherValuesXml(const QString& className, const QMetaObject& meta)
{
    QString properties;
    for (const PropertyCase& test : propertyCases()) {
        if (QLatin1String(test.className) == className && test.designable) {
            properties += formXml(meta.property(meta.indexOfProperty(test.property)), test.other);
        }
    }
    return properties;
}
