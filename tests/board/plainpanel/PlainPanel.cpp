#include "PlainPanel.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDoubleValidator>
#include <QGroupBox>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QScrollArea>

namespace {

constexpr int rowHeight = 48;
constexpr int charge = 80;

QBoxLayout* columnOf(QWidget* card)
{
    return static_cast<QBoxLayout*>(card->layout());
}

QWidget* makeCard(const QString& title)
{
    auto* card = new QGroupBox(title);
    new QVBoxLayout(card);
    return card;
}

void addRow(QBoxLayout* card, const QString& title, QWidget* control)
{
    auto* row = new QHBoxLayout;
    row->addWidget(new QLabel(title), 1);
    row->addWidget(control);
    control->setFixedHeight(rowHeight);
    card->addLayout(row);
}

void addSwitch(QBoxLayout* card, const QString& title, bool on)
{
    auto* box = new QCheckBox;
    box->setChecked(on);
    addRow(card, title, box);
}

void addField(QBoxLayout* card, const QString& title, QValidator* validator, const QString& text)
{
    auto* field = new QLineEdit(text);
    field->setValidator(validator);
    addRow(card, title, field);
}

} // namespace

PlainPanel::PlainPanel()
{
    auto* rows = new QWidget;
    auto* cards = new QVBoxLayout(rows);
    for (QWidget* card : {makeHeating(), makeNetwork(), makeDisplay(), makeUpdate()})
        cards->addWidget(card);
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setWidget(rows);
    auto* column = new QVBoxLayout(this);
    column->addLayout(makeHeader());
    column->addWidget(area);
}

QLayout* PlainPanel::makeHeader()
{
    auto* battery = new QProgressBar;
    battery->setValue(charge);
    auto* header = new QHBoxLayout;
    header->addWidget(new QLabel(tr("Settings")));
    header->addWidget(new QLabel, 1);
    header->addWidget(battery);
    return header;
}

QWidget* PlainPanel::makeHeating()
{
    QWidget* card = makeCard(tr("Room"));
    addSwitch(columnOf(card), tr("Heating"), true);
    addField(columnOf(card), tr("Temperature in °C, 5 to 30"), new QDoubleValidator(5, 30, 1, this),
             locale().toString(20.5));
    addField(columnOf(card), tr("Pump's overrun in minutes, 1 to 60"),
             new QIntValidator(1, 60, this), locale().toString(15));
    return card;
}

QWidget* PlainPanel::makeNetwork()
{
    QWidget* card = makeCard(tr("Network"));
    addSwitch(columnOf(card), tr("Wi-Fi"), true);
    const QRegularExpression names(QStringLiteral("[a-z]{3,12}"));
    addField(columnOf(card), tr("Name, 3 to 12 small letters"),
             new QRegularExpressionValidator(names, this), QStringLiteral("cellar"));
    addField(columnOf(card), tr("Port, 1 to 65535"), new QIntValidator(1, 65535, this),
             QStringLiteral("8080"));
    return card;
}

QWidget* PlainPanel::makeDisplay()
{
    QWidget* card = makeCard(tr("Display"));
    addSwitch(columnOf(card), tr("Dark theme"), false);
    addSwitch(columnOf(card), tr("Dim at night"), false);
    return card;
}

QWidget* PlainPanel::makeUpdate()
{
    auto* button = new QPushButton(tr("Update from a file"));
    button->setMinimumHeight(rowHeight);
    return button;
}
