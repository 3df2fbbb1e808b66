#include "frame/handover.h"
#include "platform/exception.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;
using Cause = CArchiveException::Cause;

using Daten = HK_DATEN_VDI3805;

constexpr double Daten::*kDataNumbers[] = {
    &Daten::Hoehe,    &Daten::Tiefe,    &Daten::Laenge,   &Daten::LeistungEN442,
    &Daten::Leistung, &Daten::Elemente, &Daten::Exponent, &Daten::Inhalt};

Daten SomeData(double value)
{
    Daten data;
    for (const auto number : kDataNumbers) {
        data.*number = value++;
    }
    data.Bauart = L'S';
    return data;
}

void ExpectSame(const Daten& a, const Daten& b)
{
    for (const auto number : kDataNumbers) {
        EXPECT_EQ(a.*number, b.*number);
    }
    EXPECT_EQ(a.Bauart, b.Bauart);
}

using U = HK_DATEN_VDI3805_UEBERGABE;

constexpr CString U::*kTexts[] = {&U::Hersteller, &U::Art, &U::Produkt, &U::TypName, &U::Raumname};
constexpr double U::*kNumbers[] = {
    &U::LeistungMin,    &U::LeistungMax,       &U::Leistung,   &U::Toleranz,
    &U::LaengeMin,      &U::LaengeMax,         &U::HoeheMin,   &U::HoeheMax,
    &U::TiefeMin,       &U::TiefeMax,          &U::Vorlauf,    &U::Ruecklauf,
    &U::Raumtemperatur, &U::Umrechnungsfaktor, &U::RaumBedarf, &U::RaumGedeckt};

U SomeRecord()
{
    U record;
    wchar_t letter = L'\u00E4';
    for (const auto text : kTexts) {
        record.*text = CString(2, letter++) + L"\U0001F525";
    }
    double value = 0.1;
    for (const auto number : kNumbers) {
        record.*number = value++;
    }
    record.Typ.Name = L"22-600";
    record.Typ.Daten = SomeData(100.0);
    record.NeuLesen = -5;
    record.Daten = SomeData(200.0);
    return record;
}

void ExpectSame(const U& a, const U& b)
{
    for (const auto text : kTexts) {
        EXPECT_EQ(a.*text, b.*text);
    }
    for (const auto number : kNumbers) {
        EXPECT_EQ(a.*number, b.*number);
    }
    EXPECT_EQ(a.Typ.Name, b.Typ.Name);
    ExpectSame(a.Typ.Daten, b.Typ.Daten);
    EXPECT_EQ(a.NeuLesen, b.NeuLesen);
    ExpectSame(a.Daten, b.Daten);
}

Bytes Stored(U record)
{
    CMemoryStream stream;
    CArchive archive(stream, CArchive::Mode::store);
    record.Serialize(archive);
    archive.Close();
    return stream.GetBytes();
}

void Load(const Bytes& bytes, U& record)
{
    CMemoryStream stream(bytes);
    CArchive archive(stream, CArchive::Mode::load);
    record.Serialize(archive);
    EXPECT_EQ(archive.GetRemaining(), 0U);
}

/// What an archive holds within its frame, and such an archive around other bytes.
Bytes Payload(const Bytes& bytes)
{
    CMemoryStream stream(bytes);
    CArchive archive(stream, CArchive::Mode::load);
    Bytes payload(archive.GetRemaining());
    archive.Read(payload.data(), payload.size());
    return payload;
}

Bytes Framed(const Bytes& payload, std::size_t count)
{
    CMemoryStream stream;
    CArchive archive(stream, CArchive::Mode::store);
    archive.Write(payload.data(), count);
    archive.Close();
    return stream.GetBytes();
}

