/// Reading the keys of a parsed object path.
#pragma once

#include "core/variant.h"

namespace tqcim {

/// What makes a key's value a text. Classes differ in where they look.
enum class TextKey {
  kByApparentType,  ///< the path's own view of the value: CIM string
  kByVariant,       ///< the VARIANT that holds the value: VT_BSTR
};

/// What becomes of the search when a key can't be read, its name being longer than 255 characters,
/// say.
enum class UnreadableKey { kIsPassedOver, kEndsTheSearch };

/// A key that was looked for. `status` is that of the last call to the key list: a class that finds
/// no key returns it.
struct PathKey {
  HRESULT status;
  bool found;
  Variant value;
};

/// The first key of that name (any case) whose value is a text.
PathKey FindTextKey(IWbemPathKeyList* keys, const OLECHAR* name, TextKey kind,
                    UnreadableKey unreadable = UnreadableKey::kIsPassedOver);

/// The first key of that name (any case), whatever its value.
PathKey FindKey(IWbemPathKeyList* keys, const OLECHAR* name);

/// The first key, whatever its name and value; nothing where that can't be read.
PathKey FirstKey(IWbemPathKeyList* keys);

/// The number that a key's value holds: a 32-bit integer, or the number that its text begins with.
int32_t NumberOf(const Variant& value);

}  // namespace tqcim
