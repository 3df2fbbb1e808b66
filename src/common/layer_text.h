#pragma once

#include "platform/text.h"

/// Replaces every "$d" in the template of a layer name by the name of the floor.
void ReplaceFloorMark(CString& vorlage, const CString& geschoss);

/// The layer that a template gives on a floor: the floor mark replaced, and every "_" at the end
/// cut off, so that a template that ends in the mark gives a clean name where there is no floor.
CString LayerAusVorlage(const CString& vorlage, const CString& geschoss);
