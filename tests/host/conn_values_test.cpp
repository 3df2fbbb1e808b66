#include "frame/conn_values.h"
#include "platform/archive.h"
#include "platform/exception.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <memory>
#include <new>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;
using C = ConnValues;

constexpr CString C::*kTexts[] = {&C::Name, &C::AnschlussAN, &C::AnschlussRI, &C::GrafikAN,
                                  &C::GrafikRI};
constexpr double C::*kNumbers[] = {&C::SeitAbstandAN, &C::SeitAbstandRI, &C::KreuzAbstand,
                                   &C::WandAbstand};
constexpr ConnVector C::*kVectors[] = {&C::PosAN, &C::OffsetAN, &C::WinkelAN,
                                       &C::PosRI, &C::OffsetRI, &C::WinkelRI};

ConnValues SomeRecord()
{
    ConnValues record;
    wchar_t letter = L'\u00E0';
    for (const auto text : kTexts) {
        record.*text = CString(2, letter++) + L"\U0001F525";
    }
    double value = -0.1;
    for (const auto number : kNumbers) {
        record.*number = value++;
    }
    for (const auto vector : kVectors) {
        for (double& number : record.*vector) {
            number = value++;
        }
    }
    record.KreuzTyp = 2;
    return record;
}

void ExpectSame(const ConnValues& a, const ConnValues& b)
{
    for (const auto text : kTexts) {
        EXPECT_EQ(a.*text, b.*text);
    }
    for (const auto number : kNumbers) {
        EXPECT_EQ(a.*number, b.*number);
    }
    for (const auto vector : kVectors) {
        EXPECT_EQ(a.*vector, b.*vector);
    }
    EXPECT_EQ(a.KreuzTyp, b.KreuzTyp);
}

/// An archive with the bytes in its frame.
CMemoryStream Framed(const Bytes& payload, std::size_t count)
{
    CMemoryStream stream;
    CArchive archive(stream, CArchive::Mode::store);
    archive.Write(payload.data(), count);
    archive.Close();
    return stream;
}

/// What a record writes between the ends of the frame.
Bytes Payload(ConnValues record)
{
    CMemoryStream stream;
    CArchive storing(stream, CArchive::Mode::store);
    record.Serialize(storing);
    storing.Close();
    CArchive loading(stream, CArchive::Mode::load);
    Bytes payload(loading.GetRemaining());
    loading.Read(payload.data(), payload.size());
    return payload;
}

void Load(const Bytes& payload, std::size_t count, ConnValues& record)
{
    CMemoryStream stream = Framed(payload, count);
    CArchive archive(stream, CArchive::Mode::load);
    record.Serialize(archive);
    EXPECT_EQ(archive.GetRemaining(), 0U);
}

TEST(ConnValuesRecord, ANewRecordHasEmptyTextsAndNumbersZero)
{
    // In memory that was in use before, so that a number left out shows.
    alignas(ConnValues) unsigned char memory[sizeof(ConnValues)];
    std::fill(std::begin(memory), std::end(memory), static_cast<unsigned char>(0xFF));
    ConnValues* const record = new (memory) ConnValues();
    for (const auto text : kTexts) {
        EXPECT_EQ(record->*text, L"");
    }
    for (const auto number : kNumbers) {
        EXPECT_EQ(record->*number, 0.0);
    }
    for (const auto vector : kVectors) {
        EXPECT_EQ(record->*vector, ConnVector{});
    }
    EXPECT_EQ(record->KreuzTyp, 0);
    record->~ConnValues();
}

TEST(ConnValuesRecord, ComesBackFromAnArchiveAndFromACopy)
{
    const ConnValues record = SomeRecord();
    const Bytes payload = Payload(record);
    ConnValues loaded;
    Load(payload, payload.size(), loaded);
    ExpectSame(loaded, record);
    ConnValues assigned;
    assigned = record;
    ExpectSame(assigned, record);
    ExpectSame(ConnValues(record), record);
}

TEST(ConnValuesRecord, ComesBackFromAnArchiveByItsClass)
{
    ConnValues record = SomeRecord();
    CMemoryStream stream;
    CArchive storing(stream, CArchive::Mode::store);
    storing.WriteObject(&record);
    storing.Close();
    CArchive loading(stream, CArchive::Mode::load);
    const std::unique_ptr<CObject> object = loading.ReadObject(ConnValues::GetThisClass());
    ASSERT_TRUE(object && object->IsKindOf(ConnValues::GetThisClass()));
    ExpectSame(static_cast<const ConnValues&>(*object), record);
}

TEST(ConnValuesRecord, AnArchiveCutAnywhereOrOfALaterVersionLeavesTheRecordAlone)
{
    Bytes payload = Payload(ConnValues());
    const ConnValues before = SomeRecord();
    ConnValues record = before;
    for (std::size_t count = 0; count < payload.size(); ++count) {
        EXPECT_THROW(Load(payload, count, record), CArchiveException) << count;
    }
    ASSERT_EQ(payload[0], 1);
    payload[0] = 2;
    EXPECT_THROW(Load(payload, payload.size(), record), CArchiveException);
    ExpectSame(record, before);
}

} // namespace
