// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QWidget>

#include <functional>
#include <memory>

struct MarkerStatusItemPrivate;

/*! One line of a marker read-out: a dot when selected, the marker's name, its stimulus and up to
    three response values.

    Everything stands on one line while the width allows; in a narrower place the stimulus and the
    values fold into a block beside the name, and the height follows. The texts come formatted from
    the owner. Not for tables of many markers: use an item view for those.

    \code
    auto *item = new MarkerStatusItem(plot);
    item->setText("M1R:", "2.412GHz", "48.21Ω", "3.10Ω", "204.5pH");
    item->setColor(traceColor);
    item->setSelectedStatus(true);
    item->setMouseEventRouter([this](QMouseEvent *event) { return chart->takePress(event); });
    connect(item, &MarkerStatusItem::clicked, this, [this] { selectMarker(1); });
    \endcode */
class VNAWIDGETS_EXPORT MarkerStatusItem : public QWidget
{
    Q_OBJECT

public:
    /// An empty line.
    explicit MarkerStatusItem(QWidget *parent = nullptr);
    ~MarkerStatusItem() override;

    /// Width in pixels from which everything stands on one line: columns in use, dot and name.
    int preferredSingleLineWidth() const;

    /// Shows the texts; an empty second or third value takes no room. Nothing happens for equal
    /// texts.
    void setText(const QString &name, const QString &key, const QString &value1,
                 const QString &value2, const QString &value3);
    /// Shows or hides the dot; hidden at the start.
    void setSelectedStatus(bool selected);
    /// Colour of all texts, as a rule the trace's; the style sheets' colour until then.
    void setColor(const QColor &color);
    /// Bold texts, as for the active trace; off at the start.
    void setBold(bool bold);

    /// Width of the stimulus on one line, in pixels; at least 20, 130 at the start.
    void setKeyColumnWidth(int width);
    /// Widths of the three values on one line, in pixels; at least 0, 70 each at the start.
    void setNumLabelWidth(int width1, int width2, int width3);
    /// Aligns the folded block to the right; off at the start.
    void setRightAligned(bool rightAligned);
    /// Fixes the width, in pixels, and so decides between one line and the folded block.
    void setLayoutWidth(int width);

    /*! Lets \a router have left presses first. Where it returns true, it gets the moves and the
        release too, and clicked() does not fire. An empty function ends that. */
    void setMouseEventRouter(std::function<bool(QMouseEvent *)> router);

Q_SIGNALS:
    /// A press of any button that the router did not take, or Space or Enter with the focus.
    void clicked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    class Accessible;

    void updateResponsiveLayout();
    void showOnOneLine();
    void showFolded();
    QStringList readings() const;
    QString wrapTextToWidth(const QString &text, int maxWidth) const;
    bool filterPress(QMouseEvent *event);

    const std::unique_ptr<MarkerStatusItemPrivate> d;
};
