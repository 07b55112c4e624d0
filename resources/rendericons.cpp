// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    Draws the pictures that follow from the hand-drawn ones under svg/: recoloured for the light
   theme, and as PNG at single and double size where a resource path asks for PNG.

    rendericons <resources folder> */
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace
{

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray recolouredForLight(QByteArray svg)
{
    const char *const colours[][2] = {
        {"#ffffff", "#2c3a45"}, // lines
        {"#40b5ff", "#0068b0"}, // accent line
        {"#20262b", "#f7f5f2"}, // plate
        {"#535b62", "#bab4af"}, // edge of a plate
        {"#1d6d9f", "#63acf6"}, // plate that is on
    };
    for (const auto &colour : colours)
        svg.replace(colour[0], colour[1]);
    return svg;
}

bool render(const QByteArray &svg, const QString &path, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(svg).render(&painter);
    painter.end();
    return image.save(path);
}

/// As \a base.png and \a base@2x.png; \a size is the single one.
bool renderBoth(const QByteArray &svg, const QString &base, const QSize &size)
{
    return render(svg, base + QStringLiteral(".png"), size)
        && render(svg, base + QStringLiteral("@2x.png"), 2 * size);
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 2)
        qFatal("usage: rendericons <resources folder>");
    const QString folder = QString::fromLocal8Bit(argv[1]);

    const auto svgPath = [&folder](const QString &name) {
        return folder + QStringLiteral("/svg/") + name + QStringLiteral(".svg");
    };
    const auto pngPath = [&folder](const QString &name) {
        return folder + QStringLiteral("/png/") + name;
    };
    const auto source = [&svgPath](const QString &name) {
        QFile file(svgPath(name));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(file.fileName()));
        return file.readAll();
    };

    bool ok = true;
    for (const char *name :
         {"lock", "unlock", "screenlock", "theme", "open", "close", "minimize", "maximize",
          "restore", "down", "up", "right", "left", "check", "backspace"}) {
        const QString icon = QLatin1String(name);
        ok &= write(svgPath(icon + QStringLiteral("_light")), recolouredForLight(source(icon)));
    }

    const QSize iconSize(24, 24);
    for (const char *name :
         {"hidepanel", "showpanel", "layout1", "layout2", "layout3", "layout4"}) {
        const QString icon = QLatin1String(name);
        ok &= renderBoth(source(icon), pngPath(icon), iconSize);
        ok &= renderBoth(recolouredForLight(source(icon)), pngPath(icon + QStringLiteral("_light")),
                         iconSize);
    }
    // The doubled r is the name that the resource path has.
    const QByteArray screenshot = source(QStringLiteral("screenshot"));
    ok &= renderBoth(screenshot, pngPath(QStringLiteral("screenshot")), iconSize);
    ok &= renderBoth(recolouredForLight(screenshot), pngPath(QStringLiteral("scrreenshot_light")),
                     iconSize);

    const QByteArray logo = source(QStringLiteral("logo"));
    ok &= renderBoth(logo, pngPath(QStringLiteral("logo")), {80, 32});
    ok &= renderBoth(recolouredForLight(logo), pngPath(QStringLiteral("logo_light")), {80, 32});
    const QByteArray chinese = source(QStringLiteral("logochinese"));
    ok &= renderBoth(chinese, pngPath(QStringLiteral("logochinese_dark")), {82, 32});
    ok &= write(svgPath(QStringLiteral("logochinese_light")), recolouredForLight(chinese));

    if (!ok)
        qFatal("cannot write below %s", qPrintable(folder));
    return 0;
}
