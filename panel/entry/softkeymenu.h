// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/ground/glyphs.h>

#include <QVector>
#include <QWidget>

class QButtonGroup;
class QStackedWidget;
class QVBoxLayout;

namespace Panel
{

class SoftKey;

/*! The column of soft keys: pages of keys beside the tabs that name them. Tab and the arrow keys up
    and down reach all of it; left, right and Delete go to the window, which has a use for them. */
class SoftKeyMenu : public QWidget
{
    Q_OBJECT

public:
    explicit SoftKeyMenu(QWidget *parent = nullptr);

    /// Begins a page; the first is the one on show.
    void addPage(const QString &name, Glyph glyph);
    /// The page that was begun last: the parent of what is added to it. A widget that moves to
    /// another parent is styled anew with all that it holds.
    QWidget *begunPage() const;
    /// Appends a key to that page. The menu owns it.
    SoftKey *addKey(const QString &name);
    /// The same with a key that exists already.
    void addKey(QWidget *key);
    /// The same with a widget that keeps its own height.
    void addWidget(QWidget *widget);

    int page() const;
    int pageCount() const;
    void setPage(int page);
    /// Goes to the next page (1) or the one before (-1), around the ends.
    void turnPage(int step);
    /// Shows the page that a key, or a part of it, is on.
    void showKey(const QWidget *key);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setGap(QLayout *column) const;
    void appendKey(QWidget *key, int smallestHeight);
    void recolor(int page);

    QButtonGroup *m_tabs;
    QVBoxLayout *m_tabColumn;
    QVector<Glyph> m_glyphs; ///< of the tabs
    QStackedWidget *m_pages;
    QVector<int>
        m_keyHeights; ///< the smallest and the preferred one of a soft key, once there is one
    QVBoxLayout *m_column = nullptr; ///< of the page that was begun last
};

} // namespace Panel
