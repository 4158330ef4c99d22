// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class IOxTransparentWidget;
class OxTransparentOverlay;
class QGridLayout;

/*!
 * \brief Shows a panel in front of a dimmed screen until the panel wants to be closed.
 *
 * Use it for a panel of the application's own; for messages and questions there are modal dialogs.
 * As soon as a container exists, everything below the top 60 pixels of the screen is dimmed by an
 * OxTransparentOverlay. The application shows the container itself, as a window without a frame:
 *
 * \code
 * auto* container = new OxTransparentContainer(nullptr, Qt::FramelessWindowHint);
 * container->setAttribute(Qt::WA_DeleteOnClose);
 * container->setWindowModality(Qt::ApplicationModal); // what is dimmed takes no touches
 * container->setCenterWindow(new ColorPanel);         // a QWidget and IOxTransparentWidget
 * container->show();
 * \endcode
 *
 * The dimming ends when the panel emits `closeSignal()`, and at the latest with the container.
 * Closing the container by other means than onClosePressed() hides it but leaves the screen dimmed
 * until it is deleted.
 */
class UTILITYWIDGETS_EXPORT OxTransparentContainer : public QWidget
{
    Q_OBJECT

public:
    explicit OxTransparentContainer(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~OxTransparentContainer() override;

    Q_DISABLE_COPY_MOVE(OxTransparentContainer)

    /*!
     * Shows `window` in the centre of the container, which takes it as a child. It and its direct
     * children get an opaque background.
     *
     * `window` must also be a QWidget with a signal `closeSignal()`; null and what is no widget are
     * ignored. A panel shown before is taken out of the layout, nothing else: it stays a visible
     * child, which the application hides or deletes, and its `closeSignal()` still closes the
     * container.
     */
    void setCenterWindow(IOxTransparentWidget* window);

public Q_SLOTS:
    /// Ends the dimming, then closes the panel and the container. Whether they are deleted depends
    /// on their own Qt::WA_DeleteOnClose.
    void onClosePressed();

private:
    QGridLayout* m_layout;
    QPointer<QWidget> m_centerWindow; // a panel may delete itself when it is closed
    std::unique_ptr<OxTransparentOverlay> m_overlay; // a window without a parent
};
