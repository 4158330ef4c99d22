// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

#include "oxtransparentoverlay.h"
#include "support/gallerywalk.h"
#include "support/test.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTabBar>

#include <memory>

/// That nothing on the pages of the gallery and in their dialogs is blurred or cut off. The program
/// runs once for each scale.
class TestGalleryResolution : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void nothingOnAPageIsBlurredOrCutOff_data() { GalleryWalk::addPages(); }
    void nothingOnAPageIsBlurredOrCutOff();
    void nothingInADialogIsBlurredOrCutOff_data() { GalleryWalk::addPages(); }
    void nothingInADialogIsBlurredOrCutOff();

    void anIconWithoutTwinIsFound();
    void aPictureOfALabelWithoutTwinIsFound();
    void anItemWithoutTwinIsFound();
    void aSheetWithoutTwinIsFound();
    void aTextThatIsCutOffIsFound_data();
    void aTextThatIsCutOffIsFound();
    void aWidgetBeyondItsParentIsFound();
};

namespace {

qreal ratio()
{
    return qGuiApp->devicePixelRatio();
}

/// Half a pixel of the screen, which rounding adds or takes.
qreal tolerance()
{
    return 0.5 / ratio();
}

QString complaint(const char* what, const QWidget* widget)
{
    return QString::fromLatin1(what) + QLatin1String(": ") + GalleryWalk::describe(widget);
}

/// Whether `text` stands on the page to show what becomes of a text that does not fit.
bool isMeantToBeTooLong(const QString& text)
{
    // The latter without and with the style that breaks it into lines.
    return text.contains(Gallery::longText())
        || text == QLatin1String("Insert all selected symbols");
}

// --- pictures -----------------------------------------------------------------------------------

bool isFine(const QPixmap& picture)
{
    return picture.isNull() || picture.devicePixelRatio() > ratio() - 0.03;
}

/// The pictures of symbols are stored in one size, that of the device's screen.
bool isStoredPicture(const QPixmap& picture)
{
    return picture.size() == QSize(50, 50) && picture.devicePixelRatio() == 1;
}

bool isFine(const QIcon& icon, const QSize& size)
{
    if (icon.isNull() || size.isEmpty()) {
        return true;
    }
    // As styles do: an icon that is smaller than its place is not enlarged.
    const QPixmap picture = icon.pixmap(icon.actualSize(size), ratio());
    return isFine(picture) || isStoredPicture(picture);
}

/// Whether there is nothing in it that could be blurred.
bool isOneColor(const QPixmap& picture)
{
    const QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    QImage plain(image.size(), image.format());
    plain.fill(image.pixelColor(0, 0));
    return image == plain;
}

bool hasCoarseItem(const QAbstractItemView& view)
{
    if (view.model() == nullptr) {
        return false;
    }
    for (int row = 0; row < view.model()->rowCount(view.rootIndex()); ++row) {
        const QModelIndex index = view.model()->index(row, 0, view.rootIndex());
        if (!view.viewport()->rect().intersects(view.visualRect(index))) {
            continue;
        }
        const QVariant decoration = index.data(Qt::DecorationRole);
        QSize size = view.iconSize();
        if (!size.isValid()) {
            const int extent = view.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &view);
            size = { extent, extent };
        }
        if (decoration.userType() == QMetaType::QIcon ? !isFine(decoration.value<QIcon>(), size)
                                                      : !isFine(decoration.value<QPixmap>())) {
            return true;
        }
    }
    return false;
}

/// The images of the sheet that have no twin for fine screens.
QStringList coarseImages(const QString& sheet)
{
    static const QRegularExpression image(QStringLiteral("url\\(\"?(:[^)\"]+)\"?\\)"));
    QStringList coarse;
    auto found = image.globalMatch(sheet);
    while (found.hasNext()) {
        const QString path = found.next().captured(1);
        const QFileInfo file(path);
        const QString suffix =
            file.suffix().isEmpty() ? QString() : QLatin1Char('.') + file.suffix();
        const QString twin = path.chopped(suffix.size()) + QLatin1String("@2x") + suffix;
        if (!file.exists() || !QFile::exists(twin)) {
            coarse.append(path);
        }
    }
    return coarse;
}

bool hasCoarsePicture(const QWidget* widget)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        return !isFine(button->icon(), button->iconSize());
    }
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        const QPixmap picture = label->pixmap();
        return !isFine(picture) && !isStoredPicture(picture) && !isOneColor(picture);
    }
    if (const auto* view = qobject_cast<const QAbstractItemView*>(widget)) {
        return hasCoarseItem(*view);
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(widget)) {
        return !isFine(combo->itemIcon(combo->currentIndex()), combo->iconSize());
    }
    if (const auto* tabs = qobject_cast<const QTabBar*>(widget)) {
        for (int index = 0; index < tabs->count(); ++index) {
            if (!isFine(tabs->tabIcon(index), tabs->iconSize())) {
                return true;
            }
        }
    }
    return false;
}

// --- texts --------------------------------------------------------------------------------------

