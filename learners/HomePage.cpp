#include "HomePage.h"

#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"
#include "FittedText.h"
#include "LearnerSession.h"
#include "Prompt.h"
#include "StoredPicture.h"
#include "User.h"
#include "ui_HomePage.h"

#include <QHBoxLayout>

namespace {

/// Page size in dialog units, converted with the font's metrics.
constexpr int PageWidthUnits = 197;
constexpr int PageHeightUnits = 264;
} // namespace

HomePage::HomePage(CharacterDatabase& database, Prompt& prompt, QWidget* parent)
    : Page(parent), m_ui(std::make_unique<Ui::HomePage>()), m_database(database), m_prompt(prompt)
{
    m_ui->setupUi(this);
    // The pictures of a category with progress and of one not begun, decoded at build time.
    m_progressIcon = QIcon(QPixmap::fromImage(StoredPicture(QStringLiteral("category-progress"))));
    m_newIcon = QIcon(QPixmap::fromImage(StoredPicture(QStringLiteral("category-new"))));
    CategoryList()->setAccessibleName(tr("Categories"));
    CategoryList()->setIconSize(QSize(16, 16));
    MakeTextBox(UserNameLabel(), 1);
    setFixedSize(HorizontalUnits(this, PageWidthUnits), VerticalUnits(this, PageHeightUnits));
    connect(CategoryList(), &QTreeWidget::itemSelectionChanged, this, &HomePage::UpdateButtons);
    connect(CategoryList(), &QTreeWidget::itemDoubleClicked, this, [this] {
        if (!CategoryList()->selectedItems().isEmpty())
            OnOpen();
    });
    connect(OpenButton(), &QPushButton::clicked, this, &HomePage::OnOpen);
    // How many are due in all, beside the Open button (in the cell of the space before it, so
    // that the page without it is laid out as always).
    // With something due, the button that reviews it all in one sitting stands beside it.
    auto* dueRow = new QHBoxLayout;
    dueRow->setContentsMargins(0, 0, 0, 0);
    m_dueTotal = new QLabel(this);
    m_dueTotal->setObjectName(QStringLiteral("dueTotal"));
    m_dueTotal->setWordWrap(true);
    m_dueTotal->hide();
    m_reviewButton = new QPushButton(this);
    m_reviewButton->setObjectName(QStringLiteral("reviewButton"));
    m_reviewButton->hide();
    connect(m_reviewButton, &QPushButton::clicked, this, [this] {
        if (m_user && m_reviewButton->isVisible())
            emit pageEvent(Review, 0);
    });
    dueRow->addWidget(m_dueTotal, 1);
    dueRow->addWidget(m_reviewButton);
    m_ui->grid->addLayout(dueRow, 3, 0, 1, 2);
    UpdateButtons();
}

HomePage::HomePage(CharacterDatabase& database, Prompt& prompt, LearnerSession& session, QWidget* parent)
    : HomePage(database, prompt, parent)
{
    m_session = &session;
    connect(&session, &LearnerSession::learnerChanged, this, [this] {
        m_stale = false;
        SetUser(m_session->Learner());
        if (m_session->Learner() && m_session->Rules().on)
            SetReviews(m_session->Reviews());
    });
    connect(&session, &LearnerSession::progressChanged, this, [this] {
        m_stale = true;
        if (isVisible())
            RefreshFromSession();
    });
}

HomePage::~HomePage() = default;

void HomePage::RefreshFromSession()
{
    m_stale = false;
    // With the reviews every category's due count may have moved, not only the selected one's.
    if (m_session->Rules().on || m_reviews)
        SetReviews(m_session->Reviews());
    else
        RefreshSelectedCategory();
}

QLabel* HomePage::UserNameLabel() const
{
    return m_ui->userName;
}
QTreeWidget* HomePage::CategoryList() const
{
    return m_ui->categoryList;
}
QPushButton* HomePage::OpenButton() const
{
    return m_ui->openButton;
}

QString HomePage::CategoryText(const char* name, std::size_t learned, std::size_t total, int due)
{
    QString text = QString::fromUtf8(name ? name : "");
    if (learned > 0 && due > 0)
        text += tr(" (%1 of %2, %3 due)").arg(learned).arg(total).arg(due);
    else if (learned > 0)
        text += tr(" (%1 of %2)").arg(learned).arg(total);
    return text;
}

