// Every method of every declared interface has to come in at the platform's slot: the service, the
// provider and their callers may each be built by another compiler.
#include "platform/wmi.h"
#include "tests/platform/slot_recorder.h"

namespace {

using tqcim::testing::SlotRecorder;

template <typename Interface>
Interface* Recorder() {
  static_assert(sizeof(Interface) == sizeof(void*));
  return static_cast<Interface*>(SlotRecorder());
}

template <typename Interface>
void ExpectUnknownSlots() {
  EXPECT_SLOT(0, Recorder<Interface>()->QueryInterface(IID_IUnknown, nullptr));
  EXPECT_SLOT(1, Recorder<Interface>()->AddRef());
  EXPECT_SLOT(2, Recorder<Interface>()->Release());
}

TEST(InterfaceSlots, EveryInterfaceBeginsWithIUnknown) {
  ExpectUnknownSlots<IUnknown>();
  ExpectUnknownSlots<IClassFactory>();
  ExpectUnknownSlots<IWbemServices>();
  ExpectUnknownSlots<IWbemClassObject>();
  ExpectUnknownSlots<IWbemQualifierSet>();
  ExpectUnknownSlots<IWbemObjectSink>();
  ExpectUnknownSlots<IWbemContext>();
  ExpectUnknownSlots<IWbemCallResult>();
  ExpectUnknownSlots<IEnumWbemClassObject>();
  ExpectUnknownSlots<IWbemLocator>();
  ExpectUnknownSlots<IWbemProviderInit>();
  ExpectUnknownSlots<IWbemProviderInitSink>();
  ExpectUnknownSlots<IWbemPath>();
  ExpectUnknownSlots<IWbemPathKeyList>();
}

TEST(InterfaceSlots, ClassFactory) {
  auto* factory = Recorder<IClassFactory>();
  EXPECT_SLOT(3, factory->CreateInstance(nullptr, IID_IUnknown, nullptr));
  EXPECT_SLOT(4, factory->LockServer(FALSE));
}

TEST(InterfaceSlots, Services) {
  auto* services = Recorder<IWbemServices>();
  EXPECT_SLOT(3, services->OpenNamespace(nullptr, 0, nullptr, nullptr, nullptr));
  EXPECT_SLOT(4, services->CancelAsyncCall(nullptr));
  EXPECT_SLOT(5, services->QueryObjectSink(0, nullptr));
  EXPECT_SLOT(6, services->GetObject(nullptr, 0, nullptr, nullptr, nullptr));
  EXPECT_SLOT(7, services->GetObjectAsync(nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(8, services->PutClass(nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(9, services->PutClassAsync(nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(10, services->DeleteClass(nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(11, services->DeleteClassAsync(nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(12, services->CreateClassEnum(nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(13, services->CreateClassEnumAsync(nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(14, services->PutInstance(nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(15, services->PutInstanceAsync(nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(16, services->DeleteInstance(nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(17, services->DeleteInstanceAsync(nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(18, services->CreateInstanceEnum(nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(19, services->CreateInstanceEnumAsync(nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(20, services->ExecQuery(nullptr, nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(21, services->ExecQueryAsync(nullptr, nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(22, services->ExecNotificationQuery(nullptr, nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(23, services->ExecNotificationQueryAsync(nullptr, nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(24, services->ExecMethod(nullptr, nullptr, 0, nullptr, nullptr, nullptr, nullptr));
  EXPECT_SLOT(25, services->ExecMethodAsync(nullptr, nullptr, 0, nullptr, nullptr, nullptr));
}

TEST(InterfaceSlots, ClassObject) {
  auto* object = Recorder<IWbemClassObject>();
  EXPECT_SLOT(3, object->GetQualifierSet(nullptr));
  EXPECT_SLOT(4, object->Get(nullptr, 0, nullptr, nullptr, nullptr));
  EXPECT_SLOT(5, object->Put(nullptr, 0, nullptr, 0));
  EXPECT_SLOT(6, object->Delete(nullptr));
  EXPECT_SLOT(7, object->GetNames(nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(8, object->BeginEnumeration(0));
  EXPECT_SLOT(9, object->Next(0, nullptr, nullptr, nullptr, nullptr));
  EXPECT_SLOT(10, object->EndEnumeration());
  EXPECT_SLOT(11, object->GetPropertyQualifierSet(nullptr, nullptr));
  EXPECT_SLOT(12, object->Clone(nullptr));
  EXPECT_SLOT(13, object->GetObjectText(0, nullptr));
  EXPECT_SLOT(14, object->SpawnDerivedClass(0, nullptr));
  EXPECT_SLOT(15, object->SpawnInstance(0, nullptr));
  EXPECT_SLOT(16, object->CompareTo(0, nullptr));
  EXPECT_SLOT(17, object->GetPropertyOrigin(nullptr, nullptr));
  EXPECT_SLOT(18, object->InheritsFrom(nullptr));
  EXPECT_SLOT(19, object->GetMethod(nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(20, object->PutMethod(nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(21, object->DeleteMethod(nullptr));
  EXPECT_SLOT(22, object->BeginMethodEnumeration(0));
  EXPECT_SLOT(23, object->NextMethod(0, nullptr, nullptr, nullptr));
  EXPECT_SLOT(24, object->EndMethodEnumeration());
  EXPECT_SLOT(25, object->GetMethodQualifierSet(nullptr, nullptr));
  EXPECT_SLOT(26, object->GetMethodOrigin(nullptr, nullptr));
}

TEST(InterfaceSlots, QualifierSet) {
  auto* set = Recorder<IWbemQualifierSet>();
  EXPECT_SLOT(3, set->Get(nullptr, 0, nullptr, nullptr));
  EXPECT_SLOT(4, set->Put(nullptr, nullptr, 0));
  EXPECT_SLOT(5, set->Delete(nullptr));
  EXPECT_SLOT(6, set->GetNames(0, nullptr));
  EXPECT_SLOT(7, set->BeginEnumeration(0));
  EXPECT_SLOT(8, set->Next(0, nullptr, nullptr, nullptr));
  EXPECT_SLOT(9, set->EndEnumeration());
}

TEST(InterfaceSlots, ObjectSink) {
  auto* sink = Recorder<IWbemObjectSink>();
  EXPECT_SLOT(3, sink->Indicate(0, nullptr));
  EXPECT_SLOT(4, sink->SetStatus(0, 0, nullptr, nullptr));
}

TEST(InterfaceSlots, Context) {
  auto* context = Recorder<IWbemContext>();
  EXPECT_SLOT(3, context->Clone(nullptr));
  EXPECT_SLOT(4, context->GetNames(0, nullptr));
  EXPECT_SLOT(5, context->BeginEnumeration(0));
  EXPECT_SLOT(6, context->Next(0, nullptr, nullptr));
  EXPECT_SLOT(7, context->EndEnumeration());
  EXPECT_SLOT(8, context->SetValue(nullptr, 0, nullptr));
  EXPECT_SLOT(9, context->GetValue(nullptr, 0, nullptr));
  EXPECT_SLOT(10, context->DeleteValue(nullptr, 0));
  EXPECT_SLOT(11, context->DeleteAll());
}

TEST(InterfaceSlots, CallResult) {
  auto* result = Recorder<IWbemCallResult>();
  EXPECT_SLOT(3, result->GetResultObject(0, nullptr));
  EXPECT_SLOT(4, result->GetResultString(0, nullptr));
  EXPECT_SLOT(5, result->GetResultServices(0, nullptr));
  EXPECT_SLOT(6, result->GetCallStatus(0, nullptr));
}

TEST(InterfaceSlots, EnumeratorOfObjects) {
  auto* objects = Recorder<IEnumWbemClassObject>();
  EXPECT_SLOT(3, objects->Reset());
  EXPECT_SLOT(4, objects->Next(0, 0, nullptr, nullptr));
  EXPECT_SLOT(5, objects->NextAsync(0, nullptr));
  EXPECT_SLOT(6, objects->Clone(nullptr));
  EXPECT_SLOT(7, objects->Skip(0, 0));
}

TEST(InterfaceSlots, Locator) {
  EXPECT_SLOT(3, Recorder<IWbemLocator>()->ConnectServer(nullptr, nullptr, nullptr, nullptr, 0,
                                                         nullptr, nullptr, nullptr));
}

TEST(InterfaceSlots, ProviderInit) {
  EXPECT_SLOT(3, Recorder<IWbemProviderInit>()->Initialize(nullptr, 0, nullptr, nullptr, nullptr,
                                                           nullptr, nullptr));
  EXPECT_SLOT(3, Recorder<IWbemProviderInitSink>()->SetStatus(0, 0));
}

TEST(InterfaceSlots, Path) {
  auto* path = Recorder<IWbemPath>();
  EXPECT_SLOT(3, path->SetText(0, nullptr));
  EXPECT_SLOT(4, path->GetText(0, nullptr, nullptr));
  EXPECT_SLOT(5, path->GetInfo(0, nullptr));
  EXPECT_SLOT(6, path->SetServer(nullptr));
  EXPECT_SLOT(7, path->GetServer(nullptr, nullptr));
  EXPECT_SLOT(8, path->GetNamespaceCount(nullptr));
  EXPECT_SLOT(9, path->SetNamespaceAt(0, nullptr));
  EXPECT_SLOT(10, path->GetNamespaceAt(0, nullptr, nullptr));
  EXPECT_SLOT(11, path->RemoveNamespaceAt(0));
  EXPECT_SLOT(12, path->RemoveAllNamespaces());
  EXPECT_SLOT(13, path->GetScopeCount(nullptr));
  EXPECT_SLOT(14, path->SetScope(0, nullptr));
  EXPECT_SLOT(15, path->SetScopeFromText(0, nullptr));
  EXPECT_SLOT(16, path->GetScope(0, nullptr, nullptr, nullptr));
  EXPECT_SLOT(17, path->GetScopeAsText(0, nullptr, nullptr));
  EXPECT_SLOT(18, path->RemoveScope(0));
  EXPECT_SLOT(19, path->RemoveAllScopes());
  EXPECT_SLOT(20, path->SetClassName(nullptr));
  EXPECT_SLOT(21, path->GetClassName(nullptr, nullptr));
  EXPECT_SLOT(22, path->GetKeyList(nullptr));
  EXPECT_SLOT(23, path->CreateClassPart(0, nullptr));
  EXPECT_SLOT(24, path->DeleteClassPart(0));
  EXPECT_SLOT(25, path->IsRelative(nullptr, nullptr));
  EXPECT_SLOT(26, path->IsRelativeOrChild(nullptr, nullptr, 0));
  EXPECT_SLOT(27, path->IsLocal(nullptr));
  EXPECT_SLOT(28, path->IsSameClassName(nullptr));
}

TEST(InterfaceSlots, PathKeyList) {
  auto* keys = Recorder<IWbemPathKeyList>();
  EXPECT_SLOT(3, keys->GetCount(nullptr));
  EXPECT_SLOT(4, keys->SetKey(nullptr, 0, 0, nullptr));
  EXPECT_SLOT(5, keys->SetKey2(nullptr, 0, 0, nullptr));
  EXPECT_SLOT(6, keys->GetKey(0, 0, nullptr, nullptr, nullptr, nullptr, nullptr));
  EXPECT_SLOT(7, keys->GetKey2(0, 0, nullptr, nullptr, nullptr, nullptr));
  EXPECT_SLOT(8, keys->RemoveKey(nullptr, 0));
  EXPECT_SLOT(9, keys->RemoveAllKeys(0));
  EXPECT_SLOT(10, keys->MakeSingleton(0));
  EXPECT_SLOT(11, keys->GetInfo(0, nullptr));
  EXPECT_SLOT(12, keys->GetText(0, nullptr, nullptr));
}

}  // namespace
