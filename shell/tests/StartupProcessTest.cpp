// Starts the real program as a learner would, in a data folder, and watches what it says and
// how it ends. Message boxes are answered through the test switch ZAVOREN_TEST_ANSWER.

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

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
        const Outcome o = Run({{"ZAVOREN_QUIT_AFTER_FIRST_PAINT", "1"}});
        QCOMPARE(o.status, QProcess::NormalExit);
        QCOMPARE(o.exitCode, 1);
        QVERIFY2(o.errors.contains(QStringLiteral("home page painted")), qPrintable(o.errors));
        QVERIFY(!o.errors.contains(QStringLiteral("MESSAGE")));
        // The learner was saved at close: a Progress per category now.
        QVERIFY(ReadConfig().contains("categoryId=\"7\""));
    }

    void filesAreLookedUpInTheCurrentFolderNotBesideTheProgram()
    {
        // The program lives in the build tree; the data folder is elsewhere and is the current folder.
        QVERIFY(
            !QFile::exists(QFileInfo(QStringLiteral(ZAVOREN_PROGRAM)).dir().filePath(QStringLiteral("config.xml"))));
        QCOMPARE(Run({{"ZAVOREN_QUIT_AFTER_FIRST_PAINT", "1"}}).exitCode, 1);
    }

    void missingConfig()
    {
        QFile::remove(m_dir->filePath(QStringLiteral("config.xml")));
        const Outcome o = Run({});
        QCOMPARE(o.exitCode, 0);
        QCOMPARE(o.errors.count(QStringLiteral("MESSAGE")), 1);
        QVERIFY2(o.errors.contains(QStringLiteral(
                     "MESSAGE Zavoren Configuration Error: Config file does not exist. Try to reinstall Zavoren.")),
            qPrintable(o.errors));
        QVERIFY(!o.errors.contains(QStringLiteral("window shown")));
    }

    void readOnlyConfig()
    {
        QFile::setPermissions(
            m_dir->filePath(QStringLiteral("config.xml")), QFileDevice::ReadOwner | QFileDevice::ReadGroup);
        const Outcome o = Run({});
        QCOMPARE(o.exitCode, 0);
        QVERIFY2(
            o.errors.contains(QStringLiteral(
                "Zavoren Configuration Error: Config file is ReadOnly. Check file attirbutes or reinstall Zavoren.")),
            qPrintable(o.errors));
    }

    void malformedConfigGivesOneBoxAndNoWindow()
    {
        WriteConfig("<Zavoren><Users>");
        const Outcome o = Run({});
        QCOMPARE(o.exitCode, 0);
        QCOMPARE(o.errors.count(QStringLiteral("MESSAGE")), 1);
        QVERIFY(o.errors.contains(QStringLiteral("Zavoren Configuration Error: Unable to load config")));
        QVERIFY(!o.errors.contains(QStringLiteral("window shown")));
        QCOMPARE(ReadConfig(), QByteArray("<Zavoren><Users>"));
    }

    void brokenDatabaseEndsInTheFatalErrorPath()
    {
        QFile::remove(m_dir->filePath(QStringLiteral("database")));
        const Outcome o = Run({{"ZAVOREN_TEST_ANSWER", "no"}});
        QVERIFY2(o.errors.contains(QStringLiteral("Unable to open database")), qPrintable(o.errors));
        QVERIFY(!o.errors.contains(QStringLiteral("window shown")));
        QVERIFY(o.status == QProcess::CrashExit || o.exitCode != 1);
    }

    void secondStartBringsTheFirstForwardAndEndsWithZero()
    {
        QProcess first;
        Prepare(first, {});
        first.start(QStringLiteral(ZAVOREN_PROGRAM), {});
        QVERIFY(first.waitForStarted());
        QString firstErrors;
        QTRY_VERIFY_WITH_TIMEOUT(
            (firstErrors += first.readAllStandardError()).contains(QStringLiteral("window shown")), 20000);
        const Outcome second = Run({});
        QCOMPARE(second.exitCode, 0);
        QVERIFY(!second.errors.contains(QStringLiteral("window shown")));
        QVERIFY(!second.errors.contains(QStringLiteral("MESSAGE")));
        QTRY_VERIFY_WITH_TIMEOUT(
            (firstErrors += first.readAllStandardError()).contains(QStringLiteral("asked this one to come forward")),
            10000);
        first.terminate();
        first.waitForFinished(5000);
        if (first.state() != QProcess::NotRunning)
            first.kill();
    }

private:
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
    void Prepare(QProcess& process, const QList<std::pair<const char*, const char*>>& extra)
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        env.insert(QStringLiteral("ZAVOREN_TEST_ANSWER"), QStringLiteral("ok"));
        env.insert(QStringLiteral("ZAVOREN_TRACE"), QStringLiteral("1"));
        env.insert(QStringLiteral("ZAVOREN_INSTANCE_NAME"), QStringLiteral("startup test ") + m_dir->path());
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), m_dir->filePath(QStringLiteral("settings")));
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_dir->filePath(QStringLiteral("runtime")));
        for (const auto& [name, value] : extra)
            env.insert(QString::fromUtf8(name), QString::fromUtf8(value));
        process.setProcessEnvironment(env);
        process.setWorkingDirectory(m_dir->path());
    }
    Outcome Run(const QList<std::pair<const char*, const char*>>& extra)
    {
        QProcess process;
        Prepare(process, extra);
        process.start(QStringLiteral(ZAVOREN_PROGRAM), {});
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
