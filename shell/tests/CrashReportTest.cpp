// The crash report, in three parts: what the fatal-error handler captures (a program failing on
// purpose under the real handler, with a helper that keeps what it is sent); the question and the
// report file (the helper's side, answered through a prompt); and the real program starting its
// own helper when it fails.

#include "CrashHandler.h"
#include "RecordingPrompt.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

namespace {

const char* const Question
    = "Unhandled Exception: Oops...\nFatal error in Zavoren.\n\nDo you want to get minidump for it?";

/// Processes running with `folder` as their current folder whose command line holds `word`.
int ProcessesIn(const QString& folder, const QByteArray& word)
{
    const QString canonical = QFileInfo(folder).canonicalFilePath();
    int count = 0;
    for (const QString& pid : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        if (pid.toInt() <= 0 || QFileInfo(QStringLiteral("/proc/%1/cwd").arg(pid)).symLinkTarget() != canonical)
            continue;
        QFile cmdline(QStringLiteral("/proc/%1/cmdline").arg(pid));
        if (cmdline.open(QIODevice::ReadOnly) && cmdline.readAll().contains(word))
            ++count;
    }
    return count;
}

} // namespace

class CrashReportTest : public QObject {
    Q_OBJECT

private slots:
    void aSignalIsCapturedWithThreadStackAndModules()
    {
        const QByteArray report = Capture("segv");
        QVERIFY2(
            report.contains("What happened: signal 11 SIGSEGV (segmentation fault) at address 0x"), report.constData());
        QVERIFY(QRegularExpression(QStringLiteral("Thread: \\d+")).match(QString::fromUtf8(report)).hasMatch());
        QVERIFY(report.contains("Stack trace:"));
        // The function that failed is named in the trace (the program exports its symbols).
        QVERIFY2(report.contains("FailOnPurpose"), report.constData());
        QVERIFY(report.contains("Loaded modules (address ranges):"));
        QVERIFY(report.contains("libc.so"));
    }

    void anAbortIsCaptured()
    {
        const QByteArray report = Capture("abort");
        QVERIFY2(report.contains("What happened: signal 6 SIGABRT (abort)"), report.constData());
        // The trace runs from the C library's abort through the program's own frames.
        const qsizetype trace = report.indexOf("Stack trace:");
        QVERIFY(trace > 0);
        QVERIFY2(report.indexOf("(abort+", trace) > trace, report.constData());
        QVERIFY(report.indexOf("crash_capture_program(", trace) > trace);
    }

    void anUncaughtExceptionIsCapturedWithItsTypeAndMessage()
    {
        QByteArray report = Capture("exception");
        QVERIFY2(report.contains("What happened: uncaught exception std::runtime_error: failing on purpose"),
            report.constData());
        report = Capture("database");
        QVERIFY2(report.contains(
                     "What happened: uncaught exception ZavorenCommon::DatabaseLoadException: Unable to open database"),
            report.constData());
        QVERIFY(report.contains("Stack trace:"));
    }

    void yesWritesTheReportWithReadableNames()
    {
        QTemporaryDir folder;
        RecordingPrompt prompt;
        prompt.answers = {QMessageBox::Yes};
        const QByteArray captured
            = "What happened: signal 11\n/bin/zavoren(_ZN12_GLOBAL__N_113FailOnPurposeEPKc+0x1a)[0x55]";
        QCOMPARE(AskAndWriteCrashReport(prompt, folder.path(), captured), 0);
        QCOMPARE(
            prompt.messages, (QStringList{Question, "MiniDump: Minidump successfuly created in application folder."}));
        QCOMPARE(prompt.icons.front(), QMessageBox::Critical);
        const QStringList reports = QDir(folder.path()).entryList({QStringLiteral("*.dmp")});
        QCOMPARE(reports.size(), 1);
        QVERIFY(QRegularExpression(QStringLiteral("^Zavoren-\\d{8}-\\d{6}\\.dmp$")).match(reports.front()).hasMatch());
        QFile file(QDir(folder.path()).filePath(reports.front()));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray report = file.readAll();
        QVERIFY(report.startsWith("What happened: signal 11\n"));
        QVERIFY2(report.contains("(anonymous namespace)::FailOnPurpose(char const*)+0x1a"), report.constData());
    }

    void noWritesNothing()
    {
        QTemporaryDir folder;
        RecordingPrompt prompt;
        prompt.answers = {QMessageBox::No};
        AskAndWriteCrashReport(prompt, folder.path(), "What happened: signal 6");
        QCOMPARE(prompt.messages, QStringList{Question});
        QVERIFY(QDir(folder.path()).entryList(QDir::Files).isEmpty());
    }

