#pragma once

#include "PracticeSheet.h"

#include <QDialog>

#include <memory>
#include <optional>
#include <vector>

class CharacterDatabase;
class LexiconAccess;
class Prompt;
class QCheckBox;
class QComboBox;
class QLabel;
class QPrinter;
class QSpinBox;
class User;

/// "Print practice sheet…": the characters' sheet with a live preview of its first page and the
/// learner's choices (paper, boxes per row, boxes to trace, stroke order, words), printed on
/// the system's printer or saved as a PDF. The choices are kept in the settings file.
class PracticeSheetDialog : public QDialog {
    Q_OBJECT
public:
    /// A sheet of `characters`; their words are offered when `wordsOffered`.
    PracticeSheetDialog(std::vector<SheetCharacter> characters, bool wordsOffered, Prompt& prompt,
        QWidget* parent = nullptr);
    ~PracticeSheetDialog() override;

    /// Reads the characters of `codes` and runs the dialog over `parent`; tells the learner when
    /// there is nothing to print or the database cannot be read.
    static void Open(CharacterDatabase& database, LexiconAccess* words, Prompt& prompt,
        const std::vector<std::uint16_t>& codes, QWidget* parent);

    /// The characters of the next lesson of category `categoryId` for `learner` (none without
    /// either, or when the category cannot be read).
    static std::vector<std::uint16_t> NextLesson(
        CharacterDatabase& database, const User* learner, std::optional<std::uint16_t> categoryId);

    const PracticeSheet& Sheet() const { return *m_sheet; }
    /// Draws every page of the sheet on `printer` (set up with the sheet's paper).
    void PrintTo(QPrinter& printer) const;

private:
    void Rebuild();
    void OnPrint();
    void OnSavePdf();

    std::vector<SheetCharacter> m_characters;
    bool m_wordsOffered;
    Prompt& m_prompt;
    std::unique_ptr<PracticeSheet> m_sheet;
    QLabel* m_preview = nullptr;
    QLabel* m_pages = nullptr;
    QComboBox* m_paper = nullptr;
    QSpinBox* m_boxes = nullptr;
    QSpinBox* m_trace = nullptr;
    QCheckBox* m_order = nullptr;
    QCheckBox* m_words = nullptr;
};
