// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "oxmessagebox.h"
#include "stage.h"

#include <QApplication>

namespace Gallery {

namespace {

/// The gallery's window, which the dialogs stand in front of.
QWidget* window()
{
    return QApplication::activeWindow();
}

void showInformation()
{
    OxMessageBox::information(window(), QStringLiteral("EXPORT"),
                              QStringLiteral("The design has been exported."));
}

void showWarning()
{
    OxMessageBox::warning(window(), QStringLiteral("ERROR"),
                          QStringLiteral("The file could not be saved.\nThe medium is full."));
}

void showCritical()
{
    OxMessageBox::critical(window(), QStringLiteral("ERROR"),
                           QStringLiteral("The symbol library could not be opened."),
                           QMessageBox::Retry | QMessageBox::Abort, QMessageBox::Retry);
}

void showQuestion()
{
    //! [OxMessageBox]
    const QString title = QStringLiteral("DELETE");
    const QString text = QStringLiteral("Delete the selected layer?");
    const auto buttons = QMessageBox::Yes | QMessageBox::No;
    const auto standard = QMessageBox::No; // what Enter presses
    const auto answer = OxMessageBox::question(window(), title, text, buttons, standard);
    if (answer == QMessageBox::Yes) {
        OxMessageBox::information(window(), title, QStringLiteral("Deleted."));
    }
    //! [OxMessageBox]
}

void showCustomQuestion()
{
    OxMessageBox::customQuestion(
        window(), QStringLiteral("SAVE"),
        QStringLiteral("A design with this name exists already. Overwrite it?"),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel,
        { { QMessageBox::Yes, QStringLiteral("Overwrite") },
          { QMessageBox::No, QStringLiteral("Keep") } });
}

void showMessage()
{
    OxMessageBox::message(QMessageBox::Information, QStringLiteral("UPDATE"),
                          QStringLiteral("Restart to finish the update."), QMessageBox::Ok,
                          QMessageBox::Ok, window(), Qt::Dialog | Qt::FramelessWindowHint);
}

void showOwnButtons()
{
    OxMessageBox box(QMessageBox::Question, QStringLiteral("EXPORT"),
                     QStringLiteral("Which format?"), QMessageBox::Cancel, window(),
                     Qt::FramelessWindowHint);
    box.addButton(QStringLiteral("PNG"), QMessageBox::AcceptRole);
    box.addButton(QStringLiteral("SVG"), QMessageBox::AcceptRole);
    box.exec();
}

void showLongText()
{
    OxMessageBox::warning(
        window(), QStringLiteral("ERROR"),
        longText() + QLatin1Char(' ')
            + QStringLiteral("/media/usb/designs/2026/spring/banners and posters/").repeated(6));
}

/// A box that stands on the page like any other widget and comes back once it is answered.
QWidget* createEmbeddedBox(const QString& text, QMessageBox::StandardButtons buttons)
{
    auto* box = new OxMessageBox(QMessageBox::Question, QStringLiteral("DELETE"), text, buttons,
                                 nullptr, Qt::Widget);
    box->setWindowFlags(Qt::Widget);
    QObject::connect(box, &QDialog::finished, box, &QWidget::show, Qt::QueuedConnection);
    return box;
}

void showOxMessageBox(Stage& stage)
{
    stage.setColumns(2);
    stage.add(QStringLiteral("Enabled"),
              createEmbeddedBox(QStringLiteral("Delete the selected layer?"),
                                QMessageBox::Yes | QMessageBox::No));
    QWidget* disabled = createEmbeddedBox(QStringLiteral("Delete the selected layer?"),
                                          QMessageBox::Ok | QMessageBox::Cancel);
    disabled->setEnabled(false);
    stage.add(QStringLiteral("Disabled"), disabled);
}

QList<DialogState> messageBoxes()
{
    return {
        { QStringLiteral("information"), QStringLiteral("Information"), showInformation },
        { QStringLiteral("warning"), QStringLiteral("Warning"), showWarning },
        { QStringLiteral("critical"), QStringLiteral("Critical"), showCritical },
        { QStringLiteral("question"), QStringLiteral("Question"), showQuestion },
        { QStringLiteral("custom"), QStringLiteral("Custom question"), showCustomQuestion },
        { QStringLiteral("message"), QStringLiteral("Message"), showMessage },
        { QStringLiteral("own"), QStringLiteral("Own buttons"), showOwnButtons },
        { QStringLiteral("long"), QStringLiteral("Long text"), showLongText },
    };
}

} // namespace

Family dialogsFamily()
{
    return {
        QStringLiteral("Dialogs"),
        QStringLiteral(":/gallery/pages/dialogs.cpp"),
        {
            {
                QStringLiteral("OxMessageBox"),
                QStringLiteral("Tells the person something or asks for a decision."),
                showOxMessageBox,
                messageBoxes(),
            },
        },
    };
}

} // namespace Gallery
