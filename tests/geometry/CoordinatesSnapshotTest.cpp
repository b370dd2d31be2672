#include "common/OrvaneDspException.h"
#include "geometry/OrvaneDspCoordinatesSnapshot.h"

#include <gmock/gmock.h>

#include <limits>

namespace
{

using qel::CoordinatesSnapshotStore;
using qel::Point3Array;
using qel::String;

const Point3Array onePoint{ { 1, 2, 3 } };
const Point3Array threePoints{ { 1, 0, 0 }, { 0, 1, 0 }, { 0, 0, 1 } };
const Point3Array fivePoints{ { 3, 0, 0 }, { 0, 3, 0 }, { 0, 0, 3 }, { 4, 4, 4 }, { 5, 5, 5 } };

std::vector<std::string> namesOf (const CoordinatesSnapshotStore& store)
{
    qel::Vector<String> names{ "left over" };
    store.listNames (names);
    std::vector<std::string> texts;
    for (const auto& name : names)
        texts.push_back (name.str());
    return texts;
}

TEST (CoordinatesSnapshotStore, KeepsNamesInTheOrderTheyCame)
{
    CoordinatesSnapshotStore store;
    EXPECT_EQ (store.findIndex ("a"), -1);
    EXPECT_TRUE (store.points ("a").empty());
    for (const char* name : { "c", "a", "B", "", "b" })
        store.store (name, onePoint);
    EXPECT_THAT (namesOf (store), testing::ElementsAre ("c", "a", "B", "", "b"));

    store.store ("a", threePoints);
    EXPECT_EQ (store.findIndex ("a"), 1) << "replaced in its place";
    EXPECT_EQ (store.points ("a"), threePoints);
    EXPECT_EQ (store.findIndex ("A"), -1);
    EXPECT_EQ (&store.points ("A"), &store.points ("none")) << "one empty array stands for all";
}

TEST (CoordinatesSnapshotStore, ForgetsOneOrAll)
{
    CoordinatesSnapshotStore store;
    for (const char* name : { "a", "b", "c", "d" })
        store.store (name, onePoint);
    store.remove ("b");
    store.remove ("b");
    store.store ("e", threePoints);
    store.remove ("d");
    EXPECT_THAT (namesOf (store), testing::ElementsAre ("a", "c", "e"));
    EXPECT_EQ (store.findIndex ("c"), 1);
    EXPECT_EQ (store.points ("e"), threePoints);
    EXPECT_EQ (store.findIndex ("b"), -1);

    store.removeAll();
    EXPECT_TRUE (store.empty() && namesOf (store).empty());
    store.store ("b", onePoint);
    EXPECT_EQ (store.findIndex ("b"), 0);
}

struct MixRow
{
    float amount, firstX;
};

TEST (CoordinatesSnapshotStore, MixesTwoSnapshots)
{
    CoordinatesSnapshotStore store;
    store.store ("three", threePoints);
    store.store ("five", fivePoints);
    const MixRow rows[] = {
        { 0, 1 },
        { 1, 3 },
        { 0.25F, 1.5F },
        { 1.5F, 3 },
        { -1, 1 },
        { std::numeric_limits<float>::quiet_NaN(), 1 },
        { std::numeric_limits<float>::infinity(), 3 },
    };
    for (const auto& row : rows) {
        Point3Array mix = onePoint;
        store.interpolate (mix, "three", "five", row.amount);
        ASSERT_EQ (mix.size(), 3U);
        EXPECT_EQ (mix[0], (qel::Point3{ row.firstX, 0, 0 })) << row.amount;
        EXPECT_EQ (mix[2], (qel::Point3{ 0, 0, row.firstX })) << row.amount;
    }

    Point3Array untouched = onePoint;
    store.interpolate (untouched, "three", "none", 0.5F);
    store.interpolate (untouched, "none", "five", 0.5F);
    EXPECT_EQ (untouched, onePoint);
}

}
