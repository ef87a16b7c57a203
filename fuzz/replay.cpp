// Feeds each file named on the command line, or each file of a folder named there, once to
// a fuzz target, so that what fuzzing proved stays proved in every test run.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int main(int argc, char** argv)
{
    namespace fs = std::filesystem;
    std::vector<fs::path> inputs;
    for (int i = 1; i < argc; ++i) {
        if (fs::is_directory(argv[i]))
            for (const auto& entry : fs::directory_iterator(argv[i])) inputs.push_back(entry.path());
        else inputs.emplace_back(argv[i]);
    }
    std::sort(inputs.begin(), inputs.end());
    for (const fs::path& input : inputs) {
        std::ifstream file(input, std::ios::binary);
        const std::vector<char> bytes((std::istreambuf_iterator<char>(file)), {});
        std::printf("%s\n", input.filename().c_str());
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
    }
    std::printf("replayed %zu inputs\n", inputs.size());
    return inputs.empty() ? 1 : 0;
}
