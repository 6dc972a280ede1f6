// SPDX-License-Identifier: MIT
// Small pictures of drawings, made from their files in the background. They belong to the window
// thread; ending them waits for the drawing that is just read.
#pragma once

#include <QImage>
#include <QObject>
#include <QSize>

#include <filesystem>
#include <optional>
#include <thread>
#include <vector>

namespace torvik {

// The lines of the drawing in its pens' colours; `size` is in pixels, of which each takes `ratio`
// image pixels. Null where the file holds no drawing that can be read.
QImage drawingPicture(const std::filesystem::path& drawing, QSize size, double ratio);

class DrawingPictures : public QObject {
    Q_OBJECT

public:
    enum class Kind { recent, sample };
    struct Work {
        std::vector<std::filesystem::path> recent;
        std::filesystem::path sampleFolder;
        QSize size;
        double ratio = 1;
    };

    static constexpr std::size_t most = 6; // of each kind

    // Makes pictures of these drawings in place of those before, recent ones first. What is gone or
    // cannot be read is passed over, and a sample that is a recent drawing, too.
    void begin(Work work);

signals:
    void drawn(DrawingPictures::Kind kind, const QString& drawing, const QImage& picture);

private:
    void start(Work work);
    void finish();

    bool m_isBusy = false;
    std::optional<Work> m_wanted; // waits for the end of the work before
    std::jthread m_thread;
};

} // namespace torvik
