#include "SingleInstance.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QWidget>

#include <unistd.h>

namespace {

/// A name safe for files and sockets, derived from the program's name and the user.
QString KeyFor(const QString& name)
{
    const QByteArray hash
        = QCryptographicHash::hash((name + QString::number(getuid())).toUtf8(), QCryptographicHash::Sha1).toHex();
    return QStringLiteral("zavoren-") + QString::fromLatin1(hash.left(16));
}

QString LockDirectory()
{
    QString dir = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (dir.isEmpty())
        dir = QDir::tempPath();
    return dir;
}

} // namespace

SingleInstance::SingleInstance(QString name, QObject* parent) : QObject(parent), m_name(std::move(name)) { }

SingleInstance::~SingleInstance() = default;

bool SingleInstance::Acquire()
{
    const QString key = KeyFor(m_name);
    m_lock = std::make_unique<QLockFile>(QDir(LockDirectory()).filePath(key + QStringLiteral(".lock")));
    m_lock->setStaleLockTime(0);
    if (!m_lock->tryLock(0)) {
        // Another copy runs: ask it to come forward. Nothing is shown by this one.
        QLocalSocket socket;
        socket.connectToServer(key);
        if (socket.waitForConnected(1000)) {
            socket.write("raise\n");
            socket.waitForBytesWritten(1000);
            socket.disconnectFromServer();
        }
        return false;
    }
    m_server = new QLocalServer(this);
    QLocalServer::removeServer(key); // a socket left by a copy that crashed
    m_server->listen(key);
    connect(m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* socket = m_server->nextPendingConnection()) {
            connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
                if (socket->readAll().startsWith("raise"))
                    emit raiseRequested();
            });
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
    return true;
}

void BringToFront()
{
    QWidget* target = QApplication::activeModalWidget();
    if (!target) {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == QLatin1String("Zavoren Mainframe Class") && w->isVisible())
                target = w;
    }
    if (!target)
        return;
    target->show();
    target->raise();
    target->activateWindow();
}
