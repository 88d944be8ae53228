#include "PlainPopup.h"

#include <ui/keyboard/IKeypad.h>

#include <QVBoxLayout>

namespace bench {

QWidget* plainPopup(QWidget* field)
{
    using ui::keyboard::IKeypad;
    auto* popup = new QWidget(field, Qt::Popup);
    auto* layout = new QVBoxLayout(popup);
    layout->addWidget(IKeypad::create(ui::keyboard::KeyboardType::Integer, popup));
    return popup;
}

} // namespace bench
