// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "applicationfont.h"
#include "linelabel.h"
#include "lockwidget.h"
#include "oxlineedit.h"
#include "oxslider.h"
#include "stage.h"
#include "suffixdoublevalidator.h"
#include "suffixintvalidator.h"

#include <QLocale>

namespace Gallery {

namespace {

constexpr int SliderHeight = 70; // pixels: a finger's room, and the ticks clear of the handle

OxSlider* createSlider(int maximum, int interval, OxSlider::ShowText showText,
                       QSlider::TickPosition position = QSlider::TicksBelow)
{
    auto* slider = new OxSlider(Qt::Horizontal);
    slider->setRange(0, maximum);
    slider->setTickInterval(interval);
    slider->setTickPosition(position);
    slider->setShowText(showText);
    slider->setValue(maximum / 2);
    slider->setMinimumHeight(SliderHeight);
    slider->setFont(ApplicationFont::getWidgetFontTiny(false));
    return slider;
}

void showOxSlider(Stage& stage)
{
    //! [OxSlider]
    auto* blur = new OxSlider(Qt::Horizontal);
    blur->setRange(0, 50);
    blur->setTickPosition(QSlider::TicksBelow);
    blur->setTickInterval(10);
    blur->setShowText(OxSlider::AllText);
    // Room for the ticks, and a font small enough for the last number.
    blur->setMinimumHeight(70);
    blur->setFont(ApplicationFont::getWidgetFontTiny(false));
    // connect(blur, &OxSlider::mouseWasReleasedSignal, this, &Panel::apply);
    //! [OxSlider]
    blur->setValue(14);
    stage.add(QStringLiteral("Every number"), blur);
    stage.add(QStringLiteral("The handle's number"), createSlider(100, 25, OxSlider::HandleText));
    OxSlider* disabled = createSlider(50, 10, OxSlider::AllText);
    disabled->setEnabled(false);
    stage.add(QStringLiteral("Disabled"), disabled);
    stage.add(QStringLiteral("Ticks on both sides"),
              createSlider(100, 10, OxSlider::NoText, QSlider::TicksBothSides));
    stage.add(QStringLiteral("No ticks"),
              createSlider(100, 10, OxSlider::NoText, QSlider::NoTicks));
    // The last number is cut off: it has half the handle and 9 pixels.
    stage.add(QStringLiteral("Long numbers"), createSlider(100000, 25000, OxSlider::AllText));
}

void showSuffixIntValidator(Stage& stage)
{
    //! [SuffixIntValidator]
    auto* width = new OxLineEdit(QStringLiteral("12 mm"));
    auto* validator = new SuffixIntValidator(0, 100, width);
    validator->setSuffix(QStringLiteral(" mm"));
    width->setValidator(validator);
    //! [SuffixIntValidator]
    stage.addWide(QStringLiteral("0 to 100, may be cleared"), width);
    stage.addStates(
        [](const QString& text) {
            auto* field = new OxLineEdit;
            auto* own = new SuffixIntValidator(field);
            // A unit long enough for the third instance, without a character of a number.
            own->setSuffix(QLatin1Char(' ') + text);
            field->setValidator(own);
            field->setText(QStringLiteral("300"));
            return field;
        },
        QStringLiteral("dpi"));
}

void showSuffixDoubleValidator(Stage& stage)
{
    //! [SuffixDoubleValidator]
    auto* scale = new OxLineEdit(QStringLiteral("12,50 %"));
    auto* validator = new SuffixDoubleValidator(0.0, 100.0, 2, scale);
    validator->setLocale(QLocale(QLocale::German)); // with a decimal comma
    validator->setSuffix(QStringLiteral(" %"));
    scale->setValidator(validator);
    //! [SuffixDoubleValidator]
    stage.addWide(QStringLiteral("0 to 100, two decimals, may be cleared"), scale);
    stage.addStates(
        [](const QString& text) {
            auto* field = new OxLineEdit;
            auto* own = new SuffixDoubleValidator(field);
            own->setLocale(QLocale::c());
            own->setSuffix(QLatin1Char(' ') + text);
            field->setValidator(own);
            field->setText(QStringLiteral("0.25"));
            return field;
        },
        QStringLiteral("mm"));
}

void showLineLabel(Stage& stage)
{
    //! [LineLabel]
    auto* header = new LineLabel(QStringLiteral("Text Options"));
    header->setLineType(LineLabel::LineRight);
    header->setLineColor(QColor(0xfd, 0x78, 0x00));
    //! [LineLabel]
    stage.addWide(QStringLiteral("Rule at the right, in a colour"), header);

    auto* left = new LineLabel(QStringLiteral("Text Options"));
    left->setLineType(LineLabel::LineLeft);
    stage.add(QStringLiteral("Rule at the left"), left);
    stage.add(QStringLiteral("Rule on both sides"), new LineLabel(QStringLiteral("Text Options")));
    stage.add(QStringLiteral("No text"), new LineLabel);

    auto* disabled = new LineLabel(QStringLiteral("Text Options"));
    disabled->setEnabled(false);
    stage.addWide(QStringLiteral("Disabled"), disabled);
    stage.addWide(QStringLiteral("Long text"), new LineLabel(longText()));
    auto* narrow = new LineLabel(longText());
    narrow->setMinimumWidth(1); // no room for a rule
    stage.add(QStringLiteral("Wider than its place"), narrow);
}

void showLockWidget(Stage& stage)
{
    //! [LockWidget]
    auto* locks = new LockWidget(true, nullptr);
    // A box disables others only in the answer to its signal.
    QObject::connect(locks, &LockWidget::readOnlySignal, // by a tap
                     locks, &LockWidget::setReadOnlyState);
    QObject::connect(locks, &LockWidget::userBackgroundSignal, // by a tap
                     locks, &LockWidget::setUserBackgroundState);
    //! [LockWidget]
    stage.setColumns(2);
    stage.add(QStringLiteral("Row"), locks);
    auto* disabled = new LockWidget(true, nullptr);
    disabled->setEnabled(false);
    stage.add(QStringLiteral("Disabled"), disabled);

    auto* readOnly = new LockWidget(false, nullptr);
    readOnly->setLockState(true);
    readOnly->setReadOnlyState(true);
    stage.add(QStringLiteral("Grid, read-only"), readOnly);
    auto* background = new LockWidget(false, nullptr);
    background->setUserBackgroundState(true);
    stage.add(QStringLiteral("Grid, in the user background"), background);
}

} // namespace

Family controlsFamily()
{
    return {
        QStringLiteral("Controls"),
        QStringLiteral(":/gallery/pages/controls.cpp"),
        {
            {
                QStringLiteral("OxSlider"),
                QStringLiteral("A slider that jumps to the tapped point, with thick ticks."),
                showOxSlider,
                {},
            },
            {
                QStringLiteral("SuffixIntValidator"),
                QStringLiteral("Keeps a unit behind a whole number while it is edited."),
                showSuffixIntValidator,
                {},
            },
            {
                QStringLiteral("SuffixDoubleValidator"),
                QStringLiteral("Keeps a unit behind a decimal number while it is edited."),
                showSuffixDoubleValidator,
                {},
            },
            {
                QStringLiteral("LineLabel"),
                QStringLiteral("The head of a section: a text with a thin rule beside it."),
                showLineLabel,
                {},
            },
            {
                QStringLiteral("LockWidget"),
                QStringLiteral("Three boxes that protect an object of a document."),
                showLockWidget,
                {},
            },
        },
    };
}

} // namespace Gallery
