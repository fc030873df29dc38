#pragma once

#include "CoachingPreferences.h"

#include <QDialog>

class QCheckBox;
class QDoubleSpinBox;
class QSpinBox;

/// Tools > Preferences: the aids, each a check box, and the schedule of the reviews.
class PreferencesDialog : public QDialog {
    Q_OBJECT
public:
    explicit PreferencesDialog(const CoachingPreferences& preferences, QWidget* parent = nullptr);

    /// The aids as the boxes are ticked.
    CoachingPreferences Chosen() const;

private:
    QCheckBox* m_explain = nullptr;
    QCheckBox* m_grid = nullptr;
    QCheckBox* m_hint = nullptr;
    QCheckBox* m_onScreen = nullptr;
    QCheckBox* m_ownFrame = nullptr;
    QCheckBox* m_otherOrders = nullptr;
    QCheckBox* m_steady = nullptr;
    QCheckBox* m_writingOnly = nullptr;
    QCheckBox* m_reviews = nullptr;
    QCheckBox* m_words = nullptr;
    QCheckBox* m_wordAfterAnswer = nullptr;
    QCheckBox* m_wordsTest = nullptr;
    QCheckBox* m_sheets = nullptr;
    QDoubleSpinBox* m_retention = nullptr;
    QSpinBox* m_interval = nullptr;
    QSpinBox* m_sitting = nullptr;
};
