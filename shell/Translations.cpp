#include "Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

QString InstallTranslations(QCoreApplication& application, const QLocale& locale)
{
    auto* own = new QTranslator(&application);
    if (!own->load(locale, QStringLiteral("zavoren"), QStringLiteral("_"), QStringLiteral(":/translations"))) {
        delete own;
        return QString();
    }
    application.installTranslator(own);
    // Qt's texts in the same language, when the system has them.
    auto* qt = new QTranslator(&application);
    if (qt->load(QLocale(own->language()), QStringLiteral("qtbase"), QStringLiteral("_"),
            QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        application.installTranslator(qt);
    else
        delete qt;
    return own->language();
}
