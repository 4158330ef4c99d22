// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxfiledialog.h"

#include "applicationfont.h"
#include "clickablecombobox.h"
#include "containertitlebar.h"
#include "dragscrollbutton.h"
#include "dragscrolllistview.h"
#include "dragscrolllistwidget.h"
#include "filedialogfavorites.h"
#include "filedialogmedia.h"
#include "filedialogmodel.h"
#include "filedialogrules.h"
#include "look/housedialog.h"
#include "look/icons.h"
#include "look/images.h"
#include "look/palette.h"
#include "look/sheets.h"
#include "oxfileiconprovider.h"
#include "oxiconitemdelegate.h"
#include "qcopchannel.h"
#include "sharedconstants.h"
#include "touch/enterkey.h"

#include <QCursor>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidgetItem>
#include <QRegularExpression>
#include <QScreen>
#include <QSignalBlocker>

namespace {

namespace Rules = FileDialogRules;

constexpr QSize DialogSize(620, 520); // pixels
constexpr int RowHeight = 35; // pixels, of everything that is tapped

// Names of folders, not to be translated.
const QString HomeName = QStringLiteral("Home");
const QString DesktopName = QStringLiteral("Desktop");

/// Where a favourite keeps its folder's path.
constexpr int PathRole = Qt::UserRole;
/// Set for a removable medium, which no settings keep.
constexpr int RemovableRole = Qt::UserRole + 1;

QString dialogStyle()
{
    // The title bar's close button is none of the buttons that the rules are for.
    return Look::framedPanel(QStringLiteral("#OxFileDialog"))
        + QStringLiteral(
               "QPushButton { border: 1px solid " LOOK_ACCENT_ORANGE "; color: white; font: bold; "
               "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 " LOOK_BUTTON_TOP
               ", stop: 1 " LOOK_BUTTON_BOTTOM "); border-radius: 5px; outline: 0; }\n"
               "QPushButton:pressed { background-color: " LOOK_ACCENT_ORANGE "; color: white; }\n"
               "QPushButton { width: 55px; height: 30px; }\n"
               "QPushButton:disabled { border: 1px solid " LOOK_DISABLED_BORDER
               "; color: " LOOK_DISABLED_TEXT
               "; background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 " LOOK_DISABLED_TOP
               ", stop: 1 " LOOK_DISABLED_BOTTOM "); }\n"
               "ContainerTitleBar QPushButton { border: 0px; background: none; }\n");
}

QString upButtonStyle()
{
    return QStringLiteral(
        "QPushButton { border: 0px; background: none; border-image: url(" LOOK_IMAGE_FOLDER_UP
        "); }\n"
        "QPushButton:pressed { border-image: url(" LOOK_IMAGE_FOLDER_UP_PRESSED "); }\n"
        "QPushButton:disabled { border-image: url(" LOOK_IMAGE_FOLDER_UP_DISABLED "); }");
}

/// Selected rows of both lists.
QString selectionStyle()
{
    return QStringLiteral("QListView { show-decoration-selected: 1; selection-color: white; "
                          "selection-background-color: " LOOK_SELECTION_BLUE "; }\n");
}

/// The delegate of the list paints a selected row in the selection's colour; the rules for items are
/// for the delegates that follow a sheet.
QString fileListStyle()
{
    return selectionStyle()
        + QStringLiteral(
               "QListView::item:selected:active:hover { background-color: " LOOK_ACCENT_ORANGE
               "; color: white; }\n"
               "QListView::item:selected:!active { background-color: " LOOK_ACCENT_ORANGE
               "; color: white; }\n"
               "QListView::item:selected:active:!hover { background-color: " LOOK_HOVER_ORANGE
               "; color: white; }\n"
               "QListView::item:!selected:hover { background-color: " LOOK_HOVER_ORANGE
               "; color: white; }\n")
        + Look::scrollBars();
}

/// `font`, as much smaller as it needs to be for `text` to be `width` pixels wide.
QFont fittingFont(QFont font, const QString& text, int width)
{
    constexpr qreal step = 0.5; // points
    constexpr qreal smallest = 5; // points
    while (font.pointSizeF() > smallest && QFontMetricsF(font).horizontalAdvance(text) > width) {
        font.setPointSizeF(font.pointSizeF() - step);
    }
    return font;
}

/// Shows `text` on a button of a fixed width, smaller if it is a long one.
void setButtonText(QPushButton* button, const QString& text)
{
    constexpr int frame = 8; // pixels, on both sides together
    button->setText(text);
    button->setFont(fittingFont(ApplicationFont::getWidgetFontTiny(true), text,
                                button->maximumWidth() - frame));
}

/// A label `width` pixels wide for setLabelText().
QLabel* createLabel(int width, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setWordWrap(true);
    label->setFixedWidth(width);
    return label;
}

/// Shows a long text in two lines, and one with a long word smaller.
void setLabelText(QLabel* label, const QString& text)
{
    label->setText(text);
    QFont font = ApplicationFont::getWidgetFontTiny(false);
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& word : words) {
        font = fittingFont(font, word, label->maximumWidth());
    }
    label->setFont(font);
}

