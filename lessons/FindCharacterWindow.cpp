#include "FindCharacterWindow.h"

#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"
#include "GlyphLoading.h"
#include "GlyphRendering.h"
#include "InputCanvas.h"
#include "KanjiInfoDialog.h"
#include "LearnerSession.h"
#include "Lexicon.h"
#include "Prompt.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <QThread>

namespace {
constexpr int CanvasSide = 220;
constexpr std::size_t InkResults = 10;
} // namespace

FindCharacterWindow::FindCharacterWindow(CharacterDatabase& database, Prompt& prompt, LearnerSession& session,
    std::string modelPath, QWidget* parent)
    : QWidget(parent, Qt::Window), m_database(database), m_prompt(prompt), m_session(session)
{
    setWindowTitle(tr("Find a character"));
    setAttribute(Qt::WA_DeleteOnClose, false);
    auto* column = new QVBoxLayout(this);
    auto* row = new QHBoxLayout;
    column->addLayout(row);
    // Left: the search field; right: the writing canvas with Clear and Undo.
    auto* typing = new QVBoxLayout;
    auto* label = new QLabel(tr("&Type a character, a reading in kana or an English word:"), this);
    label->setWordWrap(true);
    m_field = new QLineEdit(this);
    m_field->setObjectName(QStringLiteral("searchField"));
    m_field->setAccessibleName(tr("Search"));
    m_field->setClearButtonEnabled(true);
    label->setBuddy(m_field);
    typing->addWidget(label);
    typing->addWidget(m_field);
    typing->addStretch(1);
    row->addLayout(typing, 1);
    auto* writing = new QVBoxLayout;
    auto* writeLabel = new QLabel(tr("Or write it:"), this);
    m_canvas = new InputCanvas(this);
    m_canvas->setObjectName(QStringLiteral("inputCanvas"));
    m_canvas->setAccessibleName(tr("Write the character here"));
    m_canvas->setFixedSize(CanvasSide, CanvasSide);
    m_canvas->SetGuideLines(true);
    writing->addWidget(writeLabel);
    writing->addWidget(m_canvas);
    m_modelNote = new QLabel(tr("Reading the handwriting model…"), this);
    m_modelNote->setObjectName(QStringLiteral("modelNote"));
    m_modelNote->setWordWrap(true);
    m_modelNote->setMaximumWidth(CanvasSide);
    writing->addWidget(m_modelNote);
    auto* buttons = new QHBoxLayout;
    auto* clear = new QPushButton(tr("&Clear"), this);
    clear->setObjectName(QStringLiteral("clearButton"));
    auto* undo = new QPushButton(tr("&Undo"), this);
    undo->setObjectName(QStringLiteral("undoButton"));
    buttons->addWidget(clear);
    buttons->addWidget(undo);
    writing->addLayout(buttons);
    row->addLayout(writing);
    m_results = new QTreeWidget(this);
    m_results->setObjectName(QStringLiteral("results"));
    m_results->setAccessibleName(tr("Characters found"));
    m_results->setRootIsDecorated(false);
    m_results->setHeaderLabels({tr("Character"), tr("Readings"), tr("Meaning"), tr("Category")});
    m_results->setIconSize(QSize(40, 40));
    m_results->setMinimumHeight(240);
    // The readings have room for a few of them, the meaning the rest; a long text is elided
    // (the whole of it is in Kanji Info).
    m_results->header()->setStretchLastSection(false);
    m_results->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_results->header()->setSectionResizeMode(1, QHeaderView::Interactive);
    m_results->header()->setSectionResizeMode(2, QHeaderView::Stretch);
    m_results->header()->setSectionResizeMode(3, QHeaderView::ResizeToContents);
    m_results->header()->resizeSection(1, 220);
    column->addWidget(m_results, 1);
    resize(640, 560);

    connect(m_field, &QLineEdit::textChanged, this, &FindCharacterWindow::OnText);
    connect(m_canvas, &InputCanvas::strokeEnded, this, &FindCharacterWindow::OnStroke);
    connect(clear, &QPushButton::clicked, this, &FindCharacterWindow::OnClear);
    connect(undo, &QPushButton::clicked, this, &FindCharacterWindow::OnUndo);
    connect(m_results, &QTreeWidget::itemActivated, this, &FindCharacterWindow::OpenInfo);

    // What the search reads from the database, once; the model on a thread of its own.
    const Lexicon* lexicon = LexiconOrReport(session.Lexicon(), prompt, this);
    try {
        m_text = std::make_unique<TextSearch>(database, lexicon);
        if (lexicon)
            m_ink = std::make_unique<InkRecognizer>(database, *lexicon);
        m_categoryOf.assign(database.CharacterCount(), 0xFFFF);
        for (std::uint16_t c = 0; c < database.CategoryCount(); ++c) {
            const auto category = database.LoadCategory(c);
            m_categoryNames.push_back(QString::fromUtf8(category->Name() ? category->Name() : ""));
            for (std::uint16_t id : category->Characters())
                if (id < m_categoryOf.size() && m_categoryOf[id] == 0xFFFF)
                    m_categoryOf[id] = c;
        }
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        m_prompt.StoreError(this, DatabaseErrorTitle, e.what());
    }
    if (!m_ink) {
        m_modelPending = false;
        m_canvas->setEnabled(false);
        m_modelNote->setText(tr("Writing needs the words and parts file (lexicon) beside the database."));
        return;
    }
    // The model is read on a thread of its own; the window takes it when the thread is done
    // (and waits for it, should it close first).
    auto result = std::make_shared<std::pair<std::shared_ptr<HandwritingModel>, std::string>>();
    m_reader = QThread::create([result, modelPath] {
        std::unique_ptr<HandwritingModel> model = HandwritingModel::Load(modelPath, result->second);
        result->first = std::move(model);
    });
    connect(m_reader, &QThread::finished, this,
        [this, result] { ModelRead(result->first, QString::fromStdString(result->second)); });
    m_reader->start();
}

