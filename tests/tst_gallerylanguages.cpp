// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// Every page and dialog of the gallery in every language of the library.

#include "gallery/page.h"
#include "gallery/shippedlibrary.h"
#include "gallery/tour.h"

#include "oxtranslation.h"
#include "support/gallerywalk.h"
#include "support/test.h"
#include "support/visibletexts.h"
#include "symboldatabasewidget.h"
#include "toolbox.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSet>

#include <functional>

using namespace GalleryWalk;

namespace {

const char* const Languages[] { "de", "fr", "es", "ja", "ar" };

void speak(const char* language)
{
    QVERIFY(OxTranslation::install(QLocale(QLatin1String(language))));
    settleLanguageChange();
}

QWidget* instancesOf(const ShownGallery& gallery)
{
    return gallery.findChild<QScrollArea*>(QStringLiteral("GalleryInstances"))->widget();
}

const Gallery::Page& pageNamed(const QString& id)
{
    for (const Gallery::Family& family : Gallery::families()) {
        for (const Gallery::Page& page : family.pages) {
            if (page.id == id) {
                return page;
            }
        }
    }
    qFatal("no such page");
}

/// Whether `dialog` no longer waits for the categories of the symbol library.
bool isFilled(const QWidget* dialog)
{
    return qobject_cast<const SymbolDatabaseWidget*>(dialog) == nullptr
        || dialog->findChild<ToolBox*>()->findChildren<QPushButton*>().size() > 1;
}

/// Opens the dialogs of `page` one after the other and performs `script` on each.
void visitDialogs(const ShownGallery& gallery, const QString& page,
                  const std::function<void(const QString& id, QWidget*)>& script)
{
    const QList<Gallery::DialogState> states = pageNamed(page).dialogs;
    for (const Gallery::DialogState& state : states) {
        const Visitor visitor(&gallery, [&](QWidget* dialog) {
            const QPointer<QWidget> shown = dialog;
            QTRY_VERIFY(isFilled(dialog));
            script(state.id, dialog);
            if (shown != nullptr) {
                shown->close();
            }
        });
        state.open();
        // Some only show a window and return.
        QTRY_VERIFY(visitor.visited() > 0 && Gallery::windowInFrontOf(&gallery) == nullptr);
    }
}

/// The texts that `window` is read out by, without what stands in front of each to tell it apart.
QSet<QString> wordingOf(const QWidget& window)
{
    QSet<QString> wording;
    const QStringList texts = visibleTexts(window);
    for (const QString& text : texts) {
        wording.insert(text.section(QStringLiteral(": "), 2));
    }
    return wording;
}

bool fits(const QWidget* widget, const QString& text)
{
    constexpr int Frame = 4; // pixels of a push button, both sides together
    if (qobject_cast<const QCheckBox*>(widget) != nullptr
        || qobject_cast<const QRadioButton*>(widget) != nullptr) {
        const QSize hint = widget->sizeHint();
        return hint.width() <= widget->width() && hint.height() <= widget->height();
    }
    int flags = Qt::TextShowMnemonic;
    QRect room = widget->contentsRect()
        & widget->parentWidget()->rect().translated(-widget->geometry().topLeft());
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        flags = label->wordWrap() ? Qt::TextWordWrap : 0;
        room.adjust(label->margin(), label->margin(), -label->margin(), -label->margin());
    } else if (const auto* field = qobject_cast<const QLineEdit*>(widget)) {
        const QMargins margins = field->textMargins();
        room.adjust(margins.left() + Frame, 0, -margins.right() - Frame, 0);
    } else {
        room.adjust(Frame / 2, 0, -Frame / 2, 0);
    }
    const QSize needed =
        widget->fontMetrics().boundingRect(QRect(0, 0, room.width(), 10000), flags, text).size();
    return needed.width() <= room.width() && needed.height() <= room.height();
}

/// The texts in `window` that are cut off, by their own widget or by the one around it, except
/// `known` ones.
QStringList cutOff(const QWidget& window, const QSet<QString>& known)
{
    QStringList found;
    const auto widgets = window.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        QString text;
        if (const auto* label = qobject_cast<const QLabel*>(widget)) {
            text = label->text();
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
            text = button->text();
        } else if (const auto* field = qobject_cast<const QLineEdit*>(widget)) {
            text = field->placeholderText();
        }
        if (text.isEmpty() || known.contains(text) || !widget->isVisible()) {
            continue;
        }
        if (!fits(widget, text)) {
            found.append(QStringLiteral("%1 is cut off in %2").arg(text, describe(widget)));
        }
    }
    return found;
}

