#include "Rows.h"

#include "AllClasses.h"
#include "Crowd.h"
#include "PlainPopup.h"
#include "Shown.h"

#include <ui/CGridArrangedButton.h>
#include <ui/FileBrowserWidget.h>
#include <ui/KeypadPopup.h>
#include <ui/LineEdit.h>

#include <QFile>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>

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
    Crowd::Ready ready = nullptr;
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

QWidget* makeButtonWithGrid(QWidget* parent)
{
    auto* button = new ui::CGridArrangedButton(parent);
    button->addWidget(new QLabel(QStringLiteral("1")), 0, 0);
    return button;
}

QWidget* makePlainButtonWithGrid(QWidget* parent)
{
    auto* button = new QPushButton(parent);
    (new QGridLayout(button))->addWidget(new QLabel(QStringLiteral("1")), 0, 0);
    return button;
}

/// A directory of \a count files, which is there until the program ends.
template <int count>
const QString& directory()
{
    static const QTemporaryDir dir;
    static const QString path = [] {
        for (int i = 0; i < count; ++i)
            QFile(dir.filePath(QString::number(i))).open(QIODevice::WriteOnly);
        return dir.path();
    }();
    return path;
}

template <int count>
QWidget* makeBrowser(QWidget* parent)
{
    auto* browser = new ui::FileBrowserWidget(parent);
    browser->setAllowedDirs({directory<count>()});
    return browser;
}

/// As a part of the window.
template <int count>
QWidget* makeFileDialog(QWidget* parent)
{
    auto* dialog = new QFileDialog(parent, QString(), directory<count>());
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setViewMode(QFileDialog::List);
    dialog->setWindowFlags(Qt::Widget);
    return dialog;
}

template <int count>
bool showsAllFiles(const QWidget* browser)
{
    return showsFiles(*browser, count);
}

/// All widgets to which Qt has a counterpart.
QVector<Kind> kinds()
{
    constexpr int files = 15; // as many as fill a screen
    QVector<Kind> result{
        {"CGridArrangedButton with a label", makeButtonWithGrid,
         "QPushButton with a QGridLayout and a label", makePlainButtonWithGrid},
        {"LineEdit with a hidden KeypadPopup", makeFieldWithPopup,
         "QLineEdit with the keypad in a plain pop-up", makeFieldWithPlainPopup, some},
        {"FileBrowserWidget, no files", makeBrowser<0>, "QFileDialog", makeFileDialog<0>, few},
        {"FileBrowserWidget, 15 files", makeBrowser<files>, "QFileDialog", makeFileDialog<files>,
         few, showsAllFiles<files>},
    };
    for (const test::ClassInfo& info : test::allClasses()) {
        const bool isBrowser = info.metaObject == &ui::FileBrowserWidget::staticMetaObject;
        if (!info.counterpart.create || isBrowser) // which shows a directory, above
            continue;
        const auto make = [info](QWidget* parent) {
            return static_cast<QWidget*>(info.create(parent));
        };
        result.append({info.name, make, info.counterpart.name, info.counterpart.create});
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

Setup live(const Crowd::Maker& maker, const Kind& kind, const Phase& phase)
{
    return [maker, count = kind.count, ready = kind.ready, phase] {
        const auto crowd = std::make_shared<Crowd>(maker, count, ready);
        return Work([crowd, phase] { phase.run(*crowd); },
                    [crowd, phase] { phase.prepare(*crowd); });
    };
}

Row phaseRow(const Kind& kind, const Phase& phase)
{
    const QString name = QStringLiteral("%1 of %2, %3");
    return {name.arg(kind.count).arg(QLatin1String(kind.name), QLatin1String(phase.name)),
            live(kind.ours, kind, phase),
            QLatin1String(kind.counterpartName),
            live(kind.counterpart, kind, phase),
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
