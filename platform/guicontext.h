// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <platform/vnaplatform_export.h>

#include <QObject>

#include <memory>

namespace Utils
{

/*! What every window of the application shares about its look: today, whether it is dark.
    The theme manager sets it; widgets outside the theme manager's reach listen to it. */
class VNAPLATFORM_EXPORT GUIContext : public QObject
{
    Q_OBJECT

    Q_PROPERTY(bool darkTheme READ getIsDarkTheme WRITE setIsDarkTheme NOTIFY darkThemeChanged)

public:
    /// The one instance, made at the first call and alive until the process ends.
    static GUIContext *instance();

    /// Stores the flag; darkThemeChanged() follows only when it differs from the stored one.
    void setIsDarkTheme(bool dark);
    /// True for the dark look, which is also the start-up value.
    bool getIsDarkTheme() const;

Q_SIGNALS:
    /// The flag has changed.
    void darkThemeChanged(bool dark);

private:
    GUIContext();
    ~GUIContext() override;

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace Utils