    void anUnwritableFolderSaysSo()
    {
        QTemporaryDir parent;
        // A folder that cannot be written, even by root: its "parent" is a plain file.
        QFile blocker(parent.filePath(QStringLiteral("file")));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        RecordingPrompt prompt;
        prompt.answers = {QMessageBox::Yes};
        AskAndWriteCrashReport(prompt, parent.filePath(QStringLiteral("file/reports")), "What happened: signal 6");
        QCOMPARE(prompt.messages, (QStringList{Question, "Error: Unable to generate minidump."}));
        QCOMPARE(prompt.icons.last(), QMessageBox::Critical);
        QCOMPARE(QDir(parent.path()).entryList(QDir::Files).size(), 1);
    }

    void theProgramStartsItsOwnHelperWhenItFails()
    {
        // Started in a folder without a database, the program fails at start (the reader's
        // exception is not caught there). The helper asks its question on screen; it is seen
        // running, then both are ended.
        QTemporaryDir folder;
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), QDir::tempPath());
        // AddressSanitizer builds must let the program's own handlers see the fault.
        env.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("handle_segv=0:handle_abort=0:detect_leaks=0"));
        process.setProcessEnvironment(env);
        process.setWorkingDirectory(folder.path());
        process.start(QStringLiteral(ZAVOREN_PROGRAM),
            {QStringLiteral("--instance-name"), QStringLiteral("crash test ") + folder.path()});
        QVERIFY(process.waitForStarted());
        QTRY_COMPARE_WITH_TIMEOUT(ProcessesIn(folder.path(), "--crash-report"), 1, 20000);
        for (const QString& pid : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
            QFile cmdline(QStringLiteral("/proc/%1/cmdline").arg(pid));
            if (pid.toInt() > 0 && cmdline.open(QIODevice::ReadOnly) && cmdline.readAll().contains("--crash-report")
                && QFileInfo(QStringLiteral("/proc/%1/cwd").arg(pid)).symLinkTarget()
                    == QFileInfo(folder.path()).canonicalFilePath())
                ::kill(pid.toInt(), SIGKILL);
        }
        QVERIFY(process.waitForFinished(20000));
        QCOMPARE(process.exitStatus(), QProcess::CrashExit); // it ends as the signal would have
        QCOMPARE(process.exitCode(), SIGABRT); // an uncaught exception ends in abort
        QTRY_COMPARE_WITH_TIMEOUT(ProcessesIn(folder.path(), "zavoren"), 0, 5000);
    }

    void twoReportsInOneSecondKeepTheSecond()
    {
        QTemporaryDir folder;
        const QDateTime moment(QDate(2026, 11, 21), QTime(9, 8, 7));
        QCOMPARE(CrashReportFileName(moment), QStringLiteral("Zavoren-20261121-090807.dmp"));
        QVERIFY(WriteCrashReport(folder.path(), moment, "first"));
        QVERIFY(WriteCrashReport(folder.path(), moment, "second"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{"Zavoren-20261121-090807.dmp"});
        QFile file(QDir(folder.path()).filePath(QStringLiteral("Zavoren-20261121-090807.dmp")));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("second"));
        QVERIFY(!WriteCrashReport(QStringLiteral("/nonexistent/folder"), moment, "x"));
    }

    void demanglesFunctionNames()
    {
        const QByteArray line = "/bin/zavoren(_ZN12_GLOBAL__N_114CrashOnPurposeEPKc+0x1a)[0x55]";
        QCOMPARE(DemangleStackTrace(line),
            QByteArray("/bin/zavoren((anonymous namespace)::CrashOnPurpose(char const*)+0x1a)[0x55]"));
        QCOMPARE(DemangleStackTrace("plain line"), QByteArray("plain line"));
    }

private:
    /// Runs the capture program failing as `kind` and returns what its helper was sent.
    static QByteArray Capture(const char* kind)
    {
        QTemporaryDir folder;
        const QString helper = folder.filePath(QStringLiteral("helper"));
        QFile script(helper);
        if (!script.open(QIODevice::WriteOnly))
            return "no helper";
        script.write("#!/bin/sh\ncat > \"$(dirname \"$0\")/captured\"\n");
        script.close();
        script.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("handle_segv=0:handle_abort=0:detect_leaks=0"));
        process.setProcessEnvironment(env);
        process.start(QStringLiteral(ZAVOREN_CRASH_CAPTURE_PROGRAM), {helper, QString::fromLatin1(kind)});
        if (!process.waitForFinished(30000))
            process.kill();
        QFile captured(folder.filePath(QStringLiteral("captured")));
        return captured.open(QIODevice::ReadOnly) ? captured.readAll() : QByteArray("nothing captured");
    }
};

QTEST_MAIN(CrashReportTest)
#include "CrashReportTest.moc"
