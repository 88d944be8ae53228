#include "AllClasses.h"

#include "PublicHeaders.h"

#include <Animator.h>
#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>
#include <Switch.h>
#include <ui/CAnimationFwdRevLoop.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>
#include <ui/FileBrowserWidget.h>
#include <ui/FileSystemModel.h>
#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>
#include <ui/ScrollIndicatorBar.h>

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QProgressBar>
#include <QToolBar>

#include <algorithm>
#include <iterator>

namespace test {

namespace {

/// A control that paints nothing.
class Control : public SelectionControl
{
public:
    using SelectionControl::SelectionControl;
    using SelectionControl::toggle;
    void toggle(Qt::CheckState) override { }

protected:
    void paintEvent(QPaintEvent*) override { }
};

template <typename Class, typename Base = QObject>
Base* create(QWidget* parent)
{
    return new Class(parent);
}

/// A row for \a Class, made with its parent alone unless \a create says otherwise.
template <typename Class>
constexpr ClassInfo row(const char* name, void (*setTypicalState)(QObject&) = nullptr,
                        Counterpart counterpart = {},
                        QObject* (*create)(QWidget*) = test::create<Class>)
{
    return {name, &Class::staticMetaObject, create, setTypicalState, counterpart};
}

template <typename Widget>
constexpr Counterpart counterpart(const char* name)
{
    return {name, create<Widget, QWidget>};
}

/// With an outline, as the rounded frame has one.
QWidget* createBox(QWidget* parent)
{
    auto* frame = new QFrame(parent);
    frame->setFrameShape(QFrame::Box);
    return frame;
}

/// As a part of a window, not as a dialog.
QWidget* createFileDialog(QWidget* parent)
{
    auto* dialog = new QFileDialog(parent);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setWindowFlags(Qt::Widget);
    return dialog;
}

QObject* createAnimator(QWidget* parent)
{
    return new Animator(parent, parent);
}

QObject* createLoop(QWidget* parent)
{
    return new ui::CAnimationFwdRevLoop(new Animator(parent, parent));
}

QObject* createPopup(QWidget* parent)
{
    return new ui::KeypadPopup(new ui::LineEdit(parent), QString(),
                               ui::keyboard::KeyboardType::Integer, -1);
}

void addLabel(QObject& button)
{
    static_cast<ui::CGridArrangedButton&>(button).addWidget(new QLabel(QStringLiteral("1")), 0, 0);
}

void charge(QObject& object)
{
    auto& battery = static_cast<ui::CBatteryStatusWidget&>(object);
    battery.setChargePercentage(50);
    battery.setBatteryCharging(true);
}

void setText(QObject& object)
{
    object.setProperty("text", QStringLiteral("label"));
}

/// More directories than there are crumbs.
void showPath(QObject& object)
{
    auto& bar = static_cast<BreadCrumbsWidget&>(object);
    bar.setRootPath(QStringLiteral("/data"));
    bar.changeDir(QStringLiteral("/data/a/b/c/d"));
}

void browseAll(QObject& browser)
{
    static_cast<ui::FileBrowserWidget&>(browser).setAllowedDirs({QDir::rootPath()});
}

constexpr ClassInfo table[] = {
    row<ui::CRoundedFrame>("CRoundedFrame", nullptr, {"QFrame", createBox}),
    row<ui::CGridArrangedButton>("CGridArrangedButton", addLabel,
                                 counterpart<QPushButton>("QPushButton")),
    row<ui::CBatteryStatusWidget>("CBatteryStatusWidget", charge,
                                  counterpart<QProgressBar>("QProgressBar")),
    row<ui::widgets::ScrollIndicatorBar>("ScrollIndicatorBar", nullptr,
                                         counterpart<QScrollBar>("QScrollBar")),
    row<ui::LineEdit>("LineEdit", nullptr, counterpart<QLineEdit>("QLineEdit")),
    row<ui::KeypadLineEdit>("KeypadLineEdit", nullptr, counterpart<QLineEdit>("QLineEdit")),
    row<ui::KeypadPopup>("KeypadPopup", nullptr, {}, createPopup),
    row<Animator>("Animator", nullptr, {}, createAnimator),
    row<ui::CAnimationFwdRevLoop>("CAnimationFwdRevLoop", nullptr, {}, createLoop),
    row<SelectionControl>("SelectionControl", nullptr, {}, create<Control>),
    row<Switch>("Switch", setText, counterpart<QCheckBox>("QCheckBox")),
    row<ClickableLabel>("ClickableLabel", setText, counterpart<QLabel>("QLabel")),
    row<BreadCrumbsWidget>("BreadCrumbsWidget", showPath, counterpart<QToolBar>("QToolBar")),
    row<ui::FileSystemModel>("FileSystemModel"),
    row<ui::FileBrowserWidget>("FileBrowserWidget", browseAll, {"QFileDialog", createFileDialog}),
};

constexpr bool isSame(const char* a, const char* b)
{
    while (*a && *a == *b) {
        ++a;
        ++b;
    }
    return *a == *b;
}

constexpr bool hasRow(const char* header)
{
    for (const ClassInfo& info : table) {
        if (isSame(info.name, header))
            return true;
    }
    return false;
}

constexpr bool everyHeaderHasRow()
{
    for (const char* header : publicHeaders) {
        if (!hasRow(header))
            return false;
    }
    return true;
}

static_assert(everyHeaderHasRow(), "a public header has no row in the table of all classes");
static_assert(std::size(table) == std::size(publicHeaders),
              "the table of all classes has a row without a public header");

} // namespace

bool ClassInfo::isWidget() const
{
    return metaObject->inherits(&QWidget::staticMetaObject);
}

QObject* ClassInfo::createTypical(QWidget* parent) const
{
    QObject* object = create(parent);
    if (setTypicalState)
        setTypicalState(*object);
    return object;
}

QWidget* ClassInfo::createTypicalWidget(QWidget* parent) const
{
    auto* widget = qobject_cast<QWidget*>(createTypical(parent));
    return widget && !widget->isWindow() ? widget : nullptr;
}

const QVector<ClassInfo>& allClasses()
{
    static const QVector<ClassInfo> all(std::begin(table), std::end(table));
    return all;
}

QVector<ClassInfo> allWidgetClasses()
{
    QVector<ClassInfo> result;
    std::copy_if(allClasses().begin(), allClasses().end(), std::back_inserter(result),
                 [](const ClassInfo& info) { return info.isWidget(); });
    return result;
}

QString uncovered(const QStringList& covered, const QVector<ClassInfo>& classes)
{
    QStringList missing;
    QStringList unknown = covered;
    for (const ClassInfo& info : classes) {
        const QString name = QLatin1String(info.name);
        if (unknown.removeAll(name) == 0)
            missing.append(name);
    }
    return (missing + unknown).join(QLatin1Char(' '));
}

} // namespace test
