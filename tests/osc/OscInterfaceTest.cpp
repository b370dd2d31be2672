#include "osc/OrvaneDspOscInterface.h"

#include <gtest/gtest.h>

using qel::OscAddress;
using qel::OscDocumentation;

TEST (OscInterface, UnderstandsNothingAndHasNoStateOfItsOwn)
{
    qel::OscInterface base;
    for (const char* const address : { "/", "/dump", "/post/version", "/preset/load" })
        EXPECT_FALSE (base.processOscMessage (qel::OSCMessage{ qel::String (address) })) << address;
    EXPECT_TRUE (base.getOscState().empty());
    EXPECT_EQ (base.getOscState().timeTag, 1u);
}

TEST (OscInterface, DocumentsWhatTheFamilyShares)
{
    const auto entries = qel::OscInterface().getOscDocumentation();
    ASSERT_EQ (entries.size(), 4u);
    EXPECT_EQ (entries[0].address.text(), "/post/version");
    EXPECT_EQ (entries[1].address.text(), "/dump");
    EXPECT_EQ (entries[2].arguments, "[string]");
    EXPECT_EQ (entries[3].description, "exports a preset to file (.txt, .xml, .osc, .json)");
}

TEST (OscDocumentation, DropsTheRootAndWhatIsListedAlready)
{
    OscDocumentation documentation;
    const OscAddress gain{ qel::String ("/gain") };
    documentation.add (OscAddress(), "", "root");
    documentation.add (OscAddress{ qel::String ("//") }, "", "root as well");
    documentation.add (gain, "[float]", "sets the gain");
    documentation.add (OscAddress{ qel::String ("gain/") }, "[float]", "sets the gain");
    EXPECT_EQ (documentation.entries().size(), 1u);

    documentation.add (gain, "[int]", "sets the gain");
    documentation.add (gain, "[float]", "sets another gain");
    documentation.add (OscAddress{ qel::String ("/g") }, "[float]", "sets the gain");
    EXPECT_EQ (documentation.entries().size(), 4u);
}
