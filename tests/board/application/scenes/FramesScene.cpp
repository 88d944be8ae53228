#include "scenes/FramesScene.h"

#include "Journal.h"

#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using ui::CGridArrangedButton;
using ui::CRoundedFrame;

FramesScene::FramesScene(Journal& journal)
    : m_journal(journal)
{
    auto* frames = new QHBoxLayout;
    for (const int shadow : {QFrame::Plain, QFrame::Raised, QFrame::Sunken})
        frames->addWidget(makeFrame(shadow));
    auto* column = new QVBoxLayout(this);
    column->addWidget(makeMaskedFrame());
    column->addLayout(frames);
    column->addWidget(makeGridButton());
}

/// A tap on a corner that the mask cuts off reaches the button below.
QWidget* FramesScene::makeMaskedFrame()
{
    constexpr QSize size(300, 120);
    auto* below = new QPushButton;
    below->setObjectName(QStringLiteral("below"));
    below->setFixedSize(size);
    connect(below, &QPushButton::clicked, this,
            [this] { m_journal.record(QStringLiteral("below clicked")); });

    auto* frame = new CRoundedFrame(below);
    frame->setObjectName(QStringLiteral("masked"));
    frame->setAutoFillBackground(true);
    frame->setRadius(40);
    frame->setLineWidth(3);
    frame->enableWidgetMask(true);
    frame->resize(size);
    frame->setAttribute(Qt::WA_NoMousePropagation);
    return below;
}

QWidget* FramesScene::makeFrame(int shadow)
{
    auto* frame = new CRoundedFrame;
    frame->setObjectName(QStringLiteral("frame%1").arg(shadow));
    frame->setRadius(18);
    frame->setLineWidth(4);
    frame->setFrameShadow(QFrame::Shadow(shadow));
    frame->setFixedSize(160, 80);
    return frame;
}

QWidget* FramesScene::makeGridButton()
{
    auto* button = new CGridArrangedButton;
    button->setObjectName(QStringLiteral("grid"));
    button->setFixedSize(300, 90);
    auto* title = new QLabel(QStringLiteral("Title"));
    title->setObjectName(QStringLiteral("title"));
    button->addWidget(title, 0, 0);
    button->addWidget(new QLabel(QStringLiteral("below it")), 1, 0);
    button->addWidget(new QLabel(QStringLiteral("42 °C")), 0, 1, 2, 1, Qt::AlignRight);
    connect(button, &QPushButton::clicked, this,
            [this] { m_journal.record(QStringLiteral("grid clicked")); });
    return button;
}
