#include "bench/requests.h"

#include "core/class_registry.h"
#include "host/path_object.h"

namespace tqcim::bench {
namespace {

/// Counts, and keeps nothing but the last path where it is asked to.
class CountingSink final : public host::ComObject<IWbemObjectSink, IID_IWbemObjectSink> {
 public:
  explicit CountingSink(bool wantsPath = false) : wantsPath_(wantsPath) {}

  HRESULT STDMETHODCALLTYPE Indicate(LONG count, IWbemClassObject** objects) override {
    count_ += static_cast<size_t>(count);
    if (wantsPath_) path_ = host::ClassObject::Behind(objects[0])->ToInstance().Path();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE SetStatus(LONG, HRESULT, BSTR, IWbemClassObject*) override {
    return S_OK;
  }

  size_t Count() const { return count_; }
  const std::string& Path() const { return path_; }

 private:
  bool wantsPath_;
  size_t count_ = 0;
  std::string path_;
};

std::shared_ptr<const host::Schema> Shipped() {
  static const auto schema = std::make_shared<const host::Schema>(host::Schema::Embedded());
  return schema;
}

}  // namespace

ProvidedClass::ProvidedClass(const std::string& name)
    : handler_(Lookup(name.c_str())),
      definition_(host::ClassObject::Definition(Shipped(), *Shipped()->Find(name))) {}

size_t ProvidedClass::Enumerate() const {
  const Com<CountingSink> sink(new CountingSink);
  handler_->EnumerateInstances(definition_.get(), sink.get());
  return sink->Count();
}

std::string ProvidedClass::LastPath() const {
  const Com<CountingSink> sink(new CountingSink(true));
  handler_->EnumerateInstances(definition_.get(), sink.get());
  return sink->Path();
}

size_t ProvidedClass::Get(const std::string& path) const {
  const Com<host::PathObject> parsed(new host::PathObject);
  parsed->SetText(WBEMPATH_CREATE_ACCEPT_ALL, host::ToWide(path).c_str());
  Com<IWbemPathKeyList> keys;
  parsed->GetKeyList(keys.Receive());
  const Com<CountingSink> sink(new CountingSink);
  handler_->GetInstance(definition_.get(), keys.get(), sink.get());
  return sink->Count();
}

/// Stands for the class definition and for each of its instances.
class RecordedRun::Recorder final
    : public RefusingClassObject<host::ComObject<IWbemClassObject, IID_IWbemClassObject>> {
 public:
  explicit Recorder(std::vector<Instance>& instances) : instances_(instances) {}

  HRESULT STDMETHODCALLTYPE SpawnInstance(LONG, IWbemClassObject** instance) override {
    instances_.emplace_back();
    AddRef();
    *instance = this;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Put(LPCWSTR name, LONG flags, VARIANT* value, CIMTYPE type) override {
    RecordedRun::Put put{name, {}, value == nullptr, flags, type};
    if (value) VariantCopy(&put.value, value);
    instances_.back().push_back(std::move(put));
    return S_OK;
  }

 private:
  std::vector<Instance>& instances_;
};

RecordedRun::RecordedRun(const ProvidedClass& provided) {
  const Com<Recorder> recorder(new Recorder(instances_));
  const Com<CountingSink> sink(new CountingSink);
  provided.Handler().EnumerateInstances(recorder.get(), sink.get());
}

size_t RecordedRun::Replay(const ProvidedClass& provided) const {
  const Com<CountingSink> sink(new CountingSink);
  for (const Instance& puts : instances_) {
    IWbemClassObject* instance = nullptr;
    provided.Definition().SpawnInstance(0, &instance);
    for (const RecordedRun::Put& put : puts) {
      VARIANT* value = put.null ? nullptr : const_cast<OwnedVariant*>(&put.value);
      instance->Put(put.name.c_str(), put.flags, value, put.type);
    }
    sink->Indicate(1, &instance);
    instance->Release();
  }
  return sink->Count();
}

}  // namespace tqcim::bench
