// The program in the learner's language. Started with LANGUAGE=fr (see CMakeLists.txt), as a
// French learner's desktop starts it.

#include "Named.h"
#include "AddUserDialog.h"
#include "CharacterDatabase.h"
#include "ConfigStore.h"
#include "HomePage.h"
#include "MainWindow.h"
#include "WindowFixture.h"
#include "RecordingOpener.h"
#include "RecordingPrompt.h"
#include "ShellTestSupport.h"
#include "Translations.h"

#include <QApplication>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QTranslator>

class TranslationTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCOMPARE(qgetenv("LANGUAGE"), QByteArray("fr"));
        QCOMPARE(InstallTranslations(*QApplication::instance(), QLocale::system()), QStringLiteral("fr"));
    }

    void theMenusAndButtonsAreFrench()
    {
        WindowFixture f(OneLearner("A"));
        QVERIFY(f.Start());
        MainWindow& window = f.Window();
        QStringList menus;
        for (QAction* action : window.menuBar()->actions())
            menus << action->text();
        QCOMPARE(menus, (QStringList{QStringLiteral("&Fichier"), QStringLiteral("&Outils"), QStringLiteral("&Aide")}));
        QCOMPARE(ActionOf(window, "usersAction")->text(), QStringLiteral("Utilisateurs"));
        QCOMPARE(ActionOf(window, "exitAction")->text(), QStringLiteral("Quitter"));
        QCOMPARE(ActionOf(window, "progressAction")->text(), QStringLiteral("Progrès…"));
        QCOMPARE(Named<QPushButton>(ChildOf<HomePage>(window), "openButton")->text(), QStringLiteral("&Ouvrir"));
        AddUserDialog add;
        QCOMPARE(Named<QPushButton>(&add, "okButton")->text(), QStringLiteral("&OK"));
        QCOMPARE(Named<QPushButton>(&add, "cancelButton")->text(), QStringLiteral("A&nnuler"));
        // Qt's own buttons speak French too.
        QMessageBox box(QMessageBox::Question, QStringLiteral("t"), QStringLiteral("q"), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.button(QMessageBox::Yes)->text(), QStringLiteral("&Oui"));
    }

    void everyLanguageIsCompiledIn()
    {
        for (const char* language : {"fr", "es", "pt_BR", "de", "ru"}) {
            QTranslator translator;
            QVERIFY2(translator.load(QStringLiteral(":/translations/zavoren_%1.qm").arg(QLatin1String(language))), language);
            const QString file = translator.translate("MainWindow", "&File");
            QVERIFY2(!file.isEmpty() && file != QStringLiteral("&File"), language);
            // The stores' messages too.
            QVERIFY(!translator.translate("ZavorenCommon", "Unable to load config").isEmpty());
        }
    }
};

QTEST_MAIN(TranslationTest)
#include "TranslationTest.moc"
