#include "Samples.h"

#include <ui/KeypadPopup.h>
#include <ui/LineEdit.h>

void samples::keypadPopup(QWidget* window)
{
    //! [KeypadPopup]
    auto* field = new ui::LineEdit(window);
    auto* popup =
        new ui::KeypadPopup(field, QObject::tr("Port"), ui::keyboard::KeyboardType::Integer, -1);
    QObject::connect(popup, &ui::KeypadPopup::signalOk, field, &ui::LineEdit::signalOkKey);
    QObject::connect(popup, &ui::KeypadPopup::signalCancel, field, &ui::LineEdit::signalCancelKey);
    QObject::connect(field, &QLineEdit::editingFinished, popup, &QWidget::hide);

    popup->locatePopup(); // each time before it is shown
    popup->show();
    //! [KeypadPopup]
}
