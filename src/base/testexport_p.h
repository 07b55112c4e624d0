// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

/// Marks private classes that tests, fuzz targets and benchmarks reach: exported by a build that
/// has any of these, and by no other.
#ifdef VNAWIDGETS_EXPORTS_FOR_TESTS
#define VNAWIDGETS_TEST_EXPORT VNAWIDGETS_EXPORT
#else
#define VNAWIDGETS_TEST_EXPORT VNAWIDGETS_NO_EXPORT
#endif
