// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>
#include <QString>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <utility>

struct QMetaObject;

namespace Designer {

struct PageAccess;

/// What the table says of a class besides its name.
struct FormWidgetTexts
{
    QString group;
    QString toolTip; ///< one sentence: what it is
    QString whatsThis; ///< what an application developer does with it
};

struct FormWidgetDefaults
{
    QSize size; ///< where no layout decides, in pixels
    QSize minimumSize; ///< also inside a layout, in pixels; empty: none
    QString xml; ///< further properties and child widgets, as in a form
    QString propertySpecifications; ///< how the editor edits properties, as in a form
};

/// How a form puts children into the widget.
struct FormWidgetChildren
{
    bool allowed = false;
    const PageAccess* pages = nullptr; ///< null: the form lays them out itself
};

/// Everything that does not depend on the type of the widget.
class FormWidgetBase : public QDesignerCustomWidgetInterface
{
public:
    FormWidgetBase(const QMetaObject& widgetClass, FormWidgetTexts texts,
                   FormWidgetDefaults defaults, FormWidgetChildren children);
    ~FormWidgetBase() override;
    Q_DISABLE_COPY_MOVE(FormWidgetBase)

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QString domXml() const override;

    /// Called by the editor only, never where a form is just loaded.
    void initialize(QDesignerFormEditorInterface* core) override;
    bool isInitialized() const override;

private:
    const QMetaObject& m_widgetClass;
    const FormWidgetTexts m_texts;
    const FormWidgetDefaults m_defaults;
    const FormWidgetChildren m_children;
    bool m_initialized = false;
};

/// `Widget` as Qt Designer and QUiLoader make it.
template <typename Widget> class FormWidget : public FormWidgetBase
{
public:
    FormWidget(FormWidgetTexts texts, FormWidgetDefaults defaults, FormWidgetChildren children = {})
        : FormWidgetBase(Widget::staticMetaObject, std::move(texts), std::move(defaults), children)
    { }

    QWidget* createWidget(QWidget* parent) override { return new Widget(parent); }
};

} // namespace Designer
