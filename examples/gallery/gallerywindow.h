// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
#pragma once

#include <QVector>
#include <QWidget>

class QLabel;
class QPushButton;
class QTabWidget;

namespace Gallery
{

class Page;

/// The gallery: a tab for each family, the theme switch, and a line that tells what widgets told.
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget *parent = nullptr);

    const QVector<Page *> &pages() const { return m_pages; }
    /// Brings a page to the front.
    void showPage(int index);

private:
    void applyTheme();

    QVector<Page *> m_pages;
    QTabWidget *m_tabs;
    QPushButton *m_themeButton;
    QLabel *m_told;
};

} // namespace Gallery
