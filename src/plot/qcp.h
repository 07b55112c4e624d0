// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    The one door to QCustomPlot. Its header uses the bare words signals, slots, emit and foreach,
    which a host built with QT_NO_KEYWORDS does not have: they are lent to it here and taken back
    afterwards. */
#pragma once

#include <QtCore/qglobal.h>

#ifdef QT_NO_KEYWORDS
#define signals Q_SIGNALS
#define slots Q_SLOTS
#define emit Q_EMIT
#define foreach Q_FOREACH
#endif

#include <qcustomplot.h>

#ifdef QT_NO_KEYWORDS
#undef signals
#undef slots
#undef emit
#undef foreach
#endif
