// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrumentdialog.h"

#include "sweepbar.h"
#include <panel/ground/dialogstage.h>
#include <panel/ground/quietview.h>
#include <panel/link/linkaddress.h>
#include <panel/link/serialwire.h>
#include <panel/model/panelmodel.h>

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScroller>
#include <QVBoxLayout>

namespace Panel
{

namespace
{

/// Ports come and go while the list is on show.
constexpr int s_refreshInterval = 500;
constexpr int s_lineHeight = 44;

QPushButton *makeButton(const QString &text)
{
    auto *button = new QPushButton(text);
    button->setAutoDefault(false);
    button->setMinimumHeight(s_lineHeight);
    return button;
}

QString kindName(const QString &address)
{
    LinkAddress read;
    QString error;
    if (!parseLinkAddress(address, read, error))
        return {};
    switch (read.kind) {
    case LinkAddress::Shell:
        return InstrumentDialog::tr("small analyser, text shell");
    case LinkAddress::Program:
        return InstrumentDialog::tr("analyser program");
    case LinkAddress::Scpi:
        break;
    }
    return InstrumentDialog::tr("bench analyser, SCPI");
}

} // namespace

InstrumentDialog::InstrumentDialog(PanelModel *model, const SweepBar *bar, QWidget *parent)
    : DraggableFramelessDialog(parent)
    , m_model(model)
    , m_bar(bar)
    , m_state(new QLabel)
    , m_list(new QuietView<QListWidget>)
    , m_address(new QLineEdit)
    , m_connect(makeButton(tr("Connect")))
{
    setAccessibleName(tr("Instruments"));
    setWindowTitle(tr("Instruments"));
    setHeaderButton(Controls::DraggableDialogTitleBar::CloseButton);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(dialogMargins(12));
    m_state->setWordWrap(true);
    m_state->setTextFormat(Qt::PlainText);
    column->addWidget(m_state);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setAccessibleName(tr("Serial ports, and instruments used before"));
    QScroller::grabGesture(m_list->viewport(), QScroller::TouchGesture);
    connect(m_list, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem *item) { Q_EMIT picked(m_shown.at(m_list->row(item))); });
    connect(m_list, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem *item) { Q_EMIT picked(m_shown.at(m_list->row(item))); });
    column->addWidget(m_list, 1);
    column->addWidget(makeEntry());
    connect(m_model, &PanelModel::sourceStateChanged, this, &InstrumentDialog::refresh);
    connect(m_model, &PanelModel::sourceChanged, this, &InstrumentDialog::refresh);
    connect(&m_refresh, &QTimer::timeout, this, &InstrumentDialog::refresh);
    m_refresh.start(s_refreshInterval);
    refresh();
}

/// A line for an address, and below it the keys that one of numbers needs.
QWidget *InstrumentDialog::makeEntry()
{
    auto *entry = new QWidget;
    auto *column = new QVBoxLayout(entry);
    column->setContentsMargins(0, 0, 0, 0);
    auto *row = new QHBoxLayout;
    m_address->setMinimumHeight(s_lineHeight);
    m_address->setAccessibleName(tr("Address"));
    m_address->setText(QStringLiteral("scpi:"));
    m_address->setMaxLength(255);
    connect(m_address, &QLineEdit::returnPressed, this, &InstrumentDialog::connectTyped);
    connect(m_connect, &QPushButton::clicked, this, &InstrumentDialog::connectTyped);
    row->addWidget(m_address, 1);
    row->addWidget(m_connect);
    column->addLayout(row);
    auto *kinds = new QHBoxLayout;
    for (const char *const kind : {"scpi:", "librevna:", "nanovna:"}) {
        auto *button = makeButton(QLatin1String(kind));
        connect(button, &QPushButton::clicked, m_address, [this, kind] {
            const QString text = m_address->text();
            m_address->setText(QLatin1String(kind) + text.mid(text.indexOf(QLatin1Char(':')) + 1));
        });
        kinds->addWidget(button);
    }
    auto *erase = makeButton(QStringLiteral("\u232b"));
    erase->setAccessibleName(tr("Erase"));
    connect(erase, &QPushButton::clicked, m_address, &QLineEdit::backspace);
    kinds->addWidget(erase);
    column->addLayout(kinds);
    auto *keys = new QHBoxLayout;
    keys->setSpacing(4);
    for (const char key : {'1', '2', '3', '4', '5', '6', '7', '8', '9', '0', '.', ':'}) {
        auto *button = makeButton(QString(QLatin1Char(key)));
        button->setMinimumWidth(32);
        connect(button, &QPushButton::clicked, m_address,
                [this, key] { m_address->insert(QString(QLatin1Char(key))); });
        keys->addWidget(button);
    }
    column->addLayout(keys);
    return entry;
}

void InstrumentDialog::connectTyped()
{
    LinkAddress address;
    QString error;
    if (parseLinkAddress(m_address->text().trimmed(), address, error))
        Q_EMIT picked(address.text());
    else
        m_state->setText(error);
}

void InstrumentDialog::refresh()
{
    showState();
    showAddresses();
}

void InstrumentDialog::showState()
{
    const bool instrument = m_model->source() == Source::Instrument;
    const SourceState &state = m_model->sourceState();
    QStringList lines;
    if (!instrument || state.phase == SourceState::Idle)
        lines << tr("No instrument is connected. Tap one, or type its address.");
    else if (state.phase == SourceState::Connecting)
        lines << tr("Connecting to %1\u2026").arg(m_model->instrument());
    else if (state.phase == SourceState::Ready)
        lines << state.identity + QStringLiteral("   \u00b7   ")
                + (m_bar->speed().isEmpty() ? m_model->instrument() : m_bar->speed());
    else
        lines << state.trouble;
    if (instrument && state.phase == SourceState::Ready)
        lines << (state.calibration.isEmpty()
                      ? tr("It says nothing of a calibration of its own.")
                      : tr("Calibrated by itself: %1").arg(state.calibration));
    const QString text = lines.join(QLatin1Char('\n'));
    // A sentence about what was typed stays until there is something else to say.
    if (text != m_state->property("said").toString()) {
        m_state->setProperty("said", text);
        m_state->setText(text);
    }
}

void InstrumentDialog::showAddresses()
{
    QStringList addresses;
    const QStringList ports = serialPorts();
    for (const QString &port : ports)
        addresses << QStringLiteral("nanovna:") + port;
    const QStringList remembered = m_model->preferences()->instruments();
    for (const QString &address : remembered) {
        if (!addresses.contains(address))
            addresses << address;
    }
    if (addresses != m_shown || m_list->count() == 0) {
        m_shown = addresses;
        m_list->clear();
        for (const QString &address : addresses) {
            auto *item = new QListWidgetItem(
                address + QStringLiteral("   \u00b7   ") + kindName(address), m_list);
            item->setSizeHint({0, s_lineHeight});
        }
        if (addresses.isEmpty()) {
            m_list->addItem(tr("No serial port, and none used before."));
            m_list->item(0)->setFlags(Qt::NoItemFlags);
        }
    }
    const bool connected = m_model->source() == Source::Instrument;
    m_list->setCurrentRow(connected ? int(m_shown.indexOf(m_model->instrument())) : -1);
}

} // namespace Panel
