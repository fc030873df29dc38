#include "ReadingTestPage.h"

#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"
#include "DisplayCanvas.h"
#include "FeedbackLine.h"
#include "LexiconAccess.h"
#include "FittedText.h"
#include "GlyphLoading.h"
#include "Page.h"
#include "Prompt.h"
#include "ui_ReadingTestPage.h"

namespace {
/// Lines a choice or a text may take before it is shortened; every row has room for them, so
/// nothing moves with the length of a reading.
constexpr int ChoiceLines = 2;
constexpr int TextLines = 2;
} // namespace

ReadingTestPage::ReadingTestPage(CharacterDatabase& database, Prompt& prompt, SeedSource seeds, QWidget* parent)
    : QuestionPage(parent), m_ui(std::make_unique<Ui::ReadingTestPage>()), m_database(database), m_prompt(prompt),
      m_seeds(std::move(seeds))
{
    m_ui->setupUi(this);
    Display()->MakeSquare();
    m_onButtons = {m_ui->on0, m_ui->on1, m_ui->on2, m_ui->on3, m_ui->on4};
    m_kunButtons = {m_ui->kun0, m_ui->kun1, m_ui->kun2, m_ui->kun3, m_ui->kun4};
    for (QLabel* label : {OnReadingLabel(), KunReadingLabel(), MeaningLabel()})
        MakeTextBox(label, TextLines);
    for (const auto* buttons : {&m_onButtons, &m_kunButtons})
        for (QRadioButton* button : *buttons)
            MakeTextBox(button, ChoiceLines);
    for (int i = 0; i < 5; ++i) {
        connect(m_onButtons[static_cast<std::size_t>(i)], &QRadioButton::clicked, this, [this, i] { Pick(true, i); });
        connect(m_kunButtons[static_cast<std::size_t>(i)], &QRadioButton::clicked, this, [this, i] { Pick(false, i); });
    }
    connect(Display(), &DisplayCanvas::clicked, this, [this] {
        if (m_glyph)
            Display()->StartAnimation(m_glyph->GetForm(0));
    });
}

ReadingTestPage::~ReadingTestPage() = default;

void ReadingTestPage::SetWordAid(LexiconAccess* lexicon)
{
    m_lexicon = lexicon;
    if (lexicon && !m_onWord) {
        // One line under each set of choices, its room kept while it is empty so that nothing
        // moves when a word appears.
        m_onWord = new FeedbackLine(m_ui->onGroup);
        m_onWord->setObjectName(QStringLiteral("onWord"));
        m_onWord->setAccessibleName(tr("A word with this ON reading"));
        m_ui->onChoices->addWidget(m_onWord);
        m_kunWord = new FeedbackLine(m_ui->kunGroup);
        m_kunWord->setObjectName(QStringLiteral("kunWord"));
        m_kunWord->setAccessibleName(tr("A word with this KUN reading"));
        m_ui->kunChoices->addWidget(m_kunWord);
    }
    for (FeedbackLine* line : {m_onWord, m_kunWord}) {
        if (line) {
            line->Clear();
            line->setVisible(lexicon != nullptr);
        }
    }
    // The page's size follows at once, so that whoever fits the window to it gets the new one.
    for (QWidget* group : {static_cast<QWidget*>(m_ui->onGroup), static_cast<QWidget*>(m_ui->kunGroup)}) {
        group->layout()->invalidate();
        group->updateGeometry();
    }
    m_ui->choiceRow->invalidate();
    layout()->invalidate();
}

void ReadingTestPage::ShowWord(bool on)
{
    FeedbackLine* line = on ? m_onWord : m_kunWord;
    if (!m_lexicon || !line || !m_character)
        return;
    const Lexicon* lexicon = LexiconOrReport(*m_lexicon, m_prompt, this);
    if (!lexicon)
        return;
    const std::optional<LexiconWord> word
        = lexicon->ReadingWord(m_character->Id(), on ? Lexicon::Reading::On : Lexicon::Reading::Kun);
    if (!word)
        return;
    auto text = [](std::string_view t) { return QString::fromUtf8(t.data(), static_cast<qsizetype>(t.size())); };
    line->Say(QStringLiteral("%1  %2 \u2014 %3").arg(text(word->writing), text(word->reading), text(word->meaning)));
}

