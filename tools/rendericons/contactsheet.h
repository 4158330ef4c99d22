// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

class IconRenderer;
class Manifest;
class QString;

/*!
 * Writes one picture per folder of images to `folder`, for judging the drawings by eye: each image
 * in its real size on the dark bar, the light panel, white and orange, and its pixels enlarged on
 * the colour that it is made for, at both scales. False when a file can't be written.
 */
bool writeContactSheets(const Manifest& manifest, IconRenderer& renderer, const QString& folder);
