// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <platform/vnaplatform_export.h>

#include <QObject>

#include <memory>

namespace Graph
{
Q_NAMESPACE_EXPORT(VNAPLATFORM_EXPORT)

/// How the diagrams share the window.
enum class LayoutType {
    Single, ///< one diagram
    SideBySide, ///< two, left and right
    Stacked, ///< two, one above the other
    Quad, ///< four
};
Q_ENUM_NS(LayoutType)

/*! The part of the instrument's settings that says how diagrams are laid out.

    It holds the value and tells changes; keeping it from one start to the next is the host's
    business.

    \code
    auto *profile = new Graph::LayoutManagerProifle(this);
    profile->setLayoutType(Graph::LayoutType::Quad);
    connect(profile, &Graph::LayoutManagerProifle::layoutTypeChanged, this, &Panel::arrange);
    auto *panel = new DisplayPanel(profile, this);
    \endcode */
class VNAPLATFORM_EXPORT LayoutManagerProifle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(
        Graph::LayoutType layoutType READ layoutType WRITE setLayoutType NOTIFY layoutTypeChanged)

public:
    /// Belongs to \a parent; one diagram at first.
    explicit LayoutManagerProifle(QObject *parent = nullptr);
    ~LayoutManagerProifle() override;

    /// LayoutType::Single at the start.
    LayoutType layoutType() const;

public Q_SLOTS:
    /// Sets the layout, and tells so when it is another one.
    void setLayoutType(Graph::LayoutType type);

Q_SIGNALS:
    /// The layout has changed.
    void layoutTypeChanged(Graph::LayoutType type);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace Graph
