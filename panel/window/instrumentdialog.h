// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/draggableframelessdialog.h>

#include <QTimer>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace Panel
{

class PanelModel;
class SweepBar;

/*! Chooses an instrument with a finger: the serial ports that are there and the addresses that were
    used before, a tap for each, and a line for others with the keys that an address of numbers needs.
    Above them stands which instrument is connected, and how it stands with it. */
class InstrumentDialog : public Controls::DraggableFramelessDialog
{
    Q_OBJECT

public:
    /// The bar is the one that knows how fast it is measured.
    InstrumentDialog(PanelModel *model, const SweepBar *bar, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The address of an instrument, as parseLinkAddress() takes it.
    void picked(const QString &address);

private:
    QWidget *makeEntry();
    void refresh();
    void showState();
    void showAddresses();
    void connectTyped();

    PanelModel *m_model;
    const SweepBar *m_bar;
    QLabel *m_state;
    QListWidget *m_list;
    QLineEdit *m_address;
    QPushButton *m_connect;
    QTimer m_refresh;
    QStringList m_shown; ///< addresses of the rows
};

} // namespace Panel
