// Zavoren! Kanji Learning Program.

#include "CrashHandler.h"
#include "Startup.h"

#include <QApplication>
#include <QIcon>

#include <csignal>
#include <cstring>
#include <stdexcept>

namespace {

/// `--crash-test KIND` makes the program fail on purpose, to try the crash report.
[[noreturn]] void CrashOnPurpose(const char* kind)
{
    if (std::strcmp(kind, "exception") == 0)
        throw std::runtime_error("crash test");
    if (std::strcmp(kind, "abort") == 0)
        std::abort();
    std::raise(SIGSEGV);
    std::abort();
}

} // namespace

int main(int argc, char** argv)
{
    InstallCrashHandler(argv[0]);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Zavoren!"));
    QApplication::setOrganizationName(QStringLiteral("Zavoren"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/images/zavoren.png")));
    if (argc >= 2 && std::strcmp(argv[1], "--crash-report") == 0)
        return RunCrashReportHelper();
    if (argc >= 3 && std::strcmp(argv[1], "--crash-test") == 0)
        CrashOnPurpose(argv[2]);
    return RunZavoren(OptionsFromEnvironment());
}
