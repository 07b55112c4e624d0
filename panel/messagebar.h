// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QLabel;

namespace Panel
{

/// A sentence across the panel that stays until it is closed or replaced; hidden while there is
/// none.
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    explicit MessageBar(QWidget *parent = nullptr);

    QString message() const;
    /// Shows the bar; an empty message hides it.
    void setMessage(const QString &message);

private:
    QLabel *m_label;
};

} // namespace Panel
