#include "Tools.h"

#include "StyleSheetFile.h"
#include "Touch.h"

#include <QBoxLayout>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTimerEvent>

namespace {

/// Milliseconds after the last key: a style sheet polishes every widget anew.
constexpr int delay = 400;

} // namespace

StyleSheetEditor::StyleSheetEditor(QWidget* parent)
    : QWidget(parent)
    , m_text(new QPlainTextEdit)
    , m_message(touch::makeLabel())
{
    m_text->setObjectName(QStringLiteral("styleSheetText"));
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setFrameShape(QFrame::NoFrame);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setLayoutDirection(Qt::LeftToRight); // code is not mirrored
    touch::makeScrollable(m_text);
    m_message->setObjectName(QStringLiteral("styleSheetMessage"));
    m_message->setContentsMargins(4, 0, 4, 4);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(m_text, 1);
    column->addWidget(m_message);
    connect(m_text, &QPlainTextEdit::textChanged, this, [this] { m_timer.start(delay, this); });
}

QString StyleSheetEditor::text() const
{
    return m_text->toPlainText();
}

void StyleSheetEditor::setText(const QString& text)
{
    m_text->setPlainText(text);
    m_timer.stop();
    m_message->clear();
    m_message->hide();
}

void StyleSheetEditor::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId())
        return;
    m_timer.stop();
    check();
}

void StyleSheetEditor::check()
{
    const QStringList errors = styleSheetErrors(text());
    m_message->setText(errors.join(QLatin1Char('\n')));
    m_message->setVisible(!errors.isEmpty());
    if (isWellFormed(text()))
        Q_EMIT edited(text());
}
