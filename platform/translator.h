// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <platform/vnaplatform_export.h>

#include <QLocale>
#include <QObject>

#include <memory>

namespace Utils
{

/*! The language of the user interface, and its texts.

    Texts come from the catalogues ":/i18n/vnawidgets_<language>.qm" of the application's resources.
    Number formats do not follow: an instrument writes them the same way in every language.

    \code
    Utils::Translator *translator = Utils::Translator::instance();
    connect(translator, &Utils::Translator::languageChanged, languageLabel, &QLabel::setText);
    translator->setLanguage(QLocale(QLocale::Chinese));
    \endcode */
class VNAPLATFORM_EXPORT Translator : public QObject
{
    Q_OBJECT

    Q_PROPERTY(QString currentLanguage READ currentLanguage NOTIFY languageChanged)

public:
    /// The one instance, made at the first call and alive until the process ends.
    static Translator *instance();

    /// The language as its own speakers write it, for example "English" (the start value).
    QString currentLanguage() const;

public Q_SLOTS:
    /*! Switches to the language of the locale. Where no catalogue exists the texts are English;
        the language counts as switched all the same. Call it at the start for English too. */
    void setLanguage(const QLocale &locale);

Q_SIGNALS:
    /// Fires after the texts were exchanged, with the new currentLanguage(); not for the same
    /// language.
    void languageChanged(const QString &language);

private:
    Translator();
    ~Translator() override;

    bool load(const QLocale &locale);

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace Utils