/// A page whose own labels show texts that the toolkit has worded when the page was built.
bool quotesTheToolkit(const QString& page)
{
    return page == QLatin1String("SymbolInspection");
}

} // namespace

class TestGalleryLanguages : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void aLivingPageReadsAsOneThatIsBuiltInThatLanguage_data() { addPages(); }
    void aLivingPageReadsAsOneThatIsBuiltInThatLanguage();
    void noTranslationIsCutOff_data() { addPages(); }
    void noTranslationIsCutOff();
    void aTextThatIsCutOffIsFound();
};

void TestGalleryLanguages::initTestCase()
{
    Gallery::ShippedLibrary::instance()->make();
    QTRY_VERIFY(Gallery::ShippedLibrary::instance()->isMade());
}

void TestGalleryLanguages::cleanup()
{
    speak("en");
    Test::cleanup();
}

void TestGalleryLanguages::aLivingPageReadsAsOneThatIsBuiltInThatLanguage()
{
    QFETCH(QString, page);
    QHash<QString, QStringList> built; // by language, and for dialogs by their name, too
    for (const char* language : Languages) {
        speak(language);
        const QString name = QLatin1String(language);
        const ShownGallery gallery(page);
        built.insert(name, visibleTexts(*instancesOf(gallery)));
        visitDialogs(gallery, page, [&](const QString& id, QWidget* dialog) {
            built.insert(name + id, visibleTexts(*dialog));
        });
    }

    speak("en");
    const ShownGallery gallery(page);
    const QStringList english = visibleTexts(*instancesOf(gallery));
    if (!quotesTheToolkit(page)) {
        for (const char* language : Languages) {
            speak(language);
            QCOMPARE(visibleTexts(*instancesOf(gallery)), built.value(QLatin1String(language)));
        }
        speak("en");
        QCOMPARE(visibleTexts(*instancesOf(gallery)), english);
    }
    visitDialogs(gallery, page, [&](const QString& id, QWidget* dialog) {
        for (const char* language : Languages) {
            speak(language);
            QTRY_COMPARE(visibleTexts(*dialog), built.value(QLatin1String(language) + id));
        }
        speak("en");
    });
}

void TestGalleryLanguages::noTranslationIsCutOff()
{
    QFETCH(QString, page);
    QSet<QString> ownTexts; // of the gallery, some of which are too long on purpose
    {
        const ShownGallery gallery(page);
        ownTexts = wordingOf(gallery);
        visitDialogs(gallery, page, [&](const QString& /*id*/, QWidget* dialog) {
            ownTexts += wordingOf(*dialog);
        });
    }
    QStringList found;
    for (const char* language : Languages) {
        speak(language);
        const ShownGallery gallery(page);
        found += cutOff(*instancesOf(gallery), ownTexts);
        visitDialogs(gallery, page, [&](const QString& id, QWidget* dialog) {
            const QStringList inDialog = cutOff(*dialog, ownTexts);
            for (const QString& line : inDialog) {
                found.append(QLatin1String(language) + QLatin1Char(' ') + id + QLatin1Char(' ')
                             + line);
            }
        });
    }
    if (!quotesTheToolkit(page)) {
        VERIFY_NONE(found);
    }
}

void TestGalleryLanguages::aTextThatIsCutOffIsFound()
{
    QWidget window;
    window.resize(300, 100);
    QPushButton button(QStringLiteral("Aus Datei einfügen"), &window);
    button.setGeometry(0, 0, 50, 35);
    QLabel label(QStringLiteral("Datensätze"), &window);
    label.setGeometry(280, 50, 200, 30);
    QLabel known(QStringLiteral("Known"), &window);
    known.setGeometry(0, 50, 3, 30);
    window.show();
    const QStringList found = cutOff(window, { QStringLiteral("Known") });
    QCOMPARE(found.size(), 2);
    QVERIFY(found.constFirst().startsWith(QStringLiteral("Aus Datei einfügen is cut off")));
    QVERIFY(found.constLast().startsWith(QStringLiteral("Datensätze is cut off")));
}

UW_TEST_MAIN(TestGalleryLanguages)

#include "tst_gallerylanguages.moc"
