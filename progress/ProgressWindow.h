#pragma once

#include "LearnerStatistics.h"
#include "ReviewSchedule.h"

#include <optional>

#include <QWidget>

#include <memory>

class CharacterDatabase;
class LexiconAccess;
class Prompt;
class QBarSet;
class QChartView;
class QComboBox;
class QLineSeries;
class QListWidget;
class QListWidgetItem;
class QTableWidget;
class QTabWidget;
class User;

/// A learner's progress: characters learned over time (overall or in one category), tests per
/// week, each category's learned / untested / total, and the characters that gave the most
/// trouble, drawn as their glyphs; a double click opens one in Kanji Info. Follows the palette.
class ProgressWindow : public QWidget {
    Q_OBJECT
public:
    /// Shows `learner`, whose whole history is `history`, up to the date of `now`, an event time;
    /// with `reviews` (the aid on), a Reviews tab and each character's predicted recall.
    ProgressWindow(CharacterDatabase& database, Prompt& prompt, const User& learner, std::vector<LearnerEvent> history,
        const std::string& now, std::optional<ReviewSchedule> reviews = std::nullopt, QWidget* parent = nullptr);
    ~ProgressWindow() override;
    /// Kanji Info shows words and parts from `words` (which must outlive the window); null: none.
    void SetWords(LexiconAccess* words) { m_words = words; }


protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QWidget* BuildLearnedTab();
    QWidget* BuildTestsTab();
    QWidget* BuildCategoriesTab();
    QWidget* BuildTroubleTab();
    QWidget* BuildReviewsTab();
    /// Opens Kanji Info on a character of the category, with its next review when it has one.
    void ShowKanjiInfo(std::uint16_t categoryId, std::uint16_t id);
    void ShowLearned(int pickerIndex);
    void DrawTroubleGlyphs();
    void OpenKanjiInfo(QListWidgetItem* item);
    void FollowPalette();

    CharacterDatabase& m_database;
    Prompt& m_prompt;
    const User& m_learner;
    std::vector<QString> m_categoryNames;
    std::unique_ptr<LearnerStatistics> m_stats;
    QTabWidget* m_tabs = nullptr;
    QComboBox* m_picker = nullptr;
    QChartView* m_learnedView = nullptr;
    QLineSeries* m_learned = nullptr;
    QChartView* m_testsView = nullptr;
    QBarSet* m_passed = nullptr;
    QBarSet* m_failed = nullptr;
    QTableWidget* m_table = nullptr;
    QListWidget* m_trouble = nullptr;
    std::optional<ReviewSchedule> m_reviews;
    LexiconAccess* m_words = nullptr;
    QTableWidget* m_reviewTable = nullptr;
    QChartView* m_reviewsView = nullptr;
    bool m_placed = false;
};
