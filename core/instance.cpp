#include "core/instance.h"

#include <string>

namespace tqcim {

void Instance::PutUint64(const OLECHAR* name, uint64_t value) {
  Put(name, Variant::Text(std::to_string(value).c_str()), CIM_UINT64);
}

}  // namespace tqcim
