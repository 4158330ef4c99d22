// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "dragscrolllistview.h"
#include "oxfiledialog.h"
#include "oxfileiconprovider.h"
#include "oxiconitemdelegate.h"
#include "oxmessagebox.h"
#include "sharedconstants.h"
#include "stage.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileSystemModel>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QTextDocument>

namespace Gallery {

namespace {

/// The gallery's window, which the dialogs stand in front of.
QWidget* window()
{
    return QApplication::activeWindow();
}

/// A folder to choose from, for as long as a dialog shows it. Always the same path, so that
/// pictures of the dialog do not differ; without a dot, which would make it a file's. If it is there
/// already it is shown as it is, and stays so.
class SampleFolder
{
public:
    SampleFolder()
        : m_isOwn(QDir::temp().mkdir(name()))
    {
        if (!m_isOwn) {
            return;
        }
        for (const QString& folder : folders()) {
            m_folder.mkdir(folder);
        }
        for (const QString& file : files()) {
            QFile(m_folder.filePath(file)).open(QIODevice::WriteOnly);
        }
    }

    ~SampleFolder()
    {
        if (!m_isOwn) {
            return;
        }
        for (const QString& file : files()) {
            m_folder.remove(file);
        }
        for (const QString& folder : folders()) {
            m_folder.rmdir(folder);
        }
        QDir::temp().rmdir(name());
    }

    Q_DISABLE_COPY_MOVE(SampleFolder)

    QString path() const { return m_folder.path(); }

private:
    static QString name() { return QStringLiteral("Designs"); }

    static QStringList folders()
    {
        return { QStringLiteral("Banners"), QStringLiteral("Labels"), QStringLiteral("Signs") };
    }

    static QStringList files()
    {
        QStringList names { QStringLiteral("Read me.txt"), QStringLiteral("Prices.txt") };
        for (int i = 1; i <= 12; ++i) {
            names.append(QStringLiteral("Label %1.lbl").arg(i, 2, 10, QLatin1Char('0')));
        }
        return names;
    }

    const bool m_isOwn;
    QDir m_folder = QDir(QDir::temp().filePath(name()));
};

QString formats()
{
    return QStringLiteral("Labels (*.lbl);;Texts (*.txt)");
}

/// Says what a file dialog returned, unless nothing was chosen.
void showChoice(const QString& path)
{
    if (!path.isEmpty()) {
        OxMessageBox::information(window(), QStringLiteral("RESULT"),
                                  Qt::convertFromPlainText(path, Qt::WhiteSpaceNormal));
    }
}

void openFile()
{
    const SampleFolder folder;
    //! [OxFileDialog]
    const QString path =
        OxFileDialog::getOpenFileName(window(), QString(), folder.path(), formats());
    showChoice(path); // empty when nothing was chosen
    //! [OxFileDialog]
}

void saveFile()
{
    const SampleFolder folder;
    showChoice(OxFileDialog::getSaveFileName(window(), {}, folder.path(), formats()));
}

void selectFolder()
{
    const SampleFolder folder;
    showChoice(OxFileDialog::getExistingDirectory(window(), {}, folder.path()));
}

void openFileWithLongTexts()
{
    const SampleFolder folder;
    showChoice(OxFileDialog::getOpenFileName(window(), longText(), folder.path(),
                                             longText() + QStringLiteral(" (*.lbl)")));
}

QList<DialogState> fileDialogs()
{
    return {
        { QStringLiteral("open"), QStringLiteral("Open a file"), openFile },
        { QStringLiteral("save"), QStringLiteral("Save a file"), saveFile },
        { QStringLiteral("folder"), QStringLiteral("Select a folder"), selectFolder },
        { QStringLiteral("long"), QStringLiteral("Long texts"), openFileWithLongTexts },
    };
}

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
            {
                QStringLiteral("OxFileDialog"),
                QStringLiteral("Lets the person choose a file to open, a name to save under, or a "
                               "folder."),
                {},
                fileDialogs(),
            },
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
