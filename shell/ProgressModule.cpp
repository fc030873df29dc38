#include "ProgressModule.h"

#include <QCoreApplication>
#include <QDir>
#include <QPluginLoader>

ProgressViewFactory* LoadProgressModule(QString& error)
{
    static QPluginLoader loader(
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("zavoren-progress.so")));
    QObject* instance = loader.instance();
    auto* factory = qobject_cast<ProgressViewFactory*>(instance);
    if (!factory)
        error = instance
            ? QCoreApplication::translate("ProgressViewer", "%1 is not the progress module").arg(loader.fileName())
            : loader.errorString();
    return factory;
}
