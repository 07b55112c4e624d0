// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QAbstractButton;
class QLabel;

namespace Panel
{

/// What stands in place of the diagrams where there is nothing to show: how to open a file.
class EmptyPage : public QWidget
{
    Q_OBJECT

public:
    explicit EmptyPage(QWidget *parent = nullptr);

    QAbstractButton *openButton() const { return m_openButton; }

private:
    void recolor();

    QLabel *m_mark;
    QAbstractButton *m_openButton;
};

} // namespace Panel
