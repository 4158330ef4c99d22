// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "navigationbar.h"

#include "applicationfont.h"
#include "clickablecombobox.h"
#include "look/images.h"
#include "look/palette.h"
#include "oxlineedit.h"
#include "sharedconstants.h"

#include <QCompleter>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QIntValidator>
#include <QLabel>
#include <QPalette>
#include <QPushButton>
#include <QStackedWidget>
#include <QStringListModel>

#include <iterator>

namespace {

// Pixels.
constexpr QSize ZoomButtonSize(50, 57);
constexpr QSize ArrowSize(37, 57);
constexpr QSize NavigationCloseButtonSize(66, 57);

// Pages of the two stacks.
constexpr int PlaceholderPage = 0;
constexpr int ArrowPage = 1;

QString comboSheet()
{
    return QStringLiteral(
        "QComboBox { border: 1px solid " LOOK_COMBO_BORDER "; border-top-left-radius: 6px; "
        "border-bottom-left-radius: 6px; background-color: " LOOK_COMBO_GREY
        "; } QComboBox::drop-down { border:0px; } QComboBox::down-arrow { image: "
        "url(" LOOK_IMAGE_COMBO_ARROW "); } QComboBox QAbstractItemView::item { min-height: 35px; "
        "} QFrame { background-color: " LOOK_COMBO_GREY "; }");
}

QString zoomSheet(const QString& normal, const QString& pressed, const QString& disabled)
{
    return QStringLiteral("QPushButton { border-image: url(%1); }\n"
                          "QPushButton::pressed { border-image: url(%2); }\n"
                          "QPushButton::disabled { border-image: url(%3); }\n")
        .arg(normal, pressed, disabled);
}

/// `sheet` for a screen that is read from right to left.
QString mirrored(QString sheet)
{
    const QString left = QStringLiteral("-left-");
    const QString right = QStringLiteral("-right-");
    const QString neither = QStringLiteral("--");
    return sheet.replace(left, neither).replace(right, left).replace(neither, right);
}

/// Gives `button` one size for itself and its picture.
void prepare(QPushButton* button, const QSize& size)
{
    button->setFixedSize(size);
    button->setIconSize(size);
    button->setAutoDefault(false); // in a dialog, Return in a field must press none of them
}

/// Page 0 keeps the place of `arrow`, which is page 1.
QStackedWidget* createStack(QPushButton* arrow)
{
    auto* placeholder = new QPushButton;
    placeholder->setFlat(true);
    placeholder->setEnabled(false);
    prepare(placeholder, ArrowSize);

    auto* stack = new QStackedWidget;
    stack->addWidget(placeholder);
    stack->addWidget(arrow);
    return stack;
}

/// Takes spacing and margins away from `layout`.
template <typename Layout> Layout* tight(Layout* layout)
{
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

} // namespace

NavigationBar::NavigationBar(QWidget* parent)
    : QFrame(parent)
    , m_recordNumberValidator(std::make_unique<QIntValidator>(0, 9999, nullptr))
{
    setObjectName(QStringLiteral("NavigationBar"));
    setStyleSheet(QStringLiteral("QFrame { background-color: " LOOK_TITLE_CHARCOAL "; }"));
    createRecordNavigation();
    createSearch();
    createZoomButtons();
    createContainers();
    retranslate();
    layOut();
    followLayoutDirection();
    orderTabs();
    connectChildren();
}

NavigationBar::~NavigationBar() = default;

QString NavigationBar::searchTerm() const
{
    return m_searchByCombo->currentText();
}

QString NavigationBar::searchString() const
{
    return m_searchField->text();
}

bool NavigationBar::isBarEnabled() const
{
    // Not isEnabled(): the whole bar may be disabled from outside.
    return m_searchField->isEnabledTo(m_searchField->parentWidget());
}

int NavigationBar::lastRecord() const
{
    return int(m_recordCount - 1);
}

int NavigationBar::currentRecord() const
{
    return int(m_currentRecord - 1);
}

QStringList NavigationBar::searchByTerms() const
{
    QStringList terms;
    for (int i = 0; i < m_searchByCombo->count(); ++i) {
        terms.append(m_searchByCombo->itemText(i));
    }
    return terms;
}

QStringList NavigationBar::searchCompletions() const
{
    return m_completionModel->stringList();
}

QString NavigationBar::searchPlaceholder() const
{
    return m_searchField->placeholderText();
}

void NavigationBar::installAddon(QLayout* layout)
{
    if (layout == nullptr) {
        return;
    }
    m_addonContainer->setLayout(layout);
    m_addonContainer->show();
}

void NavigationBar::installNavigationReplacement(QLayout* layout)
{
    if (layout == nullptr) {
        return;
    }
    m_searchContainer->hide();
    m_replacementContainer->setLayout(layout);
    m_replacementContainer->show();
}

void NavigationBar::setBarEnabled(bool enabled)
{
    m_recordNumberField->setEnabled(enabled);
    m_searchField->setEnabled(enabled);
    m_searchByCombo->setEnabled(enabled);
    m_searchButton->setEnabled(enabled);
    if (enabled) {
        connectArrows();
    } else {
        disconnect(m_nextButton, &QPushButton::clicked, this, &NavigationBar::nextLabelSignal);
        disconnect(m_previousButton, &QPushButton::clicked, this,
                   &NavigationBar::previousLabelSignal);
    }
}

void NavigationBar::hideZoomButtons()
{
    m_zoomContainer->hide();
}

void NavigationBar::setRecordNumberSlot(int maxIndex)
{
    m_recordCount = qint64(maxIndex) + 1;
    m_isRecordCountKnown = true;
    showRecordCount();
    determineNextAndPreviousVisibility();
}

void NavigationBar::setCurrentRecordSlot(int currentIndex)
{
    m_currentRecord = qint64(currentIndex) + 1;
    m_recordNumberField->setText(QString::number(m_currentRecord));
    determineNextAndPreviousVisibility();
}

void NavigationBar::setSearchByTerms(const QStringList& terms)
{
    m_searchByCombo->clear();
    m_searchByCombo->insertItems(m_searchByCombo->count(), terms);
}

void NavigationBar::setSearchCompletions(const QStringList& completions)
{
    m_completionModel->setStringList(completions);
}

void NavigationBar::setSearchPlaceholder(const QString& placeholder)
{
    m_hasOwnPlaceholder = true;
    m_searchField->setPlaceholderText(placeholder);
}

void NavigationBar::clearSearchString()
{
    m_searchField->setText(QString());
}

void NavigationBar::zoomInSlot()
{
    Q_EMIT zoomSignal(true);
}

void NavigationBar::zoomOutSlot()
{
    Q_EMIT zoomSignal(false);
}

void NavigationBar::searchSlot()
{
    Q_EMIT searchStringSignal(searchTerm(), searchString());
}

void NavigationBar::determineNextAndPreviousVisibility()
{
    const bool several = m_recordCount > 1;
    m_previousStack->setCurrentIndex(m_currentRecord != 1 && several ? ArrowPage : PlaceholderPage);
    m_nextStack->setCurrentIndex(m_currentRecord != m_recordCount && several ? ArrowPage
                                                                             : PlaceholderPage);
}

void NavigationBar::navigateEditSlot()
{
    Q_EMIT navigateEditSignal(m_recordNumberField->text());
}

void NavigationBar::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange) {
        followLayoutDirection();
    } else if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void NavigationBar::retranslate()
{
    showRecordCount();
    if (!m_hasOwnPlaceholder) {
        m_searchField->setPlaceholderText(
            tr("Enter Search Parameters",
               "Placeholder text for search a database using a set of parameters."));
    }
    m_recordNumberField->setAccessibleName(
        tr("Record", "Accessible name of the field for the number of a record."));
    const QString previous =
        tr("Previous record", "Accessible name of the button to the previous record.");
    const QString next = tr("Next record", "Accessible name of the button to the next record.");
    for (const int page : { PlaceholderPage, ArrowPage }) {
        m_previousStack->widget(page)->setAccessibleName(previous);
        m_nextStack->widget(page)->setAccessibleName(next);
    }
    m_searchField->setAccessibleName(
        tr("Search for", "Accessible name of the field for what is searched."));
    m_searchByCombo->setAccessibleName(
        tr("Search by", "Accessible name of the box for the term to search by."));
    m_searchButton->setAccessibleName(tr("Search", "Accessible name of the search button."));
    m_zoomInButton->setAccessibleName(tr("Zoom in", "Accessible name of a zoom button."));
    m_zoomOutButton->setAccessibleName(tr("Zoom out", "Accessible name of a zoom button."));
    m_zoomFitButton->setAccessibleName(tr("Zoom to fit", "Accessible name of a zoom button."));
    m_closeButton->setAccessibleName(tr("Close", "Accessible name of the close button."));
}

