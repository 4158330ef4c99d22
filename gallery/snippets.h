// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Gallery {

/// The lines of `source` between two marks "//! [name]", without their common indentation and
/// without the line break at the end; empty when there are no such marks. Several such parts follow
/// each other.
QString extractSnippet(const QString& source, const QString& name);

/// The snippet of that name in the embedded source at `path`.
QString snippet(const QString& path, const QString& name);

} // namespace Gallery
