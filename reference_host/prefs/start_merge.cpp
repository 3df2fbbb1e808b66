#include "reference_host/prefs/start_merge.h"

#include "platform/archive.h"

#include <cstdint>
#include <vector>

namespace reference_host {

namespace {

/// A record is what is kept of it.
template <class Record>
std::vector<std::uint8_t> KeptForm(Record record)
{
    CMemoryStream bytes;
    CArchive archive(bytes, CArchive::Mode::store);
    record.Serialize(archive);
    archive.Close();
    return bytes.GetBytes();
}

template <class Value>
bool AreSame(const Value& a, const Value& b)
{
    if constexpr (requires(Value value, CArchive & archive) { value.Serialize(archive); }) {
        return KeptForm(a) == KeptForm(b);
    } else {
        return a == b;
    }
}

} // namespace

VDI6030START MergeStart(const VDI6030START& known, const VDI6030START& wanted,
                        const VDI6030START& stored)
{
    VDI6030START merged = wanted;
    const auto keepUnlessChanged = [&](auto VDI6030START::*... fields) {
        if ((AreSame(known.*fields, wanted.*fields) && ...)) {
            ((merged.*fields = stored.*fields), ...);
        }
    };
    using Start = VDI6030START;
    keepUnlessChanged(&Start::Hersteller, &Start::Art, &Start::Produkt);
    keepUnlessChanged(&Start::SystemName, &Start::SystemVorlauf, &Start::SystemRuecklauf);
    keepUnlessChanged(&Start::AbstandWand, &Start::AbstandBoden);
    keepUnlessChanged(&Start::Anschluss, &Start::VentilVorlauf, &Start::VentilRuecklauf);
    return merged;
}

} // namespace reference_host
