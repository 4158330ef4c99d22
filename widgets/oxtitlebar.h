// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QWidget>

class QLabel;
class QPushButton;

/*!
 * \brief The 40 pixel high head of a small dialog: icon, title, close button.
 *
 * Use it on top of message-like dialogs. Larger dialogs and panels, which have no icon, use
 * ContainerTitleBar. The bar closes nothing itself:
 *
 * \code
 * auto* bar = new OxTitleBar(this, QStringLiteral(":/icons/ruler.png"), tr("MEASURE", "Title of a dialog."));
 * connect(bar, &OxTitleBar::closeButtonClicked, this, &QDialog::reject);
 * \endcode
 */
class UTILITYWIDGETS_EXPORT OxTitleBar : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString iconPath READ iconPath WRITE setIconPath)
    Q_PROPERTY(QString title READ title WRITE setTitle)

public:
    /// `iconPath` is a file or resource that QPixmap reads, shown in 29 x 28 pixels. An empty path
    /// or one that cannot be read leaves that place empty. A title that has no room in the
    /// bar ends in an ellipsis.
    explicit OxTitleBar(QWidget* parent = nullptr, const QString& iconPath = QString(),
                        const QString& title = QString());

    /// The path as it was given, also when it cannot be read.
    QString iconPath() const;
    /// Replaces the icon; a path that cannot be read leaves its place empty.
    void setIconPath(const QString& iconPath);
    QString title() const;
    /// Replaces the title. As in any QLabel, what Qt::mightBeRichText() is drawn as rich text, and
    /// cut off without an ellipsis: names that come from outside are shown to the letter as
    /// Qt::convertFromPlainText(name, Qt::WhiteSpaceNormal). Escaping alone is not enough: what is
    /// plain then shows the escapes.
    void setTitle(const QString& title);

    /// The bar's style sheet, for a dialog that embeds a bar to append to its own sheet.
    static QString barStyle();

Q_SIGNALS:
    /// The close button was tapped.
    void closeButtonClicked();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* m_iconLabel = nullptr;
    QLabel* m_titleLabel = nullptr;
    QPushButton* m_closeButton = nullptr;
    QString m_iconPath;
};
