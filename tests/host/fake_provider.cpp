#include "tests/host/fake_provider.h"

#include <mutex>
#include <string>

#include "host/com.h"
#include "host/name_space.h"

namespace tqcim::host {
namespace {

std::mutex traceMutex;
std::string traceText;

void Trace(const std::string& line) {
  const std::lock_guard lock(traceMutex);
  traceText += line + "\n";
}

template <typename T>
Com<T> Create(REFCLSID clsid, REFIID iid) {
  void* object = nullptr;
  CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, iid, &object);
  return Com<T>(static_cast<T*>(object));
}

void PutText(IWbemClassObject& instance, const OLECHAR* name, const std::string& text) {
  OwnedVariant value;
  V_VT(&value) = VT_BSTR;
  V_BSTR(&value) = MakeBstr(text).release();
  instance.Put(name, 0, &value, 0);
}

/// Spawns, fills and delivers one instance with a Name.
HRESULT Deliver(IWbemClassObject& definition, IWbemObjectSink& sink, const std::string& name) {
  IWbemClassObject* instance = nullptr;
  definition.SpawnInstance(0, &instance);
  const Com<IWbemClassObject> owner(instance);
  PutText(*instance, OLESTR("Name"), name);
  return sink.Indicate(1, &instance);
}

class Services final : public RefusingServices<IWbemServices> {
 public:
  explicit Services(IUnknown& outer) : outer_(outer) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override {
    return outer_.QueryInterface(riid, object);
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return outer_.AddRef(); }
  ULONG STDMETHODCALLTYPE Release() override { return outer_.Release(); }

  /// Connects as a provider does that asks for IUnknown and takes it for the locator.
  void Connect() {
    const Com<IUnknown> unknown = Create<IUnknown>(CLSID_WbemAdministrativeLocator, IID_IUnknown);
    auto* locator = static_cast<IWbemLocator*>(static_cast<void*>(unknown.get()));
    const Bstr name(OLESTR("root\\CIMV2\\vorn"));
    IWbemServices* connection = nullptr;
    locator->ConnectServer(name.get(), nullptr, nullptr, nullptr, 0, nullptr, nullptr, &connection);
    connection_ = Com(connection);
    Trace(connection_ ? "connected" : "not connected");
  }

  HRESULT STDMETHODCALLTYPE CreateInstanceEnumAsync(BSTR name, LONG, IWbemContext*,
                                                    IWbemObjectSink* sink) override {
    const std::string class_name = ToUtf8(name);
    const auto definition = Definition(name);
    if (class_name == "Fake_Silent") return S_OK;
    if (class_name == "Fake_KeepsSink") {
      sink->AddRef();
      kept_ = Com(sink);
    } else if (class_name == "Fake_RefusedPuts") {
      RefusedPuts(*definition, *sink);
    } else {
      const int count = class_name == "Fake_Many" ? 1000 : 2;
      for (int i = 0; i < count; ++i) {
        const HRESULT indicated = Deliver(*definition, *sink, std::to_string(i));
        if (FAILED(indicated)) return indicated;
      }
    }
    if (class_name == "Fake_Fails") return static_cast<HRESULT>(WBEM_E_NOT_FOUND);
    const bool failed = class_name == "Fake_FinalFailure";
    sink->SetStatus(0, failed ? static_cast<HRESULT>(WBEM_E_FAILED) : S_OK, nullptr, nullptr);
    return S_OK;
  }

  /// Delivers what the platform's path parser reads: "CLASS|KEY|TYPE|TEXT".
  HRESULT STDMETHODCALLTYPE GetObjectAsync(BSTR text, LONG, IWbemContext*,
                                           IWbemObjectSink* sink) override {
    const auto path = Create<IWbemPath>(CLSID_WbemDefPath, IID_IWbemPath);
    path->SetText(WBEMPATH_CREATE_ACCEPT_ALL, text);
    OLECHAR class_name[64] = {};
    ULONG length = 64;
    path->GetClassName(&length, class_name);
    IWbemPathKeyList* keys = nullptr;
    path->GetKeyList(&keys);
    const Com<IWbemPathKeyList> owner(keys);
    OLECHAR key[64] = {};
    length = 64;
    ULONG type = 0;
    OwnedVariant value;
    keys->GetKey2(0, 0, &length, key, &value, &type);
    const Bstr class_text(class_name);
    const std::string held = V_VT(&value) == VT_BSTR ? ToUtf8(V_BSTR(&value)) : "";
    Deliver(*Definition(class_text.get()), *sink,
            ToUtf8(class_name) + "|" + ToUtf8(key) + "|" + std::to_string(type) + "|" + held);
    sink->SetStatus(0, S_OK, nullptr, nullptr);
    SysFreeString(text);
    return S_OK;
  }

