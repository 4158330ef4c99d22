// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QLineEdit>

class QToolButton;

/*!
 * \brief A line edit with a magnifier at its end, which stands for the Return key.
 *
 * Use it for a search that begins when the person says so, on a screen without a keyboard at hand:
 *
 * \code
 * auto* field = new SymbolsLineEdit(this);
 * connect(field, &QLineEdit::returnPressed, this, [=] { search(field->text()); });
 * \endcode
 *
 * The text never runs under the magnifier: the right text margin belongs to the field itself, or
 * the left one where the layout runs from right to left.
 */
class UTILITYWIDGETS_EXPORT SymbolsLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit SymbolsLineEdit(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void retranslate();
    void placeSearchButton();

    QToolButton* m_searchButton = nullptr;
    /// The accessible name as long as the application has given no other.
    QString m_ownName;
};
