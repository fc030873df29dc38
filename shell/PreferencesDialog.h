#pragma once

#include "CoachingPreferences.h"

#include <QDialog>

class QCheckBox;

/// Tools > Preferences: the writing aids, each a check box.
class PreferencesDialog : public QDialog {
    Q_OBJECT
public:
    explicit PreferencesDialog(const CoachingPreferences& preferences, QWidget* parent = nullptr);

    /// The aids as the boxes are ticked.
    CoachingPreferences Chosen() const;
    QCheckBox* ExplainBox() const { return m_explain; }
    QCheckBox* GridBox() const { return m_grid; }
    QCheckBox* HintBox() const { return m_hint; }
    QCheckBox* OnScreenBox() const { return m_onScreen; }

private:
    QCheckBox* m_explain = nullptr;
    QCheckBox* m_grid = nullptr;
    QCheckBox* m_hint = nullptr;
    QCheckBox* m_onScreen = nullptr;
};

/// The aids as last chosen, kept with the window's placement (not in the learner file).
CoachingPreferences LoadCoachingPreferences();
/// Keeps the aids for the next start.
void SaveCoachingPreferences(const CoachingPreferences& preferences);
