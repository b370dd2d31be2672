#include "host/bench/window/JuceWindowDriver.h"

#include <gmock/gmock.h>

/** Main for tests that run the object on the bench, with windows in memory, pumped by settle(). */
int main (int argc, char** argv)
{
    testing::InitGoogleMock (&argc, argv);
    bench::JuceWindowDriver windows (bench::JuceWindowDriver::Place::memory);
    bench::setWindowDriver (&windows);
    const auto result = RUN_ALL_TESTS();
    bench::setWindowDriver (nullptr);
    return result;
}
