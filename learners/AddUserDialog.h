#pragma once

#include <QDialog>

#include <memory>

class ConfigStore;
class Prompt;
class QLineEdit;
class QPushButton;
namespace Ui {
class AddUserDialog;
}

/// Asks for a new learner's name. The name typed is remembered for as long as the dialog
/// object lives, so that showing it again offers the rejected name, all selected.
class AddUserDialog : public QDialog {
    Q_OBJECT
public:
    explicit AddUserDialog(QWidget* parent = nullptr);
    ~AddUserDialog() override;

    /// The name entered with OK (as typed: no trimming, no check of characters).
    const QString& Name() const { return m_name; }
    /// The name offered when the dialog shows, all selected.
    void Offer(const QString& name) { m_name = name; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    QLineEdit* NameEdit() const;
    QPushButton* OkButton() const;
    QPushButton* CancelButton() const;
    void UpdateOk();

    std::unique_ptr<Ui::AddUserDialog> m_ui;
    QString m_name;
};

/// Asks for a new learner's name until the store adds the learner: a name holding an apostrophe
/// or one already taken is refused with a message and asked again, starting from `offered`.
/// Returns the name added, or an empty one when the learner cancels. The store's
/// ZavorenCommon::ConfigException goes to the caller.
std::string AddLearnerByName(ConfigStore& store, Prompt& prompt, QWidget* parent, const QString& offered = QString());
