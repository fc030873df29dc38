#include "UserManagerDialog.h"

#include "AddUserDialog.h"
#include "ConfigException.h"
#include "ConfigStore.h"
#include "Prompt.h"
#include "TextRules.h"
#include "ui_UserManagerDialog.h"

#include <QTimer>

UserManagerDialog::UserManagerDialog(ConfigStore& store, Prompt& prompt, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::UserManagerDialog>()), m_store(store), m_prompt(prompt)
{
    m_ui->setupUi(this);
    UserList()->setAccessibleName(tr("Users"));
    connect(UserList(), &QListWidget::itemSelectionChanged, this, [this] {
        const auto selected = UserList()->selectedItems();
        m_selectedUserName = selected.isEmpty() ? std::string() : selected.front()->text().toStdString();
        UpdateButtons();
    });
    connect(UserList(), &QListWidget::itemDoubleClicked, this, [this] {
        if (!UserList()->selectedItems().isEmpty())
            done(Open);
    });
    connect(OpenButton(), &QPushButton::clicked, this, [this] { done(Open); });
    connect(CloseButton(), &QPushButton::clicked, this, [this] { done(Closed); });
    connect(AddButton(), &QPushButton::clicked, this, &UserManagerDialog::OnAdd);
    connect(DeleteButton(), &QPushButton::clicked, this, &UserManagerDialog::OnDelete);
    Fill();
}

UserManagerDialog::~UserManagerDialog() = default;

QListWidget* UserManagerDialog::UserList() const
{
    return m_ui->userList;
}
QPushButton* UserManagerDialog::OpenButton() const
{
    return m_ui->openButton;
}
QPushButton* UserManagerDialog::AddButton() const
{
    return m_ui->addButton;
}
QPushButton* UserManagerDialog::DeleteButton() const
{
    return m_ui->deleteButton;
}
QPushButton* UserManagerDialog::CloseButton() const
{
    return m_ui->closeButton;
}

QPushButton* UserManagerDialog::DefaultButton() const
{
    return OpenButton()->isDefault() ? OpenButton() : AddButton();
}

void UserManagerDialog::Fill()
{
    UserList()->clear();
    const QIcon icon(QStringLiteral(":/images/user.png"));
    for (std::uint16_t i = 0; i < m_store.UserCount(); ++i) {
        const std::string& name = m_store.UserName(i);
        UserList()->addItem(new QListWidgetItem(icon, QString::fromStdString(name)));
        if (EqualsIgnoringAsciiCase(name, m_store.CurrentUserName()))
            SelectRow(i);
    }
}

void UserManagerDialog::SelectRow(int row)
{
    if (row < 0 || row >= UserList()->count()) {
        UserList()->clearSelection();
        return;
    }
    UserList()->setCurrentRow(row);
    UserList()->item(row)->setSelected(true);
    UserList()->scrollToItem(UserList()->item(row));
}

void UserManagerDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    UserList()->setFocus();
    if (UserList()->count() > 0 && UserList()->selectedItems().isEmpty())
        SelectRow(0);
    UpdateButtons();
}

void UserManagerDialog::UpdateButtons()
{
    const bool selected = !UserList()->selectedItems().isEmpty();
    OpenButton()->setEnabled(selected);
    DeleteButton()->setEnabled(selected);
    OpenButton()->setDefault(selected);
    AddButton()->setDefault(!selected);
}

void UserManagerDialog::reject()
{
    done(Cancelled);
}

void UserManagerDialog::OnAdd()
{
    std::string name;
    try {
        name = AddLearnerByName(m_store, m_prompt, this);
    } catch (const ZavorenCommon::ConfigException& e) {
        emit storeFailed(QString::fromUtf8(e.what()));
        return;
    }
    if (name.empty())
        return;
    UserList()->addItem(new QListWidgetItem(QIcon(QStringLiteral(":/images/user.png")), QString::fromStdString(name)));
    SelectRow(UserList()->count() - 1);
    UserList()->setFocus();
}

void UserManagerDialog::OnDelete()
{
    const bool current = EqualsIgnoringAsciiCase(m_selectedUserName, m_store.CurrentUserName());
    const auto answer = m_prompt.Ask(this, QMessageBox::Question, tr("Delete User"),
        current ? tr("Delete current user?") : tr("Delete user?"),
        QMessageBox::Yes | QMessageBox::No);
    if (answer != QMessageBox::Yes)
        return;
    const auto selected = UserList()->selectedItems();
    if (selected.isEmpty())
        return;
    int row = UserList()->row(selected.front());
    bool deleted = false;
    try {
        deleted = m_store.DeleteUser(m_selectedUserName);
    } catch (const ZavorenCommon::ConfigException& e) {
        emit storeFailed(QString::fromUtf8(e.what()));
        return;
    }
    if (deleted) {
        delete UserList()->takeItem(row);
        if (row >= UserList()->count())
            row = UserList()->count() - 1;
    }
    SelectRow(row);
    UserList()->setFocus();
    UpdateButtons();
    if (current)
        emit currentUserDeleted();
}
