// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxcombobox.h"

#include "support/fieldform.h"
#include "support/test.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QSignalSpy>

namespace {

class FocusOuts : public QObject
{
public:
    explicit FocusOuts(QObject* watched) { watched->installEventFilter(this); }

    QList<Qt::FocusReason> reasons;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::FocusOut) {
            reasons.append(static_cast<QFocusEvent*>(event)->reason());
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

class TestOxComboBox : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void reportsTheLossAfterTheBaseHasHandledIt();
    void reportsTheLossWhenItsOwnListOpens();
};

void TestOxComboBox::reportsTheLossAfterTheBaseHasHandledIt()
{
    auto* box = new OxComboBox;
    box->addItems({ QStringLiteral("one"), QStringLiteral("two") });
    box->setEditable(true);
    FieldForm form(box);
    form.enter();
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, QStringLiteral("two"));
    QCOMPARE(box->currentIndex(), 0);
    int indexAtLoss = -1;
    connect(box, &OxComboBox::focusLostSignal, this, [&] { indexAtLoss = box->currentIndex(); });

    form.leave();

    QCOMPARE(indexAtLoss, 1);
}

void TestOxComboBox::reportsTheLossWhenItsOwnListOpens()
{
    auto* box = new OxComboBox;
    box->addItems({ QStringLiteral("one"), QStringLiteral("two") });
    FieldForm form(box);
    form.enter();
    FocusOuts focusOuts(box);
    QSignalSpy lost(box, &OxComboBox::focusLostSignal);

    box->showPopup();
    QVERIFY(focusOuts.reasons.contains(Qt::PopupFocusReason));
    QCOMPARE(lost.count(), focusOuts.reasons.count());
    box->hidePopup();
    QTRY_VERIFY(!box->view()->isVisible());
    QCOMPARE(lost.count(), focusOuts.reasons.count());
}

UW_TEST_MAIN(TestOxComboBox)

#include "tst_oxcombobox.moc"
