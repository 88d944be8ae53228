#include "Models.h"

#include <ui/CRoundedFrame.h>

#include <cmath>

using ui::CRoundedFrame;

namespace test {

namespace {

constexpr int largestFrame = 40000;

/// What a rounded frame keeps, and the margins that follow.
class FrameModel : public WidgetModel
{
public:
    explicit FrameModel(const std::shared_ptr<TestWindows>& windows);

protected:
    QWidget* create() override;
    void checkState() override;

private:
    CRoundedFrame& frame()
    {
        return static_cast<CRoundedFrame&>(*widget());
    }
    void setRadius(int radius);
    void setLineWidth(int width);
    void updateMargin();

    int m_radius = 0;
    int m_lineWidth = 0;
    int m_margin = 0;
    int m_shadow = 0;
    CRoundedFrame::Shape m_shape = CRoundedFrame::Box;
    bool m_masked = false;
};

FrameModel::FrameModel(const std::shared_ptr<TestWindows>& windows)
    : WidgetModel(windows)
{
    add("setRadius", 4, [this](Values& v) { setRadius(v.integer()); });
    add("setLineWidth", 4, [this](Values& v) { setLineWidth(v.integer()); });
    add("setFrameShadow", 2, [this](Values& v) {
        m_shadow = v.oneOf<int>({QFrame::Plain, QFrame::Raised, QFrame::Sunken, 0, 0x3f});
        frame().setFrameShadow(QFrame::Shadow(m_shadow));
    });
    add("setFrameShape", 2, [this](Values& v) {
        m_shape = v.oneOf({CRoundedFrame::NoFrame, CRoundedFrame::Box});
        frame().setProperty("frameShape", m_shape);
    });
    add("enableFillContents", 2, [this](Values& v) { frame().enableFillContents(v.boolean()); });
    add("enableWidgetMask", 2, [this](Values& v) {
        m_masked = v.boolean();
        frame().enableWidgetMask(m_masked);
    });
    add("updateMargins", 1, [this](Values&) {
        updateMargin();
        frame().updateMargins();
    });
    add("fullUpdate", 1, [this](Values&) {
        updateMargin();
        frame().fullUpdate();
    });
    add("addChild", 1, [this](Values&) { new QWidget(&frame()); });
    addAllCommands(*this);
}

QWidget* FrameModel::create()
{
    m_radius = 18;
    m_lineWidth = 2;
    m_shadow = QFrame::Plain;
    m_shape = CRoundedFrame::Box;
    m_masked = false;
    updateMargin();
    auto* frame = new CRoundedFrame;
    // Of a rounded clip of more than some 65,000 lines, Qt makes none, and loses memory.
    frame->setMaximumSize(largestFrame, largestFrame);
    return frame;
}

void FrameModel::setRadius(int radius)
{
    if (radius != m_radius) {
        m_radius = radius;
        updateMargin();
    }
    frame().setProperty("radius", radius);
}

void FrameModel::setLineWidth(int width)
{
    if (width != m_lineWidth) {
        m_lineWidth = width;
        updateMargin();
    }
    frame().setLineWidth(width);
}

void FrameModel::updateMargin()
{
    const double arc = std::floor(m_radius * (1 - std::sqrt(0.5)) + 0.5);
    const double outline =
        m_shape == CRoundedFrame::Box ? double(m_lineWidth) + m_lineWidth / 2 : 0;
    m_margin = int(qBound(-2147483648.0, arc + outline, 2147483647.0));
}

void FrameModel::checkState()
{
    compare("radius", frame().radius(), m_radius);
    compare("lineWidth", frame().lineWidth(), m_lineWidth);
    compare("frameShadow", int(frame().frameShadow()), m_shadow);
    compare("frameShape", frame().frameShape(), m_shape);
    const int margin = qMax<int>(short(m_margin), 0); // what QWidget makes of it
    compare("contentsMargins", frame().contentsMargins(), QMargins(margin, margin, margin, margin));
    if (!m_masked)
        expect(frame().mask().isEmpty(), "no mask where none is enabled");
}

} // namespace

std::unique_ptr<WidgetModel> newFrameModel(const std::shared_ptr<TestWindows>& windows)
{
    return std::make_unique<FrameModel>(windows);
}

} // namespace test
