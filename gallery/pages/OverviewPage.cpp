#include "DemoParts.h"
#include "FlowLayout.h"
#include "GalleryPage.h"
#include "Glow.h"
#include "Lamp.h"
#include "Pages.h"
#include "properties/HiddenValues.h"
#include "Touch.h"

#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>
#include <Switch.h>
#include <ui/CAnimationFwdRevLoop.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>
#include <ui/FileSystemModel.h>
#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>
#include <ui/ScrollIndicatorBar.h>

#include <QBoxLayout>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QIntValidator>
#include <QLabel>
#include <QListView>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>

namespace {

constexpr int margin = 12;
constexpr int spacing = 8;
constexpr int cardWidth = 184; // three of them on a page of 600 pixels
constexpr QSize demoSize(150, 64);
constexpr QSize lightSize(56, 56);
constexpr int textMargin = 6;
constexpr int textPixelSize = 18;
constexpr int linkPixelSize = 12; // so that the longest name has room
constexpr int pulseDuration = 800;
constexpr int pulsingTime = 4800; // milliseconds; then the page is at rest

/// Every widget at a glance, each on a card with a button that leads to its page.
class OverviewPage : public GalleryPage
{
    Q_DECLARE_TR_FUNCTIONS(OverviewPage)

public:
    explicit OverviewPage(QWidget* parent);

    bool isReady() const override;

private:
    void addCard(const QString& name, const QString& page, QWidget* demo);
    void addContainers();
    void addControls();
    void addFields();
    void addIndicators();
    void addFiles();