void NavigationBar::showRecordCount()
{
    if (!m_isRecordCountKnown) {
        m_recordCountLabel->setText(
            tr("1 record(s)", "Label showing number of available database records."));
        return;
    }
    const QString text = m_recordCount < 2
        ? tr("%1 record", "Label showing number of available database records.")
        : tr("%1 records", "Label showing number of available database records.");
    m_recordCountLabel->setText(text.arg(m_recordCount));
}

void NavigationBar::createRecordNavigation()
{
    m_recordCountLabel = new QLabel;
    m_recordCountLabel->setStyleSheet(QStringLiteral("color: white"));
    m_recordCountLabel->setAlignment(Qt::AlignCenter);
    m_recordCountLabel->setFixedWidth(120);
    QFont font = ApplicationFont::getWidgetFont(true);
    font.setPixelSize(11);
    m_recordCountLabel->setFont(font);

    m_recordNumberField = new OxLineEdit;
    m_recordNumberField->setMaximumWidth(80);
    m_recordNumberField->setFixedHeight(25);
    m_recordNumberField->setValidator(m_recordNumberValidator.get());
    m_recordNumberField->setAlignment(Qt::AlignCenter);
    m_recordNumberField->setFont(ApplicationFont::getWidgetFontSmall(false));

    m_previousButton = createArrow("previousButton");
    m_nextButton = createArrow("nextButton");
    m_previousStack = createStack(m_previousButton);
    m_nextStack = createStack(m_nextButton);
}

