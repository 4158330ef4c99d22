// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QPoint>
#include <QSize>
#include <QWidget>

class QLayout;
class QPushButton;
class ToolBox;

/*!
 * \brief A column of panels between two arrow buttons that scroll it.
 *
 * Use it for settings that do not fit on the screen. It scrolls by dragging (see ToolBox) and by
 * an arrow button at the top and one at the bottom, which are there only while there is something
 * in their direction:
 *
 * \code
 * auto* tools = new ToolBoxContainer(this);
 * tools->initialize(QSize(220, 400), QPoint(0, 0));
 * tools->addPropertiesWidget(new LockWidget(false, tools));
 * \endcode
 *
 * Before initialize() there is nothing in it: the operations do nothing and getToolBox() is null.
 * Only the spacing is kept until then, because a form sets its properties in any order.
 */
class UTILITYWIDGETS_EXPORT ToolBoxContainer : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int columnWidth READ columnWidth WRITE setColumnWidth)
    Q_PROPERTY(int panelSpacing READ layoutSpacing WRITE setLayoutSpacing) // see ToolBox
    // Not for a form: what is scrolled to, and what can be, changes from moment to moment.
    Q_PROPERTY(bool aboveButtonVisible READ isAboveButtonVisible WRITE setAboveButtonVisible
                   DESIGNABLE false STORED false)
    Q_PROPERTY(bool belowButtonVisible READ isBelowButtonVisible WRITE setBelowButtonVisible
                   DESIGNABLE false STORED false)
    Q_PROPERTY(int toolBoxVerticalScrollValue READ getToolBoxVerticalScrollValue WRITE
                   setToolBoxVerticalScrollValue DESIGNABLE false STORED false)

public:
    explicit ToolBoxContainer(QWidget* parent = nullptr);

    /// Builds the tool box and the buttons, all as wide as `size`; for `position` see
    /// ToolBox::initialize(). Once only; later calls do nothing.
    void initialize(QSize size, QPoint position);

    /*!
     * The width of the tool box in pixels, 0 before there is one.
     *
     * Setting it is how a form says initialize(): a positive width makes the tool box, unless there
     * is one, and any other does nothing.
     */
    int columnWidth() const;
    void setColumnWidth(int width);

    /// \name What ToolBox offers
    /// @{
    void addPropertiesWidget(QWidget* panel);
    void insertSpacerItem();
    void clearLayout(QLayout* layout);
    void setLayoutSpacing(int spacing);
    int layoutSpacing() const;
    /// @}

    /// Shows or hides one button until scrolling, resizing or growing content decides anew.
    void setAboveButtonVisible(bool visible);
    void setBelowButtonVisible(bool visible);
    /// Whether there is such a button and it is shown, in a container that may itself be hidden.
    bool isAboveButtonVisible() const;
    bool isBelowButtonVisible() const;

    ToolBox* getToolBox() const;

    /*!
     * Shows the buttons in whose direction there is something to scroll to. The container does so by
     * itself when it is scrolled or its size or content changes; call this to have it settled now.
     *
     * Processes pending events first, so that panels added just now count: slots of all kinds run,
     * and one may even delete this container.
     */
    void determineButtonVisibility();

    /// Scrolls until `widget`, which must be inside the tool box, is visible with 50 pixels around
    /// it. Null is ignored.
    void ensureVisibleWidget(QWidget* widget);

    /// How far the tool box is scrolled, in pixels; 0 is the top.
    void setToolBoxVerticalScrollValue(int value);
    int getToolBoxVerticalScrollValue() const;

public Q_SLOTS:
    /// addPropertiesWidget() for forms, which add their panels by this name: where there is no tool
    /// box yet, it makes one that is as wide as `panel` asks for, or as the container if it asks for
    /// no width. Null is ignored.
    void addPanel(QWidget* panel);
    /// Scrolls up by 35 pixels, and all the way when no more than 70 are left.
    void onAboveButtonClicked();
    /// Scrolls down by 35 pixels, and all the way when no more than 70 are left.
    void onBelowButtonClicked();
    void onSliderValueChanged(int value);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    void retranslate();
    void createToolBox(QSize size, QPoint position);
    void createLayout();
    void settleLayouts();
    void updateButtons();
    void followScrollBar(bool follow);

    QPushButton* m_aboveButton = nullptr;
    ToolBox* m_toolBox = nullptr;
    QPushButton* m_belowButton = nullptr;
    int m_spacingToCome = 5; // pixels; of the tool box that is not there yet
    bool m_settling = false;
};