/// In some languages a part of a sentence starts with a small letter, a sentence never does.
QString asSentence(QString text)
{
    if (!text.isEmpty()) {
        text.front() = text.front().toUpper();
    }
    return text;
}

QString addFavoriteText()
{
    return QObject::tr("Add To Favorites",
                       "Text on the button to add a folder location to a list of favorites.");
}

QString removeFavoriteText()
{
    return QObject::tr("Remove Favorite",
                       "Text on the button for removing a favorite folder location.");
}

} // namespace

const QRegularExpression
    OxFileDialog::m_removeSlashesAndDots(QStringLiteral("(\\.\\.(\\\\|\\/))|(^\\.)"));

OxFileDialog::OxFileDialog(QWidget* parent)
    : OxFileDialog(parent, Qt::WindowFlags())
{ }

OxFileDialog::OxFileDialog(QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    setObjectName(QStringLiteral("OxFileDialog"));
    Look::prepareHouseDialog(this);
    setWindowTitle(QStringLiteral("File Dialog"));
}

OxFileDialog::OxFileDialog(QWidget* parent, const OxFileDialogArgs& args, DialogState state)
    : OxFileDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
{
    m_model = std::make_unique<FileDialogModel>(OxFileIconProvider());
    m_favorites = std::make_unique<FileDialogFavorites>();
    m_media = std::make_unique<FileDialogMedia>();
    m_state = state;
    setStyleSheet(dialogStyle());
    setFont(ApplicationFont::getWidgetFontTiny(false));
    setWindowModality(Qt::WindowModal);
    setFixedSize(DialogSize);

    m_caption = args.caption;
    createTitleBar();
    createButtons();
    createBoxes();
    setRootPath(args.directory);
    createFilters(args);
    createFileList();
    createFavorites();
    fillLocationBox();
    createLayout();
    retranslate();

    const QSize screen = QGuiApplication::primaryScreen()->size();
    move(screen.width() / 2 - width() / 2, screen.height() / 2 - height() / 2);

    createConnections();
    setUpUSBConnection();
    setTabsOrder();
}

OxFileDialog::~OxFileDialog() = default;

QString OxFileDialog::getFileName(DialogState state, QWidget* parent, const QString& caption,
                                  const QString& dir, const QString& filter,
                                  QString* selectedFilter, QFileDialog::Options options)
{
    OxFileDialogArgs args;
    args.parent = parent;
    args.caption = caption;
    args.directory = dir;
    if (selectedFilter != nullptr) {
        args.selectedFilter = *selectedFilter;
    }
    args.filter = filter;
    args.fileMode = QFileDialog::ExistingFile;
    args.options = options;
    return run(args, state);
}

QString OxFileDialog::getOpenFileName(QWidget* parent, const QString& caption, const QString& dir,
                                      const QString& filter, QString* selectedFilter,
                                      QFileDialog::Options options)
{
    return getFileName(OpenFile, parent, caption, dir, filter, selectedFilter, options);
}

