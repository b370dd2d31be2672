#include "host/bench/WindowDriver.h"

namespace bench
{

namespace
{
WindowDriver* installed = nullptr;
}

WindowDriver* windowDriver() { return installed; }
void setWindowDriver (WindowDriver* driver) { installed = driver; }

}
