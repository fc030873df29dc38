#include "PreferencesDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
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
    m_onScreen = new QCheckBox(tr("Bring the window onto the screen at start"), this);
    m_explain->setChecked(preferences.explainRefusals);
    m_grid->setChecked(preferences.practiceGrid);
    m_hint->setChecked(preferences.hintAfterMisses);
    m_onScreen->setChecked(preferences.keepOnScreen);
    m_ownFrame->setChecked(preferences.ownFrame);
    for (QCheckBox* box : {m_explain, m_grid, m_hint, m_ownFrame, m_onScreen}) {
        box->setAccessibleName(box->text());
        layout->addWidget(box);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

CoachingPreferences PreferencesDialog::Chosen() const
{
    return {m_explain->isChecked(), m_grid->isChecked(), m_hint->isChecked(), m_onScreen->isChecked(),
        m_ownFrame->isChecked()};
}
