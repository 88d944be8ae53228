#include "FoldoutEditors.h"

#include "Touch.h"

#include <ui/KeypadLineEdit.h>

#include <QBoxLayout>
#include <QColor>
#include <QLabel>
#include <QPainter>
#include <QSignalBlocker>
#include <QSlider>

namespace {

constexpr int swatchExtent = 32;
constexpr int channelMaximum = 255;

/// The colour on a chequered background, which shows how transparent it is.
QPixmap swatch(const QColor& color)
{
    constexpr int square = swatchExtent / 4;
    QPixmap pixmap(swatchExtent, swatchExtent);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    for (int y = 0; y < swatchExtent; y += square) {
        for (int x = y / square % 2 * square; x < swatchExtent; x += 2 * square)
            painter.fillRect(x, y, square, square, Qt::lightGray);
    }
    painter.setPen(Qt::gray);
    painter.setBrush(color);
    painter.drawRect(0, 0, swatchExtent - 1, swatchExtent - 1);
    return pixmap;
}

} // namespace

ColorEditor::ColorEditor(QWidget* parent)
    : FoldoutEditor(parent)
    , m_swatch(new QLabel)
    , m_name(nullptr)
    , m_channels()
{
    header()->insertWidget(0, m_swatch);
}

void ColorEditor::setValue(const QVariant& value)
{
    const QColor color = value.value<QColor>();
    m_swatch->setPixmap(swatch(color.isValid() ? color : QColor(Qt::transparent)));
    FoldoutEditor::setValue(value);
}

QString ColorEditor::summary(const QVariant& value) const
{
    const QColor color = value.value<QColor>();
    return color.isValid() ? color.name(QColor::HexArgb) : tr("none");
}

QWidget* ColorEditor::makeBody()
{
    auto* form = new PartsForm;
    m_name = touch::makeField(ui::keyboard::KeyboardType::Text, tr("Name, or # and digits"));
    connect(m_name, &QLineEdit::textEdited, this, &ColorEditor::enterName);
    form->addPart(m_name);

    const std::array<QString, 4> names = {tr("Red"), tr("Green"), tr("Blue"), tr("Alpha")};
    for (size_t i = 0; i < m_channels.size(); ++i) {
        m_channels[i] = touch::makeSlider();
        m_channels[i]->setRange(0, channelMaximum);
        connect(m_channels[i], &QSlider::valueChanged, this, &ColorEditor::enterChannels);
        form->addPart(names[i], m_channels[i]);
    }
    return form;
}

void ColorEditor::fillBody(const QVariant& value)
{
    const QColor color = value.value<QColor>();
    const std::array<int, 4> channels = {color.red(), color.green(), color.blue(), color.alpha()};
    for (size_t i = 0; i < m_channels.size(); ++i) {
        const QSignalBlocker blocker(m_channels[i]);
        m_channels[i]->setValue(channels[i]);
    }
    if (QColor(m_name->text()) != color) // leaves another way to write the same colour alone
        m_name->setText(color.isValid() ? color.name(QColor::HexArgb) : QString());
}

void ColorEditor::enterName(const QString& name)
{
    if (QColor::isValidColor(name))
        Q_EMIT edited(QColor(name));
}

void ColorEditor::enterChannels()
{
    Q_EMIT edited(QColor(m_channels[0]->value(), m_channels[1]->value(), m_channels[2]->value(),
                         m_channels[3]->value()));
}
