#include "BreadCrumbsWidget.h"
#include "BrowserParts.h"
#include "PlatformMessages.h"
#include "TestApplication.h"
#include "Tree.h"
#include "ui/FileBrowserWidget.h"

#include <QImageReader>
#include <QListView>
#include <QMutex>
#include <QPushButton>
#include <QWaitCondition>

#include <dirent.h>
#include <dlfcn.h>

#include <memory>

using namespace test;

namespace {

/// What threads other than the first have to pass before they read a directory's entry. The first,
/// which paints and takes the user's taps, is let through, but seen.
class Gate
{
public:
    void passFirstThread()
    {
        const QMutexLocker lock(&m_mutex);
        m_waitedInFirstThread = m_waitedInFirstThread || !m_open;
    }
    bool hasFirstThreadWaited()
    {
        const QMutexLocker lock(&m_mutex);
        return m_waitedInFirstThread;
    }
    void setOpen(bool open)
    {
        const QMutexLocker lock(&m_mutex);
        m_open = open;
        m_changed.wakeAll();
    }
    void pass()
    {
        const QMutexLocker lock(&m_mutex);
        ++m_waiting;
        while (!m_open)
            m_changed.wait(&m_mutex);
        --m_waiting;
    }
    bool isSomebodyWaiting()
    {
        const QMutexLocker lock(&m_mutex);
        return m_waiting > 0;
    }

private:
    QMutex m_mutex;
    QWaitCondition m_changed;
    bool m_open = true;
    bool m_waitedInFirstThread = false;
    int m_waiting = 0;
};

Gate& gate()
{
    static Gate instance;
    return instance;
}

/// A file system that does not answer for its lifetime.
class SilentFileSystem
{
public:
    SilentFileSystem()
    {
        gate().setOpen(false);
    }
    ~SilentFileSystem()
    {
        gate().setOpen(true);
    }
    Q_DISABLE_COPY(SilentFileSystem)
};

} // namespace

// Stands before the C library's function when Qt's references are resolved. Directories are read in
// a thread of the file system model; with the gate closed, that thread waits as for a slow medium.
extern "C" Q_DECL_EXPORT dirent64* readdir64(DIR* directory)
{
    const bool firstThread = !qApp || QThread::currentThread() == qApp->thread();
    firstThread ? gate().passFirstThread() : gate().pass();
    const auto original = reinterpret_cast<decltype(&readdir64)>(dlsym(RTLD_NEXT, "readdir64"));
    return original(directory);
}

/// Directories on a medium that takes its time: the interface answers meanwhile.
class tst_SlowFileSystem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void interfaceAnswers();
    void otherDirectoryMeanwhile();
    void deletedWhileWaiting();

private:
    bool shows(const QString& name) const;

    std::unique_ptr<Tree> m_tree;
    std::unique_ptr<ui::FileBrowserWidget> m_browser;
    std::unique_ptr<BrowserParts> m_parts;
};

void tst_SlowFileSystem::initTestCase()
{
    test::dropPlatformMessages();
    // Qt looks for the plugins of image formats when it first needs one, in any thread.
    QImageReader::supportedImageFormats();
}

void tst_SlowFileSystem::init()
{
    m_tree = std::make_unique<Tree>();
    m_tree->makeDir(QStringLiteral("slow/inside"));
    m_tree->makeDir(QStringLiteral("other/elsewhere"));
    m_browser = std::make_unique<ui::FileBrowserWidget>();
    m_parts = std::make_unique<BrowserParts>(*m_browser);
    m_browser->resize(600, 400);
    m_browser->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_browser.get()));
}

void tst_SlowFileSystem::cleanup()
{
    QVERIFY(!gate().hasFirstThreadWaited());
    m_browser.reset();
    m_tree.reset();
}

bool tst_SlowFileSystem::shows(const QString& name) const
{
    return QTest::qWaitFor([&] { return shownNames(*m_parts->tileView) == QStringList{name}; });
}

void tst_SlowFileSystem::interfaceAnswers()
{
    {
        const SilentFileSystem silent;
        m_browser->setAllowedDirs({m_tree->path(QStringLiteral("slow"))});
        QVERIFY(QTest::qWaitFor([] { return gate().isSomebodyWaiting(); }));
        QCOMPARE(m_browser->currentPath(), m_tree->path(QStringLiteral("slow")));
        QCOMPARE(shownNames(*m_parts->tileView), QStringList());
        m_parts->listButton->click();
        QVERIFY(!m_parts->tileView->isVisible());
        m_parts->tileButton->click();
        QVERIFY(!m_browser->grab().isNull());
        QCOMPARE(m_browser->selectedFiles(), QStringList());
    }
    QVERIFY(shows(QStringLiteral("inside")));
}

void tst_SlowFileSystem::otherDirectoryMeanwhile()
{
    {
        const SilentFileSystem silent;
        m_browser->setAllowedDirs({m_tree->path(QStringLiteral("slow"))});
        QVERIFY(QTest::qWaitFor([] { return gate().isSomebodyWaiting(); }));
        Q_EMIT m_parts->bar->dirChanged(m_tree->path(QStringLiteral("other")));
        QCOMPARE(m_browser->currentPath(), m_tree->path(QStringLiteral("other")));
    }
    QVERIFY(shows(QStringLiteral("elsewhere")));
    QCOMPARE(m_browser->currentPath(), m_tree->path(QStringLiteral("other")));
}

/// The model's destructor waits for its thread: it must end as soon as the medium answers.
void tst_SlowFileSystem::deletedWhileWaiting()
{
    std::unique_ptr<QThread> medium;
    {
        gate().setOpen(false);
        m_browser->setAllowedDirs({m_tree->path(QStringLiteral("slow"))});
        QVERIFY(QTest::qWaitFor([] { return gate().isSomebodyWaiting(); }));
        medium.reset(QThread::create([] { gate().setOpen(true); }));
        medium->start();
        m_browser.reset();
    }
    QVERIFY(medium->wait());
    QVERIFY(!gate().isSomebodyWaiting());
}

int main(int argc, char** argv)
{
    return test::run<tst_SlowFileSystem>(argc, argv);
}

#include "tst_SlowFileSystem.moc"
