#include "DemoParts.h"
#include "GalleryPage.h"
#include "Pages.h"
#include "Touch.h"

#include <ui/CGridArrangedButton.h>

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>

namespace {

constexpr int margin = 16;
constexpr int spacing = 12;
constexpr int iconExtent = 48;
constexpr int leastTileHeight = 110;

/// A label in the button's own text colour, whatever the palette.
QLabel* makeLabel(const QString& text, qreal scale = 1.0, bool bold = false)
{
    auto* label = new QLabel(text);
    label->setForegroundRole(QPalette::ButtonText);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    font.setBold(bold);
    label->setFont(font);
    return label;
}

/// ui::CGridArrangedButton with titles, values and icons.
class GridButtonPage : public GalleryPage
{
    Q_DECLARE_TR_FUNCTIONS(GridButtonPage)

public:
    explicit GridButtonPage(QWidget* parent = nullptr);

private:
    ui::CGridArrangedButton* makeWideButton();
    ui::CGridArrangedButton* makeTile(const QString& fileName, const QString& title);
    void present(ui::CGridArrangedButton* button, const QString& name);

    QLabel* m_report;
};

GridButtonPage::GridButtonPage(QWidget* parent)
    : GalleryPage(parent)
    , m_report(touch::makeLabel(tr("Tap a button anywhere, its labels included.")))
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(spacing);
    grid->addWidget(makeWideButton(), 0, 0, 1, 2);
    grid->addWidget(makeTile(QStringLiteral("tile_view.svg"), tr("Tiles")), 1, 0);
    grid->addWidget(makeTile(QStringLiteral("list_view.svg"), tr("List")), 1, 1);
    grid->addWidget(m_report, 2, 0, 1, 2);
    grid->setRowStretch(3, 1);
}

ui::CGridArrangedButton* GridButtonPage::makeWideButton()
{
    auto* button = new ui::CGridArrangedButton;
    button->setContentsMargins(margin, margin, margin, margin);
    button->setHorizontalSpacing(margin);
    button->addWidget(new IconLabel(QStringLiteral("usb.png"), iconExtent), 0, 0, 2, 1,
                      Qt::AlignCenter);
    button->addWidget(makeLabel(tr("USB stick")), 0, 1, Qt::AlignLeft);
    button->addWidget(makeLabel(tr("12.4 GB"), 1.8, true), 1, 1, Qt::AlignLeft);
    button->addWidget(makeLabel(tr("free of 16 GB")), 1, 2, Qt::AlignRight | Qt::AlignBottom);
    button->setColumnStretch(1, 1);
    present(button, tr("USB stick"));
    return button;
}

ui::CGridArrangedButton* GridButtonPage::makeTile(const QString& fileName, const QString& title)
{
    auto* button = new ui::CGridArrangedButton;
    button->setMinimumHeight(leastTileHeight);
    button->addWidget(new IconLabel(fileName, iconExtent), 0, 0, Qt::AlignCenter);
    button->addWidget(makeLabel(title), 1, 0, Qt::AlignCenter);
    button->setRowStretch(0, 1);
    present(button, title);
    return button;
}

void GridButtonPage::present(ui::CGridArrangedButton* button, const QString& name)
{
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    addDemoWidget(button, name);
    connect(button, &QPushButton::clicked, this,
            [this, name] { m_report->setText(tr("You tapped \"%1\".").arg(name)); });
}

} // namespace

GalleryPage* makeGridButtonPage(QWidget* parent)
{
    return new GridButtonPage(parent);
}
