// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxmessagebox.h"

#include "look/housedialog.h"
#include "look/images.h"
#include "look/sheets.h"
#include "look/styledwidgetpainting.h"
#include "oxtitlebar.h"
#include "sharedconstants.h"
#include "toolbox.h"

#include <QEvent>
#include <QHash>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBoundaryFinder>
#include <QVBoxLayout>

namespace {

/// Space around the text and around the row of buttons, in pixels.
constexpr int Margin = 12;

/// Of an area in which a text scrolls, in pixels.
constexpr int ScrollBarWidth = 35;

/// Invisible, and a place where a line may break.
constexpr QChar ZeroWidthSpace(0x200b);

/// A button box that never picks a default button. The plain one makes its first accepting button
/// the default when it is shown, and Enter would confirm a question that nobody has read. In another
/// language the plain one also takes away the texts that its standard buttons have been given.
class ButtonBox : public QDialogButtonBox
{
public:
    using QDialogButtonBox::QDialogButtonBox;

    /// To be called with each new standard button, while it has the toolkit's text.
    void keepStandardText(QAbstractButton* button)
    {
        button->setProperty(StandardText, button->text());
    }

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::Show) {
            showEvent(static_cast<QShowEvent*>(event));
            return true;
        }
        if (event->type() == QEvent::LanguageChange) {
            return retranslate(event);
        }
        return QDialogButtonBox::event(event);
    }

private:
    bool retranslate(QEvent* event)
    {
        QHash<QAbstractButton*, QString> ownTexts;
        const auto all = buttons();
        for (QAbstractButton* button : all) {
            if (button->text() != button->property(StandardText).toString()) {
                ownTexts.insert(button, button->text());
            }
        }
        const bool handled = QDialogButtonBox::event(event);
        for (QAbstractButton* button : all) {
            keepStandardText(button);
            if (ownTexts.contains(button)) {
                button->setText(ownTexts.value(button));
            }
        }
        return handled;
    }

    static constexpr char StandardText[] = "standardText";
};

/// Width of a wrapped text, in pixels: lines across the whole screen are hard to read.
constexpr int WrappedTextWidth = ScreenWidth * 2 / 3;

/// `text` with a place to break after each character of every stretch that is wider than `width`
/// pixels and has none: a number or a file name as long as a line.
QString withBreaks(const QString& text, const QFontMetrics& metrics, int width)
{
    QString result;
    QTextBoundaryFinder stretches(QTextBoundaryFinder::Line, text);
    for (qsizetype start = 0, end = 0; (end = stretches.toNextBoundary()) >= 0; start = end) {
        const QString stretch = text.mid(start, end - start);
        if (metrics.horizontalAdvance(stretch) <= width) {
            result += stretch;
            continue;
        }
        QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, stretch);
        for (qsizetype from = 0, to = 0; (to = characters.toNextBoundary()) >= 0; from = to) {
            result += stretch.mid(from, to - from) + ZeroWidthSpace;
        }
    }
    return result;
}

} // namespace

OxMessageBox::OxMessageBox(QWidget* parent)
    : OxMessageBox(QMessageBox::NoIcon, QString(), QString(), QMessageBox::NoButton, parent)
{ }

OxMessageBox::OxMessageBox(QMessageBox::Icon /*icon*/, const QString& title, const QString& text,
                           QMessageBox::StandardButtons buttons, QWidget* parent,
                           Qt::WindowFlags flags,
                           const QMap<QMessageBox::StandardButton, QString>& buttonTexts)
    : QDialog(parent, flags)
{
    setObjectName(QStringLiteral("MessageBoxWidget"));
    Look::prepareHouseDialog(this);
    setStyleSheet(Look::framedPanel(QStringLiteral("QWidget#MessageBoxWidget")));

    // The children are born into the box and after its sheet: a widget with a sheet that moves
    // under a parent with a sheet is styled anew, which takes longer than all the rest.
    m_titleBar = new OxTitleBar(this, defaultIconFilePath(), title);
    m_textLabel = new QLabel(text, this);
    m_textLabel->setMargin(Margin);
    m_buttonBox = new ButtonBox(this);
    createButtons(buttons, buttonTexts);
    createLayout();
    wrapTextWiderThanScreen();
    scrollTextHigherThanScreen();

    connect(m_buttonBox, &QDialogButtonBox::clicked, this, &OxMessageBox::onButtonClicked);
    connect(m_titleBar, &OxTitleBar::closeButtonClicked, this,
            &OxMessageBox::closeWithDefaultButton);
}

