// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "colorlistcombo.h"
#include "colorlistcombodelegate.h"
#include "colormenu.h"
#include "containertitlebar.h"
#include "expandingtabbar.h"
#include "ioxtransparentwidget.h"
#include "look/palette.h"
#include "oxtransparentcontainer.h"
#include "oxtransparentoverlay.h"
#include "sharedconstants.h"
#include "stage.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QEventLoop>
#include <QFrame>
#include <QKeyEvent>
#include <QListWidget>
#include <QPointer>
#include <QVBoxLayout>

namespace Gallery {

namespace {

QStringList paletteColors()
{
    return { QStringLiteral("#000000"),    QStringLiteral("#848484"), QStringLiteral("#ffffff"),
             QStringLiteral("#d40000"),    QStringLiteral("#fd7800"), QStringLiteral("#ffd400"),
             QStringLiteral("#2e8b57"),    QStringLiteral("#1e5fb4"), QStringLiteral("#6a3d9a"),
             QStringLiteral("transparent") };
}

//! [IOxTransparentWidget]
class PenColorPanel : public QFrame, public IOxTransparentWidget
{
    Q_OBJECT

public:
    explicit PenColorPanel(QWidget* parent = nullptr);

Q_SIGNALS:
    void closeSignal();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
//! [IOxTransparentWidget]

PenColorPanel::PenColorPanel(QWidget* parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("PenColorPanel"));
    // A container has its panel's children fill their background: with the panel's colour.
    setStyleSheet(QStringLiteral("#PenColorPanel { background-color: " LOOK_PANEL_GREY
                                 "; border: 1px solid " LOOK_ACCENT_ORANGE "; }\n"
                                 "ColorMenu { background-color: " LOOK_PANEL_GREY "; }"));

    auto* bar = new ContainerTitleBar(this, QStringLiteral("Pen colour"));
    auto* menu = new ColorMenu(this);
    menu->setMaxColumnCount(5);
    menu->setColorPallete(paletteColors(), QStringLiteral("#fd7800"));
    menu->setTransparentColorVisible(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 10);
    layout->addWidget(bar);
    layout->addWidget(menu, 1);

    connect(bar, &ContainerTitleBar::closeButtonClicked, this, &PenColorPanel::closeSignal);
    connect(menu, &ColorMenu::colorSignal, this, &PenColorPanel::closeSignal);
}

void PenColorPanel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        Q_EMIT closeSignal();
        return;
    }
    QFrame::keyPressEvent(event);
}

/// Closes what it watches when that is tapped, or by Escape.
class Closer : public QObject
{
public:
    explicit Closer(QWidget* widget)
        : QObject(widget)
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool isTap = event->type() == QEvent::MouseButtonRelease;
        const bool isEscape = event->type() == QEvent::KeyPress
            && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
        if (!isTap && !isEscape) {
            return QObject::eventFilter(watched, event);
        }
        static_cast<QWidget*>(parent())->close();
        return true;
    }
};

/// For a widget with Qt::WA_DeleteOnClose.
void waitUntilDeleted(QWidget* widget)
{
    QEventLoop loop;
    QObject::connect(widget, &QObject::destroyed, &loop, &QEventLoop::quit);
    loop.exec();
}

void showColorMenu(Stage& stage)
{
    //! [ColorMenu]
    auto* menu = new ColorMenu;
    menu->setColorPallete({ QStringLiteral("#d40000"), QStringLiteral("#ffd400"),
                            QStringLiteral("#2e8b57"), QStringLiteral("#1e5fb4"),
                            QStringLiteral("transparent") },
                          QStringLiteral("#ffd400"));
    menu->setTransparentColorVisible(true);
    // connect(menu, &ColorMenu::colorSignal, this, &Editor::setPenColor);
    //! [ColorMenu]
    stage.add(QStringLiteral("Enabled"), menu);

    auto* disabled = new ColorMenu;
    disabled->setColorPallete(paletteColors().mid(3, 5), QStringLiteral("#d40000"));
    disabled->setEnabled(false);
    stage.add(QStringLiteral("Disabled"), disabled);

    auto* odd = new ColorMenu;
    odd->setMaxColumnCount(2);
    odd->setColorPallete({ QStringLiteral("no colour"), QStringLiteral("red; } * { color: red"),
                           QStringLiteral("seagreen") },
                         QStringLiteral("no colour"));
    stage.add(QStringLiteral("Texts that are no colours"), odd);
}

