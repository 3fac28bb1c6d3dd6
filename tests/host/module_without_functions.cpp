// A module that is no COM server.
namespace tqcim::host {
[[gnu::used]] static const int kNothing = 0;
}
