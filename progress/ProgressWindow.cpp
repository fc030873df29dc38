#include "ProgressWindow.h"

#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"
#include "GlyphRendering.h"
#include "KanjiInfoDialog.h"
#include "User.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QDateTime>
#include <QDateTimeAxis>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineSeries>
#include <QListWidget>
#include <QLocale>
#include <QPainter>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QProgressBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QValueAxis>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// How many trouble characters are shown.
constexpr std::size_t TroubleCount = 40;
/// Side of a trouble character's glyph, in logical pixels.
constexpr int GlyphSide = 48;

/// The date of a day number, as Qt keeps dates.
QDate DateOfDay(int day)
{
    return QDate(1970, 1, 1).addDays(day);
}

/// The day number of a date.
int DateOfDayNumber(const QDate& date)
{
    return static_cast<int>(QDate(1970, 1, 1).daysTo(date));
}

/// A table cell shown as text and sorted by a number of its own.
class NumberItem : public QTableWidgetItem {
public:
    NumberItem(const QString& text, double number) : QTableWidgetItem(text) { setData(Qt::UserRole, number); }
    bool operator<(const QTableWidgetItem& other) const override
    {
        return data(Qt::UserRole).toDouble() < other.data(Qt::UserRole).toDouble();
    }
};

/// The Reviews table's characters drawn as their glyphs, each when first shown.
class GlyphDelegate : public QStyledItemDelegate {
public:
    GlyphDelegate(CharacterDatabase& database, QObject* parent) : QStyledItemDelegate(parent), m_database(database) { }
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        const auto id = static_cast<std::uint16_t>(index.data(Qt::UserRole + 1).toUInt());
        const QRgb ink = option.palette.color(
            option.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text).rgb();
        const QString key = QStringLiteral("%1-%2-%3").arg(id).arg(ink).arg(painter->device()->devicePixelRatioF());
        QPixmap glyph;
        if (!m_glyphs.contains(key)) {
            const qreal ratio = painter->device()->devicePixelRatioF();
            QImage image(QSize(GlyphSide / 2, GlyphSide / 2) * ratio, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            try {
                const auto character = m_database.LoadCharacter(id);
                const auto element = m_database.LoadElement(character->ElementId());
                if (element && element->FormCount() > 0)
                    DrawFormSmooth(image, image.rect(), element->GetForm(0), ink, 1.5 * ratio);
            } catch (const ZavorenCommon::DatabaseLoadException&) {
                // Shown without its glyph.
            }
            image.setDevicePixelRatio(ratio);
            m_glyphs.insert(key, QPixmap::fromImage(image));
        }
        glyph = m_glyphs.value(key);
        const QRect cell = option.rect;
        painter->drawPixmap(cell.left() + 4, cell.top() + (cell.height() - GlyphSide / 2) / 2, glyph);
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize text = QStyledItemDelegate::sizeHint(option, index);
        return QSize(GlyphSide / 2 + 8, std::max(text.height(), GlyphSide / 2 + 4));
    }

private:
    CharacterDatabase& m_database;
    mutable QHash<QString, QPixmap> m_glyphs;
};

QChartView* MakeChartView(QChart* chart, const QString& name, QWidget* parent)
{
    auto* view = new QChartView(chart, parent);
    view->setRenderHint(QPainter::Antialiasing);
    view->setAccessibleName(name);
    view->setMinimumSize(560, 320);
    return view;
}

} // namespace

