// SPDX-License-Identifier: MIT
#include "app/single_instance.h"

#include "base/errors.h"
#include "base/files.h"

#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QThread>
#include <QUrl>

#include <utility>

#ifdef Q_OS_WIN
#include "base/whole_file.h"

#include <QRandomGenerator>
#include <windows.h>
#endif

namespace torvik {
namespace {

// Milliseconds that the running copy has to answer, and between two tries to reach a copy that does
// not listen yet.
constexpr int answerTime = 2000;
constexpr unsigned long retryTime = 50;
// A request is one line: this word, a blank and the drawing's name with its odd bytes encoded.
const QByteArray activateWord = "activate ";

// Windows lets a program come to the front only if the one in front allows it.
void letOthersComeToFront() {
#ifdef Q_OS_WIN
    AllowSetForegroundWindow(ASFW_ANY);
#endif
}

#ifdef Q_OS_WIN

// Pipes of all users have their names in one place, so nobody else may know this one: it is drawn
// at random at each start, and stands in a file that is the user's alone.
std::filesystem::path pipeNameFile(const std::filesystem::path& folder) {
    return folder / "torvik.pipe";
}

// Raises FileError where the others could not learn it.
QString newServerName(const std::filesystem::path& folder) {
    constexpr int hexadecimal = 16;
    auto& random = *QRandomGenerator::system();
    const QString name = QStringLiteral("torvik-") +
                         QString::number(random.generate64(), hexadecimal) +
                         QString::number(random.generate64(), hexadecimal);
    saveWhole(pipeNameFile(folder), name.toStdString());
    return name;
}

// Where the running copy listens. Raises FileError.
QString serverName(const std::filesystem::path& folder) {
    constexpr std::uintmax_t longest = 100;
    return QString::fromStdString(readWholeFile(pipeNameFile(folder), longest));
}

#else

QString serverName(const std::filesystem::path& folder) {
    return QString::fromStdString(utf8FromPath(folder / "torvik.socket"));
}

QString newServerName(const std::filesystem::path& folder) {
    return serverName(folder);
}

#endif

bool connectTo(QLocalSocket& socket, const std::filesystem::path& folder) {
    try {
        socket.connectToServer(serverName(folder));
        return socket.waitForConnected(answerTime);
    } catch (const FileError&) {
        return false; // no copy has got so far yet
    }
}

} // namespace

SingleInstance::SingleInstance(std::filesystem::path folder, QObject* parent)
    : QObject(parent), m_folder(std::move(folder)) {
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::answer);
}

bool SingleInstance::claim() {
    if (m_folder.empty())
        return true;
    const ProcessLock::Result lock = m_lock.tryLock(m_folder / instanceLockName);
    if (lock == ProcessLock::Result::held)
        listen();
    return lock != ProcessLock::Result::heldByOther;
}

void SingleInstance::listen() {
    try {
        const QString name = newServerName(m_folder);
        // Whoever listened under this name is gone: the lock was free.
        QLocalServer::removeServer(name);
        m_server.setSocketOptions(QLocalServer::UserAccessOption);
        m_server.listen(name);
    } catch (const FileError&) {
        m_server.close(); // the others cannot learn where to ask: nobody is heard
    }
}

bool SingleInstance::activateOther(const QString& drawing) {
    QLocalSocket socket;
    const QDeadlineTimer deadline(answerTime);
    while (!connectTo(socket, m_folder)) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(retryTime);
    }
    letOthersComeToFront();
    socket.write(activateWord + QUrl::toPercentEncoding(drawing) + '\n');
    if (!socket.waitForBytesWritten(answerTime))
        return false;
    return socket.waitForReadyRead(answerTime);
}

void SingleInstance::answer() {
    while (QLocalSocket* const socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
            if (!socket->canReadLine())
                return;
            const QByteArray request = socket->readLine().chopped(1);
            if (!request.startsWith(activateWord))
                return;
            socket->write("ok\n");
            socket->flush();
            emit otherStarted(QUrl::fromPercentEncoding(request.sliced(activateWord.size())));
        });
    }
}

} // namespace torvik