QMessageBox::StandardButton OxMessageBox::information(QWidget* parent, const QString& title,
                                                      const QString& text,
                                                      QMessageBox::StandardButtons buttons,
                                                      QMessageBox::StandardButton defaultButton)
{
    return message(QMessageBox::Information, title, text, buttons, defaultButton, parent,
                   Qt::FramelessWindowHint);
}

QMessageBox::StandardButton OxMessageBox::warning(QWidget* parent, const QString& title,
                                                  const QString& text,
                                                  QMessageBox::StandardButtons buttons,
                                                  QMessageBox::StandardButton defaultButton)
{
    return message(QMessageBox::Warning, title, text, buttons, defaultButton, parent,
                   Qt::FramelessWindowHint);
}

QMessageBox::StandardButton OxMessageBox::critical(QWidget* parent, const QString& title,
                                                   const QString& text,
                                                   QMessageBox::StandardButtons buttons,
                                                   QMessageBox::StandardButton defaultButton)
{
    return message(QMessageBox::Critical, title, text, buttons, defaultButton, parent,
                   Qt::FramelessWindowHint);
}

QMessageBox::StandardButton OxMessageBox::question(QWidget* parent, const QString& title,
                                                   const QString& text,
                                                   QMessageBox::StandardButtons buttons,
                                                   QMessageBox::StandardButton defaultButton)
{
    return message(QMessageBox::Question, title, text, buttons, defaultButton, parent,
                   Qt::FramelessWindowHint);
}

QMessageBox::StandardButton
OxMessageBox::customQuestion(QWidget* parent, const QString& title, const QString& text,
                             QMessageBox::StandardButtons buttons,
                             QMessageBox::StandardButton defaultButton,
                             const QMap<QMessageBox::StandardButton, QString>& buttonTexts)
{
    OxMessageBox box(QMessageBox::Question, title, text, buttons, parent, Qt::FramelessWindowHint,
                     buttonTexts);
    box.setDefaultButton(defaultButton);
    return QMessageBox::StandardButton(box.exec());
}

QMessageBox::StandardButton OxMessageBox::message(QMessageBox::Icon icon, const QString& title,
                                                  const QString& text,
                                                  QMessageBox::StandardButtons buttons,
                                                  QMessageBox::StandardButton defaultButton,
                                                  QWidget* parent, Qt::WindowFlags flags)
{
    OxMessageBox box(icon, title, text, buttons, parent, flags);
    box.setDefaultButton(defaultButton);
    return QMessageBox::StandardButton(box.exec());
}

// The toolkit gives both vocabularies the same numbers.

QDialogButtonBox::ButtonRole OxMessageBox::convertButtonRole(QMessageBox::ButtonRole role)
{
    return QDialogButtonBox::ButtonRole(role);
}

QDialogButtonBox::StandardButton
OxMessageBox::convertStandardButton(QMessageBox::StandardButton button)
{
    return QDialogButtonBox::StandardButton(button);
}

QDialogButtonBox::StandardButtons
OxMessageBox::convertStandardButtons(QMessageBox::StandardButtons buttons)
{
    return QDialogButtonBox::StandardButtons(buttons.toInt());
}

QString OxMessageBox::defaultIconFilePath()
{
    return QStringLiteral(LOOK_IMAGE_ERROR);
}

QAbstractButton* OxMessageBox::clickedButton() const
{
    return m_clickedButton;
}

QPushButton* OxMessageBox::addButton(const QString& text, QMessageBox::ButtonRole role)
{
    return prepared(m_buttonBox->addButton(text, convertButtonRole(role)));
}

QPushButton* OxMessageBox::addButton(QMessageBox::StandardButton button)
{
    return prepared(m_buttonBox->addButton(convertStandardButton(button)));
}

void OxMessageBox::setDefaultButton(QPushButton* button)
{
    if (button == nullptr) {
        return;
    }
    // From now on Enter presses the button that has the focus, as in any dialog with a default.
    m_hasDefaultButton = true;
    const auto all = m_buttonBox->findChildren<QPushButton*>();
    for (QPushButton* each : all) {
        each->setAutoDefault(true);
    }
    button->setDefault(true);
}

