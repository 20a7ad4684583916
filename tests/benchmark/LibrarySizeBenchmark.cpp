#include "tests/benchmark/Benchmark.h"

#include <windows.h>

#include <filesystem>

namespace
{
constexpr long long nMostBytes = 1536 * 1024;

void MeasureLibrarySize(CBenchmark& benchmark)
{
    wchar_t szProgram[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, szProgram, MAX_PATH);
    const auto library = std::filesystem::path(szProgram).parent_path().parent_path() / "bin" / "Trelvix.x64.dll";
    benchmark.Limit("bytes of the library", static_cast<long long>(std::filesystem::file_size(library)), nMostBytes);
}

const CSubject s_subject("size", MeasureLibrarySize);
} // namespace
