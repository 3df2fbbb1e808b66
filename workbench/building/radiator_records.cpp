#include "workbench/building/radiator_records.h"

#include "platform/format.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace workbench {

namespace {

LM_TRAFO TrafoOf(const CPlanRadiator& radiator)
{
    const double turn = (radiator.dWinkel + 180.0) * std::numbers::pi / 180.0;
    LM_TRAFO trafo;
    trafo.Achsen = {
        {{std::cos(turn), std::sin(turn), 0.0}, {-std::sin(turn), std::cos(turn), 0.0}, {0, 0, 1}}};
    trafo.Ursprung = {radiator.dX, radiator.dY, radiator.dUeberBoden + radiator.dHoehe / 2.0};
    return trafo;
}

ALIST* AttributesOf(const CPlanRadiator& radiator)
{
    const std::pair<const wchar_t*, CString> attributes[] = {
        {L"H_VL_PUNKT", radiator.strVorlauf},         {L"H_RL_PUNKT", radiator.strRuecklauf},
        {L"H_LAENGE", FormatExact(radiator.dLaenge)}, {L"H_TIEFE", FormatExact(radiator.dTiefe)},
        {L"H_HOEHE", FormatExact(radiator.dHoehe)},
    };
    ALIST* head = nullptr;
    ALIST** end = &head;
    for (const auto& [name, value] : attributes) {
        *end = new ALIST{name, value, nullptr};
        end = &(*end)->pNext;
    }
    return head;
}

void DeleteAttributes(ALIST* attribute)
{
    while (attribute) {
        ALIST* const next = attribute->pNext;
        delete attribute;
        attribute = next;
    }
}

} // namespace

CRadiatorRecords::~CRadiatorRecords()
{
    for (const TGA_LIST& record : m_records) {
        DeleteAttributes(record.Attribute);
    }
}

void CRadiatorRecords::Add(const CPlanRadiator& radiator)
{
    TGA_LIST& record = m_records.emplace_back();
    record.Trafo = TrafoOf(radiator);
    record.Attribute = AttributesOf(radiator);
    if (m_records.size() > 1) {
        m_records[m_records.size() - 2].pNext = &record;
    }
}

CString AttributeOf(const TGA_LIST& record, const CString& name)
{
    for (const ALIST* attribute = record.Attribute; attribute != nullptr;
         attribute = attribute->pNext) {
        if (attribute->Name == name) {
            return attribute->Wert;
        }
    }
    return {};
}

} // namespace workbench
