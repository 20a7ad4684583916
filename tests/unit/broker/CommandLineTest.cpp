#include "broker/CommandLine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
std::optional<BrokerOptions> Parse(std::vector<std::wstring> arguments)
{
    std::vector<wchar_t*> pointers;
    for (std::wstring& argument : arguments)
        pointers.push_back(argument.data());
    return ParseCommandLine(pointers);
}
} // namespace

TEST(ParseCommandLine, ServesForFiveMinutesWithoutASwitch)
{
    EXPECT_EQ(BrokerTask::Serve, Parse({})->task);
    EXPECT_EQ(300u, Parse({})->lingerSeconds);
}

TEST(ParseCommandLine, ServesWhenTheSystemStartsIt)
{
    EXPECT_EQ(BrokerTask::Serve, Parse({L"-Embedding"})->task);
    EXPECT_EQ(BrokerTask::Serve, Parse({L"/Embedding"})->task);
}

TEST(ParseCommandLine, TakesItsSwitchesInAnyCaseAndWithBothSigns)
{
    for (const wchar_t* argument : {L"/RegServer", L"-regserver", L"/REGSERVER"})
        EXPECT_EQ(BrokerTask::Register, Parse({argument})->task);
    for (const wchar_t* argument : {L"/UnregServer", L"-unregserver", L"/UNREGSERVER"})
        EXPECT_EQ(BrokerTask::Unregister, Parse({argument})->task);
}

TEST(ParseCommandLine, TakesAnotherTimeToStay)
{
    EXPECT_EQ(2u, Parse({L"/Linger:2", L"-Embedding"})->lingerSeconds);
    EXPECT_EQ(0u, Parse({L"-linger:0"})->lingerSeconds);
    EXPECT_EQ(999999u, Parse({L"/Linger:999999"})->lingerSeconds);
}

TEST(ParseCommandLine, RefusesWhatItDoesNotKnow)
{
    for (const wchar_t* argument : {L"", L"/", L"regserver", L"/RegServer2", L"--RegServer", L"/Linger", L"/Linger:",
                                    L"/Linger:x", L"/Linger:-1", L"/Linger:1000000", L"C:\\file"})
        EXPECT_FALSE(Parse({argument})) << testing::PrintToString(argument);
    EXPECT_FALSE(Parse({L"/RegServer", L"/Unknown"}));
}
