// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QDialog>

class OxDoubleSpinBox;
class OxSpinBox;
class OxTitleBar;
class QAbstractButton;
class QDialogButtonBox;
class QLabel;
class QLineEdit;

/*!
 * \brief Asks the person for one text, whole number or decimal number.
 *
 * Use the static functions. Mind their flag: it is true when the person *cancelled*, the reverse of
 * QInputDialog's.
 *
 * \code
 * bool cancelled = false;
 * const int copies = OxInputDialog::getInt(this, tr("Print", "Title."), tr("Copies", "Label."), 1,
 *                                          1, 99, &cancelled);
 * if (!cancelled) {
 *     print(copies);
 * }
 * \endcode
 *
 * For anything but one value, put fields into a dialog of your own.
 *
 * Escape and the title bar's close button cancel; Enter presses OK. The spin boxes have no arrows:
 * values are typed.
 */
class UTILITYWIDGETS_EXPORT OxInputDialog : public QDialog
{
    Q_OBJECT

public:
    /// An empty dialog: call exactly one of the set...Layout() functions, once, before exec().
    explicit OxInputDialog(QWidget* parent = nullptr, Qt::WindowFlags flags = {},
                           const QString& title = {}, const QString& label = {});

    /// \name Dialogs that run until they are answered
    /// They return what was entered, or a null string, 0 or 0.0 when the person cancelled.
    /// `cancelled`, which may be null, tells the two apart. A `value` outside the range is moved
    /// into it. Use Qt::FramelessWindowHint, the default, for the house look; `parent` must outlive
    /// the call.
    /// @{
    static QString getText(QWidget* parent, const QString& title, const QString& label,
                           const QString& text = {}, bool* cancelled = nullptr,
                           Qt::WindowFlags flags = Qt::FramelessWindowHint);
    static int getInt(QWidget* parent, const QString& title, const QString& label, int value,
                      int minimum, int maximum, bool* cancelled = nullptr,
                      Qt::WindowFlags flags = Qt::FramelessWindowHint);
    static double getDouble(QWidget* parent, const QString& title, const QString& label,
                            double value, double minimum, double maximum, bool* cancelled = nullptr,
                            Qt::WindowFlags flags = Qt::FramelessWindowHint);
    /// @}

    /// Makes the field for a text, filled with `text`.
    void setTextLayout(const QString& text);
    /// Makes the field for a whole number from `minimum` to `maximum`.
    void setIntLayout(int value, int minimum, int maximum);
    /// Makes the field for a decimal number from `minimum` to `maximum`, with two decimals.
    void setDoubleLayout(double value, double minimum, double maximum);

    /// What is in the field. Null, 0 or 0.0 when another layout, or none, was set.
    QString getTextValue() const;
    int getIntValue() const;
    double getDoubleValue() const;

public Q_SLOTS:
    /// Cancels.
    void closeButton();
    /// Accepts if `button` is OK, cancels otherwise.
    void onButtonClicked(QAbstractButton* button);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void createButtons();
    void createLayout(QWidget* field, int minimumWidth);
    bool run(bool* cancelled);

    OxTitleBar* m_titleBar = nullptr;
    QLabel* m_label = nullptr;
    QLineEdit* m_textField = nullptr;
    OxSpinBox* m_intField = nullptr;
    OxDoubleSpinBox* m_doubleField = nullptr;
    QDialogButtonBox* m_buttonBox = nullptr;
};
