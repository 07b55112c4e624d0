// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <platform/vnaplatform_export.h>

#include <QObject>

#include <memory>

class QWidget;

namespace Utils
{

/*! Lets a mouse or a finger drag a widget about, and tells a tap from a drag.

    A child widget stays inside its parent, a window inside the available part of its screen. The
    tool takes all presses of the left button and all touches of the widget; put it on a handle or
    on a floating button, not on a widget with contents to press.

    \code
    auto *tool = new Utils::WidgetMouseMoveTool(padlock);
    connect(tool, &Utils::WidgetMouseMoveTool::clicked, this, &Panel::toggleLock);
    tool->setMovable(false); // a tap still counts
    \endcode */
class VNAPLATFORM_EXPORT WidgetMouseMoveTool : public QObject
{
    Q_OBJECT

public:
    /// Works on \a widget from now on and becomes its child.
    explicit WidgetMouseMoveTool(QWidget *widget);
    ~WidgetMouseMoveTool() override;

    /// Whether dragging moves the widget; true at the start.
    bool isMovable() const;
    /// Sets whether the widget can be dragged.
    void setMovable(bool movable);

Q_SIGNALS:
    /*! A press and a release with less way between them than QApplication::startDragDistance(), by
        the left button or one finger. A second finger or a cancelled touch makes it no tap. */
    void clicked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool filterTouch(QEvent *event);
    void press(const QPoint &global);
    void moveTo(const QPoint &global);
    void release(const QPoint &global);

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace Utils
