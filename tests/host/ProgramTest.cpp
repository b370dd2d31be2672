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
using testing::EndsWith;
using testing::HasSubstr;
using testing::Lt;
using testing::Not;
using testing::SizeIs;

bench::Entry findExample (const std::string& name) { return name == "bench.example" ? example_main : nullptr; }

int statusOf (std::vector<const char*> arguments)
{
    arguments.insert (arguments.begin(), "patchbench");
    return patchbench::run (static_cast<int> (arguments.size()), arguments.data(), { { findExample, {}, {} }, {} });
}

TEST (Patchbench, EndsWithTheStatusOfWhatWentWrong)
{
    const ScratchFolder folder;
    folder.write ("status test.patch", "new a bench.example\nsend a nonsense\n");
    const auto file = (folder / "status test.patch").string();
    EXPECT_EQ (statusOf ({ file.c_str() }), 0);
    EXPECT_EQ (statusOf ({ "--defer-medium", "now", "--trace", file.c_str(), file.c_str() }), 1); // "a" already exists
    EXPECT_EQ (statusOf ({ "no such file" }), 1);
    EXPECT_EQ (statusOf ({ "--window", "sideways", file.c_str() }), 2);
    EXPECT_EQ (statusOf ({ "--bogus" }), 2);
    EXPECT_EQ (statusOf ({ "--help" }), 0);
    EXPECT_EQ (statusOf ({ "--version" }), 0);
}

/** Runs the whole program on a file with this text; returns its complaints. */
std::string complaintsAbout (const std::string& name, const std::string& content, int expectedStatus = 1)
{
    const ScratchFolder folder;
    folder.write (name, content);
    const auto file = (folder / name).string();
    testing::internal::CaptureStderr();
    EXPECT_EQ (statusOf ({ file.c_str() }), expectedStatus) << name;
    return testing::internal::GetCapturedStderr();
}

TEST (Patchbench, ComplainsClearlyAboutFilesThatAreNoScripts)
{
    EXPECT_THAT (complaintsAbout ("a.maxpat", "{ }"), HasSubstr ("is a patcher (.maxpat)"));
    EXPECT_THAT (complaintsAbout ("mark.bench", "\xEF\xBB\xBFnew a bench.example\n"),
                 HasSubstr (":1: the file begins with"));
    EXPECT_THAT (complaintsAbout ("wide.bench", std::string ("\xFF\xFEm\0", 4)), HasSubstr ("save it as UTF-8"));
    EXPECT_THAT (complaintsAbout ("binary", std::string ("\x7F"
                                                         "ELF\0\0",
                                                         6)),
                 HasSubstr (":1: this is no text"));
    EXPECT_THAT (complaintsAbout ("long", std::string (100000, 'x')), SizeIs (Lt (400u)));
    testing::internal::CaptureStderr();
    EXPECT_EQ (statusOf ({ "." }), 1);
    EXPECT_THAT (testing::internal::GetCapturedStderr(), HasSubstr ("is a folder"));
}

TEST (Patchbench, HintsAtWhatWasMeant)
{
    struct Row
    {
        const char* line;
        const char* hint;
    };
    for (const auto& row :
         { Row{ "echo 1", "send a echo ..." }, Row{ "getcount", "send a getcount" }, Row{ "a bang", "send a MESSAGE" },
           Row{ "sned a bang", "did you mean send?" }, Row{ "shto a b.png", "did you mean shot?" } })
        EXPECT_THAT (complaintsAbout ("hint.bench", std::string ("new a bench.example\n") + row.line + "\n"),
                     HasSubstr (row.hint))
            << row.line;
    EXPECT_THAT (complaintsAbout ("hint.bench", "frobnicate\n"), EndsWith ("unknown command \"frobnicate\"\n"));
}

TEST (Patchbench, EchoesCommandsAndCommentsOfScriptsOnRequest)
{
    const ScratchFolder folder;
    folder.write ("echo.bench", "# a box\r\nnew a bench.example\n\n send a echo 1\n");
    const auto file = (folder / "echo.bench").string();
    for (const bool echo : { false, true }) {
        testing::internal::CaptureStdout();
        echo ? statusOf ({ "--echo", file.c_str() }) : statusOf ({ file.c_str() });
        EXPECT_EQ (testing::internal::GetCapturedStdout(),
                   echo ? "# a box\n> new a bench.example\n\n>  send a echo 1\na out 0 echo 1\n" : "a out 0 echo 1\n");
    }
}

TEST (Patchbench, CompletesVerbsNamesMessagesAndAttributes)
{
    const auto forms = patchbench::readMessageForms ("echo loud|soft AMOUNT | a | b\necho again | a | b\n[echo] x\n"
                                                     "echo COUNT times | a | b\n");
    patchbench::Session session (
        { bench::DeferMedium::queue,
          false,
          { findExample, [] { return std::vector<std::string>{ "bench.example" }; }, forms } });
    session.run ("new first bench.example");
    EXPECT_THAT (completionsOf (session, "dis"), ElementsAre ("disconnect"));
    EXPECT_THAT (completionsOf (session, "send f"), ElementsAre ("first"));
    EXPECT_THAT (completionsOf (session, "send first ba"), ElementsAre ("bang"));
    EXPECT_THAT (completionsOf (session, "send first "), Contains ("count"));
    EXPECT_THAT (completionsOf (session, "send first "), Not (Contains ("assist")));
    EXPECT_THAT (completionsOf (session, "attr first c"), ElementsAre ("count", "custom"));
    EXPECT_THAT (completionsOf (session, "thread s"), ElementsAre ("scheduler"));
    EXPECT_THAT (completionsOf (session, "new f"), ElementsAre());
    EXPECT_THAT (completionsOf (session, "new f "), ElementsAre ("bench.example"));
    EXPECT_THAT (completionsOf (session, "new f bench.example @c"), ElementsAre ("@count", "@custom"));
    EXPECT_THAT (completionsOf (session, "new f bench.example @count t"), ElementsAre ("two"));
    EXPECT_THAT (completionsOf (session, "send first count t"), ElementsAre ("two"));
    EXPECT_THAT (completionsOf (session, "send first getcou"), ElementsAre ("getcount"));
    EXPECT_THAT (completionsOf (session, "send first echo "), ElementsAre ("again", "loud", "soft"));
    EXPECT_THAT (completionsOf (session, "send first echo loud s"), ElementsAre());
    EXPECT_THAT (completionsOf (session, "send first echo 3 "), ElementsAre ("times"));
    EXPECT_THAT (completionsOf (session, "mouse first up 1 2 s"), ElementsAre ("shift"));
    EXPECT_THAT (completionsOf (session, "help fr"), ElementsAre ("free"));
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
