#include "common/OrvaneDspException.h"
#include "geometry/OrvaneDspCoordinatesSnapshot.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>

#include <unistd.h>

namespace
{

/** The reader's input file; removed when the process ends. */
struct InputFile
{
    ~InputFile() { std::filesystem::remove (path); }

    std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("halcyra_fuzz_" + std::to_string (getpid()) + ".xml");
    qel::File file{ path.string() };
};

bool areFinite (const qel::Point3Array& points)
{
    for (const auto& point : points)
        if (! std::isfinite (point.x) || ! std::isfinite (point.y) || ! std::isfinite (point.z))
            return false;
    return true;
}

void require (bool holds)
{
    if (! holds)
        std::abort();
}

}

/** Whatever a file contains, only finite positions enter the store, and its contents survive a write and a read. */
extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size)
{
    static const InputFile input;
    std::ofstream (input.path, std::ios::binary).write (reinterpret_cast<const char*> (data), static_cast<long> (size));

    qel::CoordinatesSnapshotStore store, back;
    try {
        store.read (input.file);
    } catch (const qel::Exception&) { // keeps what was read before the fault
    }
    if (store.empty())
        return 0;

    require (store.write (input.file, "1", true) && back.read (input.file) && back.size() == store.size());
    qel::Vector<qel::String> names;
    store.listNames (names);
    for (const auto& name : names) {
        const auto &points = store.points (name), &pointsBack = back.points (name);
        require (areFinite (points) && ! points.empty() && points.size() == pointsBack.size());
        require (std::memcmp (points.data(), pointsBack.data(), points.size() * sizeof (qel::Point3)) == 0);
    }
    return 0;
}
