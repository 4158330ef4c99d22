// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QCheckBox>
#include <QWidget>

class LineLabel;

/*!
 * \brief Three image check boxes with which a person protects an object of a document.
 *
 * Lock freezes everything but the object's data, read-only freezes everything, user background
 * moves the object to a layer of its own. Use it in the panel that edits an object.
 *
 * A tap on a box changes that box and reports it; which box then disables which other one is
 * decided by the setters alone. So answer each signal with them, once the object itself has
 * accepted the change:
 *
 * \code
 * auto* locks = new LockWidget(true, this);
 * connect(locks, &LockWidget::readOnlySignal, this, [this, locks](bool checked) {
 *     m_object->setReadOnly(checked);
 *     locks->setReadOnlyState(m_object->isReadOnly());
 * });
 * \endcode
 *
 * To show an object's state, call the setters in the order lock, read-only, user background: the
 * last one takes the two before it into account.
 */
class UTILITYWIDGETS_EXPORT LockWidget : public QWidget
{
    Q_OBJECT
    // In the order in which the setters are to be called: a form sets them in this one.
    Q_PROPERTY(bool lockState READ lockState WRITE setLockState)
    Q_PROPERTY(bool readOnlyState READ readOnlyState WRITE setReadOnlyState)
    Q_PROPERTY(bool userBackgroundState READ userBackgroundState WRITE setUserBackgroundState)

public:
    /// One row of boxes when `horizontal`, otherwise a grid under the header "Lock Options".
    LockWidget(bool horizontal, QWidget* parent);
    /// The grid.
    explicit LockWidget(QWidget* parent = nullptr);

    /// \name Whether a box is checked, by the person or by its setter
    /// @{
    bool lockState() const;
    bool readOnlyState() const;
    bool userBackgroundState() const;
    /// @}

public Q_SLOTS:
    /// Checks or unchecks the lock box. Like the other setters it emits no signal.
    void setLockState(bool checked);
    /// Also disables the lock box when `checked`, and otherwise enables it, even if the user
    /// background box is checked.
    void setReadOnlyState(bool checked);
    /// Also disables both other boxes when `checked`; otherwise enables the read-only box, and the
    /// lock box unless the read-only box is checked.
    void setUserBackgroundState(bool checked);

Q_SIGNALS:
    /// A person changed the lock box to `checked`; the setters emit none of these three.
    void lockSignal(bool checked);
    /// A person changed the read-only box to `checked`.
    void readOnlySignal(bool checked);
    /// A person changed the user background box to `checked`.
    void userBackgroundSignal(bool checked);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void setUpBoxes();
    void layOutAsRow();
    void layOutAsGrid();

    // Held by value and adopted by the layout: as members they die before the base class deletes
    // the children it has left.
    QCheckBox m_lockBox;
    QCheckBox m_readOnlyBox;
    QCheckBox m_userBackgroundBox;
    LineLabel* m_header = nullptr;
};
