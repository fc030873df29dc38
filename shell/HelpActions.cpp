#include "HelpActions.h"

#include "AboutDialog.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMenuBar>
#include <QUrl>

bool OpenHelpContents(const UrlOpener& open)
{
    const QFileInfo document(QStringLiteral("Zavoren.html"));
    if (!document.isFile())
        return false;
    return open(QUrl::fromLocalFile(document.absoluteFilePath()));
}

void OpenMakerSite(const UrlOpener& open)
{
    open(QUrl(QString::fromLatin1(MakerSite)));
}

void ShowAbout(const UrlOpener& open, QWidget* owner)
{
    AboutDialog about(open, owner);
    about.exec();
}

QString VersionText()
{
#if defined(ZAVOREN_VERSION_MAJOR) && defined(ZAVOREN_VERSION_MINOR) && defined(ZAVOREN_VERSION_PATCH)
    return QString::asprintf("v%d.%d.%d", ZAVOREN_VERSION_MAJOR, ZAVOREN_VERSION_MINOR, ZAVOREN_VERSION_PATCH);
#else
    return QCoreApplication::translate("AboutDialog", "unknown version");
#endif
}

void AddHelpMenu(QMenuBar* bar, const UrlOpener& open, QWidget* owner)
{
    // The menu bar is the main window's: its texts are translated as the window's.
    auto text = [](const char* source) { return QCoreApplication::translate("MainWindow", source); };
    auto add = [owner](QMenu* menu, const QString& caption, const char* name, auto slot) {
        QAction* action = menu->addAction(caption, owner, slot);
        action->setObjectName(QLatin1String(name));
        return action;
    };
    QMenu* help = bar->addMenu(text(QT_TRANSLATE_NOOP("MainWindow", "&Help")));
    add(help, text(QT_TRANSLATE_NOOP("MainWindow", "Contents")), "contentsAction", [open] { OpenHelpContents(open); });
    QMenu* links = help->addMenu(text(QT_TRANSLATE_NOOP("MainWindow", "Links")));
    add(links, text(QT_TRANSLATE_NOOP("MainWindow", "Quelmar Software site")), "siteAction", [open] {
        OpenMakerSite(open);
    })->setStatusTip(text(QT_TRANSLATE_NOOP("MainWindow", "Open Quelmar Software web site")));
    help->addSeparator();
    add(help, text(QT_TRANSLATE_NOOP("MainWindow", "About")), "aboutAction", [open, owner] {
        ShowAbout(open, owner);
    })->setStatusTip(text(QT_TRANSLATE_NOOP("MainWindow", "About Zavoren")));
}
