// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symbolslineedit.h"

#include "look/icons.h"
#include "look/images.h"

#include <QIcon>
#include <QToolButton>

SymbolsLineEdit::SymbolsLineEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setAccessibleName(tr("Search symbols", "Accessible name of the symbol search field."));
    m_searchButton = new QToolButton(this);
    m_searchButton->setIcon(Look::icon(QStringLiteral(LOOK_IMAGE_SEARCH)));
    m_searchButton->setIconSize(QSize(16, 16));
    m_searchButton->setCursor(Qt::ArrowCursor);
    m_searchButton->setAccessibleName(
        tr("Search", "Accessible name of the magnifier in the symbol search field."));

    connect(m_searchButton, &QToolButton::clicked, this, &QLineEdit::returnPressed);
}

void SymbolsLineEdit::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    const QSize size = m_searchButton->sizeHint();
    // One pixel inside the right border.
    m_searchButton->setGeometry(width() - 1 - size.width(), (height() - size.height()) / 2,
                                size.width(), size.height());
    QMargins margins = textMargins();
    margins.setRight(size.width() + 4);
    setTextMargins(margins);
}

#include "moc_symbolslineedit.cpp"
