#include "shell/cancel.h"

#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>

namespace tarnwick {
namespace {

// The handler may only touch lock-free atomics and call functions that are
// safe in a signal handler (sigaction, raise, write).
std::atomic<std::atomic<bool>*> g_cancel_flag{nullptr};
std::atomic<bool> g_request{false};
std::atomic<bool> g_note_on_terminal{false};
static_assert(std::atomic<std::atomic<bool>*>::is_always_lock_free);

struct sigaction g_previous {};
bool g_installed = false;

constexpr char kNote[] = "\nCancelling after the file in hand (Ctrl-C again stops at once).\n";

void StopAsCtrlCDoes() {
  struct sigaction fallback {};
  fallback.sa_handler = SIG_DFL;
  sigemptyset(&fallback.sa_mask);
  sigaction(SIGINT, &fallback, nullptr);
  // SIGINT is blocked while its handler runs, so this one arrives, with the
  // default action, as soon as the handler returns.
  raise(SIGINT);
}

extern "C" void OnInterrupt(int) {
  const int saved_errno = errno;
  std::atomic<bool>* flag = g_cancel_flag.load();
  const bool already_cancelled = flag != nullptr && flag->exchange(true);
  if (flag == nullptr || already_cancelled) {
    StopAsCtrlCDoes();
    errno = saved_errno;
    return;
  }
  g_request.store(true);
  if (g_note_on_terminal.load()) {
    ssize_t ignored = write(STDERR_FILENO, kNote, sizeof kNote - 1);
    (void)ignored;
  }
  errno = saved_errno;
}

}  // namespace

void InstallInterruptCancel(AppState& state) {
  g_cancel_flag.store(&state.CancelRun);
  g_note_on_terminal.store(isatty(STDERR_FILENO) == 1);
  if (g_installed) return;
  struct sigaction action {};
  action.sa_handler = OnInterrupt;
  sigemptyset(&action.sa_mask);
  // A prompt waiting for input goes on waiting: the run stops after it.
  action.sa_flags = SA_RESTART;
  if (sigaction(SIGINT, &action, &g_previous) == 0) g_installed = true;
}

void RestoreInterruptHandling() {
  if (g_installed) {
    sigaction(SIGINT, &g_previous, nullptr);
    g_installed = false;
  }
  g_cancel_flag.store(nullptr);
  g_request.store(false);
}

bool TakeInterruptRequest() { return g_request.exchange(false); }

}  // namespace tarnwick
