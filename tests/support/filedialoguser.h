// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "clickablecombobox.h"
#include "containertitlebar.h"
#include "dragscrolllistview.h"
#include "dragscrolllistwidget.h"
#include "oxfiledialog.h"

#include <QApplication>
#include <QDataStream>
#include <QDir>
#include <QPushButton>

/*!
 * The person in front of a file dialog: what there is to tap, and what the fingers do.
 *
 * Files appear in their own time: whoever touches one waits for it first.
 */
class FileDialogUser
{
public:
    explicit FileDialogUser(OxFileDialog* dialog);

    OxFileDialog* const dialog;
    DragScrollListView* const files;
    DragScrollListWidget* const favorites;
    ClickableComboBox* const nameBox;
    ClickableComboBox* const formatBox;
    ClickableComboBox* const locationBox;
    QPushButton* const accept;
    QPushButton* const cancel;
    QPushButton* const up;
    QPushButton* const favorite; ///< adds or removes one

    QString title() const;

    /// The names in the list, in their order.
    QStringList listedNames() const;
    /// Whether the file list comes to hold exactly these, in this order.
    bool lists(const QStringList& names) const;
    /// The item of that name, once it is there.
    QModelIndex item(const QString& name) const;
    void tapFile(const QString& name) const;
    void doubleTapFile(const QString& name) const;

    QStringList favoriteNames() const;
    /// -1 if there is none of that name.
    int favoriteRow(const QString& name) const;
    void tapFavorite(const QString& name) const;

    QStringList locations() const;
    /// Opens the box by its text and taps an entry.
    static void choose(QComboBox* box, int entry);

    /// Types into whatever has the focus.
    static void type(const QString& text);
    void press(Qt::Key key) const;
    void tapCloseButton() const;

    /// A message of the window manager, as it arrives.
    template <typename Data> void receive(const QString& message, const Data& content) const
    {
        receiveBytes(message, bytes(content));
    }
    void receiveBytes(const QString& message, const QByteArray& content) const;

    template <typename Data> static QByteArray bytes(const Data& content)
    {
        QByteArray array;
        QDataStream stream(&array, QIODevice::WriteOnly);
        stream << content;
        return array;
    }
};

/// An application that can keep favourites: they are in its settings.
class FileDialogApplication : public QApplication
{
    Q_OBJECT

public:
    FileDialogApplication(int& argc, char** argv);
};

/// The home folder of the test, emptied, with a Desktop, until the next one is made. Also empties
/// the favourites.
class FileDialogHome
{
public:
    FileDialogHome();

    QString path() const { return QDir::homePath(); }
    QString path(const QString& name) const { return path() + QLatin1Char('/') + name; }
    QString desktop() const { return path(QStringLiteral("Desktop")); }

    /// Makes a folder of the home folder and returns its path.
    QString addFolder(const QString& name) const;
    /// Makes an empty file of the home folder and returns its path.
    QString addFile(const QString& name) const;
};
