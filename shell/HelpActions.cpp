#include "HelpActions.h"

#include "AboutDialog.h"

#include <QFileInfo>
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
