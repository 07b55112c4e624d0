// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <platform/translator.h>

#include <QCoreApplication>
#include <QLocale>

namespace Utils
{

namespace
{

QString displayName(const QLocale &locale)
{
    // Qt would say "American English", and nothing at all for the C locale.
    if (locale.language() == QLocale::English || locale.language() == QLocale::C)
        return QStringLiteral("English");
    return locale.nativeLanguageName();
}

} // namespace

Translator *Translator::instance()
{
    static Translator *const translator = new Translator;
    return translator;
}

void Translator::setLanguage(const QLocale &locale)
{
    // English has a catalogue too, for texts whose source carries a note to translators.
    if (m_locale == locale)
        return;
    m_locale = locale;
    QCoreApplication::removeTranslator(&m_catalogue);
    if (load(locale) || load(QLocale(QLocale::English)))
        QCoreApplication::installTranslator(&m_catalogue);

    const QString language = displayName(locale);
    if (m_language == language)
        return;
    m_language = language;
    Q_EMIT languageChanged(language);
}

bool Translator::load(const QLocale &locale)
{
    return m_catalogue.load(locale, QStringLiteral("vnawidgets"), QStringLiteral("_"),
                            QStringLiteral(":/i18n"));
}

} // namespace Utils
