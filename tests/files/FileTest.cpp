#include "files/OrvaneDspFile.h"
#include "files/OrvaneDspFileWriter.h"
#include "files/OrvaneDspNoSuchFile.h"
#include "support/core/Raised.h"
#include "support/files/ScratchFolder.h"

#include <gtest/gtest.h>

#include <climits>

#include <sys/stat.h>

namespace
{

using qel::File;

qel::MemoryOutput bytesOf (const std::string& text)
{
    qel::MemoryOutput output;
    output.write (text);
    return output;
}

TEST (File, AnEmptyOneIsNotThereAndIsGladlyRemoved)
{
    const File none;
    EXPECT_FALSE (none.exists());
    EXPECT_TRUE (none.remove());
    EXPECT_TRUE (none.readAll().empty());
    EXPECT_EQ (raised ([&] { none.createFolder(); }), "Cannot create directory \"\"");
}

TEST (File, KnowsWhatStandsAtItsPath)
{
    const ScratchFolder scratch;
    const auto file = scratch.write ("a file.txt", "text");
    const auto folder = file.parent();
    EXPECT_TRUE (file.exists() && file.existsAsFile() && ! file.isFolder());
    EXPECT_TRUE (folder.exists() && ! folder.existsAsFile() && folder.isFolder());
    EXPECT_FALSE (folder.child ("other").exists());
    EXPECT_EQ (folder.child ("a file.txt"), file);
    EXPECT_EQ (file.sibling ("b/../c"), folder.child ("c"));
}

TEST (File, ParentKeepsABlankAtTheEndOfAFoldersName)
{
    const ScratchFolder scratch;
    const auto folder = scratch.file ("blank /inner").parent();
    EXPECT_EQ (folder.fileName().str(), "blank ");
    EXPECT_TRUE (folder.createFolder());
    EXPECT_EQ (scratch.names(), std::set<std::string>{ "blank " });
}

TEST (File, RemovesFilesAndEmptyFoldersOnly)
{
    const ScratchFolder scratch;
    const auto folder = scratch.file ("folder");
    ASSERT_TRUE (folder.createFolder());
    const auto inner = scratch.write ("folder/inner", "x");
    EXPECT_FALSE (folder.remove());
    EXPECT_TRUE (inner.remove() && inner.remove());
    EXPECT_TRUE (folder.removeWithRetry());
    EXPECT_TRUE (scratch.names().empty());
}

TEST (File, CreatesAllFoldersOfAPath)
{
    const ScratchFolder scratch;
    const auto deep = scratch.file ("a/b b/\xc3\xa9/d");
    EXPECT_TRUE (deep.createFolder());
    EXPECT_TRUE (deep.isFolder());
    EXPECT_TRUE (deep.createFolder()) << "it is there already";
    EXPECT_FALSE (scratch.write ("file", "x").child ("folder").createFolder()) << "nothing fits into a file";
}

TEST (File, APathOfAnyLengthEndsWell)
{
    std::string path;
    for (int i = 0; i < 500000; ++i)
        path += "/a";
    EXPECT_FALSE (File (path).createFolder());
    EXPECT_FALSE (File (path).exists());
    EXPECT_FALSE (File ("/" + std::string (PATH_MAX, 'a')).createFolder());
}

TEST (File, MovesOntoWhatStandsThere)
{
    const ScratchFolder scratch;
    const auto source = scratch.write ("source", "new");
    const auto target = scratch.write ("target", "old");
    EXPECT_TRUE (source.moveTo (source));
    EXPECT_TRUE (source.moveTo (target));
    EXPECT_EQ (target.readAll().str(), "new");
    EXPECT_FALSE (source.moveTo (target)) << "it is no longer there";

    const auto folder = scratch.file ("folder");
    ASSERT_TRUE (folder.createFolder());
    const auto inner = scratch.write ("folder/inner", "x");
    EXPECT_FALSE (target.moveTo (folder)) << "a full folder stays";
    ASSERT_TRUE (inner.remove());
    EXPECT_TRUE (target.moveTo (folder));
    EXPECT_EQ (folder.readAll().str(), "new");
}

TEST (File, ReadsAllBytesOfOrdinaryFilesAlone)
{
    const ScratchFolder scratch;
    const std::string bytes ("a\0b\r\n\xff", 6);
    EXPECT_EQ (scratch.write ("bytes", bytes).readAll().str(), bytes);
    EXPECT_EQ (scratch.file ("bytes").size(), bytes.size());
    EXPECT_TRUE (scratch.file (".").readAll().empty()) << "a folder";
    EXPECT_TRUE (File ("/dev/zero").readAll().empty()) << "it has no end";

    const auto pipe = scratch.file ("pipe");
    ASSERT_EQ (mkfifo (pipe.path().c_str(), 0600), 0);
    EXPECT_TRUE (pipe.readAll().empty()) << "nobody writes into it";
}

#ifndef __SANITIZE_ADDRESS__ // it aborts when memory runs out
TEST (File, WhatMemoryDoesNotHoldIsReadAsNothing)
{
    const ScratchFolder scratch;
    const auto huge = scratch.write ("huge", "");
    ASSERT_EQ (truncate (huge.path().c_str(), std::int64_t{ 1 } << 43U), 0);
    EXPECT_TRUE (huge.readAll().empty());
}
#endif

TEST (File, FindsTheHomeFolderByTheEnvironment)
{
    struct Row
    {
        const char *upper, *lower, *drive, *path;
        File expected;
    };
    const Row rows[] = {
        { "/one", "/two", "/three", "/four", File ("/one") },
        { nullptr, "/two", "/three", "/four", File ("/two") },
        { nullptr, nullptr, "/three", "/four", File ("/three/four") },
        { nullptr, nullptr, "/three", nullptr, File::currentFolder() },
    };
    const auto home = qel::filesystem::environment ("HOME");
    for (const auto& row : rows) {
        const std::pair<const char*, const char*> values[] = {
            { "HOME", row.upper }, { "home", row.lower }, { "HOMEDRIVE", row.drive }, { "HOMEPATH", row.path }
        };
        for (const auto& [name, value] : values)
            EXPECT_EQ (value == nullptr ? unsetenv (name) : setenv (name, value, 1), 0);
        EXPECT_EQ (File::homeFolder(), row.expected) << row.expected.path().c_str();
    }
    setenv ("HOME", home.c_str(), 1);
}

TEST (NoSuchFile, NamesThePath)
{
    EXPECT_STREQ (qel::exceptions::NoSuchFile (File ("/a b"), QEL_HERE).what(), "Could not find file \"/a b\"");
}

TEST (FileWriter, GoesOnAtTheEndOfTheFile)
{
    const ScratchFolder scratch;
    const auto file = scratch.file ("new folder/file");
    {
        qel::FileWriter writer (file);
        EXPECT_TRUE (writer.write (bytesOf ("one")) && writer.finish());
        EXPECT_FALSE (writer.write (bytesOf ("late"))) << "it is closed";
    }
    qel::FileWriter writer (file);
    EXPECT_EQ (writer.position(), 3U);
    EXPECT_TRUE (writer.write (bytesOf (" two")));
    EXPECT_EQ (writer.position(), 7U);
    EXPECT_EQ (file.readAll().str(), "one two") << "others may read it meanwhile";
}

TEST (FileWriter, TellsWhatItCannotWrite)
{
    const ScratchFolder scratch;
    const auto inFile = scratch.write ("file", "x").child ("folder/file");
    EXPECT_EQ (raised ([&] { qel::FileWriter writer (inFile); }),
               "Couldnt create or write in folder \"" + inFile.parent().path().str() + "\"");
    qel::FileWriter ontoFolder (scratch.file ("."));
    EXPECT_FALSE (ontoFolder.write (bytesOf ("x")) || ontoFolder.finish());
    qel::FileWriter inReadOnlyFolder (File ("/proc/file"));
    EXPECT_FALSE (inReadOnlyFolder.write (bytesOf ("x")));
}

}
