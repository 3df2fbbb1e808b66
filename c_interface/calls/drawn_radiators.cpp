#include "c_interface/calls/drawn_radiators.h"

#include "c_interface/calls/guarded_call.h"
#include "c_interface/records/records.h"
#include "c_interface/records/sized_record.h"
#include "c_interface/records/texts.h"
#include "platform/format.h"

#include <memory>
#include <utility>

namespace c_interface {

namespace {

constexpr wchar_t kFlowPoint[] = L"H_VL_PUNKT";
constexpr wchar_t kReturnPoint[] = L"H_RL_PUNKT";

void AddAttribute(TGA_LIST& node, const CString& name, const CString& value)
{
    auto attribute = std::make_unique<ALIST>();
    attribute->Name = name;
    attribute->Wert = value;
    attribute->pNext = node.Attribute;
    node.Attribute = attribute.release();
}

CString Attribute(const TGA_LIST& node, const CString& name)
{
    const ALIST* attribute = node.Attribute;
    while (attribute != nullptr && attribute->Name != name) {
        attribute = attribute->pNext;
    }
    return attribute == nullptr ? CString() : attribute->Wert;
}

void Fill(TGA_LIST& node, const radsel_drawn& drawn)
{
    for (std::size_t axis = 0; axis < 3; ++axis) {
        for (std::size_t i = 0; i < 3; ++i) {
            node.Trafo.Achsen[axis][i] = drawn.axes[axis][i];
        }
        node.Trafo.Ursprung[axis] = drawn.origin[axis];
    }
    AddAttribute(node, L"H_LAENGE", FormatExact(drawn.length));
    AddAttribute(node, L"H_TIEFE", FormatExact(drawn.depth));
    AddAttribute(node, L"H_HOEHE", FormatExact(drawn.height));
    for (const auto& [name, text] : {std::pair(kFlowPoint, ReadField(drawn.flow_text)),
                                     std::pair(kReturnPoint, ReadField(drawn.return_text))}) {
        if (!text.empty()) {
            AddAttribute(node, name, text);
        }
    }
}

} // namespace

// The attributes that were made go with the object, should a later record be damaged.
CDrawnRadiators::CDrawnRadiators(radsel_drawn* drawn, std::size_t count) : CDrawnRadiators()
{
    if (count == 0) {
        return;
    }
    Require(drawn, "drawn");
    const std::size_t size = SizeOf(drawn);
    for (std::size_t i = 0; i < count; ++i) {
        m_records.push_back(
            reinterpret_cast<radsel_drawn*>(reinterpret_cast<char*>(drawn) + i * size));
        if (SizeOf(m_records.back()) != size) {
            throw CCallFault(RADSEL_BAD_ARGUMENT, "Drawn radiator " + std::to_string(i) +
                                                      " has not the first one's size.");
        }
        m_answers.push_back(Load(m_records.back(), DefaultDrawn()));
    }
    m_nodes.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        Fill(m_nodes[i], m_answers[i]);
        m_nodes[i].pNext = i + 1 < count ? &m_nodes[i + 1] : nullptr;
    }
}

CDrawnRadiators::~CDrawnRadiators()
{
    for (TGA_LIST& node : m_nodes) {
        while (ALIST* const attribute = node.Attribute) {
            node.Attribute = attribute->pNext;
            delete attribute;
        }
    }
}

void CDrawnRadiators::Prepare()
{
    for (std::size_t i = 0; i < m_nodes.size(); ++i) {
        WriteField(m_answers[i].flow_text, Attribute(m_nodes[i], kFlowPoint));
        WriteField(m_answers[i].return_text, Attribute(m_nodes[i], kReturnPoint));
    }
}

void CDrawnRadiators::Give()
{
    for (std::size_t i = 0; i < m_records.size(); ++i) {
        Store(m_records[i], m_answers[i]);
    }
}

} // namespace c_interface
