#include "StateGround.h"

#include "Appearance.h"
#include "ClassSheet.h"

#include <QBoxLayout>

namespace {

constexpr int margin = 16;

/// A parent that fits tightly: a crumb's place in its parent shifts what it paints.
QWidget* hold(QWidget* widget)
{
    auto* holder = new QWidget;
    auto* layout = new QVBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(widget);
    return holder;
}

} // namespace

StateGround::StateGround(const ClassState& state, QWidget* parent)
    : QWidget(parent)
{
    setPalette(state.ground == ClassState::Dark ? Appearance::darkPalette()
                                                : Appearance::lightPalette());
    setAutoFillBackground(true);
    setLayoutDirection(state.direction);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(hold(state.make()), 0, Qt::AlignCenter);
}