QString OxFileDialog::getSaveFileName(QWidget* parent, const QString& caption, const QString& dir,
                                      const QString& filter, QString* selectedFilter,
                                      QFileDialog::Options options)
{
    return getFileName(SaveFile, parent, caption, dir, filter, selectedFilter, options);
}

QString OxFileDialog::getExistingDirectory(QWidget* parent, const QString& caption,
                                           const QString& dir, QFileDialog::Options options)
{
    OxFileDialogArgs args;
    args.parent = parent;
    args.caption = caption;
    args.directory = workingDirectory(dir);
    args.fileMode = QFileDialog::Directory;
    args.options = options;
    return run(args, SelectFolder);
}

QString OxFileDialog::workingDirectory(const QString& path)
{
    const QString wanted =
        path.isEmpty() ? QDir::homePath() + QDir::separator() + DesktopName : path;
    return QDir(wanted).absolutePath();
}

QStringList OxFileDialog::getNameFilters(const QString& text)
{
    return Rules::namePatterns(text);
}

QString OxFileDialog::selectedPath() const
{
    return m_selectedPath;
}

void OxFileDialog::keyPressEvent(QKeyEvent* event)
{
    if (Touch::isEnterKey(*event) && m_fileList != nullptr && m_fileList->hasFocus()) {
        return; // the list has opened its current item: the accept button is not meant as well
    }
    QDialog::keyPressEvent(event);
}

void OxFileDialog::showEvent(QShowEvent* event)
{
    if (m_fileNameBox != nullptr) {
        m_fileNameBox->setFocus(Qt::OtherFocusReason);
    }
    QDialog::showEvent(event);
}

void OxFileDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && m_titleBar != nullptr) {
        retranslate();
    }
}

void OxFileDialog::acceptDialogSlot()
{
    const QString name = Rules::cleanName(m_fileNameBox->currentText(), m_removeSlashesAndDots);
    const auto exists = [](const QString& path) {
        return QFileInfo::exists(path);
    };
    std::optional<QString> path;
    switch (m_state) {
    case OpenFile:
        path = Rules::pathToOpen(m_locationBox->currentText(), name, m_selectedPath, exists);
        break;
    case SaveFile:
        path = Rules::pathToSave(m_location, name, m_selectedPath, m_nameFilters,
                                 m_formatBox->currentIndex(), exists);
        break;
    case SelectFolder:
        path = Rules::folderToSelect(m_location, name, m_selectedPath, [](const QString& folder) {
            return QFileInfo(folder).isDir();
        });
        break;
    }
    if (path) {
        m_selectedPath = *path;
        accept();
    }
}

void OxFileDialog::fileItemClickedSlot(const QModelIndex& index)
{
    if (!index.isValid()) {
        return;
    }
    if (m_state == SelectFolder || !m_model->isFolder(index)) {
        takeFile(index);
    }
}

void OxFileDialog::fileItemSelectionChangedSlot(const QItemSelection& selection)
{
    const QModelIndexList indexes = selection.indexes();
    if (!indexes.isEmpty() && !m_model->isFolder(indexes.constFirst())) {
        takeFile(indexes.constFirst());
    }
}

void OxFileDialog::fileItemDoubleClickedSlot(const QModelIndex& index)
{
    if (!index.isValid()) {
        return;
    }
    if (!m_model->isFolder(index)) {
        m_selectedPath = m_model->filePath(index);
        accept();
        return;
    }
    const QString folder = m_model->filePath(index);
    m_model->setFolder(folder);
    m_location = m_model->folder();
    m_locationBox->setItemText(0, m_location);
    if (folder != m_currentFolder && locationIndex(m_currentFolder) < 0) {
        m_locationBox->addItem(m_currentFolder);
    }
    m_upButton->setEnabled(true);
}

void OxFileDialog::favoriteItemClickSlot(const QModelIndex& index)
{
    if (!index.isValid()) {
        return;
    }
    // Not the current item: when the selection changes, that is still the one before.
    const QString path = index.data(PathRole).toString();
    const QString name = index.data().toString();
    m_model->setFolder(path);
    const int entry = locationIndex(path);
    if (entry > 0) {
        m_locationBox->removeItem(entry);
    }
    m_locationBox->setItemText(0, path);
    const bool isTopFolder = name == HomeName || name == DesktopName;
    if (isTopFolder) {
        m_upButton->setEnabled(false);
    }
    offerToRemoveFavorite(!isTopFolder);
    m_currentFolder = path;
    m_location = path;
}

