// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QTimer>

#include <functional>

namespace Controls
{
class Announcer;
}
class QLabel;
class QProgressBar;
class QPushButton;
class QToolButton;

namespace Panel
{

/*! A sentence over the lower edge of its parent, which it never moves; hidden while there is none.
    A message stays until it is closed or replaced, a notice leaves by itself. Beside it there may be
    a button with what can be done about it, and how far something has got. Screen readers say it.

    \code
    bar->setMessage(tr("The file cannot be read."));
    bar->notify(tr("Stop moved along, to 2.7 GHz."));
    bar->offer(tr("x.s2p has changed on disk."), tr("Reload"), this, [this] { reload(); });
    bar->showProgress(tr("Reading x.s2p"), 40, tr("Cancel"), this, [this] { cancel(); });
    \endcode */
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    /// How long a notice stays at least, in milliseconds, and what a long one has for each character.
    static constexpr int noticeTime = 6000;
    static constexpr int readingTime = 60;

    explicit MessageBar(QWidget *parent);

    QString message() const;
    /// Shows the bar; an empty message hides it.
    void setMessage(const QString &message);
    /// Shows what needs no answer; an empty one takes the last notice back. A message with something
    /// to press stays instead.
    void notify(const QString &notice);
    /// Shows, as a notice, what is read aloud elsewhere.
    void showCaption(const QString &text);
    /// Has read aloud what is seen elsewhere.
    void speak(const QString &text);
    /// Shows a message with a button. Pressing it closes the message and calls the answer, as long
    /// as the context lives.
    void offer(const QString &message, const QString &action, const QObject *context,
               const std::function<void()> &answer);
    /// The same with a bar that is full at 100 percent; only the button closes such a message. A
    /// further call with this message moves the bar and no more.
    void showProgress(const QString &message, int percent, const QString &action,
                      const QObject *context, const std::function<void()> &answer);
    bool showsProgress() const;
    /// Whether what is shown leaves by itself.
    bool isNotice() const { return m_leave.isActive(); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showText(const QString &message, bool notice);
    void place();

    QLabel *m_label;
    QProgressBar *m_progress;
    QPushButton *m_action;
    QToolButton *m_close;
    QTimer m_leave; ///< runs while a notice is on show
    QMetaObject::Connection m_answer;
    Controls::Announcer *m_announcer;
};

} // namespace Panel
