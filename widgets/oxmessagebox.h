// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QMap>
#include <QMessageBox>
#include <QPointer>

class OxTitleBar;
class QAbstractButton;
class QLabel;
class QPushButton;

/*!
 * \brief Tells the person something or asks for a decision, in the house style.
 *
 * Replaces QMessageBox and keeps its vocabulary, so that a caller changes the class name only:
 *
 * \code
 * const auto answer = OxMessageBox::question(
 *     this, tr("DELETE", "Title of a question."), tr("Delete the layer?", "Question."),
 *     QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
 * if (answer == QMessageBox::Yes) {
 *     deleteLayer();
 * }
 * \endcode
 *
 * customQuestion() does the same with the caller's own words on the buttons. Make a box yourself
 * only for buttons that are no standard buttons; tell those apart by clickedButton():
 *
 * \code
 * OxMessageBox box(this);
 * QPushButton* replace = box.addButton(tr("Replace", "Button."), QMessageBox::AcceptRole);
 * box.addButton(tr("Keep both", "Button."), QMessageBox::RejectRole);
 * box.exec();
 * if (box.clickedButton() == replace) { ... }
 * \endcode
 *
 * exec() returns the QMessageBox::StandardButton that was tapped, and 0 (QMessageBox::NoButton) for
 * any other button, for Escape and for the title bar's close button. How a box ended is told by
 * that result and by finished() alone: do not use accepted() and rejected(), which only know the
 * results 1 and 0.
 *
 * Enter presses the default button. A box without a default button ignores Enter, so that nobody
 * confirms a question by accident; it never chooses a default button itself.
 *
 * Texts are plain, or rich where Qt::mightBeRichText() says so. One that holds names from outside is
 * shown to the letter as Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal), which
 * QTextDocument's header declares. Escaping the names is not enough: a text without a tag is plain
 * all the same, and shows the escapes.
 *
 * A text is wrapped only if it is wider than the screen, and scrolls under the finger only if the
 * box would be higher than the screen. Keep it to a few lines all the same: people do not read more
 * before they tap.
 */
class UTILITYWIDGETS_EXPORT OxMessageBox : public QDialog
{
    Q_OBJECT

public:
    /// A box with empty title and text and no buttons: see addButton().
    explicit OxMessageBox(QWidget* parent = nullptr);

    /*!
     * `icon` is part of the call for the sake of compatibility only: every box shows the same icon.
     *
     * `buttonTexts` replaces the text of the standard buttons it names; those it does not name keep
     * the toolkit's translated text, and entries for buttons that are not in `buttons` are ignored.
     */
    OxMessageBox(QMessageBox::Icon icon, const QString& title, const QString& text,
                 QMessageBox::StandardButtons buttons = QMessageBox::NoButton,
                 QWidget* parent = nullptr,
                 Qt::WindowFlags flags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint,
                 const QMap<QMessageBox::StandardButton, QString>& buttonTexts = {});

    /// \name Boxes that run until they are answered
    /// They return the standard button that was tapped, or QMessageBox::NoButton for Escape and the
    /// close button. A `defaultButton` that is not among `buttons` is ignored. `parent` must
    /// outlive the call.
    /// @{
    /// Something has happened that the person should know of.
    static QMessageBox::StandardButton
    information(QWidget* parent, const QString& title, const QString& text,
                QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    /// Something went wrong, and work can go on. The house's title for it is "ERROR".
    static QMessageBox::StandardButton
    warning(QWidget* parent, const QString& title, const QString& text,
            QMessageBox::StandardButtons buttons = QMessageBox::Ok,
            QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    /// Something went wrong, and work cannot go on as before. Looks as warning() does.
    static QMessageBox::StandardButton
    critical(QWidget* parent, const QString& title, const QString& text,
             QMessageBox::StandardButtons buttons = QMessageBox::Ok,
             QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    /// The person decides. Make the answer that loses nothing the `defaultButton`.
    static QMessageBox::StandardButton
    question(QWidget* parent, const QString& title, const QString& text,
             QMessageBox::StandardButtons buttons = QMessageBox::Ok,
             QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);

    /// A question whose standard buttons carry the caller's own texts.
    static QMessageBox::StandardButton
    customQuestion(QWidget* parent, const QString& title, const QString& text,
                   QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton,
                   const QMap<QMessageBox::StandardButton, QString>& buttonTexts);

    /// What the others are made of; to be used directly for other window flags than
    /// Qt::FramelessWindowHint.
    static QMessageBox::StandardButton
    message(QMessageBox::Icon icon, const QString& title, const QString& text,
            QMessageBox::StandardButtons buttons = QMessageBox::Ok,
            QMessageBox::StandardButton defaultButton = QMessageBox::NoButton,
            QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::FramelessWindowHint);
    /// @}

    /// \name From the message box's vocabulary to the button box's
    /// The numbers stay the same, so that combinations and roles of either may be compared.
    /// @{
    static QDialogButtonBox::ButtonRole convertButtonRole(QMessageBox::ButtonRole role);
    static QDialogButtonBox::StandardButton
    convertStandardButton(QMessageBox::StandardButton button);
    static QDialogButtonBox::StandardButtons
    convertStandardButtons(QMessageBox::StandardButtons buttons);
    /// @}

    /// Resource path of the icon in the title bar of every box.
    static QString defaultIconFilePath();

    /// The button that ended the box; null while none has, after Escape or the close button, and
    /// when that button has been deleted since.
    QAbstractButton* clickedButton() const;

    /// Adds a button that looks like the others and returns it; the box owns it. Where it stands in
    /// the row follows from its role, as the platform orders roles. Null for a role or a value that
    /// names no button, such as QMessageBox::NoButton.
    QPushButton* addButton(const QString& text, QMessageBox::ButtonRole role);
    QPushButton* addButton(QMessageBox::StandardButton button);

    /// Makes `button`, one of the box's, the one that Enter presses. Null is ignored, and so is a
    /// standard button that the box does not have: a default button set before stays.
    void setDefaultButton(QPushButton* button);
    void setDefaultButton(QMessageBox::StandardButton button);

public Q_SLOTS:
    /// Ends the box as Escape does: the window system's close request and QWidget::close() come
    /// here.
    void reject() override;
    /// Ends the box as a tap on `button` does.
    void onButtonClicked(QAbstractButton* button);
    /// Ends the box as Escape and the title bar's close button do.
    void closeWithDefaultButton();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void createButtons(QMessageBox::StandardButtons buttons,
                       const QMap<QMessageBox::StandardButton, QString>& texts);
    void createLayout();
    void wrapTextWiderThanScreen();
    void scrollTextHigherThanScreen();
    QPushButton* prepared(QPushButton* button) const;

    OxTitleBar* m_titleBar = nullptr;
    QLabel* m_textLabel = nullptr;
    QDialogButtonBox* m_buttonBox = nullptr;
    int m_closeResult = QMessageBox::NoButton;
    QPointer<QAbstractButton> m_clickedButton;
    bool m_hasDefaultButton = false;
};
