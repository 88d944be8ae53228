#include "Models.h"

#include <ui/ScrollIndicatorBar.h>

#include <limits>

using ui::widgets::ScrollIndicatorBar;

namespace test {

namespace {

/// Of a wider range, Qt divides by zero where a scroll bar is pressed.
constexpr qint64 widestRange = std::numeric_limits<int>::max();

/// A scroll indicator beside a plain QScrollBar that is told the same.
class IndicatorModel : public WidgetModel
{
public:
    explicit IndicatorModel(const std::shared_ptr<TestWindows>& windows);

protected:
    QWidget* create() override;
    void checkState() override;

private:
    ScrollIndicatorBar& bar()
    {
        return static_cast<ScrollIndicatorBar&>(*widget());
    }
    template <typename Use>
    void useBoth(const Use& use);
    void drag(Values& values);

    QScrollBar m_plain;
};

IndicatorModel::IndicatorModel(const std::shared_ptr<TestWindows>& windows)
    : WidgetModel(windows)
{
    const auto addBoth = [this](const char* name, int weight, auto use) {
        add(QLatin1String(name), weight, [this, use](Values& v) {
            const int value = v.integer();
            const int other = v.integer();
            useBoth([&](QScrollBar& each) { use(each, value, other); });
        });
    };
    addBoth("setValue", 5, [](QScrollBar& each, int value, int) { each.setValue(value); });
    addBoth("setSliderPosition", 2,
            [](QScrollBar& each, int value, int) { each.setSliderPosition(value); });
    addBoth("setRange", 3, [](QScrollBar& each, int low, int high) {
        each.setRange(low, int(qMin<qint64>(high, low + widestRange)));
    });
    addBoth("setSteps", 2, [](QScrollBar& each, int single, int page) {
        each.setSingleStep(single);
        each.setPageStep(page);
    });
    addBoth("triggerAction", 3, [](QScrollBar& each, int value, int) {
        each.triggerAction(QAbstractSlider::SliderAction(value & 7));
    });
    addBoth("setInverted", 1, [](QScrollBar& each, int inverted, int controls) {
        each.setInvertedAppearance(inverted & 1);
        each.setInvertedControls(controls & 1);
    });
    addBoth("setOrientation", 1, [](QScrollBar& each, int value, int) {
        each.setOrientation(value & 1 ? Qt::Horizontal : Qt::Vertical);
    });
    addBoth("setTracking", 1,
            [](QScrollBar& each, int value, int) { each.setTracking(value & 1); });
    add("setHighlightBar", 2, [this](Values& v) { bar().setHighlightBar(v.boolean()); });
    add("drag", 3, [this](Values& v) { drag(v); });
    addAllCommands(*this);
}

QWidget* IndicatorModel::create()
{
    auto* created = new ScrollIndicatorBar;
    m_plain.setOrientation(Qt::Vertical);
    return created;
}

/// The user has been at the indicator alone: the plain bar follows before both are used.
template <typename Use>
void IndicatorModel::useBoth(const Use& use)
{
    m_plain.setOrientation(bar().orientation());
    m_plain.setTracking(bar().hasTracking());
    m_plain.setSliderDown(false);
    bar().setSliderDown(false);
    m_plain.setRange(bar().minimum(), bar().maximum());
    m_plain.setSingleStep(bar().singleStep());
    m_plain.setPageStep(bar().pageStep());
    m_plain.setInvertedAppearance(bar().invertedAppearance());
    m_plain.setInvertedControls(bar().invertedControls());
    m_plain.setLayoutDirection(bar().layoutDirection());
    m_plain.setValue(bar().value());
    m_plain.setSliderPosition(bar().sliderPosition());
    use(bar());
    use(m_plain);
    compare("value", bar().value(), m_plain.value());
    compare("slider position", bar().sliderPosition(), m_plain.sliderPosition());
    compare("minimum", bar().minimum(), m_plain.minimum());
    compare("maximum", bar().maximum(), m_plain.maximum());
}

void IndicatorModel::drag(Values& values)
{
    bar().setSliderDown(values.boolean());
    bar().setSliderPosition(values.integer());
}

void IndicatorModel::checkState()
{
    expect(bar().minimum() <= bar().maximum(), "the range is in order");
    compare("value", bar().value(), qBound(bar().minimum(), bar().value(), bar().maximum()));
    compare("slider position", bar().sliderPosition(),
            qBound(bar().minimum(), bar().sliderPosition(), bar().maximum()));
    const QSize hint = bar().sizeHint();
    compare("thickness", bar().orientation() == Qt::Vertical ? hint.width() : hint.height(), 5);
}

} // namespace

std::unique_ptr<WidgetModel> newIndicatorModel(const std::shared_ptr<TestWindows>& windows)
{
    return std::make_unique<IndicatorModel>(windows);
}

} // namespace test
