// SPDX-License-Identifier: MIT
// The paint engine of the recording device.
#pragma once

#include "prepare/svg/recording_device.h"

#include <QPaintEngine>

#include <optional>
#include <vector>

namespace torvik {

class RecordingEngine : public QPaintEngine {
public:
    explicit RecordingEngine(SourceReport& report) : QPaintEngine(AllFeatures), m_report(report) {}

    bool begin(QPaintDevice* device) override;
    bool end() override;
    Type type() const override { return User; }
    void updateState(const QPaintEngineState&) override {} // asked for where it is needed

    void drawPath(const QPainterPath& path) override;
    void drawEllipse(const QRectF& rect) override;
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
    void drawPoints(const QPointF* points, int count) override;
    void drawPixmap(const QRectF& target, const QPixmap& picture, const QRectF& source) override;
    void drawImage(const QRectF& target, const QImage& picture, const QRectF& source,
                   Qt::ImageConversionFlags flags) override;
    void drawTiledPixmap(const QRectF& target, const QPixmap& picture,
                         const QPointF& from) override;
    void drawTextItem(const QPointF& place, const QTextItem& text) override;

    std::vector<ColouredStroke> takeStrokes();

private:
    struct Fill {
        std::vector<Stroke> strokes;
        std::uint32_t colour = 0;
    };

    void take(std::vector<Stroke> strokes, bool isArea);
    void keep(const std::vector<Stroke>& strokes, std::uint32_t colour);
    void keepFill();
    std::uint32_t colourOf(const QBrush& brush);
    QTransform transform() const;

    SourceReport& m_report;
    std::vector<ColouredStroke> m_strokes;
    // The renderer paints the fill of a shape first and its line after it: the outline of a fill is
    // drawn only where no line of the same shape follows.
    std::optional<Fill> m_fill;
};

} // namespace torvik
