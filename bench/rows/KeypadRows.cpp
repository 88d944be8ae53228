#include "Rows.h"

#include "PlainPopup.h"

#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPixmapCache>

#include <memory>

namespace bench {

namespace {

/// Notes the first paint event in a window, be it of a child that covers the rest.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget* window)
        : m_window(window)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            m_painted = m_painted || static_cast<QWidget*>(watched)->window() == m_window;
        return false;
    }

    void wait() const
    {
        while (!m_painted)
            QCoreApplication::processEvents();
    }

private:
    QWidget* m_window;
    bool m_painted = false;
};

/// The window of a field, which has the focus while its keypad is open.
class FieldWindow : public QWidget
{
public:
    explicit FieldWindow(QWidget* field)
        : m_field(field)
    {
        setFocusPolicy(Qt::StrongFocus);
        setFocus();
        field->setParent(this);
        show();
        activateWindow();
        QCoreApplication::processEvents();
    }

    void focusField()
    {
        m_field->setFocus(Qt::MouseFocusReason);
    }

    void leaveField(QWidget* keypad)
    {
        keypad->hide();
        setFocus();
        QCoreApplication::processEvents();
    }

private:
    QWidget* m_field;
};

/// The field brings its keypad by itself.
class OwnForm
{
public:
    void open()
    {
        m_window.focusField();
        PaintWatch(m_field->keypad()).wait();
    }
    void close()
    {
        m_window.leaveField(m_field->keypad());
    }

private:
    ui::KeypadLineEdit* m_field =
        new ui::KeypadLineEdit(nullptr, ui::keyboard::KeyboardType::Integer);
    FieldWindow m_window{m_field};
};

/// A program makes and shows the pop-up when the field gets the focus.
class PlainForm
{
public:
    void open()
    {
        m_window.focusField();
        if (!m_popup)
            m_popup = plainPopup(m_field);
        m_popup->move(m_field->mapToGlobal(QPoint(0, m_field->height())));
        const PaintWatch watch(m_popup);
        m_popup->show();
        watch.wait();
    }
    void close()
    {
        m_window.leaveField(m_popup);
    }

private:
    QLineEdit* m_field = new QLineEdit;
    FieldWindow m_window{m_field};
    QWidget* m_popup = nullptr;
};

/// Of the first field of an application, whose style has painted no key yet, or of another one.
template <typename Form, bool anotherField>
Work openFirst()
{
    const auto form = std::make_shared<std::unique_ptr<Form>>();
    return Work([form] { (*form)->open(); },
                [form] {
                    form->reset();
                    *form = std::make_unique<Form>();
                    if (!anotherField)
                        QPixmapCache::clear();
                });
}

template <typename Form>
Work openAgain()
{
    const auto form = std::make_shared<Form>();
    form->open();
    return Work([form] { form->open(); }, [form] { form->close(); });
}

} // namespace

QVector<Row> keypadRows()
{
    const QString counterpart = QStringLiteral("QLineEdit and the keypad in a plain pop-up");
    return {
        {QStringLiteral("keypad, first opening"),
         openFirst<OwnForm, false>,
         counterpart,
         openFirst<PlainForm, false>,
         {}},
        {QStringLiteral("keypad, first opening by a second field"),
         openFirst<OwnForm, true>,
         counterpart,
         openFirst<PlainForm, true>,
         {}},
        {QStringLiteral("keypad, later opening"),
         openAgain<OwnForm>,
         counterpart,
         openAgain<PlainForm>,
         {}},
    };
}

} // namespace bench
