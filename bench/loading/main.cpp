#include <benchmark/benchmark.h>
#include <valgrind/callgrind.h>

#include <cstring>
#include <dlfcn.h>
#include <stdexcept>
#include <string>

// Linked to all that the library needs, as the application that loads it is, but not to the
// library.

namespace {

/// Loads and unloads the library.
void load()
{
    void* library = dlopen(WIDGETS_LIBRARY, RTLD_NOW);
    if (!library)
        throw std::runtime_error(dlerror());
    dlclose(library);
}

} // namespace

/// With "--count", under callgrind: counts. Otherwise times, with Google Benchmark's options.
int main(int argc, char** argv)
{
    const std::string name = "loading and unloading the library";
    load();
    if (argc > 1 && std::strcmp(argv[1], "--count") == 0) {
        CALLGRIND_TOGGLE_COLLECT;
        load();
        CALLGRIND_TOGGLE_COLLECT;
        CALLGRIND_DUMP_STATS_AT(name.c_str());
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RegisterBenchmark(name.c_str(), [](benchmark::State& state) {
        for (auto _ : state)
            load();
    });
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
