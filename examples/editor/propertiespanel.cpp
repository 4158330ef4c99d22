// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "propertiespanel.h"

#include "ui_propertiespanel.h"

#include <OxCollapsibleWidgetContainer>

PropertiesPanel::PropertiesPanel(Document* document, QSize size, QWidget* parent)
    : ToolBoxContainer(parent)
    , m_document(document)
    , m_ui(std::make_unique<Ui::PropertiesPanel>())
{
    initialize(size, QPoint());
    QWidget form; // its widgets go into the sections
    m_ui->setupUi(&form);
    addSection(m_ui->geometry);
    addSection(m_ui->appearance);
    addSection(m_ui->coloring);
    addPropertiesWidget(m_ui->locks);
    setUpFields();
    setUpColors();
    connect(document, &Document::changed, this, &PropertiesPanel::showObject);
    showObject();
}

PropertiesPanel::~PropertiesPanel() = default;

void PropertiesPanel::addSection(QWidget* content)
{
    auto* section = new OxCollapsibleWidgetContainer(content, content->windowTitle(), this);
    section->setExpanded(true);
    addPropertiesWidget(section);
}

void PropertiesPanel::setUpFields()
{
    m_lengths = { { m_ui->left, &Object::left },
                  { m_ui->top, &Object::top },
                  { m_ui->width, &Object::width },
                  { m_ui->height, &Object::height },
                  { m_ui->lineWidth, &Object::lineWidth } };
    for (const auto& [box, field] : std::as_const(m_lengths)) {
        connect(box, &QDoubleSpinBox::editingFinished, this,
                [=, box = box, field = field] { set(Object::Properties, field, box->value()); });
    }
    connect(m_ui->fontSize, &QSpinBox::editingFinished, this,
            [=] { set(Object::Properties, &Object::fontSize, m_ui->fontSize->value()); });
    connect(m_ui->text, &QLineEdit::editingFinished, this,
            [=] { set(Object::Data, &Object::text, m_ui->text->text()); });
    // The widget leaves it to the application to answer: showObject() sets all three anew.
    connect(m_ui->locks, &LockWidget::lockSignal, this,
            [=](bool isOn) { set(Object::Locks, &Object::isLocked, isOn); });
    connect(m_ui->locks, &LockWidget::readOnlySignal, this,
            [=](bool isOn) { set(Object::Locks, &Object::isReadOnly, isOn); });
    connect(m_ui->locks, &LockWidget::userBackgroundSignal, this,
            [=](bool isOn) { set(Object::Locks, &Object::isBackground, isOn); });
}

void PropertiesPanel::setUpColors()
{
    m_ui->colorTabs->addTab(tr("Fill", "Tab of the colour inside an object."));
    m_ui->colorTabs->addTab(tr("Line", "Tab of the colour of an object's line or text."));
    connect(m_ui->colorTabs, &QTabBar::currentChanged, this, &PropertiesPanel::showObject);
    connect(m_ui->colors, &ColorMenu::colorSignal, this, [=](const QString& color) {
        const bool isFill = m_ui->colorTabs->currentIndex() == 0;
        set(Object::Properties, isFill ? &Object::fillColor : &Object::lineColor, color);
    });
}

void PropertiesPanel::showObject()
{
    const QList<Object> selected = m_document->selectedObjects();
    const Object object = selected.value(0);
    const bool isFree = !selected.isEmpty() && object.allows(Object::Properties);
    const bool isText = object.kind == Object::Text;
    for (const auto& [box, field] : std::as_const(m_lengths)) {
        box->setEnabled(isFree);
        box->setValue(object.*field);
    }
    m_ui->text->setEnabled(!selected.isEmpty() && isText && object.allows(Object::Data));
    m_ui->text->setText(object.text);
    m_ui->fontSize->setEnabled(isFree && isText);
    m_ui->fontSize->setValue(object.fontSize);
    m_ui->colorTabs->setTabColorRect(0, object.fillColor);
    m_ui->colorTabs->setTabColorRect(1, object.lineColor);
    const bool isFill = m_ui->colorTabs->currentIndex() == 0;
    m_ui->colors->setEnabled(isFree);
    m_ui->colors->updateSelectedColor(QString()); // for a colour that is not in the palette
    m_ui->colors->updateSelectedColor(isFill ? object.fillColor : object.lineColor);
    m_ui->locks->setEnabled(!selected.isEmpty());
    m_ui->locks->setLockState(object.isLocked);
    m_ui->locks->setReadOnlyState(object.isReadOnly);
    m_ui->locks->setUserBackgroundState(object.isBackground);
}

#include "moc_propertiespanel.cpp"
