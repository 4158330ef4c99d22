// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "layerspanel.h"

#include "ui_layerspanel.h"

#include <OxInputDialog>

#include <QSignalBlocker>

LayersPanel::LayersPanel(Document* document, QWidget* parent)
    : QWidget(parent)
    , m_document(document)
    , m_ui(std::make_unique<Ui::LayersPanel>())
{
    m_ui->setupUi(this);
    connect(m_ui->pageWidth, &QDoubleSpinBox::editingFinished, this, &LayersPanel::setPage);
    connect(m_ui->pageHeight, &QDoubleSpinBox::editingFinished, this, &LayersPanel::setPage);
    connect(m_ui->addLayer, &QPushButton::clicked, this, &LayersPanel::addLayer);
    connect(m_ui->raiseLayer, &QPushButton::clicked, this, &LayersPanel::raiseLayer);
    connect(m_ui->showLayer, &QPushButton::clicked, this, &LayersPanel::showOrHideLayer);
    connect(m_ui->removeLayer, &QPushButton::clicked, document, &Document::removeCurrentLayer);
    connect(m_ui->layers, &QListWidget::itemClicked, this, [this] {
        m_document->setCurrentLayer(m_ui->layers->count() - 1 - m_ui->layers->currentRow());
    });
    connect(m_ui->objects, &QListWidget::itemClicked, this, [this](const QListWidgetItem* item) {
        m_document->select({ item->data(Qt::UserRole).toInt() });
    });
    connect(document, &Document::changed, this, &LayersPanel::showContent);
    showContent();
}

LayersPanel::~LayersPanel() = default;

void LayersPanel::showContent()
{
    const Content& content = m_document->content();
    m_ui->pageWidth->setValue(content.pageWidth);
    m_ui->pageHeight->setValue(content.pageHeight);
    m_ui->layers->clear();
    for (const Layer& layer : content.layers) {
        m_ui->layers->insertItem(
            0, layer.isVisible ? layer.name : tr("%1 (hidden)", "A layer.").arg(layer.name));
    }
    m_ui->layers->setCurrentRow(m_ui->layers->count() - 1 - m_document->currentLayer());
    m_ui->objects->clear();
    for (const Object& object : content.layers.at(m_document->currentLayer()).objects) {
        auto* item = new QListWidgetItem(object.description());
        item->setData(Qt::UserRole, object.id);
        m_ui->objects->insertItem(0, item);
        item->setSelected(m_document->isSelected(object));
    }
}

void LayersPanel::setPage()
{
    Content content = m_document->content();
    content.pageWidth = m_ui->pageWidth->value();
    content.pageHeight = m_ui->pageHeight->value();
    if (content.page() != m_document->content().page()) {
        m_document->edit(content);
    }
}

void LayersPanel::addLayer()
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

void LayersPanel::raiseLayer()
{
    Content content = m_document->content();
    const int layer = m_document->currentLayer();
    if (layer + 1 < content.layers.count()) {
        content.layers.swapItemsAt(layer, layer + 1);
        m_document->edit(content);
        m_document->setCurrentLayer(layer + 1);
    }
}

void LayersPanel::showOrHideLayer()
{
    Content content = m_document->content();
    bool& isVisible = content.layers[m_document->currentLayer()].isVisible;
    isVisible = !isVisible;
    m_document->edit(content);
}

#include "moc_layerspanel.cpp"
