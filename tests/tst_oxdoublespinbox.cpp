// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxdoublespinbox.h"

#include "support/numberfield.h"
#include "support/test.h"

class TestOxDoubleSpinBox : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void reportsReturnAndEnterOnce();
    void reportsNoOtherKey();
    void reportsReturnOnceTheValueIsCommitted();
    void reportsTheLossOnceTheValueIsCommitted();
    void letsReturnTriggerTheDefaultButton();
};

void TestOxDoubleSpinBox::reportsReturnAndEnterOnce()
{
    NumberField::reportsReturnAndEnterOnce<OxDoubleSpinBox>();
}

void TestOxDoubleSpinBox::reportsNoOtherKey()
{
    NumberField::reportsNoOtherKey<OxDoubleSpinBox>();
}

void TestOxDoubleSpinBox::reportsReturnOnceTheValueIsCommitted()
{
    NumberField::reportsReturnOnceTheValueIsCommitted<OxDoubleSpinBox>();
}

void TestOxDoubleSpinBox::reportsTheLossOnceTheValueIsCommitted()
{
    NumberField::reportsTheLossOnceTheValueIsCommitted<OxDoubleSpinBox>();
}

void TestOxDoubleSpinBox::letsReturnTriggerTheDefaultButton()
{
    NumberField::letsReturnTriggerTheDefaultButton<OxDoubleSpinBox>();
}

UW_TEST_MAIN(TestOxDoubleSpinBox)

#include "tst_oxdoublespinbox.moc"
