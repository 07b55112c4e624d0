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
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace Panel
{

namespace
{

/// Between keys, in pixels, and from which height of the menu on there is room for the large one.
constexpr int s_keyGap = 6;
constexpr int s_smallKeyGap = 3;
constexpr int s_highScreen = 560;
/// In pixels: a finger's width and height, and what a caption of ten letters takes.
constexpr int s_tabWidth = 68;
constexpr int s_lowestTab = 44;
constexpr int s_iconSide = 20;
/// So much more room for the tabs than for what is below them.
constexpr int s_tabStretch = 1000;
/// In letters: what the widest page takes in any language, so that none makes the menu wider when it
/// joins.
constexpr int s_pageLetters = 28;
/// In ms, from the menu's first showing: the first picture comes before.
constexpr int s_joinDelay = 200;

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
    , m_stack(new PageStack(this))
{
    setObjectName(QStringLiteral("softKeys"));
    setAttribute(Qt::WA_StyledBackground);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 6, 0);
    row->setSpacing(6);
    m_tabColumn->setSpacing(0);
    m_tabColumn->addStretch(1);
    row->addLayout(m_tabColumn);
    row->addWidget(m_stack, 1);
    m_stack->setMinimumWidth(fontMetrics().averageCharWidth() * s_pageLetters);
    connect(m_tabs, &QButtonGroup::idToggled, this, [this](int page, bool checked) {
        if (!checked)
            return;
        if (page > 0)
            joinAll();
        m_stack->setCurrentIndex(page);
    });
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            [this] {
                for (int page = 0; page < pageCount(); ++page)
                    recolor(page);
            });
}

SoftKeyMenu::~SoftKeyMenu()
{
    for (const Page &page : qAsConst(m_pages)) {
        if (!page.widget->parent())
            delete page.widget;
    }
}

/// On a low screen keys come closer, so that each is a finger high.
void SoftKeyMenu::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    for (int page = 0; page < pageCount(); ++page)
        setGap(m_pages.at(page).widget->layout());
}

void SoftKeyMenu::setGap(QLayout *column) const
{
    const int gap = height() < s_highScreen ? s_smallKeyGap : s_keyGap;
    column->setContentsMargins(0, gap, 0, gap);
    column->setSpacing(gap);
}

void SoftKeyMenu::addPage(const QString &name, Glyph glyph)
{
    const int index = pageCount();
    auto *page = new QWidget(index == 0 ? m_stack : nullptr);
    m_pages.append(Page{page, {}, {}});
    m_column = new QVBoxLayout(page);
    setGap(m_column);
    m_column->addStretch(1);
    if (index == 0)
        m_stack->addWidget(page);
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
    appendKey(key);
    return key;
}

void SoftKeyMenu::addKey(QWidget *key)
{
    appendKey(key);
}

void SoftKeyMenu::appendKey(QWidget *key)
{
    m_pages.last().keys.append(key);
    // All keys are equally high, whatever they hold: as a soft key likes it, or as there is room.
    key->setMinimumHeight(m_keyHeights.value(0));
    key->setMaximumHeight(m_keyHeights.value(1, QWIDGETSIZE_MAX));
    key->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    m_column->insertWidget(m_column->count() - 1, key, 1);
    key->installEventFilter(this);
    const auto parts = key->findChildren<QWidget *>();
    for (QWidget *part : parts)
        part->installEventFilter(this);
}

void SoftKeyMenu::join(Page &page)
{
    if (page.widget->parent())
        return;
    m_stack->addWidget(page.widget);
    for (const auto &make : qAsConst(page.toMake))
        make();
    for (QWidget *key : page.keys) {
        if (!qobject_cast<SoftKey *>(key)) // measured once for all
            key->setMinimumHeight(qMax(m_keyHeights.value(0), key->minimumSizeHint().height()));
    }
}

void SoftKeyMenu::joinAll()
{
    for (Page &page : m_pages)
        join(page);
}

void SoftKeyMenu::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // Qt posts with every new widget that it is to be styled, shown or not. What is shown has been.
    QCoreApplication::removePostedEvents(nullptr, QEvent::PolishRequest);
    QTimer::singleShot(s_joinDelay, this, &SoftKeyMenu::joinAll);
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

void SoftKeyMenu::addWidget(const std::function<QWidget *(QWidget *)> &make)
{
    const auto insert = [make, column = m_column, place = m_column->count() - 1] {
        column->insertWidget(place, make(column->parentWidget()));
    };
    if (m_column->parentWidget()->parent())
        insert();
    else
        m_pages.last().toMake.append(insert);
}

int SoftKeyMenu::page() const
{
    return m_stack->currentIndex();
}

int SoftKeyMenu::pageCount() const
{
    return int(m_pages.size());
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
        if (m_pages.at(page).widget->isAncestorOf(key))
            setPage(page);
    }
}

} // namespace Panel

#include "softkeymenu.moc"
