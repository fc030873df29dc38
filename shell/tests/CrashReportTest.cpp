// Makes the real program fail on purpose and answers its crash question through the test
// switch ZAVOREN_TEST_ANSWER; reports go to the folder ZAVOREN_CRASH_FOLDER names.

#include "CrashHandler.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

class CrashReportTest : public QObject {
    Q_OBJECT

private slots:
    void yesWritesAReportWithAStackTrace()
    {
        QTemporaryDir folder;
        const QString errors = Crash(folder.path(), "yes", {"--crash-test", "segv"});
        QVERIFY2(errors.contains(QStringLiteral("MESSAGE Unhandled Exception: Oops...\nFatal error in Zavoren.\n\nDo "
                                                "you want to get minidump for it?")),
            qPrintable(errors));
        QVERIFY(
            errors.contains(QStringLiteral("MESSAGE MiniDump: Minidump successfuly created in application folder.")));
        const QStringList reports = QDir(folder.path()).entryList({QStringLiteral("*.dmp")});
        QCOMPARE(reports.size(), 1);
        QVERIFY(QRegularExpression(QStringLiteral("^Zavoren-\\d{8}-\\d{6}\\.dmp$")).match(reports.front()).hasMatch());
        QFile file(QDir(folder.path()).filePath(reports.front()));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray report = file.readAll();
        QVERIFY(report.contains("What happened: signal 11 SIGSEGV"));
        QVERIFY(report.contains("Thread: "));
        QVERIFY(report.contains("Stack trace:"));
        // Our own functions are named in the trace, and the modules listed with their ranges.
        QVERIFY2(report.contains("CrashOnPurpose") || report.contains("main"), report.constData());
        QVERIFY(report.contains("Loaded modules"));
        QVERIFY(report.contains("libc.so"));
    }

    void noWritesNothing()
    {
        QTemporaryDir folder;
        const QString errors = Crash(folder.path(), "no", {"--crash-test", "abort"});
        QVERIFY(errors.contains(QStringLiteral("Unhandled Exception")));
        QVERIFY(!errors.contains(QStringLiteral("MiniDump")));
        QVERIFY(QDir(folder.path()).entryList({QStringLiteral("*.dmp")}).isEmpty());
    }

    void unwritableFolderReportsTheFailure()
    {
        QTemporaryDir parent;
        // A folder that cannot be written, even by root: its "parent" is a plain file.
        QFile blocker(parent.filePath(QStringLiteral("file")));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        const QString errors = Crash(parent.filePath(QStringLiteral("file/reports")), "yes", {"--crash-test", "segv"});
        QVERIFY2(errors.contains(QStringLiteral("MESSAGE Error: Unable to generate minidump.")), qPrintable(errors));
        QVERIFY(!errors.contains(QStringLiteral("MiniDump")));
        QCOMPARE(QDir(parent.path()).entryList(QDir::Files).size(), 1);
    }

    void uncaughtDatabaseFailureAtStartUpIsReported()
    {
        QTemporaryDir folder; // no database here
        const QString errors = Crash(folder.path(), "yes", {});
        QVERIFY2(errors.contains(QStringLiteral("Unable to open database")), qPrintable(errors));
        const QStringList reports = QDir(folder.path()).entryList({QStringLiteral("*.dmp")});
        QCOMPARE(reports.size(), 1);
        QFile file(QDir(folder.path()).filePath(reports.front()));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray report = file.readAll();
        QVERIFY(report.contains("uncaught exception ZavorenCommon::DatabaseLoadException: Unable to open database"));
        QVERIFY(report.contains("Stack trace:"));
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
    static QString Crash(const QString& folder, const char* answer, const QStringList& arguments)
    {
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        env.insert(QStringLiteral("ZAVOREN_TEST_ANSWER"), QString::fromLatin1(answer));
        env.insert(QStringLiteral("ZAVOREN_CRASH_FOLDER"), folder);
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), QDir::tempPath());
        // AddressSanitizer builds must let the program's own handlers see the fault.
        env.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("handle_segv=0:handle_abort=0:detect_leaks=0"));
        process.setProcessEnvironment(env);
        process.setWorkingDirectory(QDir(folder).exists() ? folder : QDir::tempPath());
        process.start(QStringLiteral(ZAVOREN_PROGRAM),
            arguments + QStringList{QStringLiteral("--instance-name"), QStringLiteral("crash test ") + folder});
        if (!process.waitForFinished(30000))
            process.kill();
        return QString::fromUtf8(process.readAllStandardError());
    }
};

QTEST_MAIN(CrashReportTest)
#include "CrashReportTest.moc"
