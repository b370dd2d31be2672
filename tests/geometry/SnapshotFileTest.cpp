#include "geometry/OrvaneDspCoordinatesSnapshot.h"
#include "support/core/Raised.h"
#include "support/files/ScratchFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <random>
#include <utility>

#include <unistd.h>

namespace
{

/** Runs once, after the first bytes of a file have been read. */
std::function<void()> behindTheFirstBytes;

}

extern "C"
{
    ssize_t __real_read (int, void*, size_t);
    ssize_t __wrap_read (int file, void* bytes, size_t count)
    {
        if (! behindTheFirstBytes)
            return __real_read (file, bytes, count);
        const auto result = __real_read (file, bytes, std::min<size_t> (count, 100));
        std::exchange (behindTheFirstBytes, nullptr)();
        return result;
    }
}

namespace
{

using qel::CoordinatesSnapshotStore;
using qel::Point3Array;
using testing::HasSubstr;

class SnapshotFile : public testing::Test
{
protected:
    qel::File write (const std::string& children)
    {
        return scratch.write ("given.xml", "<ambrel.viewer>" + children + "</ambrel.viewer>");
    }

    std::string complaintOfReading (const qel::File& file)
    {
        return raised ([&] { store.read (file); });
    }

    ScratchFolder scratch;
    CoordinatesSnapshotStore store;
};

std::string source (const std::string& index, const std::string& rest = "x='1' y='2' z='3'")
{
    return "<source index='" + index + "' " + rest + "/>";
}

std::string snapshot (const std::string& sources) { return "<snapshot name='s 1'>" + sources + "</snapshot>"; }

TEST_F (SnapshotFile, NamesTheFaultAndKeepsWhatWasReadBeforeIt)
{
    const std::string range = "invalid index range in snapshot s 1", place = "invalid x y or z in snapshot s 1";
    const std::pair<std::string, std::string> rows[] = {
        { "<state name='s 1'/>", "invalid snapshot" },
        { "words", "invalid snapshot" },
        { "<snapshot>" + source ("1") + "</snapshot>", "invalid name" },
        { snapshot ("<source x='1' y='2' z='3'/>"), "invalid index in snapshot s 1" },
        { snapshot (source ("1") + source ("2") + source ("1")), "index repetitions in snapshot s 1" },
        { snapshot (source ("0") + source ("0")), "index repetitions in snapshot s 1" },
        { snapshot (""), range },
        { snapshot ("<speaker index='1'/>"), range },
        { snapshot (source ("1") + source ("2") + source ("4")), range },
        { snapshot (source ("0") + source ("1")), range },
        { snapshot (source ("-1")), range },
        { snapshot (source ("4294967297")), range },
        { snapshot (source ("one")), range },
        { snapshot (source ("1", "x='1' y='2'")), place },
        { snapshot (source ("1", "x='1' z='3'")), place },
        { snapshot (source ("1", "X='1' y='2' z='3'")), place },
        { snapshot (source ("1", "x='nan' y='2' z='3'")), place },
        { snapshot (source ("1", "x='1' y='-inf' z='3'")), place },
        { snapshot (source ("1", "x='1' y='2' z='1e999'")), place },
        { snapshot (source ("1", "x='1' y='2' z='-3.5e38'")), place },
    };
    const auto good = "<snapshot name='good'>" + source ("1") + "</snapshot>";
    const auto late = "<snapshot name='late'>" + source ("1") + "</snapshot>";
    for (const auto& [document, complaint] : rows) {
        store.removeAll();
        EXPECT_EQ (complaintOfReading (write (good + document + late)), complaint) << document;
        EXPECT_EQ (store.size(), 1U) << document;
        EXPECT_EQ (store.points ("good"), (Point3Array{ { 1, 2, 3 } })) << document;
    }
}

TEST_F (SnapshotFile, FaultyFilesLeaveTheStoreAsItIs)
{
    store.store ("mine", { { 1, 2, 3 } });
    const auto binary = scratch.write ("binary.xml", std::string ("\x7f"
                                                                  "ELF\0\0",
                                                                  6));
    const auto torn = scratch.write ("torn.xml", "<ambrel.viewer>" + snapshot (source ("1")));
    const auto parsing = [] (const qel::File& file) { return "error parsing file " + file.path().quoted().str(); };
    for (const auto& file : { binary, torn, scratch.file ("."), scratch.write ("empty.xml", "") })
        EXPECT_EQ (complaintOfReading (file), parsing (file));
    EXPECT_EQ (complaintOfReading (scratch.file ("none.xml")),
               "Could not find file \"" + scratch.file ("none.xml").path().str() + "\"");
    EXPECT_TRUE (store.read (write ("")) && store.read (write (" <!-- none --> ")));
    EXPECT_EQ (store.size(), 1U);
}

TEST_F (SnapshotFile, MalformedAnywhereChangesNothing)
{
    const auto good = "<v>" + snapshot (source ("1")) + "<snapshot name='b'>" + source ("1") + "</snapshot></v>";
    const auto bad = "<v>" + snapshot (source ("1")) + "<snapshot/>" + source ("1") + "</v>";
    store.store ("s 1", { { 9, 9, 9 } });
    const auto expectRefused = [this] (const std::string& document) {
        const auto file = scratch.write ("given.xml", document);
        EXPECT_EQ (complaintOfReading (file), "error parsing file " + file.path().quoted().str()) << document;
        EXPECT_EQ (store.points ("s 1"), (Point3Array{ { 9, 9, 9 } })) << document;
        EXPECT_EQ (store.size(), 1U) << document;
    };
    for (const auto& document : { good, bad })
        for (std::size_t length = 0; length < document.size(); ++length)
            expectRefused (document.substr (0, length));
    expectRefused (good + "<more/>");
    expectRefused ("<v>" + snapshot (source ("1")) + "<snapshot name='b' name='b'/></v>");
    EXPECT_TRUE (store.read (scratch.write ("given.xml", good)));
    EXPECT_EQ (store.size(), 2U);
}

TEST_F (SnapshotFile, ThatChangesWhileItIsReadIsReadAsItWasOrRefused)
{
    const auto whole = "<v>" + snapshot (source ("1")) + "<snapshot name='b'>" + source ("1") + "</snapshot></v>";
    const auto file = scratch.file ("given.xml");
    const auto path = file.path().str();
    const auto readWhile = [&] (const std::function<void()>& change) {
        store.removeAll();
        store.store ("mine", { { 9, 9, 9 } });
        scratch.write ("given.xml", whole);
        behindTheFirstBytes = change;
        const auto complaint = complaintOfReading (file);
        EXPECT_FALSE (behindTheFirstBytes) << "it was read in the middle of the change";
        EXPECT_EQ (store.points ("mine"), (Point3Array{ { 9, 9, 9 } }));
        return complaint;
    };
    EXPECT_EQ (readWhile ([&] { std::filesystem::resize_file (path, 0); }), "error parsing file \"" + path + "\"");
    EXPECT_EQ (store.size(), 1U) << "cut short";
    EXPECT_EQ (readWhile ([&] { std::ofstream (path, std::ios::app) << "<more/>"; }), "nothing");
    EXPECT_EQ (store.size(), 3U) << "grown";
    const auto replace = [&] { std::filesystem::rename (scratch.write ("other.xml", "<v/>").path().str(), path); };
    EXPECT_EQ (readWhile (replace), "nothing");
    EXPECT_EQ (store.size(), 3U) << "replaced by another";
}

TEST_F (SnapshotFile, ReadsSourcesInTheOrderOfTheirIndices)
{
    store.store ("first", { { 9, 9, 9 } });
    store.store ("s 1", { { 9, 9, 9 } });
    EXPECT_TRUE (store.read (write ("<snapshot name='new'>" + source ("1") + "</snapshot>" +
                                    snapshot (source ("2", "x='-.5' y='1e1' z='north'") + "<area/>" + source ("1")))));
    EXPECT_EQ (store.points ("s 1"), (Point3Array{ { 1, 2, 3 }, { -0.5F, 10, 0 } }));
    EXPECT_EQ (store.findIndex ("s 1"), 1) << "its place is kept";
    EXPECT_EQ (store.findIndex ("new"), 2);
}

TEST_F (SnapshotFile, TheRootsNameAndVersionCountForNothing)
{
    EXPECT_TRUE (
        store.read (scratch.write ("other.xml", "<other version='none'>" + snapshot (source ("1")) + "</other>")));
    EXPECT_EQ (store.size(), 1U);
}

TEST_F (SnapshotFile, IsWrittenInItsFixedForm)
{
    const auto file = scratch.file ("new folder/written.xml");
    store.store ("a", { { 0.1F, -2, 3.5F }, { 0, 1e-5F, 0 } });
    store.store ("nothing", {});
    store.store ("b", { { 123.456001F, -123.456001F, 123.456001F } });
    ASSERT_TRUE (store.write (file, "4.9.2", false));
    EXPECT_THAT (file.readAll().str(),
                 testing::EndsWith (" -->\r\n\r\n"
                                    "<ambrel.viewer version=\"4.9.2\">\r\n"
                                    "  <snapshot name=\"a\">\r\n"
                                    "    <source index=\"1\" x=\"0.1\" y=\"-2\" z=\"3.5\"/>\r\n"
                                    "    <source index=\"2\" x=\"0\" y=\"0.00001\" z=\"0\"/>\r\n"
                                    "  </snapshot>\r\n"
                                    "  <snapshot name=\"b\">\r\n"
                                    "    <source index=\"1\" x=\"123.456\" y=\"-123.456\" z=\"123.456\"/>\r\n"
                                    "  </snapshot>\r\n"
                                    "</ambrel.viewer>\r\n"));
    ASSERT_TRUE (store.write (file, "", true));
    EXPECT_THAT (file.readAll().str(), HasSubstr ("<ambrel.viewer>\r\n"));
}

TEST_F (SnapshotFile, RefusesToWriteNothingOrOverAFile)
{
    const auto file = scratch.write ("there.xml", "old");
    EXPECT_EQ (raised ([&] { store.write (file, "", true); }), "no snapshot");
    store.store ("a", { { 1, 2, 3 } });
    EXPECT_EQ (raised ([&] { store.write (file, "", false); }),
               "file " + file.path().quoted().str() + " already exists");
    EXPECT_FALSE (store.write (scratch.file ("."), "", true)) << "a folder";
    EXPECT_FALSE (store.write (qel::File ("/proc/snapshots.xml"), "", true)) << "nobody may write there";
    EXPECT_EQ (file.readAll().str(), "old");
    EXPECT_EQ (scratch.names(), std::set<std::string>{ "there.xml" });
}

/** Floats of all magnitudes, including the limits. */
std::vector<float> manyFloats (std::size_t count)
{
    using Limits = std::numeric_limits<float>;
    std::vector<float> values{
        0.0F, -0.0F, Limits::max(), Limits::lowest(), Limits::min(), Limits::denorm_min(), 7.038531e-26F
    };
    std::mt19937 random (3);
    while (values.size() < count) {
        const auto bits = static_cast<std::uint32_t> (random());
        float value = 0;
        std::memcpy (&value, &bits, sizeof value);
        if (std::isfinite (value))
            values.push_back (value);
    }
    return values;
}

bool sameBits (const Point3Array& a, const Point3Array& b)
{
    return a.size() == b.size() && std::memcmp (a.data(), b.data(), a.size() * sizeof (qel::Point3)) == 0;
}

TEST_F (SnapshotFile, ReadsBackBitForBit)
{
    constexpr std::size_t snapshots = 100, sources = 64;
    const auto values = manyFloats (snapshots * sources * 3);
    auto value = values.begin();
    for (std::size_t i = 0; i < snapshots; ++i) {
        Point3Array points (sources);
        for (auto& point : points)
            point = { *value++, *value++, *value++ };
        store.store ("name \xc3\xa9 <&>\"'\n" + qel::String (static_cast<int> (i)), points);
    }
    const auto file = scratch.file ("written.xml");
    ASSERT_TRUE (store.write (file, "4.9.2", false));

    CoordinatesSnapshotStore back;
    ASSERT_TRUE (back.read (file));
    qel::Vector<qel::String> names, namesBack;
    store.listNames (names);
    back.listNames (namesBack);
    ASSERT_EQ (namesBack, names);
    for (const auto& name : names)
        EXPECT_TRUE (sameBits (back.points (name), store.points (name))) << name.c_str();
}

TEST_F (SnapshotFile, IsWellFormed)
{
    store.store ("a <&>\"' b\n", { { 0.1F, -2, 3.5F } });
    store.store ("", { { 1e-30F, 1e30F, 0 } });
    const auto file = scratch.file ("written.xml");
    ASSERT_TRUE (store.write (file, "4.9.2", false));
    EXPECT_EQ (std::system (("xmllint --noout '" + file.path().str() + "'").c_str()), 0);
}

}
