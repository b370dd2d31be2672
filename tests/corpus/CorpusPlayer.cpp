#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size);

/** For targets that have something to set up once. */
extern "C" __attribute__ ((weak)) int LLVMFuzzerInitialize (int* argc, char*** argv);

namespace
{

/** Inputs that are the same on every run and platform. */
void playRandom (int count)
{
    std::mt19937 random (4711);
    for (int i = 0; i < count; ++i) {
        std::cout << "random " << i << std::endl;
        std::vector<std::uint8_t> bytes (random() % 1500);
        for (auto& byte : bytes)
            byte = static_cast<std::uint8_t> (random());
        LLVMFuzzerTestOneInput (bytes.data(), bytes.size());
    }
}

}

/** Gives each file of a folder to a fuzz target, in the order of their names, and then as many
    random inputs as are asked for. An empty folder is a fault. */
int main (int argc, char** argv)
{
    if (argc < 2) {
        std::cerr << "usage: " << argv[0] << " FOLDER [RANDOM INPUTS]\n";
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
    if (argc > 2)
        playRandom (std::stoi (argv[2]));
    return inputs.empty() ? 1 : 0;
}
