// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "containertitlebar.h"
#include "look/icons.h"
#include "look/imagetable.h"
#include "look/palette.h"
#include "oxtitlebar.h"
#include "sharedconstants.h"
#include "stage.h"

#include <QColor>
#include <QFrame>
#include <QIcon>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>

namespace Gallery {

namespace {

struct Colour
{
    const char* role;
    const char* value;
};

QWidget* createSwatch(const char* colour)
{
    auto* swatch = new QLabel(QString::fromLatin1(colour));
    swatch->setAlignment(Qt::AlignCenter);
    swatch->setFixedHeight(26);
    const bool dark = QColor(QString::fromLatin1(colour)).lightness() < 128;
    swatch->setStyleSheet(QStringLiteral("background-color: %1; color: %2;")
                              .arg(swatch->text(), QLatin1String(dark ? "white" : "black")));
    return swatch;
}

void showPalette(Stage& stage)
{
    //! [Palette]
    auto* panel = new QFrame;
    panel->setObjectName(QStringLiteral("LayersPanel"));
    const QString sheet = QStringLiteral("#LayersPanel { background-color: #f2f2f2;"
                                         " border: 1px solid #fd7800; }");
    panel->setStyleSheet(sheet);
    //! [Palette]
    panel->setFixedHeight(30);
    stage.addWide(QStringLiteral("A panel of the application's own"), panel);

    stage.setColumns(4);
    const Colour colours[] {
        { "Accent, frames", LOOK_ACCENT_ORANGE },    { "Item under finger", LOOK_HOVER_ORANGE },
        { "Dialogs and panels", LOOK_PANEL_GREY },   { "Title bars", LOOK_TITLE_CHARCOAL },
        { "Button, top", LOOK_BUTTON_TOP },          { "Button, bottom", LOOK_BUTTON_BOTTOM },
        { "Disabled, frame", LOOK_DISABLED_BORDER }, { "Disabled, text", LOOK_DISABLED_TEXT },
        { "Disabled, top", LOOK_DISABLED_TOP },      { "Disabled, bottom", LOOK_DISABLED_BOTTOM },
        { "Scroll bar handle", LOOK_SCROLL_HANDLE }, { "Combo boxes, frame", LOOK_COMBO_BORDER },
    };
    for (const Colour& colour : colours) {
        stage.add(QString::fromLatin1(colour.role), createSwatch(colour.value));
    }
}

/// As long as a title may be here: a bar grows with its title and would push its close button, and
/// those of the bars above it, out of the page.
QString longTitle()
{
    return QStringLiteral("Verhältnismäßig langer Titel");
}

void showOxTitleBar(Stage& stage)
{
    //! [OxTitleBar]
    auto* bar = new OxTitleBar(nullptr, QStringLiteral(":/Navigation/NavigationIcons/info_29.png"),
                               QStringLiteral("Measure"));
    // connect(bar, &OxTitleBar::closeButtonClicked, this, &QDialog::reject);
    //! [OxTitleBar]
    stage.addWide(QStringLiteral("With an icon"), bar);
    stage.addWide(QStringLiteral("Without an icon"),
                  new OxTitleBar(nullptr, QString(), QStringLiteral("Measure")));
    stage.addWide(QStringLiteral("Long text"), new OxTitleBar(nullptr, QString(), longTitle()));
}

void showContainerTitleBar(Stage& stage)
{
    //! [ContainerTitleBar]
    auto* bar = new ContainerTitleBar(nullptr, QStringLiteral("Layers"));
    // connect(bar, &ContainerTitleBar::closeButtonClicked, this, &QWidget::hide);
    //! [ContainerTitleBar]
    stage.addWide(QStringLiteral("With a close button"), bar);
    auto* closed = new ContainerTitleBar(nullptr, QStringLiteral("Layers"));
    closed->hideCloseButton();
    stage.addWide(QStringLiteral("Without"), closed);
    stage.addWide(QStringLiteral("Long text"), new ContainerTitleBar(nullptr, longTitle()));
}

QWidget* createPicture(const Look::Image& image)
{
    auto* picture = new QLabel;
    picture->setPixmap(
        Look::picture(QString::fromLatin1(image.path), picture->devicePixelRatioF()));
    picture->setAlignment(Qt::AlignCenter);
    picture->setFixedHeight(66);
    picture->setToolTip(QString::fromLatin1(image.path));
    picture->setStyleSheet(
        QStringLiteral("background-color: %1;").arg(QString::fromLatin1(image.ground)));
    return picture;
}

void showImages(Stage& stage)
{
    //! [Images]
    auto* fold = new QPushButton;
    fold->setIcon(QIcon(QStringLiteral(":/module_icons/ModuleIcons/collapse.png")));
    fold->setIconSize(IconButtonSize);
    fold->setAccessibleName(QStringLiteral("Fold")); // a picture says nothing to a screen reader
    //! [Images]
    fold->setFixedHeight(66);
    stage.setColumns(5);
    stage.add(QStringLiteral("On a button"), fold);
    for (const Look::Image& image : Look::images) {
        const QString file = QString::fromLatin1(image.path).section(QLatin1Char('/'), -1);
        stage.add(file.section(QLatin1Char('.'), 0, 0).left(16), createPicture(image));
    }
}

} // namespace

Family lookFamily()
{
    return {
        QStringLiteral("Look"),
        QStringLiteral(":/gallery/pages/look.cpp"),
        {
            {
                QStringLiteral("OxTitleBar"),
                QStringLiteral("The head of a small dialog: icon, title, close button."),
                showOxTitleBar,
                {},
            },
            {
                QStringLiteral("ContainerTitleBar"),
                QStringLiteral("The head of a large dialog or a panel: title and close button."),
                showContainerTitleBar,
                {},
            },
            {
                QStringLiteral("Palette"),
                QStringLiteral("The colours of the house and what each is for."),
                showPalette,
                {},
            },
            {
                QStringLiteral("Images"),
                QStringLiteral("The images of the house, each on the ground it is drawn for."),
                showImages,
                {},
            },
        },
    };
}

} // namespace Gallery
