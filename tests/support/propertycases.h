// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>
#include <QVariant>

#include <functional>
#include <memory>

/// One property that a class of the library has in addition to its Qt base class.
struct PropertyCase
{
    const char* className;
    const char* property;
    QVariant byDefault; ///< of `make()`
    QVariant other; ///< a value that it can be set to
    /// A subject that is ready for the property: some need a palette or a column first.
    std::function<std::unique_ptr<QObject>()> make;
    /// Whether a form sets it, on a subject that was just made.
    bool designable = true;
};

QList<PropertyCase> propertyCases();
