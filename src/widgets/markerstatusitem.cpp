// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <widgets/markerstatusitem.h>

#include "ui_markerstatusitem.h"

#include <QAccessibleWidget>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace
{

/// What dot and name take of a line.
constexpr int s_dotAndNameWidth = 50;

/// Dynamic property of the dot's label: the picture that it shows.
constexpr char s_pathProperty[] = "PixmapPath";

} // namespace

struct MarkerStatusItemPrivate {
    Ui::MarkerStatusItem ui;
    QString nameText;
    QString keyText;
    QString valueText1;
    QString valueText2;
    QString valueText3;
    int keyColumnWidth = 130;
    int numLabelWidth1 = 70;
    int numLabelWidth2 = 70;
    int numLabelWidth3 = 70;
    bool rightAligned = false;
    std::function<bool(QMouseEvent *)> mouseEventRouter;
    bool routingMouse = false;
};

/// To a screen reader the read-out is a list item: named after the marker, with the readings as
/// value.
class MarkerStatusItem::Accessible : public QAccessibleWidget
{
public:
    explicit Accessible(MarkerStatusItem *item)
        : QAccessibleWidget(item, QAccessible::ListItem)
    {
    }

    static QAccessibleInterface *create(const QString &className, QObject *object)
    {
        Q_UNUSED(className)
        auto *item = qobject_cast<MarkerStatusItem *>(object);
        return item ? new Accessible(item) : nullptr;
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name)
            return item()->d->nameText;
        if (kind == QAccessible::Value)
            return item()->readings().join(QLatin1Char(' '));
        return QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.selected =
            !item()->d->ui.selectedStatusLabel->property(s_pathProperty).toString().isEmpty();
        return state;
    }

    QStringList actionNames() const override
    {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &actionName) override
    {
        if (actionName == pressAction())
            Q_EMIT item()->clicked();
        else
            QAccessibleWidget::doAction(actionName);
    }

private:
    MarkerStatusItem *item() const { return static_cast<MarkerStatusItem *>(widget()); }
};

MarkerStatusItem::MarkerStatusItem(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<MarkerStatusItemPrivate>())
{
    QAccessible::installFactory(&Accessible::create);
    d->ui.setupUi(this);
    // Spare width goes between the stimulus and the values.
    d->ui.horizontalLayout->setStretch(2, 0);
    d->ui.horizontalLayout->insertStretch(3, 1);
    setMinimumWidth(0);
    setMaximumWidth(QWIDGETSIZE_MAX);
    d->ui.valueLabel2->setContentsMargins(12, 0, 0, 0);
    d->ui.valueLabel3->setContentsMargins(12, 0, 0, 0);
    d->ui.keyLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    // Tab reaches it; a finger on it leaves the focus with the editor that has it.
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_StyledBackground);
    installEventFilter(this);
    const QList<QLabel *> labels = findChildren<QLabel *>();
    for (QLabel *label : labels) {
        label->installEventFilter(this);
        label->setContextMenuPolicy(Qt::NoContextMenu);
    }
}

MarkerStatusItem::~MarkerStatusItem() = default;

int MarkerStatusItem::preferredSingleLineWidth() const
{
    return d->keyColumnWidth + s_dotAndNameWidth + d->numLabelWidth1
        + (d->valueText2.isEmpty() ? 0 : d->numLabelWidth2)
        + (d->valueText3.isEmpty() ? 0 : d->numLabelWidth3);
}

void MarkerStatusItem::setText(const QString &name, const QString &key, const QString &value1,
                               const QString &value2, const QString &value3)
{
    if (d->nameText == name && d->keyText == key && d->valueText1 == value1
        && d->valueText2 == value2 && d->valueText3 == value3)
        return;
    d->nameText = name;
    d->keyText = key;
    d->valueText1 = value1;
    d->valueText2 = value2;
    d->valueText3 = value3;
    updateResponsiveLayout();
}

void MarkerStatusItem::setSelectedStatus(bool selected)
{
    const QString path =
        selected ? QStringLiteral(":/image/resource/marker_selected.svg") : QString();
    if (d->ui.selectedStatusLabel->property(s_pathProperty).toString() == path)
        return;
    d->ui.selectedStatusLabel->setPixmap(QPixmap(path));
    d->ui.selectedStatusLabel->setProperty(s_pathProperty, path);
}

void MarkerStatusItem::setColor(const QColor &color)
{
    const QString sheet = QStringLiteral("color:%0;").arg(color.name());
    // A style sheet costs a polish of all labels even when it is the same one.
    if (styleSheet() == sheet)
        return;
    // Where an ancestor has a style sheet too, Qt leaves out labels that were polished before us.
    ensurePolished();
    setStyleSheet(sheet);
}

void MarkerStatusItem::setBold(bool bold)
{
    QFont wanted = font();
    wanted.setWeight(bold ? QFont::Bold : QFont::Normal);
    setFont(wanted);
}

void MarkerStatusItem::setKeyColumnWidth(int width)
{
    width = qMax(width, 20);
    if (d->keyColumnWidth == width)
        return;
    d->keyColumnWidth = width;
    updateResponsiveLayout();
}

void MarkerStatusItem::setNumLabelWidth(int width1, int width2, int width3)
{
    width1 = qMax(width1, 0);
    width2 = qMax(width2, 0);
    width3 = qMax(width3, 0);
    if (d->numLabelWidth1 == width1 && d->numLabelWidth2 == width2 && d->numLabelWidth3 == width3)
        return;
    d->numLabelWidth1 = width1;
    d->numLabelWidth2 = width2;
    d->numLabelWidth3 = width3;
    updateResponsiveLayout();
}