const QList<QString> comboNames { QStringLiteral("Warning"), QStringLiteral("Notice"),
                                  QStringLiteral("Plain") };
const QList<QString> comboBackgrounds { QStringLiteral("#d40000"), QStringLiteral("#ffd400"),
                                        QStringLiteral("white") };
const QList<QString> comboTexts { QStringLiteral("white"), QStringLiteral("black"),
                                  QStringLiteral("black") };

/// The instance on the page, whose popup the dialog state opens.
QPointer<ColorListCombo> comboOnThePage;

void showColorListCombo(Stage& stage)
{
    //! [ColorListCombo]
    auto* combo = new ColorListCombo;
    combo->initializeComboBox(
        { QStringLiteral("Warning"), QStringLiteral("Notice") },
        { QStringLiteral("#d40000"), QStringLiteral("#ffd400") }, // backgrounds
        { QStringLiteral("white"), QStringLiteral("black") }); // texts
    combo->setColorIndex(0);
    const auto [background, text] = combo->color();
    //! [ColorListCombo]
    stage.log(QStringLiteral("color(): \"%1\", \"%2\"").arg(background, text));
    stage.add(QStringLiteral("Two entries"), combo);

    comboOnThePage = new ColorListCombo(comboNames, comboBackgrounds, comboTexts);
    comboOnThePage->setColorIndex(1);
    stage.add(QStringLiteral("Three"), comboOnThePage);
    stage.add(QStringLiteral("Nothing chosen yet"),
              new ColorListCombo(comboNames, comboBackgrounds, comboTexts));

    auto* disabled = new ColorListCombo(comboNames, comboBackgrounds, comboTexts);
    disabled->setColorIndex(2);
    disabled->setEnabled(false);
    stage.add(QStringLiteral("Disabled"), disabled);
    auto* unchosen = new ColorListCombo(comboNames, comboBackgrounds, comboTexts);
    unchosen->setEnabled(false);
    stage.add(QStringLiteral("Disabled, nothing chosen yet"), unchosen);

    auto* longTexts = new ColorListCombo({ longText() }, { QStringLiteral("#1e5fb4") },
                                         { QStringLiteral("white") });
    longTexts->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    longTexts->setColorIndex(0);
    stage.add(QStringLiteral("Long text"), longTexts);
}

