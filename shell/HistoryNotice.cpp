#include "HistoryNotice.h"

#include "LearnerSession.h"
#include "Prompt.h"

#include <QWidget>

HistoryNotice::HistoryNotice(LearnerSession& session, Prompt& prompt, QWidget* window)
    : QObject(window), m_prompt(prompt), m_window(window)
{
    connect(&session, &LearnerSession::historyProblem, this, [this](const QString& reason, const QString& keptAs) {
        m_prompt.Ask(m_window && m_window->isVisible() ? m_window : nullptr, QMessageBox::Warning,
            tr("Learning history"), Text(reason, keptAs));
    });
}

QString HistoryNotice::Text(const QString& reason, const QString& keptAs)
{
    QString text = tr("The learning history cannot be kept: %1").arg(reason);
    if (!keptAs.isEmpty())
        text += QLatin1Char('\n') + tr("The damaged file is kept as \"%1\".").arg(keptAs);
    text += QLatin1Char('\n') + tr("Until it can be kept again, your progress and history are saved in config.xml.");
    return text;
}
