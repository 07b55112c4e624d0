// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <platform/stylehelper.h>

#include <base/smallfile_p.h>
#include <base/stylecolors_p.h>

#include <QApplication>
#include <QDir>
#include <QSet>

namespace Utils
{

namespace
{

constexpr qint64 largestFile = 1 << 20;

/// The sheet of that name in the library, or none.
QString builtIn(const QString &name)
{
    const QFileInfo info(name);
    if (info.path() != QLatin1String("../configuration"))
        return {};
    QByteArray text;
    readSmallFile(QStringLiteral(":/vnawidgets/configuration/") + info.fileName(), largestFile,
                  text);
    return QString::fromUtf8(text);
}

/// Whether every brace, comment and quote is closed: what is not would take the sheets after it
/// along.
bool isWhole(QString sheet)
{
    static const QRegularExpression quiet(QStringLiteral(R"(/\*.*?\*/|"[^"\n]*")"),
                                          QRegularExpression::DotMatchesEverythingOption);
    sheet.remove(quiet);
    bool inside = false;
    for (const QChar c : qAsConst(sheet)) {
        const bool opens = c == QLatin1Char('{');
        if ((opens || c == QLatin1Char('}')) && opens == inside)
            return false;
        inside = opens || (inside && c != QLatin1Char('}'));
    }
    return !inside && !sheet.contains(QLatin1String("/*")) && !sheet.contains(QLatin1Char('"'));
}

/// Warns of a file, once until it is sound again; an empty complaint says that it is.
void tell(const QString &path, const QString &complaint)
{
    static QSet<QString> told;
    if (complaint.isEmpty()) {
        told.remove(path);
    } else if (!told.contains(path)) {
        told.insert(path);
        qWarning("StyleHelper: %s %s", qPrintable(path), qPrintable(complaint));
    }
}

void tell(const QString &sheet, const QStringList &unknownColors)
{
    const QString names = unknownColors.join(QLatin1String(", "));
    tell(sheet, names.isEmpty() ? names : QStringLiteral("names unknown colours: ") + names);
}

/// The text of a sheet, with its colours; what the library has in place of one that is none.
QString load(const QString &name, const QString &path, const QVariantMap &colors)
{
    QByteArray text;
    const QString standIn = builtIn(name);
    if (!readSmallFile(path, largestFile, text)) {
        const bool expected = !standIn.isEmpty() && !QFileInfo::exists(path);
        tell(path, expected ? QString() : QStringLiteral("cannot be read as a style sheet"));
        return withStyleColors(standIn, colors);
    }
    QStringList unknown;
    QString sheet = QString::fromUtf8(text);
    if (!isWhole(sheet)) {
        tell(path, QStringLiteral("is left out: a brace, comment or quote is not closed"));
        return withStyleColors(standIn, colors);
    }
    sheet = withStyleColors(sheet, colors, &unknown);
    tell(path, unknown);
    return sheet;
}

} // namespace

QStringList StyleHelper::defaultThemeFiles(bool dark)
{
    Q_UNUSED(dark)
    return {QStringLiteral("../configuration/theme-base.css")};
}

void StyleHelper::setThemes(const QStringList &files)
{
    auto *application = qobject_cast<QApplication *>(QCoreApplication::instance());
    if (!application)
        return;

    const QVariantMap colors = application->property(styleColorsProperty).toMap();
    const QDir base(QCoreApplication::applicationDirPath());
    QString sheet;
    for (const QString &name : files) {
        const QString text = load(name, QDir::cleanPath(base.absoluteFilePath(name)), colors);
        // The line break keeps a last line without one from running into the next file.
        if (!text.isEmpty())
            sheet += text + QLatin1Char('\n');
    }

    QStringList unknown;
    sheet += withStyleColors(application->property(hostSheetProperty).toString(), colors, &unknown);
    tell(QStringLiteral("the host's sheet"), unknown);

    // What the application has of its own stays, after the theme, so that it prevails.
    static QString applied;
    QString own = application->styleSheet();
    const auto begin = applied.isEmpty() ? -1 : own.indexOf(applied);
    if (begin >= 0)
        own.remove(begin, applied.size());
    applied = sheet;
    sheet += own;
    if (application->styleSheet() != sheet)
        application->setStyleSheet(sheet);
}

} // namespace Utils
