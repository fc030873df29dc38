#pragma once

#include <QString>
#include <QStringList>

class Prompt;

/// What a run of the program is asked to do beyond the ordinary.
struct StartupOptions {
    /// Close the window right after the home page is first painted (start-up measurements).
    bool quitAfterFirstPaint = false;
    /// Name of the single-instance lock: copies started with different names run side by side.
    QString instanceName = QStringLiteral("Quelmar Zavoren! Kanji Learning Program");
};

/// Starts the program in the current folder (which holds `database` and `config.xml`), runs it
/// until its window closes and returns the exit code: 1 after a normal close, 0 for a second
/// copy or a start that failed or was cancelled. A QApplication must exist.
int RunZavoren(const StartupOptions& options, Prompt& prompt);

/// Reads the options from the command line (the program's name first):
/// `--quit-after-first-paint` closes the window normally right after the home page's first
/// paint (start-up measurements); `--instance-name NAME` names the single-instance lock, so that
/// separate data folders can run side by side.
StartupOptions OptionsFromArguments(const QStringList& arguments);
