// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/housedialog.h"

#include "look/icons.h"
#include "look/images.h"
#include "look/sheets.h"
#include "look/titlelabel.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QDialog>
#include <QEvent>
#include <QIcon>
#include <QLabel>
#include <QScreen>
#include <QTextDocumentFragment>

namespace {

/// Where a dialog without a frame stands when nobody has moved it: in the middle of its parent's
/// window, or of the screen, and all of it on the screen. QDialog reckons with a frame and puts it
/// ten pixels to the left and forty above. A child of the dialog.
class Centring : public QObject
{
public:
    explicit Centring(QDialog* dialog)
        : QObject(dialog)
    {
        dialog->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // Null once the dialog's own part has been destroyed.
        auto* dialog = qobject_cast<QDialog*>(watched);
        if (dialog == nullptr) {
            return false;
        }
        if (event->type() == QEvent::Show && !event->spontaneous() && isWanted(*dialog)) {
            centre(dialog); // which makes QDialog leave it there
            m_isCentred = true;
        } else if (event->type() == QEvent::ShowToParent && m_isCentred) {
            // As QDialog does: next time anew, because the size may change. A move from now on is
            // the application's, and counts.
            dialog->setAttribute(Qt::WA_Moved, false);
            m_isCentred = false;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    static bool isWanted(const QDialog& dialog)
    {
        return dialog.isWindow() && dialog.windowFlags().testFlag(Qt::FramelessWindowHint)
            && !dialog.testAttribute(Qt::WA_Moved);
    }

    static void centre(QDialog* dialog)
    {
        const QWidget* behind =
            dialog->parentWidget() != nullptr ? dialog->parentWidget()->window() : nullptr;
        const QRect screen =
            (behind != nullptr ? behind->screen() : dialog->screen())->availableGeometry();
        QRect place(QPoint(), dialog->size());
        place.moveCenter(behind != nullptr ? behind->geometry().center() : screen.center());
        place.moveRight(qMin(place.right(), screen.right()));
        place.moveBottom(qMin(place.bottom(), screen.bottom()));
        place.moveLeft(qMax(place.left(), screen.left()));
        place.moveTop(qMax(place.top(), screen.top()));
        dialog->move(place.topLeft());
    }

    bool m_isCentred = false; // while it is being shown
};

QString productName()
{
    return QStringLiteral("Sigilant PRO");
}

/// What a person reads in the title bar of `dialog`.
QString shownTitle(const QWidget* dialog)
{
    const auto labels = dialog->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (dynamic_cast<const Look::TitleLabel*>(label) != nullptr) {
            return Qt::mightBeRichText(label->text())
                ? QTextDocumentFragment::fromHtml(label->text()).toPlainText()
                : label->text();
        }
    }
    return {};
}

/// A dialog of the house by the name in its title bar: those who cannot see it would otherwise be
/// told the product's name, whichever dialog comes up.
class AccessibleHouseDialog : public QAccessibleWidget
{
public:
    explicit AccessibleHouseDialog(QWidget* dialog)
        : QAccessibleWidget(dialog, QAccessible::Dialog)
    { }

    QString text(QAccessible::Text kind) const override
    {
        const QString title = kind == QAccessible::Name && widget()->accessibleName().isEmpty()
            ? shownTitle(widget())
            : QString();
        return title.isEmpty() ? QAccessibleWidget::text(kind) : title;
    }
};

QAccessibleInterface* createInterface(const QString& className, QObject* object)
{
    auto* dialog = qobject_cast<QDialog*>(object);
    return className == QLatin1String("QDialog") && dialog != nullptr
            && dialog->windowTitle() == productName()
        ? new AccessibleHouseDialog(dialog)
        : nullptr;
}

} // namespace

void Look::prepareHouseDialog(QDialog* dialog)
{
    QAccessible::installFactory(createInterface); // only the first time
    dialog->setAttribute(Qt::WA_DeleteOnClose, false);
    dialog->setAttribute(Qt::WA_QuitOnClose, false);
    dialog->setWindowIcon(icon(QStringLiteral(LOOK_IMAGE_APPLICATION)));
    dialog->setWindowTitle(productName());
    new Centring(dialog);
}

void Look::alignToLineStart(QLabel* label)
{
    label->setAlignment(Qt::AlignVCenter
                        | (label->isRightToLeft() ? Qt::AlignRight | Qt::AlignAbsolute
                                                  : Qt::Alignment(Qt::AlignLeft)));
}

void Look::prepareMessageButton(QAbstractButton* button)
{
    button->setMinimumSize(80, 30);
    button->setStyleSheet(messageButton());
}
