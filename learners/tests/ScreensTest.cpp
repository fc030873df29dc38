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
        QCOMPARE(manager.UserList()->count(), 0);
        QVERIFY(!manager.OpenButton()->isEnabled());
        QVERIFY(!manager.DeleteButton()->isEnabled());
        QCOMPARE(manager.DefaultButton(), manager.AddButton());
        QVERIFY(manager.SelectedUserName().empty());
    }

    void listShowsLearnersInFileOrderWithTheCurrentSelected()
    {
        WriteConfig(
            R"(<Z><Users currentUser="ben"><User name="Chiyo"/><User name="Ben"/><User name="Anna"/></Users></Z>)");
        UserManagerDialog manager(GetConfigStore(), m_prompt);
        manager.show();
        QCOMPARE(Items(manager.UserList()), (QStringList{"Chiyo", "Ben", "Anna"}));
        QCOMPARE(Selected(manager.UserList()), QStringLiteral("Ben"));
        QCOMPARE(manager.SelectedUserName(), std::string("Ben"));
        QVERIFY(manager.OpenButton()->isEnabled());
        QCOMPARE(manager.DefaultButton(), manager.OpenButton());
        QVERIFY(!manager.UserList()->item(0)->icon().isNull());
        // Double click opens.
        QTimer::singleShot(0, &manager, [&] {
            const QRect r = manager.UserList()->visualItemRect(manager.UserList()->item(2));
            QTest::mouseClick(manager.UserList()->viewport(), Qt::LeftButton, Qt::NoModifier, r.center());
            QTest::mouseDClick(manager.UserList()->viewport(), Qt::LeftButton, Qt::NoModifier, r.center());
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
        QTest::mouseClick(manager.AddButton(), Qt::LeftButton);
        QCOMPARE(Items(manager.UserList()), (QStringList{"Anna", "anna"}));
        QCOMPARE(Selected(manager.UserList()), QStringLiteral("anna"));
        QVERIFY(m_prompt.messages.isEmpty());
        QCOMPARE(GetConfigStore().CurrentUserName(), std::string("Anna")); // adding does not make current
        QSignalSpy deleted(&manager, &UserManagerDialog::currentUserDeleted);
        QTest::mouseClick(manager.DeleteButton(), Qt::LeftButton);
        QCOMPARE(m_prompt.messages, QStringList{"Delete User: Delete current user?"});
        QCOMPARE(Items(manager.UserList()), QStringList{"Anna"});
        QCOMPARE(GetConfigStore().CurrentUserName(), std::string());
        QCOMPARE(deleted.count(), 1);
        // Another learner: the plain question, no notice.
        m_prompt.messages.clear();
        Type({"Ben"});
        QTest::mouseClick(manager.AddButton(), Qt::LeftButton);
        QTest::mouseClick(manager.DeleteButton(), Qt::LeftButton);
        QCOMPARE(m_prompt.messages, QStringList{"Delete User: Delete user?"});
        QCOMPARE(deleted.count(), 1);
        // Answering No keeps the learner.
        m_prompt.answer = QMessageBox::No;
        QTest::mouseClick(manager.DeleteButton(), Qt::LeftButton);
        QCOMPARE(Items(manager.UserList()), QStringList{"Anna"});
    }

    void deletingTheLastOrOnlyItem()
    {
        WriteConfig(R"(<Z><Users><User name="A"/><User name="B"/><User name="C"/></Users></Z>)");
        UserManagerDialog manager(GetConfigStore(), m_prompt);
        manager.show();
        manager.UserList()->setCurrentRow(2);
        QTest::mouseClick(manager.DeleteButton(), Qt::LeftButton);
        QCOMPARE(Items(manager.UserList()), (QStringList{"A", "B"}));
        QCOMPARE(Selected(manager.UserList()), QStringLiteral("B"));
        manager.UserList()->setCurrentRow(0);
        QTest::mouseClick(manager.DeleteButton(), Qt::LeftButton);
        QCOMPARE(Selected(manager.UserList()), QStringLiteral("B"));
        QTest::mouseClick(manager.DeleteButton(), Qt::LeftButton);
        QCOMPARE(manager.UserList()->count(), 0);
        QVERIFY(manager.UserList()->selectedItems().isEmpty());
        QVERIFY(!manager.DeleteButton()->isEnabled());
        QCOMPARE(manager.DefaultButton(), manager.AddButton());
    }

    void blankNamesEmptyNamesAndRejectedNames()
    {
        WriteConfig(R"(<Z><Users><User name="Anna"/></Users></Z>)");
        UserManagerDialog manager(GetConfigStore(), m_prompt);
        manager.show();
        // Only blanks: accepted as typed.
        Type({"   "});
        QTest::mouseClick(manager.AddButton(), Qt::LeftButton);
        QCOMPARE(Items(manager.UserList()), (QStringList{"Anna", "   "}));
        // A taken name: the message, then the dialog again with the name selected; Cancel ends.
        QStringList seenAgain;
        int shown = 0;
        m_typing = std::make_unique<ModalAnswerer<AddUserDialog>>([&](AddUserDialog& dialog) {
            ++shown;
            if (shown == 1) {
                QVERIFY(!dialog.OkButton()->isEnabled()); // empty: OK disabled
                dialog.NameEdit()->setText(QStringLiteral("Anna"));
                QVERIFY(dialog.OkButton()->isEnabled());
                QTest::mouseClick(dialog.OkButton(), Qt::LeftButton);
            } else {
                seenAgain << dialog.NameEdit()->text() << dialog.NameEdit()->selectedText();
                QTest::mouseClick(dialog.CancelButton(), Qt::LeftButton);
            }
        });
        QTest::mouseClick(manager.AddButton(), Qt::LeftButton);
        QCOMPARE(shown, 2);
        QCOMPARE(m_prompt.messages, QStringList{"Can't create user: User already exists. Try another user name"});
        QCOMPARE(seenAgain, (QStringList{"Anna", "Anna"}));
        QCOMPARE(Items(manager.UserList()), (QStringList{"Anna", "   "}));
    }

    void apostropheNamesAreRefusedWithTheReason()
    {
        UserManagerDialog manager(GetConfigStore(), m_prompt);
        manager.show();
        Type({"O'Brien", "OBrien"});
        QTest::mouseClick(manager.AddButton(), Qt::LeftButton);
        QCOMPARE(m_prompt.messages,
            QStringList{"Can't create user: A user name cannot contain an apostrophe ('). Try another user name"});
        QCOMPARE(Items(manager.UserList()), QStringList{"OBrien"});
    }

    void addDialogRules()
    {
        AddUserDialog dialog;
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Add New User"));
        dialog.show();
        QVERIFY(!dialog.OkButton()->isEnabled());
        QTest::keyClicks(dialog.NameEdit(), "Dai");
        QVERIFY(dialog.OkButton()->isEnabled());
        QTest::mouseClick(dialog.OkButton(), Qt::LeftButton);
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
        QCOMPARE(home.UserNameLabel()->text(), QStringLiteral("Anna"));
        QCOMPARE(home.CategoryList()->topLevelItemCount(), int(db.CategoryCount()));
        QCOMPARE(home.CategoryList()->topLevelItem(0)->text(0), QStringLiteral("Grade 1 (3 of %1)").arg(grade1.size()));
        QCOMPARE(home.CategoryList()->topLevelItem(0)->data(0, Qt::UserRole + 1).toInt(), 1);
        QCOMPARE(home.CategoryList()->topLevelItem(1)->text(0), QStringLiteral("Grade 2"));
        QCOMPARE(home.CategoryList()->topLevelItem(1)->data(0, Qt::UserRole + 1).toInt(), 0);
        // Every category now has a record in memory.
        QCOMPARE(user.ProgressCount(), std::size_t(db.CategoryCount()));
        QVERIFY(!home.OpenButton()->isEnabled());
        QSignalSpy events(&home, &HomePage::pageEvent);
        const QRect second = home.CategoryList()->visualItemRect(home.CategoryList()->topLevelItem(1));
        QTest::mouseClick(home.CategoryList()->viewport(), Qt::LeftButton, Qt::NoModifier, second.center());
        QVERIFY(home.OpenButton()->isEnabled());
        QCOMPARE(home.DefaultButton(), home.OpenButton());
        QTest::mouseDClick(home.CategoryList()->viewport(), Qt::LeftButton, Qt::NoModifier, second.center());
        QCOMPARE(events.count(), 1);
        QCOMPARE(home.ChosenCategory(), 1);
        // Progress changes show after a refresh of the selected item.
        user.GetProgress(1).AddLearned(db.LoadCategory(1)->CharacterAt(0));
        home.RefreshSelectedCategory();
        QCOMPARE(home.CategoryList()->topLevelItem(1)->text(0),
            QStringLiteral("Grade 2 (1 of %1)").arg(db.LoadCategory(1)->CharacterCount()));
        // The learner closed: N/A, page disabled, items left as they were.
        home.SetUser(nullptr);
        QCOMPARE(home.UserNameLabel()->text(), QStringLiteral("N/A"));
        QVERIFY(!home.isEnabled());
        QCOMPARE(home.CategoryList()->topLevelItemCount(), int(db.CategoryCount()));
    }

    void learnerWithoutProgressSeesBareNames()
    {
        FileCharacterDatabase& db = static_cast<FileCharacterDatabase&>(GetDatabase());
        HomePage home(db, m_prompt);
        User user;
        user.SetName("New");
        home.SetUser(&user);
        for (int i = 0; i < home.CategoryList()->topLevelItemCount(); ++i) {
            QVERIFY(!home.CategoryList()->topLevelItem(i)->text(0).contains('('));
            QCOMPARE(home.CategoryList()->topLevelItem(i)->data(0, Qt::UserRole + 1).toInt(), 0);
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
                QTest::mouseClick(dialog.CancelButton(), Qt::LeftButton);
                return;
            }
            dialog.NameEdit()->setText(QString::fromStdString(queue->front()));
            queue->erase(queue->begin());
            QTest::mouseClick(dialog.OkButton(), Qt::LeftButton);
        });
    }

    QString m_previous;
    std::unique_ptr<QTemporaryDir> m_dir;
    RecordingPrompt m_prompt;
    std::unique_ptr<ModalAnswerer<AddUserDialog>> m_typing;
};

QTEST_MAIN(ScreensTest)
#include "ScreensTest.moc"
