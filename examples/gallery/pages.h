// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
/*! \file
    The pages of the gallery, one a widget family; each belongs to the caller. */
#pragma once

namespace Gallery
{

class Page;

Page *createButtonsPage();
Page *createListsPage();
Page *createChartsPage();
Page *createEntryPage();
Page *createReadoutsPage();
Page *createContainersPage();

} // namespace Gallery