QLabel* ReadingTestPage::OnReadingLabel() const
{
    return m_ui->onReading;
}
QLabel* ReadingTestPage::KunReadingLabel() const
{
    return m_ui->kunReading;
}
QLabel* ReadingTestPage::MeaningLabel() const
{
    return m_ui->meaning;
}
DisplayCanvas* ReadingTestPage::Display() const
{
    return m_ui->displayCanvas;
}

void ReadingTestPage::SetCharacter(const Character* character)
{
    m_character = character;
    for (FeedbackLine* line : {m_onWord, m_kunWord})
        if (line)
            line->Clear();
    m_glyph.reset();
    Display()->StopAnimation();
    if (character) {
        m_glyph = LoadGlyphOrReport(m_database, character->ElementId(), m_prompt, this);
        ShowFitted(OnReadingLabel(), QStringLiteral("?"), TextLines);
        ShowFitted(KunReadingLabel(), QStringLiteral("?"), TextLines);
        ShowFitted(MeaningLabel(), TextOrNotAvailable(character->Meaning()), TextLines);
        if (m_glyph)
            Display()->ShowGlyph(m_glyph->GetForm(0));
        else
            Display()->Wipe();
        m_random.Seed(m_seeds());
        try {
            m_choices = ReadingChoices::Build(m_database, *character, m_random);
        } catch (const ZavorenCommon::DatabaseLoadException& e) {
            m_choices = {};
            m_prompt.StoreError(this, DatabaseErrorTitle, e.what());
        }
    } else {
        m_choices = {};
    }
    auto text = [](const char* reading) { return std::string(reading ? reading : ""); };
    m_judge.Start(character ? text(character->OnReading()) : std::string(),
        character ? text(character->KunReading()) : std::string(), m_choices.on, m_choices.kun);
    for (int set = 0; set < 2; ++set) {
        const auto& buttons = set == 0 ? m_onButtons : m_kunButtons;
        const auto& texts = set == 0 ? m_choices.on : m_choices.kun;
        // Unchecking needs the group's exclusivity lifted for a moment.
        buttons[0]->setAutoExclusive(false);
        for (std::size_t i = 0; i < buttons.size(); ++i) {
            buttons[i]->setAutoExclusive(false);
            buttons[i]->setChecked(false);
            const bool has = i < texts.size();
            // A long reading takes a second line; only beyond it is it shortened, the tooltip
            // and the accessible name carrying the whole text.
            ShowFitted(buttons[i], has ? TextOrNotAvailable(texts[i].c_str()) : QString(), ChoiceLines);
            buttons[i]->setEnabled(has);
        }
        for (QRadioButton* b : buttons)
            b->setAutoExclusive(true);
    }
}

bool ReadingTestPage::IsAnswered() const
{
    return m_judge.IsAnswered();
}

void ReadingTestPage::Pick(bool on, int index)
{
    if (!m_character)
        return;
    const auto set = on ? ReadingJudge::Set::On : ReadingJudge::Set::Kun;
    if (m_judge.Pick(set, static_cast<std::size_t>(index)) != ReadingJudge::Outcome::Right)
        return;
    const char* reading = on ? m_character->OnReading() : m_character->KunReading();
    ShowFitted(on ? OnReadingLabel() : KunReadingLabel(), TextOrNotAvailable(reading), TextLines);
    const auto& buttons = on ? m_onButtons : m_kunButtons;
    for (int i = 0; i < 5; ++i)
        if (i != index)
            buttons[static_cast<std::size_t>(i)]->setEnabled(false);
    ShowWord(on);
    if (m_judge.IsAnswered())
        emit pageEvent(m_judge.IsPerfect() ? AnsweredCleanly : AnsweredWithMistakes, 0);
}
