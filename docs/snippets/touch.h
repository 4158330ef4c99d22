// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QWidget>

class LayerPage : public QWidget
{
    Q_OBJECT

public:
    explicit LayerPage(QWidget* parent = nullptr);

    QString shownLayer() const { return m_shownLayer; }
    QString storedName() const { return m_storedName; }
    QString searchedText() const { return m_searchedText; }

private:
    QWidget* createList(const QStringList& names);
    QWidget* createName();
    QWidget* createSearch();
    QWidget* createLockButton();

    QString m_shownLayer;
    QString m_storedName;
    QString m_searchedText;
};
