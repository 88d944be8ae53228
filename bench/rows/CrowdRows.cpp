#include "Rows.h"

#include "Crowd.h"
#include "PlainPopup.h"

#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>
#include <Switch.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>
#include <ui/FileBrowserWidget.h>
#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>
#include <ui/ScrollIndicatorBar.h>

#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QScrollBar>
#include <QToolBar>

#include <memory>

namespace bench {

namespace {

constexpr int many = 1000;
constexpr int some = 100; ///< Of those that bring a whole keypad.
constexpr int few = 20; ///< Of those that bring a thread and an inotify instance.

/// A class of widgets, and what one would use instead.
struct Kind
{
    const char* name;
    Crowd::Maker ours;
    const char* stockName;
    Crowd::Maker stock;
    int count = many;
};

template <typename Widget>
QWidget* make(QWidget* parent)
{
    return new Widget(parent);
}

/// With an outline, as the rounded frame has one.
QWidget* makeBox(QWidget* parent)
{
    auto* frame = new QFrame(parent);
    frame->setFrameShape(QFrame::Box);
    return frame;
}

/// As a part of a window, not as a dialog.
QWidget* makeFileDialog(QWidget* parent)
{
    auto* dialog = new QFileDialog(parent);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setWindowFlags(Qt::Widget);
    return dialog;
}

QWidget* makeFieldWithPopup(QWidget* parent)
{
    auto* field = new ui::LineEdit(parent);
    new ui::KeypadPopup(field, {}, ui::keyboard::KeyboardType::Integer, -1);
    return field;
}

QWidget* makeFieldWithPlainPopup(QWidget* parent)
{
    auto* field = new QLineEdit(parent);
    plainPopup(field);
    return field;
}

QVector<Kind> kinds()
{
    using ui::widgets::ScrollIndicatorBar;
    return {
        {"CRoundedFrame", make<ui::CRoundedFrame>, "QFrame", makeBox},
        {"CGridArrangedButton", make<ui::CGridArrangedButton>, "QPushButton", make<QPushButton>},
        {"CBatteryStatusWidget", make<ui::CBatteryStatusWidget>, "QProgressBar",
         make<QProgressBar>},
        {"ScrollIndicatorBar", make<ScrollIndicatorBar>, "QScrollBar", make<QScrollBar>},
        {"LineEdit", make<ui::LineEdit>, "QLineEdit", make<QLineEdit>},
        {"KeypadLineEdit", make<ui::KeypadLineEdit>, "QLineEdit", make<QLineEdit>},
        {"LineEdit with a hidden KeypadPopup", makeFieldWithPopup,
         "QLineEdit with the keypad in a plain pop-up", makeFieldWithPlainPopup, some},
        {"Switch", make<Switch>, "QCheckBox", make<QCheckBox>},
        {"ClickableLabel", make<ClickableLabel>, "QLabel", make<QLabel>},
        {"BreadCrumbsWidget", make<BreadCrumbsWidget>, "QToolBar", make<QToolBar>},
        {"FileBrowserWidget", make<ui::FileBrowserWidget>, "QFileDialog", makeFileDialog, few},
    };
}

/// What is measured of a life, and what comes before it.
struct Phase
{
    const char* name;
    void (*run)(Crowd& crowd);
    void (*prepare)(Crowd& crowd);
};

const Phase phases[] = {
    {"made", [](Crowd& crowd) { crowd.make(); }, [](Crowd& crowd) { crowd.destroy(); }},
    {"first shown", [](Crowd& crowd) { crowd.show(); },
     [](Crowd& crowd) {
         crowd.destroy();
         crowd.make();
     }},
    {"destroyed", [](Crowd& crowd) { crowd.destroy(); },
     [](Crowd& crowd) {
         crowd.make();
         crowd.show();
     }},
};

Setup live(const Crowd::Maker& maker, int count, const Phase& phase)
{
    return [maker, count, phase] {
        const auto crowd = std::make_shared<Crowd>(maker, count);
        return Work([crowd, phase] { phase.run(*crowd); },
                    [crowd, phase] { phase.prepare(*crowd); });
    };
}

Row phaseRow(const Kind& kind, const Phase& phase)
{
    const QString name = QStringLiteral("%1 of %2, %3");
    return {name.arg(kind.count).arg(QLatin1String(kind.name), QLatin1String(phase.name)),
            live(kind.ours, kind.count, phase),
            QLatin1String(kind.stockName),
            live(kind.stock, kind.count, phase),
            {},
            kind.count};
}

} // namespace

QVector<Row> crowdRows()
{
    QVector<Row> result;
    const QVector<Kind> all = kinds();
    for (const Kind& kind : all) {
        for (const Phase& phase : phases)
            result.append(phaseRow(kind, phase));
    }
    return result;
}

} // namespace bench
