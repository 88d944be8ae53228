#include "Samples.h"

#include <ui/KeypadLineEdit.h>

#include <QMessageBox>
#include <QTimer>
#include <QVBoxLayout>

namespace {

//! [MovingOn]
/// Calls \a action once the edit whose signal is being handled is over: the field has given up the
/// focus in the next iteration of the event loop, and its keypad is gone in the one after.
template <typename Action>
void afterTheEdit(QObject* context, const Action& action)
{
    QTimer::singleShot(0, context, [context, action] { QTimer::singleShot(0, context, action); });
}

/// OK in the first field leads to the second, OK in the second to a question.
void connectFields(QWidget* window, ui::LineEdit* host, ui::LineEdit* port)
{
    QObject::connect(host, &ui::LineEdit::valueChanged, port,
                     [port] { afterTheEdit(port, [port] { port->setFocus(); }); });

    QObject::connect(port, &ui::LineEdit::valueChanged, window, [window, host, port] {
        afterTheEdit(window, [window, host, port] {
            const QString address = host->text() + ':' + port->text();
            QMessageBox::question(window, QObject::tr("Connect"),
                                  QObject::tr("Connect to %1?").arg(address));
        });
    });
}
//! [MovingOn]

} // namespace

void samples::movingOn(QWidget* window)
{
    auto* host = new ui::KeypadLineEdit(window, ui::keyboard::KeyboardType::Text);
    auto* port = new ui::KeypadLineEdit(window, ui::keyboard::KeyboardType::Integer);
    auto* layout = new QVBoxLayout(window);
    layout->addWidget(host);
    layout->addWidget(port);
    connectFields(window, host, port);
}