void OxFileDialog::favoriteItemSelectionChangedSlot(const QItemSelection& selection)
{
    const QModelIndexList indexes = selection.indexes();
    if (!indexes.isEmpty()) {
        favoriteItemClickSlot(indexes.constFirst());
    }
}

void OxFileDialog::favoritesWidgetLostFocusSlot()
{
    // A tap on "Remove Favorite" takes the focus away before the button hears of it. On some touch
    // screens the cursor does not follow the finger.
    const QPoint cursor = m_favoritesButton->mapFromGlobal(QCursor::pos());
    const bool isTapped =
        m_favoritesButton->hasFocus() && QGuiApplication::mouseButtons() != Qt::NoButton;
    if (!m_favoritesButton->rect().contains(cursor) && !isTapped) {
        offerToRemoveFavorite(false);
    }
}

void OxFileDialog::addToFavoritesClickSlot()
{
    if (!m_removesFavorite) {
        addItemToFavorites(m_location, false);
        return;
    }
    QListWidgetItem* item = m_favoritesList->currentItem();
    if (item != nullptr && !isFixedFavorite(item->text())) {
        const QString name = item->text();
        deleteFavorite(item);
        removeItemFromFavorites(name);
    }
    offerToRemoveFavorite(false);
    m_favoritesList->clearSelection();
}

void OxFileDialog::changeFormatSlot(int index)
{
    m_model->setNamePatterns(Rules::namePatterns(m_formatBox->itemText(index)));
}

void OxFileDialog::upButtonClickedSlot()
{
    if (m_location == m_topFolder) {
        m_upButton->setEnabled(false);
        return;
    }
    const QString former = m_location;
    m_location = Rules::parentFolder(m_model->folder());
    m_model->setFolder(m_location);
    if (Rules::endsGoingUp(m_location, m_topFolder)) {
        m_upButton->setEnabled(false);
        const int entry = locationIndex(m_topFolder);
        if (entry >= 0) {
            m_locationBox->removeItem(entry);
        }
    }
    m_locationBox->setItemText(locationIndex(former), m_location);
}

void OxFileDialog::setFileListComboSlot(int index)
{
    if (index < 0) {
        return;
    }
    const QString path = m_locationBox->itemText(index);
    m_model->setFolder(path);
    m_location = path;
    m_upButton->setEnabled(false);

    disconnect(m_locationBox, &QComboBox::currentIndexChanged, this,
               &OxFileDialog::setFileListComboSlot);
    if (path == m_currentFolder && m_locationBox->count() > 1) {
        m_locationBox->removeItem(index);
    }
    m_locationBox->setCurrentIndex(0);
    m_locationBox->setItemText(0, path);
    connect(m_locationBox, &QComboBox::currentIndexChanged, this,
            &OxFileDialog::setFileListComboSlot);
}

void OxFileDialog::receive(const QString& message, const QByteArray& content)
{
    if (message == QLatin1String("mounts")) {
        if (m_media->replace(content)) {
            loadUSBInfo();
        }
    } else if (message == QLatin1String("add")) {
        if (const auto path = m_media->add(content)) {
            addItemToFavorites(*path, true);
        }
    } else if (message == QLatin1String("remove")) {
        if (const auto path = m_media->remove(content)) {
            removeMedium(*path);
        }
    }
}

QString OxFileDialog::run(const OxFileDialogArgs& args, DialogState state)
{
    OxFileDialog dialog(args.parent, args, state);
    return dialog.exec() == Accepted ? dialog.selectedPath() : QString();
}