TEST(Records, ANewHandOverRecordAsksForDerivedBounds)
{
    const U record;
    EXPECT_EQ(record.LeistungMin, -1.0);
    EXPECT_EQ(record.LeistungMax, -1.0);
    EXPECT_EQ(record.Toleranz, 0.1);
    EXPECT_EQ(record.Umrechnungsfaktor, 1.0);
    EXPECT_EQ(record.NeuLesen, 0);
    EXPECT_EQ(record.Daten.Bauart, L' ');
    EXPECT_EQ(record.Daten.Leistung, 0.0);
    EXPECT_EQ(record.Typ.pNext, nullptr);
}

TEST(Records, ACopiedRowKeepsItsOwnLinks)
{
    HK_VDI3805_TYP before;
    HK_VDI3805_TYP after;
    HK_VDI3805_TYP source;
    source.Name = L"22-600";
    source.Daten = SomeData(1.0);
    source.pNext = &after;
    source.pPrev = &before;

    HK_VDI3805_TYP assigned;
    assigned.pNext = &before;
    assigned.pPrev = &after;
    assigned = source;
    EXPECT_EQ(assigned.Name, source.Name);
    ExpectSame(assigned.Daten, source.Daten);
    EXPECT_EQ(assigned.pNext, &before);
    EXPECT_EQ(assigned.pPrev, &after);

    const HK_VDI3805_TYP copied(source);
    ExpectSame(copied.Daten, source.Daten);
    EXPECT_EQ(copied.pNext, nullptr);
    EXPECT_EQ(copied.pPrev, nullptr);
}

TEST(Records, ARowComesBackFromAnArchiveByItsClass)
{
    HK_VDI3805_TYP row;
    row.Name = L"22-600";
    row.Daten = SomeData(1.0);
    row.Daten.Bauart = L'\U0001F525';
    row.pNext = &row;
    CMemoryStream stream;
    CArchive storing(stream, CArchive::Mode::store);
    storing.WriteObject(&row);
    storing.Close();

    CArchive loading(stream, CArchive::Mode::load);
    const std::unique_ptr<CObject> object = loading.ReadObject(HK_VDI3805_TYP::GetThisClass());
    ASSERT_TRUE(object);
    ASSERT_TRUE(object->IsKindOf(HK_VDI3805_TYP::GetThisClass()));
    const auto& loaded = static_cast<const HK_VDI3805_TYP&>(*object);
    EXPECT_EQ(loaded.Name, row.Name);
    ExpectSame(loaded.Daten, row.Daten);
    EXPECT_EQ(loaded.pNext, nullptr);
}

TEST(Records, TheHandOverRecordComesBackFromAnArchive)
{
    const U record = SomeRecord();
    U loaded;
    HK_VDI3805_TYP own;
    loaded.Typ.pNext = &own;
    Load(Stored(record), loaded);
    ExpectSame(loaded, record);
    EXPECT_EQ(loaded.Typ.pNext, &own);
    ExpectSame(U(record), record);
}

TEST(Records, AnArchiveCutAnywhereIsRefusedAndLeavesTheRecordAlone)
{
    const Bytes bytes = Stored(SomeRecord());
    U record;
    for (std::size_t count = 0; count < bytes.size(); ++count) {
        const Bytes cut(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count));
        EXPECT_THROW(Load(cut, record), CArchiveException) << count;
    }
    // A whole frame around a record that is not.
    const Bytes payload = Payload(bytes);
    for (std::size_t count = 0; count < payload.size(); ++count) {
        EXPECT_THROW(Load(Framed(payload, count), record), CArchiveException) << count;
    }
    ExpectSame(record, U());
}

TEST(Records, ALaterVersionOfTheHandOverRecordIsRefused)
{
    Bytes payload = Payload(Stored(SomeRecord()));
    ASSERT_EQ(payload[0], 1);
    payload[0] = 2;
    U record;
    try {
        Load(Framed(payload, payload.size()), record);
        FAIL() << "accepted";
    } catch (const CArchiveException& exception) {
        EXPECT_EQ(exception.GetCause(), Cause::badSchema);
    }
    ExpectSame(record, U());
}

} // namespace
