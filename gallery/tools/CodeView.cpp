#include "Tools.h"

#include "Touch.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QPlainTextEdit>

#include <algorithm>

// The macro declares a function, which must be done outside of every namespace.
static void registerSamples()
{
    Q_INIT_RESOURCE(samples);
}

namespace {

/// What lies between the two lines that are \a mark in \a lines, if it is there.
QStringList between(const QStringList& lines, const QString& mark)
{
    const auto isMark = [&mark](const QString& line) { return line.trimmed() == mark; };
    const auto first = std::find_if(lines.cbegin(), lines.cend(), isMark);
    if (first == lines.cend())
        return {};
    const auto last = std::find_if(first + 1, lines.cend(), isMark);
    return lines.mid(int(first - lines.cbegin()) + 1, int(last - first) - 1);
}

int indentationOf(const QString& line)
{
    const QChar* first = std::find_if(line.cbegin(), line.cend(), [](QChar c) { return c != ' '; });
    return int(first - line.cbegin());
}

QString withoutIndentation(QStringList lines)
{
    int common = std::numeric_limits<int>::max();
    for (const QString& line : qAsConst(lines)) {
        if (!line.isEmpty())
            common = std::min(common, indentationOf(line));
    }
    for (QString& line : lines)
        line.remove(0, common);
    return lines.join(QLatin1Char('\n'));
}

} // namespace

CodeView::CodeView(QWidget* parent)
    : QWidget(parent)
    , m_choice(touch::makeComboBox())
    , m_text(new QPlainTextEdit)
{
    m_choice->setObjectName(QStringLiteral("classChoice"));
    m_text->setObjectName(QStringLiteral("code"));
    m_text->setReadOnly(true);
    m_text->setTextInteractionFlags(Qt::NoTextInteraction); // a drag scrolls
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setFrameShape(QFrame::NoFrame);
    m_text->setLayoutDirection(Qt::LeftToRight); // code is not mirrored
    touch::makeScrollable(m_text);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(m_choice);
    column->addWidget(m_text, 1);
    connect(m_choice, &QComboBox::currentTextChanged, this, [this](const QString& className) {
        touch::stopScrolling(m_text);
        m_text->setPlainText(sample(className));
    });
}

void CodeView::setClasses(const QStringList& classes)
{
    m_choice->clear();
    m_choice->addItems(classes);
    m_choice->setVisible(classes.size() > 1);
}

QString CodeView::sample(const QString& className)
{
    registerSamples();
    const QString mark = QStringLiteral("//! [%1]").arg(className);
    const QDir samples(QStringLiteral(":/samples"));
    const QStringList names = samples.entryList();
    for (const QString& name : names) {
        QFile file(samples.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
        const QStringList found = between(lines, mark);
        if (!found.isEmpty())
            return withoutIndentation(found);
    }
    return {};
}
