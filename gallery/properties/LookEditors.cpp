#include "FoldoutEditors.h"

#include "SimpleEditors.h"
#include "Switch.h"
#include "Touch.h"

#include <ui/KeypadLineEdit.h>

#include <QBoxLayout>
#include <QColor>
#include <QComboBox>
#include <QFont>
#include <QFontComboBox>
#include <QLabel>
#include <QMetaEnum>
#include <QPainter>
#include <QPalette>
#include <QSignalBlocker>
#include <QSlider>

#include <array>

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

namespace {

constexpr std::array<QPalette::ColorRole, 8> roles = {
    QPalette::Window, QPalette::WindowText, QPalette::Base,      QPalette::Text,
    QPalette::Button, QPalette::ButtonText, QPalette::Highlight, QPalette::HighlightedText};

QString nameOf(QPalette::ColorRole role)
{
    return QString::fromLatin1(QMetaEnum::fromType<QPalette::ColorRole>().valueToKey(role));
}

} // namespace

PaletteEditor::PaletteEditor(QWidget* parent)
    : FoldoutEditor(parent)
{
}

QString PaletteEditor::summary(const QVariant& value) const
{
    const auto palette = value.value<QPalette>();
    return tr("%1 on %2")
        .arg(palette.color(QPalette::WindowText).name(), palette.color(QPalette::Window).name());
}

QWidget* PaletteEditor::makeBody()
{
    auto* form = new PartsForm;
    for (const QPalette::ColorRole role : roles) {
        auto* editor = new ColorEditor;
        connect(editor, &ColorEditor::edited, this, [this, role](const QVariant& color) {
            auto palette = value().value<QPalette>();
            palette.setColor(role, color.value<QColor>());
            Q_EMIT edited(palette);
        });
        form->addHeading(nameOf(role));
        form->addPart(editor);
        m_editors.append(editor);
    }
    return form;
}

void PaletteEditor::fillBody(const QVariant& value)
{
    const auto palette = value.value<QPalette>();
    for (int i = 0; i < m_editors.size(); ++i)
        m_editors.at(i)->setValue(palette.color(roles.at(size_t(i))));
}

namespace {

bool isInPixels(const QFont& font)
{
    return font.pixelSize() > 0;
}

void setSize(QFont& font, int size)
{
    const int valid = qMax(1, size); // what Qt accepts
    if (isInPixels(font))
        font.setPixelSize(valid);
    else
        font.setPointSize(valid);
}

} // namespace

FontEditor::FontEditor(QWidget* parent)
    : FoldoutEditor(parent)
    , m_family(nullptr)
    , m_size(nullptr)
    , m_bold(nullptr)
    , m_italic(nullptr)
    , m_underline(nullptr)
{
}

QString FontEditor::summary(const QVariant& value) const
{
    const QFont font = value.value<QFont>();
    return isInPixels(font) ? tr("%1, %2 px").arg(font.family()).arg(font.pixelSize())
                            : tr("%1, %2 pt").arg(font.family()).arg(font.pointSizeF());
}

QWidget* FontEditor::makeBody()
{
    auto* form = new PartsForm;

    m_family = new QFontComboBox;
    m_family->setEditable(false);
    touch::adapt(m_family);
    connect(m_family, &QFontComboBox::currentFontChanged, this, [this](const QFont& chosen) {
        QFont changed = shownFont();
        changed.setFamily(chosen.family());
        Q_EMIT edited(changed);
    });
    form->addPart(m_family);

    m_size = new IntEditor;
    connect(m_size, &IntEditor::edited, this, [this](const QVariant& size) {
        QFont changed = shownFont();
        setSize(changed, size.toInt());
        Q_EMIT edited(changed);
    });
    form->addPart(m_size);

    m_bold = addSwitch(form, tr("Bold"), &QFont::setBold);
    m_italic = addSwitch(form, tr("Italic"), &QFont::setItalic);
    m_underline = addSwitch(form, tr("Underline"), &QFont::setUnderline);
    return form;
}

void FontEditor::fillBody(const QVariant& value)
{
    const QFont font = value.value<QFont>();
    const QSignalBlocker blocker(m_family);
    m_family->setCurrentFont(font);
    m_size->setValue(isInPixels(font) ? font.pixelSize() : font.pointSize());
    m_bold->setValue(font.bold());
    m_italic->setValue(font.italic());
    m_underline->setValue(font.underline());
}

QFont FontEditor::shownFont() const
{
    return value().value<QFont>();
}

BoolEditor* FontEditor::addSwitch(PartsForm* form, const QString& label, void (QFont::*set)(bool))
{
    auto* editor = new BoolEditor;
    connect(editor, &BoolEditor::edited, this, [this, set](const QVariant& on) {
        QFont changed = shownFont();
        (changed.*set)(on.toBool());
        Q_EMIT edited(changed);
    });
    form->addPart(label, editor);
    return editor;
}

AnimationEditor::AnimationEditor(QWidget* parent)
    : FoldoutEditor(parent)
    , m_easing(nullptr)
    , m_duration(nullptr)
{
}

QString AnimationEditor::summary(const QVariant& value) const
{
    const auto animation = value.value<Style::Animation>();
    const char* easing = QMetaEnum::fromType<QEasingCurve::Type>().valueToKey(animation.easing);
    return tr("%1, %2 ms").arg(QString::fromLatin1(easing)).arg(animation.duration);
}

QWidget* AnimationEditor::makeBody()
{
    m_easing = EasingCurveEditor::makeTypeBox();
    connect(m_easing, QOverload<int>::of(&QComboBox::activated), this,
            &AnimationEditor::enterEasing);
    m_duration = new IntEditor;
    connect(m_duration, &IntEditor::edited, this, &AnimationEditor::enterDuration);

    auto* form = new PartsForm;
    form->addPart(m_easing);
    form->addPart(m_duration);
    return form;
}

void AnimationEditor::fillBody(const QVariant& value)
{
    const auto animation = value.value<Style::Animation>();
    m_easing->setCurrentIndex(m_easing->findData(int(animation.easing)));
    m_duration->setValue(animation.duration);
}

void AnimationEditor::enterEasing(int index)
{
    auto animation = value().value<Style::Animation>();
    animation.easing = QEasingCurve::Type(m_easing->itemData(index).toInt());
    Q_EMIT edited(QVariant::fromValue(animation));
}

void AnimationEditor::enterDuration(const QVariant& duration)
{
    auto animation = value().value<Style::Animation>();
    animation.duration = duration.toInt();
    Q_EMIT edited(QVariant::fromValue(animation));
}
