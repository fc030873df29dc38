#pragma once

#include <QObject>

class LearnerSession;
class Prompt;
class QWidget;

/// The one place where the learner is told that the learning history can no longer be kept in
/// its database: each problem the session tells, once, when it happens.
class HistoryNotice : public QObject {
    Q_OBJECT
public:
    /// Tells through `prompt`, over `window` while it is shown.
    HistoryNotice(LearnerSession& session, Prompt& prompt, QWidget* window);

    /// The message for a problem: why, and where a damaged file was put aside.
    static QString Text(const QString& reason, const QString& keptAs);

private:
    Prompt& m_prompt;
    QWidget* m_window;
};
