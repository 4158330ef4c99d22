// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "linelabel.h"

#include "support/paintcounter.h"
#include "support/test.h"

#include <QApplication>
#include <QImage>
#include <QMetaProperty>
#include <QPainter>
#include <QSignalSpy>

namespace {

const QColor RuleColor(255, 0, 0);

/// What the label paints, on white.
QImage picture(LineLabel& label)
{
    QImage image(label.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    label.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

/// The runs of rule-coloured pixels in one row, as "first-last", both inclusive.
QString runs(const QImage& image, int y)
{
    QStringList found;
    int first = -1;
    for (int x = 0; x <= image.width(); ++x) {
        const bool rule = x < image.width() && image.pixelColor(x, y) == RuleColor;
        if (rule && first < 0) {
            first = x;
        } else if (!rule && first >= 0) {
            found.append(QStringLiteral("%1-%2").arg(first).arg(x - 1));
            first = -1;
        }
    }
    return found.join(QLatin1Char(' '));
}

/// The rows of `image` that hold a rule-coloured pixel.
QList<int> ruleRows(const QImage& image)
{
    QList<int> rows;
    for (int y = 0; y < image.height(); ++y) {
        if (!runs(image, y).isEmpty()) {
            rows.append(y);
        }
    }
    return rows;
}

} // namespace

class TestLineLabel : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterItsClass();
    void takesTextParentAndFlags();
    void newLabelIsCentredWithARuleOnBothSides();
    void newRuleHasTheTextColourOfTheApplicationPalette();
    void valuesOfTheTypesAreFixed();
    void typeSetsTheAlignment_data();
    void typeSetsTheAlignment();
    void unknownTypeIsStoredAndSignalledAndChangesNoAlignment();
    void settingTheSameTypeTwiceSignalsOnce();
    void settingTheSameColourTwiceSignalsOnce();
    void propertiesReadWriteAndNotify();
    void setterHasTheLabelRepainted_data();
    void setterHasTheLabelRepainted();
    void emptyTextStillLeavesAGapOfTenPixels_data();
    void emptyTextStillLeavesAGapOfTenPixels();
    void ruleLeavesTheTextAndTenPixelsFree_data();
    void ruleLeavesTheTextAndTenPixelsFree();
    void ruleLeavesATextFromRightToLeftFree();
    void ruleRunsThroughTheMiddle_data();
    void ruleRunsThroughTheMiddle();
    void textWiderThanTheLabelLeavesNoRule_data();
    void textWiderThanTheLabelLeavesNoRule();
    void unknownTypePaintsNoRule();
    void paintsItsText();
};

void TestLineLabel::isNamedAfterItsClass()
{
    QCOMPARE(LineLabel().objectName(), QStringLiteral("LineLabel"));
    QCOMPARE(LineLabel(QStringLiteral("Text")).objectName(), QStringLiteral("LineLabel"));
}

void TestLineLabel::takesTextParentAndFlags()
{
    QWidget parent;
    const auto* label = new LineLabel(QStringLiteral("Text"), &parent, Qt::Tool);
    QCOMPARE(label->text(), QStringLiteral("Text"));
    QCOMPARE(label->parentWidget(), &parent);
    QCOMPARE(label->windowType(), Qt::Tool);

    const auto* empty = new LineLabel(&parent);
    QCOMPARE(empty->text(), QString());
    QCOMPARE(empty->parentWidget(), &parent);
    QCOMPARE(empty->windowType(), Qt::Widget);
}

void TestLineLabel::newLabelIsCentredWithARuleOnBothSides()
{
    const LineLabel label;
    QCOMPARE(label.lineType(), LineLabel::LineBoth);
    QCOMPARE(label.alignment(), Qt::Alignment(Qt::AlignCenter));
}

void TestLineLabel::newRuleHasTheTextColourOfTheApplicationPalette()
{
    const QPalette before = QApplication::palette();
    QPalette palette = before;
    palette.setColor(QPalette::Text, QColor(1, 2, 3));
    QApplication::setPalette(palette);
    // Not what the label itself would inherit.
    QWidget parent;
    palette.setColor(QPalette::Text, QColor(7, 8, 9));
    parent.setPalette(palette);

    const auto* label = new LineLabel(&parent);
    QApplication::setPalette(before);
    QCOMPARE(label->lineColor(), QColor(1, 2, 3));
}

void TestLineLabel::valuesOfTheTypesAreFixed()
{
    QCOMPARE(int(LineLabel::LineLeft), 0);
    QCOMPARE(int(LineLabel::LineRight), 1);
    QCOMPARE(int(LineLabel::LineBoth), 2);
}

void TestLineLabel::typeSetsTheAlignment_data()
{
    QTest::addColumn<LineLabel::LineType>("type");
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::newRow("left") << LineLabel::LineLeft
                          << Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter);
    QTest::newRow("right") << LineLabel::LineRight
                           << Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter);
    QTest::newRow("both") << LineLabel::LineBoth << Qt::Alignment(Qt::AlignCenter);
}

