// Export and import of one learner: the file written and read back, the questions asked when
// the imported name is taken, and the refusals that change nothing.

#include "Named.h"
#include "AddUserDialog.h"
#include "LearnerTransfer.h"
#include "ModalAnswerer.h"
#include "WindowFixture.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using Codes = std::vector<std::uint16_t>;

namespace {

/// A learner store over a config.xml of the test's own.
class StoreFolder {
public:
    explicit StoreFolder(const std::string& config)
    {
        std::ofstream(Path()) << config;
        m_store = std::make_unique<StoreWithHistory>(Path(), StandardDatabase());
    }
    StoreWithHistory& Store() { return *m_store; }
    std::string Path() const { return m_dir.filePath(QStringLiteral("config.xml")).toStdString(); }
    std::string Read() const
    {
        std::ifstream file(Path());
        return std::string(std::istreambuf_iterator<char>(file), {});
    }
    /// The learner as the file holds it, read by a store of its own.
    std::unique_ptr<User> Saved(const std::string& name) const
    {
        XmlConfigStore store(Path(), StandardDatabase());
        return store.LoadUser(name);
    }

private:
    QTemporaryDir m_dir;
    std::unique_ptr<StoreWithHistory> m_store;
};

} // namespace

class LearnerTransferTest : public QObject {
    Q_OBJECT

private slots:
    void init() { m_prompt = RecordingPrompt(); }

    void anExportedLearnerImportsIntoAnEmptyFile()
    {
        User anna;
        anna.SetName("Anna");
        anna.GetProgress(0).AddLearned(5);
        anna.GetProgress(1).AddUntested(90);
        anna.AddEvent({FixedClock(), LearnerEvent::Passed, 0, 5, 2});
        StoreFolder from(OneLearner("Anna"));
        QVERIFY(LearnerTransfer(StandardDatabase(), from.Store(), from.Store().Histories(), m_prompt, nullptr).Export(anna, Exported()));
        QVERIFY(m_prompt.messages.isEmpty());

        StoreFolder to("<Zavoren><Users/></Zavoren>");
        const auto outcome = LearnerTransfer(StandardDatabase(), to.Store(), to.Store().Histories(), m_prompt, nullptr).Import(Exported(), "");
        QVERIFY(outcome.imported);
        QVERIFY(!outcome.replacedOpen);
        QVERIFY(m_prompt.messages.isEmpty());
        const auto back = to.Saved("Anna");
        QVERIFY(back);
        QCOMPARE(back->GetProgress(0).Learned(), Codes{5});
        QCOMPARE(back->GetProgress(1).Untested(), Codes{90});
        QVERIFY(back->History() == anna.History());
    }

    void anImportedNameThatIsTakenIsReplacedOrRenamedOrLeft()
    {
        ExportAnnaWithOneLearned();
        StoreFolder folder(R"(<Z><Users currentUser="Ben"><User name="Anna"/><User name="Ben"/></Users></Z>)");
        LearnerTransfer transfer(StandardDatabase(), folder.Store(), folder.Store().Histories(), m_prompt, nullptr);
        // Cancel: the file is not touched.
        const std::string before = folder.Read();
        m_prompt.answer = QMessageBox::Cancel;
        QVERIFY(!transfer.Import(Exported(), "Ben").imported);
        QVERIFY(m_prompt.messages.value(0).startsWith(
            QStringLiteral("Import learner: A learner named \"Anna\" already exists.")));
        QCOMPARE(folder.Read(), before);
        // No: under another name, asked with the Add dialog's rules (a taken name is refused).
        m_prompt.answers = {QMessageBox::No};
        m_prompt.answer = QMessageBox::Ok;
        QStringList offered;
        int round = 0;
        ModalAnswerer<AddUserDialog> rename([&](AddUserDialog& dialog) {
            offered << Named<QLineEdit>(&dialog, "nameEdit")->text();
            Named<QLineEdit>(&dialog, "nameEdit")->setText(round++ == 0 ? QStringLiteral("Ben") : QStringLiteral("Anna 2"));
            QTest::mouseClick(Named<QPushButton>(&dialog, "okButton"), Qt::LeftButton);
        });
        QVERIFY(transfer.Import(Exported(), "Ben").imported);
        QCOMPARE(offered, (QStringList{QStringLiteral("Anna"), QStringLiteral("Ben")}));
        QVERIFY(m_prompt.messages.contains(QStringLiteral("Can't create user: User already exists. Try another user name")));
        // Yes: the existing record is replaced; the open learner (Ben) is not.
        m_prompt.answers = {QMessageBox::Yes};
        const auto replaced = transfer.Import(Exported(), "Ben");
        QVERIFY(replaced.imported);
        QVERIFY(!replaced.replacedOpen);
        QCOMPARE(folder.Saved("Anna 2")->GetProgress(0).Learned(), Codes{7});
        QCOMPARE(folder.Saved("Anna")->GetProgress(0).Learned(), Codes{7});
        QVERIFY(folder.Saved("Ben")->GetProgress(0).Learned().empty());
    }

