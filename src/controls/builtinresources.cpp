// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    The library's own icons and catalogues, for whatever the application does not bring. Qt takes a
    file from the resources that were registered first, so these come last: once there is an
    application, after all that is compiled into it. */
#include <QCoreApplication>
#include <QFile>
#include <QResource>
#include <QVector>

#include <utility>

namespace
{

void registerResources(const char *name)
{
    // Qt goes on reading where they lie, until the process ends.
    static auto *const kept = new QVector<QByteArray>;
    *kept << QResource(QLatin1String(":/vnawidgets/") + QLatin1String(name)).uncompressedData();
    QResource::registerResource(reinterpret_cast<const uchar *>(kept->constLast().constData()));
}

void addBuiltInResources()
{
    static bool isDone = false;
    if (std::exchange(isDone, true))
        return;
    // A picture of the application's in one size would go with one of ours in another.
    const bool hasPictures = QFile::exists(QStringLiteral(":/image/resource/logo.png"))
        || QFile::exists(QStringLiteral(":/Graph/Image/layout1"));
    registerResources("pictures.rcc");
    if (!hasPictures)
        registerResources("sharppictures.rcc");
    registerResources("catalogues.rcc");
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(addBuiltInResources)