void OxFileDialog::retranslate()
{
    const bool selectsFolder = m_state == SelectFolder;
    const QString firstPart = m_state == SaveFile
        ? QObject::tr("Save", "First part of the Save File Dialog title.")
        : selectsFolder ? QObject::tr("Select", "First part of the Select File Dialog title.")
                        : QObject::tr("Open", "First part of the Open File Dialog title.");
    const QString middlePart = selectsFolder
        ? QObject::tr("Folder", "Middle part of the Select Folder Dialog title.")
        : QObject::tr("File", "Middle part of the Select File Dialog title.");
    m_titleBar->setTitle(m_caption.isEmpty() ? composedTitle(firstPart, middlePart) : m_caption);

    setButtonText(m_acceptButton, asSentence(firstPart));
    setButtonText(m_cancelButton, tr("Cancel", "Button text to cancel file dialog."));
    showFavoritesButtonText();
    m_upButton->setAccessibleName(
        tr("Up", "Accessible name of the button that shows the folder above."));
    m_locationBox->setAccessibleName(
        tr("Location", "Accessible name of the box that names the shown folder."));
    m_fileList->setAccessibleName(tr("Files", "Accessible name of the list of files and folders."));
    m_favoritesHeader->setText(
        tr("Favorites", "Header label for display favorite folder locations."));
    m_favoritesList->setAccessibleName(m_favoritesHeader->text());
    setLabelText(
        m_nameLabel,
        asSentence(
            middlePart
            + tr(
                " Name",
                "Label used to denote what the current 'File Name' or 'Folder Name' is selected.")));
    if (m_formatLabel != nullptr) {
        setLabelText(m_formatLabel, tr("Format", "Label to denote the file format selected."));
    }
}

QString OxFileDialog::composedTitle(const QString& firstPart, const QString& middlePart)
{
    const QString lastPart =
        QObject::tr(" Dialog", "Last part of the File or Folder Dialog title.");
    const QString order =
        tr("%1 %2%3",
           "Title of the dialog: %1 is Open, Save or Select, %2 File or Folder, %3 Dialog.");
    for (const char* part : { "%1", "%2", "%3" }) {
        if (!order.contains(QLatin1String(part))) {
            return firstPart + QLatin1Char(' ') + middlePart + lastPart;
        }
    }
    return asSentence(order.arg(firstPart, middlePart, lastPart));
}

void OxFileDialog::createTitleBar()
{
    m_titleBar = new ContainerTitleBar(this);
    connect(m_titleBar, &ContainerTitleBar::closeButtonClicked, this, &QWidget::hide);
}

void OxFileDialog::createButtons()
{
    m_acceptButton = new DragScrollButton(this);
    m_acceptButton->setFixedSize(80, RowHeight);
    m_acceptButton->setDefault(true);
    m_acceptButton->setAutoDefault(true);

    m_cancelButton = new DragScrollButton(this);
    m_cancelButton->setFixedSize(80, RowHeight);

    m_favoritesButton = new DragScrollButton(this);
    m_favoritesButton->setFixedSize(160, RowHeight);

    m_upButton = new DragScrollButton(this);
    m_upButton->setStyleSheet(upButtonStyle());
    m_upButton->setFixedSize(IconButtonSize);
}

void OxFileDialog::createBoxes()
{
    m_fileNameBox = createComboBox({ 520, RowHeight });
    m_formatBox = createComboBox({ 340, RowHeight });
    m_locationBox = createComboBox({ 385, 55 });
}

ClickableComboBox* OxFileDialog::createComboBox(const QSize& size)
{
    auto* box = new ClickableComboBox(this);
    box->setStyleSheet(Look::whiteComboBox());
    // The sheet's minimum height leaves out the border, so that it is two pixels more than the
    // fixed one. It is set when the box is polished: the fixed size comes after that.
    box->ensurePolished();
    box->setFixedSize(size);
    return box;
}

void OxFileDialog::setRootPath(const QString& path)
{
    m_homeFolder = QDir::homePath();
    m_topFolder = m_homeFolder;
    if (m_state == SaveFile) {
        m_topFolder += QLatin1Char('/') + DesktopName;
    }
    m_currentFolder = Rules::startFolder(path, m_topFolder, QDir::currentPath());
    m_location = m_currentFolder;
    m_userName = Rules::folderName(m_homeFolder);
    m_model->setFolder(m_currentFolder);
    m_upButton->setDisabled(m_topFolder == m_currentFolder);
}

