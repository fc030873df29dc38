// Zavoren! Kanji Learning Program.

#include "CrashHandler.h"
#include "Startup.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char** argv)
{
    InstallCrashHandler(argv[0]);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Zavoren!"));
    QApplication::setOrganizationName(QStringLiteral("Zavoren"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/images/zavoren.png")));
    return RunZavoren(OptionsFromEnvironment());
}
