#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// What is asked of a comparison. An absent member asks for nothing.
struct CGoal
{
    std::optional<double> mostRatio = {};        ///< of our time to the baseline's
    std::optional<double> mostMicroseconds = {}; ///< of our time alone
};

/// Takes measures and prints one line for each, with what was asked for and whether it was reached.
class CBenchmark
{
public:
    /// Does the work once and answers the microseconds of the part that counts.
    using Sample = std::function<double()>;

    static void PrintHeading();

    /// Takes turns between ours and a baseline that does the same work by plain calls of the platform, after one turn
    /// of each that doesn't count, and prints the medians and their ratio.
    void Compare(const std::string& strName, const CGoal& goal, const Sample& ours, const Sample& baseline);

    /// Prints a count that must be exactly the expected one.
    void Count(const std::string& strName, long long nOurs, long long nExpected);

    /// Prints a size or number that must not be more than a limit.
    void Limit(const std::string& strName, long long nOurs, long long nMost);

    bool HasMissedGoal() const { return m_bHasMissedGoal; }

private:
    void PrintRow(const std::string& strName, const std::string& strFigures, const std::string& strGoal, bool bReached);

    bool m_bHasMissedGoal = false;
};

/// A group of measures that can be asked for by name. A source of this folder defines one for each of its subjects, as
/// an object with static storage; nothing else is needed to have it measured.
class CSubject
{
public:
    using Measure = void (*)(CBenchmark& benchmark);

    CSubject(const char* pszName, Measure pfnMeasure);

    /// All subjects of the program.
    static std::vector<CSubject>& GetAll();

    const char* GetName() const { return m_pszName; }
    void Run(CBenchmark& benchmark) const { m_pfnMeasure(benchmark); }

private:
    const char* m_pszName;
    Measure m_pfnMeasure;
};

/// The microseconds that the action takes.
double TimeOf(const std::function<void()>& action);

/// The microseconds that the action takes on average of so many times in a row.
double TimeOfEach(int nTimes, const std::function<void()>& action);
