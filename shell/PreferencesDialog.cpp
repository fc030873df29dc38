#include "PreferencesDialog.h"

#include "MemoryModel.h"
#include "ReviewSitting.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

PreferencesDialog::PreferencesDialog(const CoachingPreferences& preferences, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("Preferences"));
    auto* layout = new QVBoxLayout(this);
    m_explain = new QCheckBox(tr("Explain refused strokes"), this);
    m_grid = new QCheckBox(tr("Practice grid"), this);
    m_hint = new QCheckBox(tr("Show where a stroke starts after three misses"), this);
    m_ownFrame = new QCheckBox(tr("Judge place by my own character"), this);
    m_ownFrame->setToolTip(tr("A character written a little off-centre, smaller or larger is fine: each stroke "
                              "is placed against the strokes you have already written"));
    m_otherOrders = new QCheckBox(tr("Accept other stroke orders"), this);
    m_otherOrders->setToolTip(tr("A stroke order taught in other schools, which KanjiVG records, is correct too"));
    m_otherOrders->setChecked(preferences.otherOrders);
    m_steady = new QCheckBox(tr("Steady my ink"), this);
    m_steady->setToolTip(tr("A shaking hand, a finger or a cheap pen: each stroke is smoothed before it is judged"));
    m_steady->setChecked(preferences.steadyInk);
    m_onScreen = new QCheckBox(tr("Bring the window onto the screen at start"), this);
    m_explain->setChecked(preferences.explainRefusals);
    m_grid->setChecked(preferences.practiceGrid);
    m_hint->setChecked(preferences.hintAfterMisses);
    m_onScreen->setChecked(preferences.keepOnScreen);
    m_ownFrame->setChecked(preferences.ownFrame);
    m_words = new QCheckBox(tr("Show words and parts in Kanji Info"), this);
    m_words->setToolTip(tr("Common words that use the character, and the parts it is built from"));
    m_words->setChecked(preferences.wordsAndParts);
    m_wordAfterAnswer = new QCheckBox(tr("Show a word after each answer"), this);
    m_wordAfterAnswer->setToolTip(tr("In the reading test, a common word that uses the character with the "
                                     "reading you have just chosen"));
    m_wordAfterAnswer->setChecked(preferences.wordAfterAnswer);
    m_wordsTest = new QCheckBox(tr("Words test"), this);
    m_wordsTest->setToolTip(tr("A Words button on the category page: write whole words made of the characters "
                               "you have learned"));
    m_wordsTest->setChecked(preferences.wordsTest);
    m_sheets = new QCheckBox(tr("Print practice sheets"), this);
    m_sheets->setToolTip(tr("\"Print practice sheet…\" in the File menu and in the category page's menus"));
    m_sheets->setChecked(preferences.practiceSheets);
    m_reviews = new QCheckBox(tr("Review characters when they are due"), this);
    m_reviews->setToolTip(tr("Each learned character comes back for a test when you are about to forget it"));
    m_reviews->setChecked(preferences.reviewWhenDue);
    m_writingOnly = new QCheckBox(tr("Review by writing only"), this);
    m_writingOnly->setToolTip(tr("A review asks you to write each character, not to choose its readings"));
    m_writingOnly->setChecked(preferences.reviewWritingOnly);
    for (QCheckBox* box : {m_explain, m_grid, m_hint, m_ownFrame, m_otherOrders, m_steady, m_onScreen, m_words,
             m_wordAfterAnswer, m_wordsTest, m_sheets, m_reviews, m_writingOnly})
        box->setAccessibleName(box->text());
    // A heading for what each group of aids changes, the groups in two columns so that the
    // dialog stays one screen tall on a small screen at ratio 2.
    auto* columns = new QHBoxLayout;
    auto* left = new QVBoxLayout;
    auto* right = new QVBoxLayout;
    columns->addLayout(left);
    columns->addLayout(right);
    layout->addLayout(columns);
    auto group = [this](QVBoxLayout* column, const QString& title, const char* name) {
        auto* box = new QGroupBox(title, this);
        box->setObjectName(QLatin1String(name));
        box->setAccessibleName(title);
        column->addWidget(box);
        // The boxes of a group packed a little closer than a layout's default.
        auto* inside = new QVBoxLayout(box);
        inside->setSpacing(2);
        return inside;
    };
    QVBoxLayout* writing = group(left, tr("Writing"), "writingGroup");
    for (QCheckBox* box : {m_explain, m_grid, m_hint, m_ownFrame, m_otherOrders, m_steady, m_wordsTest})
        writing->addWidget(box);
    QVBoxLayout* reviews = group(right, tr("Reviews"), "reviewsGroup");
    reviews->addWidget(m_reviews);
    // The schedule of the reviews, indented under their box.
    auto* schedule = new QFormLayout;
    schedule->setContentsMargins(24, 0, 0, 0);
    // Five rows under one box: packed a little closer than a form is by default.
    schedule->setVerticalSpacing(2);
    m_retention = new QDoubleSpinBox(this);
    m_retention->setObjectName(QStringLiteral("retentionBox"));
    m_retention->setRange(MemoryModel::LowestRetention, MemoryModel::HighestRetention);
    m_retention->setDecimals(2);
    m_retention->setSingleStep(0.01);
    m_retention->setValue(preferences.retention);
    m_retention->setAccessibleName(tr("Desired retention"));
    auto* retentionLabel = new QLabel(tr("Desired &retention:"), this);
    retentionLabel->setBuddy(m_retention);
    schedule->addRow(retentionLabel, m_retention);
    auto* meaning = new QLabel(tr("higher: more reviews, fewer characters forgotten"), this);
    meaning->setObjectName(QStringLiteral("retentionMeaning"));
    meaning->setWordWrap(true);
    // The dialog's size does not follow a wrapped label's height for its width: room for the
    // two lines it takes in the column.
    meaning->setMinimumHeight(2 * meaning->fontMetrics().lineSpacing());
    m_retention->setAccessibleDescription(meaning->text());
    schedule->addRow(meaning);
    m_interval = new QSpinBox(this);
    m_interval->setObjectName(QStringLiteral("intervalBox"));
    m_interval->setRange(MemoryModel::ShortestMaximumInterval, MemoryModel::LongestMaximumInterval);
    m_interval->setValue(preferences.maximumInterval);
    m_interval->setSuffix(tr(" days"));
    m_interval->setAccessibleName(tr("Maximum interval"));
    auto* intervalLabel = new QLabel(tr("&Maximum interval:"), this);
    intervalLabel->setBuddy(m_interval);
    schedule->addRow(intervalLabel, m_interval);
    m_sitting = new QSpinBox(this);
    m_sitting->setObjectName(QStringLiteral("sittingBox"));
    m_sitting->setRange(ReviewSitting::MinimumSize, ReviewSitting::MaximumSize);
    m_sitting->setValue(preferences.reviewsPerSitting);
    m_sitting->setAccessibleName(tr("Reviews in one sitting"));
    auto* sittingLabel = new QLabel(tr("Reviews in one &sitting:"), this);
    sittingLabel->setBuddy(m_sitting);
    schedule->addRow(sittingLabel, m_sitting);
    schedule->addRow(m_writingOnly);
    reviews->addLayout(schedule);
    QVBoxLayout* words = group(right, tr("Words"), "wordsGroup");
    for (QCheckBox* box : {m_words, m_wordAfterAnswer})
        words->addWidget(box);
    QVBoxLayout* window = group(left, tr("Window"), "windowGroup");
    for (QCheckBox* box : {m_onScreen, m_sheets})
        window->addWidget(box);
    left->addStretch();
    right->addStretch();
    auto follow = [this, retentionLabel, meaning, intervalLabel, sittingLabel](bool on) {
        for (QWidget* w : std::initializer_list<QWidget*>{
                 m_retention, m_interval, retentionLabel, meaning, intervalLabel, m_sitting, sittingLabel, m_writingOnly})
            w->setEnabled(on);
    };
    connect(m_reviews, &QCheckBox::toggled, this, follow);
    follow(m_reviews->isChecked());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

CoachingPreferences PreferencesDialog::Chosen() const
{
    CoachingPreferences chosen{m_explain->isChecked(), m_grid->isChecked(), m_hint->isChecked(),
        m_onScreen->isChecked(), m_ownFrame->isChecked(), m_reviews->isChecked()};
    chosen.retention = m_retention->value();
    chosen.maximumInterval = m_interval->value();
    chosen.wordsAndParts = m_words->isChecked();
    chosen.wordAfterAnswer = m_wordAfterAnswer->isChecked();
    chosen.otherOrders = m_otherOrders->isChecked();
    chosen.steadyInk = m_steady->isChecked();
    chosen.wordsTest = m_wordsTest->isChecked();
    chosen.practiceSheets = m_sheets->isChecked();
    chosen.reviewsPerSitting = m_sitting->value();
    chosen.reviewWritingOnly = m_writingOnly->isChecked();
    return chosen;
}