    FlowLayout* m_cards;
    QListView* m_files = nullptr;
};

QLabel* makeTitle(const QString& text)
{
    QLabel* label = touch::makeHeading(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    label->setFont(font);
    return label;
}

/// Lights up when it is tapped.
class TappedGlow : public Glow
{
protected:
    void mousePressEvent(QMouseEvent*) override
    {
        lightUp();
    }
};

/// Pulses for a while, and again when it is tapped.
class PulsingBeacon : public Beacon
{
public:
    PulsingBeacon()
        : m_pulse(this, "brightness")
    {
        m_pulse.setStartValue(1.0);
        m_pulse.setEndValue(0.2);
        m_pulse.setDuration(pulseDuration);
        new ui::CAnimationFwdRevLoop(&m_pulse);
        pulse();
    }

protected:
    void mousePressEvent(QMouseEvent*) override
    {
        pulse();
    }

private:
    void pulse()
    {
        m_pulse.start();
        QTimer::singleShot(pulsingTime, &m_pulse, &QAbstractAnimation::stop);
    }

    QPropertyAnimation m_pulse;
};

QWidget* makeFrame()
{
    auto* frame = new ui::CRoundedFrame;
    frame->setFrameShadow(QFrame::Raised);
    frame->setLineWidth(3);
    frame->setMinimumSize(110, 48);
    return frame;
}

QWidget* makeGridButton()
{
    auto* button = new ui::CGridArrangedButton;
    button->setMinimumSize(130, 52);
    auto* title = new QLabel(QCoreApplication::translate("OverviewPage", "USB stick"));
    auto* room = new QLabel(QCoreApplication::translate("OverviewPage", "12.4 GB free"));
    for (QLabel* label : {title, room}) {
        label->setForegroundRole(QPalette::ButtonText);
        button->addWidget(label, label == title ? 0 : 1, 0, Qt::AlignCenter);
    }
    return button;
}

QWidget* makeSwitchDemo()
{
    Switch* control = makeColouredSwitch(QCoreApplication::translate("OverviewPage", "Wi-Fi"),
                                         QColor(33, 150, 243), true);
    touch::followPalette(control);
    return control;
}

QWidget* makeLamp()
{
    auto* lamp = new Lamp;
    lamp->setChecked(true);
    return lamp;
}

QWidget* makeGlow()
{
    auto* glow = new TappedGlow;
    glow->setFixedSize(lightSize);
    glow->lightUp();
    return glow;
}

QWidget* makeBattery()
{
    auto* battery = new ui::CBatteryStatusWidget;
    battery->setFixedSize(32, 58);
    battery->setChargePercentage(70);
    return battery;
}

QWidget* makeIndicator()
{
    auto* picture = new Picture;
    picture->setFixedSize(400, demoSize.height() - 14);
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(picture);
    area->setFixedSize(demoSize - QSize(0, 6));
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    touch::makeScrollable(area);
    return area;
}

QWidget* makePath()
{
    auto* bar = new BreadCrumbsWidget;
    bar->setStyleSheet(QStringLiteral("QLabel { min-height: %1px; font-size: %2px; }")
                           .arg(touch::targetSize)
                           .arg(textPixelSize));
    bar->setRootPath(QStringLiteral("/data"));
    bar->changeDir(QStringLiteral("/data/music"));
    QObject::connect(bar, &BreadCrumbsWidget::dirChanged, bar, &BreadCrumbsWidget::changeDir);
    return bar;
}

QWidget* makeLabel()
{
    auto* label = new ClickableLabel;
    label->setText(QCoreApplication::translate("OverviewPage", "A rather long name"));
    label->setFixedSize(demoSize.width(), touch::targetSize);
    QFont font = label->font();
    font.setPixelSize(textPixelSize);
    label->setFont(font);

    // A parent that fits tightly: its place in its parent shifts what it paints.
    auto* holder = new QWidget;
    auto* layout = new QVBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    return holder;
}

/// The top of the file system, of which there is something to be seen on every device.
QListView* makeFiles()
{
    auto* view = new QListView;
    auto* model = new ui::FileSystemModel(view);
    view->setModel(model);
    view->setRootIndex(model->setRootPath(QStringLiteral("/")));
    view->setFixedSize(demoSize);
    touch::makeScrollable(view);
    return view;
}

OverviewPage::OverviewPage(QWidget* parent)
    : GalleryPage(parent)
    , m_cards(new FlowLayout)
{
    m_cards->setSpacing(spacing);
    addContainers();
    addControls();
    addFields();
    addIndicators();
    addFiles();

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    column->addWidget(makeTitle(QStringLiteral("platform_widgets " GALLERY_VERSION)));
    column->addWidget(touch::makeLabel(
        tr("Every widget of the library, alive. A button below a widget opens its page.")));
    column->addLayout(m_cards);
    column->addStretch();
    column->addWidget(touch::makeLabel(
        tr("Qt %1, platform plugin \"%2\"")
            .arg(QString::fromLatin1(qVersion()), QGuiApplication::platformName())));
}

bool OverviewPage::isReady() const
{
    return m_files->model()->rowCount(m_files->rootIndex()) > 0;
}

void OverviewPage::addContainers()
{
    addCard(QStringLiteral("CRoundedFrame"), QStringLiteral("frames"), makeFrame());
    addCard(QStringLiteral("CGridArrangedButton"), QStringLiteral("grid-button"), makeGridButton());
}

void OverviewPage::addControls()
{
    addCard(QStringLiteral("Switch"), QStringLiteral("switch"), makeSwitchDemo());
    addCard(QStringLiteral("SelectionControl"), QStringLiteral("own-controls"), makeLamp());
    addCard(QStringLiteral("Animator"), QStringLiteral("own-controls"), makeGlow());
    auto* beacon = new PulsingBeacon;
    beacon->setFixedSize(lightSize);
    addCard(QStringLiteral("CAnimationFwdRevLoop"), QStringLiteral("animation"), beacon);
}

void OverviewPage::addFields()
{
    using ui::keyboard::KeyboardType;
    const QString page = QStringLiteral("text-entry");
    auto* plain = new ui::LineEdit;
    plain->setMinimumHeight(touch::targetSize);
    plain->setTextMargins(textMargin, 0, textMargin, 0);
    plain->setText(tr("Kitchen"));
    addCard(QStringLiteral("LineEdit"), page, plain);
    ui::KeypadLineEdit* port = touch::makeField(KeyboardType::Integer, tr("Port"));
    port->setValidator(new QIntValidator(1, 65535, port));
    port->setText(QStringLiteral("8080"));
    addCard(QStringLiteral("KeypadLineEdit"), page, port);

    auto* open = new QPushButton(tr("Open a keypad"));
    connect(open, &QPushButton::clicked, port, [port] { port->setFocus(); });
    addCard(QStringLiteral("KeypadPopup"), page, open);
}

void OverviewPage::addIndicators()
{
    addCard(QStringLiteral("CBatteryStatusWidget"), QStringLiteral("battery"), makeBattery());
    addCard(QStringLiteral("ScrollIndicatorBar"), QStringLiteral("scroll-indicator"),
            makeIndicator());
}

void OverviewPage::addFiles()
{
    addCard(QStringLiteral("BreadCrumbsWidget"), QStringLiteral("path"), makePath());
    addCard(QStringLiteral("ClickableLabel"), QStringLiteral("path"), makeLabel());
    m_files = makeFiles();
    addCard(QStringLiteral("FileSystemModel"), QStringLiteral("file-browser"), m_files);
    auto* open = new QPushButton(tr("Open"));
    connect(open, &QPushButton::clicked, this,
            [this] { Q_EMIT pageRequested(QStringLiteral("file-browser")); });
    addCard(QStringLiteral("FileBrowserWidget"), QStringLiteral("file-browser"), open);
}

void OverviewPage::addCard(const QString& name, const QString& page, QWidget* demo)
{
    auto* link = new QPushButton(name);
    link->setObjectName(QStringLiteral("pageLink"));
    link->setFlat(true);
    QFont font = link->font();
    font.setPixelSize(linkPixelSize);
    link->setFont(font);
    link->setMinimumHeight(touch::targetSize);
    link->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    connect(link, &QPushButton::clicked, this, [this, page] { Q_EMIT pageRequested(page); });

    auto* card = new ui::CRoundedFrame;
    card->setFrameShape(ui::CRoundedFrame::NoFrame);
    card->setBackgroundRole(QPalette::AlternateBase);
    card->enableFillContents(true);
    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(spacing, spacing, spacing, 0);
    column->setSpacing(0);
    auto* stage = new QWidget;
    stage->setMinimumHeight(demoSize.height());
    auto* row = new QHBoxLayout(stage);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(demo, 0, Qt::AlignCenter);
    column->addWidget(stage, 1);
    column->addWidget(link);
    card->setFixedWidth(cardWidth);
    m_cards->addWidget(card);
}

} // namespace

GalleryPage* makeOverviewPage(QWidget* parent)
{
    return new OverviewPage(parent);
}
