#include "TestApplication.h"

#include <BreadCrumbsWidget.h>
#include <Switch.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>
#include <ui/FileBrowserWidget.h>
#include <ui/KeypadLineEdit.h>
#include <ui/ScrollIndicatorBar.h>

#include <QPointer>
#include <QProcess>

#include <memory>
#include <sys/resource.h>

namespace {

constexpr int hugeLength = 30000; // pixels; their square takes 3.6 gigabytes
constexpr rlim_t addressSpace = rlim_t(2) * 1024 * 1024 * 1024;

struct Entry
{
    const char* name;
    QWidget* (*create)();
};

template <typename Widget>
QWidget* create()
{
    return new Widget;
}

constexpr Entry entries[] = {
    {"frame",
     [] {
         auto* frame = new ui::CRoundedFrame;
         frame->enableFillContents(true);
         frame->enableWidgetMask(true);
         return static_cast<QWidget*>(frame);
     }},
    {"grid button", create<ui::CGridArrangedButton>},
    {"battery", create<ui::CBatteryStatusWidget>},
    {"indicator", create<ui::widgets::ScrollIndicatorBar>},
    {"switch", create<Switch>},
    {"line edit", create<ui::LineEdit>},
    {"keypad line edit",
     [] {
         return static_cast<QWidget*>(
             new ui::KeypadLineEdit(nullptr, ui::keyboard::KeyboardType::Integer));
     }},
    {"crumbs", [] { return static_cast<QWidget*>(new BreadCrumbsWidget(nullptr)); }},
    {"browser", create<ui::FileBrowserWidget>},
};

/// Memory for a picture of the huge size is refused to this process from now on.
bool limitMemory()
{
#if defined(__SANITIZE_ADDRESS__)
    return qEnvironmentVariableIsSet("ASAN_OPTIONS"); // its own reservations are beyond every limit
#else
    const rlimit limit{addressSpace, addressSpace};
    return setrlimit(RLIMIT_AS, &limit) == 0;
#endif
}

bool isPictureRefused()
{
    return QImage(hugeLength, hugeLength, QImage::Format_ARGB32).isNull();
}

/// Whether the widget can be painted as usual after it was as large as no picture can be.
bool survives(const Entry& entry)
{
    QWidget window;
    window.resize(400, 300);
    QWidget* widget = entry.create();
    widget->setParent(&window);
    window.show();
    widget->resize(hugeLength, hugeLength);
    QCoreApplication::processEvents();
    widget->grab();
    window.repaint();
    widget->resize(200, 100);
    QCoreApplication::processEvents();
    return widget->grab().size() == QSize(200, 100);
}

} // namespace

/// A widget as large as there is no memory for a picture of it, in a process of its own.
class tst_HugeSizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void memoryRefused_data();
    void memoryRefused();
};

void tst_HugeSizes::memoryRefused_data()
{
    QTest::addColumn<int>("entry");
    int index = 0;
    for (const Entry& entry : entries)
        QTest::newRow(entry.name) << index++;
}

void tst_HugeSizes::memoryRefused()
{
    QFETCH(int, entry);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ASAN_OPTIONS", "allocator_may_return_null=1:max_allocation_size_mb=2048");
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(), {"--huge", QString::number(entry)});
    QVERIFY(process.waitForFinished(-1));
    QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
             process.readAll().constData());
}

int main(int argc, char** argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--huge") == 0) {
        test::prepareApplication();
        const QApplication application(argc, argv);
        test::settleApplication();
        return limitMemory() && isPictureRefused() && survives(entries[atoi(argv[2])]) ? 0 : 1;
    }
    return test::run<tst_HugeSizes>(argc, argv);
}

#include "tst_HugeSizes.moc"
