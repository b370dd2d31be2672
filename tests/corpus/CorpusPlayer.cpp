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

/** For targets with one-time setup. */
extern "C" __attribute__ ((weak)) int LLVMFuzzerInitialize (int* argc, char*** argv);

namespace
{

/** Generates inputs that are the same on every run and platform. */
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

/** Runs a fuzz target on each file of a folder, by name, then on the requested number of random inputs. An empty folder
    is an error. */
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
        std::cout << path.filename().string() << std::endl; // first, so that a crash shows its input
        std::ifstream file (path, std::ios::binary);
        const std::vector<char> bytes{ std::istreambuf_iterator<char> (file), {} };
        LLVMFuzzerTestOneInput (reinterpret_cast<const std::uint8_t*> (bytes.data()), bytes.size());
    }
    if (argc > 2)
        playRandom (std::stoi (argv[2]));
    return inputs.empty() ? 1 : 0;
}
