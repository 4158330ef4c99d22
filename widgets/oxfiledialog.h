// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QDialog>
#include <QFileDialog>
#include <QFont>
#include <QStringList>

#include <memory>

class ClickableComboBox;
class ContainerTitleBar;
class DragScrollButton;
class DragScrollListView;
class DragScrollListWidget;
class FileDialogFavorites;
class FileDialogMedia;
class FileDialogModel;
class QItemSelection;
class QLabel;
class QLayout;
class QListWidgetItem;
class QModelIndex;
class QRegularExpression;

/*!
 * \brief Lets the person choose a file to open, a name to save under, or a folder, by finger.
 *
 * Use the static functions; they are QFileDialog's, but for what is noted at each.
 *
 * \code
 * const QString path = OxFileDialog::getOpenFileName(
 *     this, {}, {}, tr("Labels (*.lbl);;Texts (*.txt)", "Formats to open."));
 * if (!path.isEmpty()) {
 *     open(path);
 * }
 * \endcode
 *
 * Beside the folder that is shown stand favourite folders: the person's Desktop and home, those
 * that were added with the button, which the application's QSettings keep, and removable media for
 * as long as they are mounted. So an application that wants favourites to last sets its
 * organization's and its own name.
 *
 * What the person should know of, the application tells: the dialog asks nothing and shows no
 * error. A name that leads nowhere leaves it open, and a file that exists is chosen for saving
 * without a question.
 *
 * Escape, Cancel and the title bar's close button choose nothing.
 */
class UTILITYWIDGETS_EXPORT OxFileDialog : public QDialog
{
    Q_OBJECT

public:
    /// What the dialog is for.
    enum DialogState {
        OpenFile = 0, ///< an existing file
        SaveFile = 1, ///< a name to save under
        SelectFolder = 2, ///< an existing folder
    };
    Q_ENUM(DialogState)

    /// What a dialog is made with.
    struct OxFileDialogArgs
    {
        QWidget* parent = nullptr;
        /// The title; empty for one that names what the dialog is for.
        QString caption;
        /// The folder to start in, or a file in it. A path with a dot anywhere counts as a file's.
        /// Empty for the home folder, or when saving for its folder Desktop.
        QString directory;
        /// The entry of `filter` that is chosen at first; empty for the first one.
        QString selectedFilter;
        /// Entries separated by ";;", each a description followed by patterns in parentheses:
        /// "Labels (*.lbl);;Texts (*.txt)". Patterns have small letters only: "*.mp3" counts as
        /// "*.mp" and "*.PNG" as "*.", which no ordinary file matches.
        QString filter;
        /// QFileDialog::Directory lists folders alone.
        QFileDialog::FileMode fileMode = QFileDialog::ExistingFile;
        /// For the caller's use.
        QFileDialog::Options options;
    };

    /// An empty dialog with nothing to choose from.
    explicit OxFileDialog(QWidget* parent);
    OxFileDialog(QWidget* parent, Qt::WindowFlags flags);
    /// A whole dialog, in the middle of the screen, which runs by exec(). The static functions do
    /// all of that.
    OxFileDialog(QWidget* parent, const OxFileDialogArgs& args, DialogState state);
    ~OxFileDialog() override;

    /// \name Dialogs that run until they are answered
    /// They return the chosen path, or an empty string when nothing was chosen. `selectedFilter` is
    /// read and never written; of `options`, none makes a difference. An empty `filter` means
    /// "*.txt". `parent` must outlive the call.
    /// @{
    static QString getFileName(DialogState state, QWidget* parent, const QString& caption = {},
                               const QString& dir = {}, const QString& filter = {},
                               QString* selectedFilter = nullptr,
                               QFileDialog::Options options = {});
    /// With an empty name, once something was tapped, returns the shown folder, ending in a slash.
    static QString getOpenFileName(QWidget* parent, const QString& caption = {},
                                   const QString& dir = {}, const QString& filter = {},
                                   QString* selectedFilter = nullptr,
                                   QFileDialog::Options options = {});
    /// A name without one of the extensions gets that of the chosen format. A file that exists is
    /// overwritten unless the caller asks first. A bare name that exists in the process's current
    /// folder returns what was tapped last, or nothing.
    static QString getSaveFileName(QWidget* parent, const QString& caption = {},
                                   const QString& dir = {}, const QString& filter = {},
                                   QString* selectedFilter = nullptr,
                                   QFileDialog::Options options = {});
    /// An empty `dir` means the folder Desktop in the home folder. Lists folders alone, also
    /// without QFileDialog::ShowDirsOnly.
    static QString getExistingDirectory(QWidget* parent, const QString& caption = {},
                                        const QString& dir = {},
                                        QFileDialog::Options options = QFileDialog::ShowDirsOnly);
    /// @}

