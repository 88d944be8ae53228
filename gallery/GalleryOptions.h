#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QCommandLineParser;
QT_END_NAMESPACE

/// What the command line asks for.
struct GalleryOptions
{
    Q_DECLARE_TR_FUNCTIONS(GalleryOptions)

public:
    bool listPages = false;
    QString page; ///< Id of the page; empty for the first one, or for every one in screenshots.
    QString classPictures; ///< Directory to render the pictures of the reference to; none if empty.
    QString screenshots; ///< Directory to render the pages to; a window is opened if empty.
    QString styleSheet; ///< Text of the style sheet; empty if none was named.
    QStringList directories; ///< Absolute paths.

    /**
     * Reads the arguments of the running application.
     *
     * Like QCommandLineParser::process(), prints what --help and --version ask for, and ends the
     * program. So does an unknown option. Returns false, with a message in \a error, if a value is
     * no good.
     */
    bool read(QString* error);

    /// Whether the arguments, given before there is an application, may ask for a window.
    static bool wantsWindow(int argc, const char* const* argv);

private:
    bool readValues(const QCommandLineParser& parser, QString* error);
    static bool readTarget(const QCommandLineParser& parser, const QString& name, QString* path,
                           QString* error);
    bool readPage(const QString& id, QString* error);
    bool readDirectories(const QStringList& paths, QString* error);
};
