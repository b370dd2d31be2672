#include "ControlBenchmark.h"

#include "MinimalClass.h"
#include "host/bench/window/JuceWindowDriver.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>

namespace
{

std::atomic<long> news{ 0 };

/** Stops the host from pumping windows for its lifetime. */
class WithoutWindows
{
public:
    WithoutWindows() : driver (bench::windowDriver()) { bench::setWindowDriver (nullptr); }
    ~WithoutWindows() { bench::setWindowDriver (driver); }

private:
    bench::WindowDriver* driver;
};

}

long allocations() { return news; }

double median (std::vector<double>& times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t> (times.size() / 2);
    std::nth_element (times.begin(), middle, times.end());
    return *middle;
}

void* operator new (std::size_t size)
{
    ++news;
    if (auto* memory = std::malloc (size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}
void operator delete (void* memory) noexcept { std::free (memory); }
void operator delete (void* memory, std::size_t) noexcept { std::free (memory); }

void paintWindows()
{
    for (int i = 0; i < juce::ComponentPeer::getNumPeers(); ++i)
        juce::ComponentPeer::getPeer (i)->performAnyPendingRepaintsNow();
}

ControlBenchmark::ControlBenchmark (Window window)
{
    patch.load (minimal_main);
    patch.load (ext_main);
    patch.setListener ([] (const bench::Event&) {});
    minimal = patch.make ("floor", "bench.minimal");
    box = patch.make ("object", "halcyra~.control @numsources 64 @numspeakers 64");
    patch.settle();
    if (window != Window::never)
        send ("open");
    if (window == Window::closed)
        send ("wclose");
    if (window == Window::scene) {
        bench::windowDriver()->turnPage (box->object, 2);
        patch.settle();
        paintWindows();
    }
}

void ControlBenchmark::send (t_symbol* selector, const bench::Atoms& atoms)
{
    patch.send (*box, selector, atoms);
    patch.settle();
    paintWindows();
}

void ControlBenchmark::send (const char* text)
{
    patch.send (*box, text);
    patch.settle();
    paintWindows();
}

void ControlBenchmark::moveValue()
{
    turn = turn == 0 ? 1 : 0;
    atom_setfloat (value.data(), turn);
}

void ControlBenchmark::sendMinimalAttribute()
{
    moveValue();
    patch.send (*minimal, gensym ("level"), value);
    patch.settle();
    paintWindows();
}

void ControlBenchmark::sendMinimalMany (int messages)
{
    bench::Atoms count (1);
    atom_setlong (count.data(), messages);
    patch.send (*minimal, gensym ("many"), count);
    patch.settle();
    paintWindows();
}

void ControlBenchmark::sendMinimal()
{
    const WithoutWindows alone;
    moveValue();
    patch.send (*minimal, gensym ("gain"), value);
    patch.settle();
}

t_halcyra_control& ControlBenchmark::record() const { return *reinterpret_cast<t_halcyra_control*> (box->object); }

int main (int argc, char** argv)
{
    benchmark::Initialize (&argc, argv);
    if (benchmark::ReportUnrecognizedArguments (argc, argv))
        return 2;
    bench::JuceWindowDriver windows (bench::JuceWindowDriver::Place::memory);
    bench::setWindowDriver (&windows);
    benchmark::RunSpecifiedBenchmarks();
    bench::setWindowDriver (nullptr);
    return 0;
}
