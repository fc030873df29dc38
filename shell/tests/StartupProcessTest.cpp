// Starts the real program as a learner would, in a data folder, and watches how it ends and what
// it leaves. What it says in message boxes is tested in-process (StartupTest), where a prompt
// answers for the learner; a box shown here would wait for ever, so these runs show none.

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

struct Outcome {
    int exitCode = -1;
    QProcess::ExitStatus status = QProcess::NormalExit;
    QString errors;
};

} // namespace

class StartupProcessTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QFile::copy(QStringLiteral(ZAVOREN_STANDARD_DATABASE), m_dir->filePath(QStringLiteral("database")));
        WriteConfig("<Zavoren><Users currentUser=\"Anna\"><User name=\"Anna\"/></Users></Zavoren>");
        QDir(m_dir->path()).mkdir(QStringLiteral("runtime"));
        QFile::setPermissions(m_dir->filePath(QStringLiteral("runtime")),
            QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    }

    void normalStartAndCloseEndsWithOne()
    {
        const Outcome o = Run({}, {}, {QStringLiteral("--quit-after-first-paint")});
        QCOMPARE(o.status, QProcess::NormalExit);
        QCOMPARE(o.exitCode, 1);
        QVERIFY2(o.errors.contains(QStringLiteral("home page painted")), qPrintable(o.errors));
        // The learner was saved at close: a Progress per category now.
        QVERIFY(ReadConfig().contains("categoryId=\"7\""));
    }

    void filesAreLookedUpInTheCurrentFolderNotBesideTheProgram()
    {
        // The program lives in the build tree; the data folder is elsewhere and is the current folder.
        QVERIFY(
            !QFile::exists(QFileInfo(QStringLiteral(ZAVOREN_PROGRAM)).dir().filePath(QStringLiteral("config.xml"))));
        QCOMPARE(Run({}, {}, {QStringLiteral("--quit-after-first-paint")}).exitCode, 1);
    }

    void aSecondStartEndsWithZeroAndLeavesTheFirstRunning()
    {
        QProcess first;
        Prepare(first, {});
        first.start(QStringLiteral(ZAVOREN_PROGRAM), Arguments());
        QVERIFY(first.waitForStarted());
        // The first copy is up once it listens beside its lock.
        QTRY_VERIFY_WITH_TIMEOUT(!QDir(m_dir->filePath(QStringLiteral("runtime")))
                                      .entryList({QStringLiteral("*.socket")}, QDir::System)
                                      .isEmpty(),
            20000);
        const Outcome second = Run({});
        QCOMPARE(second.status, QProcess::NormalExit);
        QCOMPARE(second.exitCode, 0);
        QCOMPARE(first.state(), QProcess::Running);
        first.terminate();
        first.waitForFinished(5000);
        if (first.state() != QProcess::NotRunning)
            first.kill();
    }

    void noDisplayAtAllSaysSoInOneLineAndLeavesNoProcess()
    {
        const Outcome o = Run(
            {}, {QStringLiteral("DISPLAY"), QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("QT_QPA_PLATFORM")});
        QCOMPARE(o.status, QProcess::NormalExit);
        QCOMPARE(o.exitCode, 2);
        QCOMPARE(
            o.errors, QStringLiteral("Zavoren! needs a graphical display (DISPLAY or WAYLAND_DISPLAY is not set)\n"));
        QCOMPARE(ProcessesInTheDataFolder(), 0);
    }

    void anUnreachableDisplaySaysSoInOneLineAndLeavesNoProcess()
    {
        // A display number no X server here answers to.
        const Outcome o
            = Run({{"DISPLAY", ":93"}}, {QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("QT_QPA_PLATFORM")});
        QCOMPARE(o.status, QProcess::NormalExit);
        QCOMPARE(o.exitCode, 2);
        QCOMPARE(o.errors, QStringLiteral("Zavoren! could not open a graphical display (DISPLAY=:93)\n"));
        QCOMPARE(ProcessesInTheDataFolder(), 0);
    }

    void aReportHelperWithoutDisplayLeavesQuietly()
    {
        for (const char* display : {"", ":93"}) {
            QProcess process;
            Prepare(process, {}, {QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("QT_QPA_PLATFORM")});
            QProcessEnvironment env = process.processEnvironment();
            env.remove(QStringLiteral("DISPLAY"));
            if (*display)
                env.insert(QStringLiteral("DISPLAY"), QString::fromUtf8(display));
            process.setProcessEnvironment(env);
            process.start(QStringLiteral(ZAVOREN_PROGRAM), {QStringLiteral("--crash-report")});
            QVERIFY(process.waitForStarted());
            process.write("Zavoren! crash report\n");
            process.closeWriteChannel();
            QVERIFY(process.waitForFinished(30000));
            QCOMPARE(process.exitStatus(), QProcess::NormalExit);
            QCOMPARE(process.exitCode(), 0);
            QCOMPARE(process.readAllStandardError(), QByteArray());
            QCOMPARE(ProcessesInTheDataFolder(), 0);
        }
    }

    void aFileSizeLimitDoesNotEndTheProgramAndKeepsTheFile()
    {
        const QByteArray before = ReadConfig();
        QProcess process;
        Prepare(process, {});
        // Room for the file as it is, not for the saved one with a Progress per category.
        process.setChildProcessModifier([] {
            const rlimit limit{300, RLIM_INFINITY};
            ::setrlimit(RLIMIT_FSIZE, &limit);
        });
        process.start(QStringLiteral(ZAVOREN_PROGRAM), Arguments({QStringLiteral("--quit-after-first-paint")}));
        QString errors;
        QTRY_VERIFY_WITH_TIMEOUT(
            (errors += QString::fromUtf8(process.readAllStandardError())).contains(QStringLiteral("home page painted")),
            20000);
        // The save at close fails: the program is still there, telling the learner (the box waits
        // for an answer), rather than ended by the file-size signal.
        QTest::qWait(1500);
        QCOMPARE(process.state(), QProcess::Running);
        process.kill();
        process.waitForFinished(5000);
        QCOMPARE(ReadConfig(), before);
        QCOMPARE(QDir(m_dir->path()).entryList({QStringLiteral("config.xml*")}, QDir::Files | QDir::Hidden),
            QStringList{QStringLiteral("config.xml")});
    }

