/// Requests of every kind from several threads, while the store is replaced again and again. Every
/// answer has to be the first one, and neither memory nor handles may grow.
#include <atomic>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "bench/process_resources.h"
#include "host/management_host.h"
#include "platform/wmi.h"
#include "store/store_control.h"
#include "tools/text.h"

namespace tqcim::bench {
namespace {

constexpr size_t kThreads = 4;
/// What one more arena or stack of a thread takes, and nothing that grows with the requests.
constexpr size_t kMemoryBound = size_t{4} << 20;
constexpr size_t kHandleBound = 8;

/// A request, and the answer that it had first.
struct Request {
  std::string text;
  bool enumerate;
  size_t answer = 0;
};

size_t Digest(const host::Instance& instance) {
  std::string text = instance.Path();
  for (const host::Property& property : instance.properties) {
    text += '\n' + tools::PlainText(property.value);
  }
  return std::hash<std::string>()(text);
}

size_t Answer(host::ManagementHost& host, const Request& request) {
  size_t digest = 0;
  const auto add = [&](const host::Instance& instance) { digest = digest * 31 + Digest(instance); };
  const host::Outcome outcome =
      request.enumerate ? host.Enumerate(request.text, add) : host.Get(request.text, add);
  return digest * 31 + static_cast<uint32_t>(outcome.result);
}

/// Every class enumerated, and every instance of the sample asked for by its path.
std::vector<Request> MakeRequests(host::ManagementHost& host) {
  std::vector<Request> requests;
  for (const std::string& name : host.ClassNames()) {
    requests.push_back({name, true});
    host.Enumerate(name, [&](const host::Instance& instance) {
      if (!instance.Path().empty()) requests.push_back({instance.Path(), false});
    });
  }
  for (Request& request : requests) request.answer = Answer(host, request);
  return requests;
}

class Soak {
 public:
  Soak(host::ManagementHost& host, const std::vector<Request>& requests)
      : host_(host), requests_(requests) {}

  /// Makes so many requests. The number of answers that differed.
  size_t Run(size_t count) {
    left_ = static_cast<int64_t>(count);
    std::vector<std::thread> threads;
    for (size_t i = 0; i < kThreads; ++i) threads.emplace_back([this, i] { Ask(i * 7); });
    for (int64_t tenths = 0; left_ > 0; Refresh()) {
      const int64_t done = 10 - left_ * 10 / static_cast<int64_t>(count);
      if (std::exchange(tenths, done) != done) Tell(done);
    }
    for (std::thread& thread : threads) thread.join();
    return different_;
  }
  size_t Refreshes() const { return refreshes_; }

 private:
  static void Tell(int64_t tenths) {
    std::fprintf(stderr, "soak: %d of 10 parts done\n", static_cast<int>(tenths));
  }
  void Ask(size_t position) {
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    while (left_.fetch_sub(1) > 0) {
      const Request& request = requests_[position++ % requests_.size()];
      if (Answer(host_, request) != request.answer) ++different_;
    }
    CoUninitialize();
  }
  void Refresh() {
    if (TQStoreOpen("sample", nullptr, 0) != 0) ++different_;
    ++refreshes_;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }

  host::ManagementHost& host_;
  const std::vector<Request>& requests_;
  std::atomic<int64_t> left_ = 0;
  std::atomic<size_t> different_ = 0;
  size_t refreshes_ = 0;
};

bool Judge(const char* what, size_t before, size_t after, size_t bound) {
  // What can't be asked for is 0, and nothing is known of it.
  const bool flat = before != 0 && after <= before + bound;
  std::printf("%s: %zu before, %zu after, %s\n", what, before, after, flat ? "flat" : "NOT FLAT");
  return flat;
}

int RunSoak(size_t count) {
  TQStoreOpen("sample", nullptr, 0);
  const auto host = host::ManagementHost::Open();
  const std::vector<Request> requests = MakeRequests(*host);
  Soak soak(*host, requests);
  soak.Run(count / 10);
  const size_t memory = MemoryInUse();
  const size_t handles = OpenHandles();
  const size_t different = soak.Run(count);
  std::printf("%zu requests of %zu kinds from %zu threads, %zu refreshes of the store\n",
              count + count / 10, requests.size(), kThreads, soak.Refreshes());
  std::printf("answers that differed: %zu\n", different);
  const bool flat = Judge("memory in bytes", memory, MemoryInUse(), kMemoryBound);
  const bool kept = Judge("handles", handles, OpenHandles(), kHandleBound);
  return different == 0 && flat && kept ? 0 : 1;
}

}  // namespace
}  // namespace tqcim::bench

int main(int count, char** arguments) {
  size_t requests = 1'000'000;
  const std::string_view text = count == 2 ? arguments[1] : "";
  if (count > 2 ||
      (count == 2 && std::from_chars(text.data(), text.data() + text.size(), requests).ptr !=
                         text.data() + text.size())) {
    std::fprintf(stderr, "usage: soak [REQUESTS]\n");
    return 2;
  }
  try {
    return tqcim::bench::RunSoak(requests);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "soak: %s\n", error.what());
    return 1;
  }
}
