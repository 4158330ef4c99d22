// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "ioxtransparentwidget.h"

#include "support/test.h"

#include <QPointer>
#include <QWidget>

namespace {

class Panel : public QWidget, public IOxTransparentWidget
{ };

} // namespace

class TestIOxTransparentWidget : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void leadsToTheWidgetThatImplementsIt();
    void deletesTheWidgetThatImplementsIt();
};

void TestIOxTransparentWidget::leadsToTheWidgetThatImplementsIt()
{
    Panel panel;
    IOxTransparentWidget* window = &panel;

    QCOMPARE(dynamic_cast<QWidget*>(window), &panel);
}

void TestIOxTransparentWidget::deletesTheWidgetThatImplementsIt()
{
    auto panel = std::make_unique<Panel>();
    const QPointer<QWidget> widget = panel.get();
    std::unique_ptr<IOxTransparentWidget> window = std::move(panel);

    window.reset();

    QVERIFY(widget.isNull());
}

UW_TEST_MAIN(TestIOxTransparentWidget)

#include "tst_ioxtransparentwidget.moc"
