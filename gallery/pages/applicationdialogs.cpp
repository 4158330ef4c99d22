// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "containerdialog.h"
#include "databasesavewidget.h"
#include "databaseselectordialog.h"
#include "filemenuwidget.h"
#include "look/images.h"
#include "look/sheets.h"
#include "oxhelpwindow.h"
#include "oxinfowidget.h"
#include "oxmessagebox.h"
#include "oxspinbox.h"
#include "stage.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

// The manuals and databases of these pages are in gallery/device, which scripts/demo lays into the
// gallery's /data and /Home/.

namespace Gallery {

namespace {

/// Says what a dialog returned.
void showResult(const QString& value)
{
    OxMessageBox::information(QApplication::activeWindow(), QStringLiteral("RESULT"), value);
}

QPushButton* createDoneButton(QDialog* dialog)
{
    auto* button = new QPushButton(QStringLiteral("Done"));
    button->setStyleSheet(Look::gradientButton());
    button->setFixedWidth(180);
    QObject::connect(button, &QPushButton::clicked, dialog, &QDialog::accept);
    return button;
}

void askForGrid()
{
    //! [ContainerDialog]
    ContainerDialog dialog;
    dialog.setHeaderLabelText(QStringLiteral("GRID"));
    auto* spacing = new OxSpinBox;
    spacing->setMinimumSize(300, 35);
    auto* label = new QLabel(QStringLiteral("Spacing in millimetres"));
    label->setBuddy(spacing);
    auto* content = new QVBoxLayout;
    content->addWidget(label);
    content->addWidget(spacing);
    content->addWidget(createDoneButton(&dialog), 0, Qt::AlignRight); // accepts
    dialog.setContainedWidget(content);
    if (dialog.exec() == QDialog::Accepted) {
        showResult(spacing->text());
    }
    //! [ContainerDialog]
}

void showLongContainer()
{
    ContainerDialog dialog;
    dialog.setHeaderLabelText(longText());
    auto* text = new QLabel(longText());
    text->setWordWrap(true);
    auto* content = new QVBoxLayout;
    content->addWidget(text);
    dialog.setContainedWidget(content);
    dialog.resize(420, 200);
    dialog.exec();
}

void showEmptyContainer()
{
    ContainerDialog dialog;
    dialog.setHeaderLabelText(QStringLiteral("EMPTY"));
    dialog.resize(420, 200);
    dialog.exec();
}

QPushButton* createMenuItem(const QString& text)
{
    auto* item = new QPushButton(text);
    item->setFlat(true);
    item->setFixedHeight(40);
    item->setMinimumWidth(1); // never wider than the menu
    // A tap that took the focus away from the menu would hide it before it is over.
    item->setFocusPolicy(Qt::TabFocus);
    return item;
}

QWidget* createMenu(const QString& lastItem)
{
    auto* menu = new FileMenuWidget;
    menu->addMenuItem(createMenuItem(QStringLiteral("New")));
    menu->addMenuItem(createMenuItem(QStringLiteral("Open")));
    menu->addMenuItem(createMenuItem(lastItem));
    return menu;
}

/// Below `button`, for as long as the focus is in the menu.
void dropMenuDown(QWidget* button)
{
    //! [FileMenuWidget]
    auto* menu = new FileMenuWidget(button->window());
    for (const QString& text : { QStringLiteral("New"), QStringLiteral("Save as") }) {
        QPushButton* item = createMenuItem(text); // Qt::TabFocus: a tap does not take the focus
        QObject::connect(item, &QPushButton::clicked, menu, &QObject::deleteLater);
        menu->addMenuItem(item);
    }
    QObject::connect(menu, &FileMenuWidget::focusLost, menu, [menu] {
        if (!menu->isAncestorOf(QApplication::focusWidget())) {
            menu->deleteLater();
        }
    });
    const QPoint below = button->mapTo(button->window(), button->rect().bottomLeft());
    menu->setGeometry(QRect(below, QSize(button->width(), 80)));
    menu->show();
    menu->setFocus();
    //! [FileMenuWidget]
}

void showFileMenuWidget(Stage& stage)
{
    stage.addStates(createMenu, QStringLiteral("Save as"));
    stage.addAction(QStringLiteral("Drop down"),
                    [] { dropMenuDown(QApplication::activeWindow()); });
}

void showAbout()
{
    //! [OxInfoWidget]
    OxInfoWidget about(QStringLiteral("1.0.0")); // no parent: it is a window of its own
    about.exec();
    //! [OxInfoWidget]
}

void showAboutLongVersion()
{
    OxInfoWidget about(QStringLiteral("1.0.0, ") + longText());
    about.exec();
}

QList<QPair<QIcon, QString>> questions()
{
    return {
        { QIcon(QStringLiteral(LOOK_IMAGE_FOLDER)),
          QStringLiteral("How do I open a design from a memory stick?") },
        { QIcon(QStringLiteral(LOOK_IMAGE_LOCK)),
          QStringLiteral("Why can an object not be moved?") },
        { QIcon(QStringLiteral(LOOK_IMAGE_TRANSPARENCY)),
          QStringLiteral("How do I see all of it?") },
        { QIcon(QStringLiteral(LOOK_IMAGE_NAVIGATION_SEARCH)),
          longText() + QLatin1Char(' ') + longText() },
        { QIcon(QStringLiteral(LOOK_IMAGE_FILE)), QStringLiteral("How do I print?") },
    };
}

void showHelp()
{
    //! [OxHelpWindow]
    OxHelpWindow help; // no parent: it is a window of its own
    help.insertHelpFAQs(questions());
    help.populatePDF(QStringLiteral("Gallery")); // /Home/Manuals/Gallery
    help.exec();
    //! [OxHelpWindow]
}

void showEmptyHelp()
{
    OxHelpWindow help;
    help.exec();
}

void askHowToSave()
{
    //! [DatabaseSaveWidget]
    switch (DatabaseSaveWidget::execWidget()) {
    case 1:
        showResult(QStringLiteral("The current record is replaced."));
        break;
    case 2:
        showResult(QStringLiteral("A new record is added."));
        break;
    default: // cancelled
        break;
    }
    //! [DatabaseSaveWidget]
}

void askForDatabase()
{
    //! [DatabaseSelectorDialog]
    DatabaseSelectorDialog dialog(QStringLiteral("Customers"), QApplication::activeWindow());
    if (dialog.exec() == QDialog::Accepted && !dialog.getDatabaseName().isEmpty()) {
        showResult(dialog.getDatabaseName());
    }
    //! [DatabaseSelectorDialog]
}

void askWithoutDatabases()
{
    DatabaseSelectorDialog dialog(longText(), QApplication::activeWindow());
    dialog.exec();
}

QList<Page> panelPages()
{
    return {
        {
            QStringLiteral("ContainerDialog"),
            QStringLiteral("A framed dialog with a title bar around any layout."),
            {},
            {
                { QStringLiteral("form"), QStringLiteral("Form"), askForGrid },
                { QStringLiteral("long"), QStringLiteral("Long text"), showLongContainer },
                { QStringLiteral("empty"), QStringLiteral("Empty"), showEmptyContainer },
            },
        },
        {
            QStringLiteral("FileMenuWidget"),
            QStringLiteral("A panel of menu items that tells when it loses the focus."),
            showFileMenuWidget,
            {},
        },
        {
            QStringLiteral("OxInfoWidget"),
            QStringLiteral("The About panel: product, version, support, notice."),
            {},
            {
                { QStringLiteral("about"), QStringLiteral("About"), showAbout },
                { QStringLiteral("long"), QStringLiteral("Long version"), showAboutLongVersion },
            },
        },
        {
            QStringLiteral("OxHelpWindow"),
            QStringLiteral("Questions, and manuals that the home program opens: start "
                           "utilitywidgets-home beside the gallery and tap one."),
            {},
            {
                { QStringLiteral("help"), QStringLiteral("Help"), showHelp },
                { QStringLiteral("empty"), QStringLiteral("Empty"), showEmptyHelp },
            },
        },
    };
}

QList<Page> databasePages()
{
    return {
        {
            QStringLiteral("DatabaseSaveWidget"),
            QStringLiteral("Asks whether a record replaces the current one or becomes a new one."),
            {},
            { { QStringLiteral("save"), QStringLiteral("Save"), askHowToSave } },
        },
        {
            QStringLiteral("DatabaseSelectorDialog"),
            QStringLiteral("Lets the person choose a database of one folder."),
            {},
            {
                { QStringLiteral("choose"), QStringLiteral("Choose"), askForDatabase },
                { QStringLiteral("none"), QStringLiteral("No databases"), askWithoutDatabases },
            },
        },
    };
}

} // namespace

Family applicationDialogsFamily()
{
    return {
        QStringLiteral("Application dialogs"),
        QStringLiteral(":/gallery/pages/applicationdialogs.cpp"),
        panelPages() + databasePages(),
    };
}

} // namespace Gallery
