// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tracecontroller.h"

#include "limitsheet.h"
#include "namedialog.h"
#include "numerickeys.h"
#include "parametermatrix.h"
#include "softkey.h"
#include <panel/ground/dialogstage.h>
#include <panel/ground/numbertext.h>
#include <panel/model/panelmodel.h>

#include <platform/placement.h>
#include <widgets/menubutton.h>
#include <widgets/popupwidget.h>
#include <widgets/switchbutton.h>

#include <algorithm>

namespace Panel
{

namespace
{

/// The commands of the autoscale key.
enum AutoScaleCommand {
    FitActive,
    FitAll,
};

QStringList formatNames()
{
    QStringList names;
    for (int i = 0; i < traceFormatCount; ++i)
        names << formatName(TraceFormat(i));
    return names;
}

/// As much of a name as a key has room for, from its beginning.
QString shortened(const QString &name)
{
    constexpr int longest = 14;
    return name.size() > longest ? name.left(longest - 1) + QChar(0x2026) : name;
}

} // namespace

TraceController::TraceController(PanelModel *model, const PanelKeys &keys, TraceBar *bar,
                                 NumericKeys *numbers, QWidget *host, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_keys(keys)
    , m_bar(bar)
    , m_numbers(numbers)
    , m_host(host)
{
    connect(bar, &TraceBar::activationRequested, model, &PanelModel::setActiveTrace);
    connect(bar, &TraceBar::addRequested, this, &TraceController::addTrace);
    connect(bar, &TraceBar::editRequested, this, &TraceController::onEditRequested);
    connectKeys();
    connect(m_model, &PanelModel::traceScaleChanged, this, &TraceController::showTrace);
    for (const auto signal : {&PanelModel::tracesChanged, &PanelModel::activeTraceChanged})
        connect(model, signal, this, &TraceController::showTrace);
    connect(model, &PanelModel::limitsChanged, this, &TraceController::showTrace);
    connect(model, &PanelModel::traceVisibleChanged, this, &TraceController::showTrace);
    connect(model->viewSettings(), &ViewSettings::changed, this, &TraceController::showTrace);
    showTrace();
}

void TraceController::connectKeys()
{
    const PanelKeys &keys = m_keys;
    connect(keys.parameter, &SoftKey::clicked, this, [this] {
        if (const Trace *trace = m_model->activeTrace())
            editParameter(trace->id);
    });
    connect(keys.trace, &SoftKey::choicePicked, this, [this](int index) {
        m_model->setActiveTrace(m_model->traces().at(index).id);
        showTrace();
    });
    keys.format->setChoices(formatNames());
    connect(keys.format, &SoftKey::choicePicked, this, [this](int index) {
        if (const Trace *trace = m_model->activeTrace())
            m_model->setTraceFormat(trace->id, TraceFormat(index));
        showTrace();
    });
    connect(keys.network, &SoftKey::choicePicked, this, [this](int network) {
        if (const Trace *trace = m_model->activeTrace())
            m_model->setTraceNetwork(trace->id, network);
    });
    connect(keys.diagram, &SoftKey::choicePicked, this, &TraceController::putIntoDiagram);
    connect(keys.name, &SoftKey::clicked, this, &TraceController::editName);
    keys.autoScale->addMenuItem(FitActive, tr("This trace"));
    keys.autoScale->addMenuItem(FitAll, tr("All traces"));
    connect(keys.autoScale, qOverload<int>(&MenuButton::menuItemClicked), this,
            &TraceController::onAutoScalePicked);
    connect(keys.referencePosition, &SoftKey::choicePicked, this, [this](int divisions) {
        if (const Trace *trace = m_model->activeTrace())
            m_model->setTraceScale(trace->id, trace->scale.withPosition(divisions));
    });
    connect(keys.limitLines, &SoftKey::clicked, this, [this] {
        const Trace *trace = m_model->activeTrace();
        if (m_limitSheet)
            m_limitSheet->leave();
        else if (trace && trace->overFrequency())
            m_limitSheet = new LimitSheet(m_model, trace->id, m_numbers, m_host);
    });
    connect(keys.addTrace, &SoftKey::clicked, this, &TraceController::addTrace);
    connect(keys.removeTrace, &SoftKey::clicked, this, [this] {
        if (const Trace *trace = m_model->activeTrace())
            m_model->removeTrace(trace->id);
    });
    connect(keys.visible, &SwitchButton::statusChanged, this, [this](bool visible) {
        if (const Trace *trace = m_model->activeTrace())
            m_model->setTraceVisible(trace->id, visible);
    });
}

void TraceController::onAutoScalePicked(int command)
{
    const Trace *active = m_model->activeTrace();
    for (const Trace &trace : QVector<Trace>(m_model->traces())) {
        if (command == FitAll || (active && active->id == trace.id))
            m_model->fitTrace(trace.id);
    }
}

void TraceController::onEditRequested(int traceId, TraceBar::Field field)
{
    const Trace *trace = m_model->trace(traceId);
    QWidget *button = m_bar->button(traceId);
    if (!trace || !button)
        return;
    const QRect place = m_bar->fieldRect(traceId, field);
    if (field == TraceBar::Scale) {
        m_numbers->editScale(button);
    } else if (field == TraceBar::Format) {
        choose(button, place, formatNames(), int(trace->format), [this, traceId](int index) {
            m_model->setTraceFormat(traceId, TraceFormat(index));
        });
    } else {
        editParameter(traceId);
    }
}

/// Adds a trace like the active one, and lets the user say which parameter it shows.
void TraceController::addTrace()
{
    const Trace *like = m_model->activeTrace();
    const int id = like ? m_model->addTrace(like->id) : 0;
    if (id == 0 || m_model->network(*m_model->trace(id)).ports == 1)
        return;
    editParameter(id);
}

void TraceController::editParameter(int traceId)
{
    const Trace &trace = *m_model->trace(traceId);
    auto *matrix = new ParameterMatrix(m_model->network(trace).ports, trace.to, trace.from, m_host);
    connect(matrix, &ParameterMatrix::picked, m_model,
            [this, traceId](int to, int from) { m_model->setTraceParameter(traceId, to, from); });
    DialogStage::show(matrix, m_host);
}

void TraceController::editName()
{
    const Trace *trace = m_model->activeTrace();
    if (!trace)
        return;
    auto *dialog =
        new NameDialog(tr("Name of Tr%1").arg(trace->id), trace->name, Trace::longestName, m_host);
    connect(dialog, &NameDialog::named, m_model,
            [this, id = trace->id](const QString &name) { m_model->setTraceName(id, name); });
    DialogStage::show(dialog, m_host);
}

void TraceController::putIntoDiagram(int choice)
{
    const Trace *trace = m_model->activeTrace();
    const int number = m_diagramNumbers.value(choice);
    if (trace && number > 0)
        m_model->setTraceDiagram(trace->id, number);
    else
        m_model->setDiagramsAutomatic();
}

void TraceController::choose(QWidget *anchor, const QRect &place, const QStringList &choices,
                             int current, const std::function<void(int)> &picked)
{
    auto *popup = new PopupWidget(m_host);
    popup->setScrollsInside(true);
    popup->addItems(choices, current);
    popup->setCurrentItem(choices.value(current));
    popup->setWidgetFixedWidth(qMax(120, place.width()));
    connect(popup, &PopupWidget::currentItemChanged, this,
            [choices, picked](const QString &text) { picked(int(choices.indexOf(text))); });
    connect(popup, &PopupWidget::widgetClosed, popup, &QObject::deleteLater);
    popup->popup();
    popup->move(Utils::boundedTopLeft(anchor->mapToGlobal(place.bottomLeft()), popup->size(),
                                      m_host->geometry(), 0));
    popup->show();
}

/// Lists the divisions from the top to the bottom.
void TraceController::showReferencePosition(const Trace *active)
{
    QStringList places{tr("Top")};
    const bool cartesian = active && active->overFrequency();
    for (int i = 1; cartesian && i < traits(active->format).divisions; ++i)
        places << QString::number(i);
    places << tr("Bottom");
    m_keys.referencePosition->setChoices(places);
    m_keys.referencePosition->setChoice(cartesian ? active->scale.position : -1);
    m_keys.referencePosition->setEnabled(cartesian);
}

void TraceController::showNetwork(const Trace *active)
{
    QStringList names;
    for (const Network &network : m_model->networks())
        names << network.name;
    m_keys.network->setChoices(names);
    m_keys.network->setChoice(active ? active->network : -1);
    m_keys.network->setEnabled(active && names.size() > 1);
}

/// Lists the diagrams that can show the active trace, and a new one where it shares its own.
void TraceController::showDiagram(const Trace *active)
{
    QStringList names{tr("Automatic")};
    m_diagramNumbers = {0};
    int choice = active ? 0 : -1;
    const QVector<PlannedDiagram> diagrams = m_model->allDiagrams();
    bool alone = false;
    for (int i = 0; active && i < diagrams.size(); ++i) {
        const PlannedDiagram &diagram = diagrams.at(i);
        if (diagram.id.kind != active->kind())
            continue;
        QStringList lines;
        for (const int id : diagram.traces)
            lines << m_model->trace(id)->label();
        if (diagram.traces.contains(active->id)) {
            alone = lines.size() == 1;
            if (active->diagram > 0)
                choice = int(names.size());
        }
        names << QStringLiteral("%1: %2").arg(i + 1).arg(lines.join(QStringLiteral(", ")));
        m_diagramNumbers << i + 1;
    }
    if (active && !alone) {
        names << tr("New");
        m_diagramNumbers << int(diagrams.size()) + 1;
    }
    m_keys.diagram->setChoices(names);
    m_keys.diagram->setChoice(choice);
    if (choice > 0)
        m_keys.diagram->setValue(QString::number(m_diagramNumbers.at(choice)));
    m_keys.diagram->setEnabled(active);
}

void TraceController::showTrace()
{
    const PanelKeys &keys = m_keys;
    const Trace *active = m_model->activeTrace();
    QStringList names;
    int index = -1;
    for (const Trace &trace : m_model->traces()) {
        if (active && trace.id == active->id)
            index = int(names.size());
        names << shortened(trace.label()) + QLatin1Char(' ') + PanelModel::parameterName(trace);
    }
    keys.trace->setChoices(names);
    keys.trace->setChoice(index);
    keys.format->setChoice(active ? int(active->format) : -1);
    keys.visible->setStatus(active && active->visible);
    showReferencePosition(active);
    showNetwork(active);
    showDiagram(active);
    keys.name->setValue(active && !active->name.isEmpty() ? shortened(active->name)
                                                          : nothingText());
    keys.name->setEnabled(active);
    const auto isPresent = [active](const LimitLine &limit) {
        return limit.format == active->format;
    };
    const auto count =
        active ? std::count_if(active->limits.begin(), active->limits.end(), isPresent) : 0;
    keys.limitLines->setEnabled(active && active->overFrequency());
    keys.limitLines->setValue(count == 0 ? tr("None") : QString::number(count));
    keys.addTrace->setEnabled(active && m_model->traces().size() < Trace::maximumCount);
    keys.removeTrace->setEnabled(m_model->traces().size() > 1);
    keys.addTrace->setValue(QStringLiteral("+"));
    keys.removeTrace->setValue(active ? QStringLiteral("Tr%1").arg(active->id) : nothingText());
    keys.parameter->setValue(active ? PanelModel::parameterName(*active) : nothingText());
    keys.parameter->setEnabled(active && m_model->network(*active).ports > 1);
    for (QWidget *key : {static_cast<QWidget *>(keys.trace), static_cast<QWidget *>(keys.format),
                         static_cast<QWidget *>(keys.visible)})
        key->setEnabled(active);
}

} // namespace Panel
