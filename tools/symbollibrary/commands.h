// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commandline.h"

/// Each returns an exit code of Console, once it has said all there is to say.
namespace Commands {

int update(const CommandLine& line);
int list(const CommandLine& line);
int search(const CommandLine& line);
int exportSymbols(const CommandLine& line);
int check(const CommandLine& line);
int remove(const CommandLine& line);

} // namespace Commands
