// Linked into a test program in the place of the window's own table: fourteen items of the test's instead of the real
// ones.

#include "band/ButtonTable.h"
#include "tests/fakes/FakeButton.h"

#include <utility>

namespace
{
template <int Index>
std::unique_ptr<CObject> CreateFakeButton()
{
    return CFakeButtons::Get()[Index].bCanBeCreated ? std::make_unique<CFakeButton>(Index) : nullptr;
}

template <int Index>
constexpr CRuntimeClass FakeButtonClass = {"CFakeButton", &CreateFakeButton<Index>, RUNTIME_CLASS(CTrelvixButton)};

template <int... Indices>
std::array<const CRuntimeClass*, ButtonCount> MakeTable(std::integer_sequence<int, Indices...>)
{
    return {&FakeButtonClass<Indices>...};
}
} // namespace

const std::array<const CRuntimeClass*, ButtonCount>& GetButtonTable()
{
    static const auto table = MakeTable(std::make_integer_sequence<int, ButtonCount>());
    return table;
}

const CRuntimeClass* GetSearchBoxClass()
{
    return GetButtonTable()[SearchGoogleIndex];
}
