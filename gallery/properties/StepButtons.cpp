#include "StepButtons.h"

#include "Touch.h"

#include <QAbstractSpinBox>
#include <QBoxLayout>
#include <QToolButton>

namespace {

QToolButton* makeStepButton(const QString& text, const QString& name)
{
    auto* button = new QToolButton;
    button->setText(text);
    button->setObjectName(name);
    button->setAutoRepeat(true);
    button->setFixedSize(touch::fingerSize, touch::fingerSize);
    return button;
}

} // namespace

void layOutWithStepButtons(QAbstractSpinBox* box, QWidget* parent)
{
    box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    box->setKeyboardTracking(false);
    box->setAlignment(Qt::AlignCenter);
    box->setMinimumHeight(touch::fingerSize);
    box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    touch::leaveWheelToScrollArea(box);

    QToolButton* down = makeStepButton(QString(QChar(0x2212)), QStringLiteral("stepDown"));
    QToolButton* up = makeStepButton(QStringLiteral("+"), QStringLiteral("stepUp"));
    QObject::connect(down, &QToolButton::clicked, box, &QAbstractSpinBox::stepDown);
    QObject::connect(up, &QToolButton::clicked, box, &QAbstractSpinBox::stepUp);

    auto* row = new QHBoxLayout(parent);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    row->addWidget(down);
    row->addWidget(box, 1);
    row->addWidget(up);
}
