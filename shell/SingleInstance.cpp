#include "SingleInstance.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QWidget>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/un.h>
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

/// The socket's address; false when the path does not fit one.
bool AddressFor(const QByteArray& path, sockaddr_un& address)
{
    address = {};
    address.sun_family = AF_UNIX;
    if (path.size() >= static_cast<qsizetype>(sizeof address.sun_path))
        return false;
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    return true;
}

/// Asks the copy listening at `path` to come forward; nothing happens when none listens.
void AskToComeForward(const QByteArray& path)
{
    sockaddr_un address{};
    if (!AddressFor(path, address))
        return;
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return;
    if (::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) {
        const char request[] = "raise\n";
        const ssize_t written = ::send(fd, request, sizeof request - 1, MSG_NOSIGNAL);
        (void)written; // a copy that went away meanwhile needs no answer
    }
    ::close(fd);
}

/// Reads one request from a connection that has something to say, then closes it.
void ReadRequest(int fd, bool& raise)
{
    char buffer[16];
    const ssize_t n = ::recv(fd, buffer, sizeof buffer, MSG_DONTWAIT);
    raise = n >= 5 && std::memcmp(buffer, "raise", 5) == 0;
}

} // namespace

SingleInstance::SingleInstance(QString name, QObject* parent) : QObject(parent), m_name(std::move(name)) { }

SingleInstance::~SingleInstance()
{
    if (m_listener >= 0) {
        ::close(m_listener);
        ::unlink(m_socketPath.constData());
    }
    if (m_lockFile >= 0)
        ::close(m_lockFile);
}

bool SingleInstance::Acquire()
{
    const QString key = KeyFor(m_name);
    const QByteArray lockPath = QFile::encodeName(QDir(LockDirectory()).filePath(key + QStringLiteral(".lock")));
    m_socketPath = QFile::encodeName(QDir(LockDirectory()).filePath(key + QStringLiteral(".socket")));
    m_lockFile = ::open(lockPath.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (m_lockFile < 0)
        return true; // no lock can be taken here: runs alone all the same
    if (::flock(m_lockFile, LOCK_EX | LOCK_NB) != 0) {
        ::close(m_lockFile);
        m_lockFile = -1;
        // Another copy runs: ask it to come forward. Nothing is shown by this one.
        AskToComeForward(m_socketPath);
        return false;
    }
    sockaddr_un address{};
    if (!AddressFor(m_socketPath, address))
        return true; // runs alone all the same; a second copy simply cannot call it forward
    m_listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (m_listener < 0)
        return true;
    ::unlink(m_socketPath.constData()); // a socket left by a copy that crashed
    if (::bind(m_listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0
        || ::listen(m_listener, 4) != 0) {
        ::close(m_listener);
        m_listener = -1;
        return true;
    }
    m_notifier = new QSocketNotifier(m_listener, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &SingleInstance::AcceptRequests);
    return true;
}

void SingleInstance::AcceptRequests()
{
    for (;;) {
        const int connection = ::accept4(m_listener, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
        if (connection < 0)
            return;
        // The request follows the connection at once; wait for it without blocking the window.
        auto* notifier = new QSocketNotifier(connection, QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, [this, notifier, connection] {
            bool raise = false;
            ReadRequest(connection, raise);
            notifier->setEnabled(false);
            notifier->deleteLater();
            ::close(connection);
            if (raise)
                emit raiseRequested();
        });
    }
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
