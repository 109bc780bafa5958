#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

/// \file
/// Sends stored inputs through a target, without a fuzzer: `replay DIRECTORY...`

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

namespace
{

/// An input that takes longer is a fault, also under a sanitizer on a busy machine.
constexpr std::chrono::seconds longest(10);

bool replay(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::string input{std::istreambuf_iterator<char>(file), {}};
    // Before it runs, because a fault ends the process.
    std::printf("%s\n", path.c_str());
    std::fflush(stdout);
    const auto start = std::chrono::steady_clock::now();
    LLVMFuzzerTestOneInput(reinterpret_cast<const unsigned char*>(input.data()), input.size());
    if (std::chrono::steady_clock::now() - start < longest)
        return true;
    std::printf("TOO SLOW\n");
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    int inputs = 0;
    bool passed = true;
    for (const std::string& directory : std::vector<std::string>(argv + 1, argv + argc)) {
        for (const auto& entry : std::filesystem::directory_iterator(directory)) {
            passed = replay(entry.path()) && passed;
            ++inputs;
        }
    }
    std::printf("%d inputs\n", inputs);
    return inputs > 0 && passed ? 0 : 1;
}
