// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "multiitemselectiondialog.h"

#include "dragscrolllistview.h"
#include "multiitemselectionwidget.h"
#include "sharedconstants.h"
#include "support/everythingtranslated.h"
#include "support/finger.h"
#include "support/modaldialog.h"
#include "support/test.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTranslator>
#include <QVBoxLayout>

namespace {

using Script = std::function<void(MultiItemSelectionDialog*)>;

QPushButton* button(const QWidget* dialog, const char* text)
{
    const auto buttons = dialog->findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly);
    for (QPushButton* candidate : buttons) {
        if (candidate->text() == QLatin1String(text)) {
            return candidate;
        }
    }
    return nullptr;
}

QStandardItem* item(int id)
{
    auto* made = new QStandardItem(QStringLiteral("Layer %1").arg(id));
    made->setData(id, Qt::UserRole + 1);
    return made;
}

/// Translates every text of the dialog into its comment.
class CommentTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* /*sourceText*/, const char* disambiguation,
                      int /*n*/) const override
    {
        return qstrcmp(context, "MultiItemSelectionDialog") == 0 ? QString::fromUtf8(disambiguation)
                                                                 : QString();
    }
};

} // namespace

Q_DECLARE_METATYPE(Script)

class TestMultiItemSelectionDialog : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void windowFlagsAreReplaced();
    void hasTheHousesIconAndUntranslatedTitle();
    void closingNeitherDeletesItNorQuits();
    void isGreyInAnOrangeFrame();
    void theFrameLeavesButtonsAndListsAsTheyAre();
    void buttonsCarryTheirTextsAndComments();
    void buttonsAreHighEnoughForAFinger();
    void layoutIsExact();
    void theSelectionWidgetFillsTheDialog();
    void theImportButtonShowsOnDemand();
    void theImportButtonIsConnectedToNothing();
    void addedItemsGoToTheSelectionWidget();
    void aSubclassDecidesWhatAnAddedItemBecomes();
    void everyWayToEndIt_data();
    void everyWayToEndIt();
    void enterInAListMovesNothing();
    void aSpaceOnAnArrowMovesItems();
    void withAParentItIsAPartOfThat();
};

void TestMultiItemSelectionDialog::windowFlagsAreReplaced()
{
    // What the toolkit itself makes of this one flag.
    QDialog reference;
    reference.setWindowFlags(Qt::FramelessWindowHint);
    const MultiItemSelectionDialog dialog(nullptr, Qt::Tool | Qt::WindowStaysOnTopHint);
    QCOMPARE(dialog.windowFlags(), reference.windowFlags());
    QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(dialog.isWindow());
}

void TestMultiItemSelectionDialog::hasTheHousesIconAndUntranslatedTitle()
{
    const EverythingTranslated translated;
    const MultiItemSelectionDialog dialog;
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Sigilant PRO"));
    QVERIFY(!dialog.windowIcon().pixmap(32).isNull());
    QCOMPARE(dialog.windowIcon().pixmap(32).toImage(),
             QIcon(QStringLiteral(":/Icon/ApplicationIcons/popup.ico")).pixmap(32).toImage());
}

void TestMultiItemSelectionDialog::closingNeitherDeletesItNorQuits()
{
    auto* dialog = new MultiItemSelectionDialog;
    const QPointer<MultiItemSelectionDialog> guard = dialog;
    QVERIFY(!dialog->testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!dialog->testAttribute(Qt::WA_QuitOnClose));
    QSignalSpy lastClosed(qGuiApp, &QGuiApplication::lastWindowClosed);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    dialog->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QVERIFY(guard != nullptr);
    QCOMPARE(lastClosed.count(), 0);
    delete dialog;
}

void TestMultiItemSelectionDialog::isGreyInAnOrangeFrame()
{
    MultiItemSelectionDialog dialog;
    QCOMPARE(dialog.objectName(), QStringLiteral("MultiItemSelectionDialog"));
    QCOMPARE(dialog.styleSheet(),
             QStringLiteral("#MultiItemSelectionDialog { background-color: #f2f2f2; border: 1px "
                            "solid #fd7800; } "));
    dialog.resize(500, 400);
    const QImage picture = dialog.grab().toImage();
    const QColor orange(0xfd, 0x78, 0x00);
    QCOMPARE(picture.pixelColor(0, 200), orange);
    QCOMPARE(picture.pixelColor(499, 200), orange);
    QCOMPARE(picture.pixelColor(250, 0), orange);
    QCOMPARE(picture.pixelColor(250, 399), orange);
    QCOMPARE(picture.pixelColor(4, 200), QColor(0xf2, 0xf2, 0xf2));
}

