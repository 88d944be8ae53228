#include "Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

// The macro declares a function, which must be done outside of every namespace.
static void registerResources()
{
    Q_INIT_RESOURCE(translations);
}

namespace {

/// Whether there is a translation \a name for the locale in \a directory.
bool install(const QLocale& locale, const QString& name, const QString& directory)
{
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    return translator->load(locale, name, QStringLiteral("_"), directory)
        && QCoreApplication::installTranslator(translator.release());
}

/// Where Qt's own translations are; Qt 6 has another name for the function.
QString translationsOfQt()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

} // namespace

void installTranslations(const QLocale& locale)
{
    registerResources();
    if (install(locale, QStringLiteral("gallery"), QStringLiteral(":/translations")))
        install(locale, QStringLiteral("qtbase"), translationsOfQt());
}
