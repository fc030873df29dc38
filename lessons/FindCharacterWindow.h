#pragma once

#include "InkRecognizer.h"
#include "LexiconAccess.h"
#include "StrokePath.h"
#include "TextSearch.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

class CharacterDatabase;
class InputCanvas;
class LearnerSession;
class Prompt;
class QLabel;
class QLineEdit;
class QThread;
class QTreeWidget;

/// "Find a character…": a window beside the main window with a search field and a writing
/// canvas side by side, and a list of the characters found, each with its glyph, readings,
/// meaning and category. Typing lists every match at once; writing lists, after each stroke,
/// the ten characters most like the ink. Enter or a double click opens the character's Kanji
/// Info, which can show it in its category. The handwriting model is read in the background
/// the first time the window opens; without it, the database alone ranks the ink.
class FindCharacterWindow : public QWidget {
    Q_OBJECT
public:
    /// Reads the model at `modelPath` in the background.
    FindCharacterWindow(CharacterDatabase& database, Prompt& prompt, LearnerSession& session,
        std::string modelPath = InkRecognizer::DefaultModel, QWidget* parent = nullptr);
    ~FindCharacterWindow() override;

    /// Kanji Info shows the words and parts of `context` and the other stroke orders.
    void SetWords(WordContext context) { m_words = std::move(context); }
    void SetOtherOrders(bool on) { m_otherOrders = on; }

    /// The characters listed, best first.
    std::vector<std::uint16_t> Results() const;
    /// Whether the handwriting model is read (false while it is read, or without it).
    bool ModelReady() const;
    /// Waits (processing events) until the model has been read or found missing.
    void WaitForModel();

signals:
    /// The learner asked to see a character in its category.
    void showInCategory(std::uint16_t categoryId, std::uint16_t code);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void OnText(const QString& text);
    void OnStroke();
    void OnClear();
    void OnUndo();
    void Recognize();
    void Show(const std::vector<std::uint16_t>& ids);
    void OpenInfo();
    void ModelRead(std::shared_ptr<HandwritingModel> model, const QString& error);
    std::optional<std::uint16_t> CategoryOf(std::uint16_t id);
    QIcon GlyphIcon(std::uint16_t id);

    CharacterDatabase& m_database;
    Prompt& m_prompt;
    LearnerSession& m_session;
    WordContext m_words;
    bool m_otherOrders = false;
    std::unique_ptr<TextSearch> m_text;
    std::unique_ptr<InkRecognizer> m_ink;
    std::vector<StrokePath> m_strokes;
    bool m_modelPending = true;
    QThread* m_reader = nullptr; ///< reads the model
    std::vector<std::uint16_t> m_categoryOf; ///< each id's first category, or 0xFFFF
    std::vector<QString> m_categoryNames;

    QLineEdit* m_field = nullptr;
    InputCanvas* m_canvas = nullptr;
    QLabel* m_modelNote = nullptr;
    QTreeWidget* m_results = nullptr;
};
