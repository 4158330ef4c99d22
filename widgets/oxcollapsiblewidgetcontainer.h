// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QPointer>
#include <QWidget>

class DragScrollButton;
class LineLabel;
class QGridLayout;

/*!
 * \brief A section of a long settings panel that folds away under its title.
 *
 * Stack several of them, each around the fields of one subject:
 *
 * \code
 * auto* section = new OxCollapsibleWidgetContainer(new LockWidget(false, nullptr),
 *                                                  tr("Protection", "Section title."), this);
 * connect(section, &OxCollapsibleWidgetContainer::collapseButtonPressed, tools,
 *         &ToolBoxContainer::determineButtonVisibility);
 * \endcode
 *
 * The content is shown while the button beside the title is checked. A new section is an exception:
 * its content is visible although the button is unchecked, so the first tap leaves it visible and
 * the second one folds it away.
 */
class UTILITYWIDGETS_EXPORT OxCollapsibleWidgetContainer : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString titleString READ titleString WRITE setTitleString)
    Q_PROPERTY(bool expanded READ isExpanded WRITE setExpanded)

public:
    /// A section without title and content.
    explicit OxCollapsibleWidgetContainer(QWidget* parent = nullptr);
    /// `containedWidget` becomes a child of the section; it may be null, and may be deleted at any
    /// time.
    OxCollapsibleWidgetContainer(QWidget* containedWidget, const QString& title,
                                 QWidget* parent = nullptr);

    /// Null when there is none, or when it has been deleted.
    QWidget* getContainedWidget() const;

    QString titleString() const;
    void setTitleString(const QString& title);

    /*!
     * Whether the button is checked; it is not at first. As when the person taps the button,
     * changing it shows or hides the content and emits collapseButtonPressed().
     *
     * A form that sets it before it adds the content opens with the section unfolded.
     */
    bool isExpanded() const;
    void setExpanded(bool expanded);

    /// Replaces the content by `widget`, which is hidden if the button is unchecked and may be
    /// null. The old content is not deleted: it stays a child of the section, as visible as it was,
    /// until the caller takes it away.
    Q_INVOKABLE void setContainedWidget(QWidget* widget);

public Q_SLOTS:
    /// Shows the content if the button is checked and hides it if not.
    void hideShowContainedWidget();

Q_SIGNALS:
    /// The button was toggled, and the content shown or hidden. `containedWidget` may be null.
    void collapseButtonPressed(QWidget* containedWidget);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void createLayout();
    void addContainedWidget();

    QGridLayout* m_layout = nullptr;
    DragScrollButton* m_collapseButton = nullptr;
    QPointer<QWidget> m_containedWidget;
    LineLabel* m_titleLabel = nullptr;
};
