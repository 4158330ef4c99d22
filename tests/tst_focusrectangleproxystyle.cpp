// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "focusrectangleproxystyle.h"

#include "support/fieldform.h"
#include "support/test.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QListWidget>
#include <QMetaEnum>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStyleFactory>
#include <QStyleOption>

#include <memory>

namespace {

/// What it is asked to draw, and where focus rectangles go on the widget's picture.
class RecordingStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    struct Call
    {
        PrimitiveElement element;
        const QStyleOption* option;
        QPainter* painter;
        const QWidget* widget;
    };
    mutable QList<Call> calls;
    mutable QRegion focusRectangles;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        calls.append({ element, option, painter, widget });
        if (option == nullptr) {
            return;
        }
        if (element == PE_FrameFocusRect) {
            focusRectangles += painter->deviceTransform().mapRect(option->rect);
        }
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
};

template <typename Button> QWidget* createButton()
{
    return new Button(QStringLiteral("text"));
}

QWidget* createGroupBox()
{
    auto* box = new QGroupBox(QStringLiteral("text"));
    box->setCheckable(true);
    return box;
}

QWidget* createList()
{
    auto* list = new QListWidget;
    list->addItems({ QStringLiteral("one"), QStringLiteral("two") });
    list->setCurrentRow(0);
    return list;
}

QWidget* createSlider()
{
    return new QSlider(Qt::Horizontal);
}

/// The picture of the widget that `create` makes, in `style`, with or without the focus.
QImage picture(QWidget* (*create)(), QStyle& style, bool focused)
{
    QWidget* widget = create();
    widget->setStyle(&style);
    FieldForm form(widget);
    // Without it the platform may show no focus until a key is pressed.
    form.window()->setAttribute(Qt::WA_KeyboardFocusChange);
    if (focused) {
        form.enter(Qt::TabFocusReason);
    }
    return widget->grab().toImage();
}

QRegion differences(const QImage& a, const QImage& b)
{
    QRegion region;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y)) {
                region += QRect(x, y, 1, 1);
            }
        }
    }
    return region;
}

} // namespace

using Create = QWidget* (*)();
Q_DECLARE_METATYPE(Create)

class TestFocusRectangleProxyStyle : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void canBeMadeAsAnyProxyStyle();
    void takesItsBaseStyleWithIt();
    void passesEveryPrimitiveOnButTheFocusRectangle();
    void drawsNoFocusRectangleAndAllElseAsTheBase_data();
    void drawsNoFocusRectangleAndAllElseAsTheBase();
};

void TestFocusRectangleProxyStyle::canBeMadeAsAnyProxyStyle()
{
    const FocusRectangleProxyStyle overDefault;
    const FocusRectangleProxyStyle overStyle(QStyleFactory::create(QStringLiteral("Windows")));
    const FocusRectangleProxyStyle overName(QStringLiteral("Windows"));

    QVERIFY(overDefault.baseStyle() != nullptr);
    QCOMPARE(overStyle.baseStyle()->name(), QStringLiteral("windows"));
    QCOMPARE(overName.baseStyle()->name(), QStringLiteral("windows"));
    QCOMPARE(overName.metaObject(), &QProxyStyle::staticMetaObject);
}

void TestFocusRectangleProxyStyle::takesItsBaseStyleWithIt()
{
    const QPointer<QStyle> base = QStyleFactory::create(QStringLiteral("Fusion"));
    auto style = std::make_unique<FocusRectangleProxyStyle>(base);

    style.reset();

    QVERIFY(base.isNull());
}

void TestFocusRectangleProxyStyle::passesEveryPrimitiveOnButTheFocusRectangle()
{
    auto* base = new RecordingStyle;
    const FocusRectangleProxyStyle style(base);
    QImage image(20, 20, QImage::Format_ARGB32);
    QPainter painter(&image);
    const QWidget widget;
    const auto elements = QMetaEnum::fromType<QStyle::PrimitiveElement>();
    QVERIFY(elements.keyCount() > 40);

    for (int i = 0; i < elements.keyCount(); ++i) {
        const auto element = QStyle::PrimitiveElement(elements.value(i));
        base->calls.clear();
        style.drawPrimitive(element, nullptr, &painter, &widget);

        QCOMPARE(base->calls.count(), element == QStyle::PE_FrameFocusRect ? 0 : 1);
        for (const RecordingStyle::Call& call : std::as_const(base->calls)) {
            QCOMPARE(call.element, element);
            QCOMPARE(call.painter, &painter);
            QCOMPARE(call.widget, &widget);
        }
    }

    const QStyleOption option;
    style.drawPrimitive(QStyle::PE_FrameGroupBox, &option, &painter);
    QCOMPARE(base->calls.constLast().option, &option);
    QCOMPARE(base->calls.constLast().widget, nullptr);
}

void TestFocusRectangleProxyStyle::drawsNoFocusRectangleAndAllElseAsTheBase_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<Create>("create");

    QTest::addColumn<bool>("rectangle");
    const auto row = [](const char* base, const char* widget, Create create, bool rectangle) {
        QTest::addRow("%s, %s", base, widget) << QString::fromLatin1(base) << create << rectangle;
    };
    for (const char* base : { "Fusion", "Windows" }) {
        row(base, "check box", createButton<QCheckBox>, true);
        row(base, "radio button", createButton<QRadioButton>, true);
        row(base, "group box", createGroupBox, true);
        row(base, "list", createList, true);
    }
    row("Windows", "push button", createButton<QPushButton>, true);
    row("Windows", "slider", createSlider, true);
    // Fusion colours their outlines instead, which is no focus rectangle and stays.
    row("Fusion", "push button", createButton<QPushButton>, false);
    row("Fusion", "slider", createSlider, false);
}

void TestFocusRectangleProxyStyle::drawsNoFocusRectangleAndAllElseAsTheBase()
{
    QFETCH(const QString, base);
    QFETCH(const Create, create);
    QFETCH(const bool, rectangle);
    RecordingStyle plain(QStyleFactory::create(base));
    FocusRectangleProxyStyle without(QStyleFactory::create(base));

    QCOMPARE(picture(create, without, false), picture(create, plain, false));
    QVERIFY(plain.focusRectangles.isEmpty());

    const QImage withRectangle = picture(create, plain, true);
    const QImage withoutRectangle = picture(create, without, true);
    const QRegion different = differences(withRectangle, withoutRectangle);
    QCOMPARE(plain.focusRectangles.isEmpty(), !rectangle);
    QCOMPARE(different.isEmpty(), !rectangle);
    QVERIFY((different - plain.focusRectangles).isEmpty());
}

UW_TEST_MAIN(TestFocusRectangleProxyStyle)

#include "tst_focusrectangleproxystyle.moc"