void TestLineLabel::typeSetsTheAlignment()
{
    QFETCH(const LineLabel::LineType, type);
    LineLabel label;
    label.setLineType(type == LineLabel::LineLeft ? LineLabel::LineRight : LineLabel::LineLeft);
    label.setLineType(type);
    QCOMPARE(label.lineType(), type);
    QTEST(label.alignment(), "alignment");
}

void TestLineLabel::unknownTypeIsStoredAndSignalledAndChangesNoAlignment()
{
    const auto unknown = LineLabel::LineType(77);
    LineLabel label;
    label.setLineType(LineLabel::LineRight);
    QSignalSpy changed(&label, &LineLabel::lineTypeChanged);
    label.setLineType(unknown);
    QCOMPARE(label.lineType(), unknown);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).value<LineLabel::LineType>(), unknown);
    QCOMPARE(label.alignment(), Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter));
}

void TestLineLabel::settingTheSameTypeTwiceSignalsOnce()
{
    LineLabel label;
    QSignalSpy changed(&label, &LineLabel::lineTypeChanged);
    label.setLineType(LineLabel::LineBoth);
    QCOMPARE(changed.count(), 0);
    label.setLineType(LineLabel::LineLeft);
    label.setLineType(LineLabel::LineLeft);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).value<LineLabel::LineType>(), LineLabel::LineLeft);
}

void TestLineLabel::settingTheSameColourTwiceSignalsOnce()
{
    LineLabel label;
    QSignalSpy changed(&label, &LineLabel::lineColorChanged);
    label.setLineColor(label.lineColor());
    QCOMPARE(changed.count(), 0);
    label.setLineColor(RuleColor);
    label.setLineColor(RuleColor);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).value<QColor>(), RuleColor);
    QCOMPARE(label.lineColor(), RuleColor);
}

void TestLineLabel::propertiesReadWriteAndNotify()
{
    LineLabel label;
    const QMetaObject* meta = label.metaObject();
    const QMetaProperty type = meta->property(meta->indexOfProperty("lineType"));
    QVERIFY(type.isEnumType());
    QCOMPARE(type.notifySignal().methodSignature(), QByteArray("lineTypeChanged(LineType)"));
    const QMetaProperty color = meta->property(meta->indexOfProperty("lineColor"));
    QCOMPARE(color.notifySignal().methodSignature(), QByteArray("lineColorChanged(QColor)"));
    QVERIFY(meta->indexOfSlot("setLineType(LineType)") >= 0);
    QVERIFY(meta->indexOfSlot("setLineColor(QColor)") >= 0);

    QVERIFY(label.setProperty("lineType", QStringLiteral("LineRight")));
    QCOMPARE(label.lineType(), LineLabel::LineRight);
    QVERIFY(label.setProperty("lineColor", RuleColor));
    QCOMPARE(label.property("lineColor").value<QColor>(), RuleColor);
}

void TestLineLabel::setterHasTheLabelRepainted_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QColor>("color");
    QTest::newRow("a type") << int(LineLabel::LineLeft) << QColor();
    QTest::newRow("an unknown type") << 77 << QColor();
    QTest::newRow("a colour") << int(LineLabel::LineBoth) << RuleColor;
}

void TestLineLabel::setterHasTheLabelRepainted()
{
    QFETCH(const int, type);
    QFETCH(const QColor, color);
    LineLabel label(QStringLiteral("Text"));
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    const PaintCounter paints(&label);
    QCoreApplication::processEvents();
    const int before = paints.count();

    label.setLineType(LineLabel::LineType(type));
    if (color.isValid()) {
        label.setLineColor(color);
    }
    QTRY_VERIFY(paints.count() > before);
}

void TestLineLabel::emptyTextStillLeavesAGapOfTenPixels_data()
{
    QTest::addColumn<LineLabel::LineType>("type");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("rule");
    QTest::newRow("left") << LineLabel::LineLeft << 100 << QStringLiteral("0-89");
    QTest::newRow("right") << LineLabel::LineRight << 100 << QStringLiteral("10-99");
    QTest::newRow("both, even width") << LineLabel::LineBoth << 100 << QStringLiteral("0-45 54-99");
    QTest::newRow("both, odd width") << LineLabel::LineBoth << 101 << QStringLiteral("0-45 55-100");
    QTest::newRow("left, room for one pixel") << LineLabel::LineLeft << 11 << QStringLiteral("0-0");
    QTest::newRow("left, room for none") << LineLabel::LineLeft << 10 << QString();
    QTest::newRow("right, room for one pixel")
        << LineLabel::LineRight << 11 << QStringLiteral("10-10");
    QTest::newRow("right, room for none") << LineLabel::LineRight << 10 << QString();
}

void TestLineLabel::emptyTextStillLeavesAGapOfTenPixels()
{
    QFETCH(const LineLabel::LineType, type);
    QFETCH(const int, width);
    LineLabel label;
    label.resize(width, 21);
    label.setLineType(type);
    label.setLineColor(RuleColor);
    QTEST(runs(picture(label), 10), "rule");
}

