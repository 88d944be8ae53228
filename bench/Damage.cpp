#include "Damage.h"

#include <Switch.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>
#include <ui/LineEdit.h>
#include <ui/ScrollIndicatorBar.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPaintEvent>
#include <QProgressBar>
#include <QTextStream>

#include <functional>
#include <memory>

namespace bench {

namespace {

/// A widget to be shown, and what is done to it then.
struct Sample
{
    std::shared_ptr<QWidget> widget;
    std::function<void()> change;
};

struct Change
{
    const char* name;
    std::function<Sample()> ours;
    const char* counterpartName;
    std::function<Sample()> counterpart;
};

/// Adds up the pixels of a widget that paint events ask for.
class PixelCounter : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            for (const QRect& rect : static_cast<QPaintEvent*>(event)->region())
                m_pixels += rect.width() * rect.height();
        }
        return false;
    }
    int pixels() const
    {
        return m_pixels;
    }

private:
    int m_pixels = 0;
};

/// Of one repaint: a transition goes on by frames, each of which damages the same.
int damagedPixels(const Sample& sample)
{
    QWidget window;
    window.resize(300, 200);
    sample.widget->setParent(&window);
    window.show();
    QCoreApplication::processEvents();
    PixelCounter counter;
    sample.widget->installEventFilter(&counter);
    sample.change();
    QCoreApplication::sendPostedEvents();
    window.hide(); // delivers no more of a transition
    sample.widget->setParent(nullptr);
    return counter.pixels();
}

template <typename Widget>
std::shared_ptr<Widget> sized(const QSize& size)
{
    auto widget = std::make_shared<Widget>();
    widget->resize(size);
    return widget;
}

/// A container with a label in it, whose text changes.
template <typename Container>
Sample labelInside()
{
    auto container = sized<Container>({200, 100});
    auto* label = new QLabel(QStringLiteral("1"), container.get());
    label->setGeometry(60, 30, 40, 20);
    return {container, [label] { label->setText(QStringLiteral("2")); }};
}

Sample labelInButton()
{
    auto button = sized<ui::CGridArrangedButton>({200, 100});
    auto* label = new QLabel(QStringLiteral("1"));
    button->addWidget(label, 0, 0);
    button->addWidget(new QLabel(QStringLiteral("3")), 1, 1);
    return {button, [label] { label->setText(QStringLiteral("2")); }};
}

Sample labelInPlainButton()
{
    auto button = sized<QPushButton>({200, 100});
    auto* grid = new QGridLayout(button.get());
    auto* label = new QLabel(QStringLiteral("1"));
    grid->addWidget(label, 0, 0);
    grid->addWidget(new QLabel(QStringLiteral("3")), 1, 1);
    return {button, [label] { label->setText(QStringLiteral("2")); }};
}

Sample battery(int from, int to)
{
    auto widget = sized<ui::CBatteryStatusWidget>({40, 80});
    widget->setChargePercentage(from);
    return {widget, [battery = widget.get(), to] { battery->setChargePercentage(to); }};
}

Sample progress(int from, int to)
{
    auto bar = sized<QProgressBar>({40, 80});
    bar->setOrientation(Qt::Vertical);
    bar->setTextVisible(false);
    bar->setValue(from);
    return {bar, [bar = bar.get(), to] { bar->setValue(to); }};
}

Sample charger()
{
    auto widget = sized<ui::CBatteryStatusWidget>({40, 80});
    return {widget, [battery = widget.get()] { battery->setBatteryCharging(true); }};
}

template <typename Button>
Sample toggled()
{
    auto button = sized<Button>({160, 40});
    button->setText(QStringLiteral("Wireless"));
    return {button, [button = button.get()] { button->setChecked(true); }};
}

Sample sameSwitchColor()
{
    auto control = sized<Switch>({160, 40});
    return {control, [control = control.get()] {
                control->setProperty("trackOnBrush", control->property("trackOnBrush"));
            }};
}

template <typename Bar>
Sample scrolled(int value)
{
    auto bar = sized<Bar>({5, 150});
    bar->setRange(0, 1000);
    return {bar, [bar = bar.get(), value] { bar->setValue(value); }};
}

Sample highlighted(bool highlight)
{
    auto bar = sized<ui::widgets::ScrollIndicatorBar>({5, 150});
    return {bar, [bar = bar.get(), highlight] { bar->setHighlightBar(highlight); }};
}

template <typename Edit>
Sample typedInto()
{
    auto edit = sized<Edit>({200, 30});
    return {edit, [edit = edit.get()] { edit->insert(QStringLiteral("7")); }};
}

QVector<Change> changes()
{
    using ui::widgets::ScrollIndicatorBar;
    return {
        {"frame, text of a label inside", labelInside<ui::CRoundedFrame>, "QFrame",
         labelInside<QFrame>},
        {"grid button, text of a label inside", labelInButton, "QPushButton with a QGridLayout",
         labelInPlainButton},
        {"battery, charge from 50 to 75", [] { return battery(50, 75); }, "QProgressBar",
         [] { return progress(50, 75); }},
        {"battery, the same charge again", [] { return battery(50, 50); }, "QProgressBar",
         [] { return progress(50, 50); }},
        {"battery, charging begins", charger, "", {}},
        {"switch, a frame of a toggle", toggled<Switch>, "QCheckBox", toggled<QCheckBox>},
        {"switch, the same colour again", sameSwitchColor, "", {}},
        {"scroll indicator, a step", [] { return scrolled<ScrollIndicatorBar>(10); }, "QScrollBar",
         [] { return scrolled<QScrollBar>(10); }},
        {"scroll indicator, the same value again", [] { return scrolled<ScrollIndicatorBar>(0); },
         "QScrollBar", [] { return scrolled<QScrollBar>(0); }},
        {"scroll indicator, a highlight", [] { return highlighted(true); }, "", {}},
        {"scroll indicator, no highlight again", [] { return highlighted(false); }, "", {}},
        {"line edit, a digit", typedInto<ui::LineEdit>, "QLineEdit", typedInto<QLineEdit>},
    };
}

} // namespace

void compareDamage(const QStringList&, QTextStream& out)
{
    const QVector<Change> all = changes();
    for (const Change& change : all) {
        const Sample sample = change.ours();
        const QSize size = sample.widget->size();
        out << change.name << '\t' << change.counterpartName << '\t' << size.width() * size.height()
            << '\t' << damagedPixels(sample) << '\t';
        if (change.counterpart)
            out << damagedPixels(change.counterpart());
        out << '\n';
    }
}

} // namespace bench
