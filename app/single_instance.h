// SPDX-License-Identifier: MIT
// One running copy of the program for each user: a second one asks the first to come to the front,
// and hands over the drawing that it was started with. Both meet in a folder that is the user's
// alone; without one, every copy runs for itself.
#pragma once

#include "base/process_lock.h"

#include <QLocalServer>
#include <QObject>
#include <QString>

#include <filesystem>

namespace torvik {

class SingleInstance : public QObject {
    Q_OBJECT

public:
    // `folder` may be empty.
    explicit SingleInstance(std::filesystem::path folder, QObject* parent = nullptr);

    // True where this copy is the only one; it then listens for others. What a copy that crashed
    // has left behind does not count. Where nothing can be locked, each copy is the only one.
    bool claim();
    // For a copy that is not the only one: asks the running one to show itself, and to open the
    // drawing where one is named (with its folder). False where it does not answer.
    bool activateOther(const QString& drawing = {});

signals:
    // Another copy was started, with the drawing or none, and ends.
    void otherStarted(const QString& drawing);

private:
    void listen();
    void answer();

    const std::filesystem::path m_folder; // empty: nothing is locked
    ProcessLock m_lock;
    QLocalServer m_server;
};

// The file in the folder that the running copy holds locked.
inline constexpr const char* instanceLockName = "torvik.lock";

} // namespace torvik
