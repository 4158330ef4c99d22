// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "sidepanel.h"

#include <OxInputDialog>

SidePanel::SidePanel(Document* document, QWidget* parent)
    : QWidget(parent)
    , m_document(document)
{
    m_ui.setupUi(this);
    m_ui.tabs->addTab(tr("Object", "Tab of the properties of an object."));
    m_ui.tabs->addTab(tr("Page", "Tab of the page and its layers."));
    setUpProperties();
    setUpColors();
    connect(m_ui.removeLayer, &QPushButton::clicked, document, &Document::removeCurrentLayer);
    connect(m_ui.layers, &QListWidget::itemClicked, this, [this] {
        m_document->setCurrentLayer(m_ui.layers->count() - 1 - m_ui.layers->currentRow());
    });
    connect(document, &Document::changed, this, &SidePanel::showObject);
    connect(document, &Document::changed, this, &SidePanel::showPage);
    showObject();
    showPage();
}

void SidePanel::setUpProperties()
{
    m_lengths = { { m_ui.left, &Object::left },
                  { m_ui.top, &Object::top },
                  { m_ui.width, &Object::width },
                  { m_ui.height, &Object::height },
                  { m_ui.lineWidth, &Object::lineWidth } };
    for (const auto& [box, field] : std::as_const(m_lengths)) {
        connect(box, &QDoubleSpinBox::editingFinished, this, [=, box = box, field = field] {
            m_document->setSelected(Object::Properties, field, box->value());
        });
    }
    connect(m_ui.fontSize, &QSpinBox::editingFinished, this, [=] {
        m_document->setSelected(Object::Properties, &Object::fontSize, m_ui.fontSize->value());
    });
    connect(m_ui.text, &QLineEdit::editingFinished, this,
            [=] { m_document->setSelected(Object::Data, &Object::text, m_ui.text->text()); });
    // The widget leaves it to the application to answer: showObject() sets all three anew.
    connect(m_ui.locks, &LockWidget::lockSignal, this,
            [=](bool isOn) { m_document->setSelected(Object::Locks, &Object::isLocked, isOn); });
    connect(m_ui.locks, &LockWidget::readOnlySignal, this,
            [=](bool isOn) { m_document->setSelected(Object::Locks, &Object::isReadOnly, isOn); });
    connect(m_ui.locks, &LockWidget::userBackgroundSignal, this, [=](bool isOn) {
        m_document->setSelected(Object::Locks, &Object::isBackground, isOn);
    });
}

void SidePanel::setUpColors()
{
    m_ui.colorTabs->addTab(tr("Fill", "Tab of the colour inside an object."));
    m_ui.colorTabs->addTab(tr("Line", "Tab of the colour of an object's line or text."));
    connect(m_ui.colors, &ColorMenu::colorSignal, this, [=](const QString& color) {
        const bool isFill = m_ui.colorTabs->currentIndex() == 0;
        m_document->setSelected(Object::Properties,
                                isFill ? &Object::fillColor : &Object::lineColor, color);
    });
}

void SidePanel::showObject()
{
    const QList<Object> selected = m_document->selectedObjects();
    const Object object = selected.value(0);
    const bool isFree = !selected.isEmpty() && object.allows(Object::Properties);
    const bool isText = object.kind == Object::Text;
    for (const auto& [box, field] : std::as_const(m_lengths)) {
        box->setEnabled(isFree);
        box->setValue(object.*field);
    }
    m_ui.text->setEnabled(!selected.isEmpty() && isText && object.allows(Object::Data));
    m_ui.text->setText(object.text);
    m_ui.fontSize->setEnabled(isFree && isText);
    m_ui.fontSize->setValue(object.fontSize);
    m_ui.colorTabs->setTabColorRect(0, object.fillColor);
    m_ui.colorTabs->setTabColorRect(1, object.lineColor);
    const bool isFill = m_ui.colorTabs->currentIndex() == 0;
    m_ui.colors->setEnabled(isFree);
    m_ui.colors->updateSelectedColor(QString()); // for a colour that is not in the palette
    m_ui.colors->updateSelectedColor(isFill ? object.fillColor : object.lineColor);
    m_ui.locks->setEnabled(!selected.isEmpty());
    m_ui.locks->setLockState(object.isLocked);
    m_ui.locks->setReadOnlyState(object.isReadOnly);
    m_ui.locks->setUserBackgroundState(object.isBackground);
}

void SidePanel::showPage()
{
    const Content& content = m_document->content();
    m_ui.pageWidth->setValue(content.pageWidth);
    m_ui.pageHeight->setValue(content.pageHeight);
    m_ui.layers->clear();
    for (const Layer& layer : content.layers) {
        m_ui.layers->insertItem(
            0, layer.isVisible ? layer.name : tr("%1 (hidden)", "A layer.").arg(layer.name));
    }
    m_ui.layers->setCurrentRow(m_ui.layers->count() - 1 - m_document->currentLayer());
}

void SidePanel::setPage()
{
    Content content = m_document->content();
    content.pageWidth = m_ui.pageWidth->value();
    content.pageHeight = m_ui.pageHeight->value();
    if (content.page() != m_document->content().page()) {
        m_document->edit(content);
    }
}

void SidePanel::addLayer()
{
    Content content = m_document->content();
    bool isCancelled = false;
    const QString name = OxInputDialog::getText(
        this, tr("NEW LAYER", "Title of a dialog."), tr("Name of the layer:", "Label of a field."),
        Document::tr("Layer %1", "Name of a new layer; its number.")
            .arg(content.layers.count() + 1),
        &isCancelled);
    if (!isCancelled) {
        content.layers.append({ name, true, {} });
        m_document->edit(content);
        m_document->setCurrentLayer(int(content.layers.count()) - 1);
    }
}

void SidePanel::raiseLayer()
{
    Content content = m_document->content();
    const int layer = m_document->currentLayer();
    if (layer + 1 < content.layers.count()) {
        content.layers.swapItemsAt(layer, layer + 1);
        m_document->edit(content);
        m_document->setCurrentLayer(layer + 1);
    }
}

void SidePanel::showOrHideLayer()
{
    Content content = m_document->content();
    bool& isVisible = content.layers[m_document->currentLayer()].isVisible;
    isVisible = !isVisible;
    m_document->edit(content);
}

#include "moc_sidepanel.cpp"
