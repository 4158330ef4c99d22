// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVariant>

class QDesignerCustomWidgetInterface;
class QDomElement;
class QMetaProperty;
struct QMetaObject;

// The plugin for Qt Designer, and forms as texts to load its widgets from.

/// What the plugin offers; empty, with a warning, when it cannot be loaded.
QList<QDesignerCustomWidgetInterface*> formWidgetTable();
/// A test row, with its index, for each of them.
void addRowPerFormWidget();

/// The name that the box gives to a widget of this class.
QString nameInForm(const QDesignerCustomWidgetInterface& entry);

QString outerXml(const QDomElement& element);
/// A form that holds what `content` says.
QByteArray formOf(const QString& content, const QString& customWidgets = {});
/// A form with what the editor makes when the entry is dragged out of the box.
QByteArray formOfBox(const QDesignerCustomWidgetInterface& entry);
/// What the editor writes of the class into every form that uses it.
QString customWidgetsOf(const QString& className);
/// The property with that value, as in a form.
QString formXml(const QMetaProperty& property, const QVariant& value);
/// propertyCases() of the class that a form sets, with their other values, as in a form.
QString otherValuesXml(const QString& className, const QMetaObject& meta);