/// What the style takes `text` for: without the marks of the keys that reach it.
qreal widthOf(const QString& text, const QWidget* widget)
{
    const QSizeF size = QFontMetricsF(widget->font(), widget).size(Qt::TextShowMnemonic, text);
    return size.width();
}

bool fits(const QString& text, const QSizeF& room, const QWidget* widget)
{
    const QSizeF size = QFontMetricsF(widget->font(), widget).size(Qt::TextShowMnemonic, text);
    return isMeantToBeTooLong(text)
        || (size.width() <= room.width() + tolerance()
            && size.height() <= room.height() + tolerance());
}

bool isCutOff(const QLabel& label)
{
    if (label.text().isEmpty() || Qt::mightBeRichText(label.text())
        || isMeantToBeTooLong(label.text())) {
        return false;
    }
    const int margins = 2 * (label.margin() + label.frameWidth());
    const QSizeF room = label.contentsRect().size() - QSizeF(margins, margins);
    if (!label.wordWrap()) {
        return !fits(label.text(), room, &label);
    }
    const QRectF needed = QFontMetricsF(label.font(), &label)
                              .boundingRect(QRectF(QPointF(), QSizeF(room.width(), 0)),
                                            Qt::TextWordWrap, label.text());
    return needed.width() > room.width() + tolerance()
        || needed.height() > room.height() + tolerance();
}

bool isCutOff(const QAbstractButton& button)
{
    if (button.text().isEmpty() || isMeantToBeTooLong(button.text())) {
        return false;
    }
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    option.icon = button.icon();
    option.iconSize = button.iconSize();
    QStyle::SubElement element = QStyle::SE_PushButtonContents;
    if (qobject_cast<const QCheckBox*>(&button) != nullptr) {
        element = QStyle::SE_CheckBoxContents;
    } else if (qobject_cast<const QRadioButton*>(&button) != nullptr) {
        element = QStyle::SE_RadioButtonContents;
    }
    return !fits(button.text(), button.style()->subElementRect(element, &option, &button).size(),
                 &button);
}

bool isCutOff(const QComboBox& combo)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = combo.isEditable();
    const QRect field = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxEditField, &combo);
    return !fits(combo.currentText(), field.size(), &combo);
}

bool isCutOff(const QTabBar& tabs)
{
    for (int index = 0; index < tabs.count(); ++index) {
        if (!fits(tabs.tabText(index), tabs.tabRect(index).size(), &tabs)) {
            return true;
        }
    }
    return false;
}

bool isCutOff(const QHeaderView& header)
{
    for (int section = 0; section < header.count(); ++section) {
        const QString text = header.model()->headerData(section, header.orientation()).toString();
        const qreal room =
            header.orientation() == Qt::Horizontal ? header.sectionSize(section) : header.width();
        if (widthOf(text, &header) > room + tolerance() && !isMeantToBeTooLong(text)) {
            return true;
        }
    }
    return false;
}

bool hasCutOffText(const QWidget* widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        return isCutOff(*label);
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        return isCutOff(*button);
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(widget)) {
        return isCutOff(*combo);
    }
    if (const auto* tabs = qobject_cast<const QTabBar*>(widget)) {
        return isCutOff(*tabs);
    }
    const auto* header = qobject_cast<const QHeaderView*>(widget);
    return header != nullptr && isCutOff(*header);
}

// --- places -------------------------------------------------------------------------------------

/// What is scrolled may be larger than the place in which it is seen.
bool isScrolled(const QWidget* widget)
{
    const QWidget* parent = widget->parentWidget();
    const auto* area = qobject_cast<const QAbstractScrollArea*>(parent->parentWidget());
    return area != nullptr && area->viewport() == parent;
}

/// Whether the list of categories is as much wider than its place as the two frames of its buttons:
/// what the sheet of a button calls its width does not count them.
bool isCategoryButton(const QWidget* widget)
{
    return widget->styleSheet().contains(QLatin1String("min-width: 260;"));
}

bool isBeyondParent(const QWidget* widget)
{
    return !widget->isWindow() && !isScrolled(widget) && !isCategoryButton(widget)
        && !widget->parentWidget()->rect().contains(widget->geometry());
}

/// What is wrong with the widgets in `window`, one line each.
QStringList complaintsAbout(const QWidget* window)
{
    QStringList complaints;
    QWidgetList widgets = window->findChildren<QWidget*>();
    widgets.prepend(const_cast<QWidget*>(window));
    for (const QWidget* widget : std::as_const(widgets)) {
        if (!widget->isVisible() || widget->window() != window || widget->size().isEmpty()) {
            continue;
        }
        if (hasCoarsePicture(widget)) {
            complaints.append(complaint("blurred", widget));
        }
        const QStringList images = coarseImages(widget->styleSheet());
        for (const QString& image : images) {
            complaints.append(complaint("blurred", widget) + QLatin1Char(' ') + image);
        }
        if (hasCutOffText(widget)) {
            complaints.append(complaint("text cut off", widget));
        }
        if (isBeyondParent(widget)) {
            complaints.append(complaint("beyond its parent", widget));
        }
    }
    return complaints;
}

