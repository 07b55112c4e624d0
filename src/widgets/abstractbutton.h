// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QAbstractButton>

#include <memory>

class QStyleOptionButton;

/*! A push button drawn by the style alone, and the base of the touch buttons. It can be made inert
    without being greyed out: it then keeps its look, lets taps through to its parent and does not
    answer the keyboard.

    Not for a setting that is unavailable: disable the button, so that the user sees it.

    \code
    auto *button = new AbstractButton(this);
    button->setText(tr("Preset"));
    connect(button, &AbstractButton::clicked, this, &Panel::preset);
    button->setClickable(!remoteControlled); // looks the same either way
    \endcode

    Style sheets address it as a QPushButton is addressed: :pressed, :checked, :focus, :disabled. */
class VNAWIDGETS_EXPORT AbstractButton : public QAbstractButton
{
    Q_OBJECT

    Q_PROPERTY(bool clickable READ clickable WRITE setClickable)

public:
    /// A button without a text.
    explicit AbstractButton(QWidget *parent = nullptr);
    ~AbstractButton() override;

    /// Whether the button answers the user. Default: true.
    bool clickable() const;
    /// Sets clickable(); the look stays.
    void setClickable(bool clickable);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QStyleOptionButton styleOption() const;

    struct Private;
    const std::unique_ptr<Private> d;
};
