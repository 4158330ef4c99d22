// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTranslator>
#include <QWidget>

class QLabel;

class SettingsPage : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsPage(QWidget* parent = nullptr);

    void setLanguage(const QString& code);

    QLabel* label() const { return m_label; }
    QTranslator* translator() { return &m_translator; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void setTexts();

    QLabel* m_label;
    QTranslator m_translator;
};

/// What the program begins with.
void installPersonsLanguage();
