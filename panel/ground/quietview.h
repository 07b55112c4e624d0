// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractItemView>
#include <QTimer>

namespace Panel
{

/// A list or table that is read aloud while it has the focus, beginning with the current item. Qt's
/// views tell screen readers of each new current item as if they had the focus, and of none when they
/// get it.
template<typename View>
class QuietView : public View
{
public:
    using View::View;

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override
    {
        if (this->hasFocus())
            View::currentChanged(current, previous);
        else
            // NOLINTNEXTLINE(bugprone-parent-virtual-call): it is what the view adds that is left out
            QAbstractItemView::currentChanged(current, previous);
    }

    void focusInEvent(QFocusEvent *event) override
    {
        View::focusInEvent(event);
        // After Qt has told that the view has the focus.
        QTimer::singleShot(0, this, [this] {
            const QModelIndex current = this->currentIndex();
            if (current.isValid() && this->hasFocus())
                View::currentChanged(current, current);
        });
    }
};

} // namespace Panel
