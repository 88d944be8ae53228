#include "Samples.h"

#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QIntValidator>

void samples::keypadLineEdit(QWidget* window)
{
    //! [KeypadLineEdit]
    auto* port = new ui::KeypadLineEdit(window, ui::keyboard::KeyboardType::Integer);
    port->setValidator(new QIntValidator(1, 65535, port));
    QObject::connect(port, &ui::LineEdit::valueChanged, port,
                     [port] { qInfo("The port is %d", port->text().toInt()); });
    QObject::connect(port, &ui::KeypadLineEdit::startKeypad, port,
                     [port] { port->keypad()->setSubtitleLabel(QObject::tr("Port")); });
    //! [KeypadLineEdit]
}
