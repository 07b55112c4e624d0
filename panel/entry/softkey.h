// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <widgets/enumtextbutton.h>

#include <QStringList>

namespace Panel
{

/*! A key of the panel's right-hand column: its name, small and dim, over its value.

    A key either acts (clicked()) or, once it has choices, opens their list and reports which one
    was picked (choicePicked()); the value follows only when its owner calls setChoice(). Return
    presses it, as Space does. The panel knows its keys by this class alone. */
class SoftKey : public EnumTextButton
{
    Q_OBJECT

public:
    explicit SoftKey(const QString &name, QWidget *parent = nullptr);

    QString name() const { return text(); }
    QString value() const { return m_value; }
    void setValue(const QString &value);
    /// Makes the key open a list, of which none is chosen yet.
    void setChoices(const QStringList &choices);
    /// Shows a choice without reporting it; -1 shows none, or the text for that.
    void setChoice(int index, const QString &none = QString());
    int choice() const { return m_choice; }

    /// Tells which keys of the keyboard do the same.
    void setShortcutText(const QString &keys);

    /// For two keys side by side: as narrow as its name allows.
    void setNarrow(bool narrow);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void choicePicked(int index);

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showValue();
    void tellValue();

    QString m_value;
    QString m_shortcut;
    QStringList m_choices;
    int m_choice = -1;
    bool m_narrow = false;
};

} // namespace Panel
