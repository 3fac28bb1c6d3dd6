/// VARIANTs as the platform pairs them with CIM types: 8-bit signed, 16-bit signed and char16 in
/// VT_I2, uint8 in VT_UI1, uint16 to uint32 in VT_I4, 64-bit integers, datetime and references as
/// text in VT_BSTR; arrays with VT_ARRAY.
#pragma once

#include "host/com.h"
#include "host/schema.h"

namespace tqcim::host {

/// Whether a property takes a value as it is, without any conversion: WBEM_S_NO_ERROR or
/// WBEM_E_TYPE_MISMATCH. `type` is the CIMTYPE that goes with the value, or 0. VT_NULL and a null
/// string fit every property, the string only one whose values are texts.
HRESULT CheckValue(const PropertyDefinition& property, const VARIANT& value, CIMTYPE type);

/// Whether a value that CheckValue lets pass stands for null.
bool StandsForNull(const VARIANT& value);

/// A value that CheckValue lets pass.
Value ToValue(const VARIANT& value, const PropertyDefinition& property);

/// A value of the property's type, VT_NULL for null.
OwnedVariant ToVariant(const Value& value, CimType type, bool array);

}  // namespace tqcim::host