void NavigationBar::createSearch()
{
    m_searchField = new OxLineEdit;
    m_searchField->setFixedHeight(35);
    m_searchField->setMinimumWidth(220);
    m_searchField->setStyleSheet(QStringLiteral(
        "QLineEdit { border-top-right-radius: 6px; border-bottom-right-radius: 6px; }"));

    m_searchByCombo = new ClickableComboBox;
    m_searchByCombo->setObjectName(QStringLiteral("searchByCombo"));
    m_searchByCombo->setFixedHeight(35);
    m_searchByCombo->setMinimumWidth(130);
    m_searchByCombo->setStyleSheet(comboSheet());

    m_completionModel = new QStringListModel(this);
    auto* completer = new QCompleter(m_completionModel, this);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_searchField->setCompleter(completer);

    m_searchButton = new QPushButton;
    m_searchButton->setIcon(QIcon(QStringLiteral(LOOK_IMAGE_NAVIGATION_SEARCH)));
    m_searchButton->setObjectName(QStringLiteral("navigationSearchButton"));
    m_searchButton->setStyleSheet(
        QStringLiteral("QPushButton { background-color: " LOOK_ACCENT_ORANGE
                       "; border-top-right-radius: 6px; border-bottom-right-radius: 6px; }"));
    prepare(m_searchButton, IconButtonSize);
}