ProgressWindow::ProgressWindow(CharacterDatabase& database, Prompt& prompt, const User& learner,
    std::vector<LearnerEvent> history, const std::string& now, std::optional<ReviewSchedule> reviews, QWidget* parent)
    : QWidget(parent, Qt::Window), m_database(database), m_prompt(prompt), m_learner(learner),
      m_reviews(std::move(reviews))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("ProgressWindow"));
    const QString name = QString::fromUtf8(learner.Name() ? learner.Name() : "");
    setWindowTitle(tr("Progress of %1").arg(name));
    setAccessibleName(windowTitle());

    std::vector<std::uint16_t> sizes;
    for (std::uint16_t i = 0; i < database.CategoryCount(); ++i) {
        try {
            const auto category = database.LoadCategory(i);
            sizes.push_back(static_cast<std::uint16_t>(category->CharacterCount()));
            m_categoryNames.push_back(QString::fromUtf8(category->Name() ? category->Name() : ""));
        } catch (const ZavorenCommon::DatabaseLoadException&) {
            // A category that cannot be read shows with no characters.
            sizes.push_back(0);
            m_categoryNames.push_back(tr("Category %1").arg(i + 1));
        }
    }
    const int today = EventDay(now);
    m_stats = std::make_unique<LearnerStatistics>(learner, std::move(history), sizes, today >= 0 ? today : EventDay(LocalTimeNow()));

    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("progressTabs"));
    m_tabs->setAccessibleName(tr("Progress"));
    m_tabs->addTab(BuildLearnedTab(), tr("&Learned"));
    m_tabs->addTab(BuildTestsTab(), tr("&Tests"));
    m_tabs->addTab(BuildCategoriesTab(), tr("&Categories"));
    m_tabs->addTab(BuildTroubleTab(), tr("T&rouble characters"));
    if (m_reviews)
        m_tabs->addTab(BuildReviewsTab(), tr("Re&views"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs);
    // Escape and the platform's close shortcut close it, like the program's dialogs.
    for (const QKeySequence& keys : QList<QKeySequence>{QKeySequence(Qt::Key_Escape), QKeySequence::Close}) {
        auto* close = new QShortcut(keys, this);
        connect(close, &QShortcut::activated, this, &QWidget::close);
    }
    FollowPalette();
}

void ProgressWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // The first time, centred over the window it belongs to.
    if (!m_placed && parentWidget()) {
        m_placed = true;
        QRect frame = frameGeometry();
        frame.moveCenter(parentWidget()->window()->frameGeometry().center());
        move(frame.topLeft());
    }
}

ProgressWindow::~ProgressWindow() = default;

QWidget* ProgressWindow::BuildLearnedTab()
{
    auto* tab = new QWidget;
    auto* layout = new QVBoxLayout(tab);
    m_picker = new QComboBox(tab);
    m_picker->setObjectName(QStringLiteral("categoryPicker"));
    m_picker->setAccessibleName(tr("Category shown"));
    m_picker->addItem(tr("All categories"));
    for (const QString& name : m_categoryNames)
        m_picker->addItem(name);
    auto* label = new QLabel(tr("C&ategory:"), tab);
    label->setBuddy(m_picker);
    layout->addWidget(label);
    layout->addWidget(m_picker);

    auto* chart = new QChart;
    chart->setTitle(tr("Characters learned"));
    chart->legend()->hide();
    m_learned = new QLineSeries(chart);
    m_learned->setObjectName(QStringLiteral("learnedSeries"));
    m_learned->setName(tr("Characters learned"));
    chart->addSeries(m_learned);
    auto* days = new QDateTimeAxis(chart);
    days->setFormat(QStringLiteral("yyyy-MM-dd"));
    days->setTitleText(tr("Date"));
    auto* count = new QValueAxis(chart);
    count->setLabelFormat(QStringLiteral("%d"));
    count->setTitleText(tr("Characters"));
    chart->addAxis(days, Qt::AlignBottom);
    chart->addAxis(count, Qt::AlignLeft);
    m_learned->attachAxis(days);
    m_learned->attachAxis(count);
    m_learnedView = MakeChartView(chart, tr("Characters learned over time"), tab);
    m_learnedView->setObjectName(QStringLiteral("learnedChart"));
    layout->addWidget(m_learnedView);
    connect(m_picker, &QComboBox::currentIndexChanged, this, &ProgressWindow::ShowLearned);
    ShowLearned(0);
    return tab;
}

