#include "host/bench/WindowDriver.h"
#include <utility>

namespace bench
{

namespace
{
WindowDriver* installed = nullptr;
thread_local void* working = nullptr;
}

WindowDriver* windowDriver() { return installed; }
void setWindowDriver (WindowDriver* driver) { installed = driver; }

void* objectAtWork() { return working; }
ObjectAtWork::ObjectAtWork (void* object) : before (std::exchange (working, object)) {}
ObjectAtWork::~ObjectAtWork() { working = before; }

}
