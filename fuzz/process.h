// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    What programs that play a whole panel ask of their process. */
#pragma once

#include <QObject>
#include <QStringList>

namespace Fuzz
{

/// Processor time of this thread alone, so that what else the machine does counts little.
double cpuMilliseconds();
/// In use, without the cache of pictures; 0 under a sanitizer, which has an allocator of its own.
double heapKiB();

/// Gathers what Qt warns of from now on, but not what a platform without a display cannot do.
void watchWarnings();
QStringList takeWarnings();

/*! Turns away what waits in a loop of its own as it opens: Qt's menu of a scroll bar, and its dialogs
    in windows of their own, as the print dialog opens them. That of files could also rename and delete
    what is not ours. The panel's dialogs lie within its window. */
class Doorkeeper : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace Fuzz
