// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "coverageboostcurve_p.h"

#include <controls/thememanager.h>
#include <smithrender/strokemask_p.h>

#include <QPaintEngine>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace
{

/// QCPCurve cuts lines a pixel outside at two sides of the view, and at the others on its edge: by so
/// much inside, they are beyond it whatever the last bits of a cut end are.
constexpr double insideEdge = 1e-6;

/// A line without the segments that lie beyond one side of \a area: QCPCurve leads a line that
/// leaves the view around it, a pixel from its edges, where antialiasing and the shifted stroke
/// would bring it into view.
QVector<QPointF> withoutDetours(const QVector<QPointF> &line, const QRectF &area)
{
    const auto isBeyond = [&area](const QPointF &a, const QPointF &b) {
        return (a.x() < area.left() && b.x() < area.left())
            || (a.x() > area.right() && b.x() > area.right())
            || (a.y() < area.top() && b.y() < area.top())
            || (a.y() > area.bottom() && b.y() > area.bottom());
    };
    constexpr double gap = std::numeric_limits<double>::quiet_NaN();
    QVector<QPointF> result;
    result.reserve(line.size());
    for (int i = 0; i < line.size(); ++i) {
        if (i > 0 && isBeyond(line.at(i - 1), line.at(i)))
            result.append({gap, gap});
        result.append(line.at(i));
    }
    return result;
}

/// Where coordinates of an axis lie on the paint device.
struct DeviceScale {
    double origin;
    double perUnit;

    double at(double coordinate) const { return origin + perUnit * coordinate; }
};

/// Paints a colour where a mask is not clear, and empties the mask.
void paint(SmithRender::StrokeMask &mask, const QPoint &corner, const QColor &color,
           QPainter *painter)
{
    std::array<QRgb, 256> pixels;
    for (size_t clear = 0; clear < pixels.size(); ++clear)
        pixels[clear] = qPremultiply(
            qRgba(color.red(), color.green(), color.blue(), 255 - static_cast<int>(clear)));
    QImage image;
    mask.take([&](int x, int y, int width, int height, const std::uint8_t *clear, int stride) {
        if (image.width() < width || image.height() < height)
            image = QImage(width, height, QImage::Format_ARGB32_Premultiplied);
        for (int row = 0; row < height; ++row) {
            auto *const line = reinterpret_cast<QRgb *>(image.scanLine(row));
            for (int i = 0; i < width; ++i)
                line[i] = pixels[clear[std::ptrdiff_t(row) * stride + i]];
        }
        painter->drawImage(corner + QPoint(x, y), image, QRect(0, 0, width, height));
    });
}

} // namespace

CoverageBoostCurve::CoverageBoostCurve(QCPAxis *keyAxis, QCPAxis *valueAxis)
    : QCPCurve(keyAxis, valueAxis)
{
}

void CoverageBoostCurve::draw(QCPPainter *painter)
{
    if (!isThinLine(painter) || !drawByMask(painter))
        QCPCurve::draw(painter);
}

/// In logical pixels; 0: both strokes at the same place.
double CoverageBoostCurve::secondStrokeOffset(const QCPPainter *painter) const
{
    if (Controls::ThemeManager::instance()->currentTheme() != Controls::ThemeManager::Light
        || !painter->device())
        return 0.0;
    return 0.25 / std::max(painter->device()->devicePixelRatioF(), 1.0);
}

/// Whether the curve is nothing but a solid line, a pixel of a raster image wide.
bool CoverageBoostCurve::isThinLine(const QCPPainter *painter) const
{
    const bool isRaster =
        painter->paintEngine() && painter->paintEngine()->type() == QPaintEngine::Raster;
    const bool isPlainPainter = painter->antialiasing() && painter->opacity() == 1.0
        && painter->compositionMode() == QPainter::CompositionMode_SourceOver
        && !painter->modes().testFlag(QCPPainter::pmVectorized)
        && !painter->modes().testFlag(QCPPainter::pmNonCosmetic);
    const bool isPlainPen = mPen.isSolid() && mPen.style() == Qt::SolidLine && mPen.isCosmetic()
        && mPen.widthF() <= 1.0 && mPen.capStyle() != Qt::FlatCap;
    return isRaster && isPlainPainter && isPlainPen && selection().isEmpty() && mLineStyle == lsLine
        && mScatterStyle.isNone() && mBrush.style() == Qt::NoBrush;
}

