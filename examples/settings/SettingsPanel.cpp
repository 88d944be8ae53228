#include "SettingsPanel.h"

#include "FileDialog.h"
#include "KeypadArea.h"

#include <Switch.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>
#include <ui/KeypadLineEdit.h>

#include <QBoxLayout>
#include <QDoubleValidator>
#include <QFileInfo>
#include <QIcon>
#include <QIntValidator>
#include <QLabel>
#include <QRegularExpressionValidator>
#include <QStyle>

using ui::KeypadLineEdit;
using ui::keyboard::KeyboardType;

namespace {

constexpr int margin = 12;
constexpr int batteryWidth = 18;
constexpr QMargins switchMargin(11, 14, 11, 14); // a pill of 48 x 16 pixels in a height of 48
constexpr int charge = 80; // a device asks its battery

/// At the leading edge of the layout, whichever way its text is read.
QLabel* makeLabel(const QString& text)
{
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    label->setAlignment(QStyle::visualAlignment(label->layoutDirection(), Qt::AlignLeft)
                        | Qt::AlignAbsolute | Qt::AlignVCenter);
    return label;
}

/// A frame with a title, which the caller fills from top to bottom.
ui::CRoundedFrame* makeCard(const QString& title)
{
    auto* card = new ui::CRoundedFrame;
    card->enableFillContents(true);
    auto* column = new QVBoxLayout(card);
    auto* label = makeLabel(title);
    label->setObjectName("cardTitle");
    column->addWidget(label);
    return card;
}

QBoxLayout* columnOf(QWidget* card)
{
    return static_cast<QBoxLayout*>(card->layout());
}

/// A line of a card: what it is at the leading edge, what changes it at the other.
void addRow(QBoxLayout* card, const QString& title, QWidget* control)
{
    control->setAccessibleName(title);
    auto* row = new QHBoxLayout;
    row->addWidget(makeLabel(title), 1);
    row->addWidget(control);
    card->addLayout(row);
}

} // namespace

SettingsPanel::SettingsPanel(const QStringList& updateFolders, bool dark, QWidget* parent)
    : QWidget(parent)
    , m_updateFolders(updateFolders)
    , m_report(new QLabel(this))
    , m_update(makeLabel(tr("Version 1.4 is installed")))
{
    setObjectName("panel");
    setWindowTitle(tr("Settings"));

    auto* area = new KeypadArea;
    area->setObjectName("area");
    for (QWidget* card : {makeHeating(), makeNetwork(), makeDisplay(dark), makeUpdate()})
        area->column()->addWidget(card);
    area->column()->setContentsMargins(margin, margin, margin, margin);
    area->column()->setSpacing(margin);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, 0, margin, 0);
    column->setSpacing(0);
    column->addLayout(makeHeader());
    column->addWidget(area);
}

QLayout* SettingsPanel::makeHeader()
{
    auto* title = new QLabel(tr("Settings"));
    title->setObjectName("title");
    m_report->setObjectName("report");
    m_report->setAlignment(Qt::AlignCenter);
    m_report->setWordWrap(true);
    auto* battery = new ui::CBatteryStatusWidget;
    battery->setObjectName("battery");
    battery->setFixedWidth(batteryWidth); // the layout asks it for its height
    battery->setFrameWidth(2);
    battery->setFillColor(Qt::darkGreen);
    battery->setChargePercentage(charge);
    auto* percent = new QLabel(locale().toString(charge) + locale().percent());

    auto* header = new QHBoxLayout;
    header->setContentsMargins(margin, margin, margin, margin);
    header->setSpacing(margin);
    header->addWidget(title);
    header->addWidget(m_report, 1);
    header->addWidget(battery);
    header->addWidget(percent);
    return header;
}

QWidget* SettingsPanel::makeHeating()
{
    QWidget* card = makeCard(tr("Room"));
    QBoxLayout* column = columnOf(card);
    addSwitch(column, tr("Heating"), "heating", true);
    addField(column, tr("Temperature in °C, 5 to 30"), "temperature", KeyboardType::Decimal,
             new QDoubleValidator(5, 30, 1, this), locale().toString(20.5));
    addField(column, tr("Pump's overrun in minutes, 1 to 60"), "overrun", KeyboardType::Integer,
             new QIntValidator(1, 60, this), locale().toString(15));
    return card;
}

