#pragma once

#include "SheetLayout.h"

class QLocale;

/// The practice sheet's choices as the learner left them, kept in the program's settings file;
/// the paper, until chosen, is the one used where the learner lives (Letter in the Americas'
/// Letter countries, A4 elsewhere).
class SheetSettings {
public:
    static SheetOptions Load();
    static void Store(const SheetOptions& options);
    /// The paper sold in the locale's country.
    static Paper LocalPaper(const QLocale& locale);
};
