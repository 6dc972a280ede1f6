// SPDX-License-Identifier: MIT
#include "app/single_instance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QSysInfo>
#include <QThread>
#include <QUrl>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace torvik {
namespace {

// Milliseconds that the running copy has to answer, that a lock has to be written, and between two
// tries to reach a copy that does not listen yet.
constexpr int answerTime = 2000;
constexpr int settleTime = 200;
constexpr unsigned long retryTime = 50;
// A request is one line: this word, a blank and the drawing's name with its odd bytes encoded.
const QByteArray activateWord = "activate ";

// Windows lets a program come to the front only if the one in front allows it.
void letOthersComeToFront() {
#ifdef Q_OS_WIN
    AllowSetForegroundWindow(ASFW_ANY);
#endif
}

} // namespace

SingleInstance::SingleInstance(const QString& name, QObject* parent)
    : QObject(parent), m_name(name),
      m_lock(std::make_unique<QLockFile>(QDir::temp().filePath(name + QStringLiteral(".lock")))) {
    // The lock is held as long as the program runs; only its owner's death makes it stale.
    m_lock->setStaleLockTime(0);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::answer);
}

bool SingleInstance::claim() {
    if (!lock())
        return false;
    // Whoever listened under this name is gone: the lock was free.
    QLocalServer::removeServer(m_name);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_server.listen(m_name);
    return true;
}

bool SingleInstance::lock() {
    if (m_lock->tryLock(0))
        return true;
    if (m_lock->error() == QLockFile::LockFailedError && wasLockedHere())
        return false;
    // The lock says nothing: it is torn, or of another machine or an earlier name of this one, or
    // no file can be made there. A copy that is just starting gets time to write its lock. Whether
    // one runs is then told by whether it answers.
    if (m_lock->tryLock(settleTime))
        return true;
    if (wasLockedHere() || isAnswered())
        return false;
    QFile::remove(m_lock->fileName());
    // Where no lock can be made at all, the program starts all the same.
    return m_lock->tryLock(0) || m_lock->error() != QLockFile::LockFailedError;
}

bool SingleInstance::wasLockedHere() const {
    qint64 process = 0;
    QString host;
    QString program;
    return m_lock->getLockInfo(&process, &host, &program) && host == QSysInfo::machineHostName();
}

bool SingleInstance::isAnswered() const {
    QLocalSocket socket;
    socket.connectToServer(m_name);
    return socket.waitForConnected(answerTime);
}

bool SingleInstance::activateOther(const QString& drawing) {
    QLocalSocket socket;
    const QDeadlineTimer deadline(answerTime);
    for (;;) {
        socket.connectToServer(m_name);
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

QString instanceName() {
    // The home folder tells users of one machine apart, whatever their names hold.
    const QByteArray user =
        QCryptographicHash::hash(QDir::homePath().toUtf8(), QCryptographicHash::Md5).toHex();
    return QStringLiteral("torvik-%1").arg(QString::fromLatin1(user.left(16)));
}

} // namespace torvik
