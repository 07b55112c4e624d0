// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/limitline.h>

#include <QFrame>
#include <QPointer>

class QGridLayout;
class QLabel;
class QPushButton;

namespace Panel
{

class NumericKeys;
class PanelModel;

/*! The limit lines of a trace in its present format, a row for each: above or below, and frequency
    and value of both ends. Numbers are entered on the keypad; each change holds at once.

    It lies over the lower part of its host, within the window, so that the diagrams above show what
    changes and the keypad can stand over it. It leaves with its trace, when the trace gets another
    format or is no longer active, and with Escape. */
class LimitSheet : public QFrame
{
    Q_OBJECT

public:
    /// A trace over the frequency. Model and number keys must outlive the sheet, which deletes itself
    /// when it leaves.
    LimitSheet(PanelModel *model, int traceId, NumericKeys *numbers, QWidget *host);

    /// Hides it and lets it go.
    void leave();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QPushButton *addKey(const QString &name, int row, int column);
    void addRow(int row);
    void updateTexts(const QVector<LimitLine> &all);
    void rebuild();
    void showCount();
    void addLine();
    void followTrace();
    QString title() const;
    void place();
    QVector<LimitLine> lines() const;
    void setLines(const QVector<LimitLine> &lines);
    template<typename Change>
    void change(int row, Change apply);

    PanelModel *m_model;
    int m_trace;
    NumericKeys *m_numbers;
    TraceFormat m_format;
    QWidget *m_rows;
    QGridLayout *m_grid;
    QLabel *m_hint; ///< in place of the rows while there are none
    QPushButton *m_add;
    QPushButton *m_clear;
    QPointer<QWidget> m_focusBefore;
};

} // namespace Panel
