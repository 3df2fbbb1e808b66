#include "platform/array.h"

#include <gtest/gtest.h>

namespace {

TEST(Array, EveryAccessOutsideRaisesInvalidArgument)
{
    CStringArray array;
    EXPECT_THROW(array[0], CInvalidArgException);
    array.Add(L"a");
    array.Add(L"b");
    EXPECT_EQ(array[1], L"b");
    for (const int index : {-1, 2, 1000}) {
        EXPECT_THROW(array[index], CInvalidArgException);
        EXPECT_THROW(array.GetAt(index), CInvalidArgException);
        EXPECT_THROW(array.SetAt(index, L"x"), CInvalidArgException);
        EXPECT_THROW(array.RemoveAt(index), CInvalidArgException);
    }
    EXPECT_THROW(array.InsertAt(3, L"x"), CInvalidArgException);
    EXPECT_THROW(array.RemoveAt(1, 2), CInvalidArgException);
    EXPECT_THROW(array.SetSize(-1), CInvalidArgException);
    EXPECT_EQ(array.GetSize(), 2);
}

TEST(Array, GrowsAndShrinksInPlace)
{
    CArray<int> array;
    EXPECT_EQ(array.Add(1), 0);
    array.InsertAt(1, 3);
    array.InsertAt(1, 2);
    EXPECT_EQ(array.Append(array), 3) << "appending an array to itself doubles it";
    array.RemoveAt(0, 2);
    array.SetSize(5);
    const int expected[] = {3, 1, 2, 3, 0};
    EXPECT_TRUE(std::equal(array.begin(), array.end(), std::begin(expected), std::end(expected)));
}

} // namespace
