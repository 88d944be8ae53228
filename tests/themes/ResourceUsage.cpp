#include "ResourceUsage.h"

#include "EventLoop.h"

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QFile>
#include <QMutex>
#include <QSet>
#include <QThread>

#include <malloc.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
// Of the sanitizer's interface, whose header g++ comes without.
extern "C" size_t __sanitizer_get_current_allocated_bytes();
#endif

// Where Qt tells tools of objects that come and go: entry 3 is called for each new one, entry 4 for
// each that goes. Qt exports the table, but declares it in a private header only.
extern Q_CORE_EXPORT quintptr qtHookData[];

namespace test {

namespace {

// Plain pointers, that outlive every object.
QMutex& mutex = *new QMutex;
QSet<QObject*>& livingObjects = *new QSet<QObject*>;

void add(QObject* object)
{
    const QMutexLocker lock(&mutex);
    livingObjects.insert(object);
}

void remove(QObject* object)
{
    const QMutexLocker lock(&mutex);
    livingObjects.remove(object);
}

int runningTimers()
{
    int count = 0;
    const QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
    const QMutexLocker lock(&mutex);
    for (QObject* object : qAsConst(livingObjects)) {
        if (object->thread() == QThread::currentThread())
            count += dispatcher->registeredTimers(object).size();
    }
    return count;
}

qint64 heapInUse()
{
#if defined(__SANITIZE_ADDRESS__)
    return qint64(__sanitizer_get_current_allocated_bytes());
#else
    return qint64(mallinfo2().uordblks + mallinfo2().hblkhd);
#endif
}

qint64 residentMemory()
{
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

} // namespace

void watchObjects()
{
    qtHookData[3] = reinterpret_cast<quintptr>(&add);
    qtHookData[4] = reinterpret_cast<quintptr>(&remove);
}

ResourceUsage ResourceUsage::now()
{
    waitUntilIdle();
    ResourceUsage result;
    {
        const QMutexLocker lock(&mutex);
        result.objects = livingObjects.size();
    }
    result.timers = runningTimers();
    result.files =
        QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System).size();
    result.heap = heapInUse();
    result.resident = residentMemory();
    return result;
}

bool ResourceUsage::isResidentExact()
{
#if defined(__SANITIZE_ADDRESS__) || defined(RUNS_IN_EMULATOR)
    return false;
#else
    return true;
#endif
}

QDebug operator<<(QDebug debug, const ResourceUsage& usage)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << usage.objects << " objects, " << usage.timers << " timers, "
                           << usage.files << " files, " << usage.heap << " bytes in use, "
                           << usage.resident << " bytes resident";
}

} // namespace test
