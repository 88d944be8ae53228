#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPlainTextEdit>
#include <QPointer>
#include <QVector>
#include <QWidget>

class GalleryPage;
class SignalListener;
QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
class QPlainTextEdit;
class QWidget;
QT_END_NAMESPACE

/// Notices which demo widget of a page the user taps, or reaches with the Tab key. Disabled ones
/// count too.
class DemoWidgetPicker : public QObject
{
    Q_OBJECT

public:
    explicit DemoWidgetPicker(QObject* parent = nullptr);

    /// Watches \a page from now on; null for none.
    void setPage(GalleryPage* page);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void picked(QWidget* demoWidget);

private:
    QWidget* demoWidgetAround(QWidget* widget) const;

    QPointer<QWidget> m_page;
    QVector<QWidget*> m_demoWidgets; ///< Of the page; to compare with, not to use.
};

/// The code samples of classes, as the reference shows them.
class CodeView : public QWidget
{
    Q_OBJECT

public:
    explicit CodeView(QWidget* parent = nullptr);

    /// Offers the samples of \a classes, and shows the first one.
    void setClasses(const QStringList& classes);

    /// The lines of the sample of \a className, without the indentation that they have in common;
    /// empty if there is none.
    static QString sample(const QString& className);

private:
    QComboBox* m_choice;
    QPlainTextEdit* m_text;
};

/// Writes down the signals of objects as they come, with what they carry.
class SignalLog : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit SignalLog(QWidget* parent = nullptr);

    /// Listens to \a object, which it calls \a name. Signals of QWidget and QObject are left out,
    /// and so is what a field that hides its text would tell of it.
    void listenTo(QObject* object, const QString& name);

    /// Listens to nothing any more, and forgets what it has heard.
    void reset();

private:
    friend class SignalListener;

    void note(const QString& text);

    QList<SignalListener*> m_listeners;
    QString m_last;
    int m_repetitions = 0;
};

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

/// A coloured outline around the widget of a page that is being edited. Taps go through it.
class TargetMark : public QWidget
{
    Q_OBJECT

public:
    explicit TargetMark(QWidget* parent = nullptr);

    /// Lies around \a target from now on, on \a page, which it stands on; nowhere if it is null.
    void mark(QWidget* page, QWidget* target);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void follow();

    QPointer<QWidget> m_target;
};
