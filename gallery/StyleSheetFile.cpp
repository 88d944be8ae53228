#include "StyleSheetFile.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QVector>
#include <QWidget>

#include <algorithm>

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

/// What Qt has warned of since the last use; a message handler can have no context of its own.
QStringList& warnings()
{
    static QStringList list;
    return list;
}

void keepWarning(QtMsgType, const QMessageLogContext&, const QString& message)
{
    warnings().append(message);
}

/// Qt offers no check of a style sheet: it only warns once a widget is to be styled by it.
template <typename Function>
QStringList warningsOf(const Function& function)
{
    warnings().clear();
    const QtMessageHandler handler = qInstallMessageHandler(keepWarning);
    function();
    qInstallMessageHandler(handler);
    return warnings();
}

bool isParsingFailure(const QString& warning)
{
    return warning.startsWith(QLatin1String("Could not parse"));
}

QStringList warningsOfRule(const QString& rule)
{
    return warningsOf([&rule] {
        QWidget widget;
        widget.setStyleSheet(rule);
        widget.ensurePolished();
    });
}

struct Rule
{
    QString selector;
    QString declarations; ///< With their braces.
    int line;
};

/// The same length and lines, blanks in place of the comments.
QString withoutComments(QString text)
{
    int start = text.indexOf(QLatin1String("/*"));
    while (start >= 0) {
        const int found = text.indexOf(QLatin1String("*/"), start + 2);
        const int end = found < 0 ? text.size() : found + 2;
        for (int i = start; i < end; ++i) {
            if (text.at(i) != QLatin1Char('\n'))
                text[i] = QLatin1Char(' ');
        }
        start = text.indexOf(QLatin1String("/*"), end);
    }
    return text;
}

/// The rules of a style sheet, the last one as far as it goes.
QVector<Rule> rulesOf(const QString& styleSheet)
{
    const QString text = withoutComments(styleSheet);
    QVector<Rule> rules;
    int start = 0;
    while (!text.mid(start).trimmed().isEmpty()) {
        while (text.at(start).isSpace())
            ++start;
        const int found = int(text.indexOf(QLatin1Char('}'), start));
        const int end = found < 0 ? int(text.size()) : found + 1;
        const QString rule = text.mid(start, end - start);
        const int brace = qMax(0, int(rule.indexOf(QLatin1Char('{'))));
        const auto linesBefore =
            int(std::count(text.cbegin(), text.cbegin() + start, QLatin1Char('\n')));
        rules.append({rule.left(brace), rule.mid(brace), linesBefore + 1});
        start = end;
    }
    return rules;
}

/// Qt wraps what has no braces into a rule of its own, and names unknown properties only to a
/// widget that the rule is for.
QStringList errorsOf(const Rule& rule)
{
    const QStringList ofSelector = warningsOfRule(rule.selector + QStringLiteral("{}"));
    const QStringList ofDeclarations = warningsOfRule(QLatin1Char('*') + rule.declarations);
    const QStringList all = ofSelector + ofDeclarations;
    if (rule.selector.trimmed().isEmpty()
        || std::any_of(all.cbegin(), all.cend(), isParsingFailure))
        return {StyleSheetFile::tr("line %1: this rule is not well-formed").arg(rule.line)};

    const QString unknown = QStringLiteral("Unknown property ");
    QStringList errors;
    for (const QString& warning : ofDeclarations) {
        const QString error = StyleSheetFile::tr("line %1: there is no property \"%2\"")
                                  .arg(rule.line)
                                  .arg(warning.mid(unknown.size()));
        if (warning.startsWith(unknown) && !errors.contains(error))
            errors.append(error);
    }
    return errors;
}

} // namespace

bool isWellFormed(const QString& styleSheet)
{
    const QString before = qApp->styleSheet();
    const QStringList warned = warningsOf([&styleSheet, &before] {
        qApp->setStyleSheet(styleSheet);
        QWidget().ensurePolished();
        qApp->setStyleSheet(before);
    });
    return std::none_of(warned.cbegin(), warned.cend(), isParsingFailure);
}

QStringList styleSheetErrors(const QString& styleSheet)
{
    QStringList errors;
    const QVector<Rule> rules = rulesOf(styleSheet);
    for (const Rule& rule : rules)
        errors += errorsOf(rule);
    if (errors.isEmpty() && !isWellFormed(styleSheet))
        errors.append(StyleSheetFile::tr("the style sheet is not well-formed"));
    return errors;
}

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
