#include "WidgetMachine.h"

#include <QPixmap>

namespace soak {

namespace {

constexpr int largestPicture = 400;

QString styleSheet(Values& values)
{
    return values.oneOf({
        QString(),
        QStringLiteral("* { color: red; font-size: 9px; }"),
        QStringLiteral("QWidget { border: 3px solid blue; padding: 4px; margin: 2px; }"),
        QStringLiteral("*:disabled { background: green; } *[inputValid=\"false\"] { color: red; }"),
        QStringLiteral("this is { no style sheet"),
    });
}

void setPalette(WidgetMachine& machine, Values& values)
{
    QPalette palette = machine.widget()->palette();
    const auto role = QPalette::ColorRole(values.below(QPalette::NColorRoles));
    palette.setColor(QPalette::ColorGroup(values.below(QPalette::NColorGroups)), role,
                     values.color());
    machine.widget()->setPalette(values.below(8) == 0 ? QPalette() : palette);
}

void setFont(WidgetMachine& machine, Values& values)
{
    QFont font;
    font.setPixelSize(values.oneOf({1, 8, 14, 30, 200}));
    machine.widget()->setFont(font);
}

void paint(WidgetMachine& machine, Values& values)
{
    QWidget* widget = machine.widget();
    const QSize limit(largestPicture, largestPicture);
    widget->grab(QRect(values.pointIn(widget->size()), widget->size().boundedTo(limit)));
}

} // namespace

void addLooks(WidgetMachine& machine)
{
    machine.add("setStyleSheet", 1,
                [&](Values& v) { machine.widget()->setStyleSheet(styleSheet(v)); });
    machine.add("setWindowStyleSheet", 1, [&](Values& v) {
        machine.stage().window(v.boolean())->setStyleSheet(styleSheet(v));
    });
    machine.add("setPalette", 2, [&](Values& v) { setPalette(machine, v); });
    machine.add("setFont", 1, [&](Values& v) { setFont(machine, v); });
    machine.add("setLayoutDirection", 1, [&](Values& v) {
        machine.widget()->setLayoutDirection(v.boolean() ? Qt::LeftToRight : Qt::RightToLeft);
    });
    machine.add("setEnabled", 3, [&](Values& v) { machine.widget()->setEnabled(v.below(4) > 0); });
    machine.add("paint", 4, [&](Values& v) { paint(machine, v); });
}

} // namespace soak
