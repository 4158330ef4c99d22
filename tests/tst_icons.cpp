// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/icons.h"

#include "containertitlebar.h"
#include "oxtitlebar.h"
#include "support/test.h"

#include <QApplication>
#include <QIcon>
#include <QPixmap>
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
    void aPictureIsAsSharpAsTheScreen_data();
    void aPictureIsAsSharpAsTheScreen();
    void aPictureThatDoesNotExistIsNull();
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
void TestIcons::aPictureIsAsSharpAsTheScreen_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("plain screen") << 1.0;
    QTest::newRow("screen of twice the density") << 2.0;
}

void TestIcons::aPictureIsAsSharpAsTheScreen()
{
    QFETCH(const qreal, ratio);
    qputenv("QT_SCALE_FACTOR", QByteArray::number(ratio));
    const auto unscale = qScopeGuard([] { qunsetenv("QT_SCALE_FACTOR"); });
    int argc = 0;
    const QApplication application(argc, nullptr);
    QCOMPARE(application.devicePixelRatio(), ratio);
    const QSize size = QPixmap(closeImage()).size();
    const QPixmap picture = Look::picture(closeImage(), ratio);
    QCOMPARE(picture.devicePixelRatio(), ratio);
    QCOMPARE(picture.size(), size * ratio);
    QCOMPARE(picture.deviceIndependentSize(), QSizeF(size));
}

void TestIcons::aPictureThatDoesNotExistIsNull()
{
    int argc = 0;
    const QApplication application(argc, nullptr);
    QVERIFY(Look::picture(QStringLiteral(":/no/such.png"), 2).isNull());
    QVERIFY(Look::picture(QString(), 2).isNull());
}

int main(int argc, char* argv[])
{
    const ThrowAwayHome home;
    TestIcons test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_icons.moc"
