#include "WidgetModel.h"

#include <QPixmap>

namespace test {

namespace {

constexpr int largestWindow = 1000; // a window's pixels take memory

void resize(QWidget& widget, const QSize& size)
{
    const QSize limit(largestWindow, largestWindow);
    widget.resize(widget.isWindow() ? size.boundedTo(limit) : size);
}

/// Qt leaves a window that is not active with a pointer to its focus widget if that is hidden,
/// moved to another window and deleted.
void leaveFocus(const QWidget& widget)
{
    QWidget* focused = widget.window()->focusWidget();
    if (focused && (focused == &widget || widget.isAncestorOf(focused)))
        focused->clearFocus();
}

/// Into one of the windows, or a window of its own.
void reparent(WidgetModel& model, Values& values)
{
    QWidget* widget = model.widget();
    leaveFocus(*widget);
    if (values.below(4) == 0) {
        resize(*widget, widget->size().boundedTo(QSize(largestWindow, largestWindow)));
        widget->setParent(nullptr);
    } else {
        model.windows().place(widget, values.boolean());
    }
    widget->setVisible(values.below(4) > 0);
}

void showOrHideWindow(WidgetModel& model, Values& values)
{
    model.windows().window(values.boolean())->setVisible(values.below(4) > 0);
}

void deleteLater(WidgetModel& model)
{
    model.widget()->deleteLater();
    processEvents();
}

constexpr int largestPicture = 400;

QString styleSheet(Values& values)
{
    return values.oneOf({
        QString(),
        QStringLiteral("* { color: red; font-size: 9px; }"),
        QStringLiteral("QWidget { border: 3px solid blue; padding: 4px; margin: 2px; }"),
        QStringLiteral("*:disabled { background: green; } *[inputValid=\"false\"] { color: red; }"),
        QStringLiteral("this is { no style sheet"),
    });
}

void setPalette(WidgetModel& model, Values& values)
{
    QPalette palette = model.widget()->palette();
    const auto role = QPalette::ColorRole(values.below(QPalette::NColorRoles));
    palette.setColor(QPalette::ColorGroup(values.below(QPalette::NColorGroups)), role,
                     values.color());
    model.widget()->setPalette(values.below(8) == 0 ? QPalette() : palette);
}

void setFont(WidgetModel& model, Values& values)
{
    QFont font;
    font.setPixelSize(values.oneOf({1, 8, 14, 30, 200}));
    model.widget()->setFont(font);
}

void paint(WidgetModel& model, Values& values)
{
    QWidget* widget = model.widget();
    const QSize limit(largestPicture, largestPicture);
    widget->grab(QRect(values.pointIn(widget->size()), widget->size().boundedTo(limit)));
}

} // namespace

void addPlacement(WidgetModel& model)
{
    model.add("show", 4, [&](Values&) { model.widget()->show(); });
    model.add("hide", 2, [&](Values&) { model.widget()->hide(); });
    model.add("resize", 4, [&](Values& v) { resize(*model.widget(), v.size()); });
    model.add("move", 1, [&](Values& v) {
        const QPoint position(v.below(700) - 100, v.below(600) - 100);
        model.widget()->move(position);
    });
    model.add("reparent", 2, [&](Values& v) { reparent(model, v); });
    model.add("showOrHideWindow", 1, [&](Values& v) { showOrHideWindow(model, v); });
    model.add("stack", 1,
              [&](Values& v) { v.boolean() ? model.widget()->raise() : model.widget()->lower(); });
    model.add("delete", 1, [&](Values&) { delete model.widget(); });
    model.add("deleteLater", 1, [&](Values&) { deleteLater(model); });
    model.add("replaceWindow", 1, [&](Values& v) { model.windows().replaceWindow(v.boolean()); });
    model.add("processEvents", 6, [](Values&) { processEvents(); });
}

void addAppearance(WidgetModel& model)
{
    model.add("setStyleSheet", 1, [&](Values& v) { model.widget()->setStyleSheet(styleSheet(v)); });
    model.add("setWindowStyleSheet", 1, [&](Values& v) {
        model.windows().window(v.boolean())->setStyleSheet(styleSheet(v));
    });
    model.add("setPalette", 2, [&](Values& v) { setPalette(model, v); });
    model.add("setFont", 1, [&](Values& v) { setFont(model, v); });
    model.add("setLayoutDirection", 1, [&](Values& v) {
        model.widget()->setLayoutDirection(v.boolean() ? Qt::LeftToRight : Qt::RightToLeft);
    });
    model.add("setEnabled", 3, [&](Values& v) { model.widget()->setEnabled(v.below(4) > 0); });
    model.add("paint", 4, [&](Values& v) { paint(model, v); });
}

} // namespace test
