#pragma once

#include <QDialog>

#include <functional>
#include <memory>
#include <string>

class AddUserDialog;
class Prompt;
class ConfigStore;
class QListWidget;
class QPushButton;
namespace Ui {
class UserManagerDialog;
}

/// Lists the learners and offers Open, Add, Delete and Close. Ends with 1 when the learner
/// named by SelectedUserName() is to be opened, 2 or 8 when closed.
class UserManagerDialog : public QDialog {
    Q_OBJECT
public:
    enum Result { Open = 1, Cancelled = 2, Closed = 8 };

    /// Lists and changes the learners of `store`; messages go through `prompt`.
    UserManagerDialog(ConfigStore& store, Prompt& prompt, QWidget* parent = nullptr);
    ~UserManagerDialog() override;

    /// The selected learner's name; empty when none is selected.
    const std::string& SelectedUserName() const { return m_selectedUserName; }
    /// The button that Enter presses: Open with a selection, otherwise Add.
    QPushButton* DefaultButton() const;

signals:
    /// The current learner was deleted; whoever shows the learner must drop it.
    void currentUserDeleted();
    /// Saving the learner file failed while adding or deleting; the message is the store's.
    void storeFailed(const QString& message);

protected:
    void showEvent(QShowEvent* event) override;
    void reject() override;

private:
    QListWidget* UserList() const;
    QPushButton* OpenButton() const;
    QPushButton* AddButton() const;
    QPushButton* DeleteButton() const;
    QPushButton* CloseButton() const;
    void Fill();
    void SelectRow(int row);
    void UpdateButtons();
    void OnAdd();
    void OnDelete();

    std::unique_ptr<Ui::UserManagerDialog> m_ui;
    ConfigStore& m_store;
    Prompt& m_prompt;
    std::string m_selectedUserName;
};
