// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpdialog.h"

#include <panel/ground/dialogstage.h>
#include <panel/ground/quietview.h>

#include <QHeaderView>
#include <QScrollBar>
#include <QScroller>
#include <QTableWidget>
#include <QVBoxLayout>

namespace Panel
{

namespace
{

/// Around the rows, in pixels.
constexpr int s_edge = 16;
constexpr int s_rowGap = 6;

} // namespace

HelpDialog::HelpDialog(bool hasSound, QWidget *parent)
    : DraggableFramelessDialog(parent)
{
    setAccessibleName(tr("Keys"));
    setWindowTitle(tr("Keys"));
    setHeaderButton(Controls::DraggableDialogTitleBar::CloseButton);
    QVector<std::pair<QString, QString>> rows{
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
        {tr("editing limits: Tab"),
         tr("from handle to handle, which arrows move; Del removes the limit")},
        {tr("G, M, k"), tr("finish a typed number in GHz, MHz or kHz")},
        {tr("Del"), tr("remove the selected marker")},
        {tr("Esc"), tr("select none, then show all diagrams; leave an entry without changing it")},
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
    if (hasSound)
        rows.append({QStringLiteral("F5"), tr("hear the active trace, or stop")});
    // A table can be read row by row; what has no room on a small screen scrolls.
    auto *table = new QuietView<QTableWidget>(int(rows.size()), 2);
    table->setAccessibleName(tr("Keys"));
    int row = 0;
    for (const auto &[keys, action] : std::as_const(rows)) {
        auto *name = new QTableWidgetItem(keys);
        QFont bold = table->font();
        bold.setBold(true);
        name->setFont(bold);
        table->setItem(row, 0, name);
        table->setItem(row++, 1, new QTableWidgetItem(action));
    }
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false);
    table->setShowGrid(false);
    table->setFrameShape(QFrame::NoFrame);
    table->horizontalHeader()->hide();
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + s_rowGap);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->setWordWrap(false);
    QScroller::grabGesture(table->viewport(), QScroller::LeftMouseButtonGesture);
    table->resizeColumnsToContents();
    table->selectRow(0);
    const QSize whole(table->horizontalHeader()->length() + s_rowGap,
                      table->verticalHeader()->length());
    auto *column = new QVBoxLayout(this);
    const QMargins margins = dialogMargins(s_edge);
    column->setContentsMargins(margins);
    column->addWidget(table);
    resize(whole.width() + table->verticalScrollBar()->sizeHint().width() + margins.left()
               + margins.right(),
           whole.height() + margins.top() + margins.bottom());
}

} // namespace Panel
