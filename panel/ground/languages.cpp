// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "languages.h"

#include <platform/translator.h>

#include <QCoreApplication>
#include <QTranslator>

#include <algorithm>

// Outside the namespace, because the macro declares a global function.
static void registerCatalogues()
{
    Q_INIT_RESOURCE(vnatranslations);
    Q_INIT_RESOURCE(vnapaneltranslations);
}

namespace Panel
{

namespace
{

QString s_current = QStringLiteral("en");

/// The panel's own texts; the library's are the translator's business.
QTranslator *panelCatalogue()
{
    static auto *catalogue = new QTranslator(QCoreApplication::instance());
    return catalogue;
}

} // namespace

const QVector<Language> &languages()
{
    static const QVector<Language> all{
        {QStringLiteral("en"), QStringLiteral("English")},
        {QStringLiteral("de"), QStringLiteral("Deutsch")},
        {QStringLiteral("zh_CN"), QStringLiteral("\u7b80\u4f53\u4e2d\u6587")},
    };
    return all;
}

bool isLanguage(const QString &code)
{
    const auto &all = languages();
    return std::any_of(all.begin(), all.end(),
                       [&](const Language &language) { return language.code == code; });
}

bool setLanguage(const QString &code)
{
    if (!isLanguage(code))
        return false;
    registerCatalogues();
    s_current = code;
    QCoreApplication::removeTranslator(panelCatalogue());
    if (panelCatalogue()->load(QStringLiteral(":/i18n/vnapanel_") + code))
        QCoreApplication::installTranslator(panelCatalogue());
    Utils::Translator::instance()->setLanguage(QLocale(code));
    return true;
}

QString currentLanguage()
{
    return s_current;
}

} // namespace Panel
