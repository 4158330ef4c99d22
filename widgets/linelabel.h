// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QColor>
#include <QLabel>

/*!
 * \brief The head of a section: a text with a thin horizontal rule beside it or on both sides.
 *
 * Use it to divide a panel into named sections. Where a whole section should fold away under its
 * head, use the collapsible container, which has such a label built in; a rule without a text is a
 * QFrame.
 *
 * \code
 * auto* header = new LineLabel(tr("Lock Options", "Section header."), this);
 * header->setLineType(LineLabel::LineRight);
 * \endcode
 *
 * The rule runs at half the label's height. It leaves 10 pixels free beside the text, or 5 on each
 * side; a text without that room has no rule. Where the rule ends is computed from the plain text
 * in the label's font: margins, indents, rich text and line breaks are not taken into account, nor
 * is an alignment set behind the line type's back.
 */
class UTILITYWIDGETS_EXPORT LineLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(LineType lineType READ lineType WRITE setLineType NOTIFY lineTypeChanged)
    Q_PROPERTY(QColor lineColor READ lineColor WRITE setLineColor NOTIFY lineColorChanged)

public:
    /// Where the rule runs, seen from the text. The type also sets the label's alignment. Left and
    /// right change places for a text that is read from right to left.
    enum LineType : int {
        LineLeft = 0, ///< Left of the text, which stands at the right edge.
        LineRight = 1, ///< Right of the text, which stands at the left edge.
        LineBoth = 2, ///< On both sides of the text, which stands in the middle.
    };
    Q_ENUM(LineType)

    /// The rule starts out on both sides, in the text colour of the application's palette; it does
    /// not follow later changes of the palette.
    explicit LineLabel(const QString& text, QWidget* parent = nullptr, Qt::WindowFlags f = {});
    explicit LineLabel(QWidget* parent = nullptr);

    LineType lineType() const;
    QColor lineColor() const;

public Q_SLOTS:
    /// A value that is no LineType leaves the alignment as it is and shows no rule; it is stored
    /// and signalled all the same.
    void setLineType(LineType type);
    /// Also keeps an alpha channel. An invalid colour paints black.
    void setLineColor(const QColor& color);

Q_SIGNALS:
    /// Not emitted when the same type is set again.
    void lineTypeChanged(LineType type);
    /// Not emitted when the same colour is set again.
    void lineColorChanged(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintRule();

    LineType m_lineType = LineLeft;
    QColor m_lineColor;
};
