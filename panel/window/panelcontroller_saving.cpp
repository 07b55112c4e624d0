// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelcontroller.h"

#include "exports.h"
#include "messagebar.h"
#include "panelwindow.h"

#include <panel/diagrams/diagrams.h>
#include <panel/diagrams/diagramview.h>
#include <panel/ground/dialogstage.h>
#include <panel/model/panelmodel.h>
#include <panel/touchstone/saving.h>

#include <widgets/menubutton.h>

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPrintDialog>
#include <QPrinter>

namespace Panel
{

namespace
{

/// The commands of the save key.
enum SaveCommand {
    SaveTouchstone,
    SaveCsv,
    SavePdf,
    SaveSvg,
    CopyPicture,
    Print,
};

/// The network as it is on show, with a comment on what was done to it.
Network documented(const Network &measured, const Correction &correction)
{
    Network network = corrected(measured, correction);
    QStringList done;
    for (int port = 1; port <= correction.delays.size(); ++port) {
        if (correction.delay(port) != 0.0)
            done << QStringLiteral("Port %1 extended by %2 ps")
                        .arg(port)
                        .arg(correction.delay(port) * 1e12, 0, 'f', 2);
    }
    if (correction.referenceOhms > 0.0)
        done << QStringLiteral("Referred to %1 ohms").arg(correction.referenceOhms);
    for (const QString &text : done)
        network.comments.prepend({0, text});
    return network;
}

} // namespace

void PanelController::addSaving()
{
    for (MenuButton *key : {m_window->keys().save, m_window->saveButton()}) {
        key->setMenuItems({{SaveTouchstone, QStringLiteral("Touchstone")},
                           {SaveCsv, QStringLiteral("CSV")},
                           {SavePdf, tr("Diagram as PDF")},
                           {SaveSvg, tr("Diagram as SVG")},
                           {CopyPicture, tr("Picture to clipboard")},
                           {Print, tr("Print the diagram\u2026")}});
        connect(key, qOverload<int>(&MenuButton::menuItemClicked), this,
                &PanelController::onSavePicked);
    }
    const auto showSave = [this] {
        m_window->keys().save->setEnabled(m_model->activeTrace());
        m_window->saveButton()->setEnabled(m_model->activeTrace());
    };
    connect(m_model, &PanelModel::tracesChanged, this, showSave);
    showSave();
}

void PanelController::takeScreenshot()
{
    m_window->messageBar()->notify({}); // of what was saved before
    tell(exportScreenshot(m_window, folderForExports(*m_model->preferences())));
}

void PanelController::onSavePicked(int command)
{
    const Trace *trace = m_model->activeTrace();
    DiagramView *view = m_window->diagrams()->activeView();
    if (!trace || !view)
        return;
    const Network &measured = m_model->networks().at(trace->network);
    const Network network = documented(measured, m_model->correction(*trace));
    const QString stem = QFileInfo(measured.name).completeBaseName();
    const auto saveData = [network](const QString &path) {
        SaveOptions options;
        options.overwrite = true; // the dialog has asked
        return saveNetwork(path, network, options);
    };
    const auto saveDrawing = [view = QPointer<DiagramView>(view)](const QString &path) {
        return view ? saveDiagram(view, path) : QString();
    };
    switch (command) {
    case SaveTouchstone:
        saveAs(tr("Save as Touchstone"), {stem}, QStringLiteral(".s%1p").arg(network.ports),
               saveData);
        break;
    case SaveCsv:
        saveAs(tr("Save as CSV"), {stem}, QStringLiteral(".csv"), saveData);
        break;
    case CopyPicture:
        m_window->messageBar()->notify({}); // of what was saved before
        QGuiApplication::clipboard()->setPixmap(m_window->grab());
        m_window->messageBar()->notify(tr("Copied the picture"));
        break;
    case Print:
        print(view);
        break;
    case SavePdf:
        saveAs(tr("Save the diagram as PDF"), {stem, PanelModel::parameterName(*trace)},
               QStringLiteral(".pdf"), saveDrawing);
        break;
    case SaveSvg:
        saveAs(tr("Save the diagram as SVG"), {stem, PanelModel::parameterName(*trace)},
               QStringLiteral(".svg"), saveDrawing);
        break;
    }
}

/// Asks where. The next file goes there, too.
void PanelController::saveAs(const QString &title, const QStringList &name, const QString &suffix,
                             const SaveDialog::Writer &write)
{
    auto *dialog = new SaveDialog(title, suffix, write, m_window);
    dialog->setFolder(folderForExports(*m_model->preferences()));
    dialog->setName(datedName(name));
    dialog->resize(640, 560);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        m_model->preferences()->setExportFolder(dialog->folder());
        tell({dialog->path(), QString()});
    });
    DialogStage::show(dialog, m_window);
}

void PanelController::print(DiagramView *view)
{
    const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setPageOrientation(view->width() > view->height() ? QPageLayout::Landscape
                                                               : QPageLayout::Portrait);
    auto *dialog = new QPrintDialog(printer.get(), m_window);
    connect(dialog, qOverload<>(&QDialog::accepted), view, [this, view, printer] {
        if (printDiagram(view, printer.get()))
            m_window->messageBar()->notify(tr("Printed the diagram"));
        else
            m_window->messageBar()->setMessage(tr("The printer does not take the diagram."));
    });
    DialogStage::show(dialog, m_window);
}

/// Says where something was saved, or why it was not.
void PanelController::tell(const Exported &exported)
{
    MessageBar *bar = m_window->messageBar();
    if (exported.error.isEmpty())
        bar->notify(tr("Saved %1").arg(QDir::toNativeSeparators(exported.path)));
    else
        bar->setMessage(exported.error);
}

} // namespace Panel
