// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "letterkeys.h"

#include <QEvent>
#include <QFocusEvent>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

namespace Panel
{

namespace
{

/// A finger, and what lies between two keys, in pixels.
constexpr int s_letterSide = 44;
constexpr int s_letterGap = 4;
constexpr int s_columns = 10;
constexpr const char *s_lines[] = {"1234567890", "qwertyuiop", "asdfghjkl-", " zxcvbnm"};
constexpr const char *s_shiftedLines[] = {".,;+=()#%!", "QWERTYUIOP", "ASDFGHJKL_", " ZXCVBNM"};
constexpr int s_lastLine = 3;

} // namespace

LetterKeys::LetterKeys(QLineEdit *line, QWidget *parent)
    : QWidget(parent)
    , m_line(line)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(s_letterGap);
    for (int row = 0; row <= s_lastLine; ++row) {
        const QString texts = QLatin1String(s_lines[row]);
        for (int column = 0; column < texts.size(); ++column) {
            const QChar text = texts.at(column);
            if (text == QLatin1Char(' '))
                continue;
            QPushButton *key = addKey(text, row, column);
            connect(key, &QPushButton::clicked, this, [this, key] {
                m_line->insert(key->text());
                setShift(false);
            });
            m_keys.append({key, text, QLatin1Char(s_shiftedLines[row][column])});
        }
    }
    m_shift = addKey(QStringLiteral("\u21e7"), s_lastLine, 0);
    m_shift->setAccessibleName(tr("Shift"));
    m_shift->setCheckable(true);
    connect(m_shift, &QPushButton::clicked, this, &LetterKeys::setShift);
    QPushButton *space = addKey(QStringLiteral("\u2423"), s_lastLine, s_columns - 2);
    space->setAccessibleName(tr("Space"));
    connect(space, &QPushButton::clicked, line, [line] { line->insert(QStringLiteral(" ")); });
    QPushButton *erase = addKey(QStringLiteral("\u232b"), s_lastLine, s_columns - 1);
    erase->setAccessibleName(tr("Erase"));
    erase->setAutoRepeat(true);
    connect(erase, &QPushButton::clicked, line, &QLineEdit::backspace);
    line->installEventFilter(this);
    hide();
}

QPushButton *LetterKeys::addKey(const QString &text, int row, int column)
{
    auto *key = new QPushButton(text, this);
    key->setFocusPolicy(Qt::NoFocus);
    key->setAutoDefault(false);
    key->setMinimumSize(s_letterSide, s_letterSide);
    static_cast<QGridLayout *>(layout())->addWidget(key, row, column);
    return key;
}

/// For one letter or sign.
void LetterKeys::setShift(bool on)
{
    m_shift->setChecked(on);
    for (const Key &key : qAsConst(m_keys))
        key.button->setText(on ? key.shifted : key.plain);
}

void LetterKeys::setStaying(bool staying)
{
    m_staying = staying;
    setVisible(staying);
}

void LetterKeys::setShown(bool shown)
{
    if (shown == !isHidden() || m_staying)
        return;
    setVisible(shown);
    setShift(false);
    // The first letter takes the place of what stands there; the line is done with the tap by then.
    if (shown)
        QMetaObject::invokeMethod(m_line, &QLineEdit::selectAll, Qt::QueuedConnection);
    Q_EMIT shownChanged(shown);
}

bool LetterKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        setShown(true);
    } else if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            setShown(false);
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace Panel
