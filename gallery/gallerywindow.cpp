// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "gallerywindow.h"

#include "applicationfont.h"
#include "containertitlebar.h"
#include "dragscrolllistwidget.h"
#include "look/palette.h"
#include "look/styledwidgetpainting.h"
#include "page.h"
#include "pageview.h"
#include "sharedconstants.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QVBoxLayout>

namespace Gallery {

namespace {

constexpr int ListWidth = 264; // pixels

// Where an entry of the list keeps the positions of its family and page.
enum Role {
    FamilyRole = Qt::UserRole + 1,
    PageRole,
};

QString windowStyle()
{
    return QStringLiteral(
        "#GalleryWindow { background-color: " LOOK_PANEL_GREY
        "; border: 1px solid " LOOK_ACCENT_ORANGE "; }\n"
        "#GalleryList { background-color: white; border: 0px; border-right: 1px solid #c6c6c6;"
        " outline: 0; }\n"
        "#GalleryList::item { min-height: 35px; padding-left: 10px; border: 0px; }\n"
        "#GalleryList::item:disabled { color: " LOOK_DISABLED_TEXT
        "; background-color: " LOOK_PANEL_GREY "; }\n"
        "#GalleryList::item:selected { color: white; background-color: " LOOK_ACCENT_ORANGE "; }\n"
        "#GalleryInstances, #GalleryInstancesContent { background-color: transparent; }\n"
        "#GalleryInstances QLineEdit, #GalleryInstances QAbstractSpinBox,"
        " #GalleryInstances QComboBox { min-height: 33px; }\n"
        "#GalleryCaption { color: #5a5959; }\n"
        "#GallerySnippet, #GallerySignalLog { background-color: white; color: #2b2b2b;"
        " border: 1px solid #c6c6c6; }\n"
        "#GalleryButton { border: 1px solid " LOOK_ACCENT_ORANGE
        "; color: white; font: bold; background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1,"
        " stop: 0 " LOOK_BUTTON_TOP ", stop: 1 " LOOK_BUTTON_BOTTOM
        "); border-radius: 6px; outline: 0; min-height: 35px; padding: 0px 12px; }\n"
        "#GalleryButton:pressed { background-color: " LOOK_ACCENT_ORANGE "; }\n"
        "#GalleryButton:focus { border: 2px solid " LOOK_ACCENT_ORANGE "; }\n");
}

} // namespace

GalleryWindow::GalleryWindow(QWidget* parent)
    : QWidget(parent)
    , m_list(new DragScrollListWidget)
    , m_view(new PageView)
{
    setObjectName(QStringLiteral("GalleryWindow"));
    setWindowTitle(QStringLiteral("UtilityWidgets"));
    setWindowFlag(Qt::FramelessWindowHint);
    setStyleSheet(windowStyle());
    resize(ScreenSize);

    m_list->setObjectName(QStringLiteral("GalleryList"));
    m_list->setAccessibleName(QStringLiteral("Widgets by family"));
    m_list->setFixedWidth(ListWidth);
    m_list->setFont(ApplicationFont::getWidgetFont(false));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    fillList();

    auto* bar = new ContainerTitleBar(this, QStringLiteral("UtilityWidgets Gallery"));
    auto* body = new QHBoxLayout;
    body->setSpacing(0);
    body->addWidget(m_list);
    body->addWidget(m_view, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addLayout(body, 1);

    connect(bar, &ContainerTitleBar::closeButtonClicked, this, &QWidget::close);
    connect(m_list, &QListWidget::currentItemChanged, this, &GalleryWindow::showCurrentPage);
    showPage(families().constFirst().pages.constFirst().id);
}

void GalleryWindow::showPage(const QString& id)
{
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem* item = m_list->item(row);
        if (item->text() == id && item->flags().testFlag(Qt::ItemIsSelectable)) {
            m_list->setCurrentItem(item);
            return;
        }
    }
}

void GalleryWindow::paintEvent(QPaintEvent* /*event*/)
{
    Look::paintStyledWidget(this);
}

void GalleryWindow::fillList()
{
    for (int family = 0; family < families().count(); ++family) {
        auto* heading = new QListWidgetItem(families().at(family).name, m_list);
        heading->setFlags(Qt::NoItemFlags);
        heading->setFont(ApplicationFont::getWidgetFontSmall(true));
        const QList<Page>& pages = families().at(family).pages;
        for (int page = 0; page < pages.count(); ++page) {
            auto* item = new QListWidgetItem(pages.at(page).id, m_list);
            item->setData(FamilyRole, family);
            item->setData(PageRole, page);
        }
    }
}

void GalleryWindow::showCurrentPage()
{
    const QListWidgetItem* item = m_list->currentItem();
    if (item == nullptr || !item->data(PageRole).isValid()) {
        return;
    }
    const Family& family = families().at(item->data(FamilyRole).toInt());
    m_view->showPage(family, family.pages.at(item->data(PageRole).toInt()));
}

} // namespace Gallery

#include "moc_gallerywindow.cpp"
