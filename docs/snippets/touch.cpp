// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "touch.h"

#include <ButtonPressEventHandler>
#include <DragScrollListWidget>
#include <IgnoreEnterEventHandler>
#include <OxLineEdit>

#include "sharedconstants.h"

#include <QPushButton>
#include <QVBoxLayout>

LayerPage::LayerPage(QWidget* parent)
    : QWidget(parent)
{
    QStringList names;
    for (int number = 1; number <= 30; ++number) {
        names.append(QStringLiteral("Layer %1").arg(number));
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(createList(names));
    layout->addWidget(createName());
    layout->addWidget(createSearch());
    layout->addWidget(createLockButton());
}

QWidget* LayerPage::createList(const QStringList& names)
{
    //! [list]
    auto* list = new DragScrollListWidget(this);
    list->setStyleSheet(QStringLiteral("QListWidget::item { min-height: 35px; }"));
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setAccessibleName(tr("Layers", "Accessible name of a list."));
    list->addItems(names);
    connect(list, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* item) { m_shownLayer = item->text(); });
    //! [list]
    return list;
}

QWidget* LayerPage::createName()
{
    //! [focus]
    auto* name = new OxLineEdit(this);
    name->setAccessibleName(tr("Name of the layer", "Accessible name of a field."));
    connect(name, &OxLineEdit::focusLost, this, [this, name] { m_storedName = name->text(); });
    //! [focus]
    return name;
}

QWidget* LayerPage::createSearch()
{
    //! [enter]
    auto* search = new OxLineEdit(this);
    search->setAccessibleName(tr("Search layers", "Accessible name of a field."));
    search->installEventFilter(new IgnoreEnterEventHandler(search));
    connect(search, &QLineEdit::textEdited, this,
            [this](const QString& text) { m_searchedText = text; });
    //! [enter]
    return search;
}

QWidget* LayerPage::createLockButton()
{
    //! [icon]
    auto* lock = new QPushButton(this);
    lock->setIcon(QIcon(QStringLiteral(":/editor/lock.png")));
    lock->setIconSize(IconButtonSize);
    lock->setFixedSize(IconButtonSize);
    lock->setAccessibleName(tr("Lock", "Accessible name of a button."));
    lock->installEventFilter(new ButtonPressEventHandler(lock));
    //! [icon]
    return lock;
}