void HomePage::FillItem(QTreeWidgetItem* item, std::uint16_t categoryId)
{
    const auto category = m_database.LoadCategory(categoryId);
    const std::size_t learned = m_user->GetProgress(category->Id()).LearnedCount();
    const int due = m_reviews ? m_reviews->DueCount(category->Id()) : 0;
    item->setText(0, CategoryText(category->Name(), learned, category->CharacterCount(), due));
    item->setIcon(0, learned > 0 ? m_progressIcon : m_newIcon);
    item->setData(0, Qt::UserRole, categoryId);
    item->setData(0, Qt::UserRole + 1, learned > 0 ? 1 : 0); // the picture shown: 1 with progress
}

void HomePage::SetUser(User* user)
{
    m_user = user;
    m_reviews.reset(); // they were the previous learner's
    ShowDueTotal();
    if (!user) {
        // The list keeps the previous learner's items.
        ShowFitted(UserNameLabel(), TextOrNotAvailable(nullptr), 1);
    } else {
        ShowFitted(UserNameLabel(), QString::fromUtf8(user->Name() ? user->Name() : ""), 1);
        CategoryList()->clear();
        try {
            for (std::uint16_t i = 0; i < m_database.CategoryCount(); ++i) {
                auto* item = new QTreeWidgetItem(CategoryList());
                FillItem(item, i);
            }
        } catch (const ZavorenCommon::DatabaseLoadException& e) {
            m_prompt.StoreError(this, DatabaseErrorTitle, e.what());
        }
    }
    UpdateButtons();
}

void HomePage::RefreshSelectedCategory()
{
    const auto selected = CategoryList()->selectedItems();
    if (selected.isEmpty() || !m_user)
        return;
    try {
        FillItem(selected.front(), static_cast<std::uint16_t>(selected.front()->data(0, Qt::UserRole).toUInt()));
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        m_prompt.StoreError(this, DatabaseErrorTitle, e.what());
    }
}

void HomePage::SetReviews(std::optional<ReviewSchedule> reviews)
{
    m_reviews = std::move(reviews);
    if (m_user) {
        try {
            for (int i = 0; i < CategoryList()->topLevelItemCount(); ++i) {
                QTreeWidgetItem* item = CategoryList()->topLevelItem(i);
                FillItem(item, static_cast<std::uint16_t>(item->data(0, Qt::UserRole).toUInt()));
            }
        } catch (const ZavorenCommon::DatabaseLoadException& e) {
            m_prompt.StoreError(this, DatabaseErrorTitle, e.what());
        }
    }
    ShowDueTotal();
}

void HomePage::ShowDueTotal()
{
    if (!m_reviews || !m_user || m_reviews->Reviews().empty()) {
        m_dueTotal->hide();
        m_reviewButton->hide();
        return;
    }
    const int due = m_reviews->DueTotal();
    m_dueTotal->setText(due > 0 ? tr("Due for review today: %1").arg(due) : tr("Nothing is due for review today."));
    m_dueTotal->setAccessibleName(m_dueTotal->text());
    m_dueTotal->show();
    m_reviewButton->setText(tr("&Review (%1)").arg(due));
    m_reviewButton->setAccessibleName(tr("Review the characters due (%1)").arg(due));
    m_reviewButton->setVisible(due > 0);
}

void HomePage::UpdateButtons()
{
    setEnabled(m_user != nullptr);
    const bool selected = m_user && !CategoryList()->selectedItems().isEmpty();
    OpenButton()->setEnabled(selected);
    SetDefaultButton(selected ? OpenButton() : nullptr);
}

void HomePage::showEvent(QShowEvent* event)
{
    Page::showEvent(event);
    if (m_stale && m_session)
        RefreshFromSession();
    UpdateButtons();
    CategoryList()->setFocus();
}

std::optional<std::uint16_t> HomePage::SelectedCategory() const
{
    const auto selected = CategoryList()->selectedItems();
    if (selected.isEmpty())
        return std::nullopt;
    return static_cast<std::uint16_t>(selected.front()->data(0, Qt::UserRole).toUInt());
}

void HomePage::OnOpen()
{
    const auto selected = CategoryList()->selectedItems();
    if (selected.isEmpty() || !m_user)
        return;
    m_chosenCategory = static_cast<std::uint16_t>(selected.front()->data(0, Qt::UserRole).toUInt());
    emit pageEvent(OpenCategory, 0);
}
