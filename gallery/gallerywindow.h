// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QListWidget;

namespace Gallery {

class PageView;

/// The gallery's window: on the left the widgets by family, on the right the chosen one's page.
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget* parent = nullptr);

    /// Shows the page with that id; an unknown one changes nothing.
    void showPage(const QString& id);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void fillList();
    void showCurrentPage();

    QListWidget* m_list;
    PageView* m_view;
};

} // namespace Gallery