QPixmap coarsePicture()
{
    QPixmap picture(20, 20);
    picture.fill(Qt::red);
    QPainter(&picture).fillRect(5, 5, 10, 10, Qt::black);
    return picture;
}

/// On a plain screen no picture is too coarse.
#define VERIFY_BLURRED(window)                                                                     \
    do {                                                                                           \
        (window).show();                                                                           \
        QCOMPARE(!complaintsAbout(&(window)).isEmpty(), ratio() > 1);                              \
    } while (false)

} // namespace

using MakeWidget = std::unique_ptr<QWidget> (*)(const QString&);
Q_DECLARE_METATYPE(MakeWidget)

void TestGalleryResolution::nothingOnAPageIsBlurredOrCutOff()
{
    QFETCH(const QString, page);
    const GalleryWalk::ShownGallery gallery(page);
    VERIFY_NONE(complaintsAbout(&gallery));
}

void TestGalleryResolution::nothingInADialogIsBlurredOrCutOff()
{
    QFETCH(const QString, page);
    const GalleryWalk::ShownGallery gallery(page);

    QStringList complaints;
    const GalleryWalk::Visitor visitor(&gallery, [&complaints](QWidget* window) {
        complaints += complaintsAbout(window);
        const bool isOverlay = qobject_cast<OxTransparentOverlay*>(window) != nullptr;
        if (!isOverlay && !window->screen()->geometry().contains(window->geometry())) {
            complaints.append(complaint("beyond the screen", window));
        }
        window->close();
    });
    for (const Gallery::Family& family : Gallery::families()) {
        for (const Gallery::Page& candidate : family.pages) {
            if (candidate.id == page) {
                for (const Gallery::DialogState& state : candidate.dialogs) {
                    state.open();
                }
            }
        }
    }
    VERIFY_NONE(complaints);
}

void TestGalleryResolution::anIconWithoutTwinIsFound()
{
    QPushButton button;
    button.setIcon(QIcon(coarsePicture()));
    button.setIconSize({ 20, 20 });
    VERIFY_BLURRED(button);
}

void TestGalleryResolution::aPictureOfALabelWithoutTwinIsFound()
{
    QLabel label;
    label.setPixmap(coarsePicture());
    VERIFY_BLURRED(label);
}

void TestGalleryResolution::anItemWithoutTwinIsFound()
{
    QListWidget list;
    list.setIconSize({ 20, 20 });
    list.addItem(new QListWidgetItem(QIcon(coarsePicture()), QStringLiteral("Item")));
    VERIFY_BLURRED(list);
}

void TestGalleryResolution::aSheetWithoutTwinIsFound()
{
    QCOMPARE(coarseImages(QStringLiteral("image: url(:/Lock/Lock/object-lock.png);")),
             QStringList());
    const QString missing = QStringLiteral(":/Lock/Lock/no-such-lock.png");
    QCOMPARE(coarseImages(QStringLiteral("image: url(%1);").arg(missing)), QStringList { missing });
}

void TestGalleryResolution::aTextThatIsCutOffIsFound_data()
{
    QTest::addColumn<MakeWidget>("make");
    const auto row = [](const char* name, MakeWidget make) {
        QTest::newRow(name) << make;
    };
    row("label", [](const QString& text) -> std::unique_ptr<QWidget> {
        return std::make_unique<QLabel>(text);
    });
    row("push button", [](const QString& text) -> std::unique_ptr<QWidget> {
        return std::make_unique<QPushButton>(text);
    });
    row("check box", [](const QString& text) -> std::unique_ptr<QWidget> {
        return std::make_unique<QCheckBox>(text);
    });
    row("radio button", [](const QString& text) -> std::unique_ptr<QWidget> {
        return std::make_unique<QRadioButton>(text);
    });
    row("combo box", [](const QString& text) -> std::unique_ptr<QWidget> {
        auto combo = std::make_unique<QComboBox>();
        combo->addItem(text);
        return combo;
    });
    row("tab bar", [](const QString& text) -> std::unique_ptr<QWidget> {
        auto tabs = std::make_unique<QTabBar>();
        tabs->addTab(text);
        tabs->setElideMode(Qt::ElideRight);
        return tabs;
    });
}

void TestGalleryResolution::aTextThatIsCutOffIsFound()
{
    QFETCH(MakeWidget, make);
    const std::unique_ptr<QWidget> widget = make(QStringLiteral("Insert the symbol"));
    widget->adjustSize();
    widget->show();
    VERIFY_NONE(complaintsAbout(widget.get()));

    widget->setFixedWidth(widget->width() / 2);
    QVERIFY(!complaintsAbout(widget.get()).isEmpty());
}

void TestGalleryResolution::aWidgetBeyondItsParentIsFound()
{
    QWidget panel;
    panel.resize(100, 100);
    QWidget child(&panel);
    child.setGeometry(50, 50, 50, 50);
    panel.show();
    VERIFY_NONE(complaintsAbout(&panel));

    child.setGeometry(51, 50, 50, 50);
    QCOMPARE(complaintsAbout(&panel).count(), 1);
}

UW_TEST_MAIN(TestGalleryResolution)

#include "tst_galleryresolution.moc"
