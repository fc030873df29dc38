// The start-up's messages and the single-instance rule, in-process: a prompt answers for the
// learner and records what they were told.

#include "Startup.h"
#include "DatabaseLoadException.h"
#include "RecordingPrompt.h"
#include "ShellTestSupport.h"
#include "SingleInstance.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

class StartupTest : public QObject {
    Q_OBJECT

private slots:
    void aMissingConfigSaysSoAndEnds()
    {
        DataFolder folder;
        QFile::remove(QStringLiteral("config.xml"));
        QCOMPARE(Start(), 0);
        QCOMPARE(m_prompt.messages,
            QStringList{"Zavoren Configuration Error: Config file does not exist. Try to reinstall Zavoren."});
        QCOMPARE(m_prompt.icons, QList<QMessageBox::Icon>{QMessageBox::Critical});
    }

    void aReadOnlyConfigSaysSoAndEnds()
    {
        DataFolder folder(R"(<Zavoren><Users currentUser="Anna"><User name="Anna"/></Users></Zavoren>)");
        QFile::setPermissions(QStringLiteral("config.xml"), QFileDevice::ReadOwner | QFileDevice::ReadGroup);
        QCOMPARE(Start(), 0);
        QCOMPARE(m_prompt.messages,
            QStringList{"Zavoren Configuration Error: Config file is ReadOnly. Check file "
                        "attirbutes or reinstall Zavoren."});
    }

    void aMalformedConfigGivesOneMessageAndIsLeftAsItWas()
    {
        DataFolder folder("<Zavoren><Users>");
        QCOMPARE(Start(), 0);
        QCOMPARE(m_prompt.messages, QStringList{"Zavoren Configuration Error: Unable to load config"});
        QCOMPARE(folder.ReadConfig(), std::string("<Zavoren><Users>"));
    }

    void aBrokenDatabaseIsLeftToTheFatalErrorHandler()
    {
        DataFolder folder;
        QFile::remove(QStringLiteral("database"));
        QString message;
        try {
            Start();
        } catch (const ZavorenCommon::DatabaseLoadException& e) {
            message = QString::fromUtf8(e.what());
        }
        QCOMPARE(message, QStringLiteral("Unable to open database"));
        QVERIFY(m_prompt.messages.isEmpty());
    }

    void aSecondCopyAsksTheFirstToComeForward()
    {
        const QString name = QStringLiteral("single instance test %1").arg(QCoreApplication::applicationPid());
        SingleInstance first(name);
        QVERIFY(first.Acquire());
        QSignalSpy raised(&first, &SingleInstance::raiseRequested);
        {
            SingleInstance second(name);
            QVERIFY(!second.Acquire());
        }
        QVERIFY(raised.wait(5000));
        QCOMPARE(raised.count(), 1);
        // Another program name is another lock.
        SingleInstance other(name + QStringLiteral(" other"));
        QVERIFY(other.Acquire());
    }

private:
    int Start()
    {
        m_prompt = RecordingPrompt();
        StartupOptions options;
        options.instanceName = QStringLiteral("startup test %1").arg(QCoreApplication::applicationPid());
        return RunZavoren(options, m_prompt);
    }

    RecordingPrompt m_prompt;
};

QTEST_MAIN(StartupTest)
#include "StartupTest.moc"
