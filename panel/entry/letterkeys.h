// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVector>
#include <QWidget>

class QLineEdit;
class QPushButton;

namespace Panel
{

/// Letters and digits for a line of text, where there is a finger and no keyboard. Shows once the line
/// is tapped and goes when the line loses the focus, which its keys never take.
class LetterKeys : public QWidget
{
    Q_OBJECT

public:
    explicit LetterKeys(QLineEdit *line, QWidget *parent = nullptr);

    /// Whether they show at once and stay, for a line that nothing else shares its place with.
    void setStaying(bool staying);

Q_SIGNALS:
    /// The keys came or went.
    void shownChanged(bool shown);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Key {
        QPushButton *button;
        QChar plain;
        QChar shifted;
    };

    QPushButton *addKey(const QString &text, int row, int column);
    void setShift(bool on);
    void setShown(bool shown);

    QLineEdit *m_line;
    QVector<Key> m_keys; ///< those that write what stands on them, but for the space
    QPushButton *m_shift;
    bool m_staying = false;
};

} // namespace Panel
