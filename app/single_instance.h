// SPDX-License-Identifier: MIT
// One running copy of the program for each user: a second one asks the first to come to the front,
// and hands over the drawing that it was started with.
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QString>

#include <memory>

namespace torvik {

class SingleInstance : public QObject {
    Q_OBJECT

public:
    // `name` tells the program and its user apart from all others.
    explicit SingleInstance(const QString& name, QObject* parent = nullptr);

    // True where this copy is the only one; it then listens for others. A lock left behind by a
    // copy that crashed does not count.
    bool claim();
    // For a copy that is not the only one: asks the running one to show itself, and to open the
    // drawing where one is named (with its folder). False where it does not answer.
    bool activateOther(const QString& drawing = {});

signals:
    // Another copy was started, with the drawing or none, and ends.
    void otherStarted(const QString& drawing);

private:
    bool lock();
    // Whether the lock file is whole and of this machine, so that its owner can be looked up.
    bool wasLockedHere() const;
    // Whether a copy listens.
    bool isAnswered() const;
    void answer();

    QString m_name;
    std::unique_ptr<QLockFile> m_lock;
    QLocalServer m_server;
};

// The name for this user's copies of the desktop program.
QString instanceName();

} // namespace torvik
