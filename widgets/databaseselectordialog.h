// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QDialog>
#include <QString>

#include <memory>

class Ui_DatabaseSelectorDialog;

/*!
 * \brief Lets the person choose one of the databases of a subfolder of the databases folder.
 *
 * For files anywhere else use a file dialog.
 *
 * \code
 * DatabaseSelectorDialog dialog(QStringLiteral("Customers"), this);
 * if (dialog.exec() == QDialog::Accepted && !dialog.getDatabaseName().isEmpty()) {
 *     m_records->open(dialog.getDatabaseName());
 * }
 * \endcode
 *
 * A database is a file whose name ends in ".db", in whatever case. The first one is chosen at
 * first. OK also accepts where there is none to choose. Escape and the title bar's close button
 * reject, Return presses OK.
 */
class UTILITYWIDGETS_EXPORT DatabaseSelectorDialog : public QDialog
{
    Q_OBJECT

public:
    /// Lists the databases of `subfolder`, see populateDatabasesList().
    explicit DatabaseSelectorDialog(const QString& subfolder, QWidget* parent = nullptr);
    ~DatabaseSelectorDialog() override;

    /// The path of the database that was chosen with OK; empty before that, and if there was none
    /// to choose. It always ends in ".db": that of a file named in upper case, "B.DB", is not the
    /// path of the file.
    QString getDatabaseName() const;

    /// Adds the databases of `subfolder` of the databases folder behind those that are listed, by
    /// name, and chooses the first of all. OK looks for the chosen one in the subfolder that was
    /// listed last, even if it does not exist.
    void populateDatabasesList(const QString& subfolder);

public Q_SLOTS:
    /// What OK does: remembers the chosen database, if there is one, and accepts. Connected to the
    /// button by its name.
    void on_okayButton_clicked(); // NOLINT(readability-identifier-naming)

Q_SIGNALS:
    /// OK was pressed while a database was chosen: its name without folder and ending. Emitted
    /// before getDatabaseName() returns it and before the dialog is accepted.
    void databaseSelectedSignal(const QString& name);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    std::unique_ptr<Ui_DatabaseSelectorDialog> m_ui;
    QString m_subfolder;
    QString m_folderPath;
    QString m_databaseName;
};
