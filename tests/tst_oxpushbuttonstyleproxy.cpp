// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxpushbuttonstyleproxy.h"

#include "support/test.h"

#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QStyleFactory>

#include <memory>
#include <optional>

namespace {

/// Records what it is asked to write.
class RecordingStyle : public QProxyStyle
{
public:
    struct Call
    {
        QPainter* painter;
        QRect rect;
        int flags;
        QPalette palette;
        bool enabled;
        QString text;
        QPalette::ColorRole textRole;
    };
    mutable QList<Call> calls;

    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text,
                      QPalette::ColorRole textRole) const override
    {
        calls.append({ painter, rect, flags, palette, enabled, text, textRole });
    }
};

// No letter has a part above or below the others, so lines of text don't touch.
QString longText()
{
    return QStringLiteral("nnnn nnnn nnnn nnnn");
}

/// Where the text stands on a button, found by comparing it with the same button without text.
struct Written
{
    int lines = 0;
    QRect bounds;
};

Written written(QPushButton& button)
{
    button.setText(longText());
    const QImage withText = button.grab().toImage();
    button.setText(QString());
    const QImage empty = button.grab().toImage();

    Written result;
    bool inLine = false;
    for (int y = 0; y < empty.height(); ++y) {
        bool used = false;
        for (int x = 0; x < empty.width(); ++x) {
            if (withText.pixel(x, y) != empty.pixel(x, y)) {
                used = true;
                result.bounds |= QRect(x, y, 1, 1);
            }
        }
        result.lines += used && !inLine ? 1 : 0;
        inLine = used;
    }
    return result;
}

} // namespace

class TestOxPushButtonStyleProxy : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterItsClass();
    void takesItsBaseStyleWithIt();
    void canBeMadeWithoutABaseStyle();
    void addsNothingButTheWordWrapFlag();
    void showsALongTextOnSeveralLines_data();
    void showsALongTextOnSeveralLines();
    void leavesAShortTextAsItIs();
};

void TestOxPushButtonStyleProxy::isNamedAfterItsClass()
{
    const OxPushButtonStyleProxy style(QStyleFactory::create(QStringLiteral("Fusion")));

    QCOMPARE(style.objectName(), QStringLiteral("OxPushButtonStyleProxy"));
    QCOMPARE(style.metaObject(), &QProxyStyle::staticMetaObject);
}

void TestOxPushButtonStyleProxy::takesItsBaseStyleWithIt()
{
    const QPointer<QStyle> base = QStyleFactory::create(QStringLiteral("Fusion"));
    auto style = std::make_unique<OxPushButtonStyleProxy>(base);
    QCOMPARE(style->baseStyle(), base.data());

    style.reset();

    QVERIFY(base.isNull());
}

void TestOxPushButtonStyleProxy::canBeMadeWithoutABaseStyle()
{
    const OxPushButtonStyleProxy style;

    QVERIFY(style.baseStyle() != nullptr);
    QVERIFY(style.baseStyle() != QApplication::style());
}

void TestOxPushButtonStyleProxy::addsNothingButTheWordWrapFlag()
{
    auto* base = new RecordingStyle;
    const OxPushButtonStyleProxy style(base);
    QImage image(20, 20, QImage::Format_ARGB32);
    QPainter painter(&image);
    const QRect rect(1, 2, 3, 4);
    const QPalette palette(Qt::green);

    style.drawItemText(&painter, rect, Qt::AlignCenter | Qt::TextShowMnemonic, palette, false,
                       QStringLiteral("text"), QPalette::ButtonText);
    style.drawItemText(&painter, rect, Qt::TextWordWrap, palette, true, QStringLiteral("text"));

    QCOMPARE(base->calls.count(), 2);
    const RecordingStyle::Call& call = base->calls.at(0);
    QCOMPARE(call.painter, &painter);
    QCOMPARE(call.rect, rect);
    QCOMPARE(call.flags, int(Qt::AlignCenter) | int(Qt::TextShowMnemonic) | 0x1000);
    QCOMPARE(call.palette, palette);
    QCOMPARE(call.enabled, false);
    QCOMPARE(call.text, QStringLiteral("text"));
    QCOMPARE(call.textRole, QPalette::ButtonText);
    QCOMPARE(base->calls.at(1).flags, 0x1000);
    QCOMPARE(base->calls.at(1).enabled, true);
    QCOMPARE(base->calls.at(1).textRole, QPalette::NoRole);
}

void TestOxPushButtonStyleProxy::showsALongTextOnSeveralLines_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("sheetBefore");
    QTest::addColumn<QString>("sheetAfter");

    const QString sheet = QStringLiteral("QPushButton { border: 1px solid red; color: blue; }");
    for (const char* name : { "Fusion", "Windows" }) {
        const QString base = QString::fromLatin1(name);
        QTest::addRow("%s", name) << base << QString() << QString();
        QTest::addRow("%s, style sheet first", name) << base << sheet << QString();
        QTest::addRow("%s, style sheet last", name) << base << QString() << sheet;
    }
}

void TestOxPushButtonStyleProxy::showsALongTextOnSeveralLines()
{
    QFETCH(const QString, base);
    QFETCH(const QString, sheetBefore);
    QFETCH(const QString, sheetAfter);
    QPushButton button;
    button.resize(100, 100);
    button.setStyleSheet(sheetBefore + sheetAfter);
    const Written plain = written(button);
    QCOMPARE(plain.lines, 1);
    QVERIFY(plain.bounds.width() > 95); // it fills the button and is cut off

    button.setStyleSheet(sheetBefore);
    auto* style = new OxPushButtonStyleProxy(QStyleFactory::create(base));
    style->setParent(&button);
    button.setStyle(style);
    button.setStyleSheet(sheetBefore + sheetAfter);

    const Written wrapped = written(button);
    QVERIFY(wrapped.lines >= 2);
    QVERIFY(button.rect().adjusted(2, 2, -2, -2).contains(wrapped.bounds));
}

void TestOxPushButtonStyleProxy::leavesAShortTextAsItIs()
{
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
    OxPushButtonStyleProxy proxy(QStyleFactory::create(QStringLiteral("Fusion")));
    QPushButton button(QStringLiteral("OK"));
    button.resize(100, 40);
    button.setStyle(fusion.get());
    const QImage plain = button.grab().toImage();

    button.setStyle(&proxy);

    QCOMPARE(button.grab().toImage(), plain);
}

UW_TEST_MAIN(TestOxPushButtonStyleProxy)

#include "tst_oxpushbuttonstyleproxy.moc"
