// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
#pragma once

class QString;

namespace Gallery
{

class GalleryWindow;

/*! Writes a PNG of every section, dark and light, into \a folder, which is made
    where it is missing: <id>-dark.png and <id>-light.png. False, with a message, when one cannot be
    written. */
bool grabPictures(GalleryWindow *window, const QString &folder);

} // namespace Gallery
