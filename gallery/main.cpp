#include "Appearance.h"
#include "GalleryOptions.h"
#include "GalleryWindow.h"
#include "pages/Pages.h"
#include "reference/ClassPictures.h"
#include "Screenshots.h"
#include "TouchStyle.h"
#include "Translations.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QScreen>
#include <QTextStream>

#include <algorithm>
#include <cstdlib>

namespace {

struct Main
{
    Q_DECLARE_TR_FUNCTIONS(Main)
};

int fail(const QString& message)
{
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << message << Qt::endl;
    return EXIT_FAILURE;
}

bool platformIsChosen(int argc, const char* const* argv)
{
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM")
        || std::any_of(argv + qMin(argc, 1), argv + argc, [](const QByteArray& argument) {
               return argument == "-platform" || argument == "--platform";
           });
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

int listPages()
{
    QTextStream out(stdout);
    const QVector<PageEntry> pages = allPages();
    for (const PageEntry& entry : pages)
        out << entry.id << '\t' << entry.title << '\n';
    return EXIT_SUCCESS;
}

bool makeDirectory(const QDir& directory, QString* error)
{
    const bool made = directory.mkpath(QStringLiteral("."));
    if (!made)
        *error = Main::tr("cannot make the directory \"%1\"")
                     .arg(QDir::toNativeSeparators(directory.path()));
    return made;
}

int renderClasses(const QDir& directory)
{
    QTextStream out(stdout);
    QString error;
    const bool rendered = makeDirectory(directory, &error)
        && takeClassPictures(stategalleries::all(), directory, out, &error);
    return rendered ? EXIT_SUCCESS : fail(error);
}

int renderPages(const GalleryOptions& options, const QDir& directory)
{
    QVector<PageEntry> pages = allPages(options.directories);
    pages.erase(std::remove_if(pages.begin(), pages.end(),
                               [&options](const PageEntry& entry) {
                                   return !options.page.isEmpty() && entry.id != options.page;
                               }),
                pages.end());

    QTextStream out(stdout);
    QString error;
    const bool rendered = makeDirectory(directory, &error)
        && takeScreenshots(pages, directory, options.styleSheet, out, &error);
    return rendered ? EXIT_SUCCESS : fail(error);
}

int openWindow(const GalleryOptions& options)
{
    GalleryWindow window(allPages(options.directories), options.styleSheet);
    if (!options.page.isEmpty())
        window.showPage(options.page);
    // On a small screen a window's frame would take from the little that there is.
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    if (screen.width() <= window.width() || screen.height() <= window.height())
        window.showMaximized();
    else
        window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    const bool canOpenWindow = platformIsChosen(argc, argv) || hasDisplay();
    if (!platformIsChosen(argc, argv) && !(hasDisplay() && GalleryOptions::wantsWindow(argc, argv)))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    // The same look everywhere, and one that follows the palette.
    QApplication::setDesktopSettingsAware(false);
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("platform-widgets-gallery"));
    QApplication::setApplicationVersion(QStringLiteral(GALLERY_VERSION));
    installTranslations(QLocale());

    GalleryOptions options;
    QString error;
    if (!options.read(&error))
        return fail(error);

    if (options.listPages)
        return listPages();
    if (!options.classPictures.isEmpty())
        return renderClasses(options.classPictures);
    TouchStyle::install();
    if (!options.screenshots.isEmpty())
        return renderPages(options, options.screenshots);
    if (canOpenWindow)
        return openWindow(options);

    const QString path = QDir::current().absoluteFilePath(QStringLiteral("gallery-screenshots"));
    QTextStream(stderr)
        << Main::tr("There is no display. The pages are rendered to \"%1\":").arg(path) << Qt::endl;
    return renderPages(options, path);
}
