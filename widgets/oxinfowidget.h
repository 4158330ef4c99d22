// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QDialog>

class ContainerTitleBar;
class QGridLayout;
class QLabel;
class QPushButton;

/*!
 * \brief The About panel: product name, version, how to reach the support, a notice, Close.
 *
 * \code
 * OxInfoWidget about(QCoreApplication::applicationVersion());
 * about.exec();
 * \endcode
 *
 * Make it without a parent. Its only window flag is the one for no frame: inside a parent it is no
 * window but a part of that parent, and blocks nothing.
 *
 * Always 360 x 300 pixels. Lines that are too long for it, in a translation, are wrapped.
 *
 * Close and the title bar's close button hide the panel and give it no result: exec() returns 0,
 * while neither finished() nor rejected() is emitted. Escape rejects. Hidden, it can be shown
 * again.
 */
class UTILITYWIDGETS_EXPORT OxInfoWidget : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(QString versionNumber READ versionNumber WRITE setVersionNumber)

public:
    /// `version` is shown as it is, as plain text.
    explicit OxInfoWidget(const QString& version, QWidget* parent = nullptr);

    /// The version alone, without the word in front of it.
    QString versionNumber() const;
    /// Replaces the version.
    void setVersionNumber(const QString& version);

Q_SIGNALS:
    /// Never emitted: for code that connects every panel's signal of this name.
    void focusLost();

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void showVersion();
    void alignLines();
    QGridLayout* createContent();

    QString m_version;
    bool m_isVersionReplaced = false;
    ContainerTitleBar* m_titleBar = nullptr;
    QLabel* m_headingLabel = nullptr;
    QLabel* m_versionLabel = nullptr;
    QLabel* m_contactLabel = nullptr;
    QLabel* m_noticeLabel = nullptr;
    QPushButton* m_closeButton = nullptr;
};
