// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

/// A shown and active window with a field that is being tested and a place to leave it for.
class FieldForm
{
public:
    /// Takes ownership of `field`.
    explicit FieldForm(QWidget* field)
        : m_field(field)
        , m_elsewhere(new QLineEdit)
    {
        auto* layout = new QVBoxLayout(&m_window);
        // First, so that the window gives it the focus when it opens.
        layout->addWidget(m_elsewhere);
        layout->addWidget(m_field, 1);
        m_window.resize(300, 200);
        m_window.show();
        // Without a window manager nothing but the program itself makes a window active.
        m_window.activateWindow();
        if (!QTest::qWaitForWindowActive(&m_window)) {
            QTest::qFail("the window did not become active", __FILE__, __LINE__);
        }
        m_elsewhere->setFocus();
    }

    void enter(Qt::FocusReason reason = Qt::OtherFocusReason) { m_field->setFocus(reason); }
    void leave(Qt::FocusReason reason = Qt::OtherFocusReason) { m_elsewhere->setFocus(reason); }

    QWidget* window() { return &m_window; }

private:
    QWidget m_window;
    QWidget* m_field;
    QLineEdit* m_elsewhere;
};
