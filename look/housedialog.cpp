// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "look/housedialog.h"

#include "look/icons.h"
#include "look/images.h"
#include "look/sheets.h"

#include <QAbstractButton>
#include <QDialog>
#include <QIcon>
#include <QLabel>

void Look::prepareHouseDialog(QDialog* dialog)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose, false);
    dialog->setAttribute(Qt::WA_QuitOnClose, false);
    dialog->setWindowIcon(icon(QStringLiteral(LOOK_IMAGE_APPLICATION)));
    dialog->setWindowTitle(QStringLiteral("Sigilant PRO"));
}

void Look::alignToLineStart(QLabel* label)
{
    label->setAlignment(Qt::AlignVCenter
                        | (label->isRightToLeft() ? Qt::AlignRight | Qt::AlignAbsolute
                                                  : Qt::Alignment(Qt::AlignLeft)));
}

void Look::prepareMessageButton(QAbstractButton* button)
{
    button->setMinimumSize(80, 30);
    button->setStyleSheet(messageButton());
}