FindCharacterWindow::~FindCharacterWindow()
{
    if (m_reader) {
        m_reader->wait();
        delete m_reader;
    }
}

void FindCharacterWindow::ModelRead(std::shared_ptr<HandwritingModel> model, const QString& error)
{
    m_modelPending = false;
    if (model) {
        m_ink->SetModel(std::move(model));
        m_modelNote->clear();
    } else {
        m_modelNote->setText(
            tr("The handwriting model is not installed (Debian package tegaki-zinnia-japanese): characters are "
               "found from Zavoren!'s own strokes only, written in their stroke order."));
        Q_UNUSED(error);
    }
    if (!m_strokes.empty())
        Recognize();
}

bool FindCharacterWindow::ModelReady() const
{
    return m_ink && m_ink->HasModel();
}

void FindCharacterWindow::WaitForModel()
{
    while (m_modelPending)
        QApplication::processEvents(QEventLoop::AllEvents, 50);
}

std::vector<std::uint16_t> FindCharacterWindow::Results() const
{
    std::vector<std::uint16_t> ids;
    for (int i = 0; i < m_results->topLevelItemCount(); ++i)
        ids.push_back(static_cast<std::uint16_t>(m_results->topLevelItem(i)->data(0, Qt::UserRole).toUInt()));
    return ids;
}

void FindCharacterWindow::OnText(const QString& text)
{
    if (!m_text)
        return;
    std::vector<std::uint16_t> ids;
    for (const TextSearch::Result& r : m_text->Find(text.toStdString()))
        ids.push_back(r.id);
    Show(ids);
}

void FindCharacterWindow::OnStroke()
{
    // Every stroke is kept; the canvas's points are scaled to the recognizer's 298 px square.
    std::vector<Point> points = m_canvas->CurrentStroke().Points();
    const float scale = InkRecognizer::Side / static_cast<float>(m_canvas->ClientRect().width());
    for (Point& p : points) {
        p.x *= scale;
        p.y *= scale;
    }
    if (points.empty())
        return;
    m_strokes.push_back(StrokePath(std::move(points)));
    Recognize();
}

void FindCharacterWindow::OnClear()
{
    m_canvas->Clear();
    m_strokes.clear();
    Show({});
}

