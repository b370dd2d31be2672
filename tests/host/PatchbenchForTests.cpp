#include "ExampleClass.h"
#include "host/bench/patchbench/Program.h"

/** patchbench with the example class instead of the product, and without windows. */
int main (int argc, char** argv)
{
    const auto find = [] (const std::string& name) -> bench::Entry {
        return name == "bench.example" ? example_main : nullptr;
    };
    return patchbench::run (argc, argv,
                            { { find, [] { return std::vector<std::string>{ "bench.example" }; }, {} }, {} });
}