void ProgressWindow::ShowLearned(int pickerIndex)
{
    const std::optional<std::uint16_t> category
        = pickerIndex > 0 ? std::optional<std::uint16_t>(static_cast<std::uint16_t>(pickerIndex - 1)) : std::nullopt;
    const std::vector<int> perDay = m_stats->LearnedPerDay(category);
    QList<QPointF> points;
    points.reserve(static_cast<qsizetype>(perDay.size()));
    int most = 0;
    for (std::size_t i = 0; i < perDay.size(); ++i) {
        const QDateTime noon(DateOfDay(m_stats->FirstDay() + static_cast<int>(i)), QTime(12, 0));
        points.append(QPointF(static_cast<qreal>(noon.toMSecsSinceEpoch()), perDay[i]));
        most = std::max(most, perDay[i]);
    }
    m_learned->replace(points);
    // A line through one day draws nothing: each day's value is marked too while there are few.
    m_learned->setPointsVisible(perDay.size() <= 31);
    QChart* chart = m_learnedView->chart();
    const auto axes = chart->axes();
    for (QAbstractAxis* axis : axes) {
        if (auto* days = qobject_cast<QDateTimeAxis*>(axis)) {
            // At least a week, so that the two ends of the axis are not the same day.
            const QDateTime first(DateOfDay(std::min(m_stats->FirstDay(), m_stats->Today() - 6)), QTime(0, 0));
            const QDateTime last(DateOfDay(m_stats->Today()), QTime(23, 59));
            days->setRange(first, last);
            days->setTickCount(std::min(7, std::max(2, m_stats->Today() - DateOfDayNumber(first.date()) + 1)));
        } else if (auto* count = qobject_cast<QValueAxis*>(axis)) {
            count->setRange(0, std::max(5, most + most / 10 + 1));
            count->applyNiceNumbers(); // whole numbers of characters on the ticks
        }
    }
    m_learnedView->setAccessibleDescription(
        tr("Characters learned by %1: %2")
            .arg(DateOfDay(m_stats->Today()).toString(Qt::ISODate))
            .arg(perDay.empty() ? 0 : perDay.back()));
}

QWidget* ProgressWindow::BuildTestsTab()
{
    auto* chart = new QChart;
    chart->setTitle(tr("Tests per week"));
    auto* series = new QBarSeries(chart);
    m_passed = new QBarSet(tr("Passed"), series);
    m_passed->setObjectName(QStringLiteral("passedBars"));
    m_failed = new QBarSet(tr("Failed"), series);
    m_failed->setObjectName(QStringLiteral("failedBars"));
    QStringList weeks;
    int most = 0;
    const auto allWeeks = m_stats->TestsPerWeek();
    for (const LearnerStatistics::Week& week : allWeeks) {
        m_passed->append(week.passed);
        m_failed->append(week.failed);
        weeks << DateOfDay(week.monday).toString(QStringLiteral("MM-dd"));
        most = std::max({most, week.passed, week.failed});
    }
    m_passed->setColor(QColor(46, 160, 67));
    m_failed->setColor(QColor(214, 69, 65));
    series->setBarWidth(0.9);
    series->append(m_passed);
    series->append(m_failed);
    chart->addSeries(series);
    // One bar pair a week, placed by a category axis whose labels are hidden: a year of week
    // labels does not fit. The dates go on a time axis over the same span below it.
    auto* axis = new QBarCategoryAxis(chart);
    axis->append(weeks);
    axis->setLabelsVisible(false);
    axis->setGridLineVisible(false);
    chart->addAxis(axis, Qt::AlignBottom);
    series->attachAxis(axis);
    auto* dates = new QDateTimeAxis(chart);
    dates->setFormat(QStringLiteral("yyyy-MM-dd"));
    dates->setRange(QDateTime(DateOfDay(allWeeks.front().monday), QTime(0, 0)),
        QDateTime(DateOfDay(allWeeks.back().monday + 7), QTime(0, 0)));
    dates->setTickCount(std::min(7, static_cast<int>(allWeeks.size()) + 1));
    dates->setTitleText(tr("Week beginning"));
    chart->addAxis(dates, Qt::AlignBottom);
    auto* count = new QValueAxis(chart);
    count->setLabelFormat(QStringLiteral("%d"));
    count->setRange(0, std::max(5, most + 1));
    count->applyNiceNumbers();
    count->setTitleText(tr("Tests"));
    chart->addAxis(count, Qt::AlignLeft);
    series->attachAxis(count);
    m_testsView = MakeChartView(chart, tr("Tests passed and failed per week"), nullptr);
    m_testsView->setObjectName(QStringLiteral("testsChart"));
    return m_testsView;
}

