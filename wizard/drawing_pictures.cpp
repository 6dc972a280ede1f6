// SPDX-License-Identifier: MIT
#include "wizard/drawing_pictures.h"

#include "answers/import_drawing.h"
#include "base/files.h"
#include "base/logger.h"
#include "job/job.h"
#include "preview/line_picture.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <system_error>
#include <utility>

namespace torvik {
namespace {

namespace fs = std::filesystem;

// As the preview shows a drawing, in a frame of this size.
PictureView viewOf(const LineScale& scale, double ratio) {
    const PictureBox& box = scale.picture;
    const auto pixels = [](float twips) { return std::round(twips / twipsPerPixel); };
    return {scale.fit,
            pixels(box.sngHeight) * twipsPerPixel,
            {pixels(box.sngLeft) * ratio, pixels(box.sngTop) * ratio},
            ratio};
}

std::vector<fs::path> samplesIn(const fs::path& folder, const std::vector<fs::path>& without) {
    std::vector<fs::path> found;
    std::error_code ignored; // a folder that is not there holds none
    for (const auto& entry : fs::directory_iterator(folder, ignored))
        if (entry.path().extension() == ".plt" && !std::ranges::count(without, entry.path()))
            found.push_back(entry.path());
    std::ranges::sort(found);
    return found;
}

} // namespace

QImage drawingPicture(const fs::path& drawing, QSize size, double ratio) {
    Logger muted({}, [](const ErrorReport&) {});
    Job job;
    LineScale scale;
    const FrameSize frame{static_cast<float>(size.width() * twipsPerPixel),
                          static_cast<float>(size.height() * twipsPerPixel)};
    std::error_code ignored; // then it is not read either
    if (!fs::is_regular_file(drawing, ignored) || !readDrawing(job, drawing, muted) ||
        !GetScale(job.drawing, frame, scale, muted))
        return {};
    LinePicture lines;
    lines.PlotLines(job, viewOf(scale, ratio), size * ratio);
    QImage picture = lines.image();
    picture.setDevicePixelRatio(ratio);
    return picture;
}

void DrawingPictures::begin(Work work) {
    if (m_isBusy) {
        m_thread.request_stop();
        m_wanted = std::move(work);
    } else {
        start(std::move(work));
    }
}

// What it draws reaches the window thread through its queue.
void DrawingPictures::start(Work work) {
    m_isBusy = true;
    m_thread = std::jthread([this, work = std::move(work)](const std::stop_token& stop) {
        const auto drawAll = [&](Kind kind, const std::vector<fs::path>& drawings) {
            std::size_t count = 0;
            for (const fs::path& drawing : drawings) {
                if (stop.stop_requested() || count == most)
                    return;
                const QImage picture = drawingPicture(drawing, work.size, work.ratio);
                if (picture.isNull())
                    continue;
                ++count;
                const QString name = QString::fromStdString(utf8FromPath(drawing));
                QMetaObject::invokeMethod(
                    this,
                    [this, kind, name, picture] {
                        if (!m_wanted)
                            emit drawn(kind, name, picture);
                    },
                    Qt::QueuedConnection);
            }
        };
        drawAll(Kind::recent, work.recent);
        drawAll(Kind::sample, samplesIn(work.sampleFolder, work.recent));
        QMetaObject::invokeMethod(
            this, [this] { finish(); }, Qt::QueuedConnection);
    });
}

void DrawingPictures::finish() {
    m_isBusy = false;
    if (m_wanted)
        start(*std::exchange(m_wanted, std::nullopt));
}

} // namespace torvik
