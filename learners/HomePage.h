#pragma once

#include "ReviewSchedule.h"

#include <optional>

#include <QIcon>

#include "Page.h"

#include <memory>

class CharacterDatabase;
class LearnerSession;
class Prompt;
class QTreeWidget;
class QTreeWidgetItem;
class QLabel;
class User;
namespace Ui {
class HomePage;
}

/// The first page: the open learner's name and every category of the database with the
/// learner's progress in it. Event 0: open the selected category; 1: review what is due.
class HomePage : public Page {
    Q_OBJECT
public:
    enum Event : quint16 { OpenCategory = 0, Review = 1 };

    HomePage(CharacterDatabase& database, Prompt& prompt, QWidget* parent = nullptr);
    /// The page of the learner open in `session`, following it: another learner shows at once,
    /// changed progress and reviews when the page is next shown (at once when it is shown).
    HomePage(CharacterDatabase& database, Prompt& prompt, LearnerSession& session, QWidget* parent = nullptr);
    ~HomePage() override;

    /// The learner whose progress is shown (not owned), or null when none is open.
    void SetUser(User* user);
    /// Brings the selected category's text and picture up to date.
    void RefreshSelectedCategory();
    /// What is due for review, shown with each category and in all; none (the aid off): the
    /// page as it always was.
    void SetReviews(std::optional<ReviewSchedule> reviews);
    /// The category selected in the list, if any.
    std::optional<std::uint16_t> SelectedCategory() const;
    /// The category chosen by the last Open.
    std::uint16_t ChosenCategory() const { return m_chosenCategory; }

    /// The text shown for a category: its name, and " (learned of total)" once one is learned,
    /// " (learned of total, due due)" when some of them are due for review.
    static QString CategoryText(const char* name, std::size_t learned, std::size_t total, int due = 0);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QLabel* UserNameLabel() const;
    QTreeWidget* CategoryList() const;
    QPushButton* OpenButton() const;
    void FillItem(QTreeWidgetItem* item, std::uint16_t categoryId);
    void UpdateButtons();
    void ShowDueTotal();
    void OnOpen();
    /// Reads the counts and due reviews again from the session.
    void RefreshFromSession();

    std::unique_ptr<Ui::HomePage> m_ui;
    CharacterDatabase& m_database;
    Prompt& m_prompt;
    User* m_user = nullptr;
    std::uint16_t m_chosenCategory = 0;
    QIcon m_progressIcon;
    QIcon m_newIcon;
    std::optional<ReviewSchedule> m_reviews;
    QLabel* m_dueTotal = nullptr;
    QPushButton* m_reviewButton = nullptr;
    LearnerSession* m_session = nullptr;
    bool m_stale = false; ///< the session's progress changed while the page was hidden
};
