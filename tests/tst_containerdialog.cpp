// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "containerdialog.h"

#include "containertitlebar.h"
#include "support/everythingtranslated.h"
#include "support/finger.h"
#include "support/modaldialog.h"
#include "support/test.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <memory>

namespace {

ContainerTitleBar* titleBarOf(const ContainerDialog& dialog)
{
    return dialog.findChild<ContainerTitleBar*>();
}

QString titleOf(const ContainerDialog& dialog)
{
    return titleBarOf(dialog)->findChild<QLabel*>()->text();
}

QPushButton* closeButtonOf(const ContainerDialog& dialog)
{
    return titleBarOf(dialog)->findChild<QPushButton*>();
}

QWidget* containedArea(const ContainerDialog& dialog)
{
    return dialog.layout()->itemAt(1)->widget();
}

} // namespace

class TestContainerDialog : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedContainerDialog();
    void isAFramelessWindow();
    void closingNeitherDeletesItNorQuits();
    void hasTheHousesIconAndTitle();
    void theSheetFramesEveryDialog();
    void theTitleIsEmptyUntilItIsSet();
    void theLayoutIsExact();
    void withoutContentItShowsOnlyTheTitleBarOverAnEmptyArea();
    void theContainedAreaTakesTheLayoutOver();
    void aSecondLayoutIsRefusedAndStaysTheCallers();
    void theCloseButtonHidesItWithoutAResult();
    void hiddenItCanBeShownAgain();
    void escapeRejects();
    void isGreyInAnOrangeFrame();
    void aDialogInsideHasTheFrameToo();
    void theCloseButtonKeepsItsSize();
};

void TestContainerDialog::isNamedContainerDialog()
{
    const ContainerDialog dialog;
    QCOMPARE(dialog.objectName(), QStringLiteral("ContainerDialog"));
}

void TestContainerDialog::isAFramelessWindow()
{
    const ContainerDialog dialog;
    QCOMPARE(dialog.parentWidget(), nullptr);
    QCOMPARE(dialog.windowFlags(), Qt::FramelessWindowHint | Qt::Window);
}

void TestContainerDialog::closingNeitherDeletesItNorQuits()
{
    const ContainerDialog dialog;
    QVERIFY(!dialog.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!dialog.testAttribute(Qt::WA_QuitOnClose));
}

void TestContainerDialog::hasTheHousesIconAndTitle()
{
    const EverythingTranslated translated;
    const ContainerDialog dialog;
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Sigilant PRO"));
    QVERIFY(!dialog.windowIcon().pixmap(32).isNull());
    QCOMPARE(dialog.windowIcon().pixmap(32).toImage(),
             QIcon(QStringLiteral(":/Icon/ApplicationIcons/popup.ico")).pixmap(32).toImage());
}

void TestContainerDialog::theSheetFramesEveryDialog()
{
    const ContainerDialog dialog;
    QCOMPARE(dialog.styleSheet(),
             QStringLiteral("QDialog { background-color: #f2f2f2; border: 1px solid #fd7800; } "));
}

void TestContainerDialog::theTitleIsEmptyUntilItIsSet()
{
    ContainerDialog dialog;
    QCOMPARE(titleOf(dialog), QString());
    dialog.setHeaderLabelText(QStringLiteral("Grid"));
    QCOMPARE(titleOf(dialog), QStringLiteral("Grid"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Sigilant PRO"));
}

void TestContainerDialog::theLayoutIsExact()
{
    const ContainerDialog dialog;
    const auto* grid = qobject_cast<QGridLayout*>(dialog.layout());
    QVERIFY(grid != nullptr);
    QCOMPARE(grid->contentsMargins(), QMargins());
    QCOMPARE(grid->horizontalSpacing(), 0);
    QCOMPARE(grid->verticalSpacing(), 0);
    QCOMPARE(grid->count(), 2);
    QCOMPARE(grid->itemAt(0)->widget(), titleBarOf(dialog));
    QCOMPARE(QByteArray(containedArea(dialog)->metaObject()->className()), "QWidget");
    for (int i = 0; i < 2; ++i) {
        int row = -1;
        int column = -1;
        int rows = -1;
        int columns = -1;
        grid->getItemPosition(i, &row, &column, &rows, &columns);
        QCOMPARE(row, i);
        QCOMPARE(column, 0);
        QCOMPARE(rows, 1);
        QCOMPARE(columns, 2);
        QCOMPARE(grid->itemAt(i)->alignment(), Qt::Alignment());
    }
}

void TestContainerDialog::withoutContentItShowsOnlyTheTitleBarOverAnEmptyArea()
{
    ContainerDialog dialog;
    dialog.resize(300, 200);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));

    QCOMPARE(titleBarOf(dialog)->geometry(), QRect(0, 0, 300, 46));
    QCOMPARE(containedArea(dialog)->geometry(), QRect(0, 46, 300, 154));
    QVERIFY(containedArea(dialog)->children().isEmpty());
}

