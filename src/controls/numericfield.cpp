// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/numericfield.h>

#include <controls/step125controller.h>
#include <controls/touchnumkeyboard.h>

#include <QDoubleValidator>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>

#include <cmath>
#include <limits>
#include <utility>

namespace Controls
{

namespace
{

constexpr char s_prefixes[] = "TGMk munpf";
constexpr double s_infinity = std::numeric_limits<double>::infinity();

/// The factor of an SI prefix, or 0 for none.
double factorOf(QChar prefix)
{
    const auto at = QLatin1String(s_prefixes).indexOf(prefix);
    return at < 0 ? 0.0 : std::pow(10.0, 12 - 3 * int(at));
}

} // namespace

class NumericFieldPrivate
{
public:
    explicit NumericFieldPrivate(NumericField *field)
        : q(field)
    {
    }

    QVector<ScaledUnitAdapter::Unit> units() const;
    void makeAdapter();
    void limit();
    void updateStepper();
    /// Tells what has become of the value, unless it is the one told last.
    void tell();

    NumericField *const q;
    double minimum = -s_infinity;
    double maximum = s_infinity;
    int decimals = 6;
    QString unit;
    QString prefixes;
    bool hasUnitSpacing = true;
    double singleStep = 0.0;
    bool isKeypadEnabled = true;
    double told = 0.0;
    std::unique_ptr<ScaledUnitAdapter> own; ///< in use, or kept while a host's is
    std::unique_ptr<StepController> stepper;
    QPointer<TouchNumKeyboard> keypad;
    bool usesOwn = true;
};

QVector<ScaledUnitAdapter::Unit> NumericFieldPrivate::units() const
{
    QVector<ScaledUnitAdapter::Unit> units;
    for (const QChar prefix : prefixes.isEmpty() ? QStringLiteral(" ") : prefixes) {
        QString name = unit;
        if (prefix == QLatin1Char('u'))
            name.prepend(QChar(0xb5));
        else if (prefix != QLatin1Char(' '))
            name.prepend(prefix);
        units.append({name, factorOf(prefix)});
    }
    return units;
}

/// Units are given to an adapter for good, so that a change of them makes another one.
void NumericFieldPrivate::makeAdapter()
{
    const double value = own ? own->getRealValue() : 0.0;
    auto adapter = std::make_unique<ScaledUnitAdapter>(
        unit.isEmpty() ? QVector<ScaledUnitAdapter::Unit>() : units());
    adapter->setEscKeyPolicy(BaseUnitAdapter::EscKeepsDialog);
    adapter->setDecimals(decimals);
    adapter->setUnitSpacing(hasUnitSpacing);
    adapter->setRealValue(value);
    const std::unique_ptr<ScaledUnitAdapter> former = std::exchange(own, std::move(adapter));
    limit();
    updateStepper();
    if (usesOwn)
        q->setAdapter(nullptr);
}

void NumericFieldPrivate::limit()
{
    delete own->validator();
    if (std::isfinite(minimum) || std::isfinite(maximum)) {
        auto *range = new QDoubleValidator(own.get());
        range->setRange(minimum, maximum);
        own->setValidator(range);
    }
    own->setRealValue(own->getRealValue());
}

void NumericFieldPrivate::updateStepper()
{
    if (singleStep == 0.0) {
        auto steps = std::make_unique<Step125Controller>();
        steps->setZeroThreshold(0.0);
        stepper = std::move(steps);
    } else {
        stepper = std::make_unique<StepController>();
        stepper->setSingleStep(singleStep);
    }
    stepper->setAdapter(q->adapter() && !usesOwn ? q->adapter() : own.get());
}

void NumericFieldPrivate::tell()
{
    const double value = q->value();
    if (value == told)
        return;
    told = value;
    Q_EMIT q->valueChanged(value);
}

NumericField::NumericField(QWidget *parent)
    : EditableWidget(nullptr, nullptr, parent)
    , d(std::make_unique<NumericFieldPrivate>(this))
{
    setKeepsEntryOpen(true);
    setClosesKeyboard(true);
    setLabelText({});
    d->makeAdapter();
}

NumericField::~NumericField()
{
    EditableWidget::setAdapter(nullptr);
    delete d->keypad;
}

double NumericField::value() const
{
    return adapter() ? adapter()->getRealValue() : 0.0;
}

double NumericField::minimum() const
{
    return d->minimum;
}

double NumericField::maximum() const
{
    return d->maximum;
}

void NumericField::setMinimum(double minimum)
{
    setRange(minimum, qMax(minimum, d->maximum));
}

void NumericField::setMaximum(double maximum)
{
    setRange(qMin(d->minimum, maximum), maximum);
}

void NumericField::setRange(double minimum, double maximum)
{
    if (std::isnan(minimum) || std::isnan(maximum) || minimum > maximum)
        return;
    d->minimum = minimum;
    d->maximum = maximum;
    d->limit();
    showValue();
    d->tell();
}

int NumericField::decimals() const
{
    return d->decimals;
}

void NumericField::setDecimals(int decimals)
{
    d->decimals = qBound(0, decimals, 15);
    d->makeAdapter();
}

QString NumericField::unit() const
{
    return d->unit;
}

void NumericField::setUnit(const QString &unit)
{
    d->unit = unit;
    d->makeAdapter();
}

QString NumericField::prefixes() const
{
    return d->prefixes;
}

void NumericField::setPrefixes(const QString &prefixes)
{
    d->prefixes.clear();
    for (const QChar prefix : prefixes) {
        if (factorOf(prefix) > 0.0)
            d->prefixes += prefix;
    }
    d->makeAdapter();
}

bool NumericField::hasUnitSpacing() const
{
    return d->hasUnitSpacing;
}

void NumericField::setUnitSpacing(bool spacing)
{
    d->hasUnitSpacing = spacing;
    d->makeAdapter();
}

double NumericField::singleStep() const
{
    return d->singleStep;
}

void NumericField::setSingleStep(double step)
{
    if (!std::isfinite(step))
        return;
    d->singleStep = step;
    d->updateStepper();
}

bool NumericField::isKeypadEnabled() const
{
    return d->isKeypadEnabled;
}

void NumericField::setKeypadEnabled(bool enabled)
{
    d->isKeypadEnabled = enabled;
}

TouchNumKeyboard *NumericField::keypad()
{
    if (!d->keypad) {
        d->keypad = new TouchNumKeyboard(this);
        setKeyboard(d->keypad);
    }
    return d->keypad;
}

void NumericField::setAdapter(BaseUnitAdapter *adapter)
{
    d->usesOwn = !adapter;
    BaseUnitAdapter *const next = adapter ? adapter : d->own.get();
    if (next == this->adapter())
        return;
    EditableWidget::setAdapter(next);
    d->stepper->setAdapter(next);
    connect(next, &BaseUnitAdapter::editingFinished, this, [this](double value) {
        const QPointer<NumericField> self(this);
        d->tell();
        if (self)
            Q_EMIT valueEntered(value);
    });
    connect(next, &BaseUnitAdapter::entryClamped, this, &NumericField::valueClamped);
    connect(next, &BaseUnitAdapter::entryRefused, this, &NumericField::entryRefused);
    d->tell();
}

void NumericField::setValue(double value)
{
    if (std::isnan(value) || !adapter())
        return;
    adapter()->setRealValue(value);
    showValue();
    d->tell();
}

void NumericField::onFocus()
{
    EditableWidget::onFocus();
    selectNumber();
}

void NumericField::openKeypad()
{
    if (keypad()->isVisible() || !isEnabled() || !editor() || editor()->isReadOnly())
        return;
    keypad()->setWindowTitle(labelText());
    keypad()->setHostWindow(window());
    keypad()->setPopupAnchorWidget(this);
    editor()->setFocus(Qt::OtherFocusReason);
    registerAtKeyboard();
    overrideKeyboardFocusProxy(editor());
    keypad()->open();
    selectNumber();
}

bool NumericField::eventFilter(QObject *object, QEvent *event)
{
    const bool isTap = object == editor() && event->type() == QEvent::MouseButtonRelease
        && static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton;
    if (isTap && d->isKeypadEnabled)
        openKeypad();
    return EditableWidget::eventFilter(object, event);
}

} // namespace Controls
