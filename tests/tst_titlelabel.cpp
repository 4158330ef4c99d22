// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/titlelabel.h"

#include "containertitlebar.h"
#include "oxinputdialog.h"
#include "oxmessagebox.h"
#include "oxtitlebar.h"
#include "sharedconstants.h"
#include "support/test.h"

#include <QPushButton>

namespace {

QString longTitle()
{
    return QStringLiteral("Unverhältnismäßig lange Überschrift, die niemand vorgesehen hat ")
        .repeated(3);
}

QImage picture(QLabel* label, int width)
{
    label->resize(width, label->sizeHint().height());
    return label->grab().toImage();
}

/// Whether all of `inner` is where `window` covers the screen.
bool isInside(const QWidget* inner, const QWidget* window)
{
    return window->rect().contains(QRect(inner->mapTo(window, QPoint()), inner->size()));
}

} // namespace

class TestTitleLabel : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void asksForItsWholeWidth();
    void looksLikeAPlainLabelWhereItHasRoom();
    void endsInAnEllipsisWhereItHasNone();
    void canBeMadeNarrowButNotLower();
    void aLongTitleLeavesTheCloseButtonInABar_data();
    void aLongTitleLeavesTheCloseButtonInABar();
    void aLongTitleLeavesADialogOnTheScreen_data();
    void aLongTitleLeavesADialogOnTheScreen();
};

void TestTitleLabel::asksForItsWholeWidth()
{
    const Look::TitleLabel title(longTitle());
    QCOMPARE(title.sizeHint(), QLabel(longTitle()).sizeHint());
}

void TestTitleLabel::looksLikeAPlainLabelWhereItHasRoom()
{
    Look::TitleLabel title(QStringLiteral("Layers"));
    QLabel plain(QStringLiteral("Layers"));
    const int width = plain.sizeHint().width();
    QCOMPARE(picture(&title, width), picture(&plain, width));
    QCOMPARE(picture(&title, width + 40), picture(&plain, width + 40));
}

void TestTitleLabel::endsInAnEllipsisWhereItHasNone()
{
    Look::TitleLabel title(longTitle());
    QLabel elided(title.fontMetrics().elidedText(longTitle(), Qt::ElideRight, 200));
    QLabel cut(longTitle());
    QVERIFY(elided.text().endsWith(QChar(0x2026)));
    QCOMPARE(picture(&title, 200), picture(&elided, 200));
    QVERIFY(picture(&title, 200) != picture(&cut, 200));
}

void TestTitleLabel::canBeMadeNarrowButNotLower()
{
    const Look::TitleLabel title(longTitle());
    QVERIFY(title.minimumSizeHint().width() < 100);
    QCOMPARE(title.minimumSizeHint().height(), QLabel(longTitle()).minimumSizeHint().height());
    const Look::TitleLabel shortTitle(QStringLiteral("i"));
    QCOMPARE(shortTitle.minimumSizeHint(), QLabel(QStringLiteral("i")).minimumSizeHint());
}

void TestTitleLabel::aLongTitleLeavesTheCloseButtonInABar_data()
{
    QTest::addColumn<bool>("withIcon");
    QTest::newRow("OxTitleBar") << true;
    QTest::newRow("ContainerTitleBar") << false;
}

void TestTitleLabel::aLongTitleLeavesTheCloseButtonInABar()
{
    QFETCH(bool, withIcon);
    std::unique_ptr<QWidget> bar;
    if (withIcon) {
        bar = std::make_unique<OxTitleBar>(nullptr, QString(), longTitle());
    } else {
        bar = std::make_unique<ContainerTitleBar>(nullptr, longTitle());
    }
    bar->resize(500, bar->height());
    bar->show();
    QCOMPARE(bar->width(), 500);
    QVERIFY(isInside(bar->findChild<QPushButton*>(), bar.get()));
}

void TestTitleLabel::aLongTitleLeavesADialogOnTheScreen_data()
{
    QTest::addColumn<bool>("asks");
    QTest::newRow("message box") << false;
    QTest::newRow("input dialog") << true;
}

void TestTitleLabel::aLongTitleLeavesADialogOnTheScreen()
{
    QFETCH(bool, asks);
    std::unique_ptr<QDialog> dialog;
    if (asks) {
        auto input = std::make_unique<OxInputDialog>(nullptr, Qt::FramelessWindowHint, longTitle(),
                                                     QStringLiteral("Name"));
        input->setTextLayout({});
        dialog = std::move(input);
    } else {
        dialog = std::make_unique<OxMessageBox>(QMessageBox::Warning, longTitle(),
                                                QStringLiteral("Text"), QMessageBox::Ok);
    }
    dialog->show();
    QVERIFY(dialog->width() <= ScreenWidth);
    const auto buttons = dialog->findChildren<QPushButton*>();
    QVERIFY(buttons.count() >= 2);
    for (const QPushButton* button : buttons) {
        QVERIFY(isInside(button, dialog.get()));
    }
}

UW_TEST_MAIN(TestTitleLabel)

#include "tst_titlelabel.moc"
