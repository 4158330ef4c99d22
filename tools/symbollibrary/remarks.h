// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/// In what way a symbol does not look as it was drawn, and why; empty if it does.
QString remarksOn(const QByteArray& thumbnail, const QByteArray& document);
