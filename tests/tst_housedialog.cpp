// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/housedialog.h"

#include "oxmessagebox.h"
#include "oxtitlebar.h"
#include "support/everythingtranslated.h"
#include "support/test.h"

#include <QAccessible>
#include <QDialog>
#include <QPixmap>
#include <QPointer>

namespace {

class HouseDialog : public QDialog
{
public:
    explicit HouseDialog(QWidget* parent = nullptr)
        : QDialog(parent, Qt::FramelessWindowHint)
    {
        Look::prepareHouseDialog(this);
    }
};

} // namespace

class TestHouseDialog : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void closingDoesNotDeleteTheDialog();
    void closingDoesNotEndTheApplication();
    void windowIconIsTheHouseIcon();
    void windowTitleIsTheProductName();
    void windowTitleIsNotTranslated();
    void leavesTheRestOfTheDialogAlone();
    void messageBoxIsAHouseDialog();

    void standsInTheMiddleOfTheScreen();
    void standsInTheMiddleOfItsParentsWindow();
    void standsOnTheScreenAsAWhole();
    void staysWhereItWasMoved();
    void staysWhereItWasMovedWhileItWasShown();
    void isCentredAnewWhenItIsShownAgain();
    void aFrameIsReckonedWithAsByTheToolkit();
    void isNamedAsInItsTitleBar_data();
    void isNamedAsInItsTitleBar();
    void aNameOfItsOwnCounts();
    void otherDialogsAreNamedByTheirWindowTitle();
};

