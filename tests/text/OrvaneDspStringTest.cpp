#include "text/OrvaneDspString.h"

#include <gtest/gtest.h>

#include <cstring>

using qel::String;

TEST (String, CopiesWholeCharactersBetweenBounds)
{
    struct Row
    {
        const char* source;
        std::size_t length;
        const char* text;
    };
    const Row rows[] = {
        { "halcyra", 4, "halc" },
        { "ab\0cd", 5, "ab" }, // stops at a null byte
        { "d\xc3\xa9j\xc3\xa0", 3, "d\xc3\xa9" },
        { "d\xc3\xa9j\xc3\xa0", 2, "d" }, // the bound truncates the second character
        { "\xe2\x82\xac\xf0\x9d\x84\x9e", 7, "\xe2\x82\xac\xf0\x9d\x84\x9e" },
        { "\xf0\x9d\x84\x9e", 3, "" },
        { "\xe9t\xe9 ", 4, "\xe9t\xe9 " }, // invalid UTF-8: byte by byte
        { "\xa9z", 2, "\xa9z" },
        { "", 0, "" },
    };
    for (const auto& row : rows) {
        const std::string exact (row.source, row.length); // so that the sanitizer sees a read past the bound
        EXPECT_EQ (String (exact.data(), exact.data() + row.length), row.text) << row.text;
    }
    EXPECT_EQ (String (static_cast<const char*> (nullptr)), "");
}

TEST (String, TrimsWhiteSpace)
{
    struct Row
    {
        const char *text, *start, *end, *both;
    };
    const Row rows[] = {
        { " \t\r\n\v\fab c \n", "ab c \n", " \t\r\n\v\fab c", "ab c" },
        { "abc", "abc", "abc", "abc" },
        { " \n ", "", "", "" },
        { "", "", "", "" },
        { "\xa0z\x85", "\xa0z\x85", "\xa0z\x85", "\xa0z\x85" }, // bytes of a multi-byte character are kept
    };
    for (const auto& row : rows) {
        const String text = row.text;
        EXPECT_EQ (text.trimmedStart(), row.start) << text;
        EXPECT_EQ (text.trimmedEnd(), row.end) << text;
        EXPECT_EQ (text.trimmed(), row.both) << text;
        EXPECT_EQ (text.containsNonWhiteSpace(), std::strlen (row.both) > 0) << text;
    }
}

TEST (String, FindsFromBothSides)
{
    struct Row
    {
        const char *text, *wanted;
        bool ignoreCase;
        std::ptrdiff_t first, last;
    };
    const Row rows[] = {
        { "Room to room", "room", false, 8, 8 },
        { "Room to room", "ROOM", true, 0, 8 },
        { "Room to room", "ROOM", false, -1, -1 },
        { "aaa", "aa", false, 0, 1 },
        { "", "a", false, -1, -1 },
        { "a", "ab", true, -1, -1 },
    };
    for (const auto& row : rows) {
        const String text = row.text;
        EXPECT_EQ (text.find (row.wanted, row.ignoreCase), row.first) << row.text << " / " << row.wanted;
        EXPECT_EQ (text.findLast (row.wanted, row.ignoreCase), row.last) << row.text << " / " << row.wanted;
        EXPECT_EQ (text.contains (row.wanted), row.first >= 0 && ! row.ignoreCase);
    }
    EXPECT_EQ (String ("Dry/Wet").find ('w', true), 4);
    EXPECT_EQ (String ("Dry/Wet").find ('w'), -1);
    EXPECT_EQ (String ("dRy/weR").findLast ('R', true), 6);
    EXPECT_EQ (String ("dRy/weR").findLast ('r'), -1);
    EXPECT_TRUE (String ("a.b").contains ('.'));
}

