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
    m_onScreen = new QCheckBox(tr("Bring the window onto the screen at start"), this);
    m_explain->setChecked(preferences.explainRefusals);
    m_grid->setChecked(preferences.practiceGrid);
    m_hint->setChecked(preferences.hintAfterMisses);
    m_onScreen->setChecked(preferences.keepOnScreen);
    for (QCheckBox* box : {m_explain, m_grid, m_hint, m_onScreen}) {
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
    return {m_explain->isChecked(), m_grid->isChecked(), m_hint->isChecked(), m_onScreen->isChecked()};
}