private:
    /// Processes still running with the test's data folder as their current folder.
    int ProcessesInTheDataFolder() const
    {
        QTest::qWait(300); // a helper started at the very end would be up by now
        const QString folder = QFileInfo(m_dir->path()).canonicalFilePath();
        int count = 0;
        for (const QString& pid : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
            if (pid.toInt() > 0 && QFileInfo(QStringLiteral("/proc/%1/cwd").arg(pid)).symLinkTarget() == folder)
                ++count;
        }
        return count;
    }

    void WriteConfig(const char* text)
    {
        QFile file(m_dir->filePath(QStringLiteral("config.xml")));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(text);
    }
    QByteArray ReadConfig() const
    {
        QFile file(m_dir->filePath(QStringLiteral("config.xml")));
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    }
    void Prepare(
        QProcess& process, const QList<std::pair<const char*, const char*>>& extra, const QStringList& removed = {})
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), m_dir->filePath(QStringLiteral("settings")));
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_dir->filePath(QStringLiteral("runtime")));
        for (const auto& [name, value] : extra)
            env.insert(QString::fromUtf8(name), QString::fromUtf8(value));
        for (const QString& name : removed)
            env.remove(name);
        process.setProcessEnvironment(env);
        process.setWorkingDirectory(m_dir->path());
    }
    /// The program's arguments: a single-instance lock of this test's own, then `extra`.
    QStringList Arguments(const QStringList& extra = {}) const
    {
        return QStringList{QStringLiteral("--instance-name"), QStringLiteral("startup test ") + m_dir->path()} + extra;
    }
    Outcome Run(const QList<std::pair<const char*, const char*>>& extra, const QStringList& removed = {},
        const QStringList& arguments = {})
    {
        QProcess process;
        Prepare(process, extra, removed);
        process.start(QStringLiteral(ZAVOREN_PROGRAM), Arguments(arguments));
        Outcome o;
        if (!process.waitForFinished(30000)) {
            process.kill();
            process.waitForFinished();
            o.errors = QStringLiteral("did not finish");
            return o;
        }
        o.exitCode = process.exitCode();
        o.status = process.exitStatus();
        o.errors = QString::fromUtf8(process.readAllStandardError());
        return o;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_MAIN(StartupProcessTest)
#include "StartupProcessTest.moc"
