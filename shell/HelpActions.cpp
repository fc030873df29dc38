#include "HelpActions.h"

#include "AboutDialog.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

bool OpenHelpContents()
{
    const QFileInfo document(QStringLiteral("Zavoren.html"));
    if (!document.isFile())
        return false;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(document.absoluteFilePath()));
}

void OpenMakerSite()
{
    QDesktopServices::openUrl(QUrl(QString::fromLatin1(MakerSite)));
}

void ShowAbout(QWidget* owner)
{
    AboutDialog about(owner);
    about.exec();
}

QString VersionText()
{
#if defined(ZAVOREN_VERSION_MAJOR) && defined(ZAVOREN_VERSION_MINOR) && defined(ZAVOREN_VERSION_PATCH)
    return QString::asprintf("v%d.%d.%d", ZAVOREN_VERSION_MAJOR, ZAVOREN_VERSION_MINOR, ZAVOREN_VERSION_PATCH);
#else
    return QStringLiteral("unknown version");
#endif
}
