// Class definitions and instances answer as the platform's do.
#include "tests/host/com_test.h"

namespace tqcim::host {
namespace {

constexpr HRESULT kNoMoreData = 0x00040005;

class ClassObjectTest : public HostObjectsTest {
 protected:
  static std::vector<std::string> NamesOf(IWbemClassObject& object, LONG flags) {
    SAFEARRAY* names = nullptr;
    EXPECT_EQ(S_OK, object.GetNames(nullptr, flags, nullptr, &names));
    OwnedVariant owner;
    V_VT(&owner) = VT_ARRAY | VT_BSTR;
    V_ARRAY(&owner) = names;
    LONG upper = -1;
    EXPECT_EQ(S_OK, SafeArrayGetUBound(names, 1, &upper));
    std::vector<std::string> texts;
    for (LONG i = 0; i <= upper; ++i) {
      BSTR name = nullptr;
      EXPECT_EQ(S_OK, SafeArrayGetElement(names, &i, &name));
      texts.push_back(ToUtf8(Bstr::Adopt(name).get()));
    }
    return texts;
  }

  static std::string TextOf(IWbemClassObject& object, const OLECHAR* name) {
    OwnedVariant value;
    CIMTYPE type = 0;
    LONG flavor = 0;
    EXPECT_EQ(S_OK, object.Get(name, 0, &value, &type, &flavor));
    EXPECT_EQ(8, type);
    if (V_VT(&value) == VT_NULL) return "(null)";
    EXPECT_EQ(VT_BSTR, V_VT(&value));
    return ToUtf8(V_BSTR(&value));
  }

  static void PutText(IWbemClassObject& object, const OLECHAR* name, const OLECHAR* text) {
    OwnedVariant value = Text(text);
    EXPECT_EQ(S_OK, object.Put(name, 0, &value, 0));
  }

