// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/filedialoguser.h"

#include "support/finger.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QTest>

namespace {

ClickableComboBox* boxOfSize(const OxFileDialog* dialog, const QSize& size)
{
    const auto boxes = dialog->findChildren<ClickableComboBox*>();
    for (ClickableComboBox* box : boxes) {
        if (box->minimumSize() == size) {
            return box;
        }
    }
    return nullptr;
}

/// The buttons below the title bar are told apart by their widths; two have the same.
QPushButton* buttonOfWidth(const OxFileDialog* dialog, int width, int which = 0)
{
    QList<QPushButton*> found;
    const auto buttons = dialog->findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly);
    for (QPushButton* button : buttons) {
        if (button->minimumWidth() == width) {
            found.append(button);
        }
    }
    return found.value(which);
}

} // namespace

FileDialogUser::FileDialogUser(OxFileDialog* theDialog)
    : dialog(theDialog)
    , files(dialog->findChild<DragScrollListView*>())
    , favorites(dialog->findChild<DragScrollListWidget*>())
    , nameBox(boxOfSize(dialog, { 520, 35 }))
    , formatBox(boxOfSize(dialog, { 340, 35 }))
    , locationBox(boxOfSize(dialog, { 385, 55 }))
    , accept(buttonOfWidth(dialog, 80, 0))
    , cancel(buttonOfWidth(dialog, 80, 1))
    , up(buttonOfWidth(dialog, 35))
    , favorite(buttonOfWidth(dialog, 160))
{
    if (!QTest::qWaitForWindowActive(dialog)) {
        QTest::qFail("the dialog did not become active", __FILE__, __LINE__);
    }
}

QString FileDialogUser::title() const
{
    return dialog->findChild<ContainerTitleBar*>()->findChild<QLabel*>()->text();
}

QStringList FileDialogUser::listedNames() const
{
    QStringList names;
    const QModelIndex root = files->rootIndex();
    for (int row = 0; row < files->model()->rowCount(root); ++row) {
        names.append(files->model()->index(row, 0, root).data().toString());
    }
    return names;
}

bool FileDialogUser::lists(const QStringList& names) const
{
    return QTest::qWaitFor([&] { return listedNames() == names; });
}

QModelIndex FileDialogUser::item(const QString& name) const
{
    QModelIndex found;
    const bool isThere = QTest::qWaitFor([&] {
        const qsizetype row = listedNames().indexOf(name);
        if (row >= 0) {
            found = files->model()->index(int(row), 0, files->rootIndex());
        }
        return row >= 0;
    });
    if (!isThere) {
        QTest::qFail(qPrintable(QStringLiteral("no file %1").arg(name)), __FILE__, __LINE__);
    }
    return found;
}

void FileDialogUser::tapFile(const QString& name) const
{
    const QPersistentModelIndex index = item(name);
    files->scrollTo(index);
    Finger().tap(files->viewport(), files->visualRect(index).center());
}

void FileDialogUser::doubleTapFile(const QString& name) const
{
    const QPersistentModelIndex index = item(name);
    files->scrollTo(index);
    const QPoint at = files->viewport()->mapToGlobal(files->visualRect(index).center());
    QWindow* window = dialog->windowHandle();
    QTest::mouseDClick(window, Qt::LeftButton, Qt::NoModifier, window->mapFromGlobal(at));
}

QStringList FileDialogUser::favoriteNames() const
{
    QStringList names;
    for (int row = 0; row < favorites->count(); ++row) {
        names.append(favorites->item(row)->text());
    }
    return names;
}

int FileDialogUser::favoriteRow(const QString& name) const
{
    return int(favoriteNames().indexOf(name));
}

void FileDialogUser::tapFavorite(const QString& name) const
{
    QListWidgetItem* entry = favorites->item(favoriteRow(name));
    favorites->scrollToItem(entry);
    Finger().tap(favorites->viewport(), favorites->visualItemRect(entry).center());
}

QStringList FileDialogUser::locations() const
{
    QStringList texts;
    for (int i = 0; i < locationBox->count(); ++i) {
        texts.append(locationBox->itemText(i));
    }
    return texts;
}

void FileDialogUser::choose(QComboBox* box, int entry)
{
    Finger().tap(box->lineEdit());
    QAbstractItemView* view = box->view();
    if (!QTest::qWaitForWindowExposed(view->window())) {
        QTest::qFail("the list of the box did not open", __FILE__, __LINE__);
    }
    Finger().tap(view->viewport(), view->visualRect(view->model()->index(entry, 0)).center());
    if (!QTest::qWaitFor([view] { return !view->isVisible(); })) {
        QTest::qFail("the list of the box did not close", __FILE__, __LINE__);
    }
}

void FileDialogUser::type(const QString& text)
{
    QTest::keyClicks(QApplication::focusWidget(), text);
}

void FileDialogUser::press(Qt::Key key) const
{
    QTest::keyClick(dialog->windowHandle(), key);
}

void FileDialogUser::tapCloseButton() const
{
    Finger().tap(dialog->findChild<ContainerTitleBar*>()->findChild<QPushButton*>());
}

void FileDialogUser::receiveBytes(const QString& message, const QByteArray& content) const
{
    QMetaObject::invokeMethod(dialog, "receive", Q_ARG(QString, message),
                              Q_ARG(QByteArray, content));
}

FileDialogApplication::FileDialogApplication(int& argc, char** argv)
    : QApplication(argc, argv)
{
    setOrganizationName(QStringLiteral("UtilityWidgets"));
    setApplicationName(QStringLiteral("file dialog test"));
}

FileDialogHome::FileDialogHome()
{
    QDir(path()).removeRecursively();
    QDir().mkpath(desktop());
    QSettings().clear();
}

QString FileDialogHome::addFolder(const QString& name) const
{
    QDir(path()).mkpath(name);
    return path(name);
}

QString FileDialogHome::addFile(const QString& name) const
{
    if (!QFile(path(name)).open(QIODevice::WriteOnly)) {
        qFatal("cannot make a file in the home folder");
    }
    return path(name);
}

#include "moc_filedialoguser.cpp"
