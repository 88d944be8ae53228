#include "GalleryPage.h"
#include "Glow.h"
#include "Lamp.h"
#include "Pages.h"
#include "Touch.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QCoreApplication>
#include <QEasingCurve>
#include <QLabel>
#include <QMetaEnum>
#include <QPushButton>
#include <QSlider>

namespace {

constexpr int margin = 16;
constexpr int spacing = 12;
constexpr QSize glowSize(96, 96);
constexpr int longestDuration = 3000;
constexpr int usualDuration = 800;

/// The two samples of the reference that an application would write itself.
class OwnControlsPage : public GalleryPage
{
    Q_DECLARE_TR_FUNCTIONS(OwnControlsPage)

public:
    explicit OwnControlsPage(QWidget* parent);

private:
    QLayout* makeLamps();
    QLayout* makeGlow();
    void setUpGlow();

    Glow* m_glow;
    QSlider* m_duration;
    QLabel* m_durationText;
};

OwnControlsPage::OwnControlsPage(QWidget* parent)
    : GalleryPage(parent)
    , m_glow(new Glow)
    , m_duration(touch::makeSlider())
    , m_durationText(touch::makeLabel())
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    column->addWidget(
        touch::makeHeading(tr("A lamp that can be switched, derived from SelectionControl")));
    column->addLayout(makeLamps());
    column->addSpacing(spacing);
    column->addWidget(touch::makeHeading(tr("A light whose colour an Animator moves")));
    column->addLayout(makeGlow());
    column->addStretch();
}

QLayout* OwnControlsPage::makeLamps()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(spacing);
    for (const bool enabled : {true, false}) {
        for (const bool on : {false, true}) {
            auto* lamp = new Lamp;
            lamp->setChecked(on);
            lamp->setEnabled(enabled);
            addDemoWidget(lamp,
                          enabled
                              ? (on ? tr("Lamp, on") : tr("Lamp, off"))
                              : (on ? tr("Lamp, disabled and on") : tr("Lamp, disabled and off")));
            row->addWidget(lamp);
        }
    }
    row->addStretch();
    return row;
}

QLayout* OwnControlsPage::makeGlow()
{
    m_glow->setFixedSize(glowSize);
    addDemoWidget(m_glow, tr("Light"));
    addSource(m_glow->findChild<Animator*>(), tr("Animator"));
    m_duration->setRange(0, longestDuration);
    m_duration->setValue(usualDuration);
    setUpGlow();
    connect(m_duration, &QSlider::valueChanged, this, &OwnControlsPage::setUpGlow);

    auto* start = new QPushButton(tr("Light up"));
    start->setObjectName(QStringLiteral("lightUp"));
    start->setMinimumHeight(touch::targetSize);
    connect(start, &QPushButton::clicked, m_glow, &Glow::lightUp);

    auto* controls = new QVBoxLayout;
    controls->setSpacing(spacing);
    controls->addWidget(start);
    controls->addWidget(m_durationText);
    controls->addWidget(m_duration);
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * spacing);
    row->addWidget(m_glow);
    row->addLayout(controls, 1);
    return row;
}

void OwnControlsPage::setUpGlow()
{
    m_glow->findChild<Animator*>()->setup(m_duration->value(), QEasingCurve::OutQuad);
    m_durationText->setText(tr("Duration: %1 ms").arg(m_duration->value()));
}

} // namespace

GalleryPage* makeOwnControlsPage(QWidget* parent)
{
    return new OwnControlsPage(parent);
}
