// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelwindow.h"

#include "emptypage.h"
#include "messagebar.h"
#include "panellock.h"
#include "sweepbar.h"
#include "timingline.h"
#include <panel/diagrams/chartgestures.h>
#include <panel/diagrams/diagrams.h>
#include <panel/diagrams/markertable.h>
#include <panel/entry/softkey.h>
#include <panel/entry/softkeymenu.h>
#include <panel/entry/tracebar.h>
#include <panel/files/samples.h>
#include <panel/ground/elidedlabel.h>
#include <panel/ground/glyphs.h>
#include <panel/ground/icons.h>
#include <panel/ground/look.h>
#include <panel/ground/pagestack.h>
#include <panel/model/panelmodel.h>

#include <controls/thememanager.h>
#include <widgets/lockwidget.h>
#include <widgets/menubutton.h>

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace Panel
{

namespace
{

/// In pixels, less what a window manager adds to the smallest screen, of 800 x 480.
constexpr QSize s_smallestContent(640, 400);
/// A key of the top bar and its icon, in pixels.
constexpr int s_barKey = 44;
constexpr QSize s_barIcon(20, 20);
/// What the top bar offers to save: in letters and pixels.
constexpr int s_tileLetters = 28;
constexpr int s_tileHeight = 48;
/// Widths of the window, in pixels, from which the top bar has room for more than traces and keys.
constexpr int s_roomForMark = 900;
constexpr int s_roomForFile = 1000;
constexpr int s_roomForName = 1400;

} // namespace

PanelWindow::PanelWindow(PanelModel *model, QWidget *parent)
    : QMainWindow(parent)
    , m_model(model)
    , m_main(new QWidget(this))
    , m_topBar(new QWidget(m_main))
    , m_traceBar(new TraceBar(model, m_topBar))
    , m_pages(new PageStack(m_main))
    , m_diagrams(new Diagrams(model, m_pages))
    , m_markerTable(new MarkerTable(model, m_main))
    , m_sweepBar(new SweepBar(model, m_main))
    , m_timingLine(new TimingLine(m_diagrams, m_main))
    , m_softKeys(new SoftKeyMenu(m_main))
    , m_keys(makePanelKeys(m_softKeys, model))
{
    setWindowTitle(tr("Vector network analyser"));
    // Parents from the start: a widget that moves to one later is styled anew with all it holds.
    setCentralWidget(m_main);
    // Its layout wants more with every diagram and table: where there is no room, diagrams give way.
    m_main->setMinimumSize(s_smallestContent);

    auto *diagramColumn = new QVBoxLayout;
    diagramColumn->setSpacing(0);
    fillPages();
    diagramColumn->addWidget(m_pages, 1);
    diagramColumn->addWidget(m_markerTable);
    diagramColumn->addWidget(m_timingLine);
    diagramColumn->addWidget(m_sweepBar);

    auto *middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addLayout(diagramColumn, 1);
    middle->addWidget(m_softKeys);

    auto *column = new QVBoxLayout(m_main);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    fillTopBar();
    column->addWidget(m_topBar);
    column->addLayout(middle, 1);
    m_messageBar = new MessageBar(m_pages);
    // Over the diagrams.
    auto *padlock = new LockWidget(m_main, m_pages);
    padlock->setKey(m_lockButton); // nobody looks for another one to unlock
    m_lock = new PanelLock(padlock, this);
    connect(m_lock, &PanelLock::lockedChanged, this, [this] {
        showLock();
        m_messageBar->notify({}); // of how to unlock
        m_messageBar->speak(m_lock->isLocked() ? tr("Locked") : tr("Unlocked"));
    });
    connect(m_lockButton, &QToolButton::toggled, m_lock, &PanelLock::setLocked);
    connect(m_lock, &PanelLock::blocked, m_messageBar, [this] {
        m_messageBar->notify(tr("The panel is locked: tap the padlock or press Ctrl + L."));
    });
    setAcceptDrops(true);

    for (const auto signal : {&PanelModel::networksChanged, &PanelModel::sourceStateChanged})
        connect(m_model, signal, this, &PanelWindow::showModel);
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            &PanelWindow::recolor);
    showModel();
    recolor();
}

SmithView *PanelWindow::smithView() const
{
    return m_diagrams->smithView();
}

CartesianView *PanelWindow::cartesianView() const
{
    return m_diagrams->cartesianView();
}

