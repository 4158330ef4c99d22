// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/housedialog.h"

#include "oxmessagebox.h"
#include "support/everythingtranslated.h"
#include "support/test.h"

#include <QDialog>
#include <QPixmap>
#include <QPointer>

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

UW_TEST_MAIN(TestHouseDialog)

#include "tst_housedialog.moc"
