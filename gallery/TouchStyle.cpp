#include "TouchStyle.h"

#include "Touch.h"

#include <QApplication>
#include <QStyleOption>

namespace {

constexpr int indicatorExtent = 24;

/// Left and right of the text on a button.
constexpr int buttonPadding = 4;
constexpr int itemPadding = 8;

bool isTapped(QStyle::ContentsType type)
{
    switch (type) {
    case QStyle::CT_PushButton:
    case QStyle::CT_ToolButton:
    case QStyle::CT_CheckBox:
    case QStyle::CT_RadioButton:
    case QStyle::CT_ComboBox:
    case QStyle::CT_LineEdit:
    case QStyle::CT_MenuItem:
    case QStyle::CT_ItemViewItem:
    case QStyle::CT_Slider:
        return true;
    default:
        return false;
    }
}

bool isSeparator(const QStyleOption* option)
{
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    return item && item->menuItemType == QStyleOptionMenuItem::Separator;
}

template <typename Option>
Option elided(const Option& option, QString Option::*text, int room)
{
    Option changed = option;
    changed.*text = option.fontMetrics.elidedText(option.*text, Qt::ElideRight, qMax(0, room),
                                                  Qt::TextShowMnemonic);
    return changed;
}

} // namespace

TouchStyle::TouchStyle()
    : QProxyStyle(QStringLiteral("fusion"))
{
}

void TouchStyle::install()
{
    // Qt deletes a style that it replaces only if the application owns it, which it does not where
    // the style was set before there was an application.
    QApplication::style()->setParent(qApp);
    QApplication::setStyle(new TouchStyle); // which takes it over
}

QSize TouchStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                   const QWidget* widget) const
{
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (isTapped(type) && !isSeparator(option))
        result.setHeight(qMax(result.height(), touch::targetSize));
    if (type == CT_PushButton || type == CT_ToolButton)
        result.setWidth(qMax(result.width(), touch::targetSize));
    return result;
}

void TouchStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    if (element == CE_PushButtonLabel) {
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
            const int icon = button->icon.isNull() ? 0 : button->iconSize.width() + buttonPadding;
            const QStyleOptionButton changed = elided(*button, &QStyleOptionButton::text,
                                                      button->rect.width() - icon - buttonPadding);
            return QProxyStyle::drawControl(element, &changed, painter, widget);
        }
    } else if (element == CE_ToolButtonLabel) {
        if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option)) {
            const int icon = button->toolButtonStyle == Qt::ToolButtonTextBesideIcon
                ? button->iconSize.width() + 2 * buttonPadding
                : 0;
            const QStyleOptionToolButton changed =
                elided(*button, &QStyleOptionToolButton::text,
                       button->rect.width() - icon - buttonPadding);
            return QProxyStyle::drawControl(element, &changed, painter, widget);
        }
    } else if (element == CE_ComboBoxLabel) {
        if (const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
            const QRect field = subControlRect(CC_ComboBox, box, SC_ComboBoxEditField, widget);
            const QStyleOptionComboBox changed =
                elided(*box, &QStyleOptionComboBox::currentText, field.width() - buttonPadding);
            return QProxyStyle::drawControl(element, &changed, painter, widget);
        }
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void TouchStyle::drawItemText(QPainter* painter, const QRect& rect, int flags,
                              const QPalette& palette, bool enabled, const QString& text,
                              QPalette::ColorRole textRole) const
{
    if (!text.isRightToLeft())
        flags = (flags & ~Qt::TextForceRightToLeft) | Qt::TextForceLeftToRight;
    QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, textRole);
}

int TouchStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return indicatorExtent;
    case PM_FocusFrameHMargin: // on both sides of the text of an item
        return itemPadding;
    case PM_SliderThickness:
    case PM_SliderControlThickness:
    case PM_SliderLength:
        return indicatorExtent;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int TouchStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returned) const
{
    if (hint == SH_Slider_AbsoluteSetButtons)
        return Qt::LeftButton;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}