void TestMultiItemSelectionDialog::theFrameLeavesButtonsAndListsAsTheyAre()
{
    MultiItemSelectionDialog dialog;
    dialog.resize(500, 400);
    dialog.ensurePolished();
    dialog.layout()->activate();
    QPushButton* cancel = button(&dialog, "Cancel");
    QDialog plainDialog;
    QPushButton plain(QStringLiteral("Cancel"), &plainDialog);
    plain.resize(cancel->size());
    QCOMPARE(cancel->styleSheet(), QString());
    QCOMPARE(cancel->sizeHint(), plain.sizeHint());
    QCOMPARE(cancel->grab().toImage(), plain.grab().toImage());

    MultiItemSelectionWidget* lists = dialog.getSelectionWidget();
    MultiItemSelectionWidget plainLists(&plainDialog);
    plainLists.resize(lists->size());
    QCOMPARE(lists->styleSheet(), plainLists.styleSheet());
    QCOMPARE(lists->getAvailableListView()->grab().toImage(),
             plainLists.getAvailableListView()->grab().toImage());
    QCOMPARE(lists->findChild<QPushButton*>()->grab().toImage(),
             plainLists.findChild<QPushButton*>()->grab().toImage());
}

void TestMultiItemSelectionDialog::buttonsCarryTheirTextsAndComments()
{
    const MultiItemSelectionDialog plain;
    QVERIFY(button(&plain, "Import") != nullptr);
    QVERIFY(button(&plain, "OK") != nullptr);
    QVERIFY(button(&plain, "Cancel") != nullptr);

    CommentTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const MultiItemSelectionDialog dialog;
    QCoreApplication::removeTranslator(&translator);
    QVERIFY(button(&dialog, "Button text for importing a file.") != nullptr);
    QVERIFY(button(&dialog, "Button text for accepting the selection dialog.") != nullptr);
    QVERIFY(button(&dialog, "Button text for canceling selection dialog.") != nullptr);
}

void TestMultiItemSelectionDialog::buttonsAreHighEnoughForAFinger()
{
    MultiItemSelectionDialog dialog;
    dialog.showAddButton(true);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    for (const char* text : { "Import", "OK", "Cancel" }) {
        QVERIFY(button(&dialog, text)->height() >= IconButtonSize.height());
    }
}

void TestMultiItemSelectionDialog::layoutIsExact()
{
    MultiItemSelectionDialog dialog;
    const auto* outer = qobject_cast<QVBoxLayout*>(dialog.layout());
    QVERIFY(outer != nullptr);
    QCOMPARE(outer->count(), 2);
    QCOMPARE(outer->itemAt(0)->widget(), dialog.getSelectionWidget());

    const auto* row = qobject_cast<QHBoxLayout*>(outer->itemAt(1)->layout());
    QVERIFY(row != nullptr);
    QCOMPARE(row->count(), 3);
    QCOMPARE(row->itemAt(0)->widget(), button(&dialog, "Import"));
    QCOMPARE(row->itemAt(0)->alignment(), Qt::AlignLeft);
    const QSpacerItem* spacer = row->itemAt(1)->spacerItem();
    QVERIFY(spacer != nullptr);
    QCOMPARE(spacer->sizeHint(), QSize(0, 0));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::MinimumExpanding);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);

    const auto* answers = qobject_cast<QHBoxLayout*>(row->itemAt(2)->layout());
    QVERIFY(answers != nullptr);
    QCOMPARE(answers->count(), 2);
    QCOMPARE(answers->itemAt(0)->widget(), button(&dialog, "OK"));
    QCOMPARE(answers->itemAt(0)->alignment(), Qt::AlignRight);
    QCOMPARE(answers->itemAt(1)->widget(), button(&dialog, "Cancel"));
    QCOMPARE(answers->itemAt(1)->alignment(), Qt::AlignRight);
}

