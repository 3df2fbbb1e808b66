#include "platform/exception.h"
#include "tests/host_defaults/prefs/filled_records.h"
#include "tests/src/platform/archived.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <new>

namespace {

using Row = HK_VDI3805_TYP;
using U = HK_DATEN_VDI3805_UEBERGABE;
using C = ConnValues;

template <class A, class B>
void ExpectSame(A&& a, B&& b)
{
    const auto expectSame = [](const auto& fieldsOfA, const auto& fieldsOfB) {
        for (std::size_t i = 0; i < fieldsOfA.size(); ++i) {
            EXPECT_EQ(*fieldsOfA[i], *fieldsOfB[i]) << i;
        }
    };
    const Fields ofA = FieldsOf(a);
    const Fields ofB = FieldsOf(b);
    expectSame(ofA.texts, ofB.texts);
    expectSame(ofA.numbers, ofB.numbers);
    expectSame(ofA.counts, ofB.counts);
    expectSame(ofA.letters, ofB.letters);
}

/// Calls the test with a filled record of each kind.
template <class TEST>
void ForEachKind(TEST test)
{
    test(Filled<U>());
    test(Filled<C>());
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

TEST(Records, ANewConnectionHasEmptyTextsAndNumbersZero)
{
    // In memory that was in use before, so that a number left out shows.
    alignas(C) unsigned char memory[sizeof(C)];
    std::fill(std::begin(memory), std::end(memory), static_cast<unsigned char>(0xFF));
    C* const record = new (memory) C();
    const Fields fields = FieldsOf(*record);
    const auto isEmpty = [](const auto* field) {
        return *field == std::decay_t<decltype(*field)>();
    };
    EXPECT_TRUE(std::ranges::all_of(fields.texts, isEmpty));
    EXPECT_TRUE(std::ranges::all_of(fields.numbers, isEmpty));
    EXPECT_TRUE(std::ranges::all_of(fields.counts, isEmpty));
    record->~C();
}

TEST(Records, ACopiedRowKeepsItsOwnLinks)
{
    Row before;
    Row after;
    Row source = Filled<Row>();
    source.pNext = &after;
    source.pPrev = &before;

    Row assigned;
    assigned.pNext = &before;
    assigned.pPrev = &after;
    assigned = source;
    ExpectSame(assigned, source);
    EXPECT_EQ(assigned.pNext, &before);
    EXPECT_EQ(assigned.pPrev, &after);

    Row copied(source);
    ExpectSame(copied, source);
    EXPECT_EQ(copied.pNext, nullptr);
    EXPECT_EQ(copied.pPrev, nullptr);
}

template <class RECORD>
RECORD ReadBackByClass(RECORD record)
{
    CMemoryStream stream;
    CArchive storing(stream, CArchive::Mode::store);
    storing.WriteObject(&record);
    storing.Close();
    CArchive loading(stream, CArchive::Mode::load);
    const std::unique_ptr<CObject> object = loading.ReadObject(RECORD::GetThisClass());
    if (!object || !object->IsKindOf(RECORD::GetThisClass())) {
        ADD_FAILURE() << "another class";
        return {};
    }
    return static_cast<const RECORD&>(*object);
}

TEST(Records, ObjectsComeBackFromAnArchiveByTheirClass)
{
    ExpectSame(ReadBackByClass(Filled<Row>()), Filled<Row>());
    ExpectSame(ReadBackByClass(Filled<C>()), Filled<C>());
}

TEST(Records, RecordsComeBackFromAnArchiveAndFromACopy)
{
    ForEachKind([](auto record) {
        decltype(record) loaded;
        EXPECT_EQ(Load(Stored(record), loaded), 0U);
        ExpectSame(loaded, record);
        ExpectSame(decltype(record)(record), record);
        decltype(record) assigned;
        assigned = record;
        ExpectSame(assigned, record);
    });
    U loaded;
    Row own;
    loaded.Typ.pNext = &own;
    Load(Stored(U()), loaded);
    EXPECT_EQ(loaded.Typ.pNext, &own);
}

TEST(Records, ASoundArchiveOfHalfARecordOrALaterVersionLeavesTheRecordAlone)
{
    ForEachKind([](auto before) {
        auto record = before;
        ArchiveBytes payload = Payload(decltype(record)());
        for (ArchiveBytes half; half.size() < payload.size();
             half.push_back(payload[half.size()])) {
            EXPECT_THROW(Load(Framed(half), record), CArchiveException) << half.size();
        }
        ASSERT_EQ(payload[0], 1);
        payload[0] = 2;
        try {
            Load(Framed(payload), record);
            ADD_FAILURE() << "accepted";
        } catch (const CArchiveException& exception) {
            EXPECT_EQ(exception.GetCause(), CArchiveException::Cause::badSchema);
        }
        ExpectSame(record, before);
    });
}

} // namespace
