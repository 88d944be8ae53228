#include "DemoParts.h"
#include "GalleryPage.h"
#include "Pages.h"
#include "Touch.h"

#include <Switch.h>

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>

namespace {

const QColor blue(33, 150, 243);
const QColor green(76, 175, 80);
const QColor orange(255, 152, 0);

/// In two columns, each switch as wide as its text and no wider: else a mirrored text would lie
/// beside the next column's switch.
QLayout* makeGrid(const QList<Switch*>& switches)
{
    auto* grid = new QGridLayout;
    for (int i = 0; i < switches.size(); ++i)
        grid->addWidget(switches.at(i), i / 2, i % 2, Qt::AlignLeft);
    for (const int column : {0, 1})
        grid->setColumnStretch(column, 1);
    return grid;
}

/// The switch in all its states, in colours and times of the application's choice, and in a group.
class SwitchPage : public GalleryPage
{
    Q_DECLARE_TR_FUNCTIONS(SwitchPage)

public:
    explicit SwitchPage(QWidget* parent = nullptr);

private:
    Switch* addSwitch(Switch* control, const QString& name);
    QLayout* makePlain();
    QLayout* makeLabelled();
    QLayout* makeCustom();
    QLayout* makeGroup();
};

SwitchPage::SwitchPage(QWidget* parent)
    : GalleryPage(parent)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->addWidget(touch::makeHeading(tr("As it comes: off, on, disabled")));
    column->addLayout(makePlain());
    column->addWidget(touch::makeHeading(tr("With a label")));
    column->addLayout(makeLabelled());
    column->addWidget(touch::makeHeading(tr("Colours, times and directions")));
    column->addLayout(makeCustom());
    column->addWidget(touch::makeHeading(tr("One of three")));
    column->addLayout(makeGroup());
    column->addStretch();
}

Switch* SwitchPage::addSwitch(Switch* control, const QString& name)
{
    touch::followPalette(control);
    addDemoWidget(control, name);
    return control;
}

QLayout* SwitchPage::makePlain()
{
    auto* row = new QHBoxLayout;
    for (const bool enabled : {true, false}) {
        for (const bool on : {false, true}) {
            auto* control = new Switch;
            control->setChecked(on);
            control->setEnabled(enabled);
            row->addWidget(addSwitch(
                control,
                enabled ? (on ? tr("Plain, on") : tr("Plain, off"))
                        : (on ? tr("Plain, disabled and on") : tr("Plain, disabled and off"))));
        }
    }
    row->addStretch();
    return row;
}

QLayout* SwitchPage::makeLabelled()
{
    auto* off = addSwitch(makeColouredSwitch(tr("Bluetooth"), blue, false), tr("Labelled, off"));
    auto* on = addSwitch(makeColouredSwitch(tr("Wi-Fi"), blue, true), tr("Labelled, on"));
    auto* disabledOff =
        addSwitch(makeColouredSwitch(tr("Hotspot"), blue, false), tr("Labelled, disabled and off"));
    auto* disabledOn =
        addSwitch(makeColouredSwitch(tr("Firewall"), blue, true), tr("Labelled, disabled and on"));
    disabledOff->setEnabled(false);
    disabledOn->setEnabled(false);

    return makeGrid({off, on, disabledOff, disabledOn});
}

QLayout* SwitchPage::makeCustom()
{
    auto* colored = addSwitch(makeColouredSwitch(tr("Heating"), orange, true), tr("Coloured"));
    auto* slow = makeColouredSwitch(tr("Slow and springy"), green, false);
    slow->setThumbPosAnimation({QEasingCurve::OutBounce, 1200});
    slow->setThumbBrushAnimation({QEasingCurve::InOutQuad, 600});
    slow->setTrackBrushAnimation({QEasingCurve::InOutQuad, 600});
    addSwitch(slow, tr("Slow"));

    auto* instant = makeColouredSwitch(tr("At once"), green, false);
    for (const auto set : {&Switch::setThumbPosAnimation, &Switch::setThumbBrushAnimation,
                           &Switch::setTrackBrushAnimation})
        (instant->*set)({QEasingCurve::Linear, 0});
    addSwitch(instant, tr("At once"));

    auto* mirrored =
        addSwitch(makeColouredSwitch(tr("Right to left"), orange, true), tr("Right to left"));
    mirrored->setLayoutDirection(Qt::RightToLeft);

    return makeGrid({colored, slow, instant, mirrored});
}

QLayout* SwitchPage::makeGroup()
{
    auto* row = new QHBoxLayout;
    auto* group = new QButtonGroup(this);
    for (const QString& text : {tr("Low"), tr("Medium"), tr("High")}) {
        Switch* control =
            addSwitch(makeColouredSwitch(text, green, false), tr("Group: %1").arg(text));
        group->addButton(control);
        row->addWidget(control, 1, Qt::AlignLeft);
    }
    group->buttons().constFirst()->setChecked(true);
    return row;
}

} // namespace

GalleryPage* makeSwitchPage(QWidget* parent)
{
    return new SwitchPage(parent);
}