void TestMultiItemSelectionDialog::theSelectionWidgetFillsTheDialog()
{
    MultiItemSelectionDialog dialog;
    const MultiItemSelectionWidget* lists = dialog.getSelectionWidget();
    QCOMPARE(lists->parentWidget(), &dialog);
    QCOMPARE(lists->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(lists->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
}

void TestMultiItemSelectionDialog::theImportButtonShowsOnDemand()
{
    MultiItemSelectionDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(!button(&dialog, "Import")->isVisible());
    dialog.showAddButton(true);
    QVERIFY(button(&dialog, "Import")->isVisible());
    dialog.showAddButton(false);
    QVERIFY(!button(&dialog, "Import")->isVisible());
}

void TestMultiItemSelectionDialog::theImportButtonIsConnectedToNothing()
{
    MultiItemSelectionDialog dialog;
    dialog.showAddButton(true);
    QSignalSpy finished(&dialog, &QDialog::finished);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    Finger().tap(button(&dialog, "Import"));
    QCOMPARE(finished.count(), 0);
    QVERIFY(dialog.isVisible());
}

void TestMultiItemSelectionDialog::addedItemsGoToTheSelectionWidget()
{
    MultiItemSelectionDialog dialog;
    QStandardItem* added = item(3);
    dialog.addAvailableItem(added);
    const auto* model = dialog.getSelectionWidget()->getAvailableListView()->model();
    QCOMPARE(model->rowCount(), 1);
    QCOMPARE(added->model(), model);
}

void TestMultiItemSelectionDialog::aSubclassDecidesWhatAnAddedItemBecomes()
{
    class Renaming : public MultiItemSelectionDialog
    {
    public:
        void addAvailableItem(QStandardItem* added) override
        {
            added->setText(QStringLiteral("Imported"));
            MultiItemSelectionDialog::addAvailableItem(added);
        }
    };
    Renaming dialog;
    // By its name, as a connection of an application without the subclass's header.
    QVERIFY(QMetaObject::invokeMethod(&dialog, "addAvailableItem", Q_ARG(QStandardItem*, item(1))));
    const auto* model = dialog.getSelectionWidget()->getAvailableListView()->model();
    QCOMPARE(model->index(0, 0).data().toString(), QStringLiteral("Imported"));
}

void TestMultiItemSelectionDialog::everyWayToEndIt_data()
{
    QTest::addColumn<Script>("end");
    QTest::addColumn<int>("result");
    const auto key = [](Qt::Key pressed) {
        return Script([pressed](MultiItemSelectionDialog* dialog) {
            QTest::keyClick(dialog->windowHandle(), pressed);
        });
    };
    QTest::newRow("OK") << Script([](auto* dialog) { Finger().tap(button(dialog, "OK")); })
                        << int(QDialog::Accepted);
    QTest::newRow("Cancel") << Script([](auto* dialog) { Finger().tap(button(dialog, "Cancel")); })
                            << int(QDialog::Rejected);
    QTest::newRow("Enter") << key(Qt::Key_Return) << int(QDialog::Accepted);
    QTest::newRow("Escape") << key(Qt::Key_Escape) << int(QDialog::Rejected);
    QTest::newRow("close request")
        << Script([](auto* dialog) { dialog->close(); }) << int(QDialog::Rejected);
}

void TestMultiItemSelectionDialog::everyWayToEndIt()
{
    QFETCH(const Script, end);
    MultiItemSelectionDialog dialog;
    const int result =
        whileModal<MultiItemSelectionDialog>([&dialog] { return dialog.exec(); }, end);
    QTEST(result, "result");
}

void TestMultiItemSelectionDialog::enterInAListMovesNothing()
{
    MultiItemSelectionDialog dialog;
    dialog.showAddButton(true);
    dialog.addAvailableItem(item(1));
    auto* view = dialog.getSelectionWidget()->getAvailableListView();
    const int result = whileModal<MultiItemSelectionDialog>(
        [&dialog] { return dialog.exec(); },
        [view](MultiItemSelectionDialog* shown) {
            view->setFocus();
            view->setCurrentIndex(view->model()->index(0, 0));
            QTest::keyClick(shown->windowHandle(), Qt::Key_Return);
        });
    QCOMPARE(result, int(QDialog::Accepted));
    QCOMPARE(view->model()->rowCount(), 1);
}

void TestMultiItemSelectionDialog::aSpaceOnAnArrowMovesItems()
{
    MultiItemSelectionDialog dialog;
    dialog.addAvailableItem(item(1));
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const auto arrows = dialog.getSelectionWidget()->findChildren<QPushButton*>();
    for (QPushButton* arrow : arrows) {
        if (arrow->text() == QLatin1String(">>")) {
            arrow->setFocus();
        }
    }
    // Enter is the dialog's even here.
    QVERIFY(button(&dialog, "OK")->isDefault());
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Space);
    QCOMPARE(dialog.getSelectionWidget()->getSelectedItemIds(), QList<int> { 1 });
}

void TestMultiItemSelectionDialog::withAParentItIsAPartOfThat()
{
    QWidget parent;
    const auto* dialog = new MultiItemSelectionDialog(&parent);
    QCOMPARE(dialog->parentWidget(), &parent);
    QVERIFY(!dialog->isWindow());
}

UW_TEST_MAIN(TestMultiItemSelectionDialog)

#include "tst_multiitemselectiondialog.moc"