    void replacingTheOpenLearnerHandsTheImportedRecordBack()
    {
        ExportAnnaWithOneLearned();
        StoreFolder folder(OneLearner("Anna"));
        m_prompt.answer = QMessageBox::Yes;
        const auto outcome
            = LearnerTransfer(StandardDatabase(), folder.Store(), folder.Store().Histories(), m_prompt, nullptr).Import(Exported(), "Anna");
        QVERIFY(outcome.imported);
        QVERIFY(outcome.replacedOpen);
        QCOMPARE(outcome.replacedOpen->GetProgress(0).Learned(), Codes{7});
        QCOMPARE(folder.Saved("Anna")->GetProgress(0).Learned(), Codes{7});
    }

    void aNameTheStoreCannotHoldIsADamagedFile()
    {
        // A learner's name never holds an apostrophe: such a file was not written by Zavoren!.
        QFile file(Exported());
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(QStringLiteral("<ZavorenLearner version=\"1\" categories=\"%1\"><User name=\"O'Hara\"/></ZavorenLearner>")
                       .arg(StandardDatabase().CategoryCount())
                       .toUtf8());
        file.close();
        StoreFolder folder("<Zavoren><Users/></Zavoren>");
        QVERIFY(!LearnerTransfer(StandardDatabase(), folder.Store(), folder.Store().Histories(), m_prompt, nullptr).Import(Exported(), "").imported);
        QVERIFY2(m_prompt.messages.value(0).endsWith(QStringLiteral("is damaged. Nothing was imported.")),
            qPrintable(m_prompt.messages.value(0)));
        QCOMPARE(folder.Store().UserCount(), 0);
    }

    void aDamagedOrForeignFileChangesNothing()
    {
        StoreFolder folder(OneLearner("Anna"));
        LearnerTransfer transfer(StandardDatabase(), folder.Store(), folder.Store().Histories(), m_prompt, nullptr);
        const std::string before = folder.Read();
        const QString categories = QString::number(StandardDatabase().CategoryCount());
        const QStringList files{
            QStringLiteral("<ZavorenLearner version=\"1\" categories=\"%1\"><User name=\"Z\">").arg(categories),
            QStringLiteral("<Zavoren><Users/></Zavoren>"),
            QStringLiteral("<ZavorenLearner version=\"1\" categories=\"2\"><User name=\"Z\"/></ZavorenLearner>"),
        };
        const QStringList said{QStringLiteral("is damaged."), QStringLiteral("is not a learner exported by Zavoren!."),
            QStringLiteral("was written with a character database of 2 categories; this one has %1.").arg(categories)};
        for (int i = 0; i < files.size(); ++i) {
            QFile file(Exported());
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
            file.write(files[i].toUtf8());
            file.close();
            m_prompt.messages.clear();
            QVERIFY(!transfer.Import(Exported(), "Anna").imported);
            QCOMPARE(m_prompt.messages.size(), 1);
            QVERIFY2(m_prompt.messages[0].contains(said[i]), qPrintable(m_prompt.messages[0]));
            QVERIFY(m_prompt.messages[0].endsWith(QStringLiteral("Nothing was imported.")));
            QCOMPARE(folder.Read(), before);
        }
        // A file that is not there cannot be read.
        m_prompt.messages.clear();
        QVERIFY(!transfer.Import(QDir(m_files.path()).filePath(QStringLiteral("none.xml")), "Anna").imported);
        QVERIFY2(m_prompt.messages.value(0).contains(QStringLiteral("cannot be read.")), qPrintable(m_prompt.messages.value(0)));
        QCOMPARE(folder.Store().UserCount(), 1);
        // An export to a place that cannot be written is said so.
        m_prompt.messages.clear();
        User anna;
        anna.SetName("Anna");
        QVERIFY(!transfer.Export(anna, QDir(m_files.path()).filePath(QStringLiteral("no/such/folder.xml"))));
        QVERIFY(m_prompt.messages.value(0).startsWith(QStringLiteral("Export learner: The learner could not be written")));
    }

    void theSuggestedFileNameIsTheLearnersWithoutSlashes()
    {
        User learner;
        learner.SetName("a/b");
        QCOMPARE(QFileInfo(LearnerTransfer::SuggestedPath(learner)).fileName(), QStringLiteral("a-b.zavoren-learner.xml"));
        QCOMPARE(QFileInfo(LearnerTransfer::SuggestedPath(learner)).absolutePath(), QDir::homePath());
    }

private:
    QString Exported() const { return QDir(m_files.path()).filePath(QStringLiteral("anna.xml")); }
    /// Anna with character 7 learned, in a file of her own.
    void ExportAnnaWithOneLearned()
    {
        User anna;
        anna.SetName("Anna");
        anna.GetProgress(0).AddLearned(7);
        StoreFolder from(OneLearner("Anna"));
        QVERIFY(LearnerTransfer(StandardDatabase(), from.Store(), from.Store().Histories(), m_prompt, nullptr).Export(anna, Exported()));
    }

    RecordingPrompt m_prompt;
    QTemporaryDir m_files;
};

QTEST_MAIN(LearnerTransferTest)
#include "LearnerTransferTest.moc"
