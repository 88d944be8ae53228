#include "TestApplication.h"

#include <QDir>
#include <QResource>

#include <dlfcn.h>
#include <link.h>

// Stands before Qt's own function when the library's references are resolved, to see what is
// registered.
extern bool qRegisterResourceData(int, const unsigned char*, const unsigned char*,
                                  const unsigned char*);

namespace {

// Plain numbers: Qt's own libraries register theirs before any object here is constructed.
int registrations = 0;
int registeredFormat = 0;

const QByteArray libraryPath = QByteArrayLiteral(WIDGETS_LIBRARY);

const QStringList iconPaths = {
    QStringLiteral(":/icons/tile_view.svg"),
    QStringLiteral(":/icons/list_view.svg"),
    QStringLiteral(":/icons/usb.png"),
};

bool isMapped()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly)
        && maps.readAll().contains(QFileInfo(libraryPath).fileName().toLatin1());
}

QStringList missingIcons()
{
    QStringList missing;
    for (const QString& path : iconPaths) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly) || file.readAll().isEmpty())
            missing.append(path);
    }
    return missing;
}

/// Values of the entries \a tag in the dynamic section of the loaded library.
QVector<quint64> dynamicEntries(void* library, qint64 tag)
{
    link_map* map = nullptr;
    dlinfo(library, RTLD_DI_LINKMAP, &map);
    QVector<quint64> values;
    for (const ElfW(Dyn)* entry = map->l_ld; entry->d_tag != DT_NULL; ++entry) {
        if (entry->d_tag == tag)
            values.append(entry->d_un.d_val);
    }
    return values;
}

/// A library loaded for as long as the object lives.
class LoadedLibrary
{
    Q_DISABLE_COPY(LoadedLibrary)

public:
    LoadedLibrary()
        : m_handle(dlopen(libraryPath.constData(), RTLD_NOW | RTLD_LOCAL))
    {
        if (!m_handle)
            qWarning("%s", dlerror());
    }
    ~LoadedLibrary()
    {
        dlclose(m_handle);
    }

    void* handle() const
    {
        return m_handle;
    }

    template <typename Symbol>
    Symbol* find(const char* name) const
    {
        return reinterpret_cast<Symbol*>(dlsym(m_handle, name));
    }

private:
    void* m_handle;
};

} // namespace

Q_DECL_EXPORT bool qRegisterResourceData(int version, const unsigned char* tree,
                                         const unsigned char* name, const unsigned char* data)
{
    ++registrations;
    registeredFormat = version;
    const auto original = reinterpret_cast<decltype(&qRegisterResourceData)>(
        dlsym(RTLD_NEXT, "_Z21qRegisterResourceDataiPKhS0_S0_"));
    return original(version, tree, name, data);
}

class tst_LibraryLoading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void loadingRegistersTheIcons();
    void resourceFormatIsVersion3();
    void iconsAreTheOnlyAdditionToTheRoot();
    void reloadsAnyNumberOfTimes();
    void registrationFunctionsAreExported();
    void exportedConstants();
    void fileNameAndSoname();
};

void tst_LibraryLoading::initTestCase()
{
    QVERIFY2(QFileInfo::exists(libraryPath), libraryPath.constData());
}

void tst_LibraryLoading::init()
{
    registrations = 0;
    registeredFormat = 0;
    QVERIFY(!isMapped());
    QCOMPARE(missingIcons(), iconPaths);
}

void tst_LibraryLoading::cleanup()
{
    QVERIFY(!isMapped());
    QVERIFY(!dlopen(libraryPath.constData(), RTLD_NOW | RTLD_NOLOAD));
    QCOMPARE(missingIcons(), iconPaths);
}

void tst_LibraryLoading::loadingRegistersTheIcons()
{
    const LoadedLibrary library;
    QVERIFY(isMapped());
    QCOMPARE(missingIcons(), QStringList());
}

void tst_LibraryLoading::resourceFormatIsVersion3()
{
    const LoadedLibrary library;
    QCOMPARE(registrations, 1);
    QCOMPARE(registeredFormat, 3);
}

void tst_LibraryLoading::iconsAreTheOnlyAdditionToTheRoot()
{
    QStringList expected = QDir(QStringLiteral(":/")).entryList();
    expected.append(QStringLiteral("icons"));
    expected.sort();

    const LoadedLibrary library;
    QStringList children = QDir(QStringLiteral(":/")).entryList();
    children.sort();
    QCOMPARE(children, expected);
}

void tst_LibraryLoading::reloadsAnyNumberOfTimes()
{
    for (int iteration = 0; iteration < 5; ++iteration) {
        {
            const LoadedLibrary library;
            QCOMPARE(missingIcons(), QStringList());
        }
        QVERIFY(!isMapped());
        QCOMPARE(missingIcons(), iconPaths);
    }
}

void tst_LibraryLoading::registrationFunctionsAreExported()
{
    const LoadedLibrary library;
    const auto initResources = library.find<int()>("_Z22qInitResources_widgetsv");
    const auto cleanupResources = library.find<int()>("_Z25qCleanupResources_widgetsv");
    QVERIFY(initResources);
    QVERIFY(cleanupResources);

    QCOMPARE(cleanupResources(), 1);
    QCOMPARE(missingIcons(), iconPaths);
    QCOMPARE(initResources(), 1);
    QCOMPARE(missingIcons(), QStringList());
}

void tst_LibraryLoading::exportedConstants()
{
    const LoadedLibrary library;
    const auto goldenRatio =
        library.find<const double>("_ZN2ui20CBatteryStatusWidget12GOLDEN_RATIOE");
    QVERIFY(goldenRatio);
    QCOMPARE(*goldenRatio, 1.618);
}

void tst_LibraryLoading::fileNameAndSoname()
{
    const QString name = QStringLiteral("libplatform_widgets" PLATFORM_QT_SUFFIX ".so.1.2");
    QCOMPARE(QFileInfo(libraryPath).fileName(), name);

    const LoadedLibrary library;
    const QVector<quint64> strings = dynamicEntries(library.handle(), DT_STRTAB);
    const QVector<quint64> sonames = dynamicEntries(library.handle(), DT_SONAME);
    QCOMPARE(strings.size(), 1);
    QCOMPARE(sonames.size(), 1);
    // The loader has turned the string table's entry into an address.
    QCOMPARE(QString::fromLatin1(
                 reinterpret_cast<const char*>(quintptr(strings.first() + sonames.first()))),
             name);
}

int main(int argc, char** argv)
{
    return test::run<tst_LibraryLoading>(argc, argv);
}

#include "tst_LibraryLoading.moc"
