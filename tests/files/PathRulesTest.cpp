#include "files/OrvaneDspPathRules.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

using qel::PathRules;

struct TextRow
{
    char separator;
    const char* text;
    const char* expected;
};

void expectAll (const std::vector<TextRow>& rows, qel::String (*rule) (const PathRules&, const qel::String&))
{
    for (const auto& row : rows)
        EXPECT_EQ (rule (PathRules (row.separator), row.text).str(), row.expected)
            << row.text << " with " << row.separator;
}

TEST (PathRules, MakeAnyTextAFullPath)
{
    const auto absolute = [] (const PathRules& rules, const qel::String& text) {
        const bool isWindows = rules.fileName ("a/b").str() == "a/b";
        return rules.absolute (text, isWindows ? "D:\\my work" : "/my work");
    };
    expectAll (
        {
            { '\\', "", "" },
            { '\\', "C:\\a\\b", "C:\\a\\b" },
            { '\\', "C:/a/b c.xml \t\n", "C:\\a\\b c.xml" },
            { '\\', "C:\\a\\\\\\", "C:\\a" },
            { '\\', "C:\\", "C:" },
            { '\\', "a\\b", "D:\\my work\\a\\b" },
            { '\\', "./a/../b", "D:\\my work\\b" },
            { '\\', "..", "D:" },
            { '\\', "\\a", "D:\\a" },
            { '\\', "/", "D:" },
            { '\\', "//server/share/", "\\\\server\\share" },
            { '\\', "name:with colon", "name:with colon" },
            { '\\', "  ", "D:\\my work" },
            { '/', "", "" },
            { '/', "/a/b c.xml \t\n", "/a/b c.xml" },
            { '/', "/a///", "/a" },
            { '/', "/", "/" },
            { '/', "///", "/" },
            { '/', "a/b", "/my work/a/b" },
            { '/', "../../../a", "/a" },
            { '/', "C:\\a", "/my work/C:\\a" },
            { '/', "\\a", "/my work/\\a" },
            { '/', "caf\xc3\xa9/\xe2\x98\x83", "/my work/caf\xc3\xa9/\xe2\x98\x83" },
        },
        absolute);
    EXPECT_EQ (PathRules ('/').absolute ("a", "/").str(), "/a");
    EXPECT_EQ (PathRules ('/').absolute ("a", "").str(), "a") << "without a current folder it must not become a root's";
}

TEST (PathRules, FindTheParent)
{
    expectAll (
        {
            { '\\', "C:\\a\\b.xml", "C:\\a" },
            { '\\', "C:\\a", "C:" },
            { '\\', "C:", "C:" },
            { '\\', "\\a", "\\" },
            { '\\', "a/b", "a/b" },
            { '/', "/a/b.xml", "/a" },
            { '/', "/a", "/" },
            { '/', "/", "/" },
            { '/', "/a\\b/c", "/a\\b" },
            { '/', "", "" },
        },
        [] (const PathRules& rules, const qel::String& path) { return rules.parent (path); });
}

struct NameRow
{
    char separator;
    const char *path, *fileName, *bareName, *extension;
};

TEST (PathRules, SplitTheName)
{
    const NameRow rows[] = {
        { '\\', "C:\\a.b\\c.d.xml", "c.d.xml", "c.d", ".xml" },
        { '\\', "C:\\a.b\\c", "c", "c", "" },
        { '\\', "C:\\a/b.c", "a/b.c", "a/b", ".c" },
        { '/', "/a.b/c.d.xml", "c.d.xml", "c.d", ".xml" },
        { '/', "/a.b/c", "c", "c", "" },
        { '/', "/a.b/c\\d.", "c\\d.", "c\\d", "." },
        { '/', "plain", "plain", "plain", "" },
        { '/', "/a/.hidden", ".hidden", "", ".hidden" },
        { '/', "/", "", "", "" },
    };
    for (const auto& row : rows) {
        const PathRules rules (row.separator);
        EXPECT_EQ (rules.fileName (row.path).str(), row.fileName) << row.path;
        EXPECT_EQ (rules.nameWithoutExtension (row.path).str(), row.bareName) << row.path;
        EXPECT_EQ (rules.extension (row.path).str(), row.extension) << row.path;
    }
}

struct JoinRow
{
    char separator;
    const char *folder, *relative, *expected;
};

TEST (PathRules, WalkARelativePathFromAFolder)
{
    const JoinRow rows[] = {
        { '\\', "C:\\a", "b/c", "C:\\a\\b\\c" },
        { '\\', "C:\\a\\", "b", "C:\\a\\b" },
        { '\\', "C:\\a\\b", ".\\..\\c", "C:\\a\\c" },
        { '\\', "C:\\a", "..\\..\\..\\b", "C:\\b" },
        { '\\', "C:\\a", "E:\\b", "E:\\b" },
        { '\\', "C:\\a", "\\b", "\\b" },
        { '/', "/a", "b/./c", "/a/b/c" },
        { '/', "/", "b", "/b" },
        { '/', "/a/b", "../../../c", "/c" },
        { '/', "/a", "b/../../c", "/c" },
        { '/', "/a", "...", "/a/..." },
        { '/', "/a", "/b", "/b" },
        { '/', "/a", "E:\\b", "/a/E:\\b" },
        { '/', "/a", "", "/a" },
    };
    for (const auto& row : rows)
        EXPECT_EQ (PathRules (row.separator).joined (row.folder, row.relative).str(), row.expected)
            << row.folder << " and " << row.relative;
}

}
