#pragma once

#include <QBasicTimer>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QPlainTextEdit;
QT_END_NAMESPACE

/// A style sheet to be written, which takes effect while it is; what is wrong with it is told
/// below.
class StyleSheetEditor : public QWidget
{
    Q_OBJECT

public:
    explicit StyleSheetEditor(QWidget* parent = nullptr);

    QString text() const;
    void setText(const QString& text);

Q_SIGNALS:
    /// The user has written \a styleSheet, which is well-formed.
    void edited(const QString& styleSheet);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void check();

    QPlainTextEdit* m_text;
    QLabel* m_message;
    QBasicTimer m_timer;
};
