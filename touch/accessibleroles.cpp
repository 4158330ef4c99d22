// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "touch/accessibleroles.h"

#include <QAccessibleWidget>
#include <QLabel>
#include <QTextDocumentFragment>

namespace {

/// What a person reads on `widget`, its own text first.
QString readableText(const QWidget* widget)
{
    QList<const QLabel*> labels;
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        labels.append(label);
    }
    const auto children = widget->findChildren<QLabel*>();
    for (const QLabel* label : children) {
        labels.append(label);
    }
    QStringList texts;
    for (const QLabel* label : labels) {
        const QString text = label->textFormat() == Qt::RichText
                || (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(label->text()))
            ? QTextDocumentFragment::fromHtml(label->text()).toPlainText()
            : label->text();
        if (!text.isEmpty()) {
            texts.append(text);
        }
    }
    return texts.join(QLatin1Char(' '));
}

/// A widget with the signal clicked() that is no button of Qt's.
class AccessibleClickable : public QAccessibleWidget
{
public:
    explicit AccessibleClickable(QWidget* widget)
        : QAccessibleWidget(widget, QAccessible::Button)
    { }

    QString text(QAccessible::Text kind) const override
    {
        const QString given = QAccessibleWidget::text(kind);
        return given.isEmpty() && kind == QAccessible::Name ? readableText(widget()) : given;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (widget()->isEnabled()) {
            names.prepend(pressAction());
        }
        return names;
    }

    void doAction(const QString& name) override
    {
        if (name != pressAction()) {
            QAccessibleWidget::doAction(name);
        } else if (widget()->isEnabled()) {
            QMetaObject::invokeMethod(widget(), "clicked");
        }
    }
};

/// Qt asks with the name of the class, then with those of its bases, until somebody answers.
QAccessibleInterface* createInterface(const QString& className, QObject* object)
{
    if (object == nullptr || !object->isWidgetType()) {
        return nullptr;
    }
    auto* widget = static_cast<QWidget*>(object);
    if (className == QLatin1String("ClickableLabel")
        || className == QLatin1String("ClickableFrame")) {
        return new AccessibleClickable(widget);
    }
    if (className == QLatin1String("OxFrame")) {
        return new QAccessibleWidget(widget, QAccessible::Grouping);
    }
    return nullptr;
}

} // namespace

void Touch::installAccessibleRoles()
{
    QAccessible::installFactory(createInterface);
}
