#include "host/bench/patchbench/Commands.h"

namespace patchbench
{

namespace
{
using Words = std::vector<bench::Word>;

void newBox (Session& session, const Words& words)
{
    const auto& name = words[1].text;
    if (session.bench.find (name) != nullptr)
        throw CommandError ("there is an object \"" + name + "\" already");
    const bool known = session.load (words[2].text);
    session.bench.make (name, Words (words.begin() + 2, words.end()));
    if (! known)
        throw CommandError ("no class \"" + words[2].text + "\"");
}

void freeBox (Session& session, const Words& words) { session.bench.free (&session.box (words[1].text)); }

void send (Session& session, const Words& words)
{
    const auto message = bench::messageOf (words, 2);
    session.bench.send (session.box (words[1].text), message.selector, message.atoms, session.thread);
}

void connect (Session& session, const Words& words)
{
    auto& from = session.box (words[1].text);
    const auto outlet = static_cast<int> (wholeNumber (words[2], "the outlet"));
    if (! session.bench.connect (from, outlet, session.box (words[3].text)))
        throw CommandError ("\"" + words[1].text + "\" has no outlet " + words[2].text);
}

void disconnect (Session& session, const Words& words)
{
    auto& from = session.box (words[1].text);
    const auto outlet = static_cast<int> (wholeNumber (words[2], "the outlet"));
    if (! session.bench.disconnect (from, outlet, session.box (words[3].text)))
        throw CommandError ("there is no such cord");
}

void chooseThread (Session& session, const Words& words)
{
    if (words[1].text == "main")
        session.thread = bench::Thread::main;
    else if (words[1].text == "scheduler")
        session.thread = bench::Thread::scheduler;
    else
        throw CommandError ("unknown thread \"" + words[1].text + "\"");
}

void answerDialog (Session& session, const Words& words)
{
    if (words[1].text == "cancel" && ! words[1].quoted)
        session.bench.answerDialog (std::nullopt);
    else
        session.bench.answerDialog (words[1].text);
}

void wait (Session& session, const Words& words)
{
    if (words.size() == 1)
        return session.waitForWindows();
    constexpr long long aDay = 24LL * 60 * 60 * 1000;
    const auto time = wholeNumber (words[1], "the time");
    if (time < 0 || time > aDay)
        throw CommandError ("the time is out of range: " + words[1].text);
    session.wait (static_cast<int> (time));
}

/** Prints a line chosen by the script. */
void mark (Session&, const Words& words)
{
    std::string line = "- mark";
    for (std::size_t i = 1; i < words.size(); ++i)
        line += " " + words[i].text;
    Session::print (line);
}

void hold (Session& session, const Words&) { session.bench.hold(); }
void release (Session& session, const Words&) { session.bench.release(); }
void quit (Session& session, const Words&) { session.quit(); }
}

const std::vector<Command>& patchCommands()
{
    static const std::vector<Command> table = {
        { "new", 2, anyNumber, "new NAME CLASS [ARG ...] [@ATTRIBUTE VALUE ...]",
          "Creates a box. Words after an @ set its attributes, as in a patcher.",
          "new other halcyra~.control @numsources 2 @gain -6", newBox },
        { "send", 2, anyNumber, "send NAME MESSAGE [ATOM ...]",
          "Sends a message to the inlet of a box; getATTRIBUTE asks for a value.", "send verb tr0 3.2", send },
        { "free", 1, 1, "free NAME", "Deletes a box.", "free other", freeBox },
        { "connect", 3, 3, "connect NAME OUTLET NAME2",
          "Connects an outlet (0 is the leftmost) to the inlet of another box.", "connect verb 0 other", connect },
        { "disconnect", 3, 3, "disconnect NAME OUTLET NAME2", "Removes a patch cord.", "disconnect verb 0 other",
          disconnect },
        { "dialog", 1, 1, "dialog PATH|cancel", "Answers the next open or save dialog, in advance.",
          "dialog scenes.xml", answerDialog },
        { "thread", 1, 1, "thread main|scheduler",
          "Chooses the thread that the following messages are sent from (main at first).", "thread scheduler",
          chooseThread },
        { "hold", 0, 0, "hold", "Keeps what follows in one turn: nothing queued runs until release.", "hold", hold },
        { "release", 0, 0, "release", "Ends hold and runs what is queued.", "release", release },
        { "wait", 0, 1, "wait [MS]",
          "Lets time pass. Without a time, waits until the windows on the display are closed.", "wait 100", wait },
        { "mark", 0, anyNumber, "mark [TEXT ...]", "Prints a line of your own, to find a place in the output.",
          "mark second scene", mark },
        { "quit", 0, 0, "quit", "Deletes what is left and ends.", "quit", quit },
    };
    return table;
}

}
