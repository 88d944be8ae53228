#include "StyleSheetFile.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QWidget>

// The macro declares a function, which must be done outside of every namespace.
static void registerResources()
{
    Q_INIT_RESOURCE(gallery);
}

namespace {

struct StyleSheetFile
{
    Q_DECLARE_TR_FUNCTIONS(StyleSheetFile)
};

bool parsingFailed = false;

void watchParser(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (message.startsWith(QLatin1String("Could not parse application stylesheet")))
        parsingFailed = true;
}

/// Qt offers no check of a style sheet: it only warns once the first widget is to be styled by it.
bool isWellFormed(const QString& styleSheet)
{
    const QString before = qApp->styleSheet();
    parsingFailed = false;
    const QtMessageHandler handler = qInstallMessageHandler(watchParser);
    qApp->setStyleSheet(styleSheet);
    QWidget().ensurePolished();
    qApp->setStyleSheet(before);
    qInstallMessageHandler(handler);
    return !parsingFailed;
}

} // namespace

QString exampleStyleSheet()
{
    registerResources();
    QFile file(QStringLiteral(":/gallery/example.qss"));
    file.open(QIODevice::ReadOnly);
    return QString::fromUtf8(file.readAll());
}

std::optional<QString> readStyleSheet(const QString& path, QString* error)
{
    const QString name = QDir::toNativeSeparators(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = StyleSheetFile::tr("cannot read the style sheet \"%1\": %2")
                     .arg(name, file.errorString());
        return std::nullopt;
    }
    const QString styleSheet = QString::fromUtf8(file.readAll());
    if (file.error() != QFile::NoError) {
        *error = StyleSheetFile::tr("cannot read the style sheet \"%1\": %2")
                     .arg(name, file.errorString());
        return std::nullopt;
    }
    if (!isWellFormed(styleSheet)) {
        *error = StyleSheetFile::tr("\"%1\" is not a well-formed style sheet").arg(name);
        return std::nullopt;
    }
    return styleSheet;
}
