#include "common/OrvaneDspColour.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using qel::Colour;

TEST (Colour, ReadsHexadecimalPairsAndLeavesTheAlphaPair)
{
    EXPECT_EQ (Colour::fromHex ("0xfff0f8ff"), (Colour{ 240 / 255.0f, 248 / 255.0f, 1, 1 }));
    EXPECT_EQ (Colour::fromHex ("0x00FF0000"), (Colour{ 1, 0, 0, 1 }));
    EXPECT_EQ (Colour::fromHex ("ff00ff00"), (Colour{ 0, 1, 0, 1 })) << "the prefix may be missing";
    for (const char* broken : { "", "0x", "0xff", "0xffxyz0f", "\xff\xff" })
        EXPECT_EQ (Colour::fromHex (broken).red, 0) << broken;
}

TEST (Colour, IsWrittenAsHexadecimalWithoutLeadingZeros)
{
    struct Row
    {
        Colour colour;
        const char *hex, *shortHex;
    };
    const Row rows[] = {
        { { 1, 1, 1, 1 }, "0xFFFFFFFF", "FFFFFF" },
        { { 1, 0.5f, 0, 1 }, "0xFFFF7F00", "FF7F00" },
        { { 0, 0, 0, 0 }, "0x0", "" },
        { { 0, 0, 1, 0 }, "0xFF", "" },
        { { 2, -1, 0, 1 }, "0xFFFF0000", "FF0000" },
        { { std::nanf (""), 0, 0, 1 }, "0xFF000000", "000000" },
    };
    for (const auto& row : rows) {
        EXPECT_EQ (row.colour.toHex(), row.hex);
        EXPECT_EQ (row.colour.toShortHex(), row.shortHex) << row.hex;
    }
}

TEST (Colour, IsWrittenAsNumbers)
{
    EXPECT_EQ ((Colour{ 0.49019608f, 1, 0, 0.25f }.toNumbers()), "0.490 1.000 0.000 0.250");
}

TEST (Colour, DarkensAllButItsAlpha)
{
    EXPECT_EQ ((Colour{ 1, 0.5f, 0, 0.7f }.darker (1)), (Colour{ 0.5f, 0.25f, 0, 0.7f }));
    EXPECT_EQ ((Colour{ 1, 0.5f, 0, 0.7f }.darker (0)), (Colour{ 1, 0.5f, 0, 0.7f }));
}

TEST (Colour, ComesFromANumberListOfAnyLength)
{
    const float values[] = { 0.5f, 2, -1, std::numeric_limits<float>::infinity() };
    EXPECT_EQ (Colour::fromNumbers (values, 0), (Colour{ 0, 0, 0, 1 }));
    EXPECT_EQ (Colour::fromNumbers (values, 2), (Colour{ 0.5f, 1, 0, 1 }));
    EXPECT_EQ (Colour::fromNumbers (values, 4), (Colour{ 0.5f, 1, 0, 1 }));
    const float bad[] = { std::nanf (""), 1 };
    EXPECT_EQ (Colour::fromNumbers (bad, 2), (Colour{ 0, 1, 0, 1 }));
}

TEST (NamedColours, StandInAlphabeticalOrderAsOpaqueHexadecimal)
{
    for (std::size_t i = 0; i < qel::numNamedColours; ++i) {
        const auto& row = qel::namedColours[i];
        const qel::String hex = row.hex;
        EXPECT_EQ (hex.size(), 10u) << row.name;
        EXPECT_TRUE (hex.startsWith ("0xff")) << row.name;
        EXPECT_EQ (qel::namedColour (i).toHex().toLowerCase(), hex) << "every byte comes back, " << row.name;
        EXPECT_TRUE (i == 0 || qel::String (qel::namedColours[i - 1].name) < row.name) << row.name;
    }
    EXPECT_STREQ (qel::namedColours.front().hex, "0xfff0f8ff");
    EXPECT_STREQ (qel::namedColours[1].hex, "0xfffaebd7");
    EXPECT_STREQ (qel::namedColours.back().hex, "0xff9acd32");
}

TEST (NamedColours, AreFoundInAnyLetterCase)
{
    Colour colour{ 0.1f, 0.2f, 0.3f, 0.4f };
    EXPECT_FALSE (qel::findColour ("reddish", colour));
    EXPECT_EQ (colour, (Colour{ 0.1f, 0.2f, 0.3f, 0.4f }));
    EXPECT_TRUE (qel::findColour ("DarkGrey", colour));
    EXPECT_EQ (colour.toShortHex(), "555555");
}
