#include "Named.h"
#include "AddUserDialog.h"
#include "CharacterDatabase.h"
#include "ConfigStore.h"
#include "HomePage.h"
#include "ModalAnswerer.h"
#include "RecordingPrompt.h"
#include "TestSupport.h"
#include "UserManagerDialog.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <filesystem>
#include <fstream>

using namespace testsupport;

namespace {

QStringList Items(QListWidget* list)
{
    QStringList items;
    for (int i = 0; i < list->count(); ++i)
        items << list->item(i)->text();
    return items;
}

QString Selected(QListWidget* list)
{
    const auto selected = list->selectedItems();
    return selected.isEmpty() ? QString() : selected.front()->text();
}

} // namespace

class ScreensTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_previous = QDir::currentPath();
        m_dir = std::make_unique<QTemporaryDir>();
        QDir::setCurrent(m_dir->path());
        std::filesystem::copy_file(ZAVOREN_STANDARD_DATABASE, "database");
        WriteConfig("<Zavoren><Users/></Zavoren>");
        ReleaseDataStores();
        m_prompt = RecordingPrompt();
        m_prompt.answer = QMessageBox::Yes;
    }
    void cleanup()
    {
        m_typing.reset();
        ReleaseDataStores();
        QDir::setCurrent(m_previous);
        m_dir.reset();
    }

    void emptyManagerOffersOnlyAdd()
    {
        UserManagerDialog manager(GetConfigStore(), m_prompt);
        QCOMPARE(manager.windowTitle(), QStringLiteral("User Manager"));
        manager.show();
        QCOMPARE(Named<QListWidget>(&manager, "userList")->count(), 0);
        QVERIFY(!Named<QPushButton>(&manager, "openButton")->isEnabled());
        QVERIFY(!Named<QPushButton>(&manager, "deleteButton")->isEnabled());
        QCOMPARE(manager.DefaultButton(), Named<QPushButton>(&manager, "addButton"));
        QVERIFY(manager.SelectedUserName().empty());
    }

    void listShowsLearnersInFileOrderWithTheCurrentSelected()
    {
        WriteConfig(
            R"(<Z><Users currentUser="ben"><User name="Chiyo"/><User name="Ben"/><User name="Anna"/></Users></Z>)");
        UserManagerDialog manager(GetConfigStore(), m_prompt);
        manager.show();
        QCOMPARE(Items(Named<QListWidget>(&manager, "userList")), (QStringList{"Chiyo", "Ben", "Anna"}));
        QCOMPARE(Selected(Named<QListWidget>(&manager, "userList")), QStringLiteral("Ben"));
        QCOMPARE(manager.SelectedUserName(), std::string("Ben"));
        QVERIFY(Named<QPushButton>(&manager, "openButton")->isEnabled());
        QCOMPARE(manager.DefaultButton(), Named<QPushButton>(&manager, "openButton"));
        QVERIFY(!Named<QListWidget>(&manager, "userList")->item(0)->icon().isNull());
        // Double click opens.
        QTimer::singleShot(0, &manager, [&] {
            const QRect r = Named<QListWidget>(&manager, "userList")->visualItemRect(Named<QListWidget>(&manager, "userList")->item(2));
            QTest::mouseClick(Named<QListWidget>(&manager, "userList")->viewport(), Qt::LeftButton, Qt::NoModifier, r.center());
            QTest::mouseDClick(Named<QListWidget>(&manager, "userList")->viewport(), Qt::LeftButton, Qt::NoModifier, r.center());
        });
        QCOMPARE(manager.exec(), int(UserManagerDialog::Open));
        QCOMPARE(manager.SelectedUserName(), std::string("Anna"));
    }

    void addingAnnaBesideAnnaAndDeletingTheCurrentOne()
    {
        WriteConfig(R"(<Z><Users currentUser="Anna"><User name="Anna"/></Users></Z>)");
        UserManagerDialog manager(GetConfigStore(), m_prompt);
        manager.show();
        Type({"anna"});
        QTest::mouseClick(Named<QPushButton>(&manager, "addButton"), Qt::LeftButton);
        QCOMPARE(Items(Named<QListWidget>(&manager, "userList")), (QStringList{"Anna", "anna"}));
        QCOMPARE(Selected(Named<QListWidget>(&manager, "userList")), QStringLiteral("anna"));
        QVERIFY(m_prompt.messages.isEmpty());
        QCOMPARE(GetConfigStore().CurrentUserName(), std::string("Anna")); // adding does not make current
        QSignalSpy deleted(&manager, &UserManagerDialog::currentUserDeleted);
        QTest::mouseClick(Named<QPushButton>(&manager, "deleteButton"), Qt::LeftButton);
        QCOMPARE(m_prompt.messages, QStringList{"Delete User: Delete current user?"});
        QCOMPARE(Items(Named<QListWidget>(&manager, "userList")), QStringList{"Anna"});
        QCOMPARE(GetConfigStore().CurrentUserName(), std::string());
        QCOMPARE(deleted.count(), 1);
        // Another learner: the plain question, no notice.
        m_prompt.messages.clear();
        Type({"Ben"});
        QTest::mouseClick(Named<QPushButton>(&manager, "addButton"), Qt::LeftButton);
        QTest::mouseClick(Named<QPushButton>(&manager, "deleteButton"), Qt::LeftButton);
        QCOMPARE(m_prompt.messages, QStringList{"Delete User: Delete user?"});
        QCOMPARE(deleted.count(), 1);
        // Answering No keeps the learner.
        m_prompt.answer = QMessageBox::No;
        QTest::mouseClick(Named<QPushButton>(&manager, "deleteButton"), Qt::LeftButton);
        QCOMPARE(Items(Named<QListWidget>(&manager, "userList")), QStringList{"Anna"});
    }

    void deletingTheLastOrOnlyItem()
    {
        WriteConfig(R"(<Z><Users><User name="A"/><User name="B"/><User name="C"/></Users></Z>)");
        UserManagerDialog manager(GetConfigStore(), m_prompt);
        manager.show();
        Named<QListWidget>(&manager, "userList")->setCurrentRow(2);
        QTest::mouseClick(Named<QPushButton>(&manager, "deleteButton"), Qt::LeftButton);
        QCOMPARE(Items(Named<QListWidget>(&manager, "userList")), (QStringList{"A", "B"}));
        QCOMPARE(Selected(Named<QListWidget>(&manager, "userList")), QStringLiteral("B"));
        Named<QListWidget>(&manager, "userList")->setCurrentRow(0);
        QTest::mouseClick(Named<QPushButton>(&manager, "deleteButton"), Qt::LeftButton);
        QCOMPARE(Selected(Named<QListWidget>(&manager, "userList")), QStringLiteral("B"));
        QTest::mouseClick(Named<QPushButton>(&manager, "deleteButton"), Qt::LeftButton);
        QCOMPARE(Named<QListWidget>(&manager, "userList")->count(), 0);
        QVERIFY(Named<QListWidget>(&manager, "userList")->selectedItems().isEmpty());
        QVERIFY(!Named<QPushButton>(&manager, "deleteButton")->isEnabled());
        QCOMPARE(manager.DefaultButton(), Named<QPushButton>(&manager, "addButton"));
    }

    void blankNamesEmptyNamesAndRejectedNames()
    {
        WriteConfig(R"(<Z><Users><User name="Anna"/></Users></Z>)");
        UserManagerDialog manager(GetConfigStore(), m_prompt);
        manager.show();
        // Only blanks: accepted as typed.
        Type({"   "});
        QTest::mouseClick(Named<QPushButton>(&manager, "addButton"), Qt::LeftButton);
        QCOMPARE(Items(Named<QListWidget>(&manager, "userList")), (QStringList{"Anna", "   "}));
        // A taken name: the message, then the dialog again with the name selected; Cancel ends.
        QStringList seenAgain;
        int shown = 0;
        m_typing = std::make_unique<ModalAnswerer<AddUserDialog>>([&](AddUserDialog& dialog) {
            ++shown;
            if (shown == 1) {
                QVERIFY(!Named<QPushButton>(&dialog, "okButton")->isEnabled()); // empty: OK disabled
                Named<QLineEdit>(&dialog, "nameEdit")->setText(QStringLiteral("Anna"));
                QVERIFY(Named<QPushButton>(&dialog, "okButton")->isEnabled());
                QTest::mouseClick(Named<QPushButton>(&dialog, "okButton"), Qt::LeftButton);
            } else {
                seenAgain << Named<QLineEdit>(&dialog, "nameEdit")->text() << Named<QLineEdit>(&dialog, "nameEdit")->selectedText();
                QTest::mouseClick(Named<QPushButton>(&dialog, "cancelButton"), Qt::LeftButton);
            }
        });
        QTest::mouseClick(Named<QPushButton>(&manager, "addButton"), Qt::LeftButton);
        QCOMPARE(shown, 2);
        QCOMPARE(m_prompt.messages, QStringList{"Can't create user: User already exists. Try another user name"});
        QCOMPARE(seenAgain, (QStringList{"Anna", "Anna"}));
        QCOMPARE(Items(Named<QListWidget>(&manager, "userList")), (QStringList{"Anna", "   "}));
    }

    void apostropheNamesAreRefusedWithTheReason()
    {
        UserManagerDialog manager(GetConfigStore(), m_prompt);
        manager.show();
        Type({"O'Brien", "OBrien"});
        QTest::mouseClick(Named<QPushButton>(&manager, "addButton"), Qt::LeftButton);
        QCOMPARE(m_prompt.messages,
            QStringList{"Can't create user: A user name cannot contain an apostrophe ('). Try another user name"});
        QCOMPARE(Items(Named<QListWidget>(&manager, "userList")), QStringList{"OBrien"});
    }

    void addDialogRules()
    {
        AddUserDialog dialog;
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Add New User"));
        dialog.show();
        QVERIFY(!Named<QPushButton>(&dialog, "okButton")->isEnabled());
        QTest::keyClicks(Named<QLineEdit>(&dialog, "nameEdit"), "Dai");
        QVERIFY(Named<QPushButton>(&dialog, "okButton")->isEnabled());
        QTest::mouseClick(Named<QPushButton>(&dialog, "okButton"), Qt::LeftButton);
        QCOMPARE(dialog.result(), 1);
        QCOMPARE(dialog.Name(), QStringLiteral("Dai"));
    }

    void homePageShowsProgressPerCategory()
    {
        FileCharacterDatabase& db = static_cast<FileCharacterDatabase&>(GetDatabase());
        HomePage home(db, m_prompt);
        home.show();
        User user;
        user.SetName("Anna");
        const auto grade1 = db.LoadCategory(0)->Characters();
        for (int i = 0; i < 3; ++i)
            user.GetProgress(0).AddLearned(grade1[static_cast<std::size_t>(i)]);
        home.SetUser(&user);
        QCOMPARE(Named<QLabel>(&home, "userName")->text(), QStringLiteral("Anna"));
        QCOMPARE(Named<QTreeWidget>(&home, "categoryList")->topLevelItemCount(), int(db.CategoryCount()));
        QCOMPARE(Named<QTreeWidget>(&home, "categoryList")->topLevelItem(0)->text(0), QStringLiteral("Grade 1 (3 of %1)").arg(grade1.size()));
        QCOMPARE(Named<QTreeWidget>(&home, "categoryList")->topLevelItem(0)->data(0, Qt::UserRole + 1).toInt(), 1);
        QCOMPARE(Named<QTreeWidget>(&home, "categoryList")->topLevelItem(1)->text(0), QStringLiteral("Grade 2"));
        QCOMPARE(Named<QTreeWidget>(&home, "categoryList")->topLevelItem(1)->data(0, Qt::UserRole + 1).toInt(), 0);
        // Every category now has a record in memory.
        QCOMPARE(user.ProgressCount(), std::size_t(db.CategoryCount()));
        QVERIFY(!Named<QPushButton>(&home, "openButton")->isEnabled());
        QSignalSpy events(&home, &HomePage::pageEvent);
        const QRect second = Named<QTreeWidget>(&home, "categoryList")->visualItemRect(Named<QTreeWidget>(&home, "categoryList")->topLevelItem(1));
        QTest::mouseClick(Named<QTreeWidget>(&home, "categoryList")->viewport(), Qt::LeftButton, Qt::NoModifier, second.center());
        QVERIFY(Named<QPushButton>(&home, "openButton")->isEnabled());
        QCOMPARE(home.DefaultButton(), Named<QPushButton>(&home, "openButton"));
        QTest::mouseDClick(Named<QTreeWidget>(&home, "categoryList")->viewport(), Qt::LeftButton, Qt::NoModifier, second.center());
        QCOMPARE(events.count(), 1);
        QCOMPARE(home.ChosenCategory(), 1);
        // Progress changes show after a refresh of the selected item.
        user.GetProgress(1).AddLearned(db.LoadCategory(1)->CharacterAt(0));
        home.RefreshSelectedCategory();
        QCOMPARE(Named<QTreeWidget>(&home, "categoryList")->topLevelItem(1)->text(0),
            QStringLiteral("Grade 2 (1 of %1)").arg(db.LoadCategory(1)->CharacterCount()));
        // The learner closed: N/A, page disabled, items left as they were.
        home.SetUser(nullptr);
        QCOMPARE(Named<QLabel>(&home, "userName")->text(), QStringLiteral("N/A"));
        QVERIFY(!home.isEnabled());
        QCOMPARE(Named<QTreeWidget>(&home, "categoryList")->topLevelItemCount(), int(db.CategoryCount()));
    }

    void learnerWithoutProgressSeesBareNames()
    {
        FileCharacterDatabase& db = static_cast<FileCharacterDatabase&>(GetDatabase());
        HomePage home(db, m_prompt);
        User user;
        user.SetName("New");
        home.SetUser(&user);
        for (int i = 0; i < Named<QTreeWidget>(&home, "categoryList")->topLevelItemCount(); ++i) {
            QVERIFY(!Named<QTreeWidget>(&home, "categoryList")->topLevelItem(i)->text(0).contains('('));
            QCOMPARE(Named<QTreeWidget>(&home, "categoryList")->topLevelItem(i)->data(0, Qt::UserRole + 1).toInt(), 0);
        }
    }

private:
    void WriteConfig(const char* text)
    {
        ReleaseDataStores();
        std::ofstream("config.xml", std::ios::trunc) << text;
    }
    /// Answers the next Add dialogs with these names.
    void Type(std::vector<std::string> names)
    {
        auto queue = std::make_shared<std::vector<std::string>>(std::move(names));
        m_typing = std::make_unique<ModalAnswerer<AddUserDialog>>([queue](AddUserDialog& dialog) {
            if (queue->empty()) {
                QTest::mouseClick(Named<QPushButton>(&dialog, "cancelButton"), Qt::LeftButton);
                return;
            }
            Named<QLineEdit>(&dialog, "nameEdit")->setText(QString::fromStdString(queue->front()));
            queue->erase(queue->begin());
            QTest::mouseClick(Named<QPushButton>(&dialog, "okButton"), Qt::LeftButton);
        });
    }

    QString m_previous;
    std::unique_ptr<QTemporaryDir> m_dir;
    RecordingPrompt m_prompt;
    std::unique_ptr<ModalAnswerer<AddUserDialog>> m_typing;
};

QTEST_MAIN(ScreensTest)
#include "ScreensTest.moc"
