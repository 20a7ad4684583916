// trelvix_benchmark [SUBJECT...]: measures all subjects, or those that are named. A missed goal is told by its line and
// at the end; it is no error.

#include "tests/benchmark/Benchmark.h"

#include <windows.h>
#include <ole2.h>

#include <algorithm>
#include <cstdio>
#include <span>
#include <string_view>

namespace
{
bool IsWanted(const CSubject& subject, std::span<char*> names)
{
    return names.empty() || std::ranges::find(names, std::string_view(subject.GetName())) != names.end();
}
} // namespace

int main(int argc, char* argv[])
{
    OleInitialize(nullptr);
    CBenchmark benchmark;
    CBenchmark::PrintHeading();
    for (const CSubject& subject : CSubject::GetAll())
    {
        if (IsWanted(subject, std::span(argv + 1, argc - 1)))
            subject.Run(benchmark);
    }
    std::puts(benchmark.HasMissedGoal() ? "Not every goal was reached." : "Every goal was reached.");
    OleUninitialize();
    return 0;
}
