#pragma once

#include "EventLoop.h"
#include "Model.h"

#include <QPointer>
#include <QWidget>

#include <memory>

QT_BEGIN_NAMESPACE
class QWindow;
QT_END_NAMESPACE

namespace test {

/// Two windows, one with a layout and one without, and neighbours in each that take the focus.
class TestWindows
{
    Q_DISABLE_COPY(TestWindows)

public:
    TestWindows();
    ~TestWindows();

    QWidget* window(bool withLayout) const;
    /// A field or a button beside the widgets under test.
    QWidget* neighbour(bool withLayout, bool button) const;
    /// Deletes a window, with all that is in it, and makes another.
    void replaceWindow(bool withLayout);
    /// Puts \a widget into a window, with or without its layout.
    void place(QWidget* widget, bool withLayout) const;

private:
    QPointer<QWidget> m_windows[2];
};

/**
 * A model for a widget in one of two windows. Whatever deletes the widget, there is a new one for
 * the next action, and the model begins afresh with it.
 */
class WidgetModel : public Model
{
public:
    ~WidgetModel() override;

    void prepare() final;
    void check() final;
    bool expectsWarning(const QString& warning) const override;

    /// The widget, made and shown now if there is none.
    QWidget* widget();
    TestWindows& windows() const;

protected:
    explicit WidgetModel(const std::shared_ptr<TestWindows>& windows);

    /// Makes the widget, without a parent, and sets the model to that of a new one.
    virtual QWidget* create() = 0;
    /// Compares widget() with the model.
    virtual void checkState() = 0;

private:
    std::shared_ptr<TestWindows> m_windows;
    QPointer<QWidget> m_widget;
};

/// What a model for any widget can do, in groups.
void addPlacement(WidgetModel& model); ///< Show, hide, resize, reparent, delete.
void addAppearance(WidgetModel& model); ///< Style sheets, palette, font, direction, painting.
void addPointer(WidgetModel& model); ///< Mouse and wheel, inside and outside.
void addKeyboard(WidgetModel& model); ///< Keys and focus.
void addAllCommands(WidgetModel& model);

/// Presses at \a position, moves by two pixels and releases; no double click with what came before.
void tapTrembling(QWindow* window, const QPoint& position);

} // namespace test
