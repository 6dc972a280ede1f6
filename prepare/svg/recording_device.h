// SPDX-License-Identifier: MIT
// A device that keeps what is painted on it as strokes with colours instead of showing it. The
// paint engine behind it takes everything as it was said: circles as circles, curves as curves.
#pragma once

#include "prepare/strokes.h"

#include <QPaintDevice>

#include <cstdint>
#include <memory>
#include <vector>

namespace torvik {

struct SourceReport;
class RecordingEngine;

struct ColouredStroke {
    Stroke stroke;            // the device's units, Y downwards
    std::uint32_t colour = 0; // 0xRRGGBB
};

class RecordingDevice : public QPaintDevice {
public:
    explicit RecordingDevice(SourceReport& report);
    RecordingDevice(const RecordingDevice&) = delete;
    RecordingDevice& operator=(const RecordingDevice&) = delete;
    ~RecordingDevice() override;

    QPaintEngine* paintEngine() const override;
    std::vector<ColouredStroke> takeStrokes();

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    std::unique_ptr<RecordingEngine> m_engine;
};

} // namespace torvik