void MarkerStatusItem::setRightAligned(bool right)
{
    if (d->rightAligned == right)
        return;
    d->rightAligned = right;
    updateResponsiveLayout();
}

void MarkerStatusItem::setLayoutWidth(int width)
{
    setFixedWidth(width);
    // A visible item hears of its new width by itself.
    if (!isVisible())
        updateResponsiveLayout();
}

void MarkerStatusItem::setMouseEventRouter(std::function<bool(QMouseEvent *)> router)
{
    d->mouseEventRouter = std::move(router);
}

bool MarkerStatusItem::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return filterPress(static_cast<QMouseEvent *>(event));
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease: {
        if (!d->routingMouse)
            break;
        if (event->type() == QEvent::MouseButtonRelease)
            d->routingMouse = false;
        event->accept();
        const auto router = d->mouseEventRouter; // a copy, as for the press
        if (router)
            router(static_cast<QMouseEvent *>(event));
        return true;
    }
    case QEvent::Hide:
        // The release of a hidden widget's press goes elsewhere.
        if (watched == this)
            d->routingMouse = false;
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void MarkerStatusItem::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange)
        return;
    // Where a style sheet is in force, labels do not take over their parent's font by themselves.
    const QList<QLabel *> labels = findChildren<QLabel *>();
    for (QLabel *label : labels)
        label->setFont(font());
    // Line breaks and heights depend on the font.
    updateResponsiveLayout();
}

void MarkerStatusItem::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Select:
        if (!event->isAutoRepeat())
            Q_EMIT clicked();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void MarkerStatusItem::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    updateResponsiveLayout();
}

void MarkerStatusItem::updateResponsiveLayout()
{
    const int single = preferredSingleLineWidth();
    d->ui.nameLabel->setText(d->nameText);
    if (width() <= 0 || width() >= single)
        showOnOneLine();
    else
        showFolded();
}

void MarkerStatusItem::showOnOneLine()
{
    d->ui.keyLabel->setWordWrap(false);
    d->ui.keyLabel->setText(d->keyText);
    d->ui.keyLabel->setFixedWidth(d->keyColumnWidth);
    d->ui.keyLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    d->ui.nameLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    d->ui.selectedStatusLabel->setAlignment(Qt::AlignCenter);
    d->ui.horizontalLayout->setAlignment(d->ui.selectedStatusLabel, Qt::Alignment());

    const struct {
        Controls::RoundLabel *label;
        const QString &text;
        int width;
        bool shown;
    } values[] = {
        {d->ui.valueLabel1, d->valueText1, d->numLabelWidth1, true},
        {d->ui.valueLabel2, d->valueText2, d->numLabelWidth2, !d->valueText2.isEmpty()},
        {d->ui.valueLabel3, d->valueText3, d->numLabelWidth3, !d->valueText3.isEmpty()},
    };
    for (const auto &value : values) {
        value.label->setText(value.text);
        value.label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        value.label->setVisible(value.shown);
        if (value.shown)
            value.label->setFixedWidth(value.width);
    }
    setFixedHeight(qMax(fontMetrics().height() + 2, 16));
}

void MarkerStatusItem::showFolded()
{
    const int available = qMax(width() - s_dotAndNameWidth, 20);
    const Qt::Alignment alignment =
        Qt::AlignTop | (d->rightAligned ? Qt::AlignRight : Qt::AlignLeft);
    d->ui.nameLabel->setAlignment(alignment);
    d->ui.selectedStatusLabel->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    d->ui.horizontalLayout->setAlignment(d->ui.selectedStatusLabel,
                                         Qt::AlignTop | Qt::AlignHCenter);

    for (Controls::RoundLabel *label : {d->ui.valueLabel1, d->ui.valueLabel2, d->ui.valueLabel3})
        label->hide();
    const QStringList values = readings().mid(d->keyText.isEmpty() ? 0 : 1);
    QString block = wrapTextToWidth(d->keyText, available);
    if (!values.isEmpty())
        block += QLatin1Char('\n') + wrapTextToWidth(values.join(QLatin1Char(' ')), available);

    d->ui.keyLabel->setWordWrap(false);
    d->ui.keyLabel->setText(block);
    d->ui.keyLabel->setAlignment(alignment);
    d->ui.keyLabel->setFixedWidth(available);
    const int lines = int(block.count(QLatin1Char('\n'))) + 1;
    setFixedHeight(d->ui.keyLabel->fontMetrics().lineSpacing() * lines + 2);
}

/// Stimulus and values, without the empty ones.
QStringList MarkerStatusItem::readings() const
{
    QStringList texts{d->keyText, d->valueText1, d->valueText2, d->valueText3};
    texts.removeAll(QString());
    return texts;
}

QString MarkerStatusItem::wrapTextToWidth(const QString &text, int maxWidth) const
{
    const QFontMetrics metrics = d->ui.keyLabel->fontMetrics();
    QStringList lines;
    QString line;
    for (const QChar &character : text) {
        if (!line.isEmpty() && metrics.horizontalAdvance(line + character) > maxWidth) {
            lines << line;
            line.clear();
        }
        line += character;
    }
    lines << line;
    return lines.join(QLatin1Char('\n'));
}

bool MarkerStatusItem::filterPress(QMouseEvent *event)
{
    bool taken = false;
    if (event->button() == Qt::LeftButton) {
        const QPointer<MarkerStatusItem> self(this);
        // A copy, since the router may replace itself or delete this item.
        const auto router = d->mouseEventRouter;
        taken = router && router(event);
        if (!self)
            return true;
        d->routingMouse = taken;
    }
    event->accept();
    if (!taken)
        Q_EMIT clicked();
    return true;
}