void openPopup()
{
    comboOnThePage->showPopup();
    QEventLoop loop;
    while (comboOnThePage != nullptr && comboOnThePage->view()->isVisible()) {
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void showColorListComboDelegate(Stage& stage)
{
    const auto createList = [] {
        auto* list = new QListWidget;
        list->setFixedHeight(110);
        for (int i = 0; i < comboNames.count(); ++i) {
            auto* item = new QListWidgetItem(comboNames.at(i), list);
            item->setBackground(QColor(comboBackgrounds.at(i)));
            item->setForeground(QColor(comboTexts.at(i)));
            item->setSizeHint({ 0, 35 });
            item->setSelected(i == 0);
        }
        return list;
    };
    stage.setColumns(2);
    auto* view = createList();
    //! [ColorListComboDelegate]
    view->setItemDelegate(new ColorListComboDelegate(view));
    //! [ColorListComboDelegate]
    stage.add(QStringLiteral("With the delegate; the first entry is selected"), view);
    stage.add(QStringLiteral("Without"), createList());
}

void showExpandingTabBar(Stage& stage)
{
    //! [ExpandingTabBar]
    auto* bar = new ExpandingTabBar;
    bar->setIconSize(QSize(28, 28)); // tabs for a finger
    bar->addTab(QStringLiteral("Pen"));
    bar->addTab(QStringLiteral("Fill"));
    bar->addTab(QStringLiteral("Text"));
    bar->setTabColorRect(0, QStringLiteral("#fd7800"));
    bar->setTabColorRect(1, QStringLiteral("transparent"));
    //! [ExpandingTabBar]
    stage.addWide(QStringLiteral("Enabled"), bar);

    auto* disabled = new ExpandingTabBar;
    disabled->setIconSize(bar->iconSize());
    disabled->setTabColorRect(disabled->addTab(QStringLiteral("Pen")), QStringLiteral("#1e5fb4"));
    disabled->addTab(QStringLiteral("Fill"));
    disabled->setEnabled(false);
    stage.addWide(QStringLiteral("Disabled"), disabled);

    auto* longTexts = new ExpandingTabBar;
    longTexts->setIconSize(bar->iconSize());
    longTexts->setElideMode(Qt::ElideRight);
    longTexts->setTabColorRect(longTexts->addTab(longText()), QStringLiteral("seagreen"));
    longTexts->addTab(longText());
    longTexts->setTabColorRect(longTexts->addTab(QString()), QStringLiteral("#d40000"));
    stage.addWide(QStringLiteral("Long texts, elided, and a swatch alone"), longTexts);
}

void showIOxTransparentWidget(Stage& stage)
{
    stage.setColumns(2);
    stage.add(QStringLiteral("A panel, outside of its container"), new PenColorPanel);
}

void openPanel()
{
    //! [OxTransparentContainer]
    auto* box = new OxTransparentContainer(nullptr, Qt::FramelessWindowHint);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::ApplicationModal); // only the panel is live
    box->setCenterWindow(new PenColorPanel);
    box->adjustSize();
    box->move((ScreenWidth - box->width()) / 2, (ScreenHeight - box->height()) / 2);
    box->show();
    //! [OxTransparentContainer]
    waitUntilDeleted(box);
}

void openOverlay()
{
    //! [OxTransparentOverlay]
    auto* overlay = new OxTransparentOverlay;
    overlay->setAttribute(Qt::WA_DeleteOnClose);
    overlay->move(0, 60); // below the bar that stays bright
    overlay->show();
    //! [OxTransparentOverlay]
    new Closer(overlay);
    waitUntilDeleted(overlay);
}

} // namespace

Family coloursFamily()
{
    return {
        QStringLiteral("Colours and tabs"),
        QStringLiteral(":/gallery/pages/colours.cpp"),
        {
            {
                QStringLiteral("ColorMenu"),
                QStringLiteral("A grid of colour swatches, one of them marked as the chosen one."),
                showColorMenu,
                {},
            },
            {
                QStringLiteral("ColorListCombo"),
                QStringLiteral("A combo box of named pairs of colours, each drawn in its own."),
                showColorListCombo,
                { { QStringLiteral("popup"), QStringLiteral("Open the list"), openPopup } },
            },
            {
                QStringLiteral("ColorListComboDelegate"),
                QStringLiteral("Draws every item in its own colours, the selected one too."),
                showColorListComboDelegate,
                {},
            },
            {
                QStringLiteral("ExpandingTabBar"),
                QStringLiteral("Tabs that share the whole width and can carry a colour swatch."),
                showExpandingTabBar,
                {},
            },
            {
                QStringLiteral("OxTransparentContainer"),
                QStringLiteral("Shows a panel in front of a dimmed screen."),
                {},
                { { QStringLiteral("panel"), QStringLiteral("Show the panel"), openPanel } },
            },
            {
                QStringLiteral("OxTransparentOverlay"),
                QStringLiteral("Dims the screen below its top strip. A tap ends it here."),
                {},
                { { QStringLiteral("dimmed"), QStringLiteral("Dim the screen"), openOverlay } },
            },
            {
                QStringLiteral("IOxTransparentWidget"),
                QStringLiteral("What a panel implements to be shown by an "
                               "OxTransparentContainer."),
                showIOxTransparentWidget,
                {},
            },
        },
    };
}

} // namespace Gallery

#include "colours.moc"
