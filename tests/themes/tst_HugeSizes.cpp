#include "AllClasses.h"
#include "TestApplication.h"

#include <ui/CRoundedFrame.h>

#include <QProcess>

#include <algorithm>
#include <sys/resource.h>

using test::ClassInfo;

namespace {

constexpr int hugeLength = 30000; // pixels; their square takes 3.6 gigabytes
constexpr rlim_t addressSpace = rlim_t(2) * 1024 * 1024 * 1024;

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
bool survives(const ClassInfo& info)
{
    QWidget window;
    window.resize(400, 300);
    auto* widget = static_cast<QWidget*>(info.createTypical(&window));
    if (auto* frame = qobject_cast<ui::CRoundedFrame*>(widget)) {
        frame->enableFillContents(true);
        frame->enableWidgetMask(true);
    }
    window.show();
    widget->resize(hugeLength, hugeLength);
    QCoreApplication::processEvents();
    widget->grab();
    window.repaint();
    const QSize usual = widget->isWindow() ? QSize(200, 100).expandedTo(widget->minimumSizeHint())
                                           : QSize(200, 100);
    widget->resize(usual);
    QCoreApplication::processEvents();
    return widget->grab().size() == usual;
}

ClassInfo classNamed(const char* name)
{
    const QVector<ClassInfo>& all = test::allClasses();
    return *std::find_if(all.begin(), all.end(),
                         [name](const ClassInfo& info) { return qstrcmp(info.name, name) == 0; });
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
    QTest::addColumn<QString>("name");
    for (const ClassInfo& info : test::allWidgetClasses())
        QTest::newRow(info.name) << QString::fromLatin1(info.name);
}

void tst_HugeSizes::memoryRefused()
{
    QFETCH(QString, name);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ASAN_OPTIONS", "allocator_may_return_null=1:max_allocation_size_mb=2048");
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(), {"--huge", name});
    QVERIFY(process.waitForFinished(-1));
    QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
             process.readAll().constData());
}

int main(int argc, char** argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--huge") == 0) {
        test::prepareApplication();
        const QApplication application(argc, argv);
        test::setUpApplication();
        return limitMemory() && isPictureRefused() && survives(classNamed(argv[2])) ? 0 : 1;
    }
    return test::run<tst_HugeSizes>(argc, argv);
}

#include "tst_HugeSizes.moc"
