// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QWidget>

#include <memory>

namespace Ui
{
class RectangularBottomWidget;
}

/*! The thin bar under a Cartesian diagram: sweep start at the left, sweep speed in the middle, stop
    at the right.

    It shows what it is told and computes nothing; texts come formatted with their units. Not for
    entering start and stop: use a button with the numeric keypad for that.

    \code
    auto *bar = new RectangularBottomWidget(this);
    bar->updateRange("2.000 GHz", "2.900 GHz");
    bar->setSweepSpeedText(tr("Speed: %1 sweeps/s").arg(rate));
    bar->setSweepSpeedVisible(sweeping);
    \endcode */
class VNAWIDGETS_EXPORT RectangularBottomWidget : public QWidget
{
    Q_OBJECT

public:
    /// A bar without values.
    explicit RectangularBottomWidget(QWidget *parent = nullptr);
    ~RectangularBottomWidget() override;

    /// Shows the ends of the sweep, formatted with unit.
    void updateRange(const QString &start, const QString &stop);
    /// Shows \a text in the middle, with its caption.
    void setSweepSpeedText(const QString &text);
    /// Shown at the start; start and stop keep their places without it.
    void setSweepSpeedVisible(bool visible);

protected:
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui::RectangularBottomWidget> ui;
};