void OxFileDialog::createFilters(const OxFileDialogArgs& args)
{
    QString filter = args.filter;
    if (!args.selectedFilter.isEmpty()) {
        m_nameFilters = Rules::namePatterns(args.selectedFilter);
        m_formatBox->addItems(filter.split(QStringLiteral(";;"), Qt::SkipEmptyParts));
        const int selected =
            m_formatBox->findText(args.selectedFilter, Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (selected >= 0) {
            m_formatBox->setCurrentIndex(selected);
        }
    } else if (m_state != SelectFolder) {
        if (filter.isEmpty()) {
            filter = QStringLiteral("*.txt");
        }
        m_nameFilters = Rules::namePatterns(filter);
        m_formatBox->addItems(filter.split(QStringLiteral(";;"), Qt::SkipEmptyParts));
        m_formatBox->setCurrentIndex(0);
    }
    m_model->setNamePatterns(m_nameFilters);
    if (args.fileMode == QFileDialog::Directory) {
        m_model->setFoldersOnly();
    }
}

void OxFileDialog::createFileList()
{
    m_fileList = new DragScrollListView(this);
    m_fileList->setFixedSize(400, 305);
    m_fileList->setStyleSheet(fileListStyle());
    m_fileList->setModel(m_model.get());
    m_fileList->setUniformItemSizes(true);
    m_fileList->setIconSize(IconButtonSize);
    m_fileList->setItemDelegate(new OxIconItemDelegate(m_fileList));
}

void OxFileDialog::createFavorites()
{
    m_favoritesList = new DragScrollListWidget(this);
    m_favoritesList->setFixedSize(190, 280);
    m_favoritesFont = ApplicationFont::getWidgetFontLarge(true);
    if (m_topFolder == m_homeFolder) {
        addItemTofavoritesList(DesktopName, m_topFolder + QLatin1Char('/') + DesktopName,
                               QStringLiteral("home_unpressed"));
    }
    addItemTofavoritesList(Rules::folderName(m_topFolder), m_topFolder,
                           QStringLiteral("user_icon_outlined"));
    m_favoritesList->setGridSize({ 165, 40 });
    m_favoritesList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // As wide as the list is without its frame and the grid.
    m_favoritesList->setStyleSheet(selectionStyle() + Look::scrollBars(23));
    loadFavoritesFromSettings();
}

void OxFileDialog::fillLocationBox()
{
    m_locationBox->addItem(m_location);
    changeFormatSlot(m_formatBox->currentIndex());
    if (m_location != m_topFolder) {
        m_locationBox->addItem(m_topFolder);
    }
}

void OxFileDialog::createLayout()
{
    m_nameLabel = createLabel(82, this); // what the name box leaves of the row
    m_nameLabel->setBuddy(m_fileNameBox);

    auto* location = new QHBoxLayout;
    location->addWidget(m_upButton);
    location->addWidget(m_locationBox);
    location->addWidget(m_favoritesButton);
    auto* name = new QHBoxLayout;
    name->addWidget(m_nameLabel);
    name->addWidget(m_fileNameBox);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_acceptButton);
    buttons->addWidget(m_cancelButton);

    // The grid gives a row that spans all columns no more room than the last row needs, as long as
    // the last row is added first.
    auto* grid = new QGridLayout;
    grid->setContentsMargins(6, 6, 6, 6);
    grid->setSpacing(6);
    grid->setColumnStretch(2, 1); // keeps the buttons on the right, also without formats
    if (m_state != SelectFolder) {
        grid->addLayout(createFormatRow(), 3, 0, 1, 2, Qt::AlignCenter);
    } else {
        m_formatBox->hide();
    }
    grid->addLayout(buttons, 3, 3, 1, 2, Qt::AlignCenter);
    grid->addLayout(location, 0, 0, 1, -1, Qt::AlignCenter);
    grid->addLayout(createLists(), 1, 0, 1, -1, Qt::AlignCenter);
    grid->addLayout(name, 2, 0, 1, -1, Qt::AlignLeft);

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(10);
    outer->addWidget(m_titleBar);
    outer->addLayout(grid);
}