void NavigationBar::createZoomButtons()
{
    m_zoomInButton = new QPushButton;
    m_zoomInButton->setObjectName(QStringLiteral("zoomInButton"));
    prepare(m_zoomInButton, ZoomButtonSize);
    m_zoomInButton->setAutoRepeat(true);
    m_zoomInButton->setStyleSheet(zoomSheet(QStringLiteral(LOOK_IMAGE_ZOOM_IN),
                                            QStringLiteral(LOOK_IMAGE_ZOOM_IN_PRESSED),
                                            QStringLiteral(LOOK_IMAGE_ZOOM_IN_DISABLED)));

    m_zoomOutButton = new QPushButton;
    m_zoomOutButton->setObjectName(QStringLiteral("zoomOutButton"));
    prepare(m_zoomOutButton, ZoomButtonSize);
    m_zoomOutButton->setAutoRepeat(true);
    m_zoomOutButton->setStyleSheet(zoomSheet(QStringLiteral(LOOK_IMAGE_ZOOM_OUT),
                                             QStringLiteral(LOOK_IMAGE_ZOOM_OUT_PRESSED),
                                             QStringLiteral(LOOK_IMAGE_ZOOM_OUT_DISABLED)));

    m_zoomFitButton = new QPushButton;
    m_zoomFitButton->setObjectName(QStringLiteral("zoomFitButton"));
    prepare(m_zoomFitButton, ZoomButtonSize);
    m_zoomFitButton->setStyleSheet(zoomSheet(QStringLiteral(LOOK_IMAGE_ZOOM_FIT),
                                             QStringLiteral(LOOK_IMAGE_ZOOM_FIT_PRESSED),
                                             QStringLiteral(LOOK_IMAGE_ZOOM_FIT_DISABLED)));
}

void NavigationBar::createContainers()
{
    m_closeButton = new QPushButton;
    m_closeButton->setObjectName(QStringLiteral("closeButton"));
    m_closeButton->setStyleSheet(
        QStringLiteral("border-image: url(" LOOK_IMAGE_NAVIGATION_CLOSE ")"));
    prepare(m_closeButton, NavigationCloseButtonSize);
    m_closeButton->setFlat(true);

    m_addonContainer = new QWidget(this);
    m_addonContainer->hide();
    m_searchContainer = new QWidget(this);
    m_replacementContainer = new QWidget(this);
    m_replacementContainer->hide();
    m_zoomContainer = new QWidget(this);
}

void NavigationBar::layOut()
{
    auto* search = tight(new QGridLayout);
    search->addWidget(m_searchByCombo, 0, 0, Qt::AlignRight);
    search->addWidget(m_searchField, 0, 1, Qt::AlignVCenter);
    search->addWidget(m_searchButton, 0, 1, Qt::AlignRight);

    auto* record = tight(new QGridLayout);
    record->setContentsMargins(0, 6, 0, 3);
    record->addWidget(m_recordNumberField, 0, 0, Qt::AlignCenter);
    record->addWidget(m_recordCountLabel, 1, 0, Qt::AlignCenter);

    auto* navigation = tight(new QGridLayout);
    navigation->setSizeConstraint(QLayout::SetMinimumSize);
    navigation->addWidget(m_previousStack, 0, 0, Qt::AlignRight | Qt::AlignVCenter);
    navigation->addLayout(record, 0, 1);
    navigation->addWidget(m_nextStack, 0, 2, Qt::AlignLeft | Qt::AlignVCenter);
    auto* navigationWidget = new QWidget(m_searchContainer);
    // The content needs more, and the layout sees to it that it gets it.
    navigationWidget->setFixedWidth(160);
    navigationWidget->setLayout(navigation);

    auto* zoom = tight(new QHBoxLayout);
    zoom->addWidget(m_zoomOutButton);
    zoom->addWidget(m_zoomInButton);
    zoom->addWidget(m_zoomFitButton);
    m_zoomContainer->setLayout(zoom);

    auto* searchAndNavigation = tight(new QHBoxLayout);
    searchAndNavigation->addLayout(search);
    searchAndNavigation->addSpacing(35);
    searchAndNavigation->addWidget(navigationWidget);
    m_searchContainer->setLayout(searchAndNavigation);

    auto* bar = tight(new QHBoxLayout);
    bar->addWidget(m_addonContainer, 0, Qt::AlignLeft);
    bar->addSpacing(15);
    bar->addWidget(m_replacementContainer, 0, Qt::AlignVCenter);
    bar->addWidget(m_searchContainer, 0, Qt::AlignVCenter);
    bar->addSpacing(35);
    bar->addWidget(m_zoomContainer, 0, Qt::AlignRight);
    bar->addSpacing(45);
    bar->addWidget(m_closeButton, 0, Qt::AlignRight);
    setLayout(bar);
}

