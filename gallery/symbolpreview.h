// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QSvgRenderer;

namespace Gallery {

/// A symbol, as large as there is room for it, on a white sheet.
class SymbolPreview : public QWidget
{
    Q_OBJECT

public:
    explicit SymbolPreview(QWidget* parent = nullptr);

    /// An SVG document; what cannot be drawn shows an empty sheet.
    void setSymbol(const QByteArray& svg);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSvgRenderer* m_renderer;
};

} // namespace Gallery
