#include "GalleryPage.h"
#include "Pages.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QIcon>
#include <QLabel>

// The macro declares a function, which must be done outside of every namespace.
static void registerIcons()
{
    Q_INIT_RESOURCE(widgets);
}

namespace {

constexpr int iconExtent = 48;

QLabel* makeHeading(const QString& text)
{
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    font.setBold(true);
    label->setFont(font);
    return label;
}

QLabel* makeParagraph(const QString& text)
{
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    return label;
}

QLayout* makeIcon(const QString& fileName)
{
    auto* picture = new QLabel;
    picture->setPixmap(QIcon(QStringLiteral(":/icons/") + fileName).pixmap(iconExtent));
    picture->setAlignment(Qt::AlignCenter);
    picture->setMinimumSize(iconExtent, iconExtent);
    auto* name = new QLabel(fileName);
    name->setAlignment(Qt::AlignCenter);

    auto* column = new QVBoxLayout;
    column->addWidget(picture);
    column->addWidget(name);
    return column;
}

/// What the library is, its version and Qt's, and the icons that it carries.
class OverviewPage : public GalleryPage
{
    Q_DECLARE_TR_FUNCTIONS(OverviewPage)

public:
    explicit OverviewPage(QWidget* parent = nullptr);

private:
    static QLayout* makeIcons();
};

OverviewPage::OverviewPage(QWidget* parent)
    : GalleryPage(parent)
{
    registerIcons();

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 24);
    column->setSpacing(16);
    column->addWidget(makeHeading(QStringLiteral("platform_widgets " GALLERY_VERSION)));
    column->addWidget(makeParagraph(tr(
        "Fifteen Qt widgets for touch-screen applications: frames and layout containers, status "
        "indicators, text entry with an on-screen keypad, animated switches and a file browser.")));
    column->addWidget(makeParagraph(
        tr("Choose a page. Tap a widget of the page to edit its properties, and use the switches "
           "above to see it in a dark palette, mirrored, disabled or with a style sheet.")));
    column->addWidget(makeParagraph(tr("Icons of the library:")));
    column->addLayout(makeIcons());
    column->addStretch();
    column->addWidget(
        makeParagraph(tr("Qt %1, platform plugin \"%2\"")
                          .arg(QString::fromLatin1(qVersion()), QGuiApplication::platformName())));
}

QLayout* OverviewPage::makeIcons()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(24);
    for (const char* fileName : {"tile_view.svg", "list_view.svg", "usb.png"})
        row->addLayout(makeIcon(QString::fromLatin1(fileName)));
    row->addStretch();
    return row;
}

} // namespace

GalleryPage* makeOverviewPage(QWidget* parent)
{
    return new OverviewPage(parent);
}
