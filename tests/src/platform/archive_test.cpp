#include "platform/archive.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

namespace {

using Cause = CArchiveException::Cause;

/// An object that nests another one, so that lengths and versions are kept apart.
class CSample : public CObject
{
public:
    static const CRuntimeClass& GetThisClass()
    {
        static const CRuntimeClass description{"CSample", 3, &CObject::GetThisClass(), [] {
                                                   return std::unique_ptr<CObject>(new CSample);
                                               }};
        return description;
    }
    const CRuntimeClass& GetRuntimeClass() const override { return GetThisClass(); }

    void Serialize(CArchive& archive) override
    {
        if (archive.IsStoring()) {
            archive << text << number;
            archive.WriteObject(inner.get());
        } else {
            schema = archive.GetObjectSchema();
            archive >> text >> number;
            std::unique_ptr<CObject> read = archive.ReadObject(GetThisClass());
            inner.reset(static_cast<CSample*>(read.release()));
        }
        values.Serialize(archive);
    }

    CString text;
    double number = 0.0;
    unsigned schema = 0;
    std::unique_ptr<CSample> inner;
    OCArray<double> values;
};

CSample MakeSample()
{
    CSample sample;
    sample.text = L"Tipo 22 ü \U0001F600";
    sample.number = 0.1;
    sample.values.Add(1.25);
    sample.values.Add(-3.0);
    sample.inner = std::make_unique<CSample>();
    sample.inner->text = L"innen";
    return sample;
}

std::vector<std::uint8_t> Store(const std::function<void(CArchive&)>& write)
{
    CMemoryStream stream;
    CArchive archive(stream, CArchive::Mode::store);
    write(archive);
    archive.Close();
    return stream.GetBytes();
}

std::vector<std::uint8_t> StoreSample()
{
    CSample sample = MakeSample();
    return Store([&](CArchive& archive) { archive.WriteObject(&sample); });
}

std::unique_ptr<CObject> LoadSample(std::vector<std::uint8_t> bytes)
{
    CMemoryStream stream(std::move(bytes));
    CArchive archive(stream, CArchive::Mode::load);
    return archive.ReadObject(CSample::GetThisClass());
}

std::optional<Cause> FailureOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const CArchiveException& exception) {
        return exception.GetCause();
    }
    return std::nullopt;
}

TEST(Archive, AnObjectComesBackAsStored)
{
    const std::unique_ptr<CObject> object = LoadSample(StoreSample());
    ASSERT_TRUE(object->IsKindOf(CSample::GetThisClass()));
    const auto& sample = static_cast<const CSample&>(*object);
    EXPECT_EQ(sample.text, MakeSample().text);
    EXPECT_EQ(sample.number, 0.1);
    EXPECT_TRUE(sample.values == MakeSample().values);
    EXPECT_EQ(sample.schema, 3U);
    ASSERT_NE(sample.inner, nullptr);
    EXPECT_EQ(sample.inner->text, L"innen");
    EXPECT_EQ(sample.inner->inner, nullptr);
}

TEST(Archive, NothingIsWrittenWithoutClose)
{
    CMemoryStream stream;
    {
        CArchive archive(stream, CArchive::Mode::store);
        archive << 1;
    }
    EXPECT_EQ(stream.GetLength(), 0U);
}

TEST(Archive, EveryCutAndEveryChangedByteIsFound)
{
    const std::vector<std::uint8_t> whole = StoreSample();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::vector<std::uint8_t> cut(whole.begin(),
                                            whole.begin() + static_cast<std::ptrdiff_t>(length));
        EXPECT_TRUE(FailureOf([&] { LoadSample(cut); })) << "cut to " << length;
    }
    for (std::size_t place = 0; place < whole.size(); ++place) {
        std::vector<std::uint8_t> changed = whole;
        changed[place] ^= 0x41U;
        EXPECT_TRUE(FailureOf([&] { LoadSample(changed); })) << "changed at " << place;
    }
}

TEST(Archive, ACountBeyondTheRestIsRefusedBeforeAnyAllocation)
{
    const auto bytes = Store([](CArchive& archive) { archive.WriteCount(0x7FFFFFF0U); });
    for (const bool asText : {false, true}) {
        CMemoryStream stream(bytes);
        CArchive archive(stream, CArchive::Mode::load);
        CString text;
        OCArray<double> values;
        const auto failure =
            FailureOf([&] { asText ? void(archive >> text) : values.Serialize(archive); });
        EXPECT_EQ(failure, Cause::damaged);
    }
}

TEST(Archive, ForeignAndLaterObjectsAreToldApart)
{
    static const CRuntimeClass other{"COther", 3, nullptr, nullptr};
    static const CRuntimeClass older{"CSample", 2, nullptr,
                                     CSample::GetThisClass().m_pfnCreateObject};
    const auto load = [](const CRuntimeClass& expected) {
        return FailureOf([&] {
            CMemoryStream stream(StoreSample());
            CArchive archive(stream, CArchive::Mode::load);
            archive.ReadObject(expected);
        });
    };
    EXPECT_EQ(load(other), Cause::badClass);
    EXPECT_EQ(load(older), Cause::badSchema);
}

} // namespace