void FindCharacterWindow::OnUndo()
{
    if (m_strokes.empty())
        return;
    m_canvas->Undo();
    m_strokes.pop_back();
    Recognize();
}

void FindCharacterWindow::Recognize()
{
    if (!m_ink)
        return;
    std::vector<std::uint16_t> ids;
    for (const InkRecognizer::Candidate& c : m_ink->Recognize(m_strokes, InkResults))
        ids.push_back(c.id);
    Show(ids);
}

QIcon FindCharacterWindow::GlyphIcon(std::uint16_t id)
{
    const int side = m_results->iconSize().width();
    const qreal ratio = devicePixelRatioF();
    QImage image(static_cast<int>(side * ratio), static_cast<int>(side * ratio), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    try {
        const auto element = m_database.LoadElement(m_database.LoadCharacter(id)->ElementId());
        if (element && element->FormCount() > 0)
            DrawFormSmooth(image, image.rect(), element->GetForm(0), palette().color(QPalette::Text).rgb(),
                std::max<qreal>(1, 1.6 * ratio));
    } catch (const ZavorenCommon::DatabaseLoadException&) {
        // No picture for a character whose glyph cannot be read.
    }
    image.setDevicePixelRatio(ratio);
    return QIcon(QPixmap::fromImage(image));
}

void FindCharacterWindow::Show(const std::vector<std::uint16_t>& ids)
{
    m_results->clear();
    for (std::uint16_t id : ids) {
        std::unique_ptr<Character> c;
        try {
            c = m_database.LoadCharacter(id);
        } catch (const ZavorenCommon::DatabaseLoadException&) {
            continue;
        }
        auto* item = new QTreeWidgetItem(m_results);
        item->setData(0, Qt::UserRole, id);
        item->setIcon(0, GlyphIcon(id));
        const QString on = QString::fromUtf8(c->OnReading() ? c->OnReading() : "");
        const QString kun = QString::fromUtf8(c->KunReading() ? c->KunReading() : "");
        item->setText(1, on + (on.isEmpty() || kun.isEmpty() ? QString() : QStringLiteral("  ")) + kun);
        item->setText(2, QString::fromUtf8(c->Meaning() ? c->Meaning() : ""));
        const std::optional<std::uint16_t> category = CategoryOf(id);
        item->setText(3, category ? m_categoryNames[*category] : QString());
        item->setData(0, Qt::AccessibleTextRole, item->text(1) + QStringLiteral(", ") + item->text(2));
    }
    if (m_results->topLevelItemCount() > 0)
        m_results->setCurrentItem(m_results->topLevelItem(0));
}

std::optional<std::uint16_t> FindCharacterWindow::CategoryOf(std::uint16_t id)
{
    if (id >= m_categoryOf.size() || m_categoryOf[id] == 0xFFFF)
        return std::nullopt;
    return m_categoryOf[id];
}

void FindCharacterWindow::OpenInfo()
{
    QTreeWidgetItem* item = m_results->currentItem();
    if (!item)
        return;
    const auto id = static_cast<std::uint16_t>(item->data(0, Qt::UserRole).toUInt());
    KanjiInfoDialog dialog(m_database, m_prompt, this);
    dialog.SetWords(m_words);
    dialog.SetOtherOrders(m_otherOrders);
    const std::optional<std::uint16_t> category = CategoryOf(id);
    if (category) {
        dialog.OfferShowInCategory();
        if (const auto reviews = m_session.Reviews())
            if (const ReviewSchedule::Review* review = reviews->Find(*category, id))
                dialog.SetNextReview(review->dueDay, reviews->Today());
    }
    if (!dialog.SetCode(id))
        return;
    if (dialog.exec() == KanjiInfoDialog::ShowInCategory && category)
        emit showInCategory(*category, id);
}

void FindCharacterWindow::keyPressEvent(QKeyEvent* event)
{
    // Enter in the field opens the character listed first (the list opens its own on Enter).
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && m_results->currentItem()
        && focusWidget() == m_field) {
        OpenInfo();
        return;
    }
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}
