// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mathkeys.h"

#include "numerickeys.h"
#include "softkey.h"
#include "units.h"
#include "valuechoices.h"

#include <panel/ground/numbertext.h>
#include <panel/model/panelmodel.h>

#include <widgets/menubutton.h>

namespace Panel
{

namespace
{

/// The commands of the memory key.
enum MemoryCommand {
    Store,
    Normalize,
    Clear,
};

/// Shares of the points, in percent.
const ValueChoices &smoothings()
{
    static const ValueChoices choices{{0.5, 1.0, 2.0, 5.0, 10.0, 20.0}};
    return choices;
}

} // namespace

MathKeys::MathKeys(PanelModel *model, const PanelKeys &keys, NumericKeys *numbers, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_keys(keys)
    , m_numbers(numbers)
{
    connectKeys();
    for (const auto signal : {&PanelModel::tracesChanged, &PanelModel::activeTraceChanged})
        connect(model, signal, this, &MathKeys::showState);
    connect(model, &PanelModel::memoryChanged, this, &MathKeys::showState);
    showState();
}

void MathKeys::connectKeys()
{
    m_keys.memory->addMenuItem(Store, tr("Data to memory"));
    m_keys.memory->addMenuItem(Normalize, tr("Normalize to data"));
    m_keys.memory->addMenuItem(Clear, tr("Clear memory"));
    connect(m_keys.memory, qOverload<int>(&MenuButton::menuItemClicked), this,
            &MathKeys::onMemoryPicked);
    QStringList names;
    for (int i = 0; i < traceMathCount; ++i)
        names << mathName(TraceMath(i));
    m_keys.math->setChoices(names);
    connect(m_keys.math, &SoftKey::choicePicked, this, [this](int index) {
        if (const Trace *trace = m_model->activeTrace())
            m_model->setTraceMath(trace->id, TraceMath(index));
        showState();
    });
    m_keys.smoothing->setChoices(smoothings().names(tr("Off"), QStringLiteral("%1 %")));
    connect(m_keys.smoothing, &SoftKey::choicePicked, this, [this](int index) {
        if (const Trace *trace = m_model->activeTrace())
            m_model->setSmoothing(trace->id, smoothings().valueOf(index));
        showState();
    });
    connect(m_keys.extensionPort, &SoftKey::choicePicked, this, [this](int index) {
        m_port = index;
        showState();
    });
    connect(m_keys.extension, &SoftKey::clicked, this, &MathKeys::editExtension);
    connect(m_keys.impedance, &SoftKey::clicked, this, &MathKeys::editImpedance);
}

void MathKeys::onMemoryPicked(int command)
{
    const Trace *trace = m_model->activeTrace();
    if (!trace)
        return;
    const int id = trace->id;
    if (command != Clear)
        m_model->storeMemory(id);
    if (command == Normalize)
        m_model->setTraceMath(id, TraceMath::Divided);
    else if (command == Clear)
        m_model->clearMemory(id);
}

QVector<int> MathKeys::extendedPorts() const
{
    const Trace *trace = m_model->activeTrace();
    const int ports = trace ? m_model->network(*trace).ports : 0;
    if (m_port > 0)
        return {m_port};
    QVector<int> all;
    for (int port = 1; port <= ports; ++port)
        all << port;
    return all;
}

void MathKeys::editExtension()
{
    const Trace *trace = m_model->activeTrace();
    if (!trace)
        return;
    const QVector<int> ports = extendedPorts();
    auto *adapter = new TimeAdapter;
    adapter->setRange(-Correction::longestDelay, Correction::longestDelay);
    adapter->setRealValue(m_model->correction(*trace).delay(ports.first()));
    m_numbers->edit(m_keys.extension, adapter, {1e-10, 1e-11, 1e-12},
                    [this, ports, id = trace->id](double seconds) {
                        const Trace *edited = m_model->trace(id);
                        if (!edited)
                            return;
                        Correction correction = m_model->correction(*edited);
                        for (const int port : ports)
                            correction.setDelay(port, seconds);
                        m_model->setCorrection(*edited, correction);
                    });
}

void MathKeys::editImpedance()
{
    const Trace *trace = m_model->activeTrace();
    if (!trace)
        return;
    const double own = m_model->networks().at(trace->network).referenceOhms;
    auto *adapter = new ResistanceAdapter;
    adapter->setRange(Correction::smallestReference, Correction::largestReference);
    adapter->setRealValue(m_model->traceData(*trace).reference.real());
    m_numbers->edit(m_keys.impedance, adapter, {25.0, 1.0, 0.1},
                    [this, own, id = trace->id](double ohms) {
                        const Trace *edited = m_model->trace(id);
                        if (!edited)
                            return;
                        Correction correction = m_model->correction(*edited);
                        const bool measured = ohms == own
                            && m_model->networks().at(edited->network).references.isEmpty();
                        correction.referenceOhms = measured ? 0.0 : ohms;
                        m_model->setCorrection(*edited, correction);
                    });
}

void MathKeys::showState()
{
    const Trace *active = m_model->activeTrace();
    const bool stored = active && m_model->memory(active->id);
    m_keys.memory->setEnabled(active);
    m_keys.memory->setItemEnabled(Clear, stored);
    m_keys.math->setChoice(stored ? int(active->math) : -1, active ? tr("Data") : QString());
    m_keys.math->setEnabled(stored);
    m_keys.smoothing->setChoice(active ? smoothings().choiceOf(active->smoothing) : -1);
    const int ports = active ? m_model->network(*active).ports : 0;
    QStringList names;
    if (ports != 1)
        names << tr("All ports");
    for (int port = 1; port <= ports; ++port)
        names << tr("Port %1").arg(port);
    if (m_port > ports && active)
        m_port = 1;
    m_keys.extensionPort->setChoices(names);
    m_keys.extensionPort->setChoice(!active ? -1 : ports == 1 ? 0 : m_port);
    const double delay = active ? m_model->correction(*active).delay(extendedPorts().first()) : 0.0;
    m_keys.extension->setValue(!active            ? nothingText()
                                   : delay == 0.0 ? tr("Off")
                                                  : engineeringText(delay, QStringLiteral("s")));
    m_keys.impedance->setValue(active ? ohmsText(m_model->traceData(*active).reference)
                                      : nothingText());
    for (SoftKey *key :
         {m_keys.smoothing, m_keys.extensionPort, m_keys.extension, m_keys.impedance})
        key->setEnabled(active);
}

} // namespace Panel
