// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "formwidgets.h"

#include "clickablecombobox.h"
#include "clickableframe.h"
#include "clickablelabel.h"
#include "colorlistcombo.h"
#include "colormenu.h"
#include "containerpages.h"
#include "containertitlebar.h"
#include "dragscrollgroupbox.h"
#include "dragscrolllistview.h"
#include "dragscrolllistwidget.h"
#include "dragscrolltableview.h"
#include "dragscrolltreeview.h"
#include "expandingtabbar.h"
#include "filemenuwidget.h"
#include "linelabel.h"
#include "lockwidget.h"
#include "multiitemselectionwidget.h"
#include "namedwidgets.h"
#include "navigationbar.h"
#include "oxcollapsiblewidgetcontainer.h"
#include "oxcombobox.h"
#include "oxdoublespinbox.h"
#include "oxframe.h"
#include "oxlineedit.h"
#include "oxslider.h"
#include "oxspinbox.h"
#include "oxtextedit.h"
#include "oxtitlebar.h"
#include "sharedconstants.h"
#include "symbolslineedit.h"
#include "symbolsmenu.h"
#include "toolbox.h"
#include "toolboxcontainer.h"

using Designer::FormWidget;
using Designer::FormWidgetBase;
using Designer::FormWidgetChildren;
using Table = std::vector<std::unique_ptr<FormWidgetBase>>;

// An editor's form is a picture: it must neither open the symbol library of whatever folder the
// editor was started in nor let the menu do so later.
template <> QWidget* Designer::FormWidget<SymbolsMenu>::createWidget(QWidget* parent)
{
    return isInitialized() ? new SymbolsMenu({}, QString(), parent) : new SymbolsMenu(parent);
}

