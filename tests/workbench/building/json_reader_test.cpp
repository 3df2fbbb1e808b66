#include "workbench/building/json_reader.h"

#include "platform/encoding.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace workbench {

namespace {

std::string Nested(int levels)
{
    const auto count = static_cast<std::size_t>(levels);
    return std::string(count, '[') + std::string(count, ']');
}

} // namespace

TEST(JsonReader, FaultsAreToldWithTheirPlace)
{
    const std::tuple<std::string, const wchar_t*, std::size_t> cases[] = {
        {"", L"non è JSON valido", 0},
        {" 1", L"non è JSON valido", 2},
        {"[1", L"numero scritto male", 2},
        {"[1,", L"il testo si interrompe: manca una chiusura o una virgola", 3},
        {"[1 2]", L"manca una virgola tra due valori", 4},
        {"{\"a\":1 \"b\":2}", L"il testo si interrompe: manca una chiusura o una virgola", 8},
        {"{\"a\" 1}", L"mancano i due punti dopo il nome del campo", 6},
        {"{\"a\":,", L"non è JSON valido", 6},
        {"{\"a\":}", L"manca un valore", 6},
        {"[1,]", L"manca un valore", 4},
        {"[tru ]", L"non è JSON valido", 5},
        {"[1e999]", L"numero scritto male", 6},
        {"[-]", L"numero scritto male", 2},
        {"[\"a", L"il testo si interrompe: manca una chiusura o una virgola", 3},
        {"[\"\\u00g0\"]", L"sequenza di escape non valida", 6},
        {"[\"\xc3\"]", L"il testo non è UTF-8", 2},
        {"[\"\xed\xa0\x80\"]", L"il testo non è UTF-8", 2}, // a surrogate
        {"[] x", L"testo in più dopo la fine", 3},
        {Nested(1025), L"troppi livelli annidati", 1025},
        {std::string(1000000, '['), L"troppi livelli annidati", 1025},
    };
    for (const auto& [text, message, offset] : cases) {
        try {
            ReadJson(text);
            ADD_FAILURE() << text << " was read";
        } catch (const CJsonException& error) {
            EXPECT_EQ(error.GetErrorMessage(), message) << text.substr(0, 20);
            EXPECT_EQ(error.GetOffset(), offset) << text.substr(0, 20);
        }
    }
    EXPECT_NO_THROW(ReadJson(Nested(1024)));
}

TEST(JsonReader, EveryValueIsKeptAsItStands)
{
    const CJsonValue value = ReadJson("\xef\xbb\xbf[-0.5e1, 9007199254740993, 1e300, null, true,"
                                      "\"\\q\\/\\n\\u00e8\xc3\xa8\\u0000\", \"\\ud83d\","
                                      "\"\\ud83d\\ude00\xf0\x9f\x98\x80\"]");
    const CJsonList& list = *value.GetList();
    ASSERT_EQ(list.size(), 8U);
    EXPECT_EQ(list[0].AsDouble(), -5.0);
    EXPECT_EQ(*list[1].GetInteger(), 9007199254740993);
    EXPECT_EQ(*list[2].GetDouble(), 1e300);
    EXPECT_TRUE(list[3].IsNull());
    EXPECT_TRUE(*list[4].GetTruth());
    EXPECT_EQ(*list[5].GetText(), CString(L"q/\nèè\0", 6));
    EXPECT_EQ(*list[6].GetText(), CString(1, wchar_t(0xd83d)));
    EXPECT_EQ(*list[7].GetText(), WideFromUtf8("\xf0\x9f\x98\x80\xf0\x9f\x98\x80"));
}

TEST(JsonReader, OfFieldsOfOneNameTheLastCounts)
{
    const CJsonValue value = ReadJson(R"({"b": 1, "a": 2, "b": 3, "": 4, "b": 5})");
    const CJsonObject& object = *value.GetObject();
    EXPECT_EQ(object.Find("b")->AsDouble(), 5.0);
    EXPECT_EQ(object.Find("c"), nullptr);
    EXPECT_EQ(object.end() - object.begin(), 3);
    EXPECT_EQ(object.begin()->first, L"") << "the order is that of the names";
}

} // namespace workbench
