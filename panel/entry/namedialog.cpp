// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "namedialog.h"

#include "letterkeys.h"

#include <panel/ground/dialogstage.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace Panel
{

namespace
{

constexpr int s_nameKeyHeight = 48;

QPushButton *makeNameKey(const QString &text, const char *objectName)
{
    auto *key = new QPushButton(text);
    key->setObjectName(QLatin1String(objectName));
    key->setAutoDefault(false);
    key->setMinimumHeight(s_nameKeyHeight);
    return key;
}

} // namespace

NameDialog::NameDialog(const QString &title, const QString &name, int longest, QWidget *parent)
    : DraggableFramelessDialog(parent)
    , m_name(new QLineEdit(name))
{
    setAccessibleName(title);
    setWindowTitle(title);
    setHeaderButton(Controls::DraggableDialogTitleBar::CloseButton);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(dialogMargins(12));
    auto *naming = new QHBoxLayout;
    m_name->setObjectName(QStringLiteral("name"));
    m_name->setAccessibleName(tr("Name"));
    m_name->setMinimumHeight(s_nameKeyHeight);
    m_name->setMaxLength(longest);
    m_name->setClearButtonEnabled(true);
    QPushButton *ok = makeNameKey(tr("OK"), "ok");
    naming->addWidget(m_name, 1);
    naming->addWidget(ok);
    column->addLayout(naming);
    auto *letters = new LetterKeys(m_name, this);
    letters->setStaying(true);
    column->addWidget(letters);

    connect(m_name, &QLineEdit::returnPressed, this, &NameDialog::accept);
    connect(ok, &QPushButton::clicked, this, &NameDialog::accept);
    m_name->selectAll();
    m_name->setFocus();
}

void NameDialog::accept()
{
    Q_EMIT named(m_name->text());
    DraggableFramelessDialog::accept();
}

} // namespace Panel
