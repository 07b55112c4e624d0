// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "linemask_p.h"

#include <QPaintEngine>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

using SmithRender::StrokeMask;

LineMask::LineMask(QCPPainter *painter, const QPen &pen)
    : m_painter(painter)
    , m_pen(pen)
    , m_toDevice(painter->deviceTransform())
    , m_mask(StrokeMask::ofThisThread())
{
}

bool LineMask::suits(const QCPPainter *painter, const QPen &pen)
{
    const bool isRaster = painter->paintEngine()->type() == QPaintEngine::Raster;
    const bool isPlainPainter = painter->antialiasing() && painter->opacity() == 1.0
        && painter->compositionMode() == QPainter::CompositionMode_SourceOver
        && !painter->modes().testFlag(QCPPainter::pmVectorized)
        && !painter->modes().testFlag(QCPPainter::pmNonCosmetic)
        && painter->deviceTransform().type() <= QTransform::TxScale;
    const bool isPlainPen =
        pen.isSolid() && pen.style() == Qt::SolidLine && pen.capStyle() != Qt::FlatCap;
    return isRaster && isPlainPainter && isPlainPen
        && deviceWidth(painter, pen) <= StrokeMask::widest;
}

double LineMask::deviceWidth(const QCPPainter *painter, const QPen &pen)
{
    const double scale = pen.isCosmetic() ? 1.0 : painter->deviceTransform().m11();
    return std::max(pen.widthF() * scale, 1.0);
}

bool LineMask::begin(const QRectF &bounds, const QRectF &seen, int strokes)
{
    // Of numbers that no device has, some are none, and some are too large for a QRect.
    constexpr double farthest = 1e6;
    const auto isLength = [](double length) {
        return length > 0.0 && length < double(StrokeMask::largest - 1);
    };
    const QRectF exact(m_toDevice.map(bounds.topLeft()), m_toDevice.map(bounds.bottomRight()));
    if (!isLength(exact.width()) || !isLength(exact.height())
        || !(std::abs(exact.left()) < farthest) || !(std::abs(exact.top()) < farthest))
        return false; // or the axes are reversed
    const QRect area = exact.toAlignedRect();
    m_corner = area.topLeft();
    m_shift = QPointF(m_toDevice.dx(), m_toDevice.dy()) - m_corner;
    const auto inMask = [this](const QRectF &device) {
        return StrokeMask::Bounds{device.left() - m_corner.x(), device.top() - m_corner.y(),
                                  device.right() - m_corner.x(), device.bottom() - m_corner.y()};
    };
    m_mask.reset(area.width(), area.height(), inMask(exact), inMask(m_toDevice.mapRect(seen)));
    m_mask.setPen(m_pen.color().alphaF(), strokes, deviceWidth(m_painter, m_pen));
    return true;
}

void LineMask::paint()
{
    const QColor color = m_pen.color();
    std::array<QRgb, 256> pixels;
    for (size_t clear = 0; clear < pixels.size(); ++clear)
        pixels[clear] = qPremultiply(
            qRgba(color.red(), color.green(), color.blue(), 255 - static_cast<int>(clear)));
    m_painter->save();
    // Pixels of the mask are those of the device.
    m_painter->setTransform(m_toDevice.inverted() * m_painter->transform());
    QImage image;
    m_mask.take([&](int x, int y, int width, int height, const std::uint8_t *clear, int stride) {
        if (image.width() < width || image.height() < height)
            image = QImage(width, height, QImage::Format_ARGB32_Premultiplied);
        for (int row = 0; row < height; ++row) {
            auto *const line = reinterpret_cast<QRgb *>(image.scanLine(row));
            const std::uint8_t *const from = clear + std::ptrdiff_t(row) * stride;
            // Of a thin line most pixels are clear.
            constexpr int step = sizeof(std::uint64_t);
            static_assert(StrokeMask::tile % step == 0);
            for (int i = 0; i < width; i += step) {
                std::uint64_t some;
                std::memcpy(&some, from + i, sizeof some);
                if (some == ~std::uint64_t(0))
                    std::fill_n(line + i, step, QRgb(0));
                else
                    std::transform(from + i, from + i + step, line + i,
                                   [&pixels](std::uint8_t value) { return pixels[value]; });
            }
        }
        m_painter->drawImage(m_corner + QPoint(x, y), image, QRect(0, 0, width, height));
    });
    m_painter->restore();
}
