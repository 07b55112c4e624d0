// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/ground/glyphs.h>

#include <QVector>
#include <QWidget>

#include <functional>

class QButtonGroup;
class QStackedWidget;
class QVBoxLayout;

namespace Panel
{

class SoftKey;

/*! The column of soft keys: pages of keys beside the tabs that name them. Tab and the arrow keys up
    and down reach all of it; left, right and Delete go to the window, which has a use for them.

    Pages but the first join the window when somebody turns to one, or a moment after the first
    picture: styling and laying them out takes a third of the time to it. */
class SoftKeyMenu : public QWidget
{
    Q_OBJECT

public:
    explicit SoftKeyMenu(QWidget *parent = nullptr);
    ~SoftKeyMenu() override;

    /// Begins a page; the first is the one on show.
    void addPage(const QString &name, Glyph glyph);
    /// The page that was begun last: the parent of what is added to it. A widget that moves to
    /// another parent is styled anew with all that it holds.
    QWidget *begunPage() const;
    /// Appends a key to that page. The menu owns it.
    SoftKey *addKey(const QString &name);
    /// The same with a key that exists already.
    void addKey(QWidget *key);
    /// Places a widget there that keeps its own height. It is made, with its page for a parent, when
    /// the page joins the window.
    void addWidget(const std::function<QWidget *(QWidget *page)> &make);

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
    void showEvent(QShowEvent *event) override;

private:
    struct Page {
        QWidget *widget; ///< without a parent until the page has joined the window
        QVector<QWidget *> keys;
        QVector<std::function<void()>> toMake; ///< what joins with the page
    };

    void setGap(QLayout *column) const;
    void appendKey(QWidget *key);
    void join(Page &page);
    void joinAll();
    void recolor(int page);

    QButtonGroup *m_tabs;
    QVBoxLayout *m_tabColumn;
    QVector<Glyph> m_glyphs; ///< of the tabs
    QStackedWidget *m_stack; ///< the pages that have joined the window, in their order
    QVector<Page> m_pages; ///< in the order of their tabs
    QVector<int>
        m_keyHeights; ///< the smallest and the preferred one of a soft key, once there is one
    QVBoxLayout *m_column = nullptr; ///< of the page that was begun last
};

} // namespace Panel
