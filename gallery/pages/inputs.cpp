// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pages/families.h"

#include "clickablecombobox.h"
#include "clickableframe.h"
#include "clickablelabel.h"
#include "oxcombobox.h"
#include "oxdoublespinbox.h"
#include "oxframe.h"
#include "oxlineedit.h"
#include "oxplaintextedit.h"
#include "oxspinbox.h"
#include "oxtextedit.h"
#include "page.h"
#include "stage.h"
#include "whitespace.h"

#include <QVBoxLayout>

namespace Gallery {

namespace {

constexpr int TextFieldHeight = 80; // pixels

/// A visible edge and a text, for a frame that has neither by itself.
void furnish(QFrame* frame, const QString& text)
{
    frame->setFrameShape(QFrame::StyledPanel);
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(label);
}

void showOxLineEdit(Stage& stage)
{
    //! [OxLineEdit]
    auto* name = new OxLineEdit(QStringLiteral("Layer 1"));
    QObject::connect(name, &OxLineEdit::focusLost, name, &OxLineEdit::deselect);
    //! [OxLineEdit]
    stage.addWide(QStringLiteral("Drops the selection when left"), name);
    stage.addStates([](const QString& text) { return new OxLineEdit(text); });
}

void showOxSpinBox(Stage& stage)
{
    //! [OxSpinBox]
    auto* box = new OxSpinBox;
    box->setRange(1, 99);
    QObject::connect(box, &OxSpinBox::returnPressed, box, &QWidget::clearFocus);
    //! [OxSpinBox]
    stage.addWide(QStringLiteral("Is left by Return"), box);
    stage.addStates(
        [](const QString& text) {
            auto* copies = new OxSpinBox;
            copies->setSuffix(QLatin1Char(' ') + text);
            return copies;
        },
        QStringLiteral("copies"));
}

void showOxDoubleSpinBox(Stage& stage)
{
    //! [OxDoubleSpinBox]
    auto* width = new OxDoubleSpinBox;
    width->setSingleStep(0.25);
    // connect(width, &OxDoubleSpinBox::focusLost, this, &SizePanel::applySlot);
    //! [OxDoubleSpinBox]
    stage.addWide(QStringLiteral("Steps of a quarter"), width);
    stage.addStates(
        [](const QString& text) {
            auto* box = new OxDoubleSpinBox;
            box->setSuffix(QLatin1Char(' ') + text);
            return box;
        },
        QStringLiteral("mm"));
}

void showOxComboBox(Stage& stage)
{
    //! [OxComboBox]
    auto* unit = new OxComboBox;
    unit->addItems({ QStringLiteral("mm"), QStringLiteral("inch") });
    //! [OxComboBox]
    stage.addWide(QStringLiteral("Two units"), unit);
    stage.addStates([](const QString& text) {
        auto* box = new OxComboBox;
        box->addItems({ text, QStringLiteral("Layer 2"), QStringLiteral("Layer 3") });
        return box;
    });
}

void showClickableComboBox(Stage& stage)
{
    //! [ClickableComboBox]
    auto* zoom = new ClickableComboBox;
    zoom->addItems({ QStringLiteral("50 %"), QStringLiteral("100 %") });
    //! [ClickableComboBox]
    stage.addWide(QStringLiteral("Opens by a tap on its text"), zoom);
    stage.addStates([](const QString& text) {
        auto* box = new ClickableComboBox;
        box->addItems({ text, QStringLiteral("Layer 2"), QStringLiteral("Layer 3") });
        box->lineEdit()->setCursorPosition(0);
        return box;
    });
}

void showOxTextEdit(Stage& stage)
{
    //! [OxTextEdit]
    auto* note = new OxTextEdit(QStringLiteral("Print <b>twice</b>."));
    // connect(note, &OxTextEdit::focusLostSignal, this, &NotePanel::storeNote);
    note->setTabChangesFocus(true);
    //! [OxTextEdit]
    note->setFixedHeight(TextFieldHeight);
    stage.addWide(QStringLiteral("Reads its text as HTML"), note);
    stage.addStates([](const QString& text) {
        auto* field = new OxTextEdit(text);
        field->setTabChangesFocus(true);
        field->setFixedHeight(TextFieldHeight);
        return field;
    });
}

void showOxPlainTextEdit(Stage& stage)
{
    //! [OxPlainTextEdit]
    auto* comment = new OxPlainTextEdit(QStringLiteral("Print <b>twice</b>."));
    comment->setTabChangesFocus(true);
    //! [OxPlainTextEdit]
    comment->setFixedHeight(TextFieldHeight);
    stage.addWide(QStringLiteral("Takes its text as it stands"), comment);
    stage.addStates([](const QString& text) {
        auto* field = new OxPlainTextEdit(text);
        field->setTabChangesFocus(true);
        field->setFixedHeight(TextFieldHeight);
        return field;
    });
}

void showOxFrame(Stage& stage)
{
    //! [OxFrame]
    auto* panel = new OxFrame;
    panel->setFocusPolicy(Qt::StrongFocus);
    // connect(panel, &OxFrame::focusLost, panel, &QWidget::hide);
    //! [OxFrame]
    furnish(panel, QStringLiteral("Tap here, then on another frame"));
    stage.addWide(QStringLiteral("Says when it is left"), panel);
    stage.addStates([](const QString& text) {
        auto* frame = new OxFrame;
        frame->setFocusPolicy(Qt::StrongFocus);
        furnish(frame, text);
        return frame;
    });
}

void showClickableFrame(Stage& stage)
{
    //! [ClickableFrame]
    auto* swatch = new ClickableFrame;
    // connect(swatch, &ClickableFrame::clicked, this, &Panel::chooseColour);
    //! [ClickableFrame]
    furnish(swatch, QStringLiteral("Tap anywhere on the frame, its text included"));
    stage.addWide(QStringLiteral("Reports the press"), swatch);
    stage.addStates([](const QString& text) {
        auto* frame = new ClickableFrame;
        furnish(frame, text);
        return frame;
    });
}

void showClickableLabel(Stage& stage)
{
    //! [ClickableLabel]
    auto* preview = new ClickableLabel(QStringLiteral("Open the preview"));
    // connect(preview, &ClickableLabel::clicked, this, &Page::openPreview);
    //! [ClickableLabel]
    stage.addWide(QStringLiteral("Reports the press"), preview);
    stage.addStates([](const QString& text) {
        auto* label = new ClickableLabel(text);
        label->setWordWrap(true);
        return label;
    });
}

void showWhiteSpace(Stage& stage)
{
    auto* name = new OxLineEdit(QStringLiteral("   "));
    auto* verdict = new QLabel;
    const auto judge = [=] {
        //! [WhiteSpace]
        if (WhiteSpace::isWhiteSpace(name->text())) {
            verdict->setText(QStringLiteral("Please enter a name."));
        } else {
            verdict->setText(QStringLiteral("A name."));
        }
        //! [WhiteSpace]
    };
    QObject::connect(name, &QLineEdit::textChanged, verdict, judge);
    judge();
    stage.addWide(QStringLiteral("Three blanks"), name);
    stage.addWide(QStringLiteral("What it takes them for"), verdict);
}

} // namespace

Family inputsFamily()
{
    const auto page = [](const char* id, const char* summary, void (*build)(Stage&)) {
        return Page { QString::fromLatin1(id), QString::fromLatin1(summary), build, {} };
    };
    return {
        QStringLiteral("Inputs"),
        QStringLiteral(":/gallery/pages/inputs.cpp"),
        {
            page("OxLineEdit", "A line edit that calls for the keyboard and says when it is left.",
                 showOxLineEdit),
            page("OxSpinBox", "A whole number; also says when Return or Enter is pressed.",
                 showOxSpinBox),
            page("OxDoubleSpinBox", "A decimal number; also says when Return or Enter is pressed.",
                 showOxDoubleSpinBox),
            page("OxComboBox", "A combo box that calls for the keyboard and says when it is left.",
                 showOxComboBox),
            page("ClickableComboBox", "Picks or types: its list also opens by a tap on the text.",
                 showClickableComboBox),
            page("OxTextEdit", "Rich text; calls for the keyboard and says when it is left.",
                 showOxTextEdit),
            page("OxPlainTextEdit", "Plain text; calls for the keyboard.", showOxPlainTextEdit),
            page("OxFrame", "A frame that says when it is left.", showOxFrame),
            page("ClickableFrame", "A frame that can be pressed.", showClickableFrame),
            page("ClickableLabel", "A label that can be pressed.", showClickableLabel),
            page("WhiteSpace", "Tells a text that a person can see from one that is blank.",
                 showWhiteSpace),
        },
    };
}

} // namespace Gallery
