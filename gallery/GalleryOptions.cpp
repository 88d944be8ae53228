#include "GalleryOptions.h"

#include "pages/Pages.h"
#include "StyleSheetFile.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

QStringList pageIds()
{
    QStringList ids;
    const QVector<PageEntry> pages = allPages();
    for (const PageEntry& entry : pages)
        ids.append(entry.id);
    return ids;
}

const QString classPicturesName = QStringLiteral("class-pictures");
const QString listPagesName = QStringLiteral("list-pages");
const QString pageName = QStringLiteral("page");
const QString screenshotsName = QStringLiteral("screenshots");
const QString styleSheetName = QStringLiteral("style-sheet");

void describe(QCommandLineParser& parser)
{
    parser.setApplicationDescription(GalleryOptions::tr("Shows every widget of the library live."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({classPicturesName,
                      GalleryOptions::tr("Render the states of every class, as the reference shows "
                                         "them, to PNG files in DIR and print their paths."),
                      QStringLiteral("DIR")});
    parser.addOption(
        {screenshotsName,
         GalleryOptions::tr("Render every page to PNG files in DIR and print their paths."),
         QStringLiteral("DIR")});
    parser.addOption({styleSheetName, GalleryOptions::tr("Apply the application style sheet FILE."),
                      QStringLiteral("FILE")});
    parser.addOption({pageName,
                      GalleryOptions::tr("Show the page ID first, or render that page alone."),
                      QStringLiteral("ID")});
    parser.addOption({listPagesName, GalleryOptions::tr("List the pages: id and title.")});
    parser.addPositionalArgument(QStringLiteral("directory"),
                                 GalleryOptions::tr("A root directory of the file browser page."),
                                 QStringLiteral("[directory...]"));
}

} // namespace

bool GalleryOptions::read(QString* error)
{
    QCommandLineParser parser;
    describe(parser);
    parser.process(QCoreApplication::arguments());
    return readValues(parser, error);
}

bool GalleryOptions::readValues(const QCommandLineParser& parser, QString* error)
{
    listPages = parser.isSet(listPagesName);
    if (!readTarget(parser, classPicturesName, &classPictures, error)
        || !readTarget(parser, screenshotsName, &screenshots, error))
        return false;
    if (parser.isSet(styleSheetName)) {
        const auto text = readStyleSheet(parser.value(styleSheetName), error);
        if (!text)
            return false;
        styleSheet = *text;
    }
    if (parser.isSet(pageName) && !readPage(parser.value(pageName), error))
        return false;
    return readDirectories(parser.positionalArguments(), error);
}

bool GalleryOptions::readTarget(const QCommandLineParser& parser, const QString& name,
                                QString* path, QString* error)
{
    *path = parser.value(name);
    const bool accepted = !parser.isSet(name) || !path->isEmpty();
    if (!accepted)
        *error = tr("--%1 needs the name of a directory").arg(name);
    return accepted;
}

bool GalleryOptions::readPage(const QString& id, QString* error)
{
    const QStringList ids = pageIds();
    if (!ids.contains(id)) {
        *error = tr("there is no page \"%1\"; the pages are: %2")
                     .arg(id, ids.join(QStringLiteral(", ")));
        return false;
    }
    page = id;
    return true;
}

bool GalleryOptions::readDirectories(const QStringList& paths, QString* error)
{
    for (const QString& path : paths) {
        const QFileInfo info(path);
        if (!info.isDir()) {
            *error = tr("\"%1\" is not a directory").arg(QDir::toNativeSeparators(path));
            return false;
        }
        directories.append(QDir::cleanPath(info.absoluteFilePath()));
    }
    return true;
}

bool GalleryOptions::wantsWindow(int argc, const char* const* argv)
{
    static const QStringList windowless = {QStringLiteral("-h"),
                                           QStringLiteral("--help"),
                                           QStringLiteral("--help-all"),
                                           QStringLiteral("-v"),
                                           QStringLiteral("--version"),
                                           QStringLiteral("--") + classPicturesName,
                                           QStringLiteral("--") + listPagesName,
                                           QStringLiteral("--") + screenshotsName};
    return std::none_of(argv + qMin(argc, 1), argv + argc, [](const char* argument) {
        return windowless.contains(
            QString::fromLocal8Bit(argument).section(QLatin1Char('='), 0, 0));
    });
}
