#include "host/bench/patchbench/Session.h"
#include "host/bench/Doze.h"
#include "host/bench/patchbench/Advice.h"
#include "host/bench/patchbench/Commands.h"
#include <algorithm>
#include <iostream>
#include <mutex>

namespace patchbench
{

Session::Session (const Settings& s) : settings (s), bench (s.deferMedium)
{
    bench.setListener ([this] (const bench::Event& event) {
        if (event.kind == bench::Event::Kind::window)
            followWindow (event);
        if (settings.trace || event.kind != bench::Event::Kind::notify)
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
        throw CommandError ("unknown command \"" + shortened (words.front().text) + "\"" + adviceFor (*this, words));
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
    const auto entry = settings.externals.find ? settings.externals.find (className) : nullptr;
    if (entry != nullptr)
        bench.load (entry);
    return entry != nullptr;
}

namespace
{
std::atomic<bool> isInterrupted{ false };
std::mutex printerMutex;
std::function<void (const std::string&)> linePrinter;
}

void Session::interrupt (bool interrupted)
{
    isInterrupted = interrupted;
    bench::wakeMainThread();
}

void Session::followWindow (const bench::Event& event)
{
    if (event.text == "shown")
        openWindows.insert (event.box);
    else if (event.text == "hidden" || event.text == "destroyed")
        openWindows.erase (event.box);
}

void Session::wait (int milliseconds)
{
    bench.waitFor (milliseconds, -1, [] { return ! isInterrupted; });
}

void Session::waitForWindows()
{
    const auto* driver = bench::windowDriver();
    if (driver == nullptr || ! driver->isOnDisplay())
        return;
    if (bench.isHeld())
        throw CommandError ("no window can be closed before release");
    bench.waitFor (bench::Bench::forEver, -1, [this] {
        std::cout.flush();
        return ! openWindows.empty() && ! isInterrupted;
    });
}

void Session::print (const std::string& line)
{
    const std::lock_guard<std::mutex> lock (printerMutex);
    if (linePrinter)
        linePrinter (line);
    else
        std::cout << line + '\n';
}

void Session::setPrinter (std::function<void (const std::string&)> printer)
{
    const std::lock_guard<std::mutex> lock (printerMutex);
    linePrinter = std::move (printer);
}

}
