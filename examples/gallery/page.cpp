// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
#include "page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace Gallery
{

Section::Section(const QString &id, const QString &title, const QString &purpose)
    : m_id(id)
    , m_rows(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("section"));
    auto *const heading = new QLabel(title);
    heading->setObjectName(QStringLiteral("sectionTitle"));
    auto *const text = new QLabel(purpose);
    text->setObjectName(QStringLiteral("dim"));
    m_rows->setContentsMargins(20, 16, 20, 16);
    m_rows->setSpacing(0);
    m_rows->addWidget(heading);
    m_rows->addSpacing(2);
    m_rows->addWidget(text);
    addRow();
}

void Section::add(QWidget *sample, const QString &caption, const QSize &size)
{
    auto *const column = new QVBoxLayout;
    column->setSpacing(6);
    if (!size.isEmpty())
        sample->setFixedSize(size);
    column->addWidget(sample, 0, Qt::AlignLeft | Qt::AlignTop);
    auto *const label = new QLabel(caption);
    label->setObjectName(QStringLiteral("dim"));
    column->addWidget(label, 0, Qt::AlignLeft | Qt::AlignTop);
    column->addStretch();
    m_row->insertLayout(m_row->count() - 1, column);
}

void Section::addRow()
{
    m_row = new QHBoxLayout;
    m_row->setSpacing(20);
    m_row->addStretch();
    m_rows->addSpacing(16);
    m_rows->addLayout(m_row);
}

Page::Page(const QString &title)
    : m_title(title)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    auto *const content = new QWidget;
    content->setObjectName(QStringLiteral("page"));
    m_rows = new QVBoxLayout(content);
    m_rows->setContentsMargins(20, 20, 20, 20);
    m_rows->setSpacing(16);
    m_rows->addStretch();
    setWidget(content);
}

void Page::add(Section *section)
{
    m_row = new QHBoxLayout;
    m_row->setSpacing(16);
    m_rows->insertLayout(m_rows->count() - 1, m_row);
    addBeside(section);
}

void Page::addBeside(Section *section)
{
    m_sections << section;
    m_row->addWidget(section);
}

} // namespace Gallery
