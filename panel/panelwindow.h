// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>

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
class SoftKeyMenu;
class SweepKeys;
class TimingLine;
class TraceBar;

/*! The panel's window: top bar, diagrams, sweep bar and the column of soft keys, for any size from
   800 x 480.

    It lays the parts out and follows model and theme. What a key or a gesture does is decided by
    PanelController. */
class PanelWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit PanelWindow(const PanelModel *model, QWidget *parent = nullptr);

    Diagrams *diagrams() const { return m_diagrams; }
    SmithView *smithView() const;
    CartesianView *cartesianView() const;
    TraceBar *traceBar() const { return m_traceBar; }
    MessageBar *messageBar() const { return m_messageBar; }

    SoftKeyMenu *softKeys() const { return m_softKeys; }
    SoftKey *fileKey() const { return m_fileKey; }
    SoftKey *startKey() const { return m_startKey; }
    SoftKey *stopKey() const { return m_stopKey; }
    SoftKey *centerKey() const { return m_centerKey; }
    SoftKey *spanKey() const { return m_spanKey; }
    SoftKey *pointsKey() const { return m_pointsKey; }
    SoftKey *gridKey() const { return m_gridKey; }
    SoftKey *densityKey() const { return m_densityKey; }
    SoftKey *traceKey() const { return m_traceKey; }
    SoftKey *markerKey() const { return m_markerKey; }
    SoftKey *markerStimulusKey() const { return m_markerStimulusKey; }
    /// Which traces taps and drags reach.
    SoftKey *pointerKey() const { return m_pointerKey; }
    SoftKey *zoomKey() const { return m_zoomKey; }
    SweepKeys *sweepKeys() const { return m_sweepKeys; }
    TimingLine *timingLine() const { return m_timingLine; }
    QAbstractButton *themeButton() const { return m_themeButton; }
    /// The button of the page that stands where there is nothing to show.
    QAbstractButton *emptyPageButton() const { return m_emptyPageButton; }

private:
    QWidget *makeTopBar();
    QWidget *makeDiagrams();
    QWidget *makeEmptyPage();
    QWidget *makeSoftKeys();
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
    SoftKeyMenu *m_softKeys;
    SoftKey *m_fileKey;
    SoftKey *m_startKey;
    SoftKey *m_stopKey;
    SoftKey *m_centerKey;
    SoftKey *m_spanKey;
    SoftKey *m_pointsKey;
    SoftKey *m_gridKey;
    SoftKey *m_densityKey;
    SoftKey *m_traceKey;
    SoftKey *m_markerKey;
    SoftKey *m_markerStimulusKey;
    SoftKey *m_pointerKey;
    SoftKey *m_zoomKey;
};

} // namespace Panel
