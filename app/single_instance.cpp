// SPDX-License-Identifier: MIT
#include "app/single_instance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QSysInfo>

namespace torvik {
namespace {

constexpr int answerTime = 2000; // milliseconds that the running copy has to answer
const QByteArray activateRequest = "activate\n";

} // namespace

SingleInstance::SingleInstance(const QString& name, QObject* parent)
    : QObject(parent), m_name(name),
      m_lock(std::make_unique<QLockFile>(QDir::temp().filePath(name + QStringLiteral(".lock")))) {
    // The lock is held as long as the program runs; only its owner's death makes it stale.
    m_lock->setStaleLockTime(0);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::answer);
}

bool SingleInstance::claim() {
    if (!m_lock->tryLock(0) && !(isForeign() && m_lock->tryLock(0)))
        return false;
    // Whoever listened under this name is gone: the lock was free.
    QLocalServer::removeServer(m_name);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_server.listen(m_name);
    return true;
}

bool SingleInstance::isForeign() {
    qint64 process = 0;
    QString host;
    QString program;
    if (m_lock->getLockInfo(&process, &host, &program) && host == QSysInfo::machineHostName())
        return false;
    return QFile::remove(m_lock->fileName());
}

bool SingleInstance::activateOther() {
    QLocalSocket socket;
    socket.connectToServer(m_name);
    if (!socket.waitForConnected(answerTime))
        return false;
    socket.write(activateRequest);
    if (!socket.waitForBytesWritten(answerTime))
        return false;
    return socket.waitForReadyRead(answerTime);
}

void SingleInstance::answer() {
    while (QLocalSocket* const socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
            if (!socket->canReadLine() || socket->readLine() != activateRequest)
                return;
            socket->write("ok\n");
            socket->flush();
            emit otherStarted();
        });
    }
}

QString instanceName() {
    // The home folder tells users of one machine apart, whatever their names hold.
    const QByteArray user =
        QCryptographicHash::hash(QDir::homePath().toUtf8(), QCryptographicHash::Md5).toHex();
    return QStringLiteral("torvik-%1").arg(QString::fromLatin1(user.left(16)));
}

} // namespace torvik
