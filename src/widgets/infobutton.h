// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <widgets/abstractbutton.h>

#include <QMargins>

#include <memory>

/*! A button of two cells: a name, and a widget that says something about it. The name stands above,
    left of, below or right of the widget.

    For a value as text use LabelButton, for a choice EnumTextButton, for on and off SwitchButton.

    \code
    auto *button = new InfoButton(this);
    button->setText(tr("Averaging"));
    auto *progress = new QProgressBar;
    progress->setFocusPolicy(Qt::NoFocus);
    button->setInfoWidget(progress); // the button owns it from here on
    button->setLayoutType(InfoButton::LeftRight);
    button->setTextMargins({8, 0, 8, 0});
    \endcode

    Style sheets address the name as QLabel#nameLabel. */
class VNAWIDGETS_EXPORT InfoButton : public AbstractButton
{
    Q_OBJECT

    Q_PROPERTY(LayoutType layoutType READ layoutType WRITE setLayoutType)
    Q_PROPERTY(Qt::Alignment textAlignment READ textAlignment WRITE setTextAlignment)
    Q_PROPERTY(QMargins textMargins READ textMargins WRITE setTextMargins)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)

public:
    /// Where the name stands, then where the information stands.
    enum LayoutType : int {
        TopBottom = 0, ///<name above information
        LeftRight = 1, ///<name left of it
        BottomTop = 2, ///<name below it
        RightLeft = 3, ///<name right of it
    };
    Q_ENUM(LayoutType)

    /// A button without name and information.
    explicit InfoButton(QWidget *parent = nullptr);
    ~InfoButton() override;

    /// The name. The text of QAbstractButton stays empty: one that is set there, through a pointer to
    /// the base class, becomes the name when the button is drawn.
    QString text() const;
    /// Sets the name.
    void setText(const QString &text);

    /// The widget in the information cell; null after somebody deleted it or took it away.
    QWidget *infoWidget() const;
    /// Takes over a widget and deletes the one before it. Refuses null, the name and our parents.
    void setInfoWidget(QWidget *widget);

    /// Default: TopBottom, which also stands in for unknown values.
    LayoutType layoutType() const;
    /// Sets layoutType().
    void setLayoutType(LayoutType type);

    /// Alignment of the name in its cell. Default: left and vertically centred.
    Qt::Alignment textAlignment() const;
    /// Sets textAlignment().
    void setTextAlignment(Qt::Alignment alignment);

    /// Room around the name, in pixels, beside the style sheet's padding. Default: none.
    QMargins textMargins() const;
    /// Sets textMargins().
    void setTextMargins(QMargins margins);

Q_SIGNALS:
    /// The name has changed.
    void textChanged(const QString &text);

protected:
    bool event(QEvent *event) override;

private:
    void placeCells();

    struct Private;
    const std::unique_ptr<Private> d;
};
