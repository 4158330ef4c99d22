// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QWidget>

class QLabel;
class QPushButton;

/*!
 * \brief The 46 pixel high head of a large dialog or a panel: title and close button.
 *
 * Small, message-like dialogs, whose head shows an icon, use OxTitleBar. The bar closes nothing
 * itself:
 *
 * \code
 * auto* bar = new ContainerTitleBar(this, tr("LAYERS", "Title of the layers panel."));
 * connect(bar, &ContainerTitleBar::closeButtonClicked, this, &QWidget::hide);
 * \endcode
 */
class UTILITYWIDGETS_EXPORT ContainerTitleBar : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)

public:
    /// A `title` that has no room in the bar ends in an ellipsis.
    explicit ContainerTitleBar(QWidget* parent = nullptr, const QString& title = QString());

    QString title() const;
    /// Replaces the title. As in any QLabel, what Qt::mightBeRichText() is drawn as rich text, and
    /// cut off without an ellipsis: names that come from outside are shown to the letter as
    /// Qt::convertFromPlainText(name, Qt::WhiteSpaceNormal). Escaping alone is not enough: what is
    /// plain then shows the escapes.
    void setTitle(const QString& title);

    /// Makes the bar one that cannot be closed. There is no way back.
    void hideCloseButton();

Q_SIGNALS:
    /// The close button was tapped.
    void closeButtonClicked();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* m_titleLabel = nullptr;
    QPushButton* m_closeButton = nullptr;
};
