// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

//! [form]
#include <QWidget>

#include <memory>

namespace Ui {
class FormPage;
}

class FormPage : public QWidget
{
    Q_OBJECT

public:
    explicit FormPage(QWidget* parent = nullptr);
    ~FormPage() override;

private:
    void storeName();

    std::unique_ptr<Ui::FormPage> m_ui;
    QString m_name;
    //! [form]

public:
    QString name() const { return m_name; }
};
