// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "colorlistcombodelegate.h"

#include "support/test.h"

#include <QListWidget>
#include <QPainter>

class TestColorListComboDelegate : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void takesAParent();
    void drawsTheSelectedItemInItsOwnColors();
    void leavesTheOptionOfTheViewAlone();
};

void TestColorListComboDelegate::takesAParent()
{
    QObject parent;
    const auto* delegate = new ColorListComboDelegate(&parent);

    QCOMPARE(delegate->parent(), &parent);
    QCOMPARE(ColorListComboDelegate().parent(), nullptr);
}

void TestColorListComboDelegate::drawsTheSelectedItemInItsOwnColors()
{
    QListWidget list;
    list.setItemDelegate(new ColorListComboDelegate(&list));
    auto* item = new QListWidgetItem(QStringLiteral("Warning"), &list);
    item->setBackground(QColor(Qt::red));
    item->setForeground(QColor(Qt::green));
    list.resize(200, 100);
    const auto imageOfItem = [&] {
        return list.viewport()->grab(list.visualItemRect(item)).toImage();
    };
    const QImage unselected = imageOfItem();

    item->setSelected(true);
    const QImage selected = imageOfItem();

    QCOMPARE(selected.pixelColor(selected.width() - 2, selected.height() / 2), QColor(Qt::red));
    QCOMPARE(selected, unselected);
}

void TestColorListComboDelegate::leavesTheOptionOfTheViewAlone()
{
    QListWidget list;
    list.addItem(QStringLiteral("Warning"));
    QImage image(100, 30, QImage::Format_RGB32);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.rect = image.rect();
    option.state = QStyle::State_Enabled | QStyle::State_Selected;

    ColorListComboDelegate().paint(&painter, option, list.model()->index(0, 0));

    QCOMPARE(option.state, QStyle::State_Enabled | QStyle::State_Selected);
}

UW_TEST_MAIN(TestColorListComboDelegate)

#include "tst_colorlistcombodelegate.moc"