    /// Where getExistingDirectory() starts for `path`: its absolute form.
    static QString workingDirectory(const QString& path);

    /// The patterns that an entry of a filter, or a whole filter, comes down to.
    static QStringList getNameFilters(const QString& text);

    /// What was chosen, once the dialog was accepted; until then, what was tapped last.
    QString selectedPath() const;

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private Q_SLOTS:
    void acceptDialogSlot();
    void fileItemClickedSlot(const QModelIndex& index);
    void fileItemSelectionChangedSlot(const QItemSelection& selection);
    void fileItemDoubleClickedSlot(const QModelIndex& index);
    void favoriteItemClickSlot(const QModelIndex& index);
    void favoriteItemSelectionChangedSlot(const QItemSelection& selection);
    void favoritesWidgetLostFocusSlot();
    void addToFavoritesClickSlot();
    void changeFormatSlot(int index);
    void upButtonClickedSlot();
    void setFileListComboSlot(int index);
    void receive(const QString& message, const QByteArray& content);

private:
    static QString run(const OxFileDialogArgs& args, DialogState state);
    static QString composedTitle(const QString& firstPart, const QString& middlePart);

    void retranslate();
    void showFavoritesButtonText();
    void createTitleBar();
    void createButtons();
    void createBoxes();
    ClickableComboBox* createComboBox(const QSize& size);
    void setRootPath(const QString& path);
    void createFilters(const OxFileDialogArgs& args);
    void createFileList();
    void createFavorites();
    void fillLocationBox();
    void createLayout();
    QLayout* createLists();
    QLayout* createFormatRow();
    void createConnections();
    void setUpUSBConnection();
    void setTabsOrder();

    void addItemTofavoritesList(const QString& name, const QString& path, const QString& iconName);
    void loadFavoritesFromSettings();
    void addItemToFavorites(const QString& path, bool removable);
    void removeItemFromFavorites(const QString& name);
    bool isFixedFavorite(const QString& name) const;
    void deleteFavorite(QListWidgetItem* item);
    void offerToRemoveFavorite(bool offered);
    void loadUSBInfo();
    void removeMedium(const QString& path);

    void takeFile(const QModelIndex& index);
    int locationIndex(const QString& path) const;

    /// What no typed name keeps: the ways up, and the dot that hides a file.
    static const QRegularExpression m_removeSlashesAndDots;

    std::unique_ptr<FileDialogModel> m_model;
    std::unique_ptr<FileDialogFavorites> m_favorites;
    std::unique_ptr<FileDialogMedia> m_media;

    DragScrollListView* m_fileList = nullptr;
    DragScrollListWidget* m_favoritesList = nullptr;
    ClickableComboBox* m_fileNameBox = nullptr;
    ClickableComboBox* m_formatBox = nullptr;
    ClickableComboBox* m_locationBox = nullptr;
    DragScrollButton* m_favoritesButton = nullptr;
    DragScrollButton* m_acceptButton = nullptr;
    DragScrollButton* m_cancelButton = nullptr;
    DragScrollButton* m_upButton = nullptr;
    ContainerTitleBar* m_titleBar = nullptr;
    QLabel* m_favoritesHeader = nullptr;
    QLabel* m_nameLabel = nullptr;
    QLabel* m_formatLabel = nullptr;

    DialogState m_state = OpenFile;
    QString m_selectedPath;
    QFont m_favoritesFont;
    QStringList m_nameFilters;
    QString m_homeFolder;
    QString m_topFolder;
    /// Where the dialog started, or the favourite that was tapped last.
    QString m_currentFolder;
    /// The folder that the file list shows: also the first entry of the location box.
    QString m_location;
    QString m_userName;
    QString m_caption;
    bool m_removesFavorite = false;
};
