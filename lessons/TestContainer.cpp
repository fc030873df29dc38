#include "TestContainer.h"

#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"
#include "DrawingTestPage.h"
#include "Prompt.h"
#include "ReadingTestPage.h"
#include "ui_TestContainer.h"

TestContainer::TestContainer(CharacterDatabase& database, Prompt& prompt, SeedSource seeds, QWidget* parent)
    : Page(parent), m_ui(std::make_unique<Ui::TestContainer>()), m_database(database), m_prompt(prompt),
      m_seeds(std::move(seeds))
{
    m_ui->setupUi(this);
    m_reading = new ReadingTestPage(database, prompt, m_seeds, m_ui->questions);
    m_drawing = new DrawingTestPage(database, prompt, m_ui->questions);
    m_ui->questions->addWidget(new QWidget(m_ui->questions)); // shown while no question is asked
    m_ui->questions->addWidget(m_reading);
    m_ui->questions->addWidget(m_drawing);
    m_ui->questions->setCurrentIndex(0);
    for (QuestionPage* page : {static_cast<QuestionPage*>(m_reading), static_cast<QuestionPage*>(m_drawing)})
        connect(page, &QuestionPage::pageEvent, this, [this, page](quint16 code, quint16) { OnPageEvent(page, code); });
    connect(NextButton(), &QPushButton::clicked, this, &TestContainer::OnNext);
    connect(AbortButton(), &QPushButton::clicked, this, &TestContainer::Cancel);
    RefreshButtons();
}

TestContainer::~TestContainer() = default;

QPushButton* TestContainer::NextButton() const
{
    return m_ui->nextButton;
}
QPushButton* TestContainer::AbortButton() const
{
    return m_ui->abortButton;
}

QuestionPage* TestContainer::ShownPage() const
{
    QWidget* current = m_ui->questions->currentWidget();
    if (current == m_reading)
        return m_reading;
    if (current == m_drawing)
        return m_drawing;
    return nullptr;
}

void TestContainer::StartTest(const std::vector<std::uint16_t>& codes, bool askReadings)
{
    m_schedule.Start(codes, askReadings ? std::nullopt : std::optional<std::uint16_t>(Reading));
    AskQuestion();
    RefreshButtons();
}

void TestContainer::AskQuestion()
{
    const auto code = m_schedule.CurrentCode();
    if (!code) {
        m_reading->SetCharacter(nullptr);
        m_drawing->SetCharacter(nullptr);
        m_character.reset();
        m_ui->questions->setCurrentIndex(0);
        return;
    }
    try {
        m_character.reset();
        m_character = m_database.LoadCharacter(*code);
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        m_prompt.StoreError(this, DatabaseErrorTitle, e.what());
    }
    QuestionPage* page = m_schedule.CurrentPage() == Reading ? static_cast<QuestionPage*>(m_reading)
                                                             : static_cast<QuestionPage*>(m_drawing);
    // The page not asked lets go of the character record it was given before.
    QuestionPage* other
        = page == m_reading ? static_cast<QuestionPage*>(m_drawing) : static_cast<QuestionPage*>(m_reading);
    other->SetCharacter(nullptr);
    page->SetCharacter(m_character.get());
    m_ui->questions->setCurrentWidget(page);
}

void TestContainer::RefreshButtons()
{
    QuestionPage* shown = ShownPage();
    const bool ready = m_schedule.HasQuestion() && shown && shown->IsAnswered();
    NextButton()->setEnabled(ready);
    SetDefaultButton(ready ? NextButton() : AbortButton());
}

void TestContainer::OnPageEvent(QuestionPage* page, quint16 code)
{
    if (page != ShownPage())
        return;
    m_schedule.Answer(page == m_reading ? Reading : Drawing, code == QuestionPage::AnsweredCleanly);
    RefreshButtons();
}

void TestContainer::OnNext()
{
    if (!NextButton()->isEnabled())
        return;
    if (!m_schedule.Next()) {
        m_ui->questions->setCurrentIndex(0);
        RefreshButtons();
        emit pageEvent(Finished, 0);
        return;
    }
    AskQuestion();
    RefreshButtons();
}

void TestContainer::Cancel()
{
    emit pageEvent(Aborted, 0);
}