QWidget* ProgressWindow::BuildCategoriesTab()
{
    const auto rows = m_stats->Categories();
    m_table = new QTableWidget(static_cast<int>(rows.size()), 5);
    m_table->setObjectName(QStringLiteral("categoryTable"));
    m_table->setAccessibleName(tr("Progress in each category"));
    m_table->setHorizontalHeaderLabels({tr("Category"), tr("Learned"), tr("Untested"), tr("Total"), tr("Done")});
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->verticalHeader()->hide();
    for (int r = 0; r < static_cast<int>(rows.size()); ++r) {
        const auto& row = rows[static_cast<std::size_t>(r)];
        m_table->setItem(r, 0, new QTableWidgetItem(m_categoryNames[row.categoryId]));
        const std::size_t numbers[] = {row.learned, row.untested, row.total};
        for (int c = 0; c < 3; ++c) {
            auto* item = new QTableWidgetItem(QString::number(numbers[c]));
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            m_table->setItem(r, c + 1, item);
        }
        auto* bar = new QProgressBar;
        bar->setRange(0, static_cast<int>(std::max<std::size_t>(1, row.total)));
        bar->setValue(static_cast<int>(std::min(row.learned, row.total)));
        bar->setFormat(QStringLiteral("%p%"));
        bar->setAccessibleName(tr("%1: %2 of %3 learned").arg(m_categoryNames[row.categoryId]).arg(row.learned).arg(row.total));
        m_table->setCellWidget(r, 4, bar);
    }
    m_table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_table->horizontalHeader()->setSectionResizeMode(4, QHeaderView::Stretch);
    return m_table;
}

QWidget* ProgressWindow::BuildTroubleTab()
{
    m_trouble = new QListWidget;
    m_trouble->setObjectName(QStringLiteral("troubleList"));
    m_trouble->setAccessibleName(tr("Trouble characters, the most troubled first"));
    m_trouble->setViewMode(QListView::IconMode);
    m_trouble->setResizeMode(QListView::Adjust);
    m_trouble->setMovement(QListView::Static);
    m_trouble->setIconSize(QSize(GlyphSide, GlyphSide));
    m_trouble->setGridSize(QSize(GlyphSide + 72, GlyphSide + 44));
    m_trouble->setWordWrap(true);
    for (const LearnerStatistics::Trouble& t : m_stats->TroubleCharacters(TroubleCount)) {
        QString counts = (t.mistakes == 1 ? tr("1 mistake") : tr("%1 mistakes").arg(t.mistakes))
            + QLatin1Char('\n') + (t.failures == 1 ? tr("1 test failed") : tr("%1 tests failed").arg(t.failures));
        if (m_reviews)
            if (const ReviewSchedule::Review* review = m_reviews->Find(t.categoryId, t.id))
                counts += QLatin1Char('\n') + tr("recall %1 %").arg(qRound(review->recall * 100));
        auto* item = new QListWidgetItem(counts, m_trouble);
        item->setData(Qt::UserRole, t.id);
        item->setData(Qt::UserRole + 1, t.categoryId);
        item->setTextAlignment(Qt::AlignHCenter | Qt::AlignTop);
        item->setData(Qt::AccessibleTextRole, counts);
        try {
            const auto character = m_database.LoadCharacter(t.id);
            const QString meaning = QString::fromUtf8(character->Meaning() ? character->Meaning() : "");
            item->setToolTip(meaning);
            item->setData(Qt::AccessibleTextRole, meaning + QStringLiteral(": ") + counts);
        } catch (const ZavorenCommon::DatabaseLoadException&) {
            // Listed with its counts only.
        }
    }
    DrawTroubleGlyphs();
    // Activated: a double click, or Enter on the selected character.
    connect(m_trouble, &QListWidget::itemActivated, this, &ProgressWindow::OpenKanjiInfo);
    return m_trouble;
}

