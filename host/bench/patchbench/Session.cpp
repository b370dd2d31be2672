#include "host/bench/patchbench/Session.h"
#include "host/bench/patchbench/Commands.h"
#include <atomic>
#include <iostream>

namespace patchbench
{

Session::Session (const Settings& settings) : bench (settings.deferMedium), findExternal (settings.findExternal)
{
    bench.setListener ([trace = settings.trace] (const bench::Event& event) {
        if (trace || event.kind != bench::Event::Kind::notify)
            print (lineOf (event));
    });
}

void Session::run (const std::string& line)
{
    const auto words = bench::wordsOf (line);
    if (words.empty() || line[line.find_first_not_of (" \t\r\n")] == '#')
        return;
    const auto* command = findCommand (words.front().text);
    if (command == nullptr)
        throw CommandError ("unknown command \"" + words.front().text + "\"");
    const auto arguments = words.size() - 1;
    if (arguments < command->fewest || arguments > command->most)
        throw CommandError (std::string ("usage: ") + command->usage);
    command->run (*this, words);
    bench.settle();
}

bench::Box& Session::box (const std::string& name)
{
    auto* found = bench.find (name);
    if (found == nullptr)
        throw CommandError ("no object \"" + name + "\"");
    return *found;
}

bench::WindowDriver& Session::windows()
{
    auto* driver = bench::windowDriver();
    if (driver == nullptr)
        throw CommandError ("this bench has no windows");
    return *driver;
}

bool Session::load (const std::string& className)
{
    if (class_findbyname (CLASS_BOX, gensym (className.c_str())) != nullptr)
        return true;
    const auto entry = findExternal ? findExternal (className) : nullptr;
    if (entry != nullptr)
        bench.load (entry);
    return entry != nullptr;
}

namespace
{
std::atomic<const char*> lineStart{ "" };
std::atomic<int> lines{ 0 };
}

void Session::print (const std::string& line)
{
    std::cout << lineStart.load() + line + '\n';
    ++lines;
}

void Session::setLineStart (const char* text) { lineStart = text; }
int Session::linesPrinted() { return lines; }

}
