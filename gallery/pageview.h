// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "page.h"

#include <QWidget>

class QGridLayout;
class QLabel;
class QPlainTextEdit;
class QScrollArea;

namespace Gallery {

class SignalLog;

/// Shows one page: summary, live instances, the buttons that open its dialogs, snippet, signal log.
class PageView : public QWidget
{
    Q_OBJECT

public:
    explicit PageView(QWidget* parent = nullptr);

    /// Replaces the page shown.
    void showPage(const Family& family, const Page& page);

private:
    QWidget* createLowerHalf();
    void fillDialogButtons(const Page& page);

    QLabel* m_title;
    QLabel* m_summary;
    QScrollArea* m_instances;
    QWidget* m_dialogBar;
    QGridLayout* m_dialogButtons;
    QPlainTextEdit* m_snippet;
    SignalLog* m_log;
};

} // namespace Gallery
