// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

// What the symbol database does, in as few steps as possible and on one thread: the peer that it is
// measured against. Ends the program where something fails.

struct PlainSymbol
{
    int id = 0;
    std::string name;
    std::vector<unsigned char> thumbnail;
};

/// The rows of a statement that gives id, name and thumbnail.
std::vector<PlainSymbol> readPlainSymbols(const char* database, const char* statement);

/// The names of all symbols.
std::vector<std::string> readPlainNames(const char* database);

/// The paths of the drawings in a folder's folders, read as well if `content` is wanted.
std::vector<std::string> listPlainly(const char* folder, bool content);

/// Renders the drawings of a folder's folders and stores them.
void updatePlainly(const char* database, const char* folder);

/// What updatePlainly() renders with, as the head of a table.
const char* plainRendererName();
