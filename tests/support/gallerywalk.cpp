// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/gallerywalk.h"

#include "gallery/page.h"
#include "gallery/tour.h"

#include "clickableframe.h"
#include "clickablelabel.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollBar>
#include <QSlider>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>

namespace {

template <typename... Classes> bool isOneOf(const QWidget* widget)
{
    return ((qobject_cast<const Classes*>(widget) != nullptr) || ...);
}

/// Whether Qt builds such a control of several widgets.
bool isCompound(const QWidget* widget)
{
    return isOneOf<QAbstractSpinBox, QComboBox, QHeaderView, QTabBar, QScrollBar>(widget);
}

bool isOperated(const QWidget* widget)
{
    if (isOneOf<QScrollBar, QHeaderView>(widget)) {
        return false; // helps to operate what it stands beside
    }
    if (isOneOf<QAbstractButton, QAbstractSlider, QAbstractSpinBox, QComboBox, QLineEdit, QTextEdit,
                QPlainTextEdit, QAbstractItemView, QTabBar, ClickableLabel, ClickableFrame>(
            widget)) {
        return true;
    }
    const auto* box = qobject_cast<const QGroupBox*>(widget);
    return box != nullptr ? box->isCheckable() : (widget->focusPolicy() & Qt::TabFocus) != 0;
}

} // namespace

void GalleryWalk::addPages()
{
    QTest::addColumn<QString>("page");
    for (const Gallery::Family& family : Gallery::families()) {
        for (const Gallery::Page& page : family.pages) {
            QTest::newRow(qPrintable(page.id)) << page.id;
        }
    }
}

QWidget* GalleryWalk::controlOf(QWidget* widget)
{
    QWidget* innermost = nullptr;
    for (QWidget* outer = widget; outer != nullptr; outer = outer->parentWidget()) {
        if (isCompound(outer)) {
            return isOperated(outer) ? outer : nullptr;
        }
        if (innermost == nullptr && isOperated(outer)) {
            innermost = outer;
        }
    }
    return innermost;
}

QWidgetList GalleryWalk::controlsIn(const QWidget* window, bool withDisabled)
{
    QWidgetList controls;
    const QWidgetList widgets = window->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (widget->window() == window && widget->isVisible()
            && (widget->isEnabled() || withDisabled) && controlOf(widget) == widget) {
            controls.append(widget);
        }
    }
    return controls;
}

QString GalleryWalk::describe(const QWidget* widget)
{
    auto* accessible = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
    const QPoint position = widget->mapTo(widget->window(), QPoint());
    return QStringLiteral("%1 \"%2\" in %3 at %4, %5")
        .arg(QString::fromLatin1(widget->metaObject()->className()),
             accessible != nullptr ? accessible->text(QAccessible::Name) : QString(),
             QString::fromLatin1(widget->parentWidget() != nullptr
                                     ? widget->parentWidget()->metaObject()->className()
                                     : "nothing"))
        .arg(position.x())
        .arg(position.y());
}

QStringList GalleryWalk::describe(const QWidgetList& widgets)
{
    QStringList lines;
    for (const QWidget* widget : widgets) {
        lines.append(describe(widget));
    }
    return lines;
}

GalleryWalk::ShownGallery::ShownGallery(const QString& page)
{
    showPage(page);
    move(0, 0);
    show();
    activateWindow();
    if (!QTest::qWaitForWindowActive(this)) {
        QTest::qFail("the gallery does not become the active window", __FILE__, __LINE__);
    }
}

GalleryWalk::Visitor::Visitor(const Gallery::GalleryWindow* behind, Script script)
    : m_behind(behind)
    , m_script(std::move(script))
{
    connect(&m_poll, &QTimer::timeout, this, &Visitor::look);
    m_poll.start(0);
}

void GalleryWalk::Visitor::look()
{
    const QPointer<QWidget> window = Gallery::windowInFrontOf(m_behind);
    // A list that opens under a finger waits for the finger to be lifted.
    if (m_isVisiting || window == nullptr || QGuiApplication::mouseButtons() != Qt::NoButton) {
        return;
    }
    m_isVisiting = true;
    ++m_visited;
    m_script(window);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (window != nullptr && window->isVisible()) {
        m_leftOpen.append(describe(window));
        window->close();
    }
    m_isVisiting = false;
}

#include "moc_gallerywalk.cpp"
