#include "PracticeSheetDialog.h"

#include "CategoryRules.h"
#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"
#include "GlyphLoading.h"
#include "LexiconAccess.h"
#include "Prompt.h"
#include "SheetSettings.h"
#include "User.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPageSize>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {
/// The preview's width in pixels; its height follows the taller paper.
constexpr int PreviewWidth = 300;
} // namespace

PracticeSheetDialog::PracticeSheetDialog(
    std::vector<SheetCharacter> characters, bool wordsOffered, Prompt& prompt, QWidget* parent)
    : QDialog(parent), m_characters(std::move(characters)), m_wordsOffered(wordsOffered), m_prompt(prompt)
{
    setWindowTitle(tr("Print practice sheet"));
    auto* columns = new QHBoxLayout(this);
    m_preview = new QLabel(this);
    m_preview->setObjectName(QStringLiteral("preview"));
    m_preview->setAccessibleName(tr("Preview of the first page"));
    m_preview->setFixedSize(PreviewWidth, static_cast<int>(PreviewWidth * 297.0 / 210.0));
    m_preview->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    columns->addWidget(m_preview);

    auto* side = new QVBoxLayout;
    columns->addLayout(side);
    auto* form = new QFormLayout;
    side->addLayout(form);
    const SheetOptions stored = SheetSettings::Load();
    m_paper = new QComboBox(this);
    m_paper->setObjectName(QStringLiteral("paperBox"));
    m_paper->addItem(tr("A4"));
    m_paper->addItem(tr("Letter"));
    m_paper->setCurrentIndex(stored.paper == Paper::Letter ? 1 : 0);
    m_paper->setAccessibleName(tr("Paper"));
    auto* paperLabel = new QLabel(tr("&Paper:"), this);
    paperLabel->setBuddy(m_paper);
    form->addRow(paperLabel, m_paper);
    m_boxes = new QSpinBox(this);
    m_boxes->setObjectName(QStringLiteral("boxesBox"));
    m_boxes->setRange(SheetOptions::MinimumBoxes, SheetOptions::MaximumBoxes);
    m_boxes->setValue(stored.boxesPerRow);
    m_boxes->setAccessibleName(tr("Boxes per row"));
    auto* boxesLabel = new QLabel(tr("&Boxes per row:"), this);
    boxesLabel->setBuddy(m_boxes);
    form->addRow(boxesLabel, m_boxes);
    m_trace = new QSpinBox(this);
    m_trace->setObjectName(QStringLiteral("traceBox"));
    m_trace->setRange(SheetOptions::MinimumTrace, SheetOptions::MaximumTrace);
    m_trace->setValue(stored.traceBoxes);
    m_trace->setAccessibleName(tr("Boxes to trace"));
    auto* traceLabel = new QLabel(tr("Boxes to &trace:"), this);
    traceLabel->setBuddy(m_trace);
    form->addRow(traceLabel, m_trace);
    m_order = new QCheckBox(tr("Stroke &order"), this);
    m_order->setObjectName(QStringLiteral("orderBox"));
    m_order->setChecked(stored.strokeOrder);
    m_order->setAccessibleName(tr("Stroke order"));
    form->addRow(m_order);
    m_words = new QCheckBox(tr("&Words"), this);
    m_words->setObjectName(QStringLiteral("wordsBox"));
    m_words->setChecked(stored.words);
    m_words->setAccessibleName(tr("Words"));
    m_words->setVisible(wordsOffered);
    form->addRow(m_words);
    m_pages = new QLabel(this);
    m_pages->setObjectName(QStringLiteral("pagesLabel"));
    side->addWidget(m_pages);
    side->addStretch(1);
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* print = buttons->addButton(tr("P&rint…"), QDialogButtonBox::ActionRole);
    print->setObjectName(QStringLiteral("printButton"));
    QPushButton* pdf = buttons->addButton(tr("Save as P&DF…"), QDialogButtonBox::ActionRole);
    pdf->setObjectName(QStringLiteral("pdfButton"));
    buttons->addButton(QDialogButtonBox::Close);
    buttons->setOrientation(Qt::Vertical);
    side->addWidget(buttons);
    connect(print, &QPushButton::clicked, this, &PracticeSheetDialog::OnPrint);
    connect(pdf, &QPushButton::clicked, this, &PracticeSheetDialog::OnSavePdf);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_paper, &QComboBox::currentIndexChanged, this, &PracticeSheetDialog::Rebuild);
    connect(m_boxes, &QSpinBox::valueChanged, this, &PracticeSheetDialog::Rebuild);
    connect(m_trace, &QSpinBox::valueChanged, this, &PracticeSheetDialog::Rebuild);
    connect(m_order, &QCheckBox::toggled, this, &PracticeSheetDialog::Rebuild);
    connect(m_words, &QCheckBox::toggled, this, &PracticeSheetDialog::Rebuild);
    Rebuild();
}

