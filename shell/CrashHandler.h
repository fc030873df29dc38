#pragma once

#include <QDateTime>
#include <QString>

class Prompt;

/// Installs the handlers of fatal faults: a terminate handler (an exception nobody catches) and
/// handlers for SIGSEGV, SIGBUS, SIGILL, SIGFPE and SIGABRT. Called first of all at start-up.
/// On a fault the process captures what happened, its stack and its modules, and starts
/// `helper --crash-report` with the capture on its standard input; the program passes itself
/// (run that way it asks the learner whether to keep a report and writes it into the program's
/// folder). A null helper is this program.
void InstallCrashHandler(const char* helper = nullptr);

/// The helper's side: reads the captured report from standard input, then asks and writes as
/// AskAndWriteCrashReport does. Returns the helper's exit code.
int RunCrashReportHelper(Prompt& prompt, const QString& folder);

/// Asks through `prompt` whether to keep the captured report; on yes writes it into `folder`
/// (function names made readable) and says how that went. Returns 0.
int AskAndWriteCrashReport(Prompt& prompt, const QString& folder, const QByteArray& captured);

/// The report's file name for a moment in local time: "Zavoren-YYYYMMDD-HHMMSS.dmp".
QString CrashReportFileName(const QDateTime& localTime);

/// Writes the report into `folder` under the name for `localTime`, replacing a report of the
/// same second. False when the folder cannot be written.
bool WriteCrashReport(const QString& folder, const QDateTime& localTime, const QByteArray& report);

/// Makes the C++ function names of a captured stack trace readable.
QByteArray DemangleStackTrace(const QByteArray& report);

/// Where reports are written: the program's own folder.
QString CrashReportFolder();