void ProgressWindow::DrawTroubleGlyphs()
{
    // In the palette's text colour, at the screen's ratio.
    const qreal ratio = devicePixelRatioF();
    const QRgb ink = palette().color(QPalette::Text).rgb();
    for (int i = 0; i < m_trouble->count(); ++i) {
        QListWidgetItem* item = m_trouble->item(i);
        try {
            const auto character = m_database.LoadCharacter(static_cast<std::uint16_t>(item->data(Qt::UserRole).toUInt()));
            const auto element = m_database.LoadElement(character->ElementId());
            QImage glyph(QSize(GlyphSide, GlyphSide) * ratio, QImage::Format_ARGB32_Premultiplied);
            glyph.fill(Qt::transparent);
            if (element && element->FormCount() > 0)
                DrawFormSmooth(glyph, glyph.rect(), element->GetForm(0), ink, 2 * ratio);
            glyph.setDevicePixelRatio(ratio);
            item->setIcon(QIcon(QPixmap::fromImage(glyph)));
        } catch (const ZavorenCommon::DatabaseLoadException&) {
            item->setIcon(QIcon());
        }
    }
}

void ProgressWindow::OpenKanjiInfo(QListWidgetItem* item)
{
    if (!item)
        return;
    ShowKanjiInfo(static_cast<std::uint16_t>(item->data(Qt::UserRole + 1).toUInt()),
        static_cast<std::uint16_t>(item->data(Qt::UserRole).toUInt()));
}

void ProgressWindow::ShowKanjiInfo(std::uint16_t categoryId, std::uint16_t id)
{
    KanjiInfoDialog dialog(m_database, m_prompt, this);
    if (m_words)
        dialog.SetWords(WordContext{m_words, LearnedBy(m_learner)});
    if (m_reviews)
        if (const ReviewSchedule::Review* review = m_reviews->Find(categoryId, id))
            dialog.SetNextReview(review->dueDay, m_reviews->Today());
    if (dialog.SetCode(id))
        dialog.exec();
}

