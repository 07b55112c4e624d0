// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "grab.h"

#include "cartesianview.h"
#include "diagrams.h"
#include "filedialog.h"
#include "messagebar.h"
#include "numericdialog.h"
#include "panelmodel.h"
#include "panelwindow.h"
#include "samples.h"
#include "smithview.h"
#include "softkey.h"
#include "softkeymenu.h"
#include "sweepkeys.h"

#include <controls/thememanager.h>
#include <plot/qcp.h>

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QPointer>

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
        m_window->smithView()->plot()->replot();
        m_window->cartesianView()->plot()->replot();
        const QString path = m_folder.filePath(QLatin1String(name) + QLatin1String(".png"));
        if ((widget ? widget : m_window)->grab().save(path))
            return;
        std::fprintf(stderr, "vnapanel: %s: the picture cannot be written.\n",
                     qUtf8Printable(path));
        m_ok = false;
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
    using Controls::ThemeManager;
    Grabber grabber(window, folder);
    SmithView *view = window->smithView();

    if (const Trace *trace = model->activeTrace()) {
        const int last = model->network(*trace).points() - 1;
        const int id = trace->id;
        if (const Trace *transmission = model->activeTrace(Trace::Transmission)) {
            model->addMarker(transmission->id, last / 3);
            model->addMarker(transmission->id, last / 2);
        }
        model->addMarker(id, last / 3);
        model->addMarker(id, last / 2);
    }
    grabber.grab("panel");

    for (const auto &[page, name] : {std::pair(1, "page-marker"), std::pair(2, "page-display")}) {
        window->softKeys()->setPage(page);
        grabber.grab(name);
    }
    window->softKeys()->setPage(0);
    window->stopKey()->click();
    const QPointer<NumericDialog> keypad(window->findChild<NumericDialog *>());
    grabber.grab("keypad");
    ThemeManager::instance()->setTheme(ThemeManager::Light);
    grabber.grab("keypad-light");
    ThemeManager::instance()->setTheme(ThemeManager::Dark);
    if (keypad)
        keypad->reject();

    // Keys are pressed as a user would, so that their values follow.
    const auto pick = [](SoftKey *key, int index) { Q_EMIT key->choicePicked(index); };
    const SweepKeys *keys = window->sweepKeys();
    window->softKeys()->showKey(keys->sourceKey());
    grabber.grab("keys-sweep");
    window->softKeys()->setPage(0);
    pick(keys->formatKey(), int(CartesianFormat::Phase));
    grabber.grab("cartesian-phase");
    pick(keys->formatKey(), int(CartesianFormat::LogMagnitude));
    pick(keys->diagramsKey(), Diagrams::Cartesian);
    grabber.grab("cartesian");
    ThemeManager::instance()->setTheme(ThemeManager::Light);
    pick(keys->diagramsKey(), Diagrams::Both);
    grabber.grab("panel-light");
    ThemeManager::instance()->setTheme(ThemeManager::Dark);
    pick(keys->diagramsKey(), Diagrams::Smith);
    pick(window->gridKey(), SmithChartPlot::Admittance);
    grabber.grab("smith-admittance");
    pick(window->gridKey(), SmithChartPlot::ImpedanceAndAdmittance);
    grabber.grab("smith-both");
    pick(window->gridKey(), SmithChartPlot::Impedance);
    pick(window->densityKey(), SmithChart::Basic);
    grabber.grab("smith-basic");
    pick(window->densityKey(), SmithChart::Detailed);
    grabber.grab("smith-detailed");
    pick(window->densityKey(), SmithChart::Standard);
    view->setZoom(4.0);
    grabber.grab("smith-zoomed");
    view->resetView();

    ThemeManager::instance()->setTheme(ThemeManager::Light);
    grabber.grab("smith-light");
    ThemeManager::instance()->setTheme(ThemeManager::Dark);
    pick(keys->diagramsKey(), Diagrams::Both);

    const QString message = window->messageBar()->message();
    window->messageBar()->setMessage(
        QStringLiteral("filter.s2p, line 12: the frequency falls back."));
    grabber.grab("message");
    window->messageBar()->setMessage(message);

    const QVector<Network> networks = model->networks();
    model->setNetworks({});
    grabber.grab("empty");
    model->setNetworks(networks);

    FileDialog dialog(window);
    dialog.setFolder(sampleFolder());
    dialog.resize(600, 440);
    dialog.setAttribute(Qt::WA_DontShowOnScreen);
    dialog.show();
    grabber.grab("file-dialog", &dialog);
    if (grabber.ok())
        std::printf("The pictures are in %s\n", qUtf8Printable(QDir(folder).absolutePath()));
    return grabber.ok();
}

} // namespace Panel
