// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
#include "page.h"
#include "pages.h"

#include <controls/draggableframelessdialog.h>
#include <controls/overlaycontainer.h>
#include <controls/thememanager.h>
#include <platform/layoutmanagerprofile.h>
#include <widgets/displaypanel.h>
#include <widgets/labelbutton.h>
#include <widgets/lockwidget.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace Gallery
{

namespace
{

/// A piece of a front panel for something to stand on.
QFrame *stage(const QSize &size)
{
    auto *const frame = new QFrame;
    frame->setObjectName(QStringLiteral("stage"));
    frame->setFixedSize(size);
    return frame;
}

/// Fills a dialog of a marker search.
void fill(QDialog *dialog, int top)
{
    dialog->setWindowFlags(Qt::Widget); // stays open as a part of the page
    auto *const layout = new QVBoxLayout(dialog);
    layout->setContentsMargins(16, top + 16, 16, 16);
    layout->setSpacing(12);
    layout->addWidget(new QLabel(tr("To the right of the active marker")));
    layout->addWidget(new QPushButton(tr("Next peak")));
}

Section *dialogs()
{
    auto *const section = new Section(QStringLiteral("draggableframelessdialog"),
                                      QStringLiteral("Controls::DraggableFramelessDialog"),
                                      tr("A dialog that is dragged by its own title bar."));
    using Controls::DraggableDialogTitleBar;
    QFrame *const panel = stage({440, 260});
    auto *const dialog = new Controls::DraggableFramelessDialog(panel);
    dialog->setWindowTitle(tr("Marker search"));
    dialog->setHeaderButton(
        {DraggableDialogTitleBar::CloseButton, DraggableDialogTitleBar::MaximizeButton});
    fill(dialog, 35);
    dialog->show();
    section->add(panel, tr("drag it by its title"));
    return section;
}

Section *overlays()
{
    auto *const section = new Section(QStringLiteral("overlaycontainer"),
                                      QStringLiteral("Controls::OverlayContainer"),
                                      tr("Blocks what it covers and carries a dialog."));
    QFrame *const panel = stage({520, 260});
    auto *const key = new LabelButton(panel);
    key->setFocusPolicy(Qt::NoFocus);
    key->setText(tr("Marker"));
    key->setLabelText(QStringLiteral("2.412 GHz"));
    key->setGeometry(376, 40, 130, 84);
    auto *const overlay = new Controls::OverlayContainer(panel);
    auto *const dialog = new QDialog(panel);
    dialog->setAutoFillBackground(true);
    fill(dialog, 0);
    overlay->showWithDialog(dialog, Controls::OverlayContainer::None, true,
                            Controls::OverlayContainer::LeftOfAnchor, key);
    section->add(panel, tr("dimmed, the dialog left of its key"));
    return section;
}

Section *locks()
{
    auto *const section = new Section(QStringLiteral("lockwidget"), QStringLiteral("LockWidget"),
                                      tr("A floating padlock against accidental touches."));
    LockWidget *lock = nullptr;
    for (const char *const caption : {"docked at the right edge of a diagram", "locked"}) {
        QFrame *const panel = stage({300, 220});
        auto *const diagram = new QFrame(panel);
        diagram->setObjectName(QStringLiteral("diagram"));
        diagram->setGeometry(16, 16, 268, 188);
        lock = new LockWidget(panel, diagram);
        lock->setScreenLockEnable(true);
        section->add(panel, tr(caption));
    }
    // Locked for the picture alone: it would lock the whole gallery.
    section->setPose([lock] {
        QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
        QCoreApplication::sendEvent(lock, &space);
    });
    return section;
}

Section *displayPanels(Page *page)
{
    auto *const section =
        new Section(QStringLiteral("displaypanel"), QStringLiteral("DisplayPanel"),
                    tr("Chooses how the diagrams share the window."));
    auto *const profile = new Graph::LayoutManagerProifle(page);
    auto *const panel = new DisplayPanel(profile);
    QObject::connect(panel, &DisplayPanel::layoutChanged, page, [page](int type) {
        Q_EMIT page->told(QStringLiteral("DisplayPanel: layoutChanged(%1)").arg(type));
    });
    section->add(panel, tr("bound to a layout profile"), QSize(240, 80));
    return section;
}

} // namespace

Page *createContainersPage()
{
    auto *const page = new Page(tr("Containers"));
    page->add(overlays());
    page->addBeside(dialogs());
    page->add(locks());
    page->addBeside(displayPanels(page));
    return page;
}

} // namespace Gallery