QWidget* ProgressWindow::BuildReviewsTab()
{
    auto* tab = new QWidget;
    auto* layout = new QVBoxLayout(tab);
    // The characters falling due on each of the next 30 days.
    constexpr int Days = 30;
    const std::vector<int> perDay = m_reviews->DuePerDay(Days);
    auto* chart = new QChart;
    chart->setTitle(tr("Reviews due on each of the next 30 days"));
    chart->legend()->hide();
    auto* series = new QBarSeries(chart);
    auto* due = new QBarSet(tr("Due"), series);
    due->setObjectName(QStringLiteral("dueBars"));
    int most = 0;
    for (int i = 0; i < Days; ++i) {
        *due << perDay[static_cast<std::size_t>(i)];
        most = std::max(most, perDay[static_cast<std::size_t>(i)]);
    }
    series->append(due);
    chart->addSeries(series);
    // Bar i stands at i: labelled by days from today, every fifth day, with the date aside.
    auto* days = new QCategoryAxis(chart);
    days->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    days->setRange(-0.5, Days - 0.5);
    for (int i = 0; i < Days; i += (i == 0 ? 4 : 5))
        days->append(QLocale().toString(DateOfDay(m_reviews->Today() + 1 + i), QStringLiteral("d MMM")), i);
    days->setTitleText(tr("Day"));
    auto* count = new QValueAxis(chart);
    count->setLabelFormat(QStringLiteral("%d"));
    count->setRange(0, std::max(5, most + most / 10 + 1));
    count->applyNiceNumbers();
    count->setTitleText(tr("Characters"));
    chart->addAxis(days, Qt::AlignBottom);
    chart->addAxis(count, Qt::AlignLeft);
    series->attachAxis(days);
    series->attachAxis(count);
    auto* view = MakeChartView(chart, tr("Reviews due on each of the next 30 days"), tab);
    m_reviewsView = view;
    view->setObjectName(QStringLiteral("reviewsChart"));
    view->setMinimumSize(560, 220);
    int inMonth = 0;
    for (int n : perDay)
        inMonth += n;
    view->setAccessibleDescription(tr("Due today: %1; in the next 30 days: %2").arg(m_reviews->DueTotal()).arg(inMonth));
    layout->addWidget(view);

    // Every learned character: its predicted recall today and its next review.
    m_reviewTable = new QTableWidget(static_cast<int>(m_reviews->Reviews().size()), 4, tab);
    m_reviewTable->setObjectName(QStringLiteral("reviewsTable"));
    m_reviewTable->setAccessibleName(tr("Learned characters and their reviews"));
    m_reviewTable->setHorizontalHeaderLabels({tr("Character"), tr("Category"), tr("Recall today"), tr("Next review")});
    m_reviewTable->verticalHeader()->hide();
    m_reviewTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_reviewTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_reviewTable->setSelectionMode(QAbstractItemView::SingleSelection);
    m_reviewTable->setItemDelegateForColumn(0, new GlyphDelegate(m_database, m_reviewTable));
    int row = 0;
    for (const ReviewSchedule::Review& r : m_reviews->Reviews()) {
        QString meaning;
        try {
            const auto character = m_database.LoadCharacter(r.id);
            meaning = QString::fromUtf8(character->Meaning() ? character->Meaning() : "");
        } catch (const ZavorenCommon::DatabaseLoadException&) {
        }
        auto* glyph = new QTableWidgetItem(QString());
        glyph->setData(Qt::UserRole, r.categoryId);
        glyph->setData(Qt::UserRole + 1, r.id);
        glyph->setData(Qt::AccessibleTextRole, meaning);
        glyph->setToolTip(meaning);
        m_reviewTable->setItem(row, 0, glyph);
        const QString category = r.categoryId < m_categoryNames.size() ? m_categoryNames[r.categoryId] : QString();
        m_reviewTable->setItem(row, 1, new NumberItem(category, r.categoryId));
        m_reviewTable->setItem(row, 2, new NumberItem(QStringLiteral("%1 %").arg(qRound(r.recall * 100)), r.recall));
        const QString next = r.Due(m_reviews->Today()) ? tr("due now")
                                                       : QLocale().toString(DateOfDay(r.dueDay), QLocale::ShortFormat);
        m_reviewTable->setItem(row, 3, new NumberItem(next, r.dueDay));
        ++row;
    }
    m_reviewTable->setSortingEnabled(true);
    m_reviewTable->sortByColumn(2, Qt::AscendingOrder); // the least likely to be recalled first
    m_reviewTable->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_reviewTable->verticalHeader()->setDefaultSectionSize(GlyphSide / 2 + 6);
    connect(m_reviewTable, &QTableWidget::cellActivated, this, [this](int r, int) {
        const QTableWidgetItem* item = m_reviewTable->item(r, 0);
        ShowKanjiInfo(static_cast<std::uint16_t>(item->data(Qt::UserRole).toUInt()),
            static_cast<std::uint16_t>(item->data(Qt::UserRole + 1).toUInt()));
    });
    layout->addWidget(m_reviewTable);
    return tab;
}

void ProgressWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        FollowPalette();
}

void ProgressWindow::FollowPalette()
{
    // The charts draw in the window's colours, so that a dark palette gives dark charts.
    const QPalette& p = palette();
    for (QChartView* view : {m_learnedView, m_testsView, m_reviewsView}) {
        if (!view)
            continue;
        QChart* chart = view->chart();
        chart->setBackgroundBrush(p.color(QPalette::Base));
        chart->setTitleBrush(p.color(QPalette::Text));
        chart->legend()->setLabelColor(p.color(QPalette::Text));
        const auto axes = chart->axes();
        for (QAbstractAxis* axis : axes) {
            axis->setLabelsColor(p.color(QPalette::Text));
            axis->setTitleBrush(p.color(QPalette::Text));
            axis->setGridLineColor(p.color(QPalette::Mid));
            axis->setLinePenColor(p.color(QPalette::Mid));
        }
        view->setBackgroundBrush(p.color(QPalette::Window));
    }
    if (m_learned) {
        m_learned->setPen(QPen(p.color(QPalette::Highlight), 2));
        m_learned->setBrush(p.color(QPalette::Highlight)); // the day markers
    }
    if (m_trouble)
        DrawTroubleGlyphs();
}