  /// Delivers to the sink that was kept, when nobody waits any more.
  void DeliverLate() {
    if (!kept_) return;
    const Bstr name(OLESTR("Fake_KeepsSink"));
    Trace("late " + std::to_string(Deliver(*Definition(name.get()), *kept_, "late") < 0));
    kept_.Release();
  }

 private:
  Com<IWbemClassObject> Definition(BSTR name) {
    IWbemClassObject* definition = nullptr;
    connection_->GetObject(name, 0, nullptr, &definition, nullptr);
    return Com<IWbemClassObject>(definition);
  }

  static void RefusedPuts(IWbemClassObject& definition, IWbemObjectSink& sink) {
    IWbemClassObject* instance = nullptr;
    definition.SpawnInstance(0, &instance);
    const Com<IWbemClassObject> owner(instance);
    PutText(*instance, OLESTR("Name"), "x");
    PutText(*instance, OLESTR("Missing"), "x");
    PutText(*instance, OLESTR("Number"), "x");
    sink.Indicate(1, &instance);
  }

  IUnknown& outer_;
  Com<IWbemServices> connection_;
  Com<IWbemObjectSink> kept_;
};

class Provider final : public ComObject<IWbemProviderInit, IID_IWbemProviderInit> {
 public:
  explicit Provider(FakeClsid which) : which_(which) { Trace("made"); }
  ~Provider() override {
    services_.DeliverLate();
    Trace("gone");
  }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override {
    if (riid != IID_IWbemServices) return ComObject::QueryInterface(riid, object);
    *object = nullptr;
    if (which_ == FakeClsid::kServesNoInstances) return E_NOINTERFACE;
    *object = &services_;
    AddRef();
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE Initialize(LPWSTR, LONG flags, LPWSTR name, LPWSTR,
                                       IWbemServices* name_space, IWbemContext*,
                                       IWbemProviderInitSink* sink) override {
    Trace("initialise " + std::to_string(flags) + " " + ToUtf8(name) +
          (name_space ? " with namespace" : ""));
    if (which_ == FakeClsid::kInitialiseFails) return static_cast<HRESULT>(WBEM_E_ACCESS_DENIED);
    if (which_ == FakeClsid::kReportsNothing) return S_OK;
    const bool failed = which_ == FakeClsid::kReportsFailure;
    if (!failed) services_.Connect();
    sink->SetStatus(failed ? static_cast<LONG>(WBEM_E_FAILED) : 0, 0);
    return S_OK;
  }

 private:
  FakeClsid which_;
  Services services_{*this};
};

class Factory final : public ComObject<IClassFactory, IID_IClassFactory> {
 public:
  explicit Factory(FakeClsid which) : which_(which) {}

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID riid, void** object) override {
    if (which_ == FakeClsid::kFactoryRefuses) return E_OUTOFMEMORY;
    return Com<Provider>(new Provider(which_))->QueryInterface(riid, object);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
  FakeClsid which_;
};

}  // namespace
}  // namespace tqcim::host

STDAPI DllGetClassObject(REFCLSID clsid, REFIID riid, LPVOID* object) {
  using namespace tqcim::host;
  const auto which = static_cast<FakeClsid>(clsid.Data1);
  if (!IsEqualGUID(clsid, ClsidOf(which)) || which > FakeClsid::kTrace) return E_FAIL;
  if (which == FakeClsid::kTrace) {
    *object = traceText.data();
    return S_OK;
  }
  return tqcim::Com<Factory>(new Factory(which))->QueryInterface(riid, object);
}

STDAPI DllCanUnloadNow() {
  using namespace tqcim::host;
  const bool idle = LiveObject::Count() == 0;
  Trace(idle ? "may go" : "may not go");
  return idle ? S_OK : S_FALSE;
}
