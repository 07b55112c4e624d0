// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "softkeymenu.h"

#include "softkey.h"
#include <panel/ground/look.h>
#include <panel/ground/pagestack.h>

#include <controls/thememanager.h>

#include <QAccessibleWidget>
#include <QButtonGroup>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace Panel
{

namespace
{

/// Between keys, in pixels, and from which height of the menu on there is room for the large one.
constexpr int s_gap = 6;
constexpr int s_smallGap = 3;
constexpr int s_highScreen = 560;
/// In pixels: a finger's width and height, and what a caption of ten letters takes.
constexpr int s_tabWidth = 68;
constexpr int s_lowestTab = 44;
constexpr int s_iconSide = 20;
/// So much more room for the tabs than for what is below them.
constexpr int s_tabStretch = 1000;

} // namespace

/// Names a page. What is a tool button for the style is a tab for assistive tools.
class PageTab : public QToolButton
{
    Q_OBJECT

public:
    PageTab(const QString &name, QWidget *parent)
        : QToolButton(parent)
    {
        QAccessible::installFactory(&Accessible::make);
        setObjectName(QStringLiteral("pageTab"));
        setText(name);
        setAccessibleName(name);
        setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        setIconSize({s_iconSide, s_iconSide});
        setCheckable(true);
        setFixedWidth(s_tabWidth);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
        setMinimumHeight(s_lowestTab);
        setMaximumHeight(s_tabWidth);
        showChecked(false);
        connect(this, &QToolButton::toggled, this, &PageTab::showChecked);
    }

private:
    class Accessible : public QAccessibleWidget
    {
    public:
        explicit Accessible(QWidget *tab)
            : QAccessibleWidget(tab, QAccessible::PageTab)
        {
        }

        static QAccessibleInterface *make(const QString &className, QObject *object)
        {
            return className == QLatin1String(PageTab::staticMetaObject.className())
                ? new Accessible(static_cast<QWidget *>(object))
                : nullptr;
        }

        QAccessible::State state() const override
        {
            QAccessible::State state = QAccessibleWidget::state();
            state.selectable = true;
            state.selected = static_cast<PageTab *>(widget())->isChecked();
            return state;
        }
        QStringList actionNames() const override
        {
            return QStringList(pressAction()) + QAccessibleWidget::actionNames();
        }
        void doAction(const QString &name) override
        {
            if (name == pressAction())
                static_cast<PageTab *>(widget())->click();
            else
                QAccessibleWidget::doAction(name);
        }
    };

    /// One stop for the tab key, whoever has turned the page.
    void showChecked(bool checked)
    {
        setFocusPolicy(checked ? Qt::StrongFocus : Qt::ClickFocus);
        QAccessible::State changed;
        changed.selected = true;
        QAccessibleStateChangeEvent event(this, changed);
        QAccessible::updateAccessibility(&event);
    }
};

SoftKeyMenu::SoftKeyMenu(QWidget *parent)
    : QWidget(parent)
    , m_tabs(new QButtonGroup(this))
    , m_tabColumn(new QVBoxLayout)
    , m_pages(new PageStack(this))
{
    setObjectName(QStringLiteral("softKeys"));
    setAttribute(Qt::WA_StyledBackground);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 6, 0);
    row->setSpacing(6);
    m_tabColumn->setSpacing(0);
    m_tabColumn->addStretch(1);
    row->addLayout(m_tabColumn);
    row->addWidget(m_pages, 1);
    connect(m_tabs, &QButtonGroup::idToggled, this, [this](int page, bool checked) {
        if (checked)
            m_pages->setCurrentIndex(page);
    });
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            [this] {
                for (int page = 0; page < pageCount(); ++page)
                    recolor(page);
            });
}

/// On a low screen keys come closer, so that each is a finger high.
void SoftKeyMenu::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    for (int page = 0; page < pageCount(); ++page)
        setGap(m_pages->widget(page)->layout());
}

void SoftKeyMenu::setGap(QLayout *column) const
{
    const int gap = height() < s_highScreen ? s_smallGap : s_gap;
    column->setContentsMargins(0, gap, 0, gap);
    column->setSpacing(gap);
}

void SoftKeyMenu::addPage(const QString &name, Glyph glyph)
{
    auto *page = new QWidget(m_pages);
    m_column = new QVBoxLayout(page);
    setGap(m_column);
    m_column->addStretch(1);
    const int index = m_pages->addWidget(page);
    auto *tab = new PageTab(name, this);
    // Above the stretch, which takes nothing before the tabs are as high as they like.
    m_tabColumn->insertWidget(index, tab, s_tabStretch);
    m_tabs->addButton(tab, index);
    m_glyphs.append(glyph);
    tab->setChecked(index == 0);
    recolor(index);
}

void SoftKeyMenu::recolor(int page)
{
    const Look look = currentLook();
    m_tabs->button(page)->setIcon(glyphIcon(m_glyphs.at(page), look.dimText, look.accent));
}

QWidget *SoftKeyMenu::begunPage() const
{
    return m_column->parentWidget();
}

SoftKey *SoftKeyMenu::addKey(const QString &name)
{
    auto *key = new SoftKey(name, begunPage());
    // All are alike, and measuring one is not cheap.
    if (m_keyHeights.isEmpty())
        m_keyHeights = {key->minimumSizeHint().height(), key->sizeHint().height()};
    appendKey(key, m_keyHeights.first());
    return key;
}

void SoftKeyMenu::addKey(QWidget *key)
{
    appendKey(key, qMax(m_keyHeights.value(0), key->minimumSizeHint().height()));
}

void SoftKeyMenu::appendKey(QWidget *key, int smallestHeight)
{
    // All keys are equally high, whatever they hold: as a soft key likes it, or as there is room.
    key->setMinimumHeight(smallestHeight);
    key->setMaximumHeight(m_keyHeights.value(1, QWIDGETSIZE_MAX));
    key->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    m_column->insertWidget(m_column->count() - 1, key, 1);
    key->installEventFilter(this);
    const auto parts = key->findChildren<QWidget *>();
    for (QWidget *part : parts)
        part->installEventFilter(this);
}

bool SoftKeyMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Delete)
            return QCoreApplication::sendEvent(window(), event);
    }
    return QWidget::eventFilter(watched, event);
}

void SoftKeyMenu::addWidget(QWidget *widget)
{
    m_column->insertWidget(m_column->count() - 1, widget);
}

int SoftKeyMenu::page() const
{
    return m_pages->currentIndex();
}

int SoftKeyMenu::pageCount() const
{
    return m_pages->count();
}

void SoftKeyMenu::setPage(int page)
{
    if (QAbstractButton *tab = m_tabs->button(page))
        tab->setChecked(true);
}

void SoftKeyMenu::turnPage(int step)
{
    setPage((page() + step + pageCount()) % pageCount());
}

void SoftKeyMenu::showKey(const QWidget *key)
{
    for (int page = 0; page < pageCount(); ++page) {
        if (m_pages->widget(page)->isAncestorOf(key))
            setPage(page);
    }
}

} // namespace Panel

#include "softkeymenu.moc"
