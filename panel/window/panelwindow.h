// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/entry/panelkeys.h>

#include <QMainWindow>

class QAbstractButton;
class QHBoxLayout;
class QLabel;
class QStackedWidget;
class MenuButton;
class QToolButton;

namespace Panel
{

class MarkerTable;
class MessageBar;
class PanelLock;
class PanelModel;
class SmithView;
class CartesianView;
class Diagrams;
class ElidedLabel;
class EmptyPage;
class SoftKeyMenu;
class SweepBar;
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
    explicit PanelWindow(PanelModel *model, QWidget *parent = nullptr);

    Diagrams *diagrams() const { return m_diagrams; }
    SmithView *smithView() const;
    CartesianView *cartesianView() const;
    MarkerTable *markerTable() const { return m_markerTable; }
    TraceBar *traceBar() const { return m_traceBar; }
    MessageBar *messageBar() const { return m_messageBar; }

    SoftKeyMenu *softKeys() const { return m_softKeys; }
    const PanelKeys &keys() const { return m_keys; }
    SweepBar *sweepBar() const { return m_sweepBar; }
    TimingLine *timingLine() const { return m_timingLine; }
    /// Opens a file, as the key on page System does.
    QToolButton *openButton() const { return m_openButton; }
    /// Offers what the key on page System does.
    MenuButton *saveButton() const { return m_saveButton; }
    QToolButton *themeButton() const { return m_themeButton; }
    QToolButton *screenshotButton() const { return m_screenshotButton; }
    /// Checked while the panel is locked.
    QToolButton *lockButton() const { return m_lockButton; }
    PanelLock *lock() const { return m_lock; }
    /// What stands there without data; null where there always was some.
    EmptyPage *emptyPage() const { return m_emptyPage; }

Q_SIGNALS:
    void filesDropped(const QStringList &paths);
    /// The user, who sees nothing, wants to open a file.
    void openRequested();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void fillTopBar();
    void fillPages();
    QToolButton *addBarButton(QHBoxLayout *row, const QString &name);
    void showModel();
    void showLock();
    void recolor();

    PanelModel *m_model;
    QWidget *m_main;
    QWidget *m_topBar;
    TraceBar *m_traceBar;
    QStackedWidget *m_pages; ///< the diagrams, or what stands there without data
    Diagrams *m_diagrams;
    MarkerTable *m_markerTable;
    SweepBar *m_sweepBar;
    TimingLine *m_timingLine;
    SoftKeyMenu *m_softKeys;
    PanelKeys m_keys;
    MessageBar *m_messageBar;
    PanelLock *m_lock;
    QLabel *m_mark;
    QLabel *m_name;
    ElidedLabel *m_fileName;
    QToolButton *m_openButton;
    MenuButton *m_saveButton;
    QToolButton *m_themeButton;
    QToolButton *m_screenshotButton;
    QToolButton *m_lockButton;
    EmptyPage *m_emptyPage = nullptr; ///< once there was nothing to show
};

} // namespace Panel