void TestHouseDialog::closingDoesNotDeleteTheDialog()
{
    QDialog dialog;
    const QPointer<QDialog> guard = &dialog;
    dialog.setAttribute(Qt::WA_DeleteOnClose);

    Look::prepareHouseDialog(&dialog);
    dialog.show();
    dialog.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QVERIFY(!dialog.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(guard != nullptr);
}

void TestHouseDialog::closingDoesNotEndTheApplication()
{
    QDialog dialog;
    dialog.setAttribute(Qt::WA_QuitOnClose);
    Look::prepareHouseDialog(&dialog);
    QVERIFY(!dialog.testAttribute(Qt::WA_QuitOnClose));
}

void TestHouseDialog::windowIconIsTheHouseIcon()
{
    QDialog dialog;
    Look::prepareHouseDialog(&dialog);
    const QIcon expected(QStringLiteral(":/Icon/ApplicationIcons/popup.ico"));
    const QImage icon = dialog.windowIcon().pixmap(32).toImage();
    QVERIFY(!icon.isNull());
    QCOMPARE(icon, expected.pixmap(32).toImage());
}

void TestHouseDialog::windowTitleIsTheProductName()
{
    QDialog dialog;
    Look::prepareHouseDialog(&dialog);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Sigilant PRO"));
}

void TestHouseDialog::windowTitleIsNotTranslated()
{
    const EverythingTranslated translated;
    QDialog dialog;
    Look::prepareHouseDialog(&dialog);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Sigilant PRO"));
}

void TestHouseDialog::leavesTheRestOfTheDialogAlone()
{
    const QDialog plain;
    QDialog dialog;
    Look::prepareHouseDialog(&dialog);
    QCOMPARE(dialog.windowFlags(), plain.windowFlags());
    QCOMPARE(dialog.objectName(), QString());
    QCOMPARE(dialog.styleSheet(), QString());
    QVERIFY(!dialog.isModal());
}

void TestHouseDialog::messageBoxIsAHouseDialog()
{
    QDialog dialog;
    Look::prepareHouseDialog(&dialog);
    const OxMessageBox box;
    QCOMPARE(box.windowTitle(), dialog.windowTitle());
    QCOMPARE(box.windowIcon().pixmap(32).toImage(), dialog.windowIcon().pixmap(32).toImage());
}

void TestHouseDialog::standsInTheMiddleOfTheScreen()
{
    for (const QSize& size : { QSize(300, 200), QSize(301, 199) }) {
        HouseDialog dialog;
        dialog.resize(size);
        dialog.show();
        QCOMPARE(dialog.geometry().center(), dialog.screen()->availableGeometry().center());
        QCOMPARE(dialog.size(), size);
    }
}

void TestHouseDialog::standsInTheMiddleOfItsParentsWindow()
{
    QWidget window;
    window.setGeometry(100, 50, 500, 400);
    QWidget child(&window);
    child.setGeometry(10, 10, 20, 20);
    window.show();
    HouseDialog dialog(&child);
    dialog.resize(300, 200);
    dialog.show();
    QCOMPARE(dialog.geometry().center(), window.geometry().center());
}

void TestHouseDialog::standsOnTheScreenAsAWhole()
{
    QWidget window;
    window.setGeometry(0, 0, 40, 30);
    window.show();
    HouseDialog dialog(&window);
    dialog.resize(300, 200);
    dialog.show();
    QCOMPARE(dialog.pos(), window.screen()->availableGeometry().topLeft());
    dialog.hide();

    // What is larger than the screen shows its title bar.
    dialog.resize(dialog.screen()->size() + QSize(20, 20));
    dialog.show();
    QCOMPARE(dialog.pos(), window.screen()->availableGeometry().topLeft());
}

void TestHouseDialog::staysWhereItWasMoved()
{
    HouseDialog dialog;
    dialog.resize(300, 200);
    dialog.move(20, 30);
    for (int times = 0; times < 2; ++times) {
        dialog.show();
        QCOMPARE(dialog.pos(), QPoint(20, 30));
        dialog.hide();
    }
}

void TestHouseDialog::staysWhereItWasMovedWhileItWasShown()
{
    HouseDialog dialog;
    dialog.resize(300, 200);
    dialog.show();
    dialog.move(20, 30);
    for (int times = 0; times < 2; ++times) {
        dialog.hide();
        dialog.show();
        QCOMPARE(dialog.pos(), QPoint(20, 30));
    }
}

void TestHouseDialog::isCentredAnewWhenItIsShownAgain()
{
    HouseDialog dialog;
    dialog.resize(300, 200);
    dialog.show();
    dialog.hide();
    dialog.resize(100, 100);
    dialog.show();
    QCOMPARE(dialog.geometry().center(), dialog.screen()->availableGeometry().center());
}

void TestHouseDialog::aFrameIsReckonedWithAsByTheToolkit()
{
    QDialog plain;
    plain.resize(300, 200);
    plain.show();
    QDialog dialog;
    Look::prepareHouseDialog(&dialog);
    dialog.resize(300, 200);
    dialog.show();
    QCOMPARE(dialog.pos(), plain.pos());
}

namespace {

QString accessibleName(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

} // namespace

void TestHouseDialog::isNamedAsInItsTitleBar_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << QStringLiteral("Save") << QStringLiteral("Save");
    QTest::newRow("rich") << QStringLiteral("<b>Save</b> as") << QStringLiteral("Save as");
    QTest::newRow("none") << QString() << QStringLiteral("Sigilant PRO");
}

void TestHouseDialog::isNamedAsInItsTitleBar()
{
    QFETCH(const QString, title);
    QFETCH(const QString, name);
    QDialog dialog;
    Look::prepareHouseDialog(&dialog);
    QCOMPARE(accessibleName(&dialog), QStringLiteral("Sigilant PRO"));
    OxTitleBar bar(&dialog, QString(), title);
    QCOMPARE(accessibleName(&dialog), name);
    QCOMPARE(QAccessible::queryAccessibleInterface(&dialog)->role(), QAccessible::Dialog);
    bar.setTitle(QStringLiteral("Open"));
    QCOMPARE(accessibleName(&dialog), QStringLiteral("Open"));
}

void TestHouseDialog::aNameOfItsOwnCounts()
{
    QDialog dialog;
    Look::prepareHouseDialog(&dialog);
    const OxTitleBar bar(&dialog, QString(), QStringLiteral("Save"));
    dialog.setAccessibleName(QStringLiteral("Save the label"));
    QCOMPARE(accessibleName(&dialog), QStringLiteral("Save the label"));
}

void TestHouseDialog::otherDialogsAreNamedByTheirWindowTitle()
{
    QDialog house;
    Look::prepareHouseDialog(&house);
    QDialog dialog;
    dialog.setWindowTitle(QStringLiteral("Ruler"));
    const OxTitleBar bar(&dialog, QString(), QStringLiteral("Measure"));
    QCOMPARE(accessibleName(&dialog), QStringLiteral("Ruler"));
}

UW_TEST_MAIN(TestHouseDialog)

#include "tst_housedialog.moc"