TEST (String, TestsItsBytes)
{
    EXPECT_TRUE (String ("room [1]").containsAnyOf ("*?[]"));
    EXPECT_FALSE (String ("room").containsAnyOf ("*?[]"));
    EXPECT_FALSE (String ("").containsAnyOf ("abc"));
    EXPECT_TRUE (String ("0101").containsOnly ("01"));
    EXPECT_FALSE (String ("012").containsOnly ("01"));
    EXPECT_TRUE (String ("").containsOnly ("01"));
    EXPECT_FALSE (String ("a").containsOnly (""));

    EXPECT_TRUE (String ("scene.xml").endsWith (".xml"));
    EXPECT_TRUE (String ("scene.xml").startsWith ("scene"));
    for (const auto& [text, part] :
         { std::pair ("", "x"), std::pair ("x", ""), std::pair ("", ""), std::pair ("x", "yx") }) {
        EXPECT_FALSE (String (text).endsWith (part)) << text << "/" << part;
        EXPECT_FALSE (String (text).startsWith (part)) << text << "/" << part;
    }
}

TEST (String, RemovesParts)
{
    const auto after = [] (String text, auto&& change) {
        change (text);
        return text;
    };
    EXPECT_EQ (after ("halcyra", [] (String& s) { s.removeFromStart (3); }), "cyra");
    EXPECT_EQ (after ("halcyra", [] (String& s) { s.removeFromEnd (3); }), "halc");
    EXPECT_EQ (after ("hal", [] (String& s) { s.removeFromStart (9); }), "");
    EXPECT_EQ (after ("hal", [] (String& s) { s.removeFromEnd (9); }), "");
    EXPECT_EQ (after ("a-b-c", [] (String& s) { s.removeLastOccurrenceOf ("-"); }), "a-bc");
    EXPECT_EQ (after ("a-b-c", [] (String& s) { s.removeLastOccurrenceOf ("+"); }), "a-b-c");
    EXPECT_EQ (after ("path///", [] (String& s) { s.removeAllAtEnd ("/"); }), "path");
    EXPECT_EQ (after ("abab", [] (String& s) { s.removeAllAtEnd ("ab"); }), "");
    EXPECT_EQ (after ("path", [] (String& s) { s.removeAllAtEnd (""); }), "path");
}

TEST (String, ReplacesParts)
{
    struct Row
    {
        const char *text, *part, *by, *result;
    };
    const Row rows[] = {
        { "a.b.c", ".", "::", "a::b::c" }, { "aaa", "aa", "a", "aa" }, { "aaa", "a", "aa", "aaaaaa" },
        { "abc", "x", "y", "abc" },        { "abc", "", "y", "abc" },  { "abc", "abc", "", "" },
    };
    for (const auto& row : rows) {
        String text = row.text;
        text.replaceAll (row.part, row.by);
        EXPECT_EQ (text, row.result) << row.text;
    }
    String path = "a\\b\\c";
    path.replaceAll ('\\', '/');
    path.replaceAll ('/', '/');
    EXPECT_EQ (path, "a/b/c");
}

TEST (String, IsQuotedOnce)
{
    for (const auto& [text, quoted] :
         { std::pair ("room", "\"room\""), std::pair ("\"room\"", "\"room\""), std::pair ("'room'", "'room'"),
           std::pair ("'room\"", "\"'room\"\""), std::pair (" \"room\" ", "\" \"room\" \""), std::pair ("", "\"\"") }) {
        EXPECT_EQ (String (text).quoted(), quoted);
    }
}

TEST (String, ChangesTheCaseOfPlainLettersAlone)
{
    EXPECT_EQ (String ("RT60 \xc3\x89Z[").toLowerCase(), "rt60 \xc3\x89z[");
}

TEST (String, TakesPartsWithinItsBounds)
{
    EXPECT_EQ (String ("halcyra").substr (3, 2), "cy");
    EXPECT_EQ (String ("halcyra").substr (5, 99), "ra");
    EXPECT_EQ (String ("halcyra").substr (99), "");
    EXPECT_EQ (String::newLine(), "\n");
    EXPECT_TRUE (String::emptyText().empty());
}
