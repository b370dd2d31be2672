#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size);

/** For targets that have something to set up once. */
extern "C" __attribute__ ((weak)) int LLVMFuzzerInitialize (int* argc, char*** argv);

/** Gives each file of a folder to a fuzz target, in the order of their names. An empty folder is a fault. */
int main (int argc, char** argv)
{
    if (argc < 2) {
        std::cerr << "usage: " << argv[0] << " FOLDER\n";
        return 2;
    }
    if (LLVMFuzzerInitialize != nullptr)
        LLVMFuzzerInitialize (&argc, &argv);

    std::vector<std::filesystem::path> inputs;
    for (const auto& entry : std::filesystem::directory_iterator (argv[1]))
        inputs.push_back (entry.path());
    std::sort (inputs.begin(), inputs.end());
    for (const auto& path : inputs) {
        std::cout << path.filename().string() << std::endl; // before the call: it names the one that ends the process
        std::ifstream file (path, std::ios::binary);
        const std::vector<char> bytes{ std::istreambuf_iterator<char> (file), {} };
        LLVMFuzzerTestOneInput (reinterpret_cast<const std::uint8_t*> (bytes.data()), bytes.size());
    }
    return inputs.empty() ? 1 : 0;
}