PracticeSheetDialog::~PracticeSheetDialog() = default;

void PracticeSheetDialog::Rebuild()
{
    SheetOptions o;
    o.paper = m_paper->currentIndex() == 1 ? Paper::Letter : Paper::A4;
    o.boxesPerRow = m_boxes->value();
    o.traceBoxes = m_trace->value();
    o.strokeOrder = m_order->isChecked();
    o.words = m_wordsOffered && m_words->isChecked();
    m_sheet = std::make_unique<PracticeSheet>(m_characters, o);
    SheetSettings::Store(SheetOptions{o.paper, o.boxesPerRow, o.traceBoxes, o.strokeOrder, m_words->isChecked()});
    m_preview->setPixmap(QPixmap::fromImage(m_sheet->PageImage(0, PreviewWidth, devicePixelRatioF())));
    m_pages->setText(tr("Pages: %1").arg(m_sheet->Pages().size()));
}

void PracticeSheetDialog::PrintTo(QPrinter& printer) const
{
    QPainter painter(&printer);
    if (!painter.isActive())
        return;
    const double scale = printer.resolution() / 25.4;
    for (std::size_t i = 0; i < m_sheet->Pages().size(); ++i) {
        if (i > 0)
            printer.newPage();
        m_sheet->PaintPage(painter, i, scale);
    }
}

void PracticeSheetDialog::OnPrint()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(m_sheet->Options().paper == Paper::Letter ? QPageSize::Letter : QPageSize::A4));
    // The sheet keeps its own margins: the painter starts at the paper's corner.
    printer.setFullPage(true);
    printer.setDocName(tr("Practice sheet"));
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted)
        PrintTo(printer);
}

void PracticeSheetDialog::OnSavePdf()
{
    QString path = QFileDialog::getSaveFileName(this, tr("Save as PDF"),
        QDir::home().filePath(tr("practice-sheet") + QStringLiteral(".pdf")), tr("PDF files (*.pdf)"));
    if (path.isEmpty())
        return;
    if (!path.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive))
        path += QStringLiteral(".pdf");
    QString error;
    if (!m_sheet->WritePdf(path, error))
        m_prompt.Ask(this, QMessageBox::Critical, tr("Practice sheet"),
            tr("The sheet could not be written to \"%1\": %2").arg(QDir::toNativeSeparators(path), error));
}

void PracticeSheetDialog::Open(CharacterDatabase& database, LexiconAccess* words, Prompt& prompt,
    const std::vector<std::uint16_t>& codes, QWidget* parent)
{
    if (codes.empty()) {
        prompt.Ask(parent, QMessageBox::Information, tr("Practice sheet"),
            tr("Select the characters first: on a category page, or a category on the home page for the "
               "characters of its next lesson."));
        return;
    }
    const Lexicon* lexicon = words ? LexiconOrReport(*words, prompt, parent) : nullptr;
    std::vector<SheetCharacter> characters;
    try {
        QString error;
        characters = PracticeSheet::Load(database, lexicon, codes, error);
        if (characters.empty()) {
            prompt.Ask(parent, QMessageBox::Critical, tr("Practice sheet"), error);
            return;
        }
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        prompt.StoreError(parent, DatabaseErrorTitle, e.what());
        return;
    }
    PracticeSheetDialog dialog(std::move(characters), lexicon != nullptr, prompt, parent);
    dialog.exec();
}

std::vector<std::uint16_t> PracticeSheetDialog::NextLesson(
    CharacterDatabase& database, const User* learner, std::optional<std::uint16_t> categoryId)
{
    if (!learner || !categoryId)
        return {};
    try {
        const auto category = database.LoadCategory(*categoryId);
        for (const CategoryProgress& progress : learner->Progress())
            if (progress.CategoryId() == *categoryId)
                return PickLessonCharacters(category->Characters(), progress, progress.UntestedCount(), LessonSize);
        return PickLessonCharacters(category->Characters(), CategoryProgress(), 0, LessonSize);
    } catch (const ZavorenCommon::DatabaseLoadException&) {
        return {};
    }
}
