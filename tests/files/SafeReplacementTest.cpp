#include "files/OrvaneDspFileWriter.h"
#include "files/OrvaneDspTemporaryFile.h"
#include "geometry/OrvaneDspCoordinatesSnapshot.h"
#include "support/files/ScratchFolder.h"
#include "text/OrvaneDspXmlElement.h"

#include <gmock/gmock.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>

#include <sys/resource.h>
#include <unistd.h>

namespace
{

enum Call
{
    writing,
    flushing,
    closing,
    renaming,
    numberOfCalls
};
constexpr const char* callNames[] = { "write", "fsync", "close", "rename" };

/** How many more times each call fails. */
std::array<int, numberOfCalls> refusals{};

bool isRefused (Call call)
{
    if (refusals[call] == 0)
        return false;
    --refusals[call];
    errno = ENOSPC;
    return true;
}

}

extern "C"
{
    ssize_t __real_write (int, const void*, size_t);
    int __real_fsync (int);
    int __real_close (int);
    int __real_rename (const char*, const char*);

    ssize_t __wrap_write (int file, const void* bytes, size_t count)
    {
        return isRefused (writing) ? -1 : __real_write (file, bytes, count);
    }
    int __wrap_fsync (int file) { return isRefused (flushing) ? -1 : __real_fsync (file); }
    int __wrap_close (int file)
    {
        const int result = __real_close (file);
        return isRefused (closing) ? -1 : result;
    }
    int __wrap_rename (const char* from, const char* to)
    {
        return isRefused (renaming) ? -1 : __real_rename (from, to);
    }
}

namespace
{

/** Limits files to this many bytes for its lifetime, as a full disk would. */
class DiskOfBytes
{
public:
    explicit DiskOfBytes (rlim_t bytes) : formerHandler (std::signal (SIGXFSZ, SIG_IGN))
    {
        getrlimit (RLIMIT_FSIZE, &formerLimit);
        rlimit limit = formerLimit;
        limit.rlim_cur = bytes;
        setrlimit (RLIMIT_FSIZE, &limit);
    }
    DiskOfBytes (const DiskOfBytes&) = delete;
    DiskOfBytes& operator= (const DiskOfBytes&) = delete;
    ~DiskOfBytes()
    {
        setrlimit (RLIMIT_FSIZE, &formerLimit);
        std::signal (SIGXFSZ, formerHandler);
    }

private:
    void (*formerHandler) (int);
    rlimit formerLimit{};
};

class SafeReplacement : public testing::Test
{
protected:
    SafeReplacement()
    {
        for (const char* name : { "first", "second" })
            document.addChild (std::make_unique<qel::XmlElement> ("item"))->setAttribute ("name", name);
    }

    bool writeDocument() { return document.writeTo (target, "", "UTF-8", 60); }

    void expectOldFile (const std::string& when)
    {
        EXPECT_EQ (target.readAll().str(), "what was there") << when;
        EXPECT_EQ (scratch.names(), std::set<std::string>{ "state.xml" }) << when;
    }

    ScratchFolder scratch;
    qel::File target = scratch.write ("state.xml", "what was there");
    qel::XmlElement document{ "list" };
};

TEST_F (SafeReplacement, ADiskThatIsFullAtAnyByteLeavesTheOldFileWhole)
{
    const auto copy = scratch.file ("copy");
    ASSERT_TRUE (document.writeTo (copy, "", "UTF-8", 60));
    const auto size = copy.size();
    ASSERT_TRUE (size > 100 && copy.remove());

    for (rlim_t room = 0; room < size; ++room) {
        const bool isWritten = [&] {
            const DiskOfBytes disk (room);
            return writeDocument();
        }();
        EXPECT_FALSE (isWritten) << "room for " << room << " bytes";
        expectOldFile ("room for " + std::to_string (room) + " bytes");
    }

    const DiskOfBytes justEnough (size);
    EXPECT_TRUE (writeDocument());
    EXPECT_NE (target.readAll().str().find ("second"), std::string::npos);
}

/** Snapshots are written in pieces: the disk may be full after any of them. */
TEST_F (SafeReplacement, ADiskThatIsFullBetweenThePiecesOfASnapshotFileLeavesTheOldFileWhole)
{
    qel::CoordinatesSnapshotStore store;
    for (int i = 0; i < 100; ++i)
        store.store (qel::String (i), qel::Point3Array (64));
    const auto copy = scratch.file ("copy");
    ASSERT_TRUE (store.write (copy, "", false));
    const auto size = copy.size();
    ASSERT_TRUE (size > 200000 && copy.remove());

    for (const rlim_t room : { rlim_t{ 0 }, rlim_t{ 70000 }, rlim_t{ 140000 }, rlim_t{ size - 1 } }) {
        const bool isWritten = [&] {
            const DiskOfBytes disk (room);
            return store.write (target, "", true);
        }();
        EXPECT_FALSE (isWritten) << "room for " << room << " bytes";
        expectOldFile ("room for " + std::to_string (room) + " bytes");
    }
    for (const auto call : { writing, flushing, closing, renaming }) {
        refusals[call] = call == renaming ? 5 : 1;
        EXPECT_FALSE (store.write (target, "", true)) << callNames[call];
        expectOldFile (callNames[call]);
    }
    EXPECT_TRUE (store.write (target, "", true));
    EXPECT_EQ (target.size(), size);
}

TEST_F (SafeReplacement, ARefusedCallLeavesTheOldFileWhole)
{
    for (const auto call : { writing, flushing, closing, renaming }) {
        refusals[call] = call == renaming ? 5 : 1;
        EXPECT_FALSE (writeDocument()) << callNames[call];
        EXPECT_EQ (refusals[call], 0) << callNames[call] << " was never asked for";
        expectOldFile (callNames[call]);
    }
}

TEST_F (SafeReplacement, AFileThatIsHeldForAMomentIsReplacedAllTheSame)
{
    refusals[renaming] = 4;
    EXPECT_TRUE (writeDocument());
    EXPECT_NE (target.readAll().str().find ("second"), std::string::npos);
    EXPECT_EQ (scratch.names(), std::set<std::string>{ "state.xml" });
}

TEST_F (SafeReplacement, AFolderIsNeverReplaced)
{
    const auto folder = scratch.file ("folder.xml");
    ASSERT_TRUE (folder.createFolder());
    EXPECT_FALSE (document.writeTo (folder, "", "UTF-8", 60));
    EXPECT_TRUE (folder.isFolder());
    EXPECT_EQ (scratch.names(), (std::set<std::string>{ "folder.xml", "state.xml" }));
}

TEST_F (SafeReplacement, TheTemporaryFileLiesBesideTheTargetAndGoesWithItsObject)
{
    qel::File file;
    {
        const qel::TemporaryFile temporary (target);
        file = temporary.file();
        EXPECT_THAT (file.fileName().str(), testing::MatchesRegex ("state_temp[0-9a-f]{1,8}\\.xml"));
        EXPECT_EQ (file.parent(), target.parent());
        EXPECT_FALSE (temporary.replaceTarget()) << "it was never written";

        qel::MemoryOutput bytes;
        bytes.write ("half");
        qel::FileWriter writer (file);
        ASSERT_TRUE (writer.write (bytes) && writer.finish() && file.exists());
    }
    expectOldFile ("after the temporary file's end");
}

}
