// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <widgets/infobutton.h>

#include <memory>

/*! A setting that is on or off: its name, and the two buttons "On" and "Off" beside it, of which
    one is always checked.

    Not for a choice of more than two (EnumTextButton).

    \code
    auto *sweep = new SwitchButton(this);
    sweep->setText(tr("Sweep"));
    sweep->setStatus(analyser->isSweeping());
    connect(sweep, &SwitchButton::statusChanged, analyser, &Analyser::setSweeping);
    \endcode

    Style sheets address the buttons as QPushButton#btnOn and QPushButton#btnOff with :checked. The
    keyboard goes to the checked one; arrow keys switch. */
class VNAWIDGETS_EXPORT SwitchButton : public InfoButton
{
    Q_OBJECT

    Q_PROPERTY(bool status READ status WRITE setStatus NOTIFY statusToggled)

public:
    /// A switch that is off.
    explicit SwitchButton(QWidget *parent = nullptr);
    ~SwitchButton() override;

    /// Whether "On" is checked. Default: false.
    bool status() const;
    /// Checks one of the buttons, without statusChanged().
    void setStatus(bool on);

Q_SIGNALS:
    /// The user tapped a button, also the one that was checked already.
    void statusChanged(bool state);
    /// The status is another one now, by a tap or by setStatus().
    void statusToggled(bool on);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void onButtonClicked(QAbstractButton *button);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
