#include "tests/benchmark/Benchmark.h"

#include <algorithm>
#include <chrono>
#include <cstdarg>
#include <cstdio>

namespace
{
constexpr int nRounds = 25;

double MedianOf(std::vector<double> samples)
{
    const auto middle = samples.begin() + samples.size() / 2;
    std::nth_element(samples.begin(), middle, samples.end());
    return *middle;
}

[[gnu::format(gnu_printf, 1, 2)]] std::string Format(const char* pszFormat, ...)
{
    char szText[100];
    va_list arguments;
    va_start(arguments, pszFormat);
    std::vsnprintf(szText, sizeof szText, pszFormat, arguments);
    va_end(arguments);
    return szText;
}

std::string Describe(const CGoal& goal)
{
    std::string strGoal = goal.mostRatio ? Format("ratio <= %.2f", *goal.mostRatio) : "";
    if (goal.mostMicroseconds)
        strGoal += Format("%s<= %.0f us", strGoal.empty() ? "" : ", ", *goal.mostMicroseconds);
    return strGoal;
}

bool IsReached(const CGoal& goal, double nMicroseconds, double nRatio)
{
    return nRatio <= goal.mostRatio.value_or(nRatio) && nMicroseconds <= goal.mostMicroseconds.value_or(nMicroseconds);
}
} // namespace

void CBenchmark::PrintHeading()
{
    std::printf("%-52s %12s %12s %7s  %-26s %s\n", "measure", "ours (us)", "plain (us)", "ratio", "goal", "verdict");
}

void CBenchmark::Compare(const std::string& strName, const CGoal& goal, const Sample& ours, const Sample& baseline)
{
    std::vector<double> ourSamples;
    std::vector<double> baselineSamples;
    std::vector<double> ratios;
    baseline();
    ours();
    for (int n = 0; n < nRounds; ++n)
    {
        baselineSamples.push_back(baseline());
        ourSamples.push_back(ours());
        ratios.push_back(ourSamples.back() / baselineSamples.back());
    }
    const double nOurs = MedianOf(ourSamples);
    const double nBaseline = MedianOf(baselineSamples);
    const double nRatio = MedianOf(ratios);
    PrintRow(strName, Format("%12.2f %12.2f %7.2f", nOurs, nBaseline, nRatio), Describe(goal),
             IsReached(goal, nOurs, nRatio));
}

void CBenchmark::Count(const std::string& strName, long long nOurs, long long nExpected)
{
    PrintRow(strName, Format("%12lld", nOurs), Format("exactly %lld", nExpected), nOurs == nExpected);
}

void CBenchmark::Limit(const std::string& strName, long long nOurs, long long nMost)
{
    PrintRow(strName, Format("%12lld", nOurs), Format("<= %lld", nMost), nOurs <= nMost);
}

void CBenchmark::PrintRow(const std::string& strName, const std::string& strFigures, const std::string& strGoal,
                          bool bReached)
{
    m_bHasMissedGoal |= !bReached;
    std::printf("%-52s %-33s  %-26s %s\n", strName.c_str(), strFigures.c_str(), strGoal.c_str(),
                bReached ? "ok" : "MISSED");
    std::fflush(stdout);
}

CSubject::CSubject(const char* pszName, Measure pfnMeasure) : m_pszName(pszName), m_pfnMeasure(pfnMeasure)
{
    GetAll().push_back(*this);
}

std::vector<CSubject>& CSubject::GetAll()
{
    static std::vector<CSubject> subjects;
    return subjects;
}

double TimeOf(const std::function<void()>& action)
{
    return TimeOfEach(1, action);
}

double TimeOfEach(int nTimes, const std::function<void()>& action)
{
    using namespace std::chrono;
    const auto start = steady_clock::now();
    for (int n = 0; n < nTimes; ++n)
        action();
    return duration<double, std::micro>(steady_clock::now() - start).count() / nTimes;
}
