#pragma once

#include <QDateTime>
#include <QString>

/// Installs the handlers of fatal faults: a terminate handler (an exception nobody catches) and
/// handlers for SIGSEGV, SIGBUS, SIGILL, SIGFPE and SIGABRT. Called first of all at start-up.
/// On a fault the process captures what happened, its stack and its modules, and starts a
/// helper copy of the program (`--crash-report`) that asks the learner whether to keep a report
/// and writes it into the program's folder.
void InstallCrashHandler(const char* programPath);

/// The helper's side: reads the captured report from standard input, asks the question, writes
/// the report when asked to and shows the result. Returns the helper's exit code.
int RunCrashReportHelper();

/// The report's file name for a moment in local time: "Zavoren-YYYYMMDD-HHMMSS.dmp".
QString CrashReportFileName(const QDateTime& localTime);

/// Writes the report into `folder` under the name for `localTime`, replacing a report of the
/// same second. False when the folder cannot be written.
bool WriteCrashReport(const QString& folder, const QDateTime& localTime, const QByteArray& report);

/// Makes the C++ function names of a captured stack trace readable.
QByteArray DemangleStackTrace(const QByteArray& report);

/// Where reports are written: the program's own folder (ZAVOREN_CRASH_FOLDER overrides it for tests).
QString CrashReportFolder();
