// SPDX-License-Identifier: MIT
#include "prepare/svg/recording_engine.h"

#include "prepare/source/source_report.h"
#include "prepare/svg/path_strokes.h"

#include <QPainterPath>
#include <QTransform>

#include <utility>

namespace torvik {
namespace {

bool isVisible(const QPaintEngineState& state, const QPen& pen) {
    return pen.style() != Qt::NoPen && pen.color().alpha() > 0 && state.opacity() > 0;
}

bool isVisible(const QPaintEngineState& state, const QBrush& brush) {
    return brush.style() != Qt::NoBrush && brush.color().alpha() > 0 && state.opacity() > 0;
}

// The middle between the colours of a gradient.
QColor meanColour(const QGradient& gradient) {
    float red = 0;
    float green = 0;
    float blue = 0;
    const QGradientStops stops = gradient.stops();
    for (const auto& [place, colour] : stops) {
        red += colour.redF();
        green += colour.greenF();
        blue += colour.blueF();
    }
    const auto count = static_cast<float>(std::max<qsizetype>(stops.size(), 1));
    return QColor::fromRgbF(red / count, green / count, blue / count);
}

} // namespace

bool RecordingEngine::begin(QPaintDevice*) {
    setActive(true);
    return true;
}

bool RecordingEngine::end() {
    keepFill();
    setActive(false);
    return true;
}

QTransform RecordingEngine::transform() const {
    return state->transform();
}

void RecordingEngine::drawPath(const QPainterPath& path) {
    take(strokesOfPath(path, transform()), true);
}

void RecordingEngine::drawEllipse(const QRectF& rect) {
    take(strokesOfEllipse(rect, transform()), true);
}

void RecordingEngine::drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) {
    QPainterPath path;
    if (count > 0)
        path.moveTo(points[0]);
    for (int i = 1; i < count; ++i)
        path.lineTo(points[i]);
    if (mode != PolylineMode)
        path.closeSubpath();
    take(strokesOfPath(path, transform()), count > 2);
}

void RecordingEngine::drawPoints(const QPointF* points, int count) {
    std::vector<Stroke> dots;
    for (int i = 0; i < count; ++i) {
        const QPointF place = transform().map(points[i]);
        dots.push_back({1, {place.x(), place.y()}, {}});
    }
    take(std::move(dots), false);
}

void RecordingEngine::drawPixmap(const QRectF&, const QPixmap&, const QRectF&) {
    m_report.lose(Loss::pictures);
}

void RecordingEngine::drawImage(const QRectF&, const QImage&, const QRectF&,
                                Qt::ImageConversionFlags) {
    m_report.lose(Loss::pictures);
}

void RecordingEngine::drawTiledPixmap(const QRectF&, const QPixmap&, const QPointF&) {
    m_report.lose(Loss::pictures);
}

void RecordingEngine::drawTextItem(const QPointF&, const QTextItem&) {
    m_report.lose(Loss::text);
}

void RecordingEngine::take(std::vector<Stroke> strokes, bool isArea) {
    const QPen pen = state->pen();
    const bool hasFill = isArea && isVisible(*state, state->brush());
    const bool hasLine = isVisible(*state, pen);
    if (hasFill)
        m_report.lose(Loss::fill);
    if (hasLine) {
        if (m_fill && m_fill->strokes == strokes)
            m_fill.reset();
        keepFill();
        if (pen.style() != Qt::SolidLine)
            m_report.lose(Loss::dashes);
        keep(strokes, colourOf(pen.brush()));
    } else if (hasFill) {
        keepFill();
        m_fill = {std::move(strokes), colourOf(state->brush())};
    }
}

void RecordingEngine::keep(const std::vector<Stroke>& strokes, std::uint32_t colour) {
    for (const Stroke& stroke : strokes)
        m_strokes.push_back({stroke, colour});
}

void RecordingEngine::keepFill() {
    if (const auto fill = std::exchange(m_fill, {}))
        keep(fill->strokes, fill->colour);
}

std::uint32_t RecordingEngine::colourOf(const QBrush& brush) {
    QColor colour = brush.color();
    if (brush.gradient() != nullptr) {
        colour = meanColour(*brush.gradient());
        m_report.lose(Loss::effects);
    }
    return colour.rgb() & 0xFFFFFFu;
}

std::vector<ColouredStroke> RecordingEngine::takeStrokes() {
    return std::exchange(m_strokes, {});
}

// --- the device

RecordingDevice::RecordingDevice(SourceReport& report)
    : m_engine(std::make_unique<RecordingEngine>(report)) {}

RecordingDevice::~RecordingDevice() = default;

QPaintEngine* RecordingDevice::paintEngine() const {
    return m_engine.get();
}

std::vector<ColouredStroke> RecordingDevice::takeStrokes() {
    return m_engine->takeStrokes();
}

int RecordingDevice::metric(PaintDeviceMetric metric) const {
    constexpr int size = 1 << 24;
    constexpr int dotsPerInch = 96;
    switch (metric) {
    case PdmWidth:
    case PdmHeight:
        return size;
    case PdmWidthMM:
    case PdmHeightMM:
        return static_cast<int>(size * 25.4 / dotsPerInch);
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return dotsPerInch;
    case PdmNumColors:
        return size;
    case PdmDepth:
        return 24;
    case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
    default:
        return 1; // device pixel ratio
    }
}

} // namespace torvik
