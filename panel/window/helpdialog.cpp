// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpdialog.h"

#include <panel/ground/dialogstage.h>

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QScroller>

namespace Panel
{

namespace
{

/// Around the rows, in pixels.
constexpr int s_edge = 16;

} // namespace

HelpDialog::HelpDialog(QWidget *parent)
    : DraggableFramelessDialog(parent)
{
    setAccessibleName(tr("Keys"));
    setWindowTitle(tr("Keys"));
    setHeaderButton(Controls::DraggableDialogTitleBar::CloseButton);
    auto *rowsArea = new QWidget;
    auto *grid = new QGridLayout(rowsArea);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(5);
    const std::pair<QString, QString> rows[] = {
        {tr("Tab"), tr("go through all keys; Space or Return presses")},
        {tr("Ctrl + PgUp, PgDn"), tr("turn the page of soft keys")},
        {QStringLiteral("+  \u2212  0"), tr("magnify a diagram, or show all of it")},
        {QStringLiteral("\u2190 \u2192"),
         tr("move the selected marker, with Ctrl by a point; or the view")},
        {QStringLiteral("\u2191 \u2193"), tr("move the view")},
        {tr("F2, Home, End"), tr("walk along the active trace, hear and read what is where")},
        {tr("walking: \u2190 \u2192"),
         tr("by a point, with Ctrl to the next feature, as the wheel does")},
        {tr("PgUp, PgDn"), tr("by a tenth of the view; \u2191 \u2193 to another trace")},
        {tr("Return"), tr("set a marker there; Esc ends the walk")},
        {tr("G, M, k"), tr("finish a typed number in GHz, MHz or kHz")},
        {tr("Del"), tr("remove the selected marker")},
        {tr("Esc"), tr("select none; leave an entry without changing it")},
        {tr("Ctrl + Z"), tr("undo; with Shift, do it again")},
        {tr("Ctrl + O"), tr("open files")},
        {tr("Ctrl + P"), tr("take a screenshot")},
        {tr("Ctrl + L"), tr("lock the panel, or unlock it")},
        {tr("Ctrl + T"), tr("dark or light")},
        {tr("Ctrl + ,"), tr("settings")},
        {QStringLiteral("F3"), tr("show what the drawing costs")},
        {QStringLiteral("F4"), tr("read the selected marker over its whole diagram")},
        {QStringLiteral("F11"), tr("full screen")},
        {tr("Ctrl + Q"), tr("quit")},
    };
    int row = 0;
    for (const auto &[keys, action] : rows) {
        auto *name = new QLabel(keys);
        QFont bold = name->font();
        bold.setBold(true);
        name->setFont(bold);
        grid->addWidget(name, row, 0);
        grid->addWidget(new QLabel(action), row, 1);
        ++row;
    }

    // What has no room on a small screen scrolls, under a finger and by keys.
    auto *scroll = new QScrollArea;
    scroll->setAccessibleName(tr("Keys"));
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(rowsArea);
    rowsArea->setAutoFillBackground(false);
    scroll->viewport()->setAutoFillBackground(false);
    QScroller::grabGesture(scroll->viewport(), QScroller::LeftMouseButtonGesture);
    const QSize whole = rowsArea->sizeHint();
    const int room = parent ? parent->height() - dialogMargins(2 * s_edge).top() - 2 * s_edge
                            : whole.height();
    scroll->setMinimumSize(whole.width() + scroll->verticalScrollBar()->sizeHint().width(),
                           qMin(whole.height(), qMax(room, s_edge)));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(dialogMargins(s_edge));
    column->addWidget(scroll);
}

} // namespace Panel
