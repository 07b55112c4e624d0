// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/markerstatusitem.h>

#include "ui_markerstatusitem.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace
{

/// What dot and name take of a line.
constexpr int s_dotAndNameWidth = 50;

} // namespace

MarkerStatusItem::MarkerStatusItem(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::MarkerStatusItem>())
{
    ui->setupUi(this);
    // Spare width goes between the stimulus and the values.
    ui->horizontalLayout->setStretch(2, 0);
    ui->horizontalLayout->insertStretch(3, 1);
    setMinimumWidth(0);
    setMaximumWidth(QWIDGETSIZE_MAX);
    ui->valueLabel2->setContentsMargins(12, 0, 0, 0);
    ui->valueLabel3->setContentsMargins(12, 0, 0, 0);
    ui->keyLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

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
    return keyColumnWidth + s_dotAndNameWidth + numLabelWidth1
        + (valueText2.isEmpty() ? 0 : numLabelWidth2) + (valueText3.isEmpty() ? 0 : numLabelWidth3);
}

void MarkerStatusItem::setText(const QString &name, const QString &key, const QString &value1,
                               const QString &value2, const QString &value3)
{
    if (nameText == name && keyText == key && valueText1 == value1 && valueText2 == value2
        && valueText3 == value3)
        return;
    nameText = name;
    keyText = key;
    valueText1 = value1;
    valueText2 = value2;
    valueText3 = value3;
    setAccessibleName(name);
    setAccessibleDescription(
        QStringList{key, value1, value2, value3}.join(QLatin1Char(' ')).simplified());
    updateResponsiveLayout();
}

void MarkerStatusItem::setSelectedStatus(bool selected)
{
    static const char pathProperty[] = "PixmapPath";
    const QString path =
        selected ? QStringLiteral(":/image/resource/marker_selected.svg") : QString();
    if (ui->selectedStatusLabel->property(pathProperty).toString() == path)
        return;
    ui->selectedStatusLabel->setPixmap(QPixmap(path));
    ui->selectedStatusLabel->setProperty(pathProperty, path);
}

void MarkerStatusItem::setColor(const QColor &color)
{
    const QString sheet = QStringLiteral("color:%0;").arg(color.name());
    // A style sheet costs a polish of all labels even when it is the same one.
    if (styleSheet() != sheet)
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
    if (keyColumnWidth == width)
        return;
    keyColumnWidth = width;
    updateResponsiveLayout();
}

void MarkerStatusItem::setNumLabelWidth(int width1, int width2, int width3)
{
    width1 = qMax(width1, 0);
    width2 = qMax(width2, 0);
    width3 = qMax(width3, 0);
    if (numLabelWidth1 == width1 && numLabelWidth2 == width2 && numLabelWidth3 == width3)
        return;
    numLabelWidth1 = width1;
    numLabelWidth2 = width2;
    numLabelWidth3 = width3;
    updateResponsiveLayout();
}

void MarkerStatusItem::setRightAligned(bool right)
{
    if (rightAligned == right)
        return;
    rightAligned = right;
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
    mouseEventRouter = std::move(router);
}

bool MarkerStatusItem::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return filterPress(static_cast<QMouseEvent *>(event));
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease: {
        if (!routingMouse)
            break;
        if (event->type() == QEvent::MouseButtonRelease)
            routingMouse = false;
        event->accept();
        // A copy, since the router may replace itself or delete this item.
        const auto router = mouseEventRouter;
        if (router)
            router(static_cast<QMouseEvent *>(event));
        return true;
    }
    case QEvent::Hide:
        // The release of a hidden widget's press goes elsewhere.
        if (watched == this)
            routingMouse = false;
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
    ui->nameLabel->setText(nameText);
    if (width() <= 0 || width() >= single)
        showOnOneLine();
    else
        showFolded();
}

void MarkerStatusItem::showOnOneLine()
{
    ui->keyLabel->setWordWrap(false);
    ui->keyLabel->setText(keyText);
    ui->keyLabel->setFixedWidth(keyColumnWidth);
    ui->keyLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    ui->nameLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    ui->selectedStatusLabel->setAlignment(Qt::AlignCenter);
    ui->horizontalLayout->setAlignment(ui->selectedStatusLabel, Qt::Alignment());

    const struct {
        Controls::RoundLabel *label;
        const QString &text;
        int width;
        bool shown;
    } values[] = {
        {ui->valueLabel1, valueText1, numLabelWidth1, true},
        {ui->valueLabel2, valueText2, numLabelWidth2, !valueText2.isEmpty()},
        {ui->valueLabel3, valueText3, numLabelWidth3, !valueText3.isEmpty()},
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
    const Qt::Alignment alignment = Qt::AlignTop | (rightAligned ? Qt::AlignRight : Qt::AlignLeft);
    ui->nameLabel->setAlignment(alignment);
    ui->selectedStatusLabel->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    ui->horizontalLayout->setAlignment(ui->selectedStatusLabel, Qt::AlignTop | Qt::AlignHCenter);

    QStringList values;
    for (Controls::RoundLabel *label : {ui->valueLabel1, ui->valueLabel2, ui->valueLabel3})
        label->hide();
    for (const QString &text : {valueText1, valueText2, valueText3}) {
        if (!text.isEmpty())
            values << text;
    }
    QString block = wrapTextToWidth(keyText, available);
    if (!values.isEmpty())
        block += QLatin1Char('\n') + wrapTextToWidth(values.join(QLatin1Char(' ')), available);

    ui->keyLabel->setWordWrap(false);
    ui->keyLabel->setText(block);
    ui->keyLabel->setAlignment(alignment);
    ui->keyLabel->setFixedWidth(available);
    const int lines = int(block.count(QLatin1Char('\n'))) + 1;
    setFixedHeight(ui->keyLabel->fontMetrics().lineSpacing() * lines + 2);
}

QString MarkerStatusItem::wrapTextToWidth(const QString &text, int maxWidth) const
{
    if (text.isEmpty() || maxWidth < 1)
        return text;
    const QFontMetrics metrics = ui->keyLabel->fontMetrics();
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
    routingMouse = false;
    if (event->button() == Qt::LeftButton && mouseEventRouter) {
        const QPointer<MarkerStatusItem> self(this);
        const auto router = mouseEventRouter;
        const bool taken = router(event);
        if (!self)
            return true;
        routingMouse = taken;
    }
    event->accept();
    if (!routingMouse)
        Q_EMIT clicked();
    return true;
}
