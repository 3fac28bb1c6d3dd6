#include "platform/com.h"

#include <gtest/gtest.h>

#include <string_view>
#include <utility>

#include "tests/platform/counted_object.h"

namespace tqcim::testing {
namespace {

using View = std::basic_string_view<OLECHAR>;

TEST(BstrOwner, OwnsItsText) {
  EXPECT_EQ(nullptr, Bstr().get());
  EXPECT_EQ(nullptr, Bstr(nullptr).get());
  Bstr text(OLESTR("a"));
  Bstr moved = std::move(text);
  EXPECT_EQ(nullptr, text.get());
  BSTR released = moved.release();
  EXPECT_EQ(nullptr, moved.get());
  const Bstr adopted = Bstr::Adopt(released);
  EXPECT_TRUE(View(adopted.get()) == OLESTR("a"));
}

TEST(BstrOwner, TakesATextWithAZeroInItAsAWhole) {
  const Bstr text(View(OLESTR("a\0b"), 3));
  EXPECT_EQ(3u, SysStringLen(text.get()));
  EXPECT_EQ(OLESTR('b'), text.get()[2]);
}

TEST(ComOwner, ReleasesItsReferenceOnce) {
  CountedObject object;
  {
    object.AddRef();
    Com<IUnknown> owner(&object);
    Com<IUnknown> moved = std::move(owner);
    EXPECT_FALSE(owner);
    EXPECT_EQ(1u, object.References());
    EXPECT_EQ(&object, moved.get());
  }
  EXPECT_EQ(0u, object.References());
}

TEST(ComOwner, AnEarlyReleaseTellsTheReferencesThatAreLeft) {
  CountedObject object;
  object.AddRef();
  object.AddRef();
  Com<IUnknown> owner(&object);
  EXPECT_EQ(1u, owner.Release());
  EXPECT_EQ(0u, owner.Release());
  EXPECT_FALSE(owner);
  EXPECT_EQ(1u, object.References());
}

TEST(ComOwner, ADetachedReferenceIsTheCallers) {
  CountedObject object;
  {
    object.AddRef();
    Com<IUnknown> owner(&object);
    EXPECT_EQ(&object, owner.Detach());
  }
  EXPECT_EQ(1u, object.References());
}

TEST(OwnedVariant, LeavesNothingBehindWhereItIsMovedFrom) {
  OwnedVariant source;
  V_VT(&source) = VT_BSTR;
  V_BSTR(&source) = SysAllocString(OLESTR("a"));
  const OwnedVariant target = std::move(source);
  EXPECT_EQ(VT_EMPTY, V_VT(&source));
  ASSERT_EQ(VT_BSTR, V_VT(&target));
  EXPECT_TRUE(View(V_BSTR(&target)) == OLESTR("a"));
}

}  // namespace
}  // namespace tqcim::testing
