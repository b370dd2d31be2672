#include "osc/OrvaneDspOscBundle.h"
#include "support/core/Raised.h"

#include <gtest/gtest.h>

using qel::OSCBundle;

TEST (OscBundle, HoldsOneMessageForEachValueInTheOrderOfAddition)
{
    OSCBundle bundle;
    EXPECT_EQ (bundle.timeTag, 1u);
    bundle.add ("/i", 3);
    bundle.add ("/f", 0.5f);
    bundle.add ("/s", "text");
    bundle.add ("/b", true);
    bundle.add ("/c", qel::Colour{ 0.25f, 0.5f, 0.75f, 1 });

    struct Row
    {
        const char* address;
        const char* letters;
    };
    constexpr Row rows[] = { { "/i", "i" }, { "/f", "f" }, { "/s", "s" }, { "/b", "b" }, { "/c", "ffff" } };
    ASSERT_EQ (bundle.size(), std::size (rows));
    for (std::size_t i = 0; i < bundle.size(); ++i) {
        EXPECT_EQ (bundle[i].message().address().text(), rows[i].address);
        EXPECT_TRUE (bundle[i].message().has (rows[i].letters, true)) << rows[i].address;
    }
    EXPECT_EQ (bundle[2].message()[0].asText(), "text");
    EXPECT_EQ (bundle[3].message()[0].tag(), 'T');
    EXPECT_EQ (bundle[4].message().toFloats(), (qel::Vector<float>{ 0.25f, 0.5f, 0.75f, 1 }));
    EXPECT_THROW (bundle.add ("/not an address", 1), qel::Exception);
    EXPECT_EQ (bundle.size(), std::size (rows));
}

TEST (OscBundle, CopiesWhatItIsGivenInDepth)
{
    OSCBundle inner;
    inner.timeTag = 5;
    inner.add ("/a", 1);
    OSCBundle outer;
    outer.add (inner);
    inner.add ("/b", 2);
    outer.add (outer);

    const auto copy = outer;
    outer.clear();
    ASSERT_EQ (copy.size(), 2u);
    EXPECT_EQ (copy[0].bundle().size(), 1u);
    EXPECT_EQ (copy[0].bundle().timeTag, 5u);
    EXPECT_EQ (copy[1].bundle()[0].bundle()[0].message().address().text(), "/a");
}

TEST (OscBundle, AppendsTheElementsOfAnotherOrOfItself)
{
    OSCBundle bundle, other;
    bundle.add ("/a", 1);
    other.add ("/b", 2);
    bundle.append (other);
    bundle.append (bundle);
    ASSERT_EQ (bundle.size(), 4u);
    const char* const order[] = { "/a", "/b", "/a", "/b" };
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ (bundle[i].message().address().text(), order[i]);
}

TEST (OscBundle, RaisesWhenAnElementIsReadAsTheOtherKind)
{
    OSCBundle bundle;
    bundle.add ("/a", 1);
    bundle.add (OSCBundle());
    const auto* const complaint = "Access error in OSC bundle element.";
    EXPECT_EQ (raised ([&] { (void)bundle[0].bundle(); }), complaint);
    EXPECT_EQ (raised ([&] { (void)bundle[1].message(); }), complaint);
    EXPECT_TRUE (bundle[0].isMessage());
    EXPECT_TRUE (bundle[1].isBundle());
}
