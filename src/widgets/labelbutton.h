// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <controls/thememanager.h>
#include <widgets/infobutton.h>

#include <QFont>

#include <memory>
#include <type_traits>

class QEnterEvent;
class QLabel;

/*! A button with a name and a value, such as "Start" and "2.000 GHz". A value that is too long
    loses its beginning, so that the unit stays readable; with the dynamic property "multilineLabel"
    set to true it wraps instead.

    Not for typing a value (Controls::EditableWidget) nor for a list of choices (EnumTextButton).

    \code
    auto *start = new LabelButton(this);
    start->setText(tr("Start"));
    start->setLabelText(tr("2.000 GHz"));
    start->setTextAlignment(Qt::AlignLeft | Qt::AlignBottom); // the two lines close up
    start->setLabelAlignment(Qt::AlignRight | Qt::AlignTop);
    connect(start, &LabelButton::clicked, this, &Panel::editStart);
    start->setProperty("multilineLabel", true); // for a value of several words
    \endcode

    Style sheets address the labels as QLabel#nameLabel and QLabel#valueLabel. On systems with a
    touch device the button never shows :hover. */
class VNAWIDGETS_EXPORT LabelButton : public InfoButton
{
    Q_OBJECT

    Q_PROPERTY(QString labelText READ labelText WRITE setLabelText)
    Q_PROPERTY(Qt::Alignment labelAlignment READ labelAlignment WRITE setLabelAlignment)
    Q_PROPERTY(QMargins labelMargins READ labelMargins WRITE setLabelMargins)
    Q_PROPERTY(QFont labelFont READ labelFont WRITE setLabelFont)

public:
    /// A button without name and value.
    explicit LabelButton(QWidget *parent = nullptr);
    ~LabelButton() override;

    /// The label that shows the value; null after somebody deleted it or took it away.
    QLabel *label() const;
    /// Takes over a label, which shows the value from now on, and deletes the one before it.
    void setLabel(QLabel *newLabel);

    /// The whole value, also while only its end is shown.
    QString labelText() const;
    /// Sets labelText().
    void setLabelText(const QString &text);

    /// Alignment of the value in its cell. Default: right and vertically centred.
    Qt::Alignment labelAlignment() const;
    /// Sets labelAlignment().
    void setLabelAlignment(Qt::Alignment alignment);

    /// Room around the value, in pixels, beside the style sheet's padding. Default: none.
    QMargins labelMargins() const;
    /// Sets labelMargins().
    void setLabelMargins(QMargins margins);

    /// Font of the value. Default: the application's.
    QFont labelFont() const;
    /// Sets labelFont().
    void setLabelFont(const QFont &font);

    /// Fits the shown value to the button's width; happens by itself whenever something changes.
    void elidedText();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Nothing to do: the theme's colours arrive through the style sheets.
    void onThemeChanged(Controls::ThemeManager::Theme newTheme);

protected:
    /// Qt 6 passes the more telling event.
    using EnterEvent = std::conditional_t<(QT_VERSION_MAJOR < 6), QEvent, QEnterEvent>;

    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void enterEvent(EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool isMultiline() const;

    struct Private;
    const std::unique_ptr<Private> d;
};
