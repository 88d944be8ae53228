#include "Reference.h"

#include <QCoreApplication>
#include <QDir>

QString reference::classPage(const QString& className)
{
    // As the tool that writes the reference names its files.
    QString name = className;
    name.replace(QLatin1String("::"), QLatin1String("_1_1"));
    const QDir programs(QCoreApplication::applicationDirPath());
    for (const char* directory : {GALLERY_REFERENCE_INSTALLED, GALLERY_REFERENCE_BUILT}) {
        const QString path = programs.filePath(
            QStringLiteral("%1/class%2.html").arg(QLatin1String(directory), name));
        if (QFile::exists(path))
            return QDir::cleanPath(path);
    }
    return {};
}

QString reference::shortName(const QString& className)
{
    return className.section(QLatin1String("::"), -1);
}
