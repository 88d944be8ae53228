#include "DemoParts.h"
#include "GalleryPage.h"
#include "Pages.h"
#include "Touch.h"

#include <ui/ScrollIndicatorBar.h>

#include <QBoxLayout>
#include <QCoreApplication>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

using ui::widgets::ScrollIndicatorBar;

namespace {

constexpr int margin = 16;
constexpr int spacing = 12;
constexpr int listLength = 30;
constexpr int leastListHeight = 170;
constexpr QSize panoramaSize(1500, 120);

QWidget* makeRows()
{
    auto* rows = new QWidget;
    auto* column = new QVBoxLayout(rows);
    column->setSpacing(0);
    for (int number = 1; number <= listLength; ++number) {
        QLabel* row = touch::makeLabel(
            QCoreApplication::translate("ScrollIndicatorPage", "Track %1").arg(number));
        row->setMinimumHeight(touch::targetSize);
        column->addWidget(row);
    }
    return rows;
}

/// ui::widgets::ScrollIndicatorBar on areas that are dragged by touch, highlighted while they move.
class ScrollIndicatorPage : public GalleryPage
{
    Q_DECLARE_TR_FUNCTIONS(ScrollIndicatorPage)

public:
    explicit ScrollIndicatorPage(QWidget* parent = nullptr);

private:
    QScrollArea* makeList();
    QScrollArea* makePanorama();
    void addIndicator(QScrollArea* area, Qt::Orientation orientation, const QString& name);
};

ScrollIndicatorPage::ScrollIndicatorPage(QWidget* parent)
    : GalleryPage(parent)
{
    QLabel* hint = touch::makeLabel(
        tr("Drag the list and the picture: their indicators light up while they move."));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    column->addWidget(hint);
    column->addWidget(makeList(), 1);
    column->addWidget(makePanorama());
}

QScrollArea* ScrollIndicatorPage::makeList()
{
    auto* area = new QScrollArea;
    area->setObjectName(QStringLiteral("list"));
    area->setWidget(makeRows());
    area->setWidgetResizable(true);
    area->setMinimumHeight(leastListHeight);
    area->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // it is there to be scrolled
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    addIndicator(area, Qt::Vertical, tr("Vertical indicator"));
    return area;
}

QScrollArea* ScrollIndicatorPage::makePanorama()
{
    auto* picture = new Picture;
    picture->setFixedSize(panoramaSize);
    auto* area = new QScrollArea;
    area->setObjectName(QStringLiteral("panorama"));
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(picture);
    area->setFixedHeight(panoramaSize.height() + ScrollIndicatorBar::PERPENDICULAR_SIZE);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    addIndicator(area, Qt::Horizontal, tr("Horizontal indicator"));
    return area;
}

void ScrollIndicatorPage::addIndicator(QScrollArea* area, Qt::Orientation orientation,
                                       const QString& name)
{
    touch::makeScrollable(area);
    addDemoWidget(orientation == Qt::Vertical ? area->verticalScrollBar()
                                              : area->horizontalScrollBar(),
                  name);
}

} // namespace

GalleryPage* makeScrollIndicatorPage(QWidget* parent)
{
    return new ScrollIndicatorPage(parent);
}
