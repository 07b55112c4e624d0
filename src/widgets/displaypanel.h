// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QWidget>

#include <memory>

namespace Graph
{
class LayoutManagerProifle;
}

/*! The panel that chooses how the diagrams share the window.

    Its combo box is bound to the layout profile: a choice is written there, and a change made
    elsewhere shows here. The icons follow the dark flag of Utils::GUIContext. The profile is not
    owned; it may be null or die first, and choices then have no effect.

    \code
    auto *panel = new DisplayPanel(settings->layoutProfile(), sidebar);
    connect(panel, &DisplayPanel::layoutChanged, this,
            [this](int type) { arrange(Graph::LayoutType(type)); });
    \endcode */
class VNAWIDGETS_EXPORT DisplayPanel : public QWidget
{
    Q_OBJECT

public:
    /// Shows and sets the layout of \a profile, which is not owned and may be null.
    explicit DisplayPanel(Graph::LayoutManagerProifle *profile, QWidget *parent = nullptr);
    ~DisplayPanel() override;

    /// Shows the icons made for the dark or for the light theme; the choice stays.
    void updateThemeIcons(bool dark);

Q_SIGNALS:
    /// The profile's layout changed, here or elsewhere; \a layoutType is a Graph::LayoutType.
    void layoutChanged(int layoutType);

protected:
    void changeEvent(QEvent *event) override;

private:
    void bindProfile();

    struct Private;
    const std::unique_ptr<Private> d;
};
