// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <platform/translator.h>

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

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

struct Translator::Private {
    QLocale locale = QLocale::c();
    QString language = QStringLiteral("English");
    QTranslator catalogue;
};

Translator::Translator()
    : d(std::make_unique<Private>())
{
}

Translator::~Translator() = default;

Translator *Translator::instance()
{
    static Translator *const translator = new Translator;
    return translator;
}

QString Translator::currentLanguage() const
{
    return d->language;
}

void Translator::setLanguage(const QLocale &locale)
{
    // English has a catalogue too, for texts whose source carries a note to translators.
    if (d->locale == locale)
        return;
    d->locale = locale;
    QCoreApplication::removeTranslator(&d->catalogue);
    if (!load(locale))
        load(QLocale(QLocale::English));
    QCoreApplication::installTranslator(&d->catalogue);

    const QString language = displayName(locale);
    if (d->language == language)
        return;
    d->language = language;
    Q_EMIT languageChanged(language);
}

bool Translator::load(const QLocale &locale)
{
    return d->catalogue.load(locale, QStringLiteral("vnawidgets"), QStringLiteral("_"),
                             QStringLiteral(":/i18n"));
}

} // namespace Utils
