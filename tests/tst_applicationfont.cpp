// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "applicationfont.h"

#include "support/test.h"

#include <QApplication>

namespace {

using FontFunction = QFont (*)(bool);

struct Named
{
    const char* name;
    FontFunction font;
    int ApplicationFont::Sizes::*size;
    int defaultSize; // points
};

const Named All[] {
    { "tiny", ApplicationFont::getWidgetFontTiny, &ApplicationFont::Sizes::tiny, 8 },
    { "small", ApplicationFont::getWidgetFontSmall, &ApplicationFont::Sizes::small, 10 },
    { "normal", ApplicationFont::getWidgetFont, &ApplicationFont::Sizes::normal, 12 },
    { "large", ApplicationFont::getWidgetFontLarge, &ApplicationFont::Sizes::large, 14 },
};

} // namespace

class TestApplicationFont : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void eachFontHasItsSizeAndWeight_data();
    void eachFontHasItsSizeAndWeight();
    void fontsArePlainUnlessBoldIsAskedFor();
    void theFamilyIsTheApplications();
    void anApplicationFontInPixelsOrBoldChangesNeitherSizeNorWeight();
    void aReplacedTableIsUsedFromThenOn();
    void fontsGivenBeforeKeepTheirSize();
    void sizesThatAreNoneKeepTheOldOnes_data();
    void sizesThatAreNoneKeepTheOldOnes();
};

void TestApplicationFont::cleanup()
{
    ApplicationFont::setSizes({});
    Test::cleanup();
}

void TestApplicationFont::eachFontHasItsSizeAndWeight_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("bold");
    for (int i = 0; i < int(std::size(All)); ++i) {
        QTest::addRow("%s", All[i].name) << i << false;
        QTest::addRow("%s, bold", All[i].name) << i << true;
    }
}

void TestApplicationFont::eachFontHasItsSizeAndWeight()
{
    QFETCH(const int, index);
    QFETCH(const bool, bold);
    const QFont font = All[index].font(bold);
    QCOMPARE(font.pointSize(), All[index].defaultSize);
    QCOMPARE(font.bold(), bold);
    QCOMPARE(ApplicationFont::sizes().*All[index].size, All[index].defaultSize);
}

void TestApplicationFont::fontsArePlainUnlessBoldIsAskedFor()
{
    QVERIFY(!ApplicationFont::getWidgetFont().bold());
    QVERIFY(!ApplicationFont::getWidgetFontLarge().bold());
    QVERIFY(!ApplicationFont::getWidgetFontSmall().bold());
    QVERIFY(!ApplicationFont::getWidgetFontTiny().bold());
}

void TestApplicationFont::theFamilyIsTheApplications()
{
    const QFont before = QApplication::font();
    QApplication::setFont(QFont(QStringLiteral("DejaVu Serif")));
    for (const Named& each : All) {
        QCOMPARE(each.font(false).family(), QStringLiteral("DejaVu Serif"));
        QCOMPARE(each.font(true).family(), QStringLiteral("DejaVu Serif"));
    }
    QApplication::setFont(before);
}

void TestApplicationFont::anApplicationFontInPixelsOrBoldChangesNeitherSizeNorWeight()
{
    const QFont before = QApplication::font();
    QFont pixels = before;
    pixels.setPixelSize(40);
    pixels.setBold(true);
    QApplication::setFont(pixels);
    for (const Named& each : All) {
        QCOMPARE(each.font(false).pointSize(), each.defaultSize);
        QVERIFY(!each.font(false).bold());
    }
    QApplication::setFont(before);
}

void TestApplicationFont::aReplacedTableIsUsedFromThenOn()
{
    ApplicationFont::Sizes sizes;
    sizes.tiny = 5;
    sizes.small = 6;
    sizes.normal = 7;
    sizes.large = 9;
    ApplicationFont::setSizes(sizes);
    for (const Named& each : All) {
        QCOMPARE(each.font(false).pointSize(), sizes.*each.size);
        QCOMPARE(each.font(true).pointSize(), sizes.*each.size);
        QCOMPARE(ApplicationFont::sizes().*each.size, sizes.*each.size);
    }
}

void TestApplicationFont::fontsGivenBeforeKeepTheirSize()
{
    const QFont font = ApplicationFont::getWidgetFont();
    ApplicationFont::Sizes sizes;
    sizes.normal = 30;
    ApplicationFont::setSizes(sizes);
    QCOMPARE(font.pointSize(), 12);
}

void TestApplicationFont::sizesThatAreNoneKeepTheOldOnes_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -1;
}

void TestApplicationFont::sizesThatAreNoneKeepTheOldOnes()
{
    QFETCH(const int, size);
    for (const Named& changed : All) {
        ApplicationFont::Sizes sizes;
        sizes.*changed.size = size;
        ApplicationFont::setSizes(sizes);
        for (const Named& each : All) {
            QCOMPARE(each.font(false).pointSize(), each.defaultSize);
        }
    }
}

UW_TEST_MAIN(TestApplicationFont)

#include "tst_applicationfont.moc"
