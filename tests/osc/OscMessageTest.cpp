#include "osc/OrvaneDspOscMessage.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

using qel::OSCArgument;
using qel::OSCMessage;

namespace
{

struct ArgumentRow
{
    OSCArgument argument;
    char tag;
    const char* letters; ///< those of "bdfilnsu" that accept it
    float asFloat;
    bool asBool;
};

std::vector<ArgumentRow> argumentRows()
{
    return {
        { OSCArgument (std::int32_t (1)), 'i', "bilnu", 1, true },
        { OSCArgument (std::int32_t (2)), 'i', "bilnu", 2, false },
        { OSCArgument (std::int32_t (0)), 'i', "bilnu", 0, false },
        { OSCArgument (std::int32_t (-1)), 'i', "biln", -1, false },
        { OSCArgument (std::int64_t (1) << 40), 'h', "bilnu", 1099511627776.f, false },
        { OSCArgument (std::int64_t (-3)), 'h', "biln", -3, false },
        { OSCArgument (0.5f), 'f', "fn", 0.5f, false },
        { OSCArgument (1.0f), 'f', "fn", 1, false },
        { OSCArgument (0.1), 'd', "dn", 0.1f, false },
        { OSCArgument (true), 'T', "b", 0, true },
        { OSCArgument (false), 'F', "b", 0, false },
        { OSCArgument ("1"), 's', "s", 0, false },
        { OSCArgument (qel::HeapBlock ("abc", 3)), 'b', "", 0, false },
        { OSCArgument(), 'N', "", 0, false },
        { OSCArgument (OSCArgument::Impulse()), 'I', "", 0, false },
    };
}

OSCMessage messageOf (const std::vector<OSCArgument>& arguments)
{
    OSCMessage message{ qel::String ("/x") };
    for (const auto& argument : arguments)
        message.add (argument);
    return message;
}

}

TEST (OscArgument, IsTestedAndReadByItsTag)
{
    for (const auto& row : argumentRows()) {
        const auto copy = row.argument;
        EXPECT_EQ (copy.tag(), row.tag);
        EXPECT_EQ (copy.asFloat(), row.asFloat) << row.tag;
        EXPECT_EQ (copy.asBool(), row.asBool) << row.tag;
        for (int letter = 0; letter < 256; ++letter) {
            const bool accepted = letter != 0 && std::string (row.letters).find (char (letter)) != std::string::npos;
            EXPECT_EQ (copy.is (char (letter)), accepted) << row.tag << " by " << letter;
            EXPECT_EQ (messageOf ({ copy }).has (char (letter)), accepted) << row.tag << " by " << letter;
        }
    }
}

TEST (OscArgument, KeepsTextsAndBytesApart)
{
    const OSCArgument text ("label"), blob (qel::HeapBlock ("\0\1\2", 3)), number (std::int64_t (7));
    EXPECT_EQ (text.asText(), "label");
    EXPECT_TRUE (text.asBlob().empty());
    EXPECT_TRUE (blob.asText().empty());
    EXPECT_EQ (blob.asBlob(), qel::HeapBlock ("\0\1\2", 3));
    EXPECT_EQ (number.asInteger(), 7);
    EXPECT_EQ (text.asInteger(), 0);

    OSCArgument changed = blob;
    changed = text;
    EXPECT_EQ (changed.asText(), "label");
    EXPECT_TRUE (changed.asBlob().empty());
}

TEST (OscMessage, IsTestedAgainstASignature)
{
    struct Row
    {
        std::vector<OSCArgument> arguments;
        const char* letters;
        bool exact, atLeast;
    };
    const OSCArgument integer (std::int32_t (3)), number (0.5f), text ("a");
    const Row rows[] = {
        { {}, "", true, true },
        { {}, "n", false, false },
        { { number }, "", false, true },
        { { number, integer }, "nn", true, true },
        { { number, integer }, "ni", true, true },
        { { number, integer }, "in", false, false },
        { { number, integer }, "n", false, true },
        { { number, integer }, "nnn", false, false },
        { { text, number }, "sx", false, false },
    };
    for (const auto& row : rows) {
        EXPECT_EQ (messageOf (row.arguments).has (row.letters, true), row.exact) << row.letters;
        EXPECT_EQ (messageOf (row.arguments).has (row.letters, false), row.atLeast) << row.letters;
    }
    EXPECT_FALSE (messageOf ({ number, number }).has ('n'));
    EXPECT_FALSE (messageOf ({}).has ('n'));
}

TEST (OscMessage, IsAddressedByTextWithWildcardsOnEitherSide)
{
    const OSCMessage plain{ qel::String ("/axis/label/visible") }, pattern{ qel::String ("/{axis,legend}/visible") };
    EXPECT_TRUE (plain.matches ("/axis/label/visible"));
    EXPECT_TRUE (plain.matches ("/axis/*/visible"));
    EXPECT_FALSE (plain.matches ("/axis/visible"));
    EXPECT_TRUE (plain.startsWith ("/axis"));
    EXPECT_FALSE (plain.startsWith ("/legend"));
    EXPECT_TRUE (pattern.matches ("/legend/visible"));
    EXPECT_FALSE (pattern.matches ("/grid/visible"));
    EXPECT_THROW ((void)plain.matches ("/a b"), qel::Exception);
    EXPECT_THROW (OSCMessage{ qel::String ("/a b") }, qel::Exception);
}

TEST (OscMessage, GivesItsNumbersOnlyIfAllAreNumbers)
{
    const OSCArgument integer (std::int32_t (2)), wide (std::int64_t (-1)), number (0.5f), fine (0.25);
    EXPECT_EQ (messageOf ({ integer, wide, number, fine }).toFloats(), (qel::Vector<float>{ 2, -1, 0.5f, 0.25f }));
    EXPECT_TRUE (messageOf ({ integer, OSCArgument (true) }).toFloats().empty());
    EXPECT_TRUE (messageOf ({}).toFloats().empty());

    EXPECT_EQ (messageOf ({ number, integer, wide, fine }).toColour(), (qel::Colour{ 0.5f, 1, 0, 0.25f }));
    EXPECT_EQ (messageOf ({ number }).toColour(), (qel::Colour{ 0.5f, 0, 0, 1 }));
    EXPECT_EQ (messageOf ({ number, OSCArgument ("red") }).toColour(), (qel::Colour{ 0, 0, 0, 1 }));
}
