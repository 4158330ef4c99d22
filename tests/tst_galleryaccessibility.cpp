// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

#include "clickableframe.h"
#include "clickablelabel.h"
#include "support/gallerywalk.h"
#include "support/test.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTextEdit>

/// What those who cannot see the pages of the gallery are told about them.
class TestGalleryAccessibility : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void everyControlHasANameAndARole_data() { GalleryWalk::addPages(); }
    void everyControlHasANameAndARole();
    void everyControlOfADialogHasANameAndARole_data() { GalleryWalk::addPages(); }
    void everyControlOfADialogHasANameAndARole();
    void aPictureAloneIsNoName();
};

namespace {

/// The roles that tell a person how to operate `control`.
QList<QAccessible::Role> rolesFor(const QWidget* control)
{
    if (qobject_cast<const QAbstractButton*>(control) != nullptr) {
        return { QAccessible::Button, QAccessible::CheckBox, QAccessible::RadioButton,
                 QAccessible::ButtonMenu, QAccessible::ButtonDropDown };
    }
    if (qobject_cast<const ClickableLabel*>(control) != nullptr
        || qobject_cast<const ClickableFrame*>(control) != nullptr) {
        return { QAccessible::Button };
    }
    if (qobject_cast<const QAbstractSpinBox*>(control) != nullptr) {
        return { QAccessible::SpinBox };
    }
    if (qobject_cast<const QComboBox*>(control) != nullptr) {
        return { QAccessible::ComboBox };
    }
    if (qobject_cast<const QLineEdit*>(control) != nullptr
        || qobject_cast<const QTextEdit*>(control) != nullptr
        || qobject_cast<const QPlainTextEdit*>(control) != nullptr) {
        return { QAccessible::EditableText };
    }
    if (qobject_cast<const QAbstractSlider*>(control) != nullptr) {
        return { QAccessible::Slider, QAccessible::Dial };
    }
    if (qobject_cast<const QAbstractItemView*>(control) != nullptr) {
        return { QAccessible::List, QAccessible::Table, QAccessible::Tree };
    }
    if (qobject_cast<const QTabBar*>(control) != nullptr) {
        return { QAccessible::PageTabList };
    }
    if (qobject_cast<const QGroupBox*>(control) != nullptr) {
        return { QAccessible::CheckBox };
    }
    // Something that can have the focus to be scrolled, or left again.
    return { QAccessible::Client, QAccessible::Grouping, QAccessible::Pane };
}

/// Whether those who cannot see `control` need a name to know what it is for. Areas that are only
/// scrolled are told by what is in them.
bool needsName(const QWidget* control)
{
    return rolesFor(control).constFirst() != QAccessible::Client;
}

/// What is wrong with the controls of `window`, one line each.
QStringList complaintsAbout(const QWidget* window)
{
    QStringList complaints;
    const QWidgetList widgets = window->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        if (accessible == nullptr || !accessible->isValid()) {
            complaints.append(QStringLiteral("no interface: ") + GalleryWalk::describe(widget));
        }
    }
    const QWidgetList controls = GalleryWalk::controlsIn(window, true);
    for (QWidget* control : controls) {
        const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(control);
        if (needsName(control) && accessible->text(QAccessible::Name).trimmed().isEmpty()) {
            complaints.append(QStringLiteral("no name: ") + GalleryWalk::describe(control));
        }
        if (!rolesFor(control).contains(accessible->role())) {
            complaints.append(QStringLiteral("role %1: %2")
                                  .arg(accessible->role())
                                  .arg(GalleryWalk::describe(control)));
        }
    }
    return complaints;
}

} // namespace

void TestGalleryAccessibility::everyControlHasANameAndARole()
{
    QFETCH(const QString, page);
    const GalleryWalk::ShownGallery gallery(page);
    VERIFY_NONE(complaintsAbout(&gallery));
}

void TestGalleryAccessibility::everyControlOfADialogHasANameAndARole()
{
    QFETCH(const QString, page);
    const GalleryWalk::ShownGallery gallery(page);

    QStringList complaints;
    const GalleryWalk::Visitor visitor(&gallery, [&complaints](QWidget* window) {
        complaints += complaintsAbout(window);
        if (qobject_cast<QDialog*>(window) != nullptr) {
            const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(window);
            if (accessible->role() != QAccessible::Dialog
                || accessible->text(QAccessible::Name).isEmpty()) {
                complaints.append(QStringLiteral("dialog: ") + GalleryWalk::describe(window));
            }
        }
        window->close();
    });
    int opened = 0;
    for (const Gallery::Family& family : Gallery::families()) {
        for (const Gallery::Page& candidate : family.pages) {
            if (candidate.id == page) {
                for (const Gallery::DialogState& state : candidate.dialogs) {
                    state.open();
                    ++opened;
                }
            }
        }
    }
    VERIFY_NONE(complaints);
    QVERIFY(visitor.visited() >= opened);
}

void TestGalleryAccessibility::aPictureAloneIsNoName()
{
    QWidget window;
    auto* button = new QPushButton(QIcon(QPixmap(16, 16)), QString(), &window);
    button->setToolTip(QStringLiteral("a tool tip is a description"));
    window.show();
    QCOMPARE(complaintsAbout(&window).count(), 1);
    button->setAccessibleName(QStringLiteral("Fold"));
    VERIFY_NONE(complaintsAbout(&window));
}

UW_TEST_MAIN(TestGalleryAccessibility)

#include "tst_galleryaccessibility.moc"
