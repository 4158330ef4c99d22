// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QDialog>

class ClickableLabel;
class ContainerTitleBar;
class QGridLayout;
class QPushButton;
class QRadioButton;

/*!
 * \brief Asks whether a record that is saved replaces the current one or becomes a new one.
 *
 * \code
 * switch (DatabaseSaveWidget::execWidget()) {
 * case 1:
 *     m_records->update(m_current);
 *     break;
 * case 2:
 *     m_records->insert(m_current);
 *     break;
 * default: // cancelled
 *     break;
 * }
 * \endcode
 *
 * "Save" is chosen at first. A tap on an option's name or on the line below it chooses that
 * option. Escape and the title bar's close button cancel, Return presses OK.
 */
class UTILITYWIDGETS_EXPORT DatabaseSaveWidget : public QDialog
{
    Q_OBJECT

public:
    /// Make it without a parent, as execWidget() does. Its only window flag is the one for no
    /// frame, whatever `flags` say: inside a parent it is no window but a part of that parent, and
    /// blocks nothing.
    explicit DatabaseSaveWidget(QWidget* parent = nullptr, Qt::WindowFlags flags = {});

    /// Shows the question, waits for the answer and returns it as getResponse() does.
    static int execWidget();

    /// 1 to overwrite the current record, 2 to save a new one, 0 if the dialog has not been
    /// accepted.
    int getResponse() const;

public Q_SLOTS:
    /// Chooses to overwrite the current record.
    void checkSaveRadio();
    /// Chooses to save a new record.
    void checkSaveAsRadio();

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void createOptions();
    void createButtons();
    QGridLayout* layOutOptions();
    void createLayout();

    ContainerTitleBar* m_titleBar = nullptr;
    QRadioButton* m_saveRadio = nullptr;
    QRadioButton* m_saveAsRadio = nullptr;
    ClickableLabel* m_saveLabel = nullptr;
    ClickableLabel* m_saveInfoLabel = nullptr;
    ClickableLabel* m_saveAsLabel = nullptr;
    ClickableLabel* m_saveAsInfoLabel = nullptr;
    QPushButton* m_okButton = nullptr;
    QPushButton* m_cancelButton = nullptr;
};
