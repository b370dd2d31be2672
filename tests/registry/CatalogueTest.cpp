#include "registry/MaxMspExternal.h"
#include "registry/NamedTable.h"

#include <gmock/gmock.h>

using namespace Ambrel::MaxMspExternal;
using testing::internal::CaptureStderr;
using testing::internal::GetCapturedStderr;

TEST (Catalogue, MakesTheDocumentationOfEveryNameThatItKnows)
{
    for (const auto* name : { "halcyra~", "halcyra~.embedded", "halcyra~.control" }) {
        const auto documentation = make (typeOf (name));
        ASSERT_NE (documentation, nullptr) << name;
        EXPECT_EQ (documentation->type(), typeOf (name)) << name;
        EXPECT_EQ (documentation->digest(), digestOf (name)) << name;
        EXPECT_EQ (documentation->description(), descriptionOf (name)) << name;
        EXPECT_EQ (documentation->seeAlso(), seeAlsoOf (name)) << name;
        EXPECT_FALSE (digestOf (name).empty()) << name;
    }
    EXPECT_EQ (digestOf ("halcyra~"), digestOf ("halcyra~.embedded"));
    EXPECT_EQ (digestOf ("halcyra~.control"), "Control interface for halcyra~");
}

TEST (Catalogue, ReportsAnUnknownNameAndGoesOnWithTheFirstType)
{
    CaptureStderr();
    EXPECT_EQ (typeOf ("nobody~"), Type (0));
    EXPECT_EQ (GetCapturedStderr(), "unknwon external : nobody~\n");
    EXPECT_EQ (digestOf ("nobody~"), "");
    EXPECT_EQ (descriptionOf ("nobody~"), "");
    EXPECT_EQ (seeAlsoOf ("nobody~"), "");
}

TEST (Catalogue, HasNothingForTypesWithoutTextsAndBeyondTheLast)
{
    for (const int type : { 2, 151, 152, -1, 100000 })
        EXPECT_EQ (make (Type (type)), nullptr) << type;
}

TEST (Catalogue, HelpsWithSharedMessages)
{
    EXPECT_EQ (methodHelp ("speaker"), methodHelp ("loudspeaker"));
    EXPECT_EQ (methodHelp ("clear"), "0"); // its row has no text
    CaptureStderr();
    EXPECT_EQ (methodHelp ("nothing"), "");
    EXPECT_EQ (GetCapturedStderr(), "unknwon method : nothing\n");
}

TEST (NamedTable, KeepsThePlaceOfANameThatIsSetAgain)
{
    Ambrel::NamedTable<int> table;
    table.set ("one", 1);
    table.set ("two", 2);
    table.set ("one", 11);
    EXPECT_EQ (table.size(), 2u);
    EXPECT_EQ (*table.find ("one"), 11);
    EXPECT_EQ (*table.find ("two"), 2);
    EXPECT_EQ (table.find ("three"), nullptr);
    EXPECT_EQ (table.size(), 2u);
}
