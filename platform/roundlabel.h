// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <platform/vnaplatform_export.h>

#include <QLabel>

#include <memory>

namespace Controls
{

/*! A label for one reading that would rather round its number than cut it off.

    A plain label that is too narrow drops the first or the last characters, and "-100.33dBm"
    becomes "00.33dBm". Here decimals are rounded away until the reading fits, and what still does
    not fit ends in an ellipsis. text() stays what was set. Texts of several lines, rich texts and
    selected texts are shown as they are.

    \code
    auto *stimulus = new Controls::RoundLabel(this);
    stimulus->setFixedWidth(90);
    stimulus->setText(QStringLiteral("100.123456789GHz")); // shows 100.123457GHz, say
    \endcode */
class VNAPLATFORM_EXPORT RoundLabel : public QLabel
{
    Q_OBJECT

public:
    /// An empty label.
    explicit RoundLabel(QWidget *parent = nullptr);
    ~RoundLabel() override;

    /// What is painted: text(), rounded or elided to the width.
    QString shownText() const;

public Q_SLOTS:
    /// Shows \a text in place of QLabel::setText(), which knows nothing of rounding.
    void setText(const QString &text);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QRect textRect() const;
    void fit();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace Controls
