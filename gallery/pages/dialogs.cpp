// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "oxinputdialog.h"
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

void showManyLines()
{
    QStringList files;
    for (int number = 1; number <= 40; ++number) {
        files.append(QStringLiteral("/media/usb/designs/Label %1.lbl").arg(number));
    }
    OxMessageBox::warning(window(), QStringLiteral("ERROR"),
                          QStringLiteral("These files could not be copied:\n")
                              + files.join(QLatin1Char('\n')));
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
        { QStringLiteral("lines"), QStringLiteral("Many lines"), showManyLines },
    };
}

/// Says what an input dialog returned, unless it was cancelled.
void showResult(bool cancelled, const QString& value)
{
    if (!cancelled) {
        OxMessageBox::information(window(), QStringLiteral("RESULT"), value);
    }
}

void askForText()
{
    bool cancelled = false;
    const QString name = OxInputDialog::getText(window(), QStringLiteral("Rename"),
                                                QStringLiteral("Name of the layer"),
                                                QStringLiteral("Layer 1"), &cancelled);
    showResult(cancelled, name);
}

void askForInt()
{
    //! [OxInputDialog]
    bool cancelled = false;
    const int copies = OxInputDialog::getInt(window(), QStringLiteral("Print"),
                                             QStringLiteral("Copies"), 1, 1, 99, &cancelled);
    showResult(cancelled, QString::number(copies));
    //! [OxInputDialog]
}

void askForDouble()
{
    bool cancelled = false;
    const double width = OxInputDialog::getDouble(window(), QStringLiteral("Size"),
                                                  QStringLiteral("Width in millimetres"), 12.5, 0.1,
                                                  500, &cancelled);
    showResult(cancelled, QString::number(width));
}

void askWithLongTexts()
{
    bool cancelled = false;
    const QString name =
        OxInputDialog::getText(window(), longText(), longText(), longText(), &cancelled);
    showResult(cancelled, name);
}

QList<DialogState> inputDialogs()
{
    return {
        { QStringLiteral("text"), QStringLiteral("Text"), askForText },
        { QStringLiteral("int"), QStringLiteral("Whole number"), askForInt },
        { QStringLiteral("double"), QStringLiteral("Decimal number"), askForDouble },
        { QStringLiteral("long"), QStringLiteral("Long text"), askWithLongTexts },
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
            {
                QStringLiteral("OxInputDialog"),
                QStringLiteral("Asks for one text, whole number or decimal number."),
                {},
                inputDialogs(),
            },
        },
    };
}

} // namespace Gallery