  std::shared_ptr<const Schema> schema_ = SchemaFromText(R"(
      class Base { [Key] string Name; sint32 Count = 7; };
      class Thing : Base { [Key, Override("Name")] string Name; Base ref Owner; };
      [Singleton] class One { string Text; };
      class Two { [Key] string A; [Key] uint32 B; };)");
  Com<ClassObject> thing_ = ClassObject::Definition(schema_, *schema_->Find("Thing"));
};

TEST_F(ClassObjectTest, ADefinitionTellsItsSystemProperties) {
  EXPECT_EQ("Thing", TextOf(*thing_, OLESTR("__CLASS")));
  EXPECT_EQ("Base", TextOf(*thing_, OLESTR("__superclass")));
  EXPECT_EQ("Thing", TextOf(*thing_, OLESTR("__RELPATH")));
  OwnedVariant value;
  CIMTYPE type = 0;
  LONG flavor = 0;
  EXPECT_EQ(S_OK, thing_->Get(OLESTR("__GENUS"), 0, &value, &type, &flavor));
  EXPECT_EQ(VT_I4, V_VT(&value));
  EXPECT_EQ(1, V_I4(&value));
  EXPECT_EQ(3, type);
  EXPECT_EQ(0x40, flavor);
  EXPECT_EQ(S_OK, thing_->Get(OLESTR("__PROPERTY_COUNT"), 0, &value, nullptr, nullptr));
  EXPECT_EQ(3, V_I4(&value));
  const auto base = ClassObject::Definition(schema_, *schema_->Find("Base"));
  EXPECT_EQ("(null)", TextOf(*base, OLESTR("__SUPERCLASS")));
}

TEST_F(ClassObjectTest, AnInstanceTellsItsSystemProperties) {
  const auto instance = Spawn(*thing_);
  EXPECT_EQ("Thing", TextOf(*instance, OLESTR("__CLASS")));
  EXPECT_EQ("(null)", TextOf(*instance, OLESTR("__RELPATH")));
  PutText(*instance, OLESTR("Name"), OLESTR("a\"b\\c"));
  EXPECT_EQ("Thing.Name=\"a\\\"b\\\\c\"", TextOf(*instance, OLESTR("__RELPATH")));
  OwnedVariant value;
  EXPECT_EQ(S_OK, instance->Get(OLESTR("__GENUS"), 0, &value, nullptr, nullptr));
  EXPECT_EQ(2, V_I4(&value));
}

TEST_F(ClassObjectTest, RelativePathsFollowTheKeysOfTheClass) {
  const auto one = Spawn(*ClassObject::Definition(schema_, *schema_->Find("One")));
  EXPECT_EQ("One=@", TextOf(*one, OLESTR("__RELPATH")));
  const auto two = Spawn(*ClassObject::Definition(schema_, *schema_->Find("Two")));
  PutText(*two, OLESTR("A"), OLESTR("x"));
  EXPECT_EQ("(null)", TextOf(*two, OLESTR("__RELPATH")));
  OwnedVariant number = I4(-1);
  EXPECT_EQ(S_OK, two->Put(OLESTR("B"), 0, &number, 0));
  EXPECT_EQ("Two.A=\"x\",B=4294967295", TextOf(*two, OLESTR("__RELPATH")));
}

TEST_F(ClassObjectTest, GetTellsTypeAndFlavor) {
  CIMTYPE type = 0;
  LONG flavor = -1;
  EXPECT_EQ(S_OK, thing_->Get(OLESTR("owner"), 0, nullptr, &type, &flavor));
  EXPECT_EQ(102, type);
  EXPECT_EQ(0, flavor);
  EXPECT_EQ(S_OK, thing_->Get(OLESTR("Count"), 0, nullptr, &type, &flavor));
  EXPECT_EQ(3, type);
  EXPECT_EQ(0x20, flavor);
  EXPECT_EQ(kMissing, thing_->Get(OLESTR("Nothing"), 0, nullptr, nullptr, nullptr));
  EXPECT_EQ(kMissing, thing_->Get(OLESTR("__NOTHING"), 0, nullptr, nullptr, nullptr));
  EXPECT_EQ(kBadArgument, thing_->Get(nullptr, 0, nullptr, nullptr, nullptr));
  EXPECT_EQ(kBadArgument, thing_->Get(OLESTR("Count"), 1, nullptr, nullptr, nullptr));
}

TEST_F(ClassObjectTest, InstancesStartWithTheDefaultsOfTheClass) {
  const auto instance = Spawn(*thing_);
  OwnedVariant value;
  EXPECT_EQ(S_OK, instance->Get(OLESTR("Count"), 0, &value, nullptr, nullptr));
  EXPECT_EQ(VT_I4, V_VT(&value));
  EXPECT_EQ(7, V_I4(&value));
  EXPECT_EQ(S_OK, instance->Get(OLESTR("Name"), 0, &value, nullptr, nullptr));
  EXPECT_EQ(VT_NULL, V_VT(&value));
}

TEST_F(ClassObjectTest, NamesFollowTheFlags) {
  using Names = std::vector<std::string>;
  EXPECT_EQ((Names{"__GENUS", "__CLASS", "__SUPERCLASS", "__RELPATH", "__PROPERTY_COUNT", "Name",
                   "Count", "Owner"}),
            NamesOf(*thing_, 0));
  EXPECT_EQ((Names{"Name", "Count", "Owner"}), NamesOf(*thing_, 0x40));
  EXPECT_EQ((Names{"__GENUS", "__CLASS", "__SUPERCLASS", "__RELPATH", "__PROPERTY_COUNT"}),
            NamesOf(*thing_, 0x30));
  EXPECT_EQ((Names{"Owner"}), NamesOf(*thing_, 0x10));
  EXPECT_EQ((Names{"Name", "Count"}), NamesOf(*thing_, 0x20));
  EXPECT_EQ((Names{"Name"}), NamesOf(*thing_, 0x4));
  EXPECT_EQ((Names{"Owner"}), NamesOf(*thing_, 0x8));
  SAFEARRAY* names = nullptr;
  EXPECT_EQ(kBadArgument, thing_->GetNames(nullptr, 0x1, nullptr, &names));
  EXPECT_EQ(kRefused, thing_->GetNames(OLESTR("Key"), 0, nullptr, &names));
  EXPECT_EQ(kBadArgument, thing_->GetNames(nullptr, 0, nullptr, nullptr));
}

TEST_F(ClassObjectTest, EnumerationGivesEachPropertyOnce) {
  const auto instance = Spawn(*thing_);
  PutText(*instance, OLESTR("Name"), OLESTR("x"));
  EXPECT_EQ(static_cast<HRESULT>(0x8004101D),
            instance->Next(0, nullptr, nullptr, nullptr, nullptr));
  ASSERT_EQ(S_OK, instance->BeginEnumeration(0x40));
  std::vector<std::string> seen;
  for (;;) {
    BSTR name = nullptr;
    OwnedVariant value;
    CIMTYPE type = 0;
    const HRESULT result = instance->Next(0, &name, &value, &type, nullptr);
    if (result == kNoMoreData) {
      EXPECT_EQ(nullptr, name);
      break;
    }
    ASSERT_EQ(S_OK, result);
    seen.push_back(ToUtf8(Bstr::Adopt(name).get()) + ":" + std::to_string(type) + ":" +
                   std::to_string(V_VT(&value)));
  }
  EXPECT_EQ((std::vector<std::string>{"Name:8:8", "Count:3:3", "Owner:102:1"}), seen);
  EXPECT_EQ(S_OK, instance->EndEnumeration());
  EXPECT_EQ(static_cast<HRESULT>(0x8004101D),
            instance->Next(0, nullptr, nullptr, nullptr, nullptr));
}

TEST_F(ClassObjectTest, ACloneIsOnItsOwn) {
  const auto instance = Spawn(*thing_);
  PutText(*instance, OLESTR("Name"), OLESTR("first"));
  IWbemClassObject* copy = nullptr;
  ASSERT_EQ(S_OK, instance->Clone(&copy));
  const Com<IWbemClassObject> cloned(copy);
  PutText(*instance, OLESTR("Name"), OLESTR("second"));
  EXPECT_EQ("first", TextOf(*cloned, OLESTR("Name")));
  EXPECT_EQ("second", TextOf(*instance, OLESTR("Name")));
}

TEST_F(ClassObjectTest, OriginsAreTheDeclaringClasses) {
  BSTR origin = nullptr;
  EXPECT_EQ(S_OK, thing_->GetPropertyOrigin(OLESTR("Name"), &origin));
  EXPECT_EQ("Base", ToUtf8(Bstr::Adopt(origin).get()));
  EXPECT_EQ(S_OK, thing_->GetPropertyOrigin(OLESTR("Owner"), &origin));
  EXPECT_EQ("Thing", ToUtf8(Bstr::Adopt(origin).get()));
  EXPECT_EQ(kMissing, thing_->GetPropertyOrigin(OLESTR("Nothing"), &origin));
}

TEST_F(ClassObjectTest, DefinitionsAreNotWrittenAndInstancesDoNotSpawn) {
  OwnedVariant value = Text(OLESTR("x"));
  EXPECT_EQ(kRefused, thing_->Put(OLESTR("Name"), 0, &value, 0));
  const auto instance = Spawn(*thing_);
  IWbemClassObject* spawned = thing_.get();
  EXPECT_EQ(kRefused, instance->SpawnInstance(0, &spawned));
  EXPECT_EQ(nullptr, spawned);
  EXPECT_EQ(kBadArgument, thing_->SpawnInstance(1, &spawned));
  EXPECT_EQ(kBadArgument, thing_->SpawnInstance(0, nullptr));
}

TEST_F(ClassObjectTest, WhatIsNotServedIsRefused) {
  EXPECT_EQ(kRefused, thing_->GetQualifierSet(nullptr));
  EXPECT_EQ(kRefused, thing_->Delete(OLESTR("Name")));
  EXPECT_EQ(kRefused, thing_->GetPropertyQualifierSet(OLESTR("Name"), nullptr));
  EXPECT_EQ(kRefused, thing_->GetObjectText(0, nullptr));
  EXPECT_EQ(kRefused, thing_->SpawnDerivedClass(0, nullptr));
  EXPECT_EQ(kRefused, thing_->CompareTo(0, nullptr));
  EXPECT_EQ(kRefused, thing_->InheritsFrom(OLESTR("Base")));
  EXPECT_EQ(kRefused, thing_->GetMethod(OLESTR("M"), 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, thing_->PutMethod(OLESTR("M"), 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, thing_->DeleteMethod(OLESTR("M")));
  EXPECT_EQ(kRefused, thing_->BeginMethodEnumeration(0));
  EXPECT_EQ(kRefused, thing_->NextMethod(0, nullptr, nullptr, nullptr));
  EXPECT_EQ(kRefused, thing_->EndMethodEnumeration());
  EXPECT_EQ(kRefused, thing_->GetMethodQualifierSet(OLESTR("M"), nullptr));
  EXPECT_EQ(kRefused, thing_->GetMethodOrigin(OLESTR("M"), nullptr));
}

TEST_F(ClassObjectTest, ReferencesAreCounted) {
  void* object = nullptr;
  EXPECT_EQ(S_OK, thing_->QueryInterface(IID_IUnknown, &object));
  EXPECT_EQ(static_cast<IWbemClassObject*>(thing_.get()), object);
  EXPECT_EQ(3u, thing_->AddRef());
  EXPECT_EQ(2u, thing_->Release());
  EXPECT_EQ(1u, thing_->Release());
  EXPECT_EQ(E_NOINTERFACE, thing_->QueryInterface(IID_IWbemServices, &object));
  EXPECT_EQ(nullptr, object);
  EXPECT_EQ(E_POINTER, thing_->QueryInterface(IID_IUnknown, nullptr));
}

TEST_F(ClassObjectTest, AnInstanceKeepsItsSchema) {
  auto instance = Spawn(*thing_);
  thing_.Release();
  schema_.reset();
  EXPECT_EQ("Thing", TextOf(*instance, OLESTR("__CLASS")));
}

}  // namespace
}  // namespace tqcim::host
