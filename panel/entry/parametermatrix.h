// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/draggableframelessdialog.h>

namespace Panel
{

/*! All scattering parameters of a network as a matrix of keys: rows for the port that the wave
    leaves, columns for the one that it enters. A tap picks one and closes; what does not fit
    scrolls under a finger. */
class ParameterMatrix : public Controls::DraggableFramelessDialog
{
    Q_OBJECT

public:
    /// For a network of so many ports, with one parameter marked.
    ParameterMatrix(int ports, int to, int from, QWidget *parent);

Q_SIGNALS:
    void picked(int to, int from);
};

} // namespace Panel
