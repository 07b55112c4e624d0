// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStackedWidget>

namespace Panel
{

/// A stack of pages that screen readers pass in silence; Qt's is a "layered pane" to them at each
/// step in or out.
class PageStack : public QStackedWidget
{
    Q_OBJECT

public:
    explicit PageStack(QWidget *parent = nullptr);
};

} // namespace Panel
