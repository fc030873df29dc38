// Zavoren! Kanji Learning Program.

#include "CrashHandler.h"
#include "DisplayCheck.h"
#include "MessageBoxPrompt.h"
#include "Startup.h"
#include "StoredPicture.h"
#include "Translations.h"

#include <QApplication>

#include <csignal>
#include <cstdio>
#include <cstring>
#include <string>

int main(int argc, char** argv)
{
    // The crash report helper is this program too; it must never report on itself, or a fault
    // it shares with the program (no display, say) would start helper after helper.
    const bool reportHelper = argc >= 2 && std::strcmp(argv[1], "--crash-report") == 0;
    // Past a file-size limit a write then fails with an error the learner is told about, instead
    // of the signal ending the program and its unsaved progress with it.
    std::signal(SIGXFSZ, SIG_IGN);
    if (const std::string problem = MissingDisplayProblem(argc, argv); !problem.empty()) {
        if (reportHelper)
            return 0; // nobody to ask: leave quietly
        std::fprintf(stderr, "%s\n", problem.c_str());
        return 2;
    }
    if (!reportHelper)
        InstallCrashHandler();
    DisplayStartWatch watch(reportHelper ? 0 : 2, reportHelper);
    QApplication app(argc, argv);
    watch.Started();
    QApplication::setApplicationName(QStringLiteral("Zavoren!"));
    QApplication::setOrganizationName(QStringLiteral("Zavoren"));
    QApplication::setWindowIcon(ProgramIcon());
    // The learner's language (LANGUAGE, LC_ALL, LC_MESSAGES, LANG), English otherwise.
    InstallTranslations(app, QLocale::system());
    MessageBoxPrompt prompt;
    if (reportHelper)
        return RunCrashReportHelper(prompt, CrashReportFolder());
    return RunZavoren(OptionsFromArguments(QApplication::arguments()), prompt);
}
