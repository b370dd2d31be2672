#include "host/bench/patchbench/Program.h"
#include "ExampleClass.h"
#include "host/bench/patchbench/Commands.h"
#include "host/bench/patchbench/Completion.h"
#include "support/files/ScratchFolder.h"
#include <gmock/gmock.h>

namespace
{
using patchbench::completionsOf;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

bench::Entry findExample (const std::string& name) { return name == "bench.example" ? example_main : nullptr; }

int statusOf (std::vector<const char*> arguments)
{
    arguments.insert (arguments.begin(), "patchbench");
    return patchbench::run (static_cast<int> (arguments.size()), arguments.data(), { findExample, {} });
}

TEST (Patchbench, EndsWithTheStatusOfWhatWentWrong)
{
    const ScratchFolder folder;
    folder.write ("status test.patch", "new a bench.example\nsend a nonsense\n");
    const auto file = (folder / "status test.patch").string();
    EXPECT_EQ (statusOf ({ file.c_str() }), 0);
    EXPECT_EQ (statusOf ({ "--defer-medium", "now", "--trace", file.c_str(), file.c_str() }), 1); // "a" is there
    EXPECT_EQ (statusOf ({ "no such file" }), 1);
    EXPECT_EQ (statusOf ({ "--window", "sideways", file.c_str() }), 2);
    EXPECT_EQ (statusOf ({ "--bogus" }), 2);
    EXPECT_EQ (statusOf ({ "--help" }), 0);
}

TEST (Patchbench, CompletesVerbsNamesMessagesAndAttributes)
{
    patchbench::Session session ({ bench::DeferMedium::queue, false, findExample });
    session.run ("new first bench.example");
    EXPECT_THAT (completionsOf (session, "dis"), ElementsAre ("disconnect"));
    EXPECT_THAT (completionsOf (session, "send f"), ElementsAre ("first"));
    EXPECT_THAT (completionsOf (session, "send first ba"), ElementsAre ("bang"));
    EXPECT_THAT (completionsOf (session, "send first "), Contains ("count"));
    EXPECT_THAT (completionsOf (session, "send first "), Not (Contains ("assist")));
    EXPECT_THAT (completionsOf (session, "attr first c"), ElementsAre ("count", "custom"));
    EXPECT_THAT (completionsOf (session, "thread s"), ElementsAre ("scheduler"));
    EXPECT_THAT (completionsOf (session, "new f"), ElementsAre());
    EXPECT_THAT (completionsOf (session, "connect first 0 "), ElementsAre ("first"));
    EXPECT_THAT (completionsOf (session, "bogus "), ElementsAre());
}

TEST (Patchbench, HasOneUsageForEachVerb)
{
    std::vector<std::string> verbs;
    for (const auto& command : patchbench::allCommands()) {
        EXPECT_EQ (bench::wordsOf (command.usage).front().text, command.verb);
        EXPECT_LE (command.fewest, command.most) << command.verb;
        EXPECT_THAT (verbs, Not (Contains (command.verb)));
        verbs.emplace_back (command.verb);
    }
    EXPECT_EQ (verbs.size(), 26u);
}
}
