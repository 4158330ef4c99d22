// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/editoruser.h"

#include "dragscrollbutton.h"
#include "oxcollapsiblewidgetcontainer.h"
#include "oxinputdialog.h"
#include "sharedconstants.h"
#include "support/filedialoguser.h"
#include "support/finger.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QTabBar>

namespace {

void fail(const QString& message)
{
    QTest::qFail(qPrintable(message), __FILE__, __LINE__);
}

/// Whether a finger finds the middle of it.
bool canBeTapped(const QWidget* widget)
{
    const QPoint center = widget->rect().center();
    const QPoint at = widget->mapTo(widget->window(), center);
    const QWidget* found = widget->window()->childAt(at);
    return widget->isVisible() && widget->isEnabled()
        && (found == widget || widget->isAncestorOf(found));
}

void tapOrFail(QWidget* widget, const QString& name)
{
    if (widget == nullptr) {
        fail(QStringLiteral("there is no %1").arg(name));
    } else if (!canBeTapped(widget)) {
        fail(QStringLiteral("%1 cannot be tapped").arg(name));
    } else {
        TouchFinger().tap(widget);
    }
}

} // namespace

EditorUser::EditorUser()
    : canvas(window.findChild<Canvas*>())
{
    window.resize(ScreenSize);
    window.show();
    if (!QTest::qWaitForWindowActive(&window)) {
        fail(QStringLiteral("the editor did not become active"));
    }
}

QWidget* EditorUser::find(const QString& name) const
{
    auto* widget = window.findChild<QWidget*>(name);
    if (widget == nullptr) {
        fail(QStringLiteral("there is no %1").arg(name));
    }
    return widget;
}

void EditorUser::tap(const QString& name) const
{
    // As a window manager does once a dialog is closed.
    if (!canvas->isActiveWindow()) {
        canvas->activateWindow();
        QVERIFY2(QTest::qWaitForWindowActive(canvas->window()), "the editor did not become active");
    }
    tapOrFail(window.findChild<QWidget*>(name), name);
}

void EditorUser::tapButton(const QWidget* parent, const QString& text)
{
    const auto buttons = parent->findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        const QString shown = button->text().remove(QLatin1Char('&'));
        if ((shown == text || button->accessibleName() == text) && button->isVisible()) {
            tapOrFail(button, text);
            return;
        }
    }
    fail(QStringLiteral("there is no button %1").arg(text));
}

void EditorUser::tapItem(QAbstractItemView* view, int row)
{
    const QModelIndex index = view->model()->index(row, 0, view->rootIndex());
    if (!index.isValid()) {
        fail(QStringLiteral("%1 has no row %2").arg(view->objectName()).arg(row));
        return;
    }
    view->scrollTo(index);
    TouchFinger().tap(view->viewport(), view->visualRect(index).center());
}

void EditorUser::tapTab(const QString& bar, int tab) const
{
    auto* tabs = window.findChild<QTabBar*>(bar);
    TouchFinger().tap(tabs, tabs->tabRect(tab).center());
}

void EditorUser::enter(const QString& field, const QString& text) const
{
    tap(field);
    auto* widget = find(field);
    if (widget == nullptr) {
        return;
    }
    if (!QTest::qWaitFor([widget] { return widget->hasFocus(); })) {
        fail(QStringLiteral("%1 has no focus after a tap").arg(field));
        return;
    }
    QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(widget, text);
    QTest::keyClick(widget, Qt::Key_Return);
}

void EditorUser::tapObject(const Object& object) const
{
    TouchFinger().tap(canvas, canvas->rectOf(object).center());
}

void EditorUser::drag(const QPoint& from, const QPoint& offset) const
{
    TouchFinger finger;
    finger.press(canvas, from);
    finger.moveBy(offset / 2);
    finger.moveBy(offset - offset / 2);
    finger.release();
}

void EditorUser::foldSections() const
{
    const auto sections = window.findChildren<OxCollapsibleWidgetContainer*>();
    for (const OxCollapsibleWidgetContainer* section : { sections.at(1), sections.at(0) }) {
        if (section->getContainedWidget()->isVisible()) {
            tapOrFail(section->findChild<DragScrollButton*>(),
                      QStringLiteral("the button of a section"));
            QTRY_VERIFY2(!section->getContainedWidget()->isVisible(), "a section did not fold");
        }
    }
}

void EditorUser::tapColor(const QString& color) const
{
    foldSections();
    const auto buttons = window.findChildren<QAbstractButton*>(QStringLiteral("ColorButton"));
    for (QAbstractButton* button : buttons) {
        if (button->property("color").toString() == color) {
            QTRY_VERIFY(canBeTapped(button));
            tapOrFail(button, color);
            return;
        }
    }
    fail(QStringLiteral("there is no colour %1").arg(color));
}

void EditorUser::tapLock(const QString& text) const
{
    foldSections();
    const auto boxes = find(QStringLiteral("locks"))->findChildren<QCheckBox*>();
    for (QCheckBox* box : boxes) {
        if (box->text() == text) {
            QTRY_VERIFY(canBeTapped(box));
            TouchFinger().tap(box, QPoint(18, box->height() / 2)); // its picture
            return;
        }
    }
    fail(QStringLiteral("there is no lock %1").arg(text));
}

void EditorUser::command(const QString& text)
{
    tap(QStringLiteral("file"));
    tapButton(&window, text);
    QCoreApplication::processEvents();
}

void EditorUser::insertText(const QString& text) const
{
    whileModal<OxInputDialog>(
        [&] { tap(QStringLiteral("addText")); },
        [&](OxInputDialog* dialog) {
            auto* field = dialog->findChild<QLineEdit*>();
            TouchFinger().tap(field);
            QTest::keyClicks(field, text);
            tapOrFail(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok),
                      QStringLiteral("OK"));
        });
}

void EditorUser::chooseName(OxFileDialog* dialog, const QString& name)
{
    const FileDialogUser user(dialog);
    TouchFinger().tap(user.nameBox->lineEdit());
    user.nameBox->lineEdit()->selectAll();
    QTest::keyClicks(user.nameBox->lineEdit(), name);
    QTRY_VERIFY(user.nameBox->currentText() == name);
    tapOrFail(user.accept, QStringLiteral("the accept button"));
}

void EditorUser::chooseFile(OxFileDialog* dialog, const QString& name)
{
    const FileDialogUser user(dialog);
    const QModelIndex item = user.item(name);
    user.files->scrollTo(item);
    TouchFinger().tap(user.files->viewport(), user.files->visualRect(item).center());
    tapOrFail(user.accept, QStringLiteral("the accept button"));
}
