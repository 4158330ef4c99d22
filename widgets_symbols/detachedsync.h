// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

/*!
 * Has the buffers of the file system written to the medium, by the program "sync", and returns
 * before that is done.
 *
 * Nobody learns when it has ended, or that there is no such program. It outlives this process if
 * need be. Any thread, also while the process ends.
 */
void startDetachedSync();