void OxMessageBox::setDefaultButton(QMessageBox::StandardButton button)
{
    setDefaultButton(m_buttonBox->button(convertStandardButton(button)));
}

void OxMessageBox::reject()
{
    closeWithDefaultButton();
}

void OxMessageBox::onButtonClicked(QAbstractButton* button)
{
    m_clickedButton = button;
    done(m_buttonBox->standardButton(button));
}

void OxMessageBox::closeWithDefaultButton()
{
    m_clickedButton = nullptr;
    done(m_closeResult);
}

void OxMessageBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        closeWithDefaultButton();
        return;
    }
    QDialog::keyPressEvent(event);
}

void OxMessageBox::paintEvent(QPaintEvent* /*event*/)
{
    Look::paintStyledWidget(this);
}

void OxMessageBox::createButtons(QMessageBox::StandardButtons buttons,
                                 const QMap<QMessageBox::StandardButton, QString>& texts)
{
    m_buttonBox->setStandardButtons(convertStandardButtons(buttons));
    m_buttonBox->setContentsMargins(Margin, Margin, Margin, Margin);
    const auto all = m_buttonBox->findChildren<QPushButton*>();
    for (QPushButton* button : all) {
        prepared(button);
        const auto text =
            texts.constFind(QMessageBox::StandardButton(m_buttonBox->standardButton(button)));
        if (text != texts.constEnd()) {
            button->setText(*text);
        }
    }
}

QPushButton* OxMessageBox::prepared(QPushButton* button) const
{
    if (button != nullptr) {
        Look::prepareMessageButton(button);
        static_cast<ButtonBox*>(m_buttonBox)->keepStandardText(button);
        // Without a default button Enter must not press whichever button happens to have the focus.
        button->setAutoDefault(m_hasDefaultButton);
    }
    return button;
}

void OxMessageBox::createLayout()
{
    auto* layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_titleBar, 0, Qt::AlignTop);
    layout->addWidget(m_textLabel, 0, Qt::AlignLeft);
    layout->addWidget(m_buttonBox, 0, Qt::AlignRight | Qt::AlignBottom);
    setLayout(layout);
}

void OxMessageBox::wrapTextWiderThanScreen()
{
    if (m_textLabel->sizeHint().width() <= ScreenWidth) {
        return;
    }
    const QString text = m_textLabel->text();
    if (!Qt::mightBeRichText(text)) {
        m_textLabel->setText(
            withBreaks(text, m_textLabel->fontMetrics(), WrappedTextWidth - 2 * Margin));
    }
    m_textLabel->setWordWrap(true);
    // The layout would work out the height for its own width, which a long title makes larger.
    m_textLabel->setFixedSize(WrappedTextWidth, m_textLabel->heightForWidth(WrappedTextWidth));
}

/// A box that is higher than the screen would have its buttons where no finger reaches them. Only
/// then the text stands in an area that scrolls.
void OxMessageBox::scrollTextHigherThanScreen()
{
    QSize text = m_textLabel->wordWrap() ? m_textLabel->minimumSize() : m_textLabel->sizeHint();
    if (text.height() < ScreenHeight / 2) {
        return; // without asking the whole box, which takes time
    }
    const int rest = sizeHint().height() - text.height();
    if (text.height() + rest <= ScreenHeight) {
        return;
    }
    if (text.width() + ScrollBarWidth > ScreenWidth) {
        m_textLabel->setWordWrap(true);
        text.setWidth(ScreenWidth - ScrollBarWidth);
        text.setHeight(m_textLabel->heightForWidth(text.width()));
    }
    m_textLabel->setFixedSize(text);

    auto* area = new ToolBox(this);
    area->setObjectName(QStringLiteral("MessageBoxText"));
    area->setStyleSheet(Look::scrollBars(ScrollBarWidth));
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::TabFocus); // for those who scroll with keys
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    delete layout()->replaceWidget(m_textLabel, area);
    layout()->setAlignment(area, Qt::Alignment()); // the bar belongs to the edge of the box
    area->setWidget(m_textLabel);
    // The grey of the panel shows through.
    m_textLabel->setAutoFillBackground(false);
    // A rich text would keep the finger to itself, for the sake of links.
    m_textLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    area->viewport()->setAutoFillBackground(false);
    area->setMinimumWidth(text.width() + ScrollBarWidth);
    area->setFixedHeight(ScreenHeight - rest);
}

#include "moc_oxmessagebox.cpp"
