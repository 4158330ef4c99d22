// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxspinbox.h"

#include "support/numberfield.h"
#include "support/test.h"

class TestOxSpinBox : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void reportsReturnAndEnterOnce();
    void reportsNoOtherKey();
    void reportsReturnOnceTheValueIsCommitted();
    void reportsTheLossOnceTheValueIsCommitted();
    void letsReturnTriggerTheDefaultButton();
};

void TestOxSpinBox::reportsReturnAndEnterOnce()
{
    NumberField::reportsReturnAndEnterOnce<OxSpinBox>();
}

void TestOxSpinBox::reportsNoOtherKey()
{
    NumberField::reportsNoOtherKey<OxSpinBox>();
}

void TestOxSpinBox::reportsReturnOnceTheValueIsCommitted()
{
    NumberField::reportsReturnOnceTheValueIsCommitted<OxSpinBox>();
}

void TestOxSpinBox::reportsTheLossOnceTheValueIsCommitted()
{
    NumberField::reportsTheLossOnceTheValueIsCommitted<OxSpinBox>();
}

void TestOxSpinBox::letsReturnTriggerTheDefaultButton()
{
    NumberField::letsReturnTriggerTheDefaultButton<OxSpinBox>();
}

UW_TEST_MAIN(TestOxSpinBox)

#include "tst_oxspinbox.moc"
