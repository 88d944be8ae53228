#include "Rows.h"

#include "AllClasses.h"
#include "Crowd.h"
#include "PlainPopup.h"

#include <ui/FileBrowserWidget.h>
#include <ui/KeypadPopup.h>
#include <ui/LineEdit.h>

#include <QLineEdit>

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
    const char* counterpartName;
    Crowd::Maker counterpart;
    int count = many;
};

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

/// All widgets to which Qt has a counterpart.
QVector<Kind> kinds()
{
    QVector<Kind> result{{"LineEdit with a hidden KeypadPopup", makeFieldWithPopup,
                          "QLineEdit with the keypad in a plain pop-up", makeFieldWithPlainPopup,
                          some}};
    for (const test::ClassInfo& info : test::allClasses()) {
        if (!info.counterpart.create)
            continue;
        const auto make = [info](QWidget* parent) {
            return static_cast<QWidget*>(info.create(parent));
        };
        const bool isBrowser = info.metaObject == &ui::FileBrowserWidget::staticMetaObject;
        result.append({info.name, make, info.counterpart.name, info.counterpart.create,
                       isBrowser ? few : many});
    }
    return result;
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
            QLatin1String(kind.counterpartName),
            live(kind.counterpart, kind.count, phase),
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
