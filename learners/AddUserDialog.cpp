#include "AddUserDialog.h"

#include "ConfigStore.h"
#include "Prompt.h"

#include "ui_AddUserDialog.h"

AddUserDialog::AddUserDialog(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::AddUserDialog>())
{
    m_ui->setupUi(this);
    connect(NameEdit(), &QLineEdit::textChanged, this, &AddUserDialog::UpdateOk);
    connect(OkButton(), &QPushButton::clicked, this, [this] {
        if (NameEdit()->text().isEmpty())
            return;
        m_name = NameEdit()->text();
        done(1);
    });
    connect(CancelButton(), &QPushButton::clicked, this, [this] { done(2); });
}

AddUserDialog::~AddUserDialog() = default;

QLineEdit* AddUserDialog::NameEdit() const
{
    return m_ui->nameEdit;
}
QPushButton* AddUserDialog::OkButton() const
{
    return m_ui->okButton;
}
QPushButton* AddUserDialog::CancelButton() const
{
    return m_ui->cancelButton;
}

void AddUserDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    NameEdit()->setText(m_name);
    NameEdit()->setFocus();
    NameEdit()->selectAll();
    UpdateOk();
}

void AddUserDialog::UpdateOk()
{
    OkButton()->setEnabled(!NameEdit()->text().isEmpty());
}

std::string AddLearnerByName(ConfigStore& store, Prompt& prompt, QWidget* parent, const QString& offered)
{
    AddUserDialog dialog(parent);
    dialog.Offer(offered);
    for (;;) {
        if (dialog.exec() != 1)
            return {};
        if (dialog.Name().isEmpty())
            continue;
        const std::string name = dialog.Name().toStdString();
        if (name.find('\'') != std::string::npos) {
            // The learner file could never find such a name again: say why it is refused.
            prompt.Ask(parent, QMessageBox::NoIcon, QCoreApplication::translate("AddUserDialog", "Can't create user"),
                QCoreApplication::translate("AddUserDialog", "A user name cannot contain an apostrophe ('). Try another user name"));
            continue;
        }
        if (!store.AddUser(name)) {
            prompt.Ask(parent, QMessageBox::NoIcon, QCoreApplication::translate("AddUserDialog", "Can't create user"),
                QCoreApplication::translate("AddUserDialog", "User already exists. Try another user name"));
            continue;
        }
        return name;
    }
}