void PanelWindow::fillTopBar()
{
    m_topBar->setObjectName(QStringLiteral("topBar"));
    m_topBar->setAttribute(Qt::WA_StyledBackground);
    auto *row = new QHBoxLayout(m_topBar);
    row->setContentsMargins(10, 2, 6, 2);
    row->setSpacing(8);
    m_mark = new QLabel(m_topBar);
    row->addWidget(m_mark);
    m_name = new QLabel(tr("VNA"), m_topBar);
    QFont bold = m_name->font();
    bold.setBold(true);
    m_name->setFont(bold);
    row->addWidget(m_name);
    row->addWidget(m_traceBar, 1);
    m_fileName = new ElidedLabel(Qt::ElideMiddle);
    m_fileName->setObjectName(QStringLiteral("dim"));
    m_fileName->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_fileName->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    m_fileName->setFixedWidth(fontMetrics().averageCharWidth() * 24);
    row->addWidget(m_fileName);
    m_openButton = addBarButton(row, tr("Load a file"));
    m_saveButton = new MenuButton(m_topBar);
    m_saveButton->setObjectName(QStringLiteral("barKey"));
    m_saveButton->setAccessibleName(tr("Save"));
    m_saveButton->setToolTip(tr("Save"));
    m_saveButton->setFixedSize(s_barKey, s_barKey);
    m_saveButton->QAbstractButton::setIconSize(s_barIcon);
    // One column of tiles: the rows of a list would be little wider than the key.
    m_saveButton->setViewMode(QListView::IconMode);
    m_saveButton->setItemCountPerRow(1);
    m_saveButton->setIconSize(fontMetrics().averageCharWidth() * s_tileLetters, s_tileHeight);
    row->addWidget(m_saveButton);
    m_screenshotButton = addBarButton(row, tr("Screenshot"));
    m_themeButton = addBarButton(row, tr("Dark or light"));
    m_lockButton = addBarButton(row, tr("Lock"));
    m_lockButton->setCheckable(true);
}

QToolButton *PanelWindow::addBarButton(QHBoxLayout *row, const QString &name)
{
    auto *button = new QToolButton(m_topBar);
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setMinimumSize(s_barKey, s_barKey);
    button->setIconSize(s_barIcon);
    row->addWidget(button);
    return button;
}

void PanelWindow::fillPages()
{
    m_pages->setObjectName(QStringLiteral("diagrams"));
    m_pages->addWidget(m_diagrams);
}

void PanelWindow::showModel()
{
    const QVector<Network> &networks = m_model->networks();
    if (networks.isEmpty() && !m_emptyPage && isVisible()) {
        m_emptyPage = new EmptyPage(m_pages);
        connect(m_emptyPage->openButton(), &QAbstractButton::clicked, this,
                &PanelWindow::openRequested);
        m_pages->addWidget(m_emptyPage);
    }
    m_pages->setCurrentIndex(networks.isEmpty() && m_emptyPage ? 1 : 0);
    const int files = int(networks.size());
    const QString name = files == 0 ? QString()
        : files == 1                ? networks.first().name
                                    : tr("%n files", nullptr, files);
    // What is no measurement of the user's says so.
    const bool measured = m_model->showsMeasurement();
    const QString kind = measured && isSimulated(m_model->source()) ? tr("Simulated: %1")
        : m_model->isStale()                                        ? tr("Old: %1")
        : files == 1 && isSample(networks.first())                  ? tr("Sample: %1")
                                                                    : QStringLiteral("%1");
    m_fileName->setText(kind.arg(name));
    m_keys.file->setValue(files == 0 || measured ? tr("Open\u2026") : name);
}

void PanelWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    // Traces first; the diagrams name the file too.
    m_mark->setVisible(width() > s_roomForMark);
    m_fileName->setVisible(width() > s_roomForFile);
    m_name->setVisible(width() > s_roomForName);
    m_markerTable->setRoom(height());
}

/// An open padlock locks, a closed one tells that it has.
void PanelWindow::showLock()
{
    m_lockButton->setChecked(m_lock->isLocked());
    m_lockButton->setIcon(Controls::ThemeManager::instance()->icon(m_lock->isLocked() ? 3 : 4));
}

void PanelWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    showModel(); // which may be nothing
    // Else the first button would have it.
    DiagramView *view = m_diagrams->activeView();
    if (view && !focusWidget())
        view->plot()->setFocus();
}

bool PanelWindow::event(QEvent *event)
{
    // A tap beside a dialog gives the window the focus, but not the keys: the dialog has them.
    QWidget *dialog = QApplication::activeModalWidget();
    if (event->type() == QEvent::WindowActivate && dialog && dialog != this)
        dialog->activateWindow();
    return QMainWindow::event(event);
}

void PanelWindow::keyPressEvent(QKeyEvent *event)
{
    // Keys that whoever has the focus has no use for are the active diagram's.
    DiagramView *view = m_diagrams->activeView();
    if (!view || !ChartGestures::handleKey(m_model, view, event))
        QMainWindow::keyPressEvent(event);
}

void PanelWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void PanelWindow::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    QStringList paths;
    for (const QUrl &url : event->mimeData()->urls()) {
        if (url.isLocalFile())
            paths << url.toLocalFile();
    }
    if (paths.isEmpty())
        m_messageBar->setMessage(tr("Only files of this computer can be opened."));
    else
        Q_EMIT filesDropped(paths);
}

void PanelWindow::recolor()
{
    const QColor text = currentLook().text;
    m_mark->setPixmap(mark(24, text, devicePixelRatioF()));
    m_themeButton->setIcon(icon("theme"));
    m_openButton->setIcon(glyphIcon(Glyph::Open, text, text));
    m_saveButton->setIcon(glyphIcon(Glyph::Save, text, text));
    m_screenshotButton->setIcon(glyphIcon(Glyph::Screenshot, text, text));
    showLock();
}

} // namespace Panel
