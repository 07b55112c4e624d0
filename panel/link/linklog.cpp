// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "linklog.h"

#include <algorithm>

namespace Panel
{

namespace
{

constexpr int s_longestText = 160;

bool isText(char c)
{
    return (c >= ' ' && c <= '~') || c == '\r' || c == '\n' || c == '\t';
}

} // namespace

bool LinkLog::open(const QString &path)
{
    m_file.setFileName(path);
    m_clock.start();
    return m_file.open(QIODevice::WriteOnly | QIODevice::Truncate);
}

void LinkLog::write(char mark, const QByteArray &bytes, bool whole)
{
    if (!m_file.isOpen())
        return;
    QByteArray text = whole ? bytes : bytes.left(s_longestText);
    if (!whole && !std::all_of(text.cbegin(), text.cend(), isText))
        text = "(binary)";
    text = text.replace("\r", "\\r").replace("\n", "\\n");
    if (!whole && bytes.size() > s_longestText)
        text += "... " + QByteArray::number(bytes.size()) + " bytes";
    const QByteArray seconds = QByteArray::number(double(m_clock.elapsed()) / 1000.0, 'f', 3);
    m_file.write(seconds.rightJustified(10) + ' ' + mark + ' ' + text + '\n');
    if (m_file.pos() >= largestFile) {
        m_file.write("The log ends here: it has reached its largest size.\n");
        m_file.close();
    } else if (mark != '<') {
        m_file.flush();
    }
}

} // namespace Panel
