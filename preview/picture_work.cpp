// SPDX-License-Identifier: MIT
#include "preview/picture_work.h"

#include <QObject>

#include <chrono>
#include <memory>
#include <utility>

namespace torvik {
namespace {

constexpr std::chrono::milliseconds moment{100};

} // namespace

PictureWork::PictureWork(QObject* owner, std::function<void()> ready)
    : m_owner(owner), m_ready(std::move(ready)) {}

bool PictureWork::start(Paint paint) {
    stop();
    using Task = std::packaged_task<TakeOver(const std::stop_token&)>;
    const auto task = std::make_shared<Task>(std::move(paint));
    m_result = task->get_future();
    m_work.start([this, task](const std::stop_token& token) {
        (*task)(token);
        QMetaObject::invokeMethod(m_owner, m_ready, Qt::QueuedConnection);
    });
    return m_result.wait_for(moment) == std::future_status::ready;
}

void PictureWork::stop() {
    m_work.stop();
    m_result = {};
}

void PictureWork::takeOver() {
    if (!m_result.valid() ||
        m_result.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
        return;
    const TakeOver take = m_result.get();
    if (take)
        take();
}

} // namespace torvik