QWidget* SettingsPanel::makeNetwork()
{
    QWidget* card = makeCard(tr("Network"));
    QBoxLayout* column = columnOf(card);
    const Switch* wireless = addSwitch(column, tr("Wi-Fi"), "wifi", true);
    const QRegularExpression names(QStringLiteral("[a-z]{3,12}"));
    KeypadLineEdit* name =
        addField(column, tr("Name, 3 to 12 small letters"), "name", KeyboardType::Text,
                 new QRegularExpressionValidator(names, this), QStringLiteral("cellar"));
    KeypadLineEdit* port = addField(column, tr("Port, 1 to 65535"), "port", KeyboardType::Integer,
                                    new QIntValidator(1, 65535, this), QStringLiteral("8080"));
    for (KeypadLineEdit* field : {name, port})
        connect(wireless, &Switch::toggled, field, &QWidget::setEnabled);
    return card;
}

QWidget* SettingsPanel::makeDisplay(bool dark)
{
    QWidget* card = makeCard(tr("Display"));
    const Switch* theme = addSwitch(columnOf(card), tr("Dark theme"), "dark", dark);
    connect(theme, &Switch::toggled, this, &SettingsPanel::themeChosen);
    addSwitch(columnOf(card), tr("Dim at night"), "dim", false);
    return card;
}

QWidget* SettingsPanel::makeUpdate()
{
    QLabel* title = makeLabel(tr("Update from a file"));
    m_update->setObjectName("update");
    auto* stick = new QLabel;
    stick->setPixmap(QIcon(":/icons/usb.png").pixmap(24));

    auto* button = new ui::CGridArrangedButton;
    button->setObjectName("chooseUpdate");
    button->setAccessibleName(title->text());
    button->addWidget(title, 0, 0);
    button->addWidget(m_update, 1, 0);
    button->addWidget(stick, 0, 1, 2, 1, Qt::AlignCenter); // both rows of the second column
    button->setColumnStretch(0, 1);
    connect(button, &QPushButton::clicked, this, &SettingsPanel::chooseUpdate);
    return button;
}

Switch* SettingsPanel::addSwitch(QBoxLayout* card, const QString& title, const char* name, bool on)
{
    auto* toggle = new Switch(this);
    toggle->setIndicatorMargin(switchMargin);
    toggle->ensurePolished(); // takes the colours of the style sheet, before the state
    toggle->setChecked(on);
    toggle->setObjectName(name);
    connect(toggle, &Switch::toggled, m_report, [this, title](bool isOn) {
        m_report->setText(isOn ? tr("%1 is on").arg(title) : tr("%1 is off").arg(title));
    });
    addRow(card, title, toggle);
    return toggle;
}

KeypadLineEdit* SettingsPanel::addField(QBoxLayout* card, const QString& title, const char* name,
                                        KeyboardType type, QValidator* validator,
                                        const QString& text)
{
    auto* field = new KeypadLineEdit(this, type);
    field->setObjectName(name);
    field->setValidator(validator);
    field->setText(text);
    connect(field, &KeypadLineEdit::valueChanged, m_report,
            [this, field, title] { m_report->setText(tr("%1: %2").arg(title, field->text())); });
    addRow(card, title, field);
    return field;
}

void SettingsPanel::chooseUpdate()
{
    auto* dialog = new FileDialog(m_updateFolders, {"*.bin", "*.img"}, this);
    dialog->setObjectName("updates");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &FileDialog::chosen, m_update, [this](const QString& path) {
        m_update->setText(m_update->fontMetrics().elidedText(QFileInfo(path).fileName(),
                                                             Qt::ElideMiddle, m_update->width()));
    });
    dialog->setGeometry(QRect(mapToGlobal(QPoint(0, 0)), size()));
    dialog->open();
}
