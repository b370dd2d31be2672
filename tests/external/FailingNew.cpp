#include "FailingNew.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include <execinfo.h>
#include <link.h>
#include <unistd.h>

namespace
{

thread_local int untilFailure = -1;
thread_local bool failed = false;

enum class Owner
{
    nobody, // the standard library and this file, on their caller's behalf
    host,   // includes the test
    juce,
    product
};

/** A function's owner by its linker symbol: C names belong to the host and the system. */
Owner ownerOf (const char* name) noexcept
{
    const auto isIn = [name] (const char* scope) { return std::strstr (name, scope) != nullptr; };
    for (const auto* standard : { "_ZNSt", "_ZNKSt", "_ZSt", "_Zn", "_ZN9__gnu_cxx", "_ZZNSt",
                                  "_ZN12_GLOBAL__N_117isCalledByProduct", "_ZN12_GLOBAL__N_18failsNow", "__wrap_" })
        if (std::strncmp (name, standard, std::strlen (standard)) == 0)
            return Owner::nobody;
    if (std::strncmp (name, "_Z", 2) != 0)
        return Owner::host;
    for (const auto* other : { "N5bench", "NK5bench", "7TestBox", "9BenchTest", "11ControlTest", "7testing", "_Test" })
        if (isIn (other))
            return Owner::host;
    return isIn ("N4juce") || isIn ("NK4juce") || isIn ("IN4juce") ? Owner::juce : Owner::product;
}

/** This program's functions by address. */
struct Functions
{
    struct Row
    {
        std::uintptr_t address;
        Owner owner;
    };

    Functions()
    {
        std::array<char, 4096> path{};
        if (readlink ("/proc/self/exe", path.data(), path.size() - 1) <= 0)
            std::abort();
        dl_iterate_phdr (
            [] (dl_phdr_info* info, std::size_t, void* found) {
                *static_cast<std::uintptr_t*> (found) = info->dlpi_addr;
                return 1; // the program itself comes first
            },
            &base);
        auto* list = popen (("nm -n '" + std::string (path.data()) + "'").c_str(), "r");
        std::array<char, 65536> line{};
        while (list != nullptr && std::fgets (line.data(), line.size(), list) != nullptr) {
            char* rest = nullptr;
            const auto address = std::strtoull (line.data(), &rest, 16);
            if (rest[0] == ' ' && std::strchr ("tTwW", rest[1]) != nullptr && rest[2] == ' ')
                rows.push_back ({ static_cast<std::uintptr_t> (address), ownerOf (rest + 3) });
        }
        if (list == nullptr || pclose (list) != 0 || rows.size() < 1000)
            std::abort(); // without the symbols nothing would ever fail
    }

    [[nodiscard]] Owner at (const void* address) const noexcept
    {
        const auto wanted = reinterpret_cast<std::uintptr_t> (address) - base;
        const auto next = std::upper_bound (rows.begin(), rows.end(), wanted,
                                            [] (std::uintptr_t a, const Row& row) { return a < row.address; });
        return next == rows.begin() || wanted > rows.back().address + 65536 ? Owner::nobody : (next - 1)->owner;
    }

    std::uintptr_t base = 0;
    std::vector<Row> rows;
};

/** Whether the innermost function outside the standard library is ours. */
bool isCalledByProduct()
{
    static const Functions functions;
    std::array<void*, 24> frames{};
    const auto count = backtrace (frames.data(), static_cast<int> (frames.size()));
    for (int i = 0; i < count; ++i)
        if (const auto owner = functions.at (frames[static_cast<std::size_t> (i)]); owner != Owner::nobody)
            return owner == Owner::product;
    return false;
}

/** Whether this allocation must fail. */
bool failsNow()
{
    if (untilFailure < 0)
        return false;
    const auto left = std::exchange (untilFailure, -1); // the stack walk itself allocates
    const bool counts = isCalledByProduct();
    untilFailure = counts ? left - 1 : left;
    failed = failed || (counts && left == 0);
    return counts && left == 0;
}

}

// The linker redirects the program's calls of malloc and realloc here.
extern "C" void* __real_malloc (std::size_t bytes);
extern "C" void* __real_realloc (void* p, std::size_t bytes);
extern "C" __attribute__ ((noinline)) void* __wrap_malloc (std::size_t bytes)
{
    return failsNow() ? nullptr : __real_malloc (bytes);
}
extern "C" __attribute__ ((noinline)) void* __wrap_realloc (void* p, std::size_t bytes)
{
    return failsNow() ? nullptr : __real_realloc (p, bytes);
}

void failAllocation (int number) noexcept
{
    untilFailure = number;
    failed = false;
}

bool allocationHasFailed() noexcept { return failed; }

__attribute__ ((noinline)) void* operator new (std::size_t bytes)
{
    void* const p = failsNow() ? nullptr : __real_malloc (bytes == 0 ? 1 : bytes);
    if (p == nullptr)
        throw std::bad_alloc();
    return p;
}
void* operator new[] (std::size_t bytes) { return operator new (bytes); }
void operator delete (void* p) noexcept { std::free (p); }
void operator delete[] (void* p) noexcept { std::free (p); }
void operator delete (void* p, std::size_t) noexcept { std::free (p); }
void operator delete[] (void* p, std::size_t) noexcept { std::free (p); }
