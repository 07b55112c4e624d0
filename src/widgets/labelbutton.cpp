// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <widgets/labelbutton.h>

#include <base/fingersize_p.h>
#include <base/qtcompat_p.h>
#include <widgets/buttonaccessible_p.h>

#include <QAccessible>
#include <QDynamicPropertyChangeEvent>
#include <QLabel>
#include <QPointer>

namespace
{

constexpr char MultilineProperty[] = "multilineLabel";
constexpr int MultilineOverhang = 10;

class LabelButtonAccessible : public NamedButtonAccessible<LabelButton>
{
public:
    using NamedButtonAccessible::NamedButtonAccessible;

protected:
    QString value() const override { return button()->labelText(); }
};

} // namespace

struct LabelButton::Private {
    QString labelText;
    Qt::Alignment labelAlignment = Qt::AlignRight | Qt::AlignVCenter;
    QMargins labelMargins;
    QFont labelFont;
    QPointer<QLabel> label;
};

LabelButton::LabelButton(QWidget *parent)
    : InfoButton(parent)
    , d(std::make_unique<Private>())
{
    ButtonAccessible::install<LabelButton, LabelButtonAccessible>();
    auto *const value = new QLabel(this);
    value->setObjectName(QStringLiteral("valueLabel"));
    value->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    value->setMinimumWidth(0);
    value->setIndent(0); // or a style sheet's padding would bring an indent that elides too late
    value->setAlignment(d->labelAlignment);
    setLabel(value);
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            &LabelButton::onThemeChanged);
}

LabelButton::~LabelButton() = default;

QString LabelButton::labelText() const
{
    return d->labelText;
}

Qt::Alignment LabelButton::labelAlignment() const
{
    return d->labelAlignment;
}

QMargins LabelButton::labelMargins() const
{
    return d->labelMargins;
}

QFont LabelButton::labelFont() const
{
    return d->labelFont;
}

QLabel *LabelButton::label() const
{
    return isAncestorOf(d->label) ? d->label.data() : nullptr;
}

void LabelButton::setLabel(QLabel *newLabel)
{
    if (newLabel && newLabel == label())
        return;
    setInfoWidget(newLabel);
    if (!newLabel || infoWidget() != newLabel)
        return; // refused with a warning
    d->label = newLabel;
    d->label->installEventFilter(this);
    elidedText();
}

void LabelButton::setLabelText(const QString &text)
{
    if (d->labelText == text)
        return;
    d->labelText = text;
    if (QLabel *const value = label())
        value->setText(text);
    elidedText();
    updateGeometry();
    // A plain button has no value that a tool could ask for.
    const QAccessibleInterface *const whole =
        QAccessible::isActive() ? QAccessible::queryAccessibleInterface(this) : nullptr;
    if (whole && whole->role() == QAccessible::ComboBox) {
        QAccessibleValueChangeEvent change(this, text);
        QAccessible::updateAccessibility(&change);
    }
}

void LabelButton::setLabelAlignment(Qt::Alignment alignment)
{
    if (d->labelAlignment == alignment)
        return;
    d->labelAlignment = alignment;
    if (QLabel *const value = label())
        value->setAlignment(alignment);
}

void LabelButton::setLabelMargins(QMargins margins)
{
    if (d->labelMargins == margins)
        return;
    d->labelMargins = margins;
    if (QLabel *const value = label())
        value->setContentsMargins(margins);
}

void LabelButton::setLabelFont(const QFont &font)
{
    if (d->labelFont == font)
        return;
    d->labelFont = font;
    if (QLabel *const value = label())
        value->setFont(font);
}

void LabelButton::elidedText()
{
    QLabel *const value = label();
    if (!value)
        return;
    if (isMultiline()) {
        value->setWordWrap(true);
        value->setMaximumWidth(width() + MultilineOverhang);
        value->setText(d->labelText);
        return;
    }
    value->setWordWrap(false);
    value->setMaximumWidth(QWIDGETSIZE_MAX);
    const QMargins margins = value->contentsMargins();
    const int available = width() - margins.left() - margins.right();
    const QFontMetrics metrics = value->fontMetrics();
    // The end of a value tells more than its beginning.
    const int advance = metrics.horizontalAdvance(d->labelText);
    // An advance may have been rounded up: a value as wide as the room has to be shortened, too.
    value->setText(advance < available ? d->labelText
                                       : metrics.elidedText(d->labelText, Qt::ElideLeft,
                                                            qMin(available, advance - 1)));
}

QSize LabelButton::sizeHint() const
{
    QSize hint = InfoButton::sizeHint();
    const QLabel *const value = label();
    if (!value || isMultiline())
        return hint;
    // Ask for the whole value, whatever is shown of it now, and for the pixel that keeps it whole.
    const QFontMetrics metrics = value->fontMetrics();
    const int missing = qMax(
        0, metrics.horizontalAdvance(d->labelText) + 1 - metrics.horizontalAdvance(value->text()));
    const bool sideBySide = layoutType() == LeftRight || layoutType() == RightLeft;
    hint.setWidth(sideBySide ? hint.width() + missing
                             : qMax(hint.width(), value->sizeHint().width() + missing));
    return hint;
}

QSize LabelButton::minimumSizeHint() const
{
    // The name must fit; the value can be shortened.
    const int name =
        fontMetrics().horizontalAdvance(text()) + textMargins().left() + textMargins().right();
    return {qMax(name, Utils::fingerSize(this)), InfoButton::minimumSizeHint().height()};
}

void LabelButton::onThemeChanged(Controls::ThemeManager::Theme) { }

bool LabelButton::event(QEvent *event)
{
    const bool result = InfoButton::event(event);
    if (event->type() == QEvent::DynamicPropertyChange
        && static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName() == MultilineProperty) {
        elidedText();
        updateGeometry();
    }
    return result;
}

bool LabelButton::eventFilter(QObject *watched, QEvent *event)
{
    const bool result = InfoButton::eventFilter(watched, event);
    // Fonts and margins change by the setters, and by a style sheet when the label is first shown.
    const bool refit =
        event->type() == QEvent::FontChange || event->type() == QEvent::ContentsRectChange;
    if (refit && watched == label())
        elidedText();
    return result;
}

void LabelButton::enterEvent(EnterEvent *event)
{
    if (QtCompat::hasTouchDevice())
        setAttribute(Qt::WA_UnderMouse, false); // a finger leaves no hover behind
    else
        InfoButton::enterEvent(event);
}

void LabelButton::leaveEvent(QEvent *event)
{
    if (!QtCompat::hasTouchDevice())
        InfoButton::leaveEvent(event);
}

void LabelButton::mousePressEvent(QMouseEvent *event)
{
    AbstractButton::mousePressEvent(event);
}

void LabelButton::mouseReleaseEvent(QMouseEvent *event)
{
    AbstractButton::mouseReleaseEvent(event);
}

void LabelButton::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    elidedText();
}

bool LabelButton::isMultiline() const
{
    return property(MultilineProperty).toBool();
}
