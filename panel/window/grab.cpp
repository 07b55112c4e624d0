// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "grab.h"

#include "filedialog.h"
#include "helpdialog.h"
#include "messagebar.h"
#include "panellock.h"
#include "panelwindow.h"
#include "settingsdialog.h"
#include <panel/diagrams/diagrams.h>
#include <panel/diagrams/diagramview.h>
#include <panel/diagrams/smithview.h>
#include <panel/entry/numericdialog.h>
#include <panel/entry/softkey.h>
#include <panel/entry/softkeymenu.h>
#include <panel/files/samples.h>
#include <panel/ground/dialogstage.h>
#include <panel/model/panelmodel.h>
#include <panel/touchstone/touchstone.h>

#include <controls/thememanager.h>
#include <plot/qcp.h>

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QPointer>
#include <QToolButton>

#include <cstdio>

namespace Panel
{

namespace
{

/// Lets layouts, deferred re-fits and queued replots happen.
void settle()
{
    for (int i = 0; i < 4; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

class Grabber
{
public:
    Grabber(PanelWindow *window, const QString &folder)
        : m_window(window)
        , m_folder(folder)
    {
    }

    bool ok() const { return m_ok; }

    void grab(const char *name, QWidget *widget = nullptr)
    {
        settle();
        for (const DiagramView *view : m_window->diagrams()->views())
            view->plot()->replot();
        const QString path = m_folder.filePath(QLatin1String(name) + QLatin1String(".png"));
        if ((widget ? widget : m_window)->grab().save(path))
            return;
        std::fprintf(stderr, "vnapanel: %s: the picture cannot be written.\n",
                     qUtf8Printable(path));
        m_ok = false;
    }

    void grabLight(const char *name)
    {
        using Controls::ThemeManager;
        ThemeManager::instance()->setTheme(ThemeManager::Light);
        grab(name);
        ThemeManager::instance()->setTheme(ThemeManager::Dark);
    }

private:
    PanelWindow *m_window;
    QDir m_folder;
    bool m_ok = true;
};

} // namespace

bool grabScreens(PanelModel *model, PanelWindow *window, const QString &folder)
{
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "vnapanel: %s: the folder cannot be made.\n", qUtf8Printable(folder));
        return false;
    }
    Grabber grabber(window, folder);

    if (const Trace *trace = model->activeTrace()) {
        const int last = model->network(*trace).points() - 1;
        const int third = last / 3;
        const int half = last / 2;
        const int id = trace->id;
        if (const Trace *transmission = model->activeTrace(DiagramKind::Cartesian)) {
            model->addMarker(transmission->id, third);
            model->addMarker(transmission->id, half);
        }
        model->addMarker(id, third);
        model->addMarker(id, half);
    }
    grabber.grab("panel");

    // The first page is on the pictures of the panel.
    static const QVector<const char *> pages{"keys-trace",  "keys-math",   "keys-scale",
                                             "keys-marker", "keys-limits", "keys-display",
                                             "keys-sweep",  "keys-system"};
    for (int page = 1; page < window->softKeys()->pageCount(); ++page) {
        window->softKeys()->setPage(page);
        grabber.grab(pages.at(page - 1));
    }
    window->softKeys()->setPage(0);
    window->keys().stop->click();
    const QPointer<NumericDialog> keypad(window->findChild<NumericDialog *>());
    grabber.grab("keypad");
    grabber.grabLight("keypad-light");
    if (keypad)
        keypad->reject();
    grabber.grabLight("panel-light");

    ViewSettings *settings = model->viewSettings();
    Graph::LayoutManagerProifle *layout = settings->layoutProfile();
    layout->setLayoutType(Graph::LayoutType::Quad);
    const Trace fourth = model->traces().value(3);
    model->setTraceFormat(fourth.id, TraceFormat::Phase);
    grabber.grab("four-diagrams");
    grabber.grabLight("four-diagrams-light");
    model->setTraceFormat(fourth.id, fourth.format);
    layout->setLayoutType(Graph::LayoutType::Stacked);
    grabber.grab("stacked");
    layout->setLayoutType(Graph::LayoutType::Single);
    grabber.grab("chart");
    grabber.grabLight("chart-light");
    settings->setGridMode(SmithChartPlot::Admittance);
    grabber.grab("smith-admittance");
    settings->setGridMode(SmithChartPlot::ImpedanceAndAdmittance);
    grabber.grab("smith-both");
    settings->setGridMode(SmithChartPlot::Impedance);
    settings->setDensity(GridDensity::Basic);
    grabber.grab("smith-basic");
    settings->setDensity(GridDensity::Detailed);
    grabber.grab("smith-detailed");
    settings->setDensity(GridDensity::Automatic);
    model->setZoom(window->smithView()->id(), {4.0, 0.0, 0.0});
    grabber.grab("smith-zoomed");
    model->setZoom(window->smithView()->id(), Zoom());
    layout->setLayoutType(Graph::LayoutType::SideBySide);

    const QString message = window->messageBar()->message();
    window->messageBar()->setMessage(
        parseTouchstone("1 0 0\n0.5 0 0\n", 1).sentence(QStringLiteral("filter.s1p")));
    grabber.grab("message");
    window->messageBar()->setMessage(message);

    const QVector<Network> networks = model->networks();
    model->openNetworks({});
    grabber.grab("empty");
    model->openNetworks(networks);

    window->lock()->setLocked(true);
    grabber.grab("locked");
    window->lock()->setLocked(false);

    const auto grabDialog = [&](QDialog *dialog, const char *name) {
        dialog->setAttribute(Qt::WA_DontShowOnScreen);
        DialogStage::setTitleHeight(dialog);
        dialog->show();
        grabber.grab(name, dialog);
    };
    FileDialog files(window);
    files.setFolder(sampleFolder());
    files.resize(600, 440);
    grabDialog(&files, "file-dialog");
    SettingsDialog settingsDialog(model, window);
    grabDialog(&settingsDialog, "settings");
    HelpDialog help(window);
    grabDialog(&help, "help");
    if (grabber.ok())
        std::printf("The pictures are in %s\n", qUtf8Printable(QDir(folder).absolutePath()));
    return grabber.ok();
}

} // namespace Panel
