#include "ClassPictures.h"

#include "pages/DemoParts.h"

#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>

using ui::CGridArrangedButton;
using ui::CRoundedFrame;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ContainerGalleries)
};

constexpr QSize frameSize(170, 90);
constexpr int pictureHeight = 60;
constexpr int shadedLineWidth = 5; // wide enough for the shades to be seen
constexpr int iconExtent = 24;
constexpr int buttonMargin = 14;

CRoundedFrame* makeFrame(const QString& text)
{
    auto* frame = new CRoundedFrame;
    frame->setFixedSize(frameSize);
    auto* layout = new QGridLayout(frame);
    layout->addWidget(new QLabel(text), 0, 0, Qt::AlignCenter);
    return frame;
}

CRoundedFrame* makeShaded(const QString& text, QFrame::Shadow shadow)
{
    CRoundedFrame* frame = makeFrame(text);
    frame->setFrameShadow(shadow);
    frame->setLineWidth(shadedLineWidth);
    return frame;
}

CRoundedFrame* makeFilled(const QString& text)
{
    CRoundedFrame* frame = makeFrame(text);
    frame->setBackgroundRole(QPalette::Base);
    frame->enableFillContents(true);
    return frame;
}

CRoundedFrame* makeBare(const QString& text)
{
    CRoundedFrame* frame = makeFilled(text);
    frame->setFrameShape(CRoundedFrame::NoFrame);
    return frame;
}

CRoundedFrame* makeSquare(const QString& text)
{
    CRoundedFrame* frame = makeFrame(text);
    frame->setRadius(0);
    return frame;
}

/// With a child that reaches into the upper corners, which the mask cuts off.
QWidget* makePicture(bool masked)
{
    auto* frame = new CRoundedFrame;
    frame->setFixedSize(frameSize);
    frame->setBackgroundRole(QPalette::Base);
    frame->enableFillContents(true);
    frame->setFrameShape(CRoundedFrame::NoFrame);
    frame->enableWidgetMask(masked);
    auto* picture = new Picture(frame);
    picture->setGeometry(0, 0, frameSize.width(), pictureHeight);
    return frame;
}

QLabel* makeLabel(const QString& text, bool bold)
{
    auto* label = new QLabel(text);
    label->setForegroundRole(QPalette::ButtonText);
    QFont font = label->font();
    font.setBold(bold);
    label->setFont(font);
    return label;
}

CGridArrangedButton* makeButton()
{
    auto* icon = new IconLabel(QStringLiteral("usb.png"), iconExtent);
    auto* button = new CGridArrangedButton;
    button->setContentsMargins(buttonMargin, buttonMargin, buttonMargin, buttonMargin);
    button->setHorizontalSpacing(buttonMargin);
    button->addWidget(icon, 0, 0, 2, 1, Qt::AlignCenter);
    button->addWidget(makeLabel(Texts::tr("USB stick"), false), 0, 1);
    button->addWidget(makeLabel(Texts::tr("12.4 GB free"), true), 1, 1);
    return button;
}

QWidget* makePressedButton()
{
    CGridArrangedButton* button = makeButton();
    button->setDown(true);
    return button;
}

QWidget* makeDisabledButton()
{
    CGridArrangedButton* button = makeButton();
    button->setEnabled(false);
    return button;
}

} // namespace

StateGallery stategalleries::roundedFrame()
{
    const QString text = Texts::tr("contents");
    return {QStringLiteral("CRoundedFrame"),
            3,
            {
                {Texts::tr("Plain"), [text] { return makeFrame(text); }},
                {Texts::tr("Raised"), [text] { return makeShaded(text, QFrame::Raised); }},
                {Texts::tr("Sunken"), [text] { return makeShaded(text, QFrame::Sunken); }},
                {Texts::tr("Filled"), [text] { return makeFilled(text); }},
                {Texts::tr("Filled, without outline"), [text] { return makeBare(text); }},
                {Texts::tr("Radius 0"), [text] { return makeSquare(text); }},
                {Texts::tr("A child reaches into the corners"), [] { return makePicture(false); }},
                {Texts::tr("The same with the mask"), [] { return makePicture(true); }},
                {Texts::tr("Dark palette, raised"),
                 [text] { return makeShaded(text, QFrame::Raised); }, ClassState::Dark},
            }};
}

StateGallery stategalleries::gridButton()
{
    return {QStringLiteral("CGridArrangedButton"),
            3,
            {
                {Texts::tr("Up"), makeButton},
                {Texts::tr("Down"), makePressedButton},
                {Texts::tr("Disabled"), makeDisabledButton},
                {Texts::tr("Right to left"), makeButton, ClassState::Light, Qt::RightToLeft},
                {Texts::tr("Dark palette"), makeButton, ClassState::Dark},
            }};
}
