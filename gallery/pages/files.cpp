// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "dragscrolllistview.h"
#include "oxfileiconprovider.h"
#include "oxiconitemdelegate.h"
#include "sharedconstants.h"
#include "stage.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileSystemModel>
#include <QStandardItemModel>
#include <QTemporaryDir>

namespace Gallery {

namespace {

constexpr int ListHeight = 4 * 35 + 2; // whole rows inside a frame

DragScrollListView* createFileList()
{
    //! [OxIconItemDelegate]
    auto* list = new DragScrollListView;
    list->setItemDelegate(new OxIconItemDelegate(list));
    list->setIconSize(IconButtonSize);
    list->setUniformItemSizes(true);
    //! [OxIconItemDelegate]
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setFixedHeight(ListHeight);
    return list;
}

/// A folder of the person's and the model that lists it, with the icons it needs.
class FolderModel : public QObject
{
public:
    using QObject::QObject;

    void showIn(QListView* list)
    {
        const QDir folder(m_folder.path());
        folder.mkdir(QStringLiteral("Designs"));
        folder.mkdir(QStringLiteral("Banners.txt"));
        for (const char* name : { "Label.svg", "Read me.txt" }) {
            QFile(folder.filePath(QString::fromLatin1(name))).open(QIODevice::WriteOnly);
        }
        //! [OxFileIconProvider]
        m_model.setIconProvider(&m_icons); // outlives the model
        list->setModel(&m_model);
        list->setRootIndex(m_model.setRootPath(m_folder.path()));
        //! [OxFileIconProvider]
        // The page's picture is taken as soon as it is shown, and models sort later than they load.
        QEventLoop loading;
        connect(&m_model, &QFileSystemModel::directoryLoaded, &loading, &QEventLoop::quit);
        loading.exec(QEventLoop::ExcludeUserInputEvents);
        m_model.sort(0);
    }

private:
    QTemporaryDir m_folder;
    OxFileIconProvider m_icons;
    QFileSystemModel m_model;
};

void showOxFileIconProvider(Stage& stage)
{
    const auto createFolderList = [] {
        DragScrollListView* list = createFileList();
        (new FolderModel(list))->showIn(list);
        return list;
    };
    DragScrollListView* disabled = createFolderList();
    disabled->setEnabled(false);
    stage.setColumns(2);
    stage.add(QStringLiteral("Enabled"), createFolderList());
    stage.add(QStringLiteral("Disabled"), disabled);
}

void showOxIconItemDelegate(Stage& stage)
{
    stage.addStates(
        [](const QString& text) {
            DragScrollListView* list = createFileList();
            const OxFileIconProvider icons;
            auto* model = new QStandardItemModel(list);
            for (const QString& name : { text, QStringLiteral("Label"), QStringLiteral("Sign") }) {
                model->appendRow(
                    new QStandardItem(icons.icon(QFileInfo(QStringLiteral("/"))), name));
            }
            list->setModel(model);
            list->setCurrentIndex(model->index(1, 0));
            return list;
        },
        QStringLiteral("Designs"));
}

} // namespace

Family filesFamily()
{
    const auto page = [](const char* id, const char* summary, void (*build)(Stage&)) {
        return Page { QString::fromLatin1(id), QString::fromLatin1(summary), build, {} };
    };
    return {
        QStringLiteral("Files"),
        QStringLiteral(":/gallery/pages/files.cpp"),
        {
            page("OxFileIconProvider",
                 "One picture for every folder and one for every file, for file-system models.",
                 showOxFileIconProvider),
            page("OxIconItemDelegate",
                 "Rows of one height, that of a finger, whatever the items hold.",
                 showOxIconItemDelegate),
        },
    };
}

} // namespace Gallery
