// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/icons.h"

#include "containertitlebar.h"
#include "oxtitlebar.h"
#include "support/test.h"

#include <QApplication>
#include <QIcon>
#include <QPushButton>

#include <memory>

namespace {

QString closeImage()
{
    return QStringLiteral(":/Navigation/NavigationIcons/exit.png");
}

} // namespace

class TestIcons : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheImage();
    void readsAnImageOnce();
    void differentImagesAreDifferentIcons();
    void readsTheImageAnewForTheNextApplicationObject();
    void allTitleBarsShareOneIcon();
};

void TestIcons::showsTheImage()
{
    int argc = 0;
    const QApplication application(argc, nullptr);
    QCOMPARE(Look::icon(closeImage()).pixmap(34, 31).toImage(), QPixmap(closeImage()).toImage());
}

void TestIcons::readsAnImageOnce()
{
    int argc = 0;
    const QApplication application(argc, nullptr);
    const qint64 first = Look::icon(closeImage()).cacheKey();
    QCOMPARE(Look::icon(closeImage()).cacheKey(), first);
}

void TestIcons::differentImagesAreDifferentIcons()
{
    int argc = 0;
    const QApplication application(argc, nullptr);
    const QIcon other = Look::icon(QStringLiteral(":/Navigation/NavigationIcons/error-icon.png"));
    QVERIFY(other.cacheKey() != Look::icon(closeImage()).cacheKey());
}

void TestIcons::readsTheImageAnewForTheNextApplicationObject()
{
    int argc = 0;
    auto application = std::make_unique<QApplication>(argc, nullptr);
    const qint64 first = Look::icon(closeImage()).cacheKey();
    application.reset();

    application = std::make_unique<QApplication>(argc, nullptr);
    const QIcon again = Look::icon(closeImage());
    QVERIFY(again.cacheKey() != first);
    QCOMPARE(again.pixmap(34, 31).toImage(), QPixmap(closeImage()).toImage());
}

void TestIcons::allTitleBarsShareOneIcon()
{
    int argc = 0;
    const QApplication application(argc, nullptr);
    const auto keyOf = [](const QWidget& bar) {
        return bar.findChild<QPushButton*>()->icon().cacheKey();
    };
    const OxTitleBar small;
    const ContainerTitleBar large;
    QCOMPARE(keyOf(small), keyOf(OxTitleBar()));
    QCOMPARE(keyOf(large), keyOf(small));
}

// Each test makes an application object of its own.
int main(int argc, char* argv[])
{
    const ThrowAwayHome home;
    TestIcons test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_icons.moc"
