// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
#include "gallerywindow.h"

#include "page.h"
#include "pages.h"

#include <controls/thememanager.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

using Controls::ThemeManager;

namespace Gallery
{

GalleryWindow::GalleryWindow(QWidget *parent)
    : QWidget(parent)
    , m_tabs(new QTabWidget)
    , m_themeButton(new QPushButton)
    , m_told(new QLabel(tr("Tap a widget; what it reports stands here.")))
{
    setObjectName(QStringLiteral("gallery"));
    setAttribute(Qt::WA_StyledBackground);
    setWindowTitle(tr("VnaWidgets gallery"));
    m_told->setObjectName(QStringLiteral("dim"));
    m_tabs->setDocumentMode(true);
    for (Page *const page : {createButtonsPage(), createListsPage(), createEntryPage(),
                             createReadoutsPage(), createContainersPage(), createChartsPage()}) {
        m_pages << page;
        m_tabs->addTab(page, page->title());
        connect(page, &Page::told, m_told, &QLabel::setText);
    }

    auto *const footer = new QHBoxLayout;
    footer->setContentsMargins(20, 8, 20, 8);
    footer->addWidget(m_told);
    footer->addStretch();
    footer->addWidget(m_themeButton);
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_tabs);
    column->addLayout(footer);

    connect(m_themeButton, &QPushButton::clicked, ThemeManager::instance(),
            &ThemeManager::toggleTheme);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this,
            &GalleryWindow::applyTheme);
    applyTheme();
}

void GalleryWindow::showPage(int index)
{
    m_tabs->setCurrentIndex(index);
}

/// Colours what is the gallery's own; the widgets follow the application's sheets.
void GalleryWindow::applyTheme()
{
    const bool dark = ThemeManager::instance()->isDarkTheme();
    m_themeButton->setText(dark ? tr("Light theme") : tr("Dark theme"));
    const QString sheet =
        QStringLiteral("#gallery, #page { background: @backgroundColor; }"
                       "#section { background: @dialogColor; border: 1px solid @gridColor;"
                       "           border-radius: 6px; }"
                       "#stage { background: @backgroundColor; border: 1px solid @gridColor; }"
                       "#diagram { background: transparent; border: 1px dashed @gridColor; }"
                       "QLabel#sectionTitle { font-size: 17px; font-weight: bold; }"
                       "QLabel#dim { color: @dimTextColor; font-size: 13px; }");
    setStyleSheet(ThemeManager::instance()->fillColors(sheet));
}

} // namespace Gallery
