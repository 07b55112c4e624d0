// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <widgets/switchbutton.h>

#include <widgets/buttonaccessible_p.h>

#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

namespace
{

class SwitchButtonAccessible : public NamedButtonAccessible<SwitchButton>
{
public:
    using NamedButtonAccessible::NamedButtonAccessible;

    QAccessible::Role role() const override { return QAccessible::CheckBox; }

    QAccessible::State state() const override
    {
        QAccessible::State state = ButtonAccessible::state();
        state.checkable = true;
        state.checked = button()->status();
        return state;
    }

protected:
    QString value() const override
    {
        return button()->status() ? SwitchButton::tr("On") : SwitchButton::tr("Off");
    }

    void activate() override
    {
        button()
            ->findChild<QAbstractButton *>(button()->status() ? QStringLiteral("btnOff")
                                                              : QStringLiteral("btnOn"))
            ->click();
    }
};

} // namespace

struct SwitchButton::Private {
    explicit Private(SwitchButton *button)
        : container(new QWidget(button))
        , onButton(new QPushButton(tr("On"), container))
        , offButton(new QPushButton(tr("Off"), container))
        , layout(new QHBoxLayout(container))
    {
    }
    Q_DISABLE_COPY(Private)

    QWidget *container;
    QPushButton *onButton;
    QPushButton *offButton;
    QHBoxLayout *layout;
};

SwitchButton::SwitchButton(QWidget *parent)
    : InfoButton(parent)
    , d(std::make_unique<Private>(this))
{
    ButtonAccessible::install<SwitchButton, SwitchButtonAccessible>();
    d->layout->setContentsMargins(10, 0, 10, 0);
    d->layout->setSpacing(0);
    auto *const group = new QButtonGroup(this);
    group->setExclusive(true);
    d->onButton->setObjectName(QStringLiteral("btnOn"));
    d->offButton->setObjectName(QStringLiteral("btnOff"));
    for (QPushButton *const button : {d->onButton, d->offButton}) {
        button->setAutoDefault(false); // Return in a dialog is no tap on a switch
        button->setCheckable(true);
        button->setAutoExclusive(true); // they read as radio buttons
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        button->installEventFilter(this);
        group->addButton(button);
        d->layout->addWidget(button);
    }
    setStatus(false);
    setFocusPolicy(Qt::NoFocus); // the two buttons take it

    setInfoWidget(d->container);
    setLayoutType(LeftRight);
    connect(group, qOverload<QAbstractButton *>(&QButtonGroup::buttonClicked), this,
            &SwitchButton::onButtonClicked);
    connect(d->onButton, &QPushButton::toggled, this, &SwitchButton::statusToggled);
}

SwitchButton::~SwitchButton() = default;

bool SwitchButton::status() const
{
    return d->onButton->isChecked();
}

void SwitchButton::setStatus(bool on)
{
    QPushButton *const checked = on ? d->onButton : d->offButton;
    QPushButton *const unchecked = on ? d->offButton : d->onButton;
    checked->setChecked(true);
    unchecked->setChecked(false);
    // One stop for the tab key, as for radio buttons.
    checked->setFocusPolicy(Qt::StrongFocus);
    unchecked->setFocusPolicy(Qt::ClickFocus);
}

/// Makes the two buttons as inert as the switch itself: what they ignore travels on to the parent.
bool SwitchButton::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn: {
        // Else a screen reader would say no more than "On".
        auto *const part = static_cast<QPushButton *>(watched);
        part->setAccessibleName(QStringLiteral("%1: %2").arg(
            accessibleName().isEmpty() ? text() : accessibleName(), part->text()));
        update();
        break;
    }
    case QEvent::FocusOut:
        update();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        if (clickable())
            break;
        event->ignore();
        return true;
    default:
        break;
    }
    return InfoButton::eventFilter(watched, event);
}

void SwitchButton::onButtonClicked(QAbstractButton *button)
{
    setStatus(button == d->onButton);
    Q_EMIT statusChanged(button == d->onButton);
}
