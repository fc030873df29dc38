#pragma once

#include <QDialog>

#include <memory>

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
    QLineEdit* NameEdit() const;
    QPushButton* OkButton() const;
    QPushButton* CancelButton() const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void UpdateOk();

    std::unique_ptr<Ui::AddUserDialog> m_ui;
    QString m_name;
};