void TestLineLabel::ruleLeavesTheTextAndTenPixelsFree_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    for (const char* text : { "i", "Lock Options", "Größe" }) {
        for (const int width : { 200, 201 }) {
            QTest::addRow("%s in %d", text, width) << QString::fromUtf8(text) << width;
        }
    }
}

void TestLineLabel::ruleLeavesTheTextAndTenPixelsFree()
{
    QFETCH(const QString, text);
    QFETCH(const int, width);
    LineLabel label(text);
    label.resize(width, 31);
    label.setLineColor(RuleColor);
    const int gap = label.fontMetrics().horizontalAdvance(text) + 10;
    QVERIFY(gap < width);

    label.setLineType(LineLabel::LineLeft);
    QCOMPARE(runs(picture(label), 15), QStringLiteral("0-%1").arg(width - 1 - gap));
    label.setLineType(LineLabel::LineRight);
    QCOMPARE(runs(picture(label), 15), QStringLiteral("%1-%2").arg(gap).arg(width - 1));
    label.setLineType(LineLabel::LineBoth);
    const int side = (width - gap) / 2;
    QCOMPARE(runs(picture(label), 15),
             QStringLiteral("0-%1 %2-%3").arg(side).arg(width - 1 - side).arg(width - 1));
}

void TestLineLabel::ruleLeavesATextFromRightToLeftFree()
{
    const QString text = QStringLiteral("خيارات القفل");
    LineLabel label(text);
    label.resize(200, 31);
    label.setLineColor(RuleColor);
    const int gap = label.fontMetrics().horizontalAdvance(text) + 10;
    const QString left = QStringLiteral("0-%1").arg(199 - gap);
    const QString right = QStringLiteral("%1-199").arg(gap);
    // The label puts such a text at the other end, and the rule makes way.
    label.setLineType(LineLabel::LineLeft);
    QCOMPARE(runs(picture(label), 15), right);
    label.setLineType(LineLabel::LineRight);
    QCOMPARE(runs(picture(label), 15), left);
    label.setText(QStringLiteral("Lock"));
    QVERIFY(runs(picture(label), 15).endsWith(QStringLiteral("-199")));
}

void TestLineLabel::ruleRunsThroughTheMiddle_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("row");
    QTest::newRow("odd height") << 31 << 15;
    QTest::newRow("even height") << 30 << 14;
    QTest::newRow("one pixel") << 1 << 0;
}

void TestLineLabel::ruleRunsThroughTheMiddle()
{
    QFETCH(const int, height);
    QFETCH(const int, row);
    LineLabel label;
    label.resize(100, height);
    label.setLineColor(RuleColor);
    for (const auto type : { LineLabel::LineLeft, LineLabel::LineRight, LineLabel::LineBoth }) {
        label.setLineType(type);
        QCOMPARE(ruleRows(picture(label)), QList<int> { row });
    }
}

void TestLineLabel::textWiderThanTheLabelLeavesNoRule_data()
{
    QTest::addColumn<LineLabel::LineType>("type");
    QTest::newRow("left") << LineLabel::LineLeft;
    QTest::newRow("right") << LineLabel::LineRight;
    QTest::newRow("both") << LineLabel::LineBoth;
}

void TestLineLabel::textWiderThanTheLabelLeavesNoRule()
{
    QFETCH(const LineLabel::LineType, type);
    LineLabel label(QStringLiteral("A text that is much wider than its label"));
    label.resize(40, 31);
    label.setLineType(type);
    label.setLineColor(RuleColor);
    QCOMPARE(ruleRows(picture(label)), QList<int>());
}

void TestLineLabel::unknownTypePaintsNoRule()
{
    LineLabel label;
    label.resize(100, 31);
    label.setLineColor(RuleColor);
    QVERIFY(!ruleRows(picture(label)).isEmpty());
    label.setLineType(LineLabel::LineType(77));
    QCOMPARE(ruleRows(picture(label)), QList<int>());
}

void TestLineLabel::paintsItsText()
{
    LineLabel label(QStringLiteral("Lock Options"));
    label.resize(200, 31);
    label.setLineColor(RuleColor);

    // The same label of Qt's own, plus the rule, which its text does not reach.
    QLabel plain(QStringLiteral("Lock Options"));
    plain.resize(200, 31);
    plain.setAlignment(Qt::AlignCenter);
    QImage expected(label.size(), QImage::Format_RGB32);
    expected.fill(Qt::white);
    plain.render(&expected, {}, {}, QWidget::DrawChildren);
    const int side = (200 - label.fontMetrics().horizontalAdvance(label.text()) - 10) / 2;
    QPainter painter(&expected);
    painter.setPen(RuleColor);
    painter.drawLine(0, 15, side, 15);
    painter.drawLine(199 - side, 15, 199, 15);
    painter.end();

    QCOMPARE(picture(label), expected);
}

UW_TEST_MAIN(TestLineLabel)

#include "tst_linelabel.moc"
