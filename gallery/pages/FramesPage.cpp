#include "DemoParts.h"
#include "GalleryPage.h"
#include "Pages.h"
#include "properties/HiddenValues.h"

#include <ui/CRoundedFrame.h>

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>

namespace {

constexpr int margin = 16;
constexpr int spacing = 12;
constexpr QSize leastFrameSize(130, 76);
/// Wide enough for the shades of a raised and a sunken frame to be seen.
constexpr int shadedLineWidth = 5;
constexpr int pictureHeight = 190;
constexpr QSize cardSize(230, 130);
constexpr int ribbonHeight = 40;

/// A strip right up to the corners of its \a card, whose mask cuts it off.
QLabel* makeRibbon(const QString& text, QWidget* card)
{
    auto* ribbon = new QLabel(text, card);
    ribbon->setGeometry(0, 0, cardSize.width(), ribbonHeight);
    ribbon->setAlignment(Qt::AlignCenter);
    ribbon->setAutoFillBackground(true);
    ribbon->setBackgroundRole(QPalette::Highlight);
    ribbon->setForegroundRole(QPalette::HighlightedText);
    return ribbon;
}

/// ui::CRoundedFrame plain, raised, sunken and filled, and masked over a picture.
class FramesPage : public GalleryPage
{
    Q_DECLARE_TR_FUNCTIONS(FramesPage)

public:
    explicit FramesPage(QWidget* parent = nullptr);

private:
    ui::CRoundedFrame* makeFrame(const QString& name);
    QWidget* makeMaskedFrame();
};

FramesPage::FramesPage(QWidget* parent)
    : GalleryPage(parent)
{
    ui::CRoundedFrame* plain = makeFrame(tr("Plain"));
    ui::CRoundedFrame* raised = makeFrame(tr("Raised"));
    raised->setFrameShadow(QFrame::Raised);
    raised->setLineWidth(shadedLineWidth);
    ui::CRoundedFrame* sunken = makeFrame(tr("Sunken"));
    sunken->setFrameShadow(QFrame::Sunken);
    sunken->setLineWidth(shadedLineWidth);
    ui::CRoundedFrame* filled = makeFrame(tr("Filled"));
    filled->setBackgroundRole(QPalette::Base);
    hiddenvalues::set(filled, "fillContents", true);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(spacing);
    grid->addWidget(plain, 0, 0);
    grid->addWidget(raised, 0, 1);
    grid->addWidget(sunken, 1, 0);
    grid->addWidget(filled, 1, 1);
    grid->addWidget(makeMaskedFrame(), 2, 0, 1, 2);
    grid->setRowStretch(3, 1);
}

ui::CRoundedFrame* FramesPage::makeFrame(const QString& name)
{
    auto* frame = new ui::CRoundedFrame;
    frame->setMinimumSize(leastFrameSize);
    auto* label = new QLabel(name);
    label->setAlignment(Qt::AlignCenter);
    auto* layout = new QGridLayout(frame);
    layout->addWidget(label);
    addDemoWidget(frame, name);
    return frame;
}

QWidget* FramesPage::makeMaskedFrame()
{
    auto* card = new ui::CRoundedFrame;
    card->setFixedSize(cardSize);
    card->setRadius(28);
    card->setFrameShape(ui::CRoundedFrame::NoFrame);
    hiddenvalues::set(card, "fillContents", true);
    hiddenvalues::set(card, "widgetMask", true);
    makeRibbon(tr("Masked"), card);
    auto* text = new QLabel(tr("The corners are cut off, and what lies in them."));
    text->setAlignment(Qt::AlignCenter);
    text->setWordWrap(true);
    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(0, ribbonHeight, 0, 0);
    column->addWidget(text);
    addDemoWidget(card, tr("Masked"));

    auto* picture = new Picture;
    picture->setFixedHeight(pictureHeight);
    auto* stage = new QGridLayout(picture);
    stage->addWidget(card, 0, 0, Qt::AlignCenter);
    return picture;
}

} // namespace

GalleryPage* makeFramesPage(QWidget* parent)
{
    return new FramesPage(parent);
}
