#include "FieldPicture.h"

#include "Rendering.h"

#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

namespace {

/// A window that the field fills, and in which it has the focus.
class FieldWindow : public QWidget
{
public:
    explicit FieldWindow(ui::LineEdit* field)
    {
        setAttribute(Qt::WA_DontShowOnScreen);
        field->setParent(this);
        field->adjustSize();
        resize(field->size());
        show();
        QApplication::setActiveWindow(this);
        field->setFocus();
    }
};

void type(const QString& text, QWidget* field)
{
    for (const QChar character : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, character);
        QCoreApplication::sendEvent(field, &press);
    }
}

QPixmap together(QWidget* window, QWidget* popup)
{
    const QPoint offset = popup->pos() - window->geometry().topLeft();
    const QRect whole = window->rect().united(popup->rect().translated(offset));
    QPixmap picture(whole.size());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.drawPixmap(-whole.topLeft(), window->grab());
    painter.drawPixmap(offset - whole.topLeft(), popup->grab());
    return picture;
}

} // namespace

QPixmap fieldpicture::edited(ui::LineEdit* field, const QString& text)
{
    FieldWindow window(field);
    QCoreApplication::processEvents();
    type(text, field);
    return window.grab();
}

QPixmap fieldpicture::edited(ui::KeypadLineEdit* field, const QString& text)
{
    FieldWindow window(field);
    field->keypad()->setAttribute(Qt::WA_DontShowOnScreen); // before the event loop shows it
    rendering::waitUntil([field] { return field->keypad()->isVisible(); });
    type(text, field);
    return together(&window, field->keypad());
}
