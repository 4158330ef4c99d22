// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "symbolslineedit.h"

#include "look/icons.h"
#include "look/images.h"

#include <QEvent>
#include <QIcon>
#include <QStyle>
#include <QToolButton>

SymbolsLineEdit::SymbolsLineEdit(QWidget* parent)
    : QLineEdit(parent)
{
    m_searchButton = new QToolButton(this);
    m_searchButton->setIcon(Look::icon(QStringLiteral(LOOK_IMAGE_SEARCH)));
    m_searchButton->setIconSize(QSize(16, 16));
    m_searchButton->setCursor(Qt::ArrowCursor);
    retranslate();

    connect(m_searchButton, &QToolButton::clicked, this, &QLineEdit::returnPressed);
}

void SymbolsLineEdit::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    } else if (event->type() == QEvent::LayoutDirectionChange) {
        // The side that the button leaves is the text's again.
        const QMargins former = textMargins();
        setTextMargins(former.right(), former.top(), former.left(), former.bottom());
        placeSearchButton();
    }
}

void SymbolsLineEdit::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    placeSearchButton();
}

void SymbolsLineEdit::placeSearchButton()
{
    const QSize size = m_searchButton->sizeHint();
    // One pixel inside the right border.
    const QRect place(width() - 1 - size.width(), (height() - size.height()) / 2, size.width(),
                      size.height());
    m_searchButton->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
    QMargins margins = textMargins();
    if (isRightToLeft()) {
        margins.setLeft(size.width() + 4);
    } else {
        margins.setRight(size.width() + 4);
    }
    setTextMargins(margins);
}

void SymbolsLineEdit::retranslate()
{
    // A name that the application has given the field stays.
    if (accessibleName() == m_ownName) {
        m_ownName = tr("Search symbols", "Accessible name of the symbol search field.");
        setAccessibleName(m_ownName);
    }
    m_searchButton->setAccessibleName(
        tr("Search", "Accessible name of the magnifier in the symbol search field."));
}

#include "moc_symbolslineedit.cpp"
