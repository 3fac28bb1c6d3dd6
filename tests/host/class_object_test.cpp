// Class definitions make instances, and refuse what no provider asks of them.
#include "tests/host/com_test.h"

namespace tqcim::host {
namespace {

class ClassObjectTest : public HostObjectsTest {
 protected:
  Com<IWbemClassObject> InstanceOf(std::string_view class_name) {
    return Spawn(*ClassObject::Definition(schema_, *schema_->Find(class_name)));
  }
  static void Put(const Com<IWbemClassObject>& instance, const OLECHAR* name, OwnedVariant value) {
    EXPECT_EQ(S_OK, instance->Put(name, 0, &value, 0));
  }

  std::shared_ptr<const Schema> schema_ = SchemaFromText(R"(
      class Base { [Key] string Name; sint32 Count = 7; };
      class Thing : Base { Base ref Owner; };
      [Singleton] class One { string Text; };
      class Two { [Key] string A; [Key] uint32 B; };)");
  Com<ClassObject> thing_ = ClassObject::Definition(schema_, *schema_->Find("Thing"));
};

TEST_F(ClassObjectTest, PathsOfInstancesFollowTheKeysOfTheClass) {
  EXPECT_EQ("One=@", InstanceBehind(InstanceOf("One")).Path());
  const auto thing = InstanceOf("Thing");
  EXPECT_EQ("", InstanceBehind(thing).Path());
  Put(thing, OLESTR("Name"), Text(OLESTR("a\"b\\c")));
  EXPECT_EQ("Thing.Name=\"a\\\"b\\\\c\"", InstanceBehind(thing).Path());
  const auto two = InstanceOf("Two");
  Put(two, OLESTR("A"), Text(OLESTR("x")));
  EXPECT_EQ("", InstanceBehind(two).Path());
  Put(two, OLESTR("B"), I4(-1));
  EXPECT_EQ("Two.A=\"x\",B=4294967295", InstanceBehind(two).Path());
}

TEST_F(ClassObjectTest, InstancesStartWithTheDefaultsOfTheClass) {
  const Instance instance = InstanceBehind(Spawn(*thing_));
  EXPECT_EQ(Value(int64_t{7}), instance.Find("Count")->value);
  EXPECT_FALSE(instance.Find("Count")->put);
  EXPECT_EQ(Value(), instance.Find("Name")->value);
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
  EXPECT_EQ(kRefused, thing_->Get(OLESTR("Name"), 0, nullptr, nullptr, nullptr));
  EXPECT_EQ(kRefused, thing_->Delete(OLESTR("Name")));
  EXPECT_EQ(kRefused, thing_->GetNames(nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, thing_->BeginEnumeration(0));
  EXPECT_EQ(kRefused, thing_->Next(0, nullptr, nullptr, nullptr, nullptr));
  EXPECT_EQ(kRefused, thing_->EndEnumeration());
  EXPECT_EQ(kRefused, thing_->GetPropertyQualifierSet(OLESTR("Name"), nullptr));
  EXPECT_EQ(kRefused, thing_->Clone(nullptr));
  EXPECT_EQ(kRefused, thing_->GetObjectText(0, nullptr));
  EXPECT_EQ(kRefused, thing_->SpawnDerivedClass(0, nullptr));
  EXPECT_EQ(kRefused, thing_->CompareTo(0, nullptr));
  EXPECT_EQ(kRefused, thing_->GetPropertyOrigin(OLESTR("Name"), nullptr));
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
  const auto instance = Spawn(*thing_);
  thing_.Release();
  schema_.reset();
  EXPECT_EQ("Thing", InstanceBehind(instance).definition->name);
}

}  // namespace
}  // namespace tqcim::host