QLayout* OxFileDialog::createLists()
{
    m_favoritesHeader = new QLabel(this);
    m_favoritesHeader->setContentsMargins(0, 0, 0, 0);
    m_favoritesHeader->setAlignment(Qt::AlignCenter);
    m_favoritesHeader->setFixedHeight(25);
    m_favoritesHeader->setStyleSheet(QStringLiteral(
        "color: white; background-color: " LOOK_BUTTON_TOP_UPPER_CASE "; font:bold;"));

    auto* favorites = new QVBoxLayout;
    favorites->setContentsMargins(0, 0, 0, 0);
    favorites->setSpacing(0);
    favorites->addWidget(m_favoritesHeader);
    favorites->addWidget(m_favoritesList);

    auto* lists = new QHBoxLayout;
    lists->addLayout(favorites);
    lists->addWidget(m_fileList);
    return lists;
}

QLayout* OxFileDialog::createFormatRow()
{
    m_formatLabel = createLabel(64, this); // what format box, spacer and buttons leave of the row
    m_formatLabel->setBuddy(m_formatBox);

    auto* format = new QHBoxLayout;
    format->addWidget(m_formatLabel);
    format->addItem(new QSpacerItem(20, 10));
    format->addWidget(m_formatBox);
    return format;
}

void OxFileDialog::createConnections()
{
    connect(m_acceptButton, &QPushButton::clicked, this, &OxFileDialog::acceptDialogSlot);
    connect(m_cancelButton, &QPushButton::clicked, this, &QWidget::hide);
    connect(this, &QDialog::accepted, this, &QWidget::hide);
    connect(m_fileList, &QListView::clicked, this, &OxFileDialog::fileItemClickedSlot);
    connect(m_fileList->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &OxFileDialog::fileItemSelectionChangedSlot);
    connect(m_fileList, &QListView::activated, this, &OxFileDialog::fileItemDoubleClickedSlot);
    connect(m_fileList, &QListView::doubleClicked, this, &OxFileDialog::fileItemDoubleClickedSlot);
    connect(m_favoritesList, &QListView::clicked, this, &OxFileDialog::favoriteItemClickSlot);
    connect(m_favoritesList->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &OxFileDialog::favoriteItemSelectionChangedSlot);
    connect(m_favoritesList, &DragScrollListWidget::focusLost, this,
            &OxFileDialog::favoritesWidgetLostFocusSlot);
    connect(m_favoritesButton, &QPushButton::clicked, this, &OxFileDialog::addToFavoritesClickSlot);
    connect(m_formatBox, &QComboBox::currentIndexChanged, this, &OxFileDialog::changeFormatSlot);
    connect(m_upButton, &QPushButton::clicked, this, &OxFileDialog::upButtonClickedSlot);
    connect(m_locationBox, &QComboBox::currentIndexChanged, this,
            &OxFileDialog::setFileListComboSlot);
}

void OxFileDialog::setUpUSBConnection()
{
    const QString windowManager = QStringLiteral("OxWindowManager");
    const QStringList names { windowManager + QStringLiteral("/Mounts"),
                              QStringLiteral("Taskbar/Mounts") };
    for (const QString& name : names) {
        auto* channel = new QCopChannel(name, this);
        connect(channel, &QCopChannel::received, this, &OxFileDialog::receive);
    }
    QCopChannel::send(windowManager, QStringLiteral("mounts"), QByteArray());
    QCopChannel::flush();
}

void OxFileDialog::setTabsOrder()
{
    QList<QWidget*> chain { m_upButton,      m_locationBox,  m_favoritesButton,
                            m_favoritesList, m_fileList,     m_fileNameBox,
                            m_formatBox,     m_acceptButton, m_cancelButton };
    if (m_state == SelectFolder) {
        chain.removeOne(m_formatBox);
    }
    for (qsizetype i = 1; i < chain.size(); ++i) {
        setTabOrder(chain.at(i - 1), chain.at(i));
    }
}

void OxFileDialog::addItemTofavoritesList(const QString& name, const QString& path,
                                          const QString& iconName)
{
    auto* item = new QListWidgetItem(
        Look::listIcon(QStringLiteral(":/Navigation/NavigationIcons/") + iconName), name);
    item->setData(PathRole, path);
    item->setFont(m_favoritesFont);
    item->setSizeHint({ 200, RowHeight });
    m_favoritesList->addItem(item);
}

