#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QSocketNotifier;

/// One running copy per user: the first takes a lock file and listens on a Unix socket beside
/// it; a later one finds the lock taken, asks the first (through the socket) to bring its window
/// forward, and ends.
class SingleInstance : public QObject {
    Q_OBJECT
public:
    /// `name` identifies the program (tests pass their own).
    explicit SingleInstance(
        QString name = QStringLiteral("Quelmar Zavoren! Kanji Learning Program"), QObject* parent = nullptr);
    ~SingleInstance() override;

    /// True when this is the first copy (it now owns the lock and listens); false when another
    /// copy runs, which has then been asked to come forward.
    bool Acquire();

signals:
    /// Another copy asked this one to come to the front.
    void raiseRequested();

private:
    void AcceptRequests();

    QString m_name;
    /// The lock file, held with flock for the life of the copy: the system lets it go when the
    /// process ends, however it ends, and taking it writes nothing to the disk.
    int m_lockFile = -1;
    QByteArray m_socketPath;
    int m_listener = -1;
    QSocketNotifier* m_notifier = nullptr;
};

/// Brings the program's active modal dialog (or else its main window) to the front.
void BringToFront();