bool CoverageBoostCurve::drawByMask(QCPPainter *painter) const
{
    const QCPAxis *const keys = keyAxis();
    const QCPAxis *const values = valueAxis();
    const QTransform toDevice = painter->deviceTransform();
    if (!keys || !values || keys->orientation() != Qt::Horizontal
        || values->orientation() != Qt::Vertical || keys->scaleType() != QCPAxis::stLinear
        || values->scaleType() != QCPAxis::stLinear || toDevice.type() > QTransform::TxScale)
        return false;
    // QCPCurve cuts lines a pixel outside: here to the last bit, as the cut ends are capped.
    const auto outside = [](const QCPAxis *axis, double end, double outwards) {
        return axis->coordToPixel(axis->pixelToCoord(axis->coordToPixel(end) + outwards));
    };
    const QPointF topLeft = toDevice.map(QPointF(outside(keys, keys->range().lower, -1.0),
                                                 outside(values, values->range().upper, -1.0)));
    const QPointF bottomRight = toDevice.map(QPointF(outside(keys, keys->range().upper, 1.0),
                                                     outside(values, values->range().lower, 1.0)));
    // Of numbers that no device has, some are none, and some are too large for a QRect.
    constexpr double farthest = 1e6;
    const auto isLength = [](double length) {
        return length > 0.0 && length < double(SmithRender::StrokeMask::largest - 1);
    };
    const QRectF exact(topLeft, bottomRight);
    if (!isLength(exact.width()) || !isLength(exact.height())
        || !(std::abs(exact.left()) < farthest) || !(std::abs(exact.top()) < farthest))
        return false; // or the axes are reversed
    const QRect area = exact.toAlignedRect();
    const auto inMask = [&area](const QPointF &first, const QPointF &last) {
        return SmithRender::StrokeMask::Bounds{first.x() - area.left(), first.y() - area.top(),
                                               last.x() - area.left(), last.y() - area.top()};
    };

    const auto scaleOf = [](const QCPAxis *axis, double pixelScale, double shift) {
        const QCPRange range = axis->range();
        const double lower = axis->coordToPixel(range.lower);
        const double perUnit = (axis->coordToPixel(range.upper) - lower) / range.size();
        return DeviceScale{(lower - perUnit * range.lower) * pixelScale + shift,
                           perUnit * pixelScale};
    };
    const DeviceScale x = scaleOf(keys, toDevice.m11(), toDevice.dx() - area.left());
    const DeviceScale y = scaleOf(values, toDevice.m22(), toDevice.dy() - area.top());
    const double offset = secondStrokeOffset(painter) * toDevice.m11();

    SmithRender::StrokeMask &mask = SmithRender::StrokeMask::ofThisThread();
    const QRectF seen =
        toDevice.mapRect(QRectF(clipRect())).adjusted(0.0, 0.0, -insideEdge, -insideEdge);
    mask.reset(area.width(), area.height(), inMask(topLeft, bottomRight),
               inMask(seen.topLeft(), seen.bottomRight()));
    mask.setPen(mPen.color().alphaF(), offset > 0.0 ? 1 : 2);
    const auto end = mDataContainer->constEnd();
    for (auto first = mDataContainer->constBegin(); first != end;) {
        const auto isGap = [](const QCPCurveData &point) {
            return !std::isfinite(point.key) || !std::isfinite(point.value);
        };
        const auto gap = std::find_if(first, end, isGap);
        const auto pointAt = [&](int i) {
            return SmithRender::StrokeMask::Point{x.at(first[i].key), y.at(first[i].value)};
        };
        const int count = static_cast<int>(gap - first);
        mask.addLine(pointAt, count);
        if (offset > 0.0)
            mask.addLine(pointAt, count, offset);
        first = gap == end ? gap : gap + 1;
    }

    painter->save();
    // Pixels of the mask are those of the device.
    painter->setTransform(toDevice.inverted() * painter->transform());
    paint(mask, area.topLeft(), mPen.color(), painter);
    painter->restore();
    return true;
}

void CoverageBoostCurve::drawCurveLine(QCPPainter *painter, const QVector<QPointF> &lines) const
{
    const double offset = secondStrokeOffset(painter);

    const QCPAxisRect *const rect = keyAxis() ? keyAxis()->axisRect() : nullptr;
    const QVector<QPointF> visible = rect
        ? withoutDetours(lines, QRectF(rect->rect()).adjusted(0.0, 0.0, -insideEdge, -insideEdge))
        : lines;
    QCPCurve::drawCurveLine(painter, visible);
    if (offset > 0.0) {
        painter->save();
        painter->translate(offset, offset);
        QCPCurve::drawCurveLine(painter, visible);
        painter->restore();
    } else {
        QCPCurve::drawCurveLine(painter, visible);
    }
}
