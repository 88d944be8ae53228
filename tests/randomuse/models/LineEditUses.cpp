#include "LineEditUses.h"

#include <ui/LineEdit.h>

#include <QDoubleValidator>
#include <QRegularExpressionValidator>

namespace soak {

namespace {

ui::LineEdit& field(WidgetMachine& machine)
{
    return static_cast<ui::LineEdit&>(*machine.widget());
}

void setValidator(ui::LineEdit& edit, Values& values)
{
    delete edit.validator();
    switch (values.below(4)) {
    case 0:
        edit.setValidator(new QIntValidator(values.integer(), values.integer(), &edit));
        break;
    case 1:
        edit.setValidator(new QDoubleValidator(-10, values.below(1000), 2, &edit));
        break;
    case 2:
        edit.setValidator(new QRegularExpressionValidator(
            QRegularExpression(QStringLiteral("[a-z]{3,8}")), &edit));
        break;
    default:
        edit.setValidator(nullptr);
    }
}

} // namespace

void addLineEditUses(WidgetMachine& machine)
{
    machine.add("setText", 4, [&](Values& v) { field(machine).setText(v.text()); });
    machine.add("insert", 2, [&](Values& v) { field(machine).insert(v.text()); });
    machine.add("setMaxLength", 1, [&](Values& v) {
        field(machine).setMaxLength(v.oneOf({-1, 0, 3, 32767}));
    });
    machine.add("setValidator", 2, [&](Values& v) { setValidator(field(machine), v); });
    machine.add("setReadOnly", 1, [&](Values& v) { field(machine).setReadOnly(v.below(4) == 0); });
    machine.add("setEchoMode", 1,
                [&](Values& v) { field(machine).setEchoMode(QLineEdit::EchoMode(v.below(4))); });
    machine.add("select", 2, [&](Values& v) {
        const int start = v.below(field(machine).text().size() + 1);
        field(machine).setSelection(start, v.integer() / 2); // Qt adds the two up
    });
    machine.add("undo", 1,
                [&](Values& v) { v.boolean() ? field(machine).undo() : field(machine).redo(); });
    machine.add("commit", 2, [&](Values&) { Q_EMIT field(machine).signalOkKey(); });
    machine.add("cancel", 2, [&](Values&) { Q_EMIT field(machine).signalCancelKey(); });
}

} // namespace soak
