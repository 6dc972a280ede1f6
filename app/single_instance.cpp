// SPDX-License-Identifier: MIT
#include "app/single_instance.h"

#include "base/files.h"

#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QThread>
#include <QUrl>

#ifdef Q_OS_WIN
#include <QCryptographicHash>
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

// Where the copies of one user meet.
QString serverNameIn(const std::filesystem::path& folder) {
#ifdef Q_OS_WIN
    // Pipes of all users have their names in one place. The folder tells the users apart.
    const QByteArray user = QByteArray::fromStdString(utf8FromPath(folder));
    return QStringLiteral("torvik-") +
           QString::fromLatin1(QCryptographicHash::hash(user, QCryptographicHash::Md5).toHex());
#else
    return QString::fromStdString(utf8FromPath(folder / "torvik.socket"));
#endif
}

} // namespace

SingleInstance::SingleInstance(const std::filesystem::path& folder, QObject* parent)
    : QObject(parent),
      m_lockFile(folder.empty() ? std::filesystem::path() : folder / instanceLockName),
      m_serverName(serverNameIn(folder)) {
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::answer);
}

bool SingleInstance::claim() {
    if (m_lockFile.empty())
        return true;
    const ProcessLock::Result lock = m_lock.tryLock(m_lockFile);
    if (lock == ProcessLock::Result::held) {
        // Whoever listened under this name is gone: the lock was free.
        QLocalServer::removeServer(m_serverName);
        m_server.setSocketOptions(QLocalServer::UserAccessOption);
        m_server.listen(m_serverName);
    }
    return lock != ProcessLock::Result::heldByOther;
}

bool SingleInstance::activateOther(const QString& drawing) {
    QLocalSocket socket;
    const QDeadlineTimer deadline(answerTime);
    for (;;) {
        socket.connectToServer(m_serverName);
        if (socket.waitForConnected(answerTime))
            break;
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
