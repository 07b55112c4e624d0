// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "verdict.h"

#include <panel/ground/look.h>
#include <panel/ground/numbertext.h>

namespace Panel
{

Verdict::Verdict(QWidget *diagram)
    : QLabel(diagram)
{
    setObjectName(QStringLiteral("verdict"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAlignment(Qt::AlignCenter);
    hide();
}

void Verdict::show(bool tested, const QVector<Failure> &failures)
{
    setVisible(tested);
    tell(tested, failures);
    if (!tested)
        return;
    const Look look = currentLook();
    const QString sheet =
        QStringLiteral("padding: 3px 10px; border: 1px solid %1; border-radius: 4px; "
                       "background: %2; color: %1; font-weight: bold;")
            .arg((failures.isEmpty() ? look.pass : look.fail).name(), look.bar.name());
    if (sheet != styleSheet())
        setStyleSheet(sheet);
    QString text = QStringLiteral("<span style='font-size:24px'>%1</span>")
                       .arg(failures.isEmpty() ? tr("PASS") : tr("FAIL"));
    for (const Failure &failure : failures.mid(0, maximumFailures))
        text += QLatin1String("<br>")
            + tr("Tr%1 from %2").arg(QString::number(failure.trace), frequencyText(failure.hertz));
    setText(text);
    adjustSize();
    place();
}

void Verdict::tell(bool tested, const QVector<Failure> &failures)
{
    QStringList texts;
    QVector<int> failing;
    for (const Failure &failure : failures) {
        failing << failure.trace;
        if (texts.size() < maximumFailures)
            texts << tr("Tr%1 from %2")
                         .arg(QString::number(failure.trace), frequencyText(failure.hertz));
    }
    setAccessibleName(!tested ? QString()
                          : texts.isEmpty()
                          ? tr("Limits: pass")
                          : tr("Limits: fail, %1").arg(texts.join(QLatin1String(", "))));
    if (tested == m_tested && failing == m_failing)
        return;
    m_tested = tested;
    m_failing = failing;
    if (tested)
        Q_EMIT changed();
}

void Verdict::setCorner(const QPoint &topRight)
{
    m_topRight = topRight;
    place();
}

void Verdict::place()
{
    move(m_topRight - QPoint(width(), 0));
}

} // namespace Panel