void NavigationBar::followLayoutDirection()
{
    // Layouts turn round by themselves, pictures and the margins of a text do not.
    const QIcon left(QStringLiteral(LOOK_IMAGE_NAVIGATION_PREVIOUS));
    const QIcon right(QStringLiteral(LOOK_IMAGE_NAVIGATION_NEXT));
    m_previousButton->setIcon(isRightToLeft() ? right : left);
    m_nextButton->setIcon(isRightToLeft() ? left : right);
    for (QWidget* widget :
         std::initializer_list<QWidget*> { m_searchByCombo, m_searchField, m_searchButton }) {
        if (m_isMirrored != isRightToLeft()) {
            widget->setStyleSheet(mirrored(widget->styleSheet()));
        }
    }
    m_isMirrored = isRightToLeft();
    // The search button lies over the far end of the field.
    const int covered = IconButtonSize.width();
    m_searchField->setTextMargins(isRightToLeft() ? covered : 0, 0, isRightToLeft() ? 0 : covered,
                                  0);
}

void NavigationBar::orderTabs()
{
    // As they stand, from left to right; otherwise the window opens with the focus in the field
    // for the record's number, which reports a number whenever it loses it.
    QWidget* const order[] { m_searchByCombo,     m_searchField, m_searchButton,  m_previousButton,
                             m_recordNumberField, m_nextButton,  m_zoomOutButton, m_zoomInButton,
                             m_zoomFitButton,     m_closeButton };
    for (size_t i = 1; i < std::size(order); ++i) {
        setTabOrder(order[i - 1], order[i]);
    }
}

void NavigationBar::connectChildren()
{
    connectArrows();
    connect(m_closeButton, &QPushButton::clicked, this, &NavigationBar::closeSignal);
    connect(m_searchField, &OxLineEdit::returnPressed, this, &NavigationBar::searchSlot);
    connect(m_searchButton, &QPushButton::clicked, this, &NavigationBar::searchSlot);
    connect(m_searchByCombo, &QComboBox::currentIndexChanged, this,
            [this](int index) { Q_EMIT searchTermSignal(m_searchByCombo->itemText(index)); });
    connect(m_recordNumberField, &OxLineEdit::editingFinished, this,
            &NavigationBar::navigateEditSlot);
    connect(m_recordNumberField, &OxLineEdit::returnPressed, this,
            &NavigationBar::navigateEditSlot);
    connect(m_zoomInButton, &QPushButton::clicked, this, &NavigationBar::zoomInSlot);
    connect(m_zoomOutButton, &QPushButton::clicked, this, &NavigationBar::zoomOutSlot);
    connect(m_zoomFitButton, &QPushButton::clicked, this, &NavigationBar::zoomFitSignal);
}

QPushButton* NavigationBar::createArrow(const char* name)
{
    auto* arrow = new QPushButton;
    arrow->setObjectName(QLatin1String(name));
    arrow->setAutoRepeat(false);
    // The white pictures are made for the dark bar; on a light button nobody would see them.
    QPalette dark = arrow->palette();
    dark.setColor(QPalette::Button, QColor(QStringLiteral(LOOK_TITLE_CHARCOAL)));
    arrow->setPalette(dark);
    prepare(arrow, ArrowSize);
    return arrow;
}

void NavigationBar::connectArrows()
{
    // Unique: enabling an enabled bar must not make an arrow count twice.
    connect(m_nextButton, &QPushButton::clicked, this, &NavigationBar::nextLabelSignal,
            Qt::UniqueConnection);
    connect(m_previousButton, &QPushButton::clicked, this, &NavigationBar::previousLabelSignal,
            Qt::UniqueConnection);
}

#include "moc_navigationbar.cpp"