void TestContainerDialog::theContainedAreaTakesTheLayoutOver()
{
    ContainerDialog dialog;
    auto* content = new QVBoxLayout;
    auto* button = new QPushButton;
    content->addWidget(button);

    dialog.setContainedWidget(content);

    QCOMPARE(containedArea(dialog)->layout(), content);
    QCOMPARE(button->parentWidget(), containedArea(dialog));
}

void TestContainerDialog::aSecondLayoutIsRefusedAndStaysTheCallers()
{
    ContainerDialog dialog;
    auto* first = new QVBoxLayout;
    dialog.setContainedWidget(first);
    const auto second = std::make_unique<QVBoxLayout>();

    QTest::ignoreMessage(QtWarningMsg,
                         "QWidget::setLayout: Attempting to set QLayout \"\" on QWidget \"\", "
                         "which already has a layout");
    dialog.setContainedWidget(second.get());

    QCOMPARE(containedArea(dialog)->layout(), first);
    QCOMPARE(second->parent(), nullptr);
}

void TestContainerDialog::theCloseButtonHidesItWithoutAResult()
{
    ContainerDialog dialog;
    QSignalSpy finished(&dialog, &QDialog::finished);
    QSignalSpy rejected(&dialog, &QDialog::rejected);

    const int result = whileModal<ContainerDialog>(
        [&dialog] { return dialog.exec(); },
        [](ContainerDialog* shown) { Finger().tap(closeButtonOf(*shown)); });

    QCOMPARE(result, 0);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(finished.count(), 0);
    QCOMPARE(rejected.count(), 0);
}

void TestContainerDialog::hiddenItCanBeShownAgain()
{
    ContainerDialog dialog;
    auto* content = new QVBoxLayout;
    auto* button = new QPushButton;
    content->addWidget(button);
    dialog.setContainedWidget(content);
    dialog.show();
    Finger().tap(closeButtonOf(dialog));
    QVERIFY(!dialog.isVisible());

    dialog.show();

    QVERIFY(dialog.isVisible());
    QVERIFY(button->isVisible());
}

void TestContainerDialog::escapeRejects()
{
    ContainerDialog dialog;
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    whileModal<ContainerDialog>(
        [&dialog] { dialog.exec(); },
        [](ContainerDialog* shown) { QTest::keyClick(shown->windowHandle(), Qt::Key_Escape); });
    QCOMPARE(rejected.count(), 1);
}

void TestContainerDialog::isGreyInAnOrangeFrame()
{
    ContainerDialog dialog;
    dialog.resize(300, 200);
    const QImage picture = dialog.grab().toImage();
    const QColor orange(0xfd, 0x78, 0x00);
    QCOMPARE(picture.pixelColor(0, 100), orange);
    QCOMPARE(picture.pixelColor(299, 100), orange);
    QCOMPARE(picture.pixelColor(150, 199), orange);
    QCOMPARE(picture.pixelColor(150, 100), QColor(0xf2, 0xf2, 0xf2));
}

void TestContainerDialog::aDialogInsideHasTheFrameToo()
{
    ContainerDialog dialog;
    QDialog inner(&dialog);
    inner.resize(100, 100);
    const QImage picture = inner.grab().toImage();
    QCOMPARE(picture.pixelColor(0, 50), QColor(0xfd, 0x78, 0x00));
    QCOMPARE(picture.pixelColor(50, 50), QColor(0xf2, 0xf2, 0xf2));
}

void TestContainerDialog::theCloseButtonKeepsItsSize()
{
    ContainerDialog dialog;
    dialog.show();
    QCOMPARE(closeButtonOf(dialog)->size(), QSize(34, 31));
}

UW_TEST_MAIN(TestContainerDialog)

#include "tst_containerdialog.moc"
