// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>
#include <QStringList>

namespace Panel
{

/*! A key of the panel's right-hand column: its name, small and dim, over its value.

    A key either acts (clicked()) or, once it has choices, opens their list and reports which one
   was picked (choicePicked()); the value follows only when its owner calls setChoice(). The panel
   knows its keys by this class alone. */
class SoftKey : public QPushButton
{
    Q_OBJECT

public:
    explicit SoftKey(const QString &name, QWidget *parent = nullptr);

    QString name() const { return m_name; }
    QString value() const { return m_value; }
    void setValue(const QString &value);
    /// Makes the key open a list, of which none is chosen yet.
    void setChoices(const QStringList &choices);
    /// Shows a choice without reporting it; -1 shows none.
    void setChoice(int index);
    int choice() const { return m_choice; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void choicePicked(int index);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void openChoices();
    QFont nameFont() const;
    QFont valueFont() const;

    QString m_name;
    QString m_value;
    QStringList m_choices;
    int m_choice = -1;
};

} // namespace Panel