void OxFileDialog::loadFavoritesFromSettings()
{
    const QList<FileDialogFavorites::Favorite> favorites = m_favorites->load();
    for (const FileDialogFavorites::Favorite& favorite : favorites) {
        if (!isFixedFavorite(favorite.name)) {
            addItemTofavoritesList(favorite.name, favorite.path,
                                   QStringLiteral("folder_unpressed"));
        }
    }
}

void OxFileDialog::addItemToFavorites(const QString& path, bool removable)
{
    for (int row = 0; row < m_favoritesList->count(); ++row) {
        if (m_favoritesList->item(row)->data(PathRole).toString() == path) {
            return;
        }
    }
    const QString name = Rules::folderName(path);
    addItemTofavoritesList(name, path,
                           removable ? QStringLiteral("usb_unpressed")
                                     : QStringLiteral("folder_unpressed"));
    const int row = m_favoritesList->count() - 1;
    if (removable) {
        m_favoritesList->item(row)->setData(RemovableRole, true);
    } else {
        m_favorites->store(Rules::storedIndex(row), { name, path });
    }
}

/// To be called once the favourite is no longer in the list, which is then kept as it is.
void OxFileDialog::removeItemFromFavorites(const QString& name)
{
    if (isFixedFavorite(name)) {
        return;
    }
    QList<FileDialogFavorites::Favorite> kept;
    for (int row = 1; row < m_favoritesList->count(); ++row) {
        const QListWidgetItem* item = m_favoritesList->item(row);
        const bool removable = item->data(RemovableRole).toBool();
        kept.append(removable ? FileDialogFavorites::Favorite()
                              : FileDialogFavorites::Favorite { item->text(),
                                                                item->data(PathRole).toString() });
    }
    m_favorites->rewrite(kept);
}

bool OxFileDialog::isFixedFavorite(const QString& name) const
{
    return name == m_userName || name == DesktopName;
}

void OxFileDialog::deleteFavorite(QListWidgetItem* item)
{
    const bool isCurrent = item == m_favoritesList->currentItem();
    {
        // The list selects a neighbour in place of what is taken away. The dialog must not go there.
        const QSignalBlocker blocker(m_favoritesList->selectionModel());
        delete item;
    }
    if (isCurrent) { // nor may the button be for the neighbour
        m_favoritesList->setCurrentItem(nullptr);
        offerToRemoveFavorite(false);
    }
}

void OxFileDialog::offerToRemoveFavorite(bool offered)
{
    m_removesFavorite = offered;
    showFavoritesButtonText();
}

void OxFileDialog::showFavoritesButtonText()
{
    setButtonText(m_favoritesButton, m_removesFavorite ? removeFavoriteText() : addFavoriteText());
}

void OxFileDialog::loadUSBInfo()
{
    for (const QString& path : m_media->paths()) {
        addItemToFavorites(path, true);
    }
}

void OxFileDialog::removeMedium(const QString& path)
{
    const QString name = Rules::folderName(path);
    const QList<QListWidgetItem*> items =
        m_favoritesList->findItems(name, Qt::MatchExactly | Qt::MatchCaseSensitive);
    for (QListWidgetItem* item : items) {
        // A folder of the person's own may have the same name, or be what the message names.
        if (item->data(PathRole).toString() == path && item->data(RemovableRole).toBool()) {
            deleteFavorite(item);
            removeItemFromFavorites(name);
            return;
        }
    }
}

/// Carries a tapped item over to the name box.
void OxFileDialog::takeFile(const QModelIndex& index)
{
    m_selectedPath = m_model->filePath(index);
    m_fileNameBox->setEditText(index.data().toString());
}

/// The entry of the location box with exactly this text, or -1.
int OxFileDialog::locationIndex(const QString& path) const
{
    return m_locationBox->findText(path, Qt::MatchExactly | Qt::MatchCaseSensitive);
}

#include "moc_oxfiledialog.cpp"
