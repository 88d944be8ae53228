#include "GalleryPage.h"
#include "Pages.h"
#include "properties/HiddenValues.h"
#include "Touch.h"

#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>

#include <QBoxLayout>
#include <QCoreApplication>
#include <QLabel>

namespace {

constexpr int margin = 16;
constexpr int spacing = 12;
constexpr int textPixelSize = 18;
constexpr QSize labelSize(160, touch::targetSize);

/// A path bar, and labels as it is made of by themselves.
class PathPage : public GalleryPage
{
    Q_DECLARE_TR_FUNCTIONS(PathPage)

public:
    explicit PathPage(QWidget* parent);

private:
    BreadCrumbsWidget* makeBar(const QString& directory);
    ClickableLabel* makeLabel(const QString& text);
    void count();

    QLabel* m_directory;
    QLabel* m_report;
    int m_taps = 0;
};

/// A parent that fits tightly: a label's place in its parent shifts what it paints.
QWidget* hold(QWidget* label)
{
    auto* holder = new QWidget;
    auto* layout = new QVBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    return holder;
}

PathPage::PathPage(QWidget* parent)
    : GalleryPage(parent)
    , m_directory(touch::makeElidedLabel())
    , m_report(touch::makeLabel(tr("Not tapped yet")))
{
    m_directory->setObjectName(QStringLiteral("directory"));
    m_report->setObjectName(QStringLiteral("report"));
    const QString deep = QStringLiteral("/data/music/live/2024/Berlin/encores");
    BreadCrumbsWidget* bar = makeBar(deep);
    addDemoWidget(bar, tr("Path"));
    addDemoWidget(makeLabel(tr("Music")), tr("Short label"));
    addDemoWidget(makeLabel(tr("A rather long name of a directory")), tr("Long label"));

    auto* labels = new QHBoxLayout;
    labels->addWidget(hold(demoWidgets().at(1).widget));
    labels->addWidget(hold(demoWidgets().at(2).widget));
    labels->addStretch();

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    column->addWidget(touch::makeHeading(
        tr("A path: tap a directory to go up, and the three dots for those that are left out.")));
    column->addWidget(bar);
    column->addWidget(m_directory);
    column->addSpacing(spacing);
    column->addWidget(
        touch::makeHeading(tr("The label that it is made of, by itself: it can be tapped.")));
    column->addLayout(labels);
    column->addWidget(m_report);
    column->addStretch();
}

BreadCrumbsWidget* PathPage::makeBar(const QString& directory)
{
    auto* bar = new BreadCrumbsWidget;
    bar->setMinimumHeight(touch::targetSize);
    bar->setStyleSheet(QStringLiteral("QLabel { min-height: %1px; font-size: %2px; }")
                           .arg(touch::targetSize)
                           .arg(textPixelSize));
    connect(bar, &BreadCrumbsWidget::dirChanged, this, [this, bar](const QString& path) {
        hiddenvalues::set(bar, "directory", path);
        m_directory->setText(path);
    });
    hiddenvalues::set(bar, "rootPath", QStringLiteral("/data"));
    hiddenvalues::set(bar, "directory", directory);
    m_directory->setText(directory);
    return bar;
}

// NOLINTNEXTLINE(readability-make-member-function-const): a tap on the label changes the page
ClickableLabel* PathPage::makeLabel(const QString& text)
{
    auto* label = new ClickableLabel;
    label->setText(text);
    label->setFixedSize(labelSize);
    QFont font = label->font();
    font.setPixelSize(textPixelSize);
    label->setFont(font);
    connect(label, &ClickableLabel::clicked, this, &PathPage::count);
    return label;
}

void PathPage::count()
{
    ++m_taps;
    m_report->setText(tr("Tapped: %1").arg(m_taps));
}

} // namespace

GalleryPage* makePathPage(QWidget* parent)
{
    return new PathPage(parent);
}