namespace {

const int TouchHeight = IconButtonSize.height(); // pixels; what a finger hits
constexpr int FieldWidth = 180; // pixels
constexpr int PanelWidth = 220; // pixels; of a column of settings
constexpr int PanelHeight = 160; // pixels

const FormWidgetChildren LaidOutByTheForm { true, nullptr };

/// High enough for a finger, in a layout too.
Designer::FormWidgetDefaults field(const QString& xml = {})
{
    return { QSize(FieldWidth, TouchHeight), QSize(0, TouchHeight), xml, {} };
}

Designer::FormWidgetDefaults sized(int width, int height, const QString& xml = {},
                                   const QString& propertySpecifications = {})
{
    return { QSize(width, height), QSize(), xml, propertySpecifications };
}

QString stringProperty(const char* name, const QString& text)
{
    return QStringLiteral("<property name=\"%1\"><string>%2</string></property>")
        .arg(QLatin1String(name), text);
}

/// A child that stands for what the developer will put there.
QString panel(const char* name, int width, int height)
{
    return QStringLiteral("<widget class=\"QWidget\" name=\"%1\"><property name=\"minimumSize\">"
                          "<size><width>%2</width><height>%3</height></size></property></widget>")
        .arg(QLatin1String(name))
        .arg(width)
        .arg(height);
}

/// An item that does not take the focus from its menu when it is tapped.
QString menuItem(const char* name)
{
    return QStringLiteral("<widget class=\"QPushButton\" name=\"%1\">"
                          "<property name=\"minimumSize\"><size><width>%2</width>"
                          "<height>%3</height></size></property>"
                          "<property name=\"focusPolicy\"><enum>Qt::TabFocus</enum></property>"
                          "<property name=\"text\"><string>Item</string></property></widget>")
        .arg(QLatin1String(name))
        .arg(FieldWidth)
        .arg(TouchHeight);
}

/// A text that is no sentence of the screen: it is edited in one line and not translated.
QString untranslated(const char* property)
{
    return QStringLiteral("<stringpropertyspecification name=\"%1\" type=\"singleline\" "
                          "notr=\"true\"/>")
        .arg(QLatin1String(property));
}

template <typename Widget>
void add(Table& table, const QString& group, const QString& toolTip, const QString& whatsThis,
         const Designer::FormWidgetDefaults& defaults, FormWidgetChildren children = {})
{
    table.push_back(std::make_unique<FormWidget<Widget>>(
        Designer::FormWidgetTexts { group, toolTip, whatsThis }, defaults, children));
}

void addTextFields(Table& table)
{
    const QString group = QStringLiteral("Utility Widgets: Text and Numbers");
    add<OxLineEdit>(
        table, group, QStringLiteral("Line edit that tells when it is tapped and left"),
        QStringLiteral("Use it in place of QLineEdit: it calls the on-screen keyboard when it gets "
                       "the focus. mousePressedSignal() and focusLost() tell of taps and of the "
                       "focus going elsewhere."),
        field());
    add<OxSpinBox>(
        table, group, QStringLiteral("Whole number that tells when it is left or confirmed"),
        QStringLiteral("Use it in place of QSpinBox. returnPressed() comes after the number has "
                       "been taken over, focusLost() when the focus goes elsewhere."),
        field());
    add<OxDoubleSpinBox>(
        table, group, QStringLiteral("Decimal number that tells when it is left or confirmed"),
        QStringLiteral("Use it in place of QDoubleSpinBox. returnPressed() comes after the number "
                       "has been taken over, focusLost() when the focus goes elsewhere."),
        field());
    add<OxTextEdit>(
        table, group, QStringLiteral("Rich text editor that tells when it is left"),
        QStringLiteral("Use it in place of QTextEdit: it calls the on-screen keyboard when it gets "
                       "the focus and emits focusLostSignal() when it loses it."),
        sized(PanelWidth, PanelHeight));
    add<NamedOxPlainTextEdit>(
        table, group, QStringLiteral("Plain text editor for a device with an on-screen keyboard"),
        QStringLiteral("Use it in place of QPlainTextEdit: it calls the on-screen keyboard when it "
                       "gets the focus."),
        sized(PanelWidth, PanelHeight));
    add<SymbolsLineEdit>(
        table, group, QStringLiteral("Search field with a magnifier to tap"),
        QStringLiteral("Connect to returnPressed(): the Return key and a tap on the magnifier both "
                       "emit it."),
        field());
}

void addChoices(Table& table)
{
    const QString group = QStringLiteral("Utility Widgets: Choices");
    add<OxComboBox>(
        table, group, QStringLiteral("Combo box that tells when it is left"),
        QStringLiteral("Use it in place of QComboBox: it emits focusLostSignal() when the focus "
                       "goes elsewhere."),
        field());
    add<ClickableComboBox>(
        table, group, QStringLiteral("Combo box whose text opens the list, too"),
        QStringLiteral("For an editable combo box on a touch screen: a tap on the text opens the "
                       "list as a tap on the arrow does."),
        field());
    add<ColorListCombo>(
        table, group, QStringLiteral("Combo box of named pairs of colours"),
        QStringLiteral("Call initializeComboBox() with names, background and text colours: entries "
                       "that the form gives it have no colours. color() is the pair chosen."),
        field());
    add<ColorMenu>(
        table, group, QStringLiteral("Grid of colour swatches, one of them chosen"),
        QStringLiteral("Enter the colours as texts that a style sheet understands, such as "
                       "\"#fd7800\"; \"transparent\" is a chequered swatch, hidden until "
                       "transparentColorVisible. colorSignal() tells of taps."),
        sized(PanelWidth, PanelWidth,
              QStringLiteral("<property name=\"colors\"><stringlist notr=\"true\">"
                             "<string>#2b2b2b</string><string>#848484</string>"
                             "<string>#ffffff</string><string>#fd7800</string>"
                             "</stringlist></property>"),
              untranslated("selectedColor")
                  + QStringLiteral("<stringpropertyspecification name=\"colors\" "
                                   "type=\"singleline\" notr=\"true\"/>")));
    add<OxSlider>(
        table, group, QStringLiteral("Slider with thick ticks that tells when it is let go"),
        QStringLiteral("Do slow work on mouseWasReleasedSignal() instead of valueChanged(). "
                       "showText puts values to the ticks, which need 28 pixels beside the "
                       "handle: choose a tickInterval, or there is one at each pageStep."),
        { QSize(PanelWidth, 2 * TouchHeight),
          QSize(0, 2 * TouchHeight),
          QStringLiteral("<property name=\"orientation\"><enum>Qt::Horizontal</enum></property>"
                         "<property name=\"tickPosition\"><enum>QSlider::TicksBelow</enum>"
                         "</property><property name=\"tickInterval\"><number>25</number>"
                         "</property>"),
          {} });
    add<ExpandingTabBar>(
        table, group, QStringLiteral("Tab bar whose tabs share its whole width"),
        QStringLiteral("Add the tabs in the code, with addTab(); setTabColorRect() puts a swatch "
                       "of a colour into one."),
        { QSize(2 * FieldWidth, TouchHeight), QSize(0, TouchHeight), {}, {} });
    add<LockWidget>(
        table, group, QStringLiteral("Three boxes that protect an object of a document"),
        QStringLiteral("Answer lockSignal(), readOnlySignal() and userBackgroundSignal() with the "
                       "setter of the same box once the object has accepted the change. The row "
                       "in place of the grid is to be had from the constructor alone."),
        sized(PanelWidth, PanelHeight));
    add<MultiItemSelectionWidget>(
        table, group, QStringLiteral("Two lists between which a person moves items"),
        QStringLiteral("Hand it the items in the code, with setAvailableItems(); "
                       "getSelectedItemIds() and selectedItemsChanged() tell what was chosen, "
                       "selectionLimit how many may be."),
        sized(600, 300));
    add<SymbolsMenu>(
        table, group, QStringLiteral("Small picker of symbols with a search by tag"),
        QStringLiteral("At run time it shows the library \"symbols.db\" in the working directory; "
                       "in the editor it stays empty. symbolSignal() brings the document of the "
                       "symbol that was tapped."),
        sized(PanelWidth, 320));
}

void addLists(Table& table)
{
    const QString group = QStringLiteral("Utility Widgets: Views That Are Dragged");
    const QString use =
        QStringLiteral("A finger scrolls it by dragging; a tap chooses the item. With "
                       "horizontalMovementEnabled it also scrolls sideways.");
    add<DragScrollListView>(
        table, group, QStringLiteral("List of a model that a finger scrolls by dragging"),
        QStringLiteral("Use it in place of QListView. ") + use, sized(PanelWidth, PanelHeight));
    add<DragScrollListWidget>(
        table, group, QStringLiteral("List of its own items that a finger scrolls"),
        QStringLiteral("Use it in place of QListWidget. ") + use, sized(PanelWidth, PanelHeight));
    add<DragScrollTableView>(table, group,
                             QStringLiteral("Table of a model that a finger scrolls by dragging"),
                             QStringLiteral("Use it in place of QTableView. ") + use,
                             sized(2 * PanelWidth, PanelHeight));
    add<DragScrollTreeView>(
        table, group, QStringLiteral("Tree of a model that a finger scrolls by dragging"),
        QStringLiteral("Use it in place of QTreeView. ") + use, sized(PanelWidth, PanelHeight));
}

void addContainers(Table& table)
{
    const QString group = QStringLiteral("Utility Widgets: Containers");
    const QString shape =
        QStringLiteral("<property name=\"frameShape\"><enum>QFrame::StyledPanel</enum></property>");
    add<ClickableFrame>(
        table, group, QStringLiteral("Frame that reports a press anywhere on it"),
        QStringLiteral("clicked() comes with the press, of every button, wherever no child of the "
                       "frame takes it."),
        sized(PanelWidth, PanelHeight, shape), LaidOutByTheForm);
    add<OxFrame>(
        table, group, QStringLiteral("Frame that tells when it loses the focus"),
        QStringLiteral("For a panel that drops down: give it a focus policy and the focus, and "
                       "hide it on focusLost()."),
        sized(PanelWidth, PanelHeight, shape), LaidOutByTheForm);
    add<DragScrollGroupBox>(
        table, group, QStringLiteral("Group box that leaves presses to what it lies in"),
        QStringLiteral("For groups in a tool box: a finger that drags on it scrolls the tool box. "
                       "It cannot be checked by touch."),
        sized(PanelWidth, PanelHeight, stringProperty("title", QStringLiteral("Group"))),
        LaidOutByTheForm);
    add<OxCollapsibleWidgetContainer>(
        table, group, QStringLiteral("Section of a panel that folds away under its title"),
        QStringLiteral("Holds one widget: lay out the section's fields in it. Whether it opens "
                       "unfolded is said by the property expanded."),
        sized(PanelWidth, PanelHeight,
              stringProperty("titleString", QStringLiteral("Section"))
                  + QStringLiteral("<property name=\"expanded\"><bool>true</bool></property>")
                  + panel("content", PanelWidth - 2 * TouchHeight, PanelHeight / 2)),
        { true, &Designer::CollapsiblePages });
    add<ToolBoxContainer>(
        table, group, QStringLiteral("Column of panels between two arrows that scroll it"),
        QStringLiteral("Every page is a panel of the column, which may be higher than the screen. "
                       "Set columnWidth first: it says how wide they all are, for good."),
        sized(PanelWidth, 400,
              QStringLiteral("<property name=\"columnWidth\"><number>%1</number></property>")
                      .arg(PanelWidth)
                  + panel("panel", 0, PanelHeight)),
        { true, &Designer::ToolBoxContainerPages });
    add<ToolBox>(
        table, group, QStringLiteral("Area that a finger scrolls by dragging, without arrows"),
        QStringLiteral("In a form it is a QScrollArea: lay out the panels in the widget inside. "
                       "ToolBoxContainer has arrows besides."),
        sized(PanelWidth, 400,
              QStringLiteral(
                  "<property name=\"verticalScrollBarPolicy\"><enum>Qt::ScrollBarAlwaysOff</enum>"
                  "</property><property name=\"horizontalScrollBarPolicy\">"
                  "<enum>Qt::ScrollBarAlwaysOff</enum></property>"
                  "<property name=\"widgetResizable\"><bool>true</bool></property>"
                  "<widget class=\"QWidget\" name=\"column\"/>")),
        LaidOutByTheForm);
    add<FileMenuWidget>(
        table, group, QStringLiteral("Framed menu of large buttons that drops down"),
        QStringLiteral("Every page is an item of the menu. Show it and give it the focus; on "
                       "focusLost(), hide it. Items with the focus policy TabFocus leave the focus "
                       "to the menu when they are tapped."),
        sized(FieldWidth, 2 * TouchHeight + 2, menuItem("firstItem") + menuItem("secondItem")),
        { true, &Designer::FileMenuPages });
}

void addBarsAndLabels(Table& table)
{
    const QString group = QStringLiteral("Utility Widgets: Bars and Labels");
    add<OxTitleBar>(
        table, group, QStringLiteral("Head of a small dialog: icon, title, close button"),
        QStringLiteral("Connect closeButtonClicked(): the bar closes nothing itself. iconPath is a "
                       "file or resource of 29 x 28 pixels."),
        sized(2 * FieldWidth, 40, stringProperty("title", QStringLiteral("Title")),
              untranslated("iconPath")));
    add<ContainerTitleBar>(
        table, group, QStringLiteral("Head of a large dialog or panel: title, close button"),
        QStringLiteral("Connect closeButtonClicked(): the bar closes nothing itself. "
                       "hideCloseButton() takes the button away."),
        sized(2 * FieldWidth, 46, stringProperty("title", QStringLiteral("Title"))));
    add<NavigationBar>(
        table, group, QStringLiteral("Strip that pages through records, searches and zooms"),
        QStringLiteral("Answer each signal by showing the record and then telling the bar, with "
                       "setCurrentRecordSlot(). lastRecord and currentRecord are counted from 0."),
        sized(ScreenWidth, 60));
    add<LineLabel>(
        table, group, QStringLiteral("Head of a section: a text with a rule beside it"),
        QStringLiteral("lineType says on which side of the text the rule runs."),
        sized(PanelWidth, TouchHeight, stringProperty("text", QStringLiteral("Section"))));
    add<ClickableLabel>(
        table, group, QStringLiteral("Label that reports a press"),
        QStringLiteral("clicked() comes with the press, of every button. For an action of its own "
                       "a push button says better that it can be tapped."),
        sized(FieldWidth, TouchHeight, stringProperty("text", QStringLiteral("Label"))));
    add<NamedDragScrollButton>(
        table, group, QStringLiteral("Push button that a finger may drag away"),
        QStringLiteral("For buttons inside what is scrolled by dragging: a drag that begins on one "
                       "scrolls and does not click. Elsewhere use QPushButton."),
        field(stringProperty("text", QStringLiteral("Button"))));
}

} // namespace

Table Designer::formWidgets()
{
    Table table;
    addTextFields(table);
    addChoices(table);
    addLists(table);
    addContainers(table);
    addBarsAndLabels(table);
    return table;
}
