/// What the parts of the runtime that own texts share.
#pragma once

#include <oleauto.h>

namespace tqcim::runtime {

/// Gives `*copy` a text of its own, zero characters included. Null stays null.
HRESULT CopyBstr(BSTR text, BSTR* copy);

}  // namespace tqcim::runtime
