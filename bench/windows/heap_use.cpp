// Stands before the heap's functions in the import tables of all modules.
#include "bench/heap_use.h"

#include <windows.h>

#include <psapi.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
#include <string_view>

namespace tqcim::bench {
namespace {

void* Counted(HANDLE heap, void* block) {
  if (CountsHeapUse() && block) CountAllocation(HeapSize(heap, 0, block));
  return block;
}

void Uncount(HANDLE heap, void* block) {
  if (CountsHeapUse() && block) CountRelease(HeapSize(heap, 0, block));
}

template <typename Function>
Function* Original(const char* name) {
  static auto* const function = reinterpret_cast<Function*>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("ntdll"), name)));
  return function;
}

using AllocateFunction = void* WINAPI(HANDLE, ULONG, SIZE_T);
using ReallocateFunction = void* WINAPI(HANDLE, ULONG, void*, SIZE_T);
using FreeFunction = BOOLEAN WINAPI(HANDLE, ULONG, void*);

void* WINAPI Allocate(HANDLE heap, ULONG flags, SIZE_T size) {
  return Counted(heap, Original<AllocateFunction>("RtlAllocateHeap")(heap, flags, size));
}

void* WINAPI Reallocate(HANDLE heap, ULONG flags, void* block, SIZE_T size) {
  Uncount(heap, block);
  return Counted(heap, Original<ReallocateFunction>("RtlReAllocateHeap")(heap, flags, block, size));
}

BOOLEAN WINAPI Free(HANDLE heap, ULONG flags, void* block) {
  Uncount(heap, block);
  return Original<FreeFunction>("RtlFreeHeap")(heap, flags, block);
}

struct Replacement {
  std::string_view name;
  void* function;
};

/// The functions of the two names are the same.
const std::array<Replacement, 6> kReplacements = {{
    {"HeapAlloc", reinterpret_cast<void*>(&Allocate)},
    {"RtlAllocateHeap", reinterpret_cast<void*>(&Allocate)},
    {"HeapReAlloc", reinterpret_cast<void*>(&Reallocate)},
    {"RtlReAllocateHeap", reinterpret_cast<void*>(&Reallocate)},
    {"HeapFree", reinterpret_cast<void*>(&Free)},
    {"RtlFreeHeap", reinterpret_cast<void*>(&Free)},
}};

/// A module as it lies in memory (Microsoft PE/COFF specification).
class Image {
 public:
  explicit Image(HMODULE module) : base_(reinterpret_cast<char*>(module)) {}

  template <typename T>
  T* At(size_t offset) const {
    return reinterpret_cast<T*>(base_ + offset);
  }

  /// The descriptors of its import tables, up to one without a name; null where there are none.
  IMAGE_IMPORT_DESCRIPTOR* Imports() const {
    const auto* header =
        At<IMAGE_NT_HEADERS>(static_cast<size_t>(At<IMAGE_DOS_HEADER>(0)->e_lfanew));
    const DWORD offset =
        header->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    return offset == 0 ? nullptr : At<IMAGE_IMPORT_DESCRIPTOR>(offset);
  }

 private:
  char* base_;
};

void Replace(ULONGLONG& entry, void* function) {
  DWORD protection = 0;
  VirtualProtect(&entry, sizeof entry, PAGE_READWRITE, &protection);
  std::memcpy(&entry, &function, sizeof entry);
  VirtualProtect(&entry, sizeof entry, protection, &protection);
}

void ReplaceImports(const Image& image, const IMAGE_IMPORT_DESCRIPTOR& from) {
  const auto* wanted = image.At<IMAGE_THUNK_DATA>(from.OriginalFirstThunk);
  auto* bound = image.At<IMAGE_THUNK_DATA>(from.FirstThunk);
  for (; wanted->u1.AddressOfData != 0; ++wanted, ++bound) {
    if (IMAGE_SNAP_BY_ORDINAL(wanted->u1.Ordinal)) continue;
    const std::string_view name = image.At<IMAGE_IMPORT_BY_NAME>(wanted->u1.AddressOfData)->Name;
    const auto* found = std::ranges::find(kReplacements, name, &Replacement::name);
    if (found != std::end(kReplacements)) Replace(bound->u1.Function, found->function);
  }
}

}  // namespace

void WatchHeap() {
  std::array<HMODULE, 256> modules{};
  DWORD size = 0;
  EnumProcessModules(GetCurrentProcess(), modules.data(), sizeof modules, &size);
  for (size_t i = 0; i < std::min(modules.size(), size / sizeof(HMODULE)); ++i) {
    const Image image(modules[i]);
    const IMAGE_IMPORT_DESCRIPTOR* from = image.Imports();
    for (; from != nullptr && from->Name != 0; ++from) {
      if (from->OriginalFirstThunk != 0) ReplaceImports(image, *from);
    }
  }
}

}  // namespace tqcim::bench
