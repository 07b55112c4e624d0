// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVector>
#include <QWidget>

class QAbstractButton;
class QLabel;
class QStackedWidget;

namespace Panel
{

class MessageBar;
class PanelModel;
class SmithView;
class CartesianView;
class Diagrams;
class SoftKey;
class SweepKeys;
class TimingLine;
class TraceBar;

/*! The panel's window: top bar, diagrams, sweep bar and the column of soft keys, for any size from
   800 x 480.

    It lays the parts out and follows model and theme. What a key or a gesture does is decided by
    PanelController. */
class PanelWindow : public QWidget
{
    Q_OBJECT

public:
    explicit PanelWindow(const PanelModel *model, QWidget *parent = nullptr);

    Diagrams *diagrams() const { return m_diagrams; }
    SmithView *smithView() const;
    CartesianView *cartesianView() const;
    TraceBar *traceBar() const { return m_traceBar; }
    MessageBar *messageBar() const { return m_messageBar; }

    SoftKey *fileKey() const { return m_fileKey; }
    SoftKey *gridKey() const { return m_gridKey; }
    SoftKey *densityKey() const { return m_densityKey; }
    SoftKey *traceKey() const { return m_traceKey; }
    SoftKey *markerKey() const { return m_markerKey; }
    SoftKey *zoomKey() const { return m_zoomKey; }
    /// The second page of the keys.
    SweepKeys *sweepKeys() const { return m_sweepKeys; }
    /// Turns the pages of the keys; each has one.
    SoftKey *pageKey(int page) const { return m_pageKeys.at(page); }
    TimingLine *timingLine() const { return m_timingLine; }
    QAbstractButton *themeButton() const { return m_themeButton; }
    /// The button of the page that stands where there is nothing to show.
    QAbstractButton *emptyPageButton() const { return m_emptyPageButton; }

private:
    QWidget *makeTopBar();
    QWidget *makeDiagrams();
    QWidget *makeEmptyPage();
    QWidget *makeSoftKeys();
    QWidget *makeFirstKeys();
    void showModel();
    void recolor();

    const PanelModel *m_model;
    TraceBar *m_traceBar;
    MessageBar *m_messageBar;
    Diagrams *m_diagrams;
    SweepKeys *m_sweepKeys;
    TimingLine *m_timingLine;
    QStackedWidget *m_pages;
    QLabel *m_mark;
    QLabel *m_emptyMark;
    QAbstractButton *m_themeButton;
    QAbstractButton *m_emptyPageButton;
    SoftKey *m_fileKey;
    SoftKey *m_gridKey;
    SoftKey *m_densityKey;
    SoftKey *m_traceKey;
    SoftKey *m_markerKey;
    SoftKey *m_zoomKey;
    QVector<SoftKey *> m_pageKeys;
};

} // namespace Panel
