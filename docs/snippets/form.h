// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class Form : public QWidget
{
    Q_OBJECT

public:
    explicit Form(QWidget* parent = nullptr);

    bool isStored() const { return m_isStored; }

private:
    void storeName() { m_isStored = true; }

    bool m_isStored = false;
};
