// Ends a wait for a print server from outside, when its time is up or the answer is no longer wanted.
#pragma once

#include <cups/cups.h>

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace kesto {

struct FreeAddresses {
  void operator()(http_addrlist_t* addresses) const;
};

/// The addresses of a print server, freed with their owner.
using Addresses = std::unique_ptr<http_addrlist_t, FreeAddresses>;

/// Watches one connection at a time. libcups limits a single wait, but not an answer that trickles or never
/// ends. So the watchdog shuts down its socket, repeatedly while libcups reconnects.
class Watchdog {
 public:
  Watchdog() = default;
  ~Watchdog();
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;

  /// Ends the current wait and all later ones. May be called in any thread.
  void interrupt();
  bool isInterrupted() const;
  /// The flag that libcups checks while it connects: not 0 after an interruption.
  int* cancelFlag() { return &m_isInterrupted; }

  /// While it exists, the connection is watched. `http` and `addresses` must outlive it.
  class Watch {
   public:
    /// Without a limit only an interruption ends the wait.
    Watch(Watchdog& dog, http_t* http, http_addrlist_t* addresses,
          std::optional<std::chrono::milliseconds> limit);
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    /// Starts a new limit from now on.
    void restart(std::optional<std::chrono::milliseconds> limit);
    /// Whether the connection was cut.
    bool hasCut() const;

   private:
    Watchdog& m_dog;
  };

 private:
  using Clock = std::chrono::steady_clock;

  void run();
  bool isDue() const;
  void setEnd(std::optional<std::chrono::milliseconds> limit);

  mutable std::mutex m_mutex;
  std::condition_variable m_changed;
  std::thread m_thread;      // started by the first watch
  http_t* m_http = nullptr;  // what is watched
  http_addrlist_t* m_addresses = nullptr;
  Clock::time_point m_end = Clock::time_point::max();
  Clock::time_point m_waking = Clock::time_point::max();  // when the thread will look of itself
  int m_isInterrupted = 0;
  bool m_hasCut = false;
  bool m_isGone = false;
};

}  // namespace kesto
